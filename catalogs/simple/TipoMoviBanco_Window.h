// The form of the kinds of movement of bank accounts.
#pragma once

#include "catalogs/simple/cTipoMoviBanco.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cTipoMoviBanco tipomovibanco;
extern char sTipoMoviBanco[31];

class TipoMoviBanco_Window : public Forma<TipoMoviBanco_Window, FXMDIChild> {
  FXDECLARE(TipoMoviBanco_Window)
 public:
  enum { ID_OPERACION = ID_LISTA + 1, ID_SALIR, ID_LAST };

  TipoMoviBanco_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdTipoMoviBanco(FXObject* emisor, FXSelector sel, void* datos) {
    return onCmdLista(emisor, sel, datos);
  }
  /// The operation is what the user checks, and nothing until he does.
  long onCmdOperacionSumaResta(FXObject*, FXSelector, void*);

  /// Shows the operation of the record in the check button and leaves that of the form alone: what is saved
  /// is the operation that was pressed last since Clear, be it for another record.
  void Read();
  void Update();
  void Clear();

 protected:
  TipoMoviBanco_Window() {}

 private:
  friend Forma;
  cTipoMoviBanco& Actual() { return tipomovibanco; }
  auto& Filas() { return Catalogo::TipoMoviBancos; }
  void Relee() { catalogo.LoadTipoMoviBancos(); }
  const char* Renglon(const cTipoMoviBanco& fila) {
    return EnBorrador(sTipoMoviBanco, fila.getDescriTipoMoviBanco());
  }
  auto Datos() {
    return std::tuple(
        Liga(id, &cTipoMoviBanco::getTipoMoviBancoID, &cTipoMoviBanco::setTipoMoviBancoID),
        Liga(descripcion, &cTipoMoviBanco::getDescriTipoMoviBanco, &cTipoMoviBanco::setDescriTipoMoviBanco));
  }

  DatoTexto id;
  DatoTexto descripcion;
  FXString operacion;  // "+", "-", or empty
  FXCheckButton* chkIncrementa = nullptr;
};
