// The two containers of the cache as a list on screen shows them, by position from 0: a map keyed by row
// number, and a sorted list.
#pragma once

#include <cstring>
#include <map>

#include "widgets/date.h"
#include "widgets/lista.h"

/// Runs `accion(position, record)` on every row, first to last. A `lista` is left with its cursor on the last
/// one.
template <class T, class Accion>
void CadaFila(const std::map<int, T>& filas, Accion accion) {
  for (const auto& [posicion, registro] : filas) accion(posicion, registro);
}
template <class T, class Accion>
void CadaFila(lista<T>& filas, Accion accion) {
  for (int posicion = 0; posicion < filas.NumElementos(); ++posicion) accion(posicion, filas.Item(posicion));
}

/// Do two keys, as their getters give them, name the same row?
inline bool MismaClave(const char* a, const char* b) { return strcmp(a, b) == 0; }
inline bool MismaClave(long a, long b) { return a == b; }
inline bool MismaClave(const date& a, const date& b) { return MismaFecha(a, b); }

/// Position of the first row with this key; 0 if there is none.
template <class T, class Clave>
int PosicionDe(const std::map<int, T>& filas, Clave (T::*getter)() const, Clave clave) {
  int posicion = 0;
  for (const auto& [fila, registro] : filas) {
    if (MismaClave((registro.*getter)(), clave)) return posicion;
    ++posicion;
  }
  return 0;
}

/// Copies the row at a position into `registro`; false, and nothing is copied, when there is no such row.
template <class T>
bool CopiaFila(const std::map<int, T>& filas, int posicion, T& registro) {
  const auto fila = filas.find(posicion);
  if (fila == filas.end()) return false;
  registro = fila->second;
  return true;
}
template <class T>
bool CopiaFila(lista<T>& filas, int posicion, T& registro) {
  if (posicion < 0 || posicion >= filas.NumElementos()) return false;
  registro = filas.Item(posicion);
  return true;
}
