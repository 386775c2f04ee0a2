// The account field, on a dialog with three accounts of which one has a dead search button: what its combo
// box offers, what a choice and a search store, and what the form's commands make of it.
#include "catalogs/finance/CampoCuenta.h"

#include <functional>
#include <memory>

#include "catalogs/finance/Busqueda_Window.h"
#include "framework/Forma.h"
#include "framework/Registro.h"
#include "tests/catalogs/Cuentas.h"
#include "tests/support/Guion.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Sesion.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

class cFicha : public Registro<cFicha> {
 public:
  cFicha() { Clear(); }

  void setFichaID(const char* valor) { Pon(FichaID, valor); }
  void setCuentaDeposito(const char* valor) { Pon(CuentaDeposito, valor); }
  void setCuentaRetiro(const char* valor) { Pon(CuentaRetiro, valor); }
  void setCuentaISR(const char* valor) { Pon(CuentaISR, valor); }
  const char* getFichaID() const { return FichaID; }
  const char* getCuentaDeposito() const { return CuentaDeposito; }
  const char* getCuentaRetiro() const { return CuentaRetiro; }
  const char* getCuentaISR() const { return CuentaISR; }

  bool Check() { return true; }
  const char* clase() const { return "Ficha"; }

 private:
  friend Registro<cFicha>;
  auto Columnas() { return std::tie(FichaID, CuentaDeposito, CuentaRetiro, CuentaISR); }
  const char* Clave() const { return FichaID; }
  Sentencia SqlAddNew() const { return Sentencia("select spificha('%s');", FichaID); }
  Sentencia SqlUpdate() const { return Sentencia("select spuficha('%s');", FichaID); }
  Sentencia SqlDelete() const { return Sentencia("SELECT spdficha('%s');", FichaID); }
  Sentencia SqlFind() const { return Sentencia("SELECT * FROM spsficha('%s');", FichaID); }

  char FichaID[3];
  char CuentaDeposito[25];
  char CuentaRetiro[25];
  char CuentaISR[25];
};

cFicha ficha;
std::map<int, cFicha> fichas;

#define CUENTAS_FICHA(CUENTA)                                             \
  CUENTA("Cta. Deposito:", CuentaDeposito, onCmdCuentaDeposito)           \
  CUENTA("Cta. Retiro:", CuentaRetiro, onCmdCuentaRetiro, BusquedaMuerta) \
  CUENTA("Cuenta ISR:", CuentaISR, onCmdImpuesto)

class Ficha_Window : public Forma<Ficha_Window, FXDialogBox, SinBuscar> {
  FXDECLARE(Ficha_Window)
 public:
  enum { CUENTAS_FICHA(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_CUENTA = Forma::ID_LISTA + 1,
    ID_BUSCAR = ID_CUENTA + NumCuentas,
    ID_SALIR = ID_BUSCAR + NumCuentas,
  };

  explicit Ficha_Window(FXWindow* duenia) : Forma(duenia, "Fichas") {
    ArmaLista("Fichas");
    FXMatrix* const matriz = ArmaGrupo("Datos");
    campoClave(matriz, "Clave:", 2, id);
    cuentas.Arma(matriz, CuentaDeposito, CuentaISR);
    ArmaBotones();
    cuentas.Llena();
    Comienza();
  }

  CUENTAS_FICHA(CUENTA_MANEJADOR)
  long onCmdBuscar(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }

 protected:
  Ficha_Window() {}

 private:
  friend Forma;
  using cRegistro = cFicha;

  cFicha& Actual() { return ficha; }
  std::map<int, cFicha>& Filas() { return fichas; }
  void Relee() {}
  const char* Renglon(const cFicha& fila) { return fila.getFichaID(); }
  auto Datos() {
    return std::tuple(Liga(id, &cFicha::getFichaID, &cFicha::setFichaID) CUENTAS_FICHA(CUENTA_LIGA));
  }

  DatoTexto id;
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_FICHA(CUENTA_FILA)}};
};

