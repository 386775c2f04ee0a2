// The lists: any catalogue of the cache as a table.
#pragma once

#include "framework/Foco.h"
#include "operaciones/Catalogos.h"
#include "operaciones/MarcoDeTabla.h"

class Listas_Window : public FXMDIChild {
  FXDECLARE(Listas_Window)
 public:
  enum { ID_CATALOGO = FXMDIChild::ID_LAST, ID_TABLA, ID_ELIGE, ID_LAST };

  Listas_Window(FXMDIClient* area, FXMDIMenu* menu);
  ~Listas_Window() override;

  /// The user can choose at once.
  void create() override;
  /// Shows the catalogue chosen, as the cache has it; one that it has nothing of is read first.
  long onCmdCatalogo(FXObject*, FXSelector, void*);
  /// Reads it from the server.
  long onRelee(FXObject*, FXSelector, void*);
  /// Opens the form of the row by the option of the menu, where there is one.
  long onRenglon(FXObject*, FXSelector, void*);
  /// Once it is open: shows the row in it.
  long onElige(FXObject*, FXSelector, void*);

 protected:
  Listas_Window() {}

 private:
  const Catalogado* Elegido() const;
  void Muestra();

  const Catalogado* abierto = nullptr;  // whose form was asked for
  std::vector<std::string> renglon;
  FXList* catalogos = nullptr;
  MarcoDeTabla* marco = nullptr;
};
