// The forms that only the second program opens: kinds of settlement, neighbourhoods, the chart of accounts
// and the goods of a person.
#include <fxkeys.h>

#include <map>

#include "operaciones/Bienes_Window.h"
#include "operaciones/Colonia_Window.h"
#include "operaciones/CuentaContable_Window.h"
#include "operaciones/TipoAsentamiento_Window.h"
#include "tests/operaciones/ConOperaciones.h"
#include "tests/support/Maltrato.h"

namespace pruebas {
namespace {

/// A database of one's own for each test, and a session in it.
class FormasTest : public ConOperaciones {
 protected:
  BaseDatos propia_;
  const Sesion sesion_{propia_};
};

Textos Renglones(const FXList* lista) {
  Textos textos;
  for (FXint i = 0; i < lista->getNumItems(); ++i) textos.emplace_back(lista->getItemText(i).text());
  return textos;
}

/// Presses a button that asks, answers it, and gives the text of the last box.
std::string PulsaYResponde(FXWindow* forma, const char* rotulo, std::initializer_list<Respuesta> respuestas) {
  Guion guion;
  for (const Respuesta respuesta : respuestas) guion.Responde(respuesta);
  Pulsa(Boton(forma, rotulo));
  return guion.Ultimo().texto;
}

TEST_F(FormasTest, UnTipoDeAsentamientoSeAgregaSeCambiaYSeBorra) {
  const auto forma = Dialogo<TipoAsentamiento_Window>();
  Escribe(forma.get(), "Identificador:", "77");
  Escribe(forma.get(), "Asentamiento:", "Ranchería Ñandú");
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  const std::string dato =
      "select rtrim(asentamiento) from norte.tipoasentamiento where tipoasentamientoid = 77";
  EXPECT_EQ(propia_.Valor(dato), "Ranchería Ñandú");
  Escribe(forma.get(), "Asentamiento:", "Ranchería");
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  EXPECT_EQ(propia_.Valor(dato), "Ranchería");
  PulsaYResponde(forma.get(), "&Borrar", {Respuesta::Si});
  EXPECT_TRUE(propia_.Filas(dato).empty());
}

// Neighbourhoods.

TEST_F(FormasTest, LasColoniasNoSePidenAlAbrir) {
  const Espia espia;
  const auto forma = Dialogo<Colonia_Window>();
  EXPECT_EQ(espia.Cuantas("colonia"), 0u);
  EXPECT_EQ(Lista(forma.get())->getNumItems(), 0);
}

TEST_F(FormasTest, LasColoniasSeBuscanPorCodigoPostalYPorCiudad) {
  const auto forma = Dialogo<Colonia_Window>();
  const std::string cp = propia_.Valor("select cp from norte.colonias order by coloniaid limit 1");
  Escribe(Todos<FXTextField>(forma.get()).at(1), cp);
  Pulsa(Boton(forma.get(), "&Mostrar"));
  EXPECT_EQ(std::to_string(Lista(forma.get())->getNumItems()),
            propia_.Valor("select count(*) from norte.colonias where cp = " + cp));
  auto* const ciudades = JuntoA<FXComboBox>(forma.get(), "De la ciudad:");
  const std::string conColonias = propia_.Valor(
      "select nombreciudadmex from norte.ciudadesmex where ciudadmexid = (select ciudadmexid from "
      "norte.colonias "
      "order by coloniaid limit 1)");
  EligeOpcion(ciudades, ciudades->findItem(conColonias.c_str()));
  EXPECT_EQ(std::to_string(Lista(forma.get())->getNumItems()),
            propia_.Valor("select count(*) from norte.colonias where ciudadmexid = (select ciudadmexid from "
                          "norte.colonias order by coloniaid limit 1)"));
}

TEST_F(FormasTest, SinCodigoPostalNoSePreguntaNada) {
  const auto forma = Dialogo<Colonia_Window>();
  const Espia espia;
  for (const char* const nada : {"", "0", "-5"}) {
    Escribe(Todos<FXTextField>(forma.get()).at(1), nada);
    EXPECT_EQ(PulsaYResponde(forma.get(), "&Mostrar", {Respuesta::Aceptar}), "Escriba el código postal");
  }
  EXPECT_EQ(espia.Sentencias(), Textos{});
}

TEST_F(FormasTest, UnaColoniaSeAgregaSeCambiaYSeBorra) {
  const auto forma = Dialogo<Colonia_Window>();
  Escribe(Todos<FXTextField>(forma.get()).at(1), "99123");
  EXPECT_EQ(PulsaYResponde(forma.get(), "&Mostrar", {Respuesta::Aceptar}), "No hay colonias que mostrar");
  Escribe(forma.get(), "Nombre:", "La Güera");
  Escribe(forma.get(), "Código postal:", "99123");
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Ciudad:"), 1);
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Tipo:"), 0);
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  const std::string dato = "select nombrecolonia from norte.colonias where cp = 99123";
  EXPECT_EQ(propia_.Valor(dato), "La Güera");
  EXPECT_EQ(Renglones(Lista(forma.get())), Textos{"La Güera"});
  Escribe(forma.get(), "Nombre:", "La Güerita");
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  EXPECT_EQ(propia_.Valor(dato), "La Güerita");
  PulsaYResponde(forma.get(), "&Borrar", {Respuesta::Si});
  EXPECT_TRUE(propia_.Filas(dato).empty());
}

// The chart of accounts.

TEST_F(FormasTest, CadaCuentaCuelgaDeLaQueAcumula) {
  const auto forma = Dialogo<CuentaContable_Window>();
  auto* const arbol = Todos<FXTreeList>(forma.get()).at(0);
  std::map<std::string, std::string> padres;
  for (FXTreeItem* uno = arbol->getFirstItem(); uno != nullptr; uno = uno->getBelow()) {
    const auto numero = [](const FXTreeItem* de) {
      return std::string(de->getText().section(' ', 0).text());
    };
    padres[numero(uno)] = uno->getParent() != nullptr ? numero(uno->getParent()) : "";
  }
  const Tabla cuentas =
      propia_.Filas("select rtrim(cuentaid), coalesce(rtrim(cuentaacumula),'') from norte.catalogo_ctas");
  EXPECT_EQ(padres.size(), cuentas.size());
  for (const Textos& cuenta : cuentas) EXPECT_EQ(padres[cuenta[0]], cuenta[1]) << cuenta[0];
}

TEST_F(FormasTest, CuentasEnCirculoOEnUnaCadenaLargaSeVenTodas) {
  // What the server would refuse: three that accumulate in each other, one below an account that is not
  // there, and a chain of as many as a chart can have.
  propia_.Ejecuta(
      "set session_replication_role = replica; insert into norte.catalogo_ctas (cuentaid, cuentaacumula, "
      "identificacion, cuentanombre, tipo_cta, naturaleza) "
      "select id, acumula, '1', 'Prueba', 'C', 'D' from (values ('8-1', '8-2'), ('8-2', '8-3'), ('8-3', "
      "'8-1'), "
      "('8-4', '8-x')) as c (id, acumula) union all "
      "select '9-' || lpad(n::text, 6, '0'), case when n < 20000 then '9-' || lpad((n + 1)::text, 6, '0') "
      "end, "
      "'1', 'Cadena', 'C', 'D' from generate_series(1, 20000) n");
  const auto forma = Dialogo<CuentaContable_Window>();
  auto* const arbol = Todos<FXTreeList>(forma.get()).at(0);
  std::map<std::string, std::string> padres;
  for (FXTreeItem* uno = arbol->getFirstItem(); uno != nullptr; uno = uno->getBelow()) {
    const FXTreeItem* const padre = uno->getParent();
    padres[uno->getText().section(' ', 0).text()] =
        padre != nullptr ? padre->getText().section(' ', 0).text() : "";
  }
  EXPECT_EQ(std::to_string(padres.size()), propia_.Valor("select count(*) from norte.catalogo_ctas"));
  EXPECT_EQ(padres["8-1"], "") << "the first of the circle is at the top";
  EXPECT_EQ(padres["8-2"], "8-3");
  EXPECT_EQ(padres["8-3"], "8-1");
  EXPECT_EQ(padres["8-4"], "");
  EXPECT_EQ(padres["9-000001"], "9-000002");
  EXPECT_EQ(padres["9-020000"], "");
}

TEST_F(FormasTest, UnaCuentaSeAgregaSeCambiaYSeBorra) {
  const auto forma = Dialogo<CuentaContable_Window>();
  const std::string arriba = propia_.Valor(
      "select rtrim(cuentaid) from norte.catalogo_ctas where tipo_cta = 'C' order by cuentaid desc limit 1");
  Escribe(forma.get(), "Cuenta:", "9999-77");
  Escribe(forma.get(), "Nombre:", "Cuenta d e Ñandú");
  Escribe(Todos<FXTextField>(forma.get()).at(3), arriba);
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Rubro:"), 1);
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Tipo:"), 0);
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Naturaleza:"), 1);
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  const std::string dato =
      "select cuentanombre, rtrim(cuentaacumula), identificacion, tipo_cta, naturaleza from "
      "norte.catalogo_ctas "
      "where cuentaid = '9999-77'";
  EXPECT_EQ(propia_.Filas(dato), (Tabla{{"Cuenta d e Ñandú", arriba, "1", "A", "D"}}));
  EXPECT_TRUE(propia_.Filas("select 1 from sur.catalogo_ctas where cuentaid = '9999-77'").empty());
  auto* const arbol = Todos<FXTreeList>(forma.get()).at(0);
  ASSERT_NE(arbol->getCurrentItem(), nullptr);
  EXPECT_STREQ(arbol->getCurrentItem()->getText().text(), "9999-77  Cuenta d e Ñandú");
  {
    const Guion nada;  // nothing was changed: nothing is asked
    Pulsa(Boton(forma.get(), "&Aceptar"));
  }
  Escribe(forma.get(), "Nombre:", "Otra");
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  EXPECT_EQ(propia_.Filas(dato).at(0).at(0), "Otra");
  PulsaYResponde(forma.get(), "&Borrar", {Respuesta::Si});
  EXPECT_TRUE(propia_.Filas(dato).empty());
}

TEST_F(FormasTest, UnaCuentaSeDaDeAltaEnTodasLasSucursales) {
  const auto forma = Dialogo<CuentaContable_Window>();
  Escribe(forma.get(), "Cuenta:", "9999-78");
  Escribe(forma.get(), "Nombre:", "De todas");
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Rubro:"), 1);
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Tipo:"), 1);
  EligeOpcion(JuntoA<FXComboBox>(forma.get(), "Naturaleza:"), 0);
  Pulsa(Todos<FXCheckButton>(forma.get()).at(0));
  EXPECT_EQ(PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si}), "Registrar en todas las sucursales ?");
  for (const char* const sucursal : {"norte", "sur"})
    EXPECT_EQ(propia_.Valor(std::string("select count(*) from ") + sucursal +
                            ".catalogo_ctas where cuentaid = '9999-78'"),
              "1");
}

