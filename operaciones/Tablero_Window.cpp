#include "operaciones/Tablero_Window.h"

#include <FXPNGImage.h>

#include <algorithm>
#include <cstdlib>

#include "app/sesion.h"
#include "db/Engine.h"
#include "framework/Campos.h"
#include "framework/Foco.h"
#include "operaciones/Archivo.h"
#include "operaciones/Consulta.h"
#include "operaciones/Grafica.h"
#include "widgets/Boton.h"
#include "widgets/cajas.h"

FXDEFMAP(Tablero_Window)
Tablero_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Tablero_Window::ID_TABLA, Tablero_Window::onRelee),
    FXMAPFUNC(SEL_COMMAND, Tablero_Window::ID_TIPO, Tablero_Window::onCmdTipo),
    FXMAPFUNC(SEL_COMMAND, Tablero_Window::ID_PNG, Tablero_Window::onCmdPng),
};
FXIMPLEMENT(Tablero_Window, FXMDIChild, Tablero_WindowMap, ARRAYNUMBER(Tablero_WindowMap))

namespace {

constexpr FXint ancho = 750;
constexpr FXint alto = 225;

enum { Ejercicio, Periodo, Tipo, Descripcion, Saldo, Vencido, Reserva };  // of the server's answer

const std::vector<SerieDeBarras> series = {
    {"Saldo", FXRGB(52, 101, 164)}, {"Vencido", FXRGB(204, 70, 40)}, {"Reserva", FXRGB(90, 150, 60)}};

/// The picture as a file; empty if it could not be made.
std::string Png(const FXImage* imagen) {
  FXMemoryStream memoria;
  if (imagen->getData() == nullptr || !memoria.open(FXStreamSave, nullptr)) return "";
  const bool bien = fxsavePNG(memoria, imagen->getData(), imagen->getWidth(), imagen->getHeight());
  const auto largo = static_cast<size_t>(memoria.position());
  FXuchar* octetos = nullptr;
  FXuval espacio = 0;
  memoria.takeBuffer(octetos, espacio);
  const std::string archivo(reinterpret_cast<const char*>(octetos), bien ? largo : 0);
  FXFREE(&octetos);
  memoria.close();
  return archivo;
}

}  // namespace

