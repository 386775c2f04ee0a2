#include "catalogs/people/cBien.h"

namespace {

// Place of the date in the server's answer.
constexpr int ColumnaFechaAdjudicado = 12;

}  // namespace

cBien::cBien(long id, long sujetoID, const char* propietario, const char* descri, const char* caracteristicas,
             const char* registroPublico, float valorComercial, float valorFiscal, float valorCatastro,
             const char* datosHipoteca, float relacionGarantia, const char* adjudicado,
             const date& fechaAdjudicado, bool cambiado, bool nuevo, bool borrado) {
  Toma(cambiado, nuevo, id, sujetoID, propietario, descri, caracteristicas, registroPublico, valorComercial,
       valorFiscal, valorCatastro, datosHipoteca, relacionGarantia, adjudicado, fechaAdjudicado);
  deleted = borrado;
}

void cBien::Fill(int fila) {
  Registro::Fill(fila);
  if (Celda(fila, ColumnaFechaAdjudicado)[0] == '\0') FechaAdjudicado = date();
  deleted = false;
}

void cBien::Clear() {
  Registro::Clear();
  deleted = false;
}

bool cBien::Check() {
  ExigeTexto(Propietario, "No ha especificado el propietario");
  ExigeTexto(DescriBien, "No ha especificado la descripción del bien");
  ExigeTexto(Caracteristicas, "No ha especificado las caracteristicas");
  ExigeTexto(RegistroPublico, "No ha registrado el registro publico");
  if (ValorComercial < 0) Lanza("El valor comercial no puede ser negativo");
  if (ValorFiscal < 0) Lanza("El valor fiscal no puede ser negativo");
  if (ValorCatastro < 0) Lanza("El valor de catastro no puede ser negativo");
  ExigeTexto(DatosHipoteca, "No ha especificado los datos de la hipoteca");
  if (RelacionGarantia < 0) Lanza("No ha especificado la garantia");
  ExigeTexto(Adjudicado, "No ha especificado el adjudicado");
  if (EsAdjudicado() && FechaAdjudicado == date()) Lanza("No ha especificado la fecha de adjudicación");
  return true;
}

bool cBien::EsAdjudicado() const { return strcmp(Adjudicado, "S") == 0; }

Sentencia cBien::SqlAddNew() const { return Sentencia("select spibienes(%s);", SqlColumnas().Texto()); }

Sentencia cBien::SqlUpdate() const {
  return Sentencia("select spubienes(%li,%s);", BienID, SqlColumnas().Texto());
}

Sentencia cBien::SqlDelete() const { return Sentencia("SELECT spdbienes(%li);", BienID); }

Sentencia cBien::SqlFind() const { return Sentencia("SELECT * FROM spsbienes(%li);", BienID); }

Sentencia cBien::SqlColumnas() const {
  const Sentencia fecha = EsAdjudicado() ? Sentencia("'%s'", FechaAdjudicado.AsChar()) : Sentencia("NULL");
  return Sentencia("%li,'%s','%s','%s','%s',%f,%f,%f,'%s',%f,'%s',%s", SujetoID, Propietario, DescriBien,
                   Caracteristicas, RegistroPublico, ValorComercial, ValorFiscal, ValorCatastro,
                   DatosHipoteca, RelacionGarantia, Adjudicado, fecha.Texto());
}
