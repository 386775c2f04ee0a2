#include "catalogs/finance/cCatalogo_Ctas.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using C = cCatalogo_Ctas;
const char* const Activo = "1000-00-00-00-0000";  // an account of the demonstration that adds up
using Operacion = void (C::*)();

/// All columns in the order of the server's answer, and both flags.
std::string Estado(const C& c) {
  std::string estado;
  for (const char* texto :
       {c.getCuentaID(), c.getCuentaAcumula(), c.getIdentificacion(), c.getCuentaNombre(), c.getTipo_Cta(),
        c.getEstado_Cta(), c.getFecha_Estado().AsChar(), c.getFecha_Ult_Mov().AsChar(), c.getNaturaleza()})
    estado += std::string(texto) + "|";
  for (const double numero :
       {c.getDigito_Agrupador(), c.getSaldo_Inic_Ejer(), c.getCargos_Acum_Ejer(), c.getAbonos_Acum_Ejer()})
    estado += std::to_string(numero) + "|";
  return estado + (c.getDataChanged() ? " cambiada" : "") + (c.IsNew() ? " nueva" : "");
}

const char* const Vacia = "||||||0000-00-00|0000-00-00||0.000000|0.000000|0.000000|0.000000|";

/// Blanks up to the width of an account number.
std::string Cuenta(std::string numero) {
  numero.resize(24, ' ');
  return numero;
}

/// An account that passes every rule, each column with a value of its own.
C Completa(const std::string& acumula = Activo) {
  return C(Cuenta("1777").c_str(), acumula.c_str(), "1", "Caja de prueba", "A", "B", date(5, 3, 2006),
           date(17, 11, 2007), "D", 2.5, 100.25, 200.5, 300.75, true, true);
}

// Without a server.

TEST(cCatalogo_Ctas, ElConstructorCompletoGuardaTodoTalCual) {
  EXPECT_EQ(Estado(C("1777", "1000", "1", "Caja", "A", "B", date(5, 3, 2006), date(17, 11, 2007), "D", 1, 2,
                     3, 4, true, false)),
            "1777|1000|1|Caja|A|B|2006-03-05|2007-11-17|D|1.000000|2.000000|3.000000|4.000000| cambiada");
}

TEST(cCatalogo_Ctas, ClearVaciaTodoMenosLaBanderaDeNueva) {
  EXPECT_EQ(Estado(C()), Vacia);
  for (const bool nueva : {false, true}) {
    C cuenta = Completa();
    cuenta.setIsNew(nueva);
    cuenta.Clear();
    EXPECT_EQ(Estado(cuenta), std::string(Vacia) + (nueva ? " nueva" : ""));
  }
}

TEST(cCatalogo_Ctas, ElNumeroSeRellenaA24) {
  C cuenta;
  cuenta.setCuentaID("1101-01");
  EXPECT_EQ(cuenta.getCuentaID(), Cuenta("1101-01"));
  EXPECT_TRUE(cuenta.getDataChanged());
  cuenta.setCuentaID(std::string(5000, '9').c_str());
  EXPECT_EQ(cuenta.getCuentaID(), std::string(24, '9'));
}