MAPA_FORMA_CORTA(Ficha_Window, onCmdLista, MANDO_CUENTA(Ficha_Window, CuentaISR, onCmdImpuesto),
                 MANDO_CUENTA(Ficha_Window, CuentaDeposito, onCmdCuentaDeposito),
                 MANDO_CUENTA(Ficha_Window, CuentaRetiro, onCmdCuentaRetiro),
                 MANDO_BUSCA(Ficha_Window, CuentaDeposito, CuentaISR, onCmdBuscar))

const char* const Campos[] = {"Cta. Deposito:", "Cta. Retiro:", "Cuenta ISR:"};

class CampoCuentaTest : public ConDuenia {
 protected:
  void SetUp() override {
    ConDuenia::SetUp();
    ficha = cFicha();
    PonCarta({Cuenta("1101", "Caja", "C"), Cuenta("1102", "Bancos"), Cuenta("2101", "Depósitos de ahorro")});
  }
  void TearDown() override {
    forma_.reset();
    fichas.clear();
    ConDuenia::TearDown();
  }

  Ficha_Window* Abre() {
    forma_ = std::make_unique<Ficha_Window>(duenia_);
    forma_->create();
    forma_->show(PLACEMENT_SCREEN);
    Bombea();
    return forma_.get();
  }
  FXComboBox* Combo(const std::string& campo) { return JuntoA<FXComboBox>(forma_.get(), campo); }
  FXButton* Lupa(const std::string& campo) {
    for (FXButton* boton : Todos<FXButton>(PiezaJuntoA(forma_.get(), campo)))
      if (boton->getParent() == PiezaJuntoA(forma_.get(), campo)) return boton;
    return nullptr;
  }
  /// Presses the search button and does something in the dialog.
  void Busca(const std::string& campo, std::function<void(FXDialogBox*)> accion) {
    Guion guion;
    guion.Con(std::move(accion));
    Pulsa(Lupa(campo));
  }
  /// What the form hands to the record, in the order of the fields.
  Textos Guardado() {
    forma_->Update();
    return {ficha.getCuentaDeposito(), ficha.getCuentaRetiro(), ficha.getCuentaISR()};
  }
  /// Shows a record with these accounts.
  void Muestra(const std::string& deposito, const std::string& retiro, const std::string& isr) {
    ficha.setCuentaDeposito(deposito.c_str());
    ficha.setCuentaRetiro(retiro.c_str());
    ficha.setCuentaISR(isr.c_str());
    forma_->Read();
  }

  std::unique_ptr<Ficha_Window> forma_;
};

TEST_F(CampoCuentaTest, CadaCuentaEsEtiquetaComboYLupa) {
  Abre();
  EXPECT_EQ(Etiquetas(Grupo(forma_.get(), "Datos")),
            (Textos{"Clave:", "Cta. Deposito:", "Cta. Retiro:", "Cuenta ISR:"}));
  for (const char* campo : Campos) {
    FXComboBox* const combo = Combo(campo);
    EXPECT_EQ(combo->getParent()->getMetaClass(), FXMETACLASS(FXHorizontalFrame));
    EXPECT_EQ(combo->getComboStyle(), FXuint{COMBOBOX_STATIC});
    EXPECT_EQ(combo->getNumColumns(), 2);
    EXPECT_EQ(combo->getNumVisible(), 10);
    EXPECT_EQ(combo->getNext(), Lupa(campo));
    EXPECT_EQ(Lupa(campo)->getText(), "");
    EXPECT_EQ(Lupa(campo)->getIcon(), icono(&App(), iconos::find_icon));
    EXPECT_EQ(combo->getTarget(), forma_.get());
    EXPECT_EQ(Lupa(campo)->getTarget(), forma_.get());
  }
}

