#include "operaciones/MarcoDeTabla.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

#include "framework/Foco.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "operaciones/Archivo.h"
#include "operaciones/Plegado.h"
#include "reports/Preview_Window.h"
#include "reports/Reporte.h"
#include "widgets/Boton.h"
#include "widgets/CampoDeTexto.h"
#include "widgets/cajas.h"

FXDEFMAP(MarcoDeTabla)
MarcoDeTablaMap[] = {
    FXMAPFUNC(SEL_CHANGED, MarcoDeTabla::ID_FILTRO, MarcoDeTabla::onFiltro),
    FXMAPFUNC(SEL_COMMAND, MarcoDeTabla::ID_FILTRO, MarcoDeTabla::onFiltro),
    FXMAPFUNC(SEL_DOUBLECLICKED, MarcoDeTabla::ID_LISTA, MarcoDeTabla::onRenglon),
    FXMAPFUNC(SEL_CHANGED, MarcoDeTabla::ID_LISTA, MarcoDeTabla::onRenglon),
    FXMAPFUNC(SEL_COMMAND, MarcoDeTabla::ID_RELEE, MarcoDeTabla::onRelee),
    FXMAPFUNC(SEL_COMMAND, MarcoDeTabla::ID_COPIA, MarcoDeTabla::onCopia),
    FXMAPFUNC(SEL_COMMAND, MarcoDeTabla::ID_CSV, MarcoDeTabla::onCsv),
    FXMAPFUNC(SEL_COMMAND, MarcoDeTabla::ID_VER, MarcoDeTabla::onVer),
    FXMAPFUNC(SEL_COMMAND, MarcoDeTabla::ID_IMPRIME, MarcoDeTabla::onImprime),
};
FXIMPLEMENT(MarcoDeTabla, FXVerticalFrame, MarcoDeTablaMap, ARRAYNUMBER(MarcoDeTablaMap))

namespace {

constexpr char seccion[] = "LISTAS";  // of the settings
constexpr char reporte[] = "reporte.txt";
constexpr int anchoDePagina = 120;
constexpr int columnaMayor = 40;
constexpr int columnaMenor = 6;

/// `texto` in `ancho` characters.
std::string Ajustado(const std::string& texto, int ancho, bool aLaDerecha) {
  std::string ajustado;
  int letras = 0;
  for (size_t i = 0; i < texto.size(); ++i) {
    if ((texto[i] & 0xC0) != 0x80 && letras++ == ancho) break;
    ajustado += static_cast<unsigned char>(texto[i]) < ' ' ? ' ' : texto[i];
  }
  const std::string blancos(std::max(ancho - letras, 0), ' ');
  return aLaDerecha ? blancos + ajustado : ajustado + blancos;
}

int Letras(const char* texto) {
  return static_cast<int>(
      std::count_if(texto, texto + strlen(texto), [](char c) { return (c & 0xC0) != 0x80; }));
}

/// A table in the columns of a page: those that fit on it, the widest ones narrowed first.
class Pagina {
 public:
  Pagina(const Tabla& tabla, std::vector<int> orden) : tabla(tabla), columnas(std::move(orden)) {
    for (const int columna : columnas) {
      int ancho = Letras(tabla.Columnas()[columna].titulo.c_str());
      for (int i = 0; i < tabla.Visibles(); ++i)
        ancho = std::max(ancho, Letras(tabla.Celda(tabla.Fila(i), columna)));
      anchos.push_back(std::min(ancho, columnaMayor));
    }
    while (Total() > anchoDePagina) {
      const auto mayor = std::max_element(anchos.begin(), anchos.end());
      if (*mayor > columnaMenor) {
        --*mayor;
      } else {
        omitidas.insert(0, ", " + tabla.Columnas()[columnas.back()].titulo);
        columnas.pop_back();
        anchos.pop_back();
      }
    }
  }

  std::string Titulos() const {
    return Renglon([this](int columna) { return tabla.Columnas()[columna].titulo; });
  }
  std::string Fila(int fila) const {
    return Renglon([&](int columna) { return std::string(tabla.Celda(fila, columna)); });
  }
  std::string Omitidas() const { return omitidas.empty() ? "" : "No caben: " + omitidas.substr(2); }

 private:
  int Total() const {
    int total = -1;
    for (const int ancho : anchos) total += ancho + 1;
    return total;
  }
  template <class Celda>
  std::string Renglon(Celda celda) const {
    std::string renglon;
    for (size_t i = 0; i < columnas.size(); ++i) {
      if (i > 0) renglon += ' ';
      renglon += Ajustado(celda(columnas[i]), anchos[i], tabla.Columnas()[columnas[i]].tipo == Tabla::Numero);
    }
    return renglon;
  }

  const Tabla& tabla;
  std::vector<int> columnas;
  std::vector<int> anchos;
  std::string omitidas;
};

}  // namespace

