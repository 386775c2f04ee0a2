#include "catalogs/people/cParametro.h"

#include <iostream>

cParametro::cParametro(long id, const char* usuarioID, const char* serieUser, const char* cuentaCaja,
                       const char* impresoraCaja, const char* impresoraReporte, int reportesLaser,
                       const char* claveSocioInt, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, usuarioID, serieUser, cuentaCaja, impresoraCaja, impresoraReporte, reportesLaser,
       claveSocioInt);
}

void cParametro::Fill(int fila) {
  Registro::Fill(fila);
  std::cout << "leyendo parametros" << std::endl << SerieUser << std::endl << CuentaCaja << std::endl;
}

const char* cParametro::getNombreUsuario(const char* serie) {
  char dosLetras[3];
  CopiaTexto(dosLetras, serie);
  Ejecuta(Sentencia("select nombreusuario('%.2s');", dosLetras));
  LanzaSiRechazada();
  CopiaTexto(NombreUsuario, Celda(0, 0));
  return NombreUsuario;
}

Sentencia cParametro::SqlAddNew() const {
  return Sentencia("select spiparametro('%s','%s','%s','%s','%s',%i,'%s');", UsuarioID, SerieUser, CuentaCaja,
                   ImpresoraCaja, ImpresoraReporte, ReportesLaser, ClaveSocioInt);
}

Sentencia cParametro::SqlUpdate() const {
  return Sentencia("select spuparametro('%s','%s','%s','%s','%s',%i,'%s');", UsuarioID, SerieUser, CuentaCaja,
                   ImpresoraCaja, ImpresoraReporte, ReportesLaser, ClaveSocioInt);
}

Sentencia cParametro::SqlDelete() const { return Sentencia("SELECT spdparametro('%s');", UsuarioID); }

Sentencia cParametro::SqlFind() const { return Sentencia("SELECT * FROM spsparametro('%s');", UsuarioID); }
