// The look-ups of the cache, and the small questions to the server that belong to no record.
#include <cstdlib>
#include <cstring>

#include "db/Carga.h"
#include "db/Catalogo.h"
#include "framework/Reglas.h"
#include "framework/Sentencia.h"

namespace {

/// The first record whose key, read with `clave`, is exactly `buscada`; null if there is none.
template <class T>
const T* Encuentra(const std::map<int, T>& filas, const char* (T::*clave)() const, const char* buscada) {
  for (const auto& [fila, registro] : filas)
    if (strcmp((registro.*clave)(), buscada) == 0) return &registro;
  return nullptr;
}

/// A copy of it; a blank record if there is none.
template <class T>
T Copia(const std::map<int, T>& filas, const char* (T::*clave)() const, const char* buscada) {
  const T* registro = Encuentra(filas, clave, buscada);
  return registro != nullptr ? *registro : T();
}

}  // namespace

cCatalogo_Ctas Catalogo::Cuenta(const char* cuenta) const {
  return Copia(Catalogo_Ctas, &cCatalogo_Ctas::getCuentaID, cuenta);
}

cEstados_Credito Catalogo::EstadoCredito(const char* clave) const {
  return Copia(Estados_Credito, &cEstados_Credito::getClaveEstadoCredito, clave);
}

cTipoInversion Catalogo::TipoInversion(const char* id) const {
  return Copia(TipoInversiones, &cTipoInversion::getTipoInversionID, id);
}

cTipoMovimiento Catalogo::TipoMovi(const char* id) const {
  return Copia(TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, id);
}

bool Catalogo::EsAfectable(const char* cuenta) const {
  const cCatalogo_Ctas* registro = Encuentra(Catalogo_Ctas, &cCatalogo_Ctas::getCuentaID, cuenta);
  return registro == nullptr || strcmp(registro->getTipo_Cta(), "A") == 0;
}

bool EsAfectable(const char* cuenta) { return catalogo.EsAfectable(cuenta); }

char* Catalogo::CantidadConLetra(double cantidad) {
  Ejecuta(Sentencia("SELECT * FROM cletra(%f);", cantidad));
  CopiaTexto(sLetra, Celda(0, 0));
  LiberaResultado();
  return sLetra;
}

bool Catalogo::Login(const char* usuario, const char* password) {
  Ejecuta(Trazada(Sentencia("select login('%s','%s');", usuario, password)));
  LanzaSiRechazada();
  const int respuesta = atoi(Celda(0, 0));
  LiberaResultado();
  return respuesta == 1;
}
