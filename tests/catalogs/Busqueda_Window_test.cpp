// The search for an account: what the list shows, what each key does, and the round trip of an account
// through the dialog.
#include "catalogs/finance/Busqueda_Window.h"

#include <fxkeys.h>

#include <functional>
#include <memory>

#include "app/sesion.h"
#include "tests/catalogs/Cuentas.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Sesion.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

Textos Renglones(FXWindow* dialogo) {
  const FXList* const lista = Lista(dialogo);
  Textos textos;
  for (FXint i = 0; i < lista->getNumItems(); ++i) textos.emplace_back(lista->getItemText(i).text());
  return textos;
}

/// Is the row within what the list shows without scrolling?
bool ALaVista(FXList* lista, FXint fila) {
  const FXint arriba = lista->getYPosition() + fila * lista->getItemHeight(fila);
  return arriba >= 0 && arriba + lista->getItemHeight(fila) <= lista->getViewportHeight();
}

class Busqueda_WindowTest : public ConDuenia {
 protected:
  void SetUp() override {
    ConDuenia::SetUp();
    PonCarta({Cuenta("1101", "Caja"), Cuenta("1101-01", "Caja general"), Cuenta("1102", "Bancos"),
              Cuenta("2101", "Depósitos de ahorro", "C"), Cuenta("2101-01", "Ahorro à la vista")});
  }
  void TearDown() override {
    dialogo_.reset();
    sbusqueda[0] = '\0';
    ConDuenia::TearDown();
  }

  FXDialogBox* Abre(const std::string& cuenta = "") {
    CopiaTexto(sbusqueda, cuenta.c_str());
    dialogo_ = std::make_unique<Busqueda_Window>(duenia_);
    dialogo_->create();
    dialogo_->show(PLACEMENT_SCREEN);
    Bombea();
    return dialogo_.get();
  }
  void Filtra(const std::string& filtro) {
    Escribe(dialogo_.get(), "Filtro:", filtro);
    Pulsa(Boton(dialogo_.get(), " "));
  }
  std::string Aceptado() {
    Pulsa(Boton(dialogo_.get(), "&Aceptar"));
    return sbusqueda;
  }

  std::unique_ptr<Busqueda_Window> dialogo_;
};

TEST_F(Busqueda_WindowTest, AbreConTodaLaCartaEnSuOrden) {
  EXPECT_EQ(Renglones(Abre()),
            (Textos{Rellenado("1101") + " Caja", Rellenado("1101-01") + " Caja general",
                    Rellenado("1102") + " Bancos", Rellenado("2101") + " Depósitos de ahorro",
                    Rellenado("2101-01") + " Ahorro à la vista"}));
}

TEST_F(Busqueda_WindowTest, AbreEnLaCuentaPedida) {
  PonCarta({Cuenta("1", "uno"), Cuenta("2", "dos"), Cuenta("2", "dos bis"), Cuenta("3", "tres")});
  const struct {
    std::string pedida;
    FXint renglon;
  } casos[] = {
      {"", 0},
      {Rellenado("1"), 0},
      {Rellenado("2"), 1},  // the first of equal ones
      {Rellenado("3"), 3},
      {Rellenado("4"), 0},
      {"3", 0},  // without its blanks it is another number
  };
  for (const auto& [pedida, renglon] : casos)
    EXPECT_EQ(Lista(Abre(pedida))->getCurrentItem(), renglon) << pedida;
}

TEST_F(Busqueda_WindowTest, LaCuentaPedidaEstaALaVista) {
  PonCartaDe(500);
  for (const FXint fila : {0, 9, 10, 250, 499}) {
    FXList* const lista = Lista(Abre(Rellenado(std::to_string(10000000 + fila))));
    EXPECT_TRUE(lista->isItemCurrent(fila));
    EXPECT_TRUE(ALaVista(lista, fila)) << fila;
  }
}

