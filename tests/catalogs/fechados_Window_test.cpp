// The forms with a date or a month in them, one row of the table each: the series of indices, the non-working
// days, the bank accounts and the promotions. Below it, what only some of them do.
#include <fxkeys.h>

#include <algorithm>
#include <optional>

#include "app/sesion.h"
#include "catalogs/finance/Banco_Window.h"
#include "catalogs/finance/Busqueda_Window.h"
#include "catalogs/finance/Inabil_Window.h"
#include "catalogs/finance/Inpc_Window.h"
#include "catalogs/finance/Recargos_Window.h"
#include "catalogs/finance/TipoPromocion_Window.h"
#include "catalogs/finance/Udis_Window.h"
#include "tests/catalogs/ConMandos.h"
#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Cortes.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"

namespace pruebas {
namespace {

enum class Tipo { Texto, Numero, Fecha, Parrafo, Combo };

/// A row of fields as it stands on the screen.
struct CampoVisto {
  const char* etiqueta;
  Tipo tipo;
  FXint columnas;  ///< of a combo box, how many items it shows
  FXuint estilo = TEXTFIELD_LIMITED;
  FXuint lado = JUSTIFY_LEFT;
};
constexpr FXuint DeClave = TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY;
constexpr FXuint DeEntero = TEXTFIELD_LIMITED | TEXTFIELD_INTEGER;
constexpr FXuint DeReal = TEXTFIELD_LIMITED | TEXTFIELD_REAL;

struct Recuadro {
  const char* titulo;
  std::vector<CampoVisto> campos;
};

struct Modelo {
  const FXMetaClass* meta;
  FXWindow* (*abre)(Area& area);
  FXString (*titulo)(FXWindow* forma);
  void (*exigeMapa)();
  const char* (*clase)();
  void (*limpia)();
  std::pair<bool, bool> (*banderas)();  ///< changed, new
};

/// What the field `campo` says when `valor` is typed into a form that is otherwise complete, or what the
/// server says: "" when it is saved, null when there is nothing to save.
struct Limite {
  const char *campo, *valor, *texto;
};

struct Caso {
  Modelo modelo;
  const char* titulo;
  FXRectangle lugar;
  const char* traza;
  int ranura;
  bool conBuscar, trazaErrores;
  const char* lista;  ///< title of the box around it
  FXint anchoLista;
  std::vector<Recuadro> cajas;
  const char* carga;
  bool enTransaccion, trazaCarga;
  const char* tabla;
  size_t clave;              ///< how many fields
  Textos alta, vista;        ///< typed into an empty form, and what a form shows that has read it
  const char* renglon;       ///< its row of the list
  Textos cambio, otraVista;  ///< typed over it, "" leaving a field alone
  const char* otroRenglon;
  const char *sqlAlta, *sqlCambio, *sqlBorrado, *sqlBusqueda;
  const char* noCambia;  ///< what the server says to the change; null where it takes it
  const char* sinTocar;  ///< what &Aceptar says to an untouched form; null for nothing
  std::vector<Limite> limites;
};

void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.modelo.meta->getClassName(); }

/// The messages in their order, those of its own between that of the list and the end.
template <class V, auto lista, bool conBuscar>
void Mapa(const std::vector<Entrada<V>>& propias) {
  std::vector<Entrada<V>> mapa = {Mando<V>(V::ID_AGREGAR, &V::onCmdAgregar)};
  if (conBuscar) mapa.push_back(Mando<V>(V::ID_FIND, &V::onCmdFind));
  mapa.push_back(Mando<V>(V::ID_CLEAR, &V::onCmdClear));
  mapa.push_back(Mando<V>(V::ID_BORRAR, &V::onCmdBorrar));
  mapa.push_back(Mando<V>(V::ID_LISTA, lista));
  mapa.insert(mapa.end(), propias.begin(), propias.end());
  mapa.push_back({FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit});
  mapa.push_back({FXSEL(SEL_SIGNAL, V::ID_SALIR), FXSEL(SEL_SIGNAL, V::ID_SALIR), &V::onCmdQuit});
  ExigeMapa<V>(mapa);
  EXPECT_EQ(FXSelector{V::ID_AGREGAR}, FXSelector{FXMDIChild::ID_LAST});
}

template <class V, auto& registro>
Modelo De(void (*mapa)()) {
  return {&V::metaClass,
          [](Area& area) -> FXWindow* { return area.Abre<V>(); },
          [](FXWindow* forma) { return static_cast<V*>(forma)->getTitle(); },
          mapa,
          [] { return registro.clase(); },
          [] { registro.Clear(); },
          [] { return std::pair(registro.getDataChanged(), registro.IsNew()); }};
}

const char* const SinFechaDada = "No ha especificado la fecha";
const char* const NoExisteElDia = "no existe en el calendario";

/// What is said to a day, whatever the form: where it is the only field, `sinDia` to none.
std::vector<Limite> DeUnDia(const char* sinDia, std::vector<Limite> limites) {
  for (const char* ninguno : {"00/00/0000", "//", "", "ab"}) limites.push_back({"Fecha:", ninguno, sinDia});
  for (const char* viejo : {"1/1/1", "01/01/1900"}) limites.push_back({"Fecha:", viejo, SinFechaDada});
  return limites;
}

std::vector<Limite> DeUnMes(const char* cifra, std::vector<Limite> limites) {
  const std::vector<Limite> comunes = {
      {"Año:", "", "Está fuera de rango el año: 0 no está"},
      {"Año:", "-1", "No se ha especificado el Año"},
      {"Año:", "20319", ""},  // the fifth figure does not enter
      {"Mes:", "", "Está fuera de rango el mes: 0 no está"},
      {"Mes:", "0", "Está fuera de rango el mes: 0 no está"},
      {"Mes:", "13", "Está fuera de rango el mes: 13 no está"},
      {"Mes:", "-1", "No se ha especificado el Mes"},
      {"Mes:", "1e", ""},
      {cifra, "0", ""},
      {cifra, "", ""},
      {cifra, "1e30", "Está fuera de rango"},
      {cifra, "1e308", "Está fuera de rango"},
      {cifra, "1e999", "inf"},
      {cifra, "nan", ""},  // no letter but the exponent's enters
  };
  limites.insert(limites.end(), comunes.begin(), comunes.end());
  return limites;
}

std::vector<Recuadro> CajasDeUnMes(const char* cifra) {
  return {{"Identificación", {{"Año:", Tipo::Numero, 4, DeClave | TEXTFIELD_INTEGER}}},
          {"Datos",
           {{"Mes:", Tipo::Numero, 2, DeEntero, JUSTIFY_RIGHT},
            {cifra, Tipo::Numero, 12, DeReal, JUSTIFY_RIGHT}}}};
}

const Caso casos[] = {
    {
        .modelo = De<Udis_Window, udis>([] {
          using V = Udis_Window;
          Mapa<V, &V::onCmdUdis, true>({Mando<V>(V::ID_CALENDARIO, &V::onCmdCalendario)});
        }),
        .titulo = "Catalogo de UDIS",
        .lugar = {20, 20, 620, 205},
        .traza = "terminando creacion frm pais",
        .ranura = 1,
        .conBuscar = true,
        .trazaErrores = true,
        .lista = "Udis",
        .anchoLista = 150,
        .cajas = {{"Identificación", {{"Fecha:", Tipo::Fecha, 10}}},
                  {"Datos", {{"Valor :", Tipo::Numero, 10, DeReal, JUSTIFY_RIGHT}}}},
        .carga = "SELECT * FROM spsudis('1900-01-01');",
        .enTransaccion = false,
        .trazaCarga = true,
        .tabla = "udis",
        .clave = 1,
        .alta = {"05/03/2031", "8.25"},
        .vista = {"05/03/2031", "8.25"},
        .renglon = "05/03/2031",
        .cambio = {"", "9.5"},
        .otraVista = {"05/03/2031", "9.5"},
        .otroRenglon = "05/03/2031",
        .sqlAlta = "select spiudis('2031-03-05',8.250000);",
        .sqlCambio = "select spuudis('2031-03-05',9.500000);",
        .sqlBorrado = "SELECT spdudis('2031-03-05');",
        .sqlBusqueda = "SELECT * FROM spsudis('2031-03-05');",
        .noCambia = nullptr,
        .sinTocar = nullptr,
        .limites = DeUnDia(SinFechaDada, {{"Fecha:", "31/02/2031", NoExisteElDia},
                                          {"Fecha:", "05/00/2031", NoExisteElDia},
                                          {"Fecha:", "05/13/2031", NoExisteElDia},
                                          {"Fecha:", "5/3/2031", ""},     // between its slashes
                                          {"Fecha:", "05/03/20319", ""},  // the fifth figure does not enter
                                          {"Valor :", "-0.01", "El valor no puede ser negativo"},
                                          {"Valor :", "0", ""},
                                          {"Valor :", "", ""},
                                          {"Valor :", "1e30", "Está fuera de rango el valor"},
                                          {"Valor :", "1e308", "Está fuera de rango el valor"},
                                          {"Valor :", "1e999", "inf"},
                                          {"Valor :", "nan", ""}}),
    },
    {
        .modelo = De<Inpc_Window, inpc>([] { Mapa<Inpc_Window, &Inpc_Window::onCmdInpc, true>({}); }),
        .titulo = "Catalogo de INPC",
        .lugar = {20, 20, 450, 205},
        .traza = "terminando creacion frm pais",
        .ranura = 1,
        .conBuscar = true,
        .trazaErrores = true,
        .lista = "Inpc",
        .anchoLista = 170,
        .cajas = CajasDeUnMes("Valor :"),
        .carga = "SELECT * FROM spsinpc(0,0);",
        .enTransaccion = false,
        .trazaCarga = true,
        .tabla = "inpc",
        .clave = 2,
        .alta = {"2031", "3", "140.25"},
        .vista = {"2031", "3", "140.25"},
        .renglon = "2031  3",
        .cambio = {"", "", "141"},
        .otraVista = {"2031", "3", "141"},
        .otroRenglon = "2031  3",
        .sqlAlta = "select spiinpc(2031,3,140.250000);",
        .sqlCambio = "select spuinpc(2031,3,141.000000);",
        .sqlBorrado = "SELECT spdinpc(2031,3);",
        .sqlBusqueda = "SELECT * FROM spsinpc(2031,3);",
        .noCambia = nullptr,
        .sinTocar = nullptr,
        .limites = DeUnMes("Valor :", {{"Valor :", "-0.01", "No ha especificado el Inpc"}}),
    },
    {
        .modelo = De<Recargos_Window, recargos>(
            [] { Mapa<Recargos_Window, &Recargos_Window::onCmdRecargos, true>({}); }),
        .titulo = "Catalogo de Recargos",
        .lugar = {20, 20, 500, 205},
        .traza = "terminando creacion frm pais",
        .ranura = 1,
        .conBuscar = true,
        .trazaErrores = true,
        .lista = "Recargos",
        .anchoLista = 170,
        .cajas = CajasDeUnMes("Porcentaje :"),
        .carga = "SELECT * FROM spsrecargos(0,0);",
        .enTransaccion = false,
        .trazaCarga = true,
        .tabla = "recargos",
        .clave = 2,
        .alta = {"2031", "11", "2.25"},
        .vista = {"2031", "11", "2.25"},
        .renglon = "2031 11",
        .cambio = {"", "", "1.13"},
        .otraVista = {"2031", "11", "1.13"},
        .otroRenglon = "2031 11",
        .sqlAlta = "select spirecargos(2031,11,2.250000);",
        .sqlCambio = "select spurecargos(2031,11,1.130000);",
        .sqlBorrado = "SELECT spdrecargos(2031,11);",
        .sqlBusqueda = "SELECT * FROM spsrecargos(2031,11);",
        .noCambia = nullptr,
        .sinTocar = nullptr,
        .limites = DeUnMes("Porcentaje :", {{"Porcentaje :", "-0.01", "No ha especificado el Porcentaje"},
                                            {"Porcentaje :", "100", ""},
                                            {"Porcentaje :", "100.01", "Está fuera de rango el porcentaje"}}),
    },
    {
        .modelo = De<Inabil_Window, inabil>([] {
          using V = Inabil_Window;
          Mapa<V, &V::onCmdInabil, true>({Mando<V>(V::ID_CALENDARIO, &V::onCmdCalendario)});
        }),
        .titulo = "Dias Inabiles",
        .lugar = {20, 20, 460, 205},
        .traza = "terminando creacion frm pais",
        .ranura = 1,
        .conBuscar = true,
        .trazaErrores = true,
        .lista = "Inabil",
        .anchoLista = 150,
        .cajas = {{"Datos", {{"Fecha:", Tipo::Fecha, 10}}}},
        .carga = "SELECT * FROM inabil;",
        .enTransaccion = false,
        .trazaCarga = true,
        .tabla = "inabil",
        .clave = 1,
        .alta = {"05/03/2031"},
        .vista = {"05/03/2031"},
        .renglon = "05/03/2031",
        .cambio = {"06/03/2031"},
        .otraVista = {"06/03/2031"},
        .otroRenglon = "06/03/2031",
        .sqlAlta = "insert into inabil values('2031-03-05');",
        .sqlCambio = "update inabil set fecha='2031-03-06' where fecha='2031-03-06;",
        .sqlBorrado = "delete from inabil where fecha='2031-03-05';",
        .sqlBusqueda = "SELECT * FROM inabil where fecha='2031-03-05';",
        .noCambia = "'2031-03-06;",
        .sinTocar = nullptr,
        .limites = DeUnDia(nullptr, {{"Fecha:", "31/02/2031", "2031-02-31"},
                                     {"Fecha:", "05/00/2031", "2031-00-05"},
                                     {"Fecha:", "05/13/2031", "2031-13-05"},
                                     {"Fecha:", "05/03/20319", ""},
                                     {"Fecha:", "25/12/2026", "El día 25/12/2026 ya es inhábil"}}),
    },
    {
        .modelo = De<Banco_Window, banco>([] {
          using V = Banco_Window;
          Mapa<V, &V::onCmdLista, true>({Mando<V>(V::ID_CUENTA, &V::onCmdCuenta),
                                         Mando<V>(V::ID_CALENDARIO, &V::onCmdCalendario),
                                         Mando<V>(V::ID_BUSCAR, &V::onCmdBusqueda)});
        }),
        .titulo = "Catalogo de Bancos",
        .lugar = {0, 0, 805, 380},
        .traza = "terminando creacion frm banco",
        .ranura = 2,
        .conBuscar = true,
        .trazaErrores = false,
        .lista = "Banco",
        .anchoLista = 215,
        .cajas = {{"Identificación", {{"Cuenta:", Tipo::Texto, 15, DeClave}}},
                  {"Datos de la Banco",
                   {{"Banco:", Tipo::Texto, 25},
                    {"Fecha Inic.:", Tipo::Fecha, 10},
                    {"Saldo Inic. :", Tipo::Numero, 20, DeReal, JUSTIFY_RIGHT},
                    {"Saldo Act. :", Tipo::Numero, 20, DeReal, JUSTIFY_RIGHT},
                    {"Saldo Pen. :", Tipo::Numero, 20, DeReal, JUSTIFY_RIGHT},
                    {"Cta. Contable:", Tipo::Combo, 10},
                    {"Serie:", Tipo::Texto, 2},
                    {"No. Cheque", Tipo::Numero, 10, DeEntero, JUSTIFY_RIGHT}}}},
        .carga = "SELECT * FROM spsbanco('  ');",
        .enTransaccion = true,
        .trazaCarga = true,
        .tabla = "banco",
        .clave = 1,
        .alta = {"0770012345", "Prueba nueva", "29/02/2024", "1000.25", "-20.5", "3", "1102-01-00-00-0000",
                 "Z", "8123456789"},
        .vista = {"0770012345     ", "Prueba nueva", "29/02/2024", "1000.25", "-20.5", "3",
                  "1102-01-00-00-0000", "Z", "8123456789"},
        .renglon = "Prueba nueva",
        .cambio = {"", "Otra prueba", "01/03/2024", "0", "999999999999.99", "0.01", "1102-02-00-00-0000",
                   "YY", "0"},
        .otraVista = {"0770012345     ", "Otra prueba", "01/03/2024", "0", "999999999999.99", "0.01",
                      "1102-02-00-00-0000", "YY", "0"},
        .otroRenglon = "Otra prueba",
        .sqlAlta =
            "select spibanco('0770012345     ','Prueba nueva','2024-02-29',1000.250000,-20.500000,3.000000,"
            "'1102-01-00-00-0000      ','Z',8123456789);",
        .sqlCambio = "select spubanco('0770012345     ','Otra "
                     "prueba','2024-03-01',0.000000,999999999999.989990,0.010000,"
                     "'1102-02-00-00-0000      ','YY',0);",
        .sqlBorrado = "SELECT spdbanco('0770012345     ');",
        .sqlBusqueda = "SELECT * FROM spsbanco('0770012345     ');",
        .noCambia = nullptr,
        .sinTocar = nullptr,
        .limites = {{"Cuenta:", "", "No se especifico la cuenta"},
                    {"Banco:", "", "No ha especificado el banco"},
                    {"Serie:", "", "No ha especificado la serie"},
                    {"No. Cheque", "-1", "El número de cheque no puede ser negativo"},
                    {"No. Cheque", "9999999999", ""},
                    {"No. Cheque", "", ""},
                    {"Cta. Contable:", "1000-00-00-00-0000",
                     "La cuenta contable asociada a la cuenta bancaria debe ser afectable"},
                    {"Fecha Inic.:", "", ""},
                    {"Fecha Inic.:", "00/00/0000", ""},
                    {"Fecha Inic.:", "//", ""},
                    {"Fecha Inic.:", "1/1/1", NoExisteElDia},
                    {"Fecha Inic.:", "31/02/2026", NoExisteElDia},
                    {"Fecha Inic.:", "01/13/2026", NoExisteElDia},
                    {"Saldo Inic. :", "-5", ""},
                    {"Saldo Inic. :", "1e30", "Está fuera de rango el saldo inicial"},
                    {"Saldo Act. :", "1e308", "Está fuera de rango el saldo actual"},
                    {"Saldo Pen. :", "1e999", "inf"},
                    {"Saldo Pen. :", "nan", ""},
                    {"Banco:", "O'Hara", "Hara"},
                    {"Banco:", "100% %s %n \\", ""},
                    {"Banco:", "ñññññññññññññññññññññññññññññññ", ""},
                    {"Serie:", "ññ", ""},
                    {"Cuenta:", "O'Hara", "Hara"},
                    {"Cuenta:", "ñññññññññññññññññ", ""}},
    },
    {
        .modelo = De<TipoPromocion_Window, tipopromocion>([] {
          using V = TipoPromocion_Window;
          Mapa<V, &V::onCmdTipoPromocion, false>({Mando<V>(V::ID_MOVIMIENTO, &V::onCmdTipoMovimiento),
                                                  Mando<V>(V::ID_FECHAINICIAL, &V::onCmdCalendario, 2)});
        }),
        .titulo = "Catalogo de Tipos de Promociones",
        .lugar = {20, 20, 700, 300},
        .traza = "terminando creacion frm tipopromocion",
        .ranura = 91,
        .conBuscar = false,
        .trazaErrores = false,
        .lista = "Promociones",
        .anchoLista = 150,
        .cajas = {{"",
                   {{"Identificador:", Tipo::Numero, 4, DeClave | TEXTFIELD_INTEGER, JUSTIFY_RIGHT},
                    {"Tipo de Mov:", Tipo::Combo, 10},
                    {"Descripcion:", Tipo::Texto, 40},
                    {"Fecha Inicio:", Tipo::Fecha, 10},
                    {"Fecha Final:", Tipo::Fecha, 10},
                    {"Condicion:", Tipo::Parrafo, 40},
                    {"Estatus:", Tipo::Combo, 3}}}},
        .carga = "SELECT * FROM spstipopromocion(0);",
        .enTransaccion = false,
        .trazaCarga = true,
        .tabla = "tipopromocion",
        .clave = 1,
        .alta = {"", "AH", "Prueba nueva", "05/03/2031", "05/04/2031", "Depositar", "Vigente"},
        .vista = {"8", "AH", "Prueba nueva", "05/03/2031", "05/04/2031", "Depositar", "Vigente"},
        .renglon = "Prueba nueva",
        .cambio = {"", "VC", "Otra prueba", "06/03/2031", "06/04/2031", "Retirar", "Cancelada"},
        .otraVista = {"8", "VC", "Otra prueba", "06/03/2031", "06/04/2031", "Retirar", "Cancelada"},
        .otroRenglon = "Otra prueba",
        .sqlAlta = "SELECT spitipopromocion('AH','2031-03-05','2031-04-05','Depositar',0,'Prueba nueva');",
        .sqlCambio = "SELECT sputipopromocion(8,'VC','2031-03-06','2031-04-06','Retirar',2,'Otra prueba');",
        .sqlBorrado = "SELECT spdtipopromocion(8);",
        .sqlBusqueda = "SELECT * FROM spstipopromocion(8);",
        .noCambia = nullptr,
        .sinTocar = "No ha especificado el Tipo de movimiento",
        .limites = {{"Fecha Inicio:", "", "No ha especificado la fecha de incio"},
                    {"Fecha Inicio:", "//", "No ha especificado la fecha de incio"},
                    {"Fecha Inicio:", "31/02/2031", NoExisteElDia},
                    {"Fecha Inicio:", "05/13/2031", NoExisteElDia},
                    {"Fecha Final:", "", ""},
                    {"Fecha Final:", "00/00/0000", ""},
                    {"Fecha Final:", "04/03/2031",
                     "La fecha final 04/03/2031 es anterior a la inicial 05/03/2031"},
                    {"Fecha Final:", "31/02/2031", NoExisteElDia},
                    {"Condicion:", "", "No ha especificado la condicion"},
                    {"Condicion:", "O'Hara", "Hara"},
                    {"Condicion:", "100% %s %n \\\nsegundo", ""},
                    {"Descripcion:", "", "No ha especificado la descripcion"},
                    {"Descripcion:", "O'Hara", "Hara"},
                    {"Descripcion:", "1234567890123456789012345678901234567890", ""},
                    {"Descripcion:", "ñññññññññññññññññññññññññññññññ", ""}},
    },
};

class FormaFechada : public ConMandos {
 protected:
  void SetUp() override {
    ConMandos::SetUp();
    catalogo.LoadCuentas();
    catalogo.LoadTipoMovimiento();
  }

