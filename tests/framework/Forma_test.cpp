// The shape that all forms share, on a dialog with a numeric key and a record that only takes notes: what
// differs from the currencies' form, and what a record or a cache can do to a form.
#include "framework/Forma.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

Textos llamadas;    // what was asked of the record and the cache, in order
std::string lanza;  // the one of them that fails

void Anota(const char* llamada) {
  llamadas.emplace_back(llamada);
  if (lanza == llamada) throw const_cast<char*>("no se pudo %s");
}

class cNota {
 public:
  cNota() = default;
  cNota(long id, const char* texto) : id_(id), texto_(texto) {}

  void setID(long valor) { Pon(id_, valor); }
  void setTexto(const char* valor) { Pon(texto_, std::string(valor)); }
  void setPeso(float valor) { Pon(peso_, valor); }
  long getID() const { return id_; }
  const char* getTexto() const { return texto_.c_str(); }
  float getPeso() const { return peso_; }

  bool getDataChanged() const { return cambiado_; }
  void setDataChanged(bool valor) { cambiado_ = valor; }
  bool IsNew() const { return nuevo_; }
  void setIsNew(bool valor) { nuevo_ = valor; }
  const char* clase() const { return "Nota"; }
  bool operator>(const cNota& otra) const { return id_ > otra.id_; }
  bool operator<=(const cNota& otra) const { return id_ <= otra.id_; }

  bool Check() {
    Anota("Check");
    return true;
  }
  void AddNew();
  void Update();
  void Delete() { Anota("Delete"); }
  void Find() {
    Anota("Find");
    nuevo_ = id_ == 404;
  }
  void RollBackTransaction() { Anota("RollBack"); }

 private:
  template <class T>
  void Pon(T& columna, const T& valor) {
    cambiado_ = cambiado_ || !(columna == valor);
    columna = valor;
  }

  long id_ = 0;
  std::string texto_;
  float peso_ = 0;
  bool cambiado_ = false;
  bool nuevo_ = false;
};

cNota nota;
std::map<int, cNota> cache;     // what the form lists
lista<cNota> ordenada;          // the same for the short one
std::map<int, cNota> servidor;  // what the next load puts there

void cNota::AddNew() {
  Anota("AddNew");
  cambiado_ = nuevo_ = false;
}
void cNota::Update() {
  Anota("Update");
  cambiado_ = false;
}

class Nota_Window : public Forma<Nota_Window, FXDialogBox> {
  FXDECLARE(Nota_Window)
 public:
  explicit Nota_Window(FXWindow* duenio) : Forma(duenio, "Notas") {
    ArmaLista("Notas");
    FXMatrix* matriz = ArmaGrupo("Identificación");
    campoReal(matriz, "Número:", 10, id);
    matriz = ArmaGrupo("Datos");
    campoTexto(matriz, "Texto:", 30, texto);
    campoReal(matriz, "Peso:", 10, peso);
    ArmaBotones();
    Comienza();
  }

 protected:
  Nota_Window() {}

 private:
  friend Forma;
  cNota& Actual() { return nota; }
  std::map<int, cNota>& Filas() { return cache; }
  void Relee() {
    cache.clear();
    Anota("Relee");
    cache = servidor;
  }
  auto Datos() {
    return std::tuple(Liga(id, &cNota::getID, &cNota::setID), Liga(texto, &cNota::getTexto, &cNota::setTexto),
                      Liga(peso, &cNota::getPeso, &cNota::setPeso));
  }

  DatoReal id;
  DatoTexto texto;
  DatoReal peso;
};

MAPA_FORMA(Nota_Window, onCmdLista)

/// The short family, over a sorted list, with a message of its own.
class Corta_Window : public Forma<Corta_Window, FXDialogBox, SinBuscar> {
  FXDECLARE(Corta_Window)
 public:
  enum { ID_PROPIO = ID_LISTA + 1, ID_SALIR, ID_LAST };

