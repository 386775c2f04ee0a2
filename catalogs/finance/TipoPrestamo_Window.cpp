#include "catalogs/finance/TipoPrestamo_Window.h"

// clang-format off
#define COMBO(campo) MANDO_CUENTA(TipoPrestamo_Window, campo, onCmd##campo)
#define LUPAS(primera, ultima) MANDO_BUSCA(TipoPrestamo_Window, primera, ultima, onCmdBuscar)
#define LUPA(cual) LUPAS(cual, cual)

// Nothing takes the message of the check button of the group loans, and that of the search buttons of
// CuentaIntNormalResVencida and OrdenInteresAcreedor.
MAPA_PROPIO(TipoPrestamo_Window,
    MANDO(TipoPrestamo_Window, ID_AGREGAR, onCmdAgregar),
    MANDO(TipoPrestamo_Window, ID_FIND, onCmdFind),
    MANDO(TipoPrestamo_Window, ID_CLEAR, onCmdClear),
    MANDO(TipoPrestamo_Window, ID_LISTA, onCmdTipoPrestamo),
    MANDO(TipoPrestamo_Window, ID_BORRAR, onCmdBorrar),
    COMBO(CuentaActivo),
    COMBO(CuentaActivoVencida),
    COMBO(CuentaIntNormal),
    COMBO(CuentaIntNormalVencida),
    COMBO(CuentaIntNormalNocob),
    COMBO(CuentaIntMora),
    COMBO(CuentaIntMoraVencida),
    COMBO(CuentaIva),
    COMBO(CuentaRiesgoCred),
    COMBO(CuentaOrdenAval),
    COMBO(CuentaOrdenInteres),
    COMBO(CuentaIntMoraNoCobAct),
    COMBO(CuentaIntMoraDevNoCobRes),
    COMBO(OrdenDeudorNormalBonificado),
    COMBO(OrdenAcredorNormalBonificado),
    COMBO(CuentaFondoRecuperacion),
    COMBO(CuentaGtosAdm),
    COMBO(CuentaIntNormalResVencida),
    COMBO(CuentaIntNormalResVigente),
    COMBO(OrdenInteresAcreedor),
    COMBO(CuentaOrdenAvalAcredor),
    COMBO(CuentaGarantiaDeudor),
    COMBO(CuentaGarantiaAcredor),
    COMBO(CuentaProvisionIVA),
    MANDO(TipoPrestamo_Window, ID_PANEL, onCmdPanel),
    MANDO(TipoPrestamo_Window, ID_TIPOMOVIMIENTO, onCmdTipoMovimiento),
    MANDO(TipoPrestamo_Window, ID_APLICAIVA, onCmdAplicaIva),
    FXMAPFUNC(SEL_CLOSE, 0, TipoPrestamo_Window::onCmdQuit),
    COMBO(CuentaIntDevNoCobres),
    COMBO(CuentaRiesgoCredRes),
    COMBO(CuentaComision),
    COMBO(CuentaIvaComision),
    MANDO(TipoPrestamo_Window, ID_PRESTAMOGRUPAL, onCmdPrestamoGrupal),
    LUPAS(CuentaActivo, CuentaActivoVencida),
    LUPAS(CuentaIntNormalVencida, CuentaRiesgoCred),
    LUPA(CuentaIntDevNoCobres),
    LUPAS(CuentaIva, CuentaFondoRecuperacion),
    LUPAS(CuentaGtosAdm, CuentaProvisionIVA),
    LUPAS(CuentaOrdenAvalAcredor, CuentaGarantiaDeudor),
    LUPAS(CuentaGarantiaAcredor, CuentaComision),
    LUPA(CuentaIvaComision),
    LUPAS(CuentaIntNormal, CuentaIntNormalNocob),
    LUPAS(CuentaIntMora, CuentaIntMoraVencida),
    LUPA(CuentaRiesgoCredRes),
    LUPA(CuentaIntNormalResVigente),
    LUPAS(CuentaOrdenAval, CuentaOrdenInteres),
    LUPAS(CuentaIntMoraNoCobAct, CuentaIntMoraDevNoCobRes),
    LUPAS(OrdenDeudorNormalBonificado, OrdenAcredorNormalBonificado),
    FXMAPFUNC(SEL_SIGNAL, TipoPrestamo_Window::ID_SALIR, TipoPrestamo_Window::onCmdQuit))
// clang-format on

cTipoPrestamo tipoprestamo;
char sDescripcion[31];

