// The form of the currencies, which is also the model of all forms: its widgets, the five commands with every
// answer, and what it does when the server or the connection fails.
#include "catalogs/simple/Monedas_Window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>

#include "app/sesion.h"
#include "tests/support/ConVentana.h"
#include "tests/support/Pantalla.h"

namespace pruebas {
namespace {

constexpr char ErrorEnValidacion[] = "Error en Validación";
constexpr char SinConexion[] = "No hay conexión con el servidor.";
constexpr char NoSeCargo[] = "Error al cargar catalogo de monedas.";
const Textos carga = {"BEGIN;", "SELECT * FROM spsmoneda('  ');", "COMMIT;"};

constexpr FXSelector PrimerMensaje = FXMDIChild::ID_LAST;
static_assert(Monedas_Window::ID_AGREGAR == PrimerMensaje && Monedas_Window::ID_FIND == PrimerMensaje + 1 &&
              Monedas_Window::ID_CLEAR == PrimerMensaje + 2 &&
              Monedas_Window::ID_BORRAR == PrimerMensaje + 3 &&
              Monedas_Window::ID_LISTA == PrimerMensaje + 4 && Monedas_Window::ID_SALIR == PrimerMensaje + 5);

bool Empieza(const std::string& texto, const std::string& principio) {
  return texto.compare(0, principio.size(), principio) == 0;
}

/// One database for all, whose currencies each test makes anew.
class ConMonedas : public testing::Test {
 protected:
  static void SetUpTestSuite() { base_ = new BaseDatos; }
  static void TearDownTestSuite() {
    delete base_;
    base_ = nullptr;
  }
  void Reconecta() {
    sesion_.reset();
    sesion_.emplace(*base_);
  }

  inline static BaseDatos* base_ = nullptr;
  std::optional<Sesion> sesion_;
};

/// Three currencies, in the order of the server: EU, MX, US.
class MonedasTest : public ConVentana<Monedas_Window, ConMonedas> {
 protected:
  void SetUp() override {
    base_->Ejecuta(
        "truncate norte.moneda cascade; insert into norte.moneda (monedaid, monedadescri, monedavalor) values"
        " ('MX', 'Peso mexicano', 1), ('US', 'Último dólar', 17.25), ('EU', 'Euro', 20.1)");
    moneda.Clear();
    Reconecta();
    Abre();
  }

  void Abre() {
    forma_ = area_.Abre<Monedas_Window>();
    espia_.Vacia();
  }

  void Llena(const std::string& clave, const std::string& descripcion, const std::string& valor) {
    Escribe(forma_, "Moneda:", clave);
    Escribe(forma_, "Descripción:", descripcion);
    Escribe(forma_, "Valor :", valor);
  }
  Textos Pantalla() {
    Bombea();
    return {Leido(forma_, "Moneda:"), Leido(forma_, "Descripción:"), Leido(forma_, "Valor :")};
  }
  void Elige(FXint renglon) { EligeRenglon(Lista(forma_), renglon); }

  /// The text of the error box in which a command ends.
  std::string Rechazo(const std::string& boton) {
    Manda(boton, {Respuesta::Si, Respuesta::Aceptar});
    return cuadros_.back().texto;
  }

