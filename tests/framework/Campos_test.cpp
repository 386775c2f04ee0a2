// The rows of a form: label and field, bound to a member both ways.
#include "framework/Campos.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <cstdlib>
#include <limits>

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

class CamposTest : public testing::Test {
 protected:
  void SetUp() override {
    ventana_ = new FXMainWindow(&App(), "Campos", nullptr, nullptr, DECOR_ALL, 0, 0, 600, 300);
    matriz_ = new FXMatrix(ventana_, 2, MATRIX_BY_COLUMNS);
    campoClave(matriz_, "Clave:", 3, claveDato_);
    campoTexto(matriz_, "Descripción:", 30, textoDato_);
    campoReal(matriz_, "Valor :", 10, realDato_);
    campoReal(matriz_, "Ancho:", 400, anchoDato_);
    campoClave(matriz_, "Número:", 4, enteroDato_, JUSTIFY_RIGHT);
    ventana_->create();
    ventana_->show(PLACEMENT_SCREEN);
    Bombea();
    clave_ = CampoJuntoA(matriz_, "Clave:");
    texto_ = CampoJuntoA(matriz_, "Descripción:");
    real_ = CampoJuntoA(matriz_, "Valor :");
    ancho_ = CampoJuntoA(matriz_, "Ancho:");
    entero_ = CampoJuntoA(matriz_, "Número:");
  }
  void TearDown() override { delete ventana_; }

  FXMainWindow* ventana_ = nullptr;
  FXMatrix* matriz_ = nullptr;
  FXTextField* clave_ = nullptr;
  FXTextField* texto_ = nullptr;
  FXTextField* real_ = nullptr;
  FXTextField* ancho_ = nullptr;
  FXTextField* entero_ = nullptr;
  DatoTexto claveDato_, textoDato_;
  DatoReal realDato_, anchoDato_;
  DatoEntero enteroDato_;
};

TEST_F(CamposTest, CadaRenglonEsUnaEtiquetaYUnCampo) {
  EXPECT_EQ(Etiquetas(matriz_), (Textos{"Clave:", "Descripción:", "Valor :", "Ancho:", "Número:"}));
  EXPECT_EQ(Todos<FXTextField>(matriz_), (std::vector<FXTextField*>{clave_, texto_, real_, ancho_, entero_}));
  for (const FXLabel* etiqueta : Todos<FXLabel>(matriz_)) EXPECT_TRUE(etiqueta->getJustify() & JUSTIFY_LEFT);
}

TEST_F(CamposTest, CadaClaseTieneSuEstilo) {
  const struct {
    const FXTextField* campo;
    FXint columnas;
    FXuint estilo;
    FXuint lado;
  } campos[] = {
      {clave_, 3, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY, JUSTIFY_LEFT},
      {texto_, 30, TEXTFIELD_LIMITED, JUSTIFY_LEFT},
      {real_, 10, TEXTFIELD_LIMITED | TEXTFIELD_REAL, JUSTIFY_RIGHT},
      {entero_, 4, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER, JUSTIFY_RIGHT},
  };
  for (const auto& [campo, columnas, estilo, lado] : campos) {
    EXPECT_EQ(campo->getNumColumns(), columnas);
    EXPECT_EQ(campo->getTextStyle(), estilo);
    EXPECT_EQ(campo->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), lado);
    EXPECT_EQ(campo->getPadLeft(), 2);
    EXPECT_EQ(campo->getPadBottom(), 2);
  }
}

TEST_F(CamposTest, LoEscritoLlegaAlMiembro) {
  Escribe(clave_, "Ñx");  // without Enter
  Escribe(texto_, "árbol");
  Escribe(real_, "-12.5e1");
  EXPECT_STREQ(claveDato_.valor.text(), "Ñx");
  EXPECT_STREQ(textoDato_.valor.text(), "árbol");
  EXPECT_EQ(realDato_.valor, -125);
  Escribe(real_, "");
  EXPECT_EQ(realDato_.valor, 0);
  Escribe(entero_, "-12x345");
  EXPECT_EQ(enteroDato_.valor, -123);
  Escribe(entero_, "");
  EXPECT_EQ(enteroDato_.valor, 0);
}

