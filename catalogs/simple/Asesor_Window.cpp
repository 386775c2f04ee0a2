#include "catalogs/simple/Asesor_Window.h"

MAPA_FORMA(Asesor_Window, onCmdAsesor)

cAsesor asesor;
char sAsesor[51];

Asesor_Window::Asesor_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo de Asesores", {20, 20, 620, 205}) {
  ArmaLista("Asesor");
  FXMatrix* matriz = ArmaGrupo("Identificación");
  campoClave(matriz, "Identificador:", 2, id);
  matriz = ArmaGrupo("Datos del Asesor");
  campoTexto(matriz, "Asesor:", 50, nombre);
  ArmaBotones();
  Abre("terminando creacion frm pais", 1);
}
