// The boxes: their kinds, their answers, and texts that a format would trip over.
#include "widgets/cajas.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"

namespace pruebas {
namespace {

class CajasTest : public testing::Test {
 protected:
  void SetUp() override {
    duenio_ = new FXMainWindow(&App(), "Dueña", nullptr, nullptr, DECOR_ALL, 0, 0, 300, 200);
    duenio_->create();
    duenio_->show(PLACEMENT_SCREEN);
  }
  void TearDown() override { delete duenio_; }

  /// What an error box shows for a text.
  std::string Visto(const std::string& texto) {
    Guion guion;
    guion.Responde(Respuesta::Aceptar);
    cajaError(duenio_, "Error", texto.c_str());
    return guion.Ultimo().texto;
  }

  FXMainWindow* duenio_ = nullptr;
};

Textos EnLineas(const std::string& texto) {
  Textos lineas(1);
  for (const char c : texto) {
    if (c == '\n') {
      lineas.emplace_back();
    } else {
      lineas.back() += c;
    }
  }
  return lineas;
}

std::string SinSaltos(std::string texto) {
  texto.erase(std::remove(texto.begin(), texto.end(), '\n'), texto.end());
  return texto;
}

std::string Repetida(const std::string& letra, size_t veces) {
  std::string texto;
  while (veces-- > 0) texto += letra;
  return texto;
}

TEST_F(CajasTest, ElErrorYLaNoticiaSeAceptan) {
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  guion.Responde(Respuesta::Aceptar);
  cajaError(duenio_, "Error en Validación", "Está mal");
  cajaInformacion(duenio_, "Moneda", "Registro NO encontrado");
  ASSERT_EQ(guion.Cuadros().size(), 2u);
  const Cuadro& error = guion.Cuadros().at(0);
  EXPECT_EQ(error.clase, Clase::Error);
  EXPECT_EQ(error.titulo, "Error en Validación");
  EXPECT_EQ(error.texto, "Está mal");
  EXPECT_EQ(error.botones.size(), 1u);
  const Cuadro& noticia = guion.Cuadros().at(1);
  EXPECT_EQ(noticia.clase, Clase::Informacion);
  EXPECT_EQ(noticia.titulo, "Moneda");
  EXPECT_EQ(noticia.texto, "Registro NO encontrado");
}

TEST_F(CajasTest, LaPreguntaEsVerdaderaSoloConSi) {
  Guion guion;
  guion.Responde(Respuesta::Si);
  guion.Responde(Respuesta::No);
  guion.Con([](FXDialogBox* caja) { caja->handle(&App(), FXSEL(SEL_CLOSE, 0), nullptr); });
  EXPECT_TRUE(cajaPregunta(duenio_, "Moneda", "Registrar ?"));
  EXPECT_FALSE(cajaPregunta(duenio_, "Moneda", "Registrar ?"));
  EXPECT_FALSE(cajaPregunta(duenio_, "Moneda", "Registrar ?"));
  for (const Cuadro& cuadro : guion.Cuadros()) {
    EXPECT_EQ(cuadro.clase, Clase::Pregunta);
    EXPECT_EQ(cuadro.titulo, "Moneda");
    EXPECT_EQ(cuadro.texto, "Registrar ?");
    EXPECT_EQ(cuadro.botones.size(), 2u);
  }
}

TEST_F(CajasTest, LosSignosDePorcentajeNuncaSonUnaDirectiva) {
  const std::pair<const char*, const char*> textos[] = {
      {"100%", "100%"}, {"100%%", "100%"}, {"%s %d %n %*c", "%s %d %n %*c"}, {"%%s", "%s"}, {"%", "%"},
      {"%%%%", "%%"},   {"%%%", "%%"},     {"%99999999s", "%99999999s"},
  };
  for (const auto& [texto, visto] : textos) EXPECT_EQ(Visto(texto), visto);
}

TEST_F(CajasTest, ElTituloTampocoEsUnFormato) {
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  cajaInformacion(duenio_, "%s %n 50%%", "x");
  EXPECT_EQ(guion.Ultimo().titulo, "%s %n 50%%");
}

TEST_F(CajasTest, UnTextoVacioDiceQueNoHayConexion) {
  EXPECT_EQ(Visto(""), "No hay conexión con el servidor.");
}

TEST_F(CajasTest, UnaLineaLargaSeParteTrasUnBlanco) {
  const std::string larga = Repetida("palabra ", 30);
  const Textos lineas = EnLineas(Visto(larga));
  EXPECT_EQ(lineas.size(), 3u);
  for (size_t i = 0; i + 1 < lineas.size(); ++i) {
    EXPECT_LE(lineas[i].size(), 90u);
    EXPECT_EQ(lineas[i].back(), ' ');
  }
  EXPECT_EQ(SinSaltos(Visto(larga)), larga);
}

TEST_F(CajasTest, UnaPalabraSinFinSeParteTrasNoventaLetras) {
  for (const std::string& letra : Textos{"x", "ñ"}) {
    const Textos lineas = EnLineas(Visto(Repetida(letra, 250)));
    EXPECT_EQ(lineas, (Textos{Repetida(letra, 90), Repetida(letra, 90), Repetida(letra, 70)}));
  }
  EXPECT_EQ(Visto(Repetida("x", 90)), Repetida("x", 90));
}

TEST_F(CajasTest, NoMuestraMasDeTreintaRenglones) {
  EXPECT_EQ(EnLineas(Visto(Repetida("a\n", 100))).size(), 30u);
}

TEST_F(CajasTest, LosRenglonesPropiosSeConservan) {
  const std::string texto = "\nFATAL:  uno\n\n" + Repetida("y ", 40) + "\ndos\n";
  EXPECT_EQ(Visto(texto), texto);
}

TEST_F(CajasTest, NoMuestraMasDeDosMilBytesNiMediaLetra) {
  for (const std::string& letra : Textos{"x", "ñ", "€", "😀"}) {
    for (const std::string& antes : Textos{"", "a", "ab"}) {
      const size_t caben = (2000 - antes.size()) / letra.size();
      EXPECT_EQ(SinSaltos(Visto(antes + Repetida(letra, 5000))), antes + Repetida(letra, caben));
    }
  }
}

TEST_F(CajasTest, UnaCajaLlenaCabeEnLaPantalla) {
  for (const std::string& texto : Textos{Repetida("o", 5000), Repetida("palabra ", 1000)}) {
    Guion guion;
    guion.Con([](FXDialogBox* caja) {
      EXPECT_LE(caja->getWidth(), App().getRootWindow()->getWidth());
      EXPECT_LE(caja->getHeight(), App().getRootWindow()->getHeight());
      Pulsa(Todos<FXButton>(caja).at(0));
    });
    cajaError(duenio_, "Error", texto.c_str());
  }
}

}  // namespace
}  // namespace pruebas
