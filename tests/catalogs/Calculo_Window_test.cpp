// The form of the formulas: what it does beyond the pattern, which simples_Window_test.cpp has.
#include "catalogs/finance/Calculo_Window.h"

#include <gtest/gtest.h>

#include "tests/support/ConVentana.h"
#include "tests/support/Registros.h"

namespace pruebas {
namespace {

class CalculoVentana : public ConVentana<Calculo_Window> {
 protected:
  CalculoVentana() {
    calculo.Clear();
    forma_ = area_.Abre<Calculo_Window>();
  }
  void Llena(const std::string& descripcion, const std::string& formula) {
    Escribe(forma_, "Descripción:", descripcion);
    Escribe(forma_, "Formula:", formula);
  }
  std::string Cuantas() { return base_.Valor("select count(*) from norte.calculo"); }
};

TEST_F(CalculoVentana, UnaFormulaMasLargaQueSuCampoSeConservaEntera) {
  const std::string larga = "Dias" + std::string(251, '1');
  base_.Ejecuta("insert into norte.calculo (descripcioncalculo, formula) values ('Larga', '" + larga + "')");
  Escribe(forma_, "Identificador:", "7");
  EXPECT_TRUE(Manda("&Buscar").empty());
  EXPECT_EQ(Leido(forma_, "Formula:"), larga);
  Escribe(forma_, "Descripción:", "Más larga");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(base_.Filas("select descripcioncalculo, formula from norte.calculo where calculoid = 7"),
            (Tabla{{"Más larga", larga}}));
}

TEST_F(CalculoVentana, RenombrarUnaFormulaNoCambiaLosTiposQueLaUsan) {
  const char* const usos = "select tipoinversionid, calculoid from norte.tipoinversion order by 1";
  const Tabla antes = base_.Filas(usos);
  Escribe(forma_, "Identificador:", "5");
  Manda("&Buscar");
  Escribe(forma_, "Descripción:", "Plazo fijo");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(base_.Filas(usos), antes);
}

TEST_F(CalculoVentana, UnaFormulaEnUsoNoSeBorra) {
  Escribe(forma_, "Identificador:", "5");
  const Textos dichos = Manda("&Borrar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_NE(dichos.at(1).find("No se puede borrar la fórmula"), std::string::npos) << dichos.at(1);
  EXPECT_EQ(Cuantas(), "6");
}

TEST_F(CalculoVentana, UnApostrofeLoDiceElServidorYNoSeGuarda) {
  for (const auto& [descripcion, formula] : {std::pair("O'Hara", "1"), {"Hara", "1'"}, {"x');--", "1"}}) {
    Llena(descripcion, formula);
    const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
    EXPECT_EQ(dichos.at(1).rfind("ERROR:", 0), 0u) << dichos.at(1);
    EXPECT_EQ(Leido(forma_, "Descripción:"), descripcion);
    EXPECT_EQ(Cuantas(), "6");
  }
}

TEST_F(CalculoVentana, CortadaEnCadaSentenciaNoQuedaNadaAMediasYLaFormaSirve) {
  constexpr size_t cierre =
      2;  // COMMIT, behind BEGIN and the insert, ahead of the three statements of the load
  int guardadas = 6;
  for (size_t n = 0; n < 6; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      calculo.Clear();
      Manda("&Nuevo");
      Llena("Prueba", "Dias");
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      {
        Guion guion;
        guion.Responde(Respuesta::Si);
        guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
        Pulsa(Boton(forma_, "&Aceptar"));
      }
      espia_.Vacia();
      sesion_.reset();
      sesion_.emplace(base_);
      const bool guardada = n > cierre || (n == cierre && despues);
      guardadas += guardada;
      EXPECT_EQ(Cuantas(), std::to_string(guardadas));
      if (guardada) continue;
      EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
      EXPECT_EQ(Cuantas(), std::to_string(++guardadas));
    }
  }
}

TEST_F(CalculoVentana, CuarentaLetrasAcentuadasSeCortanEnUnaEntera) {
  std::string tecleada;
  while (tecleada.size() < 100) tecleada += "ñ";
  Llena(tecleada, "Dias");
  EXPECT_EQ(Leido(forma_, "Descripción:"), tecleada.substr(0, 80));
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(base_.Valor("select descripcioncalculo from norte.calculo order by calculoid desc limit 1"),
            tecleada.substr(0, 42));  // the record holds 43 bytes
  EXPECT_EQ(Lista(forma_)->getItemText(6), tecleada.substr(0, 42).c_str());
  EXPECT_EQ(sCalculo, tecleada.substr(0, 42));
}

}  // namespace
}  // namespace pruebas
