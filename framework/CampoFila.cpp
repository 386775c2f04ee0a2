#include "framework/CampoFila.h"

#include "framework/CampoCuenta.h"
#include "framework/Filas.h"
#include "widgets/TextoAcotado.h"

int FindCalculo(long numero) { return PosicionDe(Catalogo::Calculos, &cCalculo::getCalculoID, numero); }

int FindTipoMovimiento(const char* tipoMovimientoID) {
  return PosicionDe(Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, tipoMovimientoID);
}

int FindFinalidad(const char* claveFinalidad) {
  return PosicionDe(Catalogo::Finalidades, &cFinalidades::getClaveFinalidad, claveFinalidad);
}

int FindMoneda(const char* monedaID) {
  return PosicionDe(Catalogo::Monedas, &cMonedas::getMonedaID, monedaID);
}

int FindDepreciacion(long numero) {
  return PosicionDe(Catalogo::TipoDepreciacion, &cTipoDepreciacion::getDepreciacionID, numero);
}

const char* RenglonDeMovimiento(const cTipoMovimiento& tipo) {
  FormateaTexto(sCuenta, "%s %s", tipo.getTipoMovimientoID(), tipo.getDescTipoMovimiento());
  return sCuenta;
}
