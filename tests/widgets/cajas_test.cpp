// The boxes: their kinds, their answers, and texts that a format would trip over.
#include "widgets/cajas.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Textos.h"

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

TEST_F(CajasTest, LaSentenciaSenaladaNoSeMuestra) {
  const struct {
    std::string texto, visto;
  } tabla[] = {
      {"ERROR:  no\nLINE 1: select no();\n               ^\nHINT:  si\n", "ERROR:  no\nHINT:  si\n"},
      {"ERROR:  no\nLÍNEA 12: select no();\n ^\n", "ERROR:  no\n"},
      {"ERROR:  no\nSUGERENCIA:  2 ^ 3\n", "ERROR:  no\nSUGERENCIA:  2 ^ 3\n"},
      {"ERROR:  no\notra\n  ^\n", "ERROR:  no\notra\n  ^\n"},
      {"LINE 1: x\n ^", "LINE 1: x\n ^"},
      {"^", "^"},
  };
  for (const auto& [texto, visto] : tabla) EXPECT_EQ(Visto(texto), visto);
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

TEST_F(CajasTest, LosRenglonesPropiosSeConservan) {
  const std::string texto = "\nFATAL:  uno\n\n" + Repetida("y ", 40) + "\ndos\n";
  EXPECT_EQ(Visto(texto), texto);
}

TEST_F(CajasTest, LasSenalesDelMenuYLosTabuladoresNoSePierden) {
  Guion guion;
  guion.Con([](FXDialogBox* caja) {
    EXPECT_STREQ(Todos<FXLabel>(caja).at(1)->getText().text(), "R&D && 1    2    \\t");
    Pulsa(Boton(caja, "&Aceptar"));
  });
  cajaError(duenio_, "Error", "R&D && 1\t2\t\\t");
}

TEST_F(CajasTest, UnaCajaComunCabeEnLaPantalla) {
  for (const std::string& texto :
       Textos{Repetida("o", 2600), Repetida("palabra ", 330), Repetida("W\n", 29)}) {
    Guion guion;
    guion.Con([](FXDialogBox* caja) {
      EXPECT_TRUE(Todos<FXText>(caja).empty());
      EXPECT_LE(caja->getWidth(), App().getRootWindow()->getWidth());
      EXPECT_LE(caja->getHeight(), App().getRootWindow()->getHeight());
      Pulsa(Boton(caja, "&Aceptar"));
    });
    cajaError(duenio_, "Error", texto.c_str());
  }
}

// Texts of more than thirty lines.

/// The numbers from 1 to `hasta`, a line each.
std::string Renglones(int hasta) {
  std::string texto;
  for (int i = 1; i <= hasta; ++i) texto += (i > 1 ? "\nrenglón " : "renglón ") + std::to_string(i);
  return texto;
}

class CajaLargaTest : public CajasTest {
 protected:
  /// Does something in an error box with that text, which has to close it.
  void Con(const std::string& texto, const std::function<void(FXDialogBox*, FXText*)>& accion) {
    Guion guion;
    guion.Con([&](FXDialogBox* caja) {
      const std::vector<FXText*> textos = Todos<FXText>(caja);
      ASSERT_EQ(textos.size(), 1u);
      accion(caja, textos[0]);
    });
    cajaError(duenio_, "Error", texto.c_str());
  }
  static FXint Fondo(FXText* texto) { return texto->getViewportHeight() - texto->getContentHeight(); }
};

TEST_F(CajaLargaTest, EmpiezaTrasTreintaRenglones) {
  Guion guion;
  for (const bool larga : {false, true}) {
    guion.Con([larga](FXDialogBox* caja) {
      EXPECT_EQ(Todos<FXText>(caja).size(), larga);
      EXPECT_EQ(Todos<FXLabel>(caja).size(), larga ? 2u : 3u);  // picture, text, button
      Pulsa(Boton(caja, "&Aceptar"));
    });
    cajaError(duenio_, "Error", Renglones(larga ? 31 : 30).c_str());
    EXPECT_EQ(guion.Ultimo().texto, Renglones(larga ? 31 : 30));
  }
}

TEST_F(CajaLargaTest, MuestraElTextoEntero) {
  const std::pair<std::string, std::string> textos[] = {
      {Repetida("palabra ", 1000), Repetida("palabra ", 1000)},
      {Repetida("a\n", 100), Repetida("a\n", 100)},
      {Repetida("100%% %s %n &R\t&&\n", 40), Repetida("100% %s %n &R\t&&\n", 40)},
      {Repetida("x", 5000), Repetida("x", 5000)},
      {Repetida("ñ", 5000), Repetida("ñ", 5000)},
      {Repetida("€", 5000), Repetida("€", 5000)},
      {Repetida("😀", 5000), Repetida("😀", 5000)},
      {Repetida("mucho más ", 20'000), Repetida("mucho más ", 20'000)},
  };
  for (const auto& [texto, visto] : textos) {
    SCOPED_TRACE(texto.substr(0, 20));
    Con(texto, [&visto = visto](FXDialogBox* caja, FXText* area) {
      EXPECT_TRUE(visto == area->getText().text());
      EXPECT_FALSE(area->isEditable());
      EXPECT_LE(area->getContentWidth(), area->getViewportWidth());  // nothing to the right of what is seen
      EXPECT_LE(caja->getWidth(), 800);
      EXPECT_LE(caja->getHeight(), 600);
      Pulsa(Boton(caja, "&Aceptar"));
    });
  }
}

TEST_F(CajaLargaTest, EsLaCajaDeSiempre) {
  Guion guion;
  for (const Respuesta respuesta : {Respuesta::Aceptar, Respuesta::Aceptar, Respuesta::Si, Respuesta::No})
    guion.Responde(respuesta);
  const std::string texto = Renglones(100);
  cajaError(duenio_, "100%", texto.c_str());
  cajaInformacion(duenio_, "100%", texto.c_str());
  EXPECT_TRUE(cajaPregunta(duenio_, "100%", texto.c_str()));
  EXPECT_FALSE(cajaPregunta(duenio_, "100%", texto.c_str()));
  const Clase clases[] = {Clase::Error, Clase::Informacion, Clase::Pregunta, Clase::Pregunta};
  ASSERT_EQ(guion.Cuadros().size(), 4u);
  for (size_t i = 0; i < 4; ++i) {
    const Cuadro& cuadro = guion.Cuadros()[i];
    EXPECT_EQ(cuadro.clase, clases[i]);
    EXPECT_EQ(cuadro.titulo, "100%");
    EXPECT_EQ(cuadro.texto, texto);
    EXPECT_EQ(cuadro.botones, i < 2 ? Textos{"&Aceptar"} : (Textos{"&Sí", "&No"}));
  }
}

TEST_F(CajaLargaTest, SeRecorreConElTecladoDesdeElBotonYDesdeElTexto) {
  for (const bool desdeElTexto : {false, true}) {
    SCOPED_TRACE(desdeElTexto);
    Con(Renglones(200), [&](FXDialogBox* caja, FXText* texto) {
      FXWindow* const foco = desdeElTexto ? static_cast<FXWindow*>(texto) : Boton(caja, "&Aceptar");
      const auto tras = [&](FXuint tecla) {
        Tecla(foco, tecla);
        Bombea();
        EXPECT_EQ(foco->getParent()->getFocus(), foco);
        return texto->getYPosition();
      };
      const FXint renglon = texto->getFont()->getFontHeight();
      EXPECT_EQ(texto->getYPosition(), 0);
      ASSERT_LT(Fondo(texto), -10 * renglon);
      EXPECT_EQ(tras(KEY_Down), -renglon);
      EXPECT_EQ(tras(KEY_KP_Down), -2 * renglon);
      EXPECT_EQ(tras(KEY_Up), -renglon);
      EXPECT_EQ(tras(KEY_KP_Up), 0);
      EXPECT_EQ(tras(KEY_Up), 0);
      FXint antes = 0;
      for (const FXuint tecla : {KEY_Page_Down, KEY_KP_Page_Down}) {
        const FXint ahora = tras(tecla);
        EXPECT_LE(ahora, antes - texto->getViewportHeight() / 2);
        EXPECT_GE(ahora, antes - texto->getViewportHeight());  // no line is skipped
        antes = ahora;
      }
      EXPECT_GT(tras(KEY_Page_Up), antes);
      EXPECT_EQ(tras(KEY_KP_Page_Up), 0);
      EXPECT_EQ(tras(KEY_End), Fondo(texto));
      EXPECT_EQ(tras(KEY_Home), 0);
      EXPECT_EQ(tras(KEY_KP_End), Fondo(texto));
      EXPECT_EQ(tras(KEY_KP_Home), 0);
      Pulsa(Boton(caja, "&Aceptar"));
    });
  }
}

TEST_F(CajaLargaTest, LasPaginasLleganDelPrincipioAlFin) {
  Con(Renglones(200), [&](FXDialogBox* caja, FXText* texto) {
    FXint paginas = 0;
    while (texto->getYPosition() > Fondo(texto) && ++paginas < 50)
      Tecla(Boton(caja, "&Aceptar"), KEY_Page_Down);
    EXPECT_EQ(texto->getYPosition(), Fondo(texto));
    EXPECT_LT(paginas, 20);
    Pulsa(Boton(caja, "&Aceptar"));
  });
}

TEST_F(CajaLargaTest, DesdeElTextoEnterYEscapeCierranYTabSale) {
  for (const FXuint tecla : {KEY_Return, KEY_KP_Enter, KEY_Escape})
    Con(Renglones(100), [&](FXDialogBox*, FXText* texto) { Tecla(texto, tecla); });
  for (const FXuint tecla : {KEY_Tab, KEY_KP_Tab, KEY_ISO_Left_Tab}) {
    Con(Renglones(100), [&](FXDialogBox* caja, FXText* texto) {
      Tecla(texto, tecla, tecla == KEY_ISO_Left_Tab ? SHIFTMASK : 0);
      EXPECT_EQ(Boton(caja, "&Aceptar")->getParent()->getFocus(), Boton(caja, "&Aceptar"));
      Pulsa(Boton(caja, "&Aceptar"));
    });
  }
}

TEST_F(CajaLargaTest, NadaSeEscribeEnElla) {
  Con(Renglones(100), [&](FXDialogBox* caja, FXText* texto) {
    Tecla(texto, KEY_x, 0, "x");
    Tecla(texto, KEY_Delete);
    Tecla(texto, KEY_v, CONTROLMASK, "\x16");
    EXPECT_EQ(texto->getText().text(), Renglones(100));
    Pulsa(Boton(caja, "&Aceptar"));
  });
}

}  // namespace
}  // namespace pruebas
