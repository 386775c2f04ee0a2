// The report on persons: its statements, what is left in the file, the printer, and the search for a name.
#include "reports/Sujeto_Window.h"

#include <fxkeys.h>

#include "app/sesion.h"
#include "catalogs/people/BusquedaSujeto_Window.h"
#include "tests/reports/ConDuenio.h"
#include "tests/support/Cortes.h"
#include "tests/support/Espia.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Registros.h"

namespace pruebas {
namespace {

Falla Responde(const std::string& sql) {
  return [sql](PGconn* conexion, const char*) { return __real_PQexec(conexion, sql.c_str()); };
}

class Sujeto_WindowTest : public ConPantalla {
 protected:
  void Nombre(const std::string& nombre, const std::string& paterno, const std::string& materno) {
    Escribe(forma_, "Nombre:", nombre);
    Escribe(forma_, "Paterno:", paterno);
    Escribe(forma_, "Materno:", materno);
  }
  Textos Leidos() { return {Leido(forma_, "Nombre:"), Leido(forma_, "Paterno:"), Leido(forma_, "Materno:")}; }
  void Consolida() { Pulsa(JuntoA<FXCheckButton>(forma_, "CONSOLIDADO:")); }
  std::string Consulta() {
    Guion guion;
    std::string visto;
    guion.Con(VeYCierra(visto));
    Pulsa(Boton(forma_, "&Consulta"));
    return visto;
  }
  void Imprime() {
    const Guion guion;
    Pulsa(Boton(forma_, "&Imprime"));
  }
  /// The search for a person: filters, picks a row unless there is none to pick, and leaves by `boton`.
  void BuscaPersona(const std::string& filtro, const char* boton) {
    Guion guion;
    guion.Con([&](FXDialogBox* dialogo) {
      EXPECT_STREQ(dialogo->getClassName(), "BusquedaSujeto_Window");
      Escribe(dialogo, "Filtro:", filtro);
      Pulsa(Boton(dialogo, " "));
      if (Lista(dialogo)->getNumItems() > 0) EligeRenglon(Lista(dialogo), 0);
      Pulsa(Boton(dialogo, boton));
    });
    Pulsa(Boton(forma_, ""));
  }