  /// Opens the form with a record as the program has it at its start.
  void Abre(const Caso& caso) {
    caso_ = &caso;
    clase_ = caso.modelo.clase;
    caso.modelo.limpia();
    forma_ = caso.modelo.abre(area_);
    espia_.Vacia();
  }
  std::vector<CampoVisto> CamposVistos() const {
    std::vector<CampoVisto> campos;
    for (const Recuadro& caja : caso_->cajas)
      campos.insert(campos.end(), caja.campos.begin(), caja.campos.end());
    return campos;
  }
  size_t Indice(const std::string& etiqueta) const {
    const auto campos = CamposVistos();
    for (size_t i = 0; i < campos.size(); ++i)
      if (campos[i].etiqueta == etiqueta) return i;
    throw std::runtime_error(etiqueta);
  }
  FXComboBox* Combo(const char* etiqueta) { return JuntoA<FXComboBox>(forma_, etiqueta); }
  FXText* Parrafo(const char* etiqueta) { return JuntoA<FXText>(forma_, etiqueta); }
  /// The first word of an item.
  static std::string Palabra(const FXString& renglon) { return renglon.before(' ').text(); }
  void Pon(const char* etiqueta, const std::string& valor) {
    const Tipo tipo = CamposVistos()[Indice(etiqueta)].tipo;
    if (tipo == Tipo::Combo) {
      FXComboBox* const combo = Combo(etiqueta);
      for (FXint i = 0; i < combo->getNumItems(); ++i)
        if (Palabra(combo->getItemText(i)) == valor) return EligeOpcion(combo, i);
      FAIL() << "no se ofrece " << valor;
    } else if (tipo == Tipo::Parrafo) {
      Escribe(Parrafo(etiqueta), valor);
    } else {
      Escribe(forma_, etiqueta, valor);
    }
  }
  /// Types into the fields in order; "" leaves one alone.
  void Llena(const Textos& valores, const std::string& menos = "") {
    for (size_t i = 0; i < valores.size(); ++i)
      if (!valores[i].empty() && CamposVistos()[i].etiqueta != menos)
        Pon(CamposVistos()[i].etiqueta, valores[i]);
  }
  Textos Pantalla() {
    Bombea();
    Textos textos;
    for (const CampoVisto& campo : CamposVistos()) {
      if (campo.tipo == Tipo::Combo) {
        const FXComboBox* const combo = Combo(campo.etiqueta);
        const FXint actual = combo->getCurrentItem();
        textos.push_back(actual < 0 ? "" : Palabra(combo->getItemText(actual)));
      } else if (campo.tipo == Tipo::Parrafo) {
        textos.push_back(Parrafo(campo.etiqueta)->getText().text());
      } else {
        textos.push_back(Leido(forma_, campo.etiqueta));
      }
    }
    return textos;
  }
  Textos Vacia() const {
    Textos textos;
    for (const CampoVisto& campo : CamposVistos()) textos.push_back(campo.tipo == Tipo::Numero ? "0" : "");
    return textos;
  }
  /// Presses &Aceptar and yes to all that follows.
  Textos AceptaComoSea() {
    escrita_ = true;
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).front()); });
    Pulsa(Boton(forma_, "&Aceptar"));
    return guion.Mensajes();
  }

  Textos Carga() const {
    return caso_->enTransaccion ? Textos{"BEGIN;", caso_->carga, "COMMIT;"} : Textos{caso_->carga};
  }
  Textos Guardado(const char* sql) const { return Textos{"BEGIN;", sql, "COMMIT;"} + Carga(); }
  std::pair<bool, bool> Estado() const { return caso_->modelo.banderas(); }
  Tabla EnLaBase() {
    return base_->Filas("select * from norte." + std::string(caso_->tabla) + " t order by t::text");
  }
  void Registra() {
    Manda("&Nuevo");
    Llena(caso_->alta);
    EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
    EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
    espia_.Vacia();
  }
  void Reconecta(const char* usuario = "adriana") {
    sesion_.reset();
    sesion_.emplace(*base_, usuario);
    espia_.Vacia();
  }
  /// Opens the calendar beside a field, picks a day of the month that it shows, and accepts it or not.
  void EligeDia(const char* etiqueta, const char* dia, bool acepta = true) {
    Guion guion;
    guion.Con([&](FXDialogBox* calendario) {
      EXPECT_STREQ(calendario->getClassName(), "Calendario_Window");
      for (FXButton* boton : Todos<FXButton>(calendario))
        if (boton->getText() == dia && boton->isEnabled()) {
          Pulsa(boton);
          break;
        }
      Pulsa(Boton(calendario, acepta ? "&Aceptar" : "&Cerrar"));
    });
    Pulsa(JuntoA<FXButton>(forma_, etiqueta));
  }

  const Caso* caso_ = nullptr;
};

