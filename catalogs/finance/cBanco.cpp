#include "catalogs/finance/cBanco.h"

#include "framework/Reglas.h"

namespace {

const Regla<cBanco> reglas[] = {
    {Vacio<&cBanco::getNo_Cuenta>, "No se especifico la cuenta"},
    {Vacio<&cBanco::getBanco>, "No ha especificado el banco"},
    {Vacio<&cBanco::getCuentaID>, "No ha especificado la cuenta contable"},
    {NoAfectable<&cBanco::getCuentaID>,
     "La cuenta contable asociada a la cuenta bancaria debe ser afectable"},
    {Vacio<&cBanco::getSerie>, "No ha especificado la serie"},
    {Negativo<&cBanco::getNoCheque>, "El número de cheque no puede ser negativo"},
};

}  // namespace

void cBanco::Clear() {
  Registro::Clear();
  Fecha_Inicio = date("");
}

bool cBanco::Check() {
  ExigeReglas(*this, reglas);
  return true;
}

Sentencia cBanco::SqlDelete() const { return Sentencia("SELECT spdbanco('%s');", No_Cuenta); }

Sentencia cBanco::SqlFind() const { return Sentencia("SELECT * FROM spsbanco('%s');", No_Cuenta); }

Sentencia cBanco::SqlEscritura(const char* funcion) const {
  return Sentencia("select %s('%s','%s','%.10s',%f,%f,%f,'%s','%s',%li);", funcion, No_Cuenta, Banco,
                   Fecha_Inicio.AsChar(), Saldo_Inicial, Saldo_Actual, Saldo_Pen, CuentaID, Serie, NoCheque);
}
