// A list kept sorted by operator> and operator<= of T; equal keys stand in the order of their insertion.
// There is no head: the cursor is the only way in. Item, setItem and Insertar walk from where the cursor
// stands, so that reading or filling a list in key order costs one step per row. The nodes lie one behind the
// other in blocks of memory that the list gives back when it is emptied: a national table of neighbourhoods
// takes no more than its rows.
//
//   for (const cGrupo& grupo : catalogo.Grupos) ...   // reads in order and leaves the cursor where it is
#pragma once

#include <memory>
#include <memory_resource>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

template <class T>
struct nodo {
  T dato;
  nodo* siguiente;
  nodo* anterior;
};

template <class T>
class lista {
 public:
  lista() = default;
  lista(const lista& otra);  // deep copy, the cursor at the same place
  lista& operator=(lista otra);
  ~lista() { RemoverTodos(); }

  bool ListaVacia() const { return cursor == nullptr; }
  int NumElementos() const { return numElementos; }

  /// Moves the cursor to the first element. Nothing happens to an empty list.
  void Primero();

  /// Moves the cursor to the next element. A step past the last one loses the list: it is empty afterwards.
  void Siguiente();

  /// Inserts in order. The cursor is left on the element before the new one, or on the old first one if the
  /// new one became the first, or on the new one if the list was empty.
  void Insertar(T x) {
    Insertar(x, [](T&) {});
  }
  /// The same with a copy of `modelo` that `llena`, which must not throw, completes where it will stay.
  template <class Llena>
  void Insertar(const T& modelo, Llena llena);

  /// A copy of the element at position `i`, counted from 0, on which the cursor is left. Outside the list: an
  /// empty T, and the cursor stays; a T that cannot be empty throws out_of_range.
  T Item(int i);

  /// Replaces the element at position `i`, on which the cursor is left; outside the list nothing happens. The
  /// new element stays at that place, whatever its key.
  void setItem(const T& x, int i);

  /// Deletes all elements.
  void RemoverTodos();

  class Recorrido {
   public:
    explicit Recorrido(const nodo<T>* actual) : actual(actual) {}
    const T& operator*() const { return actual->dato; }
    Recorrido& operator++() {
      actual = actual->siguiente;
      return *this;
    }
    bool operator!=(const Recorrido& otro) const { return actual != otro.actual; }

   private:
    const nodo<T>* actual;
  };
  Recorrido begin() const;
  Recorrido end() const { return Recorrido(nullptr); }

 private:
  bool Ir(int i);
  void Avanza();
  void Retrocede();
  nodo<T>* Nuevo(const T& x);
  void Enlaza(nodo<T>* nuevo, nodo<T>* anterior, nodo<T>* siguiente);

  std::unique_ptr<std::pmr::monotonic_buffer_resource> memoria;  // of the nodes
  int numElementos = 0;
  nodo<T>* cursor = nullptr;
  int posicion = 0;       // of the cursor
  bool retocada = false;  // setItem may have broken the order
};

template <class T>
lista<T>::lista(const lista& otra) {
  for (const T& dato : otra) {
    nodo<T>* nuevo = Nuevo(dato);
    Enlaza(nuevo, cursor, nullptr);
    if (ListaVacia()) {
      cursor = nuevo;
    } else {
      Avanza();
    }
  }
  Ir(otra.posicion);
  retocada = otra.retocada;
}

template <class T>
lista<T>& lista<T>::operator=(lista otra) {
  std::swap(memoria, otra.memoria);
  std::swap(numElementos, otra.numElementos);
  std::swap(cursor, otra.cursor);
  std::swap(posicion, otra.posicion);
  std::swap(retocada, otra.retocada);
  return *this;
}

template <class T>
void lista<T>::Primero() {
  Ir(0);
}

template <class T>
void lista<T>::Siguiente() {
  if (ListaVacia()) return;
  if (cursor->siguiente == nullptr) {
    RemoverTodos();
  } else {
    Avanza();
  }
}

template <class T>
template <class Llena>
void lista<T>::Insertar(const T& modelo, Llena llena) {
  nodo<T>* const nuevo = Nuevo(modelo);
  llena(nuevo->dato);
  const T& x = nuevo->dato;
  /// In a sorted list every start leads to the same place; otherwise the walk from the first decides.
  if (retocada) Primero();
  while (!ListaVacia() && cursor->dato > x && posicion > 0) Retrocede();
  if (ListaVacia()) {
    Enlaza(nuevo, nullptr, nullptr);
    cursor = nuevo;
  } else if (cursor->dato > x) {
    Enlaza(nuevo, nullptr, cursor);
    ++posicion;
  } else {
    while (cursor->siguiente != nullptr && cursor->siguiente->dato <= x) Avanza();
    Enlaza(nuevo, cursor, cursor->siguiente);
  }
}

template <class T>
T lista<T>::Item(int i) {
  if (Ir(i)) return cursor->dato;
  if constexpr (std::is_default_constructible_v<T>) {
    return T();
  } else {
    throw std::out_of_range("lista::Item");
  }
}

template <class T>
void lista<T>::setItem(const T& x, int i) {
  if (!Ir(i)) return;
  cursor->dato = x;
  retocada = true;
}

template <class T>
void lista<T>::RemoverTodos() {
  Primero();
  if constexpr (!std::is_trivially_destructible_v<T>) {
    for (nodo<T>* actual = cursor; actual != nullptr;) {
      nodo<T>* const siguiente = actual->siguiente;
      actual->~nodo<T>();
      actual = siguiente;
    }
  }
  cursor = nullptr;
  if (memoria != nullptr) memoria->release();
  numElementos = 0;
  posicion = 0;
  retocada = false;
}

template <class T>
typename lista<T>::Recorrido lista<T>::begin() const {
  const nodo<T>* primero = cursor;
  while (primero != nullptr && primero->anterior != nullptr) primero = primero->anterior;
  return Recorrido(primero);
}

/// Moves the cursor to position `i`, if there is one.
template <class T>
bool lista<T>::Ir(int i) {
  if (i < 0 || i >= numElementos) return false;
  while (posicion < i) Avanza();
  while (posicion > i) Retrocede();
  return true;
}

template <class T>
void lista<T>::Avanza() {
  cursor = cursor->siguiente;
  ++posicion;
}

template <class T>
void lista<T>::Retrocede() {
  cursor = cursor->anterior;
  --posicion;
}

/// A node that nothing points at yet.
template <class T>
nodo<T>* lista<T>::Nuevo(const T& x) {
  if (memoria == nullptr)
    memoria = std::make_unique<std::pmr::monotonic_buffer_resource>(8 * sizeof(nodo<T>));
  return new (memoria->allocate(sizeof(nodo<T>), alignof(nodo<T>))) nodo<T>{x, nullptr, nullptr};
}

/// Puts a new node between two neighbours, either of which may be null.
template <class T>
void lista<T>::Enlaza(nodo<T>* nuevo, nodo<T>* anterior, nodo<T>* siguiente) {
  nuevo->anterior = anterior;
  nuevo->siguiente = siguiente;
  if (anterior != nullptr) anterior->siguiente = nuevo;
  if (siguiente != nullptr) siguiente->anterior = nuevo;
  ++numElementos;
}
