// The form of the types of loan as a table of its fields, and the form opened on the demonstration.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>

#include "catalogs/finance/TipoPrestamo_Window.h"
#include "tests/catalogs/Producto.h"
#include "tests/support/ConVentana.h"

namespace pruebas {

/// A field of the form and the column of the record that it feeds.
struct CampoPrestamo {
  enum Tipo { Texto, Combo, Cuenta, Casilla };
  using Manejador = long (TipoPrestamo_Window::*)(FXObject*, FXSelector, void*);

  const char* pagina;  ///< its tab; "" above the pages
  const char* etiqueta;
  Tipo tipo;
  FXint columnas;  ///< of a text; of a combo box how many items it shows
  FXuint estilo;   ///< of a text
  const char* columna;
  Manejador manejador;  ///< of a combo box or check button
  bool vive;            ///< does its search button work; does what is done to it reach the record
};

/// All of them in the order of the screen.
inline const std::vector<CampoPrestamo>& CamposPrestamo() {
  using C = CampoPrestamo;
  using V = TipoPrestamo_Window;
  const FXuint Libre = TEXTFIELD_LIMITED;
  const FXuint Entero = TEXTFIELD_LIMITED | TEXTFIELD_INTEGER;
  const FXuint Real = TEXTFIELD_LIMITED | TEXTFIELD_REAL;
  const auto cuenta = [](const char* pagina, const char* etiqueta, const char* columna, C::Manejador m,
                         bool vive = true) {
    return C{pagina, etiqueta, C::Cuenta, 10, 0, columna, m, vive};
  };
  static const std::vector<C> campos = {
      {"", "Clave:", C::Texto, 3, Libre | TEXTFIELD_ENTER_ONLY, "TipoPrestamoID", nullptr, true},
      {"&Generales", "Descripción:", C::Texto, 30, Libre, "DescTipoPrestamo", nullptr, true},
      {"&Generales", "Tantos:", C::Texto, 3, Entero, "Tantos", nullptr, true},
      {"&Generales", "Tasa Int. Normal:", C::Texto, 10, Real, "Tasa_Normal", nullptr, true},
      {"&Generales", "Tasa Int. Moratorio:", C::Texto, 10, Real, "Tasa_Mora", nullptr, true},
      {"&Generales", "Mov. Garantía:", C::Combo, 10, 0, "ClaveMoviGarantia", &V::onCmdTipoMovimiento, true},
      {"&Generales", "Calculo Normal de Default:", C::Combo, 5, 0, "CalculoNormalID", nullptr, true},
      {"&Generales", "Calculo Morat. de Default:", C::Combo, 5, 0, "CalculoMoraID", nullptr, true},
      {"&Generales", "Finalidad de Default:", C::Combo, 5, 0, "ClaveFinalidad", nullptr, true},
      {"&Generales", "Aplica IVA:", C::Casilla, 0, 0, "AplicaIvaPrestamo", &V::onCmdAplicaIva, true},
      {"&Parametros", "Dias para traspasar a Vencida:", C::Texto, 3, Entero, "DiasTraspasoAVencida", nullptr,
       true},
      {"&Parametros", "Monto Maximo:", C::Texto, 10, Real, "MontoMaximo", nullptr, true},
      {"&Parametros", "Plazo Maximo:", C::Texto, 5, Entero, "PlazoMaximo", nullptr, true},
      {"&Parametros", "Monto Minimo:", C::Texto, 10, Real, "MontoMinimo", nullptr, true},
      {"&Parametros", "Avales Minimos:", C::Texto, 3, Entero, "AvalesMinimos", nullptr, true},
      {"&Parametros", "Periodo Default:", C::Texto, 3, Entero, "PeriodoDiasDefault", nullptr, true},
      {"&Parametros", "Estatus:", C::Casilla, 0, 0, "Estatus", nullptr, true},
      {"&Parametros", "Prestamo Grupal:", C::Casilla, 0, 0, "PrestamoGrupal", nullptr, false},
      {"&Parametros", "Comision:", C::Texto, 10, Real, "Comision", nullptr, true},
      {"&Parametros", "IVA Comision:", C::Texto, 10, Real, "IvaComision", nullptr, true},
      {"&Parametros", "Reciprocidad:", C::Texto, 10, Real, "Reciprocidad", nullptr, true},
      {"&Parametros", "Clasificacion Contable SITI:", C::Texto, 20, Real, "ClasificacionContable", nullptr,
       true},
      {"&Parametros", "Nivel Autorizacion:", C::Texto, 3, Real, "NivelAutorizacion", nullptr, false},
      cuenta("&Activo", "Activo:", "CuentaActivo", &V::onCmdCuentaActivo),
      cuenta("&Activo", "Activo Vencida:", "CuentaActivoVencida", &V::onCmdCuentaActivoVencida),
      cuenta("&Activo", "Normal Venc.:", "CuentaIntNormalVencida", &V::onCmdCuentaIntNormalVencida),
      cuenta("&Activo", "Cuenta ISR:", "CuentaRiesgoCred", &V::onCmdCuentaRiesgoCred),
      cuenta("&Activo", "Int. Devengado:", "CuentaIntDevNoCobres", &V::onCmdCuentaIntDevNoCobres),
      cuenta("&Pasivo", "Cta. de IVA:", "CuentaIva", &V::onCmdCuentaIva),
      cuenta("&Pasivo", "Gastos de Cobranza:", "CuentaFondoRecuperacion", &V::onCmdCuentaFondoRecuperacion),
      cuenta("&Pasivo", "Gtos. de Otorgamiento.:", "CuentaGtosAdm", &V::onCmdCuentaGtosAdm, false),
      cuenta("&Pasivo", "Provision IVA:", "CuentaProvisionIVA", &V::onCmdCuentaProvisionIVA),
      cuenta("&Pasivo", "Aval Acredor:", "CuentaOrdenAvalAcredor", &V::onCmdCuentaOrdenAvalAcredor),
      cuenta("&Pasivo", "Garantia Deudor:", "CuentaGarantiaDeudor", &V::onCmdCuentaGarantiaDeudor),
      cuenta("&Pasivo", "Garantia Acredor:", "CuentaGarantiaAcredor", &V::onCmdCuentaGarantiaAcredor),
      cuenta("&Pasivo", "Comision:", "CuentaComision", &V::onCmdCuentaComision),
      cuenta("&Pasivo", "IVA Comision:", "CuentaIvaComision", &V::onCmdCuentaIvaComision),
      cuenta("&Resultados", "Int. Normal:", "CuentaIntNormal", &V::onCmdCuentaIntNormal),
      cuenta("&Resultados", "Norm. No Cob.:", "CuentaIntNormalNocob", &V::onCmdCuentaIntNormalNocob),
      cuenta("&Resultados", "Int. Moratorio:", "CuentaIntMora", &V::onCmdCuentaIntMora),
      cuenta("&Resultados", "Moratorio Venc.:", "CuentaIntMoraVencida", &V::onCmdCuentaIntMoraVencida),
      cuenta("&Resultados", "Riesgo Cred.:", "CuentaRiesgoCredRes", &V::onCmdCuentaRiesgoCredRes),
      cuenta("&Resultados", "Int. Norm. Venc.:", "CuentaIntNormalResVencida",
             &V::onCmdCuentaIntNormalResVencida, false),
      cuenta("&Resultados", "Int. Norm. Vig.:", "CuentaIntNormalResVigente",
             &V::onCmdCuentaIntNormalResVigente),
      cuenta("&Orden", "Aval Deudor:", "CuentaOrdenAval", &V::onCmdCuentaOrdenAval),
      cuenta("&Orden", "Orden Interes:", "CuentaOrdenInteres", &V::onCmdCuentaOrdenInteres),
      cuenta("&Orden", "Orden Deudor Moratorio Bonificado", "CuentaIntMoraNoCobAct",
             &V::onCmdCuentaIntMoraNoCobAct),
      cuenta("&Orden", "Orden Acredor Moratorio Bonificado", "CuentaIntMoraDevNoCobRes",
             &V::onCmdCuentaIntMoraDevNoCobRes),
      cuenta("&Orden", "Orden Deudor Normal Bonificado", "OrdenDeudorNormalBonificado",
             &V::onCmdOrdenDeudorNormalBonificado),
      cuenta("&Orden", "Orden Acredor Normal Bonificado", "OrdenAcredorNormalBonificado",
             &V::onCmdOrdenAcredorNormalBonificado),
      cuenta("&Orden", "Orden Interes Acreedor", "OrdenInteresAcreedor", &V::onCmdOrdenInteresAcreedor,
             false),
  };
  return campos;
}

/// The form in an area of its own, connected to the branch norte with its chart, formulas, movements and
/// purposes in the cache.
class ConPrestamo : public ConVentana<TipoPrestamo_Window> {
 protected:
  using C = CampoPrestamo;
  using Valores = std::map<std::string, std::string>;  // by column of the record

