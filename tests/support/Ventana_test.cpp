#include "tests/support/Ventana.h"

#include <FXPNGImage.h>
#include <fxkeys.h>
#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

#include "tests/support/Pantalla.h"
#include "tests/support/Proceso.h"

namespace pruebas {
namespace {

// A window as the forms build it: fields in a matrix, joined to variables, a list, buttons.
class Formulario : public FXMainWindow {
  FXDECLARE(Formulario)
 public:
  enum { ID_BOTON = FXMainWindow::ID_LAST, ID_LISTA, ID_MENU };
  explicit Formulario(FXApp* app)
      : FXMainWindow(app, "Prueba", nullptr, nullptr, DECOR_ALL, 0, 0, 400, 300),
        claveDatos(clave),
        valorDatos(valor) {
    menu = new FXMenuPane(this);
    new FXMenuCommand(menu, "&Monedas\tCtl-M\tayuda", nullptr, this, ID_MENU);
    grupo = new FXGroupBox(this, "Datos", FRAME_GROOVE);
    matriz = new FXMatrix(grupo, 2, MATRIX_BY_COLUMNS);
    new FXLabel(matriz, "&Clave:");
    new FXTextField(matriz, 2, &claveDatos, FXDataTarget::ID_VALUE,
                    TEXTFIELD_NORMAL | TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY);
    new FXLabel(matriz, "Valor:");
    new FXTextField(matriz, 10, &valorDatos, FXDataTarget::ID_VALUE, TEXTFIELD_NORMAL | TEXTFIELD_REAL);
    new FXLabel(matriz, "Cuenta:");
    combo = new FXComboBox(new FXHorizontalFrame(matriz), 10, nullptr, 0, COMBOBOX_STATIC);
    combo->appendItem("uno");
    combo->appendItem("dos");
    new FXLabel(matriz, "Valor:");
    new FXTextField(matriz, 10);
    boton = new FXButton(this, "&Aceptar", nullptr, this, ID_BOTON);
    casilla = new FXCheckButton(this, "Casilla");
    lista = new FXList(this, this, ID_LISTA, LIST_BROWSESELECT | LAYOUT_FILL);
    for (int i = 0; i < 100; ++i) lista->appendItem(FXStringFormat("renglón %d", i));
  }
  ~Formulario() override { delete menu; }

  long onBoton(FXObject*, FXSelector, void*) { return ++pulsado; }
  long onLista(FXObject*, FXSelector, void*) { return ++elegido; }
  long onMenu(FXObject*, FXSelector, void*) { return ++opcion; }

  FXString clave = "vieja";
  double valor = 0;
  FXDataTarget claveDatos, valorDatos;
  FXMenuPane* menu = nullptr;
  FXGroupBox* grupo = nullptr;
  FXMatrix* matriz = nullptr;
  FXComboBox* combo = nullptr;
  FXList* lista = nullptr;
  FXButton* boton = nullptr;
  FXCheckButton* casilla = nullptr;
  int pulsado = 0, elegido = 0, opcion = 0;

 protected:
  Formulario() = default;
};

FXDEFMAP(Formulario)
FormularioMap[] = {FXMAPFUNC(SEL_COMMAND, Formulario::ID_BOTON, Formulario::onBoton),
                   FXMAPFUNC(SEL_COMMAND, Formulario::ID_LISTA, Formulario::onLista),
                   FXMAPFUNC(SEL_COMMAND, Formulario::ID_MENU, Formulario::onMenu)};
FXIMPLEMENT(Formulario, FXMainWindow, FormularioMap, ARRAYNUMBER(FormularioMap))

class VentanaTest : public testing::Test {
 protected:
  void SetUp() override {
    forma_->create();
    forma_->show(PLACEMENT_SCREEN);
    Bombea(50);
  }
  void TearDown() override { delete forma_; }