TEST_F(Busqueda_WindowTest, LoTecleadoSoloPuedeSerElComienzoDeUnaCuenta) {
  const struct {
    const char *tecleado, *queda;
    FXint renglon;
  } casos[] = {
      {"", "", 0},  // zero characters are the beginning of the first one
      {"1", "1", 0},
      {"1101-", "1101-", 1},
      {"1102", "1102", 2},
      {"2", "2", 3},
      {"2101-01", "2101-01", 4},
      {"12", "1", 0},
      {"1x1y0z2", "1102", 2},
      {"x", "", 0},
      {"é", "", 0},  // a letter of two bytes is one key
      {"2é1", "21", 3},
      {"Ñ€", "", 0},
      {"   ", "   ", 0},
      {" 2", " 2", 3},
      {"2 ", "2 ", 3},
      {" é", " ", 0},  // what is cut is the text with its blanks, to the length without them
      {"  2x", " ", 3},
      {"%s", "", 0},
      {"'", "", 0},
  };
  for (const auto& [tecleado, queda, renglon] : casos) {
    SCOPED_TRACE(tecleado);
    FXDialogBox* const dialogo = Abre();
    Escribe(dialogo, "Buscar: ", tecleado);
    EXPECT_EQ(Leido(dialogo, "Buscar: "), queda);
    EXPECT_EQ(Lista(dialogo)->getCurrentItem(), renglon);
  }
}

TEST_F(Busqueda_WindowTest, ElCampoDeBuscarTomaVeinteLetrasDeUnaCuentaLarga) {
  PonCarta({Cuenta(std::string(24, '1'), "Larga")});
  FXDialogBox* const dialogo = Abre();
  Escribe(dialogo, "Buscar: ", std::string(50, '1'));
  EXPECT_EQ(Leido(dialogo, "Buscar: "), std::string(20, '1'));
  EligeRenglon(Lista(dialogo), 0);  // which is not typed
  EXPECT_EQ(Leido(dialogo, "Buscar: "), std::string(24, '1'));
}

TEST_F(Busqueda_WindowTest, BorrarTodoVuelveAlPrimerRenglon) {
  FXDialogBox* const dialogo = Abre();
  Escribe(dialogo, "Buscar: ", "2101");
  EXPECT_EQ(Lista(dialogo)->getCurrentItem(), 3);
  Escribe(dialogo, "Buscar: ", "");
  EXPECT_EQ(Lista(dialogo)->getCurrentItem(), 0);
}

TEST_F(Busqueda_WindowTest, LaCuentaHalladaQuedaALaVista) {
  PonCartaDe(500);
  FXDialogBox* const dialogo = Abre();
  Escribe(dialogo, "Buscar: ", "10000321");
  EXPECT_TRUE(Lista(dialogo)->isItemCurrent(321));
  EXPECT_TRUE(ALaVista(Lista(dialogo), 321));
}

TEST_F(Busqueda_WindowTest, ElRenglonElegidoSeCopiaConSusBlancos) {
  FXDialogBox* const dialogo = Abre();
  EligeRenglon(Lista(dialogo), 2);
  EXPECT_EQ(Leido(dialogo, "Buscar: "), Rellenado("1102"));
  EXPECT_EQ(Lista(dialogo)->getCurrentItem(), 2);
  EXPECT_EQ(Aceptado(), Rellenado("1102"));
}

TEST_F(Busqueda_WindowTest, LoTecleadoNoEsElResultado) {
  FXDialogBox* dialogo = Abre(Rellenado("2101"));
  Escribe(dialogo, "Buscar: ", "1102");
  EXPECT_EQ(Aceptado(), "");
  dialogo = Abre();
  EligeRenglon(Lista(dialogo), 2);
  Escribe(dialogo, "Buscar: ", "2101");
  EXPECT_EQ(Aceptado(), Rellenado("1102"));  // the row that was picked before
}

TEST_F(Busqueda_WindowTest, UnNumeroSinRellenarSeLlevaParteDelNombre) {
  const auto sinRellenar = [](const char* numero, const char* nombre) {
    return cCatalogo_Ctas(numero, "", "1", nombre, "A", "A", date(""), date(""), "D", 0, 0, 0, 0, false,
                          false);
  };
  PonCarta({sinRellenar("1101", "Caja"), sinRellenar("1102", "Depósitos de ahorros"),
            sinRellenar("1103", "Depósitos de la nómina")});
  const char* const claves[] = {"1101 Caja", "1102 Depósitos de ahorr", "1103 Depósitos de la n"};
  for (const FXint fila : {0, 1, 2}) {  // 24 bytes, and never half a letter
    EligeRenglon(Lista(Abre()), fila);
    EXPECT_EQ(Aceptado(), claves[fila]);
  }
}

