#include "framework/CampoFila.h"

#include "framework/Filas.h"

int FindCalculo(long numero) { return PosicionDe(Catalogo::Calculos, &cCalculo::getCalculoID, numero); }

int FindTipoMovimiento(const char* tipoMovimientoID) {
  return PosicionDe(Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, tipoMovimientoID);
}
