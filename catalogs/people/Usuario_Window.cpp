#include "catalogs/people/Usuario_Window.h"

#include <algorithm>
#include <vector>

#include "catalogs/people/generarfc.h"
#include "reports/fxexecute.h"

// clang-format off
MAPA_PROPIO(Usuario_Window,
    MANDO(Usuario_Window, ID_AGREGAR, onCmdAgregar),
    MANDO(Usuario_Window, ID_FIND, onCmdFind),
    MANDO(Usuario_Window, ID_CLEAR, onCmdClear),
    MANDO(Usuario_Window, ID_BORRAR, onCmdBorrar),
    MANDO(Usuario_Window, ID_LISTA, onCmdUsuario),
    MANDO(Usuario_Window, ID_TIPOUSUARIO, onCmdTipoUsuario),
    MANDO(Usuario_Window, ID_CALENDARIO, onCmdCalendario),
    MANDO(Usuario_Window, ID_DEPENDE, onCmdDepende),
    MANDO(Usuario_Window, ID_CIUDADES, onCmdCiudades),
    MANDO_CUENTA(Usuario_Window, CuentaCaja, onCmdCuenta),
    MANDO_BUSCA(Usuario_Window, CuentaCaja, CuentaCaja, onCmdBusqueda),
    FXMAPFUNC(SEL_DOUBLECLICKED, Usuario_Window::ID_PERMISO, Usuario_Window::onCmdEditPermiso),
    MANDO(Usuario_Window, ID_ESTADOS, onCmdEstados),
    MANDO(Usuario_Window, ID_CIUDADES, onCmdCiudades),  // never reached
    MANDO(Usuario_Window, ID_CP, onCmdCP),
    MANDO(Usuario_Window, ID_COLONIA, onCmdColonia),
    FXMAPFUNC(SEL_CLOSE, 0, Usuario_Window::onCmdQuit),
    MANDO(Usuario_Window, ID_PROMOTOR, onCmdPromotor),
    MANDO(Usuario_Window, ID_CONOCEEMPLEADO, onCmdConoceempleado),
    FXMAPFUNC(SEL_SIGNAL, Usuario_Window::ID_SALIR, Usuario_Window::onCmdQuit))
// clang-format on

cUsuario usuario;
char sUsuario[121];

namespace {

/// The columns of the grid of the permissions; the last two are hidden and stay empty.
const struct {
  const char* titulo;
  FXint ancho;
} columnasDePermisos[] = {{"Opcion", 400}, {"A", 20}, {"ID", 0}, {"Permiso", 0}};
constexpr FXint ColumnaOpcion = 0;
constexpr FXint ColumnaLetra = 1;

/// The row of the cache at the current item of a combo box; null when there is none.
template <class Fila>
const Fila* Elegida(const std::map<int, Fila>& filas, const DatoOpcion& opcion) {
  const auto fila = filas.find(opcion.Valor());
  return fila != filas.end() ? &fila->second : nullptr;
}

bool HayColoniaElegida(const DatoOpcion& colonia) {
  return colonia.Valor() >= 0 && colonia.Valor() < catalogo.ColoniasFiltro.NumElementos();
}

void TrazaModulos() { std::cout << "No. de modulos -->" << Catalogo::Modulos.size() << std::endl; }

FXString NombreCompleto(const cSujeto& persona) {
  return FXStringFormat("%s %s %s", persona.getNombre(), persona.getPaterno(), persona.getMaterno());
}

const char* NombreDeAsentamiento(int tipo) {
  for (const auto& [fila, asentamiento] : Catalogo::TipoAsentamientos)
    if (asentamiento.getTipoAsentamientoID() == tipo) return asentamiento.getAsentamiento();
  return "";
}

/// A neighbourhood as its combo box shows it: postal code, name and kind of settlement.
struct RenglonDeColonia {
  explicit RenglonDeColonia(const cColonia& colonia) {
    const char* const nombre = colonia.getNombreColonia();
    const char* const tipo = NombreDeAsentamiento(colonia.getTipoAsentamientoID());
    FormateaTexto(texto, "%5li %45.*s %20.*s", colonia.getCP(), static_cast<int>(LargoUtf8(nombre, 45)),
                  nombre, static_cast<int>(LargoUtf8(tipo, 20)), tipo);
  }