TEST_F(Busqueda_WindowTest, ElFiltroBuscaEnTodoElRenglon) {
  const std::string caja = Rellenado("1101") + "  Caja";  // two blanks, unlike when it opens
  const std::string general = Rellenado("1101-01") + "  Caja general";
  const std::string bancos = Rellenado("1102") + "  Bancos";
  const std::string depositos = Rellenado("2101") + "  Depósitos de ahorro";
  const std::string vista = Rellenado("2101-01") + "  Ahorro à la vista";
  const struct {
    const char* filtro;
    Textos renglones;
  } casos[] = {
      {"Caja", {caja, general}},
      {"caja", {}},
      {"aja g", {general}},
      {"1101", {caja, general}},
      {"-01", {general, vista}},
      {"ó", {depositos}},
      {"Ahorro à", {vista}},
      {"Ahorro à  ", {vista}},
      {"Caja   ", {caja, general}},
      {"  Caja", {caja, general}},
      {"", {caja, general, bancos, depositos, vista}},
      {"     ", {caja, general, bancos, depositos, vista}},
      {"O'Brien", {}},
      {"'; drop table x", {}},
      {"%", {}},
      {"%s%n%s%n", {}},
      {"éééééééééééééééééééé", {}},
  };
  Abre();
  for (const auto& [filtro, renglones] : casos) {
    Filtra(filtro);
    EXPECT_EQ(Renglones(dialogo_.get()), renglones) << filtro;
  }
}

TEST_F(Busqueda_WindowTest, UnRenglonDelFiltroDaSuPropiaCuenta) {
  Abre();
  Filtra("ahorro");
  EligeRenglon(Lista(dialogo_.get()), 0);
  EXPECT_EQ(Leido(dialogo_.get(), "Buscar: "), Rellenado("2101"));
  EXPECT_EQ(Aceptado(), Rellenado("2101"));
}

TEST_F(Busqueda_WindowTest, ElFiltroConservaLaCuentaElegidaAntes) {
  EligeRenglon(Lista(Abre()), 1);
  Filtra("no hay");
  EXPECT_EQ(Aceptado(), Rellenado("1101-01"));
}

TEST_F(Busqueda_WindowTest, UnNombreLargoSeCortaEnUnaLetraEntera) {
  PonCarta({Cuenta("1101", Acentos(100)), Cuenta(Acentos(12), "x" + Acentos(100)),
            Cuenta("2101", std::string(29, 'a') + "b")});
  Abre();
  EXPECT_EQ(Renglones(dialogo_.get()),
            (Textos{Rellenado("1101") + " " + Acentos(14), Acentos(12) + " x" + Acentos(14),
                    Rellenado("2101") + " " + std::string(29, 'a')}));
  Filtra(Acentos(30));  // the field takes 20
  EXPECT_EQ(Renglones(dialogo_.get()), Textos{});
  Filtra(Acentos(13));
  EXPECT_EQ(Lista(dialogo_.get())->getNumItems(), 2);
  Filtra("b");  // beyond what a row shows
  EXPECT_EQ(Lista(dialogo_.get())->getNumItems(), 0);
}

TEST_F(Busqueda_WindowTest, UnaCartaVaciaNoTumbaNada) {
  PonCarta({});
  FXDialogBox* const dialogo = Abre(Rellenado("1101"));
  EXPECT_EQ(Lista(dialogo)->getNumItems(), 0);
  for (const char* tecleado : {"1", "é", "   ", ""}) {
    Escribe(dialogo, "Buscar: ", tecleado);
    EXPECT_EQ(Leido(dialogo, "Buscar: "), "");
  }
  Filtra("  ");
  EXPECT_EQ(Lista(dialogo)->getNumItems(), 0);
  EXPECT_EQ(Aceptado(), "");
}

TEST_F(Busqueda_WindowTest, UnaCartaDeVeinteMilSeUsaIgual) {
  PonCartaDe(20000);
  FXDialogBox* const dialogo = Abre(Rellenado("10019999"));
  EXPECT_TRUE(Lista(dialogo)->isItemCurrent(19999));
  Escribe(dialogo, "Buscar: ", "1001234x5");
  EXPECT_TRUE(Lista(dialogo)->isItemCurrent(12345));
  Filtra("1001999");
  EXPECT_EQ(Lista(dialogo)->getNumItems(), 10);
  EligeRenglon(Lista(dialogo), 9);
  EXPECT_EQ(Aceptado(), Rellenado("10019999"));
}

