// The records of the rates and the loads of the variable ones.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

#include "app/sesion.h"
#include "catalogs/finance/cTasa.h"
#include "catalogs/finance/cTasaInteres.h"
#include "catalogs/finance/cTipoTasaInteres.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using T = cTasa;
using V = cTasaInteres;

std::string Banderas(bool cambiada, bool nueva) {
  return std::string(cambiada ? " cambiada" : "") + (nueva ? " nueva" : "");
}

/// All columns in the order of the members, and both flags.
std::string Estado(const T& t) {
  return std::to_string(t.getTasaID()) + "|" + t.getTipoPrestamoID() + "|" + t.getTipoInversionID() + "|" +
         t.getTipoMovimientoID() + "|" + t.getFechaInicial().AsChar() + "|" + t.getFechaFinal().AsChar() +
         "|" + std::to_string(t.getTasaNormal()) + "|" + std::to_string(t.getTasaMoratorio()) +
         Banderas(t.getDataChanged(), t.IsNew());
}
std::string Estado(const V& v) {
  return std::to_string(v.getTasainteresId()) + "|" + v.getTipotasa() + "|" + v.getFechainicial().AsChar() +
         "|" + v.getFechafinal().AsChar() + "|" + std::to_string(v.getValor1()) + "|" +
         std::to_string(v.getValor2()) + Banderas(v.getDataChanged(), v.IsNew());
}

const date Enero(1, 1, 2023), Diciembre(31, 12, 2023);

T TasaCompleta() { return T(7, "ORD", "028", "AH", Enero, Diciembre, 11, 17.25, true, true); }
V PeriodoCompleto() { return V(0, "TIIE", date(1, 11, 2026), date(30, 11, 2026), 1.5, 2.5, true, true); }

/// The dirty rule of a date's setter: by its three numbers, be they a day of the calendar or not.
template <class R>
void ExigeReglaDeLaFecha(void (R::*pon)(const date&), const date& (R::*da)() const) {
  R registro;
  EXPECT_STREQ((registro.*da)().AsChar(), "1900-01-01");
  for (const char* texto : {"31/02/2026", "00/00/0000", "1/1/1", "//", "12/00/2026", "12/13/2026",
                            "12/12/12345", "", "15/03/2026"}) {
    registro.setDataChanged(false);
    (registro.*pon)(date(texto));
    EXPECT_TRUE(registro.getDataChanged()) << texto;
    EXPECT_STREQ((registro.*da)().AsChar(), date(texto).AsChar());
    registro.setDataChanged(false);
    (registro.*pon)(date(texto));
    EXPECT_FALSE(registro.getDataChanged()) << texto << ": la misma";
    (registro.*pon)(date(1, 1, 2001));
  }
}

// Without a server.

TEST(cTasa, ElConstructorCompletoGuardaTodoTalCualYClearLoVacia) {
  T tasa = TasaCompleta();
  const char* const llena = "7|ORD|028|AH|2023-01-01|2023-12-31|11.000000|17.250000 cambiada nueva";
  EXPECT_EQ(Estado(tasa), llena);
  T copiada;
  copiada.Copy(tasa);
  EXPECT_EQ(Estado(copiada), llena);
  EXPECT_EQ(Estado(T(tasa)), llena);
  tasa.Clear();
  EXPECT_EQ(Estado(tasa), "0||||1900-01-01|1900-01-01|0.000000|0.000000");
  EXPECT_EQ(Estado(T()), Estado(tasa));
  EXPECT_STREQ(tasa.clase(), "Tasa");
}

TEST(cTasa, CadaColumnaSigueLaReglaDelCambio) {
  ExigeReglaDelTexto<T>({"TipoPrestamoID", &T::setTipoPrestamoID, &T::getTipoPrestamoID, 3});
  ExigeReglaDelTexto<T>({"TipoInversionID", &T::setTipoInversionID, &T::getTipoInversionID, 3});
  ExigeReglaDelTexto<T>({"TipoMovimientoID", &T::setTipoMovimientoID, &T::getTipoMovimientoID, 3});
  ExigeReglaDelNumero<T, long>(&T::setTasaID, &T::getTasaID, 5000000000L);
  ExigeReglaDelNumero<T, double>(&T::setTasaNormal, &T::getTasaNormal, 1e308);
  ExigeReglaDelNumero<T, double>(&T::setTasaMoratorio, &T::getTasaMoratorio, -1);
  ExigeReglaDeLaFecha<T>(&T::setFechaInicial, &T::getFechaInicial);
  ExigeReglaDeLaFecha<T>(&T::setFechaFinal, &T::getFechaFinal);
}