  void SetUp() override {
    LlenaCache();
    tipoprestamo.Clear();
    Abre();
  }
  static void LlenaCache() {
    catalogo.LoadCuentas();
    catalogo.LoadTipoMovimiento();
    catalogo.LoadFinalidades();
    catalogo.LoadCalculos();
  }
  void Abre() {
    forma_ = area_.Abre<TipoPrestamo_Window>();
    ASSERT_TRUE(BombeaHasta([&] { return Libro()->getHeight() > 1; }));  // laid out
    espia_.Vacia();
  }

  /// Runs statements on the table, which asks its writer for a permission.
  void EnLaTabla(const std::string& sql) {
    base_.Ejecuta("set role tolvara_propietario; " + sql + "; reset role");
  }

  // The widgets.

  FXTabBook* Libro() { return Todos<FXTabBook>(forma_).at(0); }
  FXTabItem* Lengueta(const std::string& titulo) {
    for (FXTabItem* lengueta : Todos<FXTabItem>(forma_))
      if (Rotulo(lengueta) == titulo) return lengueta;
    throw std::runtime_error("no hay página " + titulo);
  }
  FXWindow* Pagina(const std::string& titulo) {
    return titulo.empty() ? Grupo(forma_, "Identificación") : Lengueta(titulo)->getNext();
  }
  /// What stands beside the label of a field, or below its title.
  FXWindow* Pieza(const C& campo) {
    FXWindow* const junto = PiezaJuntoA(Pagina(campo.pagina), campo.etiqueta);
    return dynamic_cast<FXLabel*>(junto) != nullptr && campo.tipo == C::Cuenta ? junto->getNext() : junto;
  }
  FXComboBox* Combo(const C& campo) {
    FXWindow* const pieza = Pieza(campo);
    return campo.tipo == C::Cuenta ? Todos<FXComboBox>(pieza).at(0) : dynamic_cast<FXComboBox*>(pieza);
  }
  FXButton* Lupa(const C& campo) { return dynamic_cast<FXButton*>(Combo(campo)->getNext()); }
  FXCheckButton* Casilla(const C& campo) { return dynamic_cast<FXCheckButton*>(Pieza(campo)); }
  void Hojea(const std::string& pagina) {
    if (Pagina(pagina)->shown()) return;
    Pulsa(Lengueta(pagina));
    ASSERT_TRUE(BombeaHasta([&] { return Pagina(pagina)->shown() != 0; }));
  }
  static const C& Campo(const std::string& columna) {
    for (const C& campo : CamposPrestamo())
      if (campo.columna == columna) return campo;
    throw std::runtime_error("no hay campo para " + columna);
  }

