// The records that are nothing but the pattern, one row each.
#include <gtest/gtest.h>

#include "app/sesion.h"
#include "catalogs/people/cCiudadMex.h"
#include "catalogs/people/cColonia.h"
#include "catalogs/people/cEstadoMex.h"
#include "catalogs/simple/cAsesor.h"
#include "catalogs/simple/cClasificacionCredito.h"
#include "catalogs/simple/cConceptoScoring.h"
#include "catalogs/simple/cEstados_Credito.h"
#include "catalogs/simple/cFinalidades.h"
#include "catalogs/simple/cGrupo.h"
#include "catalogs/simple/cModulo.h"
#include "catalogs/simple/cMotivoBaja.h"
#include "catalogs/simple/cOcupacion.h"
#include "catalogs/simple/cTipoAcreditadoR.h"
#include "catalogs/simple/cTipoAsentamiento.h"
#include "catalogs/simple/cTipoMoviBanco.h"
#include "catalogs/simple/cTipoSocio.h"
#include "catalogs/simple/cTipoUsuario.h"
#include "catalogs/simple/cTipo_Garantia.h"
#include "tests/catalogs/Ficha.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// What the setter of a text stores: at least `minimo` bytes, at most `maximo`.
struct Ancho {
  size_t minimo, maximo;
};

struct Regla {
  Textos valores;  ///< set one after the other on an empty record; "" is not set
  const char* mensaje;
};

struct Caso {
  const char* nombre;
  const char* clase;
  Hacedor hace;
  const char* talCual;  ///< what that constructor stores
  const char* tabla;    ///< on the server, with the key in its first column
  bool asignada;        ///< does the server assign the key
  std::vector<Ancho> anchos;
  Textos valores, otros;  ///< to insert and to change
  Textos fila, otraFila;  ///< the same as the server holds them
  const char* alta;
  const char* cambio;
  const char* borrado;
  const char* busqueda;
  std::vector<Regla> reglas;
  unsigned trazas = TrazaNinguna;
};

#define COLUMNA(R, nombre) De(&R::set##nombre, &R::get##nombre)
#define COLUMNAS(R, clave, texto) \
  std::vector<Columna<R>> { COLUMNA(R, clave), COLUMNA(R, texto) }

