// The search for an account of the chart, and what else picks accounts.
#pragma once

#include "db/Catalogo.h"
#include "framework/Buscador.h"

extern char sbusqueda[25];  // the account number that goes into the dialog and comes out of it

/// Lists the chart as the cache holds it, with the account `sbusqueda` as the current row.
class Busqueda_Window : public Buscador<Busqueda_Window> {
  FXDECLARE(Busqueda_Window)
 public:
  explicit Busqueda_Window(FXWindow* owner);

 protected:
  Busqueda_Window() {}

 private:
  friend Buscador;
  static constexpr size_t corte = 24;
  static auto& Resultado() { return sbusqueda; }
  static auto& Filas() { return Catalogo::Catalogo_Ctas; }
  static const char* Buscada(const cCatalogo_Ctas& cuenta) { return cuenta.getCuentaID(); }
  /// The accounts whose row contains the filter, whose trailing blanks do not count.
  void Filtra();
};

/// What the search button of an account does: takes `cuenta` as sbusqueda, runs the dialog at the cursor, and
/// answers sbusqueda. A dialog that is cancelled answers `cuenta`, of which 24 bytes fit.
const char* EligeCuenta(FXWindow* owner, const FXString& cuenta);

/// Position in the cached chart of the first account with exactly this number, blanks included; 0 if there is
/// none.
int FindCuenta(const char* cuentaID);

/// The account as a list shows it: at most `digitos` bytes of its number, then `blancos`, then at most 29 of
/// its name, both ending at a whole character.
FXString RenglonDeCuenta(const cCatalogo_Ctas& cuenta, size_t digitos, const char* blancos);
