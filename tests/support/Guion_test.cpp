#include "tests/support/Guion.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <stdexcept>

#include "tests/support/Pantalla.h"

namespace pruebas {
namespace {

FXuint Pregunta(const char* texto) {
  return FXMessageBox::question(&App(), MBOX_YES_NO, "Monedas", "%s", texto);
}

FXuint Error(const char* texto) { return FXMessageBox::error(&App(), MBOX_OK, "Error", "%s", texto); }

// A dialog whose "&Aceptar" opens a box and leaves the dialog open, as a refused login does.
class Dialogo : public FXDialogBox {
  FXDECLARE(Dialogo)
 public:
  enum { ID_ACEPTAR = FXDialogBox::ID_LAST };
  explicit Dialogo(FXApp* app) : FXDialogBox(app, "Login") {
    new FXLabel(this, "Password:");
    campo = new FXTextField(this, 10);
    new FXButton(this, "&Aceptar", nullptr, this, ID_ACEPTAR);
    new FXButton(this, "&Cerrar", nullptr, this, FXDialogBox::ID_CANCEL);
  }
  long onAceptar(FXObject*, FXSelector, void*) {
    if (campo->getText() == "buena") return handle(this, FXSEL(SEL_COMMAND, ID_ACCEPT), nullptr);
    Error("mala clave");
    return 1;
  }
  FXTextField* campo = nullptr;

 protected:
  Dialogo() = default;
};

FXDEFMAP(Dialogo) DialogoMap[] = {FXMAPFUNC(SEL_COMMAND, Dialogo::ID_ACEPTAR, Dialogo::onAceptar)};
FXIMPLEMENT(Dialogo, FXDialogBox, DialogoMap, ARRAYNUMBER(DialogoMap))

void Entra(FXDialogBox* ventana, const char* clave) {
  Escribe(ventana, "Password:", clave);
  Pulsa(Boton(ventana, "&Aceptar"));
}

TEST(Guion, EnAdelanteContestaLoQueNoTienePaso) {
  Guion guion;
  guion.EnAdelante([](FXDialogBox* ventana) { Pulsa(Todos<FXButton>(ventana).front()); });
  guion.Responde(Respuesta::No);
  EXPECT_EQ(Pregunta("¿Uno?"), FXuint{MBOX_CLICKED_NO});
  EXPECT_EQ(Pregunta("¿Dos?"), FXuint{MBOX_CLICKED_YES});
  EXPECT_EQ(Error("Tres"), FXuint{MBOX_CLICKED_OK});
  EXPECT_EQ(guion.Mensajes(), (Textos{"¿Uno?", "¿Dos?", "Tres"}));
}

TEST(Guion, RespondeYRetrata) {
  Guion guion;
  guion.Responde(Respuesta::Si);
  guion.Responde(Respuesta::No);
  guion.Responde("&Aceptar");
  EXPECT_EQ(Pregunta("¿Uno?"), FXuint{MBOX_CLICKED_YES});
  EXPECT_EQ(Pregunta("¿Dos?"), FXuint{MBOX_CLICKED_NO});
  EXPECT_EQ(guion.Pendientes(), 1u);
  EXPECT_EQ(Error("Tres\nrenglones"), FXuint{MBOX_CLICKED_OK});
  EXPECT_EQ(guion.Mensajes(), (Textos{"¿Uno?", "¿Dos?", "Tres\nrenglones"}));
  EXPECT_EQ(guion.Cuadros()[0].titulo, "Monedas");
  EXPECT_EQ(guion.Cuadros()[0].botones, (Textos{"&Sí", "&No"}));
  EXPECT_EQ(guion.Cuadros()[0].clase, Clase::Pregunta);
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
  EXPECT_EQ(guion.Ultimo().botones, Textos{"&Aceptar"});
}

TEST(Guion, DistingueLasClasesDeCaja) {
  Guion guion;
  for (int i = 0; i < 4; ++i) guion.Responde(Respuesta::Aceptar);
  FXMessageBox::information(&App(), MBOX_OK, "t", "x");
  FXMessageBox::warning(&App(), MBOX_OK, "t", "x");
  FXMessageBox::question(&App(), MBOX_OK_CANCEL, "t", "x");
  FXMessageBox::error(&App(), MBOX_OK, "t", "x");
  const Clase esperadas[] = {Clase::Informacion, Clase::Aviso, Clase::Pregunta, Clase::Error};
  for (size_t i = 0; i < 4; ++i) EXPECT_EQ(guion.Cuadros()[i].clase, esperadas[i]) << i;
}

TEST(Guion, UnDialogoAbiertoRecibeElPasoSiguiente) {
  Guion guion;
  guion.Con([](FXDialogBox* ventana) { Entra(ventana, "mala"); });
  guion.Responde(Respuesta::Aceptar);
  guion.Con([](FXDialogBox* ventana) {
    Bombea(30);  // the event loop may run meanwhile
    Entra(ventana, "buena");
  });
  Dialogo dialogo(&App());
  EXPECT_EQ(dialogo.execute(), 1u);
  ASSERT_EQ(guion.Cuadros().size(), 3u);
  EXPECT_EQ(guion.Cuadros()[0].titulo, "Login");
  EXPECT_EQ(guion.Cuadros()[0].texto, "Password:");
  EXPECT_EQ(guion.Cuadros()[0].clase, Clase::Dialogo);
  EXPECT_EQ(guion.Mensajes(), Textos{"mala clave"});
}

TEST(Guion, CancelarCierraUnDialogo) {
  Guion guion;
  guion.Responde(Respuesta::Cancelar);
  Dialogo dialogo(&App());
  EXPECT_EQ(dialogo.execute(), 0u);
}

TEST(Guion, UnaCajaImprevistaEsUnaFallaYSeDespide) {
  Guion guion;
  FXuint respuesta = 0;
  EXPECT_NONFATAL_FAILURE(respuesta = Error("sorpresa"), "sorpresa");
  EXPECT_EQ(respuesta, FXuint{MBOX_CLICKED_CANCEL});
  EXPECT_EQ(guion.Mensajes(), Textos{"sorpresa"});
}

TEST(Guion, UnaRespuestaQueLaCajaNoTieneEsUnaFalla) {
  Guion guion;
  guion.Responde(Respuesta::Si);
  EXPECT_NONFATAL_FAILURE(Error("sin sí"), "no hay esa respuesta");
}

TEST(Guion, UnPasoSobranteEsUnaFalla) {
  EXPECT_NONFATAL_FAILURE(
      {
        Guion guion;
        guion.Responde(Respuesta::Si);
      },
      "le sobran 1 pasos");
}

TEST(Guion, UnPasoQueLanzaEsUnaFallaYLaCajaSeDespide) {
  Guion guion;
  guion.Con([](FXDialogBox* ventana) { Boton(ventana, "&Nada"); });
  EXPECT_NONFATAL_FAILURE(Pregunta("¿?"), "no hay botón &Nada");
}

TEST(Guion, SoloHayUno) {
  Guion guion;
  EXPECT_THROW(Guion(), std::logic_error);
}

TEST(GuionDeathTest, AbortaLoQueSeCuelga) {
  EXPECT_DEATH(
      {
        Guion guion(1);
        for (;;) pause();
      },
      "tiempo agotado en GuionDeathTest.AbortaLoQueSeCuelga");
}

}  // namespace
}  // namespace pruebas
