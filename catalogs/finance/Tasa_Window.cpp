#include "catalogs/finance/Tasa_Window.h"

#include <algorithm>

#include "catalogs/finance/NuevoTasa_Window.h"
#include "framework/Letra.h"

MAPA_PROPIO(Tasa_Window, MANDO(Tasa_Window, ID_AGREGAR, onCmdAgregar), MANDO(Tasa_Window, ID_FIND, onCmdFind),
            MANDO(Tasa_Window, ID_CLEAR, onCmdClear), MANDO(Tasa_Window, ID_NUEVO, onCmdNuevo),
            FXMAPFUNC(SEL_DOUBLECLICKED, Tasa_Window::ID_EDIT, Tasa_Window::onCmdEdit),
            FXMAPFUNC(SEL_CLOSE, 0, Tasa_Window::onCmdQuit),
            FXMAPFUNC(SEL_SIGNAL, Tasa_Window::ID_SALIR, Tasa_Window::onCmdQuit))

Tasa_Window::Tasa_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Tasa", {2, 2, 735, 420}), area(area), menu(menu) {
  std::cout << "entrando a crear dialogo" << std::endl;
  ArmaSinLista();
  libro = ArmaLibro(0);
  libro->setTarget(nullptr);  // no command needs to know that another page came up
  ArmaTabla("&Tasa Prestamo", {{"Fecha Inicial", 80},
                               {"Fecha Final", 80},
                               {"Tipo Prestamo", 100},
                               {"Tasa Normal", 100},
                               {"Tasa Moratorio", 100}});
  ArmaTabla("&Movimiento",
            {{"Fecha Inicial", 80}, {"Fecha Final", 80}, {"Tipo Movimiento", 100}, {"Tasa", 100}});
  ArmaTabla("&Tasa Inversion",
            {{"Fecha Inicial", 80}, {"Fecha Final", 80}, {"Tipo Inversion", 100}, {"Tasa Normal", 100}});
  ArmaCerrar(ArmaColumna());
  Abre("terminando creacion y fijando foco del dialogo WTASA", RanurasMdi);
}

/// A page of the book: its table, and &Nuevo.
void Tasa_Window::ArmaTabla(const char* titulo, std::initializer_list<Columna> columnas) {
  FXVerticalFrame* pagina = ArmaPagina(libro, titulo);
  auto* marco = new FXVerticalFrame(pagina, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0,
                                    0, 0, 0, 0, 0, 0);
  tabla = new TablaDeForma(marco, this, ID_EDIT,
                           TABLE_COL_SIZABLE | TABLE_READONLY | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  tabla->setTableSize(20, static_cast<FXint>(columnas.size()));
  tabla->setRowHeaderWidth(0);
  tabla->setVisibleRows(11);
  tabla->setVisibleColumns(1);
  FXint numero = 0;
  constexpr FXint orillas = 10;
  const bool grande = TieneLetraGrande(getApp());
  for (const auto& [texto, ancho] : columnas) {
    tabla->setColumnText(numero, texto);
    tabla->setColumnWidth(numero++,
                          grande ? std::max(ancho, tabla->getFont()->getTextWidth(texto) + orillas) : ancho);
  }
  Boton(pagina, "&Nuevo", iconos::ok_icon, ID_NUEVO, BUTTON_DEFAULT)->setLayoutHints(LAYOUT_LEFT);
}

long Tasa_Window::onCmdNuevo(FXObject*, FXSelector, void*) {
  std::cout << libro->getCurrent() << std::endl;
  return AbreTasa(-1);
}

long Tasa_Window::onCmdEdit(FXObject*, FXSelector, void* lugar) {
  constexpr FXint columnaDeLaClave = 3;
  const FXint renglon = static_cast<FXTablePos*>(lugar)->row;
  if (renglon < 0 || renglon >= tabla->getNumRows()) return 1;
  return AbreTasa(atol(tabla->getItemText(renglon, columnaDeLaClave).text()));
}

long Tasa_Window::AbreTasa(long clave) {
  (new NuevoTasa_Window(area, menu, clave, libro->getCurrent()))->create();
  return 1;
}
