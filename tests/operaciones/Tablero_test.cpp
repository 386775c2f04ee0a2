// The board of closed months: its figures are those of the exports, and its picture is that of its figures.
#include <fx.h>
// They need the toolkit ahead of them.
#include <FXPNGImage.h>
#include <fxkeys.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <optional>

#include "app/sesion.h"
#include "db/Engine.h"
#include "operaciones/Consulta.h"
#include "operaciones/Grafica.h"
#include "operaciones/Tablero_Window.h"
#include "reports/Precorte.h"
#include "tests/operaciones/ConOperaciones.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/Mandatos.h"
#include "widgets/date.h"

namespace pruebas {
namespace {

constexpr FXColor azul = FXRGB(52, 101, 164), rojo = FXRGB(204, 70, 40), verde = FXRGB(90, 150, 60);
constexpr FXint bajoLaLeyenda = 40;

/// How many points of that colour stand in each column of the picture, its legend aside.
std::vector<int> Altos(const FXImage& imagen, FXColor color) {
  std::vector<int> altos(imagen.getWidth());
  for (FXint x = 0; x < imagen.getWidth(); ++x)
    for (FXint y = bajoLaLeyenda; y < imagen.getHeight(); ++y)
      altos[x] += (imagen.getPixel(x, y) & 0xFFFFFF) == (color & 0xFFFFFF);
  return altos;
}
int MasAlta(const FXImage& imagen, FXColor color) {
  const std::vector<int> altos = Altos(imagen, color);
  return *std::max_element(altos.begin(), altos.end());
}

bool Iguales(const FXImage& una, const FXImage& otra) {
  return una.getWidth() == otra.getWidth() && una.getHeight() == otra.getHeight() &&
         std::equal(una.getData(), una.getData() + una.getWidth() * una.getHeight(), otra.getData());
}

class TableroTest : public ConOperaciones {
 protected:
  static ListaDeTabla* Renglones(Tablero_Window* tablero) { return Todos<ListaDeTabla>(tablero).at(0); }
  static FXComboBox* Tipos(Tablero_Window* tablero) { return Todos<FXComboBox>(tablero).at(0); }
  static Textos Celdas(Tablero_Window* tablero, int fila) {
    Textos celdas;
    const ::Tabla& tabla = Renglones(tablero)->Datos();
    for (int columna = 0; columna < tabla.NumColumnas(); ++columna)
      celdas.emplace_back(tabla.Celda(fila, columna));
    return celdas;
  }
  /// The last day of a month, 0 being the one before this.
  static date FinDeMes(int haceMeses) {
    const date hoy = today();
    date dia = date(1, hoy.month(), hoy.year()) - 1;
    while (haceMeses-- > 0) dia = date(1, dia.month(), dia.year()) - 1;
    return dia;
  }
  static void Cierra(const date& dia) {
    Consulta("select * from precierre('" + std::string(dia.AsDMY()) + "');");
    ASSERT_STREQ(Celda(0, 0), "1");
    LiberaResultado();
  }
  static std::string Mes(const date& dia) { return std::string(dia.AsDMY()).substr(3); }

  static long Centavos(const char* importe) { return std::lround(strtod(importe, nullptr) * 100); }
  static std::string Importe(long centavos) {
    return FXStringFormat("%ld.%02ld", centavos / 100, centavos % 100).text();
  }
  /// What the rows of the export add up to, for each type and, its key blank, for all.
  static std::map<std::string, Textos> Exportado(const date& dia) {
    std::map<std::string, std::vector<long>> sumas{{"", std::vector<long>(3)}};
    Consulta(static_cast<const char*>(SqlPrecorte(false, dia.AsDMY(), dia.year(), dia.month())));
    const auto columna = [](const char* nombre) { return PQfnumber(res, nombre); };
    for (int fila = 0; fila < PQntuples(res); ++fila) {
      for (const std::string& tipo : {std::string(), std::string(Celda(fila, columna("tipoprestamoid")))}) {
        std::vector<long>& suma = sumas[tipo];
        suma.resize(3);
        suma[0] += Centavos(Celda(fila, columna("saldoprestamo")));
        suma[1] += Centavos(Celda(fila, columna("saldovencidomenoravencido"))) +
                   Centavos(Celda(fila, columna("saldovencidomayoravencido")));
        suma[2] += Centavos(Celda(fila, columna("reservacalculada")));
      }
    }
    LiberaResultado();
    std::map<std::string, Textos> renglones;
    for (const auto& [tipo, suma] : sumas)
      renglones[tipo] = {Mes(dia), Importe(suma[0]), Importe(suma[1]), Importe(suma[2])};
    return renglones;
  }
  /// Answers the box for the file with `archivo`.
  static void Contesta(Guion& guion, const std::string& archivo) {
    guion.Con([archivo](FXDialogBox* pide) {
      Escribe(Todos<FXTextField>(pide).at(0), archivo);
      Pulsa(Boton(pide, "&Aceptar"));
    });
  }

