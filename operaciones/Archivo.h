// Where the user wants a file, and the file.
#pragma once

#include <fx.h>

#include <functional>
#include <string>

/// Asks where to write, offering `nombre` in the working folder, and once more where a file stands there
/// already; writes what `contenido` gives and says `hecho`, or why it could not. The boxes bear the caption
/// `clase`, the question for the place bears `titulo`.
void GuardaArchivo(FXWindow* duenio, const char* clase, const char* titulo, const FXString& nombre,
                   const std::function<std::string()>& contenido, const FXString& hecho);
