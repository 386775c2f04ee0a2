// The options of the menu: one line each, with the module whose permission is asked, the form, and for a
// child form the slot of mdiArray that has to be free. That slot is not always the one that the form takes.
#include "app/Caja.h"
#include "app/sesion.h"
#include "catalogs/finance/Banco_Window.h"
#include "catalogs/finance/Calculo_Window.h"
#include "catalogs/finance/Inabil_Window.h"
#include "catalogs/finance/Inpc_Window.h"
#include "catalogs/finance/Recargos_Window.h"
#include "catalogs/finance/TasaInteres_Window.h"
#include "catalogs/finance/Tasa_Window.h"
#include "catalogs/finance/TipoInversion_Window.h"
#include "catalogs/finance/TipoMovimiento_Window.h"
#include "catalogs/finance/TipoPrestamo_Window.h"
#include "catalogs/finance/TipoPromocion_Window.h"
#include "catalogs/finance/TipoTasaInteres_Window.h"
#include "catalogs/finance/Udis_Window.h"
#include "catalogs/people/CiudadMex_Window.h"
#include "catalogs/people/EstadoMex_Window.h"
#include "catalogs/people/Usuario_Window.h"
#include "catalogs/people/cPermisosModulos.h"
#include "catalogs/simple/ConceptoScoring_Window.h"
#include "catalogs/simple/Estados_Credito_Window.h"
#include "catalogs/simple/Finalidades_Window.h"
#include "catalogs/simple/Grupo_Window.h"
#include "catalogs/simple/Modulo_Window.h"
#include "catalogs/simple/Monedas_Window.h"
#include "catalogs/simple/MotivoBaja_Window.h"
#include "catalogs/simple/Ocupacion_Window.h"
#include "catalogs/simple/TipoMoviBanco_Window.h"
#include "catalogs/simple/TipoSocio_Window.h"
#include "catalogs/simple/TipoUsuario_Window.h"
#include "catalogs/simple/Tipo_Garantia_Window.h"
#include "reports/Sujeto_Window.h"
#include "widgets/cajas.h"

bool Caja::TieneAcceso(const char* modulo) {
  if (permite.Acceso(glogin, modulo)) return true;
  cajaError(this, "Acceso NO AUTORIZADO", "No tiene acceso a la opción ...");
  return false;
}

/// Opens a form as a child, while the slot that its option tests is free. The form deletes itself when it
/// closes.
template <class Ventana>
long Caja::AbreHija(int ranura) {
  if (!mdiArray[ranura]) (new Ventana(mdiClient, mdiMenu))->create();
  return 1;
}

/// An option whose form opens as a child.
template <class Ventana>
long Caja::OpcionHija(const char* modulo, int ranura) {
  return TieneAcceso(modulo) ? AbreHija<Ventana>(ranura) : 1;
}

/// An option whose form is a dialog.
template <class Ventana>
long Caja::OpcionModal(const char* modulo) {
  if (TieneAcceso(modulo)) Ventana(this).execute(PLACEMENT_SCREEN);
  return 1;
}

long Caja::onCmdMonedas(FXObject*, FXSelector, void*) { return OpcionHija<Monedas_Window>("0203", 1); }
long Caja::onCmdBancos(FXObject*, FXSelector, void*) { return OpcionHija<Banco_Window>("0204", 2); }
long Caja::onCmdUsuarios(FXObject*, FXSelector, void*) { return OpcionHija<Usuario_Window>("0206", 4); }
long Caja::onCmdTipoMovimiento(FXObject*, FXSelector, void*) {
  return OpcionHija<TipoMovimiento_Window>("0207", 5);
}
long Caja::onCmdTipoPrestamos(FXObject*, FXSelector, void*) {
  return OpcionHija<TipoPrestamo_Window>("0208", 6);
}
long Caja::onCmdTipoGarantia(FXObject*, FXSelector, void*) {
  return OpcionModal<Tipo_Garantia_Window>("0209");
}
long Caja::onCmdEstadosCredito(FXObject*, FXSelector, void*) {
  return OpcionModal<Estados_Credito_Window>("0210");
}
long Caja::onCmdFinalidades(FXObject*, FXSelector, void*) { return OpcionModal<Finalidades_Window>("0211"); }
long Caja::onCmdTipoMoviBancos(FXObject*, FXSelector, void*) {
  return OpcionHija<TipoMoviBanco_Window>("0205", 3);
}
long Caja::onCmdTipoInversion(FXObject*, FXSelector, void*) {
  return OpcionHija<TipoInversion_Window>("0212", 10);
}
long Caja::onCmdEstadosMex(FXObject*, FXSelector, void*) { return OpcionModal<EstadoMex_Window>("0213"); }
long Caja::onCmdCiudadesMex(FXObject*, FXSelector, void*) { return OpcionModal<CiudadMex_Window>("0214"); }
long Caja::onCmdModulos(FXObject*, FXSelector, void*) { return OpcionModal<Modulo_Window>("0215"); }
long Caja::onCmdTipoSocios(FXObject*, FXSelector, void*) { return OpcionModal<TipoSocio_Window>("0217"); }
long Caja::onCmdCalculos(FXObject*, FXSelector, void*) { return OpcionModal<Calculo_Window>("0218"); }
long Caja::onCmdTipoUsuarios(FXObject*, FXSelector, void*) { return OpcionModal<TipoUsuario_Window>("0216"); }
long Caja::onCmdTipoPromocion(FXObject*, FXSelector, void*) {
  return OpcionHija<TipoPromocion_Window>("0420", 91);
}
long Caja::onCmdTasa(FXObject*, FXSelector, void*) { return OpcionHija<Tasa_Window>("0424", 94); }
long Caja::onCmdInpc(FXObject*, FXSelector, void*) { return OpcionHija<Inpc_Window>("0428", 98); }
long Caja::onCmdUdis(FXObject*, FXSelector, void*) { return OpcionHija<Udis_Window>("0427", 97); }
long Caja::onCmdRecargos(FXObject*, FXSelector, void*) { return OpcionHija<Recargos_Window>("0429", 99); }
long Caja::onCmdMotivoBaja(FXObject*, FXSelector, void*) { return AbreHija<MotivoBaja_Window>(80); }
long Caja::onCmdSujeto(FXObject*, FXSelector, void*) { return OpcionModal<Sujeto_Window>("0442"); }
long Caja::onCmdInabiles(FXObject*, FXSelector, void*) { return OpcionHija<Inabil_Window>("0448", 98); }
long Caja::onCmdGrupos(FXObject*, FXSelector, void*) { return OpcionHija<Grupo_Window>("0449", 98); }
long Caja::onCmdOcupaciones(FXObject*, FXSelector, void*) { return OpcionHija<Ocupacion_Window>("0450", 98); }
long Caja::onCmdConceptoScoring(FXObject*, FXSelector, void*) {
  return OpcionModal<ConceptoScoring_Window>("0452");
}
long Caja::onCmdTasaInteres(FXObject*, FXSelector, void*) { return OpcionModal<TasaInteres_Window>("0217"); }
long Caja::onCmdTipoTasaInteres(FXObject*, FXSelector, void*) {
  return OpcionModal<TipoTasaInteres_Window>("0217");
}