const Caso casos[] = {
    {"cTipo_Garantia",
     "Tipo de Garantía",
     Hace(COLUMNAS(cTipo_Garantia, ClaveGarantia, DescripcionGarantia), "A", "Aval"),
     "[A|Aval]",
     "tipo_garantia",
     false,
     {{3, 3}, {0, 30}},
     {"ZZ", "Fianza"},
     {"ZZ", "Otra"},
     {"ZZ ", "Fianza"},
     {"ZZ ", "Otra"},
     "select spitipo_garantia('ZZ ','Fianza');",
     "select sputipo_garantia('ZZ ','Otra');",
     "SELECT spdtipo_garantia('ZZ ');",
     "SELECT * FROM spstipo_garantia('ZZ ');",
     {{{"", ""}, "No se especifico la clave"},
      {{"", "x"}, "No se especifico la clave"},
      {{"x", ""}, "No ha especificado la descripción"}}},
    {"cEstados_Credito",
     "Estado de Crédito",
     Hace(COLUMNAS(cEstados_Credito, ClaveEstadoCredito, DescripcionEdoCredito), "A", "Alta"),
     "[A|Alta]",
     "estados_credito",
     false,
     {{3, 3}, {0, 30}},
     {"ZZ", "Suspendido"},
     {"ZZ", "Otro"},
     {"ZZ ", "Suspendido"},
     {"ZZ ", "Otro"},
     "select spiestados_credito('ZZ ','Suspendido');",
     "select spuestados_credito('ZZ ','Otro');",
     "SELECT spdestados_credito('ZZ ');",
     "SELECT * FROM spsestados_credito('ZZ ');",
     {{{"", ""}, "No se especifico la clave"},
      {{"", "x"}, "No se especifico la clave"},
      {{"x", ""}, "No ha especificado la descripción"}}},
    {"cFinalidades",
     "Finalidad",
     Hace(COLUMNAS(cFinalidades, ClaveFinalidad, DescripcionFinalidad), "A", "Agua"),
     "[A|Agua]",
     "finalidades",
     false,
     {{3, 3}, {0, 30}},
     {"ZZ", "Viaje"},
     {"ZZ", "Otra"},
     {"ZZ ", "Viaje"},
     {"ZZ ", "Otra"},
     "select spiFinalidades('ZZ ','Viaje');",
     "select spufinalidades('ZZ ','Otra');",
     "SELECT spdfinalidades('ZZ ');",
     "SELECT * FROM spsfinalidades('ZZ ');",
     {{{"", ""}, "No se especifico la clave"},
      {{"", "x"}, "No se especifico la clave"},
      {{"x", ""}, "No ha especificado la descripción"}}},
    {"cModulo",
     "Modulo",
     Hace(COLUMNAS(cModulo, ClaveModulo, DescriModulo), "0203", "Monedas"),
     "[0203|Monedas]",
     "modulo",
     false,
     {{10, 10}, {0, 80}},
     {"9901", "Nuevo"},
     {"9901", "Otro"},
     {"9901      ", "Nuevo"},
     {"9901      ", "Otro"},
     "select spimodulo('9901      ','Nuevo');",
     "select spumodulo('9901      ','Otro');",
     "SELECT spdmodulo('9901      ');",
     "SELECT * FROM spsmodulo('9901      ');",
     {{{"", ""}, "No se especifico la clave"},
      {{"", "x"}, "No se especifico la clave"},
      {{"x", ""}, "No ha especificado el descripcion"}}},
    {"cTipoUsuario",
     "TipoUsuario",
     Hace(COLUMNAS(cTipoUsuario, TipoUsuarioID, DescripcionTipoUsuario), "A", "Alto"),
     "[A|Alto]",
     "tipousuario",
     false,
     {{3, 3}, {0, 20}},
     {"ZZ", "Auditor"},
     {"ZZ", "Otro"},
     {"ZZ ", "Auditor"},
     {"ZZ ", "Otro"},
     "select spitipousuario('ZZ ','Auditor');",
     "select sputipousuario('ZZ ','Otro');",
     "SELECT spdtipousuario('ZZ ');",
     "SELECT * FROM spstipousuario('ZZ ');",
     {{{"", ""}, "No se especifico la clave"},
      {{"", "x"}, "No se especifico la clave"},
      {{"x", ""}, "No ha especificado el descripcion"}}},
    {"cTipoSocio",
     "TipoSocio",
     Hace(std::vector<Columna<cTipoSocio>>{COLUMNA(cTipoSocio, TipoSocioID),
                                           COLUMNA(cTipoSocio, DescriTipoSocio),
                                           COLUMNA(cTipoSocio, Observaciones)},
          "A", "Alto", "Nota"),
     "[A|Alto|Nota]",
     "tiposocio",
     false,
     {{2, 2}, {0, 30}, {0, 254}},
     {"Z", "Fundador", "Vota"},
     {"Z", "Otro", ""},
     {"Z ", "Fundador", "Vota"},
     {"Z ", "Otro", ""},
     "select spitiposocio('Z ','Fundador','Vota');",
     "select sputiposocio('Z ','Otro','');",
     "SELECT spdtiposocio('Z ');",
     "SELECT * FROM spstiposocio('Z ');",
     {{{"", "", ""}, "No se especifico la descripciòn del socio"},
      {{"x", "", "x"}, "No se especifico la descripciòn del socio"},
      {{"", "x", ""}, "No ha especifico el identipicador"}}},
    {"cTipoMoviBanco",
     "Tipo de Movimientos Bancarios",
     Hace(std::vector<Columna<cTipoMoviBanco>>{COLUMNA(cTipoMoviBanco, TipoMoviBancoID),
                                               COLUMNA(cTipoMoviBanco, DescriTipoMoviBanco),
                                               COLUMNA(cTipoMoviBanco, OperacionSumaResta)},
          "A", "Abono", "+"),
     "[A|Abono|+]",
     "tipomovibanco",
     false,
     {{2, 2}, {0, 30}, {0, 1}},
     {"Z", "Ajuste", "+"},
     {"Z", "Otro", "-"},
     {"Z ", "Ajuste", "+"},
     {"Z ", "Otro", "-"},
     "select spitipomovibanco('Z ','Ajuste','+');",
     "select sputipomovibanco('Z ','Otro','-');",
     "SELECT spdtipomovibanco('Z ');",
     "SELECT * FROM spstipomovibanco('Z ');",
     {{{"", "", ""}, "No se especifico la clave"},
      {{"", "x", "+"}, "No se especifico la clave"},
      {{"x", "", ""}, "No ha especificado la descripción"},
      {{"x", "", "-"}, "No ha especificado la descripción"},
      {{"x", "x", ""}, "No se ha especificado el tipo de operacion del movimiento"}}},
    {"cAsesor",
     "Asesor",
     Hace(COLUMNAS(cAsesor, AsesorID, NomAsesor), 7, "Ana"),
     "[7|Ana]",
     "asesor",
     false,
     {{}, {0, 50}},
     {"91", "Ana"},
     {"91", "Eva"},
     {"91", "Ana"},
     {"91", "Eva"},
     "select spiasesor(91,'Ana');",
     "select spuasesor(91,'Eva');",
     "SELECT spdasesor(91);",
     "SELECT * FROM spsasesor(91);",
     {{{"0", ""}, "No ha especificado el nombre del asesor"}}},
    {"cMotivoBaja",
     "MotivoBaja",
     Hace(COLUMNAS(cMotivoBaja, MotivoBajaID, DescripcionMotivo), 7, "A"),
     "[7|A]",
     "motivobaja",
     true,
     {{}, {3, 29}},
     {"91", "A"},
     {"91", "Otro"},
     {"91", "A  "},
     {"91", "Otro"},
     "select spimotivobaja('A  ');",
     "select spumotivobaja(91,'Otro');",
     "SELECT spdmotivobaja(91);",
     "SELECT * FROM spsmotivobaja(91);",
     {{{"7", ""}, "No se especifico la descripcion"}}},
    {"cClasificacionCredito",
     "ClasificacionCredito",
     Hace(COLUMNAS(cClasificacionCredito, ClasificacionCreditoID, Descripcion), 7, "A"),
     "[7|A]",
     "clasificacioncredito",
     true,
     {{}, {3, 29}},
     {"91", "A"},
     {"91", "Otra"},
     {"91", "A  "},
     {"91", "Otra"},
     "select spiclasificacioncredito('A  ');",
     "select spuclasificacioncredito(91,'Otra');",
     "SELECT spdclasificacioncredito(91);",
     "SELECT * FROM spsclasificacioncredito(91);",
     {{{"7", ""}, "No se especifico la descripcion"}}},
    {"cGrupo",
     "Grupo",
     Hace(COLUMNAS(cGrupo, GrupoID, Grupo), 7, "A"),
     "[7|A]",
     "grupo",
     true,
     {{}, {3, 25}},
     {"91", "A"},
     {"91", "Otro"},
     {"91", "A  "},
     {"91", "Otro"},
     "select spigrupo('A  ');",
     "select spugrupo(91,'Otro');",
     "SELECT spdgrupo(91);",
     "SELECT * FROM spsgrupo(91);",
     {{{"7", ""}, "No se especifico la descripcion"}}},
    {"cOcupacion",
     "Ocupacion",
     Hace(COLUMNAS(cOcupacion, OcupacionID, Ocupacion), 7, "A"),
     "[7|A]",
     "ocupacion",
     true,
     {{}, {0, 40}},
     {"91", "A"},
     {"91", "Otra"},
     {"91", "A"},
     {"91", "Otra"},
     "select spiocupacion('A');",
     "select spuocupacion(91,'Otra');",
     "SELECT spdocupacion(91);",
     "SELECT * FROM spsocupacion(91);",
     {{{"7", ""}, "No se especifico la descripcion"}}},
    {"cConceptoScoring",
     "Concepto Scoring",
     Hace(COLUMNAS(cConceptoScoring, ConceptoScoringID, ConceptoScoring), 7, "A"),
     "[7|A]",
     "conceptoscoring",
     true,
     {{}, {0, 20}},
     {"91", "A"},
     {"91", "Otro"},
     {"91", "A"},
     {"91", "Otro"},
     "select spiconceptoscoring('A');",
     "select spuconceptoscoring('91','Otro');",
     "SELECT spdconceptoscoring(91);",
     "SELECT * FROM spsconceptoscoring(91);",
     {{{"7", ""}, "No ha especificado el concepto"}}},
    {"cTipoAcreditadoR",
     "",
     Hace(COLUMNAS(cTipoAcreditadoR, TipoAcreditadoID, DescripcionTipoAcreditado), 7, "A"),
     "[7|A]",
     "tipoacreditador",
     false,
     {{}, {50, 50}},
     {"91", "A"},
     {"91", "Otro"},
     {"91", "A                                                 "},
     {"91", "Otro                                              "},
     "select spitipiacreditador(91,'A                                                 ');",
     "select sputipoacreditador(91,'Otro                                              ');",
     "SELECT spdtipoacreditador(91);",
     "SELECT * FROM spstipoacreditador(91);",
     {{{"7", ""}, "No describio  el Tipo Acreditado"}}},
    {"cTipoAsentamiento",
     "",
     Hace(COLUMNAS(cTipoAsentamiento, TipoAsentamientoID, Asentamiento), 7L, "A"),
     "[7|A]",
     "tipoasentamiento",
     false,
     {{}, {50, 50}},
     {"91", "A"},
     {"91", "Otro"},
     {"91", "A                                                 "},
     {"91", "Otro                                              "},
     "select spitipoasentamiento(91,'A                                                 ');",
     "select sputipoasentamiento(91,'Otro                                              ');",
     "SELECT spdtipoasentamiento(91);",
     "SELECT * FROM spsasentamiento(91);",
     {{{"7", ""}, "No describio el Asentamiento"}}},
    {"cEstadoMex",
     "EstadoMex",
     Hace(std::vector<Columna<cEstadoMex>>{COLUMNA(cEstadoMex, EstadoMexID),
                                           COLUMNA(cEstadoMex, ClaveEstadoMex),
                                           COLUMNA(cEstadoMex, NombreEstadoMex)},
          7, "A", "Alto"),
     "[7|A|Alto]",
     "estadosmex",
     true,
     {{}, {3, 3}, {0, 20}},
     {"33", "ZZ", "Nuevo"},
     {"33", "Z", "Otro"},
     {"33", "ZZ ", "Nuevo"},
     {"33", "Z  ", "Otro"},
     "select spiestadomex('ZZ ','Nuevo');",
     "select spuestadomex('Z  ','Otro',33);",
     "SELECT spdestadomex(33);",
     "SELECT * FROM spsestadomex(33);",
     {{{"7", "", ""}, "No se especifico la clave"},
      {{"7", "", "x"}, "No se especifico la clave"},
      {{"7", "x", ""}, "No ha especificado el nombre"}}},
    {"cCiudadMex",
     "Ciudadades",
     Hace(std::vector<Columna<cCiudadMex>>{COLUMNA(cCiudadMex, CiudadMexID), COLUMNA(cCiudadMex, EstadoMexID),
                                           COLUMNA(cCiudadMex, ClaveCiudadMex),
                                           COLUMNA(cCiudadMex, NombreCiudadMex)},
          7, "A", "Alta", 5),
     "[7|5|A|Alta]",
     "ciudadesmex",
     true,
     {{}, {}, {4, 4}, {0, 50}},
     {"9100", "3", "ZZ", "Nueva"},
     {"9100", "4", "Z", "Otra"},
     {"9100", "3", "ZZ  ", "Nueva"},
     {"9100", "4", "Z   ", "Otra"},
     "select spiciudadmex(3,'ZZ  ','Nueva');",
     "select spuciudadmex('Z   ','Otra',4,9100);",
     "SELECT spdciudadmex(9100);",
     "SELECT * FROM spsciudadmex(9100);",
     {{{"7", "", "", ""}, "No se especifico la clave"},
      {{"7", "5", "", "x"}, "No se especifico la clave"},
      {{"7", "", "x", ""}, "No ha especificado el nombre"},
      {{"7", "", "x", "x"}, "No ha especificado el Estado al cual pertenece"},
      {{"7", "-1", "x", "x"}, "No ha especificado el Estado al cual pertenece"}},
     TrazaFind},
    {"cColonia",
     "",
     Hace(std::vector<Columna<cColonia>>{COLUMNA(cColonia, ColoniaID), COLUMNA(cColonia, CiudadMexID),
                                         COLUMNA(cColonia, NombreColonia), COLUMNA(cColonia, CP),
                                         COLUMNA(cColonia, TipoAsentamientoID)},
          70'000'000'000, 5, "A", 80'000'000'000, 9),
     "[70000000000|5|A|80000000000|9]",
     "colonias",
     true,
     {{}, {}, {50, 103}, {}, {}},
     {"9100", "3", "Fraccionamiento Residencial Jardines de Ensueño I", "45001", "9"},
     {"9100", "4", "Fraccionamiento Residencial Jardines de Ensueño V", "45002", "2"},
     {"9100", "3", "Fraccionamiento Residencial Jardines de Ensueño I", "45001", "9"},
     {"9100", "4", "Fraccionamiento Residencial Jardines de Ensueño V", "45002", "2"},
     "select spicolonia(3,'Fraccionamiento Residencial Jardines de Ensueño I',45001,9);",
     "select spucolonia(9100,4,'Fraccionamiento Residencial Jardines de Ensueño V',45002,2);",
     "SELECT spdcolonia(9100);",
     "SELECT * FROM spscolonia(9100);",
     {{{"7", "", "", "", ""}, "El se especifico la clave de la ciudad"},
      {{"7", "-1", "x", "1", "1"}, "El se especifico la clave de la ciudad"},
      {{"7", "1", "", "", ""}, "No se especifico el nombre de la colonia"},
      {{"7", "1", "x", "", ""}, "El codigo postal no se ha especificado"},
      {{"7", "1", "x", "-1", "1"}, "El codigo postal no se ha especificado"},
      {{"7", "1", "x", "1", ""}, "El tipo de asentamiento no se ha especificado"},
      {{"7", "1", "x", "1", "-1"}, "El tipo de asentamiento no se ha especificado"}},
     TrazaAddNew | TrazaUpdate},
};

