#include "catalogs/simple/Monedas_Window.h"

FXDEFMAP(Monedas_Window)
Monedas_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Monedas_Window::ID_AGREGAR, Monedas_Window::onCmdAgregar),
    FXMAPFUNC(SEL_COMMAND, Monedas_Window::ID_FIND, Monedas_Window::onCmdFind),
    FXMAPFUNC(SEL_COMMAND, Monedas_Window::ID_CLEAR, Monedas_Window::onCmdClear),
    FXMAPFUNC(SEL_COMMAND, Monedas_Window::ID_BORRAR, Monedas_Window::onCmdBorrar),
    FXMAPFUNC(SEL_COMMAND, Monedas_Window::ID_LISTA, Monedas_Window::onCmdMoneda),
    FXMAPFUNC(SEL_CLOSE, 0, Monedas_Window::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Monedas_Window::ID_SALIR, Monedas_Window::onCmdQuit),
};

FXIMPLEMENT(Monedas_Window, FXMDIChild, Monedas_WindowMap, ARRAYNUMBER(Monedas_WindowMap))

cMonedas moneda;
char sMoneda[30];

Monedas_Window::Monedas_Window(FXMDIClient* cliente, FXMDIMenu* menu)
    : Forma(cliente, "Catalogo de Monedas", nullptr, menu, 0, 20, 20, 620, 205) {
  ArmaLista("Monedas");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Moneda:", 2, id);
  matriz = ArmaGrupo("Datos de la Moneda");
  campoTexto(matriz, "Descripción:", 30, descripcion);
  campoReal(matriz, "Valor :", 10, valor);
  ArmaBotones();
  Abre("terminando creacion frm pais", 1);
}

const char* Monedas_Window::Renglon(const cMonedas& fila) {
  FormateaTexto(sMoneda, "%s", fila.getMonedaDescri());
  return sMoneda;
}
