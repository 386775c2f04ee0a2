#include "catalogs/finance/cTasaInteres.h"

#include <cstdint>
#include <iostream>

namespace {

/// The bits of a number as two signed whole ones.
struct Mitades {
  explicit Mitades(double valor) {
    uint64_t bits;
    static_assert(sizeof bits == sizeof valor);
    memcpy(&bits, &valor, sizeof bits);
    baja = ConSigno(bits & UINT32_MAX);
    alta = ConSigno(bits >> 32);
  }

  int32_t baja, alta;

 private:
  static int32_t ConSigno(uint64_t mitad) {
    const auto bits = static_cast<uint32_t>(mitad);
    int32_t numero;
    memcpy(&numero, &bits, sizeof numero);
    return numero;
  }
};

}  // namespace

cTasaInteres::cTasaInteres(int id, const char* tipo, const date& inicial, const date& final, double valor1,
                           double valor2, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, tipo, inicial, final, valor1, valor2);
}

void cTasaInteres::Update() {
  if (dataChanged) std::cout << TasainteresId << std::endl << TasainteresId << std::endl;
  Registro::Update();
}

Sentencia cTasaInteres::SqlAddNew() const {
  const Mitades mitades(Valor1);
  return Sentencia("SELECT * FROM spitasavariable('%s', '%.10s','%.10s',%d,%d);", Tipotasa,
                   Fechainicial.AsChar(), Fechafinal.AsChar(), mitades.baja, mitades.alta);
}

Sentencia cTasaInteres::SqlUpdate() const {
  return Sentencia("select * from sputasavariable(%i,'%s','%s','%s',%f,%f);", TasainteresId, Tipotasa,
                   Fechainicial.AsChar(), Fechafinal.AsChar(), Valor1, Valor2);
}

Sentencia cTasaInteres::SqlDelete() const {
  return Sentencia("delete from tasavariable where tasavariableid=%i;", TasainteresId);
}

Sentencia cTasaInteres::SqlFind() const {
  return Sentencia("SELECT * FROM spstasavariable(%i);", TasainteresId);
}
