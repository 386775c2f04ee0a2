// A user of the system: his login, the person who uses it, his type, his parameters, and what each of the
// options allows him.
//
// One object carries the rows of four records, each half with its own columns, dataChanged and isNew; a name
// that more than one has means the user's own, and the others are reached as cSujeto::, cDomicilio::,
// cTipoUsuario:: and cParametro::. Copying, Fill and Clear leave the other halves alone, so a user of the
// cache knows only his own columns: whoever needs the name looks the person up by its key.
#pragma once

#include <map>

#include "catalogs/people/cParametro.h"
#include "catalogs/people/cPermisosModulos.h"
#include "catalogs/people/cSujeto.h"
#include "catalogs/simple/cTipoUsuario.h"

/// What a user carries besides his own row.
class MitadesDeUsuario : public cSujeto, public cTipoUsuario, public cParametro {};

class cUsuario : public Registro<cUsuario, MitadesDeUsuario> {
 public:
  cUsuario() { Clear(); }
  cUsuario(const char* id, const char* tipoUsuarioID, const char* usu_UsuarioID, const char* contrasenia,
           const char* email, const char* dicola, const char* obsUsuario, long sujetoID, bool dataChanged,
           bool isNew);
  /// The own columns and flags; the other halves of the new user are blank.
  cUsuario(const cUsuario& otro);
  /// The own columns and flags; the other halves stay as they are.
  cUsuario& operator=(const cUsuario& otro);

  void setUsuarioID(const char* valor) { Pon(UsuarioID, valor); }
  /// Leaves the type's half as it is, unless that one has the new key already: then it is read again.
  void setTipoUsuarioID(const char* valor);
  /// The login of the boss; empty for none.
  void setUsu_UsuarioID(const char* valor) { Pon(Usu_UsuarioID, valor); }
  void setContrasenia(const char* valor) { Pon(Contrasenia, valor); }
  void setEmail(const char* valor) { Pon(Email, valor); }
  void setDicola(const char* valor) { Pon(Dicola, valor); }
  void setObsUsuario(const char* valor) { Pon(ObsUsuario, valor); }
  /// Reads the person too, unless its half has that key already.
  void setSujetoID(long valor);
  /// True also if the person or the address was changed; the parameters do not count.
  void setDataChanged(bool valor);

  const char* getUsuarioID() const { return UsuarioID; }
  const char* getTipoUsuarioID() const { return TipoUsuarioID; }
  const char* getUsu_UsuarioID() const { return Usu_UsuarioID; }
  const char* getContrasenia() const { return Contrasenia; }
  const char* getEmail() const { return Email; }
  const char* getDicola() const { return Dicola; }
  const char* getObsUsuario() const { return ObsUsuario; }
  long getSujetoID() const { return SujetoID; }

  /// Always true: the person's own Check runs when the person is saved.
  bool Check() { return true; }
  const char* clase() const { return "Usuario"; }

  /// Inserts person, address and goods, the user and the parameters in one transaction, and then has the
  /// server make the login. Throws what those throw or the server's text, the transaction left open; the
  /// halves are then as they were before. A login that is refused leaves the rows on the server.
  void AddNew();
  /// Rewrites person and user, and address, goods, permissions and parameters as far as they were changed, in
  /// one transaction. Throws as AddNew; Permisos is then as it was before.
  void Update();
  /// Reads the user with the present login, if it is not empty, and then the other halves; one that is not
  /// found is blank but for its key. No user: throws, with isNew true and the rest as it was.
  void Find();

  /// Replaces Permisos by the rows of this user, in the server's order, their flags clear. Throws the
  /// server's text, Permisos then empty.
  void LeePermisos();
  /// Writes each row of Permisos as its flags say: a new one, as this user's, is inserted, a deleted one
  /// deleted, a changed one updated, and any other not sent. Throws the server's text: that row stays as it
  /// was, the ones ahead of it are as saved, and the transaction is left open.
  void GuardaPermisos();

  /// The rows that the user form shows, keyed by their place in its grid, from 0. Shared by all users: those
  /// of whoever was read last.
  static std::map<int, cPermisosModulos> Permisos;

 private:
  friend Registro<cUsuario, MitadesDeUsuario>;

  auto Columnas() {
    return std::tie(UsuarioID, TipoUsuarioID, Usu_UsuarioID, Contrasenia, Email, Dicola, ObsUsuario,
                    SujetoID);
  }
  const char* Clave() const { return UsuarioID; }

  template <class Guardado>
  void GuardaEntero(Guardado guardado);
  void LeePersona();
  void LeeParametro();

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  /// The columns, as insert and update send them.
  Sentencia SqlColumnas() const;

  char UsuarioID[21];
  char TipoUsuarioID[4];
  char Usu_UsuarioID[21];
  char Contrasenia[14];  // carried, never edited: passwords are the business of the server's logins
  char Email[31];
  char Dicola[11];
  char ObsUsuario[258];
  long SujetoID;
};
