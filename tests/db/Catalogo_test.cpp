#include "db/Catalogo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <functional>

#include "app/sesion.h"
#include "db/Apertura.h"
#include "db/Carga.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

constexpr const char* SelectDeMonedas = "SELECT * FROM spsmoneda('  ');";
const Textos CargaDeMonedas = {"BEGIN;", SelectDeMonedas, "COMMIT;"};

/// A load of the cache: its select, what it throws when "BEGIN;" fails (null for a load without transaction),
/// whether it traces the select, and how many rows its container holds.
struct CargaDelCache {
  const char* nombre;
  void (Catalogo::*carga)();
  std::string sql;
  const char* mensaje;
  bool traza;
  std::function<size_t(const Catalogo&)> filas;
  const char* tabla;

  Textos Sentencias() const { return mensaje != nullptr ? Textos{"BEGIN;", sql, "COMMIT;"} : Textos{sql}; }
};

template <class Clave, class T>
std::function<size_t(const Catalogo&)> Cuantas(const std::map<Clave, T>& mapa) {
  return [&mapa](const Catalogo&) { return mapa.size(); };
}
template <class T>
std::function<size_t(const Catalogo&)> Cuantas(lista<T> Catalogo::*filas) {
  return [filas](const Catalogo& c) { return static_cast<size_t>((c.*filas).NumElementos()); };
}

