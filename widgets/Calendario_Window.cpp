#include "widgets/Calendario_Window.h"

#include "icons/Icono.h"
#include "icons/iconos.h"
#include "widgets/Boton.h"
#include "widgets/FXCalendar.h"

FXDEFMAP(Calendario_Window)
Calendario_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Calendario_Window::ID_ACEPTAR, Calendario_Window::onCmdAceptar),
    FXMAPFUNC(SEL_CLOSE, 0, Calendario_Window::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Calendario_Window::ID_QUIT, Calendario_Window::onCmdQuit),
};

FXIMPLEMENT(Calendario_Window, FXDialogBox, Calendario_WindowMap, ARRAYNUMBER(Calendario_WindowMap))

Calendario_Window::Calendario_Window(FXWindow* owner, const date& d)
    : FXDialogBox(owner, FXString::null, DECOR_BORDER, 0, 0, 0, 0, 0, 0, 0, 0, 2, 2) {
  auto* columna = new FXVerticalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* marco = new FXHorizontalFrame(columna, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4);
  calendario = new FXCalendar(marco, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  new FXHorizontalSeparator(columna, SEPARATOR_GROOVE | LAYOUT_FILL_X);
  ArmaBotones(new FXHorizontalFrame(columna, LAYOUT_FILL_X, 0, 0, 0, 0, 2, 2, 2, 2, 4, 4));
  if (d.valid()) calendario->setDate(d.year(), d.month(), d.day());
}

void Calendario_Window::ArmaBotones(FXComposite* padre) {
  const auto boton = [&](const char* texto, const unsigned char* dibujo, FXSelector mensaje,
                         FXuint opciones) {
    return NuevoBoton(padre, texto, icono(getApp(), dibujo), this, mensaje, LAYOUT_BOTTOM | opciones);
  };
  btnCerrar = boton("&Cerrar", iconos::cerrar_icon, ID_CANCEL, LAYOUT_FILL_X);
  btnAceptar = boton("&Aceptar", iconos::ok_icon, ID_ACEPTAR, BUTTON_DEFAULT);
}

long Calendario_Window::onCmdAceptar(FXObject*, FXSelector, void*) {
  int anio, mes, dia;
  calendario->getDate(anio, mes, dia);
  gFecha.set_year(anio);
  gFecha.set_month(mes);
  gFecha.set_day(dia);
  return handle(this, FXSEL(SEL_COMMAND, ID_ACCEPT), nullptr);
}

date FechaDeTexto(const FXString& texto) {
  const FXString mesYAnio = texto.after('/');
  date fecha;
  fecha.set_day(FXIntVal(texto.before('/')));
  fecha.set_month(FXIntVal(mesYAnio.before('/')));
  fecha.set_year(FXIntVal(mesYAnio.after('/')));
  date renovada;
  return renovada = fecha;  // with the texts of what was set
}

FXString TextoDeFecha(const date& fecha, FormatoFecha formato) {
  switch (formato) {
    case FormatoFecha::Blancos:
      return FXStringFormat("%2d/%2d/%4d", fecha.day(), fecha.month(), fecha.year());
    case FormatoFecha::Corto:
      return FXStringFormat("%d/%d/%d", fecha.day(), fecha.month(), fecha.year());
    default:
      return FXStringFormat("%02d/%02d/%04d", fecha.day(), fecha.month(), fecha.year());
  }
}

FXString EligeFecha(FXWindow* owner, const FXString& texto, FormatoFecha formato) {
  gFecha = FechaDeTexto(texto);
  Calendario_Window(owner, gFecha).execute(PLACEMENT_CURSOR);
  return TextoDeFecha(gFecha, formato);
}
