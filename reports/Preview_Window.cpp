#include "reports/Preview_Window.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <iostream>

#include "app/sesion.h"
#include "framework/Sentencia.h"
#include "reports/Archivo.h"
#include "widgets/cajas.h"

namespace {

// The text widget counts in int and keeps some room of its own.
constexpr FXlong maximo = INT_MAX - 4096;

/// Does the byte tell the printer something?
bool EsControl(FXchar letra) { return letra == 13 || letra == 18 || letra == 15 || letra == 12; }

/// Drops the controls, and the white space at the end of each line. Answers the new length.
FXint Limpia(FXchar* texto, size_t largo) {
  FXchar *fin = texto, *util = texto;  // end of what is kept, and of what is no white space in its line
  for (const FXchar* letra = texto; letra != texto + largo; ++letra) {
    if (EsControl(*letra)) continue;
    if (*letra == '\n') fin = util;
    *fin++ = *letra;
    if (*letra == '\n' || !Ascii::isSpace(*letra)) util = fin;
  }
  return static_cast<FXint>(util - texto);
}

/// The name of a file for a box, whose text has the shape of a format.
FXString Mostrado(FXString archivo) { return archivo.substitute("%", "%%"); }

}  // namespace

FXDEFMAP(Preview_Window)
Preview_WindowMap[] = {
    FXMAPFUNC(SEL_CLOSE, 0, Preview_Window::onCmdQuit),
    FXMAPFUNC(SEL_COMMAND, Preview_Window::ID_GUARDA, Preview_Window::onCmdGuarda),
    FXMAPFUNC(SEL_SIGNAL, Preview_Window::ID_SALIR, Preview_Window::onCmdQuit),
};

FXIMPLEMENT(Preview_Window, FXDialogBox, Preview_WindowMap, ARRAYNUMBER(Preview_WindowMap))

Preview_Window::Preview_Window(FXWindow* duenio, const FXString& archivo)
    : FXDialogBox(duenio, "Reporte", DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE, 0, 0, 0, 0, 0, 0, 0, 0, 4,
                  4) {
  std::cout << "entrando a preview" << std::endl;
  auto* marco = new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4);
  texto =
      new FXText(marco, nullptr, 0, TEXT_SHOWACTIVE | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 3, 3, 2, 2);
  texto->setHiliteMatchTime(2000);
  texto->setBarColumns(0);
  texto->setScrollStyle(texto->getScrollStyle() | SCROLLERS_DONT_TRACK);
  letra = std::make_unique<FXFont>(getApp(), "courier [adobe]", 9, FXFont::Medium, FXFont::Straight,
                                   FONTENCODING_DEFAULT, FXFont::NonExpanded, FXFont::Fixed);
  texto->setFont(letra.get());
  Lee(archivo);
  texto->setEditable(IsEditable);
  resize(550, 750);
  getAccelTable()->addAccel(parseAccel("F10"), this, FXSEL(SEL_COMMAND, ID_GUARDA));
}

void Preview_Window::Lee(const FXString& archivo) {
  const std::unique_ptr<FILE, int (*)(FILE*)> entrada(fopen(archivo.text(), "r"), fclose);
  if (entrada == nullptr) {
    cajaError(getOwner(), "Error de Archivo",
              Sentencia("No se puede abrir archivo: %s", Mostrado(archivo).text()));
    return;
  }
  const FXlong tamano = FXStat::size(archivo);
  FXchar* contenido = nullptr;
  if (tamano > maximo || !FXMALLOC(&contenido, FXchar, tamano)) {
    cajaError(
        getOwner(), "Error leer archivo",
        Sentencia("Muy grande: %s (%lli bytes)", Mostrado(archivo).text(), static_cast<long long>(tamano)));
    return;
  }
  getApp()->beginWaitCursor();
  const size_t leido = fread(contenido, 1, tamano, entrada.get());
  texto->setText(contenido, Limpia(contenido, leido));
  FXFREE(&contenido);
  getApp()->endWaitCursor();
}

long Preview_Window::onCmdGuarda(FXObject*, FXSelector, void*) {
  if (!IsEditable) return 1;
  const FXString todo = texto->getText();
  Archivo("his.txt").Escribe({todo.text(), static_cast<size_t>(todo.length())});
  return 1;
}
