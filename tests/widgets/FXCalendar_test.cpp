// The month view: its grid for every month of two centuries, its arrows, and what it marks.
#include "widgets/FXCalendar.h"

#include <gtest/gtest.h>

#include <ctime>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

constexpr size_t celdas = 42;
const Textos meses = {"Enero", "Febrero", "Marzo",      "Abril",   "Mayo",      "Junio",
                      "Julio", "Agosto",  "Septiembre", "Octubre", "Noviembre", "Diciembre"};

/// The C library's calendar as the independent witness.
tm Dia(int anio, int mes, int dia) {
  tm partes{};
  partes.tm_year = anio - 1900;
  partes.tm_mon = mes - 1;
  partes.tm_mday = dia;
  const time_t momento = timegm(&partes);
  gmtime_r(&momento, &partes);
  return partes;
}

std::string Fecha(int anio, int mes, int dia) {
  return std::to_string(dia) + " " + meses.at(mes - 1) + " " + std::to_string(anio);
}

std::string Hoy() {
  const time_t ahora = time(nullptr);
  tm partes;
  localtime_r(&ahora, &partes);
  return Fecha(partes.tm_year + 1900, partes.tm_mon + 1, partes.tm_mday);
}

class FXCalendarTest : public testing::Test {
 protected:
  void SetUp() override {
    ventana_ = new FXMainWindow(&App(), "Calendario", nullptr, nullptr, DECOR_ALL, 0, 0, 300, 250);
    calendario_ = new FXCalendar(ventana_, LAYOUT_FILL_X | LAYOUT_FILL_Y);
    ventana_->create();
    ventana_->show(PLACEMENT_SCREEN);
    Bombea();
    botones_ = Todos<FXButton>(calendario_);
  }
  void TearDown() override { delete ventana_; }

  std::string Mes() const { return Etiquetas(calendario_).at(0); }
  /// The date that the calendar hands out.
  std::string Dada() const {
    int anio, mes, dia;
    calendario_->getDate(anio, mes, dia);
    return Fecha(anio, mes, dia);
  }
  /// The days in red.
  Textos Marcados() const {
    Textos dias;
    for (size_t i = 0; i < celdas; ++i) {
      if (botones_.at(i)->isEnabled() && botones_[i]->getTextColor() == FXRGB(255, 0, 0))
        dias.push_back(botones_[i]->getText().text());
    }
    return dias;
  }
  FXButton* Celda(const std::string& dia) const { return Boton(calendario_, dia); }
  FXButton* ConConsejo(const std::string& consejo) const {
    for (FXButton* boton : botones_) {
      if (boton->getTipText() == consejo.c_str()) return boton;
    }
    throw std::runtime_error("no hay botón: " + consejo);
  }

  FXMainWindow* ventana_ = nullptr;
  FXCalendar* calendario_ = nullptr;
  std::vector<FXButton*> botones_;  // the cells, and then those below them
};

TEST_F(FXCalendarTest, CadaMesDe1900A2100TieneSusDiasBajoSuNombre) {
  for (int anio = 1900; anio <= 2100; ++anio) {
    for (int mes = 1; mes <= 12; ++mes) {
      calendario_->setDate(anio, mes, 1);
      ASSERT_EQ(Mes(), meses.at(mes - 1) + " " + std::to_string(anio));
      const int domingo = Dia(anio, mes, 1).tm_wday;
      const int vacias = domingo == 0 ? 7 : domingo;
      for (int i = 0; i < static_cast<int>(celdas); ++i) {
        const int dia = i - vacias + 1;
        const bool delMes = dia >= 1 && Dia(anio, mes, dia).tm_mon == mes - 1;
        ASSERT_EQ(botones_.at(i)->getText(), delMes ? FXStringVal(dia) : "") << Mes() << ", celda " << i;
        ASSERT_EQ(botones_.at(i)->isEnabled(), delMes) << Mes() << ", celda " << i;
        if (delMes) {
          ASSERT_EQ(Dia(anio, mes, dia).tm_wday, i % 7) << Mes() << ", celda " << i;
        }
      }
      ASSERT_EQ(Marcados(), Textos{"1"}) << Mes();
    }
  }
}

TEST_F(FXCalendarTest, EmpiezaHoyYHoyRegresa) {
  const std::string hoy = Hoy();
  const Textos dia{hoy.substr(0, hoy.find(' '))};
  EXPECT_EQ(Dada(), hoy);
  EXPECT_EQ(Marcados(), dia);

  calendario_->setDate(1985, 9, 19);
  Pulsa(Boton(calendario_, "Hoy"));
  EXPECT_EQ(Dada(), hoy);
  EXPECT_EQ(Marcados(), dia);
}

