// The forms of the fixed assets, one table each, through the same tests; below them what only one of them
// does. Values and statements are those of the records' tables.
#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "app/sesion.h"
#include "catalogs/assets/Activo_Window.h"
#include "catalogs/assets/TipoDepreciaciones_Window.h"
#include "catalogs/finance/Busqueda_Window.h"
#include "tests/catalogs/Activos.h"
#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Cortes.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"
#include "widgets/Calendario_Window.h"
#include "widgets/cFecha.h"

namespace pruebas {
namespace {

/// What stands behind a label.
enum class Tipo { Clave, Texto, Parrafo, Real, Fila, Opcion, Cuenta, Fecha, Casilla };

struct CampoVisto {
  const char* etiqueta;
  Tipo tipo;
  FXint columnas;  ///< of a text; of a combo box how many items it shows
  const char* columna;
};

struct FormaActivos {
  const char* nombre;
  Producto producto;
  const FXMetaClass* meta;
  FXDialogBox* (*abre)(Area& area);
  void (*limpia)();
  std::pair<bool, bool> (*banderas)();  ///< of the record: changed, new
  const char* titulo;
  Textos cajas;
  FXint anchoLista;
  Textos previas;  ///< the loads ahead of its own
  const char* carga;
  std::vector<CampoVisto> campos;  ///< in the order of the screen, the key first
  const char* sinTocar;            ///< what &Aceptar says to an untouched form; null for nothing
  std::string (*renglon)(const Valores& valores);
};

template <class V, auto& registro>
FormaActivos Forma(const char* nombre, const Producto& producto) {
  FormaActivos forma{};
  forma.nombre = nombre;
  forma.producto = producto;
  forma.meta = &V::metaClass;
  forma.abre = [](Area& area) -> FXDialogBox* { return area.Abre<V>(); };
  forma.limpia = [] { registro.Clear(); };
  forma.banderas = [] { return std::pair(registro.getDataChanged(), registro.IsNew()); };
  return forma;
}

FormaActivos FormaDepreciaciones() {
  FormaActivos forma =
      Forma<TipoDepreciaciones_Window, depreciacion>("TipoDepreciaciones_Window", TipoDeDepreciacion());
  forma.titulo = "Depreciaciones";
  forma.cajas = {"Depreciaciones", "Identificación", "Datos de la Depreciación", ""};
  forma.anchoLista = 200;
  forma.previas = {"SELECT * FROM spsmoneda('  ');"};
  forma.carga = "SELECT * FROM spsdepreciacion(0);";
  forma.campos = {
      {"Clave:", Tipo::Clave, 6, "DepreciacionID"},
      {"Descripción:", Tipo::Texto, 30, "DepreDescripcion"},
      {"Tasa Contable:", Tipo::Real, 10, "DepreTasaContable"},
      {"Tasa Fiscal:", Tipo::Real, 10, "DepreTasaFiscal"},
      {"Maximo Deducible:", Tipo::Real, 10, "MaximoDeducible"},
      {"Moneda:", Tipo::Fila, 3, "DepreMoneda"},
      {"Porcentaje:", Tipo::Real, 10, "DeprePorcentaje"},
      {"Cta. Activo:", Tipo::Cuenta, 10, "Depre_Activo"},
      {"Cta. Depreciación:", Tipo::Cuenta, 10, "Depre_CtaDepre"},
      {"Cta. Gasto:", Tipo::Cuenta, 10, "Depre_CtaGasto"},
      {"Cta. Baja:", Tipo::Cuenta, 10, "Depre_CtaBaja"},
  };
  forma.renglon = [](const Valores& valores) { return valores.at("DepreDescripcion"); };
  return forma;
}

FormaActivos FormaActivo() {
  FormaActivos forma = Forma<Activo_Window, activo>("Activo_Window", ActivoFijo());
  forma.titulo = "Activo";
  forma.cajas = {"Activo", "Identificación", ""};
  forma.anchoLista = 150;
  forma.previas = {"SELECT * FROM spsdepreciacion(0);", "SELECT * FROM spsmoneda('  ');"};
  forma.carga = "SELECT * FROM spsactivo(0);";
  forma.campos = {
      {"Identificación:", Tipo::Clave, 6, "ActivoID"},
      {"Clave:", Tipo::Texto, 21, "ActivoClave"},
      {"Descripción:", Tipo::Parrafo, 50, "ActivoDescripcion"},
      {"Depreciación:", Tipo::Fila, 10, "DepreciacionID"},
      {"Valor :", Tipo::Real, 10, "Activo_Valor"},
      {"% Vida Util:", Tipo::Real, 6, "PorcenVidaUtil"},
      {"Valor de Mercado:", Tipo::Real, 10, "ValorMercado"},
      {"Localización:", Tipo::Texto, 51, "Localizacion"},
      {"No. de Serie:", Tipo::Texto, 21, "ActivoNoSerie"},
      {"Monto Original:", Tipo::Real, 10, "MontoOriginal"},
      {"Moneda:", Tipo::Fila, 3, "MonedaID"},
      {"Departamento:", Tipo::Opcion, 6, "Departamento"},
      {"Fecha Inicio Depreciación Contable:", Tipo::Fecha, 10, "FecInicioDepConta"},
      {"Tasa Contable de Depreciación:", Tipo::Real, 10, "ActivoTasaConta"},
      {"Depreciación Contable Acumulada:", Tipo::Real, 10, "ActDepreAcumConta"},
      {"Metodo de Depreciación Contable:", Tipo::Opcion, 4, "ActMetodoDepreConta"},
      {"Fecha Inicio Depreciación Fiscal:", Tipo::Fecha, 10, "FecInicioDepFiscal"},
      {"Deducción Inmediata:", Tipo::Casilla, 0, "ActDeduccionInme"},
      {"Tasa de Depreciación Fiscal:", Tipo::Real, 10, "ActivoTasaFiscal"},
      {"Depreciación Fiscal Acumulada:", Tipo::Real, 10, "ActDepreAcumFiscal"},
      {"Metodo de Depreciación Fiscal:", Tipo::Opcion, 4, "ActMetodoDepreFiscal"},
      {"Monto Maximo Fiscal Deducible:", Tipo::Real, 10, "ActMonMaxDeduFiscal"},
  };
  forma.sinTocar = "No ha especificado el tipo de depreciación";
  forma.renglon = [](const Valores& valores) {
    return valores.at("ActivoClave") + " " + valores.at("ActivoDescripcion");
  };
  return forma;
}

Textos EnTransaccion(const std::string& sentencia) { return {"BEGIN;", sentencia, "COMMIT;"}; }

class ConActivos : public ConVentana<FXDialogBox> {
 protected:
  using Campo_t = pruebas::Campo;

