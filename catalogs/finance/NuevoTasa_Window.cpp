#include "catalogs/finance/NuevoTasa_Window.h"

#include "db/Catalogo.h"

MAPA_FORMA_CORTA(NuevoTasa_Window, onCmdTipo, MANDO(NuevoTasa_Window, ID_FECHAINICIAL, onCmdCalendario),
                 MANDO(NuevoTasa_Window, ID_FECHAFINAL, onCmdCalendario))

namespace {

/// Offers the descriptions of a catalogue.
template <class Fila>
void Ofrece(FXComboBox* combo, const std::map<int, Fila>& filas, const char* (Fila::*descripcion)() const) {
  for (const auto& [numero, fila] : filas) combo->appendItem((fila.*descripcion)());
}

}  // namespace

NuevoTasa_Window::NuevoTasa_Window(FXMDIClient* area, FXMDIMenu* menu, long clave, int tipo)
    : Forma(area, menu, "", {20, 20, 550, 200}), clave(clave) {
  ArmaSinLista();
  FXMatrix* matriz = ArmaGrupo("");
  cmbTipo = campoCombo(matriz, "Tipo:", 10, this, ID_LISTA);
  campoFecha(matriz, "Fecha Inicial:", fechaInicial, this, ID_FECHAINICIAL);
  campoFecha(matriz, "Fecha Final:", fechaFinal, this, ID_FECHAFINAL);
  campoReal(matriz, "Tasa:", 10, tasaNormal, TEXTFIELD_ENTER_ONLY);
  campoReal(matriz, "Tasa Moratorio:", 10, tasaMoratorio, TEXTFIELD_ENTER_ONLY);
  ArmaBotones();
  LlenaTipos(tipo);
  if (clave > 0) {
    tasa.setTasaID(clave);
    tasa.Find();
    Read();
  } else {
    Clear();
    tasa.setIsNew(true);
  }
  create();
  Acomoda();
  setFocus();
}

void NuevoTasa_Window::LlenaTipos(int tipo) {
  switch (tipo) {
    case 0:
      return Ofrece(cmbTipo, Catalogo::TipoPrestamo, &cTipoPrestamo::getDescTipoPrestamo);
    case 1:
      return Ofrece(cmbTipo, Catalogo::TipoMovimiento, &cTipoMovimiento::getDescTipoMovimiento);
    case 2:
      return Ofrece(cmbTipo, Catalogo::TipoInversiones, &cTipoInversion::getDescTipoInversion);
  }
}

void NuevoTasa_Window::Update() {
  cTasa suya;
  suya.Find();
  suya.setTasaID(clave);
  Recoge(suya);
}

long NuevoTasa_Window::onCmdAgregar(FXObject*, FXSelector, void*) {
  cTasa suya;
  try {
    Update();
    if (!suya.getDataChanged()) return 1;  // and so it always ends
    suya.Check();
    if (suya.IsNew()) {
      if (cajaPregunta(this, suya.clase(), "Registrar ?")) suya.AddNew();
    } else if (cajaPregunta(this, suya.clase(), "Guardar cambios realizados ?")) {
      suya.Update();
    }
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}

long NuevoTasa_Window::onCmdBorrar(FXObject*, FXSelector, void*) {
  cTasa suya;
  try {
    suya.setTasaID(clave);
    suya.Find();
    Read();
    if (suya.IsNew()) {
      Clear();
    } else if (cajaPreguntaBorrar(this, suya.clase())) {
      suya.Delete();
      Clear();
    }
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}
