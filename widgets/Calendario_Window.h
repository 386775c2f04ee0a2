// The calendar as a dialog: the user picks a date, and gFecha has it when the dialog was accepted.
//
// A form that offers a calendar calls EligeFecha with the text of its date field.
#pragma once

#include <fx.h>

#include "widgets/date.h"

class FXCalendar;

/// The date picked: a session variable (app/sesion.h), declared here too because no widget knows the session.
extern date gFecha;

class Calendario_Window : public FXDialogBox {
  FXDECLARE(Calendario_Window)
 public:
  enum {
    ID_ACEPTAR = FXDialogBox::ID_LAST,
    ID_QUIT,
    ID_LAST,
  };

  /// Opens on `d`, or on today when that is no valid date.
  Calendario_Window(FXWindow* owner, const date& d);

  /// The date shown into gFecha, whose texts stay as they are until it is assigned.
  long onCmdAceptar(FXObject*, FXSelector, void*);
  /// Refuses a close request from outside.
  long onCmdQuit(FXObject*, FXSelector, void*) { return 1; }

 protected:
  Calendario_Window() {}

 private:
  void ArmaBotones(FXComposite* padre);

  FXCalendar* calendario = nullptr;
  FXButton* btnAceptar = nullptr;
  FXButton* btnCerrar = nullptr;
};

/// Day, month and year between the slashes of what a date field holds; pieces that are missing are 0. The
/// texts of the date are not those of its pieces.
date PiezasDeFecha(const FXString& texto);

/// How a date goes back into its field: with zeros (dd/mm/yyyy), with blanks ( d/ m/yyyy) or neither.
enum class FormatoFecha { Ceros, Blancos, Corto };

/// What the calendar button of a date field does: takes the field's text, day, month and year between
/// slashes, as gFecha, runs the dialog at the cursor, and answers gFecha in `formato`. A dialog that is
/// cancelled answers the field's own date; pieces that are missing are 0.
FXString EligeFecha(FXWindow* owner, const FXString& texto, FormatoFecha formato = FormatoFecha::Ceros);
