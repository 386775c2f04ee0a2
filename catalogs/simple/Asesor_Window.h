// The form of the advisers. Only the second program opens it.
#pragma once

#include "catalogs/simple/cAsesor.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"

extern cAsesor asesor;
extern char sAsesor[51];

class Asesor_Window : public Forma<Asesor_Window, FXMDIChild> {
  FXDECLARE(Asesor_Window)
 public:
  Asesor_Window(FXMDIClient* area, FXMDIMenu* menu);

  long onCmdAsesor(FXObject* emisor, FXSelector sel, void* datos) { return onCmdLista(emisor, sel, datos); }

 protected:
  Asesor_Window() {}

 private:
  friend Forma;
  static constexpr bool trazaErrores = true;

  cAsesor& Actual() { return asesor; }
  auto& Filas() { return Catalogo::Asesores; }
  void Relee() { catalogo.LoadAsesor(); }
  const char* Renglon(const cAsesor& fila) { return EnBorrador(sAsesor, fila.getNomAsesor()); }
  auto Datos() {
    return std::tuple(Liga(id, &cAsesor::getAsesorID, &cAsesor::setAsesorID),
                      Liga(nombre, &cAsesor::getNomAsesor, &cAsesor::setNomAsesor));
  }

  DatoEntero id;
  DatoTexto nombre;
};
