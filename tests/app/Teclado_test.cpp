// The keyboard in the hands of a person: keys from outside, under a window manager, on the main window with
// its forms.
#include <gtest/gtest.h>

#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/TipoMoviBanco_Window.h"
#include "tests/app/ConTeclas.h"

namespace pruebas {
namespace {

class TecladoTest : public ConTeclas {
 protected:
  void SetUp() override {
    ConTeclas::SetUp();
    Escoge("&Monedas");
    monedas_ = Forma<Monedas_Window>();
    ASSERT_NE(monedas_, nullptr);
  }

  template <class Ventana>
  Ventana* Forma() {
    const auto todas = Todos<Ventana>(caja_.get());
    return todas.empty() ? nullptr : todas.front();
  }
  std::string Lugar() {
    FXWindow* foco = caja_.get();
    while (foco->getFocus() != nullptr) foco = foco->getFocus();
    for (const char* etiqueta : {"Moneda:", "Descripción:", "Valor :"})
      if (Forma<Monedas_Window>() != nullptr && foco == CampoJuntoA(Forma<Monedas_Window>(), etiqueta))
        return etiqueta;
    if (Forma<TipoMoviBanco_Window>() != nullptr && Forma<TipoMoviBanco_Window>()->containsChild(foco))
      return "movimientos";
    return foco->getClassName();
  }
  size_t Contesta(Guion& guion, const char* tecla) {
    guion.Con([this, tecla](FXDialogBox* caja) {
      BombeaHasta([caja] { return caja->hasFocus() != FALSE; });
      escritorio_.Teclea({tecla});
    });
    return 1;
  }

  Monedas_Window* monedas_ = nullptr;
};

TEST_F(TecladoTest, SeHallaPorSuClaveConDosTeclasMasQueEsta) {
  const size_t teclas = escritorio_.Escribe("MX") + escritorio_.Teclea({"alt+b"});
  EXPECT_EQ(Leido(monedas_, "Descripción:"),
            base_->Valor("select monedadescri from norte.moneda where monedaid = 'MX'"));
  EXPECT_LE(teclas, 2u + 2u);
}

TEST_F(TecladoTest, SeAgregaConCuatroTeclasMasQueLosCampos) {
  const std::string clave = "ZT", descripcion = "Corona de prueba", valor = "12.5";
  Guion guion;
  size_t teclas = escritorio_.Escribe(clave) + escritorio_.Teclea({"Tab"}) +
                  escritorio_.Escribe(descripcion) + escritorio_.Teclea({"Tab"}) + escritorio_.Escribe(valor);
  teclas += Contesta(guion, "Return");
  teclas += escritorio_.Teclea({"alt+a"});
  EXPECT_EQ(guion.Mensajes(), Textos{"Registrar ?"});
  EXPECT_EQ(base_->Valor(
                "select monedadescri || monedavalor::numeric(9,1) from norte.moneda where monedaid = 'ZT'"),
            descripcion + valor);
  EXPECT_LE(teclas, clave.size() + descripcion.size() + valor.size() + 4);

  // And goes again, the answer to the question given by its letter.
  Contesta(guion, "alt+s");
  escritorio_.Teclea({"alt+r"});
  EXPECT_EQ(base_->Valor("select count(*) from norte.moneda where monedaid = 'ZT'"), "0");
}

TEST_F(TecladoTest, SeCambiaUnaDescripcionConSeisTeclasMasQueElTexto) {
  const std::string texto = "Peso cambiado";
  Guion guion;
  size_t teclas =
      escritorio_.Escribe("MX") + escritorio_.Teclea({"alt+b", "Tab"}) + escritorio_.Escribe(texto);
  teclas += Contesta(guion, "Return");
  teclas += escritorio_.Teclea({"alt+a"});
  EXPECT_EQ(guion.Mensajes(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(base_->Valor("select monedadescri from norte.moneda where monedaid = 'MX'"), texto);
  EXPECT_LE(teclas, 6 + texto.size());
}

TEST_F(TecladoTest, UnMenuQueSeDejaDevuelveElTeclado) {
  for (const Textos& menu :
       {Textos{"alt+i", "Escape"}, Textos{"F10", "Escape"}, Textos{"F10", "Right", "Escape"},
        Textos{"alt+a", "Down", "Escape"}, Textos{"Alt_L", "Escape"}}) {
    SCOPED_TRACE(menu[0] + " " + menu[1]);
    CampoJuntoA(monedas_, "Descripción:")->setFocus();
    escritorio_.Teclea(menu);
    EXPECT_EQ(Lugar(), "Descripción:");
    escritorio_.Teclea({"x"});
    EXPECT_NE(Leido(monedas_, "Descripción:").find("x"), std::string::npos);
    escritorio_.Teclea({"BackSpace"});
  }
}

TEST_F(TecladoTest, CtrlTabVaDeFormaEnFormaYCadaUnaRecuerdaSuCampo) {
  escritorio_.Teclea({"Tab", "Tab"});
  Escoge("Movimientos Bancarios");
  ASSERT_EQ(Lugar(), "movimientos");
  for (const char* tecla : {"ctrl+Tab", "ctrl+shift+Tab"}) {
    escritorio_.Teclea({tecla});
    EXPECT_EQ(Lugar(), "Valor :") << tecla;
    escritorio_.Teclea({tecla});
    EXPECT_EQ(Lugar(), "movimientos") << tecla;
  }
}

TEST_F(TecladoTest, AlCerrarUnaFormaLaOtraTieneElTeclado) {
  escritorio_.Teclea({"Tab"});
  Escoge("Movimientos Bancarios");
  escritorio_.Teclea({"alt+c"});
  EXPECT_EQ(Forma<TipoMoviBanco_Window>(), nullptr);
  EXPECT_EQ(Lugar(), "Descripción:");
  escritorio_.Escribe("hola");
  EXPECT_EQ(Leido(monedas_, "Descripción:"), "hola");
}

TEST_F(TecladoTest, LaVentanaMaximizadaVuelveMaximizadaYConSuTamanoDeAntes) {
  const auto anotado = [](const char* llave) { return App().reg().readIntEntry("VENTANA", llave, -1); };
  const auto abre = [] {
    Guion guion;
    guion.Con([](FXDialogBox* login) { Pulsa(Boton(login, "&Cerrar")); });
    auto caja = std::make_unique<Caja>(&App());
    caja->create();
    return caja;
  };
  auto caja = abre();
  caja->position(20, 30, 760, 540);
  ASSERT_TRUE(BombeaHasta([&] { return anotado("ancho") == 760 && anotado("alto") == 540; }));
  caja->maximize();
  ASSERT_TRUE(BombeaHasta([&] { return anotado("maximizada") == 1; }));
  EXPECT_EQ(anotado("ancho"), 760);
  EXPECT_EQ(anotado("alto"), 540);

  caja = abre();
  EXPECT_TRUE(BombeaHasta([&] { return caja->isMaximized() != FALSE; }));
  caja->restore();
  EXPECT_TRUE(BombeaHasta([&] { return caja->getWidth() == 760 && caja->getHeight() == 540; }));
}

}  // namespace
}  // namespace pruebas