TipoPrestamo_Window::TipoPrestamo_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo Tipo de Prestamos", {0, 0, 815, 450}) {
  ArmaLista("Tipo de Prestamos", 200);
  campoClave(ArmaGrupo("Identificación"), "Clave:", 3, id);
  FXTabBook* const libro = ArmaLibro(ID_PANEL);
  ArmaGenerales(ArmaPagina(libro, "&Generales"));
  ArmaParametros(ArmaMatriz(ArmaPagina(libro, "&Parametros")));
  cuentas.Arma(ArmaMatriz(ArmaPagina(libro, "&Activo")), CuentaActivo, CuentaIntDevNoCobres);
  cuentas.Arma(ArmaMatriz(ArmaPagina(libro, "&Pasivo")), CuentaIva, CuentaIvaComision);
  cuentas.Arma(ArmaMatriz(ArmaPagina(libro, "&Resultados")), CuentaIntNormal, CuentaIntNormalResVigente);
  ArmaOrden(ArmaMatriz(ArmaPagina(libro, "&Orden")));
  ArmaBotones();
  LlenaCombos();
  Abre("terminando creacion frm tipoprestamo", 6);
}

void TipoPrestamo_Window::ArmaGenerales(FXComposite* pagina) {
  FXMatrix* const matriz = ArmaMatriz(pagina, 2, LAYOUT_FILL_X);
  campoTexto(matriz, "Descripción:", 30, descripcion);
  campoEntero(matriz, "Tantos:", 3, tantos);
  campoReal(matriz, "Tasa Int. Normal:", 10, tasaNormal);
  campoReal(matriz, "Tasa Int. Moratorio:", 10, tasaMora);
  movimiento.combo = campoCombo(matriz, "Mov. Garantía:", 10, this, ID_TIPOMOVIMIENTO);
  letraMovimiento = LetraChica(movimiento.combo);
  calculoNormal.combo = campoCombo(matriz, "Calculo Normal de Default:", 5);
  calculoMora.combo = campoCombo(matriz, "Calculo Morat. de Default:", 5);
  finalidad.combo = campoCombo(matriz, "Finalidad de Default:", 5);
  aplicaIva.boton = campoCasilla(ArmaMatriz(pagina, 4, LAYOUT_FILL_X), "Aplica IVA:", this, ID_APLICAIVA);
}

void TipoPrestamo_Window::ArmaParametros(FXMatrix* matriz) {
  matriz->setVSpacing(2);  // thirteen rows
  campoEntero(matriz, "Dias para traspasar a Vencida:", 3, diasTraspaso);
  campoReal(matriz, "Monto Maximo:", 10, montoMaximo);
  campoEntero(matriz, "Plazo Maximo:", 5, plazoMaximo);
  campoReal(matriz, "Monto Minimo:", 10, montoMinimo);
  campoEntero(matriz, "Avales Minimos:", 3, avalesMinimos);
  campoEntero(matriz, "Periodo Default:", 3, periodo);
  estatus.boton = campoCasilla(matriz, "Estatus:");
  grupal.boton = campoCasilla(matriz, "Prestamo Grupal:", this, ID_GRUPAL);
  campoReal(matriz, "Comision:", 10, comision);
  campoReal(matriz, "IVA Comision:", 10, ivaComision);
  campoReal(matriz, "Reciprocidad:", 10, reciprocidad);
  campoTexto(matriz, "Clasificacion Contable SITI:", 20, clasificacion, JUSTIFY_RIGHT | TEXTFIELD_REAL);
  campoReal(matriz, "Nivel Autorizacion:", 3, nivel);
  nivel.destino.connect();  // to nothing
}

/// The last five accounts have their title above them.
void TipoPrestamo_Window::ArmaOrden(FXMatrix* matriz) {
  cuentas.Arma(matriz, CuentaOrdenAval, CuentaOrdenInteres);
  for (int cual = CuentaIntMoraNoCobAct; cual <= OrdenInteresAcreedor; ++cual) {
    new FXLabel(matriz, " ");
    new FXLabel(matriz, cuentas.Etiqueta(cual), nullptr, LABEL_NORMAL | JUSTIFY_LEFT);
    new FXLabel(matriz, " ");
    cuentas.ArmaCampo(matriz, cual);
  }
}

/// Offers the cached rows; what is added to a catalogue later is not offered until the form is opened again.
void TipoPrestamo_Window::LlenaCombos() {
  std::cout << "llegando aqui ...." << std::endl;
  cuentas.Llena();
  std::cout << "paso" << std::endl;
  movimiento.Llena(RenglonDeMovimiento);
  finalidad.Llena(&cFinalidades::getDescripcionFinalidad);
  calculoNormal.Llena(&cCalculo::getDescripcionCalculo);
  calculoMora.Llena(&cCalculo::getDescripcionCalculo);
}
