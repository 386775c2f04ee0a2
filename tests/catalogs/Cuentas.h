// A chart of accounts of a test's own in the cache, and a window to own dialogs.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "db/Catalogo.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Textos.h"

namespace pruebas {

/// An account whose number is padded to 24 bytes, as the server answers it.
inline cCatalogo_Ctas Cuenta(const std::string& numero, const std::string& nombre, const char* tipo = "A") {
  cCatalogo_Ctas cuenta;
  cuenta.setCuentaID(numero.c_str());
  cuenta.setCuentaNombre(nombre.c_str());
  cuenta.setTipo_Cta(tipo);
  return cuenta;
}

/// The number of such an account.
inline std::string Rellenado(const std::string& numero) { return Cuenta(numero, "").getCuentaID(); }

/// Puts these accounts into the cache, in place of all others.
inline void PonCarta(const std::vector<cCatalogo_Ctas>& cuentas) {
  Catalogo::Catalogo_Ctas.clear();
  for (const cCatalogo_Ctas& cuenta : cuentas)
    Catalogo::Catalogo_Ctas.emplace(static_cast<int>(Catalogo::Catalogo_Ctas.size()), cuenta);
}

/// `cuantas` accounts from 10000000 on, in order.
inline void PonCartaDe(int cuantas) {
  std::vector<cCatalogo_Ctas> cuentas;
  for (int i = 0; i < cuantas; ++i) {
    const std::string numero = std::to_string(10000000 + i);
    cuentas.push_back(Cuenta(numero, "Cuenta " + numero));
  }
  PonCarta(cuentas);
}

/// `cuantas` letters of two bytes.
inline std::string Acentos(int cuantas) {
  std::string texto;
  while (cuantas-- > 0) texto += "é";
  return texto;
}

/// A window to own dialogs, and an empty chart before and after.
class ConDuenia : public testing::Test {
 protected:
  void SetUp() override {
    PonCarta({});
    duenia_ = new FXMainWindow(&App(), "Dueña", nullptr, nullptr, DECOR_ALL, 0, 0, 800, 600);
    duenia_->create();
    duenia_->show(PLACEMENT_SCREEN);
  }
  void TearDown() override {
    delete duenia_;
    PonCarta({});
  }

  FXMainWindow* duenia_ = nullptr;
};

}  // namespace pruebas
