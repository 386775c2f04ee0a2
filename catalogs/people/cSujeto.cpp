#include "catalogs/people/cSujeto.h"

#include <iostream>

#include "db/Carga.h"

namespace {

// Place of the birth date in the server's answer.
constexpr int ColumnaFechaNacimiento = 7;

}  // namespace

cSujeto::cSujeto(long id, const char* paterno, const char* materno, const char* nombre, const char* rfc,
                 const char* curp, int edad, const date& fechaNacimiento, const char* razonSocial,
                 bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, paterno, materno, nombre, rfc, curp, edad, fechaNacimiento, razonSocial);
}

void cSujeto::Fill(int fila) {
  Registro::Fill(fila);
  if (Celda(fila, ColumnaFechaNacimiento)[0] == '\0') FechaNacimiento = date();
}

bool cSujeto::Check() {
  ExigeTexto(Paterno, "No ha especificado el apellido paterno");
  ExigeTexto(Nombre, "No ha especificado el nombre");
  return cDomicilio::Check();
}

void cSujeto::AddNew() {
  if (!dataChanged || !Check()) return;
  EscribeCallada(SqlAddNew(), true, [this] { AltaDeLoSuyo(); });
  dataChanged = isNew = false;
}

void cSujeto::Update() {
  std::cout << "sujeto La Calle es : " << getCalle() << std::endl;
  setDataChanged(true);
  if (!Check()) return;
  Escribe(SqlUpdate(), true, [this] { CambioDeLoSuyo(); });
  std::cout << "LLega al fin de Update sujeto" << std::endl;
  dataChanged = isNew = false;
}

void cSujeto::Delete() {
  if (HayClaveDelete()) EscribeCallada(SqlDelete(), false);
}

void cSujeto::Find() {
  if (SujetoID == 0 || !Busca(SqlFind(), false, ConexionDeLectura())) return;
  LeeDomicilio();
  LeeBienes();
}

/// The person's row is in: takes its key and inserts what hangs on it.
void cSujeto::AltaDeLoSuyo() {
  TomaClave(SujetoID);
  std::cout << "SujetoID==" << SujetoID << std::endl;
  cDomicilio::setSujetoID(SujetoID);
  std::cout << "asigna sujetoid" << std::endl;
  if (cDomicilio::Check()) {
    cDomicilio::AddNew();
  } else {
    std::cout << "Domicilio incorrecto" << std::endl;
  }
  std::cout << "DomicilioID==" << getDomicilioID() << std::endl;
  for (cBien bien : Bienes) {
    bien.setSujetoID(SujetoID);
    if (bien.IsNew() && !bien.Deleted()) bien.AddNew();
  }
}

/// The person's row is rewritten: saves what hangs on it.
void cSujeto::CambioDeLoSuyo() {
  cDomicilio::Update();
  for (cBien bien : Bienes) {
    bien.setSujetoID(SujetoID);
    if (bien.IsNew()) {
      bien.AddNew();
    } else if (bien.Deleted()) {
      bien.Delete();
    } else {
      bien.Update();
    }
  }
}

/// One that is not found is blank and unchanged but for its owner: what an earlier person left there is not
/// this one's, and only what the user types makes it a change.
void cSujeto::LeeDomicilio() {
  cDomicilio::Clear();
  cDomicilio::setSujetoID(SujetoID);
  FindDomicilioSujeto();
  cDomicilio::setDataChanged(false);
}

void cSujeto::LeeBienes() {
  Bienes.RemoverTodos();
  EjecutaEn(ConexionDeLectura(), Sentencia("SELECT * FROM spsbienes(%li);", SujetoID));
  TomaFilas(Bienes);
  LiberaResultado();
}

Sentencia cSujeto::SqlAddNew() const { return Sentencia("select spisujeto(%s);", SqlColumnas().Texto()); }

Sentencia cSujeto::SqlUpdate() const {
  return Sentencia("select spusujeto(%li,%s);", SujetoID, SqlColumnas().Texto());
}

Sentencia cSujeto::SqlDelete() const { return Sentencia("SELECT spsujeto(%li);", SujetoID); }

Sentencia cSujeto::SqlFind() const { return Sentencia("SELECT * FROM spssujeto(%li);", SujetoID); }

Sentencia cSujeto::SqlColumnas() const {
  return Sentencia("'%s','%s','%s','%s','%s',%i,'%.10s','%s'", Paterno, Materno, Nombre, Rfc, Curp, Edad,
                   FechaNacimiento.AsChar(), RazonSocial);
}
