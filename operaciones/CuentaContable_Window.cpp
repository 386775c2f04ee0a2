#include "operaciones/CuentaContable_Window.h"

#include <unordered_map>
#include <utility>

#include "catalogs/finance/Busqueda_Window.h"
#include "operaciones/Plegado.h"

// clang-format off
MAPA_PROPIO(CuentaContable_Window,
    MANDO(CuentaContable_Window, ID_AGREGAR, onCmdAgregar),
    MANDO(CuentaContable_Window, ID_FIND, onCmdFind),
    MANDO(CuentaContable_Window, ID_CLEAR, onCmdClear),
    MANDO(CuentaContable_Window, ID_BORRAR, onCmdBorrar),
    MANDO(CuentaContable_Window, ID_ARBOL, onCmdArbol),
    MANDO(CuentaContable_Window, ID_BUSCA, onCmdBusca),
    FXMAPFUNC(SEL_CHANGED, CuentaContable_Window::ID_BUSCA, CuentaContable_Window::onCmdBusca),
    MANDO(CuentaContable_Window, ID_ACUMULA, onCmdAcumula),
    FXMAPFUNC(SEL_CLOSE, 0, CuentaContable_Window::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, CuentaContable_Window::ID_SALIR, CuentaContable_Window::onCmdQuit))
// clang-format on

cCatalogo_Ctas cuentacontable;

namespace {

std::string SinBlancos(const char* numero) {
  std::string texto = numero;
  texto.erase(texto.find_last_not_of(' ') + 1);
  return texto;
}

/// The row of the cache that an item stands for.
int FilaDe(const FXTreeItem* renglon) {
  return static_cast<int>(reinterpret_cast<FXival>(renglon->getData()));
}

}  // namespace

void DatoLetra::Ofrece(std::initializer_list<const char*> renglones) {
  for (const char* renglon : renglones) combo->appendItem(renglon);
  combo->setCurrentItem(-1);
}

void DatoLetra::Pon(const char* nueva) {
  FXint cual = combo->getNumItems() - 1;
  while (cual >= 0 && (nueva == nullptr || combo->getItemText(cual)[0] != nueva[0])) --cual;
  combo->setCurrentItem(cual);
}

FXString DatoLetra::Valor() const {
  const FXint cual = combo->getCurrentItem();
  return cual < 0 ? FXString::null : combo->getItemText(cual).left(1);
}

CuentaContable_Window::CuentaContable_Window(FXWindow* duenio) : Forma(duenio, "Catálogo de cuentas") {
  ArmaArbol(ArmaConMarco(380));
  campoClave(ArmaGrupo("Identificación"), "Cuenta:", 24, cuenta);
  ArmaDatos(ArmaGrupo("Datos de la cuenta"));
  ArmaSaldos(ArmaGrupo("Saldos del ejercicio"));
  FXGroupBox* const columna = ArmaBotones();
  todas = new FXCheckButton(columna, "Alta en &todas\nlas sucursales", nullptr, 0,
                            CHECKBUTTON_NORMAL | LAYOUT_FILL_X);
  Comienza();
}

