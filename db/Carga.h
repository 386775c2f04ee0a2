// How a container of the cache takes the rows of a select: a map keyed by row number, or a sorted list.
//
// A load replaces its container as a whole. It walks the shared result, so neither Fill nor the copy
// constructor of the record may query. The status of the select is not looked at: a failed one gives no rows
// and no message. One record takes all rows in turn, so what its Fill leaves alone comes from the row before.
#pragma once

#include <iostream>
#include <map>
#include <string>

#include "db/Engine.h"
#include "widgets/lista.h"

/// Writes the text of a load to standard output, and answers it.
inline const char* Trazada(const char* sql) {
  std::cout << sql << std::endl;
  return sql;
}

template <class T>
void Vacia(std::map<int, T>& mapa) {
  mapa.clear();
}

template <class T>
void Vacia(lista<T>& filas) {
  filas.RemoverTodos();
}

/// Takes the rows of the shared result into an empty map. Each is filled where it stays.
template <class T>
void TomaFilas(std::map<int, T>& mapa) {
  const int filas = PQntuples(res);
  if (filas == 0) return;
  T* anterior = &mapa.try_emplace(0).first->second;
  anterior->Fill(0);
  for (int fila = 1; fila < filas; ++fila) {
    anterior = &mapa.emplace_hint(mapa.end(), fila, *anterior)->second;
    anterior->Fill(fila);
  }
}

/// Takes the rows of the shared result into an empty list, sorted by its record's key.
template <class T>
void TomaFilas(lista<T>& filas) {
  const T blanco;
  const T* anterior = &blanco;
  for (int fila = 0; fila < PQntuples(res); ++fila) {
    filas.Insertar(*anterior, [&](T& nuevo) {
      nuevo.Fill(fila);
      anterior = &nuevo;
    });
  }
}

/// What the server said of the last select of a load that it refused, for who wants to tell; who does empties
/// it ahead of the load.
inline std::string quejaDeCarga;

inline void AnotaQueja() {
  if (Rechazada()) quejaDeCarga = PQresultErrorMessage(res);
}

/// A load without a transaction.
template <class Contenedor>
void Carga(Contenedor& contenedor, const char* sql) {
  Vacia(contenedor);
  Ejecuta(sql);
  AnotaQueja();
  TomaFilas(contenedor);
  LiberaResultado();
}

/// A load inside a transaction; throws `mensaje`, the container already empty, when "BEGIN;" fails. The rows
/// can come by way of another connection; the transaction is always the session's.
template <class Contenedor>
void CargaEnTransaccion(Contenedor& contenedor, const char* sql, const char* mensaje,
                        PGconn* conexion = conn) {
  Vacia(contenedor);
  AbreTransaccion(mensaje);
  EjecutaEn(conexion, sql);
  AnotaQueja();
  TomaFilas(contenedor);
  Ejecuta("COMMIT;");
  LiberaResultado();
}