/// Two records over one Engine, where their base is the virtual one.
struct DosVirtuales : cTasa, cTipoMovimiento {};

TEST(cTasa, SuBaseEsLaVirtualYLaDeLasVariablesNo) {
  EXPECT_TRUE((std::is_convertible_v<DosVirtuales*, Engine*>));
  EXPECT_FALSE((std::is_convertible_v<cTasaInteres*, EngineVirtual*>));
  EXPECT_TRUE((std::is_convertible_v<cTipoTasaInteres*, Engine*>));
  EXPECT_FALSE((std::is_convertible_v<cTipoTasaInteres*, EngineVirtual*>));
}

TEST(cTasa, CheckLanzaLaPrimeraReglaRota) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  const std::string normal = "No ha especificado la Tasa Normal";
  const struct {
    const char *prestamo, *inversion, *movimiento, *inicial, *final;
    double tasaNormal, moratorio;
    std::optional<std::string> mensaje;
  } tabla[] = {
      {"", "", "", "", "", 0, 0, "No ha especificado el tipo de prestamo"},
      {"", "028", "AH", "2023-01-01", "", 1, 1, "No ha especificado el tipo de prestamo"},
      {"ORD", "", "", "", "", 0, 0, "No ha especificado el tipo de inversion"},
      {"ORD", "", "AH", "2023-01-01", "", 1, 1, "No ha especificado el tipo de inversion"},
      {"ORD", "028", "", "", "", 0, 0, "No ha especificado el tipo de movimiento"},
      {"ORD", "028", "", "2023-01-01", "", 1, 1, "No ha especificado el tipo de movimiento"},
      {"ORD", "028", "AH", "", "", 0, 0, "No ha especificado la fecha de incio"},
      {"ORD", "028", "AH", "00/00/0000", "", 1, 1, "No ha especificado la fecha de incio"},
      {"ORD", "028", "AH", "1900-12-31", "", 1, 1, "No ha especificado la fecha de incio"},
      {"ORD", "028", "AH", "2023-01-01", "", 0, 0, normal},
      {"ORD", "028", "AH", "2023-01-01", "", -0.01, 1, normal},
      {"ORD", "028", "AH", "2023-01-01", "", nan, 1, normal},
      {"ORD", "028", "AH", "2023-01-01", "", 1, 0, normal},
      {"ORD", "028", "AH", "2023-01-01", "", 1, -1e308, normal},
      {"ORD", "028", "AH", "2023-01-01", "", 1, nan, normal},
      {"ORD", "028", "AH", "2023-01-01", "", 1, 1, std::nullopt},
      {" ", " ", " ", "31/02/2026", "31/02/2026", 1e308, 1e308, std::nullopt},
      {"ORD", "028", "AH", "1899-01-01", "1900-01-01", 1e-9, 1e-9, std::nullopt},
  };
  for (const auto& fila : tabla) {
    T tasa(0, fila.prestamo, fila.inversion, fila.movimiento, date(fila.inicial), date(fila.final),
           fila.tasaNormal, fila.moratorio, false, false);
    SCOPED_TRACE(Estado(tasa));
    EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(tasa.Check()); }), fila.mensaje);
  }
}

