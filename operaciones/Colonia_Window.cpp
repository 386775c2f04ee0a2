#include "operaciones/Colonia_Window.h"

#include "framework/Filas.h"

MAPA_FORMA(Colonia_Window, onCmdLista, MANDO(Colonia_Window, ID_CIUDAD, onCmdCiudad),
           MANDO(Colonia_Window, ID_TIPO, onCmdTipo), MANDO(Colonia_Window, ID_PORCIUDAD, onCmdPorCiudad),
           MANDO(Colonia_Window, ID_PORCP, onCmdPorCP))

cColonia colonia;

int FindTipoAsentamiento(long id) {
  return PosicionDe(Catalogo::TipoAsentamientos, &cTipoAsentamiento::getTipoAsentamientoID, id);
}

Colonia_Window::Colonia_Window(FXWindow* duenio) : Forma(duenio, "Colonias") {
  ArmaLista("Colonias", 220);
  ArmaBusqueda(ArmaGrupo("Colonias que se muestran"));
  ArmaDatos(ArmaGrupo("Datos de la colonia"));
  ArmaBotones();
  Comienza();
}

void Colonia_Window::ArmaBusqueda(FXMatrix* matriz) {
  ciudadBuscada = campoCombo(matriz, "De la ciudad:", 12, this, ID_PORCIUDAD);
  FXComposite* renglon = campoRenglon(matriz, "Del código postal:");
  campoEntero(renglon, nullptr, 6, cpBuscado);
  Boton(renglon, "&Mostrar", iconos::find_icon, ID_PORCP, LAYOUT_CENTER_Y);
}

void Colonia_Window::ArmaDatos(FXMatrix* matriz) {
  campoClave(matriz, "Identificador:", 7, id);
  campoTexto(matriz, "Nombre:", 50, nombre);
  campoEntero(matriz, "Código postal:", 6, cp);
  ciudad.combo = campoCombo(matriz, "Ciudad:", 12, this, ID_CIUDAD);
  tipo.combo = campoCombo(matriz, "Tipo:", 10, this, ID_TIPO);
}

void Colonia_Window::Prepara() {
  catalogo.LoadCiudadesMex();
  ciudad.Llena(&cCiudadMex::getNombreCiudadMex);
  for (const auto& [fila, una] : Catalogo::CiudadesMex) ciudadBuscada->appendItem(una.getNombreCiudadMex());
  ciudadBuscada->setCurrentItem(-1);
  catalogo.LoadTipoAsentamientos();
  tipo.Llena(&cTipoAsentamiento::getAsentamiento);
}

void Colonia_Window::Relee() {
  switch (muestra) {
    case Que::Nada:
      catalogo.ColoniasFiltro.RemoverTodos();
      break;
    case Que::DeCiudad:
      catalogo.LoadColoniaCD(clave);
      break;
    case Que::DeCP:
      catalogo.LoadColoniaCP(clave);
      break;
  }
}

long Colonia_Window::onCmdAgregar(FXObject* emisor, FXSelector sel, void* datos) {
  const long respuesta = Forma::onCmdAgregar(emisor, sel, datos);
  if (!colonia.IsNew()) id.Pon(static_cast<FXint>(colonia.getColoniaID()));
  return respuesta;
}

void Colonia_Window::Muestra(long cp_, long coloniaID) {
  if (cp_ < 1) return;
  clave = cp_;
  cpBuscado.Pon(cp_);
  Lista(Que::DeCP);
  id.Pon(static_cast<FXint>(coloniaID));
  onCmdFind(this, FXSEL(SEL_COMMAND, ID_FIND), nullptr);
}

/// Lists anew, and blanks the form.
long Colonia_Window::Lista(Que que) {
  muestra = que;
  Load();
  Clear();
  Actual().setIsNew(true);
  if (lstFilas->getNumItems() == 0) cajaInformacion(this, Actual().clase(), "No hay colonias que mostrar");
  return 1;
}

long Colonia_Window::onCmdPorCiudad(FXObject*, FXSelector, void*) {
  const auto elegida = Catalogo::CiudadesMex.find(ciudadBuscada->getCurrentItem());
  if (elegida == Catalogo::CiudadesMex.end()) return 1;
  clave = elegida->second.getCiudadMexID();
  return Lista(Que::DeCiudad);
}

/// The server answers every neighbourhood of the country to code 0: it is not asked.
long Colonia_Window::onCmdPorCP(FXObject*, FXSelector, void*) {
  if (cpBuscado.Valor() < 1) {
    cajaInformacion(this, Actual().clase(), "Escriba el código postal");
    DaTeclado(cpBuscado.campo);
    return 1;
  }
  clave = cpBuscado.Valor();
  ciudadBuscada->setCurrentItem(-1);
  return Lista(Que::DeCP);
}
