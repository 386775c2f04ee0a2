#include "catalogs/assets/TipoDepreciaciones_Window.h"

MAPA_FORMA(TipoDepreciaciones_Window, onCmdDepreciacion,
           MANDO(TipoDepreciaciones_Window, ID_MONEDA, onCmdMoneda),
           MANDO_CUENTA(TipoDepreciaciones_Window, Depre_Activo, onCmdDepre_Activo),
           MANDO_CUENTA(TipoDepreciaciones_Window, Depre_CtaDepre, onCmdDepre_CtaDepre),
           MANDO_CUENTA(TipoDepreciaciones_Window, Depre_CtaGasto, onCmdDepre_CtaGasto),
           MANDO_CUENTA(TipoDepreciaciones_Window, Depre_CtaBaja, onCmdDepre_CtaBaja),
           MANDO_BUSCA(TipoDepreciaciones_Window, Depre_Activo, Depre_CtaDepre, onCmdBuscar),
           MANDO_BUSCA(TipoDepreciaciones_Window, Depre_CtaGasto, Depre_CtaBaja, onCmdBuscar))

cTipoDepreciacion depreciacion;

namespace {

char sDescripcion[31];  // a row of the list

}  // namespace

TipoDepreciaciones_Window::TipoDepreciaciones_Window(FXWindow* duenio) : Forma(duenio, "Depreciaciones") {
  ArmaLista("Depreciaciones", 200);
  campoClave(ArmaGrupo("Identificación"), "Clave:", 6, id);
  FXMatrix* const matriz = ArmaGrupo("Datos de la Depreciación");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  campoReal(matriz, "Tasa Contable:", 10, tasaContable);
  campoReal(matriz, "Tasa Fiscal:", 10, tasaFiscal);
  campoReal(matriz, "Maximo Deducible:", 10, maximoDeducible);
  moneda.combo = campoCombo(matriz, "Moneda:", 3, this, ID_MONEDA);
  campoReal(matriz, "Porcentaje:", 10, porcentaje);
  cuentas.Arma(matriz, Depre_Activo, Depre_CtaBaja);
  cuentas.Llena();
  ArmaBotones();
  Comienza();
}

void TipoDepreciaciones_Window::Prepara() {
  catalogo.LoadMonedas();
  moneda.Llena(&cMonedas::getMonedaDescri);
}

const char* TipoDepreciaciones_Window::Renglon(const cTipoDepreciacion& fila) {
  return EnBorrador(sDescripcion, fila.getDepreDescripcion());
}