/// The columns as Estado shows them.
std::string Unidos(const Textos& valores) {
  std::string unidos;
  for (const auto& valor : valores) unidos += (unidos.empty() ? "[" : "|") + valor;
  return unidos + "]";
}

/// The empty record of a row.
std::unique_ptr<Ficha> Vacia(const Caso& caso) {
  auto ficha = caso.hace(true, true);
  ficha->Clear();
  return ficha;
}

/// As Estado shows a record without a value: a number is 0.
std::string EstadoVacio(const Caso& caso) {
  Textos valores;
  for (const Ancho& ancho : caso.anchos) valores.push_back(ancho.maximo == 0 ? "0" : "");
  return Unidos(valores);
}

std::string Rellenado(std::string texto, size_t minimo) {
  if (texto.size() < minimo) texto.resize(minimo, ' ');
  return texto;
}

/// What a record traces that is looked for in vain, inserted, changed, found and deleted.
Textos TrazasDeLaVida(const Caso& caso) {
  Textos trazas;
  for (const auto& [operacion, sentencia] : {std::pair(TrazaFind, caso.busqueda),
                                             {TrazaAddNew, caso.alta},
                                             {TrazaUpdate, caso.cambio},
                                             {TrazaFind, caso.busqueda},
                                             {TrazaDelete, caso.borrado}})
    if (caso.trazas & operacion) trazas.push_back(sentencia);
  return trazas;
}

