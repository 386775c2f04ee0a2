// The forms that are nothing but the pattern, one row of the table each: what stands on the screen, and what
// each command sends to the server and leaves there. Below it, what only some of them do.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <type_traits>

#include "app/sesion.h"
#include "catalogs/finance/Calculo_Window.h"
#include "catalogs/simple/Asesor_Window.h"
#include "catalogs/simple/ClasificacionCredito_Window.h"
#include "catalogs/simple/ConceptoScoring_Window.h"
#include "catalogs/simple/Estados_Credito_Window.h"
#include "catalogs/simple/Finalidades_Window.h"
#include "catalogs/simple/Grupo_Window.h"
#include "catalogs/simple/Modulo_Window.h"
#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/MotivoBaja_Window.h"
#include "catalogs/simple/Ocupacion_Window.h"
#include "catalogs/simple/TipoMoviBanco_Window.h"
#include "catalogs/simple/TipoSocio_Window.h"
#include "catalogs/simple/TipoUsuario_Window.h"
#include "catalogs/simple/Tipo_Garantia_Window.h"
#include "tests/catalogs/ConMandos.h"
#include "tests/support/Cortes.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Registros.h"

namespace pruebas {
namespace {

struct Banderas {
  bool cambiado, nuevo;
  bool operator==(const Banderas& otras) const { return cambiado == otras.cambiado && nuevo == otras.nuevo; }
};

/// What a row of the table needs of a form's class and of the global record on which it works.
struct Modelo {
  const FXMetaClass* meta;
  FXWindow* (*abre)(Area& area);
  FXString (*titulo)(FXWindow* forma);
  void (*exigeMapa)(bool conBuscar);
  const char* (*clase)();
  void (*limpia)();
  Banderas (*banderas)();
};

/// The messages in their order, numbered upwards from those of the base class. `lista` is the handler of the
/// list, and `propio` that of a message of its own, if there is one.
template <class V, auto lista, auto propio>
void ExigeMapa(bool conBuscar) {
  using Manejador = long (V::*)(FXObject*, FXSelector, void*);
  std::vector<Manejador> mandos = {&V::onCmdAgregar};
  if (conBuscar) mandos.push_back(&V::onCmdFind);
  mandos.insert(mandos.end(), {&V::onCmdClear, &V::onCmdBorrar, lista});
  if constexpr (std::is_member_function_pointer_v<decltype(propio)>) mandos.push_back(propio);
  const auto en = [](FXSelector sel) -> Manejador {
    const auto* const entrada = static_cast<const typename V::FXMapEntry*>(V::metaClass.search(sel));
    return entrada != nullptr ? entrada->func : nullptr;
  };
  FXSelector id = V::Marco::ID_LAST;
  for (const Manejador mando : mandos) EXPECT_EQ(en(FXSEL(SEL_COMMAND, id++)), mando) << id;
  EXPECT_EQ(en(FXSEL(SEL_SIGNAL, id++)), Manejador{&V::onCmdQuit});
  EXPECT_EQ(en(FXSEL(SEL_CLOSE, 0)), Manejador{&V::onCmdQuit});
  EXPECT_EQ(id, FXSelector{V::ID_LAST});
  for (const FXuint tipo : {FXuint{SEL_COMMAND}, FXuint{SEL_KEYPRESS}})
    EXPECT_EQ(en(FXSEL(tipo, tipo == SEL_COMMAND ? id : 0)), nullptr);
}

template <class V, auto& registro, auto lista, auto propio = nullptr>
Modelo De() {
  return {&V::metaClass,
          [](Area& area) -> FXWindow* { return area.Abre<V>(); },
          [](FXWindow* forma) { return static_cast<V*>(forma)->getTitle(); },
          ExigeMapa<V, lista, propio>,
          [] { return registro.clase(); },
          [] { registro.Clear(); },
          [] {
            return Banderas{registro.getDataChanged(), registro.IsNew()};
          }};
}

enum class Tipo { Texto, Real, Parrafo, Casilla };

/// A row of fields as it stands on the screen.
struct CampoVisto {
  const char* etiqueta;
  Tipo tipo;
  FXint columnas;
  FXuint estilo;
  FXuint lado = JUSTIFY_LEFT;
  FXint filas = 1;
};

CampoVisto Clave(const char* etiqueta, FXint columnas) {
  return {etiqueta, Tipo::Texto, columnas, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY};
}
CampoVisto ClaveEntera(const char* etiqueta, FXint columnas, FXuint lado) {
  return {etiqueta, Tipo::Real, columnas, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER, lado};
}
CampoVisto Texto(const char* etiqueta, FXint columnas) {
  return {etiqueta, Tipo::Texto, columnas, TEXTFIELD_LIMITED};
}
CampoVisto Real(const char* etiqueta, FXint columnas) {
  return {etiqueta, Tipo::Real, columnas, TEXTFIELD_LIMITED | TEXTFIELD_REAL, JUSTIFY_RIGHT};
}
CampoVisto Parrafo(const char* etiqueta, FXint filas, FXint columnas) {
  return {etiqueta, Tipo::Parrafo, columnas, TEXT_WORDWRAP, JUSTIFY_LEFT, filas};
}
CampoVisto Casilla(const char* etiqueta) { return {etiqueta, Tipo::Casilla, 0, 0}; }

struct Recuadro {
  const char* titulo;
  std::vector<CampoVisto> campos;
};

struct Hija {
  FXint ancho = 0, alto = 0;
  const char* traza = "";
  int ranura = -1;
};

struct Caso {
  Modelo modelo;
  const char* titulo;
  Hija hija;  ///< of a child form; empty for a dialog
  bool conBuscar;
  const char* lista;  ///< title of the box around it
  std::vector<Recuadro> cajas;
  Textos carga;       ///< what a load sends
  const char* tabla;  ///< on the server, its columns in the order of the fields, the key first
  Textos alta;    ///< typed field by field into an empty form; "" is left alone, and a box to check pressed
  Textos fila;    ///< the row that this makes
  Textos cambio;  ///< typed over it
  Textos otraFila;
  const char *sqlAlta, *sqlCambio, *sqlBorrado, *sqlBusqueda;
};

void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.modelo.meta->getClassName(); }

Textos EnTransaccion(const char* sql) { return {"BEGIN;", sql, "COMMIT;"}; }

const Caso casos[] = {
    {
        .modelo = De<Monedas_Window, moneda, &Monedas_Window::onCmdMoneda>(),
        .titulo = "Catalogo de Monedas",
        .hija = {620, 205, "terminando creacion frm pais", 1},
        .conBuscar = true,
        .lista = "Monedas",
        .cajas = {{"Identificación", {Clave("Moneda:", 2)}},
                  {"Datos de la Moneda", {Texto("Descripción:", 30), Real("Valor :", 10)}}},
        .carga = EnTransaccion("SELECT * FROM spsmoneda('  ');"),
        .tabla = "moneda",
        .alta = {"Z", "Prueba nueva", "2.5"},
        .fila = {"Z ", "Prueba nueva", "2.5"},
        .cambio = {"", "Prueba otra", ""},
        .otraFila = {"Z ", "Prueba otra", "2.5"},
        .sqlAlta = "select spimoneda('Z ','Prueba nueva',2.500000);",
        .sqlCambio = "select spumoneda('Z ','Prueba otra',2.500000);",
        .sqlBorrado = "SELECT spdmoneda('Z ');",
        .sqlBusqueda = "SELECT * FROM spsmoneda('Z ');",
    },
    {
        .modelo = De<Tipo_Garantia_Window, tipo_garantia, &Tipo_Garantia_Window::onCmdLista>(),
        .titulo = "Tipo de Garantia",
        .hija = {},
        .conBuscar = true,
        .lista = "Tipo Garantia",
        .cajas = {{"Identificación", {Clave("Clave:", 3)}},
                  {"Datos del Tipo de Garantia", {Texto("Descripción:", 30)}}},
        .carga = EnTransaccion("SELECT * FROM spstipo_garantia('  ');"),
        .tabla = "tipo_garantia",
        .alta = {"Z", "Prueba nueva"},
        .fila = {"Z  ", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"Z  ", "Prueba otra"},
        .sqlAlta = "select spitipo_garantia('Z  ','Prueba nueva');",
        .sqlCambio = "select sputipo_garantia('Z  ','Prueba otra');",
        .sqlBorrado = "SELECT spdtipo_garantia('Z  ');",
        .sqlBusqueda = "SELECT * FROM spstipo_garantia('Z  ');",
    },
    {
        .modelo = De<Estados_Credito_Window, estados_credito, &Estados_Credito_Window::onCmdLista>(),
        .titulo = "Estados del Credito",
        .hija = {},
        .conBuscar = true,
        .lista = "Estado del Credito",
        .cajas = {{"Identificacion", {Clave("Clave:", 3)}},
                  {"Datos del estado del credito", {Texto("Descripción:", 30)}}},
        .carga = EnTransaccion("SELECT * FROM spsestados_credito('  ');"),
        .tabla = "estados_credito",
        .alta = {"Z", "Prueba nueva"},
        .fila = {"Z  ", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"Z  ", "Prueba otra"},
        .sqlAlta = "select spiestados_credito('Z  ','Prueba nueva');",
        .sqlCambio = "select spuestados_credito('Z  ','Prueba otra');",
        .sqlBorrado = "SELECT spdestados_credito('Z  ');",
        .sqlBusqueda = "SELECT * FROM spsestados_credito('Z  ');",
    },
    {
        .modelo = De<Finalidades_Window, finalidades, &Finalidades_Window::onCmdLista>(),
        .titulo = "Finalidades",
        .hija = {},
        .conBuscar = true,
        .lista = "Finalidades",
        .cajas = {{"Identificación", {Clave("Clave:", 3)}},
                  {"Datos de la Finalidad del Credito", {Texto("Descripción:", 30)}}},
        .carga = EnTransaccion("SELECT * FROM spsfinalidades('  ');"),
        .tabla = "finalidades",
        .alta = {"Z", "Prueba nueva"},
        .fila = {"Z  ", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"Z  ", "Prueba otra"},
        .sqlAlta = "select spiFinalidades('Z  ','Prueba nueva');",
        .sqlCambio = "select spufinalidades('Z  ','Prueba otra');",
        .sqlBorrado = "SELECT spdfinalidades('Z  ');",
        .sqlBusqueda = "SELECT * FROM spsfinalidades('Z  ');",
    },
    {
        .modelo = De<Modulo_Window, modulo, &Modulo_Window::onCmdModulo>(),
        .titulo = "Modulo",
        .hija = {},
        .conBuscar = true,
        .lista = "Modulo",
        .cajas = {{"Clave", {Clave("Clave:", 10)}}, {"", {Parrafo("Descripción:", 2, 40)}}},
        .carga = EnTransaccion("SELECT * FROM spsmodulo('  ');"),
        .tabla = "modulo",
        .alta = {"9901", "Prueba nueva"},
        .fila = {"9901      ", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"9901      ", "Prueba otra"},
        .sqlAlta = "select spimodulo('9901      ','Prueba nueva');",
        .sqlCambio = "select spumodulo('9901      ','Prueba otra');",
        .sqlBorrado = "SELECT spdmodulo('9901      ');",
        .sqlBusqueda = "SELECT * FROM spsmodulo('9901      ');",
    },
    {
        .modelo = De<TipoUsuario_Window, tipousuario, &TipoUsuario_Window::onCmdTipoUsuario>(),
        .titulo = "Tipo de Usuarios",
        .hija = {},
        .conBuscar = true,
        .lista = "Tipo Usuario",
        .cajas = {{"Identificador", {Clave("Identificador:", 3)}},
                  {"Descripción", {Texto("Descripción:", 20)}}},
        .carga = EnTransaccion("SELECT * FROM spstipousuario('  ');"),
        .tabla = "tipousuario",
        .alta = {"Z", "Prueba nueva"},
        .fila = {"Z  ", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"Z  ", "Prueba otra"},
        .sqlAlta = "select spitipousuario('Z  ','Prueba nueva');",
        .sqlCambio = "select sputipousuario('Z  ','Prueba otra');",
        .sqlBorrado = "SELECT spdtipousuario('Z  ');",
        .sqlBusqueda = "SELECT * FROM spstipousuario('Z  ');",
    },
    {
        .modelo = De<TipoSocio_Window, tiposocio, &TipoSocio_Window::onCmdTipoSocio>(),
        .titulo = "Socios",
        .hija = {},
        .conBuscar = true,
        .lista = "Socios",
        .cajas = {{"Identificación", {Clave("Identificador:", 2)}},
                  {"Descripciòn", {Texto("Descripcion:", 30), Parrafo("Observaciones:", 4, 50)}}},
        .carga = EnTransaccion("SELECT * FROM spstiposocio('  ');"),
        .tabla = "tiposocio",
        .alta = {"Z", "Prueba nueva", "Vota"},
        .fila = {"Z ", "Prueba nueva", "Vota"},
        .cambio = {"", "Prueba otra", ""},
        .otraFila = {"Z ", "Prueba otra", "Vota"},
        .sqlAlta = "select spitiposocio('Z ','Prueba nueva','Vota');",
        .sqlCambio = "select sputiposocio('Z ','Prueba otra','Vota');",
        .sqlBorrado = "SELECT spdtiposocio('Z ');",
        .sqlBusqueda = "SELECT * FROM spstiposocio('Z ');",
    },
    {
        .modelo = De<TipoMoviBanco_Window, tipomovibanco, &TipoMoviBanco_Window::onCmdTipoMoviBanco,
                     &TipoMoviBanco_Window::onCmdOperacionSumaResta>(),
        .titulo = "Catalogo Movimientos Bancarios",
        .hija = {650, 180, "terminando creacion frm tipomovibanco", 3},
        .conBuscar = true,
        .lista = "Movimiento",
        .cajas = {{"Identificación", {Clave("Clave:", 2)}},
                  {"Datos del Movimiento", {Texto("Descripción:", 30), Casilla("Incrementar Saldo:")}}},
        .carga = EnTransaccion("SELECT * FROM spstipomovibanco('  ');"),
        .tabla = "tipomovibanco",
        .alta = {"Z", "Prueba nueva", "+"},
        .fila = {"Z ", "Prueba nueva", "+"},
        .cambio = {"", "Prueba otra", "-"},
        .otraFila = {"Z ", "Prueba otra", "-"},
        .sqlAlta = "select spitipomovibanco('Z ','Prueba nueva','+');",
        .sqlCambio = "select sputipomovibanco('Z ','Prueba otra','-');",
        .sqlBorrado = "SELECT spdtipomovibanco('Z ');",
        .sqlBusqueda = "SELECT * FROM spstipomovibanco('Z ');",
    },
    {
        .modelo = De<Asesor_Window, asesor, &Asesor_Window::onCmdAsesor>(),
        .titulo = "Catalogo de Asesores",
        .hija = {620, 205, "terminando creacion frm pais", 1},
        .conBuscar = true,
        .lista = "Asesor",
        .cajas = {{"Identificación", {ClaveEntera("Identificador:", 2, JUSTIFY_LEFT)}},
                  {"Datos del Asesor", {Texto("Asesor:", 50)}}},
        .carga = EnTransaccion("SELECT * FROM spsasesor(0);"),
        .tabla = "asesor",
        .alta = {"91", "Prueba nueva"},
        .fila = {"91", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"91", "Prueba otra"},
        .sqlAlta = "select spiasesor(91,'Prueba nueva');",
        .sqlCambio = "select spuasesor(91,'Prueba otra');",
        .sqlBorrado = "SELECT spdasesor(91);",
        .sqlBusqueda = "SELECT * FROM spsasesor(91);",
    },
    {
        .modelo = De<MotivoBaja_Window, motivobaja, &MotivoBaja_Window::onCmdMotivoBaja>(),
        .titulo = "Motivos Baja",
        .hija = {550, 170, "terminando creacion frm motivobaja", 99},
        .conBuscar = false,
        .lista = "Motivos",
        .cajas = {{"", {ClaveEntera("Identificador:", 4, JUSTIFY_RIGHT), Texto("Descripcion:", 30)}}},
        .carga = {"SELECT * FROM spsmotivobaja(0);"},
        .tabla = "motivobaja",
        .alta = {"", "Prueba nueva"},
        .fila = {"8", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"8", "Prueba otra"},
        .sqlAlta = "select spimotivobaja('Prueba nueva');",
        .sqlCambio = "select spumotivobaja(8,'Prueba otra');",
        .sqlBorrado = "SELECT spdmotivobaja(8);",
        .sqlBusqueda = "SELECT * FROM spsmotivobaja(8);",
    },
    {
        .modelo = De<ClasificacionCredito_Window, clasificacioncredito,
                     &ClasificacionCredito_Window::onCmdClasificacionCredito>(),
        .titulo = "Clasificacion de Creditos",
        .hija = {550, 170, "terminando creacion frm clasificacioncredito", 99},
        .conBuscar = false,
        .lista = "Calsificacion de Creditos",
        .cajas = {{"", {ClaveEntera("Identificador:", 4, JUSTIFY_RIGHT), Texto("Descripcion:", 30)}}},
        .carga = {"SELECT * FROM spsclasificacioncredito(0);"},
        .tabla = "clasificacioncredito",
        .alta = {"", "Prueba nueva"},
        .fila = {"6", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"6", "Prueba otra"},
        .sqlAlta = "select spiclasificacioncredito('Prueba nueva');",
        .sqlCambio = "select spuclasificacioncredito(6,'Prueba otra');",
        .sqlBorrado = "SELECT spdclasificacioncredito(6);",
        .sqlBusqueda = "SELECT * FROM spsclasificacioncredito(6);",
    },
    {
        .modelo = De<Grupo_Window, grupo, &Grupo_Window::onCmdGrupo>(),
        .titulo = "Grupos",
        .hija = {550, 170, "terminando creacion frm grupo", 99},
        .conBuscar = false,
        .lista = "Grupos",
        .cajas = {{"", {ClaveEntera("Identificador:", 4, JUSTIFY_RIGHT), Texto("Grupo:", 30)}}},
        .carga = {"SELECT * FROM spsgrupo(0);"},
        .tabla = "grupo",
        .alta = {"", "Prueba nueva"},
        .fila = {"7", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"7", "Prueba otra"},
        .sqlAlta = "select spigrupo('Prueba nueva');",
        .sqlCambio = "select spugrupo(7,'Prueba otra');",
        .sqlBorrado = "SELECT spdgrupo(7);",
        .sqlBusqueda = "SELECT * FROM spsgrupo(7);",
    },
    {
        .modelo = De<Ocupacion_Window, ocupacion, &Ocupacion_Window::onCmdOcupacion>(),
        .titulo = "Ocupacions",
        .hija = {550, 170, "terminando creacion frm ocupacion", 99},
        .conBuscar = false,
        .lista = "Ocupacions",
        .cajas = {{"", {ClaveEntera("Identificador:", 4, JUSTIFY_RIGHT), Texto("Ocupacion:", 30)}}},
        .carga = {"SELECT * FROM spsocupacion(0);"},
        .tabla = "ocupacion",
        .alta = {"", "Prueba nueva"},
        .fila = {"33", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"33", "Prueba otra"},
        .sqlAlta = "select spiocupacion('Prueba nueva');",
        .sqlCambio = "select spuocupacion(33,'Prueba otra');",
        .sqlBorrado = "SELECT spdocupacion(33);",
        .sqlBusqueda = "SELECT * FROM spsocupacion(33);",
    },
    {
        .modelo =
            De<ConceptoScoring_Window, conceptoscoring, &ConceptoScoring_Window::onCmdConceptoScoring>(),
        .titulo = "Concepto Scoring",
        .hija = {},
        .conBuscar = true,
        .lista = "Concepto Scoring",
        .cajas = {{"Identificación", {ClaveEntera("Identificador:", 2, JUSTIFY_LEFT)}},
                  {"Concepto", {Texto("Nombre:", 20)}}},
        .carga = {"SELECT * FROM spsconceptoscoring(0);"},
        .tabla = "conceptoscoring",
        .alta = {"", "Prueba nueva"},
        .fila = {"11", "Prueba nueva"},
        .cambio = {"", "Prueba otra"},
        .otraFila = {"11", "Prueba otra"},
        .sqlAlta = "select spiconceptoscoring('Prueba nueva');",
        .sqlCambio = "select spuconceptoscoring('11','Prueba otra');",
        .sqlBorrado = "SELECT spdconceptoscoring(11);",
        .sqlBusqueda = "SELECT * FROM spsconceptoscoring(11);",
    },
    {
        .modelo = De<Calculo_Window, calculo, &Calculo_Window::onCmdCalculo>(),
        .titulo = "Formulas de Calculos",
        .hija = {},
        .conBuscar = true,
        .lista = "Formulas",
        .cajas = {{"Identificación", {ClaveEntera("Identificador:", 4, JUSTIFY_LEFT)}},
                  {"Datos de la Formula", {Texto("Descripción:", 40), Texto("Formula:", 60)}}},
        .carga = EnTransaccion("SELECT * FROM spscalculo(0);"),
        .tabla = "calculo",
        .alta = {"", "Prueba nueva", "Dias * 2"},
        .fila = {"7", "Prueba nueva", "Dias * 2"},
        .cambio = {"", "Prueba otra", ""},
        .otraFila = {"7", "Prueba otra", "Dias * 2"},
        .sqlAlta = "select spicalculo('Prueba nueva','Dias * 2');",
        .sqlCambio = "select spucalculo(7,'Prueba otra','Dias * 2');",
        .sqlBorrado = "SELECT spdcalculo(7);",
        .sqlBusqueda = "SELECT * FROM spscalculo(7);",
    },
};

/// The columns of a table that a form shows, where they are not all of them as they stand.
std::string ColumnasDe(const FXMetaClass& meta) {
  if (&meta == &Monedas_Window::metaClass) return "monedaid, monedadescri, monedavalor::float8";
  if (&meta == &Calculo_Window::metaClass) return "calculoid, descripcioncalculo, formula";
  return "*";
}

class FormaSimple : public ConMandos {
 protected:
  /// Opens the form with a record as the program has it at its start.
  void Abre(const Caso& caso) {
    caso_ = &caso;
    clase_ = caso.modelo.clase;
    caso.modelo.limpia();
    forma_ = caso.modelo.abre(area_);
    espia_.Vacia();
  }
  std::vector<CampoVisto> CamposVistos() const {
    std::vector<CampoVisto> campos;
    for (const Recuadro& caja : caso_->cajas)
      campos.insert(campos.end(), caja.campos.begin(), caja.campos.end());
    return campos;
  }
  /// Types into the fields in order; "" leaves one alone, and a box to check is pressed.
  void Llena(const Textos& valores) {
    for (size_t i = 0; i < valores.size(); ++i) {
      if (valores[i].empty()) continue;
      FXWindow* const pieza = PiezaJuntoA(forma_, CamposVistos()[i].etiqueta);
      if (CamposVistos()[i].tipo == Tipo::Casilla) {
        Pulsa(pieza);
      } else {
        Escribe(CamposVistos()[i].tipo == Tipo::Parrafo ? Todos<FXText>(pieza).at(0) : pieza, valores[i]);
      }
    }
  }
  Textos Pantalla() {
    Bombea();
    Textos textos;
    for (const CampoVisto& campo : CamposVistos()) {
      if (campo.tipo == Tipo::Parrafo) {
        textos.push_back(JuntoA<FXText>(forma_, campo.etiqueta)->getText().text());
      } else if (campo.tipo == Tipo::Casilla) {
        textos.push_back(JuntoA<FXCheckButton>(forma_, campo.etiqueta)->getCheck() ? "+" : "-");
      } else {
        textos.push_back(Leido(forma_, campo.etiqueta));
      }
    }
    return textos;
  }
  Textos Vacia() const {
    Textos textos;
    for (const CampoVisto& campo : CamposVistos())
      textos.push_back(campo.tipo == Tipo::Real ? "0" : campo.tipo == Tipo::Casilla ? "-" : "");
    return textos;
  }
  Banderas Estado() const { return caso_->modelo.banderas(); }
  /// The row with the key of `fila`, as the server holds it.
  Tabla EnLaBase(const Textos& fila) {
    const std::string tabla = std::string("norte.") + caso_->tabla;
    const std::string clave = base_->Valor(
        "select attname from pg_attribute where attnum = 1 and attrelid = '" + tabla + "'::regclass");
    return base_->Filas("select " + ColumnasDe(*caso_->modelo.meta) + " from " + tabla + " where " + clave +
                        " = '" + fila.at(0) + "'");
  }

