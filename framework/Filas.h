// The two containers of the cache as a list on screen shows them, by position from 0: a map keyed by row
// number, and a sorted list.
#pragma once

#include <map>

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