  Tabla EnLaBase() {
    return base_->Filas("select monedaid, monedadescri, monedavalor::float8 from norte.moneda order by 1");
  }
  bool Existe(const std::string& clave) {
    return base_->Valor("select count(*) from norte.moneda where monedaid = '" + clave + "'") == "1";
  }
};

const Textos vacia = {"", "", "0"};

// The window.

TEST_F(MonedasTest, SeAbreEnSuLugarConSuTitulo) {
  EXPECT_STREQ(forma_->getClassName(), "Monedas_Window");
  EXPECT_EQ(forma_->getMetaClass()->getBaseClass(), FXMETACLASS(FXMDIChild));
  EXPECT_STREQ(forma_->getTitle().text(), "Catalogo de Monedas");
  EXPECT_EQ(forma_->getX(), 20);
  EXPECT_EQ(forma_->getY(), 20);
  EXPECT_EQ(forma_->getWidth(), 620);
  EXPECT_EQ(forma_->getHeight(), 205);
  EXPECT_EQ(forma_->getIcon(), nullptr);
}

TEST_F(MonedasTest, TieneSusGruposYEtiquetasEnOrden) {
  Textos grupos;
  for (const FXGroupBox* grupo : Todos<FXGroupBox>(forma_)) grupos.push_back(grupo->getText().text());
  EXPECT_EQ(grupos, (Textos{"Monedas", "Identificación", "Datos de la Moneda", ""}));
  for (const char* titulo : {"Monedas", "Identificación", "Datos de la Moneda"})
    EXPECT_EQ(Grupo(forma_, titulo)->getFrameStyle(), FXuint{FRAME_GROOVE}) << titulo;
  EXPECT_EQ(Grupo(forma_, "")->getFrameStyle(), FXuint{FRAME_NONE});
  EXPECT_EQ(Etiquetas(Grupo(forma_, "Identificación")), Textos{"Moneda:"});
  EXPECT_EQ(Etiquetas(Grupo(forma_, "Datos de la Moneda")), (Textos{"Descripción:", "Valor :"}));
  for (FXMatrix* matriz : Todos<FXMatrix>(forma_)) EXPECT_EQ(matriz->getNumColumns(), 2);
  for (FXLabel* etiqueta : Todos<FXLabel>(Grupo(forma_, "Datos de la Moneda")))
    EXPECT_EQ(etiqueta->getJustify() & JUSTIFY_LEFT, FXuint{JUSTIFY_LEFT});
}

TEST_F(MonedasTest, SuListaEsDeUnSoloRenglonYDeAnchoFijo) {
  FXList* const lista = Lista(forma_);
  EXPECT_EQ(lista->getParent()->getParent(), Grupo(forma_, "Monedas"));
  EXPECT_EQ(lista->getTarget(), forma_);
  EXPECT_EQ(lista->getSelector(), FXSelector{Monedas_Window::ID_LISTA});
  EXPECT_EQ(lista->getListStyle(), FXuint{LIST_BROWSESELECT});
  EXPECT_EQ(lista->getScrollStyle() & HSCROLLER_NEVER, FXuint{HSCROLLER_NEVER});
  EXPECT_EQ(lista->getWidth(), 150);
  EXPECT_TRUE(lista->getLayoutHints() & LAYOUT_FIX_WIDTH);
}

TEST_F(MonedasTest, CadaCampoTieneSuAnchoYSuClase) {
  const struct {
    const char* etiqueta;
    FXint columnas;
    FXuint estilo;
    FXuint lado;
  } campos[] = {
      {"Moneda:", 2, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY, JUSTIFY_LEFT},
      {"Descripción:", 30, TEXTFIELD_LIMITED, JUSTIFY_LEFT},
      {"Valor :", 10, TEXTFIELD_LIMITED | TEXTFIELD_REAL, JUSTIFY_RIGHT},
  };
  for (const auto& [etiqueta, columnas, estilo, lado] : campos) {
    SCOPED_TRACE(etiqueta);
    const FXTextField* campo = CampoJuntoA(forma_, etiqueta);
    EXPECT_EQ(campo->getNumColumns(), columnas);
    EXPECT_EQ(campo->getTextStyle(), estilo);
    EXPECT_EQ(campo->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), lado);
    for (const FXint margen :
         {campo->getPadLeft(), campo->getPadRight(), campo->getPadTop(), campo->getPadBottom()})
      EXPECT_EQ(margen, 2);
  }
}

TEST_F(MonedasTest, SusBotonesMandanLoSuyo) {
  const struct {
    const char* rotulo;
    const unsigned char* dibujo;
    FXSelector mensaje;
    bool puedeSerOmision;
    bool abajo;
  } botones[] = {
      {"&Nuevo", iconos::nuevo_icon, Monedas_Window::ID_CLEAR, true, false},
      {"&Buscar", iconos::find_icon, Monedas_Window::ID_FIND, true, false},
      {"&Borrar", iconos::borrar_icon, Monedas_Window::ID_BORRAR, true, false},
      {"&Cerrar", iconos::cerrar_icon, FXWindow::ID_MDI_CLOSE, false, true},
      {"&Aceptar", iconos::ok_icon, Monedas_Window::ID_AGREGAR, true, true},
  };
  EXPECT_EQ(Botones(Grupo(forma_, "")), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
  for (const auto& [rotulo, dibujo, mensaje, puedeSerOmision, abajo] : botones) {
    SCOPED_TRACE(rotulo);
    const FXButton* boton = Boton(forma_, rotulo);
    EXPECT_EQ(boton->getTarget(), forma_);
    EXPECT_EQ(boton->getSelector(), mensaje);
    EXPECT_EQ(boton->getIcon(), icono(&App(), dibujo));
    EXPECT_EQ((boton->getButtonStyle() & BUTTON_DEFAULT) != 0, puedeSerOmision);
    EXPECT_EQ((boton->getLayoutHints() & LAYOUT_SIDE_BOTTOM) != 0, abajo);
    EXPECT_EQ(boton->getPadLeft(), 2);
    EXPECT_EQ(boton->getPadTop(), 2);
  }
  EXPECT_TRUE(Boton(forma_, "&Cerrar")->getLayoutHints() & LAYOUT_FILL_X);
}

// Opening and closing.

TEST_F(MonedasTest, AlAbrirLeeElServidorTrazaYOcupaSuRanura) {
  Cierra();
  EXPECT_FALSE(mdiArray[1]);
  espia_.Vacia();
  Salida salida;
  forma_ = area_.Abre<Monedas_Window>();
  EXPECT_EQ(salida.Texto(), "terminando creacion frm pais\n");
  EXPECT_EQ(espia_.Sentencias(), carga);
  EXPECT_EQ(Renglones(), (Textos{"Euro", "Peso mexicano", "Último dólar"}));
  EXPECT_EQ(Pantalla(), vacia);
  EXPECT_TRUE(mdiArray[1]);
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 1);
}

TEST_F(MonedasTest, AlCerrarNoPreguntaNiGuardaYLiberaSuRanura) {
  Llena("XX", "sin guardar", "1");
  Cierra();
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_FALSE(mdiArray[1]);
  EXPECT_FALSE(Existe("XX"));
}

TEST_F(MonedasTest, ElCierreDesdeFueraNoHaceNada) {
  EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_CLOSE, 0), nullptr), 1);
  EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_SIGNAL, Monedas_Window::ID_SALIR), nullptr), 1);
  Bombea();
  EXPECT_EQ(Renglones().size(), 3u);
  EXPECT_TRUE(mdiArray[1]);
}