  const Caso* caso_ = nullptr;
};

class FormasSimples : public FormaSimple, public testing::WithParamInterface<Caso> {
 protected:
  void SetUp() override {
    FormaSimple::SetUp();
    Abre(GetParam());
  }
};

INSTANTIATE_TEST_SUITE_P(, FormasSimples, testing::ValuesIn(casos), [](const auto& info) {
  return std::string(info.param.modelo.meta->getClassName());
});

TEST_P(FormasSimples, SeAbreConSuTituloYEnSuLugar) {
  const Caso& caso = GetParam();
  EXPECT_EQ(caso.modelo.titulo(forma_), caso.titulo);
  if (caso.hija.ancho > 0) {
    EXPECT_EQ(caso.modelo.meta->getBaseClass(), FXMETACLASS(FXMDIChild));
    EXPECT_EQ(forma_->getX(), 20);
    EXPECT_EQ(forma_->getY(), 20);
    EXPECT_EQ(forma_->getWidth(), caso.hija.ancho);
    EXPECT_EQ(forma_->getHeight(), caso.hija.alto);
  } else {
    EXPECT_EQ(caso.modelo.meta->getBaseClass(), FXMETACLASS(FXDialogBox));
    EXPECT_EQ(static_cast<FXDialogBox*>(forma_)->getDecorations(),
              FXuint{DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE});
  }
}

TEST_P(FormasSimples, AlAbrirCargaTrazaYOcupaSuRanura) {
  const Hija& hija = GetParam().hija;
  std::fill_n(mdiArray, RanurasMdi + 1, false);
  Area otra;
  const Salida salida;
  FXWindow* const forma = GetParam().modelo.abre(otra);
  EXPECT_EQ(Enviado(), GetParam().carga);
  const Textos lineas = salida.Lineas();
  const bool traza = hija.ancho > 0;
  EXPECT_EQ(std::count(lineas.begin(), lineas.end(), hija.traza), traza);
  EXPECT_EQ(std::count_if(lineas.begin(), lineas.end(),
                          [](const std::string& linea) { return linea.rfind("terminando", 0) == 0; }),
            traza);
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), traza);
  EXPECT_TRUE(!traza || mdiArray[hija.ranura]);
  EXPECT_EQ(Estado(), (Banderas{false, true}));
  EXPECT_EQ(Pantalla(), Vacia());
  Pulsa(Boton(forma, "&Cerrar"));
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 0);
  EXPECT_TRUE(Enviado().empty());
}