  explicit ConActivos(const FormaActivos& tabla) : tabla(tabla) {}

  void SetUp() override {
    catalogo.LoadCuentas();
    base_.Ejecuta("alter sequence norte." + std::string(tabla.producto.tabla) + "_" + ColumnaClave() +
                  "_seq restart with 1000");
    tabla.limpia();
    Abre();
  }
  void Abre() { Abre(area_); }
  void Abre(Area& area) {
    forma_ = tabla.abre(area);
    espia_.Vacia();
  }

  // The widgets.

  const CampoVisto& Campo(const std::string& columna) const {
    return *std::find_if(tabla.campos.begin(), tabla.campos.end(),
                         [&](const CampoVisto& campo) { return campo.columna == columna; });
  }
  /// Brings the page with that tab to the front.
  static void Hojea(FXTabItem* lengueta) {
    if (lengueta->getNext()->shown()) return;
    Pulsa(lengueta);
    EXPECT_TRUE(BombeaHasta([&] { return lengueta->getNext()->shown() != 0; }));
  }
  static void PonALaVista(FXWindow* pieza) {
    FXWindow* pagina = pieza;
    while (pagina != nullptr && dynamic_cast<FXTabBook*>(pagina->getParent()) == nullptr)
      pagina = pagina->getParent();
    if (pagina != nullptr) Hojea(dynamic_cast<FXTabItem*>(pagina->getPrev()));
  }
  /// The widget of a column, its page in front.
  template <class Clase>
  Clase* Es(const std::string& columna) {
    auto* const pieza = JuntoA<Clase>(forma_, Campo(columna).etiqueta);
    PonALaVista(pieza);
    return pieza;
  }
  FXTextField* Texto(const std::string& columna) { return Es<FXTextField>(columna); }
  FXComboBox* Combo(const std::string& columna) { return Es<FXComboBox>(columna); }
  FXButton* Lado(const std::string& columna) {  // the lens, or the calendar
    Es<FXButton>(columna);
    return Todos<FXButton>(PiezaJuntoA(forma_, Campo(columna).etiqueta)).back();
  }

  // What a user does.

  void Pon(const std::string& columna, const std::string& valor) {
    switch (Campo(columna).tipo) {
      case Tipo::Parrafo:
        return Escribe(Es<FXText>(columna), valor);
      case Tipo::Casilla: {
        auto* const casilla = Es<FXCheckButton>(columna);
        if (casilla->getCheck() != (valor == "S")) Pulsa(casilla);
        return;
      }
      case Tipo::Fila:
      case Tipo::Opcion:
      case Tipo::Cuenta:
        return EligeOpcion(Combo(columna), std::stoi(Mostrado(columna, valor)));
      default:
        return Escribe(Texto(columna), Mostrado(columna, valor));
    }
  }
  /// All columns but the key, and but for one.
  void Llena(const Valores& valores, const std::string& menos = "") {
    for (const CampoVisto& campo : tabla.campos)
      if (campo.tipo != Tipo::Clave && campo.columna != menos) Pon(campo.columna, valores.at(campo.columna));
  }
  Textos Busca(const std::string& clave, const std::vector<Respuesta>& respuestas = {}) {
    Manda("&Nuevo");
    Escribe(Texto(ColumnaClave()), clave);
    return Manda("&Buscar", respuestas);
  }
  /// Blanks form and record, fills the form, saves it as new, and finds it. Answers its key.
  std::string Registra() {
    tabla.limpia();
    Manda("&Nuevo");
    Llena(Alta());
    EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
    const std::string clave = Ultima();
    EXPECT_TRUE(Busca(clave).empty());
    espia_.Vacia();
    return clave;
  }
  /// Saves, whatever boxes come; all of them have to say something. Gives their texts.
  Textos AceptaComoSea() {
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).front()); });
    Pulsa(Boton(forma_, "&Aceptar"));
    const Textos dichos = guion.Mensajes();
    EXPECT_EQ(std::count(dichos.begin(), dichos.end(), ""), 0);
    return dichos;
  }

  // What comes of it.

  /// What the form shows of each column: a text, the current item of a combo box, "1" or "0".
  Valores Pantalla() {
    Bombea();
    Valores vistos;
    for (const CampoVisto& campo : tabla.campos) {
      std::string& visto = vistos[campo.columna];
      FXWindow* const raiz = forma_;
      switch (campo.tipo) {
        case Tipo::Parrafo:
          visto = JuntoA<FXText>(raiz, campo.etiqueta)->getText().text();
          break;
        case Tipo::Casilla:
          visto = std::to_string(JuntoA<FXCheckButton>(raiz, campo.etiqueta)->getCheck());
          break;
        case Tipo::Fila:
        case Tipo::Opcion:
        case Tipo::Cuenta:
          visto = std::to_string(JuntoA<FXComboBox>(raiz, campo.etiqueta)->getCurrentItem());
          break;
        default:
          visto = Leido(raiz, campo.etiqueta);
      }
    }
    return vistos;
  }
  Valores Vistos(const Valores& valores) {
    Valores vistos;
    for (const auto& [columna, valor] : valores) vistos[columna] = Mostrado(columna, valor);
    return vistos;
  }
  Valores Vacia() {
    Valores vistos;
    for (const CampoVisto& campo : tabla.campos) {
      const Tipo t = campo.tipo;
      vistos[campo.columna] = t == Tipo::Texto || t == Tipo::Parrafo || t == Tipo::Fecha  ? ""
                              : t == Tipo::Fila || t == Tipo::Opcion || t == Tipo::Cuenta ? "-1"
                                                                                          : "0";
    }
    return vistos;
  }
  Valores EnElServidor(const std::string& clave) {
    const auto ficha = tabla.producto.vacia();
    ficha->Pon(0, clave);
    ficha->Find();
    Valores valores;
    for (size_t i = 0; i < tabla.producto.campos.size(); ++i)
      valores[tabla.producto.campos[i].nombre] = ficha->Da(i);
    espia_.Vacia();
    return valores;
  }
  std::string Consulta(const std::string& que) {
    return base_.Valor("select " + que + " from norte." + tabla.producto.tabla);
  }
  std::string Ultima() { return Consulta("max(" + ColumnaClave() + ")"); }
  std::string Cuantas() { return Consulta("count(*)"); }
  static std::string Formado(const Enunciado& enunciado, const Valores& valores) {
    Textos columnas;
    for (const std::string& campo : enunciado.campos) columnas.push_back(valores.at(campo));
    return Formateado(enunciado.formato, columnas);
  }
  Textos Guardado(const Enunciado& enunciado, const Valores& valores) const {
    return EnTransaccion(Formado(enunciado, valores)) + EnTransaccion(tabla.carga);
  }

  // The values.

  std::string ColumnaClave() const { return tabla.producto.campos[0].nombre; }
  Valores Alta(const std::string& clave = "0") const { return Tomados(&Campo_t::valor, clave); }
  Valores Otra(const std::string& clave = "0") const { return Tomados(&Campo_t::otro, clave); }

  size_t Bytes(const std::string& columna) const {
    const auto& campos = tabla.producto.campos;
    return std::find_if(campos.begin(), campos.end(), [&](const Campo_t& c) { return c.nombre == columna; })
        ->bytes;
  }
  /// How the form shows a value of a column.
  std::string Mostrado(const std::string& columna, const std::string& valor) const {
    const auto lugar = [&](const auto& filas, auto clave) {
      for (const auto& [numero, fila] : filas)
        if (valor == clave(fila)) return std::to_string(numero);
      return std::string("0");
    };
    switch (Campo(columna).tipo) {
      case Tipo::Real:
        return Tecleado(valor);
      case Tipo::Casilla:
        return valor == "S" ? "1" : "0";
      case Tipo::Cuenta:
        return lugar(Catalogo::Catalogo_Ctas, [](const auto& fila) { return fila.getCuentaID(); });
      case Tipo::Fila:
        if (columna == "DepreciacionID")
          return lugar(Catalogo::TipoDepreciacion,
                       [](const auto& fila) { return std::to_string(fila.getDepreciacionID()); });
        return lugar(Catalogo::Monedas, [](const auto& fila) { return fila.getMonedaID(); });
      case Tipo::Fecha: {
        const date fecha(valor.c_str());
        return std::to_string(fecha.day()) + "/" + std::to_string(fecha.month()) + "/" +
               std::to_string(fecha.year());
      }
      default:
        return valor;
    }
  }

  Textos Renglones(const std::string& columna) {
    Textos textos;
    for (FXint i = 0; i < Combo(columna)->getNumItems(); ++i)
      textos.push_back(Combo(columna)->getItemText(i).text());
    return textos;
  }
  template <class Filas, class Texto>
  static Textos De(const Filas& filas, Texto texto) {
    Textos textos;
    for (const auto& [numero, fila] : filas) textos.push_back(texto(fila));
    return textos;
  }

  const FormaActivos tabla;

 private:
  Valores Tomados(std::string Campo_t::*valor, const std::string& clave) const {
    Valores valores;
    for (const Campo_t& campo : tabla.producto.campos) valores[campo.nombre] = campo.*valor;
    valores[ColumnaClave()] = clave;
    return valores;
  }
};

