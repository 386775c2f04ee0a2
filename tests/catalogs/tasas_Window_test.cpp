// The forms of the rates: the history with its entry forms, the names of the variable series, and their
// periods.
#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "app/sesion.h"
#include "catalogs/finance/NuevoTasa_Window.h"
#include "catalogs/finance/TasaInteres_Window.h"
#include "catalogs/finance/Tasa_Window.h"
#include "catalogs/finance/TipoTasaInteres_Window.h"
#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Cortes.h"
#include "tests/support/Espia.h"
#include "tests/support/Guion.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"
#include "tests/support/Ventana.h"
#include "widgets/cFecha.h"

namespace pruebas {
namespace {

const Textos DeLaHistoria = {"entrando a crear dialogo",
                             "terminando creacion y fijando foco del dialogo WTASA"};

Textos Titulos(FXWindow* forma) {
  Textos titulos;
  for (const FXGroupBox* caja : Todos<FXGroupBox>(forma)) titulos.push_back(caja->getText().text());
  return titulos;
}

/// The labels of the buttons that have one.
Textos Rotulados(FXWindow* forma) {
  Textos rotulos = Botones(forma);
  rotulos.erase(std::remove(rotulos.begin(), rotulos.end(), ""), rotulos.end());
  return rotulos;
}

/// What the forms of this file share: a session, and a window to press the buttons of.
template <class V>
class ConTasas : public ConVentana<V> {
 protected:
  ConTasas() {
    catalogo.LoadTipoPrestamo();
    catalogo.LoadTipoMovimiento();
    catalogo.LoadTipoInversiones();
    tasainteres.Clear();
    tasas = cTipoTasaInteres();
    flag = false;
    iTasainteresId = 0;
  }
  /// Presses a button of `ventana`, answers the boxes that come in order, and gives their texts.
  Textos Manda(FXWindow* ventana, const std::string& boton, const std::vector<Respuesta>& respuestas = {}) {
    return Manda(Boton(ventana, boton), respuestas);
  }
  using ConVentana<V>::Manda;
  void QuitaDerecho(const std::string& modulo) {
    this->base_.Ejecuta("update norte.permisomodulo set permiso = 'N' where clavemodulo = '" + modulo + "'");
  }
};

// The history of rates.

class TasaVentana : public ConTasas<Tasa_Window> {
 protected:
  Tasa_Window* Abre() { return historia_ = area_.Abre<Tasa_Window>(); }
  /// The entry forms that are open, in the order in which they were opened.
  std::vector<NuevoTasa_Window*> Entradas() { return Todos<NuevoTasa_Window>(historia_->getParent()); }
  FXTable* Tabla(int pagina) { return Todos<FXTable>(historia_).at(pagina); }
  void Pagina(int numero) {
    Pulsa(Todos<FXTabItem>(historia_).at(numero));
    Bombea();
  }
  void DobleClic(FXTable* tabla, FXint renglon, FXint columna = 0) {
    FXTablePos lugar;
    lugar.row = renglon;
    lugar.col = columna;
    tabla->handle(&App(), FXSEL(SEL_DOUBLECLICKED, 0), &lugar);
  }
  /// The entry form for the rate `clave` of a kind.
  NuevoTasa_Window* AbreEntrada(long clave, int tipo = 0) {
    if (historia_ == nullptr) Abre();
    Pagina(tipo);
    Tabla(2)->setItemText(0, 3, std::to_string(clave).c_str());
    const size_t antes = Entradas().size();
    DobleClic(Tabla(tipo), 0);
    Bombea();
    EXPECT_EQ(Entradas().size(), antes + 1);
    Enviado();
    return Entradas().back();
  }
  static void Llena(FXWindow* entrada) {
    EligeOpcion(JuntoA<FXComboBox>(entrada, "Tipo:"), 1);
    Escribe(entrada, "Fecha Inicial:", "01/01/2027");
    Escribe(entrada, "Fecha Final:", "31/12/2027");
    Escribe(entrada, "Tasa:", "11.5");
    Escribe(entrada, "Tasa Moratorio:", "17");
  }
  static Textos Visto(FXWindow* entrada) {
    Bombea();
    Textos campos;
    for (const char* etiqueta : {"Fecha Inicial:", "Fecha Final:", "Tasa:", "Tasa Moratorio:"})
      campos.push_back(Leido(entrada, etiqueta));
    return campos;
  }
  std::string Cuantas() { return base_.Valor("select count(*) from norte.tasa"); }
  long Una() { return std::stol(base_.Valor("select min(tasaid) from norte.tasa")); }
  bool Existe(long clave) {
    return base_.Valor("select count(*) from norte.tasa where tasaid = " + std::to_string(clave)) == "1";
  }

