// Opening a form with its catalogue read anew, against the same widgets built straight with the toolkit
// around a list filled from the same select.
#include <iostream>
#include <memory>
#include <string>
#include <type_traits>

#include "app/sesion.h"
#include "bench/Medida.h"
#include "catalogs/simple/Asesor_Window.h"
#include "catalogs/simple/ClasificacionCredito_Window.h"
#include "catalogs/simple/ConceptoScoring_Window.h"
#include "catalogs/simple/Estados_Credito_Window.h"
#include "catalogs/simple/Finalidades_Window.h"
#include "catalogs/simple/Grupo_Window.h"
#include "catalogs/simple/Modulo_Window.h"
#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/MotivoBaja_Window.h"
#include "catalogs/simple/Ocupacion_Window.h"
#include "catalogs/simple/TipoMoviBanco_Window.h"
#include "catalogs/simple/TipoSocio_Window.h"
#include "catalogs/simple/TipoUsuario_Window.h"
#include "catalogs/simple/Tipo_Garantia_Window.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Vueltas = 31;
/// How long a catalogue is, and how often a form is opened in a turn: once alone is over too soon to measure.
struct Largo {
  int filas, aperturas;
};
constexpr Largo Largos[] = {{10, 10}, {5000, 1}};

/// Where forms open.
struct Escenario {
  FXMainWindow* ventana =
      new FXMainWindow(&pruebas::App(), "Formas", nullptr, nullptr, DECOR_ALL, 0, 0, 1000, 800);
  FXMDIClient* area = new FXMDIClient(ventana, LAYOUT_FILL);
  FXMDIMenu* menu = new FXMDIMenu(ventana, area);
};

struct Caso {
  const char* nombre;
  FXComposite* (*abre)(Escenario& escenario);
  const char* funcion;  ///< what its load selects from
  const char* clave;    ///< the argument that means all rows
  int columna = 1;      ///< of the text that the list shows
};

template <class V>
FXComposite* Abre(Escenario& escenario) {
  if constexpr (std::is_base_of_v<FXDialogBox, V>) {
    return new V(escenario.ventana);
  } else {
    return new V(escenario.area, escenario.menu);
  }
}

const Caso casos[] = {
    {"Monedas_Window", Abre<Monedas_Window>, "spsmoneda", "'  '", 2},
    {"Tipo_Garantia_Window", Abre<Tipo_Garantia_Window>, "spstipo_garantia", "'  '"},
    {"Estados_Credito_Window", Abre<Estados_Credito_Window>, "spsestados_credito", "'  '"},
    {"Finalidades_Window", Abre<Finalidades_Window>, "spsfinalidades", "'  '"},
    {"Modulo_Window", Abre<Modulo_Window>, "spsmodulo", "'  '"},
    {"TipoUsuario_Window", Abre<TipoUsuario_Window>, "spstipousuario", "'  '"},
    {"TipoSocio_Window", Abre<TipoSocio_Window>, "spstiposocio", "'  '"},
    {"TipoMoviBanco_Window", Abre<TipoMoviBanco_Window>, "spstipomovibanco", "'  '"},
    {"Asesor_Window", Abre<Asesor_Window>, "spsasesor", "0"},
    {"MotivoBaja_Window", Abre<MotivoBaja_Window>, "spsmotivobaja", "0"},
    {"ClasificacionCredito_Window", Abre<ClasificacionCredito_Window>, "spsclasificacioncredito", "0"},
    {"Grupo_Window", Abre<Grupo_Window>, "spsgrupo", "0"},
    {"Ocupacion_Window", Abre<Ocupacion_Window>, "spsocupacion", "0"},
    {"ConceptoScoring_Window", Abre<ConceptoScoring_Window>, "spsconceptoscoring", "0"},
};

/// The select of a load, on any table of that many rows.
void PreparaCatalogo(pruebas::BaseDatos& base, const Caso& caso, int filas) {
  const std::string funcion = caso.funcion;
  const std::string tipo = caso.clave[0] == '\'' ? "text" : "integer";
  base.Ejecuta(
      "drop table if exists catalogo cascade; create table catalogo as"
      " select i as clave, 'Renglon de prueba ' || i as uno, 'Renglon de prueba ' || i as dos"
      " from generate_series(1, " +
      std::to_string(filas) + ") i; create function " + funcion + "(" + tipo +
      ") returns setof catalogo language sql stable as 'select * from catalogo'");
}

void LlenaDirecto(FXList* lista, const Caso& caso) {
  const std::string sql = std::string("SELECT * FROM ") + caso.funcion + "(" + caso.clave + ");";
  PGresult* const r = PQexec(conn, sql.c_str());
  for (int fila = 0; fila < PQntuples(r); ++fila) lista->appendItem(PQgetvalue(r, fila, caso.columna));
  PQclear(r);
}