/// Those that nothing but the table tells apart, in the order of their steps.
const CargaDelCache cargas[] = {
    {"Monedas", &Catalogo::LoadMonedas, SelectDeMonedas, "Error al cargar catalogo de monedas.", false,
     Cuantas(Catalogo::Monedas), "moneda"},
    {"TipoDepreciacion", &Catalogo::LoadTipoDepreciacion, "SELECT * FROM spsdepreciacion(0);",
     "Error al cargar catalogo de tipo de depreciaciones.", false, Cuantas(Catalogo::TipoDepreciacion),
     "depreciacion"},
    {"Activos", &Catalogo::LoadActivos, "SELECT * FROM spsactivo(0);", "Error al cargar catalogo de activos.",
     false, Cuantas(Catalogo::Activos), "activo"},
    {"TipoPrestamo", &Catalogo::LoadTipoPrestamo, "SELECT * FROM spstipoprestamo('   ');",
     "Error al cargar catalogo de activos.", true, Cuantas(Catalogo::TipoPrestamo), "tipoprestamo"},
    {"TipoMovimiento", &Catalogo::LoadTipoMovimiento, "SELECT * FROM spstipomovimiento('  ');",
     "Error al cargar catalogo de tipos de movimientos.", true, Cuantas(Catalogo::TipoMovimiento),
     "tipomovimiento"},
    {"Bancos", &Catalogo::LoadBancos, "SELECT * FROM spsbanco('  ');", "Error al cargar catalogo de monedas.",
     true, Cuantas(Catalogo::Bancos), "banco"},
    {"TipoGarantia", &Catalogo::LoadTipoGarantia, "SELECT * FROM spstipo_garantia('  ');",
     "Error al cargar catalogo de tipos de garantias.", false, Cuantas(Catalogo::Tipo_Garantia),
     "tipo_garantia"},
    {"EstadosCredito", &Catalogo::LoadEstadosCredito, "SELECT * FROM spsestados_credito('  ');",
     "Error al cargar catalogo de estados de crédito.", false, Cuantas(Catalogo::Estados_Credito),
     "estados_credito"},
    {"Finalidades", &Catalogo::LoadFinalidades, "SELECT * FROM spsfinalidades('  ');",
     "Error al cargar catalogo de finalidades.", false, Cuantas(Catalogo::Finalidades), "finalidades"},
    {"TipoMoviBancos", &Catalogo::LoadTipoMoviBancos, "SELECT * FROM spstipomovibanco('  ');",
     "Error al cargar catalogo de tipo de movimientos bancarios.", false, Cuantas(Catalogo::TipoMoviBancos),
     "tipomovibanco"},
    {"TipoInversiones", &Catalogo::LoadTipoInversiones, "SELECT * FROM spstipoinversion('  ');",
     "Error al cargar catalogo de tipo de inversiones.", false, Cuantas(Catalogo::TipoInversiones),
     "tipoinversion"},
    {"EstadosMex", &Catalogo::LoadEstadosMex, "SELECT * FROM spsestadomex(0);", nullptr, true,
     Cuantas(Catalogo::EstadosMex), "estadosmex"},
    {"CiudadesMex", &Catalogo::LoadCiudadesMex, "SELECT * FROM spsciudadmex(0) order by nombreciudadmex;",
     "Error al cargar catalogo de ciudad.", false, Cuantas(Catalogo::CiudadesMex), "ciudadesmex"},
    {"TiposUsuarios", &Catalogo::LoadTiposUsuarios, "SELECT * FROM spstipousuario('  ');",
     "Error al cargar catalogo de tipos de usuario.", false, Cuantas(Catalogo::TiposUsuarios), "tipousuario"},
    {"TiposSocios", &Catalogo::LoadTiposSocios, "SELECT * FROM spstiposocio('  ');",
     "Error al cargar catalogo de tipos de socios.", false, Cuantas(Catalogo::TiposSocios), "tiposocio"},
    {"Modulos", &Catalogo::LoadModulos, "SELECT * FROM spsmodulo('  ');",
     "Error al cargar catalogo de modulos.", false, Cuantas(Catalogo::Modulos), "modulo"},
    {"Usuarios", &Catalogo::LoadUsuarios, "SELECT * FROM spsusuario('  ');",
     "Error al cargar catalogo de usuarios.", false, Cuantas(Catalogo::Usuarios), "usuario"},
    {"Calculos", &Catalogo::LoadCalculos, "SELECT * FROM spscalculo(0);",
     "Error al cargar catalogo de calculos.", false, Cuantas(Catalogo::Calculos), "calculo"},
    {"TipoPromociones", &Catalogo::LoadTipoPromociones, "SELECT * FROM spstipopromocion(0);", nullptr, true,
     Cuantas(&Catalogo::TipoPromociones), "tipopromocion"},
    {"Asesor", &Catalogo::LoadAsesor, "SELECT * FROM spsasesor(0);", "Error al cargar catalogo de asesor.",
     false, Cuantas(Catalogo::Asesores), "asesor"},
    {"Colonias", &Catalogo::LoadColonias, "SELECT * FROM spscolonia(0);", nullptr, true,
     Cuantas(&Catalogo::Colonias), "colonias"},
    {"MotivosBaja", &Catalogo::LoadMotivosBaja, "SELECT * FROM spsmotivobaja(0);", nullptr, true,
     Cuantas(&Catalogo::MotivosBaja), "motivobaja"},
    {"ClasificacionCreditos", &Catalogo::LoadClasificacionCreditos,
     "SELECT * FROM spsclasificacioncredito(0);", nullptr, true, Cuantas(&Catalogo::ClasificacionCreditos),
     "clasificacioncredito"},
    {"Udis", &Catalogo::LoadUdis, "SELECT * FROM spsudis('1900-01-01');", nullptr, true,
     Cuantas(Catalogo::Udis), "udis"},
    {"Inpc", &Catalogo::LoadInpc, "SELECT * FROM spsinpc(0,0);", nullptr, true, Cuantas(Catalogo::Inpc),
     "inpc"},
    {"Recargos", &Catalogo::LoadRecargos, "SELECT * FROM spsrecargos(0,0);", nullptr, true,
     Cuantas(Catalogo::Recargos), "recargos"},
    {"TipoAcreditadosR", &Catalogo::LoadTipoAcreditadosR, "SELECT * FROM spstipoacreditador(0);", nullptr,
     true, Cuantas(&Catalogo::TipoAcreditadosR), "tipoacreditador"},
    {"TipoAsentamientos", &Catalogo::LoadTipoAsentamientos, "SELECT * FROM spstipoasentamiento(0);", nullptr,
     true, Cuantas(Catalogo::TipoAsentamientos), "tipoasentamiento"},
    {"Inabiles", &Catalogo::LoadInabiles, "SELECT * FROM inabil;", nullptr, true, Cuantas(Catalogo::Inabiles),
     "inabil"},
    {"Grupos", &Catalogo::LoadGrupos, "SELECT * FROM spsgrupo(0);", nullptr, true, Cuantas(&Catalogo::Grupos),
     "grupo"},
    {"Ocupaciones", &Catalogo::LoadOcupaciones, "SELECT * FROM spsocupacion(0);", nullptr, true,
     Cuantas(&Catalogo::Ocupaciones), "ocupacion"},
    {"ConceptosScoring", &Catalogo::LoadConceptosScoring, "SELECT * FROM spsconceptoscoring(0);", nullptr,
     false, Cuantas(Catalogo::ConceptosScoring), "conceptoscoring"},
};

/// Those that the login gives a word for a select.
const CargaDelCache cargasSinTexto[] = {
    {"TipoTasa", &Catalogo::LoadTipoTasa, "null", "Error al cargar catalogo de tipo tasas.", false,
     Cuantas(Catalogo::TipoTasaInteres), nullptr},
    {"Tasas", &Catalogo::LoadTasas, "null", "Error al cargar catalogo de tasas.", true,
     Cuantas(Catalogo::TasaInteres), nullptr},
};

/// What a load traces: its select and, for the kinds of borrowers, a mark for each row.
std::string TrazaDe(const CargaDelCache& carga, size_t filas) {
  std::string traza = carga.traza ? carga.sql + "\n" : "";
  if (carga.carga != &Catalogo::LoadTipoAcreditadosR) return traza;
  for (size_t i = 0; i < filas; ++i) traza += "Inserto Tipo Acreditado R";
  return traza;
}

