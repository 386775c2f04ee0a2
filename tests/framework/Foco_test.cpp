// The keyboard in a form: on real windows, with the form of the currencies and one with a paragraph.
#include <gtest/gtest.h>

#include <fxkeys.h>

#include "catalogs/finance/Banco_Window.h"
#include "catalogs/finance/TipoPrestamo_Window.h"
#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/TipoMoviBanco_Window.h"
#include "catalogs/simple/TipoSocio_Window.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
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

TEST_F(FocoTest, AltBBuscaYAltRBorra) {
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
  Teclea(KEY_r, ALTMASK);
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
  for (const std::string& letra : {std::string(1, lista->getItemText(ultimo)[0]), std::string("~")}) {
    Tecla(lista, static_cast<FXuint>(letra[0]), 0, letra);
    EXPECT_EQ(Leido(forma_, "Moneda:"), "ZZ") << letra;
    EXPECT_EQ(Leido(forma_, "Descripción:"), "Zloty") << letra;
  }
  EXPECT_EQ(Lugar(), "lista");
  Tecla(lista, KEY_Return);
  EXPECT_EQ(Leido(forma_, "Descripción:"), lista->getItemText(lista->getCurrentItem()).text());
  EXPECT_EQ(Lugar(), "lista");
}

TEST_F(FocoTest, F5ReleeLaListaYDejaLoQueSeEscribio) {
  FXList* const lista = Lista(forma_);
  lista->setCurrentItem(1);
  const FXString marcada = lista->getItemText(1);
  Escribe(Campo("Moneda:"), "ZZ");
  Escribe(Campo("Descripción:"), "Zloty");
  base_->Ejecuta("insert into norte.moneda values ('Z1', 1, ' Aaa')");
  const int antes = lista->getNumItems();
  const Espia espia;
  Teclea(KEY_F5);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "SELECT * FROM spsmoneda('  ');", "COMMIT;"}));
  EXPECT_EQ(lista->getNumItems(), antes + 1);
  EXPECT_EQ(lista->getItemText(lista->getCurrentItem()), marcada);
  EXPECT_EQ(Leido(forma_, "Moneda:"), "ZZ");
  EXPECT_EQ(Leido(forma_, "Descripción:"), "Zloty");
  EXPECT_EQ(Lugar(), "Descripción:");
  base_->Ejecuta("delete from norte.moneda where monedaid = 'Z1'");
}

TEST_F(FocoTest, F5SinServidorLoDice) {
  Escribe(Campo("Moneda:"), "ZZ");
  Espia espia;
  espia.En(0, falla::Nula());
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Teclea(KEY_F5);
  EXPECT_EQ(guion.Ultimo().titulo, "Error en Validación");
  EXPECT_EQ(Leido(forma_, "Moneda:"), "ZZ");
}

TEST_F(FocoTest, CtrlTabDaLaVueltaPorLasFormas) {
  Campo("Valor :")->setFocus();
  auto* const otra = area_.Abre<TipoMoviBanco_Window>();
  auto* const tercera = area_.Abre<Banco_Window>();
  const auto activa = [&] { return static_cast<FXMDIClient*>(forma_->getParent())->getActiveChild(); };
  const std::vector<FXMDIChild*> vuelta = {tercera, forma_, otra, tercera};
  for (size_t i = 0; i + 1 < vuelta.size(); ++i) {
    ASSERT_EQ(activa(), vuelta[i]);
    Teclea(KEY_Tab, CONTROLMASK);
    EXPECT_EQ(activa(), vuelta[i + 1]);
    EXPECT_TRUE(vuelta[i + 1]->containsChild(ConTeclado(forma_)));
    if (vuelta[i + 1] == forma_) {
      EXPECT_EQ(Lugar(), "Valor :");
    }
  }
  Teclea(KEY_ISO_Left_Tab, CONTROLMASK | SHIFTMASK);
  EXPECT_EQ(activa(), otra);
}

TEST_F(FocoTest, UnaFormaQueSeCierraDejaElTecladoALaOtra) {
  Campo("Valor :")->setFocus();
  auto* const otra = area_.Abre<TipoMoviBanco_Window>();
  Pulsa(Boton(otra, "&Cerrar"));
  Bombea();
  EXPECT_EQ(Lugar(), "Valor :");
}

TEST_F(FocoTest, UnaPiezaQueDesapareceDejaElTecladoALaForma) {
  Campo("Valor :")->setFocus();
  Campo("Valor :")->hide();
  Bombea();
  EXPECT_EQ(Lugar(), "Moneda:");
}

