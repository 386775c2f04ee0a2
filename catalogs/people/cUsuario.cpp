#include "catalogs/people/cUsuario.h"

std::map<int, cPermisosModulos> cUsuario::Permisos;

void cUsuario::LeePermisos() {
  Permisos.clear();
  Ejecuta(Sentencia("SELECT * FROM spspermisosmodulos('%s');", UsuarioID));
  LanzaSiRechazada();
  for (int fila = 0; fila < PQntuples(res); ++fila) Permisos[fila].Fill(fila);
  LiberaResultado();
}

void cUsuario::GuardaPermisos() {
  for (auto& [renglon, guardado] : Permisos) {
    cPermisosModulos permiso = guardado;  // so that a write that fails leaves the row as it was
    if (permiso.IsNew()) {
      permiso.setUsuarioID(UsuarioID);
      permiso.AddNew();
    } else if (permiso.Deleted()) {
      permiso.Delete();
    } else {
      permiso.Update();
    }
    guardado = permiso;
  }
}
