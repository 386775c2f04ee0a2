// The calendar dialog: run modally, accepted and left, and the round trip of a field's text through it.
#include "widgets/Calendario_Window.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "widgets/FXCalendar.h"

namespace pruebas {
namespace {

FXCalendar* CalendarioDe(FXWindow* dialogo) { return Todos<FXCalendar>(dialogo).at(0); }

std::string MesVisto(FXWindow* dialogo) { return Etiquetas(dialogo).at(0); }

class CalendarioTest : public testing::Test {
 protected:
  void SetUp() override {
    duenio_ = new FXMainWindow(&App(), "Dueña", nullptr, nullptr, DECOR_ALL, 0, 0, 300, 200);
    duenio_->create();
    duenio_->show(PLACEMENT_SCREEN);
    gFecha = date("1999-12-31");
  }
  void TearDown() override {
    delete duenio_;
    gFecha = date();
  }

  /// Runs the dialog on a date, with one thing done to it.
  FXuint Corre(const date& d, std::function<void(FXDialogBox*)> accion) {
    Guion guion;
    guion.Con(std::move(accion));
    return Calendario_Window(duenio_, d).execute(PLACEMENT_CURSOR);
  }

  FXMainWindow* duenio_ = nullptr;
};

TEST_F(CalendarioTest, AceptarDejaElDiaEnGFechaSinRenovarSusTextos) {
  EXPECT_TRUE(Corre(date(15, 3, 2006), [](FXDialogBox* dialogo) {
    EXPECT_EQ(MesVisto(dialogo), "Marzo 2006");
    Pulsa(Boton(CalendarioDe(dialogo), "20"));
    Pulsa(Boton(dialogo, "&Aceptar"));
  }));
  EXPECT_EQ(gFecha, date(20, 3, 2006));
  EXPECT_STREQ(gFecha.AsDMY(), "31/12/1999");
  EXPECT_STREQ(gFecha.AsChar(), "1999-12-31");
}

TEST_F(CalendarioTest, AceptarSinTocarDejaLaFechaConQueSeAbrio) {
  EXPECT_TRUE(Corre(date(29, 2, 2004), [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Aceptar")); }));
  EXPECT_EQ(gFecha, date(29, 2, 2004));
}

TEST_F(CalendarioTest, CerrarYEscapeDejanGFechaComoEstaba) {
  const std::function<void(FXDialogBox*)> salidas[] = {
      [](FXDialogBox* dialogo) { Pulsa(Boton(dialogo, "&Cerrar")); },
      [](FXDialogBox* dialogo) { Tecla(Boton(dialogo, "&Aceptar"), KEY_Escape); },
  };
  for (const auto& salida : salidas) {
    EXPECT_FALSE(Corre(date(15, 3, 2006), [&](FXDialogBox* dialogo) {
      Pulsa(Boton(CalendarioDe(dialogo), "20"));
      salida(dialogo);
    }));
    EXPECT_EQ(gFecha, date(31, 12, 1999));
  }
}

TEST_F(CalendarioTest, SinFechaValidaAbreEnHoy) {
  const date hoy = today();
  for (const date& invalida : {date(""), date(31, 2, 2006), date("99/99/9999"), date(1, 0, 2006)}) {
    Corre(invalida, [&](FXDialogBox* dialogo) {
      int anio, mes, dia;
      CalendarioDe(dialogo)->getDate(anio, mes, dia);
      EXPECT_EQ(date(dia, mes, anio), hoy) << invalida.AsChar();
      Pulsa(Boton(dialogo, "&Cerrar"));
    });
  }
}

TEST_F(CalendarioTest, PedirleQueCierreNoLoCierra) {
  Corre(date(15, 3, 2006), [](FXDialogBox* dialogo) {
    for (const FXSelector mensaje : {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_SIGNAL, Calendario_Window::ID_QUIT)}) {
      EXPECT_EQ(dialogo->handle(&App(), mensaje, nullptr), 1);
      EXPECT_TRUE(dialogo->shown());
    }
    Pulsa(Boton(dialogo, "&Cerrar"));
  });
}

TEST_F(CalendarioTest, TieneBordeSinTituloYDosBotones) {
  Corre(date(15, 3, 2006), [](FXDialogBox* dialogo) {
    EXPECT_EQ(dialogo->getTitle(), "");
    EXPECT_EQ(dialogo->getDecorations() & DECOR_ALL, DECOR_BORDER);
    FXButton* const cerrar = Boton(dialogo, "&Cerrar");
    FXButton* const aceptar = Boton(dialogo, "&Aceptar");
    EXPECT_LT(cerrar->getX(), aceptar->getX());
    EXPECT_GT(cerrar->getWidth(), aceptar->getWidth());
    EXPECT_NE(cerrar->getIcon(), nullptr);
    EXPECT_NE(aceptar->getIcon(), nullptr);
    EXPECT_TRUE(aceptar->getButtonStyle() & BUTTON_DEFAULT);
    Pulsa(cerrar);
  });
}

TEST_F(CalendarioTest, CancelarReescribeLaFechaDelCampoConDosCifras) {
  const struct {
    const char *texto, *reescrita, *mes;  // the month shown; null for today's
  } casos[] = {
      {"1/2/2006", "01/02/2006", "Febrero 2006"},  {"15/03/2006", "15/03/2006", "Marzo 2006"},
      {"9/12/06", "09/12/0006", "Diciembre 1906"}, {"", "00/00/0000", nullptr},
      {"31/2/2006", "31/02/2006", nullptr},        {"5", "05/00/0000", nullptr},
      {"15032006", "15032006/00/0000", nullptr},   {"x/y/z", "00/00/0000", nullptr},
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(caso.texto);
    Guion guion;
    guion.Con([&](FXDialogBox* dialogo) {
      if (caso.mes != nullptr) {
        EXPECT_EQ(MesVisto(dialogo), caso.mes);
      } else {
        EXPECT_EQ(MesVisto(dialogo).substr(MesVisto(dialogo).size() - 4), std::to_string(today().year()));
      }
      Pulsa(Boton(dialogo, "&Cerrar"));
    });
    EXPECT_STREQ(EligeFecha(duenio_, caso.texto).text(), caso.reescrita);
  }
}

TEST_F(CalendarioTest, LaFechaElegidaLlegaAlCampo) {
  Guion guion;
  guion.Con([](FXDialogBox* dialogo) {
    Pulsa(Boton(CalendarioDe(dialogo), "7"));
    Pulsa(Boton(dialogo, "&Aceptar"));
  });
  EXPECT_STREQ(EligeFecha(duenio_, "1/2/2006").text(), "07/02/2006");
  EXPECT_STREQ(gFecha.AsDMY(), "01/02/2006");
}

TEST_F(CalendarioTest, AbreDondeEstaElCursor) {
  App().getRootWindow()->setCursorPosition(640, 500);
  Corre(date(15, 3, 2006), [](FXDialogBox* dialogo) {
    EXPECT_LE(dialogo->getX(), 640);
    EXPECT_GE(dialogo->getX() + dialogo->getWidth(), 640);
    EXPECT_LE(dialogo->getY(), 500);
    EXPECT_GE(dialogo->getY() + dialogo->getHeight(), 500);
    Pulsa(Boton(dialogo, "&Cerrar"));
  });
}

}  // namespace
}  // namespace pruebas
