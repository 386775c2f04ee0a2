// The login dialog by itself: what it shows, what its fields take, its settings, its options. What "&Aceptar"
// does with a server stands in Login_Sesion_test.cpp.
#include "db/Login_Window.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "app/sesion.h"
#include "db/Engine.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

constexpr char Seccion[] = "SETTINGS";

static_assert(Login_Window::ID_ACEPTAR == 62 && Login_Window::ID_CONFIGURAR == 63 &&
              Login_Window::ID_QUIT == 64);

class LoginWindowTest : public testing::Test {
 protected:
  void SetUp() override { SinAjustes(); }

  /// The dialog, on the screen but not modal.
  Login_Window& Login() {
    if (!login_) {
      login_ = std::make_unique<Login_Window>(principal_.get());
      login_->show(PLACEMENT_SCREEN);
      Bombea();
    }
    return *login_;
  }
  Login_Window& ConOpciones() {
    Pulsa(Boton(&Login(), "Opciones >>"));
    return Login();
  }

  Principal principal_;
  std::unique_ptr<Login_Window> login_;
};

TEST_F(LoginWindowTest, EsUnDialogoSinBotonDeCierre) {
  EXPECT_STREQ(Login().getClassName(), "Login_Window");
  EXPECT_EQ(Login().getMetaClass()->getBaseClass(), FXMETACLASS(FXDialogBox));
  EXPECT_STREQ(Login().getTitle().text(), "Login");
  EXPECT_EQ(Login().getDecorations(), FXuint{DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE});
  EXPECT_EQ(Login().getOwner(), principal_.get());
}

TEST_F(LoginWindowTest, MuestraLosRenglonesEnSuOrden) {
  EXPECT_EQ(Etiquetas(&Login()), (Textos{"", "Login:", " ", "Password:",  //
                                         "", "Sucursal:", " ", "Servidor:", " ", "Puerto:", " ", "DB:"}));
  const std::vector<FXMatrix*> matrices = Todos<FXMatrix>(&Login());
  ASSERT_EQ(matrices.size(), 2u);
  const unsigned char* const dibujos[] = {iconos::login, iconos::sucx};
  for (size_t i = 0; i < 2; ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(matrices[i]->getNumColumns(), 3);
    EXPECT_EQ(Todos<FXLabel>(matrices[i])[0]->getIcon(), icono(&App(), dibujos[i]));
  }
  FXGroupBox* const grupo = Grupo(&Login(), "");
  EXPECT_EQ(matrices[1]->getParent(), grupo);
  EXPECT_EQ(grupo->getPadLeft() + grupo->getPadRight(), 0);
  EXPECT_EQ(grupo->getPadTop(), 2);
  EXPECT_EQ(grupo->getPadBottom(), 2);
  EXPECT_EQ(grupo->getHSpacing(), 4);
}

TEST_F(LoginWindowTest, SusMarcosTienenMargenDeCuatro) {
  auto* const marco = dynamic_cast<FXHorizontalFrame*>(Login().getFirst());
  ASSERT_NE(marco, nullptr);
  for (FXPacker* pieza : {static_cast<FXPacker*>(marco), dynamic_cast<FXPacker*>(marco->getFirst()),
                          dynamic_cast<FXPacker*>(marco->getLast())}) {
    ASSERT_NE(pieza, nullptr);
    EXPECT_TRUE(pieza->getLayoutHints() & LAYOUT_FILL_X && pieza->getLayoutHints() & LAYOUT_FILL_Y);
    for (const FXint espacio : {pieza->getPadLeft(), pieza->getPadRight(), pieza->getPadTop(),
                                pieza->getPadBottom(), pieza->getHSpacing(), pieza->getVSpacing()})
      EXPECT_EQ(espacio, 4);
  }
}