class CatalogoTest : public ConSucursal {
 protected:
  CatalogoTest() {
    Catalogo::Monedas.clear();
    Catalogo::SociosCaja.clear();
    Catalogo::bLoad = false;
  }

  /// What spsmoneda answers from now on: rows of key, value, description.
  void Contesta(const std::string& filas) {
    base_.Ejecuta(
        "drop function norte.spsmoneda(text); create function norte.spsmoneda(text) returns table (a text,"
        " b text, c text) language sql as $$ " +
        filas +
        " $$; grant execute on function"
        " norte.spsmoneda(text) to public");
  }

  static Textos Claves() {
    Textos claves;
    for (const auto& [fila, moneda] : Catalogo::Monedas) claves.push_back(moneda.getMonedaID());
    return claves;
  }
};

// The currencies.

TEST_F(CatalogoTest, LasMonedasSeCarganEnUnaTransaccionYSinTraza) {
  Espia espia;
  Salida salida;
  catalogo.LoadMonedas();
  EXPECT_EQ(espia.Sentencias(), CargaDeMonedas);
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(res, nullptr);
  EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(CatalogoTest, CadaFilaQuedaBajoSuNumeroConSusColumnas) {
  catalogo.LoadMonedas();
  const Tabla filas = base_.Filas(
      "select monedaid, monedadescri, monedavalor from norte.moneda"
      " order by monedadescri collate \"es-MX-x-icu\"");
  ASSERT_EQ(Catalogo::Monedas.size(), filas.size());
  int numero = 0;
  for (const auto& [clave, moneda] : Catalogo::Monedas) {
    const Textos& fila = filas[static_cast<size_t>(numero)];
    EXPECT_EQ(clave, numero++);
    EXPECT_EQ(moneda.getMonedaID(), fila[0]);
    EXPECT_EQ(moneda.getMonedaDescri(), fila[1]);
    EXPECT_FLOAT_EQ(moneda.getMonedaValor(), std::stof(fila[2]));
    EXPECT_FALSE(moneda.getDataChanged());
    EXPECT_FALSE(moneda.IsNew());
  }
}

TEST_F(CatalogoTest, UnaTablaVaciaDejaElMapaVacioYNadaMas) {
  catalogo.LoadMonedas();
  base_.Ejecuta("truncate norte.moneda cascade");
  EXPECT_EQ(Lanzado([] { catalogo.LoadMonedas(); }), std::nullopt);
  EXPECT_TRUE(Catalogo::Monedas.empty());
}

TEST_F(CatalogoTest, DosFilasConLaMismaClaveQuedanAmbas) {
  Contesta("values ('MX', '1', 'uno'), ('MX', '2', 'dos')");
  catalogo.LoadMonedas();
  ASSERT_EQ(Claves(), (Textos{"MX", "MX"}));
  EXPECT_STREQ(Catalogo::Monedas[0].getMonedaDescri(), "uno");
  EXPECT_STREQ(Catalogo::Monedas[1].getMonedaDescri(), "dos");
}

TEST_F(CatalogoTest, ElOrdenEsElDeLaRespuesta) {
  Contesta("values ('ZZ', '1', 'z'), ('AA', '2', 'a'), ('MM', '3', 'm')");
  catalogo.LoadMonedas();
  EXPECT_EQ(Claves(), (Textos{"ZZ", "AA", "MM"}));
}

TEST_F(CatalogoTest, UnaCargaSustituyeTodoLoAnterior) {
  Contesta("values ('A', '1', 'a'), ('B', '2', 'b'), ('C', '3', 'c')");
  catalogo.LoadMonedas();
  Contesta("values ('D', '4', 'd')");
  catalogo.LoadMonedas();
  EXPECT_EQ(Claves(), Textos{"D"});
  EXPECT_EQ(Catalogo::Monedas.count(0), 1u);
}

TEST_F(CatalogoTest, UnSelectQueFallaDejaElMapaVacioSinMensaje) {
  const std::pair<const char*, Falla> tabla[] = {
      {"error", falla::Error("No")}, {"nula", falla::Nula()}, {"sin filas", falla::SinFilas()}};
  for (const auto& [caso, falla] : tabla) {
    SCOPED_TRACE(caso);
    catalogo.LoadMonedas();
    Espia espia;
    espia.Cuando("spsmoneda", falla);
    EXPECT_EQ(Lanzado([] { catalogo.LoadMonedas(); }), std::nullopt);
    EXPECT_TRUE(Catalogo::Monedas.empty());
    EXPECT_EQ(espia.Sentencias(), CargaDeMonedas);
    EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
  }
}

TEST_F(CatalogoTest, UnBeginQueFallaLanzaElMensajeConElMapaYaVacio) {
  const std::pair<const char*, Falla> tabla[] = {
      {"error", falla::Error("No")},
      {"nula", falla::Nula()},
      {"filas", [](PGconn* c, const char*) { return __real_PQexec(c, "select 1"); }},
      {"corte", falla::CorteAntes()},
  };
  for (const auto& [caso, falla] : tabla) {
    SCOPED_TRACE(caso);
    catalogo.LoadMonedas();
    EXPECT_FALSE(Catalogo::Monedas.empty());
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(Lanzado([] { catalogo.LoadMonedas(); }), "Error al cargar catalogo de monedas.");
    EXPECT_TRUE(Catalogo::Monedas.empty());
    EXPECT_EQ(espia.Sentencias(), Textos{"BEGIN;"});
  }
}

TEST(Catalogo, UnCorteDespuesDelBeginNoSeAvisa) {
  BaseDatos base;
  const size_t filas = std::stoul(base.Valor("select count(*) from norte.moneda"));
  const struct {
    size_t posicion;
    Falla corte;
    size_t filas;
  } tabla[] = {
      {0, falla::CorteDespues(), 0},   {1, falla::CorteAntes(), 0},       {1, falla::CorteDespues(), 0},
      {2, falla::CorteAntes(), filas}, {2, falla::CorteDespues(), filas},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.posicion);
    Sesion sesion(base);
    Espia espia;
    espia.En(fila.posicion, fila.corte);
    const auto texto = Lanzado([] { catalogo.LoadMonedas(); });
    EXPECT_EQ(texto.has_value(), fila.posicion == 0);
    EXPECT_EQ(Catalogo::Monedas.size(), fila.filas);
  }
}

