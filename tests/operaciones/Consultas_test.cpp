// The lists, the log and the matrix of permissions.
#include <fxkeys.h>

#include <algorithm>
#include <cstring>
#include <optional>

#include "app/sesion.h"
#include "db/Catalogo.h"
#include "operaciones/Bitacora_Window.h"
#include "operaciones/Listas_Window.h"
#include "operaciones/Permisos_Window.h"
#include "operaciones/Plegado.h"
#include "tests/operaciones/ConOperaciones.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/Mandatos.h"

namespace pruebas {
namespace {

class ConsultasTest : public ConOperaciones {
 protected:
  ConsultasTest() {
    Salida callada;
    catalogo.setLoad(false);
    catalogo.Load();
  }
  /// The lists, with a catalogue on the screen.
  Listas_Window* AbreLista(const char* nombre) {
    auto* const listas = Abre<Listas_Window>();
    FXList* const nombres = Lista(listas);
    EligeRenglon(nombres, nombres->findItem(nombre));
    Bombea();
    return listas;
  }
  static ListaDeTabla* TablaDe(FXWindow* ventana) { return Todos<ListaDeTabla>(ventana).at(0); }
  static Textos Celdas(FXWindow* ventana, int columna) {
    const Tabla_t& tabla = TablaDe(ventana)->Datos();
    Textos textos;
    for (int i = 0; i < tabla.Visibles(); ++i) textos.emplace_back(tabla.Celda(tabla.Fila(i), columna));
    return textos;
  }
  using Tabla_t = ::Tabla;

  BaseDatos propia_;
  std::optional<Sesion> sesion_{propia_};
};

TEST_F(ConsultasTest, CadaCatalogoTieneUnTituloPorColumnaYSusRenglones) {
  std::string anterior;
  for (const Catalogado& uno : Catalogados()) {
    SCOPED_TRACE(uno.nombre);
    uno.relee();
    const Tabla_t tabla = uno.Hace();  // throws where a heading is missing
    const auto barras = std::count(uno.titulos, uno.titulos + strlen(uno.titulos), '|');
    EXPECT_GE(tabla.NumColumnas(), 1);
    EXPECT_LE(tabla.NumColumnas(), barras + 1);
    EXPECT_GE(tabla.NumColumnas(), barras - 1);  // one is hidden here and there
    EXPECT_EQ(uno.opcion == 0, uno.forma == nullptr);
    if (uno.forma == nullptr) continue;
    EXPECT_NE(FXMetaClass::getMetaClassFromName(uno.forma), nullptr) << uno.forma;
  }
}

TEST_F(ConsultasTest, LaListaMuestraLoQueTieneElCacheSinPreguntar) {
  const Espia espia;
  auto* const listas = AbreLista("Monedas");
  EXPECT_EQ(espia.Sentencias(), Textos{});
  EXPECT_EQ(std::to_string(TablaDe(listas)->getNumItems()),
            propia_.Valor("select count(*) from norte.moneda"));
  EXPECT_EQ(TablaDe(listas)->getHeaderText(2), "Descripción");
}

TEST_F(ConsultasTest, ElFiltroEstrechaMientrasSeEscribe) {
  propia_.Ejecuta(
      "insert into norte.moneda (monedaid, monedadescri, monedavalor) values ('Q1','Ñandú de oro',1)");
  catalogo.LoadMonedas();
  auto* const listas = AbreLista("Monedas");
  Escribe(Todos<FXTextField>(listas).at(0), "ORÓ ñan");
  EXPECT_EQ(Celdas(listas, 2), Textos{"Ñandú de oro"});
  EXPECT_EQ(TablaDe(listas)->getNumItems(), 1);
  Escribe(Todos<FXTextField>(listas).at(0), "'%\"" + std::string(4900, 'x'));
  EXPECT_EQ(TablaDe(listas)->getNumItems(), 0);
  Escribe(Todos<FXTextField>(listas).at(0), "");
  EXPECT_EQ(std::to_string(TablaDe(listas)->getNumItems()),
            propia_.Valor("select count(*) from norte.moneda"));
}

TEST_F(ConsultasTest, UnEncabezadoOrdenaYOtraVezAlReves) {
  auto* const listas = AbreLista("Cuentas contables");
  ListaDeTabla* const lista = TablaDe(listas);
  FXHeader* const encabezado = lista->getHeader();
  encabezado->getTarget()->handle(encabezado, FXSEL(SEL_COMMAND, encabezado->getSelector()),
                                  reinterpret_cast<void*>(3));
  const Textos nombres = Celdas(listas, 3);
  EXPECT_TRUE(std::is_sorted(nombres.begin(), nombres.end(), [](const auto& una, const auto& otra) {
    return ClaveDeOrden(una) < ClaveDeOrden(otra);
  }));
  lista->Ordena(3);
  Textos alReves = Celdas(listas, 3);
  std::reverse(alReves.begin(), alReves.end());
  EXPECT_TRUE(std::is_sorted(alReves.begin(), alReves.end(), [](const auto& una, const auto& otra) {
    return ClaveDeOrden(una) < ClaveDeOrden(otra);
  }));
}

TEST_F(ConsultasTest, F5LeeDelServidorYGuardaElFiltroYElOrden) {
  auto* const listas = AbreLista("Monedas");
  TablaDe(listas)->Ordena(0);
  Escribe(Todos<FXTextField>(listas).at(0), "qq");
  propia_.Ejecuta(
      "insert into norte.moneda (monedaid, monedadescri, monedavalor) values ('Q2','qq',1),('Q1','QQ',1)");
  Pulsa(Boton(listas, "&Releer"));
  EXPECT_EQ(Celdas(listas, 0), (Textos{"Q1", "Q2"}));
}

TEST_F(ConsultasTest, SinConexionReleerLoDiceYElProgramaSigue) {
  auto* const listas = AbreLista("Monedas");
  propia_.MataSesiones();
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(listas, "&Releer"));
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
  EXPECT_FALSE(guion.Ultimo().texto.empty());
  EXPECT_TRUE(Usable(TablaDe(listas)));
}

TEST_F(ConsultasTest, LoQueElServidorNiegaAlReleerSeDice) {
  auto* const listas = AbreLista("Monedas");
  EXPECT_FALSE(Celdas(listas, 0).empty());
  propia_.Ejecuta("drop function norte.spsmoneda cascade");
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(listas, "&Releer"));
  EXPECT_EQ(guion.Ultimo().titulo, "Monedas");
  EXPECT_NE(guion.Ultimo().texto.find("spsmoneda"), std::string::npos) << guion.Ultimo().texto;
  EXPECT_TRUE(Celdas(listas, 0).empty());
}

