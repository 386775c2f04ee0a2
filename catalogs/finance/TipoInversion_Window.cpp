#include "catalogs/finance/TipoInversion_Window.h"

MAPA_PROPIO(TipoInversion_Window, MANDO(TipoInversion_Window, ID_AGREGAR, onCmdAgregar),
            MANDO(TipoInversion_Window, ID_FIND, onCmdFind),
            MANDO(TipoInversion_Window, ID_CLEAR, onCmdClear),
            MANDO(TipoInversion_Window, ID_BORRAR, onCmdBorrar),
            MANDO(TipoInversion_Window, ID_LISTA, onCmdLista),
            MANDO(TipoInversion_Window, ID_CALCULO, onCmdCalculo),
            MANDO_CUENTA(TipoInversion_Window, CuentaPasivo, onCmdCuentaPasivo),
            MANDO_CUENTA(TipoInversion_Window, CuentaPasivoVencida, onCmdCuentaPasivoVencido),
            MANDO_CUENTA(TipoInversion_Window, CuentaIntInver, onCmdCuentaIntInver),
            MANDO_CUENTA(TipoInversion_Window, CuentaIntInverNoCob, onCmdCuentaIntInverNoCob),
            MANDO_CUENTA(TipoInversion_Window, CuentaIvaInver, onCmdCuentaIvaInver),
            MANDO(TipoInversion_Window, ID_APLICAIVA, onCmdAplicaIvaInversion),
            MANDO_CUENTA(TipoInversion_Window, CuentaRiesgoCred, onCmdCuentaRiesgoCred),
            MANDO_CUENTA(TipoInversion_Window, CuentaProvisionISR, onCmdCuentaProvisionISR),
            MANDO(TipoInversion_Window, ID_TEST, onCmdTest),
            FXMAPFUNC(SEL_CLOSE, 0, TipoInversion_Window::onCmdQuit),
            MANDO_BUSCA(TipoInversion_Window, CuentaPasivo, CuentaPasivoVencida, onCmdBusca),
            MANDO_BUSCA(TipoInversion_Window, CuentaIntInver, CuentaIntInverNoCob, onCmdBusca),
            MANDO_BUSCA(TipoInversion_Window, CuentaIvaInver, CuentaRiesgoCred, onCmdBusca),
            MANDO_BUSCA(TipoInversion_Window, CuentaProvisionISR, CuentaProvisionISR, onCmdBusca),
            MANDO(TipoInversion_Window, ID_MOVIMIENTO, onCmdTipoMovimiento),
            FXMAPFUNC(SEL_SIGNAL, TipoInversion_Window::ID_SALIR, TipoInversion_Window::onCmdQuit))

cTipoInversion tipoinversion;
char sTipoInversion[32];

TipoInversion_Window::TipoInversion_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo Tipo de Inversiones", {0, 0, 800, 540}) {
  ArmaLista("Tipo de Inversión");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Tipo de Inversión:", 3, id);
  matriz = ArmaGrupo("Datos del Tipo de Inversión");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  campoReal(matriz, "Tasa Normal:", 6, tasaNormal);
  ArmaLimites(matriz);
  cuentas.Arma(matriz, CuentaPasivo, CuentaProvisionISR);
  ArmaOpciones(campoMatriz(matriz, 4));
  ArmaBotones();
  LlenaOpciones();
  Abre("terminando creacion frm tipoinversion", 10);
}

/// The least and the most of amount and term: two rows, whose first labels are the column before them.
void TipoInversion_Window::ArmaLimites(FXMatrix* matriz) {
  constexpr FXuint renglon = MATRIX_BY_COLUMNS | LAYOUT_FILL_Y;
  auto* const etiquetas = new FXMatrix(matriz, 1, renglon, 0, 0, 0, 0, 0, 0, 0, 0);
  for (const char* etiqueta : {"Monto Minimo:", "Plazo Minimo:"})
    new FXLabel(etiquetas, etiqueta, nullptr, LABEL_NORMAL | JUSTIFY_LEFT | LAYOUT_FILL_Y | LAYOUT_FILL_ROW);
  auto* const campos = new FXMatrix(matriz, 5, renglon | LAYOUT_FILL_COLUMN, 0, 0, 0, 0, 0, 0, 0, 0);
  campoReal(campos, nullptr, 12, montoMin);
  campoReal(campos, "Monto Maximo:", 12, montoMax);
  for (int resto = 0; resto < 2; ++resto) new FXFrame(campos, FRAME_NONE);  // of the five places of the row
  campoEntero(campos, nullptr, 3, plazo);
  plazo.campo->setLayoutHints(LAYOUT_NORMAL);
  campoEntero(campos, "Plazo Maximo:", 5, plazoMax, TEXTFIELD_REAL);
}

void TipoInversion_Window::ArmaOpciones(FXMatrix* matriz) {
  calculo.combo = campoCombo(matriz, "Calculo Interes:", 5, this, ID_CALCULO);
  aplicaIva.boton = campoCasilla(matriz, "Aplica IVA:", this, ID_APLICAIVA);
  movimiento.combo = campoCombo(matriz, "Mov.:", 10, this, ID_MOVIMIENTO);
  aplicaISR.boton = campoCasilla(matriz, "Aplica ISR:");
  clasificacion.combo = campoCombo(matriz, "Clasificación:", 2);
  reinvierteInteres.boton = campoCasilla(matriz, "Reinvierte Interes:");
  letraCalculo = LetraChica(calculo.combo);
  letraMovimiento = LetraChica(movimiento.combo);
}

void TipoInversion_Window::LlenaOpciones() {
  for (const char* clase : {"Inversión Normal", "Certificado Aportacion"})
    clasificacion.combo->appendItem(clase);
  movimiento.Llena(&cTipoMovimiento::getDescTipoMovimiento);
  cuentas.Llena();
  calculo.Llena(&cCalculo::getDescripcionCalculo);
}

long TipoInversion_Window::onCmdTest(FXObject*, FXSelector, void*) {
  Clear();
  FXMessageBox::warning(this, MBOX_OK, "Aquí Que?", "Hola Mundo.!");
  return 1;
}