TEST(cCatalogo_Ctas, LasDemasColumnasSiguenLaReglaDelCambio) {
  const ColumnaDeTexto<C> tabla[] = {
      {"CuentaAcumula", &C::setCuentaAcumula, &C::getCuentaAcumula, 24},
      {"Identificacion", &C::setIdentificacion, &C::getIdentificacion, 1},
      {"CuentaNombre", &C::setCuentaNombre, &C::getCuentaNombre, 100},
      {"Tipo_Cta", &C::setTipo_Cta, &C::getTipo_Cta, 1},
      {"Estado_Cta", &C::setEstado_Cta, &C::getEstado_Cta, 2},
      {"Naturaleza", &C::setNaturaleza, &C::getNaturaleza, 2},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<C, double>(&C::setDigito_Agrupador, &C::getDigito_Agrupador, 2.5);
  ExigeReglaDelNumero<C, double>(&C::setSaldo_Inic_Ejer, &C::getSaldo_Inic_Ejer, -0.01);
  ExigeReglaDelNumero<C, double>(&C::setCargos_Acum_Ejer, &C::getCargos_Acum_Ejer, 1e15);
  ExigeReglaDelNumero<C, double>(&C::setAbonos_Acum_Ejer, &C::getAbonos_Acum_Ejer, 7);
}

TEST(cCatalogo_Ctas, LasFechasSiguenLaReglaDelCambio) {
  const struct {
    void (C::*pon)(const date&);
    const date& (C::*da)() const;
  } tabla[] = {{&C::setFecha_Estado, &C::getFecha_Estado}, {&C::setFecha_Ult_Mov, &C::getFecha_Ult_Mov}};
  for (const auto& fila : tabla) {
    C cuenta;
    (cuenta.*fila.pon)(date(5, 3, 2006));
    EXPECT_STREQ((cuenta.*fila.da)().AsChar(), "2006-03-05");
    EXPECT_TRUE(cuenta.getDataChanged());
    cuenta.setDataChanged(false);
    (cuenta.*fila.pon)(date(5, 3, 2006));
    EXPECT_FALSE(cuenta.getDataChanged()) << "el mismo valor";
  }
}

TEST(cCatalogo_Ctas, CheckLanzaLaPrimeraReglaRota) {
  const struct {
    const char *id, *tipo, *naturaleza, *rubro, *nombre;
    std::optional<std::string> mensaje;
  } tabla[] = {
      {"", "", "", "", "", "No ha especificado la cuenta."},
      {"", "A", "D", "1", "x", "No ha especificado la cuenta."},
      {"1", "", "", "", "", "No ha especificado el tipo de cuenta"},
      {"1", "B", "D", "1", "x", "No ha especificado el tipo de cuenta"},
      {"1", "a", "D", "1", "x", "No ha especificado el tipo de cuenta"},
      {"1", "A", "", "", "", "No ha especificado la Naturaleza"},
      {"1", "C", "C", "1", "x", "No ha especificado la Naturaleza"},
      {"1", "C", "AA", "1", "x", "No ha especificado la Naturaleza"},
      {"1", "A", "D", "", "", "No ha especificado el Rubro de la cuenta"},
      {"1", "A", "D", "7", "x", "No ha especificado el Rubro de la cuenta"},
      {"1", "A", "D", " ", "x", "No ha especificado el Rubro de la cuenta"},
      {"1", "A", "D", "0", "", "No ha especificado el nombre de la cuenta"},
      {"1", "A", "A", "0", "x", std::nullopt},
      {"1", "C", "D", "6", "x", std::nullopt},
  };
  for (const auto& fila : tabla) {
    C cuenta(fila.id, "", fila.rubro, fila.nombre, fila.tipo, "", date(), date(), fila.naturaleza, 0, 0, 0, 0,
             false, false);
    EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(cuenta.Check()); }), fila.mensaje) << Estado(cuenta);
  }
  for (const char rubro : std::string("0123456")) {
    C cuenta = Completa();
    cuenta.setIdentificacion(std::string(1, rubro).c_str());
    EXPECT_EQ(Lanzado([&] { cuenta.Check(); }), std::nullopt) << rubro;
  }
}

// Against the reference database.

class cCatalogo_CtasTest : public ConSucursal {
 protected:
  static constexpr Operacion guardados[] = {&C::AddNew, &C::Update, &C::AddNewSucursales};
  static constexpr Operacion escrituras[] = {&C::AddNew, &C::Update, &C::AddNewSucursales, &C::Delete};

  Tabla EnServidor(const std::string& sucursal = "norte") {
    return base_.Filas("select * from " + sucursal + ".catalogo_ctas where cuentaid = '1777'");
  }
  static C Leida() {
    C cuenta;
    cuenta.setCuentaID("1777");
    cuenta.Find();
    return cuenta;
  }
};

TEST_F(cCatalogo_CtasTest, CadaOperacionMandaLoSuyoSinTrazaYConSusBanderas) {
  const std::string llave = "'" + Cuenta("1777") + "'";
  const std::string columnas =
      ",'1','Caja de prueba','A','B','2006-3-5','2007-11-17','D',2.500000,100.250000,200.500000,300.750000);";
  const struct {
    std::string acumula;
    std::string enviada;
    std::string guardada;
  } tabla[] = {{Activo, "'" + std::string(Activo) + "'", Cuenta(Activo)}, {"", "NULL", ""}};
  const struct {
    Operacion operacion;
    std::string funcion;
    const char* banderas;
  } altaYCambio[] = {{&C::AddNew, "select spicatalogo_ctas(", ""},
                     {&C::Update, "select spucatalogo_ctas(", " nueva"}};
  Salida salida;
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.enviada);
    for (const auto& escritura : altaYCambio) {
      C cuenta = Completa(fila.acumula);
      Espia espia;
      EXPECT_EQ(Lanzado([&] { (cuenta.*escritura.operacion)(); }), std::nullopt);
      EXPECT_EQ(espia.Sentencias(),
                (Textos{"BEGIN;", escritura.funcion + llave + "," + fila.enviada + columnas, "COMMIT;"}));
      const std::string estado = Estado(cuenta);
      EXPECT_EQ(estado.substr(estado.rfind('|') + 1), escritura.banderas);
    }
    EXPECT_EQ(EnServidor(), (Tabla{{Cuenta("1777"), fila.guardada, "1", "Caja de prueba", "A", "B",
                                    "2006-03-05", "2007-11-17", "D", "2.50", "100.25", "200.50", "300.75"}}));
    EXPECT_EQ(Estado(Leida()), Cuenta("1777") + "|" + fila.guardada +
                                   "|1|Caja de prueba|A|B|2006-03-05|2007-11-17|D|2.500000|100.250000|"
                                   "200.500000|300.750000|");
    C cuenta = Leida();
    Espia espia;
    EXPECT_EQ(Lanzado([&] { cuenta.Delete(); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "SELECT spdcatalogo_ctas(" + llave + ");", "COMMIT;"}));
    EXPECT_TRUE(EnServidor().empty());
    espia.Vacia();
    cuenta.Find();
    EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spscatalogo_ctas(" + llave + ");"});
    EXPECT_TRUE(cuenta.IsNew());
    EXPECT_NE(res, nullptr);  // left uncleared
  }
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cCatalogo_CtasTest, LasFechasVaciasViajanComoCerosYElServidorNoGuardaNinguna) {
  C cuenta = Completa();
  cuenta.setFecha_Estado(date(""));
  cuenta.setFecha_Ult_Mov(date(""));
  Espia espia;
  EXPECT_EQ(Lanzado([&] { cuenta.AddNew(); }), std::nullopt);
  EXPECT_EQ(espia.Cuantas("'0-0-0','0-0-0'"), 1u);
  EXPECT_EQ(base_.Valor("select fecha_estado is null and fecha_ult_mov is null from norte.catalogo_ctas"
                        " where cuentaid = '1777'"),
            "t");
}