class SimpleTest : public testing::TestWithParam<Caso> {};

TEST_P(SimpleTest, ElConstructorCompletoGuardaTodoTalCualYClearLoVacia) {
  const Caso& caso = GetParam();
  for (const bool cambiado : {false, true}) {
    for (const bool nuevo : {false, true}) {
      const auto ficha = caso.hace(cambiado, nuevo);
      const std::string estado =
          std::string(caso.talCual) + (cambiado ? " cambiado" : "") + (nuevo ? " nuevo" : "");
      EXPECT_EQ(ficha->Estado(), estado);
      EXPECT_EQ(ficha->Copias(), Textos(3, estado));
      ficha->Clear();
      EXPECT_EQ(ficha->Estado(), EstadoVacio(caso));
      EXPECT_EQ(ficha->Clase(), caso.clase);
    }
  }
}

TEST_P(SimpleTest, CadaColumnaGuardaConSuAnchoYSoloUnCambioMarca) {
  const Caso& caso = GetParam();
  for (size_t i = 0; i < caso.anchos.size(); ++i) {
    SCOPED_TRACE(i);
    const auto [minimo, maximo] = caso.anchos[i];
    const bool esTexto = maximo > 0;
    const auto ficha = Vacia(caso);
    const auto pon = [&, columna = i](const std::string& valor) {
      ficha->Banderas(false, false);
      ficha->Pon(columna, valor);
      return ficha->Estado().find(" cambiado") != std::string::npos;
    };
    EXPECT_FALSE(pon(esTexto ? "" : "0")) << "el mismo valor";
    EXPECT_TRUE(pon("1"));
    EXPECT_EQ(ficha->Da(i), Rellenado("1", minimo));
    EXPECT_FALSE(pon(ficha->Da(i))) << "el mismo valor";
    if (!esTexto) continue;
    EXPECT_TRUE(pon(""));
    EXPECT_EQ(ficha->Da(i), std::string(minimo, ' '));
    pon(std::string(5000, 'y'));
    EXPECT_EQ(ficha->Da(i), std::string(maximo, 'y'));
    pon(TextoAcentuado());
    EXPECT_EQ(ficha->Da(i), AcentuadoHasta(maximo));
  }
}