TEST_F(FormasTest, LoQueElServidorNiegaDeUnaCuentaSeDiceConPalabras) {
  const auto forma = Dialogo<CuentaContable_Window>();
  const std::string usada = propia_.Valor(
      "select rtrim(cuentaid) from norte.catalogo_ctas c where exists (select from norte.catalogo_ctas o "
      "where "
      "o.cuentaacumula = c.cuentaid) order by cuentaid limit 1");
  Escribe(forma.get(), "Cuenta:", usada);
  Pulsa(Boton(forma.get(), "&Buscar"));
  const std::string negada = PulsaYResponde(forma.get(), "&Borrar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_NE(negada.find("No se puede borrar la cuenta"), std::string::npos) << negada;
  Pulsa(Boton(forma.get(), "&Nuevo"));
  Escribe(forma.get(), "Cuenta:", "X");
  EXPECT_EQ(PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Aceptar}),
            "No ha especificado el tipo de cuenta");
}

TEST_F(FormasTest, LaBusquedaDeCuentasNoDistingueAcentosYSigueConEnter) {
  const auto forma = Dialogo<CuentaContable_Window>();
  propia_.Ejecuta(
      "update norte.catalogo_ctas set cuentanombre = 'Depósitos ÚNICOS' where cuentaid = (select "
      "cuentaid from norte.catalogo_ctas order by cuentaid offset 3 limit 1)");
  propia_.Ejecuta(
      "update norte.catalogo_ctas set cuentanombre = 'Otros unicos' where cuentaid = (select "
      "cuentaid from norte.catalogo_ctas order by cuentaid offset 7 limit 1)");
  forma->Load();
  auto* const arbol = Todos<FXTreeList>(forma.get()).at(0);
  FXTextField* const busca = Todos<FXTextField>(forma.get()).at(0);
  Escribe(busca, "unicos");
  EXPECT_TRUE(arbol->getCurrentItem()->getText().contains("Depósitos ÚNICOS"));
  EXPECT_EQ(Leido(forma.get(), "Nombre:"), "Depósitos ÚNICOS");
  Tecla(busca, KEY_Return);
  EXPECT_TRUE(arbol->getCurrentItem()->getText().contains("Otros unicos"));
  Escribe(busca, "%'\"´");
  EXPECT_TRUE(arbol->getCurrentItem()->getText().contains("Otros unicos"));
}