TEST_F(CatalogoTest, UnaRespuestaMalFormadaSeLeeComoColumnasVacias) {
  Espia espia;
  espia.En(1, falla::Recortada(1));
  catalogo.LoadMonedas();
  ASSERT_FALSE(Catalogo::Monedas.empty());
  EXPECT_STREQ(Catalogo::Monedas[0].getMonedaID(), "CA");
  EXPECT_STREQ(Catalogo::Monedas[0].getMonedaDescri(), "");
  EXPECT_EQ(Catalogo::Monedas[0].getMonedaValor(), 0);
  espia.Vacia();
  espia.En(1, falla::ConNulos());
  catalogo.LoadMonedas();
  EXPECT_STREQ(Catalogo::Monedas[0].getMonedaID(), "");
  espia.Vacia();
  espia.En(1, falla::ConTextos(5000));
  catalogo.LoadMonedas();
  EXPECT_STREQ(Catalogo::Monedas[0].getMonedaID(), "xx");
  EXPECT_EQ(Catalogo::Monedas[0].getMonedaDescri(), std::string(31, 'x'));
}

TEST_F(CatalogoTest, LaDesconexionConservaLoCargado) {
  catalogo.LoadMonedas();
  const Textos antes = Claves();
  apertura::Cierra();
  EXPECT_EQ(Claves(), antes);
  EXPECT_EQ(Lanzado([] { catalogo.LoadMonedas(); }), "Error al cargar catalogo de monedas.");
}

// Every load.

TEST_F(CatalogoTest, CadaCargaMandaYTrazaLoSuyoYTomaTodasLasFilas) {
  for (const auto& carga : cargas) {
    SCOPED_TRACE(carga.nombre);
    const size_t filas = std::stoul(base_.Valor(std::string("select count(*) from norte.") + carga.tabla));
    ASSERT_GT(filas, 0u);
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (catalogo.*carga.carga)(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), carga.Sentencias());
    EXPECT_EQ(salida.Texto(), TrazaDe(carga, filas));
    EXPECT_EQ(carga.filas(catalogo), filas);
    EXPECT_EQ(res, nullptr);
    EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
    (catalogo.*carga.carga)();
    EXPECT_EQ(carga.filas(catalogo), filas) << "una carga sustituye a la anterior";
  }
}

TEST_F(CatalogoTest, CadaCargaQuedaVaciaSinMensajeSiSuSelectFallaONoTraeNada) {
  for (const auto& carga : cargas) {
    SCOPED_TRACE(carga.nombre);
    for (const Falla& falla : {falla::SinFilas(), falla::Error("No"), falla::Nula()}) {
      Salida salida;
      (catalogo.*carga.carga)();
      EXPECT_GT(carga.filas(catalogo), 0u);
      Espia espia;
      espia.Cuando(carga.sql, falla);
      EXPECT_EQ(Lanzado([&] { (catalogo.*carga.carga)(); }), std::nullopt);
      EXPECT_EQ(carga.filas(catalogo), 0u);
      EXPECT_EQ(espia.Sentencias(), carga.Sentencias());
    }
  }
}

