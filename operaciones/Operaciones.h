// The main window of the second program: that of the first with another menu. Settings, login, status line
// and clock are the first one's own.
#pragma once

#include "app/Caja.h"

class Operaciones : public Caja {
  FXDECLARE(Operaciones)
 public:
  /// The panes and their options in the order of the menu, far above the messages of the first program, whose
  /// menu may grow.
  enum {
    ID_PANEL_CIERRE = 2000,
    ID_PRECIERRE,
    ID_REPORTE_PERSONAS,
    ID_PANEL_ACTIVOS,
    ID_ACTIVOS,
    ID_DEPRECIACIONES,
    ID_PANEL_PRESTAMOS,
    ID_CLASIFICACIONES,
    ID_PANEL_PERSONAS,
    ID_ASESORES,
    ID_GRUPOS_DE_SOCIOS,
    ID_BIENES,
    ID_PANEL_GEOGRAFIA,
    ID_ESTADOS,
    ID_CIUDADES,
    ID_TIPOS_DE_ASENTAMIENTO,
    ID_COLONIAS,
    ID_PANEL_CUENTAS,
    ID_CUENTAS,
    ID_PANEL_CONSULTAS,
    ID_LISTAS,
    ID_BITACORA,
    ID_PERMISOS,
    ID_TABLERO,
    ID_FIN,
  };

  explicit Operaciones(FXApp* app);
  ~Operaciones() override;

  /// Asks the server for the modules of the option and opens its window, or says that there is no access.
  long onCmdOpcion(FXObject*, FXSelector mensaje, void*);

  /// Opens a child window, or brings the one that is open to the front: its form works on one record.
  template <class Ventana>
  Ventana* AbreHija() {
    for (FXWindow* hija = mdiClient->getFirst(); hija != nullptr; hija = hija->getNext()) {
      if (auto* abierta = dynamic_cast<Ventana*>(hija)) {
        mdiClient->setActiveChild(abierta);
        return abierta;
      }
    }
    auto* nueva = new Ventana(mdiClient, mdiMenu);
    nueva->create();
    return nueva;
  }

 protected:
  Operaciones() {}

 private:
  void ArmaMenu();

  FXMenuPane* paneles[8] = {};
};