class FormasFechadas : public FormaFechada, public testing::WithParamInterface<Caso> {
 protected:
  void SetUp() override {
    FormaFechada::SetUp();
    Abre(caso);
  }
  const Caso& caso = GetParam();
};

INSTANTIATE_TEST_SUITE_P(, FormasFechadas, testing::ValuesIn(casos), [](const auto& info) {
  return std::string(info.param.modelo.meta->getClassName());
});

// The window.

TEST_P(FormasFechadas, SeAbreConSuTituloYEnSuLugar) {
  EXPECT_EQ(caso.modelo.meta->getBaseClass(), FXMETACLASS(FXMDIChild));
  EXPECT_EQ(caso.modelo.titulo(forma_), caso.titulo);
  EXPECT_EQ(forma_->getX(), caso.lugar.x);
  EXPECT_EQ(forma_->getY(), caso.lugar.y);
  EXPECT_EQ(forma_->getWidth(), caso.lugar.w);
  EXPECT_EQ(forma_->getHeight(), caso.lugar.h);
}

TEST_P(FormasFechadas, AlAbrirCargaTrazaYOcupaSuRanura) {
  Cierra();
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 0);
  EXPECT_TRUE(Enviado().empty());
  const Salida salida;
  forma_ = caso.modelo.abre(area_);
  EXPECT_EQ(Enviado(), Carga());
  EXPECT_EQ(salida.Lineas(), (caso.trazaCarga ? Textos{caso.carga} : Textos{}) + Textos{caso.traza});
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 1);
  EXPECT_TRUE(mdiArray[caso.ranura]);
  EXPECT_EQ(Estado(), std::pair(false, true));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(Renglones().size(), EnLaBase().size());
}

