#include "operaciones/Permisos_Window.h"

#include <map>
#include <string>

#include "app/sesion.h"
#include "db/Engine.h"
#include "framework/Foco.h"
#include "operaciones/Consulta.h"
#include "widgets/cajas.h"

FXDEFMAP(Permisos_Window)
Permisos_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Permisos_Window::ID_TABLA, Permisos_Window::onRelee),
};
FXIMPLEMENT(Permisos_Window, FXMDIChild, Permisos_WindowMap, ARRAYNUMBER(Permisos_WindowMap))

namespace {

enum { Usuario, Nombre, Modulo, Descripcion, Permitido };  // of the server's answer

/// The answer, which has a row for each user and module, as a row for each user and a column for each module.
/// The heading of a module tells how many have it.
Tabla Matriz() {
  std::map<std::string, int> cuantos;
  int modulos = 0;
  for (int fila = 0; fila < PQntuples(res); ++fila) {
    int& suyos = cuantos[Celda(fila, Modulo)];
    if (Celda(fila, Permitido)[0] == 't') ++suyos;
    modulos = static_cast<int>(cuantos.size());
  }
  std::vector<Tabla::Columna> columnas = {
      {"Usuario", Tabla::Texto}, {"Nombre", Tabla::Texto}, {"Opciones", Tabla::Numero}};
  for (int fila = 0; fila < modulos; ++fila) {
    std::string clave = Celda(fila, Modulo);
    const int suyos = cuantos[clave];
    clave.erase(clave.find_last_not_of(' ') + 1);
    columnas.push_back(
        {clave + " " + Celda(fila, Descripcion) + " (" + std::to_string(suyos) + ")", Tabla::Texto});
  }
  Tabla tabla(std::move(columnas));
  for (int primera = 0; modulos > 0 && primera < PQntuples(res); primera += modulos) {
    int suyas = 0;
    for (int i = 0; i < modulos; ++i) suyas += Celda(primera + i, Permitido)[0] == 't';
    tabla.Agrega(Celda(primera, Usuario));
    tabla.Agrega(Celda(primera, Nombre));
    tabla.Agrega(suyas);
    for (int i = 0; i < modulos; ++i) tabla.Agrega(Celda(primera + i, Permitido)[0] == 't' ? "S" : "");
  }
  return tabla;
}

}  // namespace

Permisos_Window::Permisos_Window(FXMDIClient* area, FXMDIMenu* menu)
    : FXMDIChild(area, "Permisos", nullptr, menu, 0, 15, 15, 780, 480) {
  setAccelTable(new FXAccelTable);
  auto* cuerpo = new MarcoDeForma(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  cuerpo->AlReleer([this] { onRelee(nullptr, 0, nullptr); });
  marco = new MarcoDeTabla(cuerpo, this, ID_TABLA);
  onRelee(nullptr, 0, nullptr);
}

void Permisos_Window::create() {
  FXMDIChild::create();
  DaTeclado(marco->Filtro());
}

long Permisos_Window::onRelee(FXObject*, FXSelector, void*) {
  getApp()->beginWaitCursor();
  try {
    Consulta("SELECT * FROM spsmatrizpermisos();");
    Tabla tabla = Matriz();
    LiberaResultado();
    marco->Pon("Permisos", std::move(tabla));
  } catch (char* texto) {
    cajaError(id() != 0 ? static_cast<FXWindow*>(this) : getShell(), "Permisos", texto);
  }
  getApp()->endWaitCursor();
  return 1;
}
