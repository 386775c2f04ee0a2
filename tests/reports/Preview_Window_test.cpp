// The preview: what it takes out of a file, what it says of one that it cannot show, and how it is left.
#include "reports/Preview_Window.h"

#include <fxkeys.h>

#include <algorithm>
#include <memory>

#include "app/sesion.h"
#include "reports/Reporte.h"
#include "tests/reports/ConDuenio.h"
#include "tests/support/Maltrato.h"

namespace pruebas {
namespace {

class Preview_WindowTest : public ConPantalla {
 protected:
  void SetUp() override {
    duenio_ = std::make_unique<FXMainWindow>(&App(), "Dueña", nullptr, nullptr, DECOR_ALL, 0, 0, 300, 200);
    duenio_->create();
    duenio_->show(PLACEMENT_SCREEN);
  }
  void TearDown() override {
    IsEditable = false;
    preview_.reset();
  }

  Preview_Window* Abre(const std::string& archivo = "reporte.txt") {
    preview_ = std::make_unique<Preview_Window>(duenio_.get(), archivo.c_str());
    preview_->create();
    preview_->show(PLACEMENT_SCREEN);
    Bombea();
    return preview_.get();
  }
  std::string Visto(const std::string& contenido) {
    Graba("reporte.txt", contenido);
    return Mostrado(Abre());
  }
  FXText* Texto() { return Todos<FXText>(preview_.get()).at(0); }
  /// What the box says with which such a file is refused.
  Cuadro Rechazo(const std::string& archivo) {
    Guion guion;
    guion.Responde(Respuesta::Aceptar);
    EXPECT_EQ(Mostrado(Abre(archivo)), "");
    EXPECT_EQ(preview_->getWidth(), 550);
    return guion.Ultimo();
  }