TEST_F(CamposTest, ElMiembroCambiadoSeMuestra) {
  claveDato_.valor = "MX";
  textoDato_.valor = "Peso";
  realDato_.valor = 17.25;
  enteroDato_.valor = 1234567;
  Bombea();
  EXPECT_EQ(Leido(matriz_, "Clave:"), "MX");
  EXPECT_EQ(Leido(matriz_, "Descripción:"), "Peso");
  EXPECT_EQ(Leido(matriz_, "Valor :"), "17.25");
  EXPECT_EQ(Leido(matriz_, "Número:"), "1234567");  // whole, though longer than what can be typed
}

TEST_F(CamposTest, ElLimiteCuentaLetras) {
  Escribe(clave_, "ñÑáé");
  EXPECT_STREQ(claveDato_.valor.text(), "ñÑá");
  Escribe(real_, "12345678901");
  EXPECT_EQ(realDato_.valor, 1234567890);
}

TEST_F(CamposTest, SeTecleaUnNumeroLetraPorLetra) {
  Escribe(real_, "");
  for (const char letra : std::string("1.050"))
    Tecla(real_, static_cast<FXuint>(letra), 0, std::string(1, letra));
  EXPECT_EQ(Leido(matriz_, "Valor :"), "1.050");  // not tidied up under the user's fingers
  EXPECT_EQ(realDato_.valor, 1.05);
}

TEST_F(CamposTest, UnNumeroSeMuestraConLasCifrasQueLoDistinguen) {
  const std::pair<double, std::string> numeros[] = {
      {0, "0"},
      {1, "1"},
      {-0.5, "-0.5"},
      {17.25, "17.25"},
      {20.1, "20.1"},
      {20.1f, "20.1"},  // a number of a single-precision column
      {0.004358f, "0.004358"},
      {0.115632, "0.115632"},
      {1.0 / 3, "0.3333333333333333"},
      {16777217, "16777217"},
      {123456789.0123, "123456789.0123"},
      {1e-7, "0.0000001"},
      {1e15, "1000000000000000"},
      {1e22, "1" + std::string(22, '0')},
      {1e30, ""},
      {-1e300, ""},
      {DBL_MAX, ""},
      {DBL_TRUE_MIN, ""},
  };
  for (const auto& [numero, texto] : numeros) {  // without a text: any that reads back as the same number
    anchoDato_.valor = numero;
    Bombea();
    const std::string visto = Leido(matriz_, "Ancho:");
    EXPECT_EQ(visto.find_first_of("eE"), std::string::npos) << visto;
    if (texto.empty()) {
      EXPECT_EQ(std::strtod(visto.c_str(), nullptr), numero) << visto;
    } else {
      EXPECT_EQ(visto, texto);
    }
  }
}

TEST_F(CamposTest, LoQueNoEsUnNumeroTampocoTumbaElCampo) {
  for (const double numero :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN()}) {
    anchoDato_.valor = numero;
    Bombea();
    EXPECT_NE(Leido(matriz_, "Ancho:"), "");
  }
}

TEST_F(CamposTest, UnParrafoLlevaSuTextoDeIdaYVuelta) {
  DatoParrafo dato;
  campoParrafo(matriz_, "Notas:", 4, 50, dato);
  ventana_->create();
  Bombea();
  EXPECT_EQ(dato.campo->getVisibleRows(), 4);
  EXPECT_EQ(dato.campo->getVisibleColumns(), 50);
  EXPECT_EQ(dato.campo->getTextStyle(), FXuint{TEXT_WORDWRAP});
  EXPECT_EQ(JuntoA<FXText>(matriz_, "Notas:"), dato.campo);
  Escribe(dato.campo, "árbol\ny flor");
  EXPECT_EQ(dato.valor, "");  // nothing binds the widget to the member
  EXPECT_EQ(dato.Valor(), "árbol\ny flor");
  EXPECT_EQ(dato.valor, "árbol\ny flor");
  dato.Pon("otro");
  EXPECT_EQ(dato.campo->getText(), "otro");
  dato.Vacia();
  EXPECT_EQ(dato.campo->getText(), "");
  EXPECT_EQ(dato.Valor(), "");
}

