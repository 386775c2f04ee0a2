// The loads of the cache that take a filter.
#include <gtest/gtest.h>

#include "app/sesion.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

class FiltroTest : public ConSucursal {
 protected:
  FiltroTest() {
    Catalogo::Sujetos.clear();
    Catalogo::CiudadesMex.clear();
    catalogo.ColoniasFiltro.RemoverTodos();
  }

  /// What `accion` traces.
  template <class Accion>
  static Textos Trazas(Accion accion) {
    Salida salida;
    accion();
    return salida.Lineas();
  }
};

/// The columns of a cached row in the order of the server's answer.
Textos Fila(const cSujeto& s) {
  return {std::to_string(s.getSujetoID()),
          s.getPaterno(),
          s.getMaterno(),
          s.getNombre(),
          s.getRfc(),
          s.getCurp(),
          std::to_string(s.getEdad()),
          s.getFechaNacimiento().AsChar(),
          s.getRazonSocial()};
}
Textos Fila(const cEstadoMex& e) {
  return {std::to_string(e.getEstadoMexID()), e.getClaveEstadoMex(), e.getNombreEstadoMex()};
}
Textos Fila(const cCiudadMex& c) {
  return {std::to_string(c.getCiudadMexID()), std::to_string(c.getEstadoMexID()), c.getClaveCiudadMex(),
          c.getNombreCiudadMex()};
}
Textos Fila(const cColonia& c) {
  return {std::to_string(c.getColoniaID()), std::to_string(c.getCiudadMexID()), c.getNombreColonia(),
          std::to_string(c.getCP()), std::to_string(c.getTipoAsentamientoID())};
}

template <class T>
Tabla Filas(const std::map<int, T>& mapa) {
  Tabla filas;
  for (const auto& [numero, registro] : mapa) {
    EXPECT_EQ(static_cast<size_t>(numero), filas.size()) << "la clave es el número de fila";
    filas.push_back(Fila(registro));
  }
  return filas;
}
template <class T>
Tabla Filas(const lista<T>& registros) {
  Tabla filas;
  for (const T& registro : registros) filas.push_back(Fila(registro));
  return filas;
}

// Persons.

TEST_F(FiltroTest, LasPersonasFiltradasSustituyenATodasYLaSentenciaSeTraza) {
  const std::string sql = "SELECT * FROM spssujetos('ximena quimera');";
  const Tabla filas = base_.Filas(
      "select * from norte.sujeto where nombre = 'Ximena' and paterno = 'Quimera' order by materno, "
      "sujetoid");
  ASSERT_FALSE(filas.empty());
  Trazas([] { catalogo.LoadSujetos("a"); });
  ASSERT_GT(Catalogo::Sujetos.size(), filas.size());
  Espia espia;
  EXPECT_EQ(Trazas([] { catalogo.LoadSujetos("ximena quimera"); }), Textos{sql});
  EXPECT_EQ(espia.Sentencias(), Textos{sql});
  EXPECT_EQ(Filas(Catalogo::Sujetos), filas);
  EXPECT_EQ(res, nullptr);
}

TEST_F(FiltroTest, UnFiltroQueElServidorRechazaONoEncuentraDejaElMapaVacio) {
  const struct {
    const char* filtro;
    ExecStatusType estado;
  } tabla[] = {{"O'Hara", PGRES_FATAL_ERROR}, {"'", PGRES_FATAL_ERROR},       {"a','b", PGRES_FATAL_ERROR},
               {"%s%n%d", PGRES_TUPLES_OK},   {"nadie así", PGRES_TUPLES_OK}, {"\xc3", PGRES_FATAL_ERROR}};
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.filtro);
    Trazas([] { catalogo.LoadSujetos("a"); });
    ASSERT_FALSE(Catalogo::Sujetos.empty());
    Espia espia;
    const std::string sql = std::string("SELECT * FROM spssujetos('") + fila.filtro + "');";
    EXPECT_EQ(Trazas([&] { EXPECT_EQ(Lanzado([&] { catalogo.LoadSujetos(fila.filtro); }), std::nullopt); }),
              Textos{sql});
    EXPECT_EQ(espia.Sentencias(), Textos{sql});
    EXPECT_EQ(espia.Historia()[0].estado, fila.estado);
    EXPECT_TRUE(Catalogo::Sujetos.empty());
  }
}

TEST_F(FiltroTest, UnaPersonaSinFechaNoTomaLaDeLaFilaAnterior) {
  base_.Ejecuta("update norte.sujeto set fechanacimiento = null where nombre = 'Ximena'");
  Trazas([] { catalogo.LoadSujetos("ximena"); });
  ASSERT_GT(Catalogo::Sujetos.size(), 1u);
  for (const auto& [numero, persona] : Catalogo::Sujetos)
    EXPECT_STREQ(persona.getFechaNacimiento().AsChar(), "1900-01-01");
}

