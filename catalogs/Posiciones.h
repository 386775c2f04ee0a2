// Where a row of the cache stands in the lists that offer it: a combo box shows the rows of a catalogue in
// the order of its container.
#pragma once

#include "db/Catalogo.h"

/// Position in the cached catalogue of the first row with exactly this key; 0 if there is none.
int FindCalculo(long numero);
int FindTipoMovimiento(const char* tipoMovimientoID);
int FindFinalidad(const char* claveFinalidad);
int FindMoneda(const char* monedaID);
int FindDepreciacion(long numero);
int FindEstado(int estadoMexID);
int FindCiudad(int ciudadMexID);
int FindTipoUsuario(const char* tipoUsuarioID);
/// The same among the users, counted from 1; 0, the place of "Ninguno", if there is none.
int FindUsuario(const char* usuarioID);

/// A movement type as a combo box shows it where its key is of use: key and description. Stays until the next
/// call.
const char* RenglonDeMovimiento(const cTipoMovimiento& tipo);
