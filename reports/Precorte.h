// The result of the monthly pre-close: its statement, and its rows as a comma-separated file.
#pragma once

#include "framework/Sentencia.h"
#include "reports/Archivo.h"

/// Asks for the rows of a month. `fecha`, the closing day, is that of the deposits. `consolidado` asks for
/// all branches, whose rows have the same columns.
Sentencia SqlPrecorte(bool consolidado, const char* fecha, int anio, int mes);

/// Writes the rows of the shared result: a line of titles, a line for each row, and the totals under their
/// columns. What is NULL, or not there at all, is an empty text, a zero or a blank date.
void EscribePrecorte(Archivo& archivo);