TEST_F(ConsultasTest, UnReporteQueNoCabeEnElDiscoSeDice) {
  auto* const listas = AbreLista("Monedas");
  auto* const marco = Todos<MarcoDeTabla>(listas).at(0);
  EXPECT_TRUE(marco->EscribeReporte());
  const DiscoLleno lleno;
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  EXPECT_FALSE(marco->EscribeReporte());
  EXPECT_EQ(guion.Ultimo().texto,
            "No se pudo escribir entero reporte.txt: el disco está lleno o no responde.");
}

TEST_F(ConsultasTest, LasColumnasGuardanAnchoYLugarPorCatalogo) {
  auto* const listas = AbreLista("Monedas");
  ListaDeTabla* const lista = TablaDe(listas);
  lista->setHeaderSize(0, 77);
  lista->Mueve(0, true);
  EXPECT_EQ(lista->Columnas(), (std::vector<int>{1, 0, 2}));
  FXList* const nombres = Lista(listas);
  EligeRenglon(nombres, nombres->findItem("Grupos"));
  EXPECT_EQ(lista->Columnas(), (std::vector<int>{0, 1}));
  EligeRenglon(nombres, nombres->findItem("Monedas"));
  EXPECT_EQ(lista->Columnas(), (std::vector<int>{1, 0, 2}));
  EXPECT_EQ(lista->getHeaderSize(1), 77);
}

TEST_F(ConsultasTest, ElCsvSePideSeEscribeYSeDice) {
  const Mandatos carpeta;
  auto* const listas = AbreLista("Monedas");
  Guion guion;
  guion.Con([](FXDialogBox* pide) { Pulsa(Boton(pide, "&Aceptar")); });
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(listas, "CS&V"));
  EXPECT_EQ(Contenido("monedas.csv"), TablaDe(listas)->Datos().Csv({0, 1, 2}));
  guion.Con([](FXDialogBox* pide) {
    Escribe(Todos<FXTextField>(pide).at(0), "/proc/monedas.csv");
    Pulsa(Boton(pide, "&Aceptar"));
  });
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(listas, "CS&V"));
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
}

TEST_F(ConsultasTest, SeImprimeConElEncabezadoDeLaInstitucion) {
  Mandatos carpeta;
  carpeta.Pon("lpr");
  auto* const listas = AbreLista("Monedas");
  Pulsa(Boton(listas, "I&mprimir"));
  EXPECT_EQ(carpeta.Llamada(), (Textos{"lpr", "-l", "reporte.txt"}));
  const std::string texto = Contenido("reporte.txt");
  EXPECT_NE(texto.find("REPORTE  : Monedas"), std::string::npos);
  for (const std::string& clave : Celdas(listas, 0))
    EXPECT_NE(texto.find("\n" + clave + " "), std::string::npos) << clave;
}

