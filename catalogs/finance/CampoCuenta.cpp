#include "catalogs/finance/CampoCuenta.h"

#include "catalogs/finance/Busqueda_Window.h"

char sCuenta[55];

void DatoCuenta::Pon(const char* nuevo) {
  valor = nuevo;
  const int posicion = FindCuenta(nuevo);
  combo->setCurrentItem(posicion < combo->getNumItems() ? posicion : -1);
}

void DatoCuenta::Vacia() {
  valor.clear();
  combo->setCurrentItem(-1);
}

Cuentas::Cuentas(FXWindow* forma, FXSelector idCombo, FXSelector idBusca, const std::vector<Fila>& tabla)
    : forma(forma), idCombo(idCombo), idBusca(idBusca), tabla(tabla), datos(tabla.size()) {}

void Cuentas::Arma(FXMatrix* matriz, int primera, int ultima) {
  for (int cual = primera; cual <= ultima; ++cual) {
    new FXLabel(matriz, Etiqueta(cual), nullptr, LABEL_NORMAL | JUSTIFY_LEFT | LAYOUT_CENTER_Y);
    ArmaCampo(matriz, cual);
  }
}

void Cuentas::ArmaCampo(FXMatrix* matriz, int cual) {
  DatoCuenta& dato = datos[cual];
  auto* marco = new FXHorizontalFrame(matriz, LAYOUT_CENTER_Y | LAYOUT_FILL_X | LAYOUT_FILL_COLUMN, 0, 0, 0,
                                      0, 0, 0, 0, 0);
  dato.combo = campoCombo(marco, nullptr, 10, forma, idCombo + cual);
  dato.letra = LetraChica(dato.combo);
  new FXButton(marco, FXString::null, icono(forma->getApp(), iconos::find_icon), forma, idBusca + cual,
               FRAME_RAISED | FRAME_THICK | LAYOUT_CENTER_Y);
}

void Cuentas::Llena() {
  std::vector<FXString> renglones;
  for (const auto& [fila, cuenta] : Catalogo::Catalogo_Ctas) {
    CopiaTexto(sCuenta, RenglonDeCuenta(cuenta, 18, "  ").text());
    renglones.emplace_back(sCuenta);
  }
  // One combo box after the other: lists that grow by turns keep moving in memory.
  for (DatoCuenta& dato : datos)
    for (const FXString& renglon : renglones) dato.combo->appendItem(renglon);
}

long Cuentas::Elige(int cual) {
  DatoCuenta& dato = datos[cual];
  const auto cuenta = Catalogo::Catalogo_Ctas.find(dato.combo->getCurrentItem());
  if (cuenta != Catalogo::Catalogo_Ctas.end()) dato.valor = cuenta->second.getCuentaID();
  return 1;
}

long Cuentas::Busca(int cual) {
  if (!tabla[cual].muerta) datos[cual].Pon(EligeCuenta(forma, datos[cual].valor));
  return 1;
}