TEST_F(CampoCuentaTest, UnaFormaAngostaEncogeElComboYNoTapaLaLupa) {
  Abre();
  for (const FXint cambio : {0, -80, 80}) {
    forma_->resize(forma_->getDefaultWidth() + cambio, forma_->getHeight());
    Bombea();
    const FXWindow* const marco = PiezaJuntoA(forma_.get(), "Cta. Deposito:");
    EXPECT_EQ(Lupa("Cta. Deposito:")->getX() + Lupa("Cta. Deposito:")->getWidth(), marco->getWidth());
    EXPECT_LE(marco->getX() + marco->getWidth(), marco->getParent()->getWidth());
  }
}

TEST_F(CampoCuentaTest, CadaComboTieneSuPropiaLetra) {
  Abre();
  for (const char* campo : Campos) {
    const FXFont* const letra = Combo(campo)->getFont();
    EXPECT_EQ(letra->getName(), "helvica");
    EXPECT_EQ(letra->getSize(), 80u);
    EXPECT_EQ(letra->getWeight(), FXuint{FXFont::Normal});
    EXPECT_EQ(letra->getSlant(), FXuint{FXFont::Straight});
  }
  EXPECT_NE(Combo(Campos[0])->getFont(), Combo(Campos[1])->getFont());
  EXPECT_NE(Combo(Campos[1])->getFont(), Combo(Campos[2])->getFont());
}

TEST_F(CampoCuentaTest, CadaComboOfreceTodasLasCuentas) {
  PonCarta({Cuenta("1101", "Caja", "C"), Cuenta("123456789012345678901234", std::string(50, 'n')),
            Cuenta("x" + Acentos(11), Acentos(100)), Cuenta("1101", "Caja")});
  Abre();
  for (const char* campo : Campos) {
    FXComboBox* const combo = Combo(campo);
    ASSERT_EQ(combo->getNumItems(), 4);
    EXPECT_EQ(combo->getItemText(0), "1101                Caja");
    EXPECT_EQ(combo->getItemText(1), ("123456789012345678  " + std::string(29, 'n')).c_str());
    EXPECT_EQ(combo->getItemText(2), ("x" + Acentos(8) + "  " + Acentos(14)).c_str());  // no half letters
    EXPECT_EQ(combo->getItemText(3), combo->getItemText(0));
    for (FXint i = 0; i < 4; ++i) EXPECT_EQ(combo->getItemData(i), nullptr);
  }
  EXPECT_STREQ(sCuenta, "1101                Caja");
}

TEST_F(CampoCuentaTest, AlAbrirNingunaCuentaEstaElegida) {
  Abre();
  for (const char* campo : Campos) {
    EXPECT_EQ(Combo(campo)->getCurrentItem(), -1);
    EXPECT_EQ(Combo(campo)->getText(), "");
  }
  EXPECT_EQ(Guardado(), (Textos{"", "", ""}));
}

TEST_F(CampoCuentaTest, LaCuentaElegidaLlegaEnteraASuCampo) {
  for (size_t cual = 0; cual < 3; ++cual) {
    SCOPED_TRACE(Campos[cual]);
    Abre();
    EligeOpcion(Combo(Campos[cual]), 2);
    Textos esperado(3);
    esperado[cual] = Rellenado("2101");
    EXPECT_EQ(Guardado(), esperado);
    ficha = cFicha();
  }
}

TEST_F(CampoCuentaTest, LosManejadoresRespondenUno) {
  Abre();
  EXPECT_EQ(forma_->onCmdCuentaDeposito(nullptr, 0, nullptr), 1);
  EXPECT_EQ(forma_->onCmdImpuesto(nullptr, 0, nullptr), 1);
  EXPECT_EQ(forma_->onCmdBuscar(nullptr, Ficha_Window::ID_BUSCAR + Ficha_Window::CuentaRetiro, nullptr), 1);
}

TEST_F(CampoCuentaTest, UnaCuentaQueNoEsAfectableTambienSeElige) {
  Abre();
  ASSERT_FALSE(catalogo.EsAfectable(Rellenado("1101").c_str()));
  EligeOpcion(Combo("Cta. Retiro:"), 0);
  EXPECT_EQ(Guardado()[1], Rellenado("1101"));
}

