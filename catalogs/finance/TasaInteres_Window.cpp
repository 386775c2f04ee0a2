#include "catalogs/finance/TasaInteres_Window.h"

MAPA_FORMA(TasaInteres_Window, onCmdTasaInteres)

cTipoTasaInteres tasas;
char Buffers[200];
char* tasa;
char* des;
char* neww;
bool flag;
char sDescripciones[100];
char* cup;
char* date1;
char* date2;
int no1;
int no2;
bool nuevo;

namespace {

// What the three values of a statement point at; they outlive the form, as the pointers do.
FXString textos[3];

/// Keeps the text of a value in its place, and answers where it is.
char* Apunta(FXString& lugar, const FXString& texto) {
  lugar = texto;
  return const_cast<char*>(lugar.text());
}

}  // namespace

TasaInteres_Window::TasaInteres_Window(FXWindow* duenio) : Forma(duenio, "Tipo Tasa Variables") {
  ArmaLista("Tasa Interes");
  FXMatrix* matriz = ArmaGrupo("Parametros");
  campoClave(matriz, "TipoTasaVariable:", 4, nombre);
  matriz = ArmaGrupo("Observaciones");
  matriz->setNumColumns(1);
  campoParrafo(matriz, "Descripcion:", 2, 40, descripcion);
  ArmaBotones();
  Load();
  Read(0);
}

void TasaInteres_Window::Read(int fila) {
  if (!CopiaFila(Filas(), fila, tasas)) return;
  anterior = tasas.getTipotasa();
  nombre.Pon(lstFilas->getItemText(fila));
  descripcion.Pon(tasas.getDescripcion());
}

void TasaInteres_Window::Update() {
  tasa = Apunta(textos[0], nombre.Valor());
  des = Apunta(textos[1], descripcion.Valor());
  neww = Apunta(textos[2], anterior);
}

void TasaInteres_Window::Clear() {
  nombre.Vacia();
  descripcion.Vacia();
}

/// Is there no description? Then says so.
bool TasaInteres_Window::EstaVacia(const char* aviso) {
  if (des[0] != '\0') return false;
  cajaInformacion(this, "Mensaje", aviso);
  return true;
}

void TasaInteres_Window::Manda(const Sentencia& sql) {
  CopiaTexto(Buffers, sql);
  std::cout << sql << std::endl;
  catalogo.LoadTipoTasa(sql);
}

long TasaInteres_Window::onCmdAgregar(FXObject*, FXSelector, void*) {
  Update();
  if (EstaVacia("Los  campos estan vacios ")) return 1;
  if (flag) {
    Manda(Sentencia("SELECT * FROM subtipotasa('b','%s','%s','null');", tasa, des));
    cajaInformacion(this, "Mensaje", "Se ha insertado la tasa correctamente ");
  } else if (cajaPregunta(this, "Modifica tasa", "Esta seguro que quiere modificar la tasa")) {
    Manda(Sentencia("SELECT * FROM subtipotasa('d','%s','%s','%s');", tasa, des, neww));
  }
  Load();
  Clear();
  flag = false;
  EnfocaClave();
  return 1;
}

long TasaInteres_Window::onCmdClear(FXObject*, FXSelector, void*) {
  Clear();
  flag = true;
  EnfocaClave();
  return 1;
}

long TasaInteres_Window::onCmdBorrar(FXObject*, FXSelector, void*) {
  Update();
  if (EstaVacia("No hay nada que borrar ")) return 1;
  if (cajaPregunta(this, "Elimina tasa", "Esta seguro de eliminar la tasa"))
    Manda(Sentencia("SELECT * FROM subtipotasa('c','%s','%s','null');", tasa, des));
  Load();
  Clear();
  EnfocaClave();
  return 1;
}

long TasaInteres_Window::onCmdTasaInteres(FXObject*, FXSelector, void*) {
  Read(lstFilas->getCurrentItem());
  return 0;
}
