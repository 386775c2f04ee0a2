// The account field: a combo box with the whole chart of accounts, a button that searches it, and the value.
//
// The value is the account's whole number. The combo box is only its picture: it shows the first account when
// the value is empty or unknown, and nothing reads it but the handler of a choice in it.
//
// A form declares its accounts once, in a table that names for each its label, its field of the record, the
// handler of its combo box, and, where its search button is dead, BusquedaMuerta:
//
//   #define CUENTAS_BANCO(CUENTA) CUENTA("Cta. Contable:", CuentaID, onCmdCuenta)
//
// and lets all else follow from it, its numbers, which are named as the fields, its handlers, its fields:
//
//   enum { CUENTAS_BANCO(CUENTA_NUMERO) NumCuentas };
//   enum { ID_CUENTA = Forma::ID_LISTA + 1, ID_BUSCAR = ID_CUENTA + NumCuentas, ... };
//   CUENTAS_BANCO(CUENTA_MANEJADOR)
//   long onCmdBusqueda(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }
//   ...
//   using cRegistro = cBanco;
//   auto Datos() { return std::tuple(Liga(...), Liga(...) CUENTAS_BANCO(CUENTA_LIGA)); }
//   Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_BANCO(CUENTA_FILA)}};
//
// Its message map takes a MANDO_CUENTA per account and a MANDO_BUSCA per run of search buttons, in the order
// that it likes; its constructor places the rows with Arma and fills the combo boxes with Llena.
#pragma once

#include <fx.h>

#include <memory>
#include <vector>

// clang-format off
#define CUENTA_NUMERO(etiqueta, campo, manejador, ...) campo,
#define CUENTA_MANEJADOR(etiqueta, campo, manejador, ...) \
  long manejador(FXObject*, FXSelector, void*) { return cuentas.Elige(campo); }
#define CUENTA_LIGA(etiqueta, campo, manejador, ...) \
  , Liga(cuentas[campo], &cRegistro::get##campo, &cRegistro::set##campo)
#define CUENTA_FILA(etiqueta, campo, manejador, ...) {etiqueta __VA_OPT__(,) __VA_ARGS__},

/// Entries of a map: a choice in the combo box of an account, and the search buttons of the accounts from
/// `primera` to `ultima`.
#define MANDO_CUENTA(Clase, campo, manejador) \
  FXMAPFUNC(SEL_COMMAND, Clase::ID_CUENTA + Clase::campo, Clase::manejador)
#define MANDO_BUSCA(Clase, primera, ultima, manejador)                                           \
  FXMAPFUNCS(SEL_COMMAND, Clase::ID_BUSCAR + Clase::primera, Clase::ID_BUSCAR + Clase::ultima, \
             Clase::manejador)
// clang-format on

/// Marks an account of a table whose search button does nothing.
constexpr bool BusquedaMuerta = true;

extern char sCuenta[55];  // an item of the combo boxes

/// The value of an account, as Forma knows a field.
class DatoCuenta {
 public:
  /// Stores a value and shows its account.
  void Pon(const char* nuevo);
  /// No account, and none current in the combo box.
  void Vacia();
  const FXString& Valor() const { return valor; }

 private:
  friend class Cuentas;

  FXString valor;
  FXComboBox* combo = nullptr;
  std::unique_ptr<FXFont> letra;
};

/// The accounts of a form, each known by its number in the form's table.
class Cuentas {
 public:
  struct Fila {
    const char* etiqueta;
    bool muerta = false;  // does its search button come to nothing
  };

  /// Combo box n sends `forma` the message `idCombo` + n, its search button `idBusca` + n.
  Cuentas(FXWindow* forma, FXSelector idCombo, FXSelector idBusca, const std::vector<Fila>& tabla);

  DatoCuenta& operator[](int cual) { return datos[cual]; }
  const char* Etiqueta(int cual) const { return tabla[cual].etiqueta; }

  /// The rows of the accounts from `primera` to `ultima`: label and field.
  void Arma(FXMatrix* matriz, int primera, int ultima);
  /// The field alone: combo box and search button in a frame of their own, as wide as the column.
  void ArmaCampo(FXMatrix* matriz, int cual);
  /// Offers every account of the cached chart, whether it takes postings or not, in all the combo boxes.
  void Llena();

  /// What the handler of a combo box does: takes the value from the account at the current item; it stays
  /// when the chart has none there.
  long Elige(int cual);
  /// What the handler of the search buttons does: lets the user search. A dead one does nothing.
  long Busca(int cual);

 private:
  FXWindow* forma;
  FXSelector idCombo;
  FXSelector idBusca;
  std::vector<Fila> tabla;
  std::vector<DatoCuenta> datos;
};