Tablero_Window::Tablero_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FXMDIChild(area, "Tablero", nullptr, menu, 0, 10, 5, 780, 515),
      imagen(std::make_unique<FXImage>(getApp(), nullptr, IMAGE_KEEP | IMAGE_OWNED, ancho, alto)) {
  setAccelTable(new FXAccelTable);
  auto* formal = new MarcoDeForma(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  formal->AlReleer([this] { onRelee(nullptr, 0, nullptr); });
  auto* cuerpo = new FXVerticalFrame(formal, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  ArmaEncabezado(cuerpo);
  cuadro = new FXImageFrame(cuerpo, imagen.get(), FRAME_SUNKEN | FRAME_THICK | LAYOUT_CENTER_X);
  marco = new MarcoDeTabla(cuerpo, this, ID_TABLA);
  onRelee(nullptr, 0, nullptr);
}

Tablero_Window::~Tablero_Window() {
  if (cuadro != nullptr) cuadro->setImage(nullptr);
}

void Tablero_Window::ArmaEncabezado(FXComposite* padre) {
  auto* renglon = new FXHorizontalFrame(padre, LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  combo = campoCombo(new FXMatrix(renglon, 2, MATRIX_BY_COLUMNS, 0, 0, 0, 0, 0, 0, 0, 0),
                     "Tipo de préstamo:", 10, this, ID_TIPO);
  combo->appendItem("Todos");
  NuevoBoton<BotonDeForma>(renglon, "Guar&dar PNG\tEscribe la gráfica en un archivo", nullptr, this, ID_PNG,
                           LAYOUT_RIGHT);
}

void Tablero_Window::create() {
  imagen->create();
  FXMDIChild::create();
  Muestra();
  DaTeclado(combo);
}

/// Takes over the server's answer, and the types that it names.
void Tablero_Window::Recibe() {
  const FXint actual = combo->getCurrentItem();
  const std::string elegido = actual > 0 ? tipos[actual] : "";
  std::vector<std::pair<std::string, std::string>> nombres;
  cifras.clear();
  meses.clear();
  for (int fila = 0; fila < PQntuples(res); ++fila) {
    const FXString mes =
        FXStringFormat("%02d/%04d", atoi(Celda(fila, Periodo)), atoi(Celda(fila, Ejercicio)));
    if (meses.empty() || meses.back() != mes.text()) meses.emplace_back(mes.text());
    cifras.push_back(
        {mes.text(), Celda(fila, Tipo), {Celda(fila, Saldo), Celda(fila, Vencido), Celda(fila, Reserva)}});
    if (!cifras.back().tipo.empty()) nombres.emplace_back(cifras.back().tipo, Celda(fila, Descripcion));
  }
  std::sort(nombres.begin(), nombres.end());
  nombres.erase(std::unique(nombres.begin(), nombres.end()), nombres.end());
  tipos.assign(1, "");
  combo->clearItems();
  combo->appendItem("Todos");
  for (const auto& [tipo, nombre] : nombres) {
    tipos.push_back(tipo);
    combo->appendItem((tipo + " " + nombre).c_str());
    if (tipo == elegido) combo->setCurrentItem(combo->getNumItems() - 1);
  }
  if (elegido.empty()) combo->setCurrentItem(0);
}

const Tablero_Window::Cifras* Tablero_Window::Busca(const std::string& mes, const std::string& tipo) const {
  const auto hallada = std::find_if(cifras.begin(), cifras.end(),
                                    [&](const Cifras& unas) { return unas.mes == mes && unas.tipo == tipo; });
  return hallada == cifras.end() ? nullptr : &*hallada;
}

/// Shows the months of the chosen type; one without loans of it has zeros.
void Tablero_Window::Muestra() {
  static const Cifras ninguna{"", "", {"0.00", "0.00", "0.00"}};
  const FXint cual = combo->getCurrentItem();
  const std::string tipo = cual > 0 ? tipos[cual] : "";
  std::vector<GrupoDeBarras> grupos;
  std::vector<::Tabla::Columna> columnas = {{"Mes", Tabla::Texto}};
  for (const SerieDeBarras& serie : series) columnas.push_back({serie.nombre, Tabla::Numero});
  Tabla tabla(std::move(columnas));
  for (const std::string& mes : meses) {
    const Cifras* hallada = Busca(mes, tipo);
    if (hallada == nullptr) hallada = &ninguna;
    tabla.Agrega(mes);
    GrupoDeBarras grupo{mes, {}};
    for (const std::string& importe : hallada->importes) {
      tabla.Agrega(importe);
      grupo.valores.push_back(strtod(importe.c_str(), nullptr));
    }
    grupos.push_back(std::move(grupo));
  }
  marco->Pon("Tablero", std::move(tabla));
  if (imagen->id() == 0) return;
  DibujaBarras(imagen.get(), getApp()->getNormalFont(), series, grupos,
               leido ? "No hay meses cerrados." : "");
  cuadro->update();
}

long Tablero_Window::onRelee(FXObject*, FXSelector, void*) {
  getApp()->beginWaitCursor();
  try {
    Consulta("SELECT * FROM spstablero();");
    Recibe();
    LiberaResultado();
    leido = true;
  } catch (char* texto) {
    cajaError(id() != 0 ? static_cast<FXWindow*>(this) : getShell(), "Tablero", texto);
  }
  getApp()->endWaitCursor();
  Muestra();
  return 1;
}

long Tablero_Window::onCmdTipo(FXObject*, FXSelector, void*) {
  Muestra();
  return 1;
}

long Tablero_Window::onCmdPng(FXObject*, FXSelector, void*) {
  const std::string octetos = Png(imagen.get());
  if (octetos.empty()) {
    cajaError(this, "PNG", "No se pudo hacer la imagen.");
  } else {
    GuardaArchivo(
        this, "PNG", "Guardar PNG", "tablero.png", [&] { return octetos; }, "La gráfica se escribió en");
  }
  return 1;
}