TEST_F(CatalogoTest, CadaCargaConTransaccionLanzaSuMensajeYaVacia) {
  for (const auto& carga : cargas) {
    SCOPED_TRACE(carga.nombre);
    Salida salida;
    (catalogo.*carga.carga)();
    Espia espia;
    espia.Cuando("BEGIN;", falla::Error("No"));
    const auto texto = Lanzado([&] { (catalogo.*carga.carga)(); });
    EXPECT_EQ(texto.has_value(), carga.mensaje != nullptr);
    EXPECT_EQ(texto.value_or(""), carga.mensaje != nullptr ? carga.mensaje : "");
    EXPECT_EQ(carga.filas(catalogo) == 0, carga.mensaje != nullptr);
  }
}

// The chart of accounts.

const Textos CargaDeCuentas = {"select trunc(extract(epoch from max(fecha_estado))) from catalogo_ctas;",
                               "BEGIN;", "SELECT * FROM spscatalogo_ctas('  ');", "COMMIT;"};

TEST_F(CatalogoTest, LasCuentasSeCarganSiempreTrasLeerSuSello) {
  const Tabla filas = base_.Filas("select cuentaid, tipo_cta from norte.catalogo_ctas order by cuentaid");
  for (int vez = 0; vez < 2; ++vez) {
    Espia espia;
    Salida salida;
    catalogo.LoadCuentas();
    EXPECT_EQ(espia.Sentencias(), CargaDeCuentas);
    EXPECT_EQ(salida.Texto(), "");
    ASSERT_EQ(Catalogo::Catalogo_Ctas.size(), filas.size());
  }
  for (size_t i = 0; i < filas.size(); ++i) {
    const cCatalogo_Ctas& cuenta = Catalogo::Catalogo_Ctas[static_cast<int>(i)];
    EXPECT_EQ((Textos{cuenta.getCuentaID(), cuenta.getTipo_Cta()}), filas[i]);
  }
}

TEST_F(CatalogoTest, UnaCuentaSinFechaTraeLaDeLaFilaAnterior) {
  base_.Ejecuta(
      "update norte.catalogo_ctas set fecha_estado = null;"
      "update norte.catalogo_ctas set fecha_estado = '2006-03-15' where cuentaid ="
      " (select cuentaid from norte.catalogo_ctas order by cuentaid offset 1 limit 1)");
  catalogo.LoadCuentas();
  EXPECT_STREQ(Catalogo::Catalogo_Ctas[0].getFecha_Estado().AsChar(), "0000-00-00");
  EXPECT_STREQ(Catalogo::Catalogo_Ctas[1].getFecha_Estado().AsChar(), "2006-03-15");
  EXPECT_STREQ(Catalogo::Catalogo_Ctas[2].getFecha_Estado().AsChar(), "2006-03-15");
}

TEST_F(CatalogoTest, SinCuentasOSinRespuestaElMapaQuedaVacio) {
  for (const auto& [posicion, falla] : std::vector<std::pair<size_t, Falla>>{
           {2, falla::SinFilas()}, {2, falla::Error("No")}, {2, falla::Nula()}}) {
    catalogo.LoadCuentas();
    Espia espia;
    espia.En(posicion, falla);
    EXPECT_EQ(Lanzado([] { catalogo.LoadCuentas(); }), std::nullopt);
    EXPECT_TRUE(Catalogo::Catalogo_Ctas.empty());
  }
  Espia espia;
  espia.En(0, falla::Nula());
  catalogo.LoadCuentas();  // nobody looks at the stamp
  EXPECT_FALSE(Catalogo::Catalogo_Ctas.empty());
  espia.Vacia();
  espia.En(1, falla::Error("No"));
  EXPECT_EQ(Lanzado([] { catalogo.LoadCuentas(); }), "Error al cargar catalogo de cuentas.");
  EXPECT_TRUE(Catalogo::Catalogo_Ctas.empty());
}

// Loading everything.

/// A step of Load: its trace, and the load behind it; null where there is none yet.
const struct {
  const char* traza;
  const char* carga;
} pasos[] = {
    {"0\n", "Cuentas"},
    {"1      \n", "Monedas"},
    {"2      \n", "TipoDepreciacion"},
    {"3      \n", "Activos"},
    {"4      \n", "TipoPrestamo"},
    {"5      \n", "TipoMovimiento"},
    {"6      \n", "Bancos"},
    {"7      \n", "TipoGarantia"},
    {"8      \n", "EstadosCredito"},
    {"9      \n", "Finalidades"},
    {"10     \n", "TipoMoviBancos"},
    {"11     \n", "TipoInversiones"},
    {"12     \n", "EstadosMex"},
    {"13     \n", nullptr},
    {"Leyendo ciudades\n", "CiudadesMex"},
    {"14     \n", "TiposUsuarios"},
    {"15     \n", "TiposSocios"},
    {"16     \n", "Modulos"},
    {"17     \n", "Usuarios"},
    {"18     \n", "Calculos"},
    {"19     \n", "TipoPromociones"},
    {"21     ", "Asesor"},
    {"22     ", nullptr},
    {"23     ", "Colonias"},
    {"24     ", "MotivosBaja"},
    {"25     ", "ClasificacionCreditos"},
    {"26     ", "Udis"},
    {"27     ", "Inpc"},
    {"28     ", "Recargos"},
    {"29     ", "TipoAcreditadosR"},
    {"30     ", "TipoAsentamientos"},
    {"31     ", "Inabiles"},
    {"32     ", "Grupos"},
    {"33     ", "Ocupaciones"},
    {"34     ", "ConceptosScoring"},
    {"36     ", "TipoTasa"},
    {"37     ", "Tasas"},
    {"38      ", nullptr},
};