  explicit Corta_Window(FXWindow* duenio) : Forma(duenio, "Notas") {
    ArmaLista("Notas");
    FXMatrix* matriz = ArmaGrupo("");
    campoClave(matriz, "Número:", 4, id, JUSTIFY_RIGHT);
    campoTexto(matriz, "Texto:", 30, texto);
    ArmaBotones();
    Comienza();
  }
  long onCmdPropio(FXObject*, FXSelector, void*) {
    Anota("Propio");
    return 1;
  }

 protected:
  Corta_Window() {}

 private:
  friend Forma;
  cNota& Actual() { return nota; }
  auto& Filas() { return ordenada; }
  void Relee() {
    ordenada.RemoverTodos();
    for (const auto& [fila, registro] : servidor) ordenada.Insertar(registro);
  }
  auto Datos() {
    return std::tuple(Liga(id, &cNota::getID, &cNota::setID),
                      Liga(texto, &cNota::getTexto, &cNota::setTexto));
  }

  DatoEntero id;
  DatoTexto texto;
};

MAPA_FORMA_CORTA(Corta_Window, onCmdLista, MANDO(Corta_Window, ID_PROPIO, onCmdPropio))

class FormaTest : public testing::Test {
 protected:
  void SetUp() override {
    nota = cNota();
    lanza.clear();
    servidor = {{0, {10, "diez"}}, {1, {20, "veinte"}}, {2, {30, "treinta"}}};
    duenio_ = new FXMainWindow(&App(), "Dueña", nullptr, nullptr, DECOR_ALL, 0, 0, 800, 600);
    duenio_->create();
    duenio_->show(PLACEMENT_SCREEN);
  }
  void TearDown() override {
    forma_.reset();
    delete duenio_;
  }

  Nota_Window& Abre() {
    forma_ = std::make_unique<Nota_Window>(duenio_);
    forma_->create();
    forma_->show(PLACEMENT_SCREEN);
    Bombea();
    llamadas.clear();
    return *forma_;
  }
  Textos Manda(const char* boton, const std::vector<Respuesta>& respuestas = {}) {
    llamadas.clear();
    Guion guion;
    for (const Respuesta respuesta : respuestas) guion.Responde(respuesta);
    Pulsa(Boton(forma_.get(), boton));
    return guion.Mensajes();
  }

  FXMainWindow* duenio_ = nullptr;
  std::unique_ptr<Nota_Window> forma_;
};

TEST_F(FormaTest, LosMensajesDeUnDialogoSiguenALosSuyos) {
  EXPECT_EQ(FXSelector{Nota_Window::ID_AGREGAR}, FXSelector{FXDialogBox::ID_LAST});
  EXPECT_EQ(FXSelector{Nota_Window::ID_SALIR}, FXSelector{FXDialogBox::ID_LAST} + 5);
}

TEST_F(FormaTest, CerrarYEscCancelanUnDialogo) {
  for (const bool tecla : {false, true}) {
    Guion guion;
    guion.Con([tecla](FXDialogBox* ventana) {
      if (tecla) {
        Tecla(Lista(ventana), KEY_Escape);
      } else {
        Pulsa(Boton(ventana, "&Cerrar"));
      }
    });
    EXPECT_EQ(Nota_Window(duenio_).execute(PLACEMENT_SCREEN), 0u);
  }
}

TEST_F(FormaTest, UnDialogoNoOcupaRanuraNiTraza) {
  const Salida salida;
  std::fill_n(mdiArray, RanurasMdi + 1, false);
  Abre();
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 0);
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(FormaTest, AlAbrirListaElCatalogoYEsperaUnRegistroNuevo) {
  Abre();
  EXPECT_EQ(Lista(forma_.get())->getNumItems(), 3);
  EXPECT_STREQ(Lista(forma_.get())->getItemText(1).text(), "veinte");
  EXPECT_TRUE(nota.IsNew());
  EXPECT_EQ(Leido(forma_.get(), "Número:"), "0");
}

