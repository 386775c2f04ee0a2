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

// A list kept sorted by operator> and operator<= of T; equal keys stand in the order of their insertion.
// There is no head: the cursor is the only way in. Item, setItem and Insertar walk from where the cursor
// stands, so that reading or filling a list in key order costs one step per row. The nodes lie one behind the
// other in blocks of memory that the list gives back when it is emptied: a national table of neighbourhoods
// takes no more than its rows.
//
//   for (const cGrupo& grupo : catalogo.Grupos) ...   // reads in order and leaves the cursor where it is
template <class T>
class lista {
 public:
  lista() = default;
  lista(const lista& otra);  // deep copy, the cursor at the same place
  lista& operator=(lista otra);
  ~lista() { RemoverTodos(); }

  bool ListaVacia() const { return cursor_ == nullptr; }
  int NumElementos() const { return numElementos_; }

  // Moves the cursor to the first element. Nothing happens to an empty list.
  void Primero();

  // Moves the cursor to the next element. A step past the last one loses the list: it is empty afterwards.
  void Siguiente();

  // Inserts in order. The cursor is left on the element before the new one, or on the old first one if the
  // new one became the first, or on the new one if the list was empty.
  void Insertar(T x) {
    Insertar(x, [](T&) {});
  }
  // The same with a copy of `modelo` that `llena`, which must not throw, completes where it will stay.
  template <class Llena>
  void Insertar(const T& modelo, Llena llena);

  // A copy of the element at position `i`, counted from 0, on which the cursor is left. Outside the list: an
  // empty T, and the cursor stays; a T that cannot be empty throws out_of_range.
  T Item(int i);

  // Replaces the element at position `i`, on which the cursor is left; outside the list nothing happens. The
  // new element stays at that place, whatever its key.
  void setItem(const T& x, int i);

  // Deletes all elements.
  void RemoverTodos();

  class Recorrido {
   public:
    explicit Recorrido(const nodo<T>* actual) : actual_(actual) {}
    const T& operator*() const { return actual_->dato; }
    Recorrido& operator++() {
      actual_ = actual_->siguiente;
      return *this;
    }
    bool operator!=(const Recorrido& otro) const { return actual_ != otro.actual_; }

   private:
    const nodo<T>* actual_;
  };
  Recorrido begin() const;
  Recorrido end() const { return Recorrido(nullptr); }

 private:
  bool Ir(int i);
  void Avanza();
  void Retrocede();
  nodo<T>* Nuevo(const T& x);
  void Enlaza(nodo<T>* nuevo, nodo<T>* anterior, nodo<T>* siguiente);

  std::unique_ptr<std::pmr::monotonic_buffer_resource> memoria_;  // of the nodes
  int numElementos_ = 0;
  nodo<T>* cursor_ = nullptr;
  int posicion_ = 0;       // of the cursor
  bool retocada_ = false;  // setItem may have broken the order
};

template <class T>
lista<T>::lista(const lista& otra) {
  for (const T& dato : otra) {
    nodo<T>* nuevo = Nuevo(dato);
    Enlaza(nuevo, cursor_, nullptr);
    if (ListaVacia()) {
      cursor_ = nuevo;
    } else {
      Avanza();
    }
  }
  Ir(otra.posicion_);
  retocada_ = otra.retocada_;
}

template <class T>
lista<T>& lista<T>::operator=(lista otra) {
  std::swap(memoria_, otra.memoria_);
  std::swap(numElementos_, otra.numElementos_);
  std::swap(cursor_, otra.cursor_);
  std::swap(posicion_, otra.posicion_);
  std::swap(retocada_, otra.retocada_);
  return *this;
}

template <class T>
void lista<T>::Primero() {
  Ir(0);
}

template <class T>
void lista<T>::Siguiente() {
  if (ListaVacia()) return;
  if (cursor_->siguiente == nullptr) {
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
  // In a sorted list every start leads to the same place; otherwise the walk from the first decides.
  if (retocada_) Primero();
  while (!ListaVacia() && cursor_->dato > x && posicion_ > 0) Retrocede();
  if (ListaVacia()) {
    Enlaza(nuevo, nullptr, nullptr);
    cursor_ = nuevo;
  } else if (cursor_->dato > x) {
    Enlaza(nuevo, nullptr, cursor_);
    ++posicion_;
  } else {
    while (cursor_->siguiente != nullptr && cursor_->siguiente->dato <= x) Avanza();
    Enlaza(nuevo, cursor_, cursor_->siguiente);
  }
}

template <class T>
T lista<T>::Item(int i) {
  if (Ir(i)) return cursor_->dato;
  if constexpr (std::is_default_constructible_v<T>) {
    return T();
  } else {
    throw std::out_of_range("lista::Item");
  }
}

template <class T>
void lista<T>::setItem(const T& x, int i) {
  if (!Ir(i)) return;
  cursor_->dato = x;
  retocada_ = true;
}

template <class T>
void lista<T>::RemoverTodos() {
  Primero();
  if constexpr (!std::is_trivially_destructible_v<T>) {
    for (nodo<T>* actual = cursor_; actual != nullptr;) {
      nodo<T>* const siguiente = actual->siguiente;
      actual->~nodo<T>();
      actual = siguiente;
    }
  }
  cursor_ = nullptr;
  if (memoria_ != nullptr) memoria_->release();
  numElementos_ = 0;
  posicion_ = 0;
  retocada_ = false;
}

template <class T>
typename lista<T>::Recorrido lista<T>::begin() const {
  const nodo<T>* primero = cursor_;
  while (primero != nullptr && primero->anterior != nullptr) primero = primero->anterior;
  return Recorrido(primero);
}

// Moves the cursor to position `i`, if there is one.
template <class T>
bool lista<T>::Ir(int i) {
  if (i < 0 || i >= numElementos_) return false;
  while (posicion_ < i) Avanza();
  while (posicion_ > i) Retrocede();
  return true;
}

template <class T>
void lista<T>::Avanza() {
  cursor_ = cursor_->siguiente;
  ++posicion_;
}

template <class T>
void lista<T>::Retrocede() {
  cursor_ = cursor_->anterior;
  --posicion_;
}

// A node that nothing points at yet.
template <class T>
nodo<T>* lista<T>::Nuevo(const T& x) {
  if (memoria_ == nullptr)
    memoria_ = std::make_unique<std::pmr::monotonic_buffer_resource>(8 * sizeof(nodo<T>));
  return new (memoria_->allocate(sizeof(nodo<T>), alignof(nodo<T>))) nodo<T>{x, nullptr, nullptr};
}

// Puts a new node between two neighbours, either of which may be null.
template <class T>
void lista<T>::Enlaza(nodo<T>* nuevo, nodo<T>* anterior, nodo<T>* siguiente) {
  nuevo->anterior = anterior;
  nuevo->siguiente = siguiente;
  if (anterior != nullptr) anterior->siguiente = nuevo;
  if (siguiente != nullptr) siguiente->anterior = nuevo;
  ++numElementos_;
}
