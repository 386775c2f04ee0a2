// What the windows share that ask the server for a table of their own.
#pragma once

#include <fx.h>

#include <string>

/// `texto` as a literal of a statement, whatever is in it; an empty one without a connection.
std::string Literal(const FXString& texto);

/// Executes a statement, its answer in `res`, and traces it. Throws the server's text when it is refused.
void Consulta(const std::string& sql);
