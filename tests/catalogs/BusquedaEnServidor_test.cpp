// The searches for a member and for a person: what a filter asks the server, and how its answer is listed.
#include <memory>
#include <type_traits>

#include "app/sesion.h"
#include "catalogs/people/BusquedaSocio_Window.h"
#include "catalogs/people/BusquedaSujeto_Window.h"
#include "tests/catalogs/Cuentas.h"
#include "tests/support/Espia.h"
#include "tests/support/Salida.h"
#include "tests/support/Sesion.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

/// A dialog of that class, on a branch of the demonstration.
template <class Ventana>
class BusquedaEnServidor : public ConDuenia {
 protected:
  void SetUp() override {
    ConDuenia::SetUp();
    dialogo_ = std::make_unique<Ventana>(duenia_);
    dialogo_->create();
    dialogo_->show(PLACEMENT_SCREEN);
    Bombea();
  }
  void TearDown() override {
    dialogo_.reset();
    Catalogo::SociosCaja.clear();
    Catalogo::Sujetos.clear();
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
  /// Picks a row and accepts: what the "Buscar: " field shows, and the result.
  std::pair<std::string, std::string> Elige(FXint fila) {
    EligeRenglon(Lista(dialogo_.get()), fila);
    const std::string clave = Leido(dialogo_.get(), "Buscar: ");
    Pulsa(Boton(dialogo_.get(), "&Aceptar"));
    dialogo_->show();
    return {clave, sbusquedasocio};
  }
  void ExigeTecleo(const std::vector<std::pair<std::string, std::string>>& casos) {
    for (const auto& [tecleado, queda] : casos) {
      Escribe(dialogo_.get(), "Buscar: ", tecleado);
      EXPECT_EQ(Leido(dialogo_.get(), "Buscar: "), queda);
      EXPECT_EQ(Lista(dialogo_.get())->getNumItems(), 0);
    }
  }

  BaseDatos base_;
  Sesion sesion_{base_};
  std::unique_ptr<Ventana> dialogo_;
  Textos traza_;
};

using BusquedaSocioTest = BusquedaEnServidor<BusquedaSocio_Window>;
using BusquedaSujetoTest = BusquedaEnServidor<BusquedaSujeto_Window>;

TEST_F(BusquedaSocioTest, ElFiltroPreguntaAlServidorTalComoSeTecleo) {
  for (const char* filtro : {"leonor", " Leonor  ", "", "100%", "é"}) {
    const Espia espia;
    const std::string pregunta = std::string("SELECT * FROM spssociocajaf('") + filtro + "');";
    Filtra(filtro);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", pregunta, "COMMIT;"}));
    EXPECT_EQ(traza_, Textos{pregunta});
  }
}

TEST_F(BusquedaSujetoTest, ElFiltroPreguntaAlServidorTalComoSeTecleo) {
  for (const char* filtro : {"leonor", " Leonor  ", " ", "100%", "é"}) {
    const Espia espia;
    const std::string pregunta = std::string("SELECT * FROM spssujetos('") + filtro + "');";
    Filtra(filtro);
    EXPECT_EQ(espia.Sentencias(), Textos{pregunta});
    EXPECT_EQ(traza_, Textos{pregunta});
  }
}

TEST_F(BusquedaSujetoTest, UnFiltroVacioNoPreguntaYVaciaLaLista) {
  ASSERT_FALSE(Filtra("leonor").empty());
  const Espia espia;
  EXPECT_EQ(Filtra(""), Textos{});
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_FALSE(Catalogo::Sujetos.empty());  // the cache keeps the persons found before
}

template <class Ventana>
class BusquedaEnServidorTest : public BusquedaEnServidor<Ventana> {
 protected:
  static constexpr const char* funcion =
      std::is_same_v<Ventana, BusquedaSocio_Window> ? "spssociocajaf" : "spssujetos";
};
using Dialogos = testing::Types<BusquedaSocio_Window, BusquedaSujeto_Window>;
TYPED_TEST_SUITE(BusquedaEnServidorTest, Dialogos);

TYPED_TEST(BusquedaEnServidorTest, ListaTodoLoQueRespondeElServidor) {
  for (const std::string filtro : {"leonor", "nadie se llama así", " "}) {
    Ejecuta(("select count(*) from " + std::string(this->funcion) + "('" + filtro + "')").c_str());
    const std::string cuantos = Celda(0, 0);
    LiberaResultado();
    EXPECT_EQ(std::to_string(this->Filtra(filtro).size()), cuantos) << filtro;
  }
  EXPECT_GT(this->Filtra(" ").size(), 100u);
}

TYPED_TEST(BusquedaEnServidorTest, LoQueElServidorNoEntiendeNoHallaNadaNiEstorbaDespues) {
  for (const std::string filtro : {"O'Brien", "'", "%s%n", "\\", "éééééééééééééééééééé"})
    EXPECT_TRUE(this->Filtra(filtro).empty()) << filtro;
  EXPECT_FALSE(this->Filtra("leonor").empty());
}

TYPED_TEST(BusquedaEnServidorTest, UnaRespuestaEstropeadaNoTumbaNada) {
  for (const Falla& falla : {falla::Recortada(1), falla::ConNulos(), falla::ConTextos()}) {
    Espia espia;
    espia.Cuando(this->funcion, falla);
    ASSERT_FALSE(this->Filtra("leonor").empty());
    const auto [clave, resultado] = this->Elige(0);
    EXPECT_EQ(clave.substr(0, sizeof sbusquedasocio - 1), resultado);
  }
}

TYPED_TEST(BusquedaEnServidorTest, SinServidorLaListaQuedaVaciaYNadaSeDice) {
  ASSERT_FALSE(this->Filtra("leonor").empty());
  Espia espia;
  espia.En(0, falla::CorteAntes());
  EXPECT_TRUE(this->Filtra("leonor").empty());
  EXPECT_TRUE(this->Filtra("leonor").empty());
  EXPECT_TRUE(this->dialogo_->shown());
}

TEST_F(BusquedaSocioTest, CadaRenglonVaEnColumnas) {
  base_.Ejecuta(R"(
      create or replace function norte.spssociocajaf(filtro text)
      returns table (socioid bigint, clavesocioint varchar(15), paterno varchar(20), materno varchar(20),
                     nombre varchar(50), estatus varchar(32)) language sql as $$
        values (1, '0001-000008', 'Cometa', 'Boceto', 'Ana', 'Activo'),
               (2, '123456789012345', 'Ñandú', '', 'José', 'Inactivo'),
               (3, '', '', '', '', ''),
               (4, 'K', repeat('p', 20), repeat('m', 20), repeat('n', 40), repeat('e', 32)) $$)");
  EXPECT_EQ(Filtra("x"),
            (Textos{"0001-000008  Ana Cometa Boceto                        Activo              ",
                    "123456789012345 José Ñandú                               Inactivo            ",
                    std::string(12 + 1 + 40 + 1 + 20, ' '),
                    "K            " + std::string(40, 'n') + " " + std::string(20, 'p') + " " +
                        std::string(20, 'm') + " " + std::string(32, 'e')}));
  // Fifteen bytes of the row are the key, of which fourteen fit the result.
  EXPECT_EQ(Elige(0), std::make_pair(std::string("0001-000008  An"), std::string("0001-000008  A")));
  EXPECT_EQ(Elige(1), std::make_pair(std::string("123456789012345"), std::string("12345678901234")));
}

TEST_F(BusquedaSujetoTest, CadaRenglonEmpiezaConSuNumero) {
  base_.Ejecuta(R"(
      create or replace function norte.spssujetos(filtro text)
      returns table (sujetoid bigint, paterno varchar(20), materno varchar(20), nombre varchar(50), rfc varchar(16),
                     curp varchar(21), edad integer, fechanacimiento date, razonsocial varchar(60))
      language sql as $$
        values (12, 'Ñandú', 'Boceto', 'José', '', '', 0, null::date, ''),
               (123456, '', '', repeat('n', 20), '', '', 0, null, ''),
               (1234567, 'Cometa', '', 'Ana', '', '', 0, null, '') $$)");
  EXPECT_EQ(Filtra("x"),
            (Textos{"    12 José Ñandú Boceto", "123456 nnnnnnnnnnnnnnnnnnnn  ", "1234567 Ana Cometa "}));
  EXPECT_EQ(Elige(0), std::make_pair(std::string("    12"), std::string("    12")));
  EXPECT_EQ(Elige(1), std::make_pair(std::string("123456"), std::string("123456")));
  EXPECT_EQ(Elige(2), std::make_pair(std::string("123456"), std::string("123456")));  // six bytes, no more
}

TEST_F(BusquedaSocioTest, LaClaveTecleadaSeComparaConElCacheAunqueLaListaEsteVacia) {
  ExigeTecleo({{"K2", ""}, {"", ""}});
  Catalogo::SociosCaja = {{0, {1, "K1", "", "", "", ""}}, {1, {2, "K2", "", "", "", ""}}};
  ExigeTecleo({{"K2", "K2"}, {"K3", "K"}, {"x", ""}, {"", ""}});
}

TEST_F(BusquedaSujetoTest, ElNombreTecleadoSeComparaConElCacheAunqueLaListaEsteVacia) {
  cSujeto jose;
  jose.setNombre("José");
  jose.setPaterno("Ñandú");
  Catalogo::Sujetos = {{0, cSujeto()}, {1, jose}};
  ExigeTecleo({{"José", "José"}, {"Joséé", "José"}, {"Ñ", ""}, {"", ""}});
}

}  // namespace
}  // namespace pruebas
