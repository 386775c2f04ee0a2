// What the search dialogs share, and the table of their differences.
#include "framework/Buscador.h"

#include <fxkeys.h>

#include <functional>
#include <memory>

#include "catalogs/finance/Busqueda_Window.h"
#include "catalogs/people/BusquedaSocio_Window.h"
#include "catalogs/people/BusquedaSujeto_Window.h"
#include "tests/catalogs/Cuentas.h"
#include "tests/support/Espia.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

struct Dialogo {
  const FXMetaClass* clase;
  std::function<std::unique_ptr<FXDialogBox>(FXWindow*)> abre;
  char* resultado;
  FXint renglones;  // of a chart of three accounts, when it opens
  FXint ancho;
  const char* letra;
};

template <class Ventana>
Dialogo De(char* resultado, FXint renglones, FXint ancho, const char* letra) {
  return {FXMETACLASS(Ventana),
          [](FXWindow* duenia) { return std::make_unique<Ventana>(duenia); },
          resultado,
          renglones,
          ancho,
          letra};
}

class BuscadorTest : public ConDuenia {
 protected:
  void SetUp() override {
    ConDuenia::SetUp();
    PonCarta({Cuenta("1101", "Caja"), Cuenta("1102", "Bancos"), Cuenta("2101", "Ahorro")});
  }
  void TearDown() override {
    sbusqueda[0] = sbusquedasocio[0] = '\0';
    ConDuenia::TearDown();
  }

  /// Does the same to each dialog, in turn.
  void EnCadaUno(const std::function<void(const Dialogo&, FXDialogBox*)>& prueba) {
    const Dialogo dialogos[] = {
        De<Busqueda_Window>(sbusqueda, 3, 350, "helvica"),
        De<BusquedaSujeto_Window>(sbusquedasocio, 0, 500, "courier [adobe]"),
        De<BusquedaSocio_Window>(sbusquedasocio, 0, 500, "courier [adobe]"),
    };
    for (const Dialogo& dialogo : dialogos) {
      SCOPED_TRACE(dialogo.clase->getClassName());
      const std::unique_ptr<FXDialogBox> ventana = dialogo.abre(duenia_);
      ventana->create();
      ventana->show(PLACEMENT_SCREEN);
      Bombea();
      prueba(dialogo, ventana.get());
    }
  }
};

TEST_F(BuscadorTest, LaTablaDeMensajesTieneSuOrden) {
  constexpr FXSelector primero = FXDialogBox::ID_LAST;
  const FXSelector orden[] = {
      FXSEL(SEL_COMMAND, primero),
      FXSEL(SEL_COMMAND, primero + 1),
      FXSEL(SEL_COMMAND, primero + 3),
      FXSEL(SEL_CHANGED, primero + 2),
      FXSEL(SEL_CLOSE, 0),
      FXSEL(SEL_SIGNAL, primero + 4),
  };
  EnCadaUno([&](const Dialogo& dialogo, FXDialogBox*) {
    EXPECT_EQ(dialogo.clase->getBaseClass(), FXMETACLASS(FXDialogBox));
    const auto* esperada = static_cast<const Busqueda_Window::FXMapEntry*>(dialogo.clase->search(orden[0]));
    for (const FXSelector mensaje : orden) EXPECT_EQ(dialogo.clase->search(mensaje), esperada++) << mensaje;
  });
}

TEST_F(BuscadorTest, CadaMensajeLlegaASuManejador) {
  const struct {
    FXSelector mensaje;
    long (Busqueda_Window::*manejador)(FXObject*, FXSelector, void*);
  } casos[] = {
      {FXSEL(SEL_COMMAND, Busqueda_Window::ID_ACEPTAR), &Busqueda_Window::onCmdAceptar},
      {FXSEL(SEL_COMMAND, Busqueda_Window::ID_LISTA), &Busqueda_Window::onCmdLista},
      {FXSEL(SEL_COMMAND, Busqueda_Window::ID_FILTRO), &Busqueda_Window::onCmdFiltro},
      {FXSEL(SEL_CHANGED, Busqueda_Window::ID_BUSCAR), &Busqueda_Window::onCmdBuscar},
      {FXSEL(SEL_CLOSE, 0), &Busqueda_Window::onCmdQuit},
      {FXSEL(SEL_SIGNAL, Busqueda_Window::ID_SALIR), &Busqueda_Window::onCmdQuit},
  };
  for (const auto& [mensaje, manejador] : casos) {
    const void* const entrada = FXMETACLASS(Busqueda_Window)->search(mensaje);
    EXPECT_TRUE(static_cast<const Busqueda_Window::FXMapEntry*>(entrada)->func == manejador) << mensaje;
  }
}

TEST_F(BuscadorTest, TienenBordeSinTituloDosCamposYTresBotones) {
  EnCadaUno([](const Dialogo&, FXDialogBox* ventana) {
    EXPECT_EQ(ventana->getTitle(), "");
    EXPECT_EQ(ventana->getDecorations() & DECOR_ALL, DECOR_BORDER);
    EXPECT_EQ(Etiquetas(ventana), (Textos{"Buscar: ", "Filtro:"}));
    EXPECT_EQ(Botones(ventana), (Textos{"&Aceptar", " ", "&Cerrar"}));
    EXPECT_TRUE(Boton(ventana, "&Aceptar")->getButtonStyle() & BUTTON_DEFAULT);
    for (FXButton* boton : Todos<FXButton>(ventana)) EXPECT_NE(boton->getIcon(), nullptr);
    for (FXTextField* campo : Todos<FXTextField>(ventana)) {
      EXPECT_EQ(campo->getNumColumns(), 20);
      EXPECT_EQ(campo->getTextStyle(), TEXTFIELD_LIMITED);
    }
    auto* const matriz = Todos<FXMatrix>(ventana).at(0);
    EXPECT_EQ(matriz->getNumColumns(), 3);
    EXPECT_EQ(matriz->getMatrixStyle(), MATRIX_BY_COLUMNS);
  });
}

