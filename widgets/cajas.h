// The boxes of the system: errors, news and questions. Each blocks until it is answered.
//
// `texto` has the shape of a printf format without arguments: "%%" shows as "%", and a directive shows as it
// stands. The lines with which a server points into a statement are left out. An empty text, which is what a
// closed connection leaves, shows as a sentence that says so. Lines wider than 90 characters are broken. A
// text of more than 30 lines is shown whole in an area that scrolls by the wheel, its bar and the keys that
// move in a text, so that a box always fits on the screen.
#pragma once

#include <fx.h>

void cajaError(FXWindow* duenio, const FXString& titulo, const char* texto);
void cajaInformacion(FXWindow* duenio, const FXString& titulo, const char* texto);

/// Yes and No; true for yes.
bool cajaPregunta(FXWindow* duenio, const FXString& titulo, const char* texto);
/// "Borrar el registro ?", with &No as the first answer and below its owner, whose fields stay in sight.
bool cajaPreguntaBorrar(FXWindow* duenio, const FXString& titulo);