TEST_F(CampoCuentaTest, LeerMuestraCadaCuenta) {
  Abre();
  Muestra(Rellenado("2101"), Rellenado("1102"), Rellenado("1101"));
  EXPECT_EQ(Combo(Campos[0])->getCurrentItem(), 2);
  EXPECT_EQ(Combo(Campos[1])->getCurrentItem(), 1);
  EXPECT_EQ(Combo(Campos[2])->getCurrentItem(), 0);
  EXPECT_EQ(Guardado(), (Textos{Rellenado("2101"), Rellenado("1102"), Rellenado("1101")}));
}

TEST_F(CampoCuentaTest, UnaCuentaVaciaODesconocidaMuestraLaPrimeraYSeConserva) {
  Abre();
  Muestra("", "9999", "2101");  // the last one lacks its blanks
  for (const char* campo : Campos) EXPECT_EQ(Combo(campo)->getCurrentItem(), 0);
  EXPECT_EQ(Guardado(), (Textos{"", "9999", "2101"}));
}

TEST_F(CampoCuentaTest, ElegirLaPrimeraQueYaSeMuestraLaGuarda) {
  Abre();
  Muestra("", "", "");
  Combo("Cta. Retiro:")
      ->handle(&App(), FXSEL(SEL_COMMAND, FXComboBox::ID_LIST), nullptr);  // a click on item 0
  EXPECT_EQ(Guardado(), (Textos{"", Rellenado("1101"), ""}));
}

TEST_F(CampoCuentaTest, NuevoVaciaElCampoYNoDejaCuentaElegida) {
  Abre();
  Muestra(Rellenado("2101"), Rellenado("1102"), "");
  Pulsa(Boton(forma_.get(), "&Nuevo"));
  for (const char* campo : Campos) EXPECT_EQ(Combo(campo)->getCurrentItem(), -1);
  EXPECT_EQ(Guardado(), (Textos{"", "", ""}));
}

TEST_F(CampoCuentaTest, ElRenglonDeLaListaMuestraSusCuentas) {
  cFicha guardada;
  guardada.setFichaID("A");
  guardada.setCuentaISR(Rellenado("1102").c_str());
  fichas = {{0, guardada}};
  Abre();
  EligeRenglon(Lista(forma_.get()), 0);
  EXPECT_EQ(Combo("Cuenta ISR:")->getCurrentItem(), 1);
  EXPECT_STREQ(ficha.getCuentaISR(), Rellenado("1102").c_str());
}

TEST_F(CampoCuentaTest, LaBusquedaParteDeLaCuentaYDejaLaHallada) {
  Abre();
  Muestra("", "", Rellenado("1102"));
  Busca("Cuenta ISR:", [](FXDialogBox* dialogo) {
    EXPECT_EQ(dialogo->getMetaClass(), FXMETACLASS(Busqueda_Window));
    EXPECT_EQ(Lista(dialogo)->getCurrentItem(), 1);
    EligeRenglon(Lista(dialogo), 2);
    Pulsa(Boton(dialogo, "&Aceptar"));
  });
  EXPECT_EQ(Combo("Cuenta ISR:")->getCurrentItem(), 2);
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), 0);
  EXPECT_EQ(Guardado(), (Textos{"", "", Rellenado("2101")}));
}

TEST_F(CampoCuentaTest, CerrarLaBusquedaDejaLaCuenta) {
  Abre();
  const auto cierra = [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Cerrar")); };
  Busca("Cta. Deposito:", cierra);
  EXPECT_EQ(Guardado()[0], "");
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), 0);  // the first one, for an empty value
  Muestra(Rellenado("2101"), "", "");
  Busca("Cta. Deposito:", cierra);
  EXPECT_EQ(Guardado()[0], Rellenado("2101"));
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), 2);
}

TEST_F(CampoCuentaTest, AceptarLaBusquedaSinElegirVaciaLaCuenta) {
  Abre();
  Muestra(Rellenado("2101"), "", "");
  Busca("Cta. Deposito:", [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Aceptar")); });
  EXPECT_EQ(Guardado()[0], "");
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), 0);
}