  Mandatos mandatos_;
  Salida salida_;
  std::unique_ptr<FXMainWindow> duenio_;
  std::unique_ptr<Preview_Window> preview_;
};

TEST_F(Preview_WindowTest, QuitaLosControlesYLosBlancosDelFinDeCadaLinea) {
  const struct {
    std::string archivo, visto;
  } casos[] = {
      {"", ""},
      {"a", "a"},
      {"a\nb\n", "a\nb\n"},
      {"a\r\nb\r\n", "a\nb\n"},
      {"\x12\x0F\f\ra", "a"},
      {"\x12\x0F\f\r", ""},
      {"a\x12\x0F\f\rb", "ab"},
      {"a  \nb \t\v\n", "a\nb\n"},
      {"a  ", "a"},
      {"a\n  ", "a\n"},
      {"   \n\n \t ", "\n\n"},
      {" a b  c \n", " a b  c\n"},
      {"a \x0F \r\n", "a\n"},
      {"a \n\f\r \n b", "a\n\n b"},
      {"añ \nà\n", "añ\nà\n"},
      {"a\u00A0\n", "a\u00A0\n"},
      {"100% %s %n\n", "100% %s %n\n"},
      {std::string("a\0b\0 \n", 6), std::string("a\0b\0\n", 5)},
  };
  for (const auto& [archivo, visto] : casos) EXPECT_EQ(Visto(archivo), visto) << archivo;
}

/// What is to be seen, line by line.
std::string Esperado(const std::string& archivo) {
  std::string visto, linea;
  const auto cierra = [&] {
    while (!linea.empty() && std::string(" \t\v").find(linea.back()) != std::string::npos) linea.pop_back();
    visto += linea;
    linea.clear();
  };
  for (const char letra : archivo) {
    if (letra == '\n') {
      cierra();
      visto += '\n';
    } else if (std::string("\r\f\x12\x0F").find(letra) == std::string::npos) {
      linea += letra;
    }
  }
  cierra();
  return visto;
}

TEST_F(Preview_WindowTest, AguantaTodosLosBytes) {
  std::string enOrden, alReves, unoPorLinea;
  for (int byte = 0; byte < 256; ++byte) {
    enOrden += static_cast<char>(byte);
    unoPorLinea += std::string(1, static_cast<char>(byte)) + "\n";
  }
  alReves.assign(enOrden.rbegin(), enOrden.rend());
  Textos archivos = {enOrden, alReves, unoPorLinea};
  for (int byte = 0; byte < 256; ++byte) archivos.push_back("x\n" + std::string(1, static_cast<char>(byte)));
  IsEditable = true;
  for (const std::string& archivo : archivos) {
    ASSERT_EQ(Visto(archivo), Esperado(archivo));
    Tecla(Texto(), KEY_End, CONTROLMASK);  // drawn, walked over and selected to its last byte
    Tecla(Texto(), KEY_Up);
    Tecla(Texto(), KEY_Left);
    Tecla(Texto(), KEY_a, CONTROLMASK);
    ASSERT_EQ(Mostrado(preview_.get()), Esperado(archivo));
  }
}

TEST_F(Preview_WindowTest, MuestraCincuentaMegas) {
  const std::string linea = "\x0F" + std::string(60, 'x') + "ñ" + std::string(60, ' ') + "\r\n";
  std::string todo;
  while (todo.size() < 50'000'000) todo += linea;
  const size_t lineas = todo.size() / linea.size();
  const std::string visto = Visto(todo);
  EXPECT_EQ(visto.size(), lineas * 63);
  EXPECT_EQ(visto.substr(0, 63), std::string(60, 'x') + "ñ\n");
  EXPECT_EQ(visto.substr(visto.size() - 63), std::string(60, 'x') + "ñ\n");
  Tecla(Texto(), KEY_End, CONTROLMASK);
  EXPECT_EQ(Texto()->getCursorPos(), Texto()->getLength());
}

TEST_F(Preview_WindowTest, MuestraUnReporteSinLoQueEsDeLaImpresora) {
  FILE* const archivo = fopen("reporte.txt", "w");
  Reporte reporte("", "CARTERA", "CLAVE", "uno", "dos", "tres", "", "", 1, 0);
  reporte.Begin(archivo);
  for (int i = 0; i < 200; ++i) reporte.Imprime(archivo, "renglón   ");
  reporte.End(archivo);
  fclose(archivo);
  const std::string visto = Mostrado(Abre());
  EXPECT_EQ(visto.find_first_of("\r\f\x12\x0F"), std::string::npos);
  EXPECT_EQ(visto.find(" \n"), std::string::npos);
  EXPECT_EQ(std::count(visto.begin(), visto.end(), '\n'), 200 + 4 * 8);
}

TEST_F(Preview_WindowTest, UnArchivoVacioSeVeVacio) {
  EXPECT_EQ(Visto(""), "");
  EXPECT_EQ(Visto("\n"), "\n");
}

TEST_F(Preview_WindowTest, UnoQueNoExisteSeDice) {
  const Cuadro cuadro = Rechazo("no existe.txt");
  EXPECT_EQ(cuadro.clase, Clase::Error);
  EXPECT_EQ(cuadro.titulo, "Error de Archivo");
  EXPECT_EQ(cuadro.texto, "No se puede abrir archivo: no existe.txt");
  EXPECT_EQ(cuadro.botones, Textos{"&Aceptar"});
  EXPECT_EQ(Rechazo("100%% %s%n").texto, "No se puede abrir archivo: 100%% %s%n");
  EXPECT_EQ(Rechazo("").texto, "No se puede abrir archivo: ");
}

TEST_F(Preview_WindowTest, UnoQueNoCabeSeDice) {
  Graba("enorme.txt", "x");
  std::filesystem::resize_file("enorme.txt", 3'000'000'000);
  const Cuadro cuadro = Rechazo("enorme.txt");
  EXPECT_EQ(cuadro.clase, Clase::Error);
  EXPECT_EQ(cuadro.titulo, "Error leer archivo");
  EXPECT_EQ(cuadro.texto, "Muy grande: enorme.txt (3000000000 bytes)");
}

TEST_F(Preview_WindowTest, UnaCarpetaSeVeVacia) { EXPECT_EQ(Mostrado(Abre(".")), ""); }

TEST_F(Preview_WindowTest, SuAspecto) {
  Visto("uno\n");
  EXPECT_EQ(preview_->getTitle(), "Reporte");
  EXPECT_EQ(preview_->getWidth(), 550);
  EXPECT_EQ(preview_->getHeight(), 750);
  EXPECT_EQ(preview_->getDecorations() & (DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE | DECOR_CLOSE),
            FXuint{DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE});
  const FXText* const texto = Texto();
  EXPECT_EQ(texto->getFont()->getName(), "courier [adobe]");
  EXPECT_EQ(texto->getFont()->getSize(), 90u);
  EXPECT_EQ(texto->getFont()->getWeight(), FXuint{FXFont::Medium});
  EXPECT_EQ(texto->getFont()->getSlant(), FXuint{FXFont::Straight});
  EXPECT_EQ(texto->getFont()->getHints(), FXuint{FXFont::Fixed});
  EXPECT_EQ(texto->getHiliteMatchTime(), 2000u);
  EXPECT_EQ(texto->getBarColumns(), 0);
  EXPECT_TRUE(texto->getScrollStyle() & SCROLLERS_DONT_TRACK);
  EXPECT_TRUE(texto->getTextStyle() & TEXT_SHOWACTIVE);
  EXPECT_GT(texto->getWidth(), 530);
  EXPECT_GT(texto->getHeight(), 730);
  EXPECT_EQ(salida_.Lineas(), Textos{"entrando a preview"});
}

TEST_F(Preview_WindowTest, SinPermisoDeEditarNiSeCambiaNiSeGuarda) {
  Visto("uno\n");
  EXPECT_FALSE(Texto()->isEditable());
  Tecla(Texto(), KEY_x, 0, "x");
  Tecla(Texto(), KEY_F10);
  EXPECT_EQ(preview_->handle(&App(), FXSEL(SEL_COMMAND, Preview_Window::ID_GUARDA), nullptr), 1);
  EXPECT_EQ(Mostrado(preview_.get()), "uno\n");
  EXPECT_FALSE(std::filesystem::exists("his.txt"));
}

TEST_F(Preview_WindowTest, F10GuardaLoQueSeEdita) {
  Graba("his.txt", "algo mucho más largo de antes");
  IsEditable = true;
  Visto("uno\n");
  EXPECT_TRUE(Texto()->isEditable());
  Tecla(Texto(), KEY_n, 0, "ñ");
  Tecla(Texto(), KEY_F10);
  EXPECT_EQ(Contenido("his.txt"), "ñuno\n");
  EXPECT_EQ(Contenido("reporte.txt"), "uno\n");
}

TEST_F(Preview_WindowTest, GuardarSinCarpetaNoPasaNada) {
  IsEditable = true;
  Visto("uno\n");
  SinCarpeta();
  Tecla(Texto(), KEY_F10);
  EXPECT_EQ(Mostrado(preview_.get()), "uno\n");
}

TEST_F(Preview_WindowTest, SoloEscapeLaCierra) {
  Graba("reporte.txt", "uno\n");
  Guion guion;
  guion.Con([](FXDialogBox* preview) {
    for (const FXSelector mensaje : {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_SIGNAL, Preview_Window::ID_SALIR)}) {
      EXPECT_EQ(preview->handle(&App(), mensaje, nullptr), 1);
      EXPECT_TRUE(preview->shown());
    }
    EXPECT_EQ(preview->getFocus()->getFocus(), Todos<FXText>(preview).at(0));
    Tecla(Todos<FXText>(preview).at(0), KEY_Escape);
  });
  EXPECT_EQ(Preview_Window(duenio_.get(), "reporte.txt").execute(PLACEMENT_SCREEN), 0u);
}

TEST_F(Preview_WindowTest, AguantaAUnUsuarioDescuidado) {
  IsEditable = true;
  Visto("uno\n");
  for (const std::string& texto : TextosDesmedidos()) TecleaEnTodo(preview_.get(), texto + "x");
  EXPECT_EQ(Mostrado(preview_.get()), "x");
  Tecla(Texto(), KEY_F10);
  EXPECT_EQ(Contenido("his.txt"), Mostrado(preview_.get()));
}

}  // namespace
}  // namespace pruebas