TEST_P(SimpleTest, CheckLanzaLaPrimeraReglaRota) {
  const Caso& caso = GetParam();
  for (const Regla& regla : caso.reglas) {
    const auto ficha = Vacia(caso);
    for (size_t i = 0; i < regla.valores.size(); ++i)
      if (!regla.valores[i].empty()) ficha->Pon(i, regla.valores[i]);
    SCOPED_TRACE(ficha->Estado());
    EXPECT_EQ(Lanzado([&] { ficha->Check(); }), regla.mensaje);
  }
  const auto ficha = Vacia(caso);
  ficha->PonTodas(caso.valores);
  EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(ficha->Check()); }), std::nullopt);
}

/// Against one reference database, which each test leaves as it was; the next key that it assigns is the one
/// of the row.
class SimpleServidorTest : public SimpleTest {
 protected:
  static void SetUpTestSuite() { base_ = new BaseDatos; }
  static void TearDownTestSuite() {
    delete base_;
    base_ = nullptr;
  }

  SimpleServidorTest() {
    if (!GetParam().asignada) return;
    const std::string tabla = std::string("norte.") + GetParam().tabla;
    for (const Textos& columna : base_->Filas("select attname from pg_attribute where attidentity <> ''"
                                              " and attrelid = '" +
                                              tabla + "'::regclass"))
      base_->Ejecuta("alter table " + tabla + " alter column " + columna[0] + " restart with " +
                     GetParam().valores[0]);
  }

