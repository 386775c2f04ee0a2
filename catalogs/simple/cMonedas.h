// A currency of the institution.
#pragma once

#include "framework/Registro.h"

class cMonedas : public Registro<cMonedas> {
 public:
  cMonedas() { Clear(); }
  cMonedas(const char* id, const char* descri, float valor, bool dataChanged, bool isNew);

  /// Key of 2 characters, stored with blanks behind it.
  void setMonedaID(const char* valor) { PonRellenado(MonedaID, 2, valor); }
  void setMonedaDescri(const char* valor) { Pon(MonedaDescri, valor); }
  void setMonedaValor(float valor) { Pon(MonedaValor, valor); }

  const char* getMonedaID() const { return MonedaID; }
  const char* getMonedaDescri() const { return MonedaDescri; }
  float getMonedaValor() const { return MonedaValor; }

  bool Check();
  /// As in every record; also traces a refusal of the server.
  void Update();
  const char* clase() const { return "Moneda"; }

 private:
  friend Registro<cMonedas>;
  static constexpr unsigned trazas = TrazaUpdate;

  auto Columnas() { return std::tie(MonedaID, MonedaValor, MonedaDescri); }
  const char* Clave() const { return MonedaID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char MonedaID[3];
  char MonedaDescri[32];
  float MonedaValor;
};
