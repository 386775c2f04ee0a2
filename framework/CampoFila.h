// The field that picks a row of another catalogue: a combo box with the rows as the cache holds them, and the
// key of the row that was picked.
//
// The value is the key. The combo box is only its picture: it shows the first row when the key is unknown,
// and nothing reads it but the handler of a choice in it.
//
//   DatoFila<Catalogo::Calculos, &cCalculo::getCalculoID, FindCalculo> formula;
//   ...
//   formula.combo = campoCombo(matriz, "Calculo Interes:", 5, this, ID_CALCULO);
//   formula.Llena(&cCalculo::getDescripcionCalculo);
//   ...
//   long onCmdCalculo(FXObject*, FXSelector, void*) { return formula.Elige(); }
#pragma once

#include <fx.h>

#include <functional>
#include <optional>
#include <type_traits>

#include "db/Catalogo.h"

/// Position in the cached catalogue of the first row with exactly this key; 0 if there is none.
int FindCalculo(long numero);
int FindTipoMovimiento(const char* tipoMovimientoID);
int FindFinalidad(const char* claveFinalidad);
int FindMoneda(const char* monedaID);
int FindDepreciacion(long numero);
int FindEstado(int estadoMexID);
int FindCiudad(int ciudadMexID);
int FindTipoUsuario(const char* tipoUsuarioID);
/// The same among the users, counted from 1; 0, the place of "Ninguno", if there is none.
int FindUsuario(const char* usuarioID);

/// A movement type as a combo box shows it where its key is of use: key and description. Stays until the next
/// call.
const char* RenglonDeMovimiento(const cTipoMovimiento& tipo);

/// `filas` is a map of the cache, `clave` the getter of the key, and `Find` the position of a key.
template <const auto& filas, auto clave, auto Find>
class DatoFila {
 public:
  using Fila = typename std::decay_t<decltype(filas)>::mapped_type;
  using Clave = std::invoke_result_t<decltype(clave), const Fila&>;

  /// Offers every row, as `renglon`, a getter or a function of the row, writes it.
  template <class Renglon>
  void Llena(Renglon renglon) {
    for (const auto& [numero, fila] : filas) combo->appendItem(std::invoke(renglon, fila));
  }

  /// Offers the rows anew, none of them chosen; the key stays.
  template <class Renglon>
  void Renueva(Renglon renglon) {
    combo->clearItems();
    Llena(renglon);
    combo->setCurrentItem(-1);
  }

  /// Stores a key and shows its row. Nothing, which is what `Pon({})` passes, empties both.
  void Pon(std::optional<Clave> nueva) {
    valor = nueva ? Valor_t(*nueva) : Valor_t();
    const int posicion = nueva ? Find(*nueva) : -1;
    combo->setCurrentItem(posicion < combo->getNumItems() ? posicion : -1);
  }
  const auto& Valor() const { return valor; }

  /// What the handler of the combo box does: takes the key of the row at the current item; it stays when the
  /// cache has none there.
  long Elige() {
    const auto fila = filas.find(combo->getCurrentItem());
    if (fila != filas.end()) valor = (fila->second.*clave)();
    return 1;
  }

  FXComboBox* combo = nullptr;

 protected:
  using Valor_t = std::conditional_t<std::is_same_v<Clave, const char*>, FXString, Clave>;
  Valor_t valor{};
};

/// The same for a combo box without a handler: the key is that of the row at the current item by the time
/// that it is asked for, and an empty one when the cache has none there.
template <const auto& filas, auto clave, auto Find>
struct DatoFilaActual : DatoFila<filas, clave, Find> {
  const auto& Valor() {
    this->valor = decltype(this->valor)();
    this->Elige();
    return this->valor;
  }
};
