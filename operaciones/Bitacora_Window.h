// The log: who changed what and when, a page of 500 lines at a time, and what a row held before and after.
#pragma once

#include <string>
#include <vector>

#include "framework/CampoFecha.h"
#include "framework/Foco.h"
#include "operaciones/MarcoDeTabla.h"

class Bitacora_Window : public FXMDIChild {
  FXDECLARE(Bitacora_Window)
 public:
  enum {
    ID_BUSCAR = FXMDIChild::ID_LAST,
    ID_SIGUIENTES,
    ID_ANTERIORES,
    ID_DESDE,
    ID_HASTA,
    ID_TABLA,
    ID_LAST,
  };

  Bitacora_Window(FXMDIClient* area, FXMDIMenu* menu);

  /// The user can type at once.
  void create() override;
  /// The newest lines that pass the filter.
  long onCmdBuscar(FXObject*, FXSelector, void*);
  /// The page behind this one, which is older, and the one ahead of it.
  long onCmdSiguientes(FXObject*, FXSelector, void*);
  long onCmdAnteriores(FXObject*, FXSelector, void*);
  long onUpdSiguientes(FXObject* emisor, FXSelector, void*);
  long onUpdAnteriores(FXObject* emisor, FXSelector, void*);
  /// Asks for this page again.
  long onRelee(FXObject*, FXSelector, void*);
  /// The line that is current now: what its row held.
  long onRenglon(FXObject*, FXSelector, void*);
  long onCmdFecha(FXObject*, FXSelector sel, void*);

 protected:
  Bitacora_Window() {}

 private:
  void ArmaFiltros(FXComposite* padre);
  void Pide(const std::string& siguiente);
  void MuestraDetalle();
  FXString Filtros() const;

  DatoFecha desde;
  DatoFecha hasta;
  DatoTexto usuario;
  DatoTexto tabla;
  DatoTexto clave;
  FXComboBox* operacion = nullptr;
  MarcoDeTabla* marco = nullptr;
  ListaDeTabla* detalle = nullptr;
  FXString filtros;                  // as they were when the page was asked for
  std::vector<std::string> lineas;   // the numbers of those of this page
  std::vector<std::string> paginas;  // the line ahead of each page so far, the last one being this page's
};
