#include "catalogs/finance/cCalculo.h"

#include "framework/Reglas.h"

namespace {

const Regla<cCalculo> reglas[] = {
    {Vacio<&cCalculo::getDescripcionCalculo>, "No se especifico el calculo"},
    {Vacio<&cCalculo::getFormula>, "No se especifico la formula"},
};

}  // namespace

cCalculo::cCalculo(long id, const char* descripcion, float saldo, long dias, float normal, float moratorio,
                   const char* formula, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, descripcion, saldo, dias, normal, moratorio, formula, saldo);
}

bool cCalculo::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cCalculo::SqlAddNew() const {
  return Sentencia("select spicalculo('%s','%s');", DescripcionCalculo, Formula);
}

Sentencia cCalculo::SqlUpdate() const {
  return Sentencia("select spucalculo(%li,'%s','%s');", CalculoID, DescripcionCalculo, Formula);
}

Sentencia cCalculo::SqlDelete() const { return Sentencia("SELECT spdcalculo(%li);", CalculoID); }

Sentencia cCalculo::SqlFind() const { return Sentencia("SELECT * FROM spscalculo(%li);", CalculoID); }
