// The catalogues that can be shown as a list: each is made once, from what its record states of its columns.
#pragma once

#include <fx.h>

#include <string>
#include <vector>

#include "operaciones/Tabla.h"

/// A catalogue of the cache. A record brings its columns; this adds their headings.
struct Catalogado {
  const char* nombre;
  /// In the order of the record's columns, a bar between two; a column without a heading is not shown.
  const char* titulos;
  /// The rows of the cache as a table.
  Tabla (*tabla)(const char* titulos);
  /// Reads the catalogue from the server; throws what the load throws.
  void (*relee)();
  /// The option that opens its form, which asks for the module, and the class of the form; 0 where there is
  /// none.
  FXSelector opcion;
  const char* forma;

  Tabla Hace() const { return tabla(titulos); }
};

/// Chooses the row with these cells in the form of its catalogue, as the user would.
void EligeEnForma(FXWindow* forma, const Catalogado& catalogado, const std::vector<std::string>& renglon);

/// All of them, by name.
const std::vector<Catalogado>& Catalogados();