  BaseDatos base_;
  Sesion sesion_{base_};
  Mandatos mandatos_;
  Salida salida_;
  Area area_;
  Sujeto_Window* forma_ = area_.Abre<Sujeto_Window>();
};

TEST_F(Sujeto_WindowTest, SuAspecto) {
  EXPECT_EQ(forma_->getTitle(), "Busqueda Sujeto");
  EXPECT_EQ(Etiquetas(forma_), (Textos{"Nombre:", "Paterno:", "Materno:", "CONSOLIDADO:"}));
  EXPECT_EQ(Botones(forma_), (Textos{"", "&Imprime", "&Consulta", "&Cerrar"}));
  EXPECT_EQ(CampoJuntoA(forma_, "Nombre:")->getNumColumns(), 40);
  EXPECT_EQ(CampoJuntoA(forma_, "Paterno:")->getNumColumns(), 20);
  EXPECT_EQ(CampoJuntoA(forma_, "Materno:")->getNumColumns(), 20);
  EXPECT_EQ(Leidos(), (Textos{"", "", ""}));
  ExigeNadaCortado(forma_);
  for (const FXSelector mensaje : {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_SIGNAL, Sujeto_Window::ID_SALIR)}) {
    EXPECT_EQ(forma_->handle(&App(), mensaje, nullptr), 1);
    EXPECT_TRUE(forma_->shown());
  }
}

TEST_F(Sujeto_WindowTest, LaSentenciaSegunElBoton) {
  const struct {
    const char *nombre, *paterno, *materno, *argumentos;
  } casos[] = {
      {"", "", "", "'','','',''"},
      {"Íñigo", "Peña", "Ñandú", "'Íñigo','Peña','Ñandú',''"},
      {"%s%n", "a%", " x ", "'%s%n','a%',' x ',''"},
      {"O'Brien", "", "", "'O'Brien','','',''"},
  };
  for (const auto& [nombre, paterno, materno, argumentos] : casos) {
    Nombre(nombre, paterno, materno);
    for (const char* const funcion : {"spssujeto", "spssujetoc"}) {
      const std::string sql = "SELECT * FROM " + std::string(funcion) + "(" + argumentos + ");";
      SCOPED_TRACE(sql);
      const Espia espia;
      const Salida salida;
      Consulta();
      Imprime();
      EXPECT_EQ(espia.Sentencias(), (Textos{sql, sql}));
      EXPECT_EQ(salida.Lineas(), (Textos{sql, "entrando a preview", sql}));
      Consolida();
    }
  }
}

TEST_F(Sujeto_WindowTest, ElReporteDelServidorSeVeYQuedaEnElArchivo) {
  const std::string nombre = base_.Valor("select nombre from norte.sujeto order by sujetoid limit 1");
  Nombre(nombre, "", "");
  const std::string propio = Consulta();
  EXPECT_NE(propio.find("REPORTE DE PERSONAS"), std::string::npos);
  EXPECT_NE(propio.find(nombre), std::string::npos);
  EXPECT_EQ(propio, Contenido("reporte.txt"));
  Consolida();
  const std::string consolidado = Consulta();
  EXPECT_GT(consolidado.size(), propio.size());
  EXPECT_EQ(consolidado, Contenido("reporte.txt"));
  EXPECT_EQ(res, nullptr);
}

TEST_F(Sujeto_WindowTest, ElTextoLlegaAlArchivoByteAByte) {
  Espia espia;
  espia.Cuando("spssujeto", Responde("select E'uno %s\\r\\n\\f dos  \\n' || repeat('ñ', 100000), 'otra' "
                                     "union all select 'otra fila', ''"));
  std::string esperado = "uno %s\r\n\f dos  \n";
  for (int i = 0; i < 100000; ++i) esperado += "ñ";
  Consulta();
  EXPECT_EQ(Contenido("reporte.txt"), esperado);
}

TEST_F(Sujeto_WindowTest, ImprimirEscribeDeNuevoYMandaALaImpresora) {
  mandatos_.Pon("lpr");
  Graba("reporte.txt", std::string(1000, 'x'));
  Espia espia;
  espia.Cuando("spssujeto", Responde("select 'uno'"));
  Imprime();
  EXPECT_EQ(Contenido("reporte.txt"), "uno");
  EXPECT_EQ(mandatos_.Dichos(), Textos{"lpr -l reporte.txt"});
  EXPECT_EQ(mandatos_.Llamada(), (Textos{"lpr", "-l", "reporte.txt"}));
}

TEST_F(Sujeto_WindowTest, SinLprNoPasaNada) {
  Espia espia;
  espia.Cuando("spssujeto", Responde("select 'uno'"));
  Imprime();
  EXPECT_EQ(Contenido("reporte.txt"), "uno");
  EXPECT_EQ(mandatos_.Dichos(), Textos{"lpr -l reporte.txt"});
}

TEST_F(Sujeto_WindowTest, UnaConsultaQueFallaDejaElArchivoVacioYNoDiceNada) {
  for (const Falla& falla : {falla::Nula(), falla::Error("100%s"), falla::SinFilas(), falla::Recortada(0),
                             falla::ConNulos(), falla::CorteAntes(), falla::CorteDespues()}) {
    Graba("reporte.txt", "de antes");
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(Consulta(), "");
    EXPECT_EQ(Contenido("reporte.txt"), "");
  }
  PQfinish(conn);
  conn = nullptr;
  EXPECT_EQ(Consulta(), "");
  Imprime();
  EXPECT_EQ(Contenido("reporte.txt"), "");
}

TEST_F(Sujeto_WindowTest, SinCarpetaDondeEscribirSoloLoDiceElPreview) {
  SinCarpeta();
  Guion guion;
  std::string visto = "x";
  guion.Responde(Respuesta::Aceptar);
  guion.Con(VeYCierra(visto));
  Pulsa(Boton(forma_, "&Consulta"));
  EXPECT_EQ(guion.Mensajes(), Textos{"No se puede abrir archivo: reporte.txt"});
  EXPECT_EQ(visto, "");
  Pulsa(Boton(forma_, "&Imprime"));
}

TEST_F(Sujeto_WindowTest, UnaPersonaElegidaDaSuNombre) {
  base_.Ejecuta(
      "update norte.sujeto set nombre = 'Xóchitl', paterno = 'O''Higgins', materno = 'Peña' "
      "where sujetoid = 3");
  Nombre("de", "antes", "aquí");
  const Espia espia;
  BuscaPersona("Xóchitl", "&Aceptar");
  EXPECT_EQ(Leidos(), (Textos{"Xóchitl", "O'Higgins", "Peña"}));
  EXPECT_EQ(espia.Cuantas("SELECT * FROM spssujeto(3);"), 1u);
}

TEST_F(Sujeto_WindowTest, CerrarLaBusquedaVaciaLosCampos) {
  const struct { const char *filtro, *boton; } casos[] = {{"a", "&Cerrar"}, {"no hay nadie así", "&Aceptar"}};
  for (const auto& [filtro, boton] : casos) {
    Nombre("de", "antes", "aquí");
    CopiaTexto(sbusquedasocio, "1");
    const Espia espia;
    BuscaPersona(filtro, boton);
    EXPECT_EQ(Leidos(), (Textos{"", "", ""}));
    EXPECT_EQ(espia.Cuantas("SELECT * FROM spssujeto("), 0u);
    EXPECT_STREQ(sbusquedasocio, "");
  }
}

TEST_F(Sujeto_WindowTest, LaBusquedaContestaCero) {
  Guion guion;
  guion.Con([](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Cerrar")); });
  EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, Sujeto_Window::ID_ELIGE), nullptr), 0);
}

TEST_F(Sujeto_WindowTest, LaBusquedaAguantaCualquierCorte) {
  PQfinish(conn);  // each turn has a session of its own
  conn = nullptr;
  for (size_t n = 0; n < 6; ++n) {
    for (const Falla& falla : {falla::CorteAntes(), falla::CorteDespues(), falla::Nula(), falla::Error("%n"),
                               falla::ConNulos(), falla::ConTextos(), falla::Recortada(1)}) {
      SCOPED_TRACE(n);
      Sesion otra(base_);
      Espia espia;
      espia.En(n, falla);
      BuscaPersona("a", "&Aceptar");
      EXPECT_EQ(Profundidad(), 0);
    }
  }
}

TEST_F(Sujeto_WindowTest, AguantaAUnUsuarioDescuidado) {
  Maltrata(forma_);
  PQfinish(conn);
  conn = nullptr;
  Maltrata(forma_);
  EXPECT_EQ(Contenido("reporte.txt"), "");
}

}  // namespace
}  // namespace pruebas