TEST_F(MonedasTest, ElRegistroSobreviveALaVentana) {
  Elige(1);
  Cierra();
  EXPECT_STREQ(moneda.getMonedaID(), "MX");
  Abre();
  EXPECT_STREQ(moneda.getMonedaID(), "MX");
  EXPECT_TRUE(moneda.IsNew());
  EXPECT_EQ(Pantalla(), vacia);
}

TEST_F(MonedasTest, UnCatalogoVacioDaUnaListaVacia) {
  base_->Ejecuta("truncate norte.moneda cascade");
  Cierra();
  Abre();
  EXPECT_TRUE(Renglones().empty());
}

// What each event leaves in the flags of the record.

TEST_F(MonedasTest, AlAbrirEsNuevoYElCambioQuedaComoEstaba) {
  for (const bool cambiado : {false, true}) {
    Cierra();
    moneda.setDataChanged(cambiado);
    moneda.setIsNew(false);
    Abre();
    EXPECT_TRUE(moneda.IsNew());
    EXPECT_EQ(moneda.getDataChanged(), cambiado);
  }
}

TEST_F(MonedasTest, NuevoBlanqueaLaVentanaYNoElRegistro) {
  for (const bool cambiado : {false, true}) {
    Elige(2);
    moneda.setDataChanged(cambiado);
    espia_.Vacia();
    EXPECT_TRUE(Manda("&Nuevo").empty());
    EXPECT_EQ(Pantalla(), vacia);
    EXPECT_STREQ(moneda.getMonedaID(), "US");
    EXPECT_TRUE(moneda.IsNew());
    EXPECT_EQ(moneda.getDataChanged(), cambiado);
    EXPECT_TRUE(espia_.Sentencias().empty());
  }
}

TEST_F(MonedasTest, ElegirUnRenglonLoMuestraSinPreguntarAlServidor) {
  moneda.setDataChanged(true);
  Elige(2);
  EXPECT_EQ(Pantalla(), (Textos{"US", "Último dólar", "17.25"}));
  EXPECT_FALSE(moneda.IsNew());
  EXPECT_FALSE(moneda.getDataChanged());
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_EQ(forma_->handle(Lista(forma_), FXSEL(SEL_COMMAND, Monedas_Window::ID_LISTA), nullptr), 0);
}

TEST_F(MonedasTest, ElValorSeMuestraComoLoGuardaElServidor) {
  Elige(0);
  EXPECT_EQ(Pantalla(), (Textos{"EU", "Euro", "20.1"}));
  EXPECT_TRUE(Manda("&Aceptar").empty());  // what is shown is what was read: nothing to save
}

// &Buscar.

TEST_F(MonedasTest, BuscarMuestraElRenglonYLoSenalaEnLaLista) {
  Escribe(forma_, "Moneda:", "US");
  moneda.setDataChanged(true);
  EXPECT_TRUE(Manda("&Buscar").empty());
  EXPECT_EQ(espia_.Sentencias(), Textos{"SELECT * FROM spsmoneda('US');"});
  EXPECT_EQ(Pantalla(), (Textos{"US", "Último dólar", "17.25"}));
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 2);
  EXPECT_FALSE(moneda.IsNew());
  EXPECT_FALSE(moneda.getDataChanged());
}