TEST_P(FormasFechadas, SusMensajesVanEnOrden) { caso.modelo.exigeMapa(); }

TEST_P(FormasFechadas, TieneSusCajasCamposYBotones) {
  const std::vector<FXGroupBox*> cajas = Todos<FXGroupBox>(forma_);
  ASSERT_EQ(cajas.size(), caso.cajas.size() + 2);
  EXPECT_STREQ(cajas.front()->getText().text(), caso.lista);
  EXPECT_EQ(Lista(cajas.front()), Lista(forma_));
  for (size_t i = 0; i < caso.cajas.size(); ++i) {
    EXPECT_STREQ(cajas[i + 1]->getText().text(), caso.cajas[i].titulo);
    Textos etiquetas;
    for (const CampoVisto& campo : caso.cajas[i].campos) etiquetas.emplace_back(campo.etiqueta);
    EXPECT_EQ(Etiquetas(cajas[i + 1]), etiquetas);
  }
  EXPECT_EQ(cajas.back()->getText(), "");
  Textos botones = {"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"};
  if (!caso.conBuscar) botones.erase(botones.begin() + 1);
  EXPECT_EQ(Botones(cajas.back()), botones);
}

TEST_P(FormasFechadas, CadaCampoTieneSuAnchoYSuClase) {
  for (const CampoVisto& campo : CamposVistos()) {
    SCOPED_TRACE(campo.etiqueta);
    if (campo.tipo == Tipo::Combo) {
      EXPECT_EQ(Combo(campo.etiqueta)->getComboStyle(), FXuint{COMBOBOX_STATIC});
      EXPECT_EQ(Combo(campo.etiqueta)->getNumVisible(), campo.columnas);
    } else if (campo.tipo == Tipo::Parrafo) {
      EXPECT_EQ(Parrafo(campo.etiqueta)->getTarget(), nullptr);
      EXPECT_NE(dynamic_cast<FXPacker*>(Parrafo(campo.etiqueta)->getParent())->getFrameStyle() & FRAME_SUNKEN,
                0u);
    } else {
      const FXTextField* texto = CampoJuntoA(forma_, campo.etiqueta);
      EXPECT_EQ(texto->getNumColumns(), campo.columnas);
      EXPECT_EQ(texto->getTextStyle(), campo.estilo);
      EXPECT_EQ(texto->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), campo.lado);
      EXPECT_EQ(std::string(texto->getClassName()) == "cFecha", campo.tipo == Tipo::Fecha);
    }
  }
}

