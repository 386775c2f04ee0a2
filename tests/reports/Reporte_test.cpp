// The page writer: its header to the byte, and where its pages end.
#include "reports/Reporte.h"

#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <string>

#include "app/sesion.h"
#include "tests/support/Mandatos.h"
#include "tests/support/Registros.h"
#include "widgets/TextoAcotado.h"

namespace pruebas {
namespace {

/// What is written to the file that `accion` is given.
std::string Escrito(const std::function<void(FILE*)>& accion) {
  char* texto = nullptr;
  size_t largo = 0;
  FILE* const archivo = open_memstream(&texto, &largo);
  accion(archivo);
  fclose(archivo);
  const std::string todo(texto, largo);
  free(texto);
  return todo;
}

Textos Paginas(const std::string& todo) {
  Textos paginas;
  size_t desde = 0;
  for (size_t fin; (fin = todo.find("\f\r", desde)) != std::string::npos; desde = fin + 2)
    paginas.push_back(todo.substr(desde, fin - desde));
  EXPECT_EQ(desde, todo.size()) << "algo después del último salto";
  return paginas;
}

int Lineas(const std::string& pagina) {
  int lineas = 0;
  for (size_t i = 0; (i = pagina.find("\r\n", i)) != std::string::npos; i += 2) ++lineas;
  return lineas;
}

class ReporteTest : public testing::Test {
 protected:
  void SetUp() override {
    CopiaTexto(gnombrecaja, "Caja del Ñandú");
    CopiaTexto(gsucid, "07");
    CopiaTexto(gsucursal, "norte");
  }
  void TearDown() override { gnombrecaja[0] = gsucid[0] = gsucursal[0] = '\0'; }
};

TEST_F(ReporteTest, ElEncabezadoByteAByte) {
  Reporte reporte("no se imprime", "CARTERA", "CLAVE", "uno", "dos", "tres", "", "", 8, 50);
  const std::string todo = Escrito([&](FILE* f) { reporte.Encabezado(f); });
  const std::string orden = "CLAVE" + std::string(45, ' ');
  EXPECT_TRUE(std::regex_match(
      todo, std::regex("\x12"
                       "Caja del Ñandú    Suc\\.07norte\r\n\r\n"
                       "\x0F"
                       "REPORTE  : CARTERA\r\n"
                       "Ordenado por : " +
                       orden +
                       "  Fecha de Impresion: \\d\\d/\\d\\d/\\d{4}  \\d\\d:\\d\\d:\\d\\d [AP]M      "
                       "Num\\. de Pag\\.:   8\r\nuno\r\ndos\r\ntres\r\n\r\n")))
      << todo;
}

TEST_F(ReporteTest, LosSubtitulosSoloSiNoEstanVacios) {
  const struct {
    const char *primero, *segundo, *escritos;
    int cuerpo;  ///< lines of a page below its header
  } casos[] = {
      {"", "", "tres\r\n\r\n", 52},
      {"a", "", "tres\r\na\r\n\r\n", 51},
      {"", "b", "tres\r\nb\r\n\r\n", 51},
      {"a", "b", "tres\r\na\r\nb\r\n\r\n", 50},
  };
  for (const auto& [primero, segundo, escritos, cuerpo] : casos) {
    SCOPED_TRACE(escritos);
    Reporte reporte("", "T", "O", "uno", "", "tres", primero, segundo, 1, 0);
    const std::string todo = Escrito([&, cuerpo = cuerpo](FILE* f) {
      reporte.Begin(f);
      for (int i = 0; i <= cuerpo; ++i) reporte.Imprime(f, "x");
      reporte.End(f);
    });
    const Textos paginas = Paginas(todo);
    ASSERT_EQ(paginas.size(), 2u);
    EXPECT_NE(paginas[0].find("uno\r\n\r\n" + std::string(escritos) + "x"), std::string::npos) << todo;
    EXPECT_EQ(Lineas(paginas[1]) + cuerpo - 1, Lineas(paginas[0]));
  }
}

TEST_F(ReporteTest, MilRenglonesSeCuentanPorPaginas) {
  Reporte reporte("", "CARTERA", "CLAVE", "uno", "dos", "tres", "", "", 77, 1);
  const std::string todo = Escrito([&](FILE* f) {
    reporte.Begin(f);
    for (int i = 1; i <= 1000; ++i) reporte.Imprime(f, ("renglón " + std::to_string(i)).c_str());
    reporte.End(f);
  });
  const Textos paginas = Paginas(todo);
  ASSERT_EQ(paginas.size(), 20u);  // 52 on a page
  int renglon = 0;
  for (size_t p = 0; p < paginas.size(); ++p) {
    SCOPED_TRACE(p);
    EXPECT_EQ(paginas[p].find("\x12"
                              "Caja del Ñandú"),
              0u);
    const std::string numero = "Num. de Pag.: " + std::string(p < 9 ? "  " : " ") + std::to_string(p + 1);
    EXPECT_NE(paginas[p].find(numero + "\r\n"), std::string::npos);
    const int cuerpo = p < 19 ? 52 : 1000 - 19 * 52;
    EXPECT_EQ(Lineas(paginas[p]), 8 + cuerpo);
    size_t lugar = paginas[p].find("tres\r\n\r\n") + 8;
    for (int i = 0; i < cuerpo; ++i) {
      const std::string esperado = "renglón " + std::to_string(++renglon) + "\r\n";
      EXPECT_EQ(paginas[p].substr(lugar, esperado.size()), esperado);
      lugar += esperado.size();
    }
    EXPECT_EQ(lugar, paginas[p].size());
  }
  EXPECT_EQ(renglon, 1000);
}

TEST_F(ReporteTest, LaLinea59TodaviaSeEscribeYLaSiguienteEmpiezaPagina) {
  for (const int linea : {58, 59, 60, 61}) {
    Reporte reporte("", "T", "O", "", "", "", "", "", 3, linea);
    const std::string todo = Escrito([&](FILE* f) { reporte.Imprime(f, "x"); });
    EXPECT_EQ(todo == "x\r\n", linea <= 59) << linea;
    EXPECT_EQ(todo.find("\f\r\x12"
                        "Caja"),
              linea <= 59 ? std::string::npos : 0u)
        << linea;
  }
}

TEST_F(ReporteTest, UnoSinDatosEmpiezaEnCero) {
  Reporte reporte;
  const std::string todo = Escrito([&](FILE* f) {
    reporte.Imprime(f, "100% %s");
    reporte.Encabezado(f);
  });
  EXPECT_EQ(todo.find("100% %s\r\n\x12"), 0u);
  EXPECT_NE(todo.find("Num. de Pag.:   0\r\n\r\n\r\n\r\n\r\n"), std::string::npos) << todo;
}

TEST_F(ReporteTest, LosTextosLargosSeCortanEnteros) {
  const std::string largo = TextoAcentuado();
  const char* const texto = largo.c_str();
  Reporte reporte(texto, texto, texto, texto, texto, texto, texto, texto, 1, 0);
  const std::string todo = Escrito([&](FILE* f) { reporte.Begin(f); });
  const std::string renglon = AcentuadoHasta(134) + "\r\n";
  EXPECT_NE(todo.find("REPORTE  : " + AcentuadoHasta(79) + "\r\n"), std::string::npos);
  EXPECT_NE(todo.find("Ordenado por : " + AcentuadoHasta(49)), std::string::npos);
  EXPECT_NE(todo.find(renglon + renglon + renglon + renglon + renglon + "\r\n"), std::string::npos);
}

TEST_F(ReporteTest, SinArchivoOSinTextoNoPasaNada) {
  Reporte reporte(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 1, 0);
  reporte.Begin(nullptr);
  reporte.Encabezado(nullptr);
  reporte.Imprime(nullptr, "x");
  reporte.End(nullptr);
  EXPECT_EQ(Escrito([&](FILE* f) { reporte.Imprime(f, nullptr); }), "\r\n");
}

TEST_F(ReporteTest, SeImprimeConLpr) {
  Mandatos mandatos;
  mandatos.Pon("lpr");
  Reporte::Imprimir();
  EXPECT_EQ(mandatos.Dichos(), Textos{"lpr -l reporte.txt"});
  EXPECT_EQ(mandatos.Llamada(), (Textos{"lpr", "-l", "reporte.txt"}));
}

TEST_F(ReporteTest, SinLprNoPasaNada) {
  Mandatos mandatos;
  Reporte().Imprimir();
  EXPECT_EQ(mandatos.Dichos(), Textos{"lpr -l reporte.txt"});
  EXPECT_FALSE(mandatos.HayLlamada());
  EXPECT_TRUE(std::filesystem::is_empty("."));
}

}  // namespace
}  // namespace pruebas
