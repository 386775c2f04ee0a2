// The form of the chart of accounts: a tree in which each account hangs from the one that it accumulates in.
#pragma once

#include <string>
#include <vector>

#include "catalogs/finance/cCatalogo_Ctas.h"
#include "db/Catalogo.h"
#include "framework/Forma.h"
#include "operaciones/DatoRellenado.h"

extern cCatalogo_Ctas cuentacontable;  // the record on which the form works; outlives it

/// A combo box of which the first letter of the current item is the value.
struct DatoLetra {
  void Ofrece(std::initializer_list<const char*> renglones);
  /// Null and a letter that it does not have leave it without a current item.
  void Pon(const char* nueva);
  void Vacia() { Pon(nullptr); }
  FXString Valor() const;

  FXComboBox* combo = nullptr;
};

class CuentaContable_Window : public Forma<CuentaContable_Window, FXDialogBox> {
  FXDECLARE(CuentaContable_Window)
 public:
  enum { ID_ARBOL = Forma::ID_LISTA + 1, ID_BUSCA, ID_ACUMULA, ID_SALIR, ID_LAST };

  explicit CuentaContable_Window(FXWindow* duenio);

  long onCmdClear(FXObject* emisor, FXSelector sel, void* datos);
  /// An account chosen in the tree becomes the record.
  long onCmdArbol(FXObject*, FXSelector, void* renglon);
  /// What is typed above the tree shows the first account whose number begins so, or whose name has it; Enter
  /// goes on to the next one.
  long onCmdBusca(FXObject*, FXSelector sel, void*);
  /// The lens: lets the user search the account that this one accumulates in.
  long onCmdAcumula(FXObject*, FXSelector, void*);

  /// Makes the account with this number the record, and shows it in the tree.
  void Muestra(const char* numero);
  /// Rereads the chart from the server and builds the tree. Throws what the load throws.
  long Load();

 protected:
  CuentaContable_Window() {}

 private:
  friend Forma;

  void ArmaArbol(FXVerticalFrame* marco);
  void ArmaDatos(FXMatrix* matriz);
  void ArmaSaldos(FXMatrix* matriz);
  void Cuelga(const std::vector<const cCatalogo_Ctas*>& cuentas, std::vector<int> padres);
  int LugarDe(const char* cuentaID);

  cCatalogo_Ctas& Actual() { return cuentacontable; }
  auto& Filas() { return Catalogo::Catalogo_Ctas; }
  void Relee() { catalogo.LoadCuentas(); }
  // A new account goes to this branch, or to all of them where the box is checked.
  const char* PreguntaDeAlta();
  void Inserta();
  int FilaActual();
  void MuestraFila(int fila);
  auto Datos() {
    using T = cCatalogo_Ctas;
    return std::tuple(Liga(cuenta, &T::getCuentaID, &T::setCuentaID),
                      Liga(nombre, &T::getCuentaNombre, &T::setCuentaNombre),
                      Liga(acumula, &T::getCuentaAcumula, &T::setCuentaAcumula),
                      Liga(rubro, &T::getIdentificacion, &T::setIdentificacion),
                      Liga(tipo, &T::getTipo_Cta, &T::setTipo_Cta),
                      Liga(naturaleza, &T::getNaturaleza, &T::setNaturaleza),
                      Liga(estado, &T::getEstado_Cta, &T::setEstado_Cta),
                      Liga(digito, &T::getDigito_Agrupador, &T::setDigito_Agrupador),
                      Liga(saldo, &T::getSaldo_Inic_Ejer, &T::setSaldo_Inic_Ejer),
                      Liga(cargos, &T::getCargos_Acum_Ejer, &T::setCargos_Acum_Ejer),
                      Liga(abonos, &T::getAbonos_Acum_Ejer, &T::setAbonos_Acum_Ejer));
  }

  FXTreeList* arbol = nullptr;
  FXTextField* txtBusca = nullptr;
  std::vector<FXTreeItem*> renglones;  // of each row of the cache
  std::vector<std::string> textos;     // number and name of each, folded
  DatoRellenado<24> cuenta;
  DatoTexto nombre;
  DatoRellenado<24> acumula;
  DatoLetra rubro;
  DatoLetra tipo;
  DatoLetra naturaleza;
  DatoTexto estado;
  DatoReal digito;
  DatoReal saldo;
  DatoReal cargos;
  DatoReal abonos;
  FXCheckButton* todas = nullptr;
};
