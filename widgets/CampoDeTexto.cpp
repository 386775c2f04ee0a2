#include "widgets/CampoDeTexto.h"

#include <fxkeys.h>

#include <FX88591Codec.h>

#include <cstring>

namespace {

constexpr FXColor rojo = FXRGB(255, 190, 190);

/// Does the key only add to what was typed, or leave the field?
bool SigueAdelante(const FXEvent& tecla) {
  switch (tecla.code) {
    case KEY_Tab:
    case KEY_ISO_Left_Tab:
    case KEY_Shift_L:
    case KEY_Shift_R:
      return true;
    default:
      return static_cast<FXuchar>(tecla.text[0]) >= ' ' && (tecla.state & (CONTROLMASK | ALTMASK)) == 0 &&
             tecla.code != KEY_BackSpace && tecla.code != KEY_Delete;
  }
}

}  // namespace

FXDEFMAP(CampoDeTexto)
CampoDeTextoMap[] = {
    FXMAPFUNC(SEL_VERIFY, 0, CampoDeTexto::onVerify),
    FXMAPFUNC(SEL_KEYPRESS, 0, CampoDeTexto::onKeyPress),
    FXMAPFUNC(SEL_LEFTBUTTONPRESS, 0, CampoDeTexto::onLeftBtnPress),
    FXMAPFUNC(SEL_FOCUSIN, 0, CampoDeTexto::onFocusIn),
    FXMAPFUNC(SEL_COMMAND, FXTextField::ID_PASTE_SEL, CampoDeTexto::onCmdPega),
    FXMAPFUNC(SEL_COMMAND, FXTextField::ID_INSERT_STRING, CampoDeTexto::onCmdInserta),
};
FXIMPLEMENT(CampoDeTexto, FXTextField, CampoDeTextoMap, ARRAYNUMBER(CampoDeTextoMap))

long CampoDeTexto::onVerify(FXObject* emisor, FXSelector sel, void* texto) {
  return FXTextField::onVerify(emisor, sel, texto) != 0 ? Rechaza() : 0;
}

long CampoDeTexto::onKeyPress(FXObject* emisor, FXSelector sel, void* evento) {
  if (!SigueAdelante(*static_cast<FXEvent*>(evento))) Olvida();
  return FXTextField::onKeyPress(emisor, sel, evento);
}

long CampoDeTexto::onLeftBtnPress(FXObject* emisor, FXSelector sel, void* evento) {
  Olvida();
  return FXTextField::onLeftBtnPress(emisor, sel, evento);
}

long CampoDeTexto::onFocusIn(FXObject* emisor, FXSelector sel, void* evento) {
  Olvida();
  return FXTextField::onFocusIn(emisor, sel, evento);
}

/// The toolkit's own deletes the selection ahead of a text that may then be refused.
long CampoDeTexto::onCmdPega(FXObject*, FXSelector, void*) {
  FXString texto;
  if (!isEditable()) {
    getApp()->beep();
  } else if (getDNDData(FROM_CLIPBOARD, utf8Type, texto)) {
    handle(this, FXSEL(SEL_COMMAND, ID_INSERT_STRING), const_cast<FXchar*>(texto.text()));
  } else if (getDNDData(FROM_CLIPBOARD, stringType, texto)) {
    const FXString utf8 = FX88591Codec().mb2utf(texto);
    handle(this, FXSEL(SEL_COMMAND, ID_INSERT_STRING), const_cast<FXchar*>(utf8.text()));
  }
  return 1;
}

long CampoDeTexto::onCmdInserta(FXObject* emisor, FXSelector sel, void* texto) {
  FXString limpio = static_cast<const FXchar*>(texto);
  // A cell of a spreadsheet ends its line.
  while (!limpio.empty() && strchr("\t\n\r", limpio[limpio.length() - 1]) != nullptr)
    limpio.trunc(limpio.length() - 1);
  for (const char* signo = "\t\n\r"; *signo != 0; ++signo) limpio.substitute(*signo, ' ');
  return FXTextField::onCmdInsertString(emisor, sel, const_cast<FXchar*>(limpio.text()));
}

void CampoDeTexto::Olvida(FXTextField* campo) {
  if (auto* suyo = dynamic_cast<CampoDeTexto*>(campo)) suyo->Olvida();
}

long CampoDeTexto::Rechaza() {
  if (!rechazo) {
    rechazo = true;
    fondo = getBackColor();
    setBackColor(rojo);
  }
  return 1;
}

void CampoDeTexto::Olvida() {
  if (!rechazo) return;
  rechazo = false;
  setBackColor(fondo);
}
