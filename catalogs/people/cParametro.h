// A user's working parameters: series, cash account, printers, member key. The key of its statements is the
// login.
#pragma once

#include "framework/Registro.h"

class cParametro : public Registro<cParametro, EngineVirtual> {
 public:
  cParametro() { Clear(); }
  cParametro(long id, const char* usuarioID, const char* serieUser, const char* cuentaCaja,
             const char* impresoraCaja, const char* impresoraReporte, int reportesLaser,
             const char* claveSocioInt, bool dataChanged, bool isNew);

  void setParametroID(long valor) { Pon(ParametroID, valor); }
  void setUsuarioID(const char* valor) { Pon(UsuarioID, valor); }
  void setSerieUser(const char* valor) { Pon(SerieUser, valor); }
  void setCuentaCaja(const char* valor) { Pon(CuentaCaja, valor); }
  void setImpresoraCaja(const char* valor) { Pon(ImpresoraCaja, valor); }
  void setImpresoraReporte(const char* valor) { Pon(ImpresoraReporte, valor); }
  void setReportesLaser(int valor) { Pon(ReportesLaser, valor); }
  void setClaveSocioInt(const char* valor) { Pon(ClaveSocioInt, valor); }

  long getParametroID() const { return ParametroID; }
  const char* getUsuarioID() const { return UsuarioID; }
  const char* getSerieUser() const { return SerieUser; }
  const char* getCuentaCaja() const { return CuentaCaja; }
  const char* getImpresoraCaja() const { return ImpresoraCaja; }
  const char* getImpresoraReporte() const { return ImpresoraReporte; }
  int getReportesLaser() const { return ReportesLaser; }
  const char* getClaveSocioInt() const { return ClaveSocioInt; }

  /// Fills as every record does, and traces the series and the account.
  void Fill(int fila);
  /// Always true.
  bool Check() { return true; }
  /// Name of the user who holds `serie`, of which two characters count; at most 80 bytes, kept in this record
  /// until the next call. Throws the server's text; leaves the result uncleared.
  const char* getNombreUsuario(const char* serie);

 private:
  friend Registro<cParametro, EngineVirtual>;
  static constexpr unsigned trazas = TrazaUpdate | TrazaFind;

  auto Columnas() {
    return std::tie(ParametroID, UsuarioID, SerieUser, CuentaCaja, ImpresoraCaja, ImpresoraReporte,
                    ReportesLaser, ClaveSocioInt);
  }
  const char* Clave() const { return UsuarioID; }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;

  long ParametroID;
  char UsuarioID[21];
  char SerieUser[3];
  char CuentaCaja[25];
  char ImpresoraCaja[51];
  char ImpresoraReporte[52];
  int ReportesLaser;
  char NombreUsuario[81] = "";  // scratch text of getNombreUsuario
  char ClaveSocioInt[16];
};