TEST_P(FormasSimples, SusMensajesVanEnOrden) { GetParam().modelo.exigeMapa(GetParam().conBuscar); }

TEST_P(FormasSimples, TieneSusCajasCamposYBotones) {
  const Caso& caso = GetParam();
  const std::vector<FXGroupBox*> cajas = Todos<FXGroupBox>(forma_);
  ASSERT_EQ(cajas.size(), caso.cajas.size() + 2);
  EXPECT_STREQ(cajas.front()->getText().text(), caso.lista);
  EXPECT_EQ(Lista(cajas.front()), Lista(forma_));
  for (size_t i = 0; i < caso.cajas.size(); ++i) {
    FXGroupBox* const caja = cajas[i + 1];
    EXPECT_STREQ(caja->getText().text(), caso.cajas[i].titulo);
    EXPECT_EQ(caja->getFrameStyle(), FXuint{FRAME_GROOVE});
    Textos etiquetas;
    for (const CampoVisto& campo : caso.cajas[i].campos) etiquetas.emplace_back(campo.etiqueta);
    EXPECT_EQ(Etiquetas(caja), etiquetas);
  }
  EXPECT_EQ(cajas.back()->getText(), "");
  Textos botones = {"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"};
  if (!caso.conBuscar) botones.erase(botones.begin() + 1);
  EXPECT_EQ(Botones(cajas.back()), botones);
}

