// The drawings as the program will get them: decoded by the very functions that FXICOIcon and FXGIFIcon use,
// which need neither an application object nor a display.
#include "icons/iconos.h"

#include <fx.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace {

enum class Formato { ico, gif };

struct Dibujo {
  const char* nombre;
  const unsigned char* datos;
  std::size_t bytes;
  Formato formato;
  int ancho, alto;
};

void PrintTo(const Dibujo& dibujo, std::ostream* salida) { *salida << dibujo.nombre; }

template <std::size_t N>
constexpr Dibujo ico(const char* nombre, const unsigned char (&datos)[N], int lado) {
  return {nombre, datos, N, Formato::ico, lado, lado};
}

template <std::size_t N>
constexpr Dibujo gif(const char* nombre, const unsigned char (&datos)[N], int ancho, int alto) {
  return {nombre, datos, N, Formato::gif, ancho, alto};
}

const Dibujo dibujos[] = {
    // Main window and menu
    ico("bigcaja_icon", iconos::bigcaja_icon, 32),
    ico("smallcaja", iconos::smallcaja, 16),
    ico("login_icon", iconos::login_icon, 16),
    gif("quit_gif", iconos::quit_gif, 16, 16),
    ico("moneda_icon", iconos::moneda_icon, 16),
    ico("banco_icon", iconos::banco_icon, 16),
    ico("tipomovimiento_icon", iconos::tipomovimiento_icon, 16),
    ico("tipoprestamo_icon", iconos::tipoprestamo_icon, 16),
    ico("user_icon", iconos::user_icon, 16),
    gif("logo", iconos::logo, 160, 80),
    // Login
    ico("login", iconos::login, 32),
    ico("sucx", iconos::sucx, 32),
    // Forms
    ico("ok_icon", iconos::ok_icon, 16),
    ico("cerrar_icon", iconos::cerrar_icon, 16),
    ico("nuevo_icon", iconos::nuevo_icon, 16),
    ico("find_icon", iconos::find_icon, 16),
    ico("borrar_icon", iconos::borrar_icon, 16),
    ico("calendario", iconos::calendario, 16),
    ico("user2", iconos::user2, 16),
    // Calendar
    gif("leftarrow1_gif", iconos::leftarrow1_gif, 16, 16),
    gif("leftarrow2_gif", iconos::leftarrow2_gif, 16, 16),
    gif("rightarrow1_gif", iconos::rightarrow1_gif, 16, 16),
    gif("rightarrow2_gif", iconos::rightarrow2_gif, 16, 16),
};

struct Imagen {
  int ancho = 0, alto = 0;
  std::vector<FXColor> puntos;
};

// An image without pixels when the bytes cannot be decoded.
Imagen decodifica(const Dibujo& dibujo) {
  FXMemoryStream bytes;
  bytes.open(FXStreamLoad, dibujo.bytes, const_cast<FXuchar*>(dibujo.datos));
  FXColor* puntos = nullptr;
  FXint ancho = 0, alto = 0, x = 0, y = 0;
  const bool leida = dibujo.formato == Formato::gif ? fxloadGIF(bytes, puntos, ancho, alto)
                                                    : fxloadICO(bytes, puntos, ancho, alto, x, y);
  Imagen imagen;
  if (leida) imagen = {ancho, alto, {puntos, puntos + ancho * alto}};
  FXFREE(&puntos);
  return imagen;
}

bool opaco(FXColor punto) { return FXALPHAVAL(punto) == 255; }
bool transparente(FXColor punto) { return FXALPHAVAL(punto) == 0; }

class UnDibujo : public testing::TestWithParam<Dibujo> {
 protected:
  const Imagen imagen = decodifica(GetParam());

  template <class Condicion>
  long cuenta(Condicion condicion) const {
    return std::count_if(imagen.puntos.begin(), imagen.puntos.end(), condicion);
  }
};

TEST_P(UnDibujo, SeDecodificaConSuTamano) {
  EXPECT_EQ(imagen.ancho, GetParam().ancho);
  EXPECT_EQ(imagen.alto, GetParam().alto);
}

TEST_P(UnDibujo, TieneFigura) { EXPECT_GT(cuenta(opaco), 0); }

TEST_P(UnDibujo, TieneFondoTransparente) { EXPECT_GT(cuenta(transparente), 0); }

TEST_P(UnDibujo, NoTienePuntosATransparenciaParcial) {
  EXPECT_EQ(cuenta(opaco) + cuenta(transparente), static_cast<long>(imagen.puntos.size()));
}

TEST_P(UnDibujo, NoUsaElColorDeTransparenciaEnLaFigura) {
  EXPECT_EQ(cuenta([](FXColor punto) { return punto == FXRGB(192, 192, 192); }), 0);
}

INSTANTIATE_TEST_SUITE_P(Iconos, UnDibujo, testing::ValuesIn(dibujos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

// What is seen: a transparent pixel has no colour.
std::vector<FXColor> figura(const Dibujo& dibujo) {
  std::vector<FXColor> puntos = decodifica(dibujo).puntos;
  std::replace_if(puntos.begin(), puntos.end(), transparente, FXRGBA(0, 0, 0, 0));
  return puntos;
}

TEST(Dibujos, NoHayDosIguales) {
  std::map<std::vector<FXColor>, const char*> vistos;
  for (const Dibujo& dibujo : dibujos) {
    const auto [anterior, nuevo] = vistos.emplace(figura(dibujo), dibujo.nombre);
    EXPECT_TRUE(nuevo) << dibujo.nombre << " es igual a " << anterior->second;
  }
}

}  // namespace
