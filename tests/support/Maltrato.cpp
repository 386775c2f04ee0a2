#include "tests/support/Maltrato.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Textos.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

constexpr size_t Desmedida = 260;  // bytes at least: more than any column of these windows holds

std::string Desmedido(const std::string& trozo) {
  return Repetida(trozo, (Desmedida + trozo.size() - 1) / trozo.size());
}

/// Everything in the paragraph gives way to `texto`, which comes at once, as an input method delivers it: key
/// by key a long line is laid out anew for each letter.
void Vierte(FXText* parrafo, const std::string& texto) {
  Tecla(parrafo, KEY_a, CONTROLMASK);
  Tecla(parrafo, KEY_Delete);
  if (!texto.empty()) Tecla(parrafo, KEY_VoidSymbol, 0, texto);
}

/// The widgets of a kind that a user can reach. The field of a combo box belongs to the box, and the buttons
/// in the title of a child form to its frame.
template <class T>
std::vector<T*> Alcanzables(FXWindow* ventana) {
  std::vector<T*> piezas = Todos<T>(ventana);
  const auto ajena = [](T* pieza) {
    FXWindow* const marco = pieza->getParent();
    return !Usable(pieza) || dynamic_cast<FXComboBox*>(marco) || dynamic_cast<FXMDIChild*>(marco);
  };
  piezas.erase(std::remove_if(piezas.begin(), piezas.end(), ajena), piezas.end());
  return piezas;
}

void Contesta(FXDialogBox* ventana, bool primero) {
  if (dynamic_cast<FXMessageBox*>(ventana) == nullptr) {
    ventana->handle(&App(), FXSEL(SEL_COMMAND, FXDialogBox::ID_CANCEL), nullptr);
    return;
  }
  const std::vector<FXButton*> botones = Todos<FXButton>(ventana);
  Pulsa(primero ? botones.front() : botones.back());
}

/// The first or the last choice everywhere.
void EligeEnTodo(FXWindow* ventana, bool primero) {
  for (FXComboBox* combo : Alcanzables<FXComboBox>(ventana)) {
    if (combo->getNumItems() > 0) EligeOpcion(combo, primero ? 0 : combo->getNumItems() - 1);
  }
  for (FXList* lista : Alcanzables<FXList>(ventana)) {
    if (lista->getNumItems() > 0) EligeRenglon(lista, primero ? 0 : lista->getNumItems() - 1);
  }
  for (FXFoldingList* arbol : Alcanzables<FXFoldingList>(ventana)) {
    if (FXFoldingItem* raiz = arbol->getFirstItem())
      EligeRenglon(arbol, primero || raiz->getLast() == nullptr ? raiz : raiz->getLast());
  }
  for (FXTable* tabla : Alcanzables<FXTable>(ventana)) {
    if (tabla->getNumRows() > 0) PulsaDosVeces(tabla, primero ? 0 : tabla->getNumRows() - 1, 0);
  }
  for (FXCheckButton* casilla : Alcanzables<FXCheckButton>(ventana)) Pulsa(casilla);
}

}  // namespace

const Textos& TextosDesmedidos() {
  static const Textos textos = {Desmedido("ñ"),
                                Desmedido("'"),
                                Desmedido("%s%n%99999d \\"),
                                Desmedido("9"),
                                Desmedido("x',1);--"),
                                "-1\n" + Desmedido("W€\n"),
                                ""};
  return textos;
}

void TecleaEnTodo(FXWindow* ventana, const std::string& texto) {
  for (FXTextField* campo : Alcanzables<FXTextField>(ventana)) {
    if (!campo->isEditable()) continue;
    Escribe(campo, texto);
    if (campo->getTextStyle() & TEXTFIELD_LIMITED) {
      EXPECT_LE(campo->getText().count(), campo->getNumColumns()) << texto;
    }
  }
  for (FXText* parrafo : Alcanzables<FXText>(ventana)) Vierte(parrafo, texto);
}

Textos Maltrata(FXWindow* ventana, const Textos& omitidos) {
  Textos dichos;
  for (const std::string& texto : TextosDesmedidos()) {
    for (const bool primero : {true, false}) {
      Guion guion;
      guion.EnAdelante([primero](FXDialogBox* cuadro) { Contesta(cuadro, primero); });
      EligeEnTodo(ventana, primero);
      for (FXButton* boton : Alcanzables<FXButton>(ventana)) {
        if (std::count(omitidos.begin(), omitidos.end(), Rotulo(boton)) != 0) continue;
        TecleaEnTodo(ventana, texto);
        if (Usable(boton)) Pulsa(boton);
      }
      const Textos mensajes = guion.Mensajes();
      EXPECT_EQ(std::count(mensajes.begin(), mensajes.end(), ""), 0) << "un cuadro sin texto tras " << texto;
      dichos.insert(dichos.end(), mensajes.begin(), mensajes.end());
    }
  }
  return dichos;
}

}  // namespace pruebas