class FormasActivos : public ConActivos, public testing::WithParamInterface<FormaActivos (*)()> {
 protected:
  FormasActivos() : ConActivos(GetParam()()) {}
};

INSTANTIATE_TEST_SUITE_P(, FormasActivos, testing::Values(FormaDepreciaciones, FormaActivo),
                         [](const auto& info) { return info.param().nombre; });

// The window.

TEST_P(FormasActivos, EsUnDialogoConSuTituloQueAlAbrirLeeSusCatalogos) {
  EXPECT_EQ(tabla.meta->getBaseClass(), FXMETACLASS(FXDialogBox));
  EXPECT_EQ(forma_->getTitle(), tabla.titulo);
  EXPECT_EQ(forma_->getDecorations(), FXuint{DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE});
  const Salida salida;
  forma_ = tabla.abre(area_);
  Textos cargas;
  for (const std::string& previa : tabla.previas) cargas = cargas + EnTransaccion(previa);
  EXPECT_EQ(Enviado(), cargas + EnTransaccion(tabla.carga));
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(tabla.banderas(), std::pair(false, true));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(std::to_string(Lista(forma_)->getNumItems()), Cuantas());
}

TEST_P(FormasActivos, TieneSusCajasEtiquetasYBotones) {
  Textos cajas, etiquetas;
  for (const FXGroupBox* caja : Todos<FXGroupBox>(forma_)) cajas.push_back(caja->getText().text());
  for (const CampoVisto& campo : tabla.campos) etiquetas.push_back(campo.etiqueta);
  Textos vistas = Etiquetas(forma_);
  vistas.erase(
      std::remove_if(vistas.begin(), vistas.end(), [](const std::string& texto) { return texto.empty(); }),
      vistas.end());
  EXPECT_EQ(cajas, tabla.cajas);
  EXPECT_EQ(vistas, etiquetas);
  EXPECT_EQ(Etiquetas(Grupo(forma_, "Identificación")), Textos{tabla.campos[0].etiqueta});
  EXPECT_EQ(Lista(forma_)->getWidth(), tabla.anchoLista);
  EXPECT_TRUE(Lista(forma_)->getListStyle() == LIST_BROWSESELECT);
  EXPECT_EQ(Botones(Grupo(forma_, "")), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
}

TEST_P(FormasActivos, CadaCampoEsDeSuClase) {
  constexpr FXuint limitado = TEXTFIELD_LIMITED;
  const std::map<Tipo, std::pair<FXuint, FXuint>> clases = {
      {Tipo::Clave, {limitado | TEXTFIELD_ENTER_ONLY | TEXTFIELD_INTEGER, JUSTIFY_LEFT}},
      {Tipo::Texto, {limitado, JUSTIFY_LEFT}},
      {Tipo::Fecha, {limitado, JUSTIFY_LEFT}},
      {Tipo::Real, {limitado | TEXTFIELD_REAL, JUSTIFY_RIGHT}},
  };
  for (const CampoVisto& campo : tabla.campos) {
    SCOPED_TRACE(campo.etiqueta);
    if (campo.tipo == Tipo::Parrafo) {
      EXPECT_EQ(Es<FXText>(campo.columna)->getVisibleRows(), 3);
      EXPECT_EQ(Es<FXText>(campo.columna)->getVisibleColumns(), campo.columnas);
    } else if (campo.tipo == Tipo::Casilla) {
      Es<FXCheckButton>(campo.columna);
    } else if (clases.count(campo.tipo) == 0) {
      EXPECT_EQ(Combo(campo.columna)->getComboStyle(), FXuint{COMBOBOX_STATIC});
      EXPECT_EQ(Combo(campo.columna)->getNumVisible(), campo.columnas);
    } else {
      const FXTextField* const texto = Texto(campo.columna);
      EXPECT_EQ(dynamic_cast<const cFecha*>(texto) != nullptr, campo.tipo == Tipo::Fecha);
      EXPECT_EQ(texto->getNumColumns(), campo.columnas);
      EXPECT_EQ(texto->getTextStyle(), clases.at(campo.tipo).first);
      EXPECT_EQ(texto->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), clases.at(campo.tipo).second);
    }
  }
}