TEST_F(CampoCuentaTest, UnaLupaMuertaNoAbreNadaYSuComboSirve) {
  Abre();
  Muestra("", Rellenado("1102"), "");
  {
    const Guion guion;  // any dialog would fail the test
    Pulsa(Lupa("Cta. Retiro:"));
  }
  EXPECT_EQ(Guardado()[1], Rellenado("1102"));
  EligeOpcion(Combo("Cta. Retiro:"), 2);
  EXPECT_EQ(Guardado()[1], Rellenado("2101"));
}

TEST_F(CampoCuentaTest, UnaCartaVaciaNoOfreceNada) {
  PonCarta({});
  Abre();
  EXPECT_EQ(Combo("Cta. Deposito:")->getNumItems(), 0);
  Muestra(Rellenado("2101"), "", "");
  Busca("Cta. Deposito:", [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Cerrar")); });
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), -1);
  EXPECT_EQ(Guardado()[0], Rellenado("2101"));
}

TEST_F(CampoCuentaTest, UnaCartaReleidaMasCortaDejaElValor) {
  Abre();
  Muestra(Rellenado("2101"), "", "");
  PonCarta({Cuenta("1101", "Caja")});
  EligeOpcion(Combo("Cta. Deposito:"), 1);  // the combo still offers what is gone
  EXPECT_EQ(Guardado()[0], Rellenado("2101"));
  forma_->Read();
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), 0);
  EXPECT_EQ(Guardado()[0], Rellenado("2101"));
}

TEST_F(CampoCuentaTest, UnaCuentaQueElComboNoAlcanzaNoSeMuestra) {
  Abre();
  PonCartaDe(100);
  Muestra(Rellenado("10000099"), Rellenado("10000002"), "");
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), -1);
  EXPECT_EQ(Combo("Cta. Retiro:")->getCurrentItem(), 2);
  EXPECT_EQ(Guardado()[0], Rellenado("10000099"));
}

TEST_F(CampoCuentaTest, UnaCuentaBorradaConLaFormaAbiertaSeConserva) {
  BaseDatos base;
  const Sesion sesion(base);
  const std::string borrada =
      base.Valor("select cuentaid from norte.catalogo_ctas where cuentanombre = 'Caja chica'");
  catalogo.LoadCuentas();
  const FXint cuantas = static_cast<FXint>(Catalogo::Catalogo_Ctas.size());
  Abre();
  Muestra(borrada, "", "");
  EXPECT_GT(Combo("Cta. Deposito:")->getCurrentItem(), 0);

  base.Ejecuta("delete from norte.catalogo_ctas where cuentaid = '" + borrada + "'");
  catalogo.LoadCuentas();
  EligeOpcion(Combo("Cta. Deposito:"), cuantas - 1);  // the chart has no such row any more
  EXPECT_EQ(Guardado()[0], borrada);
  forma_->Read();
  EXPECT_EQ(Combo("Cta. Deposito:")->getCurrentItem(), 0);
  EXPECT_EQ(Guardado()[0], borrada);
  EligeOpcion(Combo("Cta. Deposito:"), 1);
  EXPECT_EQ(Guardado()[0], Catalogo::Catalogo_Ctas[1].getCuentaID());
}

TEST_F(CampoCuentaTest, UnUsuarioDescuidadoNoTumbaLaForma) { EXPECT_FALSE(Maltrata(Abre()).empty()); }

TEST_F(CampoCuentaTest, VeinteMilCuentasSeOfrecenTodas) {
  PonCartaDe(20000);
  Abre();
  for (const char* campo : Campos) EXPECT_EQ(Combo(campo)->getNumItems(), 20000);
  EligeOpcion(Combo("Cuenta ISR:"), 19999);
  EXPECT_EQ(Guardado()[2], Rellenado("10019999"));
}

}  // namespace
}  // namespace pruebas
