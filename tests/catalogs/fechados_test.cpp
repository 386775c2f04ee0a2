// The records with a day or a month in them, one table row each: the series of indices, the non-working days,
// the bank accounts and the promotions.
#include <gtest/gtest.h>

#include <optional>

#include "app/sesion.h"
#include "catalogs/finance/cBanco.h"
#include "catalogs/finance/cInabil.h"
#include "catalogs/finance/cInpc.h"
#include "catalogs/finance/cRecargos.h"
#include "catalogs/finance/cTipoPromocion.h"
#include "catalogs/finance/cUdis.h"
#include "db/Catalogo.h"
#include "tests/catalogs/Ficha.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// A column of R, whichever base declares it; a date by either of its texts, and as the server writes it.
template <class R, class S, class V, class G>
Columna<R> Por(void (S::*pon)(V), G (S::*da)() const) {
  if constexpr (std::is_same_v<V, const date&>) {
    return {[=](R& r, const std::string& valor) { (r.*pon)(date(valor.c_str())); },
            [=](const R& r) { return (r.*da)().AsChar(); }};
  } else if constexpr (std::is_same_v<V, const char*>) {
    return {[=](R& r, const std::string& valor) { (r.*pon)(valor.c_str()); },
            [=](const R& r) { return (r.*da)(); }};
  } else {
    return {[=](R& r, const std::string& valor) { (r.*pon)(ComoNumero<V>(valor)); },
            [=](const R& r) { return std::to_string((r.*da)()); }};
  }
}

constexpr size_t Fecha = 1000, Numero = 0;  // in the place of the bytes of a text

struct Parte {
  const char* nombre;
  size_t bytes;
  size_t relleno = 0;  ///< at least so many, blanks behind
};

struct Prueba {
  const char* columna;
  const char* valor;
  const char* texto;  ///< all of what Check throws, or a part of the server's refusal; "" for none
};

struct Caso {
  const char* nombre;
  const char* clase;
  Hacedor hace;         ///< by the constructor with every column
  const char* talCual;  ///< what that stores
  std::vector<Parte> partes;
  size_t clave;  ///< how many columns from the first on
  const char* tabla;
  bool asignada;          ///< does the server assign the key
  Textos lugares;         ///< the columns in the order of the server's answer
  Textos valores, otros;  ///< by setter, and as the record then holds them
  const char *alta, *cambio, *borrado, *busqueda;
  unsigned trazas;
  const char* noCambia;        ///< what the server answers to the change; null where it takes it
  std::vector<Prueba> reglas;  ///< in their order
  std::vector<Prueba> permitido;
  std::vector<Prueba> servidor;
  std::vector<Textos> sinClave;   ///< keys with which nothing is sent
  std::vector<Textos> soloBorra;  ///< keys that are deleted and not looked for
};

void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.nombre; }

#define COLUMNA(R, nombre) Por<R>(&R::set##nombre, &R::get##nombre)
constexpr unsigned Todas = TrazaAddNew | TrazaUpdate | TrazaDelete | TrazaFind;
const char* const SinFechaDada = "No ha especificado la fecha";
const char* const NoExisteElDia = "no existe en el calendario";

/// What the server says to a month, whatever the series.
std::vector<Prueba> DeUnMes(const char* cifra, std::vector<Prueba> propias) {
  std::vector<Prueba> pruebas = {
      {"Mes", "0", "Está fuera de rango el mes: 0 no está entre 1 y 12"},
      {"Mes", "13", "Está fuera de rango el mes: 13 no está entre 1 y 12"},
      {"Mes", "12", ""},
      {"Ano", "0", "Está fuera de rango el año: 0 no está entre 1901 y 2999"},
      {"Ano", "20261", "Está fuera de rango el año: 20261 no está entre 1901 y 2999"},
      {"Ano", "2147483647", "Está fuera de rango el año"},
      {cifra, "0", ""},
      {cifra, "1e-30", ""},
      {cifra, "1e30", "Está fuera de rango"},
      {cifra, "1e308", "Está fuera de rango"},
      {cifra, "nan", "nan"},
      {cifra, "inf", "inf"},
  };
  pruebas.insert(pruebas.end(), propias.begin(), propias.end());
  return pruebas;
}

const std::vector<Textos> sinDia = {{""}, {"00/00/0000"}, {"//"}, {"01/01/1900"}, {"1900-12-31"}, {"1/1/1"}};