TEST(cTasaInteres, ElConstructorCompletoGuardaTodoTalCualYClearLoVacia) {
  V periodo = PeriodoCompleto();
  const char* const lleno = "0|TIIE|2026-11-01|2026-11-30|1.500000|2.500000 cambiada nueva";
  EXPECT_EQ(Estado(periodo), lleno);
  V copiado;
  copiado.Copy(periodo);
  EXPECT_EQ(Estado(copiado), lleno);
  periodo.Clear();
  EXPECT_EQ(Estado(periodo), "0||1900-01-01|1900-01-01|0.000000|0.000000");
  EXPECT_EQ(Estado(V()), Estado(periodo));
  EXPECT_STREQ(periodo.clase(), "tasasinteres");
  EXPECT_TRUE(periodo.Check()) << "nada se le exige";
}

TEST(cTasaInteres, CadaColumnaSigueLaReglaDelCambio) {
  ExigeReglaDelTexto<V>({"Tipotasa", &V::setTipotasa, &V::getTipotasa, 59});
  ExigeReglaDelNumero<V, int>(&V::setTasainteresId, &V::getTasainteresId, -1);
  ExigeReglaDelNumero<V, double>(&V::setValor1, &V::getValor1, 1e308);
  ExigeReglaDelNumero<V, double>(&V::setValor2, &V::getValor2, -1e-300);
  ExigeReglaDeLaFecha<V>(&V::setFechainicial, &V::getFechainicial);
  ExigeReglaDeLaFecha<V>(&V::setFechafinal, &V::getFechafinal);
}

// The history of rates against the reference database.

class cTasaTest : public ConSucursal {
 protected:
  std::string EnServidor(long id) {
    const Tabla filas = base_.Filas("select t::text from norte.tasa t where tasaid = " + std::to_string(id));
    return filas.empty() ? "" : filas[0][0];
  }
  std::string Cuantas() { return base_.Valor("select count(*) from norte.tasa"); }
  Salida salida_;
  Espia espia_;
};

TEST_F(cTasaTest, LaVidaDeUnaTasaMandaYTrazaSoloLoSuyo) {
  T tasa = TasaCompleta();
  const std::string alta = "SELECT spitasa('ORD','028','AH','2023-01-01','2023-12-31',11.000000,17.250000);";
  EXPECT_EQ(Lanzado([&] { tasa.AddNew(); }), std::nullopt);
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", alta, "COMMIT;"}));
  EXPECT_EQ(salida_.Lineas(), Textos{alta});
  const long id = tasa.getTasaID();
  const std::string clave = std::to_string(id);
  EXPECT_EQ(base_.Valor("select max(tasaid) from norte.tasa"), clave) << "la clave la da el servidor";
  EXPECT_EQ(Estado(tasa), clave + "|ORD|028|AH|2023-01-01|2023-12-31|11.000000|17.250000");

  tasa.setFechaInicial(date("02/02/2023"));
  tasa.setFechaFinal(date(""));
  tasa.setTasaNormal(12.5);
  espia_.Vacia();
  EXPECT_EQ(Lanzado([&] { tasa.Update(); }), std::nullopt);
  EXPECT_EQ(
      espia_.Sentencias(),
      (Textos{"BEGIN;",
              "SELECT sputasa(" + clave + ",'ORD','028','AH','2023-02-02','0000-00-00',12.500000,17.250000);",
              "COMMIT;"}));
  EXPECT_EQ(EnServidor(id), "(" + clave + ",ORD,028,AH,2023-02-02,,12.500000,17.250000)");
  EXPECT_EQ(salida_.Lineas(), Textos{alta}) << "el cambio no se traza";

  T leida;
  leida.setTasaID(id);
  espia_.Vacia();
  leida.Find();
  const std::string busqueda = "SELECT * FROM spstasa(" + clave + ");";
  EXPECT_EQ(espia_.Sentencias(), Textos{busqueda});
  EXPECT_EQ(salida_.Lineas(), (Textos{alta, busqueda}));
  EXPECT_EQ(Estado(leida), clave + "|ORD|028|AH|2023-02-02|0000-00-00|12.500000|17.250000");

  espia_.Vacia();
  EXPECT_EQ(Lanzado([&] { leida.Delete(); }), std::nullopt);
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", "SELECT spdtasa(" + clave + ");", "COMMIT;"}));
  EXPECT_EQ(EnServidor(id), "");
  EXPECT_EQ(salida_.Lineas(), (Textos{alta, busqueda})) << "ni el borrado";
  leida.Find();
  EXPECT_TRUE(leida.IsNew());
}

