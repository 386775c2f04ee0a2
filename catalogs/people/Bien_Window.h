// The form of one good of a person. It edits the person's list and sends nothing: the save of the person
// does.
#pragma once

#include "catalogs/people/cSujeto.h"
#include "framework/CampoFecha.h"
#include "framework/Forma.h"

extern cBien bien;

class Bien_Window : public Forma<Bien_Window, FXDialogBox, SinBuscar> {
  FXDECLARE(Bien_Window)
 public:
  enum { ID_BORRAR = Forma::ID_AGREGAR + 1, ID_CALENDARIO, ID_SALIR, ID_LAST };

  /// Edits the good at place `indice` of the list of `persona`; a new one when there is none at that place,
  /// which -1 asks for.
  Bien_Window(FXWindow* duenio, cSujeto* persona, int indice);

  /// &Aceptar: puts the good into the list and closes. One at a place that the list does not have is dropped.
  long onCmdAgregar(FXObject*, FXSelector, void*);
  /// &Borrar: asks, marks the good to be deleted when its person is saved, and closes.
  long onCmdBorrar(FXObject*, FXSelector, void*);
  long onCmdCalendario(FXObject*, FXSelector, void*);

 protected:
  Bien_Window() {}

 private:
  friend Forma;
  void ArmaGenerales(FXMatrix* matriz);
  void ArmaValor(FXMatrix* matriz);
  void ArmaBotones();
  void Comienza();
  long Cierra();

  cBien& Actual() { return bien; }
  auto Datos() {
    return std::tuple(Liga(propietario, &cBien::getPropietario, &cBien::setPropietario),
                      Liga(descripcion, &cBien::getDescriBien, &cBien::setDescriBien),
                      Liga(caracteristicas, &cBien::getCaracteristicas, &cBien::setCaracteristicas),
                      Liga(registroPublico, &cBien::getRegistroPublico, &cBien::setRegistroPublico),
                      Liga(valorComercial, &cBien::getValorComercial, &cBien::setValorComercial),
                      Liga(valorFiscal, &cBien::getValorFiscal, &cBien::setValorFiscal),
                      Liga(valorCatastro, &cBien::getValorCatastro, &cBien::setValorCatastro),
                      Liga(datosHipoteca, &cBien::getDatosHipoteca, &cBien::setDatosHipoteca),
                      Liga(relacionGarantia, &cBien::getRelacionGarantia, &cBien::setRelacionGarantia),
                      Liga(adjudicado, &cBien::getAdjudicado, &cBien::setAdjudicado),
                      Liga(fechaAdjudicado, &cBien::getFechaAdjudicado, &cBien::setFechaAdjudicado));
  }

  cSujeto* persona = nullptr;
  int indice = -1;
  DatoTexto propietario;
  DatoTexto descripcion;
  DatoParrafo caracteristicas;
  DatoParrafo registroPublico;
  DatoParrafo datosHipoteca;
  DatoReal valorComercial;
  DatoReal valorFiscal;
  DatoReal valorCatastro;
  DatoReal relacionGarantia;
  DatoCasilla<FXString> adjudicado{"S", "N"};
  DatoFechaCorta fechaAdjudicado;
};
