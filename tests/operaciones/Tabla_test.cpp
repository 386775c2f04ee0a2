// A catalogue as texts: the order of the Spanish alphabet, the filter, what a spreadsheet gets, the file.
#include "operaciones/Tabla.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "operaciones/Plegado.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/Mandatos.h"

namespace pruebas {
namespace {

Tabla Hecha() {
  Tabla tabla({{"Clave", Tabla::Texto}, {"Valor", Tabla::Numero}, {"Día", Tabla::Fecha}});
  const struct {
    const char* clave;
    double valor;
    const char* dia;
  } filas[] = {{"Ñandú", 10, "2026-02-01"},
               {"nube", 9, "2025-12-31"},
               {"oso", -1.5, ""},
               {"NÁCAR  ", 100, "2026-01-15"}};
  for (const auto& fila : filas) {
    tabla.Agrega(fila.clave);
    tabla.Agrega(fila.valor);
    tabla.Agrega(date(fila.dia));
  }
  tabla.Rehace();
  return tabla;
}

Textos Columna(const Tabla& tabla, int columna) {
  Textos textos;
  for (int i = 0; i < tabla.Visibles(); ++i) textos.emplace_back(tabla.Celda(tabla.Fila(i), columna));
  return textos;
}

TEST(Plegado, NiAcentosNiMayusculasCuentan) {
  const struct {
    const char* texto;
    const char* plegado;
  } casos[] = {{"ÁÉÍÓÚÜ áéíóúü", "aeiouu aeiouu"},
               {"Ñandú", "ñandu"},
               {"N\xCC\x83", "ñ"},
               {"n\xCC\x83o", "ño"},
               {"a\xCC\x81", "a"},
               {"´", ""},
               {"¨", ""},
               {"Çà Øre ßÿ", "ca ore ßy"},
               {"%'\"_", "%'\"_"},
               {"\xC3", "\xC3"},
               {"a\xFF\xC3", "a\xFF\xC3"},
               {"€ 日", "€ 日"}};
  for (const auto& caso : casos) EXPECT_EQ(Plegado(caso.texto), caso.plegado) << caso.texto;
}

TEST(Plegado, LaEnieVaDetrasDeLaEne) {
  EXPECT_LT(ClaveDeOrden("nz"), ClaveDeOrden("Ñ"));
  EXPECT_LT(ClaveDeOrden("ñandú"), ClaveDeOrden("o"));
  EXPECT_EQ(ClaveDeOrden("ÁRBOL"), ClaveDeOrden("arbol"));
}

TEST(Tabla, LasCeldasSonLoQueLaPantallaMuestra) {
  Tabla tabla({{"a", Tabla::Texto}, {"b", Tabla::Numero}, {"c", Tabla::Numero}, {"d", Tabla::Fecha}});
  tabla.Agrega("x  ");
  tabla.Agrega(12.5F);
  tabla.Agrega(-3L);
  tabla.Agrega(date(1, 2, 2026));
  tabla.Agrega("");
  tabla.Agrega(0.1);
  tabla.Agrega(7);
  tabla.Agrega(date());
  ASSERT_EQ(tabla.Filas(), 2);
  const Textos esperadas[] = {{"x", "12.5", "-3", "01/02/2026"}, {"", "0.1", "7", ""}};
  for (int fila = 0; fila < 2; ++fila)
    for (int columna = 0; columna < 4; ++columna)
      EXPECT_EQ(tabla.Celda(fila, columna), esperadas[fila][columna]);
}

TEST(Tabla, OrdenaTextosNumerosYFechasComoLoQueSon) {
  Tabla tabla = Hecha();
  tabla.Ordena(0, false);
  EXPECT_EQ(Columna(tabla, 0), (Textos{"NÁCAR", "nube", "Ñandú", "oso"}));
  tabla.Ordena(0, true);
  EXPECT_EQ(Columna(tabla, 0), (Textos{"oso", "Ñandú", "nube", "NÁCAR"}));
  tabla.Ordena(1, false);
  EXPECT_EQ(Columna(tabla, 1), (Textos{"-1.5", "9", "10", "100"}));
  tabla.Ordena(2, false);
  EXPECT_EQ(Columna(tabla, 2), (Textos{"", "31/12/2025", "15/01/2026", "01/02/2026"}));
  tabla.Ordena(-1, false);
  EXPECT_EQ(Columna(tabla, 0), (Textos{"Ñandú", "nube", "oso", "NÁCAR"}));
}

TEST(Tabla, ElFiltroBuscaCadaPalabraEnLaFila) {
  const struct {
    std::string filtro;
    Textos quedan;
  } casos[] = {{"", {"Ñandú", "nube", "oso", "NÁCAR"}},
               {"NACAR", {"NÁCAR"}},
               {"ñ", {"Ñandú"}},
               {"´", {"Ñandú", "nube", "oso", "NÁCAR"}},
               {"2026 ñan", {"Ñandú"}},
               {"  oso ", {"oso"}},
               {"osonube", {}},
               {"oso-1.5", {}},  // no word reaches from a cell into the next
               {"%", {}},
               {"'\"", {}},
               {std::string(5000, 'o'), {}}};
  Tabla tabla = Hecha();
  for (const auto& caso : casos) {
    tabla.Filtra(caso.filtro);
    EXPECT_EQ(Columna(tabla, 0), caso.quedan) << caso.filtro.substr(0, 20);
  }
}

TEST(Tabla, ElFiltroYElOrdenVanJuntos) {
  Tabla tabla = Hecha();
  tabla.Filtra("2026");
  tabla.Ordena(1, true);
  EXPECT_EQ(Columna(tabla, 0), (Textos{"NÁCAR", "Ñandú"}));
  Tabla otra = Hecha();
  otra.TomaFiltro(tabla);
  otra.Ordena(tabla.Orden(), tabla.Descendente());
  EXPECT_EQ(Columna(otra, 0), (Textos{"NÁCAR", "Ñandú"}));
}

TEST(Tabla, NadaSeCorreComoFormula) {
  const struct {
    const char* valor;
    const char* limpio;
  } casos[] = {{"=1+1", "'=1+1"},    {"+52 443", "'+52 443"},
               {"-a", "'-a"},        {"@SUM(A1)", "'@SUM(A1)"},
               {"  =1", "'  =1"},    {"\t=1", "'\t=1"},
               {"\rx", "'\rx"},      {"\nx", "'\nx"},
               {"-12.50", "-12.50"}, {"+7", "+7"},
               {"a=b", "a=b"},       {"", ""},
               {"-", "'-"},          {"-1-1", "'-1-1"},
               {"1.2.3", "1.2.3"},   {"-1.2.3", "'-1.2.3"},
               {"   ", "   "}};
  for (const auto& caso : casos) EXPECT_EQ(SinFormula(caso.valor), caso.limpio);
}

TEST(Tabla, ElCsvLlevaMarcaTitulosYSoloLoQueSeMuestra) {
  Tabla tabla({{"Clave", Tabla::Texto}, {"Saldo, \"final\"", Tabla::Numero}});
  for (const char* const clave : {"a,b", "di \"no\"", "dos\nlíneas", "=SUM(A1)", "punto;coma", "fuera"}) {
    tabla.Agrega(clave);
    tabla.Agrega(-1.5);
  }
  tabla.Rehace();
  EXPECT_EQ(tabla.Csv({1, 0}),
            "\xEF\xBB\xBF\"Saldo, \"\"final\"\"\",Clave\r\n"
            "-1.5,\"a,b\"\r\n-1.5,\"di \"\"no\"\"\"\r\n-1.5,\"dos\nlíneas\"\r\n-1.5,\"'=SUM(A1)\"\r\n"
            "-1.5,\"punto;coma\"\r\n-1.5,fuera\r\n");
  tabla.Filtra("fuera");
  EXPECT_EQ(tabla.Csv({0}),
            "\xEF\xBB\xBF"
            "Clave\r\nfuera\r\n");
}

TEST(Tabla, LoCopiadoNoRompeSusCeldas) {
  Tabla tabla({{"a", Tabla::Texto}, {"b", Tabla::Texto}});
  for (const char* const celda : {"uno\tdos", "x", "=1", "y\nz"}) tabla.Agrega(celda);
  tabla.Rehace();
  EXPECT_EQ(tabla.Tabulado({0, 1}, {1, 0}), "x\tuno dos\ny z\t'=1\n");
  EXPECT_EQ(tabla.Tabulado({}, {0}), "");
}

TEST(Tabla, UnaTablaVaciaTambienSeOrdenaYSeFiltra) {
  Tabla tabla({{"a", Tabla::Texto}});
  tabla.Ordena(0, true);
  tabla.Filtra("x");
  EXPECT_EQ(tabla.Visibles(), 0);
  EXPECT_EQ(tabla.Csv({0}),
            "\xEF\xBB\xBF"
            "a\r\n");
  EXPECT_EQ(Tabla().Filas(), 0);
}

// The file.

class ArchivoTest : public testing::Test {
 protected:
  const Mandatos carpeta_;  // the working directory is a new one
  static size_t Archivos() {
    const std::filesystem::directory_iterator inicio("."), fin;
    return static_cast<size_t>(std::distance(inicio, fin));
  }
};

TEST_F(ArchivoTest, SeEscribeEnteroYReemplazaAlAnterior) {
  const size_t antes = Archivos();
  EXPECT_EQ(EscribeArchivo("lista.csv", "uno"), "");
  EXPECT_EQ(Contenido("lista.csv"), "uno");
  EXPECT_EQ(EscribeArchivo("lista.csv", "dos"), "");
  EXPECT_EQ(Contenido("lista.csv"), "dos");
  EXPECT_EQ(Archivos(), antes + 1);
}

TEST_F(ArchivoTest, ConElDiscoLlenoElAnteriorQuedaEntero) {
  ASSERT_EQ(EscribeArchivo("lista.csv", "anterior"), "");
  const size_t antes = Archivos();
  std::string error;
  {
    const DiscoLleno lleno;
    error = EscribeArchivo("lista.csv", std::string(5000, 'x'));
  }
  EXPECT_EQ(error, "No se pudo escribir lista.csv:\nEl archivo es demasiado grande.");
  EXPECT_EQ(Contenido("lista.csv"), "anterior");
  EXPECT_EQ(Archivos(), antes);
}

TEST_F(ArchivoTest, UnaCarpetaQueNoSePuedeSeDice) {
  EXPECT_NE(EscribeArchivo("no/hay/lista.csv", "x"), "");
  EXPECT_NE(EscribeArchivo("/proc/lista.csv", "x"), "");
  std::filesystem::create_directory("carpeta");
  EXPECT_NE(EscribeArchivo("carpeta", "x"), "");
  EXPECT_TRUE(std::filesystem::is_directory("carpeta"));
}

TEST_F(ArchivoTest, ElEnlaceSigueSiendoEnlace) {
  ASSERT_EQ(EscribeArchivo("real.csv", "uno"), "");
  std::filesystem::create_symlink("real.csv", "enlace.csv");
  EXPECT_EQ(EscribeArchivo("enlace.csv", "dos"), "");
  EXPECT_TRUE(std::filesystem::is_symlink("enlace.csv"));
  EXPECT_EQ(Contenido("real.csv"), "dos");
}

}  // namespace
}  // namespace pruebas