// With the program's own font, on every page.
TEST_P(FormasActivos, NadaSeVeCortado) {
  const Principal principal;
  Area area;
  Abre(area);
  ASSERT_TRUE(BombeaHasta([&] { return Grupo(forma_, tabla.cajas[0])->getHeight() > 1; }));  // laid out
  ExigeNadaCortado(forma_);
  for (const CampoVisto& campo : tabla.campos) {
    FXWindow* const pieza = PiezaJuntoA(forma_, campo.etiqueta);
    PonALaVista(pieza);
    Bombea(20);
    EXPECT_GE(pieza->getWidth(), pieza->getDefaultWidth()) << campo.etiqueta;
    EXPECT_GE(pieza->getHeight(), pieza->getDefaultHeight()) << campo.etiqueta;
    EXPECT_LE(pieza->getX() + pieza->getWidth(), pieza->getParent()->getWidth()) << campo.etiqueta;
    EXPECT_LE(pieza->getY() + pieza->getHeight(), pieza->getParent()->getHeight()) << campo.etiqueta;
  }
}

// Saving and reading.

TEST_P(FormasActivos, RegistraBuscaCambiaYBorra) {
  const Producto& producto = tabla.producto;
  Llena(Alta());
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(cuadros_.at(0).titulo, producto.clase);
  EXPECT_EQ(cuadros_.at(0).clase, Clase::Pregunta);
  EXPECT_EQ(Enviado(), Guardado(producto.alta[0], Alta()));
  EXPECT_EQ(tabla.banderas(), std::pair(false, false));
  EXPECT_EQ(RenglonActual(), tabla.renglon(Alta()));
  EXPECT_EQ(EnElServidor("1000"), Alta("1000"));

  tabla.limpia();
  EXPECT_TRUE(Busca("1000").empty());
  EXPECT_EQ(Enviado(), Textos{Formado(producto.busqueda, Alta("1000"))});
  EXPECT_EQ(Pantalla(), Vistos(Alta("1000")));
  EXPECT_EQ(RenglonActual(), tabla.renglon(Alta()));
  EXPECT_TRUE(Manda("&Aceptar").empty()) << "lo leído es lo que hay";

  Llena(Otra());
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(Enviado(), Guardado(producto.cambio[0], Otra("1000")));
  EXPECT_EQ(RenglonActual(), tabla.renglon(Otra()));
  EXPECT_EQ(EnElServidor("1000"), Otra("1000"));
  Manda("&Nuevo");
  EligeRenglon(Lista(forma_), Lista(forma_)->getNumItems() - 1);
  EXPECT_EQ(Pantalla(), Vistos(Otra("1000")));
  EXPECT_EQ(tabla.banderas(), std::pair(false, false));

  Enviado();
  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Enviado(), Textos{Formado(producto.busqueda, Alta("1000"))});
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Enviado(), Textos{Formado(producto.busqueda, Alta("1000"))} +
                           EnTransaccion(Formado(producto.borrado, Alta("1000"))) +
                           EnTransaccion(tabla.carga));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(tabla.banderas(), std::pair(false, true));
  EXPECT_EQ(Consulta("count(*) filter (where " + ColumnaClave() + " = 1000)"), "0");
}

TEST_P(FormasActivos, CadaCampoCambiaSuColumnaYNingunaOtra) {
  const std::string clave = Registra();
  Valores valores = Alta(clave);
  for (const CampoVisto& campo : tabla.campos) {
    if (campo.tipo == Tipo::Clave) continue;
    SCOPED_TRACE(campo.etiqueta);
    const std::string otro = Otra().at(campo.columna);
    ASSERT_NE(otro, valores.at(campo.columna));
    Pon(campo.columna, otro);
    valores[campo.columna] = otro;
    EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(Enviado(), Guardado(tabla.producto.cambio[0], valores));
    EXPECT_EQ(Pantalla(), Vistos(valores));
  }
  EXPECT_EQ(EnElServidor(clave), Otra(clave));
}

TEST_P(FormasActivos, AceptarSinTocarNada) {
  if (tabla.sinTocar == nullptr) {
    EXPECT_TRUE(Manda("&Aceptar").empty());
  } else {
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{tabla.sinTocar});
  }
  EXPECT_TRUE(Enviado().empty());
  EXPECT_EQ(Pantalla(), Vacia());
}

TEST_P(FormasActivos, ContestarQueNoDejaPreguntarOtraVez) {
  Llena(Alta());
  for (int vez = 0; vez < 2; ++vez) {
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
    EXPECT_EQ(tabla.banderas(), std::pair(true, true));
  }
  EXPECT_TRUE(Enviado().empty());
}

TEST_P(FormasActivos, LoQueNoHayNiSeHallaNiSeBorra) {
  EXPECT_EQ(Busca("999", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  EXPECT_EQ(cuadros_.at(0).titulo, tabla.producto.clase);
  EXPECT_EQ(Pantalla(), Vacia());
  Escribe(Texto(ColumnaClave()), "999");
  Enviado();
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Enviado().size(), 1u);
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_TRUE(tabla.banderas().second);
}

TEST_P(FormasActivos, CadaReglaSeDiceAntesDePreguntarYLaFormaQuedaComoEstaba) {
  for (const Prueba& regla : tabla.producto.reglas) {
    SCOPED_TRACE(std::string(regla.campo) + ": " + regla.texto);
    const CampoVisto& campo = Campo(regla.campo);
    tabla.limpia();
    Manda("&Nuevo");
    Llena(Alta(), regla.campo);
    if (campo.tipo == Tipo::Casilla) {  // "N" as long as it is not ticked
      EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
      continue;
    }
    if (campo.tipo == Tipo::Real) Escribe(Texto(regla.campo), regla.valor);
    const Valores pantalla = Pantalla();
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{regla.texto});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Error);
    EXPECT_EQ(cuadros_.at(0).titulo, "Error en Validación");
    EXPECT_EQ(Pantalla(), pantalla);
    EXPECT_EQ(tabla.banderas(), std::pair(true, true));
    if (campo.tipo != Tipo::Real) continue;
    Escribe(Texto(regla.campo), "0");
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"}) << "cero pasa";
  }
  EXPECT_TRUE(Enviado().empty());
}

