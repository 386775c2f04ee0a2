// A text field that takes nothing but a date, day/month/year, or the beginning of one.
//
// A day of one or two digits, a month of at most two and a year of at most four, each "/" optional; ranges
// are not looked at, so that "99/99/9999" passes: a form validates its dates when it saves. What does not fit
// is refused with a beep while it is typed; erasing is never refused.
#pragma once

#include "widgets/CampoDeTexto.h"

class cFecha : public CampoDeTexto {
  FXDECLARE(cFecha)
 public:
  /// `owner` is kept and not used.
  cFecha(FXObject* owner, FXComposite* parent, FXint columns, FXObject* target, FXSelector selector,
         FXuint opts);

  /// 1 refuses the text that the field is about to take. The toolkit's own verdict, and with it the limit of
  /// columns, does not count.
  long onValidaFecha(FXObject*, FXSelector, void* texto);
  long onKeyPress(FXObject*, FXSelector, void*);

 protected:
  cFecha() {}

 private:
  FXObject* owner = nullptr;
};
