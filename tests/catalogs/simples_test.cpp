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
    {
        .nombre = "cTipo_Garantia",
        .clase = "Tipo de Garantía",
        .hace = Hace(COLUMNAS(cTipo_Garantia, ClaveGarantia, DescripcionGarantia), "A", "Aval"),
        .talCual = "[A|Aval]",
        .tabla = "tipo_garantia",
        .asignada = false,
        .anchos = {{3, 3}, {0, 30}},
        .valores = {"ZZ", "Fianza"},
        .otros = {"ZZ", "Otra"},
        .fila = {"ZZ ", "Fianza"},
        .otraFila = {"ZZ ", "Otra"},
        .alta = "select spitipo_garantia('ZZ ','Fianza');",
        .cambio = "select sputipo_garantia('ZZ ','Otra');",
        .borrado = "SELECT spdtipo_garantia('ZZ ');",
        .busqueda = "SELECT * FROM spstipo_garantia('ZZ ');",
        .reglas = {{{"", ""}, "No se especifico la clave"},
                   {{"", "x"}, "No se especifico la clave"},
                   {{"x", ""}, "No ha especificado la descripción"}},
    },
    {
        .nombre = "cEstados_Credito",
        .clase = "Estado de Crédito",
        .hace = Hace(COLUMNAS(cEstados_Credito, ClaveEstadoCredito, DescripcionEdoCredito), "A", "Alta"),
        .talCual = "[A|Alta]",
        .tabla = "estados_credito",
        .asignada = false,
        .anchos = {{3, 3}, {0, 30}},
        .valores = {"ZZ", "Suspendido"},
        .otros = {"ZZ", "Otro"},
        .fila = {"ZZ ", "Suspendido"},
        .otraFila = {"ZZ ", "Otro"},
        .alta = "select spiestados_credito('ZZ ','Suspendido');",
        .cambio = "select spuestados_credito('ZZ ','Otro');",
        .borrado = "SELECT spdestados_credito('ZZ ');",
        .busqueda = "SELECT * FROM spsestados_credito('ZZ ');",
        .reglas = {{{"", ""}, "No se especifico la clave"},
                   {{"", "x"}, "No se especifico la clave"},
                   {{"x", ""}, "No ha especificado la descripción"}},
    },
    {
        .nombre = "cFinalidades",
        .clase = "Finalidad",
        .hace = Hace(COLUMNAS(cFinalidades, ClaveFinalidad, DescripcionFinalidad), "A", "Agua"),
        .talCual = "[A|Agua]",
        .tabla = "finalidades",
        .asignada = false,
        .anchos = {{3, 3}, {0, 30}},
        .valores = {"ZZ", "Viaje"},
        .otros = {"ZZ", "Otra"},
        .fila = {"ZZ ", "Viaje"},
        .otraFila = {"ZZ ", "Otra"},
        .alta = "select spiFinalidades('ZZ ','Viaje');",
        .cambio = "select spufinalidades('ZZ ','Otra');",
        .borrado = "SELECT spdfinalidades('ZZ ');",
        .busqueda = "SELECT * FROM spsfinalidades('ZZ ');",
        .reglas = {{{"", ""}, "No se especifico la clave"},
                   {{"", "x"}, "No se especifico la clave"},
                   {{"x", ""}, "No ha especificado la descripción"}},
    },
    {
        .nombre = "cModulo",
        .clase = "Modulo",
        .hace = Hace(COLUMNAS(cModulo, ClaveModulo, DescriModulo), "0203", "Monedas"),
        .talCual = "[0203|Monedas]",
        .tabla = "modulo",
        .asignada = false,
        .anchos = {{10, 10}, {0, 80}},
        .valores = {"9901", "Nuevo"},
        .otros = {"9901", "Otro"},
        .fila = {"9901      ", "Nuevo"},
        .otraFila = {"9901      ", "Otro"},
        .alta = "select spimodulo('9901      ','Nuevo');",
        .cambio = "select spumodulo('9901      ','Otro');",
        .borrado = "SELECT spdmodulo('9901      ');",
        .busqueda = "SELECT * FROM spsmodulo('9901      ');",
        .reglas = {{{"", ""}, "No se especifico la clave"},
                   {{"", "x"}, "No se especifico la clave"},
                   {{"x", ""}, "No ha especificado el descripcion"}},
    },
    {
        .nombre = "cTipoUsuario",
        .clase = "TipoUsuario",
        .hace = Hace(COLUMNAS(cTipoUsuario, TipoUsuarioID, DescripcionTipoUsuario), "A", "Alto"),
        .talCual = "[A|Alto]",
        .tabla = "tipousuario",
        .asignada = false,
        .anchos = {{3, 3}, {0, 20}},
        .valores = {"ZZ", "Auditor"},
        .otros = {"ZZ", "Otro"},
        .fila = {"ZZ ", "Auditor"},
        .otraFila = {"ZZ ", "Otro"},
        .alta = "select spitipousuario('ZZ ','Auditor');",
        .cambio = "select sputipousuario('ZZ ','Otro');",
        .borrado = "SELECT spdtipousuario('ZZ ');",
        .busqueda = "SELECT * FROM spstipousuario('ZZ ');",
        .reglas = {{{"", ""}, "No se especifico la clave"},
                   {{"", "x"}, "No se especifico la clave"},
                   {{"x", ""}, "No ha especificado el descripcion"}},
    },
    {
        .nombre = "cTipoSocio",
        .clase = "TipoSocio",
        .hace = Hace(std::vector<Columna<cTipoSocio>>{COLUMNA(cTipoSocio, TipoSocioID),
                                                      COLUMNA(cTipoSocio, DescriTipoSocio),
                                                      COLUMNA(cTipoSocio, Observaciones)},
                     "A", "Alto", "Nota"),
        .talCual = "[A|Alto|Nota]",
        .tabla = "tiposocio",
        .asignada = false,
        .anchos = {{2, 2}, {0, 30}, {0, 254}},
        .valores = {"Z", "Fundador", "Vota"},
        .otros = {"Z", "Otro", ""},
        .fila = {"Z ", "Fundador", "Vota"},
        .otraFila = {"Z ", "Otro", ""},
        .alta = "select spitiposocio('Z ','Fundador','Vota');",
        .cambio = "select sputiposocio('Z ','Otro','');",
        .borrado = "SELECT spdtiposocio('Z ');",
        .busqueda = "SELECT * FROM spstiposocio('Z ');",
        .reglas = {{{"", "", ""}, "No se especifico la descripciòn del socio"},
                   {{"x", "", "x"}, "No se especifico la descripciòn del socio"},
                   {{"", "x", ""}, "No ha especifico el identipicador"}},
    },
    {
        .nombre = "cTipoMoviBanco",
        .clase = "Tipo de Movimientos Bancarios",
        .hace = Hace(std::vector<Columna<cTipoMoviBanco>>{COLUMNA(cTipoMoviBanco, TipoMoviBancoID),
                                                          COLUMNA(cTipoMoviBanco, DescriTipoMoviBanco),
                                                          COLUMNA(cTipoMoviBanco, OperacionSumaResta)},
                     "A", "Abono", "+"),
        .talCual = "[A|Abono|+]",
        .tabla = "tipomovibanco",
        .asignada = false,
        .anchos = {{2, 2}, {0, 30}, {0, 1}},
        .valores = {"Z", "Ajuste", "+"},
        .otros = {"Z", "Otro", "-"},
        .fila = {"Z ", "Ajuste", "+"},
        .otraFila = {"Z ", "Otro", "-"},
        .alta = "select spitipomovibanco('Z ','Ajuste','+');",
        .cambio = "select sputipomovibanco('Z ','Otro','-');",
        .borrado = "SELECT spdtipomovibanco('Z ');",
        .busqueda = "SELECT * FROM spstipomovibanco('Z ');",
        .reglas = {{{"", "", ""}, "No se especifico la clave"},
                   {{"", "x", "+"}, "No se especifico la clave"},
                   {{"x", "", ""}, "No ha especificado la descripción"},
                   {{"x", "", "-"}, "No ha especificado la descripción"},
                   {{"x", "x", ""}, "No se ha especificado el tipo de operacion del movimiento"}},
    },
    {
        .nombre = "cAsesor",
        .clase = "Asesor",
        .hace = Hace(COLUMNAS(cAsesor, AsesorID, NomAsesor), 7, "Ana"),
        .talCual = "[7|Ana]",
        .tabla = "asesor",
        .asignada = false,
        .anchos = {{}, {0, 50}},
        .valores = {"91", "Ana"},
        .otros = {"91", "Eva"},
        .fila = {"91", "Ana"},
        .otraFila = {"91", "Eva"},
        .alta = "select spiasesor(91,'Ana');",
        .cambio = "select spuasesor(91,'Eva');",
        .borrado = "SELECT spdasesor(91);",
        .busqueda = "SELECT * FROM spsasesor(91);",
        .reglas = {{{"0", ""}, "No ha especificado el nombre del asesor"}},
    },
    {
        .nombre = "cMotivoBaja",
        .clase = "MotivoBaja",
        .hace = Hace(COLUMNAS(cMotivoBaja, MotivoBajaID, DescripcionMotivo), 7, "A"),
        .talCual = "[7|A]",
        .tabla = "motivobaja",
        .asignada = true,
        .anchos = {{}, {3, 29}},
        .valores = {"91", "A"},
        .otros = {"91", "Otro"},
        .fila = {"91", "A  "},
        .otraFila = {"91", "Otro"},
        .alta = "select spimotivobaja('A  ');",
        .cambio = "select spumotivobaja(91,'Otro');",
        .borrado = "SELECT spdmotivobaja(91);",
        .busqueda = "SELECT * FROM spsmotivobaja(91);",
        .reglas = {{{"7", ""}, "No se especifico la descripcion"}},
    },
    {
        .nombre = "cClasificacionCredito",
        .clase = "ClasificacionCredito",
        .hace = Hace(COLUMNAS(cClasificacionCredito, ClasificacionCreditoID, Descripcion), 7, "A"),
        .talCual = "[7|A]",
        .tabla = "clasificacioncredito",
        .asignada = true,
        .anchos = {{}, {3, 29}},
        .valores = {"91", "A"},
        .otros = {"91", "Otra"},
        .fila = {"91", "A  "},
        .otraFila = {"91", "Otra"},
        .alta = "select spiclasificacioncredito('A  ');",
        .cambio = "select spuclasificacioncredito(91,'Otra');",
        .borrado = "SELECT spdclasificacioncredito(91);",
        .busqueda = "SELECT * FROM spsclasificacioncredito(91);",
        .reglas = {{{"7", ""}, "No se especifico la descripcion"}},
    },
    {
        .nombre = "cGrupo",
        .clase = "Grupo",
        .hace = Hace(COLUMNAS(cGrupo, GrupoID, Grupo), 7, "A"),
        .talCual = "[7|A]",
        .tabla = "grupo",
        .asignada = true,
        .anchos = {{}, {3, 25}},
        .valores = {"91", "A"},
        .otros = {"91", "Otro"},
        .fila = {"91", "A  "},
        .otraFila = {"91", "Otro"},
        .alta = "select spigrupo('A  ');",
        .cambio = "select spugrupo(91,'Otro');",
        .borrado = "SELECT spdgrupo(91);",
        .busqueda = "SELECT * FROM spsgrupo(91);",
        .reglas = {{{"7", ""}, "No se especifico la descripcion"}},
    },
    {
        .nombre = "cOcupacion",
        .clase = "Ocupacion",
        .hace = Hace(COLUMNAS(cOcupacion, OcupacionID, Ocupacion), 7, "A"),
        .talCual = "[7|A]",
        .tabla = "ocupacion",
        .asignada = true,
        .anchos = {{}, {0, 40}},
        .valores = {"91", "A"},
        .otros = {"91", "Otra"},
        .fila = {"91", "A"},
        .otraFila = {"91", "Otra"},
        .alta = "select spiocupacion('A');",
        .cambio = "select spuocupacion(91,'Otra');",
        .borrado = "SELECT spdocupacion(91);",
        .busqueda = "SELECT * FROM spsocupacion(91);",
        .reglas = {{{"7", ""}, "No se especifico la descripcion"}},
    },
    {
        .nombre = "cConceptoScoring",
        .clase = "Concepto Scoring",
        .hace = Hace(COLUMNAS(cConceptoScoring, ConceptoScoringID, ConceptoScoring), 7, "A"),
        .talCual = "[7|A]",
        .tabla = "conceptoscoring",
        .asignada = true,
        .anchos = {{}, {0, 20}},
        .valores = {"91", "A"},
        .otros = {"91", "Otro"},
        .fila = {"91", "A"},
        .otraFila = {"91", "Otro"},
        .alta = "select spiconceptoscoring('A');",
        .cambio = "select spuconceptoscoring('91','Otro');",
        .borrado = "SELECT spdconceptoscoring(91);",
        .busqueda = "SELECT * FROM spsconceptoscoring(91);",
        .reglas = {{{"7", ""}, "No ha especificado el concepto"}},
    },
    {
        .nombre = "cTipoAcreditadoR",
        .clase = "",
        .hace = Hace(COLUMNAS(cTipoAcreditadoR, TipoAcreditadoID, DescripcionTipoAcreditado), 7, "A"),
        .talCual = "[7|A]",
        .tabla = "tipoacreditador",
        .asignada = false,
        .anchos = {{}, {50, 50}},
        .valores = {"91", "A"},
        .otros = {"91", "Otro"},
        .fila = {"91", "A                                                 "},
        .otraFila = {"91", "Otro                                              "},
        .alta = "select spitipiacreditador(91,'A                                                 ');",
        .cambio = "select sputipoacreditador(91,'Otro                                              ');",
        .borrado = "SELECT spdtipoacreditador(91);",
        .busqueda = "SELECT * FROM spstipoacreditador(91);",
        .reglas = {{{"7", ""}, "No describio  el Tipo Acreditado"}},
    },
    {
        .nombre = "cTipoAsentamiento",
        .clase = "Tipo de asentamiento",
        .hace = Hace(COLUMNAS(cTipoAsentamiento, TipoAsentamientoID, Asentamiento), 7L, "A"),
        .talCual = "[7|A]",
        .tabla = "tipoasentamiento",
        .asignada = false,
        .anchos = {{}, {50, 50}},
        .valores = {"91", "A"},
        .otros = {"91", "Otro"},
        .fila = {"91", "A                                                 "},
        .otraFila = {"91", "Otro                                              "},
        .alta = "select spitipoasentamiento(91,'A                                                 ');",
        .cambio = "select sputipoasentamiento(91,'Otro                                              ');",
        .borrado = "SELECT spdtipoasentamiento(91);",
        .busqueda = "SELECT * FROM spsasentamiento(91);",
        .reglas = {{{"7", ""}, "No describio el Asentamiento"}},
    },
    {
        .nombre = "cEstadoMex",
        .clase = "EstadoMex",
        .hace = Hace(std::vector<Columna<cEstadoMex>>{COLUMNA(cEstadoMex, EstadoMexID),
                                                      COLUMNA(cEstadoMex, ClaveEstadoMex),
                                                      COLUMNA(cEstadoMex, NombreEstadoMex)},
                     7, "A", "Alto"),
        .talCual = "[7|A|Alto]",
        .tabla = "estadosmex",
        .asignada = true,
        .anchos = {{}, {3, 3}, {0, 20}},
        .valores = {"33", "ZZ", "Nuevo"},
        .otros = {"33", "Z", "Otro"},
        .fila = {"33", "ZZ ", "Nuevo"},
        .otraFila = {"33", "Z  ", "Otro"},
        .alta = "select spiestadomex('ZZ ','Nuevo');",
        .cambio = "select spuestadomex('Z  ','Otro',33);",
        .borrado = "SELECT spdestadomex(33);",
        .busqueda = "SELECT * FROM spsestadomex(33);",
        .reglas = {{{"7", "", ""}, "No se especifico la clave"},
                   {{"7", "", "x"}, "No se especifico la clave"},
                   {{"7", "x", ""}, "No ha especificado el nombre"}},
    },
    {
        .nombre = "cCiudadMex",
        .clase = "Ciudadades",
        .hace = Hace(std::vector<Columna<cCiudadMex>>{COLUMNA(cCiudadMex, CiudadMexID),
                                                      COLUMNA(cCiudadMex, EstadoMexID),
                                                      COLUMNA(cCiudadMex, ClaveCiudadMex),
                                                      COLUMNA(cCiudadMex, NombreCiudadMex)},
                     7, "A", "Alta", 5),
        .talCual = "[7|5|A|Alta]",
        .tabla = "ciudadesmex",
        .asignada = true,
        .anchos = {{}, {}, {4, 4}, {0, 50}},
        .valores = {"9100", "3", "ZZ", "Nueva"},
        .otros = {"9100", "4", "Z", "Otra"},
        .fila = {"9100", "3", "ZZ  ", "Nueva"},
        .otraFila = {"9100", "4", "Z   ", "Otra"},
        .alta = "select spiciudadmex(3,'ZZ  ','Nueva');",
        .cambio = "select spuciudadmex('Z   ','Otra',4,9100);",
        .borrado = "SELECT spdciudadmex(9100);",
        .busqueda = "SELECT * FROM spsciudadmex(9100);",
        .reglas = {{{"7", "", "", ""}, "No se especifico la clave"},
                   {{"7", "5", "", "x"}, "No se especifico la clave"},
                   {{"7", "", "x", ""}, "No ha especificado el nombre"},
                   {{"7", "", "x", "x"}, "No ha especificado el Estado al cual pertenece"},
                   {{"7", "-1", "x", "x"}, "No ha especificado el Estado al cual pertenece"}},
        .trazas = TrazaFind,
    },
    {
        .nombre = "cColonia",
        .clase = "Colonia",
        .hace =
            Hace(std::vector<Columna<cColonia>>{COLUMNA(cColonia, ColoniaID), COLUMNA(cColonia, CiudadMexID),
                                                COLUMNA(cColonia, NombreColonia), COLUMNA(cColonia, CP),
                                                COLUMNA(cColonia, TipoAsentamientoID)},
                 70'000'000'000, 5, "A", 80'000'000'000, 9),
        .talCual = "[70000000000|5|A|80000000000|9]",
        .tabla = "colonias",
        .asignada = true,
        .anchos = {{}, {}, {50, 103}, {}, {}},
        .valores = {"9100", "3", "Fraccionamiento Residencial Jardines de Ensueño I", "45001", "9"},
        .otros = {"9100", "4", "Fraccionamiento Residencial Jardines de Ensueño V", "45002", "2"},
        .fila = {"9100", "3", "Fraccionamiento Residencial Jardines de Ensueño I", "45001", "9"},
        .otraFila = {"9100", "4", "Fraccionamiento Residencial Jardines de Ensueño V", "45002", "2"},
        .alta = "select spicolonia(3,'Fraccionamiento Residencial Jardines de Ensueño I',45001,9);",
        .cambio = "select spucolonia(9100,4,'Fraccionamiento Residencial Jardines de Ensueño V',45002,2);",
        .borrado = "SELECT spdcolonia(9100);",
        .busqueda = "SELECT * FROM spscolonia(9100);",
        .reglas = {{{"7", "", "", "", ""}, "El se especifico la clave de la ciudad"},
                   {{"7", "-1", "x", "1", "1"}, "El se especifico la clave de la ciudad"},
                   {{"7", "1", "", "", ""}, "No se especifico el nombre de la colonia"},
                   {{"7", "1", "x", "", ""}, "El codigo postal no se ha especificado"},
                   {{"7", "1", "x", "-1", "1"}, "El codigo postal no se ha especificado"},
                   {{"7", "1", "x", "1", ""}, "El tipo de asentamiento no se ha especificado"},
                   {{"7", "1", "x", "1", "-1"}, "El tipo de asentamiento no se ha especificado"}},
        .trazas = TrazaAddNew | TrazaUpdate,
    },
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
