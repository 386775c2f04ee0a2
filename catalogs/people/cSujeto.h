// A person known to the institution, with one address and a list of goods.
//
// Person and address are one object with two rows, each with its own dataChanged and isNew; the names of the
// address's half are reached as cDomicilio::. Only the user form edits persons.
#pragma once

#include "catalogs/people/cBien.h"
#include "catalogs/people/cDomicilio.h"
#include "widgets/lista.h"

/// The goods of a person. A copy of the person starts without goods, and an assignment leaves them as they
/// are.
class BienesDeSujeto : public lista<cBien> {
 public:
  BienesDeSujeto() = default;
  BienesDeSujeto(const BienesDeSujeto&) : lista() {}
  BienesDeSujeto& operator=(const BienesDeSujeto&) { return *this; }
};

class cSujeto : public Registro<cSujeto, cDomicilio> {
 public:
  cSujeto() { Clear(); }
  cSujeto(long id, const char* paterno, const char* materno, const char* nombre, const char* rfc,
          const char* curp, int edad, const date& fechaNacimiento, const char* razonSocial, bool dataChanged,
          bool isNew);

  void setSujetoID(long valor) { Pon(SujetoID, valor); }
  void setPaterno(const char* valor) { Pon(Paterno, valor); }
  void setMaterno(const char* valor) { Pon(Materno, valor); }
  void setNombre(const char* valor) { Pon(Nombre, valor); }
  void setRfc(const char* valor) { Pon(Rfc, valor); }
  void setCurp(const char* valor) { Pon(Curp, valor); }
  /// Years.
  void setEdad(int valor) { Pon(Edad, valor); }
  void setFechaNacimiento(const date& valor) { Pon(FechaNacimiento, valor); }
  void setRazonSocial(const char* valor) { Pon(RazonSocial, valor); }
  /// True also if the address was changed.
  void setDataChanged(bool valor) { dataChanged = valor || cDomicilio::dataChanged; }

  long getSujetoID() const { return SujetoID; }
  const char* getPaterno() const { return Paterno; }
  const char* getMaterno() const { return Materno; }
  const char* getNombre() const { return Nombre; }
  const char* getRfc() const { return Rfc; }
  const char* getCurp() const { return Curp; }
  int getEdad() const { return Edad; }
  const date& getFechaNacimiento() const { return FechaNacimiento; }
  const char* getRazonSocial() const { return RazonSocial; }
  /// The goods, sorted by their key.
  lista<cBien>& getBienes() { return Bienes; }

  /// As in every record, for the person alone; a row without birth date gives a default date.
  void Fill(int fila);
  /// Its own rules, then the address's Check.
  bool Check();
  /// Inserts the person, its address and its new goods in one transaction, tracing each step. A refused
  /// person or address passes in silence; a good throws.
  void AddNew();
  /// Rewrites the person, whether it was changed or not, its address if that was changed, and its goods, in
  /// one transaction, tracing each step. A refused address passes in silence; the others throw.
  void Update();
  /// As in every record, but a refusal passes in silence. Address and goods are the server's business.
  void Delete();
  /// Reads the person with the present key, if it is not 0, then its address and its goods. No row: isNew
  /// true and the rest as it was. A person without an address has a blank one, with isNew true in that half
  /// alone and nothing changed.
  void Find();

 private:
  friend Registro<cSujeto, cDomicilio>;

  auto Columnas() {
    return std::tie(SujetoID, Paterno, Materno, Nombre, Rfc, Curp, Edad, FechaNacimiento, RazonSocial);
  }
  long Clave() const { return SujetoID; }

  void AltaDeLoSuyo();
  void CambioDeLoSuyo();
  void LeeDomicilio();
  void LeeBienes();

  Sentencia SqlAddNew() const;
  Sentencia SqlUpdate() const;
  Sentencia SqlDelete() const;
  Sentencia SqlFind() const;
  /// The columns but the key, as insert and update send them.
  Sentencia SqlColumnas() const;

  long SujetoID;
  char Paterno[21];
  char Materno[21];
  char Nombre[51];
  char Rfc[17];
  char Curp[22];
  int Edad;
  date FechaNacimiento;
  char RazonSocial[61];
  BienesDeSujeto Bienes;
};
