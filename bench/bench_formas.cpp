// Opening a form with its catalogue read anew, against the same widgets built straight with the toolkit
// around a list filled from the same select.
#include <iostream>
#include <memory>
#include <string>
#include <type_traits>

#include "app/sesion.h"
#include "bench/Copia.h"
#include "bench/Medida.h"
#include "catalogs/finance/Banco_Window.h"
#include "catalogs/finance/Inabil_Window.h"
#include "catalogs/finance/Inpc_Window.h"
#include "catalogs/finance/Recargos_Window.h"
#include "catalogs/finance/TasaInteres_Window.h"
#include "catalogs/finance/TipoPromocion_Window.h"
#include "catalogs/finance/TipoTasaInteres_Window.h"
#include "catalogs/finance/Udis_Window.h"
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
#include "tests/support/Servidor.h"

namespace {

constexpr int Vueltas = 31;
/// How long a catalogue is, and how often a form is opened in a turn: once alone is over too soon to measure.
struct Largo {
  int filas, aperturas;
};
constexpr Largo Largos[] = {{10, 10}, {5000, 1}};

// What a row of a catalogue has, row i of it.
constexpr char Descripciones[] =
    "i as clave, 'Renglon de prueba ' || i as uno, 'Renglon de prueba ' || i as dos";
constexpr char Dias[] = "date '1990-01-01' + i as fecha";
constexpr char Valores[] = "date '1990-01-01' + i as fecha, i * 0.37 as valor";
constexpr char Meses[] = "1600 + i / 12 as ano, 1 + i % 12 as mes, i * 0.37 as cifra";
constexpr char Bancos[] =
    "to_char(i, 'FM000000') as cuenta, '' as contable, 'Renglon de prueba ' || i as banco,"
    " date '1990-01-01' + i as inicio, i * 0.37 as inicial, i * 0.38 as actual, i * 0.39 as pendiente,"
    " 'A' as serie, i as cheque";
constexpr char Promociones[] =
    "i as clave, '01' as movimiento, date '1990-01-01' + i as inicio, date '1990-02-01' + i as fin,"
    " 'Sin condiciones' as condicion, i % 3 as estatus, 'Renglon de prueba ' || i as descripcion";
constexpr char Periodos[] =
    "i as clave, 'TIIE' as tipo, date '1990-01-01' + i as inicio, date '1990-02-01' + i as fin,"
    " i * 0.37 as valor1, i * 0.38 as valor2";

// What the list of a bare form shows of a row of the answer, the text of ours. Stays until the next call.
template <int columna>
const char* Columna(const PGresult* r, int fila) {
  return PQgetvalue(r, fila, columna);
}
/// The day in the first column, from yyyy-mm-dd.
const char* Dia(const PGresult* r, int fila) {
  static char texto[24];
  const char* const dia = PQgetvalue(r, fila, 0);
  snprintf(texto, sizeof texto, "%.2s/%.2s/%.4s", dia + 8, dia + 5, dia);
  return texto;
}
const char* Mes(const PGresult* r, int fila) {
  static char texto[24];
  snprintf(texto, sizeof texto, "%4s %2s", PQgetvalue(r, fila, 0), PQgetvalue(r, fila, 1));
  return texto;
}
const char* Periodo(const PGresult* r, int fila) {
  static char texto[80];
  snprintf(texto, sizeof texto, "%s %10s", PQgetvalue(r, fila, 0), PQgetvalue(r, fila, 1));
  return texto;
}

struct Caso {
  const char* nombre;
  FXComposite* (*abre)(Escenario& escenario);
  const char* origen;  ///< what its load selects from: a function with the arguments that mean all rows
  const char* firma;   ///< the types of these; null where it selects from a table
  const char* (*texto)(const PGresult* respuesta, int fila) = Columna<1>;
  const char* fila = Descripciones;
};

template <class V>
FXComposite* Abre(Escenario& escenario) {
  if constexpr (std::is_base_of_v<FXDialogBox, V>) {
    return new V(escenario.ventana);
  } else {
    return new V(escenario.area, escenario.menu);
  }
}

const Caso casos[] = {
    {"Monedas_Window", Abre<Monedas_Window>, "spsmoneda('  ')", "text", Columna<2>},
    {"Tipo_Garantia_Window", Abre<Tipo_Garantia_Window>, "spstipo_garantia('  ')", "text"},
    {"Estados_Credito_Window", Abre<Estados_Credito_Window>, "spsestados_credito('  ')", "text"},
    {"Finalidades_Window", Abre<Finalidades_Window>, "spsfinalidades('  ')", "text"},
    {"Modulo_Window", Abre<Modulo_Window>, "spsmodulo('  ')", "text"},
    {"TipoUsuario_Window", Abre<TipoUsuario_Window>, "spstipousuario('  ')", "text"},
    {"TipoSocio_Window", Abre<TipoSocio_Window>, "spstiposocio('  ')", "text"},
    {"TipoMoviBanco_Window", Abre<TipoMoviBanco_Window>, "spstipomovibanco('  ')", "text"},
    {"Asesor_Window", Abre<Asesor_Window>, "spsasesor(0)", "integer"},
    {"MotivoBaja_Window", Abre<MotivoBaja_Window>, "spsmotivobaja(0)", "integer"},
    {"ClasificacionCredito_Window", Abre<ClasificacionCredito_Window>, "spsclasificacioncredito(0)",
     "integer"},
    {"Grupo_Window", Abre<Grupo_Window>, "spsgrupo(0)", "integer"},
    {"Ocupacion_Window", Abre<Ocupacion_Window>, "spsocupacion(0)", "integer"},
    {"ConceptoScoring_Window", Abre<ConceptoScoring_Window>, "spsconceptoscoring(0)", "integer"},
    {"Udis_Window", Abre<Udis_Window>, "spsudis('1900-01-01')", "date", Dia, Valores},
    {"Inpc_Window", Abre<Inpc_Window>, "spsinpc(0,0)", "integer, integer", Mes, Meses},
    {"Recargos_Window", Abre<Recargos_Window>, "spsrecargos(0,0)", "integer, integer", Mes, Meses},
    {"Inabil_Window", Abre<Inabil_Window>, "inabil", nullptr, Dia, Dias},
    {"Banco_Window", Abre<Banco_Window>, "spsbanco('  ')", "text", Columna<2>, Bancos},
    {"TipoPromocion_Window", Abre<TipoPromocion_Window>, "spstipopromocion(0)", "integer", Columna<6>,
     Promociones},
    {"TipoTasaInteres_Window", Abre<TipoTasaInteres_Window>, "spstasavariable(0)", "integer", Periodo,
     Periodos},
    {"TasaInteres_Window", Abre<TasaInteres_Window>, "subtipotasa('a','null','null','null')",
     "text, text, text, text", Columna<0>},
};

/// The select of a load, on any table of that many rows.
void PreparaCatalogo(pruebas::BaseDatos& base, const Caso& caso, int filas) {
  const std::string origen = caso.origen;
  base.Ejecuta("drop table if exists catalogo cascade; create table catalogo as select " +
               std::string(caso.fila) + " from generate_series(1, " + std::to_string(filas) + ") i");
  if (caso.firma == nullptr) {
    base.Ejecuta("create view " + origen + " as select * from catalogo");
  } else {
    base.Ejecuta("create function " + origen.substr(0, origen.find('(')) + "(" + caso.firma +
                 ") returns setof catalogo language sql stable as 'select * from catalogo'");
  }
}

void LlenaDirecto(FXList* lista, const Caso& caso) {
  const std::string sql = std::string("SELECT * FROM ") + caso.origen + ";";
  PGresult* const r = PQexec(conn, sql.c_str());
  for (int fila = 0; fila < PQntuples(r); ++fila) lista->appendItem(caso.texto(r, fila));
  PQclear(r);
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base(pruebas::BaseDatos::Vacia);
  const pruebas::Conexion conexion = base.Conecta();
  conn = conexion.get();
  Escenario escenario;
  std::cout.setstate(std::ios::failbit);  // the traces of forms and loads
  for (const auto& [filas, veces] : Largos) {
    for (const Caso& caso : casos) {
      if (argc > 1 && argv[1][0] != '-' && caso.nombre != std::string(argv[1])) continue;
      PreparaCatalogo(base, caso, filas);
      const std::unique_ptr<FXComposite> modelo(caso.abre(escenario));
      modelo->create();
      const auto nuestra = [&] { return caso.abre(escenario); };
      const LlenaLista llena = [&](FXList* lista) { LlenaDirecto(lista, caso); };
      const auto llana = [&] { return AbreLlana(escenario, modelo.get(), llena); };
      const std::string que = std::string(caso.nombre) + ", " + std::to_string(filas) + " renglones";
      informe.Escribe(que.c_str(),
                      medida::Compara(
                          Vueltas, [&, n = veces] { return Aperturas(n, nuestra); },
                          [&, n = veces] { return Aperturas(n, llana); }),
                      1.3);
    }
  }
  return informe.Codigo();
}
