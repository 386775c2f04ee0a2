#include "catalogs/people/cSocioCaja.h"

cSocioCaja::cSocioCaja(long socioID, const char* claveSocioInt, const char* paterno, const char* materno,
                       const char* nombre, const char* estatus) {
  setSocioID(socioID);
  setClaveSocioInt(claveSocioInt);
  setPaterno(paterno);
  setMaterno(materno);
  setNombre(nombre);
  setEstatus(estatus);
}
