// The search for a member: what a filter asks the server, and how its answer is listed.
#include "framework/BusquedaSocio_Window.h"

#include <memory>

#include "app/sesion.h"
#include "tests/framework/Cuentas.h"
#include "tests/support/Espia.h"
#include "tests/support/Salida.h"
#include "tests/support/Sesion.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

class BusquedaSocioTest : public ConDuenia {
 protected:
  void SetUp() override {
    ConDuenia::SetUp();
    dialogo_ = std::make_unique<BusquedaSocio_Window>(duenia_);
    dialogo_->create();
    dialogo_->show(PLACEMENT_SCREEN);
    Bombea();
  }
  void TearDown() override {
    dialogo_.reset();
    Catalogo::SociosCaja.clear();
    sbusquedasocio[0] = '\0';
    ConDuenia::TearDown();
  }

  /// Runs a filter; answers the rows that it lists.
  Textos Filtra(const std::string& filtro) {
    const Salida salida;
    Escribe(dialogo_.get(), "Filtro:", filtro);
    Pulsa(Boton(dialogo_.get(), " "));
    traza_ = salida.Lineas();
    Textos renglones;
    const FXList* const lista = Lista(dialogo_.get());
    for (FXint i = 0; i < lista->getNumItems(); ++i) renglones.emplace_back(lista->getItemText(i).text());
    return renglones;
  }

  std::unique_ptr<BusquedaSocio_Window> dialogo_;
  Textos traza_;
};

class BusquedaSocioEnServidorTest : public BusquedaSocioTest {
 protected:
  BaseDatos base_;
  Sesion sesion_{base_};
};

TEST_F(BusquedaSocioEnServidorTest, ElFiltroPreguntaAlServidorTalComoSeTecleo) {
  const Espia espia;
  for (const char* filtro : {"leonor", " Leonor  ", "", "100%", "é"}) {
    const std::string pregunta = std::string("SELECT * FROM spssociocajaf('") + filtro + "');";
    const size_t antes = espia.Sentencias().size();
    Filtra(filtro);
    const Textos todas = espia.Sentencias();
    EXPECT_EQ(Textos(todas.begin() + antes, todas.end()), (Textos{"BEGIN;", pregunta, "COMMIT;"}));
    EXPECT_EQ(traza_, Textos{pregunta});
  }
}

TEST_F(BusquedaSocioEnServidorTest, ListaTodoLoQueRespondeElServidor) {
  const auto cuantos = [&](const char* filtro) {
    return std::stoul(base_.Valor(std::string("select count(*) from norte.spssociocajaf('") + filtro + "')"));
  };
  for (const char* filtro : {"leonor", "nadie se llama así", ""})
    EXPECT_EQ(Filtra(filtro).size(), cuantos(filtro)) << filtro;
  EXPECT_GT(cuantos(""), 100u);
}

TEST_F(BusquedaSocioEnServidorTest, UnaComillaNoHallaNadaYNoEstorbaDespues) {
  EXPECT_TRUE(Filtra("O'Brien").empty());
  EXPECT_TRUE(Filtra(Acentos(20)).empty());
  EXPECT_FALSE(Filtra("leonor").empty());
}

TEST_F(BusquedaSocioEnServidorTest, SinServidorLaListaQuedaVaciaYNadaSeDice) {
  ASSERT_FALSE(Filtra("leonor").empty());
  Espia espia;
  espia.Cuando("BEGIN;", falla::CorteAntes());
  EXPECT_TRUE(Filtra("leonor").empty());
  EXPECT_TRUE(dialogo_->shown());
}

TEST_F(BusquedaSocioTest, CadaRenglonVaEnColumnas) {
  const struct {
    cSocioCaja socio;
    std::string renglon;
  } casos[] = {
      {{1, "0001-000008", "Cometa", "Boceto", "Ana", "Activo"},
       "0001-000008  Ana Cometa Boceto                        Activo              "},
      {{2, "123456789012345", "Ñandú", "", "José", "Inactivo"},  // without its trailing blank, in columns
       "123456789012345 José Ñandú                               Inactivo            "},
      {{3, "", "", "", "", ""}, std::string(12 + 1 + 40 + 1 + 20, ' ')},
      {{4, "K", std::string(20, 'p').c_str(), std::string(20, 'm').c_str(), std::string(40, 'n').c_str(),
        std::string(32, 'e').c_str()},
       "K            " + std::string(40, 'n') + " " + std::string(20, 'p') + " " + std::string(20, 'm') +
           " " + std::string(32, 'e')},
  };
  BaseDatos base(BaseDatos::Vacia);
  const Sesion sesion(base, Servidor::Unico().usuario(), "public", Servidor::Unico().clave());
  base.Ejecuta(
      "create table s (socioid int, clave text, paterno text, materno text, nombre text, estatus text)");
  base.Ejecuta(
      "create function spssociocajaf(text) returns setof s language sql begin atomic "
      "select * from s order by socioid; end");
  Textos renglones;
  for (const auto& [socio, renglon] : casos) {
    base.Ejecuta(std::string("insert into s values (") + std::to_string(socio.getSocioID()) + ", '" +
                 socio.getClaveSocioInt() + "', '" + socio.getPaterno() + "', '" + socio.getMaterno() +
                 "', '" + socio.getNombre() + "', '" + socio.getEstatus() + "')");
    renglones.push_back(renglon);
  }
  EXPECT_EQ(Filtra("x"), renglones);

  // Fifteen bytes of the row are the key, of which fourteen fit the result.
  const std::pair<const char*, const char*> claves[] = {{"0001-000008  An", "0001-000008  A"},
                                                        {"123456789012345", "12345678901234"}};
  for (const FXint fila : {0, 1}) {
    EligeRenglon(Lista(dialogo_.get()), fila);
    EXPECT_EQ(Leido(dialogo_.get(), "Buscar: "), claves[fila].first);
    dialogo_->onCmdAceptar(nullptr, 0, nullptr);
    EXPECT_STREQ(sbusquedasocio, claves[fila].second);
    dialogo_->show();
  }
}

TEST_F(BusquedaSocioTest, LaClaveTecleadaSeComparaConElCacheAunqueLaListaEsteVacia) {
  Catalogo::SociosCaja = {{0, {1, "K1", "", "", "", ""}}, {1, {2, "K2", "", "", "", ""}}};
  const std::pair<const char*, const char*> casos[] = {{"K2", "K2"}, {"K3", "K"}, {"x", ""}, {"", ""}};
  for (const auto& [tecleado, queda] : casos) {
    Escribe(dialogo_.get(), "Buscar: ", tecleado);
    EXPECT_EQ(Leido(dialogo_.get(), "Buscar: "), queda);
    EXPECT_EQ(Lista(dialogo_.get())->getNumItems(), 0);
  }
}

}  // namespace
}  // namespace pruebas
