// The field that picks a row of another catalogue: a combo box with the rows as the cache holds them, and the
// key of the row that was picked.
//
// The value is the key. The combo box is only its picture: it shows the first row when the key is unknown,
// and nothing reads it but the handler of a choice in it.
//
//   DatoFila<Catalogo::Calculos, &cCalculo::getCalculoID, FindCalculo> formula;   // catalogs/Posiciones.h
//   ...
//   formula.combo = campoCombo(matriz, "Calculo Interes:", 5, this, ID_CALCULO);
//   formula.Llena(&cCalculo::getDescripcionCalculo);
//   ...
//   long onCmdCalculo(FXObject*, FXSelector, void*) { return formula.Elige(); }
#pragma once

#include <fx.h>

#include <functional>
#include <type_traits>

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

  /// Stores a key and shows its row.
  void Pon(Clave nueva) {
    valor = nueva;
    const int posicion = Find(nueva);
    combo->setCurrentItem(posicion < combo->getNumItems() ? posicion : -1);
  }
  /// Neither a key nor a row.
  void Vacia() {
    valor = Valor_t();
    combo->setCurrentItem(-1);
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
