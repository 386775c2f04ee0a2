// A text file on the screen, without what is in it for the printer.
#pragma once

#include <fx.h>

#include <memory>

/// To be run with execute, in the screen's centre; Esc closes it. The text can be edited and saved only while
/// IsEditable is true.
class Preview_Window : public FXDialogBox {
  FXDECLARE(Preview_Window)
 public:
  enum {
    ID_GUARDA = FXDialogBox::ID_LAST,
    ID_SALIR,
    ID_LAST,
  };

  /// A file that cannot be opened, or is too large, is told in a box and leaves the dialog empty.
  Preview_Window(FXWindow* duenio, const FXString& archivo);

  /// F10: writes the text as it stands to his.txt in the working directory, if it may be edited.
  long onCmdGuarda(FXObject*, FXSelector, void*);
  /// Refuses a close request from outside.
  long onCmdQuit(FXObject*, FXSelector, void*) { return 1; }

  /// The keys that scroll go to the text.
  void create() override {
    FXDialogBox::create();
    texto->setFocus();
  }

 protected:
  Preview_Window() {}

 private:
  void Lee(const FXString& archivo);

  FXText* texto = nullptr;
  std::unique_ptr<FXFont> letra;
};