TEST_F(MonedasTest, BuscarLoQueNoHayLoDiceYBlanquea) {
  for (const bool repetida : {false, true}) {  // the same key again is no change for the record
    SCOPED_TRACE(repetida);
    Escribe(forma_, "Moneda:", "ZZ");
    moneda.setDataChanged(false);
    EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Informacion);
    EXPECT_EQ(cuadros_.at(0).titulo, "Moneda");
    EXPECT_EQ(Pantalla(), vacia);
    EXPECT_TRUE(moneda.IsNew());
    EXPECT_EQ(moneda.getDataChanged(), !repetida);
  }
}

// &Aceptar on a new record.

TEST_F(MonedasTest, AceptarSinTocarNadaNoHaceNada) {
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_FALSE(moneda.getDataChanged());
}

TEST_F(MonedasTest, RegistraTrasPreguntarYQuedaEnSuRenglon) {
  Llena("FR", "Franco", "2.5");
  Salida salida;
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(cuadros_.at(0).clase, Clase::Pregunta);
  EXPECT_EQ(cuadros_.at(0).titulo, "Moneda");
  EXPECT_EQ(cuadros_.at(0).botones.size(), 2u);
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"BEGIN;", "select spimoneda('FR','Franco',2.500000);", "COMMIT;"} + carga));
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(Renglones(), (Textos{"Euro", "Franco", "Peso mexicano", "Último dólar"}));
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 1);
  EXPECT_EQ(Pantalla(), (Textos{"FR", "Franco", "2.5"}));
  EXPECT_FALSE(moneda.IsNew());
  EXPECT_FALSE(moneda.getDataChanged());
  EXPECT_TRUE(Existe("FR"));
}

TEST_F(MonedasTest, UnaClaveDeUnaLetraViajaConSuBlanco) {
  Llena("A", "Austral", "1");
  Manda("&Aceptar", {Respuesta::Si});
  EXPECT_EQ(espia_.Sentencias().at(1), "select spimoneda('A ','Austral',1.000000);");
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 0);
}

TEST_F(MonedasTest, ContestarQueNoDejaPreguntarOtraVez) {
  Llena("FR", "Franco", "2.5");
  for (int vez = 0; vez < 2; ++vez) {
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
    EXPECT_TRUE(moneda.IsNew());
    EXPECT_TRUE(moneda.getDataChanged());
    EXPECT_EQ(Pantalla(), (Textos{"FR", "Franco", "2.5"}));
  }
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_TRUE(Existe("FR"));
}

// The record keeps the old values, so nothing has changed for it.
TEST_F(MonedasTest, NuevoConLosMismosValoresNoGuardaNada) {
  Elige(2);
  Manda("&Nuevo");
  Llena("US", "Último dólar", "17.25");
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_TRUE(moneda.IsNew());
}

TEST_F(MonedasTest, LoQueNoPasaLaRevisionSeDiceAntesDePreguntar) {
  const struct {
    const char *clave, *descripcion, *valor, *dicho;
  } casos[] = {
      {"", "Franco", "1", "No se especifico la clave"},
      {"FR", "", "1", "No ha especificado la descripción"},
      {"FR", "Franco", "-0.01", "El valor de la moneda no puede ser negativo"},
  };
  for (const auto& [clave, descripcion, valor, dicho] : casos) {
    SCOPED_TRACE(dicho);
    moneda.Clear();
    Manda("&Nuevo");
    Llena(clave, descripcion, valor);
    Salida salida;
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{dicho});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Error);
    EXPECT_EQ(cuadros_.at(0).titulo, ErrorEnValidacion);
    EXPECT_EQ(salida.Texto(), "entrando a error\n");
    EXPECT_EQ(Pantalla(), (Textos{clave, descripcion, valor}));
    EXPECT_TRUE(moneda.IsNew());
    EXPECT_TRUE(moneda.getDataChanged());
  }
  EXPECT_TRUE(espia_.Sentencias().empty());
}

// &Aceptar on a known record.