  const Textos Blanca = {"", "", "0", "0"};
  const Textos DeUnRegistroEnBlanco = {"01/01/1900", "01/01/1900", "0", "0"};
  Tasa_Window* historia_ = nullptr;
};

TEST_F(TasaVentana, MuestraTresTablasVaciasYNoPreguntaNada) {
  Enviado();
  gCalculaISRInversion = 7;
  const Textos antes = salida_.Lineas();
  Abre();
  const Textos lineas = salida_.Lineas();
  EXPECT_EQ(Textos(lineas.begin() + static_cast<long>(antes.size()), lineas.end()), DeLaHistoria);
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_EQ(historia_->getTitle(), "Tasa");
  EXPECT_EQ(historia_->getX(), 2);
  EXPECT_EQ(historia_->getY(), 2);
  EXPECT_EQ(historia_->getWidth(), 735);
  EXPECT_EQ(historia_->getHeight(), 420);
  Textos paginas;
  for (const FXTabItem* pagina : Todos<FXTabItem>(historia_)) paginas.push_back(Rotulo(pagina));
  EXPECT_EQ(paginas, (Textos{"&Tasa Prestamo", "&Movimiento", "&Tasa Inversion"}));
  EXPECT_EQ(Rotulados(historia_), (Textos{"&Nuevo", "&Nuevo", "&Nuevo", "&Cerrar"}));
  const std::vector<std::pair<const char*, FXint>> columnas[] = {
      {{"Fecha Inicial", 80},
       {"Fecha Final", 80},
       {"Tipo Prestamo", 100},
       {"Tasa Normal", 100},
       {"Tasa Moratorio", 100}},
      {{"Fecha Inicial", 80}, {"Fecha Final", 80}, {"Tipo Movimiento", 100}, {"Tasa", 100}},
      {{"Fecha Inicial", 80}, {"Fecha Final", 80}, {"Tipo Inversion", 100}, {"Tasa Normal", 100}},
  };
  for (int pagina = 0; pagina < 3; ++pagina) {
    SCOPED_TRACE(pagina);
    Pagina(pagina);
    FXTable* const tabla = Tabla(pagina);
    EXPECT_TRUE(Usable(tabla));
    EXPECT_EQ(tabla->getNumRows(), 20);
    EXPECT_EQ(tabla->getRowHeaderWidth(), 0);
    EXPECT_EQ(tabla->getVisibleRows(), 11);
    EXPECT_EQ(tabla->getVisibleColumns(), 1);
    ASSERT_EQ(tabla->getNumColumns(), static_cast<FXint>(columnas[pagina].size()));
    for (FXint columna = 0; columna < tabla->getNumColumns(); ++columna) {
      EXPECT_EQ(tabla->getColumnText(columna), columnas[pagina][columna].first);
      EXPECT_EQ(tabla->getColumnWidth(columna), columnas[pagina][columna].second);
      for (FXint renglon = 0; renglon < 20; ++renglon) EXPECT_EQ(tabla->getItemText(renglon, columna), "");
    }
  }
  EXPECT_TRUE(mdiArray[100]);
  Pulsa(Boton(historia_, "&Cerrar"));
  Bombea();
  EXPECT_FALSE(mdiArray[100]);
  EXPECT_EQ(gCalculaISRInversion, 7);
}

TEST_F(TasaVentana, SuMapaTieneSusMensajesEnOrden) {
  using W = Tasa_Window;
  FXuint id = FXMDIChild::ID_LAST;
  std::vector<Entrada<W>> mapa = {Mando<W>(id, &W::onCmdAgregar), Mando<W>(id + 1, &W::onCmdFind),
                                  Mando<W>(id + 2, &W::onCmdClear), Mando<W>(id + 3, &W::onCmdNuevo)};
  const FXSelector doble = FXSEL(SEL_DOUBLECLICKED, id + 4);
  const FXSelector senal = FXSEL(SEL_SIGNAL, id + 5);
  mapa.push_back({doble, doble, &W::onCmdEdit});
  mapa.push_back({FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &W::onCmdQuit});
  mapa.push_back({senal, senal, &W::onCmdQuit});
  ExigeMapa(mapa);
  Abre();
  Enviado();
  for (const FXuint mudo : {W::ID_AGREGAR, W::ID_FIND, W::ID_CLEAR})
    EXPECT_EQ(historia_->handle(&App(), FXSEL(SEL_COMMAND, mudo), nullptr), 1);
  EXPECT_EQ(historia_->Load(), 1);
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_EQ(Entradas().size(), 0u);
}

TEST_F(TasaVentana, NuevoAbreUnaEntradaDelTipoDeLaPaginaYTrazaSuNumero) {
  const struct {
    int pagina;
    std::string primero;
    size_t cuantos;
  } tabla[] = {
      {0, Catalogo::TipoPrestamo[0].getDescTipoPrestamo(), Catalogo::TipoPrestamo.size()},
      {1, Catalogo::TipoMovimiento[0].getDescTipoMovimiento(), Catalogo::TipoMovimiento.size()},
      {2, Catalogo::TipoInversiones[0].getDescTipoInversion(), Catalogo::TipoInversiones.size()},
  };
  Abre();
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.pagina);
    Pagina(fila.pagina);
    Enviado();
    Pulsa(Todos<FXButton>(Tabla(fila.pagina)->getParent()->getParent()).back());
    EXPECT_EQ(salida_.Lineas().back(), std::to_string(fila.pagina));
    EXPECT_EQ(Enviado(), Textos{}) << "una tasa nueva no se busca";
    ASSERT_EQ(Entradas().size(), static_cast<size_t>(fila.pagina) + 1);
    NuevoTasa_Window* const entrada = Entradas().back();
    auto* const combo = JuntoA<FXComboBox>(entrada, "Tipo:");
    EXPECT_EQ(combo->getNumItems(), static_cast<FXint>(fila.cuantos));
    EXPECT_EQ(combo->getItemText(0), fila.primero.c_str());
    EXPECT_EQ(Visto(entrada), Blanca);
    EXPECT_TRUE(entrada->id() != 0 && entrada->shown());
  }
  EXPECT_EQ(Cuantas(), base_.Valor("select count(*) from norte.tasa"));
}

TEST_F(TasaVentana, UnDobleClicEnUnaTablaVaciaAbreUnaEntradaConClaveCero) {
  Abre();
  Enviado();
  for (int pagina = 0; pagina < 3; ++pagina) {
    Pagina(pagina);
    DobleClic(Tabla(pagina), 19, 1);
    ASSERT_EQ(Entradas().size(), static_cast<size_t>(pagina) + 1);
    EXPECT_EQ(Visto(Entradas().back()), Blanca);
  }
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_EQ(Manda(Entradas().back(), "&Borrar"), Textos{}) << "la clave 0 no es de ninguna tasa";
  EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spstasa(0);"});
}

TEST_F(TasaVentana, ConLetraGrandeCadaEncabezadoSeVeEntero) {
  FXFont* const comun = App().getNormalFont();
  FXFont grande(&App(), "arial", 180);
  grande.create();
  App().setNormalFont(&grande);
  App().reg().writeUnsignedEntry("SETTINGS", "screenres", 144);
  Abre();
  for (int pagina = 0; pagina < 3; ++pagina)
    for (FXint columna = 0; columna < Tabla(pagina)->getNumColumns(); ++columna) {
      const FXString titulo = Tabla(pagina)->getColumnText(columna);
      EXPECT_GT(Tabla(pagina)->getColumnWidth(columna), grande.getTextWidth(titulo)) << titulo.text();
    }
  App().reg().deleteEntry("SETTINGS", "screenres");
  delete historia_;
  App().setNormalFont(comun);
}

TEST_F(TasaVentana, EnUnRenglonDeLaTablaEnterHaceLoQueElDobleClic) {
  Abre();
  Tabla(0)->setFocus();
  Tabla(0)->setCurrentItem(3, 0);
  Tecla(Tabla(0), KEY_Return, 0, "\r");
  ASSERT_EQ(Entradas().size(), 1u);
  EXPECT_EQ(Visto(Entradas().back()), Blanca);
}

TEST_F(TasaVentana, UnDobleClicFueraDeLosRenglonesNoAbreNada) {
  Abre();
  for (const FXint renglon : {-1, -100, 20, 1000}) DobleClic(Tabla(0), renglon);
  EXPECT_EQ(Entradas().size(), 0u);
}

