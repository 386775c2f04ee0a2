// Does a user see the whole of a window?
#pragma once

#include <fx.h>

namespace pruebas {

/// Every piece in the boxes of a form lies inside the one around it, no label or text field is narrower than
/// what it has to show, and each box has room for its rows. The form has to be laid out.
void ExigeNadaCortado(FXWindow* forma);

}  // namespace pruebas
