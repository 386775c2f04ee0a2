// The name of a series of variable rates, read only: its form changes it through the load of the cache.
#pragma once

#include "framework/Registro.h"

class cTipoTasaInteres : public Engine {
  auto Columnas() { return std::tie(Tipotasa, Descripcion); }

 public:
  cTipoTasaInteres() { VaciaColumnas(Columnas()); }
  void Copy(const cTipoTasaInteres& otra) { *this = otra; }

  const char* getTipotasa() const { return Tipotasa; }
  const char* getDescripcion() const { return Descripcion; }

  void Fill(int fila) { LlenaColumnas(Columnas(), fila); }

 private:
  char Tipotasa[60];
  char Descripcion[260];
};