// More digits than a field takes are left out; what fits and is too much is told by the server.
TEST_P(FormasActivos, LosMontosDemasiadoLargosSeCortanOSeRechazan) {
  const std::string clave = Registra();
  for (const CampoVisto& campo : tabla.campos) {
    if (campo.tipo != Tipo::Real) continue;
    SCOPED_TRACE(campo.etiqueta);
    for (const char* tecleado : {"123456789012345", "9e99", "1e999"}) {
      Escribe(Texto(campo.columna), tecleado);
      const std::string cabe = FXString(tecleado).left(campo.columnas).text();
      EXPECT_EQ(Leido(forma_, campo.etiqueta), cabe);
      const Textos dichos = AceptaComoSea();
      if (dichos.size() == 2) {
        EXPECT_EQ(dichos[1].rfind("ERROR:", 0), 0u) << dichos[1];
        EXPECT_EQ(EnElServidor(clave), Alta(clave));
      } else {
        EXPECT_EQ(dichos, Textos{"Guardar cambios realizados ?"});
        EXPECT_EQ(std::stof(EnElServidor(clave).at(campo.columna)), std::stof(cabe));
      }
      Pon(campo.columna, Alta().at(campo.columna));
      AceptaComoSea();
      EXPECT_EQ(EnElServidor(clave), Alta(clave));
    }
  }
}

TEST_P(FormasActivos, LosTextosConAcentosComillasYPorcientosSeGuardanOLosDiceElServidor) {
  const std::string clave = Registra();
  for (const CampoVisto& campo : tabla.campos) {
    if (campo.tipo != Tipo::Texto && campo.tipo != Tipo::Parrafo) continue;
    SCOPED_TRACE(campo.etiqueta);
    const size_t bytes = Bytes(campo.columna);
    std::string largo;
    while (largo.size() < 2 * bytes + 2) largo += "ñ";
    for (const std::string& texto : {std::string("100% \"Ñandú\" %s%n"), largo}) {
      Pon(campo.columna, texto);
      EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
      const size_t caben = std::min(texto.size(), bytes);
      std::string guardado = texto.substr(0, texto == largo ? caben / 2 * 2 : caben);
      EXPECT_EQ(EnElServidor(clave).at(campo.columna), guardado);
    }
    const Valores antes = EnElServidor(clave);
    Pon(campo.columna, "O'Hara");
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}).at(1).rfind("ERROR:", 0), 0u);
    EXPECT_EQ(EnElServidor(clave), antes);
    Pon(campo.columna, Alta().at(campo.columna));
  }
}

// The connection.

TEST_P(FormasActivos, CortadaEnCadaSentenciaNoQuedaNadaAMediasYLaFormaSirve) {
  constexpr size_t cierre = 2;  // COMMIT, behind BEGIN and the write, ahead of the load
  for (const bool cambio : {false, true}) {
    for (size_t n = 0; n < 6; ++n) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE((cambio ? "cambio, " : "alta, ") + std::to_string(n) + (despues ? ", después" : ""));
        base_.Ejecuta("delete from norte." + std::string(tabla.producto.tabla) + " where " + ColumnaClave() +
                      " >= 1000");
        const std::string clave = cambio ? Registra() : "";
        const std::string cuantas = Cuantas();
        if (!cambio) {
          tabla.limpia();
          Manda("&Nuevo");
        }
        Llena(cambio ? Otra() : Alta());
        espia_.Vacia();
        espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
        AceptaComoSea();
        espia_.Vacia();
        Reconecta();
        const bool guardado = n > cierre || (n == cierre && despues);
        if (cambio) {
          EXPECT_EQ(EnElServidor(clave), guardado ? Otra(clave) : Alta(clave));
        } else {
          EXPECT_EQ(Cuantas(), guardado ? std::to_string(std::stoi(cuantas) + 1) : cuantas);
        }
        if (guardado) continue;
        EXPECT_EQ(Acepta(), Textos{cambio ? "Guardar cambios realizados ?" : "Registrar ?"});
        EXPECT_EQ(EnElServidor(Ultima()), cambio ? Otra(clave) : Alta(Ultima()));
      }
    }
  }
}

TEST_P(FormasActivos, CortadaAlAbrirLoDiceUnaVezYSeAbreComoSea) {
  const size_t sentencias = 3 * (tabla.previas.size() + 1);
  for (size_t n = 0; n < sentencias; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      Reconecta();
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      Guion guion;
      guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
      forma_ = tabla.abre(area_);
      const bool callada = n + 2 >= sentencias;  // behind the last "BEGIN;" nobody looks
      EXPECT_EQ(guion.Mensajes().size(), callada ? 0u : 1u);
      EXPECT_EQ(Pantalla(), Vacia());
    }
  }
}

TEST_P(FormasActivos, SinSesionTodoMandoTieneRespuesta) {
  EligeRenglon(Lista(forma_), 1);
  sesion_.reset();
  ASSERT_EQ(conn, nullptr);
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(Busca("1", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  Llena(Alta());
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}),
            (Textos{"Registrar ?", "No hay conexión con el servidor."}));
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Abre();
  EXPECT_EQ(Lista(forma_)->getNumItems(), 0);
  EXPECT_EQ(Pantalla(), Vacia());
}

TEST_P(FormasActivos, UnaCargaDefectuosaNoTumbaLaForma) {
  for (const std::string& carga : tabla.previas + Textos{tabla.carga}) {
    for (const Falla& falla : {falla::SinFilas(), falla::Recortada(1), falla::Recortada(9), falla::ConNulos(),
                               falla::ConTextos(), falla::Error("No"), falla::Nula()}) {
      SCOPED_TRACE(carga);
      espia_.Vacia();
      espia_.Cuando(carga, falla);
      forma_ = tabla.abre(area_);
      EXPECT_EQ(Pantalla(), Vacia());
      if (Lista(forma_)->getNumItems() > 1) EligeRenglon(Lista(forma_), 1);
      for (FXComboBox* combo : Todos<FXComboBox>(forma_))
        if (Usable(combo)) EligeOpcion(combo, combo->getNumItems() - 1);
      Bombea();
      Guion guion;
      guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).back()); });
      Pulsa(Boton(forma_, "&Aceptar"));
      EXPECT_LE(guion.Cuadros().size(), 1u);  // a question, or what is missing
    }
  }
}

// The depreciation types.

class DepreciacionVentana : public ConActivos {
 protected:
  DepreciacionVentana() : ConActivos(FormaDepreciaciones()) {}

  const Textos cuentas_ = {"Depre_Activo", "Depre_CtaDepre", "Depre_CtaGasto", "Depre_CtaBaja"};
};

