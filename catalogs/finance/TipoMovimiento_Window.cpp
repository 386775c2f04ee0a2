#include "catalogs/finance/TipoMovimiento_Window.h"

MAPA_FORMA(TipoMovimiento_Window, onCmdLista,
           MANDO_CUENTA(TipoMovimiento_Window, CuentaDeposito, onCmdCuentaDeposito),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaRetiro, onCmdCuentaRetiro),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaIntPagado, onCmdCuentaIntPagado),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaIntCobrado, onCmdCuentaIntCobrado),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaIvaMovimiento, onCmdCuentaIvaMovimiento),
           MANDO(TipoMovimiento_Window, ID_APLICASALDO, onCmdAplicaSaldo),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaISR, onCmdCuentaISR),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaProvisionISR, onCmdCuentaProvisionISR),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaOrdenAcredor, onCmdCuentaOrdenAcredor),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaOrdenDeudor, onCmdCuentaOrdenDeudor),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaComision, onCmdCuentaComision),
           MANDO_CUENTA(TipoMovimiento_Window, CuentaIvaComision, onCmdCuentaIvaComision),
           MANDO_BUSCA(TipoMovimiento_Window, CuentaDeposito, CuentaRetiro, onCmdBuscar),
           MANDO_BUSCA(TipoMovimiento_Window, CuentaIntPagado, CuentaIntCobrado, onCmdBuscar),
           MANDO_BUSCA(TipoMovimiento_Window, CuentaIvaMovimiento, CuentaISR, onCmdBuscar),
           MANDO_BUSCA(TipoMovimiento_Window, CuentaProvisionISR, CuentaOrdenAcredor, onCmdBuscar),
           MANDO_BUSCA(TipoMovimiento_Window, CuentaOrdenDeudor, CuentaComision, onCmdBuscar),
           MANDO_BUSCA(TipoMovimiento_Window, CuentaIvaComision, CuentaIvaComision, onCmdBuscar))

cTipoMovimiento tipomovimiento;
char sTipoMovimiento[31];

TipoMovimiento_Window::TipoMovimiento_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo Tipo de Movimientos", {0, 0, 830, 590}) {
  ArmaLista("Tipo de Movimiento");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Tipo de Movimiento:", 3, id);
  matriz = ArmaGrupo("Datos del Tipo de Movimiento");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  FXComposite* renglon = campoRenglon(matriz, "    Aplica al Saldo:");
  aplicaSaldo.boton = campoCasilla(renglon, nullptr, this, ID_APLICASALDO);
  aceptaDeposito.boton = campoCasilla(renglon, "   Acepta Depositos:");
  aceptaRetiro.boton = campoCasilla(renglon, "    Acepta Retiros:");
  desglosaIva.boton = campoCasilla(renglon, "         Desglosa IVA:");
  cuentas.Arma(matriz, CuentaDeposito, CuentaProvisionISR);
  renglon = campoRenglon(matriz, "         Tipo Poliza:");
  campoCodigo(renglon, nullptr, 1, tipoPoliza);
  campoReal(renglon, "Tasa Interes:", 6, tasaInteres);
  cuentaOrden.boton = campoCasilla(renglon, "   Maneja Cuentas Orden:");
  cuentas.Arma(matriz, CuentaOrdenAcredor, CuentaOrdenDeudor);
  renglon = campoRenglon(matriz, "  Cuota Comision:");
  campoReal(renglon, nullptr, 6, comision);
  campoReal(renglon, "% Comision:", 6, porComision);
  campoReal(renglon, "    % IVA Comision:", 6, porIvaComision);
  cuentas.Arma(matriz, CuentaComision, CuentaIvaComision);
  ArmaBotones();
  cuentas.Llena();
  Abre("terminando creacion frm tipomovimiento", 5);
}
