// A list of texts, the shape in which the tests compare nearly everything.
#pragma once

#include <string>
#include <vector>

namespace pruebas {

using Textos = std::vector<std::string>;

}  // namespace pruebas