/// A form with pages.
class FocoEnPaginasTest : public FocoTest {
 protected:
  void SetUp() override {
    catalogo.LoadFinalidades();
    prestamos_ = area_.Abre<TipoPrestamo_Window>();
  }
  FXWindow* Foco() { return ConTeclado(prestamos_); }
  void Teclea(FXuint codigo, FXuint estado = 0) { Tecla(Foco(), codigo, estado); }
  FXint Pagina() { return Todos<FXTabBook>(prestamos_)[0]->getCurrent(); }
  bool EnLaPagina() {
    return Todos<FXTabBook>(prestamos_)[0]->childAtIndex(2 * Pagina() + 1)->containsChild(Foco());
  }

  TipoPrestamo_Window* prestamos_ = nullptr;
};

TEST_F(FocoEnPaginasTest, ElTabuladorEntraEnLaPaginaYSigueConLosBotonesYLaLista) {
  for (FXint pagina = 0; pagina < 6; ++pagina) {
    SCOPED_TRACE(pagina);
    Hojea(prestamos_, pagina);
    CampoJuntoA(prestamos_, "Clave:")->setFocus();
    Teclea(KEY_Tab);
    ASSERT_TRUE(EnLaPagina());
    size_t enLaPagina = 1;
    for (Teclea(KEY_Tab); EnLaPagina(); Teclea(KEY_Tab)) ++enLaPagina;
    EXPECT_GE(enLaPagina, 8u);
    Textos despues = {Rotulo(dynamic_cast<FXButton*>(Foco()))};
    for (int i = 0; i < 4; ++i) {
      Teclea(KEY_Tab);
      despues.push_back(Rotulo(dynamic_cast<FXButton*>(Foco())));
    }
    EXPECT_EQ(despues, (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
    Teclea(KEY_Tab);
    EXPECT_EQ(Foco(), Lista(prestamos_));
    Teclea(KEY_Tab);
    EXPECT_EQ(Foco(), CampoJuntoA(prestamos_, "Clave:"));
    EXPECT_EQ(Pagina(), pagina);
    Teclea(KEY_ISO_Left_Tab, SHIFTMASK);
    EXPECT_EQ(Foco(), Lista(prestamos_));
  }
}

TEST_F(FocoEnPaginasTest, HaciaAtrasSeEntraPorElUltimoCampoDeLaPagina) {
  Boton(prestamos_, "&Nuevo")->setFocus();
  Teclea(KEY_ISO_Left_Tab, SHIFTMASK);
  EXPECT_TRUE(EnLaPagina());
  size_t campos = 1;
  for (Teclea(KEY_ISO_Left_Tab, SHIFTMASK); EnLaPagina(); Teclea(KEY_ISO_Left_Tab, SHIFTMASK)) ++campos;
  EXPECT_GE(campos, 8u);
  EXPECT_EQ(Foco(), CampoJuntoA(prestamos_, "Clave:"));
}

TEST_F(FocoEnPaginasTest, CtrlConLasTeclasDePaginaHojea) {
  Teclea(KEY_Page_Down, CONTROLMASK);
  EXPECT_EQ(Pagina(), 1);
  EXPECT_EQ(Foco(), CampoJuntoA(prestamos_, "Clave:")) << "the key is on every page";
  Teclea(KEY_Tab);
  EXPECT_TRUE(EnLaPagina());
  Teclea(KEY_Page_Up, CONTROLMASK);
  Teclea(KEY_Page_Up, CONTROLMASK);
  EXPECT_EQ(Pagina(), 5);
  EXPECT_TRUE(EnLaPagina()) << "it goes along";
  Teclea(KEY_Page_Down, CONTROLMASK);
  EXPECT_EQ(Pagina(), 0);
  EXPECT_TRUE(EnLaPagina());
}

TEST_F(FocoEnPaginasTest, UnaListaDesplegableSeManejaConTeclas) {
  auto* const combo = JuntoA<FXComboBox>(prestamos_, "Finalidad de Default:");
  FXList* const lista = dynamic_cast<FXList*>(Todos<FXMenuButton>(combo).at(0)->getMenu()->getFirst());
  ASSERT_NE(lista, nullptr);
  combo->setCurrentItem(0);
  const FXString primera = combo->getText();
  FXTextField* const campo = Todos<FXTextField>(combo).at(0);
  campo->setFocus();

  Teclea(KEY_Down, ALTMASK);
  ASSERT_TRUE(combo->isPaneShown());
  Teclea(KEY_Down);
  Teclea(KEY_Down);
  EXPECT_TRUE(combo->isPaneShown());
  EXPECT_EQ(combo->getText(), primera);
  const Espia espia;
  Tecla(Foco(), KEY_b, ALTMASK);
  EXPECT_EQ(espia.Sentencias(), Textos{}) << "&Buscar lies behind";
  EXPECT_TRUE(combo->isPaneShown());
  Teclea(KEY_Escape);
  EXPECT_FALSE(combo->isPaneShown());
  EXPECT_EQ(combo->getText(), primera);
  EXPECT_EQ(combo->getCurrentItem(), 0);

  Teclea(KEY_F4);
  Teclea(KEY_Down);
  Teclea(KEY_Return);
  EXPECT_FALSE(combo->isPaneShown());
  EXPECT_EQ(combo->getCurrentItem(), 1);
  EXPECT_EQ(combo->getText(), lista->getItemText(1));
  EXPECT_EQ(Foco(), campo);

  const FXString ultima = lista->getItemText(lista->getNumItems() - 1);
  Tecla(Foco(), static_cast<FXuint>(ultima[0]), 0, std::string(1, ultima[0]));
  EXPECT_TRUE(combo->isPaneShown());
  Teclea(KEY_Tab);
  EXPECT_FALSE(combo->isPaneShown()) << "leaving closes it";
  EXPECT_EQ(combo->getCurrentItem(), 1) << "and takes nothing";
}

TEST_F(FocoTest, UnaComaEnUnImporteSeRechazaALaVista) {
  FXTextField* const valor = Campo("Valor :");
  const FXColor fondo = valor->getBackColor();
  Escribe(valor, "18,90");
  EXPECT_EQ(valor->getText(), "1890");
  EXPECT_NE(valor->getBackColor(), fondo) << "it stays red while one types on";
  Teclea(KEY_Tab);
  EXPECT_NE(valor->getBackColor(), fondo) << "and when the field is left";
  valor->setFocus();
  EXPECT_EQ(valor->getBackColor(), fondo);
  Escribe(valor, "18,");
  EXPECT_NE(valor->getBackColor(), fondo);
  Tecla(valor, KEY_BackSpace);
  EXPECT_EQ(valor->getBackColor(), fondo);
  Escribe(valor, "1,");
  Pulsa(Boton(forma_, "&Nuevo"));
  EXPECT_EQ(valor->getBackColor(), fondo);
}

TEST_F(FocoTest, LoQuePegarNoCabeDejaElCampoComoEstaba) {
  FXTextField* const descripcion = Campo("Descripción:");
  const auto copia = [&](const char* texto) {
    descripcion->setText(texto);
    descripcion->setFocus();
    descripcion->selectAll();
    descripcion->handle(descripcion, FXSEL(SEL_COMMAND, FXTextField::ID_COPY_SEL), nullptr);
  };
  const struct {
    const char* etiqueta;
    const char* habia;
    const char* pegado;
    const char* queda;
  } casos[] = {
      {"Valor :", "12.5", "mil", "12.5"},    {"Valor :", "12.5", "1,000", "12.5"},
      {"Valor :", "12.5", "7.25\n", "7.25"}, {"Moneda:", "MX", "DOLAR", "MX"},
      {"Moneda:", "MX", "US", "US"},
  };
  for (const auto& [etiqueta, habia, pegado, queda] : casos) {
    SCOPED_TRACE(std::string(etiqueta) + pegado);
    copia(pegado);
    FXTextField* const campo = Campo(etiqueta);
    Escribe(campo, habia);
    campo->selectAll();
    Tecla(campo, KEY_v, CONTROLMASK);
    EXPECT_EQ(campo->getText(), queda);
    if (FXString(queda) != habia) continue;
    EXPECT_TRUE(campo->hasSelection());
    EXPECT_NE(campo->getBackColor(), descripcion->getBackColor());
  }
  copia("dos\tpalabras");
  FXTextField* const campo = Campo("Descripción:");
  campo->selectAll();
  Tecla(campo, KEY_v, CONTROLMASK);
  EXPECT_EQ(campo->getText(), "dos palabras");
}

TEST_F(FocoTest, UnRenglonCortadoSeVeEnteroComoAviso) {
  FXList* const lista = Lista(forma_);
  lista->appendItem("Una descripción que no cabe en la lista ni mucho menos");
  lista->layout();
  Bombea();
  const auto aviso = [&](FXint renglon) {
    FXEvent evento{};
    evento.win_x = 5;
    evento.win_y = lista->getItemHeight(0) * renglon + 3;
    lista->setPosition(0, 0);
    lista->handle(lista, FXSEL(SEL_MOTION, 0), &evento);
    lista->handle(lista, FXSEL(SEL_TIMEOUT, FXWindow::ID_TIPTIMER), nullptr);
    FXLabel oyente(forma_, "");
    lista->handle(&oyente, FXSEL(SEL_QUERY_TIP, 0), nullptr);
    return std::string(oyente.getText().text());
  };
  EXPECT_EQ(aviso(0), "");
  const FXint ultimo = lista->getNumItems() - 1;
  EXPECT_EQ(aviso(ultimo), lista->getItemText(ultimo).text());
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