TEST_F(ConsultasTest, UnRenglonAbreSuFormaConElDerechoYEnEseRenglon) {
  auto* const listas = AbreLista("Asesores");
  ListaDeTabla* const lista = TablaDe(listas);
  ASSERT_GE(lista->getNumItems(), 2);
  lista->setCurrentItem(1);
  Tecla(lista, KEY_Return);
  Bombea(50);
  FXMDIChild* forma = nullptr;
  for (FXMDIChild* hija : Todos<FXMDIChild>(principal_))
    if (std::string(hija->getClassName()) == "Asesor_Window") forma = hija;
  ASSERT_NE(forma, nullptr);
  EXPECT_EQ(Todos<FXTextField>(forma).at(1)->getText().text(), Celdas(listas, 1).at(1));
}

TEST_F(ConsultasTest, UnRenglonDeUnDialogoTambienSeElige) {
  auto* const listas = AbreLista("Tipos de garantías");
  ListaDeTabla* const lista = TablaDe(listas);
  lista->setCurrentItem(1);
  Guion guion;
  std::string clave;
  guion.Con([&](FXDialogBox* forma) {
    BombeaHasta([&] { return !Todos<FXTextField>(forma).at(0)->getText().empty(); }, 2000);
    clave = Todos<FXTextField>(forma).at(0)->getText().text();
    Pulsa(Boton(forma, "&Cerrar"));
  });
  Tecla(lista, KEY_Return);
  EXPECT_EQ(clave, Celdas(listas, 0).at(1));
}

TEST_F(ConsultasTest, SinElDerechoDeLaFormaElRenglonNoLaAbre) {
  auto* const listas = AbreLista("Asesores");
  propia_.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '0904'");
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Tecla(TablaDe(listas), KEY_Return);
  EXPECT_EQ(guion.Ultimo().titulo, "Acceso NO AUTORIZADO");
  EXPECT_EQ(Todos<FXMDIChild>(principal_).size(), 1u);
}

TEST_F(ConsultasTest, LoQueElCacheNoTieneTodaviaSeLeeAlElegirlo) {
  Catalogo::Activos.clear();
  auto* const listas = AbreLista("Activos fijos");
  EXPECT_EQ(std::to_string(TablaDe(listas)->getNumItems()),
            propia_.Valor("select count(*) from norte.activo"));
}

TEST_F(ConsultasTest, ConLaLineaCortadaCadaCatalogoLoDiceYElProgramaSigue) {
  auto* const listas = Abre<Listas_Window>();
  FXList* const nombres = Lista(listas);
  Guion guion;
  size_t cajas = 0;
  guion.EnAdelante([&](FXDialogBox* caja) {
    ++cajas;
    Pulsa(Todos<FXButton>(caja).at(0));
  });
  EligeRenglon(nombres, nombres->findItem("Monedas"));
  propia_.MataSesiones();
  for (FXint i = 0; i < nombres->getNumItems(); ++i) {
    cajas = 0;
    EligeRenglon(nombres, i);
    Pulsa(Boton(listas, "&Releer"));
    EXPECT_GE(cajas, 1u) << nombres->getItemText(i).text();
  }
  EXPECT_TRUE(Usable(TablaDe(listas)));
}

/// Rows ahead of which no trigger runs.
void Inserta(BaseDatos& base, const std::string& sql) {
  base.Ejecuta("set session_replication_role = replica; insert into " + sql);
}