TEST_F(FormaTest, UnaCargaQueFallaAlAbrirSeDiceYLaListaQuedaVacia) {
  lanza = "Relee";
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Abre();
  EXPECT_EQ(guion.Ultimo().titulo, "Error en Validación");
  EXPECT_EQ(guion.Ultimo().texto, "no se pudo %s");
  EXPECT_EQ(Lista(forma_.get())->getNumItems(), 0);
  EXPECT_TRUE(nota.IsNew());
}

TEST_F(FormaTest, UnaClaveNumericaSeHallaEnLaLista) {
  Abre();
  Escribe(forma_.get(), "Número:", "30");
  EXPECT_TRUE(Manda("&Buscar").empty());
  EXPECT_EQ(llamadas, Textos{"Find"});
  EXPECT_EQ(Lista(forma_.get())->getCurrentItem(), 2);
}

TEST_F(FormaTest, UnRegistroQueNoEstaEnLaListaNoMueveElRenglon) {
  Abre();
  EligeRenglon(Lista(forma_.get()), 1);
  Escribe(forma_.get(), "Número:", "99");
  EXPECT_TRUE(Manda("&Buscar").empty());
  EXPECT_EQ(Lista(forma_.get())->getCurrentItem(), 1);
}

TEST_F(FormaTest, LosNumerosSeEstrechanAlPasarAlRegistro) {
  Abre();
  Escribe(forma_.get(), "Número:", "7.9");
  Escribe(forma_.get(), "Peso:", "20.1");
  Manda("&Aceptar", {Respuesta::Si});
  EXPECT_EQ(nota.getID(), 7);
  EXPECT_EQ(nota.getPeso(), 20.1f);
}

TEST_F(FormaTest, CadaMandoPideLoSuyoEnOrden) {
  Abre();
  Escribe(forma_.get(), "Número:", "20");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(llamadas, (Textos{"Check", "AddNew", "Relee"}));
  EXPECT_EQ(Lista(forma_.get())->getCurrentItem(), 1);
  Escribe(forma_.get(), "Texto:", "otro");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(llamadas, (Textos{"Check", "Update", "Relee"}));
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(llamadas, (Textos{"Find", "Delete", "Relee"}));
  Manda("&Nuevo");
  EXPECT_TRUE(llamadas.empty());
}

TEST_F(FormaTest, LoQueLanzaElRegistroSeDeshaceAntesDeMostrarse) {
  const struct {
    const char* falla;
    bool nuevo;
    const char* boton;
    Textos pedido;
  } casos[] = {
      {"Check", true, "&Aceptar", {"Check", "RollBack"}},
      {"AddNew", true, "&Aceptar", {"Check", "AddNew", "RollBack"}},
      {"Relee", true, "&Aceptar", {"Check", "AddNew", "Relee", "RollBack"}},
      {"Update", false, "&Aceptar", {"Check", "Update", "RollBack"}},
      {"Delete", false, "&Borrar", {"Find", "Delete", "RollBack"}},
      {"Find", false, "&Borrar", {"Find", "RollBack"}},
  };
  for (const auto& [falla, nuevo, boton, pedido] : casos) {
    SCOPED_TRACE(falla);
    Abre();
    Escribe(forma_.get(), "Número:", "20");
    Escribe(forma_.get(), "Texto:", falla);
    nota.setIsNew(nuevo);
    const Salida salida;
    lanza = falla;
    const bool pregunta = pedido.size() > 2;
    llamadas.clear();
    Guion guion;
    if (pregunta) guion.Responde(Respuesta::Si);
    guion.Con([pedido = pedido](FXDialogBox* caja) {
      EXPECT_EQ(llamadas, pedido);  // rolled back by the time the box is seen
      Pulsa(Todos<FXButton>(caja)[0]);
    });
    Pulsa(Boton(forma_.get(), boton));
    EXPECT_EQ(guion.Ultimo().titulo, "Error en Validación");
    EXPECT_EQ(guion.Ultimo().texto, "no se pudo %s");
    EXPECT_EQ(salida.Texto(), "");  // this form does not trace its errors
    lanza.clear();
  }
}

