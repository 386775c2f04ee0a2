// An SQL statement, formatted as by printf.
//
// The text grows as needed, so no value is ever cut, and the compiler checks every format against its
// arguments. Values are embedded as they stand: a quote typed by a user reaches the server, which refuses the
// statement.
#pragma once

#include <string>

class Sentencia {
 public:
  /// Formats `formato` with the arguments that follow it. Text arguments must not be null.
  explicit Sentencia(const char* formato, ...) __attribute__((format(printf, 2, 3)));

  /// `texto` as a format that nothing follows: "%%" becomes "%", and any other percent sign, since there is
  /// no argument to read, stays as it stands with what is behind it.
  static Sentencia SinArgumentos(const char* texto);

  /// The statement; valid while this object lives.
  operator const char*() const { return texto.c_str(); }
  /// The same, as an argument of another statement.
  const char* Texto() const { return texto.c_str(); }

 private:
  Sentencia() {}

  std::string texto;
};
