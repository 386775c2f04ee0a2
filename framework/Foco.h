// Where the keyboard goes in a form: the chain of Tab, the buttons that give it back, the paragraph that lets
// Tab pass, the list in which a letter only looks.
#pragma once

#include <fx.h>

/// The frame that a form is built in: list, fields, buttons. Tab goes round in it, from the fields to the
/// buttons, to the list, and to the fields again; it never leaves for the buttons of the title bar.
class MarcoDeForma : public FXHorizontalFrame {
  FXDECLARE(MarcoDeForma)
 public:
  using FXHorizontalFrame::FXHorizontalFrame;
  long onFocusNext(FXObject*, FXSelector sel, void* evento);
  long onFocusPrev(FXObject*, FXSelector sel, void* evento);

 protected:
  MarcoDeForma() {}
};

/// A button that gives the keyboard back to the field that had it, once its command is done and has not put
/// the keyboard elsewhere. Its command must not close the form.
class BotonDeForma : public FXButton {
  FXDECLARE(BotonDeForma)
 public:
  using FXButton::FXButton;
  void setFocus() override;
  long onLeftBtnRelease(FXObject* emisor, FXSelector sel, void* evento);
  long onKeyRelease(FXObject* emisor, FXSelector sel, void* evento);
  long onHotKeyRelease(FXObject* emisor, FXSelector sel, void* evento);

 protected:
  BotonDeForma() {}

 private:
  long Devuelve(long atendido);

  FXWindow* anterior = nullptr;  // had the keyboard when the user turned to the buttons
};

/// A text of several lines in which Tab goes to the next field.
class CampoParrafo : public FXText {
  FXDECLARE(CampoParrafo)
 public:
  using FXText::FXText;
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);

 protected:
  CampoParrafo() {}
};

/// A list in which a letter moves the current row without choosing it: what was typed in the fields stays
/// until the user chooses a row, by an arrow, Enter or the mouse.
class ListaDeForma : public FXList {
  FXDECLARE(ListaDeForma)
 public:
  using FXList::FXList;
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);

 protected:
  ListaDeForma() {}
};

/// Gives a field the keyboard, a text selected as a whole so that typing replaces it. One that is not on the
/// screen yet does not get it.
void DaTeclado(FXWindow* campo);