// With the program's own font, at the size that the form opens with.
TEST_P(FormasFechadas, NadaSeVeCortado) {
  Cierra();
  const Principal principal;
  Area area;
  forma_ = caso.modelo.abre(area);
  ASSERT_TRUE(BombeaHasta([&] { return Grupo(forma_, caso.lista)->getHeight() > 1; }));  // laid out
  ExigeNadaCortado(forma_);
  EXPECT_EQ(Lista(forma_)->getWidth(), caso.anchoLista);
  for (const CampoVisto& campo : CamposVistos()) {
    FXWindow* const pieza = campo.tipo == Tipo::Combo     ? static_cast<FXWindow*>(Combo(campo.etiqueta))
                            : campo.tipo == Tipo::Parrafo ? static_cast<FXWindow*>(Parrafo(campo.etiqueta))
                                                          : CampoJuntoA(forma_, campo.etiqueta);
    EXPECT_GE(pieza->getWidth(), pieza->getDefaultWidth()) << campo.etiqueta;
  }
}

// The commands.

TEST_P(FormasFechadas, RegistraBuscaCambiaYBorra) {
  const Tabla antes = EnLaBase();
  Llena(caso.alta);
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(Enviado(), Guardado(caso.sqlAlta));
  EXPECT_EQ(Estado(), std::pair(false, false));
  EXPECT_EQ(RenglonActual(), caso.renglon);
  const Tabla con = EnLaBase();
  EXPECT_EQ(con.size(), antes.size() + 1);

  Manda("&Nuevo");
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_TRUE(Estado().second);
  if (caso.conBuscar) {
    EligeRenglon(Lista(forma_), 0);
    Manda("&Nuevo");
    Llena(Textos(caso.alta.begin(), caso.alta.begin() + caso.clave));
    EXPECT_TRUE(Manda("&Buscar").empty());
    EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
  } else {
    EligeRenglon(Lista(forma_), Lista(forma_)->getNumItems() - 1);
    EXPECT_TRUE(Enviado().empty());
  }
  EXPECT_EQ(Pantalla(), caso.vista);
  EXPECT_EQ(RenglonActual(), caso.renglon);
  EXPECT_EQ(Estado(), std::pair(false, false));
  EXPECT_TRUE(Manda("&Aceptar").empty());  // what was read is what is there

  Llena(caso.cambio);
  if (caso.noCambia == nullptr) {
    EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
    EXPECT_EQ(Enviado(), Guardado(caso.sqlCambio));
    EXPECT_EQ(RenglonActual(), caso.otroRenglon);
    EXPECT_EQ(Estado(), std::pair(false, false));
    EXPECT_NE(EnLaBase(), con);
    EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
    EXPECT_EQ(Pantalla(), caso.otraVista);
  } else {
    const std::string dicho = Rechazo("&Aceptar");
    EXPECT_NE(dicho.find(caso.noCambia), std::string::npos) << dicho;
    EXPECT_EQ(cuadros_.at(0).texto, "Guardar cambios realizados ?");
    EXPECT_EQ(Enviado(), (Textos{"BEGIN;", caso.sqlCambio, "ROLLBACK;"}));
    EXPECT_EQ(EnLaBase(), con);
    EXPECT_EQ(Pantalla(), caso.otraVista);
    EXPECT_EQ(Estado(), std::pair(true, false));
    EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  }
  Enviado();
  EXPECT_EQ(Pregunta("&Borrar", Respuesta::No), "Borrar el registro ?");
  EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
  EXPECT_EQ(Pregunta("&Borrar", Respuesta::Si), "Borrar el registro ?");
  EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda} + Guardado(caso.sqlBorrado));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(Estado(), std::pair(false, true));
  EXPECT_EQ(EnLaBase(), antes);
}

TEST_P(FormasFechadas, AceptarSinTocarNadaNoGuardaNada) {
  if (caso.sinTocar == nullptr) {
    EXPECT_TRUE(Manda("&Aceptar").empty());
  } else {
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{caso.sinTocar});
  }
  EXPECT_TRUE(Enviado().empty());
}

TEST_P(FormasFechadas, ContestarQueNoDejaPreguntarOtraVez) {
  Llena(caso.alta);
  for (int vez = 0; vez < 2; ++vez) {
    EXPECT_EQ(Pregunta("&Aceptar", Respuesta::No), "Registrar ?");
    EXPECT_EQ(Estado(), std::pair(true, true));
  }
  EXPECT_TRUE(Enviado().empty());
}

