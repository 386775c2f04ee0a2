#include "reports/Mandato.h"

#include <cstdlib>
#include <cstring>

int Manda(const FXString& mandato) { return system(mandato.text()); }

FXString Citado(const FXString& texto) {
  FXString citado = "\"";
  for (const FXchar* letra = texto.text(); *letra != '\0'; ++letra) {
    if (strchr("\"`$\\", *letra) != nullptr) citado += '\\';
    citado += *letra;
  }
  return citado += '"';
}