TEST_F(MonedasTest, GuardaCambiosYVuelveAlMismoRenglon) {
  Elige(1);
  Escribe(forma_, "Descripción:", "Peso");
  Salida salida;
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(cuadros_.at(0).clase, Clase::Pregunta);
  EXPECT_EQ(cuadros_.at(0).titulo, "Moneda");
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"BEGIN;", "select spumoneda('MX','Peso',1.000000);", "COMMIT;"} + carga));
  EXPECT_EQ(salida.Lineas(), Textos{"select spumoneda('MX','Peso',1.000000);"});
  EXPECT_EQ(Renglones(), (Textos{"Euro", "Peso", "Último dólar"}));
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 1);
  EXPECT_FALSE(moneda.IsNew());
  EXPECT_FALSE(moneda.getDataChanged());
}

TEST_F(MonedasTest, NoGuardarCambiosLosDejaPendientes) {
  Elige(1);
  Escribe(forma_, "Valor :", "2");
  for (int vez = 0; vez < 2; ++vez) {
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Guardar cambios realizados ?"});
    EXPECT_FALSE(moneda.IsNew());
    EXPECT_TRUE(moneda.getDataChanged());
  }
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_EQ(Pantalla().at(2), "2");
}

TEST_F(MonedasTest, LoBuscadoTambienSeGuardaComoCambio) {
  Escribe(forma_, "Moneda:", "EU");
  Manda("&Buscar");
  Escribe(forma_, "Valor :", "21");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(EnLaBase().at(0), (Textos{"EU", "Euro", "21"}));
  EXPECT_EQ(Lista(forma_)->getCurrentItem(), 0);
}

// &Borrar.

TEST_F(MonedasTest, BorraTrasPreguntar) {
  Elige(1);
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(cuadros_.at(0).clase, Clase::Pregunta);
  EXPECT_EQ(cuadros_.at(0).titulo, "Moneda");
  EXPECT_EQ(
      espia_.Sentencias(),
      (Textos{"SELECT * FROM spsmoneda('MX');", "BEGIN;", "SELECT spdmoneda('MX');", "COMMIT;"} + carga));
  EXPECT_EQ(Renglones(), (Textos{"Euro", "Último dólar"}));
  EXPECT_EQ(Pantalla(), vacia);
  EXPECT_TRUE(moneda.IsNew());
  EXPECT_FALSE(moneda.getDataChanged());
  EXPECT_FALSE(Existe("MX"));
}

TEST_F(MonedasTest, NoBorrarMuestraElRenglonComoLoTieneElServidor) {
  base_->Ejecuta("update norte.moneda set monedadescri = 'Peso nuevo' where monedaid = 'MX'");
  Escribe(forma_, "Moneda:", "MX");
  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Pantalla(), (Textos{"MX", "Peso nuevo", "1"}));
  EXPECT_EQ(espia_.Sentencias(), Textos{"SELECT * FROM spsmoneda('MX');"});
  EXPECT_FALSE(moneda.IsNew());
}

TEST_F(MonedasTest, BorrarLoQueNoHayBlanqueaSinDecirNada) {
  Llena("ZZ", "nada", "1");
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), vacia);
  EXPECT_TRUE(moneda.IsNew());
  EXPECT_EQ(espia_.Sentencias(), Textos{"SELECT * FROM spsmoneda('ZZ');"});
}

// Refusals of the server.

TEST_F(MonedasTest, UnAltaRechazadaSeDeshaceYSePuedeCorregir) {
  Llena("MX", "Otro peso", "1");
  Salida salida;
  const std::string dicho = Rechazo("&Aceptar");
  EXPECT_TRUE(Empieza(dicho, "ERROR:  La moneda MX ya existe\n")) << dicho;
  EXPECT_EQ(cuadros_.at(1).titulo, ErrorEnValidacion);
  EXPECT_EQ(cuadros_.at(1).clase, Clase::Error);
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"BEGIN;", "select spimoneda('MX','Otro peso',1.000000);", "ROLLBACK;"}));
  EXPECT_EQ(salida.Texto(), "entrando a error\n");
  EXPECT_EQ(Pantalla(), (Textos{"MX", "Otro peso", "1"}));
  EXPECT_TRUE(moneda.IsNew());
  EXPECT_TRUE(moneda.getDataChanged());
  Escribe(forma_, "Moneda:", "M2");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_TRUE(Existe("M2"));
}

TEST_F(MonedasTest, UnCambioRechazadoSeDeshaceYSePuedeRepetir) {
  Elige(1);
  Escribe(forma_, "Descripción:", "Peso");
  espia_.En(1, falla::Error("hoy no %s %n 100% %%"));
  Salida salida;
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}),
            (Textos{"Guardar cambios realizados ?", "ERROR:  hoy no %s %n 100% %\n"}));
  const std::string sentencia = "select spumoneda('MX','Peso',1.000000);";
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", sentencia, "ROLLBACK;"}));
  EXPECT_EQ(salida.Lineas(), (Textos{sentencia, "entrando a error", "entrando a error"}));
  EXPECT_FALSE(moneda.IsNew());
  EXPECT_TRUE(moneda.getDataChanged());
  espia_.Vacia();
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(EnLaBase().at(1), (Textos{"MX", "Peso", "1"}));
}

