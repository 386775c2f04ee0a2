#include "tests/support/Maltrato.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <map>

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

/// A window that counts what is done to it.
class Victima : public FXMainWindow {
  FXDECLARE(Victima)
 public:
  enum { ID_CORTO = FXMainWindow::ID_LAST, ID_PREGUNTA, ID_DIALOGO, ID_OTROS, ID_CIERRA };

  Victima() : FXMainWindow(&App(), "Víctima", nullptr, nullptr, DECOR_ALL, 0, 0, 500, 400) {
    corto = new FXTextField(this, 3, this, ID_CORTO, TEXTFIELD_LIMITED);
    fijo = new FXTextField(this, 3, nullptr, 0, TEXTFIELD_READONLY);
    parrafo = new FXText(this, nullptr, 0, LAYOUT_FIX_HEIGHT | LAYOUT_FILL_X, 0, 0, 0, 40);
    combo = new FXComboBox(this, 5, this, ID_OTROS);
    for (const char* renglon : {"uno", "dos"}) combo->appendItem(renglon);
    auto* lista = new FXList(this, this, ID_OTROS, LAYOUT_FIX_HEIGHT | LAYOUT_FILL_X, 0, 0, 0, 40);
    lista->appendItem("único");
    new FXCheckButton(this, "casilla", this, ID_OTROS);
    new FXButton(this, "&Pregunta", nullptr, this, ID_PREGUNTA);
    new FXButton(this, "&Diálogo", nullptr, this, ID_DIALOGO);
    new FXButton(this, "&Cerrar", nullptr, this, ID_CIERRA);
    create();
    show(PLACEMENT_SCREEN);
    Bombea();
  }

  long onCambiaCorto(FXObject*, FXSelector, void*) {
    if (desborda) corto->setText("abcdef");
    return 1;
  }
  long onCmdPregunta(FXObject*, FXSelector, void*) {
    ++respuestas[FXMessageBox::question(this, MBOX_YES_NO, "Prueba", "%s", pregunta)];
    return 1;
  }
  long onCmdDialogo(FXObject*, FXSelector, void*) {
    ++respuestas[FXDialogBox(this, "Buscar").execute()];
    return 1;
  }
  long onCmdOtros(FXObject* emisor, FXSelector, void*) {
    ++ordenes[emisor->getClassName()];
    return 1;
  }
  long onCmdCierra(FXObject*, FXSelector, void*) {
    ADD_FAILURE() << "se cerró";
    return 1;
  }

  FXTextField* corto = nullptr;
  FXTextField* fijo = nullptr;
  FXText* parrafo = nullptr;
  FXComboBox* combo = nullptr;
  bool desborda = false;
  const char* pregunta = "¿Sí o no?";
  std::map<FXuint, int> respuestas;
  std::map<std::string, int> ordenes;
};

FXDEFMAP(Victima)
VictimaMap[] = {
    FXMAPFUNC(SEL_CHANGED, Victima::ID_CORTO, Victima::onCambiaCorto),
    FXMAPFUNC(SEL_COMMAND, Victima::ID_PREGUNTA, Victima::onCmdPregunta),
    FXMAPFUNC(SEL_COMMAND, Victima::ID_DIALOGO, Victima::onCmdDialogo),
    FXMAPFUNC(SEL_COMMAND, Victima::ID_OTROS, Victima::onCmdOtros),
    FXMAPFUNC(SEL_COMMAND, Victima::ID_CIERRA, Victima::onCmdCierra),
};

FXIMPLEMENT(Victima, FXMainWindow, VictimaMap, ARRAYNUMBER(VictimaMap))

TEST(Maltrato, LlenaMarcaEligeYPulsaTodoDeAmbasManeras) {
  Victima victima;
  const Textos dichos = Maltrata(&victima);
  const int vueltas = static_cast<int>(TextosDesmedidos().size());
  EXPECT_EQ(dichos, Textos(2 * TextosDesmedidos().size(), "¿Sí o no?"));
  EXPECT_EQ(victima.respuestas,
            (std::map<FXuint, int>{
                {FXuint{MBOX_CLICKED_YES}, vueltas}, {FXuint{MBOX_CLICKED_NO}, vueltas}, {0u, 2 * vueltas}}));
  EXPECT_GE(victima.ordenes["FXComboBox"], 2 * vueltas - 1);  // the first choice may stand already
  EXPECT_EQ(victima.ordenes["FXList"], 2 * vueltas);
  EXPECT_EQ(victima.ordenes["FXCheckButton"], 2 * vueltas);
  EXPECT_EQ(victima.combo->getCurrentItem(), 1);
}

TEST(Maltrato, TecleaEnTodoLoQueSePuedeEditar) {
  Victima victima;
  TecleaEnTodo(&victima, "ñandú\nx");
  EXPECT_EQ(victima.corto->getText(), "ñan");
  EXPECT_EQ(victima.fijo->getText(), "");
  EXPECT_EQ(victima.parrafo->getText(), "ñandú\nx");
}

/// How many failures `accion` would be.
template <class Accion>
int Fallas(Accion accion) {
  testing::TestPartResultArray fallas;
  const testing::ScopedFakeTestPartResultReporter oyente(
      testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &fallas);
  accion();
  return fallas.size();
}

TEST(Maltrato, UnCampoDesbordadoEsUnaFalla) {
  Victima victima;
  victima.desborda = true;
  EXPECT_EQ(Fallas([&] { TecleaEnTodo(&victima, "x"); }), 1);
}

TEST(Maltrato, UnCuadroSinTextoEsUnaFalla) {
  Victima victima;
  victima.pregunta = "";
  EXPECT_EQ(Fallas([&] { Maltrata(&victima); }), 2 * static_cast<int>(TextosDesmedidos().size()));
}

}  // namespace
}  // namespace pruebas