TEST_F(cTasaTest, LaClaveCeroYLaNegativaSeMandanComoCualquiera) {
  for (const long clave : {0L, -1L}) {
    T tasa;
    tasa.setTasaID(clave);
    tasa.setDataChanged(false);
    espia_.Vacia();
    tasa.Find();
    EXPECT_TRUE(tasa.IsNew());
    EXPECT_NE(Lanzado([&] { tasa.Delete(); }).value_or("").find("no existe"), std::string::npos);
    engine.RollBackTransaction();
    const std::string numero = std::to_string(clave);
    EXPECT_EQ(espia_.Sentencias(), (Textos{"SELECT * FROM spstasa(" + numero + ");", "BEGIN;",
                                           "SELECT spdtasa(" + numero + ");", "ROLLBACK;"}));
  }
}

TEST_F(cTasaTest, SinCambiosNoSeEscribeYConUnaReglaRotaNoSeAbreTransaccion) {
  T tasa = TasaCompleta();
  tasa.setDataChanged(false);
  tasa.AddNew();
  tasa.Update();
  tasa.setTipoPrestamoID("");
  EXPECT_TRUE(Lanzado([&] { tasa.AddNew(); }).has_value());
  EXPECT_TRUE(Lanzado([&] { tasa.Update(); }).has_value());
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(cTasaTest, LoQueElServidorNoAdmiteLoDiceElYNadaQueda) {
  const std::string antes = Cuantas();
  const struct {
    std::function<void(T&)> cambia;
    const char* dice;
  } tabla[] = {
      {[](T& t) { t.setTipoPrestamoID("O'H"); }, "syntax error"},
      {[](T& t) { t.setTipoPrestamoID("%s%"); }, "%s%"},
      {[](T& t) { t.setTipoPrestamoID("\\"); }, "\\"},
      {[](T& t) { t.setTipoInversionID(TextoAcentuado().c_str()); }, "xé"},
      {[](T& t) { t.setFechaInicial(date("31/02/2026")); }, "2026-02-31"},
      {[](T& t) { t.setFechaInicial(date("1/1/1")); }, "Falta la fecha inicial"},
      {[](T& t) { t.setFechaInicial(date("12/13/2026")); }, "2026-13-12"},
      {[](T& t) { t.setFechaFinal(date("12/12/2022")); }, "anterior a la inicial"},
      {[](T& t) { t.setTasaNormal(1e308); }, "la tasa normal"},
      {[](T& t) { t.setTasaMoratorio(1e30); }, "la tasa moratoria"},
  };
  for (const auto& fila : tabla) {
    T tasa = TasaCompleta();
    fila.cambia(tasa);
    SCOPED_TRACE(Estado(tasa));
    if (std::string(fila.dice) == "Falta la fecha inicial")
      EXPECT_EQ(Lanzado([&] { tasa.AddNew(); }), "No ha especificado la fecha de incio");
    else
      EXPECT_NE(Lanzado([&] { tasa.AddNew(); }), std::nullopt);
    engine.RollBackTransaction();
    EXPECT_TRUE(tasa.getDataChanged());
  }
  EXPECT_EQ(Cuantas(), antes);
}

TEST_F(cTasaTest, UnaRespuestaMalFormadaSeLeeComoColumnasVacias) {
  const std::string id = base_.Valor("select min(tasaid) from norte.tasa");
  const struct {
    Falla falla;
    std::string estado;
  } tabla[] = {
      {falla::Recortada(1), id + "||||0000-00-00|0000-00-00|0.000000|0.000000"},
      {falla::ConNulos(), "0||||0000-00-00|0000-00-00|0.000000|0.000000"},
      {falla::ConTextos(), "0|xxx|xxx|xxx|0000-00-00|0000-00-00|0.000000|0.000000"},
  };
  for (const auto& fila : tabla) {
    T tasa;
    tasa.setTasaID(std::stol(id));
    espia_.Vacia();
    espia_.En(0, fila.falla);
    tasa.Find();
    EXPECT_EQ(Estado(tasa), fila.estado);
  }
}

/// The connection lost ahead of and behind each statement of a write.
template <class R>
void ExigeEnteroOAusente(BaseDatos& base, const R& modelo, const char* cuantas) {
  for (size_t n = 0; n < 3; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      const Sesion sesion(base);
      const Salida salida;
      const int antes = std::stoi(base.Valor(cuantas));
      Espia espia;
      espia.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      R registro = modelo;
      EXPECT_TRUE(Lanzado([&] { registro.AddNew(); }).has_value());
      EXPECT_TRUE(registro.getDataChanged());
      EXPECT_TRUE(registro.IsNew());
      engine.RollBackTransaction();
      base.MataSesiones();
      EXPECT_EQ(std::stoi(base.Valor(cuantas)), antes + (n == 2 && despues));
    }
  }
}