TEST_P(FormasSimples, CadaCampoTieneSuAnchoYSuClase) {
  for (const CampoVisto& campo : CamposVistos()) {
    SCOPED_TRACE(campo.etiqueta);
    if (campo.tipo == Tipo::Casilla) {
      JuntoA<FXCheckButton>(forma_, campo.etiqueta);
    } else if (campo.tipo == Tipo::Parrafo) {
      const FXText* parrafo = JuntoA<FXText>(forma_, campo.etiqueta);
      EXPECT_EQ(parrafo->getVisibleColumns(), campo.columnas);
      EXPECT_EQ(parrafo->getVisibleRows(), campo.filas);
      EXPECT_EQ(parrafo->getTextStyle(), campo.estilo);
      EXPECT_EQ(parrafo->getTarget(), nullptr);
    } else {
      const FXTextField* texto = CampoJuntoA(forma_, campo.etiqueta);
      EXPECT_EQ(texto->getNumColumns(), campo.columnas);
      EXPECT_EQ(texto->getTextStyle(), campo.estilo);
      EXPECT_EQ(texto->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), campo.lado);
    }
  }
}

// With the program's own font.
TEST_P(FormasSimples, NadaSeVeCortado) {
  const Principal principal;
  Area area;
  FXWindow* const forma = GetParam().modelo.abre(area);
  ASSERT_TRUE(BombeaHasta([&] { return Grupo(forma, GetParam().lista)->getHeight() > 1; }));  // laid out
  ExigeNadaCortado(forma);
  EXPECT_EQ(Lista(forma)->getWidth(), 150);
}