TEST_F(ConsultasTest, UnCatalogoNacionalSeMuestraSeFiltraYSeOrdena) {
  Inserta(
      propia_,
      "norte.colonias (coloniaid, ciudadmexid, nombrecolonia, cp, tipoasentamientoid) select 1000000 + n, 1, "
      "'Ñandú ' || n, 1 + n % 999, 1 from generate_series(1, 145000) n");
  Inserta(propia_,
          "norte.catalogo_ctas select nueva.* from (select * from norte.catalogo_ctas limit 1) t, "
          "generate_series(1, 20000) n, jsonb_populate_record(null::norte.catalogo_ctas, to_jsonb(t) || "
          "jsonb_build_object('cuentaid', 'Q' || n)) nueva");
  auto* const listas = AbreLista("Cuentas contables");
  Pulsa(Boton(listas, "&Releer"));
  EXPECT_EQ(std::to_string(TablaDe(listas)->getNumItems()),
            propia_.Valor("select count(*) from norte.catalogo_ctas"));
  EligeRenglon(Lista(listas), Lista(listas)->findItem("Colonias"));
  Pulsa(Boton(listas, "&Releer"));
  EXPECT_EQ(std::to_string(TablaDe(listas)->getNumItems()),
            propia_.Valor("select count(*) from norte.colonias"));
  Escribe(Todos<FXTextField>(listas).at(0), "ñandu 77777");
  EXPECT_EQ(Celdas(listas, 2), Textos{"Ñandú 77777"});
  Escribe(Todos<FXTextField>(listas).at(0), "");
  TablaDe(listas)->Ordena(2);
  TablaDe(listas)->Ordena(2);
  const Textos nombres = Celdas(listas, 2);
  EXPECT_TRUE(std::is_sorted(nombres.rbegin(), nombres.rend(), [](const auto& una, const auto& otra) {
    return ClaveDeOrden(una) < ClaveDeOrden(otra);
  }));
  catalogo.Colonias.RemoverTodos();
}

// The log.

TEST_F(ConsultasTest, LaBitacoraDiceQuienCambioQueYQueTenia) {
  propia_.Ejecuta(
      "set session authorization adriana; set search_path to public, norte; select spimoneda('Q5','Uno',1); "
      "select spumoneda('Q5','Dos',1); reset session authorization");
  auto* const bitacora = Abre<Bitacora_Window>();
  Escribe(bitacora, "Tabla:", "moneda");
  Escribe(bitacora, "Clave:", "Q5");
  Pulsa(Boton(bitacora, "&Buscar"));
  EXPECT_EQ(Celdas(bitacora, 2), (Textos{"Cambio", "Alta"}));
  EXPECT_EQ(Celdas(bitacora, 1), (Textos{"adriana", "adriana"}));
  const Tabla_t& detalle = Todos<ListaDeTabla>(bitacora).at(1)->Datos();
  ASSERT_EQ(detalle.Filas(), 3);
  EXPECT_STREQ(detalle.Celda(0, 0), "monedadescri");
  EXPECT_STREQ(detalle.Celda(0, 1), "●");
  EXPECT_STREQ(detalle.Celda(0, 2), "Uno");
  EXPECT_STREQ(detalle.Celda(0, 3), "Dos");
  EXPECT_STREQ(detalle.Celda(1, 1), "");
}

TEST_F(ConsultasTest, LaBitacoraSePaginaDeA500) {
  propia_.Ejecuta(
      "insert into norte.bitacora (tabla, clave, operacion) select 'tabla_borrada', n, 'INSERT' from "
      "generate_series(1, 1200) n");
  auto* const bitacora = Abre<Bitacora_Window>();
  Escribe(bitacora, "Tabla:", "tabla_borrada");
  Pulsa(Boton(bitacora, "&Buscar"));
  EXPECT_EQ(TablaDe(bitacora)->getNumItems(), 500);
  Bombea();
  Pulsa(Boton(bitacora, "Vie&jas >>"));
  Bombea();
  Pulsa(Boton(bitacora, "Vie&jas >>"));
  EXPECT_EQ(TablaDe(bitacora)->getNumItems(), 200);
  EXPECT_EQ(Celdas(bitacora, 5).back(), "1");
  Bombea();
  EXPECT_FALSE(Boton(bitacora, "Vie&jas >>")->isEnabled());
  Pulsa(Boton(bitacora, "<< &Nuevas"));
  EXPECT_EQ(Celdas(bitacora, 5).front(), "700");
}

TEST_F(ConsultasTest, LosFiltrosDeLaBitacoraSonTextosYNada) {
  auto* const bitacora = Abre<Bitacora_Window>();
  for (const std::string& filtro : {std::string("o'brien"), std::string("%"), std::string("\\'; drop"),
                                    std::string("´"), std::string(5000, 'x')}) {
    const Guion guion;
    Escribe(bitacora, "Clave:", filtro);
    Pulsa(Boton(bitacora, "&Buscar"));
    EXPECT_EQ(TablaDe(bitacora)->getNumItems(), 0) << filtro.substr(0, 20);
  }
}

TEST_F(ConsultasTest, SinElModuloLaBitacoraSeNiegaConPalabras) {
  auto* const bitacora = Abre<Bitacora_Window>();
  propia_.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '0912'");
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(bitacora, "&Buscar"));
  EXPECT_NE(guion.Ultimo().texto.find("No tiene permiso para la opción Bitácora"), std::string::npos);
  EXPECT_EQ(TablaDe(bitacora)->getNumItems(), 0);
}