const Caso casos[] = {
    {
        .nombre = "cUdis",
        .clase = "Udis",
        .hace = Hace(std::vector<Columna<cUdis>>{COLUMNA(cUdis, Fecha), COLUMNA(cUdis, Valor)},
                     date("2026-02-31"), -1),
        .talCual = "[2026-02-31|-1.000000]",
        .partes = {{"Fecha", Fecha}, {"Valor", Numero}},
        .clave = 1,
        .tabla = "udis",
        .asignada = false,
        .lugares = {"Fecha", "Valor"},
        .valores = {"2031-03-05", "8.123457"},
        .otros = {"2031-03-05", "9.500000"},
        .alta = "select spiudis('2031-03-05',8.123457);",
        .cambio = "select spuudis('2031-03-05',9.500000);",
        .borrado = "SELECT spdudis('2031-03-05');",
        .busqueda = "SELECT * FROM spsudis('2031-03-05');",
        .trazas = Todas,
        .noCambia = nullptr,
        .reglas = {{"Fecha", "", SinFechaDada}, {"Valor", "-0.01", "El valor no puede ser negativo"}},
        .permitido = {{"Valor", "0", ""},
                      {"Valor", "nan", ""},
                      {"Fecha", "31/02/2026", ""},
                      {"Fecha", "0001-01-01", ""}},
        .servidor = {{"Fecha", "31/02/2026", NoExisteElDia},
                     {"Fecha", "2031-00-05", NoExisteElDia},
                     {"Fecha", "2031-13-05", NoExisteElDia},
                     {"Fecha", "5/3/2031", NoExisteElDia},
                     {"Valor", "0", ""},
                     {"Valor", "1e-30", ""},
                     {"Valor", "999999999999", ""},
                     {"Valor", "1e30", "Está fuera de rango el valor"},
                     {"Valor", "1e308", "Está fuera de rango el valor"},
                     {"Valor", "nan", "nan"}},
        .sinClave = sinDia,
        .soloBorra = {},
    },
    {
        .nombre = "cInpc",
        .clase = "Inpc",
        .hace =
            Hace(std::vector<Columna<cInpc>>{COLUMNA(cInpc, Ano), COLUMNA(cInpc, Mes), COLUMNA(cInpc, Inpc)},
                 -7, 13, 0.5),
        .talCual = "[-7|13|0.500000]",
        .partes = {{"Ano", Numero}, {"Mes", Numero}, {"Inpc", Numero}},
        .clave = 2,
        .tabla = "inpc",
        .asignada = false,
        .lugares = {"Ano", "Mes", "Inpc"},
        .valores = {"2031", "3", "140.250000"},
        .otros = {"2031", "3", "141.000000"},
        .alta = "select spiinpc(2031,3,140.250000);",
        .cambio = "select spuinpc(2031,3,141.000000);",
        .borrado = "SELECT spdinpc(2031,3);",
        .busqueda = "SELECT * FROM spsinpc(2031,3);",
        .trazas = TrazaUpdate | TrazaDelete | TrazaFind,
        .noCambia = nullptr,
        .reglas = {{"Ano", "-1", "No se ha especificado el Año"},
                   {"Mes", "-1", "No se ha especificado el Mes"},
                   {"Inpc", "-0.01", "No ha especificado el Inpc"}},
        .permitido =
            {{"Ano", "0", ""}, {"Mes", "0", ""}, {"Mes", "13", ""}, {"Inpc", "0", ""}, {"Inpc", "nan", ""}},
        .servidor = DeUnMes("Inpc", {{"Inpc", "999999999999", ""}}),
        .sinClave = {{"0", "0"}, {"0", "3"}, {"2031", "0"}},
        .soloBorra = {{"-1", "3"}, {"2031", "-1"}},
    },
    {
        .nombre = "cRecargos",
        .clase = "Recargos",
        .hace = Hace(std::vector<Columna<cRecargos>>{COLUMNA(cRecargos, Ano), COLUMNA(cRecargos, Mes),
                                                     COLUMNA(cRecargos, Porcentaje)},
                     -7, 13, 0.5),
        .talCual = "[-7|13|0.500000]",
        .partes = {{"Ano", Numero}, {"Mes", Numero}, {"Porcentaje", Numero}},
        .clave = 2,
        .tabla = "recargos",
        .asignada = false,
        .lugares = {"Ano", "Mes", "Porcentaje"},
        .valores = {"2031", "3", "2.250000"},
        .otros = {"2031", "3", "1.130000"},
        .alta = "select spirecargos(2031,3,2.250000);",
        .cambio = "select spurecargos(2031,3,1.130000);",
        .borrado = "SELECT spdrecargos(2031,3);",
        .busqueda = "SELECT * FROM spsrecargos(2031,3);",
        .trazas = Todas,
        .noCambia = nullptr,
        .reglas = {{"Ano", "-1", "No se ha especificado el Año"},
                   {"Mes", "-1", "No se ha especificado el Mes"},
                   {"Porcentaje", "-0.01", "No ha especificado el Porcentaje"}},
        .permitido = {{"Ano", "0", ""}, {"Mes", "0", ""}, {"Porcentaje", "0", ""}},
        .servidor = DeUnMes("Porcentaje",
                            {{"Porcentaje", "100", ""}, {"Porcentaje", "100.1", "Está fuera de rango"}}),
        .sinClave = {{"0", "0"}, {"0", "3"}, {"2031", "0"}},
        .soloBorra = {{"-1", "3"}, {"2031", "-1"}},
    },
    {
        .nombre = "cInabil",
        .clase = "Inabil",
        .hace = Hace(std::vector<Columna<cInabil>>{COLUMNA(cInabil, Fecha)}, date("2026-02-31")),
        .talCual = "[2026-02-31]",
        .partes = {{"Fecha", Fecha}},
        .clave = 1,
        .tabla = "inabil",
        .asignada = false,
        .lugares = {"Fecha"},
        .valores = {"2031-03-05"},
        .otros = {"2031-03-06"},
        .alta = "insert into inabil values('2031-03-05');",
        .cambio = "update inabil set fecha='2031-03-06' where fecha='2031-03-06;",
        .borrado = "delete from inabil where fecha='2031-03-05';",
        .busqueda = "SELECT * FROM inabil where fecha='2031-03-05';",
        .trazas = Todas,
        .noCambia = "'2031-03-06;",  // an open quote
        .reglas = {{"Fecha", "", SinFechaDada}},
        .permitido = {{"Fecha", "31/02/2026", ""}},
        .servidor = {{"Fecha", "31/02/2026", "2026-02-31"},
                     {"Fecha", "2031-00-05", "2031-00-05"},
                     {"Fecha", "2031-13-05", "2031-13-05"},
                     {"Fecha", "5/3/2031", "0031-00-05"},
                     {"Fecha", "1800-01-01", "Está fuera de rango la fecha"},
                     {"Fecha", "2026-12-25", "El día 25/12/2026 ya es inhábil"}},
        .sinClave = sinDia,
        .soloBorra = {},
    },
    {
        .nombre = "cBanco",
        .clase = "Banco",
        .hace = Hace(
            std::vector<Columna<cBanco>>{
                COLUMNA(cBanco, No_Cuenta), COLUMNA(cBanco, Banco), COLUMNA(cBanco, Fecha_Inicio),
                COLUMNA(cBanco, Saldo_Inicial), COLUMNA(cBanco, Saldo_Actual), COLUMNA(cBanco, Saldo_Pen),
                COLUMNA(cBanco, CuentaID), COLUMNA(cBanco, Serie), COLUMNA(cBanco, NoCheque)},
            "A", "b", date("2026-02-31"), 3, -4.5, 5, "f", "g", 80'000'000'000),
        .talCual = "[A|b|2026-02-31|3.000000|-4.500000|5.000000|f|g|80000000000]",
        .partes = {{"No_Cuenta", 15, 15},
                   {"Banco", 27},
                   {"Fecha_Inicio", Fecha},
                   {"Saldo_Inicial", Numero},
                   {"Saldo_Actual", Numero},
                   {"Saldo_Pen", Numero},
                   {"CuentaID", 24},
                   {"Serie", 2},
                   {"NoCheque", Numero}},
        .clave = 1,
        .tabla = "banco",
        .asignada = false,
        .lugares = {"No_Cuenta", "CuentaID", "Banco", "Fecha_Inicio", "Saldo_Inicial", "Saldo_Actual",
                    "Saldo_Pen", "Serie", "NoCheque"},
        .valores = {"0770012345     ", "Banco de la Prueba", "2024-02-29", "1000.250000", "-2000.500000",
                    "3.750000", "1102-01-00-00-0000      ", "ZZ", "8123456789"},
        .otros = {"0770012345     ", "Otro Banco", "0000-00-00", "0.000000", "999999999999.989990",
                  "-1.000000", "1102-02-00-00-0000      ", "Y", "0"},
        .alta = "select spibanco('0770012345     ','Banco de la "
                "Prueba','2024-02-29',1000.250000,-2000.500000,3.750000,"
                "'1102-01-00-00-0000      ','ZZ',8123456789);",
        .cambio = "select spubanco('0770012345     ','Otro "
                  "Banco','0000-00-00',0.000000,999999999999.989990,-1.000000,"
                  "'1102-02-00-00-0000      ','Y',0);",
        .borrado = "SELECT spdbanco('0770012345     ');",
        .busqueda = "SELECT * FROM spsbanco('0770012345     ');",
        .trazas = TrazaAddNew | TrazaUpdate,
        .noCambia = nullptr,
        .reglas = {{"Banco", "", "No ha especificado el banco"},
                   {"CuentaID", "", "No ha especificado la cuenta contable"},
                   {"CuentaID", "1000-00-00-00-0000      ",
                    "La cuenta contable asociada a la cuenta bancaria debe ser afectable"},
                   {"Serie", "", "No ha especificado la serie"},
                   {"NoCheque", "-1", "El número de cheque no puede ser negativo"}},
        .permitido = {{"No_Cuenta", "               ", ""},
                      {"Fecha_Inicio", "", ""},
                      {"Saldo_Inicial", "-5", ""},
                      {"CuentaID", "7777", ""}},
        .servidor = {{"Fecha_Inicio", "", ""},
                     {"Fecha_Inicio", "31/02/2026", NoExisteElDia},
                     {"Fecha_Inicio", "5/3/2031", NoExisteElDia},
                     {"Banco", "O'Hara", "Hara"},
                     {"Banco", "100% %s \\ %n", ""},
                     {"Serie", "ñ", ""},
                     {"CuentaID", "7777", "7777 no está en el catálogo de cuentas"},
                     {"Saldo_Inicial", "-999999999999.99", ""},
                     {"Saldo_Inicial", "1e30", "Está fuera de rango el saldo inicial"},
                     {"Saldo_Actual", "1e308", "Está fuera de rango el saldo actual"},
                     {"Saldo_Pen", "nan", "nan"},
                     {"NoCheque", "9223372036854775807", ""},
                     {"No_Cuenta", "               ", "Falta la cuenta"}},
        .sinClave = {{""}},
        .soloBorra = {},
    },
    {
        .nombre = "cTipoPromocion",
        .clase = "TipoPromocion",
        .hace = Hace(
            std::vector<Columna<cTipoPromocion>>{
                COLUMNA(cTipoPromocion, TipoPromocionID),
                COLUMNA(cTipoPromocion, TipoMovimientoID), COLUMNA(cTipoPromocion, FechaInicial),
                COLUMNA(cTipoPromocion, FechaFinal), COLUMNA(cTipoPromocion, Condicion),
                COLUMNA(cTipoPromocion, Estatus), COLUMNA(cTipoPromocion, Descripcion)},
            -5, "M", date("2026-02-31"), date(""), "c", 9, "d"),
        .talCual = "[-5|M|2026-02-31|0000-00-00|c|9|d]",
        .partes = {{"TipoPromocionID", Numero},
                   {"TipoMovimientoID", 3},
                   {"FechaInicial", Fecha},
                   {"FechaFinal", Fecha},
                   {"Condicion", 83},
                   {"Estatus", Numero},
                   {"Descripcion", 30}},
        .clave = 1,
        .tabla = "tipopromocion",
        .asignada = true,
        .lugares = {"TipoPromocionID", "TipoMovimientoID", "FechaInicial", "FechaFinal", "Condicion",
                    "Estatus", "Descripcion"},
        .valores = {"91", "AH", "2031-03-05", "2031-04-05", "Depositar", "0", "Prueba"},
        .otros = {"91", "VC", "2031-03-06", "2031-04-06", "Retirar", "2", "Otra"},
        .alta = "SELECT spitipopromocion('AH','2031-03-05','2031-04-05','Depositar',0,'Prueba');",
        .cambio = "SELECT sputipopromocion(91,'VC','2031-03-06','2031-04-06','Retirar',2,'Otra');",
        .borrado = "SELECT spdtipopromocion(91);",
        .busqueda = "SELECT * FROM spstipopromocion(91);",
        .trazas = TrazaAddNew | TrazaFind,
        .noCambia = nullptr,
        .reglas = {{"TipoMovimientoID", "", "No ha especificado el Tipo de movimiento"},
                   {"FechaInicial", "", "No ha especificado la fecha de incio"},
                   {"FechaInicial", "1900-05-05", "No ha especificado la fecha de incio"},
                   {"Condicion", "", "No ha especificado la condicion"},
                   {"Estatus", "-1", "No ha especificado el Estatus"},
                   {"Descripcion", "", "No ha especificado la descripcion"}},
        .permitido = {{"FechaFinal", "", ""}, {"FechaFinal", "1999-01-01", ""}, {"Estatus", "3", ""}},
        .servidor = {{"FechaFinal", "", ""},
                     {"FechaFinal", "01/01/1900", ""},
                     {"FechaFinal", "2031-03-04",
                      "La fecha final 04/03/2031 es anterior a la inicial 05/03/2031"},
                     {"FechaInicial", "31/02/2026", NoExisteElDia},
                     {"FechaInicial", "2031-13-01", NoExisteElDia},
                     {"FechaFinal", "5/3/2031", NoExisteElDia},
                     {"TipoMovimientoID", "ZZ", "No existe el tipo de movimiento: ZZ"},
                     {"Estatus", "3", "Está fuera de rango el estatus"},
                     {"Condicion", "O'Hara", "Hara"},
                     {"Condicion", "100% %s \\ %n", ""},
                     {"Descripcion", "100%", ""}},
        .sinClave = {{"0"}},
        .soloBorra = {{"-1"}},
    },
};

std::string Unidos(const Textos& valores) {
  std::string unidos;
  for (const auto& valor : valores) unidos += (unidos.empty() ? "[" : "|") + valor;
  return unidos + "]";
}

class FechadosTest : public testing::TestWithParam<Caso> {
 protected:
  FechadosTest() { PonCuenta("1000-00-00-00-0000      ", "C"); }
  ~FechadosTest() override { Catalogo::Catalogo_Ctas.clear(); }
  static void PonCuenta(const char* numero, const char* tipo) {
    cCatalogo_Ctas cuenta;
    cuenta.setCuentaID(numero);
    cuenta.setTipo_Cta(tipo);
    Catalogo::Catalogo_Ctas = {{0, cuenta}};
  }

  std::unique_ptr<Ficha> Vacia() const {
    auto ficha = caso.hace(true, true);
    ficha->Clear();
    return ficha;
  }
  /// As Estado shows a record without a value.
  std::string EstadoVacio() const {
    Textos valores;
    const auto ficha = Vacia();
    for (size_t i = 0; i < caso.partes.size(); ++i)
      valores.push_back(caso.partes[i].bytes == Fecha    ? "0000-00-00"
                        : caso.partes[i].bytes == Numero ? Cero(ficha->Da(i))
                                                         : "");
    return Unidos(valores);
  }
  static std::string Cero(const std::string& como) {
    return como.find('.') != std::string::npos ? "0.000000" : "0";
  }
  std::unique_ptr<Ficha> Con(const Textos& valores) const {
    auto ficha = Vacia();
    ficha->PonTodas(valores);
    ficha->Banderas(true, true);
    return ficha;
  }
  size_t Indice(const std::string& nombre) const {
    for (size_t i = 0; i < caso.partes.size(); ++i)
      if (caso.partes[i].nombre == nombre) return i;
    throw std::runtime_error(nombre);
  }
  void Pon(Ficha& ficha, const Prueba& prueba) const { ficha.Pon(Indice(prueba.columna), prueba.valor); }

  const Caso& caso = GetParam();
};

TEST_P(FechadosTest, ElConstructorCompletoGuardaTodoTalCualYClearLoVacia) {
  for (const bool cambiado : {false, true}) {
    for (const bool nuevo : {false, true}) {
      const auto ficha = caso.hace(cambiado, nuevo);
      const std::string estado =
          std::string(caso.talCual) + (cambiado ? " cambiado" : "") + (nuevo ? " nuevo" : "");
      EXPECT_EQ(ficha->Estado(), estado);
      EXPECT_EQ(ficha->Copias(), Textos(3, estado));
      EXPECT_EQ(ficha->Clase(), caso.clase);
      ficha->Clear();
      EXPECT_EQ(ficha->Estado(), EstadoVacio());
    }
  }
}

TEST_P(FechadosTest, CadaColumnaGuardaConSuAnchoYSoloUnCambioMarca) {
  for (size_t i = 0; i < caso.partes.size(); ++i) {
    const Parte& parte = caso.partes[i];
    SCOPED_TRACE(parte.nombre);
    const auto ficha = Vacia();
    const auto pon = [&](const std::string& valor) {
      ficha->Banderas(false, false);
      ficha->Pon(i, valor);
      return ficha->Estado().find(" cambiado") != std::string::npos;
    };
    if (parte.bytes == Fecha) {
      EXPECT_FALSE(pon("00/00/0000")) << "el mismo valor";
      EXPECT_TRUE(pon("31/02/2026"));
      EXPECT_EQ(ficha->Da(i), "2026-02-31");
      EXPECT_FALSE(pon("2026-02-31")) << "el mismo día, aunque no exista";
      EXPECT_TRUE(pon("28/02/2026"));
      EXPECT_TRUE(pon("28/03/2026"));
      EXPECT_TRUE(pon("28/03/2027"));
      EXPECT_TRUE(pon(""));
    } else if (parte.bytes == Numero) {
      EXPECT_FALSE(pon("0")) << "el mismo valor";
      EXPECT_TRUE(pon("7"));
      EXPECT_FALSE(pon(ficha->Da(i))) << "el mismo valor";
    } else {
      EXPECT_FALSE(pon("")) << "el mismo valor";
      EXPECT_TRUE(pon("1"));
      EXPECT_EQ(ficha->Da(i), "1" + std::string(parte.relleno > 0 ? parte.relleno - 1 : 0, ' '));
      EXPECT_FALSE(pon(ficha->Da(i))) << "el mismo valor";
      EXPECT_TRUE(pon(""));
      EXPECT_EQ(ficha->Da(i), std::string(parte.relleno, ' '));
      pon(std::string(5000, 'y'));
      EXPECT_EQ(ficha->Da(i), std::string(parte.bytes, 'y'));
      pon(TextoAcentuado());
      EXPECT_EQ(ficha->Da(i), AcentuadoHasta(parte.bytes));
    }
  }
}

TEST_P(FechadosTest, CadaReglaLanzaLoSuyoAntesQueTodasLasQueSiguen) {
  EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(Con(caso.valores)->Check()); }), std::nullopt);
  for (size_t regla = 0; regla < caso.reglas.size(); ++regla) {
    SCOPED_TRACE(caso.reglas[regla].texto);
    const auto sola = Con(caso.valores);
    Pon(*sola, caso.reglas[regla]);
    EXPECT_EQ(Lanzado([&] { sola->Check(); }), caso.reglas[regla].texto);
    const auto todas = Con(caso.valores);
    for (size_t i = caso.reglas.size(); i-- > regla;) Pon(*todas, caso.reglas[i]);
    EXPECT_EQ(Lanzado([&] { todas->Check(); }), caso.reglas[regla].texto);
    Espia espia;
    for (const auto operacion : {&Ficha::AddNew, &Ficha::Update})
      EXPECT_EQ(Lanzado([&] { (sola.get()->*operacion)(); }), caso.reglas[regla].texto);
    EXPECT_TRUE(espia.Sentencias().empty());
  }
  for (const Prueba& prueba : caso.permitido) {
    const auto ficha = Con(caso.valores);
    Pon(*ficha, prueba);
    EXPECT_EQ(Lanzado([&] { ficha->Check(); }), std::nullopt) << prueba.columna << " " << prueba.valor;
  }
}