TEST_P(FormasFechadas, LoQueNoHayNiSeHallaNiSeBorra) {
  const Textos renglones = Renglones();
  if (caso.conBuscar) {
    Llena(caso.alta);
    EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Informacion);
    EXPECT_EQ(cuadros_.at(0).titulo, caso.modelo.clase());
    EXPECT_EQ(Enviado(), Textos{caso.sqlBusqueda});
    EXPECT_EQ(Pantalla(), Vacia());
    if (CamposVistos()[0].tipo != Tipo::Texto) {  // no key: nothing to ask
      EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
      EXPECT_TRUE(Enviado().empty());
    }
  }
  Llena(caso.vista);
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_TRUE(Estado().second);
  EXPECT_EQ(Renglones(), renglones);
}

TEST_P(FormasFechadas, LoQueElServidorRechazaSePuedeRepetirYSoloLasSeriesLoTrazan) {
  Llena(caso.alta);
  const auto rechaza = [this](const char* boton, const char* sentencia, bool traza) {
    const Textos antes = Renglones();
    const Textos pantalla = Pantalla();
    espia_.Vacia();
    espia_.Cuando(sentencia, falla::Error("hoy no"));
    const Salida salida;
    EXPECT_EQ(Rechazo(boton), "ERROR:  hoy no\n");
    const Textos lineas = salida.Lineas();
    EXPECT_EQ(std::count(lineas.begin(), lineas.end(), "entrando a error"), traza);
    EXPECT_EQ(espia_.Sentencias().back(), "ROLLBACK;");
    EXPECT_EQ(Renglones(), antes);
    EXPECT_EQ(Pantalla(), pantalla);
    EXPECT_EQ(Profundidad(), 0);
    espia_.Vacia();
  };
  rechaza("&Aceptar", caso.sqlAlta, caso.trazaErrores);
  EXPECT_EQ(Estado(), std::pair(true, true));
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  Llena(caso.cambio);
  rechaza("&Aceptar", caso.sqlCambio, caso.trazaErrores);
  EXPECT_EQ(Estado(), std::pair(true, false));
  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  rechaza("&Borrar", caso.sqlBorrado, false);
  EXPECT_EQ(Estado(), std::pair(false, false));
}

TEST_P(FormasFechadas, CadaLimiteSeGuardaOSeDice) {
  const Tabla antes = EnLaBase();
  for (const Limite& limite : caso.limites) {
    SCOPED_TRACE(std::string(limite.campo) + " " + limite.valor);
    caso.modelo.limpia();
    Manda("&Nuevo");
    Llena(caso.alta, limite.campo);
    Pon(limite.campo, limite.valor);
    const Textos pantalla = Pantalla();
    const Textos dichos = AceptaComoSea();
    if (limite.texto == nullptr) {
      EXPECT_TRUE(dichos.empty());
      continue;
    }
    const std::string texto = limite.texto;
    ASSERT_FALSE(dichos.empty());
    if (texto.empty()) {
      EXPECT_EQ(dichos, Textos{"Registrar ?"});
      EXPECT_EQ(EnLaBase().size(), antes.size() + 1);
      if (!caso.conBuscar) EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());  // for its key
      EXPECT_EQ(Pregunta("&Borrar", Respuesta::Si), "Borrar el registro ?");
    } else {
      EXPECT_NE(dichos.back().find(texto), std::string::npos) << dichos.back();
      Textos despues = Pantalla();  // the field itself shows what it stands for, once it is left
      despues[Indice(limite.campo)] = pantalla[Indice(limite.campo)];
      EXPECT_EQ(despues, pantalla);
      EXPECT_EQ(Profundidad(), 0);
    }
    EXPECT_EQ(EnLaBase(), antes);
  }
}

// What is missing, gone or cut off.

TEST_P(FormasFechadas, CortadaEnCadaSentenciaNoQuedaNadaAMediasYLaFormaSirve) {
  constexpr size_t cierre = 2;  // COMMIT, behind BEGIN and the write
  const std::string EsDuenio = "set role tolvara_propietario; ", tabla = std::string("norte.") + caso.tabla;
  base_->Ejecuta(EsDuenio + "create table norte.copia as select * from " + tabla + "; reset role");
  escrita_ = true;
  const Tabla antes = EnLaBase();
  for (size_t n = 0; n < Guardado(caso.sqlAlta).size(); ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? " después" : " antes"));
      caso.modelo.limpia();
      Manda("&Nuevo");
      Llena(caso.alta);
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      const Textos dichos = AceptaComoSea();
      EXPECT_EQ(std::count(dichos.begin(), dichos.end(), ""), 0);
      EXPECT_EQ(dichos.at(0), "Registrar ?");
      Reconecta();
      const bool guardado = n > cierre || (n == cierre && despues);
      EXPECT_EQ(EnLaBase().size(), antes.size() + guardado);
      if (!guardado) {
        EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
        EXPECT_EQ(EnLaBase().size(), antes.size() + 1);
      }
      base_->Ejecuta(EsDuenio + "delete from " + tabla +
                     " t where t::text not in (select c::text from norte.copia c); reset role");
      EXPECT_EQ(EnLaBase(), antes);
    }
  }
}

TEST_P(FormasFechadas, UnPermisoQuitadoConLaFormaAbiertaSeDiceYNoEscribe) {
  Registra();
  const Tabla antes = EnLaBase();
  base_->Ejecuta("update norte.permisomodulo set permiso = 'N' where usuarioid = 'adriana'");
  EXPECT_NE(Rechazo("&Borrar"), "");
  Llena(caso.cambio);
  EXPECT_NE(Rechazo("&Aceptar"), "");
  caso.modelo.limpia();
  Manda("&Nuevo");
  Llena(caso.alta);
  EXPECT_NE(Rechazo("&Aceptar"), "");
  EXPECT_EQ(EnLaBase(), antes);
}

TEST_P(FormasFechadas, SinSesionTodoMandoTieneRespuesta) {
  EligeRenglon(Lista(forma_), 1);
  sesion_.reset();
  ASSERT_EQ(conn, nullptr);
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), Vacia());
  Llena(caso.alta);
  if (caso.conBuscar) {
    EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  }
  Llena(caso.alta);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}),
            (Textos{"Registrar ?", "No hay conexión con el servidor."}));
  Cierra();
  Guion guion;
  if (caso.enTransaccion) guion.Responde(Respuesta::Aceptar);  // the others say nothing
  forma_ = caso.modelo.abre(area_);
  EXPECT_EQ(Lista(forma_)->getNumItems(), 0);
}

TEST_P(FormasFechadas, UnaCargaDefectuosaNoTumbaLaForma) {
  const Falla cincoMil = [](PGconn* conexion, const char*) {
    return __real_PQexec(conexion, "select i, i, i, i, i, i, i, i, i from generate_series(1, 5000) i");
  };
  for (const Falla& falla : {falla::Recortada(1), falla::Recortada(0), falla::ConNulos(), falla::ConTextos(),
                             falla::SinFilas(), falla::Nula(), falla::Error("No"), cincoMil}) {
    Cierra();
    caso.modelo.limpia();
    espia_.Vacia();
    espia_.Cuando(caso.carga, falla);
    forma_ = caso.modelo.abre(area_);
    EXPECT_EQ(Pantalla(), Vacia());
    if (Lista(forma_)->getNumItems() == 0) continue;
    EligeRenglon(Lista(forma_), Lista(forma_)->getNumItems() - 1);
    EligeRenglon(Lista(forma_), 0);
    Bombea();
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).back()); });
    Pulsa(Boton(forma_, "&Aceptar"));
    EXPECT_LE(guion.Cuadros().size(), 1u);  // a question, or what is missing
  }
}