TEST_F(MonedasTest, UnaBajaRechazadaDejaElRenglonEnListaYForma) {
  base_->Ejecuta(
      "create table norte.tienda (moneda character(2) references norte.moneda);"
      "alter table norte.tienda owner to tolvara_propietario;"
      "insert into norte.tienda values ('MX'); comment on table norte.tienda is 'tiendas'");
  Elige(1);
  Salida salida;
  const std::string dicho = Rechazo("&Borrar");
  base_->Ejecuta("drop table norte.tienda");
  EXPECT_TRUE(Empieza(dicho, "ERROR:  No se puede borrar la moneda MX porque se usa en: 1 tiendas\n"))
      << dicho;
  EXPECT_EQ(cuadros_.at(1).titulo, ErrorEnValidacion);
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"SELECT * FROM spsmoneda('MX');", "BEGIN;", "SELECT spdmoneda('MX');", "ROLLBACK;"}));
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(Renglones().size(), 3u);
  EXPECT_EQ(Pantalla(), (Textos{"MX", "Peso mexicano", "1"}));
  EXPECT_FALSE(moneda.IsNew());
}

TEST_F(MonedasTest, UnUsuarioSinPermisoEsRechazadoPorElServidor) {
  sesion_.reset();
  sesion_.emplace(*base_, "camila");
  Llena("FR", "Franco", "1");
  EXPECT_TRUE(Empieza(Rechazo("&Aceptar"), "ERROR:  No tiene permiso"));
  EXPECT_FALSE(Existe("FR"));
}

TEST_F(MonedasTest, LaRecargaQueFallaTrasGuardarSeDice) {
  Llena("FR", "Franco", "2.5");
  espia_.En(3, falla::Error("no"));
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}), (Textos{"Registrar ?", NoSeCargo}));
  EXPECT_TRUE(Existe("FR"));
  EXPECT_TRUE(Renglones().empty());
  EXPECT_FALSE(moneda.IsNew());
}

// Texts that a user can type.

TEST_F(MonedasTest, NingunCampoTomaMasDeLoSuyo) {
  const struct {
    const char* etiqueta;
    const char* letra;
    int caben;
  } casos[] = {{"Moneda:", "x", 2},       {"Moneda:", "ñ", 2},       {"Moneda:", "'", 2},
               {"Descripción:", "x", 30}, {"Descripción:", "ñ", 30}, {"Descripción:", "%", 30},
               {"Valor :", "7", 10},      {"Valor :", "x", 0}};
  for (const auto& [etiqueta, letra, caben] : casos) {
    SCOPED_TRACE(std::string(etiqueta) + letra);
    Escribe(forma_, etiqueta, Repetida(letra, 100));
    EXPECT_EQ(CampoJuntoA(forma_, etiqueta)->getText(), FXString(Repetida(letra, caben).c_str()));
  }
}

TEST_F(MonedasTest, LosSignosDePorcentajeSeGuardanTalCual) {
  for (const std::string texto : {"%s", "%n%n%n", "100 %", "%%", "%99999d"}) {
    SCOPED_TRACE(texto);
    Escribe(forma_, "Moneda:", "MX");
    EXPECT_TRUE(Manda("&Buscar").empty());
    Escribe(forma_, "Descripción:", texto);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(EnLaBase().at(1)[1], texto);
    const Textos renglones = Renglones();
    EXPECT_EQ(std::count(renglones.begin(), renglones.end(), texto), 1);
  }
}

TEST_F(MonedasTest, UnApostrofeEsUnErrorDelServidorYNoSeEscribeNada) {
  const Tabla antes = EnLaBase();
  Llena("FR", "Franco d'or", "1");
  EXPECT_TRUE(Empieza(Rechazo("&Aceptar"), "ERROR:  unterminated quoted string")) << cuadros_.back().texto;
  EXPECT_EQ(espia_.Cuantas("ROLLBACK;"), 1u);
  Llena("FR", "x',1);drop table moneda;--", "1");
  EXPECT_TRUE(Empieza(Rechazo("&Aceptar"), "ERROR:"));
  EXPECT_EQ(EnLaBase(), antes);
  Escribe(forma_, "Moneda:", "o'");
  EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  Escribe(forma_, "Moneda:", "'");
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(EnLaBase(), antes);
}

