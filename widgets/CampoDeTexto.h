// The text field of the program: the toolkit's, with three manners of its own.
//
// - What it refuses can be seen: it turns red and stays so until the user goes back into what he typed, or
//   the program fills it anew. The toolkit only rings, and a comma left out of "18,90" makes it 1890.
// - A paste that it refuses leaves it as it was, its selection included.
// - Tabs and line ends that a paste brings along become blanks.
#pragma once

#include <fx.h>

class CampoDeTexto : public FXTextField {
  FXDECLARE(CampoDeTexto)
 public:
  using FXTextField::FXTextField;

  long onVerify(FXObject* emisor, FXSelector sel, void* texto);
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);
  long onLeftBtnPress(FXObject* emisor, FXSelector sel, void* evento);
  long onFocusIn(FXObject* emisor, FXSelector sel, void* evento);
  long onCmdPega(FXObject*, FXSelector, void*);
  long onCmdInserta(FXObject* emisor, FXSelector sel, void* texto);

  /// Did the field refuse something since the user last looked after it?
  bool Rechazo() const { return rechazo; }
  /// The field, if it is one of these, is as good as new.
  static void Olvida(FXTextField* campo);

 protected:
  CampoDeTexto() {}
  /// Shows that something was refused, and answers so to the toolkit.
  long Rechaza();

 private:
  void Olvida();

  bool rechazo = false;
  FXColor fondo = 0;  // its colour while nothing is refused
};