TEST_F(DepreciacionVentana, SusMensajesVanEnOrden) {
  using V = TipoDepreciaciones_Window;
  const auto cuenta = [](int cual, auto manejador) {
    return Mando<V>(FXSelector(V::ID_CUENTA + cual), manejador);
  };
  ExigeMapa<V>({
      Mando<V>(V::ID_AGREGAR, &V::onCmdAgregar),
      Mando<V>(V::ID_FIND, &V::onCmdFind),
      Mando<V>(V::ID_CLEAR, &V::onCmdClear),
      Mando<V>(V::ID_BORRAR, &V::onCmdBorrar),
      Mando<V>(V::ID_LISTA, &V::onCmdDepreciacion),
      Mando<V>(V::ID_MONEDA, &V::onCmdMoneda),
      cuenta(V::Depre_Activo, &V::onCmdDepre_Activo),
      cuenta(V::Depre_CtaDepre, &V::onCmdDepre_CtaDepre),
      cuenta(V::Depre_CtaGasto, &V::onCmdDepre_CtaGasto),
      cuenta(V::Depre_CtaBaja, &V::onCmdDepre_CtaBaja),
      Mando<V>(V::ID_BUSCAR, &V::onCmdBuscar, 2),
      Mando<V>(V::ID_BUSCAR + 2, &V::onCmdBuscar, 2),
      {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
      {FXSEL(SEL_SIGNAL, V::ID_SALIR), FXSEL(SEL_SIGNAL, V::ID_SALIR), &V::onCmdQuit},
  });
  EXPECT_EQ(FXSelector{V::ID_AGREGAR}, FXSelector{FXDialogBox::ID_LAST});
  for (FXSelector mensaje = V::ID_MONEDA; mensaje < V::ID_BUSCAR; ++mensaje)
    EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1);
}

TEST_F(DepreciacionVentana, LosCombosOfrecenMonedasYTodasLasCuentas) {
  EXPECT_EQ(Renglones("DepreMoneda"),
            De(Catalogo::Monedas, [](const auto& fila) { return fila.getMonedaDescri(); }));
  const Textos carta = De(Catalogo::Catalogo_Ctas, [](const cCatalogo_Ctas& cuenta) {
    return std::string(cuenta.getCuentaID()).substr(0, 18) + "  " +
           std::string(cuenta.getCuentaNombre(), LargoUtf8(cuenta.getCuentaNombre(), 29));
  });
  std::vector<const FXFont*> letras;
  for (const std::string& columna : cuentas_) {
    EXPECT_EQ(Renglones(columna), carta);
    const FXFont* const letra = Combo(columna)->getFont();
    EXPECT_EQ(letra->getName(), "helvica");
    EXPECT_EQ(letra->getSize(), 80u);
    EXPECT_EQ(std::count(letras.begin(), letras.end(), letra), 0);
    letras.push_back(letra);
    EXPECT_EQ(Lado(columna)->getText(), "");
    EXPECT_NE(Lado(columna)->getIcon(), nullptr);
  }
  EXPECT_NE(Combo("DepreMoneda")->getFont()->getName(), "helvica");
}

TEST_F(DepreciacionVentana, UnaMonedaNuevaSeOfreceAlVolverAAbrir) {
  base_.Ejecuta("insert into norte.moneda (monedaid, monedadescri, monedavalor) values ('ZZ', 'Nueva', 1)");
  const FXint antes = Combo("DepreMoneda")->getNumItems();
  Abre();
  ASSERT_EQ(Combo("DepreMoneda")->getNumItems(), antes + 1);
  Llena(Alta());
  Pon("DepreMoneda", "ZZ");
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(EnElServidor("1000").at("DepreMoneda"), "ZZ");
}

TEST_F(DepreciacionVentana, CadaLupaParteDeSuCuentaYDejaLaHalladaOLaQueHabia) {
  const std::string clave = Registra();
  Valores valores = Alta(clave);
  for (const std::string& columna : cuentas_) {
    SCOPED_TRACE(columna);
    const int suya = std::stoi(Mostrado(columna, valores[columna]));
    const int otra = std::stoi(Mostrado(columna, Otra().at(columna)));
    for (const char* boton : {"&Cerrar", "&Aceptar"}) {
      Guion guion;
      guion.Con([&](FXDialogBox* dialogo) {
        EXPECT_EQ(dialogo->getMetaClass(), FXMETACLASS(Busqueda_Window));
        EXPECT_EQ(Lista(dialogo)->getCurrentItem(), suya);
        if (std::string(boton) == "&Aceptar") EligeRenglon(Lista(dialogo), otra);
        Pulsa(Boton(dialogo, boton));
      });
      Pulsa(Lado(columna));
      if (std::string(boton) == "&Aceptar") valores[columna] = Otra().at(columna);
      EXPECT_EQ(Pantalla(), Vistos(valores));
    }
  }
  Acepta();
  EXPECT_EQ(EnElServidor(clave), valores);
}

TEST_F(DepreciacionVentana, UnaCuentaAcumulativaSeGuarda) {
  Valores valores = Alta("1000");
  for (const std::string& columna : cuentas_) valores[columna] = Cuenta("1000");
  Llena(valores);
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(EnElServidor("1000"), valores);
}

TEST_F(DepreciacionVentana, UnaCuentaYaBorradaLaRechazaElServidorYSePuedeCorregir) {
  Llena(Alta());
  Pon("Depre_CtaBaja", Cuenta("5406"));  // nothing hangs on it
  base_.Ejecuta("delete from norte.catalogo_ctas where cuentaid = '" + Cuenta("5406") + "'");
  for (const bool releida : {false, true}) {
    if (releida) catalogo.LoadCuentas();
    const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
    EXPECT_NE(dichos.at(1).find("No existe la cuenta de baja: 5406"), std::string::npos) << dichos.at(1);
  }
  Abre();
  Llena(Alta());
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
}

TEST_F(DepreciacionVentana, LaDescripcionSePideAntesQueLoDemas) {
  Escribe(forma_, "Tasa Contable:", "-0.5");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No ha especificado la descripción"});
  Escribe(forma_, "Descripción:", "Autos");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}),
            Textos{"La tasa contable de depreciación no puede ser negativa"});
}

TEST_F(DepreciacionVentana, UnTipoEnUsoNoSeBorra) {
  Escribe(forma_, "Clave:", "3");
  const Textos dichos = Manda("&Borrar", {Respuesta::Si, Respuesta::Aceptar});
  EXPECT_NE(dichos.at(1).find("No se puede borrar el tipo de depreciación 3"), std::string::npos)
      << dichos.at(1);
  EXPECT_EQ(Leido(forma_, "Descripción:"), "Equipo de cómputo");
  EXPECT_EQ(Cuantas(), "4");
}

