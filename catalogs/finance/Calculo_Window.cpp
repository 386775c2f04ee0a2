#include "catalogs/finance/Calculo_Window.h"

MAPA_FORMA(Calculo_Window, onCmdCalculo)

cCalculo calculo;
char sCalculo[44];

Calculo_Window::Calculo_Window(FXWindow* duenio) : Forma(duenio, "Formulas de Calculos") {
  ArmaLista("Formulas");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Identificador:", 4, id);
  matriz = ArmaGrupo("Datos de la Formula");
  campoTexto(matriz, "Descripción:", 40, descripcion);
  campoTexto(matriz, "Formula:", 60, formula);
  ArmaBotones();
  Comienza();
}