TEST(cTasa, CortadaEnCadaSentenciaQuedaEnteraONoQueda) {
  BaseDatos base;
  ExigeEnteroOAusente(base, TasaCompleta(), "select count(*) from norte.tasa");
}

TEST(cTasaInteres, CortadoEnCadaSentenciaQuedaEnteroONoQueda) {
  BaseDatos base;
  ExigeEnteroOAusente(base, PeriodoCompleto(), "select count(*) from norte.tasavariable");
}

// The periods of the variable rates.

class cTasaInteresTest : public ConSucursal {
 protected:
  std::string EnServidor(int id) {
    const Tabla filas =
        base_.Filas("select t::text from norte.tasavariable t where tasavariableid = " + std::to_string(id));
    return filas.empty() ? "" : filas[0][0];
  }
  Salida salida_;
  Espia espia_;
};

TEST_F(cTasaInteresTest, ElAltaMandaLasDosMitadesDelPrimerValorYNadaDelSegundo) {
  constexpr double infinito = std::numeric_limits<double>::infinity();
  const struct {
    double valor;
    const char* mitades;
  } tabla[] = {
      {1.5, "0,1073217536"},
      {-1.5, "0,-1074266112"},
      {0.0, "0,0"},
      {-0.0, "0,-2147483648"},
      {0.1, "-1717986918,1069128089"},
      {-0.1, "-1717986918,-1078355559"},
      {5e-324, "1,0"},
      {1e30, "966823146,1177108057"},
      {1e308, "-2048145248,2145504499"},
      {infinito, "0,2146435072"},
      {-infinito, "0,-1048576"},
      {std::copysign(std::numeric_limits<double>::quiet_NaN(), 1), "0,2146959360"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.valor);
    V periodo = PeriodoCompleto();
    periodo.setValor1(fila.valor);
    espia_.Vacia();
    EXPECT_EQ(Lanzado([&] { periodo.AddNew(); }), std::nullopt);
    EXPECT_EQ(espia_.Sentencias().at(1),
              std::string("SELECT * FROM spitasavariable('TIIE', '2026-11-01','2026-11-30',") + fila.mitades +
                  ");");
    EXPECT_FALSE(periodo.IsNew());
  }
  V otro = PeriodoCompleto();
  otro.setValor2(-7e7);
  otro.AddNew();
  EXPECT_EQ(EnServidor(otro.getTasainteresId()),
            "(" + std::to_string(otro.getTasainteresId()) +
                ",TIIE,2026-11-01,2026-11-30,0.000000,1073217536.000000)");
}