  // What a user does.

  /// Types a value of the column as it stands in a statement, picks it, or checks it.
  void Pon(const C& campo, const std::string& valor) {
    Hojea(campo.pagina);
    switch (campo.tipo) {
      case C::Texto:
        return Escribe(Pieza(campo), Tecleado(valor));
      case C::Casilla:
        if (Casilla(campo)->getCheck() != (valor == "S" || valor == "1")) Pulsa(Casilla(campo));
        return;
      case C::Combo:
      case C::Cuenta:
        return EligeOpcion(Combo(campo), Opcion(campo, valor));
    }
  }
  void Pon(const std::string& columna, const std::string& valor) { Pon(Campo(columna), valor); }
  /// Fills all that reaches the record.
  void Llena(const Valores& valores) {
    for (const C& campo : campos)
      if (campo.vive || campo.tipo == C::Cuenta) Pon(campo, valores.at(campo.columna));
  }
  /// The error in which &Aceptar ends ahead of its question.
  std::string Rechazo() {
    const Textos dichos = Manda("&Aceptar", {Respuesta::Aceptar});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Error);
    EXPECT_EQ(cuadros_.at(0).titulo, "Error en Validación");
    return dichos.at(0);
  }
  Textos Busca(const std::string& clave, const std::vector<Respuesta>& respuestas = {}) {
    Pon("TipoPrestamoID", clave);
    return Manda("&Buscar", respuestas);
  }

  // What comes of it.