  char texto[92];
};

/// Offers other items, none of them chosen. All at once: each that is appended alone lays the window out
/// anew.
void Renueva(DatoOpcion& opcion, std::vector<const char*>& textos) {
  textos.push_back(nullptr);
  opcion.combo->clearItems();
  opcion.combo->fillItems(textos.data());
  opcion.Vacia();
}

}  // namespace

Usuario_Window::Usuario_Window(FXMDIClient* area, FXMDIMenu* menu)
    : Forma(area, menu, "Catalogo de Usuarios", {0, 0, 815, 450}) {
  ArmaArbol(ArmaConMarco(200));
  ArmaIdentificacion(ArmaGrupo("Identificación"));
  FXTabBook* const libro = ArmaLibro(ID_PANEL);
  ArmaGenerales(ArmaPagina(libro, "&Datos Generales"));
  ArmaDomicilio(ArmaPagina(libro, "Domicilio"));
  ArmaAccesos(ArmaPagina(libro, "Accesos del Sistema"));
  ArmaParametros(ArmaMatriz(ArmaPagina(libro, "Parametros")));
  ArmaEnlaces(ArmaBotones());
  Abre("terminando creacion frm usuario", 4);
}

void Usuario_Window::ArmaArbol(FXComposite* marco) {
  lstUsuarios =
      new FXFoldingList(marco, this, ID_LISTA,
                        FOLDINGLIST_SHOWS_LINES | FOLDINGLIST_SHOWS_BOXES | FOLDINGLIST_BROWSESELECT |
                            HSCROLLER_NEVER | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  VaciaArbol();
}

/// Leaves the list with its headers and its root, which it answers.
FXFoldingItem* Usuario_Window::VaciaArbol() {
  lstUsuarios->clearItems();
  while (lstUsuarios->getNumHeaders() > 0) lstUsuarios->removeHeader(0);
  lstUsuarios->appendHeader("Usuario del Sistema", nullptr, 195);
  lstUsuarios->appendHeader("Login", nullptr, 0);  // hidden, it carries the key
  FXIcon* const dibujo = icono(getApp(), iconos::user2);
  FXFoldingItem* const raiz = lstUsuarios->prependItem(nullptr, "Usuarios\tLogin", dibujo, dibujo);
  lstUsuarios->expandTree(raiz);
  return raiz;
}

void Usuario_Window::ArmaIdentificacion(FXMatrix* matriz) {
  matriz->setNumColumns(4);
  campoTexto(matriz, "Login:", 20, login, JUSTIFY_LEFT | TEXTFIELD_ENTER_ONLY);
  tipo.combo = campoCombo(matriz, "Tipo:", 6, this, ID_TIPOUSUARIO);
  jefe.combo = campoCombo(matriz, "Jefe:", 6, this, ID_DEPENDE);
  for (int resto = 0; resto < 2; ++resto) new FXFrame(matriz, FRAME_NONE);  // of the four places of the row
  campoTexto(matriz, "Email:", 30, email);
  campoTexto(matriz, "Impresora:", 11, impresora);
  campoParrafo(campoMatriz(matriz, 2), "Obs.:", 2, 60, observaciones);
  observaciones.campo->setTarget(this);
  observaciones.campo->setSelector(ID_SALIR);
}

void Usuario_Window::ArmaGenerales(FXComposite* pagina) {
  FXMatrix* const nombres = ArmaMatriz(pagina, 3, LAYOUT_FILL_X);
  campoTexto(nombres, "Apellidos:", 20, paterno);
  campoTexto(nombres, nullptr, 20, materno);
  campoTexto(nombres, "  Nombre: ", 40, nombre);
  FXMatrix* const datos = ArmaMatriz(pagina, 4, LAYOUT_FILL_X);
  campoFecha(datos, "Fech. Nac.:", fechaNacimiento, this, ID_CALENDARIO);
  campoEntero(datos, "Edad:", 2, edad);
  campoTexto(datos, "RFC:", 15, rfc);
  campoTexto(datos, "CURP:", 20, curp);
}

void Usuario_Window::ArmaDomicilio(FXComposite* pagina) {
  FXMatrix* matriz = ArmaMatriz(pagina, 5, LAYOUT_FILL_X);
  campoEntero(matriz, "          C.P.:", 5, codPostal);
  codPostal.campo->setLayoutHints(LAYOUT_CENTER_Y);  // its button stands beside it
  new FXButton(matriz, "...", nullptr, this, ID_CP, FRAME_RAISED | FRAME_THICK | LAYOUT_CENTER_Y);
  estado.combo = campoCombo(matriz, "     Estado:", 10, this, ID_ESTADOS);
  matriz = ArmaMatriz(pagina, 2, LAYOUT_FILL_X);
  municipio.combo = campoCombo(matriz, "  Municipio:", 10, this, ID_CIUDADES);
  colonia.combo = campoCombo(matriz, "  Colonia:", 10, this, ID_COLONIA);
  matriz = ArmaMatriz(pagina, 6, LAYOUT_FILL_X);
  campoTexto(matriz, "        Calle:", 30, calle);
  campoTexto(matriz, "      No.Ext.:", 10, numeroExt);
  campoTexto(matriz, "      No.Int.:", 10, numeroInt);
  matriz = ArmaMatriz(pagina, 4, LAYOUT_FILL_X);
  campoTexto(matriz, "Comunidad:", 30, comunidad);
  campoTexto(matriz, "    Telefono:", 20, telefono);
}

void Usuario_Window::ArmaAccesos(FXComposite* pagina) {
  tabla = new TablaDeForma(pagina, this, ID_PERMISO, TABLE_READONLY | LAYOUT_FILL_X | LAYOUT_FILL_Y);
  tabla->setVisibleRows(8);
  tabla->setVisibleColumns(3);
  tabla->setRowHeaderWidth(3);
  tabla->setBackColor(FXRGB(255, 255, 255));
  for (FXint columna = 0; columna < 2; ++columna) {
    tabla->setCellColor(0, columna, FXRGB(240, 255, 240));
    tabla->setCellColor(1, columna, FXRGB(255, 255, 255));
  }
  TrazaModulos();
  DimensionaPermisos();
}

void Usuario_Window::ArmaParametros(FXMatrix* matriz) {
  campoTexto(matriz, "Serie:", 2, serie);
  cuentas.Arma(matriz, CuentaCaja, CuentaCaja);
  campoTexto(matriz, "Impresora CAJA:", 50, impresoraCaja, JUSTIFY_LEFT | TEXTFIELD_ENTER_ONLY);
  campoTexto(matriz, "Impresora REPORTE:", 50, impresoraReporte, JUSTIFY_LEFT | TEXTFIELD_ENTER_ONLY);
  reportesLaser.boton = campoCasilla(matriz, "Reportes Laser:", this, ID_SALIR);
  campoTexto(matriz, "Socio:", 15, socio);
}

void Usuario_Window::ArmaEnlaces(FXComposite* columna) {
  Boton(columna, "&Promotor", nullptr, ID_PROMOTOR, BUTTON_DEFAULT);
  Boton(columna, "C&onoce a tu \nEmpleado", nullptr, ID_CONOCEEMPLEADO, BUTTON_DEFAULT);
}

void Usuario_Window::Prepara() {
  for (const auto& [fila, entidad] : Catalogo::EstadosMex)
    estado.combo->appendItem(entidad.getNombreEstadoMex());
  cuentas.Llena();
  catalogo.LoadTiposUsuarios();
  tipo.Llena(&cTipoUsuario::getDescripcionTipoUsuario);
}

long Usuario_Window::Load() {
  FXFoldingItem* const raiz = VaciaArbol();
  FXIcon* const dibujo = icono(getApp(), iconos::user2);
  jefe.combo->clearItems();
  jefe.combo->appendItem("Ninguno");
  catalogo.LoadUsuarios();
  for (const auto& [fila, otro] : Catalogo::Usuarios) {
    cSujeto persona;
    persona.setSujetoID(otro.getSujetoID());
    persona.Find();
    const FXString completo = NombreCompleto(persona);
    jefe.combo->appendItem(completo);
    FormateaTexto(sUsuario, "%-20s\t%s", completo.text(), otro.getUsuarioID());
    lstUsuarios->prependItem(raiz, sUsuario, dibujo, dibujo);
  }
  jefe.Muestra();
  return 1;
}

void Usuario_Window::Clear() {
  Forma::Clear();
  fechaNacimiento.Vacia();
  for (DatoOpcion* opcion : {&estado, &municipio, &colonia}) opcion->Vacia();
  cUsuario::Permisos.clear();
  for (const auto& [fila, modulo] : Catalogo::Modulos) {
    const cPermisosModulos permiso(0, modulo.getClaveModulo(), "", "N", modulo.getDescriModulo(), false,
                                   false, false);
    cUsuario::Permisos.emplace(static_cast<int>(cUsuario::Permisos.size()), permiso);
  }
  MuestraPermisos();
}

void Usuario_Window::Read() {
  std::cout << "ENTRANDO A READ" << std::endl;
  Forma::Read();
  fechaNacimiento.Pon(usuario.getFechaNacimiento());
  MuestraDomicilio();
  std::cout << "Llenar permisos" << std::endl;
  TrazaModulos();
  MuestraPermisos();
  std::cout << "Termian permisos" << std::endl;
}

void Usuario_Window::Update() {
  login.valor.trimEnd();
  jefe.valor.trimEnd();
  Forma::Update();
  const date nacimiento = FechaDeTexto(fechaNacimiento.valor);
  if (nacimiento.valid()) usuario.setFechaNacimiento(nacimiento);
  TomaDomicilio();
}

bool Usuario_Window::Checkuser() {
  std::cout << "Checando CiudadMexID" << ciudad.valor << std::endl;
  return true;
}

/// What the user has to fill in before anything is saved; null when it is all there. Series and account share
/// their words.
const char* Usuario_Window::Falta() {
  const struct {
    bool falta;
    const char* mensaje;
  } reglas[] = {
      {login.valor.empty(), "No ha especificado el usuario"},
      {tipo.Valor().empty(), "No ha especificado el tipo de usuario"},
      {ciudad.valor <= 0, "No ha especificado la ciudad"},
      {serie.valor.empty(), "No ha especificado la serie"},
      {cuentas[CuentaCaja].Valor().empty(), "No ha especificado la serie"},
      {codPostal.valor <= 0, "No ha especificado el codigo postal    "},
  };
  for (const auto& regla : reglas)
    if (regla.falta) return regla.mensaje;
  return nullptr;
}

long Usuario_Window::onCmdAgregar(FXObject*, FXSelector, void*) {
  try {
    if (const char* const mensaje = Falta()) {
      cajaError(this, "Error en Validación", mensaje);
      return 0;
    }
    Update();
    usuario.setDataChanged(true);
    if (!usuario.getDataChanged() || !usuario.Check()) return 1;
    Checkuser();
    const bool nuevo = usuario.IsNew();
    if (!cajaPregunta(this, usuario.clase(), nuevo ? "Registrar ?" : "Guardar cambios realizados ?"))
      return 1;
    if (nuevo) {
      usuario.AddNew();
      // The server has given the new user his own: the next save must not send these.
      for (auto& [renglon, permiso] : cUsuario::Permisos) permiso.setDataChanged(false);
    } else {
      usuario.Update();
    }
    Load();
    cajaInformacion(this, usuario.clase(), "Transacción exitosa");
  } catch (char* texto) {
    Falla(texto);
  }
  return 1;
}

long Usuario_Window::onCmdFind(FXObject*, FXSelector, void*) {
  std::cout << "Entrando a Find " << std::endl;
  usuario.setUsuarioID(login.valor.text());
  usuario.Find();
  if (usuario.IsNew()) {
    cajaInformacion(this, usuario.clase(), "Registro NO encontrado");
    Clear();
    return 1;
  }
  Read();
  // The rows of the list have their names filled up to 20, so a shorter one is not found.
  const FXString renglon = NombreCompleto(usuario) + "\t" + usuario.getUsuarioID();
  FXFoldingItem* const hallado =
      lstUsuarios->findItem(renglon, lstUsuarios->getFirstItem(), SEARCH_FORWARD | SEARCH_WRAP);
  if (hallado == nullptr) return 1;
  lstUsuarios->setCurrentItem(hallado);
  lstUsuarios->makeItemVisible(hallado);
  lstUsuarios->selectItem(hallado);
  return 1;
}

long Usuario_Window::onCmdUsuario(FXObject*, FXSelector, void*) {
  const FXFoldingItem* const elegido = lstUsuarios->getCurrentItem();
  if (elegido == nullptr) return 0;
  login.Pon(elegido->getText().after('\t'));
  usuario.setUsuarioID(login.valor.text());
  if (strncmp(login.valor.text(), "Usuarios", 8) == 0) return 0;
  try {
    usuario.Find();
    usuario.LeePermisos();
    Read();
    usuario.setDataChanged(false);
  } catch (char* texto) {
    // A user who was found, but not whole, must not be saved with what the window shows of another.
    if (!usuario.IsNew()) onCmdClear(nullptr, 0, nullptr);
    Falla(texto);
  }
  return 0;
}

long Usuario_Window::onCmdCalendario(FXObject*, FXSelector, void*) {
  fechaNacimiento.DatoTexto::Pon(EligeFecha(this, fechaNacimiento.valor));
  edad.Pon(dif_dates(gFecha, today()) / 365);
  const auto clave = GeneraRfc(paterno.valor.text(), materno.valor.text(), nombre.valor.text(),
                               fechaNacimiento.valor.text());
  if (!clave) return 1;
  rfc.Pon(clave->c_str());
  curp.Pon(clave->c_str());
  return 1;
}

long Usuario_Window::AbreWeb(const char* pagina) {
  if (usuario.getUsuarioID()[0] == '\0') {
    cajaError(this, "Error en Validación", "Debe seleccionar primeramente el usuario.");
    return 1;
  }
  const FXString direccion =
      FXStringFormat("http://%s:%s/%s?usuarioid=%s", gHost, gPort, pagina, login.valor.text());
  std::cout << direccion.text() << std::endl;
  fxexecute(direccion);
  return 1;
}

void Usuario_Window::DatoJefe::Pon(const char* nuevo) {
  valor = nuevo;
  Muestra();
}

void Usuario_Window::DatoJefe::Vacia() {
  valor.clear();
  combo->setCurrentItem(-1);
}

void Usuario_Window::DatoJefe::Muestra() {
  const FXint lugar = FindUsuario(valor.text());
  combo->setCurrentItem(lugar < combo->getNumItems() ? lugar : -1);
}

long Usuario_Window::DatoJefe::Elige() {
  const auto otro = Catalogo::Usuarios.find(combo->getCurrentItem() - 1);
  valor = otro != Catalogo::Usuarios.end() ? otro->second.getUsuarioID() : "";
  return 1;
}

// The cascade of the address.

/// The cities of the state chosen, into the cache.
void Usuario_Window::LeeCiudades() {
  const cEstadoMex* const elegido = Elegida(Catalogo::EstadosMex, estado);
  catalogo.LoadCiudadesXEdo(elegido != nullptr ? elegido->getEstadoMexID() : 0);
}

void Usuario_Window::OfreceCiudades() {
  LeeCiudades();
  std::vector<const char*> nombres;
  for (const auto& [fila, una] : Catalogo::CiudadesMex) nombres.push_back(una.getNombreCiudadMex());
  Renueva(municipio, nombres);
}

/// The neighbourhoods that were read last.
void Usuario_Window::OfreceColonias() {
  std::vector<RenglonDeColonia> renglones;
  renglones.reserve(catalogo.ColoniasFiltro.NumElementos());
  for (const cColonia& una : catalogo.ColoniasFiltro) renglones.emplace_back(una);
  std::vector<const char*> textos;
  for (const RenglonDeColonia& renglon : renglones) textos.push_back(renglon.texto);
  Renueva(colonia, textos);
}

/// State and city of a city's key. The number of a state is taken for its place in the list.
void Usuario_Window::MuestraCiudad(int ciudadMexID, const char* traza) {
  cCiudadMex una;
  una.setCiudadMexID(ciudadMexID);
  una.Find();
  std::cout << traza << una.getEstadoMexID() << std::endl;
  estado.Pon(una.getEstadoMexID() - 1);
  OfreceCiudades();
  municipio.Pon(FindCiudad(ciudadMexID));
}

void Usuario_Window::MuestraDomicilio() {
  MuestraCiudad(ciudad.valor, "EstadoMexID -->");
  std::cout << "ciudadid ---> " << ciudad.valor << std::endl << "asigno ciudad" << std::endl;
  catalogo.LoadColoniaCD(ciudad.valor);
  OfreceColonias();
  int lugar = 0;
  for (const cColonia& una : catalogo.ColoniasFiltro) {
    if (una.getColoniaID() == usuario.getColoniaID()) {
      colonia.Pon(lugar);
      return;
    }
    ++lugar;
  }
}

/// City and neighbourhood of an address from what is chosen for them. The city is taken over for the next
/// save.
void Usuario_Window::TomaDomicilio() {
  LeeCiudades();
  if (const cCiudadMex* const elegida = Elegida(Catalogo::CiudadesMex, municipio))
    ciudad.Pon(elegida->getCiudadMexID());
  catalogo.LoadColoniaCP(codPostal.valor);
  if (catalogo.ColoniasFiltro.NumElementos() != colonia.combo->getNumItems())
    catalogo.LoadColoniaCD(ciudad.valor);
  std::cout << "CiudadMexID" << ciudad.valor << std::endl;
  if (!HayColoniaElegida(colonia)) return;
  usuario.setColoniaID(catalogo.ColoniasFiltro.Item(colonia.Valor()).getColoniaID());
  std::cout << "USUARIO La colonia es " << usuario.getColoniaID() << std::endl;
}

long Usuario_Window::onCmdEstados(FXObject*, FXSelector, void*) {
  OfreceCiudades();
  colonia.combo->clearItems();
  colonia.Vacia();
  return 1;
}

long Usuario_Window::onCmdCiudades(FXObject*, FXSelector, void*) {
  LeeCiudades();
  if (const cCiudadMex* const elegida = Elegida(Catalogo::CiudadesMex, municipio))
    ciudad.Pon(elegida->getCiudadMexID());
  catalogo.LoadColoniaCD(ciudad.valor);
  OfreceColonias();
  return 1;
}

long Usuario_Window::onCmdColonia(FXObject*, FXSelector, void*) {
  if (!HayColoniaElegida(colonia)) return 1;
  const cColonia elegida = catalogo.ColoniasFiltro.Item(colonia.Valor());
  codPostal.Pon(elegida.getCP());
  ciudad.Pon(elegida.getCiudadMexID());
  return 1;
}

long Usuario_Window::onCmdCP(FXObject*, FXSelector, void*) {
  if (codPostal.valor <= 0) return 1;
  catalogo.LoadColoniaCP(codPostal.valor);
  OfreceColonias();
  const int cuantas = catalogo.ColoniasFiltro.NumElementos();
  if (cuantas == 0) {
    cajaError(this, "Error en Validación", "El Codigo Postal capturado no existe, Verifique !!!");
    return 1;
  }
  if (cuantas == 1) colonia.Pon(0);
  MuestraCiudad(catalogo.ColoniasFiltro.Item(cuantas - 1).getCiudadMexID(), "EstadoMexID ");
  return 1;
}

// The grid of the permissions, a row per entry of the map.

/// As many empty rows as there are modules, or permissions if a user has more.
void Usuario_Window::DimensionaPermisos() {
  const size_t renglones = std::max(Catalogo::Modulos.size(), cUsuario::Permisos.size());
  tabla->setTableSize(static_cast<FXint>(renglones), ARRAYNUMBER(columnasDePermisos));
  FXint columna = 0;
  for (const auto& [titulo, ancho] : columnasDePermisos) {
    tabla->setColumnText(columna, titulo);
    tabla->setColumnWidth(columna++, ancho);
  }
}

void Usuario_Window::MuestraPermisos() {
  DimensionaPermisos();
  for (const auto& [renglon, permiso] : cUsuario::Permisos) {
    tabla->setItemText(renglon, ColumnaOpcion, permiso.getDescripcionModulo());
    tabla->setItemJustify(renglon, ColumnaOpcion, FXTableItem::LEFT);
    MuestraPermiso(renglon, permiso.getPermiso());
  }
}

/// A denied one is crossed out.
void Usuario_Window::MuestraPermiso(int renglon, const char* letra) {
  tabla->setItemText(renglon, ColumnaLetra, letra);
  tabla->setItemStipple(renglon, ColumnaLetra, strcmp(letra, "N") == 0 ? STIPPLE_CROSSDIAG : STIPPLE_NONE);
}

long Usuario_Window::onCmdEditPermiso(FXObject*, FXSelector, void* lugar) {
  const int renglon = static_cast<const FXTablePos*>(lugar)->row;
  const auto permiso = cUsuario::Permisos.find(renglon);
  if (permiso == cUsuario::Permisos.end()) return 1;
  permiso->second.setPermiso(tabla->getItemText(renglon, ColumnaLetra) == "N" ? "S" : "N");
  MuestraPermiso(renglon, permiso->second.getPermiso());
  return 1;
}