TEST_P(FechadosTest, SinClaveNoSeBuscaNiSeBorraYSinCambiosNadieEscribe) {
  Espia espia;
  const Salida salida;
  for (const bool soloBorra : {false, true}) {
    for (const Textos& clave : soloBorra ? caso.soloBorra : caso.sinClave) {
      SCOPED_TRACE(Unidos(clave));
      const auto ficha = Vacia();
      for (size_t i = 0; i < clave.size(); ++i) ficha->Pon(i, clave[i]);
      ficha->Banderas(false, false);
      const std::string antes = ficha->Estado();
      ficha->AddNew();
      ficha->Update();
      ficha->Find();
      EXPECT_TRUE(espia.Sentencias().empty());
      Lanzado([&] { ficha->Delete(); });
      EXPECT_EQ(!espia.Sentencias().empty(), soloBorra);
      EXPECT_EQ(ficha->Estado(), antes);
      engine.RollBackTransaction();
      espia.Vacia();
    }
  }
}

/// Against one reference database.
class FechadosServidorTest : public FechadosTest {
 protected:
  static void SetUpTestSuite() { base_ = new BaseDatos; }
  static void TearDownTestSuite() {
    delete base_;
    base_ = nullptr;
  }

  std::string EnNorte() const { return std::string("norte.") + caso.tabla; }
  /// Takes the row with the record's key away, and makes its key the next one.
  void Limpia() {
    if (PQstatus(conn) != CONNECTION_OK) {
      sesion_.reset();
      sesion_.emplace(*base_);
    }
    std::string clave;
    for (size_t i = 0; i < caso.clave; ++i)
      clave += std::string(clave.empty() ? " where " : " and ") + caso.partes[i].nombre + " = '" +
               caso.valores[i] + "'";
    base_->Ejecuta("set role tolvara_propietario; delete from " + EnNorte() + clave + "; reset role");
    if (caso.asignada)
      base_->Ejecuta("alter table " + EnNorte() + " alter column " + caso.partes[0].nombre +
                     " restart with " + caso.valores[0]);
  }
  void DaDeAlta() {
    Limpia();
    const Salida salida;
    ASSERT_EQ(Lanzado([&] { Con(caso.valores)->AddNew(); }), std::nullopt);
  }
  Tabla Filas() { return base_->Filas("select * from " + EnNorte() + " t order by t::text"); }
  std::string Leida(const Textos& valores) {
    const auto ficha = Vacia();
    for (size_t i = 0; i < caso.clave; ++i) ficha->Pon(i, valores[i]);
    const Salida salida;
    ficha->Find();
    return ficha->Estado();
  }