TEST_F(TasaVentana, LaVentanaSoloRecuerdaLaUltimaTabla) {
  Abre();
  const long clave = Una();
  const std::string busqueda = "SELECT * FROM spstasa(" + std::to_string(clave) + ");";
  Tabla(0)->setItemText(4, 3, std::to_string(clave).c_str());
  Enviado();
  DobleClic(Tabla(0), 4);
  EXPECT_EQ(Enviado(), Textos{}) << "lo que dice la propia no cuenta";
  Tabla(2)->setItemText(4, 3, (" " + std::to_string(clave) + "abc").c_str());
  DobleClic(Tabla(0), 4);
  EXPECT_EQ(Enviado(), Textos{busqueda});
  EXPECT_EQ(salida_.Lineas().back(), busqueda);
  EXPECT_EQ(Visto(Entradas().back()), DeUnRegistroEnBlanco) << "la entrada muestra un registro en blanco";
  EXPECT_EQ(JuntoA<FXComboBox>(Entradas().back(), "Tipo:")->getNumItems(),
            static_cast<FXint>(Catalogo::TipoPrestamo.size()));
  for (const char* texto : {"x", "-5", "%s%n", "ñ"}) {
    Tabla(2)->setItemText(4, 3, texto);
    DobleClic(Tabla(1), 4);
    EXPECT_EQ(Enviado(), Textos{}) << texto;
    EXPECT_EQ(Visto(Entradas().back()), Blanca);
  }
}

// The entry form.

TEST_F(TasaVentana, LaEntradaTieneSusCamposEnOrdenYNadaCortado) {
  NuevoTasa_Window* const entrada = AbreEntrada(-1);
  EXPECT_EQ(entrada->getTitle(), "");
  EXPECT_EQ(entrada->getX(), 20);
  EXPECT_EQ(entrada->getY(), 20);
  EXPECT_EQ(entrada->getWidth(), 550);
  EXPECT_EQ(entrada->getHeight(), 200);
  EXPECT_EQ(Etiquetas(entrada),
            (Textos{"Tipo:", "Fecha Inicial:", "Fecha Final:", "Tasa:", "Tasa Moratorio:"}));
  EXPECT_EQ(Rotulados(entrada), (Textos{"&Nuevo", "&Borrar", "&Cerrar", "&Aceptar"}));
  EXPECT_EQ(JuntoA<FXComboBox>(entrada, "Tipo:")->getNumVisible(), 10);
  EXPECT_TRUE(JuntoA<FXComboBox>(entrada, "Tipo:")->getComboStyle() & COMBOBOX_STATIC);
  for (const char* etiqueta : {"Fecha Inicial:", "Fecha Final:"}) {
    EXPECT_NE(dynamic_cast<cFecha*>(CampoJuntoA(entrada, etiqueta)), nullptr);
    EXPECT_EQ(CampoJuntoA(entrada, etiqueta)->getNumColumns(), 10);
  }
  for (const char* etiqueta : {"Tasa:", "Tasa Moratorio:"}) {
    const FXTextField* const campo = CampoJuntoA(entrada, etiqueta);
    EXPECT_EQ(campo->getNumColumns(), 10);
    EXPECT_EQ(campo->getTextStyle() & (TEXTFIELD_LIMITED | TEXTFIELD_REAL | TEXTFIELD_ENTER_ONLY),
              FXuint{TEXTFIELD_LIMITED | TEXTFIELD_REAL | TEXTFIELD_ENTER_ONLY});
    EXPECT_EQ(campo->getJustify() & JUSTIFY_RIGHT, FXuint{JUSTIFY_RIGHT});
  }
  ExigeNadaCortado(entrada);
}

