#include "widgets/TextoAcotado.h"

#include <cstdio>
#include <cstring>

namespace {

bool EsContinuacion(char c) { return (c & 0xC0) == 0x80; }

/// Bytes of the character that `c` begins.
size_t LargoDeCaracter(char c) {
  const auto cabeza = static_cast<unsigned char>(c);
  if (cabeza >= 0xC2 && cabeza <= 0xDF) return 2;
  if (cabeza >= 0xE0 && cabeza <= 0xEF) return 3;
  if (cabeza >= 0xF0 && cabeza <= 0xF4) return 4;
  return 1;
}

}  // namespace

size_t LargoUtf8(const char* s, size_t max) {
  const size_t largo = strnlen(s, max);
  for (size_t cola = 1; cola <= 3 && cola <= largo; ++cola) {
    const char c = s[largo - cola];
    if (LargoDeCaracter(c) > cola) return largo - cola;
    if (!EsContinuacion(c)) break;
  }
  return largo;
}

void CopiaAcotada(char* dst, size_t ancho, const char* src) {
  if (src == nullptr) src = "";
  size_t largo = strnlen(src, ancho);
  if (largo == ancho) largo = LargoUtf8(src, ancho - 1);
  memmove(dst, src, largo);
  dst[largo] = '\0';
}

void FormateaAcotada(char* dst, size_t ancho, const char* formato, va_list argumentos) {
  if (vsnprintf(dst, ancho, formato, argumentos) < 0) dst[0] = '\0';
  dst[LargoUtf8(dst, ancho - 1)] = '\0';
}