TEST_F(BuscadorTest, CadaListaTieneSuAnchoSuLetraYSusPrimerosRenglones) {
  EnCadaUno([](const Dialogo& dialogo, FXDialogBox* ventana) {
    FXList* const lista = Lista(ventana);
    EXPECT_EQ(lista->getNumItems(), dialogo.renglones);
    EXPECT_EQ(lista->getWidth(), dialogo.ancho);
    EXPECT_EQ(lista->getNumVisible(), 10);
    EXPECT_EQ(lista->getListStyle(), LIST_BROWSESELECT);
    EXPECT_EQ(lista->getScrollStyle() & HSCROLLER_NEVER, HSCROLLER_NEVER);
    EXPECT_EQ(lista->getFont()->getName(), dialogo.letra);
    EXPECT_EQ(lista->getFont()->getSize(), 80u);
    EXPECT_EQ(lista->getFont()->getWeight(), FXuint{FXFont::Normal});
    EXPECT_EQ(lista->getFont()->getSlant(), FXuint{FXFont::Straight});
  });
}

TEST_F(BuscadorTest, AceptarSinElegirRenglonDejaVacioElResultado) {
  EnCadaUno([](const Dialogo& dialogo, FXDialogBox* ventana) {
    strcpy(dialogo.resultado, "antes");
    Escribe(ventana, "Buscar: ", "1102");
    Pulsa(Boton(ventana, "&Aceptar"));
    EXPECT_STREQ(dialogo.resultado, "");
    EXPECT_FALSE(ventana->shown());
  });
}

TEST_F(BuscadorTest, CerrarYEscapeDejanElResultadoComoEntro) {
  for (const bool tecla : {false, true}) {
    EnCadaUno([tecla](const Dialogo& dialogo, FXDialogBox* ventana) {
      strcpy(dialogo.resultado, "antes");
      if (tecla) {
        Tecla(Lista(ventana), KEY_Escape);
      } else {
        Pulsa(Boton(ventana, "&Cerrar"));
      }
      EXPECT_STREQ(dialogo.resultado, "antes");
      EXPECT_FALSE(ventana->shown());
    });
  }
}

TEST_F(BuscadorTest, PedirlesQueCierrenNoLosCierra) {
  EnCadaUno([](const Dialogo&, FXDialogBox* ventana) {
    for (const FXSelector mensaje : {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_SIGNAL, Busqueda_Window::ID_SALIR)}) {
      EXPECT_EQ(ventana->handle(&App(), mensaje, nullptr), 1);
      EXPECT_TRUE(ventana->shown());
    }
  });
}

TEST_F(BuscadorTest, NingunCampoTomaMasDeVeinteLetras) {
  const std::string largo(50, '1');
  EnCadaUno([&](const Dialogo&, FXDialogBox* ventana) {
    for (const std::string& texto : {largo, Acentos(50)}) {
      Escribe(ventana, "Filtro:", texto);
      EXPECT_EQ(CampoJuntoA(ventana, "Filtro:")->getText().count(), 20);
      Escribe(ventana, "Buscar: ", texto);  // no row begins so: every key is taken back
      EXPECT_LE(Leido(ventana, "Buscar: "), "11");
    }
  });
}

TEST_F(BuscadorTest, UnUsuarioDescuidadoNoLosTumba) {
  const Salida salida;
  EnCadaUno([](const Dialogo&, FXDialogBox* ventana) {
    EXPECT_TRUE(Maltrata(ventana, {"&Aceptar", "&Cerrar"}).empty());  // no dialog says anything
  });
}

TEST_F(BuscadorTest, ElFiltroInhabilitaElCampoDeBuscarParaSiempre) {
  const Salida salida;
  EnCadaUno([](const Dialogo&, FXDialogBox* ventana) {
    for (const char* filtro : {"nada que exista", ""}) {
      Escribe(ventana, "Filtro:", filtro);
      Pulsa(Boton(ventana, " "));
      EXPECT_FALSE(Usable(CampoJuntoA(ventana, "Buscar: ")));
    }
  });
}

TEST_F(BuscadorTest, UnaListaVaciaNoDaClave) {
  EnCadaUno([](const Dialogo& dialogo, FXDialogBox* ventana) {
    Lista(ventana)->clearItems();
    EXPECT_EQ(ventana->handle(&App(), FXSEL(SEL_COMMAND, Busqueda_Window::ID_LISTA), nullptr), 1);
    EXPECT_EQ(Leido(ventana, "Buscar: "), "");
    Pulsa(Boton(ventana, "&Aceptar"));
    EXPECT_STREQ(dialogo.resultado, "");
  });
}

TEST_F(BuscadorTest, AbrirNoPreguntaAlServidor) {
  const Espia espia;
  EnCadaUno([&](const Dialogo&, FXDialogBox* ventana) {
    Escribe(ventana, "Buscar: ", "1102");
    EXPECT_TRUE(espia.Sentencias().empty());
  });
}

}  // namespace
}  // namespace pruebas