const CargaDelCache& Llamada(const std::string& nombre) {
  for (const CargaDelCache& carga : cargasSinTexto)
    if (carga.nombre == nombre) return carga;
  return *std::find_if(std::begin(cargas), std::end(cargas),
                       [&](const auto& c) { return c.nombre == nombre; });
}

/// As the containers are filled now.
std::string TrazasDeTodosLosPasos() {
  std::string trazas;
  for (const auto& [traza, nombre] : pasos) {
    trazas += traza;
    if (nombre == nullptr || nombre == std::string("Cuentas")) continue;
    const CargaDelCache& carga = Llamada(nombre);
    trazas += TrazaDe(carga, carga.filas(catalogo));
  }
  return trazas;
}

Textos SentenciasDeTodosLosPasos() {
  Textos sentencias;
  for (const auto& [traza, nombre] : pasos) {
    if (nombre == nullptr) continue;
    const Textos suyas = nombre == std::string("Cuentas") ? CargaDeCuentas : Llamada(nombre).Sentencias();
    sentencias.insert(sentencias.end(), suyas.begin(), suyas.end());
  }
  return sentencias;
}

TEST_F(CatalogoTest, LoadCargaTodoEnSuOrdenYTrazaCadaPaso) {
  Espia espia;
  Salida salida;
  catalogo.Load();
  EXPECT_EQ(salida.Texto(), TrazasDeTodosLosPasos());
  EXPECT_EQ(espia.Sentencias(), SentenciasDeTodosLosPasos());
  EXPECT_FALSE(Catalogo::Monedas.empty());
  EXPECT_TRUE(Catalogo::TipoTasaInteres.empty());
  EXPECT_TRUE(Catalogo::TasaInteres.empty());
  EXPECT_TRUE(Catalogo::bLoad);
}

TEST_F(CatalogoTest, ConLaGuardaPuestaLoadNoHaceNada) {
  catalogo.setLoad(true);
  Espia espia;
  Salida salida;
  catalogo.Load();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_TRUE(Catalogo::Monedas.empty());
}

TEST_F(CatalogoTest, QuitarLaGuardaVuelveACargar) {
  Salida salida;
  catalogo.Load();
  Espia espia;
  catalogo.Load();
  EXPECT_TRUE(espia.Sentencias().empty());
  SueltaMonedas(base_);
  base_.Ejecuta("delete from norte.moneda where monedaid <> 'MX'");
  catalogo.setLoad(false);
  catalogo.Load();
  EXPECT_EQ(espia.Sentencias(), SentenciasDeTodosLosPasos());
  EXPECT_EQ(Claves(), Textos{"MX"});
  EXPECT_TRUE(Catalogo::bLoad);
}

TEST_F(CatalogoTest, UnLoadInterrumpidoDejaLaGuardaQuitada) {
  Espia espia;
  espia.En(CargaDeCuentas.size(), falla::Error("No"));
  Salida salida;
  EXPECT_EQ(Lanzado([] { catalogo.Load(); }), "Error al cargar catalogo de monedas.");
  EXPECT_FALSE(Catalogo::bLoad);
  EXPECT_EQ(salida.Texto(), "0\n1      \n");
  EXPECT_FALSE(Catalogo::Catalogo_Ctas.empty());
  catalogo.Load();
  EXPECT_TRUE(Catalogo::bLoad);
}

// The members.

class SociosTest : public ConBaseVacia {
 protected:
  void SetUp() override {
    base_.Ejecuta(
        "create table socio (socioid int, fechaalta timestamp);"
        "create function spssociocaja() returns table (a int, b text, c text, d text, e text, f text)"
        " language sql as $$ select socioid, 'K' || socioid, 'Pérez', 'Paz', 'Ana', 'Activo' from socio"
        " order by 1 $$");
    Catalogo::SociosCaja.clear();
  }

  void Alta(int socio, const std::string& fecha) {
    base_.Ejecuta("insert into socio values (" + std::to_string(socio) + ", '" + fecha + "')");
  }

  const std::string Sello_ = "select trunc(extract(epoch from max(fechaalta))) from socio;";
  const Textos Completa_ = {Sello_, "BEGIN;", "SELECT * FROM spssociocaja();", "COMMIT;"};
  Catalogo catalogo_;  // with stamps of its own
};