// The goods of a person.

void LlenaBien(FXWindow* bien, const std::string& descripcion) {
  Escribe(bien, "Propietario:", "Adriana");
  Escribe(bien, "Descripción:", descripcion);
  for (FXText* const parrafo : Todos<FXText>(bien)) Escribe(parrafo, "Ninguna");
  for (const char* const valor :
       {"Valor comercial:", "Valor fiscal:", "Valor catastro:", "Relación Garantia:"})
    Escribe(bien, valor, "50");
}

class BienesTest : public FormasTest {
 protected:
  /// Lets the search pick the person of the user, the first that it finds.
  void ElegirPersona(FXDialogBox* forma, const std::string& apellido) {
    Guion guion;
    guion.Con([&](FXDialogBox* busqueda) {
      Escribe(Todos<FXTextField>(busqueda).at(1), apellido);
      Pulsa(Botones(busqueda).empty() ? nullptr : Todos<FXButton>(busqueda).at(1));
      EligeRenglon(Lista(busqueda), 0);
      Pulsa(Boton(busqueda, "&Aceptar"));
    });
    Pulsa(Boton(forma, "&Persona"));
  }
  std::string persona_ = propia_.Valor("select sujetoid from norte.usuario where usuarioid = 'adriana'");
  std::string nombre_ = propia_.Valor("select nombre from norte.sujeto where sujetoid = " + persona_);
};