TEST_F(cTasaInteresTest, LaVidaDeUnPeriodoMandaYTrazaLoSuyo) {
  V periodo = PeriodoCompleto();
  const std::string alta = "SELECT * FROM spitasavariable('TIIE', '2026-11-01','2026-11-30',0,1073217536);";
  periodo.AddNew();
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", alta, "COMMIT;"}));
  EXPECT_EQ(salida_.Lineas(), Textos{alta});
  const int id = periodo.getTasainteresId();
  const std::string clave = std::to_string(id);
  EXPECT_EQ(base_.Valor("select max(tasavariableid) from norte.tasavariable"), clave);
  EXPECT_EQ(Estado(periodo), clave + "|TIIE|2026-11-01|2026-11-30|1.500000|2.500000");

  V leido;
  leido.setTasainteresId(id);
  leido.Find();
  const std::string busqueda = "SELECT * FROM spstasavariable(" + clave + ");";
  EXPECT_EQ(salida_.Lineas().back(), busqueda);
  EXPECT_EQ(Estado(leido), clave + "|TIIE|2026-11-01|2026-11-30|0.000000|1073217536.000000");

  leido.setValor1(1.5);
  leido.setValor2(2.5);
  leido.setFechafinal(date(""));
  espia_.Vacia();
  leido.Update();
  const std::string cambio =
      "select * from sputasavariable(" + clave + ",'TIIE','2026-11-01','0000-00-00',1.500000,2.500000);";
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", cambio, "COMMIT;"}));
  EXPECT_EQ(salida_.Lineas(), (Textos{alta, busqueda, clave, clave, cambio}));
  EXPECT_EQ(EnServidor(id), "(" + clave + ",TIIE,2026-11-01,,1.500000,2.500000)");
  EXPECT_EQ(Estado(leido), clave + "|TIIE|2026-11-01|0000-00-00|1.500000|2.500000");

  espia_.Vacia();
  leido.Delete();
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"BEGIN;", "delete from tasavariable where tasavariableid=" + clave + ";", "COMMIT;"}));
  EXPECT_EQ(salida_.Lineas().size(), 5u) << "el borrado no se traza";
  EXPECT_EQ(EnServidor(id), "");
}

TEST_F(cTasaInteresTest, SinClaveNoSeBuscaNiSeBorraYSinCambiosNoSeEscribeNiSeTraza) {
  V periodo;
  periodo.Find();
  periodo.Delete();
  periodo.AddNew();
  periodo.Update();
  periodo.setTasainteresId(-1);
  periodo.Find();
  EXPECT_TRUE(espia_.Sentencias().empty());
  EXPECT_EQ(salida_.Texto(), "");
  periodo.Delete();
  EXPECT_EQ(espia_.Sentencias().at(1), "delete from tasavariable where tasavariableid=-1;");
}

TEST_F(cTasaInteresTest, LoQueElServidorNoAdmiteLoDiceElYElPeriodoSigueComoEstaba) {
  V bueno = PeriodoCompleto();
  bueno.AddNew();
  const std::string antes = EnServidor(bueno.getTasainteresId());
  const std::function<void(V&)> cambios[] = {
      [](V& v) { v.setTipotasa("O'Hara"); },
      [](V& v) { v.setTipotasa("%s%n"); },
      [](V& v) { v.setTipotasa("\\"); },
      [](V& v) { v.setTipotasa(""); },
      [](V& v) { v.setTipotasa(TextoAcentuado().c_str()); },
      [](V& v) { v.setFechainicial(date("31/02/2026")); },
      [](V& v) { v.setFechainicial(date("00/00/0000")); },
      [](V& v) { v.setFechainicial(date("1/1/1")); },
      [](V& v) { v.setFechafinal(date("01/01/2020")); },
      [](V& v) { v.setValor1(1e308); },
      [](V& v) { v.setValor1(std::numeric_limits<double>::quiet_NaN()); },
      [](V& v) { v.setValor2(-1e30); },
  };
  for (const auto& cambia : cambios) {
    V periodo = bueno;
    cambia(periodo);
    SCOPED_TRACE(Estado(periodo));
    EXPECT_NE(Lanzado([&] { periodo.Update(); }), std::nullopt);
    EXPECT_TRUE(periodo.getDataChanged());
    engine.RollBackTransaction();
    EXPECT_EQ(EnServidor(bueno.getTasainteresId()), antes);
  }
}