TEST_F(TasaVentana, AceptarConTodoLlenoNoPreguntaNiEscribeNada) {
  const std::string antes = Cuantas();
  for (const long clave : {-1L, 0L, Una()}) {
    SCOPED_TRACE(clave);
    NuevoTasa_Window* const entrada = AbreEntrada(clave);
    Llena(entrada);
    const Textos visto = Visto(entrada);
    EXPECT_EQ(visto, (Textos{"01/01/2027", "31/12/2027", "11.5", "17"}));
    Enviado();
    for (int vez = 0; vez < 2; ++vez) {
      EXPECT_EQ(Manda(entrada, "&Aceptar"), Textos{});
      EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spstasa(0);"});
    }
    EXPECT_EQ(Visto(entrada), visto);
  }
  EXPECT_EQ(Cuantas(), antes);
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(TasaVentana, NuevoVaciaLaEntradaYLaEleccionDeUnTipoNoHaceNada) {
  NuevoTasa_Window* const entrada = AbreEntrada(-1);
  Llena(entrada);
  Enviado();
  EXPECT_EQ(entrada->handle(&App(), FXSEL(SEL_COMMAND, NuevoTasa_Window::ID_LISTA), nullptr), 1);
  EXPECT_EQ(Visto(entrada), (Textos{"01/01/2027", "31/12/2027", "11.5", "17"}));
  EXPECT_EQ(Manda(entrada, "&Nuevo"), Textos{});
  EXPECT_EQ(Visto(entrada), Blanca);
  EXPECT_EQ(Enviado(), Textos{});
}

TEST_F(TasaVentana, BorrarSinTasaVaciaCalladoYConTasaPregunta) {
  NuevoTasa_Window* entrada = AbreEntrada(-1);
  Llena(entrada);
  Enviado();
  EXPECT_EQ(Manda(entrada, "&Borrar"), Textos{});
  EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spstasa(-1);"});
  EXPECT_EQ(Visto(entrada), Blanca);

  const long clave = Una();
  const std::string numero = std::to_string(clave);
  entrada = AbreEntrada(clave);
  Llena(entrada);
  Enviado();
  EXPECT_EQ(Manda(entrada, "&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(cuadros_.back().titulo, "Tasa");
  EXPECT_EQ(cuadros_.back().clase, Clase::Pregunta);
  EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spstasa(" + numero + ");"});
  EXPECT_EQ(Visto(entrada), DeUnRegistroEnBlanco);
  EXPECT_TRUE(Existe(clave));
  EXPECT_EQ(Manda(entrada, "&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Enviado(), (Textos{"SELECT * FROM spstasa(" + numero + ");", "BEGIN;",
                               "SELECT spdtasa(" + numero + ");", "COMMIT;"}));
  EXPECT_EQ(Visto(entrada), Blanca);
  EXPECT_FALSE(Existe(clave));
  EXPECT_EQ(Manda(entrada, "&Borrar"), Textos{}) << "ya no está";
}

TEST_F(TasaVentana, LaNuevaEntradaLlevaLaClaveMenosUno) {
  Abre();
  Pulsa(Boton(historia_, "&Nuevo"));
  Enviado();
  Manda(Entradas().back(), "&Borrar");
  EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spstasa(-1);"});
}

TEST_F(TasaVentana, UnBorradoRechazadoOCortadoLoDiceYNoQuedaAMedias) {
  const long clave = Una();
  NuevoTasa_Window* const entrada = AbreEntrada(clave);
  QuitaDerecho("0424");
  EXPECT_NE(Manda(entrada, "&Borrar", {Respuesta::Si, Respuesta::Aceptar}).at(1).find("No tiene permiso"),
            std::string::npos);
  EXPECT_EQ(cuadros_.back().titulo, "Error en Validación");
  EXPECT_EQ(cuadros_.back().clase, Clase::Error);
  EXPECT_EQ(Enviado().back(), "ROLLBACK;");
  EXPECT_EQ(Profundidad(), 0);
  base_.Ejecuta("update norte.permisomodulo set permiso = 'S' where clavemodulo = '0424'");
  for (size_t n = 0; n < 4; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      const bool existia = Existe(clave);
      const bool hallada = existia && n > 0;  // a lost answer reads as a missing rate
      std::vector<Respuesta> respuestas;
      if (hallada) respuestas = {Respuesta::Si, Respuesta::Aceptar};
      Manda(entrada, "&Borrar", respuestas);
      EXPECT_EQ(Profundidad(), 0);
      espia_.Vacia();
      Reconecta();
      EXPECT_EQ(Existe(clave), !(n == 3 && despues));
    }
  }
}

TEST_F(TasaVentana, CadaCalendarioEsDeSuFecha) {
  NuevoTasa_Window* const entrada = AbreEntrada(-1);
  Llena(entrada);
  const char* const etiquetas[] = {"Fecha Inicial:", "Fecha Final:"};
  for (int cual = 0; cual < 2; ++cual) {
    const std::string dia = cual == 0 ? "20" : "5";
    Guion guion;
    guion.Con([&](FXDialogBox* calendario) {
      EXPECT_STREQ(calendario->getClassName(), "Calendario_Window");
      Pulsa(Boton(calendario, dia));
      Pulsa(Boton(calendario, "&Aceptar"));
    });
    Pulsa(JuntoA<FXButton>(entrada, etiquetas[cual]));
  }
  EXPECT_EQ(Visto(entrada), (Textos{"20/01/2027", "05/12/2027", "11.5", "17"}));
  const std::pair<const char*, const char*> cancelados[] = {
      {"1/2/06", "01/02/0006"},     {"31/02/2026", "31/02/2026"}, {"1/1/1", "01/01/0001"},
      {"00/00/0000", "00/00/0000"}, {"1//", "01/00/0000"},        {"", "00/00/0000"},
      {"12/13/2026", "12/13/2026"},
  };
  for (const auto& [tecleado, queda] : cancelados) {
    Escribe(entrada, "Fecha Final:", tecleado);
    Guion guion;
    guion.Responde("&Cerrar");
    Pulsa(JuntoA<FXButton>(entrada, "Fecha Final:"));
    EXPECT_EQ(Leido(entrada, "Fecha Final:"), queda) << tecleado;
  }
  EXPECT_EQ(Leido(entrada, "Fecha Inicial:"), "20/01/2027");
}

TEST_F(TasaVentana, VariasEntradasALaVezNoSeEstorban) {
  AbreEntrada(-1, 0);
  AbreEntrada(Una(), 1);
  AbreEntrada(0, 2);
  const std::vector<NuevoTasa_Window*> entradas = Entradas();
  ASSERT_EQ(entradas.size(), 3u);
  Llena(entradas[0]);
  Escribe(entradas[1], "Tasa:", "2");
  EXPECT_EQ(Visto(entradas[0]), (Textos{"01/01/2027", "31/12/2027", "11.5", "17"}));
  EXPECT_EQ(Visto(entradas[1]), (Textos{"01/01/1900", "01/01/1900", "2", "0"}));
  EXPECT_EQ(Visto(entradas[2]), Blanca);
  Pulsa(Boton(entradas[1], "&Cerrar"));
  Bombea();
  ASSERT_EQ(Entradas().size(), 2u);
  Pulsa(Boton(historia_, "&Cerrar"));  // the entry forms outlive it
  Bombea();
  EXPECT_EQ(Visto(entradas[0]).at(2), "11.5");
  EXPECT_EQ(Manda(entradas[0], "&Aceptar"), Textos{});
  EXPECT_FALSE(mdiArray[100]);
}

// The names of the series.

constexpr const char* Listado = "SELECT * FROM subtipotasa('a','null','null','null');";

class TasaInteresVentana : public ConTasas<TasaInteres_Window> {
 protected:
  void Abre() {
    forma_ = area_.Abre<TasaInteres_Window>();
    Enviado();
  }
  FXText* Parrafo() { return Todos<FXText>(forma_).at(0); }
  std::string Nombre() { return Leido(forma_, "TipoTasaVariable:"); }
  std::string Descripcion() { return Parrafo()->getText().text(); }
  void Llena(const std::string& nombre, const std::string& descripcion) {
    Escribe(forma_, "TipoTasaVariable:", nombre);
    Parrafo()->setText(descripcion.c_str());
  }
  Textos Lista() { return Renglones(); }
  /// What a command sends that carries out `sql`, and lists everything anew.
  static Textos Y_Listado(const std::string& sql) {
    return {"BEGIN;", sql, "COMMIT;", "BEGIN;", Listado, "COMMIT;"};
  }
  std::string EnServidor(const std::string& nombre) {
    const Tabla filas =
        base_.Filas("select descripcion from norte.tipotasa where tipotasa = $n$" + nombre + "$n$");
    return filas.empty() ? "(no está)" : filas[0][0];
  }
};

TEST_F(TasaInteresVentana, SeAbreConLaListaYLaPrimeraSerie) {
  forma_ = area_.Abre<TasaInteres_Window>();
  EXPECT_EQ(espia_.Sentencias().back(), "COMMIT;");
  EXPECT_EQ(espia_.Cuantas(Listado), 1u);
  EXPECT_EQ(forma_->getTitle(), "Tipo Tasa Variables");
  EXPECT_EQ(Titulos(forma_), (Textos{"Tasa Interes", "Parametros", "Observaciones", ""}));
  EXPECT_EQ(Etiquetas(forma_), (Textos{"TipoTasaVariable:", "Descripcion:"}));
  EXPECT_EQ(Botones(forma_), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
  EXPECT_EQ(pruebas::Lista(forma_)->getWidth(), 150);
  EXPECT_EQ(CampoJuntoA(forma_, "TipoTasaVariable:")->getNumColumns(), 4);
  EXPECT_EQ(
      CampoJuntoA(forma_, "TipoTasaVariable:")->getTextStyle() & (TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY),
      FXuint{TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY});
  EXPECT_EQ(Parrafo()->getVisibleRows(), 2);
  EXPECT_EQ(Parrafo()->getVisibleColumns(), 40);
  EXPECT_EQ(Lista(), (Textos{"CCP", "CETES", "TIIE"}));
  EXPECT_EQ(Nombre(), "CCP");
  EXPECT_EQ(Descripcion(), "Costo de captación a plazo: promedio del mes y cierre");
  ExigeNadaCortado(forma_);
}

TEST_F(TasaInteresVentana, SuMapaEsElDeLasFormas) {
  using W = TasaInteres_Window;
  const FXuint id = FXDialogBox::ID_LAST;
  const FXSelector senal = FXSEL(SEL_SIGNAL, id + 5);
  ExigeMapa<W>({Mando<W>(id, &W::onCmdAgregar),
                Mando<W>(id + 1, &W::onCmdFind),
                Mando<W>(id + 2, &W::onCmdClear),
                Mando<W>(id + 3, &W::onCmdBorrar),
                Mando<W>(id + 4, &W::onCmdTasaInteres),
                {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &W::onCmdQuit},
                {senal, senal, &W::onCmdQuit}});
}

TEST_F(TasaInteresVentana, SinSeriesSeAbreVaciaYAguanta) {
  base_.Ejecuta("truncate norte.tipotasa cascade");
  Abre();
  EXPECT_EQ(Lista(), Textos{});
  EXPECT_EQ(Nombre() + Descripcion(), "");
  EXPECT_EQ(forma_->onCmdTasaInteres(nullptr, 0, nullptr), 0);
  forma_->Read(0);
  forma_->Read(-1);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"Los  campos estan vacios "});
}