// The column of the record has 31 bytes: fifteen of the letters fit, and no half one.
TEST_F(MonedasTest, TreintaLetrasAcentuadasSeCortanEnUnaEntera) {
  Llena("FR", Repetida("ñ", 30), "1");
  EXPECT_EQ(Pantalla().at(1), Repetida("ñ", 30));
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(EnLaBase().at(1), (Textos{"FR", Repetida("ñ", 15), "1"}));
  EXPECT_EQ(Renglones().at(1), Repetida("ñ", 14));  // a row of the list has 29 bytes
}

TEST_F(MonedasTest, UnValorFueraDeRangoLoRechazaElServidor) {
  for (const char* valor : {"1e13", "1e30", "1e38"}) {
    SCOPED_TRACE(valor);
    Llena("FR", "Franco", valor);
    EXPECT_TRUE(Empieza(Rechazo("&Aceptar"), "ERROR:  Está fuera de rango el valor"))
        << cuadros_.back().texto;
  }
  Llena("FR", "Franco", "1e999");
  EXPECT_TRUE(Empieza(Rechazo("&Aceptar"), "ERROR:  column \"inf\" does not exist")) << cuadros_.back().texto;
  EXPECT_FALSE(Existe("FR"));
}

// Answers that are not what was expected.

TEST_F(MonedasTest, UnaCargaDefectuosaNoTumbaLaVentana) {
  const struct {
    Falla falla;
    Textos renglones;
    Textos segundo;  ///< the second row when it is chosen
  } casos[] = {
      {falla::Recortada(1), {"", "", ""}, {"MX", "", "0"}},
      {falla::Recortada(2), {"", "", ""}, {"MX", "", "1"}},
      {falla::ConNulos(), {"", "", ""}, vacia},
      {falla::ConTextos(), Textos(3, Repetida("x", 29)), {"xx", Repetida("x", 31), "0"}},
  };
  for (const auto& [falla, renglones, segundo] : casos) {
    Cierra();
    espia_.Vacia();
    espia_.Cuando("spsmoneda", falla);
    forma_ = area_.Abre<Monedas_Window>();
    EXPECT_EQ(Renglones(), renglones);
    Elige(1);
    EXPECT_EQ(moneda.getMonedaID(), segundo.at(0));
    EXPECT_EQ(moneda.getMonedaDescri(), segundo.at(1));
    EXPECT_EQ(Pantalla().at(2), segundo.at(2));
  }
}

TEST_F(MonedasTest, UnaBusquedaDefectuosaNoTumbaLaVentana) {
  const struct {
    Falla falla;
    Textos registro;
  } casos[] = {
      {falla::Recortada(1), {"US", ""}},
      {falla::ConNulos(), {"", ""}},
      {falla::ConTextos(), {"xx", Repetida("x", 31)}},
  };
  for (const auto& [falla, registro] : casos) {
    Manda("&Nuevo");
    espia_.Vacia();
    espia_.Cuando("spsmoneda", falla);
    Escribe(forma_, "Moneda:", "US");
    EXPECT_TRUE(Manda("&Buscar").empty());
    EXPECT_EQ((Textos{moneda.getMonedaID(), moneda.getMonedaDescri()}), registro);
  }
  espia_.Vacia();
  espia_.Cuando("spsmoneda", falla::SinFilas());
  Escribe(forma_, "Moneda:", "US");
  EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
}

// The connection.

TEST_F(MonedasTest, SinSesionTodoMandoTieneRespuesta) {
  Elige(1);
  sesion_.reset();
  ASSERT_EQ(conn, nullptr);
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), vacia);
  Escribe(forma_, "Moneda:", "MX");
  EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  Llena("FR", "Franco", "1");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}), (Textos{"Registrar ?", SinConexion}));
  Elige(1);
  Escribe(forma_, "Descripción:", "Peso");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}),
            (Textos{"Guardar cambios realizados ?", SinConexion}));
  Cierra();
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Abre();
  EXPECT_EQ(guion.Mensajes(), Textos{NoSeCargo});
  EXPECT_TRUE(Renglones().empty());
  EXPECT_TRUE(mdiArray[1]);
}