  static BaseDatos* base_;
  std::optional<Sesion> sesion_{*base_};
};

BaseDatos* FechadosServidorTest::base_ = nullptr;

TEST_P(FechadosServidorTest, LaVidaDeUnRegistroMandaSoloSusSentenciasYTrazaLasQueDice) {
  Limpia();
  const Tabla antes = Filas();
  Espia espia;
  Salida salida;
  Textos trazas;
  const auto exige = [&](Traza operacion, const char* sentencia, bool escritura) {
    EXPECT_EQ(espia.Sentencias(), escritura ? (Textos{"BEGIN;", sentencia, "COMMIT;"}) : Textos{sentencia});
    if (caso.trazas & operacion) trazas.push_back(sentencia);
    espia.Vacia();
  };
  const auto ficha = Con(caso.valores);
  ficha->Find();
  exige(TrazaFind, caso.busqueda, false);
  EXPECT_EQ(ficha->Estado(), Unidos(caso.valores) + " cambiado nuevo");
  if (caso.asignada) ficha->Pon(0, "5");  // the server's key takes its place
  EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), std::nullopt);
  exige(TrazaAddNew, caso.alta, true);
  EXPECT_EQ(ficha->Estado(), Unidos(caso.valores));
  EXPECT_EQ(Leida(caso.valores), Unidos(caso.valores));
  EXPECT_EQ(res, nullptr);
  espia.Vacia();

  ficha->PonTodas(caso.otros);
  if (caso.noCambia == nullptr) {
    EXPECT_EQ(Lanzado([&] { ficha->Update(); }), std::nullopt);
    exige(TrazaUpdate, caso.cambio, true);
    EXPECT_EQ(ficha->Estado(), Unidos(caso.otros));
    EXPECT_EQ(Leida(caso.valores), Unidos(caso.otros));
  } else {
    const Tabla con = Filas();
    const std::string dicho = Lanzado([&] { ficha->Update(); }).value_or("");
    EXPECT_NE(dicho.find(caso.noCambia), std::string::npos) << dicho;
    engine.RollBackTransaction();
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", caso.cambio, "ROLLBACK;"}));
    trazas.push_back(caso.cambio);
    EXPECT_EQ(ficha->Estado(), Unidos(caso.otros) + " cambiado");
    EXPECT_EQ(Filas(), con);
    ficha->PonTodas(caso.valores);
  }
  espia.Vacia();
  const std::string alBorrar = ficha->Estado();
  EXPECT_EQ(Lanzado([&] { ficha->Delete(); }), std::nullopt);
  exige(TrazaDelete, caso.borrado, true);
  EXPECT_EQ(ficha->Estado(), alBorrar);
  EXPECT_EQ(Filas(), antes);
  EXPECT_EQ(salida.Lineas(), trazas);
  EXPECT_EQ(Profundidad(), 0);
}

