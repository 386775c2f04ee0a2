// A month to pick a day from: heading, seven columns of days, and below them arrows for the month and the
// year before and after, with "Hoy" in the middle.
//
// Nobody is told of a choice: the owner asks for the date when the user is done.
#pragma once

#include <fx.h>

#include "widgets/jDate.h"

class FXCalendar : public FXVerticalFrame {
  FXDECLARE(FXCalendar)
 public:
  enum {
    ID_NEXTMONTH = FXVerticalFrame::ID_LAST,
    ID_PREVMONTH,
    ID_NEXTYEAR,
    ID_PREVYEAR,
    ID_DAYBUTTON,
    ID_TODAY,
    ID_LAST,
  };

  /// Shows today.
  explicit FXCalendar(FXComposite* parent, FXuint opts = 0, FXint x = 0, FXint y = 0, FXint w = 0,
                      FXint h = 0, FXint padLeft = DEFAULT_SPACING, FXint padRight = DEFAULT_SPACING,
                      FXint padTop = DEFAULT_SPACING, FXint padBottom = DEFAULT_SPACING,
                      FXint hSpacing = DEFAULT_SPACING, FXint vSpacing = DEFAULT_SPACING);

  /// Shows a date and the month in which it lies. Parts out of range run on: 31 February is 3 March, and it
  /// is March that shows. The marked day is the one that was passed, if that month has it: here the 31st.
  void setDate(int year, int month, int day);
  void getDate(int& year, int& month, int& day) const;

  // The buttons: the same day one month or year further, today, and the day on the button pressed.
  long nextMonth(FXObject*, FXSelector, void*);
  long prevMonth(FXObject*, FXSelector, void*);
  long nextYear(FXObject*, FXSelector, void*);
  long prevYear(FXObject*, FXSelector, void*);
  long today(FXObject*, FXSelector, void*);
  long dayButton(FXObject*, FXSelector, void*);

 protected:
  FXCalendar() {}

 private:
  static constexpr int celdas = 42;  // six weeks

  void ArmaDias();
  void ArmaBotones();
  void PonCelda(FXButton* celda, int dia);
  long Recorre(int anios, int meses);
  long Avisa();

  FXButton* btnDias[celdas] = {};
  FXButton* btnElegido = nullptr;  // the marked day; null when the month does not have it
  FXButton* btnHoy = nullptr;
  FXLabel* lblMes = nullptr;
  jDate fecha;
  FXColor colorElegido = FXRGB(255, 0, 0);
};
