// F1: the manual at the chapter of the window in front, or a box that says why not.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>

#include "catalogs/simple/Monedas_Window.h"
#include "tests/app/ConTeclas.h"

namespace pruebas {
namespace {

/// A manual with these chapters, in which the environment believes while it lives.
class Manual {
 public:
  explicit Manual(const Textos& capitulos = {"Caja", "Monedas_Window", "Modulo_Window", "Login_Window"},
                  const std::string& nombre = "manual")
      : carpeta_(lugar_.Ruta() / nombre) {
    std::filesystem::create_directories(carpeta_ / "ayuda");
    Escribe("manual.html");
    for (const std::string& capitulo : capitulos) Escribe("ayuda/" + capitulo + ".html");
    setenv("TOLVARA_MANUAL", carpeta_.c_str(), 1);
  }
  ~Manual() { unsetenv("TOLVARA_MANUAL"); }
  std::string Ruta() const { return carpeta_.string(); }
  std::string Ruta(const std::string& archivo) const { return (carpeta_ / archivo).string(); }

 private:
  void Escribe(const std::string& archivo) { std::ofstream(Ruta(archivo)) << "<p>" << archivo; }

  CarpetaTemporal lugar_;
  std::filesystem::path carpeta_;
};

/// The browser of the desktop, first and alone on the path but for the one who presses the keys.
class Navegador {
 public:
  Navegador() : camino_(getenv("PATH")), abridor_(lugar_.Ruta() / "xdg-open") {
    std::filesystem::create_symlink("/usr/bin/xdotool", lugar_.Ruta() / "xdotool");
    setenv("PATH", lugar_.Ruta().c_str(), 1);
    Es("echo \"$1\" >\"$0.pedido\"");
  }
  ~Navegador() { setenv("PATH", camino_.c_str(), 1); }

  /// A shell script.
  void Es(const std::string& guion) const {
    std::ofstream(abridor_) << "#!/bin/sh\n" << guion << "\n";
    std::filesystem::permissions(abridor_, std::filesystem::perms::owner_all);
  }
  void Quita() const { std::filesystem::remove(abridor_); }

  /// The file that it was asked for, once; empty when it was not called.
  std::string Pedido(int intentos = 300) const {
    const std::filesystem::path hoja = abridor_.string() + ".pedido";
    std::string archivo;
    for (int i = 0; i < intentos && archivo.empty(); ++i) {
      Bombea(10);
      std::getline(std::ifstream(hoja), archivo);
    }
    Bombea(150);  // and the program has seen it end
    std::filesystem::remove(hoja);
    return archivo;
  }

