#include "widgets/cFecha.h"

namespace {

/// Steps over at most `maximo` digits and answers how many there were.
int SaltaDigitos(const char*& texto, int maximo) {
  int cuantos = 0;
  for (; cuantos < maximo && Ascii::isDigit(*texto); ++texto) ++cuantos;
  return cuantos;
}

void SaltaDiagonal(const char*& texto) {
  if (*texto == '/') ++texto;
}

bool PareceFecha(const char* texto) {
  if (SaltaDigitos(texto, 2) == 0) return false;
  SaltaDiagonal(texto);
  SaltaDigitos(texto, 2);
  SaltaDiagonal(texto);
  SaltaDigitos(texto, 4);
  return *texto == '\0';
}

}  // namespace

FXDEFMAP(cFecha)
cFechaMap[] = {
    FXMAPFUNC(SEL_VERIFY, 0, cFecha::onValidaFecha),
    FXMAPFUNC(SEL_KEYPRESS, 0, cFecha::onKeyPress),
};

FXIMPLEMENT(cFecha, CampoDeTexto, cFechaMap, ARRAYNUMBER(cFechaMap))

cFecha::cFecha(FXObject* dueno, FXComposite* parent, FXint columns, FXObject* target, FXSelector selector,
               FXuint opts)
    : CampoDeTexto(parent, columns, target, selector, opts, 0, 0, 0, 0, 2, 2, 2, 2), owner(dueno) {}

long cFecha::onValidaFecha(FXObject* sender, FXSelector selector, void* texto) {
  FXTextField::onVerify(sender, selector, texto);
  return PareceFecha(static_cast<const char*>(texto)) ? 0 : Rechaza();
}

long cFecha::onKeyPress(FXObject* sender, FXSelector selector, void* evento) {
  return CampoDeTexto::onKeyPress(sender, selector, evento);
}