// The dates.

const Caso& CasoDe(const FXMetaClass& meta) {
  return *std::find_if(std::begin(casos), std::end(casos),
                       [&](const Caso& caso) { return caso.modelo.meta == &meta; });
}

TEST_F(FormaFechada, ElCalendarioEscribeCadaFechaASuModo) {
  const struct {
    const FXMetaClass& meta;
    const char *campo, *elegida, *vacia;
  } tabla[] = {
      {Udis_Window::metaClass, "Fecha:", " 7/ 3/2031", " 0/ 0/   0"},
      {Inabil_Window::metaClass, "Fecha:", "07/03/2031", "00/00/0000"},
      {Banco_Window::metaClass, "Fecha Inic.:", "07/03/2031", "00/00/0000"},
      {TipoPromocion_Window::metaClass, "Fecha Inicio:", "07/03/2031", "00/00/0000"},
      {TipoPromocion_Window::metaClass, "Fecha Final:", "07/03/2031", "00/00/0000"},
  };
  for (const auto& [meta, campo, elegida, vacia] : tabla) {
    SCOPED_TRACE(std::string(meta.getClassName()) + " " + campo);
    Abre(CasoDe(meta));
    EligeDia(campo, "7", false);
    EXPECT_EQ(Leido(forma_, campo), vacia);  // a cancel writes back what was there
    Manda("&Nuevo");
    Llena(caso_->alta);
    Pon(campo, "05/03/2031");
    const Textos antes = Pantalla();
    EligeDia(campo, "7", false);
    EXPECT_EQ(Leido(forma_, campo).substr(6), "2031");
    EligeDia(campo, "7");
    Textos despues = antes;
    despues[Indice(campo)] = elegida;
    EXPECT_EQ(Pantalla(), despues);
    Pregunta("&Aceptar", Respuesta::Si);
    EXPECT_NE(Enviado().at(1).find("2031-03-07"), std::string::npos);
    Cierra();
    base_->Ejecuta("set role tolvara_propietario; truncate norte." + std::string(caso_->tabla) +
                   "; reset role");
  }
}

class InabilVentana : public FormaFechada {
 protected:
  void SetUp() override {
    FormaFechada::SetUp();
    Abre(CasoDe(Inabil_Window::metaClass));
  }
};

TEST_F(InabilVentana, UnDiaSeAgregaYSeBorraPeroNoSeCambia) {
  Registra();
  const Tabla con = EnLaBase();
  EligeDia("Fecha:", "9");
  EXPECT_EQ(Leido(forma_, "Fecha:"), "09/03/2031");
  EXPECT_NE(Rechazo("&Aceptar").find("'2031-03-09;"), std::string::npos);
  EXPECT_EQ(EnLaBase(), con);
  EXPECT_EQ(Pantalla(), Textos{"09/03/2031"});
  Manda("&Nuevo");
  Pon("Fecha:", "10/03/2031");
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(RenglonActual(), "10/03/2031");
  EXPECT_EQ(EnLaBase().size(), con.size() + 1);
}

class UdisVentana : public FormaFechada {
 protected:
  void SetUp() override {
    FormaFechada::SetUp();
    Abre(CasoDe(Udis_Window::metaClass));
  }
};

TEST_F(UdisVentana, DosFormasTrabajanSobreElMismoRegistro) {
  EligeRenglon(Lista(forma_), 0);
  FXWindow* const otra = caso_->modelo.abre(area_);  // its record is new from now on, for both
  EXPECT_EQ(Leido(otra, "Fecha:"), "");
  Escribe(otra, "Fecha:", "05/03/2031");
  Guion guion;
  guion.Responde(Respuesta::No);
  Pulsa(Boton(otra, "&Aceptar"));
  EXPECT_EQ(guion.Ultimo().texto, "Registrar ?");
  EXPECT_EQ(std::string(udis.getFecha().AsChar()), "2031-03-05");
}

class InpcVentana : public FormaFechada {
 protected:
  void SetUp() override {
    FormaFechada::SetUp();
    Abre(CasoDe(Inpc_Window::metaClass));
  }
};