TEST_F(FormaTest, UnaListaQueSeAcortaNoTumbaNada) {
  Abre();
  EligeRenglon(Lista(forma_.get()), 2);
  Escribe(forma_.get(), "Texto:", "otro");
  servidor = {{0, {10, "diez"}}};
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(Lista(forma_.get())->getNumItems(), 1);
  servidor.clear();
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Lista(forma_.get())->getNumItems(), 0);
}

// Another form of the same catalogue may have reread it.
TEST_F(FormaTest, UnRenglonQueYaNoEstaEnElCacheNoHaceNada) {
  Abre();
  cache.clear();
  EligeRenglon(Lista(forma_.get()), 1);
  EXPECT_EQ(Leido(forma_.get(), "Número:"), "0");
  EXPECT_TRUE(nota.IsNew());
}

TEST_F(FormaTest, UnaCortaNoBuscaYSusMensajesSeRecorren) {
  EXPECT_EQ(FXSelector{Corta_Window::ID_AGREGAR}, FXSelector{FXDialogBox::ID_LAST});
  EXPECT_EQ(FXSelector{Corta_Window::ID_CLEAR}, FXSelector{FXDialogBox::ID_LAST} + 1);
  EXPECT_EQ(FXSelector{Corta_Window::ID_LISTA}, FXSelector{FXDialogBox::ID_LAST} + 3);
  EXPECT_EQ(FXSelector{Corta_Window::ID_PROPIO}, FXSelector{FXDialogBox::ID_LAST} + 4);
  EXPECT_EQ(FXSelector{Corta_Window::ID_SALIR}, FXSelector{FXDialogBox::ID_LAST} + 5);
  Corta_Window corta(duenio_);
  EXPECT_EQ(Botones(&corta), (Textos{"&Nuevo", "&Borrar", "&Cerrar", "&Aceptar"}));
  corta.create();
  corta.show(PLACEMENT_SCREEN);
  Bombea();
  Escribe(&corta, "Texto:", "uno");
  Pulsa(Boton(&corta, "&Nuevo"));  // what would be &Buscar with the ids of the others
  EXPECT_EQ(Leido(&corta, "Texto:"), "");
  llamadas.clear();
  corta.handle(&App(), FXSEL(SEL_COMMAND, Corta_Window::ID_PROPIO), nullptr);
  EXPECT_EQ(llamadas, Textos{"Propio"});
  EXPECT_EQ(corta.handle(&App(), FXSEL(SEL_SIGNAL, Corta_Window::ID_SALIR), nullptr), 1);
}

TEST_F(FormaTest, UnaListaOrdenadaSirveComoElMapa) {
  Corta_Window corta(duenio_);
  corta.create();
  corta.show(PLACEMENT_SCREEN);
  Bombea();
  EXPECT_EQ(Lista(&corta)->getNumItems(), 3);
  EligeRenglon(Lista(&corta), 2);
  EXPECT_EQ(Leido(&corta, "Número:"), "30");
  EXPECT_EQ(nota.getID(), 30);
  Escribe(&corta, "Número:", "20");
  Escribe(&corta, "Texto:", "otro");
  nota.setIsNew(true);
  Guion guion;
  guion.Responde(Respuesta::Si);
  Pulsa(Boton(&corta, "&Aceptar"));
  EXPECT_EQ(Lista(&corta)->getCurrentItem(), 1);
  ordenada.RemoverTodos();
  EligeRenglon(Lista(&corta), 0);  // no longer in the cache
  EXPECT_EQ(Leido(&corta, "Número:"), "20");
}

TEST_F(FormaTest, LasClavesSeComparanPorSuValor) {
  EXPECT_TRUE(MismaClave(7L, 7L));
  EXPECT_FALSE(MismaClave(7L, 8L));
  EXPECT_TRUE(MismaClave("A ", std::string("A ").c_str()));
  EXPECT_FALSE(MismaClave("A ", "A"));
}

}  // namespace
}  // namespace pruebas
