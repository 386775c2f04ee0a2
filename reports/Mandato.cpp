#include "reports/Mandato.h"

#include <cstdlib>
#include <cstring>
#include <string>

int Manda(const FXString& mandato) { return system(mandato.text()); }

FXString Citado(const FXString& texto) {
  std::string citado = "\"";
  for (const FXchar* letra = texto.text(); *letra != '\0'; ++letra) {
    if (strchr("\"`$\\", *letra) != nullptr) citado += '\\';
    citado += *letra;
  }
  citado += '"';
  return citado.c_str();
}
