// The form of a product as a table: what stands on the screen, and which column of the record each field
// feeds. productos_Window_test.cpp puts each of them through the same tests; the table itself stands in the
// test file of the form. Values and statements are those of the record's own table, Producto.h.
#pragma once

#include <fx.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "db/Catalogo.h"
#include "tests/catalogs/Producto.h"
#include "tests/support/ConVentana.h"
#include "tests/support/Registros.h"

namespace pruebas {

using Valores = std::map<std::string, std::string>;  // by column of the record

/// What stands behind a label.
enum class Pieza { Nada, Clave, Texto, Real, Entero, EnteroReal, Casilla, Combo, Cuenta };

/// A field, or a label that stands alone, in the order of creation.
struct CampoForma {
  const char* etiqueta;  ///< "" for a field without one
  Pieza pieza;
  FXint columnas;  ///< of a text; of a combo box how many items it shows
  const char* columna;
};

struct FormaProducto {
  Producto producto;
  const FXMetaClass* meta;
  FXWindow* (*abre)(Area& area);
  FXString (*titulo)(FXWindow* forma);
  void (*limpia)();
  std::pair<bool, bool> (*banderas)();  ///< of the record: changed, new

  const char* rotulo;
  FXint ancho, alto;
  const char* traza;
  int ranura;
  Textos cajas;  ///< titles of the boxes: of the list, the key, the fields
  std::vector<CampoForma> campos;
  const char* carga;  ///< the statement of a load
  bool trazaCarga;    ///< is it traced
  Valores propios;    ///< where a second value of the record's table does not fit the field
  Textos fijas;       ///< columns that are never empty, so that the rule on it is out of reach
  std::vector<Prueba>
      limites;  ///< typed in a form that is otherwise complete; what the server says, "" for nothing
};

/// What the table needs of a form's class and of the record on which it works.
template <class V, auto& registro>
FormaProducto De(const Producto& producto) {
  FormaProducto forma{};
  forma.producto = producto;
  forma.meta = &V::metaClass;
  forma.abre = [](Area& area) -> FXWindow* { return area.Abre<V>(); };
  forma.titulo = [](FXWindow* ventana) { return static_cast<V*>(ventana)->getTitle(); };
  forma.limpia = [] { registro.Clear(); };
  forma.banderas = [] { return std::pair(registro.getDataChanged(), registro.IsNew()); };
  return forma;
}

/// The tables.
FormaProducto FormaTipoMovimiento();
FormaProducto FormaTipoInversion();

/// An entry of the message map of V.
template <class V>
struct Entrada {
  FXSelector primera, ultima;
  long (V::*manejador)(FXObject*, FXSelector, void*);
};

/// The entries from that of &Aceptar on are these, in this order.
template <class V>
void ExigeMapa(const std::vector<Entrada<V>>& entradas) {
  const auto* mapa = static_cast<const typename V::FXMapEntry*>(V::metaClass.search(entradas[0].primera));
  ASSERT_NE(mapa, nullptr);
  for (size_t i = 0; i < entradas.size(); ++i, ++mapa) {
    SCOPED_TRACE(i);
    EXPECT_EQ(mapa->keylo, entradas[i].primera);
    EXPECT_EQ(mapa->keyhi, entradas[i].ultima);
    EXPECT_EQ(mapa->func, entradas[i].manejador);
  }
}

/// A command, or a run of them.
template <class V>
Entrada<V> Mando(FXSelector id, long (V::*manejador)(FXObject*, FXSelector, void*), FXSelector cuantos = 1) {
  return {FXSEL(SEL_COMMAND, id), FXSEL(SEL_COMMAND, id + cuantos - 1), manejador};
}

/// A number as a user types it: without the zeros at the end.
inline std::string Tecleado(std::string valor) {
  if (valor.find('.') == std::string::npos) return valor;
  valor.erase(valor.find_last_not_of('0') + 1);
  if (valor.back() == '.') valor.pop_back();
  return valor;
}

/// A form opened on the demonstration, with what it picks from in the cache.
class ConForma : public ConVentana<> {
 protected:
  explicit ConForma(const FormaProducto& tabla) : tabla(tabla) {}

  void SetUp() override {
    catalogo.LoadCuentas();
    catalogo.LoadCalculos();
    catalogo.LoadTipoMovimiento();
    tabla.limpia();
    Abre();
  }
  void Abre() { Abre(area_); }
  void Abre(Area& area) {
    forma_ = tabla.abre(area);
    Recoge();
    espia_.Vacia();
  }

