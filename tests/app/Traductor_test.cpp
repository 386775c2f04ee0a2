// The toolkit's own texts in Spanish, on the boxes where staff meet them.
#include "app/Traductor.h"

#include <gtest/gtest.h>

#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

TEST(Traductor, TraduceLosTextosDeLaBiblioteca) {
  const Traductor traductor(&App());
  const std::pair<const char*, const char*> textos[] = {
      {"&OK", "&Aceptar"}, {"&Cancel", "&Cancelar"}, {"&Yes", "&Sí"}, {"&No", "&No"}, {"&Quit", "&Salir"},
  };
  for (const auto& [ingles, espanol] : textos)
    EXPECT_STREQ(traductor.tr("", ingles, nullptr), espanol) << ingles;
}

TEST(Traductor, DejaLosDemasComoEstan) {
  const Traductor traductor(&App());
  for (const char* texto : {"", "OK", "&ok", "&OK ", "&Monedas", "%s"})
    EXPECT_EQ(traductor.tr("", texto, nullptr), texto) << texto;
}

TEST(Traductor, LasCajasHablanEspanol) {
  const struct {
    FXuint cuales;
    Textos botones;
  } cajas[] = {
      {MBOX_OK, {"&Aceptar"}},
      {MBOX_OK_CANCEL, {"&Aceptar", "&Cancelar"}},
      {MBOX_YES_NO, {"&Sí", "&No"}},
      {MBOX_YES_NO_CANCEL, {"&Sí", "&No", "&Cancelar"}},
      {MBOX_QUIT_CANCEL, {"&Salir", "&Cancelar"}},
  };
  for (const auto& [cuales, botones] : cajas) {
    Guion guion;
    guion.Responde(botones.front());
    FXMessageBox::question(&App(), cuales, "Caja", "¿?");
    EXPECT_EQ(guion.Cuadros().at(0).botones, botones);
  }
}

TEST(Traductor, ElMenuDeLasVentanasHijasHablaEspanol) {
  FXMainWindow duena(&App(), "duena");
  auto* area = new FXMDIClient(&duena);
  FXMDIMenu menu(&duena, area);
  TraduceMenu(&menu);
  Textos entradas, ayudas;
  for (FXMenuCommand* entrada : Todos<FXMenuCommand>(&menu)) {
    entradas.push_back(Rotulo(entrada));
    ayudas.push_back(entrada->getHelpText().text());
  }
  entradas.resize(6);  // the area's open windows follow
  ayudas.resize(6);
  EXPECT_EQ(entradas,
            (Textos{"&Siguiente", "&Anterior", "&Restaurar", "&Minimizar", "Ma&ximizar", "&Cerrar"}));
  EXPECT_EQ(ayudas, (Textos{"Ventana siguiente.", "Ventana anterior.", "Restaurar la ventana.",
                            "Minimizar la ventana.", "Maximizar la ventana.", "Cerrar la ventana."}));
}

}  // namespace
}  // namespace pruebas
