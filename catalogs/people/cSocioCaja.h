// A row of the list of members, read only. It has no statements of its own: the cache loads it.
#pragma once

#include "framework/Registro.h"

class cSocioCaja : public EngineVirtual {
  auto Columnas() { return std::tie(SocioID, ClaveSocioInt, Paterno, Materno, Nombre, Estatus); }

 public:
  cSocioCaja() { Clear(); }
  cSocioCaja(long socioID, const char* claveSocioInt, const char* paterno, const char* materno,
             const char* nombre, const char* estatus);
  void Copy(const cSocioCaja& otra) { *this = otra; }

  void setSocioID(long valor) { SocioID = valor; }
  void setClaveSocioInt(const char* valor) { CopiaTexto(ClaveSocioInt, valor); }
  void setPaterno(const char* valor) { CopiaTexto(Paterno, valor); }
  void setMaterno(const char* valor) { CopiaTexto(Materno, valor); }
  void setNombre(const char* valor) { CopiaTexto(Nombre, valor); }
  void setEstatus(const char* valor) { CopiaTexto(Estatus, valor); }

  long getSocioID() const { return SocioID; }
  const char* getClaveSocioInt() const { return ClaveSocioInt; }
  const char* getPaterno() const { return Paterno; }
  const char* getMaterno() const { return Materno; }
  const char* getNombre() const { return Nombre; }
  const char* getEstatus() const { return Estatus; }

  void Fill(int fila) { LlenaColumnas(Columnas(), fila); }
  void Clear() { VaciaColumnas(Columnas()); }

 private:
  long SocioID;
  char Paterno[21];
  char Materno[21];
  char Nombre[41];
  char ClaveSocioInt[16];
  char Estatus[33];
};