TEST_P(FormasSimples, RegistraBuscaCambiaYBorra) {
  const Caso& caso = GetParam();
  Llena(caso.alta);
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", caso.sqlAlta, "COMMIT;"} + caso.carga));
  EXPECT_EQ(Estado(), (Banderas{false, false}));
  EXPECT_EQ(RenglonActual(), caso.fila[1]);
  EXPECT_EQ(EnLaBase(caso.fila), Tabla{caso.fila});

  Manda("&Nuevo");
  EXPECT_EQ(Pantalla(), Vacia());
  if (caso.conBuscar) {
    Llena({caso.fila[0]});
    Manda("&Buscar");
    EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
  } else {
    EligeRenglon(Lista(forma_), Lista(forma_)->getNumItems() - 1);
    EXPECT_TRUE(Enviado().empty());
  }
  EXPECT_EQ(Pantalla(), caso.fila);
  EXPECT_EQ(RenglonActual(), caso.fila[1]);
  EXPECT_EQ(Estado(), (Banderas{false, false}));

  Llena(caso.cambio);
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", caso.sqlCambio, "COMMIT;"} + caso.carga));
  EXPECT_EQ(Estado(), (Banderas{false, false}));
  EXPECT_EQ(RenglonActual(), caso.otraFila[1]);
  EXPECT_EQ(EnLaBase(caso.fila), Tabla{caso.otraFila});

  EXPECT_EQ(Pregunta("&Borrar", Respuesta::No), "Borrar el registro ?");
  EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
  EXPECT_EQ(Pantalla(), caso.otraFila);
  EXPECT_EQ(Pregunta("&Borrar", Respuesta::Si), "Borrar el registro ?");
  EXPECT_EQ(Enviado(), (Textos{caso.sqlBusqueda, "BEGIN;", caso.sqlBorrado, "COMMIT;"} + caso.carga));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(Estado(), (Banderas{false, true}));
  EXPECT_TRUE(EnLaBase(caso.fila).empty());
  const Textos renglones = Renglones();
  EXPECT_EQ(std::count(renglones.begin(), renglones.end(), caso.otraFila[1]), 0);
}

