#include "catalogs/people/cDomicilio.h"

#include <iostream>

cDomicilio::cDomicilio(long id, int ciudadMexID, long sujetoID, const char* calle, const char* numeroExt,
                       const char* numeroInt, const char* colonia, long codPostal, const char* comunidad,
                       const char* telDomicilio, long coloniaID, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, ciudadMexID, sujetoID, calle, numeroExt, numeroInt, colonia, codPostal, comunidad,
       telDomicilio, coloniaID);
}

bool cDomicilio::Check() {
  std::cout << "Check Domicilio" << std::endl
            << "ciudadmexid " << CiudadMexID << std::endl
            << "coloniaid" << std::endl
            << "scalle" << std::endl
            << "Termina Check domicilio" << std::endl;
  return true;
}

void cDomicilio::AddNew() {
  if (dataChanged && Check()) {
    EscribeCallada(SqlAddNew(), true, [this] { TomaClave(DomicilioID); });
    std::cout << "Domicilio==" << DomicilioID << std::endl;
    dataChanged = isNew = false;
  }
  std::cout << "Domicilio==" << DomicilioID << std::endl;
}

void cDomicilio::Update() {
  for (int vez = 0; vez < 2; ++vez) std::cout << "domicilio La Calle es : " << Calle << std::endl;
  if (!dataChanged || !Check()) return;
  EscribeCallada(SqlUpdate(), true);
  dataChanged = isNew = false;
}

void cDomicilio::Delete() {
  if (HayClaveDelete()) EscribeCallada(SqlDelete(), false);
}

void cDomicilio::Find() {
  if (HayClaveFind()) Busca(SqlFind(), false, ConexionDeLectura());
}

void cDomicilio::FindDomicilioSujeto() {
  if (SujetoID != 0) Busca(Sentencia("SELECT * FROM spsdomiciliosujeto(%li);", SujetoID), true);
}

Sentencia cDomicilio::SqlAddNew() const {
  return Sentencia("SELECT spidomicilio(%s);", SqlColumnas().Texto());
}

Sentencia cDomicilio::SqlUpdate() const {
  return Sentencia("SELECT spudomicilio(%li,%s);", DomicilioID, SqlColumnas().Texto());
}

Sentencia cDomicilio::SqlDelete() const { return Sentencia("SELECT spdomicilio(%li);", DomicilioID); }

Sentencia cDomicilio::SqlFind() const { return Sentencia("SELECT * FROM spsdomicilio(%li);", DomicilioID); }

Sentencia cDomicilio::SqlColumnas() const {
  return Sentencia("%i,%li,'%s','%s','%s','%s',%li,'%s','%s',%li", CiudadMexID, SujetoID, Calle, Numero_Ext,
                   Numero_Int, Colonia, CodPostal, Comunidad, TelDomicilio, ColoniaID);
}
