#include "catalogs/finance/cInpc.h"

#include "framework/Reglas.h"

namespace {

const Regla<cInpc> reglas[] = {
    {Negativo<&cInpc::getAno>, "No se ha especificado el Año"},
    {Negativo<&cInpc::getMes>, "No se ha especificado el Mes"},
    {Negativo<&cInpc::getInpc>, "No ha especificado el Inpc"},
};

}  // namespace

cInpc::cInpc(int ano, int mes, double valor, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, ano, mes, valor);
}

bool cInpc::Check() {
  ExigeReglas(*this, reglas);
  return true;
}
