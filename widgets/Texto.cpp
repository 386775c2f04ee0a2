#include "widgets/Texto.h"

#include <algorithm>
#include <cstring>

namespace {

char* Duplica(const char* s) {
  if (s == nullptr) return nullptr;
  return strcpy(new char[strlen(s) + 1], s);
}

}  // namespace

Texto::Texto(const char* s) : texto_(Duplica(s)) {}

Texto::Texto(int n) : texto_(new char[std::max(n, 0) + size_t{1}]()) {}

Texto::Texto(const Texto& otro) : texto_(Duplica(otro.texto_)) {}

Texto::~Texto() { delete[] texto_; }

char* Texto::setTexto(const char* s) {
  char* nuevo = Duplica(s);  // before the old array goes, since `s` may lie in it
  delete[] texto_;
  return texto_ = nuevo;
}

char* Texto::getTexto(char* dst) const { return strcpy(dst, texto_ == nullptr ? "" : texto_); }