  Formulario* forma_ = new Formulario(&App());
};

TEST_F(VentanaTest, HallaPorRotuloConYSinLetra) {
  EXPECT_EQ(Boton(forma_, "&Aceptar"), forma_->boton);
  EXPECT_EQ(Boton(forma_, "Aceptar"), forma_->boton);
  EXPECT_THROW(Boton(forma_, "A&ceptar"), std::runtime_error);
  EXPECT_THROW(Boton(forma_, "Valor:"), std::runtime_error);
  EXPECT_EQ(Grupo(forma_, "Datos"), forma_->grupo);
  EXPECT_EQ(Lista(forma_), forma_->lista);
  EXPECT_THROW(Lista(forma_, 1), std::runtime_error);
  EXPECT_EQ(Etiquetas(forma_->grupo), (Textos{"&Clave:", "Valor:", "Cuenta:", "Valor:"}));
}

TEST_F(VentanaTest, LoNoHalladoDiceLoQueHay) {
  try {
    Boton(forma_, "&Borrar");
    FAIL() << "no lanzó";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what()).find("&Borrar; dice: \"&Clave:\""), std::string::npos)
        << error.what();
  }
}

TEST_F(VentanaTest, HallaLaPiezaJuntoAUnaEtiqueta) {
  EXPECT_EQ(CampoJuntoA(forma_, "Clave:")->getNumColumns(), 2);
  EXPECT_EQ(JuntoA<FXComboBox>(forma_, "Cuenta:"), forma_->combo);
  EXPECT_EQ(CampoJuntoA(forma_, "Valor:", 1), forma_->matriz->getLast());
  EXPECT_THROW(CampoJuntoA(forma_, "Valor:", 2), std::runtime_error);
  EXPECT_THROW(JuntoA<FXList>(forma_, "Valor:"), std::runtime_error);
}

TEST_F(VentanaTest, EscribeSobreLoQueHayYLlegaALaVariable) {
  EXPECT_EQ(Leido(forma_, "Clave:"), "vieja");
  Escribe(forma_, "Clave:", "Ñá");
  EXPECT_EQ(Leido(forma_, "Clave:"), "Ñá");
  EXPECT_STREQ(forma_->clave.text(), "Ñá");
  Escribe(forma_, "Clave:", "");
  EXPECT_STREQ(forma_->clave.text(), "");
}

TEST_F(VentanaTest, ElLimiteYElFiltroDelCampoValen) {
  Escribe(forma_, "Clave:", "ABCDEF");
  EXPECT_STREQ(forma_->clave.text(), "AB");
  Escribe(forma_, "Valor:", "12x.5");
  EXPECT_EQ(forma_->valor, 12.5);
  CampoJuntoA(forma_, "Clave:")->setEditable(FALSE);
  Escribe(forma_, "Clave:", "Z");
  EXPECT_STREQ(forma_->clave.text(), "AB");
}

TEST_F(VentanaTest, LaVariableCambiadaSeVeTrasBombear) {
  forma_->clave = "XY";
  Bombea();
  EXPECT_EQ(Leido(forma_, "Clave:"), "XY");
}

TEST_F(VentanaTest, PulsaComoUnRaton) {
  Pulsa(forma_->boton);
  EXPECT_EQ(forma_->pulsado, 1);
  Pulsa(forma_->casilla);
  EXPECT_TRUE(forma_->casilla->getCheck());
  Pulsa(Opcion(forma_, "&Monedas"));
  EXPECT_EQ(forma_->opcion, 1);
}

TEST_F(VentanaTest, NoPulsaLoQueUnUsuarioNoAlcanza) {
  forma_->boton->disable();
  EXPECT_THROW(Pulsa(forma_->boton), std::runtime_error);
  forma_->grupo->hide();
  EXPECT_THROW(Escribe(forma_, "Clave:", "x"), std::runtime_error);
  forma_->grupo->show();
  Opcion(forma_, "&Monedas")->disable();
  EXPECT_THROW(Pulsa(Opcion(forma_, "&Monedas")), std::runtime_error);
  EXPECT_EQ(forma_->pulsado + forma_->opcion, 0);
}