  // The widgets.

  const CampoForma& Campo(const std::string& columna) const {
    return *std::find_if(tabla.campos.begin(), tabla.campos.end(),
                         [&](const CampoForma& campo) { return campo.columna == columna; });
  }
  template <class Clase>
  Clase* Es(const std::string& columna) {
    if (auto* const pieza = dynamic_cast<Clase*>(piezas_.at(columna))) return pieza;
    throw std::runtime_error("otra clase de pieza alimenta " + columna);
  }
  FXTextField* Texto(const std::string& columna) { return Es<FXTextField>(columna); }
  FXCheckButton* Casilla(const std::string& columna) { return Es<FXCheckButton>(columna); }
  FXComboBox* Combo(const std::string& columna) { return Es<FXComboBox>(columna); }
  FXButton* Lupa(const std::string& columna) { return dynamic_cast<FXButton*>(Combo(columna)->getNext()); }

  // What a user does.

  /// Types a value of the column as it stands in a statement, picks it, or checks it.
  void Pon(const std::string& columna, const std::string& valor) {
    const Pieza pieza = Campo(columna).pieza;
    if (pieza == Pieza::Casilla) {
      if (Casilla(columna)->getCheck() != Marcada(valor)) Pulsa(Casilla(columna));
    } else if (pieza == Pieza::Combo || pieza == Pieza::Cuenta) {
      EligeOpcion(Combo(columna), Opcion(columna, valor));
    } else {
      Escribe(Texto(columna), Tecleado(valor));
    }
  }
  /// The same for all columns, but for one.
  void Llena(const Valores& valores, const std::string& menos = "") {
    for (const CampoForma& campo : tabla.campos)
      if (campo.pieza != Pieza::Nada && campo.columna != menos) Pon(campo.columna, valores.at(campo.columna));
  }
  Textos Busca(const std::string& clave, const std::vector<Respuesta>& respuestas = {}) {
    Manda("&Nuevo");
    Escribe(Texto(ColumnaClave()), clave);
    return Manda("&Buscar", respuestas);
  }
  /// Makes a row of the first values and finds it again.
  void Registra() {
    Llena(Alta());
    ASSERT_EQ(Acepta(), Textos{"Registrar ?"});
    ASSERT_TRUE(Busca(Alta().at(ColumnaClave())).empty());
    espia_.Vacia();
  }

  // What comes of it.

  /// The form as a user sees it: the text of a field, the current item of a combo box, "1" or "0".
  Valores Pantalla() {
    Bombea();
    Valores vistos;
    for (const auto& [columna, pieza] : piezas_) {
      if (auto* const casilla = dynamic_cast<FXCheckButton*>(pieza)) {
        vistos[columna] = std::to_string(casilla->getCheck());
      } else if (auto* const combo = dynamic_cast<FXComboBox*>(pieza)) {
        vistos[columna] = std::to_string(combo->getCurrentItem());
      } else {
        vistos[columna] = dynamic_cast<FXTextField*>(pieza)->getText().text();
      }
    }
    return vistos;
  }
  /// The form as it shows a record with these columns.
  Valores Vistos(const Valores& valores) {
    Valores vistos;
    for (const auto& [columna, pieza] : piezas_) {
      const std::string& valor = valores.at(columna);
      vistos[columna] = dynamic_cast<FXCheckButton*>(pieza) ? std::to_string(Marcada(valor))
                        : dynamic_cast<FXComboBox*>(pieza)  ? std::to_string(Opcion(columna, valor))
                                                            : Tecleado(valor);
    }
    return vistos;
  }
  /// The form as &Nuevo leaves it.
  Valores Vacia() {
    Valores vistos;
    for (const auto& [columna, pieza] : piezas_) {
      const Pieza clase = Campo(columna).pieza;
      vistos[columna] = dynamic_cast<FXComboBox*>(pieza)                 ? "-1"
                        : clase == Pieza::Clave || clase == Pieza::Texto ? ""
                                                                         : "0";
    }
    return vistos;
  }
  /// The columns of a row on the server, as the record reads them; empty ones when there is none.
  Valores EnElServidor(const std::string& clave) {
    const auto ficha = tabla.producto.vacia();
    if (Existe(clave)) {
      ficha->Pon(0, clave);
      ficha->Find();
    }
    Valores valores;
    for (size_t i = 0; i < tabla.producto.campos.size(); ++i)
      valores[tabla.producto.campos[i].nombre] = ficha->Da(i);
    espia_.Vacia();
    return valores;
  }
  bool Existe(const std::string& clave) {
    return base_.Valor("select count(*) from norte." + std::string(tabla.producto.tabla) + " where " +
                       tabla.producto.campos[0].nombre + " = '" + clave + "'") == "1";
  }
  /// What &Aceptar sends to save these columns.
  Textos Guardado(const Enunciado& enunciado, const Valores& valores) const {
    return {"BEGIN;", Sentencia(enunciado, valores), "COMMIT;", "BEGIN;", tabla.carga, "COMMIT;"};
  }
  static std::string Sentencia(const Enunciado& enunciado, const Valores& valores) {
    Textos columnas;
    for (const std::string& campo : enunciado.campos) columnas.push_back(valores.at(campo));
    return Formateado(enunciado.formato, columnas);
  }

