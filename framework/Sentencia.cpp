#include "framework/Sentencia.h"

#include <cstdarg>
#include <cstdio>

Sentencia::Sentencia(const char* formato, ...) {
  va_list medida, argumentos;
  va_start(medida, formato);
  va_copy(argumentos, medida);
  const int largo = vsnprintf(nullptr, 0, formato, medida);
  va_end(medida);
  if (largo > 0) {
    texto.resize(largo);
    vsnprintf(&texto[0], texto.size() + 1, formato, argumentos);
  }
  va_end(argumentos);
}

Sentencia Sentencia::SinArgumentos(const char* texto) {
  Sentencia sentencia;
  for (; *texto != '\0'; ++texto) {
    sentencia.texto += *texto;
    if (texto[0] == '%' && texto[1] == '%') ++texto;
  }
  return sentencia;
}
