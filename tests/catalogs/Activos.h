// The records of the fixed assets as tables, for the tests of the records and of their forms. The server
// gives both their keys.
#pragma once

#include "tests/catalogs/Producto.h"

namespace pruebas {

Producto TipoDeDepreciacion();
Producto ActivoFijo();

}  // namespace pruebas
