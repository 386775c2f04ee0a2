// The form of one good, which edits the list of a person and sends nothing itself.
#include "catalogs/people/Bien_Window.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Cortes.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Registros.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

cBien Casa(long id, const char* descri, bool nuevo = false) {
  return cBien(id, 7, "Ana", descri, "Dos pisos", "Libro 3", 1500.5F, 1200, 900, "Ninguna", 2, "S",
               date(3, 2, 2001), false, nuevo, false);
}

class BienVentana : public testing::Test {
 protected:
  BienVentana() {
    App();
    bien.Clear();
    persona_.getBienes().Insertar(Casa(1, "Casa"));
    persona_.getBienes().Insertar(Casa(2, "Terreno"));
  }
  ~BienVentana() override { forma_.reset(); }
  void Abre(int indice) {
    duena_ = std::make_unique<FXMainWindow>(&App(), "Prueba");
    duena_->create();
    forma_ = std::make_unique<Bien_Window>(duena_.get(), &persona_, indice);
    forma_->create();
    forma_->show();
    Bombea();
  }
  FXText* Parrafo(const char* etiqueta) { return JuntoA<FXText>(forma_.get(), etiqueta); }
  FXCheckButton* Casilla() { return Todos<FXCheckButton>(forma_.get()).at(0); }
  FXTextField* Fecha() {
    for (FXTextField* campo : Todos<FXTextField>(forma_.get()))
      if (std::string(campo->getClassName()) == "cFecha") return campo;
    throw std::runtime_error("sin fecha");
  }
  Textos Manda(const std::string& boton, const std::vector<Respuesta>& respuestas = {}) {
    return PulsaYResponde(Boton(forma_.get(), boton), respuestas, cuadros_);
  }
  void Llena() {
    Escribe(forma_.get(), "Propietario:", "Bea");
    Escribe(forma_.get(), "Descripción:", "Bodega");
    Escribe(Parrafo("Caracteristicas:"), "Grande");
    Escribe(Parrafo("Registro Publico:"), "Libro 9");
    Escribe(Parrafo("Datos Hipoteca:"), "Banco");
    Escribe(forma_.get(), "Valor comercial:", "10.5");
    Escribe(forma_.get(), "Valor fiscal:", "9");
    Escribe(forma_.get(), "Valor catastro:", "8");
    Escribe(forma_.get(), "Relación Garantia:", "2");
  }
  lista<cBien>& Bienes() { return persona_.getBienes(); }

  Espia espia_;
  cSujeto persona_;
  std::unique_ptr<FXMainWindow> duena_;
  std::unique_ptr<Bien_Window> forma_;
  std::vector<Cuadro> cuadros_;
};

