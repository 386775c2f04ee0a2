// A kind of member.
#pragma once

#include "framework/Registro.h"

class cTipoSocio : public Registro<cTipoSocio, EngineVirtual> {
 public:
  cTipoSocio() { Clear(); }
  cTipoSocio(const char* id, const char* descri, const char* observaciones, bool dataChanged, bool isNew);

  /// Key of 2 characters, stored with blanks behind it.
  void setTipoSocioID(const char* valor) { PonRellenado(TipoSocioID, 2, valor); }
  /// At most 30 bytes are stored.
  void setDescriTipoSocio(const char* valor) { PonLimitado(DescriTipoSocio, 30, valor); }
  /// At most 254 bytes are stored.
  void setObservaciones(const char* valor) { PonLimitado(Observaciones, 254, valor); }

  const char* getTipoSocioID() const { return TipoSocioID; }
  const char* getDescriTipoSocio() const { return DescriTipoSocio; }
  const char* getObservaciones() const { return Observaciones; }

  bool Check();
  const char* clase() const { return "TipoSocio"; }

 private:
  friend Registro<cTipoSocio, EngineVirtual>;

  auto Columnas() { return std::tie(TipoSocioID, DescriTipoSocio, Observaciones); }
  const char* Clave() const { return TipoSocioID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  char TipoSocioID[3];
  char DescriTipoSocio[31];
  char Observaciones[256];
};
