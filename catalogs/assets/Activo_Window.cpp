#include "catalogs/assets/Activo_Window.h"

MAPA_PROPIO(Activo_Window, MANDO(Activo_Window, ID_AGREGAR, onCmdAgregar),
            MANDO(Activo_Window, ID_FIND, onCmdFind), MANDO(Activo_Window, ID_CLEAR, onCmdClear),
            MANDO(Activo_Window, ID_LISTA, onCmdActivo),
            MANDO(Activo_Window, ID_DEPRECIACION, onCmdDepreciacion),
            MANDO(Activo_Window, ID_PANEL, onCmdPanel), MANDO(Activo_Window, ID_BORRAR, onCmdBorrar),
            FXMAPFUNCS(SEL_COMMAND, Activo_Window::ID_CALENDARIO, Activo_Window::ID_CALENDARIO_FISCAL,
                       Activo_Window::onCmdCalendario),
            MANDO(Activo_Window, ID_DEDUCCION, onCmdDeduccionInmediata),
            MANDO(Activo_Window, ID_MONEDA, onCmdMoneda), FXMAPFUNC(SEL_CLOSE, 0, Activo_Window::onCmdQuit),
            FXMAPFUNC(SEL_SIGNAL, Activo_Window::ID_SALIR, Activo_Window::onCmdQuit))

cActivo activo;
char sActivo[281];

namespace {

/// Offers what a coded column means, from 0.
void Ofrece(DatoOpcion& dato, std::initializer_list<const char*> opciones) {
  for (const char* opcion : opciones) dato.combo->appendItem(opcion);
}

const std::initializer_list<const char*> metodos = {"Linea Recta", "Suma de Años Digitos",
                                                    "Doble Saldo Declinante"};

}  // namespace

Activo_Window::Activo_Window(FXWindow* duenio) : Forma(duenio, "Activo") {
  ArmaLista("Activo");
  campoClave(ArmaGrupo("Identificación"), "Identificación:", 6, id);
  FXTabBook* const libro = ArmaLibro(ID_PANEL);
  ArmaGenerales(ArmaMatriz(ArmaPagina(libro, "&Datos Generales")));
  ArmaContable(ArmaMatriz(ArmaPagina(libro, "Depreciación Contable")));
  ArmaFiscal(ArmaMatriz(ArmaPagina(libro, "Depreciación Fiscal")));
  ArmaBotones();
  Comienza();
}

void Activo_Window::ArmaGenerales(FXMatrix* matriz) {
  campoTexto(matriz, "Clave:", 21, clave);
  campoParrafo(matriz, "Descripción:", 3, 50, descripcion);
  depreciacion.combo = campoCombo(matriz, "Depreciación:", 10, this, ID_DEPRECIACION);
  campoReal(matriz, "Valor :", 10, valor);
  campoReal(matriz, "% Vida Util:", 6, vidaUtil);
  campoReal(matriz, "Valor de Mercado:", 10, valorMercado);
  campoTexto(matriz, "Localización:", 51, localizacion);
  campoTexto(matriz, "No. de Serie:", 21, serie);
  campoReal(matriz, "Monto Original:", 10, montoOriginal);
  moneda.combo = campoCombo(matriz, "Moneda:", 3, this, ID_MONEDA);
  departamento.combo = campoCombo(matriz, "Departamento:", 6, this, ID_DEPARTAMENTO);
  Ofrece(departamento, {"Producto", "Ventas", "Administración"});
}

void Activo_Window::ArmaContable(FXMatrix* matriz) {
  campoFecha(matriz, "Fecha Inicio Depreciación Contable:", inicioConta, this, ID_CALENDARIO);
  campoReal(matriz, "Tasa Contable de Depreciación:", 10, tasaConta);
  campoReal(matriz, "Depreciación Contable Acumulada:", 10, acumuladaConta);
  metodoConta.combo = campoCombo(matriz, "Metodo de Depreciación Contable:", 4, this, ID_METODO);
  Ofrece(metodoConta, metodos);
}

void Activo_Window::ArmaFiscal(FXMatrix* matriz) {
  campoFecha(matriz, "Fecha Inicio Depreciación Fiscal:", inicioFiscal, this, ID_CALENDARIO_FISCAL);
  deduccion.boton = campoCasilla(matriz, "Deducción Inmediata:", this, ID_DEDUCCION);
  campoReal(matriz, "Tasa de Depreciación Fiscal:", 10, tasaFiscal);
  campoReal(matriz, "Depreciación Fiscal Acumulada:", 10, acumuladaFiscal);
  metodoFiscal.combo = campoCombo(matriz, "Metodo de Depreciación Fiscal:", 4, this, ID_METODO_FISCAL);
  Ofrece(metodoFiscal, metodos);
  campoReal(matriz, "Monto Maximo Fiscal Deducible:", 10, maximoFiscal);
}

void Activo_Window::Prepara() {
  catalogo.LoadTipoDepreciacion();
  depreciacion.Llena(
      [](const cTipoDepreciacion& tipo) { return EnBorrador(sActivo, tipo.getDepreDescripcion()); });
  catalogo.LoadMonedas();
  moneda.Llena(&cMonedas::getMonedaDescri);
}

const char* Activo_Window::Renglon(const cActivo& fila) {
  FormateaTexto(sActivo, "%s %s", fila.getActivoClave(), fila.getActivoDescripcion());
  return sActivo;
}

void Activo_Window::Update() {
  std::apply([](const auto&... campo) { (Pasa(activo, campo.set, campo.dato.Valor()), ...); }, Propios());
}

long Activo_Window::onCmdActivo(FXObject* emisor, FXSelector sel, void* datos) {
  const long respuesta = onCmdLista(emisor, sel, datos);
  std::cout << "Mostrar -> " << activo.getActivoID() << std::endl;
  return respuesta;
}