TEST_F(CamposTest, UnaCasillaMandaSuMensaje) {
  FXint marcada = 0;
  FXDataTarget destino(marcada);
  FXCheckButton* const casilla = campoCasilla(matriz_, "Suma:", &destino, FXDataTarget::ID_VALUE);
  ventana_->create();
  Bombea();
  EXPECT_EQ(JuntoA<FXCheckButton>(matriz_, "Suma:"), casilla);
  EXPECT_EQ(casilla->getText(), "");
  Pulsa(casilla);
  EXPECT_EQ(marcada, 1);
}

TEST_F(CamposTest, LasClavesDeTextoTienenLugarParaMayusculas) {
  clave_->setText("WWW");
  Bombea();
  EXPECT_GE(clave_->getWidth(), clave_->getFont()->getTextWidth("WWW", 3) + 8);
  EXPECT_LT(entero_->getWidth(), entero_->getFont()->getTextWidth("WWWW", 4));
}

TEST_F(CamposTest, UnCampoSeAngostaPeroNoCreceDeMas) {
  delete ancho_->getPrev();
  delete ancho_;
  const FXint pedido = texto_->getDefaultWidth();
  matriz_->setLayoutHints(LAYOUT_FILL_X);
  for (const FXint ancho : {600, 200, 600}) {
    ventana_->resize(ancho, 300);
    ventana_->layout();
    matriz_->layout();
    SCOPED_TRACE(ancho);
    EXPECT_EQ(texto_->getWidth() == pedido, ancho == 600);
    EXPECT_LE(texto_->getX() + texto_->getWidth(), matriz_->getWidth());
    EXPECT_EQ(clave_->getWidth(), clave_->getDefaultWidth());
  }
}

// Whole numbers.

TEST_F(CamposTest, UnEnteroTomaLoQueSuFiltroDejaYGuardaSuComienzo) {
  DatoEntero entero, conPunto;
  campoEntero(matriz_, "Plazo:", 5, entero);
  campoEntero(matriz_, "Tope:", 5, conPunto, TEXTFIELD_REAL);
  ventana_->create();
  EXPECT_EQ(CampoJuntoA(matriz_, "Plazo:")->getTextStyle(), FXuint{TEXTFIELD_LIMITED | TEXTFIELD_INTEGER});
  EXPECT_EQ(CampoJuntoA(matriz_, "Tope:")->getTextStyle(), FXuint{TEXTFIELD_LIMITED | TEXTFIELD_REAL});
  const struct {
    const char* tecleado;
    int entero, conPunto;
  } casos[] = {{"12", 12, 12}, {"-7", -7, -7}, {"123456", 12345, 12345},
               {"1.5", 15, 1}, {"", 0, 0},     {"x", 0, 0}};
  for (const auto& [tecleado, valor, valorConPunto] : casos) {
    SCOPED_TRACE(tecleado);
    Escribe(matriz_, "Plazo:", tecleado);
    Escribe(matriz_, "Tope:", tecleado);
    EXPECT_EQ(entero.valor, valor);
    EXPECT_EQ(conPunto.valor, valorConPunto);
    EXPECT_EQ(CampoJuntoA(matriz_, "Tope:")->getJustify() & JUSTIFY_RIGHT, FXuint{JUSTIFY_RIGHT});
  }
  entero.Pon(365);
  EXPECT_EQ(Leido(matriz_, "Plazo:"), "365");
}