MarcoDeTabla::MarcoDeTabla(FXComposite* padre, FXObject* destino, FXSelector mensaje)
    : FXVerticalFrame(padre, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0) {
  setTarget(destino);
  setSelector(mensaje);
  auto* arriba = new FXHorizontalFrame(this, LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  new FXLabel(arriba, "Filtro:", nullptr, LABEL_NORMAL | LAYOUT_CENTER_Y);
  filtro = new CampoDeTexto(arriba, 30, this, ID_FILTRO, FRAME_SUNKEN | FRAME_THICK | LAYOUT_CENTER_Y);
  cuenta = new FXLabel(arriba, " ", nullptr, LABEL_NORMAL | JUSTIFY_LEFT | LAYOUT_FILL_X | LAYOUT_CENTER_Y);
  auto* marco = new FXVerticalFrame(this, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0,
                                    0, 0, 0, 0, 0);
  lista = new ListaDeTabla(marco, this, ID_LISTA, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* abajo = new FXHorizontalFrame(this, LAYOUT_FILL_X | PACK_UNIFORM_WIDTH, 0, 0, 0, 0, 0, 0, 0, 0);
  const auto boton = [&](const char* texto, const unsigned char* dibujo, FXSelector que) {
    NuevoBoton<BotonDeForma>(abajo, texto, dibujo != nullptr ? icono(getApp(), dibujo) : nullptr, this, que,
                             0);
  };
  boton("&Releer\tVuelve a leer del servidor (F5)", nullptr, ID_RELEE);
  boton("C&opiar\tCopia los renglones elegidos (Ctrl+C)", nullptr, ID_COPIA);
  boton("CS&V\tEscribe los renglones que se muestran, para una hoja de cálculo", nullptr, ID_CSV);
  boton("R&eporte\tMuestra los renglones como se imprimen", iconos::find_icon, ID_VER);
  boton("I&mprimir\tImprime los renglones que se muestran", nullptr, ID_IMPRIME);
  NuevoBoton(abajo, "&Cerrar", icono(getApp(), iconos::cerrar_icon), destino, FXWindow::ID_MDI_CLOSE, 0);
}

MarcoDeTabla::~MarcoDeTabla() { Guarda(); }

/// Keeps the columns as they are in the settings.
void MarcoDeTabla::Guarda() {
  if (!titulo.empty())
    getApp()->reg().writeStringEntry(seccion, NombreDeArchivo().text(), lista->Disposicion().text());
}

/// The title in small letters and figures.
FXString MarcoDeTabla::NombreDeArchivo() const {
  std::string nombre = Plegado(titulo.text());
  for (size_t lugar; (lugar = nombre.find("ñ")) != std::string::npos;) nombre.replace(lugar, 2, "n");
  std::replace_if(
      nombre.begin(), nombre.end(), [](unsigned char c) { return !isalnum(c) || c >= 0x80; }, '_');
  return nombre.c_str();
}

void MarcoDeTabla::Pon(const FXString& nuevo, Tabla tabla) {
  if (nuevo == titulo) {
    lista->Renueva(std::move(tabla));
  } else {
    Guarda();
    titulo = nuevo;
    filtro->setText(FXString::null);
    const FXString llave = NombreDeArchivo();
    lista->Pon(std::move(tabla), getApp()->reg().readStringEntry(seccion, llave.text(), ""));
  }
  Cuenta();
}

void MarcoDeTabla::Cuenta() {
  cuenta->setText(FXStringFormat("%d de %d", lista->Datos().Visibles(), lista->Datos().Filas()));
}

long MarcoDeTabla::onFiltro(FXObject*, FXSelector, void*) {
  lista->Filtra(filtro->getText());
  Cuenta();
  return 1;
}

long MarcoDeTabla::onRenglon(FXObject*, FXSelector sel, void*) {
  if (target != nullptr && lista->FilaActual() >= 0)
    target->tryHandle(this, FXSEL(FXSELTYPE(sel), message), nullptr);
  return 1;
}

long MarcoDeTabla::onRelee(FXObject*, FXSelector, void*) {
  if (target != nullptr) target->tryHandle(this, FXSEL(SEL_COMMAND, message), nullptr);
  return 1;
}

long MarcoDeTabla::onCopia(FXObject* emisor, FXSelector, void* datos) {
  return lista->onCmdCopia(emisor, FXSEL(SEL_COMMAND, ListaDeTabla::ID_COPIA), datos);
}

long MarcoDeTabla::onCsv(FXObject*, FXSelector, void*) {
  GuardaArchivo(
      this, "CSV", "Escribir CSV", NombreDeArchivo() + ".csv",
      [this] { return lista->Datos().Csv(lista->Columnas()); },
      FXStringFormat("Se escribieron %d renglones en", lista->Datos().Visibles()));
  return 1;
}

bool MarcoDeTabla::EscribeReporte() {
  const std::unique_ptr<FILE, int (*)(FILE*)> archivo(fopen(reporte, "w"), fclose);
  if (archivo == nullptr) {
    cajaError(this, "Reporte", "No se pudo escribir reporte.txt en la carpeta de trabajo.");
    return false;
  }
  const Tabla& tabla = lista->Datos();
  const Pagina pagina(tabla, lista->Columnas());
  const std::string orden = tabla.Orden() < 0 ? "" : tabla.Columnas()[tabla.Orden()].titulo;
  const std::string filtrado =
      filtro->getText().empty() ? "" : std::string("Filtro: ") + filtro->getText().text();
  Reporte de("", titulo.text(), orden.c_str(), pagina.Titulos().c_str(), "",
             std::string(anchoDePagina, '-').c_str(), filtrado.c_str(), pagina.Omitidas().c_str(), 1, 0);
  de.Begin(archivo.get());
  for (int i = 0; i < tabla.Visibles(); ++i) de.Imprime(archivo.get(), pagina.Fila(tabla.Fila(i)).c_str());
  de.End(archivo.get());
  if (fflush(archivo.get()) == 0 && ferror(archivo.get()) == 0) return true;
  cajaError(this, "Reporte", "No se pudo escribir entero reporte.txt: el disco está lleno o no responde.");
  return false;
}

long MarcoDeTabla::onVer(FXObject*, FXSelector, void*) {
  if (EscribeReporte()) Preview_Window(this, reporte).execute(PLACEMENT_SCREEN);
  return 1;
}

long MarcoDeTabla::onImprime(FXObject*, FXSelector, void*) {
  if (EscribeReporte()) Reporte::Imprimir();
  return 1;
}