TEST_F(BienVentana, TieneSusPiezas) {
  Abre(-1);
  EXPECT_STREQ(forma_->getTitle().text(), "Bien");
  for (const char* titulo : {"Datos Generales", "Valor"}) Grupo(forma_.get(), titulo);
  EXPECT_EQ(Botones(forma_.get()), (Textos{"", "&Borrar", "&Cerrar", "&Aceptar"}));
  EXPECT_TRUE(Todos<FXList>(forma_.get()).empty());
  for (const char* etiqueta : {"Propietario:", "Descripción:"}) {
    EXPECT_EQ(CampoJuntoA(forma_.get(), etiqueta)->getNumColumns(), 60);
    EXPECT_EQ(CampoJuntoA(forma_.get(), etiqueta)->getTextStyle(), FXuint{TEXTFIELD_LIMITED});
  }
  for (const char* etiqueta : {"Caracteristicas:", "Registro Publico:", "Datos Hipoteca:"}) {
    EXPECT_EQ(Parrafo(etiqueta)->getVisibleRows(), 3);
    EXPECT_EQ(Parrafo(etiqueta)->getVisibleColumns(), 60);
  }
  for (const char* etiqueta :
       {"Valor comercial:", "Valor fiscal:", "Valor catastro:", "Relación Garantia:"}) {
    const FXTextField* const campo = CampoJuntoA(forma_.get(), etiqueta);
    EXPECT_EQ(campo->getNumColumns(), 15);
    EXPECT_EQ(campo->getTextStyle(), FXuint{TEXTFIELD_LIMITED | TEXTFIELD_REAL});
    EXPECT_EQ(campo->getJustify() & JUSTIFY_RIGHT, FXuint{JUSTIFY_RIGHT});
  }
  EXPECT_STREQ(Casilla()->getText().text(), "Adjudicado");
  EXPECT_EQ(Fecha()->getNumColumns(), 10);
  ExigeNadaCortado(forma_.get());
  using V = Bien_Window;
  ExigeMapa<V>({Mando<V>(62, &V::onCmdAgregar),
                Mando<V>(63, &V::onCmdBorrar),
                Mando<V>(64, &V::onCmdCalendario),
                {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
                {FXSEL(SEL_SIGNAL, 65), FXSEL(SEL_SIGNAL, 65), &V::onCmdQuit}});
}

TEST_F(BienVentana, UnoNuevoSeAgregaALaLista) {
  Abre(-1);
  EXPECT_TRUE(bien.IsNew());
  EXPECT_FALSE(bien.Deleted());
  Llena();
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_FALSE(forma_->shown());
  ASSERT_EQ(Bienes().NumElementos(), 3);
  const cBien nuevo = Bienes().Item(0);  // its key is 0 until the server gives one
  EXPECT_STREQ(nuevo.getDescriBien(), "Bodega");
  EXPECT_STREQ(nuevo.getCaracteristicas(), "Grande");
  EXPECT_STREQ(nuevo.getAdjudicado(), "N");
  EXPECT_EQ(nuevo.getValorComercial(), 10.5F);
  EXPECT_TRUE(nuevo.IsNew());
  EXPECT_TRUE(espia_.Sentencias().empty());
}

TEST_F(BienVentana, ElDeUnLugarSeMuestraYSeCambiaAhi) {
  Abre(1);
  EXPECT_EQ(Leido(forma_.get(), "Descripción:"), "Terreno");
  EXPECT_STREQ(Parrafo("Datos Hipoteca:")->getText().text(), "Ninguna");
  EXPECT_EQ(Leido(forma_.get(), "Valor comercial:"), "1500.5");
  EXPECT_TRUE(Casilla()->getCheck());
  EXPECT_STREQ(Fecha()->getText().text(), "3/2/2001");
  Escribe(forma_.get(), "Descripción:", "Parcela");
  EXPECT_TRUE(Manda("&Aceptar").empty());
  ASSERT_EQ(Bienes().NumElementos(), 2);
  EXPECT_STREQ(Bienes().Item(1).getDescriBien(), "Parcela");
  EXPECT_TRUE(Bienes().Item(1).getDataChanged());
  EXPECT_FALSE(Bienes().Item(1).IsNew());
  EXPECT_STREQ(Bienes().Item(0).getDescriBien(), "Casa");
}

TEST_F(BienVentana, LoQueNoSeTocaNoCambia) {
  Abre(0);
  Manda("&Aceptar");
  EXPECT_FALSE(Bienes().Item(0).getDataChanged());
}

TEST_F(BienVentana, CerrarNoCambiaNada) {
  Abre(0);
  Escribe(forma_.get(), "Descripción:", "Parcela");
  Manda("&Cerrar");
  EXPECT_FALSE(forma_->shown());
  EXPECT_STREQ(Bienes().Item(0).getDescriBien(), "Casa");
}

TEST_F(BienVentana, BorrarMarcaElBienYLoDejaEnLaLista) {
  Abre(0);
  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(cuadros_.back().titulo, "Bien");
  EXPECT_TRUE(forma_->shown());
  EXPECT_FALSE(Bienes().Item(0).Deleted());
  Manda("&Borrar", {Respuesta::Si});
  EXPECT_FALSE(forma_->shown());
  ASSERT_EQ(Bienes().NumElementos(), 2);
  EXPECT_TRUE(Bienes().Item(0).Deleted());
}

TEST_F(BienVentana, UnLugarQueNoHayEsUnBienNuevoQueNoLlega) {
  for (const int indice : {2, 99, -7}) {
    Abre(indice);
    EXPECT_TRUE(bien.IsNew());
    EXPECT_EQ(Leido(forma_.get(), "Descripción:"), "");
    Llena();
    EXPECT_TRUE(Manda("&Aceptar").empty());
    EXPECT_EQ(Bienes().NumElementos(), 2);
  }
  Abre(-1);
  Manda("&Borrar", {Respuesta::Si});
  EXPECT_EQ(Bienes().NumElementos(), 2);
}

TEST_F(BienVentana, CadaReglaTieneSuCuadroYNadaSeDeshace) {
  const struct {
    const char* etiqueta;
    const char* valor;
    const char* mensaje;
  } casos[] = {
      {"Propietario:", "", "No ha especificado el propietario"},
      {"Descripción:", "", "No ha especificado la descripción del bien"},
      {"Caracteristicas:", "", "No ha especificado las caracteristicas"},
      {"Registro Publico:", "", "No ha registrado el registro publico"},
      {"Valor comercial:", "-1", "El valor comercial no puede ser negativo"},
      {"Valor fiscal:", "-1", "El valor fiscal no puede ser negativo"},
      {"Valor catastro:", "-1", "El valor de catastro no puede ser negativo"},
      {"Datos Hipoteca:", "", "No ha especificado los datos de la hipoteca"},
      {"Relación Garantia:", "-1", "No ha especificado la garantia"},
  };
  for (const auto& caso : casos) {
    SCOPED_TRACE(caso.etiqueta);
    Abre(-1);
    Llena();
    FXWindow* const pieza = PiezaJuntoA(forma_.get(), caso.etiqueta);
    const auto parrafos = Todos<FXText>(pieza);
    Escribe(parrafos.empty() ? pieza : parrafos[0], caso.valor);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{caso.mensaje});
    EXPECT_EQ(cuadros_.back().clase, Clase::Error);
    EXPECT_EQ(cuadros_.back().titulo, "Error en Validación");
    EXPECT_TRUE(forma_->shown());
    EXPECT_EQ(Bienes().NumElementos(), 2);
  }
  EXPECT_TRUE(espia_.Sentencias().empty());
}

