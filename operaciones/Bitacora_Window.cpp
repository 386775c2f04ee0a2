#include "operaciones/Bitacora_Window.h"

#include <cstdlib>
#include <cstring>

#include "app/sesion.h"
#include "db/Engine.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "operaciones/Consulta.h"
#include "widgets/Boton.h"
#include "widgets/cajas.h"

FXDEFMAP(Bitacora_Window)
Bitacora_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Bitacora_Window::ID_BUSCAR, Bitacora_Window::onCmdBuscar),
    FXMAPFUNC(SEL_COMMAND, Bitacora_Window::ID_SIGUIENTES, Bitacora_Window::onCmdSiguientes),
    FXMAPFUNC(SEL_UPDATE, Bitacora_Window::ID_SIGUIENTES, Bitacora_Window::onUpdSiguientes),
    FXMAPFUNC(SEL_COMMAND, Bitacora_Window::ID_ANTERIORES, Bitacora_Window::onCmdAnteriores),
    FXMAPFUNC(SEL_UPDATE, Bitacora_Window::ID_ANTERIORES, Bitacora_Window::onUpdAnteriores),
    FXMAPFUNCS(SEL_COMMAND, Bitacora_Window::ID_DESDE, Bitacora_Window::ID_HASTA,
               Bitacora_Window::onCmdFecha),
    FXMAPFUNC(SEL_COMMAND, Bitacora_Window::ID_TABLA, Bitacora_Window::onRelee),
    FXMAPFUNC(SEL_CHANGED, Bitacora_Window::ID_TABLA, Bitacora_Window::onRenglon),
};
FXIMPLEMENT(Bitacora_Window, FXMDIChild, Bitacora_WindowMap, ARRAYNUMBER(Bitacora_WindowMap))

namespace {

constexpr size_t lineasPorPagina = 500;

/// What can happen to a row, a login or a month, as the log has it and as the screen says it.
const struct {
  const char* clave;
  const char* texto;
} operaciones[] = {
    {"", "Todas"},           {"INSERT", "Alta"},
    {"UPDATE", "Cambio"},    {"DELETE", "Baja"},
    {"ALTA", "Login nuevo"}, {"BAJA", "Login retirado"},
    {"CLAVE", "Contraseña"}, {"REAPERTURA", "Mes reabierto"},
};

const char* EnPalabras(const char* operacion) {
  for (const auto& una : operaciones)
    if (strcmp(una.clave, operacion) == 0) return una.texto;
  return operacion;
}

/// A filter by day as the server takes it; one that is no day goes as it was typed, for the server to refuse.
FXString Dia(const DatoFecha& fecha) {
  const date dia = fecha.Valor();
  return fecha.valor.empty()               ? FXString::null
         : dia.valid() && !FaltaFecha(dia) ? FXString(dia.AsChar())
                                           : fecha.valor;
}

}  // namespace