TEST_F(Busqueda_WindowTest, LaCartaDeLaDemostracionSeRecorreSinPreguntarAlServidor) {
  BaseDatos base;
  const Sesion sesion(base);
  catalogo.LoadCuentas();
  const Espia espia;
  Abre();
  EXPECT_EQ(Lista(dialogo_.get())->getNumItems(),
            std::stoi(base.Valor("select count(*) from norte.catalogo_ctas")));
  Filtra("Caja chica");
  ASSERT_EQ(Lista(dialogo_.get())->getNumItems(), 1);
  EligeRenglon(Lista(dialogo_.get()), 0);
  const std::string elegida = Aceptado();
  EXPECT_EQ(elegida.size(), 24u);
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(base.Valor("select cuentanombre from norte.catalogo_ctas where cuentaid = '" + elegida + "'"),
            "Caja chica");
}

class EligeCuentaTest : public Busqueda_WindowTest {
 protected:
  std::string Elige(const std::string& cuenta, std::function<void(FXDialogBox*)> accion) {
    Guion guion;
    guion.Con(std::move(accion));
    return EligeCuenta(duenia_, cuenta.c_str());
  }
};

TEST_F(EligeCuentaTest, ElResultadoEsElRenglonElegido) {
  EXPECT_EQ(Elige(Rellenado("2101"),
                  [](FXDialogBox* dialogo) {
                    EXPECT_EQ(Lista(dialogo)->getCurrentItem(), 3);
                    EligeRenglon(Lista(dialogo), 1);
                    Pulsa(Boton(dialogo, "&Aceptar"));
                  }),
            Rellenado("1101-01"));
}

TEST_F(EligeCuentaTest, CerrarDevuelveLaCuentaConQueSeAbrio) {
  const std::function<void(FXDialogBox*)> salidas[] = {
      [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Cerrar")); },
      [](FXDialogBox* dialogo) { Tecla(Lista(dialogo), KEY_Escape); },
  };
  for (const auto& salida : salidas) {
    for (const std::string& cuenta : {Rellenado("2101"), std::string("desconocida"), std::string()})
      EXPECT_EQ(Elige(cuenta, salida), cuenta);
  }
}

TEST_F(EligeCuentaTest, AceptarSinElegirLaVacia) {
  EXPECT_EQ(Elige(Rellenado("2101"), [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Aceptar")); }), "");
}

TEST_F(EligeCuentaTest, UnaCuentaDeMasDeVeinticuatroNoCabe) {
  const auto cierra = [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Cerrar")); };
  EXPECT_EQ(Elige(std::string(25, '7'), cierra), std::string(24, '7'));
  EXPECT_EQ(Elige("7" + Acentos(100), cierra), "7" + Acentos(11));
}

TEST_F(EligeCuentaTest, AbreDondeEstaElCursor) {
  App().getRootWindow()->setCursorPosition(640, 500);
  Elige("", [](FXDialogBox* dialogo) {
    EXPECT_LE(dialogo->getX(), 640);
    EXPECT_GE(dialogo->getX() + dialogo->getWidth(), 640);
    EXPECT_LE(dialogo->getY(), 500);
    EXPECT_GE(dialogo->getY() + dialogo->getHeight(), 500);
    Pulsa(Boton(dialogo, "&Cerrar"));
  });
}

TEST_F(Busqueda_WindowTest, FindCuentaDaLaPrimeraOLaPosicionCero) {
  PonCarta({Cuenta("1", "uno"), Cuenta("2", "dos"), Cuenta("2", "dos bis")});
  EXPECT_EQ(FindCuenta(Rellenado("2").c_str()), 1);
  EXPECT_EQ(FindCuenta("2"), 0);
  EXPECT_EQ(FindCuenta(""), 0);
  PonCarta({});
  EXPECT_EQ(FindCuenta(Rellenado("2").c_str()), 0);
}

}  // namespace
}  // namespace pruebas