TEST_P(FormasSimples, AceptarSinTocarNadaNoHaceNada) {
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_TRUE(Enviado().empty());
}

TEST_P(FormasSimples, ContestarQueNoDejaPreguntarOtraVez) {
  Llena(GetParam().alta);
  for (int vez = 0; vez < 2; ++vez) {
    EXPECT_EQ(Pregunta("&Aceptar", Respuesta::No), "Registrar ?");
    EXPECT_EQ(Estado(), (Banderas{true, true}));
  }
  EXPECT_TRUE(Enviado().empty());
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(EnLaBase(GetParam().fila), Tabla{GetParam().fila});
}

// The record keeps what was shown last, so nothing has changed for it.
TEST_P(FormasSimples, NuevoConLosMismosValoresNoGuardaNada) {
  EligeRenglon(Lista(forma_), 0);
  Textos valores = Pantalla();
  Manda("&Nuevo");
  if (CamposVistos().back().tipo == Tipo::Casilla && valores.back() == "-")
    Llena(Textos(valores.size() - 1) + Textos{"-"});
  Llena(valores);
  EXPECT_EQ(Pantalla(), valores);
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_TRUE(Enviado().empty());
  EXPECT_EQ(Estado(), (Banderas{false, true}));
}

TEST_P(FormasSimples, LoQueNoHayNiSeHallaNiSeBorra) {
  const Caso& caso = GetParam();
  const Textos renglones = Renglones();
  if (caso.conBuscar) {
    Llena(caso.fila);
    EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Informacion);
    EXPECT_EQ(cuadros_.at(0).titulo, caso.modelo.clase());
    EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
    EXPECT_EQ(Pantalla(), Vacia());
    EXPECT_TRUE(Estado().nuevo);
  }
  Llena(caso.fila);
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_TRUE(Estado().nuevo);
  EXPECT_EQ(Renglones(), renglones);
}

