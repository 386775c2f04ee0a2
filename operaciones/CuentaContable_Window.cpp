#include "operaciones/CuentaContable_Window.h"

#include <unordered_map>

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

/// The item of an account, below that of the account that it accumulates in. One of a circle, or below an
/// account that is not there, stands at the top.
FXTreeItem* CuentaContable_Window::Cuelga(const std::vector<const cCatalogo_Ctas*>& cuentas,
                                          std::vector<int>& padres, int cual) {
  if (renglones[cual] != nullptr) return renglones[cual];
  const int padre = std::exchange(padres[cual], -1);  // who comes by here again has gone round
  FXTreeItem* const arriba = padre < 0 ? nullptr : Cuelga(cuentas, padres, padre);
  if (renglones[cual] != nullptr) return renglones[cual];
  return renglones[cual] =
             arbol->appendItem(arriba,
                               FXString(SinBlancos(cuentas[cual]->getCuentaID()).c_str()) + "  " +
                                   cuentas[cual]->getCuentaNombre(),
                               nullptr, nullptr, reinterpret_cast<void*>(static_cast<FXival>(cual)));
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
  renglones.assign(cuentas.size(), nullptr);
  for (size_t cual = 0; cual < cuentas.size(); ++cual) Cuelga(cuentas, padres, static_cast<int>(cual));
  return 1;
}

/// Makes an account the current one of the tree, with those above it unfolded.
void CuentaContable_Window::MuestraEnArbol(int fila) {
  if (fila < 0) return;
  FXTreeItem* const renglon = renglones[fila];
  for (FXTreeItem* arriba = renglon->getParent(); arriba != nullptr; arriba = arriba->getParent())
    arbol->expandTree(arriba);
  arbol->setCurrentItem(renglon);
  arbol->selectItem(renglon);
  arbol->makeItemVisible(renglon);
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
  MuestraEnArbol(lugar);
  if (lugar >= 0) onCmdArbol(arbol, FXSEL(SEL_COMMAND, ID_ARBOL), renglones[lugar]);
}

long CuentaContable_Window::onCmdArbol(FXObject*, FXSelector, void* renglon) {
  if (renglon == nullptr) return 1;
  const auto fila = static_cast<int>(reinterpret_cast<FXival>(static_cast<FXTreeItem*>(renglon)->getData()));
  if (!CopiaFila(Filas(), fila, Actual())) return 1;
  Read();
  Actual().setDataChanged(false);
  return 1;
}

long CuentaContable_Window::onCmdBusca(FXObject*, FXSelector sel, void*) {
  const std::string buscado = Plegado(txtBusca->getText().text());
  const auto total = static_cast<int>(textos.size());
  const FXTreeItem* const actual = arbol->getCurrentItem();
  const int desde = FXSELTYPE(sel) == SEL_COMMAND && actual != nullptr
                        ? static_cast<int>(reinterpret_cast<FXival>(actual->getData())) + 1
                        : 0;
  if (buscado.empty()) return 1;
  for (int paso = 0; paso < total; ++paso) {
    const int fila = (desde + paso) % total;
    const std::string& texto = textos[fila];
    if (texto.compare(0, buscado.size(), buscado) != 0 &&
        texto.find(buscado, texto.find('\n')) == std::string::npos)
      continue;
    MuestraEnArbol(fila);
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

long CuentaContable_Window::onCmdFind(FXObject* emisor, FXSelector sel, void* datos) {
  const long respuesta = Forma::onCmdFind(emisor, sel, datos);
  if (!Actual().IsNew()) MuestraEnArbol(LugarDe(Actual().getCuentaID()));
  return respuesta;
}

long CuentaContable_Window::onCmdAgregar(FXObject*, FXSelector, void*) {
  cCatalogo_Ctas& registro = Actual();
  try {
    Update();
    if (!registro.getDataChanged()) return 1;
    registro.Check();
    if (registro.IsNew()) {
      const bool enTodas = todas->getCheck() != FALSE;
      if (!cajaPregunta(this, registro.clase(),
                        enTodas ? "Registrar en todas las sucursales ?" : "Registrar ?"))
        return 1;
      if (enTodas) {
        registro.AddNewSucursales();
      } else {
        registro.AddNew();
      }
    } else {
      if (!cajaPregunta(this, registro.clase(), "Guardar cambios realizados ?")) return 1;
      registro.Update();
    }
    Load();
    MuestraEnArbol(LugarDe(registro.getCuentaID()));
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}
