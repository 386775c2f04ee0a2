// A private X server and the one application object of a test program.
#pragma once

#include <fx.h>

#include <string>

namespace pruebas {

/// The application, created and initialised by the first call (the toolkit allows one for a process) in the
/// program's own way, on an X server of 1280 by 1024 points that ends with the test program. From then on
/// HOME is a temporary folder, so that the settings of the real user are neither read nor written. Never
/// destroyed.
FXApp& App();

/// Forgets all settings of the application, as on a machine where it has never run.
void SinAjustes();

/// Keeps a picture (PNG) of a window, or of the whole screen, boxes included. Throws std::runtime_error.
void Foto(const std::string& archivo, FXWindow* ventana = nullptr);

}  // namespace pruebas
