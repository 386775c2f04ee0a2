#include "catalogs/finance/cCatalogo_Ctas.h"

namespace {

// Places of the dates in the server's answer.
constexpr int ColumnaFechaEstado = 6;
constexpr int ColumnaFechaUltMov = 7;

/// Is `valor` one of these letters?
bool EsUnaDe(const char* letras, const char* valor) {
  return strlen(valor) == 1 && strchr(letras, valor[0]) != nullptr;
}

Sentencia TextoDeFecha(const date& fecha) {
  return Sentencia("%d-%d-%d", fecha.year(), fecha.month(), fecha.day());
}

}  // namespace

cCatalogo_Ctas::cCatalogo_Ctas(const char* cuentaID, const char* cuentaAcumula, const char* identificacion,
                               const char* cuentaNombre, const char* tipo, const char* estado,
                               const date& fechaEstado, const date& fechaUltMov, const char* naturaleza,
                               double digitoAgrupador, double saldoInicial, double cargos, double abonos,
                               bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, cuentaID, cuentaAcumula, identificacion, cuentaNombre, tipo, estado, fechaEstado,
       fechaUltMov, naturaleza, digitoAgrupador, saldoInicial, cargos, abonos);
}

void cCatalogo_Ctas::Fill(int fila) {
  const date estado = Fecha_Estado, ultMov = Fecha_Ult_Mov;
  Registro::Fill(fila);
  if (Celda(fila, ColumnaFechaEstado)[0] == '\0') Fecha_Estado = estado;
  if (Celda(fila, ColumnaFechaUltMov)[0] == '\0') Fecha_Ult_Mov = ultMov;
}

void cCatalogo_Ctas::Clear() {
  const bool nuevo = isNew;
  Registro::Clear();
  Fecha_Estado = Fecha_Ult_Mov = date("");
  isNew = nuevo;
}

bool cCatalogo_Ctas::Check() {
  ExigeTexto(CuentaID, "No ha especificado la cuenta.");
  if (!EsUnaDe("AC", Tipo_Cta)) Lanza("No ha especificado el tipo de cuenta");
  if (!EsUnaDe("AD", Naturaleza)) Lanza("No ha especificado la Naturaleza");
  if (!EsUnaDe("0123456", Identificacion)) Lanza("No ha especificado el Rubro de la cuenta");
  ExigeTexto(CuentaNombre, "No ha especificado el nombre de la cuenta");
  return true;
}

void cCatalogo_Ctas::Update() {
  const bool nuevo = isNew;
  Registro::Update();
  isNew = nuevo;
}

void cCatalogo_Ctas::AddNewSucursales() {
  if (!dataChanged || !Check()) return;
  Escribe(SqlEscritura("spicatalogo_ctasc", Fecha_Estado.AsDMY(), Fecha_Ult_Mov.AsDMY()), true);
  dataChanged = isNew = false;
}

Sentencia cCatalogo_Ctas::SqlAddNew() const {
  return SqlEscritura("spicatalogo_ctas", TextoDeFecha(Fecha_Estado), TextoDeFecha(Fecha_Ult_Mov));
}

Sentencia cCatalogo_Ctas::SqlUpdate() const {
  return SqlEscritura("spucatalogo_ctas", TextoDeFecha(Fecha_Estado), TextoDeFecha(Fecha_Ult_Mov));
}

Sentencia cCatalogo_Ctas::SqlDelete() const { return Sentencia("SELECT spdcatalogo_ctas('%s');", CuentaID); }

Sentencia cCatalogo_Ctas::SqlFind() const {
  return Sentencia("SELECT * FROM spscatalogo_ctas('%s');", CuentaID);
}

/// An account at the top sends the word NULL for the one above it.
Sentencia cCatalogo_Ctas::SqlEscritura(const char* funcion, const char* fechaEstado,
                                       const char* fechaUltMov) const {
  const Sentencia acumula = CuentaAcumula[0] == '\0' ? Sentencia("NULL") : Sentencia("'%s'", CuentaAcumula);
  return Sentencia("select %s('%s',%s,'%s','%s','%s','%s','%s','%s','%s',%f,%f,%f,%f);", funcion, CuentaID,
                   static_cast<const char*>(acumula), Identificacion, CuentaNombre, Tipo_Cta, Estado_Cta,
                   fechaEstado, fechaUltMov, Naturaleza, Digito_Agrupador, Saldo_Inic_Ejer, Cargos_Acum_Ejer,
                   Abonos_Acum_Ejer);
}
