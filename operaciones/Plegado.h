// Texts as a person compares them: accents and case do not count, "ñ" is a letter of its own behind "n".
#pragma once

#include <string>
#include <string_view>

/// `texto` (UTF-8) in small letters without accents; a lone accent is nothing. Bytes that are no UTF-8 stay.
std::string Plegado(std::string_view texto);

/// The same as a key whose bytes stand in the order of the Spanish alphabet.
std::string ClaveDeOrden(std::string_view texto);