TEST_F(cTasaInteresTest, SinDerechoNiSeAgregaNiSeCambiaNiSeBorra) {
  V periodo = PeriodoCompleto();
  periodo.AddNew();
  base_.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '0217'");
  const std::pair<void (V::*)(), const char*> operaciones[] = {
      {&V::AddNew, "No tiene permiso"},
      {&V::Update, "No tiene permiso"},
      {&V::Delete, "permission denied for table tasavariable"},  // a direct statement: the server's own words
  };
  for (const auto& [operacion, mensaje] : operaciones) {
    periodo.setDataChanged(true);
    EXPECT_NE(Lanzado([&] { (periodo.*operacion)(); }).value_or("").find(mensaje), std::string::npos);
    engine.RollBackTransaction();
  }
  EXPECT_NE(EnServidor(periodo.getTasainteresId()), "");
}

TEST_F(cTasaInteresTest, UnaRespuestaMalFormadaSeLeeComoColumnasVacias) {
  const struct {
    Falla falla;
    std::string estado;
  } tabla[] = {
      {falla::Recortada(2), "1|CCP|0000-00-00|0000-00-00|0.000000|0.000000"},
      {falla::ConNulos(), "0||0000-00-00|0000-00-00|0.000000|0.000000"},
      {falla::ConTextos(), "0|" + std::string(59, 'x') + "|0000-00-00|0000-00-00|0.000000|0.000000"},
  };
  for (const auto& fila : tabla) {
    V periodo;
    periodo.setTasainteresId(1);
    espia_.Vacia();
    espia_.En(0, fila.falla);
    periodo.Find();
    EXPECT_EQ(Estado(periodo), fila.estado);
  }
}

// The loads.

class CargaDeTasas : public ConSucursal {
 protected:
  static Textos Nombres() {
    Textos nombres;
    for (const auto& [fila, tipo] : Catalogo::TipoTasaInteres)
      nombres.push_back(std::to_string(fila) + " " + tipo.getTipotasa() + "|" + tipo.getDescripcion());
    return nombres;
  }
  Salida salida_;
  Espia espia_;
};

constexpr const char* Lista = "SELECT * FROM subtipotasa('a','null','null','null');";
constexpr const char* Periodos = "SELECT * FROM spstasavariable(0);";

TEST_F(CargaDeTasas, CadaUnaCorreElTextoQueSeLeDaEnUnaTransaccion) {
  catalogo.LoadTipoTasa(Lista);
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", Lista, "COMMIT;"}));
  EXPECT_EQ(salida_.Texto(), "");
  EXPECT_EQ(Nombres(), (Textos{"0 CCP|Costo de captación a plazo: promedio del mes y cierre",
                               "1 CETES|Rendimiento de los certificados a 28 días: promedio del mes y cierre",
                               "2 TIIE|Tasa interbancaria de equilibrio a 28 días: promedio del mes y "
                               "cierre"}));
  const cTipoTasaInteres copia = Catalogo::TipoTasaInteres[1];
  cTipoTasaInteres otra;
  EXPECT_STREQ(otra.getTipotasa(), "");
  EXPECT_STREQ(otra.getDescripcion(), "");
  otra.Copy(copia);
  EXPECT_STREQ(otra.getTipotasa(), "CETES");
  espia_.Vacia();
  catalogo.LoadTasas(Periodos);
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", Periodos, "COMMIT;"}));
  EXPECT_EQ(salida_.Texto(), std::string(Periodos) + "\n");
  EXPECT_EQ(Catalogo::TasaInteres.size(), 102u);
  EXPECT_EQ(res, nullptr);
  EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
}

TEST_F(CargaDeTasas, LaPalabraDeLaEntradaLasDejaVaciasSinMensaje) {
  catalogo.LoadTipoTasa(Lista);
  catalogo.LoadTasas(Periodos);
  espia_.Vacia();
  EXPECT_EQ(Lanzado([] {
              catalogo.LoadTipoTasa();
              catalogo.LoadTasas();
            }),
            std::nullopt);
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", "null", "COMMIT;", "BEGIN;", "null", "COMMIT;"}));
  EXPECT_TRUE(Catalogo::TipoTasaInteres.empty());
  EXPECT_TRUE(Catalogo::TasaInteres.empty());
  EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
}

