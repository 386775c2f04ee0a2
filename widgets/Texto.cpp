#include "widgets/Texto.h"

#include <algorithm>
#include <cstring>

namespace {

char* Duplica(const char* s) {
  if (s == nullptr) return nullptr;
  return strcpy(new char[strlen(s) + 1], s);
}

}  // namespace

Texto::Texto(const char* s) : texto(Duplica(s)) {}

Texto::Texto(int n) : texto(new char[std::max(n, 0) + size_t{1}]()) {}

Texto::Texto(const Texto& otro) : texto(Duplica(otro.texto)) {}

Texto::~Texto() { delete[] texto; }

char* Texto::setTexto(const char* s) {
  char* nuevo = Duplica(s);  // before the old array goes, since `s` may lie in it
  delete[] texto;
  return texto = nuevo;
}

char* Texto::getTexto(char* dst) const { return strcpy(dst, texto == nullptr ? "" : texto); }
