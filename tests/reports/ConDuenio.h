// What the tests of the report windows share: a window that owns them, a folder of its own to work in, and a
// look at what is left there.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/Guion.h"
#include "tests/support/Mandatos.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"

namespace pruebas {

/// Works in a folder that is no longer there, where nothing can be written, whoever the user is.
inline void SinCarpeta() {
  const std::filesystem::path carpeta = std::filesystem::current_path() / "sin";
  std::filesystem::create_directory(carpeta);
  std::filesystem::current_path(carpeta);
  std::filesystem::remove(carpeta);
}

inline void Graba(const std::string& archivo, const std::string& contenido) {
  std::ofstream(archivo, std::ios::binary) << contenido;
}

/// The text that a preview shows.
inline std::string Mostrado(FXWindow* preview) {
  const FXString texto = Todos<FXText>(preview).at(0)->getText();
  return std::string(texto.text(), texto.length());
}

/// A step of a script: keeps what the preview shows in `texto` and leaves it by Esc.
inline auto VeYCierra(std::string& texto) {
  return [&texto](FXDialogBox* preview) {
    EXPECT_STREQ(preview->getClassName(), "Preview_Window");
    texto = Mostrado(preview);
    Tecla(Todos<FXText>(preview).at(0), KEY_Escape);
  };
}

/// The application and its screen, started while the path still leads to them.
class ConPantalla : public testing::Test {
 protected:
  ConPantalla() { App(); }
};

}  // namespace pruebas