TEST_P(FechadosServidorTest, FillTomaCadaColumnaDeSuLugarYLoQueFaltaQuedaVacio) {
  const auto en = [&](const std::string& columna) {
    return std::find(caso.lugares.begin(), caso.lugares.end(), columna) - caso.lugares.begin();
  };
  std::string todas, nulas, valores;
  for (const std::string& columna : caso.lugares) {
    todas += (todas.empty() ? "select '" : ", '") + caso.otros[Indice(columna)] + "'";
    nulas += nulas.empty() ? "select null" : ", null";
  }
  const auto ficha = Con(caso.valores);
  Ejecuta(todas.c_str());
  ficha->Fill(0);
  EXPECT_EQ(ficha->Estado(), Unidos(caso.otros));
  Ejecuta(nulas.c_str());
  ficha->Fill(0);
  EXPECT_EQ(ficha->Estado(), EstadoVacio());
  for (int columnas = 0; columnas < static_cast<int>(caso.lugares.size()); ++columnas) {
    ficha->PonTodas(caso.valores);
    Espia espia;
    espia.En(0, falla::Recortada(columnas));
    Ejecuta(todas.c_str());
    ficha->Fill(0);
    for (size_t i = 0; i < caso.partes.size(); ++i) {
      const bool vino = en(caso.partes[i].nombre) < columnas;
      EXPECT_EQ(ficha->Da(i), vino ? caso.otros[i] : Vacia()->Da(i)) << columnas;
    }
  }
}

