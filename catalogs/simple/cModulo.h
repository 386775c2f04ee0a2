// A module: an option of the system that is granted to each user.
#pragma once

#include "framework/Registro.h"

class cModulo : public Registro<cModulo> {
 public:
  cModulo() { Clear(); }
  cModulo(const char* clave, const char* descri, bool dataChanged, bool isNew);

  /// Key of 10 characters, stored with blanks behind it.
  void setClaveModulo(const char* valor) { PonRellenado(ClaveModulo, 10, valor); }
  void setDescriModulo(const char* valor) { Pon(DescriModulo, valor); }

  const char* getClaveModulo() const { return ClaveModulo; }
  const char* getDescriModulo() const { return DescriModulo; }

  bool Check();
  const char* clase() const { return "Modulo"; }

 private:
  friend Registro<cModulo>;

  auto Columnas() { return std::tie(ClaveModulo, DescriModulo); }
  const char* Clave() const { return ClaveModulo; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char ClaveModulo[11];
  char DescriModulo[81];
};
