// The tax key of a person, which the server works out.
#pragma once

#include <optional>
#include <string>

/// For a name and a birth date, dd/mm/yyyy; traced. Nothing when the server gives no answer, whatever the
/// reason.
std::optional<std::string> GeneraRfc(const char* paterno, const char* materno, const char* nombre,
                                     const char* fechaNacimiento);
