#include "widgets/rtrim.h"

#include <cctype>
#include <cstring>

char* rtrim(const char* s) {
  if (s == nullptr) s = "";
  size_t largo = strlen(s);
  while (largo > 1 && isspace(static_cast<unsigned char>(s[largo - 1]))) --largo;

  char* copia = new char[largo + 1];
  memcpy(copia, s, largo);
  copia[largo] = '\0';
  return copia;
}