  BaseDatos propia_;
  std::optional<Sesion> sesion_{propia_};
};

TEST_F(TableroTest, CadaCifraEsLaDeLaExportacionAlCentavo) {
  const std::vector<date> dias = {FinDeMes(2), FinDeMes(1), FinDeMes(0)};
  for (const date& dia : dias) Cierra(dia);
  // One that the export leaves out, for lack of a city, and a type that the last month has no loan of.
  propia_.Ejecuta(
      "update norte.domicilio set ciudadmexid = null where sujetoid = (select sujetoid from norte.precorte "
      "join norte.prestamos using (prestamoid) join norte.socio using (socioid) order by saldoprestamo desc "
      "limit 1); delete from norte.precorte where tipoprestamoid = 'EMP' and fechacierre = '" +
      std::string(dias[2].AsChar()) + "'");
  std::vector<std::map<std::string, Textos>> exportados;
  for (const date& dia : dias) exportados.push_back(Exportado(dia));
  ASSERT_GT(exportados[0].size(), 5u);
  ASSERT_EQ(exportados[2].count("EMP"), 0u);
  exportados[2]["EMP"] = {Mes(dias[2]), "0.00", "0.00", "0.00"};

  auto* const tablero = Abre<Tablero_Window>();
  FXComboBox* const tipos = Tipos(tablero);
  EXPECT_EQ(tipos->getItem(0), "Todos");
  EXPECT_EQ(tipos->getCurrentItem(), 0);
  ASSERT_EQ(static_cast<size_t>(tipos->getNumItems()), exportados[0].size());
  auto tipo = exportados[0].begin();
  for (FXint i = 0; i < tipos->getNumItems(); ++i, ++tipo) {
    SCOPED_TRACE(tipos->getItem(i).text());
    EXPECT_EQ(tipos->getItem(i).left(static_cast<FXint>(tipo->first.size())),
              (i == 0 ? "" : tipo->first.c_str()));
    EligeOpcion(tipos, i);
    ASSERT_EQ(Renglones(tablero)->Datos().Filas(), 3);
    for (int fila = 0; fila < 3; ++fila) EXPECT_EQ(Celdas(tablero, fila), exportados[fila].at(tipo->first));
  }
}

TEST_F(TableroTest, SusBarrasMidenLoQueDicenSusCifras) {
  Cierra(FinDeMes(0));
  auto* const tablero = Abre<Tablero_Window>();
  for (const FXint tipo : {0, 1}) {
    EligeOpcion(Tipos(tablero), tipo);
    const Textos celdas = Celdas(tablero, 0);
    const double saldo = MasAlta(*tablero->Imagen(), azul);
    EXPECT_GT(saldo, 50);
    const double vencido = strtod(celdas[2].c_str(), nullptr) / strtod(celdas[1].c_str(), nullptr);
    EXPECT_NEAR(MasAlta(*tablero->Imagen(), rojo), saldo * vencido, 1.5);
    const double reserva = strtod(celdas[3].c_str(), nullptr) / strtod(celdas[1].c_str(), nullptr);
    EXPECT_NEAR(MasAlta(*tablero->Imagen(), verde), saldo * reserva, 1.5);
    EXPECT_GT(vencido + reserva, 0);
  }
}

TEST_F(TableroTest, UnMesEsUnGrupoDeBarras) {
  const std::string dia = FinDeMes(0).AsChar();
  propia_.Ejecuta(
      "insert into norte.cierre select extract(year from m), extract(month from m), m from generate_series("
      "date_trunc('month', date '" +
      dia + "') - interval '30 months', date '" + dia + "' - interval '32 days', '1 month') m");
  Cierra(FinDeMes(0));
  auto* const tablero = Abre<Tablero_Window>();
  EXPECT_EQ(std::to_string(Renglones(tablero)->Datos().Filas()),
            propia_.Valor("select count(*) from norte.cierre where ejercicio * 12 + periodo > (select "
                          "max(ejercicio * 12 + periodo) - 12 from norte.cierre)"));
  EXPECT_EQ(Celdas(tablero, 0)[1], "0.00");
  const std::vector<int> altos = Altos(*tablero->Imagen(), azul);
  EXPECT_EQ(std::count_if(altos.begin(), altos.begin() + 600, [](int alto) { return alto > 0; }), 0);
  EXPECT_GT(*std::max_element(altos.begin() + 600, altos.end()), 50);
}

TEST_F(TableroTest, SinMesesCerradosLoDiceLaImagen) {
  const Espia espia;
  auto* const tablero = Abre<Tablero_Window>();
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spstablero();"});
  EXPECT_EQ(Renglones(tablero)->Datos().Filas(), 0);
  EXPECT_EQ(Tipos(tablero)->getNumItems(), 1);
  FXImage otra(&App(), nullptr, IMAGE_KEEP | IMAGE_OWNED, tablero->Imagen()->getWidth(),
               tablero->Imagen()->getHeight());
  otra.create();
  DibujaBarras(&otra, App().getNormalFont(), {}, {}, "No hay meses cerrados.");
  EXPECT_TRUE(Iguales(*tablero->Imagen(), otra));
  DibujaBarras(&otra, App().getNormalFont(), {}, {}, "");
  EXPECT_FALSE(Iguales(*tablero->Imagen(), otra));
}

TEST_F(TableroTest, F5LeeDeNuevoYElTipoSeQueda) {
  Cierra(FinDeMes(1));
  auto* const tablero = Abre<Tablero_Window>();
  EligeOpcion(Tipos(tablero), 2);
  const FXString elegido = Tipos(tablero)->getText();
  Cierra(FinDeMes(0));
  Tecla(Tipos(tablero), KEY_F5);
  EXPECT_EQ(Renglones(tablero)->Datos().Filas(), 2);
  EXPECT_EQ(Tipos(tablero)->getText(), elegido);
  EXPECT_EQ(Celdas(tablero, 1), Exportado(FinDeMes(0)).at(elegido.left(3).text()));
  propia_.Ejecuta("delete from norte.precorte; delete from norte.cierre");
  Pulsa(Boton(tablero, "&Releer"));
  EXPECT_EQ(Tipos(tablero)->getText(), "Todos");
  EXPECT_EQ(Renglones(tablero)->Datos().Filas(), 0);
}

TEST_F(TableroTest, SinElModuloElServidorSeNiega) {
  auto* const tablero = Abre<Tablero_Window>();
  propia_.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '0914'");
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(tablero, "&Releer"));
  EXPECT_NE(guion.Ultimo().texto.find("No tiene permiso para la opción Tablero de cierres"),
            std::string::npos);
}

TEST_F(TableroTest, ConLaLineaCortadaLoDiceYElProgramaSigue) {
  Cierra(FinDeMes(0));
  for (const bool alAbrir : {true, false}) {
    sesion_.reset();
    sesion_.emplace(propia_);
    Espia espia;
    Guion guion;
    guion.Responde(Respuesta::Aceptar);
    espia.En(alAbrir ? 0 : 1, falla::CorteAntes());
    auto* const tablero = Abre<Tablero_Window>();
    const Textos antes = alAbrir ? Textos{} : Celdas(tablero, 0);
    if (!alAbrir) Pulsa(Boton(tablero, "&Releer"));
    EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
    EXPECT_EQ(guion.Ultimo().titulo, "Tablero");
    EXPECT_EQ(Renglones(tablero)->Datos().Filas(), alAbrir ? 0 : 1);
    if (!alAbrir) {
      EXPECT_EQ(Celdas(tablero, 0), antes);
    }
    EXPECT_EQ(MasAlta(*tablero->Imagen(), azul) > 0, !alAbrir);
    EXPECT_TRUE(Usable(Tipos(tablero)));
    Pulsa(Boton(tablero, "&Cerrar"));
  }
}

TEST_F(TableroTest, UnaRespuestaMalaNoLoTumba) {
  Cierra(FinDeMes(0));
  auto* const tablero = Abre<Tablero_Window>();
  for (const Falla& mala : {falla::Nula(), falla::Error("100%s"), falla::SinFilas(), falla::Recortada(2),
                            falla::ConNulos(), falla::ConTextos()}) {
    Espia espia;
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).at(0)); });
    espia.En(0, mala);
    Pulsa(Boton(tablero, "&Releer"));
    for (FXint i = 0; i < Tipos(tablero)->getNumItems(); ++i) EligeOpcion(Tipos(tablero), i);
    EXPECT_TRUE(Usable(Tipos(tablero)));
  }
  Pulsa(Boton(tablero, "&Releer"));
  EXPECT_EQ(Celdas(tablero, 0), Exportado(FinDeMes(0)).at(""));
}

