// The search dialogs stand with the catalogues that they search; what shares them is framework/Buscador.h.
#pragma once

#include "catalogs/people/BusquedaSujeto_Window.h"
