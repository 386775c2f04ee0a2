#include "catalogs/people/cGarantia.h"

cGarantia::cGarantia(long id, long solicitudPrestamoID, long prestamoID, long garantiaBienID,
                     const char* noHip, const char* folio, const date& fechaRegistro,
                     const date& fechaVencimiento, const char* descripcion, bool cambiado, bool nuevo) {
  Toma(cambiado, nuevo, id, solicitudPrestamoID, prestamoID, garantiaBienID, noHip, folio, fechaRegistro,
       fechaVencimiento, descripcion);
}

void cGarantia::AddNew() {
  if (SolicitudPrestamoID == 0) Registro::AddNew();
}

void cGarantia::Update() {
  if (SolicitudPrestamoID == 0) Registro::Update();
}

void cGarantia::FindPorPrestamo() {
  if (PrestamoID != 0) Busca(Sentencia("SELECT * FROM spsgarantiap(%li);", PrestamoID), false);
}

void cGarantia::FindPorSolicitud() {
  if (SolicitudPrestamoID != 0)
    Busca(Sentencia("SELECT * FROM spsgarantias(%li);", SolicitudPrestamoID), false);
}

Sentencia cGarantia::SqlAddNew() const { return Sentencia("select spigarantia(%s);", SqlColumnas().Texto()); }

Sentencia cGarantia::SqlUpdate() const {
  return Sentencia("select spugarantia(%li,%s);", GarantiaID, SqlColumnas().Texto());
}

Sentencia cGarantia::SqlDelete() const { return Sentencia("SELECT spdgarantia(%li);", GarantiaID); }

/// A guarantee of a loan has no request, and one that no good backs sends the word NULL for it.
Sentencia cGarantia::SqlColumnas() const {
  const Sentencia bien = GarantiaBienID != 0 ? Sentencia("%li", GarantiaBienID) : Sentencia("NULL");
  return Sentencia("NULL,%li,%s,'%s','%s','%10.10s','%10.10s','%s'", PrestamoID, bien.Texto(), NoHip, Folio,
                   FechaRegistro.AsChar(), FechaVencimiento.AsChar(), Descripcion);
}
