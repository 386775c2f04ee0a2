// The date field: a text field that takes a date, a button that opens the calendar on it, and the value.
//
//   DatoFecha fecha;
//   ...
//   campoFecha(matriz, "Fecha:", fecha, this, ID_CALENDARIO);
//   ...
//   long onCmdCalendario(FXObject*, FXSelector, void*) { return fecha.Elige(this); }
//
// A form with several dates numbers their buttons one after the other and picks the date in its handler.
#pragma once

#include "framework/Campos.h"
#include "widgets/Calendario_Window.h"
#include "widgets/date.h"

/// A date as the screen writes it, dd/mm/yyyy, or the beginning of one.
struct DatoFecha : DatoTexto {
  /// Shows a date. That of an empty text empties the field: a blank would be in the way of what is typed
  /// there.
  void Pon(const date& nueva) { DatoTexto::Pon(FXString(nueva.AsDMY()).trim()); }
  /// A text is read by the places of dd/mm/yyyy, and one without the zeros between its slashes, where these
  /// give a year of four digits.
  date Valor() const {
    const date entreDiagonales = FechaDeTexto(valor);
    return valor.length() < 10 && entreDiagonales.year() >= 1000 ? entreDiagonales : date(valor.text());
  }
  /// What the handler of the button does: the round trip through the calendar, which writes the date back in
  /// `formato` also when it was cancelled.
  long Elige(FXWindow* duenio, FormatoFecha formato = FormatoFecha::Ceros) {
    DatoTexto::Pon(EligeFecha(duenio, valor, formato));
    return 1;
  }
};

/// The same for a form that writes day and month without zeros: what is typed is read between its slashes.
/// Nothing typed is the date of a blank record.
struct DatoFechaCorta : DatoTexto {
  void Pon(const date& nueva) { DatoTexto::Pon(TextoDeFecha(nueva, FormatoFecha::Corto)); }
  date Valor() const { return valor.empty() ? date() : FechaDeTexto(valor); }
  long Elige(FXWindow* duenio) {
    DatoTexto::Pon(EligeFecha(duenio, valor, FormatoFecha::Corto));
    return 1;
  }
};

/// The row of a date: a field of 10 columns, and a button with the calendar that sends `mensaje` to
/// `destino`. A null label makes the field and its button alone.
void campoFecha(FXMatrix* matriz, const char* etiqueta, DatoTexto& dato, FXObject* destino,
                FXSelector mensaje);