TEST_F(DepreciacionVentana, LaListaPasaPorUnBorradorDeTreintaBytes) {
  base_.Ejecuta("update norte.depreciacion set depredescripcion = repeat('x', 31) where depreciacionid = 1");
  Abre();
  EXPECT_EQ(Lista(forma_)->getItemText(0), FXString('x', 30));
}

// The fixed assets.

class ActivoVentana : public ConActivos {
 protected:
  ActivoVentana() : ConActivos(FormaActivo()) {}

  const Textos fechas_ = {"FecInicioDepConta", "FecInicioDepFiscal"};
};

TEST_F(ActivoVentana, SusMensajesVanEnOrden) {
  using V = Activo_Window;
  ExigeMapa<V>({
      Mando<V>(V::ID_AGREGAR, &V::onCmdAgregar),
      Mando<V>(V::ID_FIND, &V::onCmdFind),
      Mando<V>(V::ID_CLEAR, &V::onCmdClear),
      Mando<V>(V::ID_LISTA, &V::onCmdActivo),
      Mando<V>(V::ID_DEPRECIACION, &V::onCmdDepreciacion),
      Mando<V>(V::ID_PANEL, &V::onCmdPanel),
      Mando<V>(V::ID_BORRAR, &V::onCmdBorrar),
      Mando<V>(V::ID_CALENDARIO, &V::onCmdCalendario, 2),
      Mando<V>(V::ID_DEDUCCION, &V::onCmdDeduccionInmediata),
      Mando<V>(V::ID_MONEDA, &V::onCmdMoneda),
      {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &V::onCmdQuit},
      {FXSEL(SEL_SIGNAL, V::ID_SALIR), FXSEL(SEL_SIGNAL, V::ID_SALIR), &V::onCmdQuit},
  });
  EXPECT_EQ(FXSelector{V::ID_AGREGAR}, FXSelector{FXDialogBox::ID_LAST});
  for (const FXSelector mensaje : {FXSelector{V::ID_DEPRECIACION}, FXSelector{V::ID_PANEL},
                                   FXSelector{V::ID_DEDUCCION}, FXSelector{V::ID_MONEDA}})
    EXPECT_EQ(forma_->handle(&App(), FXSEL(SEL_COMMAND, mensaje), nullptr), 1);
}

TEST_F(ActivoVentana, MetodosYDepartamentoMandanMensajesQueNadieAtiende) {
  std::vector<FXSelector> mensajes;
  for (const char* columna : {"Departamento", "ActMetodoDepreConta", "ActMetodoDepreFiscal"}) {
    FXComboBox* const combo = Combo(columna);
    EXPECT_EQ(combo->getTarget(), forma_);
    EXPECT_EQ(Activo_Window::metaClass.search(FXSEL(SEL_COMMAND, combo->getSelector())), nullptr);
    mensajes.push_back(combo->getSelector());
  }
  EXPECT_EQ(std::count(mensajes.begin(), mensajes.end(), mensajes[0]), 1);
  EXPECT_NE(mensajes[1], mensajes[2]);
}

TEST_F(ActivoVentana, TieneTresPaginasYMandaCuandoCambian) {
  Textos paginas;
  for (const FXTabItem* pagina : Todos<FXTabItem>(forma_)) paginas.push_back(Rotulo(pagina));
  EXPECT_EQ(paginas, (Textos{"&Datos Generales", "Depreciación Contable", "Depreciación Fiscal"}));
  const FXTabBook* const libro = Todos<FXTabBook>(forma_).at(0);
  EXPECT_EQ(libro->getTarget(), forma_);
  EXPECT_EQ(libro->getSelector(), FXSelector{Activo_Window::ID_PANEL});
  EXPECT_TRUE(Usable(JuntoA<FXTextField>(forma_, "Clave:")));
  Hojea(Todos<FXTabItem>(forma_).at(2));
  EXPECT_TRUE(Usable(JuntoA<FXTextField>(forma_, "Monto Maximo Fiscal Deducible:")));
  EXPECT_FALSE(Usable(JuntoA<FXTextField>(forma_, "Clave:")));
}

TEST_F(ActivoVentana, LosCombosOfrecenSusCatalogosYSusOpciones) {
  const Textos metodos = {"Linea Recta", "Suma de Años Digitos", "Doble Saldo Declinante"};
  EXPECT_EQ(Renglones("ActMetodoDepreConta"), metodos);
  EXPECT_EQ(Renglones("ActMetodoDepreFiscal"), metodos);
  EXPECT_EQ(Renglones("Departamento"), (Textos{"Producto", "Ventas", "Administración"}));
  EXPECT_EQ(Renglones("DepreciacionID"),
            De(Catalogo::TipoDepreciacion, [](const auto& fila) { return fila.getDepreDescripcion(); }));
  EXPECT_EQ(Renglones("DepreciacionID").size(), 4u);
  EXPECT_EQ(Renglones("MonedaID"),
            De(Catalogo::Monedas, [](const auto& fila) { return fila.getMonedaDescri(); }));
}

TEST_F(ActivoVentana, UnTipoNuevoSeOfreceAlVolverAAbrir) {
  base_.Ejecuta(
      "insert into norte.depreciacion select (jsonb_populate_record(d, '{\"depreciacionid\": 77}')).*"
      " from norte.depreciacion d where depreciacionid = 1");
  Abre();
  Llena(Alta());
  Pon("DepreciacionID", "77");
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(EnElServidor("1000").at("DepreciacionID"), "77");
}

TEST_F(ActivoVentana, ElegirUnRenglonTrazaSuClave) {
  Salida salida;
  EligeRenglon(Lista(forma_), 4);
  EXPECT_EQ(salida.Texto(), "Mostrar -> " + std::to_string(activo.getActivoID()) + "\n");
  EXPECT_EQ(activo.getActivoID(), Catalogo::Activos[4].getActivoID());
  EXPECT_TRUE(Enviado().empty());
}

TEST_F(ActivoVentana, LaClaveTecleadaNoCambiaLaDelRegistro) {
  const std::string clave = Registra();
  Escribe(forma_, "Identificación:", "1");
  Tecla(CampoJuntoA(forma_, "Identificación:"), KEY_Return);
  EXPECT_TRUE(Manda("&Aceptar").empty());
  Pon("Localizacion", "Otra parte");
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(EnElServidor(clave).at("Localizacion"), "Otra parte");
  EXPECT_NE(EnElServidor("1").at("Localizacion"), "Otra parte");
}