TEST_F(BienVentana, UnoAdjudicadoPideSuFecha) {
  Abre(-1);
  Llena();
  Pulsa(Casilla());
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No ha especificado la fecha de adjudicación"});
  Escribe(Fecha(), "5/3/2006");
  EXPECT_TRUE(Manda("&Aceptar").empty());
  EXPECT_STREQ(Bienes().Item(0).getAdjudicado(), "S");
  EXPECT_STREQ(Bienes().Item(0).getFechaAdjudicado().AsChar(), "2006-03-05");
}

TEST_F(BienVentana, ElCalendarioEscribeConCeros) {
  Abre(1);
  Guion guion;
  guion.Con([](FXDialogBox* calendario) { Pulsa(Boton(calendario, "&Cerrar")); });
  Pulsa(dynamic_cast<FXButton*>(Fecha()->getNext()));
  EXPECT_STREQ(Fecha()->getText().text(), "03/02/2001");
}

TEST_F(BienVentana, UnaFechaSinDiaSeConserva) {
  Bienes().setItem(cBien(1, 7, "Ana", "Casa", "c", "r", 1, 1, 1, "d", 1, "N", date(""), false, false, false),
                   0);
  Abre(0);
  EXPECT_STREQ(Fecha()->getText().text(), "0/0/0");
  Manda("&Aceptar");
  EXPECT_FALSE(Bienes().Item(0).getDataChanged());
}

TEST_F(BienVentana, AguantaAUnDescuidado) {
  Abre(0);
  EXPECT_FALSE(Maltrata(forma_.get(), {"&Cerrar"}).empty());
  EXPECT_EQ(Profundidad(), 0);
}

/// The whole way: the good of a person read, edited in the form, and saved with the person.
TEST(BienDePersona, SeGuardaConSuPersona) {
  BaseDatos base;
  Sesion sesion(base);
  const long id = std::stol(base.Valor("select sujetoid from norte.usuario where usuarioid = 'braulio'"));
  cSujeto persona;
  persona.setSujetoID(id);
  persona.Find();
  FXMainWindow* const duena = new FXMainWindow(&App(), "Prueba");
  duena->create();
  const auto edita = [&](int indice, const char* descri, const char* boton) {
    Bien_Window forma(duena, &persona, indice);
    forma.create();
    forma.show();
    Bombea();
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).front()); });
    for (const char* etiqueta : {"Propietario:", "Descripción:"}) Escribe(&forma, etiqueta, descri);
    for (const char* etiqueta : {"Caracteristicas:", "Registro Publico:", "Datos Hipoteca:"})
      Escribe(JuntoA<FXText>(&forma, etiqueta), descri);
    Pulsa(Boton(&forma, boton));
  };
  edita(-1, "Casa", "&Aceptar");
  persona.Update();
  EXPECT_EQ(base.Valor("select describien from norte.bienes where sujetoid = " + std::to_string(id)), "Casa");
  persona.Find();
  edita(0, "Rancho", "&Aceptar");
  persona.Update();
  EXPECT_EQ(base.Valor("select describien from norte.bienes where sujetoid = " + std::to_string(id)),
            "Rancho");
  persona.Find();
  edita(0, "Rancho", "&Borrar");
  persona.Update();
  EXPECT_EQ(base.Valor("select count(*) from norte.bienes where sujetoid = " + std::to_string(id)), "0");
  delete duena;
}

}  // namespace
}  // namespace pruebas
