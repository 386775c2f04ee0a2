#include "widgets/FXCalendar.h"

#include <cstdlib>

#include "icons/Icono.h"
#include "icons/iconos.h"

namespace {

constexpr int diasDeSemana = 7;

FXString TextoDeHoy() {
  const jDate hoy;
  return FXStringFormat("%s %d, %d", jDate::monthName(hoy.month()), hoy.day(), hoy.year());
}

}  // namespace

FXDEFMAP(FXCalendar)
FXCalendarMap[] = {
    FXMAPFUNC(SEL_COMMAND, FXCalendar::ID_NEXTMONTH, FXCalendar::nextMonth),
    FXMAPFUNC(SEL_COMMAND, FXCalendar::ID_PREVMONTH, FXCalendar::prevMonth),
    FXMAPFUNC(SEL_COMMAND, FXCalendar::ID_NEXTYEAR, FXCalendar::nextYear),
    FXMAPFUNC(SEL_COMMAND, FXCalendar::ID_PREVYEAR, FXCalendar::prevYear),
    FXMAPFUNC(SEL_COMMAND, FXCalendar::ID_TODAY, FXCalendar::today),
    FXMAPFUNC(SEL_COMMAND, FXCalendar::ID_DAYBUTTON, FXCalendar::dayButton),
};

FXIMPLEMENT(FXCalendar, FXVerticalFrame, FXCalendarMap, ARRAYNUMBER(FXCalendarMap))

FXCalendar::FXCalendar(FXComposite* parent, FXuint opts, FXint x, FXint y, FXint w, FXint h, FXint padLeft,
                       FXint padRight, FXint padTop, FXint padBottom, FXint hSpacing, FXint vSpacing)
    : FXVerticalFrame(parent, opts, x, y, w, h, padLeft, padRight, padTop, padBottom, hSpacing, vSpacing) {
  lblMes = new FXLabel(this, FXString::null, nullptr, LABEL_NORMAL | LAYOUT_FILL_X);
  new FXHorizontalSeparator(this, SEPARATOR_GROOVE | LAYOUT_FILL_X, 0, 0, 0, 0, 1, 1, 0, 0);
  ArmaDias();
  ArmaBotones();
  setDate(fecha.year(), fecha.month(), fecha.day());
}

void FXCalendar::ArmaDias() {
  constexpr FXuint llena = LAYOUT_FILL_X | LAYOUT_FILL_Y | LAYOUT_FILL_COLUMN | LAYOUT_FILL_ROW;
  // Rows of one height: an empty week keeps its place, and the dialog its size when the month changes.
  auto* matriz = new FXMatrix(
      this, diasDeSemana,
      MATRIX_BY_COLUMNS | PACK_UNIFORM_WIDTH | PACK_UNIFORM_HEIGHT | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0,
      0, 0, 0, 0, 0, 0, 0);
  for (int i = 0; i < diasDeSemana; ++i) {
    auto* etiqueta = new FXLabel(matriz, jDate::dayName(i), nullptr, LABEL_NORMAL | llena);
    if (i == 0 || i == diasDeSemana - 1) etiqueta->setTextColor(FXRGB(100, 100, 100));
  }
  for (FXButton*& celda : btnDias)
    celda = new FXButton(matriz, FXString::null, nullptr, this, ID_DAYBUTTON, FRAME_NONE | llena);
}

void FXCalendar::ArmaBotones() {
  auto* fila = new FXHorizontalFrame(this, PACK_UNIFORM_WIDTH | PACK_UNIFORM_HEIGHT | LAYOUT_FILL_X, 0, 0, 0,
                                     0, 0, 0, 0, 0, 4, 4);
  const auto boton = [&](const FXString& texto, FXIcon* icono, FXSelector mensaje, FXuint lado) {
    return new FXButton(fila, texto, icono, this, mensaje, BUTTON_NORMAL | LAYOUT_CENTER_Y | lado);
  };
  const auto flecha = [&](const char* texto, const unsigned char* dibujo, FXSelector mensaje, FXuint lado) {
    boton(texto, iconoGif(getApp(), dibujo), mensaje, lado);
  };
  flecha("\tMes Anterior", iconos::leftarrow1_gif, ID_PREVMONTH, LAYOUT_LEFT);
  flecha("\tAño Anterior", iconos::leftarrow2_gif, ID_PREVYEAR, LAYOUT_LEFT);
  flecha("\tMes Siguiente", iconos::rightarrow1_gif, ID_NEXTMONTH, LAYOUT_RIGHT);
  flecha("\tAño Siguiente", iconos::rightarrow2_gif, ID_NEXTYEAR, LAYOUT_RIGHT);
  btnHoy = boton("Hoy\t" + TextoDeHoy(), nullptr, ID_TODAY, LAYOUT_FILL_X);
}

void FXCalendar::setDate(int year, int month, int day) {
  fecha.setDate(year, month, day);
  lblMes->setText(FXStringFormat("%s %d", jDate::monthName(fecha.month()), fecha.year()));

  // The week starts on Sunday here and on Monday in jDate. A month whose 1st is a Sunday leaves a whole row
  // empty.
  const jDate primero(fecha.year(), fecha.month(), 1);
  const int vacias = primero.dayOfWeek() + 1;
  const int dias = primero.daysInMonth();
  btnElegido = day >= 1 && day <= dias ? btnDias[vacias + day - 1] : nullptr;
  for (int i = 0; i < celdas; ++i) {
    const int dia = i - vacias + 1;
    PonCelda(btnDias[i], dia >= 1 && dia <= dias ? dia : 0);
  }
  btnHoy->setTipText(TextoDeHoy());
}

/// Gives a cell its day; 0 leaves it empty.
void FXCalendar::PonCelda(FXButton* celda, int dia) {
  if (dia == 0) {
    celda->setText(FXString::null);
    celda->disable();
  } else {
    celda->setText(FXStringVal(dia));
    celda->enable();
    celda->setTextColor(celda == btnElegido ? colorElegido : FXRGB(0, 0, 0));
  }
}

void FXCalendar::getDate(int& year, int& month, int& day) const {
  year = fecha.year();
  month = fecha.month();
  day = fecha.day();
}

long FXCalendar::nextMonth(FXObject*, FXSelector, void*) { return Recorre(0, 1); }

long FXCalendar::prevMonth(FXObject*, FXSelector, void*) { return Recorre(0, -1); }

long FXCalendar::nextYear(FXObject*, FXSelector, void*) { return Recorre(1, 0); }

long FXCalendar::prevYear(FXObject*, FXSelector, void*) { return Recorre(-1, 0); }

long FXCalendar::today(FXObject*, FXSelector, void*) {
  fecha.today();
  return Recorre(0, 0);
}

long FXCalendar::dayButton(FXObject* boton, FXSelector, void*) {
  const int dia = atoi(static_cast<FXButton*>(boton)->getText().text());
  if (dia != 0) setDate(fecha.year(), fecha.month(), dia);
  return Avisa();
}

long FXCalendar::Recorre(int anios, int meses) {
  setDate(fecha.year() + anios, fecha.month() + meses, fecha.day());
  return Avisa();
}

/// Every command ends with a message to the application, which does not handle it.
long FXCalendar::Avisa() {
  getApp()->handle(this, FXSEL(SEL_COMMAND, ID_LAST), nullptr);
  return 1;
}
