// A user of the system, with what each of its options allows him.
#pragma once

#include <map>

#include "catalogs/people/cPermisosModulos.h"

class cUsuario : public Registro<cUsuario, EngineVirtual> {
 public:
  cUsuario() { Clear(); }

  void setUsuarioID(const char* valor) { Pon(UsuarioID, valor); }
  const char* getUsuarioID() const { return UsuarioID; }

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
  friend Registro<cUsuario, EngineVirtual>;

  auto Columnas() { return std::tie(UsuarioID); }

  char UsuarioID[21];
};
