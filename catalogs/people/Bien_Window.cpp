#include "catalogs/people/Bien_Window.h"

// clang-format off
MAPA_PROPIO(Bien_Window,
    MANDO(Bien_Window, ID_AGREGAR, onCmdAgregar),
    MANDO(Bien_Window, ID_BORRAR, onCmdBorrar),
    MANDO(Bien_Window, ID_CALENDARIO, onCmdCalendario),
    FXMAPFUNC(SEL_CLOSE, 0, Bien_Window::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Bien_Window::ID_SALIR, Bien_Window::onCmdQuit))
// clang-format on

cBien bien;

Bien_Window::Bien_Window(FXWindow* duenio, cSujeto* persona, int indice)
    : Forma(duenio, "Bien"), persona(persona), indice(indice) {
  ArmaSinLista();
  ArmaGenerales(ArmaGrupo("Datos Generales"));
  ArmaValor(ArmaGrupo("Valor"));
  ArmaBotones();
  Comienza();
}

void Bien_Window::ArmaGenerales(FXMatrix* matriz) {
  campoTexto(matriz, "Propietario:", 60, propietario);
  campoTexto(matriz, "Descripción:", 60, descripcion);
  campoParrafo(matriz, "Caracteristicas:", 3, 60, caracteristicas);
  campoParrafo(matriz, "Registro Publico:", 3, 60, registroPublico);
  campoParrafo(matriz, "Datos Hipoteca:", 3, 60, datosHipoteca);
}

void Bien_Window::ArmaValor(FXMatrix* matriz) {
  campoReal(matriz, "Valor comercial:", 15, valorComercial);
  campoReal(matriz, "Valor fiscal:", 15, valorFiscal);
  campoReal(matriz, "Valor catastro:", 15, valorCatastro);
  campoReal(matriz, "Relación Garantia:", 15, relacionGarantia);
  adjudicado.boton =
      new FXCheckButton(matriz, "Adjudicado", nullptr, 0, CHECKBUTTON_NORMAL | LAYOUT_CENTER_Y);
  campoFecha(matriz, nullptr, fechaAdjudicado, this, ID_CALENDARIO);
}

void Bien_Window::ArmaBotones() {
  FXGroupBox* columna = ArmaColumna();
  Boton(columna, "&Borrar", iconos::borrar_icon, ID_BORRAR, BUTTON_DEFAULT);
  ArmaCerrar(columna);
  Boton(columna, "&Aceptar", iconos::ok_icon, ID_AGREGAR, BUTTON_DEFAULT | LAYOUT_SIDE_BOTTOM);
}

void Bien_Window::Comienza() {
  if (CopiaFila(persona->getBienes(), indice, bien)) {
    Read();
    return;
  }
  bien.Clear();
  bien.setIsNew(true);
  bien.setDeleted(false);
  Clear();
}

long Bien_Window::onCmdAgregar(FXObject*, FXSelector, void*) {
  try {
    Update();
    bien.Check();
    if (bien.IsNew() && indice == -1) {
      persona->getBienes().Insertar(bien);
    } else {
      persona->getBienes().setItem(bien, indice);
    }
    return Cierra();
  } catch (char* texto) {
    cajaError(this, "Error en Validación", texto);
  }
  return 1;
}

long Bien_Window::onCmdBorrar(FXObject*, FXSelector, void*) {
  if (!cajaPreguntaBorrar(this, bien.clase())) return 1;
  bien.setDeleted(true);
  persona->getBienes().setItem(bien, indice);
  return Cierra();
}

long Bien_Window::onCmdCalendario(FXObject*, FXSelector, void*) {
  fechaAdjudicado.DatoTexto::Pon(EligeFecha(this, fechaAdjudicado.valor));
  return 1;
}

long Bien_Window::Cierra() { return handle(this, FXSEL(SEL_COMMAND, ID_ACCEPT), nullptr); }
