// The forms of the states and of the cities, the second of which opens the first.
#include <gtest/gtest.h>

#include <optional>

#include "app/sesion.h"
#include "catalogs/people/CiudadMex_Window.h"
#include "catalogs/people/EstadoMex_Window.h"
#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Cortes.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

constexpr char LeeEstados[] = "SELECT * FROM spsestadomex(0);";
constexpr char LeeCiudades[] = "SELECT * FROM spsciudadmex(0) order by nombreciudadmex;";

class GeografiaVentana : public ConVentana<> {
 protected:
  GeografiaVentana() {
    estadomex.Clear();
    ciudadmex.Clear();
    catalogo.LoadEstadosMex();
    espia_.Vacia();
  }
  template <class V>
  V* Abre() {
    V* const forma = area_.Abre<V>();
    forma_ = forma;
    return forma;
  }
  Textos Manda(const std::string& boton, const std::vector<Respuesta>& respuestas = {}) {
    espia_.Vacia();
    return ConVentana::Manda(boton, respuestas);
  }
  FXComboBox* Estado() { return JuntoA<FXComboBox>(forma_, "Estado:"); }
  Textos Opciones() {
    Textos nombres;
    for (FXint i = 0; i < Estado()->getNumItems(); ++i) nombres.emplace_back(Estado()->getItemText(i).text());
    return nombres;
  }
  void LlenaCiudad(const std::string& clave, const std::string& nombre) {
    Escribe(forma_, "Clave:", clave);
    Escribe(forma_, "Nombre:", nombre);
  }
  std::string Cuantos(const std::string& tabla) { return base_.Valor("select count(*) from norte." + tabla); }
};

void ExigeCampo(FXWindow* forma, const char* etiqueta, FXint columnas, FXuint estilo) {
  SCOPED_TRACE(etiqueta);
  const FXTextField* const campo = CampoJuntoA(forma, etiqueta);
  EXPECT_EQ(campo->getNumColumns(), columnas);
  EXPECT_EQ(campo->getTextStyle(), estilo);
}

TEST_F(GeografiaVentana, LosEstadosTienenSusPiezas) {
  auto* const forma = Abre<EstadoMex_Window>();
  EXPECT_STREQ(forma->getTitle().text(), "Estados");
  for (const char* titulo : {"Estados", "Identificación", "Datos del Estado"}) Grupo(forma, titulo);
  EXPECT_EQ(Botones(forma), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
  EXPECT_EQ(Lista(forma)->getWidth(), 150);
  ExigeCampo(forma, "Identificador:", 2, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER);
  ExigeCampo(forma, "Clave:", 3, TEXTFIELD_LIMITED);
  ExigeCampo(forma, "Nombre:", 20, TEXTFIELD_LIMITED);
  ExigeNadaCortado(forma);
  EXPECT_EQ(espia_.Sentencias(), Textos{LeeEstados});
  EXPECT_STREQ(Lista(forma)->getItemText(8).text(), "Ciudad de México");
  using V = EstadoMex_Window;
  ExigeMapa<V>({Mando<V>(62, &V::onCmdAgregar),
                Mando<V>(63, &V::onCmdFind),
                Mando<V>(64, &V::onCmdClear),
                Mando<V>(65, &V::onCmdBorrar),
                Mando<V>(66, &V::onCmdEstadoMex),
                {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
                {FXSEL(SEL_SIGNAL, 67), FXSEL(SEL_SIGNAL, 67), &V::onCmdQuit}});
}

TEST_F(GeografiaVentana, UnEstadoVaYViene) {
  Abre<EstadoMex_Window>();
  LlenaCiudad("A", "Aztlán");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"BEGIN;", "select spiestadomex('A  ','Aztlán');", "COMMIT;", LeeEstados}));
  EligeRenglon(Lista(forma_), 32);
  EXPECT_EQ(Leido(forma_, "Identificador:"), "33");
  Escribe(forma_, "Nombre:", "Aztlan");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(espia_.Sentencias(),
            (Textos{"BEGIN;", "select spuestadomex('A  ','Aztlan',33);", "COMMIT;", LeeEstados}));
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(espia_.Sentencias(), (Textos{"SELECT * FROM spsestadomex(33);", "BEGIN;",
                                         "SELECT spdestadomex(33);", "COMMIT;", LeeEstados}));
  EXPECT_EQ(Cuantos("estadosmex"), "32");
}

