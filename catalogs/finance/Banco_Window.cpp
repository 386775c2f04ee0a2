#include "catalogs/finance/Banco_Window.h"

MAPA_FORMA(Banco_Window, onCmdLista, MANDO_CUENTA(Banco_Window, CuentaID, onCmdCuenta),
           MANDO(Banco_Window, ID_CALENDARIO, onCmdCalendario),
           MANDO_BUSCA(Banco_Window, CuentaID, CuentaID, onCmdBusqueda))

cBanco banco;

Banco_Window::Banco_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo de Bancos", {0, 0, 805, 380}) {
  ArmaLista("Banco", 215);
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Cuenta:", 15, cuenta);
  matriz = ArmaGrupo("Datos de la Banco");
  campoTexto(matriz, "Banco:", 25, nombre);
  campoFecha(matriz, "Fecha Inic.:", fechaInicio, this, ID_CALENDARIO);
  campoReal(matriz, "Saldo Inic. :", 20, saldoInicial);
  campoReal(matriz, "Saldo Act. :", 20, saldoActual);
  campoReal(matriz, "Saldo Pen. :", 20, saldoPendiente);
  cuentas.Arma(matriz, CuentaID, CuentaID);
  campoCodigo(matriz, "Serie:", 2, serie);
  campoEntero(matriz, "No. Cheque", 10, noCheque);
  ArmaBotones();
  cuentas.Llena();
  Abre("terminando creacion frm banco", 2);
}