TEST_F(CamposTest, UnCodigoEsUnTextoConLugarParaMayusculas) {
  DatoTexto codigo;
  campoCodigo(matriz_, "Letra:", 1, codigo);
  ventana_->create();
  FXTextField* const campo = CampoJuntoA(matriz_, "Letra:");
  EXPECT_EQ(campo->getTextStyle(), FXuint{TEXTFIELD_LIMITED});
  EXPECT_GE(campo->getDefaultWidth(), campo->getFont()->getTextWidth("W", 1) + 8);
  Escribe(campo, "ÑW");
  EXPECT_EQ(codigo.valor, "Ñ");
}

// Check buttons.

TEST_F(CamposTest, UnaCasillaValeLoQueMuestra) {
  DatoCasilla<FXString> texto("S", "N");
  DatoCasilla<FXint> numero(1, 0);
  texto.boton = campoCasilla(matriz_, "Texto:");
  numero.boton = campoCasilla(matriz_, "Número:");
  ventana_->create();
  Bombea();
  for (const bool marcada : {true, false}) {
    Pulsa(texto.boton);
    Pulsa(numero.boton);
    EXPECT_EQ(texto.Valor(), marcada ? "S" : "N");
    EXPECT_EQ(numero.Valor(), marcada ? 1 : 0);
  }
  const std::pair<const char*, const char*> leidos[] = {{"S", "S"}, {"N", "N"}, {"X", "N"}, {"s", "N"}};
  for (const auto& [leido, vale] : leidos) {
    texto.Pon(leido);
    EXPECT_EQ(texto.Valor(), vale) << leido;
  }
  FXCheckButton* const llana = campoCasilla(matriz_, "Llana:");
  for (const int leido : {1, 0, 2, 3, -1, 256, 0}) {
    numero.Pon(leido);
    llana->setCheck(static_cast<FXbool>(leido));
    EXPECT_EQ(numero.boton->getCheck(), llana->getCheck()) << leido;
    EXPECT_EQ(numero.Valor(), llana->getCheck() ? 1 : 0) << leido;
  }
  numero.Pon(2);
  EXPECT_EQ(numero.boton->getCheck(), MAYBE);
  texto.Pon("S");
  numero.Pon(1);
  texto.Vacia();
  numero.Vacia();
  EXPECT_EQ(texto.Valor(), "N");
  EXPECT_EQ(numero.Valor(), 0);
}

TEST_F(CamposTest, UnSNConservaLoLeidoHastaQueSePulsa) {
  DatoSN dato;
  dato.boton = campoCasilla(matriz_, "Aplica:");
  ventana_->create();
  Bombea();
  const std::pair<const char*, bool> leidos[] = {{"S", true}, {"N", false}, {"", false}, {"X", false}};
  for (const auto& [leido, marcada] : leidos) {
    SCOPED_TRACE(leido);
    dato.Pon(leido);
    EXPECT_EQ(dato.boton->getCheck(), marcada);
    EXPECT_EQ(dato.Valor(), leido);
    Pulsa(dato.boton);
    EXPECT_EQ(dato.Valor(), leido);  // the handler's business
    EXPECT_EQ(dato.Elige(), 1);
    EXPECT_EQ(dato.Valor(), marcada ? "N" : "S");
  }
  dato.Vacia();
  EXPECT_FALSE(dato.boton->getCheck());
  EXPECT_EQ(dato.Valor(), "N");
}

// Combo boxes.

TEST_F(CamposTest, UnaOpcionValeSuLugar) {
  DatoOpcion dato;
  dato.combo = campoCombo(matriz_, "Clase:", 2);
  dato.combo->appendItem("una");
  dato.combo->appendItem("otra");
  ventana_->create();
  Bombea();
  EligeOpcion(dato.combo, 1);
  EXPECT_EQ(dato.Valor(), 1);
  dato.Pon(0);
  EXPECT_EQ(dato.combo->getText(), "una");
  for (const int ajena : {2, 1000, -1, -5}) {
    dato.Pon(0);
    dato.Pon(ajena);
    EXPECT_EQ(dato.Valor(), -1);
    EXPECT_EQ(dato.combo->getText(), "");
  }
  dato.Pon(1);
  dato.Vacia();
  EXPECT_EQ(dato.Valor(), -1);
}