TEST_F(ConsultasTest, LaLineaCortadaEnLaBitacoraSeDice) {
  auto* const bitacora = Abre<Bitacora_Window>();
  Espia espia;
  espia.En(0, falla::CorteAntes());
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(bitacora, "&Buscar"));
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
}

TEST_F(ConsultasTest, LaLineaCortadaEnCadaSentenciaDeLaBitacoraYLaMatrizSeDice) {
  for (size_t n = 0; n < 4; ++n) {
    sesion_.reset();
    sesion_.emplace(propia_);
    Espia espia;
    Guion guion;
    size_t cajas = 0;
    guion.EnAdelante([&](FXDialogBox* caja) {
      ++cajas;
      Pulsa(Todos<FXButton>(caja).at(0));
    });
    espia.En(n, falla::CorteAntes());
    auto* const bitacora = Abre<Bitacora_Window>();
    Pulsa(Boton(bitacora, "&Buscar"));
    auto* const permisos = Abre<Permisos_Window>();
    Pulsa(Boton(permisos, "&Releer"));
    EXPECT_GE(cajas, 1u) << n;
    EXPECT_TRUE(Usable(TablaDe(permisos)));
    Pulsa(Boton(permisos, "&Cerrar"));
    Pulsa(Boton(bitacora, "&Cerrar"));
  }
}

TEST_F(ConsultasTest, UnaBitacoraDeUnMillonDeLineasContestaEnUnInstante) {
  propia_.Ejecuta(
      "insert into norte.bitacora (tabla, clave, operacion, usuario) select 'tabla_' || n % 50, (n / "
      "50)::text, "
      "'UPDATE', 'nadie' from generate_series(1, 1000000) n; analyze norte.bitacora");
  auto* const bitacora = Abre<Bitacora_Window>();
  const auto tarda = [&] {
    const FXTime desde = FXThread::time();
    Pulsa(Boton(bitacora, "&Buscar"));
    return static_cast<double>(FXThread::time() - desde) / 1e9;
  };
  EXPECT_LT(tarda(), 2);
  EXPECT_EQ(TablaDe(bitacora)->getNumItems(), 500);
  Escribe(bitacora, "Tabla:", "tabla_7");
  Escribe(bitacora, "Clave:", "12345");
  EXPECT_LT(tarda(), 2);
  EXPECT_EQ(Celdas(bitacora, 5), Textos{"12345"});
}

TEST_F(ConsultasTest, LaMatrizDe500UsuariosSeMuestraYSeEscribe) {
  propia_.Ejecuta(
      "insert into norte.usuario (usuarioid, tipousuarioid) select 'u' || n, 'CON' from generate_series(1, "
      "500) n");
  const Mandatos carpeta;
  auto* const permisos = Abre<Permisos_Window>();
  EXPECT_EQ(std::to_string(TablaDe(permisos)->getNumItems()),
            propia_.Valor("select count(*) from norte.usuario"));
  Guion guion;
  guion.Con([](FXDialogBox* pide) { Pulsa(Boton(pide, "&Aceptar")); });
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(permisos, "CS&V"));
  const std::string csv = Contenido("permisos.csv");
  EXPECT_EQ(static_cast<int>(std::count(csv.begin(), csv.end(), '\n')), TablaDe(permisos)->getNumItems() + 1);
}

TEST_F(ConsultasTest, LaMatrizTieneATodosContraTodo) {
  auto* const permisos = Abre<Permisos_Window>();
  const Tabla_t& tabla = TablaDe(permisos)->Datos();
  EXPECT_EQ(std::to_string(tabla.Filas()), propia_.Valor("select count(*) from norte.usuario"));
  EXPECT_EQ(std::to_string(tabla.NumColumnas() - 3), propia_.Valor("select count(*) from norte.modulo"));
  const ::Tabla::Columna& primera = tabla.Columnas().at(3);
  EXPECT_EQ(
      primera.titulo,
      propia_.Valor("select rtrim(clavemodulo) || ' ' || descrimodulo || ' (' || (select count(*) from "
                    "norte.permisomodulo p where p.clavemodulo = m.clavemodulo and permiso <> 'N') || ')' "
                    "from norte.modulo m order by clavemodulo limit 1"));
  for (int fila = 0; fila < tabla.Filas(); ++fila)
    EXPECT_EQ(tabla.Celda(fila, 2),
              propia_.Valor("select count(*) from norte.permisomodulo where permiso <> 'N' and "
                            "usuarioid = '" +
                            std::string(tabla.Celda(fila, 0)) + "'"));
}

}  // namespace
}  // namespace pruebas
