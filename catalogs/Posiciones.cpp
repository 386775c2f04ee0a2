#include "catalogs/Posiciones.h"

#include "catalogs/finance/CampoCuenta.h"
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

int FindEstado(int estadoMexID) {
  return PosicionDe(Catalogo::EstadosMex, &cEstadoMex::getEstadoMexID, estadoMexID);
}

int FindCiudad(int ciudadMexID) {
  return PosicionDe(Catalogo::CiudadesMex, &cCiudadMex::getCiudadMexID, ciudadMexID);
}

int FindTipoUsuario(const char* tipoUsuarioID) {
  return PosicionDe(Catalogo::TiposUsuarios, &cTipoUsuario::getTipoUsuarioID, tipoUsuarioID);
}

int FindUsuario(const char* usuarioID) {
  int lugar = 1;
  for (const auto& [fila, usuario] : Catalogo::Usuarios) {
    if (MismaClave(usuario.getUsuarioID(), usuarioID)) return lugar;
    ++lugar;
  }
  return 0;
}
