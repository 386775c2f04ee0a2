// The goods of a person: the person is picked in the search of persons or of members, his goods are opened
// one by one, and all of it is saved with the person.
#pragma once

#include <fx.h>

#include "catalogs/people/cSujeto.h"

class Bienes_Window : public FXDialogBox {
  FXDECLARE(Bienes_Window)
 public:
  enum {
    ID_PERSONA = FXDialogBox::ID_LAST,
    ID_SOCIO,
    ID_LISTA,
    ID_NUEVO,
    ID_ABRIR,
    ID_GUARDAR,
    ID_SALIR,
    ID_LAST,
  };

  explicit Bienes_Window(FXWindow* duenio);

  /// &Persona: the search, and the goods of who was picked in it.
  long onCmdPersona(FXObject*, FXSelector, void*);
  /// &Socio: the search of members, and the goods of the person who is the one picked.
  long onCmdSocio(FXObject*, FXSelector, void*);
  /// &Nuevo: the form of a new good.
  long onCmdNuevo(FXObject*, FXSelector, void*);
  /// A&brir, and a double click: the form of the good at the current row.
  long onCmdAbrir(FXObject*, FXSelector, void*);
  /// &Aceptar: saves the person with the goods, and reads them again.
  long onCmdGuardar(FXObject*, FXSelector, void*);
  /// Goods and saving need a person.
  long onUpdConPersona(FXObject* emisor, FXSelector, void*);
  long onCmdQuit(FXObject*, FXSelector, void*) { return 1; }

 protected:
  Bienes_Window() {}

 private:
  void ArmaBotones(FXComposite* columna);
  void Edita(int indice);
  void Muestra();
  void Lee(long sujetoID);
  template <class Buscador, class SuPersona>
  long Busca(SuPersona suPersona);

  cSujeto persona;
  bool hayPersona = false;
  bool pendiente = false;  // something was changed since the last save
  FXLabel* nombre = nullptr;
  FXList* lstBienes = nullptr;
  FXLabel* aviso = nullptr;
};
