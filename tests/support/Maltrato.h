// A careless user: types more than there is room for into everything that takes text, checks every box, picks
// from every list, and presses every button, whatever the boxes then ask.
#pragma once

#include <fx.h>

#include "tests/support/Textos.h"

namespace pruebas {

/// What the fields of a form are overfilled with: accents, quotes, percent signs, digits, and SQL.
const Textos& TextosDesmedidos();

/// Types `texto` into every text field and FXText of a window that a user can reach. Fails the test where a
/// limited field then holds more characters than it has columns.
void TecleaEnTodo(FXWindow* ventana, const std::string& texto);

/// Fills the window with each of TextosDesmedidos in turn, and each time picks from every list and combo box,
/// presses every check button, and then every button but for those of `omitidos`, once with the boxes
/// answered by their first button and once by their last. Dialogs that are no boxes are cancelled. Gives the
/// texts of all boxes; an empty one fails the test. The window has to outlive it, so what closes it is to be
/// omitted.
Textos Maltrata(FXWindow* ventana, const Textos& omitidos = {"&Cerrar"});

}  // namespace pruebas