TEST_F(BienesTest, SinPersonaNoHayBienesQueAbrir) {
  const auto forma = Dialogo<Bienes_Window>();
  for (const char* const rotulo : {"&Nuevo", "A&brir", "&Aceptar"})
    EXPECT_FALSE(Boton(forma.get(), rotulo)->isEnabled()) << rotulo;
}

TEST_F(BienesTest, UnBienSeAgregaSeCambiaYSeBorraConSuPersona) {
  const auto forma = Dialogo<Bienes_Window>();
  ElegirPersona(forma.get(), nombre_);
  FXList* const lista = Lista(forma.get());
  const int antes = lista->getNumItems();
  const std::string cuantos = "select count(*) from norte.bienes where describien = 'Terreno de la Peña'";
  {
    Guion guion;
    guion.Con([&](FXDialogBox* bien) {
      LlenaBien(bien, "Terreno de la Peña");
      Pulsa(Boton(bien, "&Aceptar"));
    });
    Pulsa(Boton(forma.get(), "&Nuevo"));
  }
  ASSERT_EQ(lista->getNumItems(), antes + 1);
  EXPECT_EQ(propia_.Valor(cuantos), "0");  // not before the person is saved
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  EXPECT_EQ(propia_.Valor(cuantos), "1");
  const FXint suyo = lista->findItem("Terreno de la Peña");
  ASSERT_GE(suyo, 0);
  EligeRenglon(lista, suyo);
  {
    Guion guion;
    guion.Con([](FXDialogBox* bien) { Pulsa(Boton(bien, "&Borrar")); });
    guion.Responde(Respuesta::Si);
    Pulsa(Boton(forma.get(), "A&brir"));
  }
  EXPECT_TRUE(lista->getItemText(suyo).contains("(se borra)"));
  PulsaYResponde(forma.get(), "&Aceptar", {Respuesta::Si});
  EXPECT_EQ(propia_.Valor(cuantos), "0");
}