TEST_P(FechadosServidorTest, UnRechazoEnCadaOperacionConservaLoEscrito) {
  for (const auto operacion : {&Ficha::AddNew, &Ficha::Update, &Ficha::Delete}) {
    const auto ficha = Con(caso.valores);
    Espia espia;
    espia.En(1, falla::Error("No"));
    const Salida salida;
    EXPECT_EQ(Lanzado([&] { (ficha.get()->*operacion)(); }), "ERROR:  No\n");
    EXPECT_EQ(ficha->Estado(), Unidos(caso.valores) + " cambiado nuevo");
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

TEST_P(FechadosServidorTest, UnCorteEnCadaSentenciaNoDejaNadaAMedias) {
  const Salida salida;
  constexpr size_t escritura = 1, cierre = 2;
  for (const auto operacion : {&Ficha::AddNew, &Ficha::Update, &Ficha::Delete}) {
    const bool alta = operacion == &Ficha::AddNew, cambio = operacion == &Ficha::Update;
    if (cambio && caso.noCambia != nullptr) continue;
    for (size_t n = 0; n <= cierre; ++n) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE((alta     ? "alta "
                      : cambio ? "cambio "
                               : "borrado ") +
                     std::to_string(n) + (despues ? "d" : "a"));
        alta ? Limpia() : DaDeAlta();
        const Tabla antes = Filas();
        const auto ficha = Con(cambio ? caso.otros : caso.valores);
        const std::string lleno = ficha->Estado();
        {
          Espia espia;
          espia.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
          EXPECT_TRUE(Lanzado([&] { (ficha.get()->*operacion)(); }).has_value());
        }
        engine.RollBackTransaction();
        if (n <= escritura) {
          EXPECT_EQ(ficha->Estado(), lleno);
        }
        EXPECT_EQ(Filas() != antes, n == cierre && despues);
      }
    }
  }
  Limpia();
}