TEST_P(FormasSimples, LoQueElServidorRechazaSePuedeRepetir) {
  const Caso& caso = GetParam();
  Llena(caso.alta);
  const bool deMonedas = caso.modelo.meta == &Monedas_Window::metaClass;
  const bool trazaErrores = deMonedas || caso.modelo.meta == &Asesor_Window::metaClass;
  const auto rechaza = [&](const char* boton, const char* sentencia) {
    const Textos antes = Renglones();
    const Textos pantalla = Pantalla();
    espia_.Cuando(sentencia, falla::Error("hoy no"));
    const Salida salida;
    EXPECT_EQ(Rechazo(boton), "ERROR:  hoy no\n");
    const Textos lineas = salida.Lineas();
    const bool delRegistro = deMonedas && sentencia == caso.sqlCambio;
    EXPECT_EQ(std::count(lineas.begin(), lineas.end(), "entrando a error"),
              delRegistro + (trazaErrores && sentencia != caso.sqlBorrado));
    EXPECT_EQ(espia_.Sentencias().back(), "ROLLBACK;");
    EXPECT_EQ(Renglones(), antes);
    EXPECT_EQ(Pantalla(), pantalla);
    EXPECT_EQ(Profundidad(), 0);
    espia_.Vacia();
  };
  rechaza("&Aceptar", caso.sqlAlta);
  EXPECT_EQ(Estado(), (Banderas{true, true}));
  EXPECT_TRUE(EnLaBase(caso.fila).empty());
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");

  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  Llena(caso.cambio);
  rechaza("&Aceptar", caso.sqlCambio);
  EXPECT_EQ(Estado(), (Banderas{true, false}));
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
  EXPECT_EQ(EnLaBase(caso.fila), Tabla{caso.otraFila});

  rechaza("&Borrar", caso.sqlBorrado);
  EXPECT_EQ(Estado(), (Banderas{false, false}));
  EXPECT_EQ(EnLaBase(caso.fila), Tabla{caso.otraFila});
}

TEST_P(FormasSimples, UnCatalogoVacioOMuyLargoTambienSeAbre) {
  const std::string carga = GetParam().carga.size() > 1 ? GetParam().carga[1] : GetParam().carga[0];
  const Falla cincoMil = [](PGconn* conexion, const char*) {
    return __real_PQexec(conexion,
                         "select i, 'Renglon ' || i, 'Renglon ' || i from generate_series(1, 5000) i");
  };
  for (const bool vacio : {true, false}) {
    espia_.Vacia();
    espia_.Cuando(carga, vacio ? falla::SinFilas() : cincoMil);
    Area area;
    forma_ = GetParam().modelo.abre(area);
    EXPECT_EQ(Lista(forma_)->getNumItems(), vacio ? 0 : 5000);
    EXPECT_EQ(Pantalla(), Vacia());
    if (vacio) continue;
    EligeRenglon(Lista(forma_), 4999);
    EXPECT_EQ(Pantalla()[1], "Renglon 5000");
    EligeRenglon(Lista(forma_), 0);
    EXPECT_EQ(Pantalla()[1], "Renglon 1");
  }
}

TEST_P(FormasSimples, LaConexionPerdidaSeDiceYOtraSirve) {
  const Caso& caso = GetParam();
  EligeRenglon(Lista(forma_), 0);
  Llena(caso.cambio);
  const Textos pantalla = Pantalla();
  base_->MataSesiones();
  EXPECT_NE(Rechazo("&Aceptar"), "");
  EXPECT_EQ(Pantalla(), pantalla);
  EXPECT_EQ(Estado(), (Banderas{true, false}));
  sesion_.reset();
  EXPECT_NE(Rechazo("&Aceptar"), "");
  sesion_.emplace(*base_);
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
  EXPECT_GE(Lista(forma_)->findItem(caso.otraFila[1].c_str()), 0);
  EXPECT_EQ(EnLaBase(pantalla), Tabla{pantalla});
}

// What only some forms do.

const Caso& CasoDe(const FXMetaClass& meta) {
  return *std::find_if(std::begin(casos), std::end(casos),
                       [&](const Caso& caso) { return caso.modelo.meta == &meta; });
}

class TipoMoviBancoTest : public FormaSimple {
 protected:
  void SetUp() override {
    FormaSimple::SetUp();
    Abre(CasoDe(TipoMoviBanco_Window::metaClass));
  }
  FXCheckButton* Casilla() { return JuntoA<FXCheckButton>(forma_, "Incrementar Saldo:"); }
};

constexpr char SinOperacion[] = "No se ha especificado el tipo de operacion del movimiento";

TEST_F(TipoMoviBancoTest, SinTocarLaCasillaNoSeRegistra) {
  Llena({"Z", "Prueba nueva", ""});
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{SinOperacion});
  EXPECT_TRUE(Enviado().empty());
  Pulsa(Casilla());
  Pulsa(Casilla());
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(EnLaBase({"Z "}), (Tabla{{"Z ", "Prueba nueva", "-"}}));
}

// Showing a record does not take its operation over: what counts is what the user checks.
TEST_F(TipoMoviBancoTest, LaOperacionEsLaQueMarcaElUsuario) {
  EligeRenglon(Lista(forma_), Lista(forma_)->findItem("Depósito en ventanilla"));  // "+"
  EXPECT_TRUE(Casilla()->getCheck());
  Llena({"", "Depósito", ""});
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{SinOperacion});
  Pulsa(Casilla());
  EligeRenglon(Lista(forma_), Lista(forma_)->findItem("Intereses ganados"));  // "+", with "-" left over
  EXPECT_TRUE(Casilla()->getCheck());
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
  EXPECT_EQ(EnLaBase({"IN"}), (Tabla{{"IN", "Intereses ganados", "-"}}));
}

TEST_F(TipoMoviBancoTest, NuevoOlvidaLaOperacion) {
  EligeRenglon(Lista(forma_), 2);
  Pulsa(Casilla());
  Pulsa(Casilla());
  Manda("&Nuevo");
  EXPECT_FALSE(Casilla()->getCheck());
  Llena({"Z", "Prueba nueva", ""});
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{SinOperacion});
}

class TipoSocioTest : public FormaSimple {
 protected:
  void SetUp() override {
    FormaSimple::SetUp();
    Abre(CasoDe(TipoSocio_Window::metaClass));
  }
};