TEST_F(FXCalendarTest, LaCabezaEmpiezaEnDomingoConLosExtremosEnGris) {
  std::vector<FXLabel*> cabeza;
  for (FXLabel* etiqueta : Todos<FXLabel>(calendario_)) {
    if (dynamic_cast<FXButton*>(etiqueta) == nullptr) cabeza.push_back(etiqueta);
  }
  const Textos nombres = {"Dom", "Lun", "Mar", "Mie", "Jue", "Vie", "Sab"};
  ASSERT_EQ(cabeza.size(), 1 + nombres.size());
  for (size_t i = 0; i < nombres.size(); ++i) {
    const FXLabel* etiqueta = cabeza[1 + i];
    EXPECT_EQ(etiqueta->getText(), nombres[i].c_str());
    EXPECT_EQ(etiqueta->getTextColor() == FXRGB(100, 100, 100), i == 0 || i == 6) << nombres[i];
    EXPECT_EQ(etiqueta->getX(), botones_.at(i)->getX()) << nombres[i];
  }
}

TEST_F(FXCalendarTest, LosBotonesDeAbajoSonCincoConLasFlechasALosLados) {
  const struct {
    const char* consejo;
    FXSelector mensaje;
  } botones[] = {
      // from left to right
      {"Mes Anterior", FXCalendar::ID_PREVMONTH},
      {"Año Anterior", FXCalendar::ID_PREVYEAR},
      {nullptr, FXCalendar::ID_TODAY},
      {"Año Siguiente", FXCalendar::ID_NEXTYEAR},
      {"Mes Siguiente", FXCalendar::ID_NEXTMONTH},
  };
  ASSERT_EQ(botones_.size(), celdas + std::size(botones));
  FXint x = -1;
  for (const auto& [consejo, mensaje] : botones) {
    const FXButton* boton = consejo != nullptr ? ConConsejo(consejo) : Boton(calendario_, "Hoy");
    SCOPED_TRACE(boton->getTipText().text());
    EXPECT_EQ(boton->getText(), consejo != nullptr ? "" : "Hoy");
    EXPECT_EQ(boton->getIcon() != nullptr, consejo != nullptr);
    EXPECT_EQ(boton->getTarget(), calendario_);
    EXPECT_EQ(boton->getSelector(), mensaje);
    EXPECT_GT(boton->getX(), x);
    x = boton->getX();
  }
}

TEST_F(FXCalendarTest, ElConsejoDeHoyEsLaFechaDeHoy) {
  const time_t ahora = time(nullptr);
  const tm* hoy = localtime(&ahora);
  const std::string esperado =
      meses.at(hoy->tm_mon) + " " + std::to_string(hoy->tm_mday) + ", " + std::to_string(hoy->tm_year + 1900);
  FXButton* const boton = Boton(calendario_, "Hoy");
  EXPECT_EQ(boton->getTipText(), esperado.c_str());
  boton->setTipText("ayer");
  calendario_->setDate(2006, 3, 15);
  EXPECT_EQ(boton->getTipText(), esperado.c_str());
}

TEST_F(FXCalendarTest, FueraDelMesSigueDeLargoYMarcaElDiaPedido) {
  const struct {
    int anio, mes, dia;
    const char *mesVisto, *dada;
    Textos marcados;
  } casos[] = {
      {2006, 2, 31, "Marzo 2006", "3 Marzo 2006", {"31"}},
      {2006, 4, 31, "Mayo 2006", "1 Mayo 2006", {"31"}},
      {2007, 2, 29, "Marzo 2007", "1 Marzo 2007", {"29"}},
      {2006, 13, 5, "Enero 2007", "5 Enero 2007", {"5"}},
      {2006, 0, 5, "Diciembre 2005", "5 Diciembre 2005", {"5"}},
      {2006, 1, 32, "Febrero 2006", "1 Febrero 2006", {}},
      {2006, 5, 0, "Abril 2006", "30 Abril 2006", {}},
      {2006, 5, -1, "Abril 2006", "29 Abril 2006", {}},
      {6, 5, 4, "Mayo 1906", "4 Mayo 1906", {"4"}},
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(caso.dada);
    calendario_->setDate(caso.anio, caso.mes, caso.dia);
    EXPECT_EQ(Mes(), caso.mesVisto);
    EXPECT_EQ(Dada(), caso.dada);
    EXPECT_EQ(Marcados(), caso.marcados);
  }
}

TEST_F(FXCalendarTest, LasFlechasLlevanAlMismoDiaDeOtroMesOAnio) {
  const struct {
    int anio, mes, dia;
    const char *flecha, *mesVisto, *dada, *marcado;
  } casos[] = {
      {2006, 1, 15, "Mes Siguiente", "Febrero 2006", "15 Febrero 2006", "15"},
      {2006, 1, 31, "Mes Siguiente", "Marzo 2006", "3 Marzo 2006", "31"},
      {2004, 1, 31, "Mes Siguiente", "Marzo 2004", "2 Marzo 2004", "31"},
      {2006, 3, 31, "Mes Siguiente", "Mayo 2006", "1 Mayo 2006", "31"},
      {2006, 12, 31, "Mes Siguiente", "Enero 2007", "31 Enero 2007", "31"},
      {2006, 1, 15, "Mes Anterior", "Diciembre 2005", "15 Diciembre 2005", "15"},
      {2006, 3, 31, "Mes Anterior", "Marzo 2006", "3 Marzo 2006", "31"},
      {2006, 1, 15, "Año Siguiente", "Enero 2007", "15 Enero 2007", "15"},
      {2004, 2, 29, "Año Siguiente", "Marzo 2005", "1 Marzo 2005", "29"},
      {2004, 2, 29, "Año Anterior", "Marzo 2003", "1 Marzo 2003", "29"},
      {2000, 12, 1, "Año Anterior", "Diciembre 1999", "1 Diciembre 1999", "1"},
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(std::string(caso.flecha) + " a " + caso.dada);
    calendario_->setDate(caso.anio, caso.mes, caso.dia);
    Pulsa(ConConsejo(caso.flecha));
    EXPECT_EQ(Mes(), caso.mesVisto);
    EXPECT_EQ(Dada(), caso.dada);
    EXPECT_EQ(Marcados(), Textos{caso.marcado});
  }
}