TEST_F(GeografiaVentana, UnEstadoEnMedioNoSeBorraYLoDiceElServidor) {
  Abre<EstadoMex_Window>();
  EligeRenglon(Lista(forma_), 13);
  const Textos dichos = Manda("&Borrar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_NE(dichos.at(1).find("se numeran sin huecos"), std::string::npos) << dichos.at(1);
  EXPECT_EQ(Cuantos("estadosmex"), "32");
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(GeografiaVentana, LasCiudadesTienenSusPiezas) {
  auto* const forma = Abre<CiudadMex_Window>();
  EXPECT_STREQ(forma->getTitle().text(), "Ciudad");
  for (const char* titulo : {"Ciudad", "Identificación", "Datos de la Ciudad"}) Grupo(forma, titulo);
  EXPECT_EQ(Botones(forma), (Textos{"...", "&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
  ExigeCampo(forma, "Identificador:", 2, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER);
  ExigeCampo(forma, "Clave:", 3, TEXTFIELD_LIMITED);
  ExigeCampo(forma, "Nombre:", 20, TEXTFIELD_LIMITED);
  EXPECT_EQ(Estado()->getNumColumns(), 2);
  EXPECT_EQ(Estado()->getNumVisible(), 10);
  EXPECT_EQ(Estado()->getNumItems(), 32);
  EXPECT_EQ(Estado()->getCurrentItem(), -1);
  ExigeNadaCortado(forma);
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", LeeCiudades, "COMMIT;"}));
  using V = CiudadMex_Window;
  ExigeMapa<V>({Mando<V>(62, &V::onCmdAgregar),
                Mando<V>(63, &V::onCmdFind),
                Mando<V>(64, &V::onCmdClear),
                Mando<V>(65, &V::onCmdBorrar),
                Mando<V>(66, &V::onCmdCiudadMex),
                Mando<V>(67, &V::onCmdEstados),
                Mando<V>(68, &V::onCmdEstado),
                {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
                {FXSEL(SEL_SIGNAL, 69), FXSEL(SEL_SIGNAL, 69), &V::onCmdQuit}});
}

TEST_F(GeografiaVentana, UnaCiudadVaYViene) {
  Abre<CiudadMex_Window>();
  LlenaCiudad("9", "Tonalá");
  EligeOpcion(Estado(), 13);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(espia_.Sentencias(), (Textos{"BEGIN;", "select spiciudadmex(14,'9   ','Tonalá');", "COMMIT;",
                                         "BEGIN;", LeeCiudades, "COMMIT;"}));
  const std::string id =
      base_.Valor("select ciudadmexid from norte.ciudadesmex where nombreciudadmex = 'Tonalá'");
  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  EXPECT_EQ(Leido(forma_, "Identificador:"), id);
  EligeOpcion(Estado(), 31);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(espia_.Sentencias().at(1), "select spuciudadmex('9   ','Tonalá',32," + id + ");");
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(espia_.Sentencias().at(2), "SELECT spdciudadmex(" + id + ");");
  EXPECT_EQ(Cuantos("ciudadesmex"), "128");
}

TEST_F(GeografiaVentana, SinEstadoUnaCiudadNoSeGuarda) {
  Abre<CiudadMex_Window>();
  LlenaCiudad("9", "Tonalá");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}),
            Textos{"No ha especificado el Estado al cual pertenece"});
  EXPECT_TRUE(espia_.Sentencias().empty());
}

TEST_F(GeografiaVentana, NuevoDejaElComboSinEstado) {
  Abre<CiudadMex_Window>();
  EligeRenglon(Lista(forma_), 0);
  EXPECT_GE(Estado()->getCurrentItem(), 0);
  Manda("&Nuevo");
  EXPECT_EQ(Estado()->getCurrentItem(), -1);
  EXPECT_STREQ(Estado()->getText().text(), "");
}

TEST_F(GeografiaVentana, UnEstadoHechoEnSuFormaApareceEnElComboYLaCiudadConservaElSuyo) {
  Abre<CiudadMex_Window>();
  LlenaCiudad("9", "Tonalá");
  EligeOpcion(Estado(), 13);
  Guion guion;
  guion.Con([&](FXDialogBox* estados) {
    EXPECT_STREQ(estados->getClassName(), "EstadoMex_Window");
    EXPECT_EQ(estados->getOwner(), forma_);
    const FXWindow* const pantalla = App().getRootWindow();
    EXPECT_NEAR(estados->getX() + estados->getWidth() / 2, pantalla->getWidth() / 2, 2);
    Escribe(estados, "Clave:", "AZT");
    Escribe(estados, "Nombre:", "Aztlán");
    Pulsa(Boton(estados, "&Aceptar"));
    Pulsa(Boton(estados, "&Cerrar"));
  });
  guion.Responde(Respuesta::Si);
  espia_.Vacia();
  Pulsa(Boton(forma_, "..."));
  EXPECT_EQ(espia_.Sentencias(), (Textos{LeeEstados, "BEGIN;", "select spiestadomex('AZT','Aztlán');",
                                         "COMMIT;", LeeEstados, LeeEstados}));
  EXPECT_EQ(Estado()->getNumItems(), 33);
  EXPECT_EQ(Opciones().back(), "Aztlán");
  EXPECT_EQ(Estado()->getCurrentItem(), -1);
  EXPECT_STREQ(Estado()->getText().text(), "");
  guion.Responde(Respuesta::Si);
  espia_.Vacia();
  Pulsa(Boton(forma_, "&Aceptar"));
  EXPECT_EQ(espia_.Sentencias().at(1), "select spiciudadmex(14,'9   ','Tonalá');");
}

TEST_F(GeografiaVentana, UnaCiudadDeUnEstadoQueFaltaMuestraElPrimeroYConservaElSuyo) {
  base_.Ejecuta(
      "set search_path to norte; alter table ciudadesmex drop constraint ciudadesmex_estadomexid_fkey; "
      "update ciudadesmex set estadomexid = 77 where nombreciudadmex = 'Zapopan'");
  Abre<CiudadMex_Window>();
  for (FXint i = 0; i < Lista(forma_)->getNumItems(); ++i)
    if (Lista(forma_)->getItemText(i) == "Zapopan") EligeRenglon(Lista(forma_), i);
  EXPECT_EQ(Leido(forma_, "Nombre:"), "Zapopan");
  EXPECT_EQ(Estado()->getCurrentItem(), 0);
  EXPECT_EQ(ciudadmex.getEstadoMexID(), 77);
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_FALSE(ciudadmex.getDataChanged());
}

TEST_F(GeografiaVentana, ConLosEstadosVaciosNoHayQueElegir) {
  Catalogo::EstadosMex.clear();
  Abre<CiudadMex_Window>();
  EXPECT_EQ(Estado()->getNumItems(), 0);
  EligeRenglon(Lista(forma_), 0);
  EXPECT_EQ(Estado()->getCurrentItem(), -1);
  EXPECT_EQ(ciudadmex.getEstadoMexID(), Catalogo::CiudadesMex.at(0).getEstadoMexID());
}

TEST_F(GeografiaVentana, ApostrofesYPorcientosLosDiceElServidor) {
  Abre<CiudadMex_Window>();
  LlenaCiudad("9", "O'Hara %s%n");
  EligeOpcion(Estado(), 0);
  const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_EQ(dichos.at(1).rfind("ERROR:", 0), 0u) << dichos.at(1);
  EXPECT_EQ(Leido(forma_, "Nombre:"), "O'Hara %s%n");
  EXPECT_EQ(Profundidad(), 0);
  EXPECT_EQ(Cuantos("ciudadesmex"), "128");
}

TEST_F(GeografiaVentana, CortadaEnCadaSentenciaNoQuedaNadaAMediasYLaFormaSirve) {
  Abre<CiudadMex_Window>();
  constexpr size_t cierre = 2;  // COMMIT, behind BEGIN and the insert
  int guardadas = 128;
  for (size_t n = 0; n < 6; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      const std::string clave = std::to_string(n) + (despues ? "d" : "a");
      ciudadmex.Clear();
      Manda("&Nuevo");
      LlenaCiudad(clave, "Prueba");
      EligeOpcion(Estado(), 0);
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      {
        Guion guion;
        guion.Responde(Respuesta::Si);
        guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
        Pulsa(Boton(forma_, "&Aceptar"));
      }
      espia_.Vacia();
      sesion_.reset();
      sesion_.emplace(base_);
      guardadas += n > cierre || (n == cierre && despues);
      EXPECT_EQ(Cuantos("ciudadesmex"), std::to_string(guardadas));
    }
  }
  Manda("&Nuevo");
  LlenaCiudad("ok", "Prueba");
  EligeOpcion(Estado(), 0);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
}

TEST_F(GeografiaVentana, SinConexionAlAbrirSeDiceYQuedaAbierta) {
  PQfinish(conn);
  conn = nullptr;
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Abre<CiudadMex_Window>();
  EXPECT_EQ(guion.Ultimo().texto, "Error al cargar catalogo de ciudad.");
  EXPECT_EQ(Lista(forma_)->getNumItems(), 0);
}

}  // namespace
}  // namespace pruebas