TEST_F(ActivoVentana, NuevoDejaLaMonedaDelRegistroAunqueElComboNoMuestreNinguna) {
  Llena(Alta(), "MonedaID");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No ha especificado el valor monetario"});
  const std::string clave = Registra();
  Pon("MonedaID", "CA");  // not accepted, so not the record's
  Manda("&Nuevo");
  EXPECT_EQ(Pantalla(), Vacia());
  Llena(Otra(), "MonedaID");
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(EnElServidor(Ultima()).at("MonedaID"), "MX");
  EXPECT_EQ(EnElServidor(clave), Alta(clave));
}

TEST_F(ActivoVentana, LaDeduccionEsNMientrasNoSeMarque) {
  Llena(Alta(), "ActDeduccionInme");
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(EnElServidor("1000").at("ActDeduccionInme"), "N");
  auto* const casilla = Es<FXCheckButton>("ActDeduccionInme");
  for (const char* letra : {"S", "N"}) {
    Busca("1000");
    Es<FXCheckButton>("ActDeduccionInme");
    Pulsa(casilla);
    EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(EnElServidor("1000").at("ActDeduccionInme"), letra);
  }
}

// A date is sent as it was typed; only one that was never given is told by the form.
TEST_F(ActivoVentana, CadaFechaSeGuardaSeFaltaOLaRechazaElServidor) {
  const std::string noExiste = " no existe en el calendario";
  const struct {
    const char* tecleada;
    std::string mandada;  // "" when it is missing
    std::string dicho;    // by the server; "" when it is taken
  } casos[] = {
      {"9/4/2026", "2026-04-09", ""},
      {"09/04/2026", "2026-04-09", ""},
      {"29/2/2024", "2024-02-29", ""},
      {"5/3/1900", "1900-03-05", ""},
      {"31/02/2026", "2026-02-31", "La fecha \"2026-02-31\"" + noExiste},
      {"99/99/9999", "9999-99-99", "La fecha \"9999-99-99\"" + noExiste},
      {"05032026", "0000-00-50", "La fecha \"0000-00-50\"" + noExiste},
      {"9/4", "0000-04-09", "La fecha \"0000-04-09\"" + noExiste},
      {"", "", ""},
      {"0/0/0", "", ""},
      {"1/1/1900", "", ""},
  };
  const std::string clave = Registra();
  for (const std::string& columna : fechas_) {
    for (const auto& caso : casos) {
      SCOPED_TRACE(columna + ": " + caso.tecleada);
      Busca(clave);
      const std::string antes = EnElServidor(clave).at(columna);
      Escribe(Texto(columna), caso.tecleada);
      if (caso.mandada.empty()) {
        EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}).at(0).substr(0, 45),
                  "No ha especificado la fecha de inicio de depr");
      } else if (caso.dicho.empty()) {
        const bool igual = antes == caso.mandada;
        EXPECT_EQ(igual ? Manda("&Aceptar") : Acepta(),
                  igual ? Textos{} : Textos{"Guardar cambios realizados ?"});
        EXPECT_EQ(EnElServidor(clave).at(columna), caso.mandada);
      } else {
        espia_.Vacia();
        EXPECT_NE(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}).at(1).find(caso.dicho),
                  std::string::npos);
        EXPECT_EQ(espia_.Cuantas("'" + caso.mandada + "'"), 1u);
        EXPECT_EQ(Leido(forma_, Campo(columna).etiqueta), caso.tecleada);
        EXPECT_EQ(EnElServidor(clave).at(columna), antes);
      }
    }
  }
}

TEST_F(ActivoVentana, UnaFechaQueNoSeEscribioEsLaDeUnRegistroEnBlanco) {
  Pon("ActivoClave", "X");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}).size(), 1u);
  EXPECT_STREQ(activo.getFecInicioDepConta().AsChar(), "1900-01-01");
  EXPECT_STREQ(activo.getFecInicioDepFiscal().AsChar(), "1900-01-01");
}

TEST_F(ActivoVentana, CadaCalendarioParteDeSuFechaYLaEscribeSinCeros) {
  const struct {
    const char *antes, *dia, *despues;  // a day that is picked; null for a calendar that is cancelled
  } casos[] = {{"01/02/2006", nullptr, "1/2/2006"},
               {"1/2/2006", "7", "7/2/2006"},
               {"", nullptr, "0/0/0"},
               {"31/02/2006", nullptr, "31/2/2006"}};
  for (const std::string& columna : fechas_) {
    const std::string otra = fechas_[columna == fechas_[0]];
    Escribe(Texto(otra), "3/4/2005");
    for (const auto& caso : casos) {
      SCOPED_TRACE(columna + ": " + caso.antes);
      Escribe(Texto(columna), caso.antes);
      Guion guion;
      guion.Con([&](FXDialogBox* dialogo) {
        EXPECT_EQ(dialogo->getMetaClass(), FXMETACLASS(Calendario_Window));
        if (caso.dia != nullptr) Pulsa(Boton(dialogo, caso.dia));
        Pulsa(Boton(dialogo, caso.dia != nullptr ? "&Aceptar" : "&Cerrar"));
      });
      Pulsa(Lado(columna));
      EXPECT_EQ(Leido(forma_, Campo(columna).etiqueta), caso.despues);
      EXPECT_EQ(Leido(forma_, Campo(otra).etiqueta), "3/4/2005");
    }
  }
  Llena(Alta(), "FecInicioDepConta");  // the one left at 0/0/0 counts as not given
  Escribe(Texto("FecInicioDepConta"), "0/0/0");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}),
            Textos{"No ha especificado la fecha de inicio de depreciación contable"});
}

TEST_F(ActivoVentana, UnUsuarioDescuidadoNoTumbaNingunaPagina) {
  for (FXTabItem* lengueta : Todos<FXTabItem>(forma_)) {
    SCOPED_TRACE(Rotulo(lengueta));
    Hojea(lengueta);
    Maltrata(lengueta->getNext());
    for (const std::string& texto : TextosDesmedidos()) {
      TecleaEnTodo(forma_, texto);
      AceptaComoSea();
    }
  }
  EXPECT_EQ(Profundidad(), 0);
  EXPECT_TRUE(Busca("1").empty());
  EXPECT_NE(Pantalla(), Vacia());
}

TEST_F(ActivoVentana, UnRenglonLargoCabeEnteroEnElBorrador) {
  base_.Ejecuta(
      "update norte.activo set activoclave = repeat('á', 20), activodescripcion = repeat('x', 258)"
      " where activoid = (select min(activoid) from norte.activo)");
  Abre();
  EXPECT_EQ(Lista(forma_)->getItemText(0).text(), "áááááááááá " + std::string(258, 'x'));
}

}  // namespace
}  // namespace pruebas