  /// The rows of the table that hold `fila`.
  size_t Cuantas(const Textos& fila) {
    size_t cuantas = 0;
    for (const Textos& otra : base_->Filas(std::string("select * from norte.") + GetParam().tabla))
      cuantas += otra == fila ? 1 : 0;
    return cuantas;
  }

  static BaseDatos* base_;
  Sesion sesion_{*base_};
};

BaseDatos* SimpleServidorTest::base_ = nullptr;

TEST_P(SimpleServidorTest, LaVidaDeUnRegistroMandaSoloSusSentenciasYTrazaLasQueDice) {
  const Caso& caso = GetParam();
  Salida salida;
  const auto ficha = Vacia(caso);
  ficha->Pon(0, caso.valores[0]);
  ficha->Find();
  EXPECT_NE(ficha->Estado().find(" cambiado nuevo"), std::string::npos);
  ficha->PonTodas(caso.valores);
  if (caso.asignada) ficha->Pon(0, "5");  // the server's key takes its place

  Espia espia;
  EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", caso.alta, "COMMIT;"}));
  EXPECT_EQ(ficha->Estado(), Unidos(caso.fila));
  EXPECT_EQ(Cuantas(caso.fila), 1u);

  ficha->PonTodas(caso.otros);
  espia.Vacia();
  EXPECT_EQ(Lanzado([&] { ficha->Update(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", caso.cambio, "COMMIT;"}));
  EXPECT_EQ(ficha->Estado(), Unidos(caso.otraFila));
  EXPECT_EQ(Cuantas(caso.fila), 0u);
  EXPECT_EQ(Cuantas(caso.otraFila), 1u);

  const auto leida = Vacia(caso);
  leida->Pon(0, caso.valores[0]);
  espia.Vacia();
  leida->Find();
  EXPECT_EQ(espia.Sentencias(), Textos{caso.busqueda});
  EXPECT_EQ(leida->Estado(), Unidos(caso.otraFila));
  EXPECT_EQ(res, nullptr);

  espia.Vacia();
  EXPECT_EQ(Lanzado([&] { ficha->Delete(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", caso.borrado, "COMMIT;"}));
  EXPECT_EQ(ficha->Estado(), Unidos(caso.otraFila));
  EXPECT_EQ(Cuantas(caso.otraFila), 0u);
  EXPECT_EQ(salida.Lineas(), TrazasDeLaVida(caso));
  EXPECT_EQ(Profundidad(), 0);
}

TEST_P(SimpleServidorTest, UnRechazoSeLanzaYConservaLoEscrito) {
  const Caso& caso = GetParam();
  for (const auto operacion : {&Ficha::AddNew, &Ficha::Update, &Ficha::Delete}) {
    const auto ficha = Vacia(caso);
    ficha->PonTodas(caso.valores);
    ficha->Banderas(true, true);
    Espia espia;
    espia.En(1, falla::Error("No"));
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (ficha.get()->*operacion)(); }), "ERROR:  No\n");
    EXPECT_EQ(ficha->Estado(), Unidos(caso.fila) + " cambiado nuevo");
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

TEST_P(SimpleServidorTest, SinClaveFindYDeleteNoHacenNadaYSinCambiosNadieEscribe) {
  const Caso& caso = GetParam();
  const auto ficha = Vacia(caso);
  Espia espia;
  ficha->Find();
  ficha->Delete();
  ficha->AddNew();
  ficha->Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(ficha->Estado(), EstadoVacio(caso));
}

TEST_P(SimpleServidorTest, CheckLanzaAntesDeCualquierSentencia) {
  const auto ficha = Vacia(GetParam());
  ficha->Banderas(true, true);
  const char* mensaje = GetParam().reglas[0].mensaje;
  Espia espia;
  EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), mensaje);
  EXPECT_EQ(Lanzado([&] { ficha->Update(); }), mensaje);
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(ficha->Estado(), EstadoVacio(GetParam()) + " cambiado nuevo");
}

TEST_P(SimpleServidorTest, FillTomaLasColumnasEnElOrdenDeLaRespuesta) {
  const Caso& caso = GetParam();
  const auto ficha = Vacia(caso);
  ficha->Banderas(true, true);
  Ejecuta("select 1, 2, 3, 4, 5 union all select null, null, null, null, null");
  ficha->Fill(0);
  const Textos numeros = {"1", "2", "3", "4", "5"};
  EXPECT_EQ(ficha->Estado(), Unidos(Textos(numeros.begin(), numeros.begin() + caso.anchos.size())));
  ficha->Fill(1);
  EXPECT_EQ(ficha->Estado(), EstadoVacio(caso));
}

const auto Nombre = [](const testing::TestParamInfo<Caso>& caso) { return caso.param.nombre; };
INSTANTIATE_TEST_SUITE_P(Simples, SimpleTest, testing::ValuesIn(casos), Nombre);
INSTANTIATE_TEST_SUITE_P(Simples, SimpleServidorTest, testing::ValuesIn(casos), Nombre);

// What only one of them does.

class cTipoSocioTest : public ConSucursal {};

TEST_F(cTipoSocioTest, UnCambioManda200DeLas254Observaciones) {
  cTipoSocio socio("ZZ", "Fundador", std::string(254, 'n').c_str(), true, true);
  socio.AddNew();
  EXPECT_EQ(base_.Valor("select length(observaciones) from norte.tiposocio where tiposocioid = 'ZZ'"), "254");
  socio.setDataChanged(true);
  Espia espia;
  socio.Update();
  EXPECT_EQ(espia.Cuantas("select sputiposocio('ZZ','Fundador','" + std::string(200, 'n') + "');"), 1u);
  EXPECT_EQ(base_.Valor("select length(observaciones) from norte.tiposocio where tiposocioid = 'ZZ'"), "200");
  EXPECT_EQ(socio.getObservaciones(), std::string(254, 'n'));
}

TEST_F(cTipoSocioTest, ElCorteDeLasObservacionesNoParteUnaLetra) {
  cTipoSocio socio("ZZ", "Fundador", TextoAcentuado(100).c_str(), true, true);
  socio.AddNew();
  socio.setObservaciones(TextoAcentuado().c_str());
  EXPECT_EQ(Lanzado([&] { socio.Update(); }), std::nullopt);
  EXPECT_EQ(base_.Valor("select observaciones from norte.tiposocio where tiposocioid = 'ZZ'"),
            AcentuadoHasta(200));
}

TEST(cColonia, SeBuscaTambienConUnaClaveNegativa) {
  BaseDatos base;
  Sesion sesion(base);
  cColonia colonia(-1, 3, "A", 45001, 9, false, false);
  Espia espia;
  colonia.Find();
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spscolonia(-1);"});
}

TEST(ClaveAsignada, SinRespuestaQuedaLaQueHabia) {
  BaseDatos base;
  Sesion sesion(base);
  cGrupo grupo(5, "Prueba", true, true);
  Espia espia;
  espia.En(1, falla::SinFilas());
  grupo.AddNew();
  EXPECT_EQ(grupo.getGrupoID(), 5);
}

}  // namespace
}  // namespace pruebas
