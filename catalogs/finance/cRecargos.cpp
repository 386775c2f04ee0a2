#include "catalogs/finance/cRecargos.h"

#include "framework/Reglas.h"

namespace {

const Regla<cRecargos> reglas[] = {
    {Negativo<&cRecargos::getAno>, "No se ha especificado el Año"},
    {Negativo<&cRecargos::getMes>, "No se ha especificado el Mes"},
    {Negativo<&cRecargos::getPorcentaje>, "No ha especificado el Porcentaje"},
};

}  // namespace

cRecargos::cRecargos(int ano, int mes, double valor, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, ano, mes, valor);
}

bool cRecargos::Check() {
  ExigeReglas(*this, reglas);
  return true;
}