  // The values.

  std::string ColumnaClave() const { return tabla.producto.campos[0].nombre; }
  std::string ColumnaDescripcion() const { return tabla.campos[1].columna; }
  /// A row that breaks no rule, and another one with every column different but the key.
  Valores Alta() const { return Tomados(&pruebas::Campo::valor); }
  Valores Otra() const {
    Valores valores = tabla.propios;
    valores.merge(Tomados(&pruebas::Campo::otro));
    return valores;
  }
  static bool Marcada(const std::string& valor) { return valor == "S" || valor == "1"; }
  /// The place of a key in what a combo box offers; the first one for a key that it does not offer.
  int Opcion(const std::string& columna, const std::string& clave) const {
    if (columna == "ClasificacionID") return std::stoi(clave);
    if (columna == "CalculoID")
      return Lugar(Catalogo::Calculos, clave, [](auto& fila) { return std::to_string(fila.getCalculoID()); });
    if (columna == "TipoMovimientoID")
      return Lugar(Catalogo::TipoMovimiento, clave, [](auto& fila) { return fila.getTipoMovimientoID(); });
    return Lugar(Catalogo::Catalogo_Ctas, clave, [](auto& fila) { return fila.getCuentaID(); });
  }

  const FormaProducto tabla;
  std::map<std::string, FXWindow*> piezas_;  // by the column that they feed

 private:
  Valores Tomados(std::string pruebas::Campo::*valor) const {
    Valores valores;
    for (const pruebas::Campo& campo : tabla.producto.campos) valores[campo.nombre] = campo.*valor;
    return valores;
  }
  template <class Filas, class Clave>
  static int Lugar(const Filas& filas, const std::string& clave, Clave de) {
    for (const auto& [numero, fila] : filas)
      if (clave == de(fila)) return numero;
    return 0;
  }

  /// The labels and fields of a window in the order of their creation, a combo box as one piece.
  static std::vector<FXWindow*> PiezasDe(FXWindow* raiz) {
    std::vector<FXWindow*> piezas;
    for (FXWindow* hijo = raiz->getFirst(); hijo; hijo = hijo->getNext()) {
      const bool pieza = hijo->getMetaClass() == FXMETACLASS(FXLabel) || dynamic_cast<FXTextField*>(hijo) ||
                         dynamic_cast<FXCheckButton*>(hijo) || dynamic_cast<FXComboBox*>(hijo);
      const std::vector<FXWindow*> dentro = pieza ? std::vector{hijo} : PiezasDe(hijo);
      piezas.insert(piezas.end(), dentro.begin(), dentro.end());
    }
    return piezas;
  }
  /// Finds the field of each column; throws when what stands on the screen is not what the table says.
  void Recoge() {
    const std::vector<FXWindow*> piezas = PiezasDe(forma_);
    auto pieza = piezas.begin();
    const auto exige = [&](bool bien, const CampoForma& campo) {
      if (!bien)
        throw std::runtime_error(std::string("no está en su lugar ") + campo.etiqueta + campo.columna);
    };
    for (const CampoForma& campo : tabla.campos) {
      if (*campo.etiqueta) {
        exige(pieza != piezas.end() && (*pieza)->getMetaClass() == FXMETACLASS(FXLabel) &&
                  static_cast<FXLabel*>(*pieza)->getText() == campo.etiqueta,
              campo);
        ++pieza;
      }
      if (campo.pieza == Pieza::Nada) continue;
      exige(pieza != piezas.end() && (*pieza)->getMetaClass() != FXMETACLASS(FXLabel), campo);
      piezas_[campo.columna] = *pieza++;
    }
    exige(pieza == piezas.end(), {"", Pieza::Nada, 0, "lo último"});
  }
};

}  // namespace pruebas