TEST_F(TableroTest, ElPngEsLaImagen) {
  const Mandatos carpeta;
  Cierra(FinDeMes(0));
  auto* const tablero = Abre<Tablero_Window>();
  Guion guion;
  guion.Con([](FXDialogBox* pide) { Pulsa(Boton(pide, "&Aceptar")); });
  guion.Responde(Respuesta::Aceptar);
  Pulsa(Boton(tablero, "Guar&dar PNG"));
  EXPECT_EQ(guion.Ultimo().clase, Clase::Informacion);
  FXPNGImage leida(&App());
  FXFileStream archivo;
  ASSERT_TRUE(archivo.open("tablero.png", FXStreamLoad));
  ASSERT_TRUE(leida.loadPixels(archivo));
  EXPECT_TRUE(Iguales(leida, *tablero->Imagen()));

  // Once more: it asks, and what is answered with no stays.
  ASSERT_EQ(EscribeArchivo("tablero.png", "anterior"), "");
  guion.Con([](FXDialogBox* pide) { Pulsa(Boton(pide, "&Aceptar")); });
  guion.Responde(Respuesta::No);
  Pulsa(Boton(tablero, "Guar&dar PNG"));
  EXPECT_EQ(Contenido("tablero.png"), "anterior");
}

TEST_F(TableroTest, DondeNoSePuedeEscribirLoDiceYElAnteriorQuedaEntero) {
  const Mandatos carpeta;
  Cierra(FinDeMes(0));
  auto* const tablero = Abre<Tablero_Window>();
  for (const char* const nombre : {"/proc/tablero.png", "no/hay/%s.png"}) {
    Guion guion;
    Contesta(guion, nombre);
    guion.Responde(Respuesta::Aceptar);
    Pulsa(Boton(tablero, "Guar&dar PNG"));
    EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
    EXPECT_NE(guion.Ultimo().texto.find("No se pudo escribir " + std::string(nombre)), std::string::npos)
        << guion.Ultimo().texto;
  }
  ASSERT_EQ(EscribeArchivo("lleno.png", "anterior"), "");
  Guion guion;
  Contesta(guion, "lleno.png");
  guion.Responde(Respuesta::Si);
  guion.Responde(Respuesta::Aceptar);
  {
    const DiscoLleno lleno;
    Pulsa(Boton(tablero, "Guar&dar PNG"));
  }
  EXPECT_EQ(guion.Ultimo().clase, Clase::Error);
  EXPECT_EQ(Contenido("lleno.png"), "anterior");
}

TEST_F(TableroTest, ElEjeTienePasosRedondos) {
  const struct {
    double mayor, paso;
  } casos[] = {{0, 0},  {-3, 0}, {4, 1},  {5, 1},   {5.1, 2},
               {10, 2}, {11, 5}, {25, 5}, {26, 10}, {1234567, 500000}};
  for (const auto& [mayor, paso] : casos) EXPECT_DOUBLE_EQ(PasoDeEje(mayor), paso) << mayor;
  const struct {
    double valor;
    const char* texto;
  } textos[] = {{0, "0"},       {999, "999"},     {1000, "1,000"}, {1234567, "1,234,567"},
                {-100, "-100"}, {-1000, "-1,000"}};
  for (const auto& [valor, texto] : textos) EXPECT_STREQ(EnMiles(valor).text(), texto);
}

}  // namespace
}  // namespace pruebas