TEST_F(SociosTest, SeCarganSoloSiHayUnoMasNuevo) {
  const struct {
    const char* caso;
    int socio;
    const char* fecha;
    bool carga;
    size_t quedan;
  } tabla[] = {
      {"el primero", 1, "2006-03-15 10:00:00", true, 1},
      {"uno anterior", 2, "2005-01-01", false, 1},
      {"otro del mismo instante", 3, "2006-03-15 10:00:00", false, 1},
      {"otro de fracción de segundo", 4, "2006-03-15 10:00:00.9", false, 1},
      {"uno de un segundo después", 5, "2006-03-15 10:00:01", true, 5},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.caso);
    Alta(fila.socio, fila.fecha);
    Espia espia;
    {
      Salida salida;
      catalogo_.LoadSociosCaja();
      const long sello =
          std::stol(base_.Valor("select trunc(extract(epoch from max(fechaalta))) from socio"));
      const std::string traza =
          std::string("Ultima actualizacion socios --> ") + catalogo_.TimeStampToStr(sello) + "\n";
      EXPECT_EQ(salida.Texto(), fila.carga ? traza : "");
    }
    EXPECT_EQ(espia.Sentencias(), fila.carga ? Completa_ : Textos{Sello_});
    EXPECT_EQ(Catalogo::SociosCaja.size(), fila.quedan);
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(SociosTest, CadaFilaQuedaBajoSuNumero) {
  Alta(11, "2006-03-15");
  Alta(12, "2006-03-16");
  Salida salida;
  catalogo_.LoadSociosCaja();
  ASSERT_EQ(Catalogo::SociosCaja.size(), 2u);
  EXPECT_EQ(Catalogo::SociosCaja[1].getSocioID(), 12);
  EXPECT_STREQ(Catalogo::SociosCaja[1].getClaveSocioInt(), "K12");
  EXPECT_STREQ(Catalogo::SociosCaja[0].getPaterno(), "Pérez");
}

TEST_F(SociosTest, SinSociosOSinRespuestaNoSeCargaNada) {
  const std::pair<const char*, Falla> tabla[] = {
      {"vacía", __real_PQexec},         {"error", falla::Error("No")},  {"nula", falla::Nula()},
      {"sin filas", falla::SinFilas()}, {"corta", falla::Recortada(0)}, {"texto", falla::ConTextos(5000)},
      {"corte", falla::CorteAntes()},
  };
  Salida salida;
  for (const auto& [caso, falla] : tabla) {
    SCOPED_TRACE(caso);
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(Lanzado([this] { catalogo_.LoadSociosCaja(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), Textos{Sello_});
    EXPECT_EQ(res, nullptr);
  }
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(SociosTest, UnBeginQueFallaLanzaSuMensajeConElMapaYaVacio) {
  Salida salida;
  Alta(1, "2006-03-15");
  catalogo_.LoadSociosCaja();
  Alta(2, "2006-03-16");
  Espia espia;
  espia.En(1, falla::Error("No"));
  EXPECT_EQ(Lanzado([this] { catalogo_.LoadSociosCaja(); }), "Error al cargar socios de la caja.");
  EXPECT_TRUE(Catalogo::SociosCaja.empty());
  EXPECT_EQ(espia.Sentencias(), (Textos{Sello_, "BEGIN;"}));
  // The stamp was kept, so nothing is newer.
  catalogo_.LoadSociosCaja();
  EXPECT_TRUE(Catalogo::SociosCaja.empty());
}

// A list instead of a map, with and without a transaction.

struct Fila : Engine {
  void Fill(int fila) { clave = atoi(Celda(fila, 0)); }
  bool operator>(const Fila& otra) const { return clave > otra.clave; }
  bool operator<=(const Fila& otra) const { return clave <= otra.clave; }
  int clave = 0;
};

class CargaTest : public ConBaseVacia {
 protected:
  static std::vector<int> Claves(const lista<Fila>& filas) {
    std::vector<int> claves;
    for (const Fila& fila : filas) claves.push_back(fila.clave);
    return claves;
  }
};

TEST_F(CargaTest, UnaListaQuedaOrdenadaYSeSustituyeEntera) {
  lista<Fila> filas;
  Espia espia;
  Carga(filas, "values (3), (1), (2)");
  EXPECT_EQ(Claves(filas), (std::vector<int>{1, 2, 3}));
  Carga(filas, "values (5), (4)");
  EXPECT_EQ(Claves(filas), (std::vector<int>{4, 5}));
  EXPECT_EQ(espia.Sentencias(), (Textos{"values (3), (1), (2)", "values (5), (4)"}));
  EXPECT_EQ(res, nullptr);
}

TEST_F(CargaTest, SinTransaccionNingunaFallaSeAvisa) {
  lista<Fila> filas;
  std::map<int, Fila> mapa;
  const std::pair<const char*, Falla> tabla[] = {{"error", falla::Error("No")},
                                                 {"nula", falla::Nula()},
                                                 {"corte", falla::CorteAntes()},
                                                 {"cortada", falla::CorteAntes()}};
  for (const auto& [caso, falla] : tabla) {
    SCOPED_TRACE(caso);
    Carga(filas, "values (1)");
    Carga(mapa, "values (1)");
    Espia espia;
    espia.Cuando("", falla);
    Carga(filas, "values (1)");
    Carga(mapa, "values (1)");
    EXPECT_TRUE(Claves(filas).empty());
    EXPECT_TRUE(mapa.empty());
  }
}

TEST_F(CargaTest, LaTransaccionDeUnaListaLanzaSuMensajeYaVacia) {
  lista<Fila> filas;
  Espia espia;
  CargaEnTransaccion(filas, "values (2), (1)", "Error al cargar.");
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "values (2), (1)", "COMMIT;"}));
  EXPECT_EQ(Claves(filas), (std::vector<int>{1, 2}));
  espia.Vacia();
  espia.En(0, falla::Nula());
  EXPECT_EQ(Lanzado([&] { CargaEnTransaccion(filas, "values (3)", "Error al cargar."); }),
            "Error al cargar.");
  EXPECT_TRUE(Claves(filas).empty());
}

// Time stamps.

class SelloTest : public testing::Test {
 protected:
  ~SelloTest() override { Zona(nullptr); }

  static void Zona(const char* zona) {
    if (zona) {
      setenv("TZ", zona, 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }
};

TEST_F(SelloTest, ElTextoEsLaHoraLocalConElAnioDeEsteSiglo) {
  const struct {
    const char* zona;
    long t;
    const char* texto;
  } tabla[] = {
      {"UTC0", 0, "2070-01-01 00:00:00"},          {"UTC0", 946684799, "2099-12-31 23:59:59"},
      {"UTC0", 946684800, "2000-01-01 00:00:00"},  {"UTC0", 1099594793, "2004-11-04 18:59:53"},
      {"UTC0", 1709164801, "2024-02-29 00:00:01"}, {"UTC0", 4102444800, "2000-01-01 00:00:00"},
      {"XXX6", 946684800, "2099-12-31 18:00:00"},  {"XXX-2", 946677600, "2000-01-01 00:00:00"},
  };
  for (const auto& fila : tabla) {
    Zona(fila.zona);
    EXPECT_STREQ(catalogo.TimeStampToStr(fila.t), fila.texto) << fila.zona << " " << fila.t;
  }
}

TEST_F(SelloTest, CualquierNumeroDaUnTexto) {
  for (const long t : {LONG_MIN, LONG_MAX, -1L, 1L << 40}) EXPECT_STRNE(catalogo.TimeStampToStr(t), "") << t;
}

TEST_F(SelloTest, ElTextoDuraHastaLaLlamadaSiguiente) {
  Zona("UTC0");
  const char* primero = catalogo.TimeStampToStr(0);
  EXPECT_EQ(catalogo.TimeStampToStr(946684800), primero);
  EXPECT_STREQ(primero, "2000-01-01 00:00:00");
}

TEST_F(SelloTest, ConvertirUnTextoSoloTrazaYDaSiempreLoMismo) {
  const struct {
    const char* texto;
    Textos partes;
  } tabla[] = {
      {"2004-11-04 18:59:53", {"Año 1904", "Mes 11", "Dia 4", "Hora 18", "Min. 59", "Sec. 53"}},
      {"1999-01-31 00:00:07", {"Año 1899", "Mes 1", "Dia 31", "Hora 0", "Min. 0", "Sec. 7"}},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.texto);
    Salida salida;
    const long antes = time(nullptr);
    EXPECT_EQ(catalogo.StrToTimeStamp(fila.texto), 1099594793);
    const long despues = time(nullptr);
    Textos lineas = salida.Lineas();
    ASSERT_EQ(lineas.size(), 8u);
    bool actual = false;
    for (long t = antes; t <= despues; ++t)
      actual |= lineas[0] == std::string("Fecha Actual ----> ") + catalogo.TimeStampToStr(t);
    EXPECT_TRUE(actual) << lineas[0];
    EXPECT_EQ(lineas[1], std::string("Convirtiend ---> ") + fila.texto);
    EXPECT_EQ(Textos(lineas.begin() + 2, lineas.end()), fila.partes);
  }
}

TEST_F(SelloTest, ConvertirUnTextoQueNoEsFechaDaLoMismo) {
  Salida salida;
  for (const char* texto : {"", "ayer", "2004", "2004-11", "-", "1-2-3 4:5:6 y más"})
    EXPECT_EQ(catalogo.StrToTimeStamp(texto), 1099594793) << texto;
  EXPECT_EQ(salida.Lineas().size(), 6u * 8u);
}

}  // namespace
}  // namespace pruebas