TEST_F(LoginWindowTest, LosBotonesMandanLoSuyo) {
  const struct {
    const char* rotulo;
    const unsigned char* dibujo;
    FXSelector mensaje;
  } botones[] = {
      {"&Aceptar", iconos::ok_icon, Login_Window::ID_ACEPTAR},
      {"&Cerrar", iconos::cerrar_icon, FXDialogBox::ID_CANCEL},
      {"Opciones >>", nullptr, Login_Window::ID_CONFIGURAR},
  };
  EXPECT_EQ(Botones(&Login()), (Textos{"&Aceptar", "&Cerrar", "Opciones >>"}));
  for (const auto& [rotulo, dibujo, mensaje] : botones) {
    SCOPED_TRACE(rotulo);
    const FXButton* boton = Boton(&Login(), rotulo);
    EXPECT_EQ(boton->getTarget(), &Login());
    EXPECT_EQ(boton->getSelector(), mensaje);
    EXPECT_EQ(boton->getIcon(), dibujo ? icono(&App(), dibujo) : nullptr);
  }
  EXPECT_TRUE(Boton(&Login(), "&Aceptar")->getButtonStyle() & BUTTON_DEFAULT);
  EXPECT_FALSE(Boton(&Login(), "&Cerrar")->getButtonStyle() & BUTTON_DEFAULT);
}

struct CampoDelLogin {
  const char* etiqueta;
  FXint columnas;
  FXuint estilo;  ///< beside the limit
  const char* llave;
  const char* omision;
};

const CampoDelLogin campos[] = {
    {"Login:", 20, TEXTFIELD_ENTER_ONLY, "user", "xxx"},
    {"Password:", 20, TEXTFIELD_PASSWD | TEXTFIELD_ENTER_ONLY, nullptr, ""},
    {"Sucursal:", 20, 0, "sucursal", "xxx"},
    {"Servidor:", 30, 0, "servidor", "xxx"},
    {"Puerto:", 4, TEXTFIELD_INTEGER, "puerto", "5432"},
    {"DB:", 20, 0, "db", "xxx"},
};

TEST_F(LoginWindowTest, CadaCampoTieneSuAnchoYSuClase) {
  for (const CampoDelLogin& campo : campos) {
    SCOPED_TRACE(campo.etiqueta);
    const FXTextField* pieza = CampoJuntoA(&Login(), campo.etiqueta);
    EXPECT_EQ(pieza->getNumColumns(), campo.columnas);
    EXPECT_EQ(pieza->getTextStyle(), campo.estilo | TEXTFIELD_LIMITED);
  }
}

TEST_F(LoginWindowTest, NingunCampoTomaMasDeLoSuyo) {
  ConOpciones();
  for (const CampoDelLogin& campo : campos) {
    SCOPED_TRACE(campo.etiqueta);
    const bool entero = campo.estilo & TEXTFIELD_INTEGER;
    for (const std::string& letra : entero ? Textos{"7"} : Textos{"x", "ñ", "%", "'"}) {
      std::string largo, justo;
      for (FXint i = 0; i < 100; ++i) (i < campo.columnas ? justo : largo) += letra;
      Escribe(&Login(), campo.etiqueta, justo + largo);
      EXPECT_EQ(Leido(&Login(), campo.etiqueta), justo);
    }
  }
}

TEST_F(LoginWindowTest, SinAjustesMuestraLosDeOmision) {
  for (const CampoDelLogin& campo : campos) {
    EXPECT_EQ(Leido(&Login(), campo.etiqueta), campo.omision) << campo.etiqueta;
  }
}

TEST_F(LoginWindowTest, MuestraLosAjustesDeLaUltimaVez) {
  for (const CampoDelLogin& campo : campos) {
    if (campo.llave) App().reg().writeStringEntry(Seccion, campo.llave, FXString(campo.llave).left(4).text());
  }
  for (const CampoDelLogin& campo : campos) {
    if (campo.llave) {
      EXPECT_EQ(Leido(&Login(), campo.etiqueta), FXString(campo.llave).left(4).text());
    }
  }
}