TEST_F(CamposTest, UnComboEsEstaticoYMuestraLosRenglonesDichos) {
  FXComboBox* const combo = campoCombo(matriz_, "Clase:", 7, &App(), 5);
  EXPECT_EQ(PiezaJuntoA(matriz_, "Clase:"), combo);
  EXPECT_EQ(combo->getComboStyle(), FXuint{COMBOBOX_STATIC});
  EXPECT_EQ(combo->getNumVisible(), 7);
  EXPECT_EQ(combo->getNumColumns(), 2);
  EXPECT_EQ(combo->getTarget(), &App());
  EXPECT_EQ(combo->getSelector(), 5u);
}

TEST_F(CamposTest, LaLetraChicaEsDeCadaCombo) {
  FXComboBox* const combo = campoCombo(matriz_, "Clase:", 7);
  FXComboBox* const otro = campoCombo(matriz_, "Clase:", 7);
  const auto letra = LetraChica(combo);
  const auto otra = LetraChica(otro);
  EXPECT_EQ(combo->getFont(), letra.get());
  EXPECT_NE(otro->getFont(), letra.get());
  EXPECT_EQ(letra->getName(), "helvica");
  EXPECT_EQ(letra->getSize(), 80u);  // tenths of a point
  EXPECT_EQ(letra->getWeight(), FXuint{FXFont::Normal});
  EXPECT_EQ(letra->getSlant(), FXuint{FXFont::Straight});
}

// Rows of several fields.

TEST_F(CamposTest, UnRenglonTieneVariosCamposUnoTrasOtro) {
  DatoReal monto, tope;
  FXComposite* const renglon = campoRenglon(matriz_, "Monto Minimo:");
  campoReal(renglon, nullptr, 6, monto);
  campoReal(renglon, "Monto Maximo:", 6, tope);
  ventana_->create();
  Bombea();
  EXPECT_EQ(PiezaJuntoA(matriz_, "Monto Minimo:"), renglon);
  EXPECT_EQ(Etiquetas(renglon), Textos{"Monto Maximo:"});
  EXPECT_EQ(Todos<FXTextField>(renglon).size(), 2u);
  Escribe(matriz_, "Monto Minimo:", "5");
  Escribe(renglon, "Monto Maximo:", "7");
  EXPECT_EQ(monto.valor, 5);
  EXPECT_EQ(tope.valor, 7);
}

TEST_F(CamposTest, OtraMatrizQuedaDebajoEnLaMismaCaja) {
  auto* const caja = new FXGroupBox(ventana_, "Datos", FRAME_GROOVE | LAYOUT_FILL);
  auto* const primera = new FXMatrix(caja, 2, MATRIX_BY_COLUMNS | LAYOUT_FILL);
  DatoTexto uno, otro;
  campoTexto(primera, "Uno:", 10, uno);
  FXMatrix* const segunda = campoMatriz(primera, 4);
  campoTexto(segunda, "Otro:", 10, otro);
  ventana_->create();
  ventana_->layout();
  EXPECT_EQ(segunda->getParent(), caja);
  EXPECT_EQ(segunda->getNumColumns(), 4);
  EXPECT_GE(primera->getHeight(), primera->getDefaultHeight());
  EXPECT_GE(segunda->getHeight(), segunda->getDefaultHeight());
  EXPECT_GE(segunda->getY(), primera->getY() + primera->getHeight());
  EXPECT_LE(segunda->getY() + segunda->getHeight(), caja->getHeight());
}

}  // namespace
}  // namespace pruebas