TEST_F(CargaDeTasas, UnBeginQueFallaLanzaSuTextoYaVacias) {
  catalogo.LoadTipoTasa(Lista);
  catalogo.LoadTasas(Periodos);
  espia_.Cuando("BEGIN;", falla::Error("No"));
  EXPECT_EQ(Lanzado([] { catalogo.LoadTipoTasa(Lista); }), "Error al cargar catalogo de tipo tasas.");
  EXPECT_EQ(Lanzado([] { catalogo.LoadTasas(Periodos); }), "Error al cargar catalogo de tasas.");
  EXPECT_TRUE(Catalogo::TipoTasaInteres.empty());
  EXPECT_TRUE(Catalogo::TasaInteres.empty());
}

TEST_F(CargaDeTasas, ElPorcientoDelTextoSeLeeComoUnFormatoSinArgumentos) {
  const struct {
    const char *dado, *mandado;
  } tabla[] = {
      {"select '100%%','%%%%'", "select '100%','%%'"},
      {"select '5% de descuento','%s%n%d%99999d%*d'", "select '5% de descuento','%s%n%d%99999d%*d'"},
      {"select '%%%','%'", "select '%%','%'"},
      {"select 'a','b' --%", "select 'a','b' --%"},
  };
  for (const auto& fila : tabla) {
    espia_.Vacia();
    catalogo.LoadTipoTasa(fila.dado);
    EXPECT_EQ(espia_.Sentencias().at(1), fila.mandado);
    EXPECT_EQ(Nombres().size(), 1u);
    espia_.Vacia();
    catalogo.LoadTasas(fila.dado);
    EXPECT_EQ(espia_.Sentencias().at(1), fila.mandado);
    EXPECT_EQ(salida_.Lineas().back(), fila.mandado);
  }
}

TEST_F(CargaDeTasas, CincoMilLetrasLleganEnterasYSeCortanEnSuColumna) {
  const std::string larga = TextoAcentuado();
  const std::string sql = "select '" + larga + "','" + larga + "'";
  catalogo.LoadTipoTasa(sql.c_str());
  EXPECT_EQ(espia_.Sentencias().at(1), sql);
  EXPECT_EQ(Nombres(), Textos{"0 " + AcentuadoHasta(59) + "|" + AcentuadoHasta(259)});
}

TEST_F(CargaDeTasas, LasFilasLlegarianPorLaSegundaConexionYLaTransaccionNo) {
  const Conexion segunda = base_.Conecta("adriana", BaseDatos::Clave);
  PQclear(PQexec(segunda.get(), "set search_path to norte, comun"));
  std::vector<PGconn*> vistas;
  const auto anota = [&](PGconn* conexion, const char* sql) {
    vistas.push_back(conexion);
    return __real_PQexec(conexion, sql);
  };
  espia_.Cuando("", anota);
  connR = segunda.get();
  bLocal = false;
  catalogo.LoadTipoTasa(Lista);
  catalogo.LoadTasas(Periodos);
  bLocal = true;
  connR = nullptr;
  EXPECT_EQ(vistas, (std::vector<PGconn*>{conn, segunda.get(), conn, conn, segunda.get(), conn}));
  EXPECT_EQ(Catalogo::TipoTasaInteres.size(), 3u);
  EXPECT_EQ(Catalogo::TasaInteres.size(), 102u);
}

TEST_F(CargaDeTasas, UnaRespuestaMalFormadaOVaciaNoLasRompe) {
  const struct {
    Falla falla;
    Textos nombres;
  } tabla[] = {
      {falla::Recortada(1), {"0 CCP|", "1 CETES|", "2 TIIE|"}},
      {falla::ConNulos(), {"0 |", "1 |", "2 |"}},
      {falla::SinFilas(), {}},
      {falla::Nula(), {}},
      {falla::Error("No"), {}},
      {falla::CorteAntes(), {}},
  };
  for (const auto& fila : tabla) {
    espia_.Vacia();
    espia_.En(1, fila.falla);
    EXPECT_EQ(Lanzado([] { catalogo.LoadTipoTasa(Lista); }), std::nullopt);
    EXPECT_EQ(Nombres(), fila.nombres);
  }
}

}  // namespace
}  // namespace pruebas
