// The keyboard in a form: on real windows, with the form of the currencies and one with a paragraph.
#include <gtest/gtest.h>

#include <fxkeys.h>

#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/TipoSocio_Window.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Servidor.h"
#include "tests/support/Sesion.h"
#include "tests/support/Ventana.h"

namespace {

using namespace pruebas;

/// The widget with the keyboard in the window in which `pieza` is.
FXWindow* ConTeclado(FXWindow* pieza) {
  FXWindow* foco = pieza->getShell();
  while (foco->getFocus() != nullptr) foco = foco->getFocus();
  return foco;
}

class FocoTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { base_ = new BaseDatos; }
  static void TearDownTestSuite() { delete base_; }

  void SetUp() override { forma_ = area_.Abre<Monedas_Window>(); }

  FXTextField* Campo(const char* etiqueta) { return CampoJuntoA(forma_, etiqueta); }
  void Teclea(FXuint codigo, FXuint estado = 0, const std::string& texto = "") {
    Tecla(ConTeclado(forma_), codigo, estado, texto);
  }
  /// Name of the widget with the keyboard: label of a button, "lista", or what is left of a field.
  std::string Lugar() {
    FXWindow* const foco = ConTeclado(forma_);
    if (const auto* boton = dynamic_cast<FXButton*>(foco)) return Rotulo(boton);
    if (foco == Lista(forma_)) return "lista";
    for (const char* etiqueta : {"Moneda:", "Descripción:", "Valor :"})
      if (foco == Campo(etiqueta)) return etiqueta;
    return foco->getClassName();
  }

  static BaseDatos* base_;
  Sesion sesion_{*base_};
  Area area_;
  Monedas_Window* forma_ = nullptr;
};

BaseDatos* FocoTest::base_ = nullptr;

TEST_F(FocoTest, UnaFormaSeAbreConElTecladoEnSuClave) { EXPECT_EQ(Lugar(), "Moneda:"); }

TEST_F(FocoTest, ElTabuladorDaLaVueltaPorLosCamposLosBotonesYLaLista) {
  const Textos vuelta = {"Moneda:", "Descripción:", "Valor :",  "&Nuevo", "&Buscar",
                         "&Borrar", "&Cerrar",      "&Aceptar", "lista",  "Moneda:"};
  Textos adelante = {Lugar()}, atras = {Lugar()};
  for (size_t i = 1; i < vuelta.size(); ++i) {
    Teclea(KEY_Tab);
    adelante.push_back(Lugar());
  }
  EXPECT_EQ(adelante, vuelta);
  for (size_t i = 1; i < vuelta.size(); ++i) {
    Teclea(KEY_ISO_Left_Tab, SHIFTMASK);
    atras.push_back(Lugar());
  }
  EXPECT_EQ(atras, Textos(vuelta.rbegin(), vuelta.rend()));
}

TEST_F(FocoTest, NuevoLoDevuelveALaClaveConSuTextoElegido) {
  Escribe(Campo("Valor :"), "12");
  Pulsa(Boton(forma_, "&Nuevo"));
  EXPECT_EQ(Lugar(), "Moneda:");
  Escribe(Campo("Moneda:"), "MX");
  Pulsa(Boton(forma_, "&Buscar"));
  Pulsa(Boton(forma_, "&Nuevo"));
  Teclea(KEY_u, 0, "u");
  EXPECT_EQ(Leido(forma_, "Moneda:"), "u");
}

TEST_F(FocoTest, UnBotonLoDevuelveAlCampoQueLoTenia) {
  Escribe(Campo("Moneda:"), "MX");
  Escribe(Campo("Descripción:"), "x");
  Pulsa(Boton(forma_, "&Buscar"));
  EXPECT_EQ(Lugar(), "Descripción:");
}

TEST_F(FocoTest, UnAceptarRechazadoTambien) {
  Escribe(Campo("Moneda:"), "ZZ");
  Campo("Valor :")->setFocus();
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(forma_, "&Aceptar"));
  EXPECT_EQ(guion.Ultimo().texto, "No ha especificado la descripción");
  EXPECT_EQ(Lugar(), "Valor :");
}

TEST_F(FocoTest, DeBotonEnBotonSeRecuerdaElCampo) {
  Escribe(Campo("Moneda:"), "MX");
  Campo("Valor :")->setFocus();
  Teclea(KEY_Tab);
  Teclea(KEY_Tab);
  EXPECT_EQ(Lugar(), "&Buscar");
  Teclea(KEY_space, 0, " ");
  EXPECT_EQ(Lugar(), "Valor :");
  EXPECT_EQ(Leido(forma_, "Descripción:"),
            base_->Valor("select monedadescri from norte.moneda where monedaid = 'MX'"));
}

TEST_F(FocoTest, AltBBuscaYAltSuprBorra) {
  Escribe(Campo("Moneda:"), "MX");
  const Espia espia;
  Teclea(KEY_b, ALTMASK);
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spsmoneda('MX');"});
  EXPECT_FALSE(moneda.IsNew());

  Guion guion;
  std::string primero;
  FXint arriba = 0;
  guion.Con([&](FXDialogBox* caja) {
    primero = Rotulo(dynamic_cast<FXButton*>(ConTeclado(caja)));
    arriba = caja->getY();
    Pulsa(Boton(caja, "&No"));
  });
  Teclea(KEY_Delete, ALTMASK);
  EXPECT_EQ(guion.Ultimo().texto, "Borrar el registro ?");
  EXPECT_EQ(guion.Ultimo().titulo, "Moneda");
  EXPECT_EQ(primero, "&No");
  FXint x = 0, y = 0;
  forma_->translateCoordinatesTo(x, y, App().getRootWindow(), 0, 0);
  EXPECT_GE(arriba, y + forma_->getHeight()) << "the box hides the fields";
  EXPECT_EQ(base_->Valor("select count(*) from norte.moneda where monedaid = 'MX'"), "1");
}

TEST_F(FocoTest, UnaLetraEnLaListaSoloMira) {
  FXList* const lista = Lista(forma_);
  ASSERT_GT(lista->getNumItems(), 1);
  Escribe(Campo("Moneda:"), "ZZ");
  Escribe(Campo("Descripción:"), "Zloty");
  const FXint ultimo = lista->getNumItems() - 1;
  for (const std::string letra : {std::string(1, lista->getItemText(ultimo)[0]), std::string("~")}) {
    Tecla(lista, static_cast<FXuint>(letra[0]), 0, letra);
    EXPECT_EQ(Leido(forma_, "Moneda:"), "ZZ") << letra;
    EXPECT_EQ(Leido(forma_, "Descripción:"), "Zloty") << letra;
  }
  EXPECT_EQ(Lugar(), "lista");
  Tecla(lista, KEY_Return);
  EXPECT_EQ(Leido(forma_, "Descripción:"), lista->getItemText(lista->getCurrentItem()).text());
  EXPECT_EQ(Lugar(), "lista");
}

TEST_F(FocoTest, ElTabuladorPasaDeUnParrafo) {
  auto* const dialogo = area_.Abre<TipoSocio_Window>();
  FXText* const parrafo = Todos<FXText>(dialogo).at(0);
  Escribe(parrafo, "uno");
  Tecla(parrafo, KEY_Tab, 0, "\t");
  EXPECT_NE(ConTeclado(dialogo), parrafo);
  EXPECT_EQ(parrafo->getText(), "uno");
  Tecla(parrafo, KEY_ISO_Left_Tab, SHIFTMASK);
  EXPECT_NE(ConTeclado(dialogo), parrafo);
  EXPECT_EQ(parrafo->getText(), "uno");
}

}  // namespace
