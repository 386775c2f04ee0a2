#pragma once

#include <fx.h>

/// Are the letters of this screen larger than those for which the sizes of the forms are made?
bool TieneLetraGrande(FXApp* app);