TEST_F(LoginWindowTest, GuardaLosAjustesTambienEnElDisco) {
  App().reg().writeStringEntry(Seccion, "userdb", "otro dueño");
  ConOpciones();
  for (const CampoDelLogin& campo : campos) {
    Escribe(&Login(), campo.etiqueta,
            campo.estilo & TEXTFIELD_INTEGER ? "1234" : std::string("un ") + campo.etiqueta);
  }
  Login().writeRegistry();
  FXRegistry disco("corvena", "Tolvara");
  disco.read();
  for (FXRegistry* ajustes : {&App().reg(), &disco}) {
    EXPECT_STREQ(ajustes->readStringEntry(Seccion, "user", ""), "un Login:");
    EXPECT_STREQ(ajustes->readStringEntry(Seccion, "sucursal", ""), "un Sucursal:");
    EXPECT_STREQ(ajustes->readStringEntry(Seccion, "servidor", ""), "un Servidor:");
    EXPECT_STREQ(ajustes->readStringEntry(Seccion, "puerto", ""), "1234");
    EXPECT_STREQ(ajustes->readStringEntry(Seccion, "db", ""), "un DB:");
    EXPECT_STREQ(ajustes->readStringEntry(Seccion, "userdb", ""), "otro dueño");
  }
}

TEST_F(LoginWindowTest, EsperaLaContrasena) {
  const FXTextField* const clave = CampoJuntoA(&Login(), "Password:");
  EXPECT_EQ(clave->getParent()->getFocus(), clave);
}

TEST_F(LoginWindowTest, LasOpcionesSeAbrenYSeCierran) {
  EXPECT_FALSE(Usable(CampoJuntoA(&Login(), "DB:")));
  FXButton* const opciones = Boton(&Login(), "Opciones >>");
  for (int vez = 0; vez < 2; ++vez) {
    SCOPED_TRACE(vez);
    Pulsa(opciones);
    EXPECT_TRUE(Usable(CampoJuntoA(&Login(), "DB:")));
    EXPECT_EQ(Rotulo(opciones), "Opciones <<");
    EXPECT_EQ(Login().getWidth(), 450);
    EXPECT_EQ(Login().getHeight(), 215);
    Pulsa(opciones);
    EXPECT_FALSE(Usable(CampoJuntoA(&Login(), "DB:")));
    EXPECT_EQ(Rotulo(opciones), "Opciones >>");
    EXPECT_EQ(Login().getWidth(), 365);
    EXPECT_EQ(Login().getHeight(), 94);
  }
}

// The button does not ask the setting that the main window's entry turns over.
TEST_F(LoginWindowTest, LasOpcionesSeAbrenAunqueElAjusteDigaQueNo) {
  App().reg().writeStringEntry(Seccion, "permitirop", "N");
  EXPECT_TRUE(Usable(CampoJuntoA(&ConOpciones(), "DB:")));
}

TEST_F(LoginWindowTest, NoSeDejaCerrarDesdeFuera) {
  for (const FXSelector mensaje : {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_SIGNAL, Login_Window::ID_QUIT)}) {
    Guion guion;
    Salida salida;
    guion.Con([mensaje](FXDialogBox* login) { EXPECT_EQ(login->handle(&App(), mensaje, nullptr), 1); });
    guion.Responde(Respuesta::Cancelar);  // left over if the dialog had closed
    EXPECT_EQ(Login_Window(principal_.get()).execute(PLACEMENT_SCREEN), 0u);
    EXPECT_EQ(salida.Texto(), "Saliendo con ESC\n");
  }
}

TEST_F(LoginWindowTest, CerrarNoManda) {
  Espia espia;
  Guion guion;
  IsConectado = false;
  guion.Responde("&Cerrar");
  EXPECT_EQ(Login_Window(principal_.get()).execute(PLACEMENT_SCREEN), 0u);
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_FALSE(IsConectado);
}

TEST_F(LoginWindowTest, AlAbrirseOlvidaLasTransaccionesAbiertas) {
  engine.BeginTransaction();
  Login();
  Espia espia;
  engine.RollBackTransaction();
  EXPECT_TRUE(espia.Sentencias().empty());
}

}  // namespace
}  // namespace pruebas