TEST_F(TasaInteresVentana, ElRenglonElegidoSeMuestraSinPreguntarAlServidor) {
  Abre();
  EligeRenglon(pruebas::Lista(forma_), 2);
  EXPECT_EQ(Nombre(), "TIIE");
  EXPECT_EQ(Descripcion(), "Tasa interbancaria de equilibrio a 28 días: promedio del mes y cierre");
  EXPECT_STREQ(tasas.getTipotasa(), "TIIE");
  EXPECT_EQ(Enviado(), Textos{});
}

TEST_F(TasaInteresVentana, SinDescripcionNadaSeHace) {
  Abre();
  const struct {
    const char *boton, *texto;
    bool nueva;
  } tabla[] = {
      {"&Aceptar", "Los  campos estan vacios ", true},
      {"&Aceptar", "Los  campos estan vacios ", false},
      {"&Borrar", "No hay nada que borrar ", false},
  };
  for (const auto& fila : tabla) {
    flag = fila.nueva;
    Llena("CCP", "");
    EXPECT_EQ(Manda(fila.boton, {Respuesta::Aceptar}), Textos{fila.texto});
    EXPECT_EQ(cuadros_.back().titulo, "Mensaje");
    EXPECT_EQ(cuadros_.back().clase, Clase::Informacion);
    EXPECT_EQ(Enviado(), Textos{});
    EXPECT_EQ(Nombre(), "CCP") << "la forma queda como estaba";
    EXPECT_EQ(flag, fila.nueva);
  }
}

TEST_F(TasaInteresVentana, LosTresValoresSonTextosQueQuedanAlCerrar) {
  static_assert(std::is_same_v<decltype(tasa), char*> && std::is_same_v<decltype(des), char*> &&
                std::is_same_v<decltype(neww), char*>);
  static_assert(sizeof Buffers == 200 && sizeof sDescripciones == 100);
  Abre();
  EligeRenglon(pruebas::Lista(forma_), 1);
  Llena("QZ", "Serie de prueba");
  forma_->Update();
  Cierra();
  EXPECT_EQ((Textos{tasa, des, neww}), (Textos{"QZ", "Serie de prueba", "CETES"}));
}

TEST_F(TasaInteresVentana, TrasNuevoAceptarInserta) {
  Abre();
  EXPECT_EQ(Manda("&Nuevo"), Textos{});
  EXPECT_TRUE(flag);
  EXPECT_EQ(Nombre() + Descripcion(), "");
  Llena("QZ", "Serie de prueba");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"Se ha insertado la tasa correctamente "});
  EXPECT_EQ(cuadros_.back().titulo, "Mensaje");
  EXPECT_EQ(cuadros_.back().clase, Clase::Informacion);
  const std::string sql = "SELECT * FROM subtipotasa('b','QZ','Serie de prueba','null');";
  EXPECT_EQ(Enviado(), Y_Listado(sql));
  EXPECT_EQ(salida_.Lineas().back(), sql);
  EXPECT_EQ(Buffers, sql);
  EXPECT_STREQ(tasa, "QZ");
  EXPECT_STREQ(des, "Serie de prueba");
  EXPECT_EQ(Lista(), (Textos{"CCP", "CETES", "QZ", "TIIE"}));
  EXPECT_EQ(Nombre() + Descripcion(), "");
  EXPECT_FALSE(flag);
  EXPECT_EQ(EnServidor("QZ"), "Serie de prueba");
}

TEST_F(TasaInteresVentana, SinNuevoAceptarPreguntaYCambia) {
  Abre();
  EligeRenglon(pruebas::Lista(forma_), 0);
  Llena("CPP", "Costo");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Esta seguro que quiere modificar la tasa"});
  EXPECT_EQ(cuadros_.back().titulo, "Modifica tasa");
  EXPECT_EQ(cuadros_.back().clase, Clase::Pregunta);
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", Listado, "COMMIT;"}));
  EXPECT_EQ(Nombre() + Descripcion(), "");
  EXPECT_EQ(EnServidor("CPP"), "(no está)");
  EligeRenglon(pruebas::Lista(forma_), 0);
  Llena("CPP", "Costo");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Esta seguro que quiere modificar la tasa"});
  const std::string sql = "SELECT * FROM subtipotasa('d','CPP','Costo','CCP');";
  EXPECT_EQ(Enviado(), Y_Listado(sql));
  EXPECT_EQ(salida_.Lineas().back(), sql);
  EXPECT_STREQ(neww, "CCP");
  EXPECT_EQ(EnServidor("CPP"), "Costo");
  EXPECT_EQ(Lista(), (Textos{"CETES", "CPP", "TIIE"}));
}

TEST_F(TasaInteresVentana, BorrarPreguntaYBorra) {
  base_.Ejecuta("insert into norte.tipotasa values ('AAA', 'Prueba')");
  Abre();
  EXPECT_EQ(Nombre(), "AAA");
  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Esta seguro de eliminar la tasa"});
  EXPECT_EQ(cuadros_.back().titulo, "Elimina tasa");
  EXPECT_EQ(cuadros_.back().clase, Clase::Pregunta);
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", Listado, "COMMIT;"}));
  EXPECT_EQ(Nombre() + Descripcion(), "");
  EligeRenglon(pruebas::Lista(forma_), 0);
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Esta seguro de eliminar la tasa"});
  const std::string sql = "SELECT * FROM subtipotasa('c','AAA','Prueba','null');";
  EXPECT_EQ(Enviado(), Y_Listado(sql));
  EXPECT_EQ(salida_.Lineas().back(), sql);
  EXPECT_EQ(EnServidor("AAA"), "(no está)");
}

TEST_F(TasaInteresVentana, BuscarNoHaceNada) {
  Abre();
  EXPECT_EQ(Manda("&Buscar"), Textos{});
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_EQ(Nombre(), "CCP");
}

TEST_F(TasaInteresVentana, LaMarcaDeNuevoDuraMasQueLaForma) {
  Abre();
  Manda("&Nuevo");
  {
    Area otra;
    forma_ = otra.Abre<TasaInteres_Window>();
    EXPECT_EQ(Nombre(), "CCP");
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"Se ha insertado la tasa correctamente "});
  }
  EXPECT_EQ(EnServidor("CCP"), "Costo de captación a plazo: promedio del mes y cierre");
}