TEST_F(VentanaTest, EligeRenglonesVisiblesYLejanos) {
  for (const FXint renglon : {3, 99, 0}) {
    SCOPED_TRACE(renglon);
    const int antes = forma_->elegido;
    EligeRenglon(forma_->lista, renglon);
    EXPECT_EQ(forma_->lista->getCurrentItem(), renglon);
    EXPECT_EQ(forma_->elegido, antes + 1);
  }
}

TEST_F(VentanaTest, EligeEnUnCombo) {
  EligeOpcion(forma_->combo, 1);
  EXPECT_STREQ(forma_->combo->getText().text(), "dos");
}

TEST_F(VentanaTest, ElTabuladorPasaDeCampo) {
  Tecla(CampoJuntoA(forma_, "Clave:"), KEY_Tab);
  EXPECT_EQ(forma_->matriz->getFocus(), CampoJuntoA(forma_, "Valor:"));
}

TEST_F(VentanaTest, BombeaHastaQueSeCumple) {
  int vueltas = 0;
  EXPECT_TRUE(BombeaHasta([&] { return ++vueltas == 3; }));
  EXPECT_EQ(vueltas, 3);
  EXPECT_FALSE(BombeaHasta([] { return false; }, 20));
}

TEST_F(VentanaTest, LaFotoMuestraLaVentana) {
  const CarpetaTemporal carpeta;
  forma_->boton->setBackColor(FXRGB(255, 0, 0));
  Bombea(20);
  const std::string archivo = carpeta.Ruta() / "foto.png";
  Foto(archivo, forma_->boton);
  FXPNGImage foto(&App());
  FXFileStream entrada;
  ASSERT_TRUE(entrada.open(archivo.c_str(), FXStreamLoad));
  ASSERT_TRUE(foto.loadPixels(entrada));
  ASSERT_EQ(foto.getWidth(), forma_->boton->getWidth());
  int rojos = 0;
  for (FXint i = 0; i < foto.getWidth() * foto.getHeight(); ++i)
    rojos += foto.getData()[i] == FXRGB(255, 0, 0);
  EXPECT_GT(rojos, foto.getWidth() * foto.getHeight() / 2);
  EXPECT_THROW(Foto((carpeta.Ruta() / "no" / "hay.png").string()), std::runtime_error);
}

// A child form, as the option handlers open it.
class Hija : public FXMDIChild {
 public:
  Hija(FXMDIClient* cliente, FXMDIMenu* menu)
      : FXMDIChild(cliente, "Hija", nullptr, menu, 0, 20, 20, 300, 200), campo(new FXTextField(this, 10)) {
    ++abiertas;
  }
  ~Hija() override { --abiertas; }

  FXTextField* campo;
  static int abiertas;
};
int Hija::abiertas = 0;

TEST(Area, AbreHijasYLasCierraConsigo) {
  {
    Area area;
    Hija* const una = area.Abre<Hija>();
    Hija* const otra = area.Abre<Hija>();
    for (Hija* hija : {una, otra}) {
      Escribe(hija->campo, "hola");
      EXPECT_STREQ(hija->campo->getText().text(), "hola");
    }
    EXPECT_EQ(Hija::abiertas, 2);
  }
  EXPECT_EQ(Hija::abiertas, 0);
}

TEST(Ajustes, VivenEnUnaCasaPropia) {
  App().reg().writeStringEntry("SETTINGS", "user", "ana");
  EXPECT_TRUE(App().reg().write());
  EXPECT_TRUE(
      std::filesystem::exists(std::filesystem::path(getenv("HOME")) / ".foxrc" / "Tolvara" / "corvena"));
  EXPECT_NE(std::string(getenv("HOME")).find("tolvara-"), std::string::npos);
  SinAjustes();
  EXPECT_STREQ(App().reg().readStringEntry("SETTINGS", "user", "xxx"), "xxx");
}

}  // namespace
}  // namespace pruebas