TEST_F(BienesTest, UnSocioDaLosBienesDeSuPersona) {
  const auto forma = Dialogo<Bienes_Window>();
  for (const bool ultimo : {false, true}) {
    std::string clave;
    Guion guion;
    guion.Con([&](FXDialogBox* busqueda) {
      Escribe(Todos<FXTextField>(busqueda).at(1), "quimera");
      Pulsa(Todos<FXButton>(busqueda).at(1));
      FXList* const lista = Lista(busqueda);
      EligeRenglon(lista, ultimo ? lista->getNumItems() - 1 : 0);
      clave = lista->getItemText(lista->getCurrentItem()).section(' ', 0).text();
      Pulsa(Boton(busqueda, "&Aceptar"));
    });
    Pulsa(Boton(forma.get(), "&Socio"));
    const Textos socio =
        propia_
            .Filas(
                "select sujetoid, nombre from norte.socio join norte.sujeto using (sujetoid) "
                "where clavesocioint = '" +
                clave + "'")
            .at(0);
    const std::string rotulo = Todos<FXLabel>(forma.get()).at(0)->getText().text();
    EXPECT_EQ(rotulo.find(socio[0] + "  " + socio[1]), 0u) << rotulo;
  }
  Guion guion;  // closed without a choice: the person stays
  guion.Con([](FXDialogBox* busqueda) { Pulsa(Boton(busqueda, "&Cerrar")); });
  const FXString antes = Todos<FXLabel>(forma.get()).at(0)->getText();
  Pulsa(Boton(forma.get(), "&Socio"));
  EXPECT_EQ(Todos<FXLabel>(forma.get()).at(0)->getText(), antes);
}

TEST_F(BienesTest, SinLineaElSocioNoCambiaNadaYSeDice) {
  const auto forma = Dialogo<Bienes_Window>();
  Espia espia;
  espia.Cuando("SELECT sujetoid", falla::CorteAntes());
  Guion guion;
  guion.Con([](FXDialogBox* busqueda) {
    Pulsa(Todos<FXButton>(busqueda).at(1));
    EligeRenglon(Lista(busqueda), 0);
    Pulsa(Boton(busqueda, "&Aceptar"));
  });
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(forma.get(), "&Socio"));
  EXPECT_EQ(guion.Ultimo().titulo, "Bienes");
  EXPECT_FALSE(Boton(forma.get(), "&Nuevo")->isEnabled());
}

TEST_F(BienesTest, LoQueElServidorNiegaSeDiceYNadaQuedaAMedias) {
  const auto forma = Dialogo<Bienes_Window>();
  ElegirPersona(forma.get(), nombre_);
  Guion guion;
  guion.Con([&](FXDialogBox* bien) {
    LlenaBien(bien, "D'Artagnan");
    Pulsa(Boton(bien, "&Aceptar"));
  });
  Pulsa(Boton(forma.get(), "&Nuevo"));
  guion.Responde(Respuesta::Si);
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(forma.get(), "&Aceptar"));
  EXPECT_EQ(guion.Ultimo().titulo, "Error en Validación");
  EXPECT_EQ(propia_.Valor("select count(*) from norte.bienes where describien like 'D%Artagnan'"), "0");
}

// A careless user in each of them.

TEST_F(FormasTest, AguantanAUnUsuarioDescuidado) {
  Maltrata(Dialogo<TipoAsentamiento_Window>().get());
  Maltrata(Dialogo<Colonia_Window>().get());
  Maltrata(Dialogo<CuentaContable_Window>().get());
}

TEST_F(ConOperaciones, LaLineaCortadaEnCadaSentenciaSeDiceYElProgramaSigue) {
  for (size_t n = 0; n < 12; ++n) {
    BaseDatos base;
    const Sesion sesion(base);
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).at(0)); });
    Espia espia;
    espia.En(n, falla::CorteAntes());
    Dialogo<Colonia_Window>();
    Dialogo<TipoAsentamiento_Window>();
    const auto cuentas = Dialogo<CuentaContable_Window>();
    Pulsa(Boton(cuentas.get(), "&Aceptar"));
  }
}

}  // namespace
}  // namespace pruebas