TEST_F(FXCalendarTest, VeintisieteMesesAdelanteYAtrasPasanPorTodos) {
  calendario_->setDate(2005, 6, 28);
  for (int i = 1; i <= 27; ++i) {
    Pulsa(ConConsejo("Mes Siguiente"));
    ASSERT_EQ(Dada(), Fecha(2005 + (5 + i) / 12, (5 + i) % 12 + 1, 28));
  }
  for (int i = 26; i >= 0; --i) {
    Pulsa(ConConsejo("Mes Anterior"));
    ASSERT_EQ(Dada(), Fecha(2005 + (5 + i) / 12, (5 + i) % 12 + 1, 28));
  }
}

TEST_F(FXCalendarTest, UnDiaPulsadoEsElMarcado) {
  calendario_->setDate(2006, 2, 31);
  Pulsa(Celda("20"));
  EXPECT_EQ(Dada(), "20 Marzo 2006");
  EXPECT_EQ(Marcados(), Textos{"20"});
  EXPECT_EQ(Celda("31")->getTextColor(), FXRGB(0, 0, 0));
}

TEST_F(FXCalendarTest, UnaCeldaVaciaNoEligeNada) {
  calendario_->setDate(2006, 3, 15);
  EXPECT_THROW(Pulsa(botones_.front()), std::runtime_error);
  calendario_->handle(botones_.front(), FXSEL(SEL_COMMAND, FXCalendar::ID_DAYBUTTON), nullptr);
  EXPECT_EQ(Dada(), "15 Marzo 2006");
  EXPECT_EQ(Marcados(), Textos{"15"});
}

TEST_F(FXCalendarTest, UnMesDe31DiasQueEmpiezaEnSabadoOcupaSeisRenglones) {
  calendario_->setDate(2006, 7, 1);
  EXPECT_EQ(botones_.at(5)->getText(), "");
  EXPECT_EQ(botones_.at(6)->getText(), "1");
  EXPECT_EQ(botones_.at(36)->getText(), "31");
  EXPECT_EQ(botones_.at(37)->getText(), "");
}

TEST_F(FXCalendarTest, UnMesQueEmpiezaEnDomingoDejaVacioElPrimerRenglon) {
  calendario_->setDate(2006, 10, 1);
  EXPECT_EQ(botones_.at(6)->getText(), "");
  EXPECT_EQ(botones_.at(7)->getText(), "1");
  EXPECT_EQ(botones_.at(37)->getText(), "31");
}

TEST_F(FXCalendarTest, UnaSemanaVaciaConservaSuLugar) {
  const std::pair<int, int> conSeisCincoYCuatroSemanas[] = {{2006, 7}, {2006, 10}, {2009, 2}};
  for (const auto& [anio, mes] : conSeisCincoYCuatroSemanas) {
    calendario_->setDate(anio, mes, 1);
    ventana_->resize(ventana_->getDefaultWidth(), ventana_->getDefaultHeight());
    Bombea();
    SCOPED_TRACE(Mes());
    const FXint alto = botones_.front()->getHeight();
    EXPECT_GE(alto, botones_.front()->getFont()->getFontHeight());
    for (size_t i = 0; i < celdas; ++i) {
      EXPECT_EQ(botones_.at(i)->getHeight(), alto) << i;
      EXPECT_EQ(botones_.at(i)->getY(), botones_.front()->getY() + static_cast<FXint>(i / 7) * alto) << i;
    }
  }
}

TEST_F(FXCalendarTest, SusMensajesSiguenALosDelMarco) {
  const FXuint enOrden[] = {FXCalendar::ID_NEXTMONTH, FXCalendar::ID_PREVMONTH, FXCalendar::ID_NEXTYEAR,
                            FXCalendar::ID_PREVYEAR,  FXCalendar::ID_DAYBUTTON, FXCalendar::ID_TODAY};
  FXuint mensaje = FXVerticalFrame::ID_LAST;
  for (const FXuint propio : enOrden) {
    EXPECT_EQ(propio, mensaje++);
    EXPECT_EQ(calendario_->handle(Celda("1"), FXSEL(SEL_COMMAND, propio), nullptr), 1);
  }
}

}  // namespace
}  // namespace pruebas