/// The connection breaks at each statement of a command in turn, ahead of it and behind it.
class MonedasCorteTest : public MonedasTest {
 protected:
  /// Breaks the command at statement `n`, and then works on with a new session.
  void Prueba(const char* boton, std::vector<Respuesta> respuestas, size_t n, const Falla& corte,
              bool conError) {
    if (conError) respuestas.push_back(Respuesta::Aceptar);
    espia_.Vacia();
    espia_.En(n, corte);
    Manda(boton, respuestas);
    for (const Cuadro& cuadro : cuadros_) EXPECT_NE(cuadro.texto, "");
    if (conError) {
      EXPECT_EQ(cuadros_.at(cuadros_.size() - 1).titulo, ErrorEnValidacion);
    }
    espia_.Vacia();
    Reconecta();
    // Still usable: no transaction is left open, and a look-up finds its row.
    Manda("&Nuevo");
    Escribe(forma_, "Moneda:", "EU");
    EXPECT_TRUE(Manda("&Buscar").empty());
    EXPECT_EQ(Pantalla(), (Textos{"EU", "Euro", "20.1"}));
    Escribe(forma_, "Valor :", "5");
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(espia_.Sentencias().at(1), "BEGIN;");
    EXPECT_EQ(base_->Valor("select monedavalor::int from norte.moneda where monedaid = 'EU'"), "5");
    base_->Ejecuta("update norte.moneda set monedavalor = 20.1 where monedaid = 'EU'");
  }
  /// Has the COMMIT reached the server?
  static bool Escrito(size_t n, bool despues, size_t commit) {
    return n > commit || (despues && n == commit);
  }

  template <class Prepara>
  void CadaSentencia(size_t cuantas, const Prepara& prepara) {
    for (size_t n = 0; n < cuantas; ++n) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE(std::to_string(n) + (despues ? " después" : " antes"));
        prepara(n, despues, despues ? falla::CorteDespues() : falla::CorteAntes());
      }
    }
  }
};

TEST_F(MonedasCorteTest, AlRegistrar) {
  CadaSentencia(6, [&](size_t n, bool despues, const Falla& corte) {
    base_->Ejecuta("delete from norte.moneda where monedaid = 'FR'");
    Manda("&Nuevo");
    Llena("FR", "Franco", "2.5");
    Prueba("&Aceptar", {Respuesta::Si}, n, corte, n <= 3);
    EXPECT_EQ(Existe("FR"), Escrito(n, despues, 2));
  });
}

TEST_F(MonedasCorteTest, AlGuardarCambios) {
  CadaSentencia(6, [&](size_t n, bool despues, const Falla& corte) {
    base_->Ejecuta("update norte.moneda set monedadescri = 'Peso mexicano' where monedaid = 'MX'");
    Escribe(forma_, "Moneda:", "MX");
    Manda("&Buscar");
    Escribe(forma_, "Descripción:", "Peso");
    Prueba("&Aceptar", {Respuesta::Si}, n, corte, n <= 3);
    EXPECT_EQ(EnLaBase().at(1)[1], Escrito(n, despues, 2) ? "Peso" : "Peso mexicano");
  });
}

TEST_F(MonedasCorteTest, AlBorrar) {
  CadaSentencia(7, [&](size_t n, bool despues, const Falla& corte) {
    base_->Ejecuta("insert into norte.moneda values ('MX', 1, 'Peso mexicano') on conflict do nothing");
    Manda("&Nuevo");
    Escribe(forma_, "Moneda:", "MX");
    // A look-up that is lost reads as a row that is not there: no question.
    Prueba("&Borrar", n == 0 ? std::vector<Respuesta>{} : std::vector<Respuesta>{Respuesta::Si}, n, corte,
           1 <= n && n <= 4);
    EXPECT_EQ(Existe("MX"), !Escrito(n, despues, 3));
  });
}

TEST_F(MonedasCorteTest, AlBuscar) {
  CadaSentencia(1, [&](size_t n, bool, const Falla& corte) {
    Escribe(forma_, "Moneda:", "MX");
    Prueba("&Buscar", {Respuesta::Aceptar}, n, corte, false);
    EXPECT_EQ(cuadros_.size(), 1u);
  });
}

TEST_F(MonedasCorteTest, AlAbrir) {
  CadaSentencia(3, [&](size_t n, bool despues, const Falla& corte) {
    Cierra();
    espia_.Vacia();
    espia_.En(n, corte);
    {
      Guion guion;
      if (n == 0) guion.Responde(Respuesta::Aceptar);
      forma_ = area_.Abre<Monedas_Window>();
      EXPECT_EQ(guion.Mensajes(), n == 0 ? Textos{NoSeCargo} : Textos{});
    }
    EXPECT_EQ(Renglones().size(), n == 2 ? 3u : 0u) << despues;
    Reconecta();
    Escribe(forma_, "Moneda:", "MX");
    EXPECT_TRUE(Manda("&Buscar").empty());
    EXPECT_EQ(Pantalla().at(1), "Peso mexicano");
  });
}

}  // namespace
}  // namespace pruebas
