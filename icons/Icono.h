// The drawings on menus and buttons, one icon each for the whole process: forms come and go, the icons stay.
#pragma once

#include <fx.h>

/// The icon of `dibujo`, one of the ICO arrays of icons/iconos.h. Made at the first call; belongs to the
/// process.
FXIcon* icono(FXApp* app, const unsigned char* dibujo);

/// The same for a GIF array.
FXIcon* iconoGif(FXApp* app, const unsigned char* dibujo);
