// The rules of a record's Check as a table, one row each: what breaks the rule, and what is thrown then.
//
//   const Regla<cX> reglas[] = {
//       {Vacio<&cX::getDescri>, "No ha capturado la descripción"},
//       {NoAfectable<&cX::getCuenta>, "La cuenta debe ser afectable"},
//   };
//
// The order of the rows is the order of the tests. A rule on two columns is a lambda.
#pragma once

#include <functional>

#include "db/Engine.h"
#include "widgets/date.h"

template <class Clase>
struct Regla {
  bool (*rota)(const Clase&);
  const char* mensaje;
};

/// Throws the message of the first rule that `registro` breaks.
template <class Clase, size_t N>
void ExigeReglas(const Clase& registro, const Regla<Clase> (&reglas)[N]) {
  for (const Regla<Clase>& regla : reglas)
    if (regla.rota(registro)) Lanza(regla.mensaje);
}

// The getters are called by std::invoke: with the plain call through a template argument that is a member of
// a base class, an optimizing compiler warns of aliasing.

/// An empty text; one of blanks is not empty.
template <auto get, class Clase>
bool Vacio(const Clase& registro) {
  return std::invoke(get, registro)[0] == '\0';
}

/// Does the account take postings? One that is not in the chart does, the empty text too. The cache, which
/// has the chart and stands above the records, answers (db/CatalogoConsulta.cpp).
bool EsAfectable(const char* cuenta);

/// An account of the chart that takes no postings; an empty or unknown one passes.
template <auto get, class Clase>
bool NoAfectable(const Clase& registro) {
  return !EsAfectable(std::invoke(get, registro));
}

template <auto get, class Clase>
bool Cero(const Clase& registro) {
  return std::invoke(get, registro) == 0;
}

template <auto get, class Clase>
bool Negativo(const Clase& registro) {
  return std::invoke(get, registro) < 0;
}

template <auto get, class Clase>
bool NoPositivo(const Clase& registro) {
  return !(std::invoke(get, registro) > 0);
}

/// A date that was never given: its year is 0, as that of an empty text, or 1900, as that of a blank record.
template <auto get, class Clase>
bool SinFecha(const Clase& registro) {
  return FaltaFecha(std::invoke(get, registro));
}