TEST_P(FechadosServidorTest, SinConexionSeLanzaYNadaSeHalla) {
  sesion_.reset();
  const Salida salida;
  for (const auto operacion : {&Ficha::AddNew, &Ficha::Update, &Ficha::Delete}) {
    const auto ficha = Con(caso.valores);
    EXPECT_EQ(Lanzado([&] { (ficha.get()->*operacion)(); }), "");
    EXPECT_EQ(ficha->Estado(), Unidos(caso.valores) + " cambiado nuevo");
    engine.RollBackTransaction();
  }
  EXPECT_NE(Leida(caso.valores).find(" nuevo"), std::string::npos);
}

TEST_P(FechadosServidorTest, LosLimitesLosPoneElServidor) {
  const Salida salida;
  for (const Prueba& prueba : caso.servidor) {
    SCOPED_TRACE(std::string(prueba.columna) + " " + prueba.valor);
    Limpia();
    const auto ficha = Con(caso.valores);
    Pon(*ficha, prueba);
    const Tabla antes = Filas();
    const std::string dicho = Lanzado([&] { ficha->AddNew(); }).value_or("");
    engine.RollBackTransaction();
    if (prueba.texto[0] == '\0') {
      EXPECT_EQ(dicho, "");
      EXPECT_EQ(Filas().size(), antes.size() + 1);
      ficha->Delete();
    } else {
      EXPECT_NE(dicho.find(prueba.texto), std::string::npos) << dicho;
    }
    EXPECT_EQ(Filas(), antes);
  }
}