TEST_F(TasaInteresVentana, LoQueElServidorRechazaNoSeDiceNiQuedaAMedias) {
  Abre();
  const Textos antes = Lista();
  const std::pair<std::string, std::string> pares[] = {
      {"CCP", "Ya existe"},           {"O'H", "apóstrofo"}, {"QZ", "a'b"},
      {"QZ", std::string(5000, 'x')}, {"", "Sin nombre"},
  };
  for (const auto& [nombre, descripcion] : pares) {
    SCOPED_TRACE(nombre);
    Manda("&Nuevo");
    Llena(nombre, descripcion);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"Se ha insertado la tasa correctamente "});
    EXPECT_EQ(Lista(), antes);
    EXPECT_EQ(PQtransactionStatus(conn), PQTRANS_IDLE);
  }
  EligeRenglon(pruebas::Lista(forma_), 0);
  Manda("&Borrar", {Respuesta::Si});  // a series in use
  EXPECT_EQ(Lista(), antes);
  QuitaDerecho("0217");
  EligeRenglon(pruebas::Lista(forma_), 0);
  Llena("XX", "Sin derecho");
  Manda("&Aceptar", {Respuesta::Si});
  EXPECT_EQ(Lista(), antes);
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(TasaInteresVentana, LosTextosLargosYConSignosLleganComoSeDice) {
  Abre();
  const std::string acentos = TextoAcentuado(259);
  const struct {
    std::string nombre, descripcion, queda;
  } tabla[] = {
      {"QA", "100%% al 5% de %s%n%d", "100% al 5% de %s%n%d"},
      {"QB", "barra \\ invertida \\n", "barra \\ invertida \\n"},
      {"QC", acentos, acentos},
      {"ñññ", "dos\nlíneas\tcon \"comillas\"", "dos\nlíneas\tcon \"comillas\""},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.nombre);
    Manda("&Nuevo");
    Llena(fila.nombre, fila.descripcion);
    Manda("&Aceptar", {Respuesta::Aceptar});
    EXPECT_EQ(EnServidor(fila.nombre), fila.queda);
  }
  EXPECT_EQ(std::string(Buffers).find("SELECT * FROM subtipotasa('b',"), 0u);
  Escribe(forma_, "TipoTasaVariable:", "ÑÑÑÑÑÑ");
  EXPECT_EQ(Nombre(), "ÑÑÑÑ");
}

TEST_F(TasaInteresVentana, UnaTransaccionQueNoSeAbreLanzaSuTextoSinCuadroPropio) {
  const struct {
    const char* boton;
    bool nueva;
    std::vector<Respuesta> respuestas;
  } tabla[] = {
      {"&Aceptar", true, {}},
      {"&Aceptar", false, {Respuesta::Si}},
      {"&Aceptar", false, {Respuesta::No}},  // the list alone
      {"&Borrar", false, {Respuesta::Si}},
      {"&Borrar", false, {Respuesta::No}},
  };
  Abre();
  for (const auto& fila : tabla) {
    for (const Falla& falla : {falla::Error("No"), falla::Nula(), falla::CorteAntes()}) {
      EligeRenglon(pruebas::Lista(forma_), 0);
      Llena("QQ", "Prueba");
      flag = fila.nueva;
      espia_.Vacia();
      espia_.En(0, falla);
      EXPECT_EQ(Lanzado([&] { Manda(fila.boton, fila.respuestas); }),
                "Error al cargar catalogo de tipo tasas.");
      EXPECT_EQ(Enviado(), Textos{"BEGIN;"});
      Reconecta();
      forma_->Load();  // it was emptied ahead of the failure
    }
  }
}

TEST_F(TasaInteresVentana, TambienAlAbrirse) {
  espia_.Cuando("BEGIN;", falla::Error("No"));
  EXPECT_EQ(Lanzado([&] { area_.Abre<TasaInteres_Window>(); }), "Error al cargar catalogo de tipo tasas.");
}

TEST_F(TasaInteresVentana, CortadaEnCadaSentenciaQuedaEnteraONoQueda) {
  Abre();
  for (size_t n = 0; n < 6; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      base_.Ejecuta("delete from norte.tipotasa where tipotasa = 'QZ'");
      Llena("QZ", "Prueba");
      flag = true;
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      const auto dicho = Lanzado([&] {
        Guion guion;
        guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
        Pulsa(Boton(forma_, "&Aceptar"));
      });
      EXPECT_EQ(dicho.has_value(), n <= 3);  // up to the second BEGIN, with which the list is read anew
      espia_.Vacia();
      Reconecta();
      EXPECT_EQ(EnServidor("QZ") == "Prueba", n > 2 || (n == 2 && despues));
    }
  }
}

// The periods of the series.

constexpr const char* Listados = "SELECT * FROM spstasavariable(0);";

class TipoTasaInteresVentana : public ConTasas<TipoTasaInteres_Window> {
 protected:
  void Abre() {
    forma_ = area_.Abre<TipoTasaInteres_Window>();
    Enviado();
  }
  void Llena(const Textos& valores) {
    size_t i = 0;
    for (const char* etiqueta : Rotulos) Escribe(forma_, etiqueta, valores.at(i++));
  }
  Textos Visto() {
    Bombea();
    Textos campos;
    for (const char* etiqueta : Rotulos) campos.push_back(Leido(forma_, etiqueta));
    return campos;
  }
  static Textos Y_Lista(const std::string& sql) {
    return {"BEGIN;", sql, "COMMIT;", "BEGIN;", Listados, "COMMIT;"};
  }
  std::string EnServidor(int id) {
    const Tabla filas =
        base_.Filas("select t::text from norte.tasavariable t where tasavariableid = " + std::to_string(id));
    return filas.empty() ? "" : filas[0][0];
  }
  std::string Cuantas() { return base_.Valor("select count(*) from norte.tasavariable"); }
  void ComoPropietario(const std::string& sql) {
    base_.Ejecuta("set role tolvara_propietario;" + sql + ";reset role");
  }

  static constexpr const char* Rotulos[] = {
      "Tipo Tasa:", "Fecha Inicio:", "Fecha Final:", "Valor 1:", "Valor 2:"};
  const Textos Nuevo = {"TIIE", "01/11/2026", "30/11/2026", "1.5", "2.5"};
  const Textos Vacio = {"", "", "", "0", "0"};
  const std::string Alta = "SELECT * FROM spitasavariable('TIIE', '2026-11-01','2026-11-30',0,1073217536);";
};

