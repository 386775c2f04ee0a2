#include "tests/support/Servidor.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace pruebas {
namespace {

TEST(Servidor, EscuchaEnUnPuertoDeCuatroCifras) {
  EXPECT_EQ(Servidor::Unico().puerto().size(), 4u);
  EXPECT_EQ(Servidor::Unico().host(), "127.0.0.1");
}

TEST(Servidor, PideLaClave) {
  BaseDatos base(BaseDatos::Vacia);
  EXPECT_EQ(PQstatus(base.Conecta().get()), CONNECTION_OK);
  const Conexion mala = base.Conecta(Servidor::Unico().usuario(), "otra");
  EXPECT_EQ(PQstatus(mala.get()), CONNECTION_BAD);
  EXPECT_NE(std::string(PQerrorMessage(mala.get())).find("FATAL:  password authentication failed"),
            std::string::npos);
}

TEST(Servidor, ArmaUnaPlantillaUnaSolaVez) {
  int veces = 0;
  const auto arma = [&](const std::string& nombre) {
    ++veces;
    const Conexion conexion =
        Servidor::Unico().Conecta(nombre, Servidor::Unico().usuario(), Servidor::Unico().clave());
    PQclear(
        PQexec(conexion.get(), "create table t(n int); insert into t values (1); create role de_plantilla"));
  };
  for (int i = 0; i < 2; ++i) {
    Servidor::Unico().Plantilla("con_tabla", arma);
    BaseDatos base("con_tabla");
    EXPECT_EQ(base.Valor("select count(*) from t"), "1");
    base.Ejecuta("insert into t values (2)");
    EXPECT_EQ(base.Valor("select count(*) from pg_roles where rolname = 'de_plantilla'"), "1");
  }
  EXPECT_EQ(veces, 1);
}

TEST(Servidor, DetenidoNoResponde) {
  BaseDatos base(BaseDatos::Vacia);
  Servidor::Unico().Detiene();
  EXPECT_EQ(PQstatus(base.Conecta().get()), CONNECTION_BAD);
  Servidor::Unico().Arranca();
  EXPECT_EQ(PQstatus(base.Conecta().get()), CONNECTION_OK);
}

TEST(Servidor, ReiniciadoConservaLosDatosYRompeLasSesiones) {
  BaseDatos base(BaseDatos::Vacia);
  base.Ejecuta("create table t as select 7 as n");
  const Conexion sesion = base.Conecta();
  Servidor::Unico().Reinicia();
  PQclear(PQexec(sesion.get(), "select 1"));
  EXPECT_EQ(PQstatus(sesion.get()), CONNECTION_BAD);
  EXPECT_EQ(base.Valor("select n from t"), "7");
}

TEST(BaseDatos, CadaUnaEsNueva) {
  for (int i = 0; i < 2; ++i) {
    BaseDatos base(BaseDatos::Vacia);
    base.Ejecuta("create table t(n int)");
    EXPECT_EQ(base.Valor("select count(*) from t"), "0");
  }
}

TEST(BaseDatos, DesapareceConSusSesionesYSusLogins) {
  std::string nombre;
  {
    BaseDatos base(BaseDatos::Vacia);
    nombre = base.nombre();
    base.Ejecuta("create role efimera login password 'e'");
    const Conexion abierta = base.Conecta("efimera", "e");
    EXPECT_EQ(PQstatus(abierta.get()), CONNECTION_OK);
    // Still open while the database goes.
    static Conexion queda(nullptr, PQfinish);
    queda = base.Conecta("efimera", "e");
  }
  BaseDatos otra(BaseDatos::Vacia);
  EXPECT_EQ(otra.Valor("select count(*) from pg_database where datname = '" + nombre + "'"), "0");
  EXPECT_EQ(otra.Valor("select count(*) from pg_roles where rolname = 'efimera'"), "0");
}

TEST(BaseDatos, DaFilasConNulosVacios) {
  BaseDatos base(BaseDatos::Vacia);
  EXPECT_EQ(base.Filas("values (1, 'a'), (2, null) order by 1"), (Tabla{{"1", "a"}, {"2", ""}}));
  EXPECT_THROW(base.Valor("select 1 where false"), std::runtime_error);
}

TEST(BaseDatos, LanzaElTextoDelServidor) {
  BaseDatos base(BaseDatos::Vacia);
  try {
    base.Ejecuta("select no_existe()");
    FAIL() << "no lanzó";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string(error.what()).find("function no_existe() does not exist"), std::string::npos);
  }
}

TEST(BaseDatos, MataLasSesionesAjenas) {
  BaseDatos base(BaseDatos::Vacia);
  const Conexion una = base.Conecta();
  const Conexion otra = base.Conecta();
  EXPECT_EQ(base.MataSesiones(), 2);
  PGresult* respuesta = PQexec(una.get(), "select 1");
  EXPECT_EQ(PQresultStatus(respuesta), PGRES_FATAL_ERROR);
  PQclear(respuesta);
  EXPECT_EQ(base.MataSesiones(), 0);
}

TEST(BaseDatos, DejaLosLoginsComoEstaban) {
  {
    BaseDatos base;
    base.Ejecuta(
        "alter role camila nologin password null connection limit 0; revoke sucursal_norte from camila");
    EXPECT_NE(PQstatus(base.Conecta("camila", BaseDatos::Clave).get()), CONNECTION_OK);
  }
  BaseDatos otra;
  EXPECT_EQ(PQstatus(otra.Conecta("camila", BaseDatos::Clave).get()), CONNECTION_OK);
  EXPECT_EQ(otra.Valor("select pg_has_role('camila', 'sucursal_norte', 'member')"), "t");
}

TEST(BaseDatos, LaCompletaTieneDosSucursales) {
  BaseDatos base;
  EXPECT_EQ(base.Filas("select nspname from pg_namespace where nspname in ('norte', 'sur') order by 1"),
            (Tabla{{"norte"}, {"sur"}}));
}

}  // namespace
}  // namespace pruebas
