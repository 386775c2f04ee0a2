// What the tests of persons, addresses and goods share.
#pragma once

#include <string>

#include "catalogs/people/cSujeto.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// The flags of one half of a person.
template <class Mitad>
std::string Banderas(const Mitad& m) {
  return std::string(m.getDataChanged() ? " cambiado" : "") + (m.IsNew() ? " nuevo" : "");
}

/// All columns of the address in the order of the server's answer, and its flags.
inline std::string Estado(const cDomicilio& d) {
  return std::to_string(d.getDomicilioID()) + "|" + std::to_string(d.getCiudadMexID()) + "|" +
         std::to_string(d.getSujetoID()) + "|" + d.getCalle() + "|" + d.getNumero_Ext() + "|" +
         d.getNumero_Int() + "|" + d.getColonia() + "|" + std::to_string(d.getCodPostal()) + "|" +
         d.getComunidad() + "|" + d.getTelDomicilio() + "|" + std::to_string(d.getColoniaID()) + Banderas(d);
}

/// What the Check of an address in that city traces.
inline Textos TrazaDeCheck(int ciudad) {
  return {"Check Domicilio", "ciudadmexid " + std::to_string(ciudad), "coloniaid", "scalle",
          "Termina Check domicilio"};
}

}  // namespace pruebas
