// The record of a product as a table: its columns, statements and rules. productos_test.cpp puts each of them
// through the same tests; the table itself stands in the test file of the record.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/catalogs/Ficha.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// An account of the demonstration as the server answers it, from the head of its number.
inline std::string Cuenta(std::string cabeza) {
  const std::string ceros = "0000-00-00-00-0000";
  if (cabeza.size() < ceros.size()) cabeza += ceros.substr(cabeza.size());
  cabeza.resize(24, ' ');
  return cabeza;
}

/// The text with every conversion of `formato` replaced by the column whose turn it is.
inline std::string Formateado(const std::string& formato, const Textos& valores) {
  std::string texto;
  auto valor = valores.begin();
  for (size_t i = 0; i < formato.size(); ++i) {
    if (formato[i] != '%') {
      texto += formato[i];
      continue;
    }
    i = formato.find_first_of("sif", i);
    texto += *valor++;
  }
  return texto;
}

/// A column: how many bytes a text holds (0 for a number), its place in the server's answer, and two values
/// that the server takes, as it answers them.
struct Campo {
  const char* nombre;
  size_t bytes;
  size_t lugar;
  std::string valor, otro;
};

/// A statement: its printf format, the columns that go into it, and whether it is traced.
struct Enunciado {
  std::string formato;
  Textos campos;
  bool traza;
};

/// A value in one column and what is said to it: all that Check throws, or a part of what the server answers.
/// An empty text means that the value passes.
struct Prueba {
  const char* campo;
  std::string valor;
  const char* texto;
};

struct Producto {
  const char* nombre;
  const char* clase;
  const char* tabla;          ///< on the server, the key in its first column
  std::vector<Campo> campos;  ///< in the order of the members, the key first
  std::vector<Enunciado> alta, cambio;
  Enunciado borrado, busqueda;
  std::vector<Prueba> reglas;     ///< what each rule refuses, in the order of Check
  std::vector<Prueba> permitido;  ///< what no rule refuses
  std::vector<Prueba> servidor;   ///< what reaches the server
  std::function<std::unique_ptr<Ficha>()> vacia;
};

/// A column of the record R with the rest of its row.
template <class R>
struct CampoDe {
  const char* nombre;
  Columna<R> columna;
  size_t bytes;
  size_t lugar;
  std::string valor, otro;
};

/// Puts the columns of R into its table, and how an empty record is made.
template <class R>
Producto ConCampos(Producto producto, const std::vector<CampoDe<R>>& campos) {
  std::vector<Columna<R>> columnas;
  for (const auto& campo : campos) {
    producto.campos.push_back({campo.nombre, campo.bytes, campo.lugar, campo.valor, campo.otro});
    columnas.push_back(campo.columna);
  }
  producto.vacia = [columnas] { return std::make_unique<FichaDe<R>>(R(), columnas); };
  return producto;
}

/// The columns of a record as texts.
template <class R>
Textos Columnas(const R& registro, const std::vector<CampoDe<R>>& campos) {
  Textos columnas;
  for (const auto& campo : campos) columnas.push_back(campo.columna.da(registro));
  return columnas;
}

/// The names of the columns from number `desde` to before number `hasta`.
template <class R>
Textos Nombres(const std::vector<CampoDe<R>>& campos, size_t desde, size_t hasta) {
  Textos nombres;
  for (size_t i = desde; i < hasta; ++i) nombres.push_back(campos[i].nombre);
  return nombres;
}

/// The tables.
Producto TipoDeMovimiento();
Producto TipoDeInversion();
Producto TipoDePrestamo();

}  // namespace pruebas
