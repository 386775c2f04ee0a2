#include "catalogs/finance/TipoPromocion_Window.h"

MAPA_FORMA_CORTA(TipoPromocion_Window, onCmdTipoPromocion,
                 MANDO(TipoPromocion_Window, ID_MOVIMIENTO, onCmdTipoMovimiento),
                 FXMAPFUNCS(SEL_COMMAND, TipoPromocion_Window::ID_FECHAINICIAL,
                            TipoPromocion_Window::ID_FECHAFINAL, TipoPromocion_Window::onCmdCalendario))

cTipoPromocion tipopromocion;

TipoPromocion_Window::TipoPromocion_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo de Tipos de Promociones", {20, 20, 700, 300}) {
  ArmaLista("Promociones");
  FXMatrix* const matriz = ArmaGrupo("");
  campoClave(matriz, "Identificador:", 4, id, JUSTIFY_RIGHT);
  movimiento.combo = campoCombo(matriz, "Tipo de Mov:", 10, this, ID_MOVIMIENTO);
  campoTexto(matriz, "Descripcion:", 40, descripcion);
  campoFecha(matriz, "Fecha Inicio:", fechaInicial, this, ID_FECHAINICIAL);
  campoFecha(matriz, "Fecha Final:", fechaFinal, this, ID_FECHAFINAL);
  campoParrafo(matriz, "Condicion:", 3, 40, condicion);
  estatus.combo = campoCombo(matriz, "Estatus:", 3);
  ArmaBotones();
  for (const char* estado : {"Vigente", "Terminada", "Cancelada"}) estatus.combo->appendItem(estado);
  movimiento.Llena(RenglonDeMovimiento);
  Abre("terminando creacion frm tipopromocion", 91);
}