void CuentaContable_Window::ArmaArbol(FXVerticalFrame* marco) {
  auto* renglon = new FXHorizontalFrame(marco, LAYOUT_FILL_X);
  new FXLabel(renglon, "Busca:", nullptr, LABEL_NORMAL | LAYOUT_CENTER_Y);
  txtBusca = new FXTextField(renglon, 20, this, ID_BUSCA,
                             FRAME_SUNKEN | FRAME_THICK | TEXTFIELD_ENTER_ONLY | LAYOUT_FILL_X);
  arbol = new FXTreeList(marco, this, ID_ARBOL,
                         TREELIST_BROWSESELECT | TREELIST_SHOWS_LINES | TREELIST_SHOWS_BOXES |
                             TREELIST_ROOT_BOXES | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  arbol->setNumVisible(22);
}

void CuentaContable_Window::ArmaDatos(FXMatrix* matriz) {
  campoTexto(matriz, "Nombre:", 40, nombre);
  FXComposite* const renglon = campoRenglon(matriz, "Acumula en:");
  campoTexto(renglon, nullptr, 24, acumula);
  Boton(renglon, "", iconos::find_icon, ID_ACUMULA, LAYOUT_CENTER_Y);
  rubro.combo = campoCombo(matriz, "Rubro:", 7);
  rubro.Ofrece({"0", "1", "2", "3", "4", "5", "6"});
  tipo.combo = campoCombo(matriz, "Tipo:", 2);
  tipo.Ofrece({"A Afectable", "C Acumulativa"});
  naturaleza.combo = campoCombo(matriz, "Naturaleza:", 2);
  naturaleza.Ofrece({"A Acreedora", "D Deudora"});
  campoCodigo(matriz, "Estado:", 2, estado);
  campoReal(matriz, "Dígito agrupador:", 10, digito);
}

/// What was posted is not for the user to write.
void CuentaContable_Window::ArmaSaldos(FXMatrix* matriz) {
  campoReal(matriz, "Saldo inicial:", 18, saldo);
  campoReal(matriz, "Cargos:", 18, cargos, TEXTFIELD_READONLY);
  campoReal(matriz, "Abonos:", 18, abonos, TEXTFIELD_READONLY);
}

/// Gives each account an item below that of the account that it accumulates in. One of a circle, or below an
/// account that is not there, stands at the top.
void CuentaContable_Window::Cuelga(const std::vector<const cCatalogo_Ctas*>& cuentas,
                                   std::vector<int> padres) {
  renglones.assign(cuentas.size(), nullptr);
  std::vector<int> camino;  // from an account up to one that has its item
  for (int primera = 0; primera < static_cast<int>(cuentas.size()); ++primera) {
    int cual = primera;
    while (cual >= 0 && renglones[cual] == nullptr) {
      camino.push_back(cual);
      cual = std::exchange(padres[cual], -1);  // who comes by here again has gone round
    }
    FXTreeItem* arriba = cual < 0 ? nullptr : renglones[cual];
    for (; !camino.empty(); camino.pop_back()) {
      FXTreeItem*& renglon = renglones[camino.back()];
      if (renglon != nullptr) continue;  // where the circle began
      const cCatalogo_Ctas& cuenta = *cuentas[camino.back()];
      renglon = arbol->appendItem(
          arriba, FXString(SinBlancos(cuenta.getCuentaID()).c_str()) + "  " + cuenta.getCuentaNombre(),
          nullptr, nullptr, reinterpret_cast<void*>(static_cast<FXival>(camino.back())));
      arriba = renglon;
    }
  }
}

long CuentaContable_Window::Load() {
  arbol->clearItems();
  renglones.clear();
  textos.clear();
  Relee();
  std::vector<const cCatalogo_Ctas*> cuentas;
  std::unordered_map<std::string, int> lugares;
  for (const auto& [fila, una] : Filas()) {
    lugares.emplace(SinBlancos(una.getCuentaID()), static_cast<int>(cuentas.size()));
    cuentas.push_back(&una);
    textos.push_back(Plegado(SinBlancos(una.getCuentaID()) + '\n' + una.getCuentaNombre()));
  }
  std::vector<int> padres;
  for (const cCatalogo_Ctas* una : cuentas) {
    const auto padre = lugares.find(SinBlancos(una->getCuentaAcumula()));
    padres.push_back(padre == lugares.end() ? -1 : padre->second);
  }
  Cuelga(cuentas, std::move(padres));
  return 1;
}

/// Makes an account the current one of the tree, with those above it unfolded.
void CuentaContable_Window::MuestraFila(int fila) {
  if (fila < 0 || fila >= static_cast<int>(renglones.size())) return;
  FXTreeItem* const renglon = renglones[fila];
  for (FXTreeItem* arriba = renglon->getParent(); arriba != nullptr; arriba = arriba->getParent())
    arbol->expandTree(arriba);
  arbol->setCurrentItem(renglon);
  arbol->selectItem(renglon);
  arbol->makeItemVisible(renglon);
}

int CuentaContable_Window::FilaActual() {
  const FXTreeItem* const actual = arbol->getCurrentItem();
  return actual == nullptr ? -1 : FilaDe(actual);
}

/// The place of an account; -1 when it is not in the chart.
int CuentaContable_Window::LugarDe(const char* cuentaID) {
  const std::string numero = SinBlancos(cuentaID);
  int lugar = 0;
  for (const auto& [fila, una] : Filas()) {
    if (numero == SinBlancos(una.getCuentaID())) return lugar;
    ++lugar;
  }
  return -1;
}

void CuentaContable_Window::Muestra(const char* numero) {
  const int lugar = LugarDe(numero);
  MuestraFila(lugar);
  if (lugar >= 0) onCmdArbol(arbol, FXSEL(SEL_COMMAND, ID_ARBOL), renglones[lugar]);
}

long CuentaContable_Window::onCmdArbol(FXObject*, FXSelector, void* renglon) {
  if (renglon == nullptr) return 1;
  if (!CopiaFila(Filas(), FilaDe(static_cast<FXTreeItem*>(renglon)), Actual())) return 1;
  Read();
  Actual().setDataChanged(false);
  return 1;
}

long CuentaContable_Window::onCmdBusca(FXObject*, FXSelector sel, void*) {
  const std::string buscado = Plegado(txtBusca->getText().text());
  const auto total = static_cast<int>(textos.size());
  const int desde = FXSELTYPE(sel) == SEL_COMMAND ? FilaActual() + 1 : 0;
  if (buscado.empty()) return 1;
  for (int paso = 0; paso < total; ++paso) {
    const int fila = (desde + paso) % total;
    const std::string& texto = textos[fila];
    if (texto.compare(0, buscado.size(), buscado) != 0 &&
        texto.find(buscado, texto.find('\n')) == std::string::npos)
      continue;
    MuestraFila(fila);
    onCmdArbol(arbol, FXSEL(SEL_COMMAND, ID_ARBOL), renglones[fila]);
    return 1;
  }
  getApp()->beep();
  return 1;
}

long CuentaContable_Window::onCmdAcumula(FXObject*, FXSelector, void*) {
  acumula.Pon(EligeCuenta(this, acumula.Valor()));
  return 1;
}

long CuentaContable_Window::onCmdClear(FXObject* emisor, FXSelector sel, void* datos) {
  Actual().Clear();  // what no field shows must not go into the new one
  return Forma::onCmdClear(emisor, sel, datos);
}

const char* CuentaContable_Window::PreguntaDeAlta() {
  return todas->getCheck() ? "Registrar en todas las sucursales ?" : "Registrar ?";
}

void CuentaContable_Window::Inserta() {
  if (todas->getCheck()) {
    Actual().AddNewSucursales();
  } else {
    Actual().AddNew();
  }
}
