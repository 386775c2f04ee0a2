#include "catalogs/simple/cMonedas.h"

#include <iostream>

cMonedas::cMonedas(const char* id, const char* descri, float valor, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, valor, descri);
}

bool cMonedas::Check() {
  ExigeTexto(MonedaID, "No se especifico la clave");
  ExigeTexto(MonedaDescri, "No ha especificado la descripción");
  if (MonedaValor < 0) Lanza("El valor de la moneda no puede ser negativo");
  return true;
}

void cMonedas::Update() {
  if (!dataChanged || !Check()) return;
  try {
    Registro::Update();
  } catch (char*) {
    std::cout << "entrando a error" << std::endl;
    throw;
  }
}

Sentencia cMonedas::SqlAddNew() const {
  return Sentencia("select spimoneda('%s','%s',%f);", MonedaID, MonedaDescri, MonedaValor);
}

Sentencia cMonedas::SqlUpdate() const {
  return Sentencia("select spumoneda('%s','%s',%f);", MonedaID, MonedaDescri, MonedaValor);
}

Sentencia cMonedas::SqlDelete() const { return Sentencia("SELECT spdmoneda('%s');", MonedaID); }

Sentencia cMonedas::SqlFind() const { return Sentencia("SELECT * FROM spsmoneda('%s');", MonedaID); }
