// Where the keyboard goes in a form: the chain of Tab, the pages, the keys of every form, the buttons that
// give it back, the paragraph that lets Tab pass, the list in which a letter only looks, the
// grid that needs no mouse.
#pragma once

#include <fx.h>

#include <functional>
#include <utility>

/// The book of pages of a form. Tab goes from what is ahead of it into the page that is up, and from its last
/// field on to what follows.
class LibroDeForma : public FXTabBook {
  FXDECLARE(LibroDeForma)
 public:
  using FXTabBook::FXTabBook;
  long onFocusNext(FXObject*, FXSelector sel, void* evento);
  long onFocusPrev(FXObject*, FXSelector sel, void* evento);
  /// Brings up the next page, or the one before, round and round. The keyboard goes along if it was in a
  /// page.
  void Hojea(bool adelante, void* evento);

 protected:
  LibroDeForma() {}

 private:
  FXWindow* Pagina() const;
};

/// The frame that a form is built in: list, fields, buttons. Tab goes round in it, from the fields to the
/// buttons, to the list, and to the fields again; it never leaves for the buttons of the title bar, and no
/// piece keeps it. The keys of every form are here: F5, Ctrl with the page keys, and among child forms
/// Ctrl+Tab. Whenever the keyboard of an active form is nowhere (a menu was left, another form has closed, a
/// page went down) it goes back to the piece that had it.
class MarcoDeForma : public FXHorizontalFrame {
  FXDECLARE(MarcoDeForma)
 public:
  using FXHorizontalFrame::FXHorizontalFrame;
  long onFocusNext(FXObject*, FXSelector sel, void* evento);
  long onFocusPrev(FXObject*, FXSelector sel, void* evento);
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);
  long onUpdate(FXObject* emisor, FXSelector sel, void* datos);
  void killFocus() override;

  /// Its book of pages.
  void Lleva(LibroDeForma* suyo) { libro = suyo; }
  /// What F5 does.
  void AlReleer(std::function<void()> accion) { releer = std::move(accion); }
  /// Does it, if the form has anything to read again.
  void Relee() {
    if (releer) releer();
  }

 protected:
  MarcoDeForma() {}

 private:
  long Avanza(FXSelector sel, void* evento);
  long PasaDeForma(bool adelante);
  bool EstaActiva() const;
  void Recupera();

  LibroDeForma* libro = nullptr;
  std::function<void()> releer;
  FXWindow* ultimo = nullptr;  // had the keyboard when it left the form
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

/// A text of several lines that no tab gets into: the key goes to the next field, and those of a paste become
/// blanks.
class CampoParrafo : public FXText {
  FXDECLARE(CampoParrafo)
 public:
  using FXText::FXText;
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);
  long onCmdInserta(FXObject* emisor, FXSelector sel, void* texto);

 protected:
  CampoParrafo() {}
};

/// A list in which a letter moves the current row without choosing it: what was typed in the fields stays
/// until the user chooses a row, by an arrow, Enter or the mouse. A row that is wider than the list is shown
/// whole as a tip under the pointer.
class ListaDeForma : public FXList {
  FXDECLARE(ListaDeForma)
 public:
  using FXList::FXList;
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);
  long onQueryTip(FXObject* emisor, FXSelector sel, void* datos);

 protected:
  ListaDeForma() {}
};

/// A grid that only shows and is one piece to Tab. The arrows move about in it; the blank and Enter do what a
/// double click on the current cell does.
class TablaDeForma : public FXTable {
  FXDECLARE(TablaDeForma)
 public:
  using FXTable::FXTable;
  long onKeyPress(FXObject* emisor, FXSelector sel, void* evento);

 protected:
  TablaDeForma() {}
};

/// Gives a field the keyboard, a text selected as a whole so that typing replaces it. One that is not on the
/// screen yet does not get it.
void DaTeclado(FXWindow* campo);