TEST_F(cCatalogo_CtasTest, UnaFechaNulaSeQuedaComoEstaba) {
  Ejecuta(
      "select 'a','b','1','c','A','B','2001-02-03',null,'D',1,2,3,4 union all"
      " select 'e','f','2','g','C','B',null,'2004-05-06','A',5,6,7,8 order by 1");
  C cuenta;
  cuenta.setFecha_Ult_Mov(date(9, 9, 1999));
  cuenta.setIsNew(true);
  cuenta.Fill(0);
  EXPECT_EQ(Estado(cuenta), "a|b|1|c|A|B|2001-02-03|1999-09-09|D|1.000000|2.000000|3.000000|4.000000|");
  cuenta.Fill(1);
  EXPECT_EQ(Estado(cuenta), "e|f|2|g|C|B|2001-02-03|2004-05-06|A|5.000000|6.000000|7.000000|8.000000|");
}

TEST_F(cCatalogo_CtasTest, ElAltaEnLasSucursalesMandaLaFechaDeLaPantallaYSeTraza) {
  C cuenta = Completa("");
  const std::string sentencia =
      "select spicatalogo_ctasc('" + Cuenta("1777") +
      "',NULL,'1','Caja de "
      "prueba','A','B','05/03/2006','17/11/2007','D',2.500000,100.250000,200.500000,300.750000);";
  Espia espia;
  {
    Salida salida;
    EXPECT_EQ(Lanzado([&] { cuenta.AddNewSucursales(); }), std::nullopt);
    EXPECT_EQ(salida.Lineas(), Textos{sentencia});
  }
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", sentencia, "COMMIT;"}));
  EXPECT_EQ(EnServidor("norte").size(), 1u);
  EXPECT_EQ(EnServidor("norte"), EnServidor("sur"));
  EXPECT_FALSE(cuenta.getDataChanged());
  EXPECT_FALSE(cuenta.IsNew());
}

TEST_F(cCatalogo_CtasTest, ElAltaEnLasSucursalesConCuentaDeArribaLaManda) {
  C cuenta = Completa();
  Espia espia;
  Salida salida;
  cuenta.AddNewSucursales();
  EXPECT_EQ(espia.Cuantas("select spicatalogo_ctasc('" + Cuenta("1777") + "','" + Activo + "','1',"), 1u);
}

TEST_F(cCatalogo_CtasTest, SinCambiosOSinPasarCheckNadieEscribe) {
  C igual = Completa();
  igual.setDataChanged(false);
  C mala = Completa();
  mala.setNaturaleza("");
  Espia espia;
  Salida salida;
  for (const Operacion operacion : guardados) {
    EXPECT_EQ(Lanzado([&] { (igual.*operacion)(); }), std::nullopt);
    EXPECT_EQ(Lanzado([&] { (mala.*operacion)(); }), "No ha especificado la Naturaleza");
  }
  C vacia;
  vacia.Find();
  vacia.Delete();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cCatalogo_CtasTest, UnRechazoSeLanzaYConservaLasBanderas) {
  Salida salida;
  for (const Operacion operacion : escrituras) {
    C cuenta = Completa();
    Espia espia;
    espia.En(1, falla::Error("No"));
    EXPECT_EQ(Lanzado([&] { (cuenta.*operacion)(); }), "ERROR:  No\n");
    EXPECT_TRUE(cuenta.getDataChanged());
    EXPECT_TRUE(cuenta.IsNew());
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
  }
}

TEST_F(cCatalogo_CtasTest, UnNombreDe100LetrasAcentuadasSeCortaEnLetraEntera) {
  std::string nombre;
  for (int i = 0; i < 100; ++i) nombre += "é";
  C cuenta = Completa();
  cuenta.setCuentaNombre(nombre.c_str());
  EXPECT_EQ(Lanzado([&] { cuenta.AddNew(); }), std::nullopt);
  EXPECT_EQ(base_.Valor("select length(cuentanombre) from norte.catalogo_ctas where cuentaid = '1777'"),
            "50");
}

}  // namespace
}  // namespace pruebas