 private:
  CarpetaTemporal lugar_;
  const std::string camino_;
  const std::filesystem::path abridor_;
};

class AyudaTest : public ConTeclas {
 protected:
  /// What the browser is called with after F1, and whether it was the one that stands in for it.
  void ExigePedido(const std::string& archivo) {
    Navegador navegador;
    escritorio_.Teclea({"F1"});
    EXPECT_EQ(navegador.Pedido(), archivo);
  }
  /// F1 shows this box and no other.
  void ExigeAviso(const std::string& texto) {
    Guion guion;
    guion.Responde(Respuesta::Aceptar);
    escritorio_.Teclea({"F1"});
    BombeaHasta([&] { return !guion.Cuadros().empty(); });
    Bombea(300);
    ASSERT_EQ(guion.Cuadros().size(), 1u);
    EXPECT_EQ(guion.Cuadros()[0].clase, Clase::Informacion);
    EXPECT_EQ(guion.Cuadros()[0].titulo, "Ayuda");
    EXPECT_EQ(guion.Cuadros()[0].texto, texto);
  }
};

TEST_F(AyudaTest, EnLaVentanaPrincipalAbreSuCapitulo) {
  const Manual manual;
  ExigePedido(manual.Ruta("ayuda/Caja.html"));
}

TEST_F(AyudaTest, EnUnaFormaAbreElDeEllaAunqueHayaOtraAbierta) {
  const Manual manual;
  Escoge("&Bancos");
  Escoge("&Monedas");
  ExigePedido(manual.Ruta("ayuda/Monedas_Window.html"));
  escritorio_.Teclea({"ctrl+Tab"});
  ExigePedido(manual.Ruta("ayuda/Caja.html"));  // the other one has no chapter of its own
}

TEST_F(AyudaTest, EnUnDialogoYEnLaEntradaAbreElSuyo) {
  const Manual manual;
  const std::pair<const char*, std::string> dialogos[] = {{"Modulos", "Modulo_Window"},
                                                          {"&Conectar", "Login_Window"}};
  for (const auto& [opcion, clase] : dialogos) {
    Guion guion;
    guion.Con([&, suya = clase](FXDialogBox* dialogo) {
      EXPECT_EQ(dialogo->getClassName(), suya);
      Toma(dialogo);
      ExigePedido(manual.Ruta("ayuda/" + suya + ".html"));
      Pulsa(Boton(dialogo, "&Cerrar"));
    });
    Pulsa(Opcion(caja_.get(), opcion));
    EXPECT_EQ(guion.Cuadros().size(), 1u);
  }
}

TEST_F(AyudaTest, EnUnaPreguntaAbreElDeQuienPregunta) {
  const Manual manual;
  Escoge("&Monedas");
  auto* const monedas = Todos<Monedas_Window>(caja_.get()).at(0);
  Escribe(monedas, "Moneda:", "MX");
  Pulsa(Boton(monedas, "&Buscar"));
  Guion guion;
  guion.Con([&](FXDialogBox* pregunta) {
    Toma(pregunta);
    ExigePedido(manual.Ruta("ayuda/Monedas_Window.html"));
    Pulsa(Boton(pregunta, "&No"));
  });
  Pulsa(Boton(monedas, "&Borrar"));
}

TEST_F(AyudaTest, SinCapituloDeNadieElManualEmpiezaPorElPrincipio) {
  const Manual manual(Textos{});
  Escoge("&Monedas");
  ExigePedido(manual.Ruta("manual.html"));
}

TEST_F(AyudaTest, LaRutaDelManualLlegaLetraPorLetra) {
  const Manual manual({"Caja"}, "cien% de ñ $HOME `x` \"y\" 'z' %s");
  ExigePedido(manual.Ruta("ayuda/Caja.html"));
}

TEST_F(AyudaTest, SoloF1SinOtraTecla) {
  const Manual manual;
  Navegador navegador;
  escritorio_.Teclea({"shift+F1", "ctrl+F1", "alt+F1", "F2"});
  EXPECT_EQ(navegador.Pedido(30), "");
}

TEST_F(AyudaTest, UnMenuAbiertoSeQuedaConLaTecla) {
  const Manual manual;
  Navegador navegador;
  escritorio_.Teclea({"F10", "F1"});
  EXPECT_EQ(navegador.Pedido(30), "");
  escritorio_.Teclea({"Escape", "F1"});
  EXPECT_EQ(navegador.Pedido(), manual.Ruta("ayuda/Caja.html"));
}

TEST_F(AyudaTest, SinManualLoDice) {
  const Navegador navegador;
  for (const char* const carpeta : {"/no/hay", "/dev/null"}) {
    setenv("TOLVARA_MANUAL", carpeta, 1);
    ExigeAviso("El manual no está en este equipo. Pida que instalen el paquete tolvara-doc.");
  }
  unsetenv("TOLVARA_MANUAL");
}

TEST_F(AyudaTest, SinNavegadorLoDice) {
  const Manual manual({"Caja"}, "cien% %s");
  const std::string aviso =
      "No hay navegador que muestre el manual. Está en la carpeta " + manual.Ruta() + ".";
  Navegador navegador;
  navegador.Es("exit 3");  // what xdg-open says then
  ExigeAviso(aviso);
  navegador.Es("kill -9 $$");
  ExigeAviso(aviso);
  navegador.Quita();
  ExigeAviso(aviso);
}

TEST_F(AyudaTest, UnNavegadorQueSeQuedaNoDetieneAlPrograma) {
  const Manual manual;
  Navegador navegador;
  navegador.Es("echo \"$1\" >\"$0.pedido\"; exec /bin/sleep 1; exit 1");
  escritorio_.Teclea({"F1"});
  EXPECT_EQ(navegador.Pedido(), manual.Ruta("ayuda/Caja.html"));
  escritorio_.Teclea({"F1"});  // and a second one beside it
  EXPECT_EQ(navegador.Pedido(), manual.Ruta("ayuda/Caja.html"));
  Escoge("&Monedas");
  EXPECT_EQ(Todos<Monedas_Window>(caja_.get()).size(), 1u);
  Bombea(1500);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), 0);  // nobody is left to be waited for
}

}  // namespace
}  // namespace pruebas