Bitacora_Window::Bitacora_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FXMDIChild(area, "Bitácora", nullptr, menu, 0, 10, 10, 780, 480) {
  setAccelTable(new FXAccelTable);
  auto* formal = new MarcoDeForma(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  formal->AlReleer([this] { onRelee(nullptr, 0, nullptr); });
  auto* cuerpo = new FXVerticalFrame(formal, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  ArmaFiltros(cuerpo);
  auto* partes = new FXSplitter(
      cuerpo, SPLITTER_VERTICAL | SPLITTER_REVERSED | SPLITTER_TRACKING | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  marco = new MarcoDeTabla(new FXVerticalFrame(partes, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0),
                           this, ID_TABLA);
  auto* abajo = new FXVerticalFrame(partes, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0,
                                    0, 130, 0, 0, 0, 0);
  detalle = new ListaDeTabla(abajo, nullptr, 0, LAYOUT_FILL_X | LAYOUT_FILL_Y);
}

void Bitacora_Window::create() {
  FXMDIChild::create();
  DaTeclado(desde.campo);
}

void Bitacora_Window::ArmaFiltros(FXComposite* padre) {
  auto* renglon = new FXHorizontalFrame(padre, LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  auto* matriz = new FXMatrix(renglon, 6, MATRIX_BY_COLUMNS, 0, 0, 0, 0, 0, 0, 0, 0);
  campoFecha(matriz, "Desde:", desde, this, ID_DESDE);
  campoTexto(matriz, "Usuario:", 20, usuario);
  campoTexto(matriz, "Clave:", 20, clave);
  campoFecha(matriz, "Hasta:", hasta, this, ID_HASTA);
  campoTexto(matriz, "Tabla:", 20, tabla);
  operacion = campoCombo(matriz, "Clase:", 8);
  for (const auto& una : operaciones) operacion->appendItem(una.texto);
  operacion->setCurrentItem(0);
  for (const DatoTexto* dato : {&usuario, &tabla, &clave})
    dato->campo->setTextStyle(dato->campo->getTextStyle() & ~FXuint(TEXTFIELD_LIMITED));
  auto* botones = new FXVerticalFrame(renglon, LAYOUT_RIGHT | PACK_UNIFORM_WIDTH, 0, 0, 0, 0, 0, 0, 0, 0);
  NuevoBoton<BotonDeForma>(botones, "&Buscar", icono(getApp(), iconos::find_icon), this, ID_BUSCAR,
                           BUTTON_DEFAULT);
  auto* hojeo = new FXHorizontalFrame(botones, PACK_UNIFORM_WIDTH, 0, 0, 0, 0, 0, 0, 0, 0);
  NuevoBoton<BotonDeForma>(hojeo, "<< &Nuevas", nullptr, this, ID_ANTERIORES, 0);
  NuevoBoton<BotonDeForma>(hojeo, "Vie&jas >>", nullptr, this, ID_SIGUIENTES, 0);
}

long Bitacora_Window::onCmdFecha(FXObject*, FXSelector sel, void*) {
  return (FXSELID(sel) == ID_DESDE ? desde : hasta).Elige(this);
}

/// The arguments of the function but for the line ahead of the page.
FXString Bitacora_Window::Filtros() const {
  std::string textos;
  const FXint cual = operacion->getCurrentItem();
  for (const FXString& texto : {Dia(desde), Dia(hasta), usuario.valor, tabla.valor, clave.valor,
                                FXString(cual < 0 ? "" : operaciones[cual].clave)})
    textos += Literal(texto) + ",";
  return textos.c_str();
}

/// Shows the page behind the line `siguiente`; behind none, 0, is the newest.
void Bitacora_Window::Pide(const std::string& siguiente) {
  Tabla pagina({{"Fecha", Tabla::Fecha},
                {"Usuario", Tabla::Texto},
                {"Clase", Tabla::Texto},
                {"Tabla", Tabla::Texto},
                {"Nombre", Tabla::Texto},
                {"Clave", Tabla::Texto},
                {"Clave anterior", Tabla::Texto},
                {"Equipo", Tabla::Texto},
                {"Programa", Tabla::Texto}});
  lineas.clear();
  getApp()->beginWaitCursor();
  try {
    Consulta("SELECT * FROM spsbitacora(" + std::string(filtros.text()) + siguiente + ");");
    for (int fila = 0; fila < PQntuples(res); ++fila) {
      lineas.emplace_back(Celda(fila, 0));
      for (int columna = 1; columna <= pagina.NumColumnas(); ++columna)
        pagina.Agrega(columna == 3 ? EnPalabras(Celda(fila, columna)) : Celda(fila, columna));
    }
    LiberaResultado();
    marco->Pon("Bitácora", std::move(pagina));
  } catch (char* texto) {
    marco->Pon("Bitácora", Tabla(pagina.Columnas()));
    lineas.clear();
    cajaError(this, "Bitácora", texto);
  }
  getApp()->endWaitCursor();
  MuestraDetalle();
}

long Bitacora_Window::onCmdBuscar(FXObject*, FXSelector, void*) {
  filtros = Filtros();
  paginas.assign(1, "0");
  Pide(paginas.back());
  return 1;
}

long Bitacora_Window::onCmdSiguientes(FXObject*, FXSelector, void*) {
  if (lineas.size() < lineasPorPagina) return 1;
  paginas.push_back(lineas.back());
  Pide(paginas.back());
  return 1;
}

long Bitacora_Window::onCmdAnteriores(FXObject*, FXSelector, void*) {
  if (paginas.size() < 2) return 1;
  paginas.pop_back();
  Pide(paginas.back());
  return 1;
}

long Bitacora_Window::onUpdSiguientes(FXObject* emisor, FXSelector, void*) {
  return emisor->handle(this, FXSEL(SEL_COMMAND, lineas.size() < lineasPorPagina ? ID_DISABLE : ID_ENABLE),
                        nullptr);
}

long Bitacora_Window::onUpdAnteriores(FXObject* emisor, FXSelector, void*) {
  return emisor->handle(this, FXSEL(SEL_COMMAND, paginas.size() < 2 ? ID_DISABLE : ID_ENABLE), nullptr);
}

long Bitacora_Window::onRelee(FXObject*, FXSelector, void*) {
  if (paginas.empty()) return onCmdBuscar(nullptr, 0, nullptr);
  Pide(paginas.back());
  return 1;
}

long Bitacora_Window::onRenglon(FXObject*, FXSelector, void*) {
  MuestraDetalle();
  return 1;
}

void Bitacora_Window::MuestraDetalle() {
  Tabla campos(
      {{"Campo", Tabla::Texto}, {"", Tabla::Texto}, {"Antes", Tabla::Texto}, {"Después", Tabla::Texto}});
  const int fila = marco->Lista()->FilaActual();
  try {
    if (fila >= 0 && static_cast<size_t>(fila) < lineas.size()) {
      Consulta("SELECT * FROM spsbitacoradetalle(" + lineas[fila] + ");");
      for (int campo = 0; campo < PQntuples(res); ++campo) {
        campos.Agrega(Celda(campo, 0));
        campos.Agrega(Celda(campo, 3)[0] == 't' ? "●" : "");
        campos.Agrega(Celda(campo, 1));
        campos.Agrega(Celda(campo, 2));
      }
      LiberaResultado();
    }
  } catch (char* texto) {
    cajaError(this, "Bitácora", texto);
  }
  detalle->Pon(std::move(campos), "0:150 1:20 2:280 3:280");
}
