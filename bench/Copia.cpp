#include "bench/Copia.h"

#include <memory>
#include <vector>

namespace {

/// A frame like `modelo`, empty; null when that is no frame.
FXComposite* CopiaMarco(FXWindow* modelo, FXComposite* padre) {
  const FXuint lugar = modelo->getLayoutHints();
  if (dynamic_cast<FXTabBook*>(modelo)) return new FXTabBook(padre, nullptr, 0, lugar);
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

/// The letters of the bare window that stands, made for it as a form makes those that are its own.
std::vector<std::unique_ptr<FXFont>> letras;

FXFont* CopiaLetra(FXFont* modelo) {
  FXApp* const app = modelo->getApp();
  if (modelo == app->getNormalFont()) return modelo;
  letras.push_back(std::make_unique<FXFont>(app, modelo->getName(), modelo->getSize() / 10));
  return letras.back().get();
}

void CopiaCombo(FXComboBox* modelo, FXComposite* padre) {
  auto* const combo =
      new FXComboBox(padre, modelo->getNumColumns(), nullptr, 0,
                     modelo->getComboStyle() | modelo->getFrameStyle() | modelo->getLayoutHints());
  combo->setNumVisible(modelo->getNumVisible());
  combo->setFont(CopiaLetra(modelo->getFont()));
  for (FXint fila = 0; fila < modelo->getNumItems(); ++fila) combo->appendItem(modelo->getItemText(fila));
}

void CopiaArbol(FXFoldingList* modelo, FXComposite* padre) {
  auto* const arbol = new FXFoldingList(padre, nullptr, 0, modelo->getListStyle() | modelo->getLayoutHints());
  for (FXint columna = 0; columna < modelo->getNumHeaders(); ++columna)
    arbol->appendHeader(modelo->getHeaderText(columna), nullptr, modelo->getHeaderSize(columna));
  for (const FXFoldingItem* raiz = modelo->getFirstItem(); raiz; raiz = raiz->getNext()) {
    FXFoldingItem* const suya =
        arbol->appendItem(nullptr, raiz->getText(), raiz->getOpenIcon(), raiz->getClosedIcon());
    arbol->expandTree(suya);
    for (const FXFoldingItem* hoja = raiz->getLast(); hoja; hoja = hoja->getPrev())
      arbol->prependItem(suya, hoja->getText(), hoja->getOpenIcon(), hoja->getClosedIcon());
  }
}

void CopiaRejilla(FXTable* modelo, FXComposite* padre) {
  auto* const rejilla = new FXTable(padre, nullptr, 0, modelo->getTableStyle() | modelo->getLayoutHints());
  rejilla->setVisibleRows(modelo->getVisibleRows());
  rejilla->setVisibleColumns(modelo->getVisibleColumns());
  rejilla->setRowHeaderWidth(modelo->getRowHeaderWidth());
  rejilla->setTableSize(modelo->getNumRows(), modelo->getNumColumns());
  for (FXint columna = 0; columna < modelo->getNumColumns(); ++columna) {
    rejilla->setColumnText(columna, modelo->getColumnText(columna));
    rejilla->setColumnWidth(columna, modelo->getColumnWidth(columna));
    for (FXint renglon = 0; renglon < modelo->getNumRows(); ++renglon) {
      if (modelo->getItemText(renglon, columna).empty()) continue;
      rejilla->setItemText(renglon, columna, modelo->getItemText(renglon, columna));
      rejilla->setItemJustify(renglon, columna, modelo->getItemJustify(renglon, columna));
      rejilla->setItemStipple(renglon, columna, modelo->getItemStipple(renglon, columna));
    }
  }
}

/// A widget like `modelo`.
void CopiaPieza(FXWindow* modelo, FXComposite* padre, const LlenaLista& llena) {
  const FXuint lugar = modelo->getLayoutHints();
  if (auto* b = dynamic_cast<FXButton*>(modelo)) {
    new FXButton(padre, b->getText(), b->getIcon(), nullptr, 0,
                 b->getFrameStyle() | b->getIconPosition() | lugar);
  } else if (dynamic_cast<FXCheckButton*>(modelo)) {
    new FXCheckButton(padre, "", nullptr, 0, CHECKBUTTON_NORMAL | lugar);
  } else if (auto* p = dynamic_cast<FXTabItem*>(modelo)) {
    new FXTabItem(static_cast<FXTabBar*>(padre), p->getText());
  } else if (auto* l = dynamic_cast<FXLabel*>(modelo)) {
    new FXLabel(padre, l->getText(), nullptr, LABEL_NORMAL | lugar);
  } else if (auto* c = dynamic_cast<FXTextField*>(modelo)) {
    new FXTextField(padre, c->getNumColumns(), nullptr, 0, c->getFrameStyle() | c->getTextStyle() | lugar);
  } else if (auto* t = dynamic_cast<FXText*>(modelo)) {
    auto* const parrafo = new FXText(padre, nullptr, 0, t->getTextStyle() | lugar);
    parrafo->setVisibleRows(t->getVisibleRows());
    parrafo->setVisibleColumns(t->getVisibleColumns());
  } else if (auto* o = dynamic_cast<FXComboBox*>(modelo)) {
    CopiaCombo(o, padre);
  } else if (auto* f = dynamic_cast<FXList*>(modelo)) {
    llena(new FXList(padre, nullptr, 0, f->getListStyle() | f->getScrollStyle() | lugar, 0, 0, 150));
  } else if (auto* a = dynamic_cast<FXFoldingList*>(modelo)) {
    CopiaArbol(a, padre);
  } else if (auto* r = dynamic_cast<FXTable*>(modelo)) {
    CopiaRejilla(r, padre);
  } else if (dynamic_cast<FXFrame*>(modelo)) {
    new FXFrame(padre, FRAME_NONE | lugar);
  }
}

/// The widgets inside `modelo`, made anew inside `padre` without any of our classes.
void Copia(FXComposite* modelo, FXComposite* padre, const LlenaLista& llena) {
  for (FXWindow* hijo = modelo->getFirst(); hijo; hijo = hijo->getNext()) {
    if (FXComposite* const marco = CopiaMarco(hijo, padre)) {
      Copia(static_cast<FXComposite*>(hijo), marco, llena);
    } else {
      CopiaPieza(hijo, padre, llena);
    }
  }
}

/// The first text field inside `marco` that is not part of a combo box; null if there is none.
FXTextField* PrimerCampo(FXWindow* marco) {
  if (dynamic_cast<FXComboBox*>(marco)) return nullptr;
  if (auto* campo = dynamic_cast<FXTextField*>(marco)) return campo;
  FXTextField* primero = nullptr;
  for (FXWindow* hijo = marco->getFirst(); hijo && !primero; hijo = hijo->getNext())
    primero = PrimerCampo(hijo);
  return primero;
}

}  // namespace

FXComposite* AbreLlana(Escenario& escenario, FXComposite* modelo, const LlenaLista& llena) {
  letras.clear();
  FXComposite* ventana;
  if (auto* hija = dynamic_cast<FXMDIChild*>(modelo)) {
    ventana = new FXMDIChild(escenario.area, hija->getTitle(), nullptr, escenario.menu, 0, 20, 20,
                             hija->getWidth(), hija->getHeight());
    auto* const cuerpo = static_cast<FXComposite*>(hija->contentWindow());
    Copia(cuerpo, CopiaMarco(cuerpo, ventana), llena);
  } else {
    ventana = new FXDialogBox(escenario.ventana, static_cast<FXDialogBox*>(modelo)->getTitle(),
                              DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE);
    Copia(modelo, ventana, llena);
  }
  ventana->create();
  if (FXTextField* const campo = PrimerCampo(ventana)) {
    campo->setFocus();
    campo->selectAll();
  }
  return ventana;
}
