// Bounded copies into the fixed text columns of the records. Widths count bytes, terminator included; a text
// that does not fit is cut, and never in the middle of a UTF-8 character, since the server refuses half a
// one.
#pragma once

#include <cstdarg>
#include <cstddef>

/// Largest length, at most `max` and at most the length of `s`, that does not end in the middle of a UTF-8
/// character. Bytes that are no UTF-8 count as whole characters of their own.
size_t LargoUtf8(const char* s, size_t max);

/// Copies `src` into the `ancho` bytes at `dst`, terminated. A null `src` is an empty text; it may overlap
/// `dst`.
void CopiaAcotada(char* dst, size_t ancho, const char* src);

/// vsnprintf into the `ancho` bytes at `dst`. An incomplete character at the end is dropped, whether the
/// width or a precision in the format ("%.30s") cut it. No argument may point into `dst`.
void FormateaAcotada(char* dst, size_t ancho, const char* formato, va_list argumentos)
    __attribute__((format(printf, 3, 0)));

template <size_t N>
void CopiaTexto(char (&dst)[N], const char* src) {
  CopiaAcotada(dst, N, src);
}

template <size_t N>
__attribute__((format(printf, 2, 3))) void FormateaTexto(char (&dst)[N], const char* formato, ...) {
  va_list argumentos;
  va_start(argumentos, formato);
  FormateaAcotada(dst, N, formato, argumentos);
  va_end(argumentos);
}