TEST_F(FiltroTest, LasPersonasDelCacheNoTraenDomicilioNiBienes) {
  Trazas([] { catalogo.LoadSujetos("a"); });
  for (auto& [numero, persona] : Catalogo::Sujetos) {
    EXPECT_EQ(persona.getDomicilioID(), 0);
    EXPECT_TRUE(persona.getBienes().ListaVacia());
  }
}

// The cities of a state.

TEST_F(FiltroTest, LasCiudadesDeUnEstadoSustituyenATodasHastaQueSeVuelvanALeer) {
  const auto ciudades = [this](const char* donde) {
    return base_.Filas(std::string("select ciudadmexid, estadomexid, claveciudadmex, nombreciudadmex from"
                                   " norte.ciudadesmex ") +
                       donde + " order by nombreciudadmex");
  };
  const std::string sql = "SELECT * FROM spsciudadxedo(14) order by nombreciudadmex;";
  Espia espia;
  EXPECT_EQ(Trazas([] { catalogo.LoadCiudadesXEdo(14); }), Textos{});
  EXPECT_EQ(espia.Sentencias(), Textos{sql});
  EXPECT_EQ(Catalogo::CiudadesMex.size(), 4u);
  EXPECT_EQ(Filas(Catalogo::CiudadesMex), ciudades("where estadomexid = 14"));
  EXPECT_EQ(res, nullptr);
  catalogo.LoadCiudadesMex();
  EXPECT_EQ(Filas(Catalogo::CiudadesMex).size(), ciudades("").size());
}

TEST_F(FiltroTest, UnEstadoSinCiudadesOUnSelectQueFallaDejaElMapaVacio) {
  for (const Falla& falla : {Falla(__real_PQexec), falla::Error("No"), falla::Nula()}) {
    catalogo.LoadCiudadesXEdo(14);
    ASSERT_FALSE(Catalogo::CiudadesMex.empty());
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(Lanzado([] { catalogo.LoadCiudadesXEdo(999); }), std::nullopt);
    EXPECT_TRUE(Catalogo::CiudadesMex.empty());
  }
}

TEST_F(FiltroTest, LosEstadosTraenCadaColumna) {
  Trazas([] { catalogo.LoadEstadosMex(); });
  EXPECT_EQ(Filas(Catalogo::EstadosMex), base_.Filas("select * from norte.estadosmex order by 1"));
}

// The neighbourhoods of a city and of a postal code.

TEST_F(FiltroTest, LaUltimaBusquedaDeColoniasGanaYLaListaEnteraQueda) {
  Trazas([] { catalogo.LoadColonias(); });
  const Tabla todas = Filas(catalogo.Colonias);
  EXPECT_EQ(todas, base_.Filas("select * from norte.colonias order by 1"));
  const struct {
    void (*carga)();
    const char* sql;
    const char* donde;
  } tabla[] = {
      {[] { catalogo.LoadColoniaCD(3); }, "SELECT * FROM spscolonias(3);", "ciudadmexid = 3"},
      {[] { catalogo.LoadColoniaCP(44010); }, "SELECT * FROM spscoloniacp(44010);", "cp = 44010"},
      {[] { catalogo.LoadColoniaCP(99999); }, "SELECT * FROM spscoloniacp(99999);", "false"},
      {[] { catalogo.LoadColoniaCD(4); }, "SELECT * FROM spscolonias(4);", "ciudadmexid = 4"},
      {[] { catalogo.LoadColoniaCD(999); }, "SELECT * FROM spscolonias(999);", "false"},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.sql);
    Espia espia;
    EXPECT_EQ(Trazas(fila.carga), Textos{fila.sql});
    EXPECT_EQ(espia.Sentencias(), Textos{fila.sql});
    EXPECT_EQ(Filas(catalogo.ColoniasFiltro),
              base_.Filas(std::string("select * from norte.colonias where ") + fila.donde + " order by 1"));
    EXPECT_EQ(Filas(catalogo.Colonias), todas);
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(FiltroTest, UnaBusquedaDeColoniasQueFallaDejaLaListaVacia) {
  for (const Falla& falla : {falla::Error("No"), falla::Nula(), falla::SinFilas()}) {
    for (const auto carga : {&Catalogo::LoadColoniaCD, &Catalogo::LoadColoniaCP}) {
      Trazas([] { catalogo.LoadColoniaCD(3); });
      ASSERT_FALSE(catalogo.ColoniasFiltro.ListaVacia());
      Espia espia;
      espia.En(0, falla);
      Trazas([&] { EXPECT_EQ(Lanzado([&] { (catalogo.*carga)(44010); }), std::nullopt); });
      EXPECT_TRUE(catalogo.ColoniasFiltro.ListaVacia());
    }
  }
}

}  // namespace
}  // namespace pruebas