TEST_F(TipoTasaInteresVentana, SeAbreConLaListaYLosCamposEnOrden) {
  forma_ = area_.Abre<TipoTasaInteres_Window>();
  EXPECT_EQ(espia_.Cuantas(Listados), 1u);
  EXPECT_EQ(salida_.Lineas().back(), "terminando creacion frm tasavariable");
  EXPECT_EQ(salida_.Lineas().at(salida_.Lineas().size() - 2), Listados);
  EXPECT_EQ(forma_->getTitle(), "Tasas Variables");
  EXPECT_EQ(Titulos(forma_), (Textos{"Tasa Interes", "Fechas", "Parametros", ""}));
  EXPECT_EQ(Etiquetas(forma_), Textos(std::begin(Rotulos), std::end(Rotulos)));
  EXPECT_EQ(Rotulados(forma_), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
  const struct {
    const char* etiqueta;
    FXint columnas;
    FXuint estilo, lado;
  } campos[] = {
      {"Tipo Tasa:", 5, TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY, JUSTIFY_LEFT},
      {"Fecha Inicio:", 10, TEXTFIELD_LIMITED, JUSTIFY_LEFT},
      {"Fecha Final:", 10, TEXTFIELD_LIMITED, JUSTIFY_LEFT},
      {"Valor 1:", 20, TEXTFIELD_LIMITED | TEXTFIELD_REAL, JUSTIFY_RIGHT},
      {"Valor 2:", 20, TEXTFIELD_LIMITED | TEXTFIELD_REAL, JUSTIFY_RIGHT},
  };
  for (const auto& campo : campos) {
    SCOPED_TRACE(campo.etiqueta);
    const FXTextField* const pieza = CampoJuntoA(forma_, campo.etiqueta);
    EXPECT_EQ(pieza->getNumColumns(), campo.columnas);
    EXPECT_EQ(pieza->getTextStyle() & (TEXTFIELD_LIMITED | TEXTFIELD_ENTER_ONLY | TEXTFIELD_REAL),
              campo.estilo);
    EXPECT_EQ(pieza->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), campo.lado);
  }
  EXPECT_EQ(Lista(forma_)->getNumItems(), 102);
  EXPECT_EQ(Lista(forma_)->getItemText(0), "1        CCP");
  EXPECT_EQ(Lista(forma_)->getItemText(40), "41      CETES");
  EXPECT_EQ(Visto(), Vacio);
  EXPECT_TRUE(tasainteres.IsNew());
  ExigeNadaCortado(forma_);
}

TEST_F(TipoTasaInteresVentana, SuMapaEsElDeLasFormasConSusCalendarios) {
  using W = TipoTasaInteres_Window;
  const FXuint id = FXDialogBox::ID_LAST;
  const FXSelector senal = FXSEL(SEL_SIGNAL, id + 7);
  ExigeMapa<W>({Mando<W>(id, &W::onCmdAgregar),
                Mando<W>(id + 1, &W::onCmdFind),
                Mando<W>(id + 2, &W::onCmdClear),
                Mando<W>(id + 3, &W::onCmdBorrar),
                Mando<W>(id + 4, &W::onCmdLista),
                Mando<W>(id + 5, &W::onCmdCalendario),
                Mando<W>(id + 6, &W::onCmdCalendario),
                {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_CLOSE, 0), &W::onCmdQuit},
                {senal, senal, &W::onCmdQuit}});
  Abre();
  EXPECT_EQ(forma_->onCmdTasas(nullptr, 0, nullptr), 0);
}

TEST_F(TipoTasaInteresVentana, ElRenglonElegidoSeLeeDelServidorYSeTraza) {
  Abre();
  EligeRenglon(Lista(forma_), 40);
  EXPECT_EQ(Enviado(), Textos{"SELECT * FROM spstasavariable(41);"});
  const Textos lineas = salida_.Lineas();
  EXPECT_EQ(Textos(lineas.end() - 2, lineas.end()),
            (Textos{"tasaid:41", "SELECT * FROM spstasavariable(41);"}));
  EXPECT_EQ(iTasainteresId, 41);
  EXPECT_FALSE(tasainteres.IsNew());
  EXPECT_FALSE(tasainteres.getDataChanged());
  const Textos fila = base_.Filas(
      "select tipotasa, to_char(fechainicial, 'DD/MM/YYYY'), to_char(fechafinal, 'DD/MM/YYYY'),"
      " trim_scale(valor1)::text, trim_scale(valor2)::text from norte.tasavariable where tasavariableid = 41")
                          [0];
  EXPECT_EQ(Visto(), fila);
}

TEST_F(TipoTasaInteresVentana, UnPeriodoSinFechaFinalLaMuestraEnBlanco) {
  ComoPropietario("update norte.tasavariable set fechafinal = null where tasavariableid = 1");
  Abre();
  EligeRenglon(Lista(forma_), 0);
  EXPECT_EQ(Visto().at(2), "");
  EXPECT_EQ(Manda("&Aceptar"), Textos{}) << "la misma fecha no es un cambio";
}

TEST_F(TipoTasaInteresVentana, UnPeriodoNuevoSeInsertaSinLosValoresYSeCorrigeConEllos) {
  Abre();
  EXPECT_EQ(Manda("&Nuevo"), Textos{});
  Llena(Nuevo);
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
  EXPECT_EQ(cuadros_.back().titulo, "tasasinteres");
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  EXPECT_EQ(Enviado(), Y_Lista(Alta));
  const int id = tasainteres.getTasainteresId();
  const std::string clave = std::to_string(id);
  EXPECT_EQ(EnServidor(id), "(" + clave + ",TIIE,2026-11-01,2026-11-30,0.000000,1073217536.000000)");
  EXPECT_EQ(Lista(forma_)->getNumItems(), 103);
  EXPECT_EQ(RenglonActual(), (clave + "       TIIE").c_str()) << "la lista vuelve a él";
  EXPECT_EQ(Manda("&Aceptar"), Textos{}) << "nada ha cambiado";

  Escribe(forma_, "Valor 1:", "1.75");
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Guardar cambios realizados ?"});
  const std::string cambio =
      "select * from sputasavariable(" + clave + ",'TIIE','2026-11-01','2026-11-30',1.750000,2.500000);";
  EXPECT_EQ(Enviado(), Y_Lista(cambio));
  EXPECT_EQ(RenglonActual(), (clave + "       TIIE").c_str());
  EXPECT_EQ(EnServidor(id), "(" + clave + ",TIIE,2026-11-01,2026-11-30,1.750000,2.500000)");
}

TEST_F(TipoTasaInteresVentana, LoQueElServidorNoAdmiteSeDiceYNoSeGuarda) {
  Abre();
  const std::string antes = Cuantas();
  const std::pair<size_t, const char*> malos[] = {
      {0, ""},           {0, "O'H"},        {0, "%s%"},        {0, "\\"},         {0, "ÑÑÑÑÑÑ"},
      {1, ""},           {1, "31/02/2026"}, {1, "00/00/0000"}, {1, "1/1/1"},      {1, "1//"},
      {1, "12/13/2026"}, {1, "12/00/2026"}, {2, "31/02/2026"}, {2, "01/01/2020"},
  };
  for (const auto& [campo, valor] : malos) {
    SCOPED_TRACE(valor);
    Textos valores = Nuevo;
    valores[campo] = valor;
    Manda("&Nuevo");
    tasainteres.Clear();
    tasainteres.setIsNew(true);
    Llena(valores);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}).size(), 2u);
    EXPECT_EQ(cuadros_.back().titulo, "Error en Validación");
    EXPECT_EQ(Enviado().back(), "ROLLBACK;");
    EXPECT_EQ(Profundidad(), 0);
  }
  EXPECT_EQ(Cuantas(), antes);
}