TEST_P(FechadosServidorTest, SinPermisoNadieEscribe) {
  DaDeAlta();
  const Tabla antes = Filas();
  sesion_.reset();
  sesion_.emplace(*base_, "camila");
  const Salida salida;
  for (const auto operacion : {&Ficha::AddNew, &Ficha::Update, &Ficha::Delete}) {
    const auto ficha = Con(operacion == &Ficha::Update ? caso.otros : caso.valores);
    EXPECT_NE(Lanzado([&] { (ficha.get()->*operacion)(); }).value_or(""), "");
    engine.RollBackTransaction();
  }
  EXPECT_EQ(Filas(), antes);
  sesion_.reset();
  sesion_.emplace(*base_);
  Limpia();
}

const auto Nombre = [](const testing::TestParamInfo<Caso>& caso) { return caso.param.nombre; };
INSTANTIATE_TEST_SUITE_P(, FechadosTest, testing::ValuesIn(casos), Nombre);
INSTANTIATE_TEST_SUITE_P(, FechadosServidorTest, testing::ValuesIn(casos), Nombre);

// What only one of them does.

TEST(cBanco, SinCuentaDeNingunaClasePideLaCuenta) {
  cBanco banco;
  EXPECT_EQ(Lanzado([&] { banco.Check(); }), "No se especifico la cuenta");
}

TEST(cBanco, DiezDigitosSeGuardanConCincoBlancosYAsiSeHallan) {
  BaseDatos base;
  Sesion sesion(base);
  cBanco banco;
  banco.setNo_Cuenta("0110045871");
  EXPECT_STREQ(banco.getNo_Cuenta(), "0110045871     ");
  banco.Find();
  EXPECT_FALSE(banco.IsNew());
  EXPECT_STREQ(banco.getBanco(), "Banco del Valle");
}

TEST(cTipoPromocion, SinFechaFinalElCambioLlevaUnArgumentoMenosYElAltaNo) {
  BaseDatos base;
  Sesion sesion(base);
  const Salida salida;
  Espia espia;
  cTipoPromocion promocion(0, "AH", date("2031-03-05"), date(""), "Depositar", 0, "Prueba", true, true);
  EXPECT_EQ(Lanzado([&] { promocion.AddNew(); }), std::nullopt);
  EXPECT_EQ(espia.Cuantas("SELECT spitipopromocion('AH','2031-03-05','0000-00-00','Depositar',0,'Prueba');"),
            1u);
  const std::string clave = std::to_string(promocion.getTipoPromocionID());
  promocion.setEstatus(1);
  EXPECT_EQ(Lanzado([&] { promocion.Update(); }), std::nullopt);
  EXPECT_EQ(espia.Cuantas("SELECT sputipopromocion(" + clave + ",'AH','2031-03-05','Depositar',1,'Prueba');"),
            1u);
  EXPECT_EQ(
      base.Filas("select estatus, fechafinal is null from norte.tipopromocion where tipopromocionid = " +
                 clave),
      (Tabla{{"1", "t"}}));
  promocion.setFechaFinal(date("2031-03-31"));
  EXPECT_EQ(Lanzado([&] { promocion.Update(); }), std::nullopt);
  EXPECT_EQ(espia.Cuantas("'2031-03-05','2031-03-31','Depositar',1,"), 1u);
  promocion.setFechaFinal(date(""));  // open again
  EXPECT_EQ(Lanzado([&] { promocion.Update(); }), std::nullopt);
  EXPECT_EQ(base.Valor("select fechafinal is null from norte.tipopromocion where tipopromocionid = " + clave),
            "t");
}

TEST(cTipoPromocion, EnSuListaVanPorClave) {
  BaseDatos base;
  Sesion sesion(base);
  const Salida salida;
  Espia espia;
  espia.Cuando("spstipopromocion", [](PGconn* conexion, const char*) {
    return __real_PQexec(conexion, "select i from unnest(array[3, 1, 2]) i");
  });
  catalogo.LoadTipoPromociones();
  std::vector<int> claves;
  for (int i = 0; i < catalogo.TipoPromociones.NumElementos(); ++i)
    claves.push_back(catalogo.TipoPromociones.Item(i).getTipoPromocionID());
  EXPECT_EQ(claves, (std::vector<int>{1, 2, 3}));
  catalogo.TipoPromociones.RemoverTodos();
}

}  // namespace
}  // namespace pruebas