// Neither half is the key: the year has twelve rows, and the month has one in each year.
TEST_F(InpcVentana, SeBuscaYSeEligePorLasDosMitadesDeLaClave) {
  Llena({"2024", "7"});
  EXPECT_TRUE(Manda("&Buscar").empty());
  EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spsinpc(2024,7);"});
  EXPECT_EQ(RenglonActual(), "2024  7");
  EXPECT_EQ(Pantalla()[0] + "/" + Pantalla()[1], "2024/7");
  Llena({"", "12"});
  Manda("&Buscar");
  EXPECT_EQ(RenglonActual(), "2024 12");
  Enviado();
  for (const Textos& media : {Textos{"2024", "0"}, Textos{"0", "7"}}) {
    Manda("&Nuevo");
    Llena(media);
    EXPECT_EQ(Manda("&Buscar", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
    EXPECT_TRUE(Enviado().empty());  // half a key is none
  }
}

TEST_F(InpcVentana, BorraSoloElMesPedido) {
  const size_t antes = EnLaBase().size();
  Llena({"2024", "7"});
  EXPECT_EQ(Pregunta("&Borrar", Respuesta::Si), "Borrar el registro ?");
  EXPECT_EQ(EnLaBase().size(), antes - 1);
  EXPECT_EQ(base_->Valor("select count(*) from norte.inpc where ano = 2024 and mes = 7"), "0");
}

class BancoVentana : public FormaFechada {
 protected:
  void SetUp() override {
    FormaFechada::SetUp();
    Abre(CasoDe(Banco_Window::metaClass));
  }
};

TEST_F(BancoVentana, SinFechaViajaLaVacia) {
  Llena(caso_->alta, "Fecha Inic.:");
  Pregunta("&Aceptar", Respuesta::Si);
  EXPECT_NE(Enviado().at(1).find("'Prueba nueva','0000-00-00',"), std::string::npos);
  EXPECT_EQ(base_->Valor("select fecha_inicio is null from norte.banco where no_cuenta = '0770012345'"), "t");
  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  EXPECT_EQ(Leido(forma_, "Fecha Inic.:"), "");
  Tecla(CampoJuntoA(forma_, "Fecha Inic.:"), KEY_End);
  Tecla(CampoJuntoA(forma_, "Fecha Inic.:"), KEY_5, 0, "5");  // nothing is in the way
  EXPECT_EQ(Leido(forma_, "Fecha Inic.:"), "5");
}

TEST_F(BancoVentana, LaLupaParteDeSuCuentaYDejaLaHallada) {
  Registra();
  {
    Guion guion;
    guion.Con([&](FXDialogBox* dialogo) {
      EXPECT_EQ(dialogo->getMetaClass(), FXMETACLASS(Busqueda_Window));
      EXPECT_EQ(Lista(dialogo)->getCurrentItem(), Combo("Cta. Contable:")->getCurrentItem());
      EligeRenglon(Lista(dialogo), Lista(dialogo)->getCurrentItem() + 1);
      Pulsa(Boton(dialogo, "&Aceptar"));
    });
    Pulsa(dynamic_cast<FXButton*>(Combo("Cta. Contable:")->getNext()));
  }
  EXPECT_EQ(Pantalla()[6], "1102-02-00-00-0000");
  AceptaComoSea();
  EXPECT_EQ(base_->Valor("select cuentaid from norte.banco where no_cuenta = '0770012345'"),
            "1102-02-00-00-0000      ");
}

TEST_F(BancoVentana, FindCuentaDiceElLugarEnLaLista) {
  EXPECT_EQ(Banco_Window::FindCuenta(std::next(Catalogo::Catalogo_Ctas.begin())->second.getCuentaID()), 1);
  EXPECT_EQ(Banco_Window::FindCuenta("??"), 0);
}

TEST_F(BancoVentana, UnaCuentaVaciaMuestraLaPrimeraYNoLaToma) {
  espia_.Cuando("spsbanco('  ')", [](PGconn* conexion, const char*) {
    return __real_PQexec(conexion, "select '1', '', 'Banco', null, 0, 0, 0, 'A', 1");
  });
  Cierra();
  forma_ = caso_->modelo.abre(area_);
  EligeRenglon(Lista(forma_), 0);
  EXPECT_EQ(Combo("Cta. Contable:")->getCurrentItem(), 0);
  Pon("Banco:", "Otro");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No ha especificado la cuenta contable"});
}

TEST_F(BancoVentana, UnaCuentaBorradaConLaFormaAbiertaLaRechazaElServidor) {
  Registra();
  Pon("Cta. Contable:", "5406-00-00-00-0000");  // nothing hangs on it
  base_->Ejecuta("delete from norte.catalogo_ctas where cuentaid = '5406-00-00-00-0000'");
  const Tabla antes = EnLaBase();
  for (const bool releida : {false, true}) {
    if (releida) catalogo.LoadCuentas();
    EXPECT_NE(Rechazo("&Aceptar").find("5406-00-00-00-0000"), std::string::npos);
    EXPECT_EQ(EnLaBase(), antes);
  }
  EligeOpcion(Combo("Cta. Contable:"), Combo("Cta. Contable:")->getNumItems() - 1);  // beyond the chart
  EXPECT_NE(Rechazo("&Aceptar").find("5406-00-00-00-0000"), std::string::npos);
}

TEST_F(BancoVentana, LoMasAnchoCabeEnSuColumna) {
  std::string enies;
  for (int i = 0; i < 40; ++i) enies += "ñ";
  Llena({enies, enies, "", "", "", "", "1102-01-00-00-0000", enies, ""});
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  const std::string sql = Enviado().at(1);
  EXPECT_EQ(sql.rfind("select spibanco('" + enies.substr(0, 14), 0), 0u)
      << sql;  // 15 bytes, in whole letters
  EXPECT_NE(sql.find("'" + enies.substr(0, 26) + "'"), std::string::npos) << sql;
  EXPECT_NE(sql.find("'" + enies.substr(0, 2) + "'"), std::string::npos) << sql;
}

class PromocionVentana : public FormaFechada {
 protected:
  void SetUp() override {
    FormaFechada::SetUp();
    Abre(CasoDe(TipoPromocion_Window::metaClass));
  }
  std::string EnSuFila(const char* columna) {
    return base_->Valor(std::string("select ") + columna +
                        " from norte.tipopromocion where tipopromocionid = 8");
  }
};

TEST_F(PromocionVentana, SinEstatusSeRechaza) {
  Llena(caso_->alta, "Estatus:");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No ha especificado el Estatus"});
  Pon("Estatus:", "Terminada");
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(EnSuFila("estatus"), "1");
}

TEST_F(PromocionVentana, LosEstadosSonTresYLosMovimientosLosDelCache) {
  Textos estados;
  for (FXint i = 0; i < Combo("Estatus:")->getNumItems(); ++i)
    estados.push_back(Combo("Estatus:")->getItemText(i).text());
  EXPECT_EQ(estados, (Textos{"Vigente", "Terminada", "Cancelada"}));
  ASSERT_EQ(Combo("Tipo de Mov:")->getNumItems(), static_cast<FXint>(Catalogo::TipoMovimiento.size()));
  for (const auto& [numero, tipo] : Catalogo::TipoMovimiento)
    EXPECT_EQ(Combo("Tipo de Mov:")->getItemText(numero),
              FXString(tipo.getTipoMovimientoID()) + " " + tipo.getDescTipoMovimiento());
}

TEST_F(PromocionVentana, QuitarLaFechaFinalManda6Argumentos) {
  Registra();
  Pon("Fecha Final:", "");
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
  EXPECT_EQ(Enviado().at(1), "SELECT sputipopromocion(8,'AH','2031-03-05','Depositar',0,'Prueba nueva');");
  EXPECT_EQ(EnSuFila("fechafinal is null"), "t");
  EligeRenglon(Lista(forma_), Lista(forma_)->getCurrentItem());
  EXPECT_EQ(Leido(forma_, "Fecha Final:"), "");
}

TEST_F(PromocionVentana, LoLargoSeCortaEnUnaLetraEntera) {
  std::string enies, larga;
  for (int i = 0; i < 40; ++i) enies += "ñ";
  for (int i = 0; i < 2500; ++i) larga += "ñ";
  Llena({"", "AH", "x" + enies, "05/03/2031", "", "", "Vigente"});
  Parrafo("Condicion:")->setText(("x" + larga).c_str());
  EXPECT_EQ(CampoJuntoA(forma_, "Descripcion:")->getText().count(), 40);
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Registrar ?");
  EXPECT_EQ(EnSuFila("descripcion"), "x" + enies.substr(0, 28));
  EXPECT_EQ(EnSuFila("condicion"), "x" + larga.substr(0, 82));
}

TEST_F(PromocionVentana, UnMovimientoBorradoConLaFormaAbiertaLoRechazaElServidor) {
  base_->Ejecuta(
      "insert into norte.tipomovimiento select (jsonb_populate_record(t, '{\"tipomovimientoid\": \"ZZ\","
      " \"desctipomovimiento\": \"ZZ\"}')).*"
      " from norte.tipomovimiento t where tipomovimientoid = 'AH'");
  escrita_ = true;
  catalogo.LoadTipoMovimiento();
  Cierra();
  Abre(*caso_);
  Registra();
  Pon("Tipo de Mov:", "ZZ");
  const FXint suya = Combo("Tipo de Mov:")->getCurrentItem();
  base_->Ejecuta("delete from norte.tipomovimiento where tipomovimientoid = 'ZZ'");
  const Tabla antes = EnLaBase();
  for (const bool releido : {false, true}) {
    if (releido) catalogo.LoadTipoMovimiento();
    EligeOpcion(Combo("Tipo de Mov:"), suya);  // the key stays
    EXPECT_NE(Rechazo("&Aceptar").find("No existe el tipo de movimiento: ZZ"), std::string::npos);
    EXPECT_EQ(EnLaBase(), antes);
  }
  Pon("Tipo de Mov:", "VC");
  EXPECT_EQ(Pregunta("&Aceptar", Respuesta::Si), "Guardar cambios realizados ?");
  EXPECT_EQ(EnSuFila("tipomovimientoid"), "VC");
}

}  // namespace
}  // namespace pruebas