/// A frame like `modelo`, empty; null when that is no frame.
FXComposite* CopiaMarco(FXWindow* modelo, FXComposite* padre) {
  const FXuint lugar = modelo->getLayoutHints();
  if (auto* m = dynamic_cast<FXGroupBox*>(modelo))
    return new FXGroupBox(padre, m->getText(), m->getFrameStyle() | lugar);
  if (auto* m = dynamic_cast<FXMatrix*>(modelo))
    return new FXMatrix(padre, m->getNumColumns(), MATRIX_BY_COLUMNS | lugar);
  if (auto* m = dynamic_cast<FXHorizontalFrame*>(modelo))
    return new FXHorizontalFrame(padre, m->getFrameStyle() | lugar);
  if (auto* m = dynamic_cast<FXVerticalFrame*>(modelo))
    return new FXVerticalFrame(padre, m->getFrameStyle() | lugar);
  return nullptr;
}

/// A widget like `modelo`; a list comes full.
void CopiaPieza(FXWindow* modelo, FXComposite* padre, const Caso& caso) {
  const FXuint lugar = modelo->getLayoutHints();
  if (auto* m = dynamic_cast<FXButton*>(modelo)) {
    new FXButton(padre, m->getText(), m->getIcon(), nullptr, 0,
                 m->getFrameStyle() | m->getIconPosition() | lugar);
  } else if (dynamic_cast<FXCheckButton*>(modelo)) {
    new FXCheckButton(padre, "", nullptr, 0, CHECKBUTTON_NORMAL | lugar);
  } else if (auto* l = dynamic_cast<FXLabel*>(modelo)) {
    new FXLabel(padre, l->getText(), nullptr, LABEL_NORMAL | lugar);
  } else if (auto* c = dynamic_cast<FXTextField*>(modelo)) {
    new FXTextField(padre, c->getNumColumns(), nullptr, 0, c->getFrameStyle() | c->getTextStyle() | lugar);
  } else if (auto* t = dynamic_cast<FXText*>(modelo)) {
    auto* const parrafo = new FXText(padre, nullptr, 0, t->getTextStyle() | lugar);
    parrafo->setVisibleRows(t->getVisibleRows());
    parrafo->setVisibleColumns(t->getVisibleColumns());
  } else if (auto* f = dynamic_cast<FXList*>(modelo)) {
    LlenaDirecto(new FXList(padre, nullptr, 0, f->getListStyle() | f->getScrollStyle() | lugar, 0, 0, 150),
                 caso);
  }
}

/// The widgets inside `modelo`, made anew inside `padre` without any of our classes.
void Copia(FXComposite* modelo, FXComposite* padre, const Caso& caso) {
  for (FXWindow* hijo = modelo->getFirst(); hijo; hijo = hijo->getNext()) {
    if (FXComposite* const marco = CopiaMarco(hijo, padre)) {
      Copia(static_cast<FXComposite*>(hijo), marco, caso);
    } else {
      CopiaPieza(hijo, padre, caso);
    }
  }
}

/// The bare window like `modelo`.
FXComposite* AbreLlana(Escenario& escenario, FXComposite* modelo, const Caso& caso) {
  FXComposite* ventana;
  if (auto* hija = dynamic_cast<FXMDIChild*>(modelo)) {
    ventana = new FXMDIChild(escenario.area, hija->getTitle(), nullptr, escenario.menu, 0, 20, 20,
                             hija->getWidth(), hija->getHeight());
    auto* const cuerpo = static_cast<FXComposite*>(hija->contentWindow());
    Copia(cuerpo, CopiaMarco(cuerpo, ventana), caso);
    ventana->create();
    ventana->setFocus();
  } else {
    ventana = new FXDialogBox(escenario.ventana, static_cast<FXDialogBox*>(modelo)->getTitle(),
                              DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE);
    Copia(modelo, ventana, caso);
  }
  return ventana;
}

/// Processor time until the window that `abre` gives stands, laid out and up to date, that many times; each
/// is closed outside the measure.
template <class Abridor>
double Aperturas(int veces, Abridor abre) {
  double segundos = 0;
  while (veces-- > 0) {
    std::unique_ptr<FXComposite> ventana;
    segundos += medida::SegundosDeProcesador([&] {
      ventana.reset(abre());
      ventana->create();
      ventana->show();
      ventana->layout();
      pruebas::App().forceRefresh();
    });
  }
  return segundos;
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base(pruebas::BaseDatos::Vacia);
  const pruebas::Conexion conexion = base.Conecta();
  conn = conexion.get();
  Escenario escenario;
  escenario.ventana->create();
  escenario.ventana->show(PLACEMENT_SCREEN);
  std::cout.setstate(std::ios::failbit);  // the traces of forms and loads
  for (const auto& [filas, veces] : Largos) {
    for (const Caso& caso : casos) {
      PreparaCatalogo(base, caso, filas);
      const std::unique_ptr<FXComposite> modelo(caso.abre(escenario));
      modelo->create();
      const auto nuestra = [&] { return caso.abre(escenario); };
      const auto llana = [&] { return AbreLlana(escenario, modelo.get(), caso); };
      const std::string que = std::string(caso.nombre) + ", " + std::to_string(filas) + " renglones";
      informe.Escribe(que.c_str(),
                      medida::Compara(
                          Vueltas, [&, n = veces] { return Aperturas(n, nuestra); },
                          [&, n = veces] { return Aperturas(n, llana); }),
                      1.5);
    }
  }
  return informe.Codigo();
}
