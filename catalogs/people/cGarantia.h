// The guarantee of a loan. A guarantee of a loan request can be found, but has no statement that writes it.
// No form edits guarantees.
#pragma once

#include "framework/Registro.h"

class cGarantia : public Registro<cGarantia> {
 public:
  cGarantia() { Clear(); }
  cGarantia(long id, long solicitudPrestamoID, long prestamoID, long garantiaBienID, const char* noHip,
            const char* folio, const date& fechaRegistro, const date& fechaVencimiento,
            const char* descripcion, bool dataChanged, bool isNew);

  void setGarantiaID(long valor) { Pon(GarantiaID, valor); }
  void setSolicitudPrestamoID(long valor) { Pon(SolicitudPrestamoID, valor); }
  void setPrestamoID(long valor) { Pon(PrestamoID, valor); }
  void setNoHip(const char* valor) { Pon(NoHip, valor); }
  void setFolio(const char* valor) { Pon(Folio, valor); }
  void setFechaRegistro(const date& valor) { Pon(FechaRegistro, valor); }
  void setFechaVencimiento(const date& valor) { Pon(FechaVencimiento, valor); }
  void setDescripcion(const char* valor) { Pon(Descripcion, valor); }

  long getGarantiaID() const { return GarantiaID; }
  long getSolicitudPrestamoID() const { return SolicitudPrestamoID; }
  long getPrestamoID() const { return PrestamoID; }
  /// The good that backs the guarantee; 0 if none of the catalogue does.
  long getGarantiaBienID() const { return GarantiaBienID; }
  const char* getNoHip() const { return NoHip; }
  const char* getFolio() const { return Folio; }
  const date& getFechaRegistro() const { return FechaRegistro; }
  const date& getFechaVencimiento() const { return FechaVencimiento; }
  const char* getDescripcion() const { return Descripcion; }

  /// Always true.
  bool Check() { return true; }
  /// As in every record, but nothing happens to the guarantee of a loan request.
  void AddNew();
  /// The same.
  void Update();
  /// Find by the loan, if it is not 0, instead of the key.
  void FindPorPrestamo();
  /// Find by the loan request, if it is not 0, instead of the key.
  void FindPorSolicitud();

 private:
  friend Registro<cGarantia>;

  auto Columnas() {
    return std::tie(GarantiaID, SolicitudPrestamoID, PrestamoID, GarantiaBienID, NoHip, Folio, FechaRegistro,
                    FechaVencimiento, Descripcion);
  }
  long Clave() const { return GarantiaID; }
  void AlInsertar() { TomaClave(GarantiaID); }

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  /// The columns but the key, as insert and update send them.
  Sentencia SqlColumnas() const;

  long GarantiaID;
  long SolicitudPrestamoID;
  long PrestamoID;
  long GarantiaBienID;
  char NoHip[31];
  char Folio[33];
  date FechaRegistro;
  date FechaVencimiento;
  char Descripcion[101];
};