TEST_F(TipoTasaInteresVentana, LosValoresDesmedidosEntranPorMitadesYNoSeCorrigen) {
  Abre();
  for (const char* valor : {"1e308", "1e30", "-1e30", "-0.0001", "1e-320", ""}) {
    SCOPED_TRACE(valor);
    Textos valores = Nuevo;
    valores[3] = valor;
    Manda("&Nuevo");
    Llena(valores);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
  }
  Escribe(forma_, "Valor 1:", "1e308");
  EXPECT_NE(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}).at(1).find("el primer valor"),
            std::string::npos);
}

TEST_F(TipoTasaInteresVentana, BorrarPreguntaYBorraElUltimoElegido) {
  Abre();
  EligeRenglon(Lista(forma_), 0);
  Enviado();
  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(cuadros_.back().titulo, "tasasinteres");
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_NE(Visto(), Vacio);
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Enviado(), Y_Lista("delete from tasavariable where tasavariableid=1;"));
  EXPECT_EQ(EnServidor(1), "");
  EXPECT_EQ(Lista(forma_)->getNumItems(), 101);
  EXPECT_EQ(Visto(), Vacio);
  EXPECT_TRUE(tasainteres.IsNew());
}

TEST_F(TipoTasaInteresVentana, SinNingunoElegidoBorrarSoloVuelveALeerLaLista) {
  Abre();
  Escribe(forma_, "Tipo Tasa:", "TIIE");
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", Listados, "COMMIT;"}));
  EXPECT_EQ(Visto(), Vacio);
}

TEST_F(TipoTasaInteresVentana, SinDerechoElServidorSeNiegaYLaFormaSigue) {
  Abre();
  EligeRenglon(Lista(forma_), 0);
  QuitaDerecho("0217");
  Escribe(forma_, "Valor 1:", "9");
  const std::pair<const char*, const char*> botones[] = {
      {"&Aceptar", "No tiene permiso"},
      {"&Borrar", "permission denied for table tasavariable"},
  };
  for (const auto& [boton, mensaje] : botones)
    EXPECT_NE(Manda(boton, {Respuesta::Si, Respuesta::Aceptar}).at(1).find(mensaje), std::string::npos);
  EXPECT_NE(EnServidor(1), "");
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(TipoTasaInteresVentana, BuscarNoHaceNada) {
  Abre();
  Llena(Nuevo);
  EXPECT_EQ(Manda("&Buscar"), Textos{});
  EXPECT_EQ(Enviado(), Textos{});
  EXPECT_EQ(Visto(), Nuevo);
}

TEST_F(TipoTasaInteresVentana, CadaCalendarioEsDeSuFecha) {
  Abre();
  Llena(Nuevo);
  for (const char* etiqueta : {"Fecha Inicio:", "Fecha Final:"}) {
    Guion guion;
    guion.Con([&](FXDialogBox* calendario) {
      Pulsa(Boton(calendario, etiqueta == std::string("Fecha Inicio:") ? "7" : "8"));
      Pulsa(Boton(calendario, "&Aceptar"));
    });
    Pulsa(JuntoA<FXButton>(forma_, etiqueta));
  }
  EXPECT_EQ(Visto(), (Textos{"TIIE", "07/11/2026", "08/11/2026", "1.5", "2.5"}));
}

TEST_F(TipoTasaInteresVentana, SinPeriodosOSinLaFilaAguanta) {
  Abre();
  ComoPropietario("delete from norte.tasavariable where tasavariableid = 3");
  EligeRenglon(Lista(forma_), 2);  // somebody else deleted it meanwhile
  EXPECT_TRUE(tasainteres.IsNew());
  base_.Ejecuta("truncate norte.tasavariable");
  Area otra;
  forma_ = otra.Abre<TipoTasaInteres_Window>();
  EXPECT_EQ(Lista(forma_)->getNumItems(), 0);
  EXPECT_EQ(forma_->onCmdLista(nullptr, 0, nullptr), 0);
}

TEST_F(TipoTasaInteresVentana, UnaCargaQueNoSeAbreSeDiceYLaFormaQuedaVacia) {
  espia_.Cuando("BEGIN;", falla::Error("No"));
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  forma_ = area_.Abre<TipoTasaInteres_Window>();
  EXPECT_EQ(guion.Ultimo().texto, "Error al cargar catalogo de tasas.");
  EXPECT_EQ(Lista(forma_)->getNumItems(), 0);
}

TEST_F(TipoTasaInteresVentana, UnaRespuestaMalFormadaSeListaComoColumnasVacias) {
  const struct {
    Falla falla;
    const char* renglon;
  } tabla[] = {{falla::Recortada(1), "1           "}, {falla::ConNulos(), "0           "}};
  for (const auto& fila : tabla) {
    espia_.Vacia();
    espia_.Cuando(Listados, fila.falla);
    Area otra;
    forma_ = otra.Abre<TipoTasaInteres_Window>();
    EXPECT_EQ(Lista(forma_)->getItemText(0), fila.renglon);
    EligeRenglon(Lista(forma_), 0);
  }
  espia_.Vacia();
  espia_.Cuando(Listados, falla::ConTextos());
  Abre();
  EXPECT_EQ(Lista(forma_)->getItemText(0), ("0 " + std::string(59, 'x')).c_str());
}

TEST_F(TipoTasaInteresVentana, CortadaEnCadaSentenciaNoQuedaNadaAMediasYLaFormaSirve) {
  Abre();
  int guardadas = std::stoi(Cuantas());
  constexpr size_t cierre = 2;
  for (size_t n = 0; n < 6; ++n) {
    for (const bool despues : {false, true}) {
      SCOPED_TRACE(std::to_string(n) + (despues ? ", después" : ""));
      tasainteres.Clear();
      Manda("&Nuevo");
      Llena(Nuevo);
      espia_.Vacia();
      espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
      {
        Guion guion;
        guion.Responde(Respuesta::Si);
        guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
        Pulsa(Boton(forma_, "&Aceptar"));
      }
      espia_.Vacia();
      Reconecta();
      const bool guardada = n > cierre || (n == cierre && despues);
      guardadas += guardada;
      EXPECT_EQ(Cuantas(), std::to_string(guardadas));
      if (guardada) continue;
      EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si}), Textos{"Registrar ?"});
      EXPECT_EQ(Cuantas(), std::to_string(++guardadas));
    }
  }
}

}  // namespace
}  // namespace pruebas
