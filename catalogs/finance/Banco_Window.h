// The form of the bank accounts.
#pragma once

#include "catalogs/finance/Busqueda_Window.h"
#include "catalogs/finance/CampoCuenta.h"
#include "catalogs/finance/cBanco.h"
#include "db/Catalogo.h"
#include "framework/CampoFecha.h"
#include "framework/Forma.h"

extern cBanco banco;

#define CUENTAS_BANCO(CUENTA) CUENTA("Cta. Contable:", CuentaID, onCmdCuenta)

class Banco_Window : public Forma<Banco_Window, FXMDIChild> {
  FXDECLARE(Banco_Window)
 public:
  enum { CUENTAS_BANCO(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_CUENTA = Forma::ID_LISTA + 1,
    ID_CALENDARIO = ID_CUENTA + NumCuentas,
    ID_BUSCAR,
    ID_SALIR = ID_BUSCAR + NumCuentas,
    ID_LAST,
  };

  Banco_Window(FXMDIClient* area, FXMDIMenu* menu);

  CUENTAS_BANCO(CUENTA_MANEJADOR)
  long onCmdBusqueda(FXObject*, FXSelector sel, void*) { return cuentas.Busca(FXSELID(sel) - ID_BUSCAR); }
  long onCmdCalendario(FXObject*, FXSelector, void*) { return fechaInicio.Elige(this); }
  /// The place of an account in the combo box, 0 if it has none there.
  static int FindCuenta(const char* cuenta) { return ::FindCuenta(cuenta); }

 protected:
  Banco_Window() {}

 private:
  friend Forma;
  using cRegistro = cBanco;

  cBanco& Actual() { return banco; }
  auto& Filas() { return Catalogo::Bancos; }
  void Relee() { catalogo.LoadBancos(); }
  auto Datos() {
    using T = cBanco;
    return std::tuple(
        Liga(cuenta, &T::getNo_Cuenta, &T::setNo_Cuenta), Liga(nombre, &T::getBanco, &T::setBanco),
        Liga(fechaInicio, &T::getFecha_Inicio, &T::setFecha_Inicio),
        Liga(saldoInicial, &T::getSaldo_Inicial, &T::setSaldo_Inicial),
        Liga(saldoActual, &T::getSaldo_Actual, &T::setSaldo_Actual),
        Liga(saldoPendiente, &T::getSaldo_Pen, &T::setSaldo_Pen) CUENTAS_BANCO(CUENTA_LIGA),
        Liga(serie, &T::getSerie, &T::setSerie), Liga(noCheque, &T::getNoCheque, &T::setNoCheque));
  }

  DatoTexto cuenta;
  DatoTexto nombre;
  DatoFecha fechaInicio;
  DatoReal saldoInicial;
  DatoReal saldoActual;
  DatoReal saldoPendiente;
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_BANCO(CUENTA_FILA)}};
  DatoTexto serie;
  DatoLargo noCheque;
};