TEST_F(TipoSocioTest, UnCambioEnviaDoscientasObservaciones) {
  Llena({"Z", "Fundador", Repetida("o", 300)});
  Pregunta("&Aceptar", Respuesta::Si);
  EXPECT_EQ(Enviado().at(1), "select spitiposocio('Z ','Fundador','" + Repetida("o", 254) + "');");
  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  EXPECT_EQ(Pantalla()[2], Repetida("o", 254));
  Llena({"", "Otro", ""});
  Pregunta("&Aceptar", Respuesta::Si);
  EXPECT_EQ(Enviado().at(1), "select sputiposocio('Z ','Otro','" + Repetida("o", 200) + "');");
  EXPECT_EQ(EnLaBase({"Z "}), (Tabla{{"Z ", "Otro", Repetida("o", 200)}}));
}

TEST_F(TipoSocioTest, LaDescripcionFaltaAntesQueLaClave) {
  Llena({"", "", "Vota"});
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No se especifico la descripciòn del socio"});
  Llena({"", "Fundador", ""});
  Manda("&Nuevo");
  Llena({"", "Fundador", ""});
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No ha especifico el identipicador"});
}

TEST_F(TipoSocioTest, LasObservacionesPuedenTenerRenglones) {
  Llena({"Z", "Fundador", "Vota.\nNo pide crédito."});
  Pregunta("&Aceptar", Respuesta::Si);
  EXPECT_EQ(EnLaBase({"Z "}), (Tabla{{"Z ", "Fundador", "Vota.\nNo pide crédito."}}));
  Manda("&Nuevo");
  EXPECT_EQ(Pantalla(), Vacia());
  Llena({"Z"});
  Manda("&Buscar");
  EXPECT_EQ(Pantalla()[2], "Vota.\nNo pide crédito.");
}

TEST_F(FormaSimple, UnGrupoDeUnaLetraViajaConDosBlancos) {
  Abre(CasoDe(Grupo_Window::metaClass));
  Llena({"", "A"});
  Pregunta("&Aceptar", Respuesta::Si);
  EXPECT_EQ(Enviado().at(1), "select spigrupo('A  ');");
  EXPECT_EQ(RenglonActual(), "A  ");
  EXPECT_EQ(EnLaBase({"7"}), (Tabla{{"7", "A  "}}));
}

// The server's key is seen by choosing the row; the window keeps what was typed.
TEST_F(FormaSimple, TrasRegistrarLaVentanaConservaLoTecleado) {
  for (const FXMetaClass* meta :
       {&Grupo_Window::metaClass, &ConceptoScoring_Window::metaClass, &Calculo_Window::metaClass}) {
    Abre(CasoDe(*meta));
    Llena(caso_->alta);
    Pregunta("&Aceptar", Respuesta::Si);
    Textos tecleado = caso_->fila;
    tecleado[0] = "0";
    EXPECT_EQ(Pantalla(), tecleado);
    EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
    EXPECT_EQ(Pantalla(), caso_->fila);
  }
}

TEST_F(FormaSimple, UnaClaveMasLargaQueSuCampoSeVeEntera) {
  escrita_ = true;
  base_->Ejecuta("insert into norte.asesor values (12345, 'El último')");
  Abre(CasoDe(Asesor_Window::metaClass));
  EligeRenglon(Lista(forma_), Lista(forma_)->getNumItems() - 1);
  EXPECT_EQ(Pantalla(), (Textos{"12345", "El último"}));
  EXPECT_EQ(Pregunta("&Borrar", Respuesta::Si), "Borrar el registro ?");
  EXPECT_EQ(base_->Valor("select count(*) from norte.asesor where asesorid = 12345"), "0");
}

TEST_F(FormaSimple, CadaReglaDeLaRevisionSeDiceAntesDePreguntar) {
  const struct {
    const FXMetaClass& meta;
    Textos valores;
    const char* dicho;
  } reglas[] = {
      {Tipo_Garantia_Window::metaClass, {"", "x"}, "No se especifico la clave"},
      {Tipo_Garantia_Window::metaClass, {"x"}, "No ha especificado la descripción"},
      {Estados_Credito_Window::metaClass, {"x"}, "No ha especificado la descripción"},
      {Finalidades_Window::metaClass, {"x"}, "No ha especificado la descripción"},
      {Modulo_Window::metaClass, {"x"}, "No ha especificado el descripcion"},
      {TipoUsuario_Window::metaClass, {"x"}, "No ha especificado el descripcion"},
      {TipoMoviBanco_Window::metaClass, {"x", "", "+"}, "No ha especificado la descripción"},
      {Asesor_Window::metaClass, {"9"}, "No ha especificado el nombre del asesor"},
      {MotivoBaja_Window::metaClass, {"9"}, "No se especifico la descripcion"},
      {ClasificacionCredito_Window::metaClass, {"9"}, "No se especifico la descripcion"},
      {Grupo_Window::metaClass, {"9"}, "No se especifico la descripcion"},
      {Ocupacion_Window::metaClass, {"9"}, "No se especifico la descripcion"},
      {ConceptoScoring_Window::metaClass, {"9"}, "No ha especificado el concepto"},
      {Calculo_Window::metaClass, {"9", "", "Dias"}, "No se especifico el calculo"},
      {Calculo_Window::metaClass, {"9", "x"}, "No se especifico la formula"},
  };
  for (const auto& [meta, valores, dicho] : reglas) {
    SCOPED_TRACE(std::string(meta.getClassName()) + ": " + dicho);
    Abre(CasoDe(meta));
    Llena(valores);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{dicho});
    EXPECT_EQ(cuadros_.at(0).titulo, "Error en Validación");
    EXPECT_EQ(Estado(), (Banderas{true, true}));
    EXPECT_TRUE(Enviado().empty());
  }
}

}  // namespace
}  // namespace pruebas
