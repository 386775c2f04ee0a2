#include "catalogs/people/cUsuario.h"

/// The group of the users on the server: a session variable, declared here too because no record knows the
/// session.
extern char gpggrupodefault[21];

std::map<int, cPermisosModulos> cUsuario::Permisos;

cUsuario::cUsuario(const char* id, const char* tipoUsuarioID, const char* usu_UsuarioID,
                   const char* contrasenia, const char* email, const char* dicola, const char* obsUsuario,
                   long sujetoID, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, tipoUsuarioID, usu_UsuarioID, contrasenia, email, dicola, obsUsuario, sujetoID);
}

cUsuario::cUsuario(const cUsuario& otro) : Registro() { *this = otro; }

cUsuario& cUsuario::operator=(const cUsuario& otro) {
  if (this == &otro) return *this;
  Toma(otro.dataChanged, otro.isNew, otro.UsuarioID, otro.TipoUsuarioID, otro.Usu_UsuarioID, otro.Contrasenia,
       otro.Email, otro.Dicola, otro.ObsUsuario, otro.SujetoID);
  return *this;
}

void cUsuario::setTipoUsuarioID(const char* valor) {
  if (strcmp(TipoUsuarioID, valor) == 0) return;
  Pon(TipoUsuarioID, valor);
  if (strcmp(cTipoUsuario::getTipoUsuarioID(), valor) == 0) cTipoUsuario::Find();
}

void cUsuario::setSujetoID(long valor) {
  if (SujetoID == valor) return;
  SujetoID = valor;
  if (cSujeto::getSujetoID() != valor) LeePersona();
  dataChanged = true;
}

void cUsuario::setDataChanged(bool valor) {
  dataChanged = valor || cSujeto::getDataChanged() || cDomicilio::getDataChanged();
}

void cUsuario::AddNew() {
  if (!dataChanged || !Check()) return;
  GuardaEntero([this] {
    BeginTransaction();
    cSujeto::AddNew();
    SujetoID = cSujeto::getSujetoID();
    EjecutaEscritura(SqlAddNew(), true);
    LiberaResultado();
    cParametro::setUsuarioID(UsuarioID);
    cParametro::AddNew();
    CommitTransaction();
    EjecutaEscritura(Sentencia("select * from creausuario('%s','%s');", UsuarioID, gpggrupodefault), true);
    LiberaResultado();
  });
}

void cUsuario::Update() {
  if (!dataChanged || !Check()) return;
  GuardaEntero([this] {
    BeginTransaction();
    cSujeto::Update();
    EjecutaEscritura(SqlUpdate(), false);
    GuardaPermisos();
    cParametro::Update();
    CommitTransaction();
  });
}

/// Runs a save and clears the flags. If it throws, keys, flags and permissions are again what they were: the
/// halves written ahead of the refusal are rolled back on the server, and the next attempt has to send them
/// again.
template <class Guardado>
void cUsuario::GuardaEntero(Guardado guardado) {
  const cSujeto persona = *this;
  const cParametro parametro = *this;
  const long clave = SujetoID;
  const std::map<int, cPermisosModulos> permisos = Permisos;
  try {
    guardado();
  } catch (...) {
    cSujeto::operator=(persona);
    cParametro::operator=(parametro);
    SujetoID = clave;
    Permisos = permisos;
    throw;
  }
  dataChanged = isNew = false;
}

void cUsuario::Find() {
  if (!HayClaveFind()) return;
  if (!Busca(SqlFind(), false)) Lanza("El usuario no se encontro en la BD");
  LeePersona();
  cTipoUsuario::Clear();
  cTipoUsuario::setTipoUsuarioID(TipoUsuarioID);
  cTipoUsuario::Find();
  LeeParametro();
  dataChanged = isNew = false;
}

/// The person's half with address and goods. What is not found is blank: it would be that of the user read
/// before, and the next save would give it to this one.
void cUsuario::LeePersona() {
  cSujeto::Clear();
  cDomicilio::Clear();
  getBienes().RemoverTodos();
  cSujeto::setSujetoID(SujetoID);
  cSujeto::Find();
  cSujeto::setDataChanged(false);
}

/// The same for the parameters.
void cUsuario::LeeParametro() {
  cParametro::Clear();
  cParametro::setUsuarioID(UsuarioID);
  cParametro::Find();
  cParametro::setDataChanged(false);
}

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

Sentencia cUsuario::SqlAddNew() const { return Sentencia("select spiusuario(%s);", SqlColumnas().Texto()); }

Sentencia cUsuario::SqlUpdate() const { return Sentencia("select spuusuario(%s);", SqlColumnas().Texto()); }

Sentencia cUsuario::SqlDelete() const { return Sentencia("SELECT spdusuario('%s');", UsuarioID); }

Sentencia cUsuario::SqlFind() const { return Sentencia("SELECT * FROM spsusuario('%s');", UsuarioID); }

Sentencia cUsuario::SqlColumnas() const {
  const Sentencia jefe("'%s'", Usu_UsuarioID);
  return Sentencia("'%s','%s',%s,'%s','%s','%s','%s',%li", UsuarioID, TipoUsuarioID,
                   Usu_UsuarioID[0] == '\0' ? "NULL" : jefe.Texto(), Contrasenia, Email, Dicola, ObsUsuario,
                   SujetoID);
}
