// Charts of accounts of any size, and the bare combo box that the forms with accounts are measured against.
#pragma once

#include <fx.h>

#include <memory>
#include <string>
#include <vector>

#include "catalogs/finance/Busqueda_Window.h"
#include "db/Catalogo.h"

inline void PonCarta(int cuantas) {
  Catalogo::Catalogo_Ctas.clear();
  cCatalogo_Ctas cuenta;
  for (int fila = 0; fila < cuantas; ++fila) {
    cuenta.setCuentaID((std::to_string(100000 + fila) + "-00-00-00-0000").c_str());
    cuenta.setCuentaNombre(("Depósitos de ahorro: " + std::to_string(fila)).c_str());
    Catalogo::Catalogo_Ctas.emplace(fila, cuenta);
  }
}

/// The items of the present chart.
inline std::vector<FXString> Textos() {
  std::vector<FXString> textos;
  for (const auto& [fila, cuenta] : Catalogo::Catalogo_Ctas)
    textos.push_back(RenglonDeCuenta(cuenta, 18, "  "));
  return textos;
}

/// A combo box with those items in the letters of the forms; gives its font, which has to outlive it.
inline std::unique_ptr<FXFont> ComboLlano(FXComposite* padre, const std::vector<FXString>& textos) {
  auto* combo = new FXComboBox(padre, 2, nullptr, 0, COMBOBOX_STATIC | LAYOUT_FILL_X);
  combo->setNumVisible(10);
  auto letra = std::make_unique<FXFont>(padre->getApp(), "helvica", 8);
  combo->setFont(letra.get());
  for (const FXString& texto : textos) combo->appendItem(texto);
  return letra;
}