  /// The form as a user sees it, by column: the text of a field, the item of a combo box, "1" or "0".
  Valores Pantalla() {
    Bombea();
    Valores vistos;
    for (const C& campo : campos) {
      vistos[campo.columna] = campo.tipo == C::Texto     ? Leido(Pagina(campo.pagina), campo.etiqueta)
                              : campo.tipo == C::Casilla ? std::to_string(Casilla(campo)->getCheck())
                                                         : std::to_string(Combo(campo)->getCurrentItem());
    }
    return vistos;
  }
  /// The form as it shows a record with these columns.
  static Valores Vistos(const Valores& valores) {
    Valores vistos;
    for (const C& campo : CamposPrestamo()) {
      const std::string& valor = valores.at(campo.columna);
      vistos[campo.columna] = campo.tipo == C::Texto     ? Tecleado(valor)
                              : campo.tipo == C::Casilla ? (valor == "S" || valor == "1" ? "1" : "0")
                                                         : std::to_string(Opcion(campo, valor));
    }
    vistos["NivelAutorizacion"] = "";
    return vistos;
  }
  /// The columns of a row on the server, as the record reads them.
  static Valores EnElServidor(const std::string& clave) {
    const Producto& producto = Record();
    const auto ficha = producto.vacia();
    ficha->Pon(0, clave);
    ficha->Find();
    Valores valores;
    for (size_t i = 0; i < producto.campos.size(); ++i) valores[producto.campos[i].nombre] = ficha->Da(i);
    return valores;
  }
  /// What &Aceptar sends to save these columns.
  static Textos Guardado(const std::vector<Enunciado>& enunciados, const Valores& valores) {
    static const Textos carga = {"BEGIN;", "SELECT * FROM spstipoprestamo('   ');", "COMMIT;"};
    Textos sentencias = {"BEGIN;"};
    for (const Enunciado& enunciado : enunciados) {
      Textos columnas;
      for (const std::string& campo : enunciado.campos) columnas.push_back(valores.at(campo));
      sentencias.push_back(Formateado(enunciado.formato, columnas));
    }
    sentencias.push_back("COMMIT;");
    sentencias.insert(sentencias.end(), carga.begin(), carga.end());
    return sentencias;
  }
  /// The table of the record.
  static const Producto& Record() {
    static const Producto producto = TipoDePrestamo();
    return producto;
  }
  /// A row that breaks no rule.
  static Valores Alta() {
    return De(&pruebas::Campo::valor, {{"ClasificacionContable", "1301.5"}, {"NivelAutorizacion", "0"}});
  }
  /// Another one with every column different but the key.
  static Valores Otra() {
    return De(&pruebas::Campo::otro,
              {{"ClasificacionContable", "2.75"}, {"NivelAutorizacion", "0"}, {"PrestamoGrupal", "0"}});
  }
  /// Typed by a user: without the zeros at the end.
  static std::string Tecleado(std::string valor) {
    if (valor == "1234.560059") return "1234.56";
    if (valor.find('.') == std::string::npos) return valor;
    valor.erase(valor.find_last_not_of('0') + 1);
    if (valor.back() == '.') valor.pop_back();
    return valor;
  }
  /// The place of a key in what a combo box offers; the first one for a key that it does not offer.
  static int Opcion(const C& campo, const std::string& clave) {
    const std::string columna = campo.columna;
    if (columna == "ClaveMoviGarantia")
      return Lugar(Catalogo::TipoMovimiento, &cTipoMovimiento::getTipoMovimientoID, clave);
    if (columna == "ClaveFinalidad")
      return Lugar(Catalogo::Finalidades, &cFinalidades::getClaveFinalidad, clave);
    if (campo.tipo == C::Combo) return Lugar(Catalogo::Calculos, &cCalculo::getCalculoID, clave);
    return Lugar(Catalogo::Catalogo_Ctas, &cCatalogo_Ctas::getCuentaID, clave);
  }

  const std::vector<C>& campos = CamposPrestamo();

 private:
  static Valores De(std::string pruebas::Campo::*valor, const Valores& propios) {
    Valores valores = propios;
    for (const pruebas::Campo& campo : Record().campos) valores.emplace(campo.nombre, campo.*valor);
    return valores;
  }
  static std::string ComoTexto(const char* clave) { return clave; }
  static std::string ComoTexto(long clave) { return std::to_string(clave); }
  template <class Fila, class Clave>
  static int Lugar(const std::map<int, Fila>& filas, Clave (Fila::*get)() const, const std::string& clave) {
    const auto fila = std::find_if(filas.begin(), filas.end(), [&](const auto& numerada) {
      return ComoTexto((numerada.second.*get)()) == clave;
    });
    return fila != filas.end() ? fila->first : 0;
  }
};

}  // namespace pruebas
