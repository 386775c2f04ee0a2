// The form of the types of loan on the screen: its pages and fields, its fonts and messages, and that each
// field feeds its own column and no other.
#include "catalogs/finance/TipoPrestamo_Window.h"

#include "catalogs/finance/Busqueda_Window.h"
#include "tests/catalogs/PrestamoDePrueba.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"

namespace pruebas {
namespace {

using V = TipoPrestamo_Window;
using Manejador = CampoPrestamo::Manejador;

/// The entry of the message map that takes a message; null if there is none.
const V::FXMapEntry* Entrada(FXuint tipo, FXSelector mensaje) {
  return static_cast<const V::FXMapEntry*>(V::metaClass.search(FXSEL(tipo, mensaje)));
}

class TipoPrestamoTest : public ConPrestamo {
 protected:
  /// The handler of what a widget sends to the form.
  Manejador ManejadorDe(const FXWindow* pieza) {
    EXPECT_EQ(pieza->getTarget(), forma_);
    const auto* const entrada = Entrada(SEL_COMMAND, pieza->getSelector());
    return entrada != nullptr ? entrada->func : nullptr;
  }
};

TEST_F(TipoPrestamoTest, SeAbreEnSuLugarConSuTitulo) {
  EXPECT_EQ(V::metaClass.getBaseClass(), FXMETACLASS(FXMDIChild));
  EXPECT_EQ(forma_->getTitle(), "Catalogo Tipo de Prestamos");
  EXPECT_EQ(forma_->getX(), 0);
  EXPECT_EQ(forma_->getY(), 0);
  EXPECT_EQ(forma_->getWidth(), 815);
  EXPECT_EQ(forma_->getHeight(), 450);
  EXPECT_TRUE(mdiArray[6]);
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 1);
  Cierra();
  EXPECT_FALSE(mdiArray[6]);
  EXPECT_TRUE(espia_.Sentencias().empty());
}

TEST_F(TipoPrestamoTest, AlAbrirTrazaSusPasosYSoloLeeLosTiposDePrestamo) {
  Cierra();
  espia_.Vacia();
  const Salida salida;
  forma_ = area_.Abre<V>();
  const std::string carga = "SELECT * FROM spstipoprestamo('   ');";
  EXPECT_EQ(salida.Lineas(),
            (Textos{"llegando aqui ....", "paso", carga, "terminando creacion frm tipoprestamo"}));
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", carga, "COMMIT;"}));
  EXPECT_TRUE(tipoprestamo.IsNew());
  EXPECT_EQ(Lista(forma_)->getNumItems(), 8);
  EXPECT_EQ(Lista(forma_)->getItemText(0), Catalogo::TipoPrestamo[0].getDescTipoPrestamo());
  EXPECT_STREQ(sDescripcion, Catalogo::TipoPrestamo[7].getDescTipoPrestamo());
}

TEST_F(TipoPrestamoTest, TieneSusCajasYPaginasEnOrden) {
  Textos cajas;
  for (const FXGroupBox* caja : Todos<FXGroupBox>(forma_)) cajas.push_back(caja->getText().text());
  EXPECT_EQ(cajas, (Textos{"Tipo de Prestamos", "Identificación", ""}));
  Textos lenguetas;
  for (const FXTabItem* lengueta : Todos<FXTabItem>(forma_)) lenguetas.push_back(Rotulo(lengueta));
  EXPECT_EQ(lenguetas, (Textos{"&Generales", "&Parametros", "&Activo", "&Pasivo", "&Resultados", "&Orden"}));
  EXPECT_EQ(Grupo(forma_, "Identificación")->getNext(), Libro());
  EXPECT_EQ(Libro()->getCurrent(), 0);
  EXPECT_EQ(Lista(Grupo(forma_, "Tipo de Prestamos"))->getWidth(), 200);
  EXPECT_EQ(Botones(Grupo(forma_, "")), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
}

TEST_F(TipoPrestamoTest, CadaPaginaTieneSusMatricesYEtiquetas) {
  for (const FXTabItem* lengueta : Todos<FXTabItem>(forma_)) {
    const std::string titulo = Rotulo(lengueta);
    SCOPED_TRACE(titulo);
    Textos etiquetas;
    for (const C& campo : campos) {
      if (campo.pagina != titulo) continue;
      const bool enDosRenglones = campo.tipo == C::Cuenta && std::string(campo.etiqueta).back() != ':';
      if (enDosRenglones) etiquetas.push_back(" ");
      etiquetas.push_back(campo.etiqueta);
      if (enDosRenglones) etiquetas.push_back(" ");
    }
    EXPECT_EQ(Etiquetas(Pagina(titulo)), etiquetas);
    std::vector<FXint> columnas;
    for (FXMatrix* matriz : Todos<FXMatrix>(Pagina(titulo))) columnas.push_back(matriz->getNumColumns());
    EXPECT_EQ(columnas, titulo == "&Generales" ? (std::vector<FXint>{2, 4}) : std::vector<FXint>{2});
  }
}

TEST_F(TipoPrestamoTest, CadaCampoEsDeSuClase) {
  ASSERT_EQ(campos.size(), 51u);
  for (const C& campo : campos) {
    SCOPED_TRACE(campo.columna);
    if (campo.tipo == C::Texto) {
      const auto* const texto = dynamic_cast<FXTextField*>(Pieza(campo));
      ASSERT_NE(texto, nullptr);
      EXPECT_EQ(texto->getNumColumns(), campo.columnas);
      EXPECT_EQ(texto->getTextStyle(), campo.estilo);
      const bool numero = (campo.estilo & (TEXTFIELD_REAL | TEXTFIELD_INTEGER)) != 0;
      EXPECT_EQ(texto->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT),
                numero ? FXuint{JUSTIFY_RIGHT} : FXuint{JUSTIFY_LEFT});
    } else if (campo.tipo == C::Casilla) {
      ASSERT_NE(Casilla(campo), nullptr);
    } else {
      ASSERT_NE(Combo(campo), nullptr);
      EXPECT_EQ(Combo(campo)->getComboStyle(), FXuint{COMBOBOX_STATIC});
      EXPECT_EQ(Combo(campo)->getNumVisible(), campo.columnas);
    }
    if (campo.tipo == C::Cuenta) {
      EXPECT_EQ(Lupa(campo)->getText(), "");
      EXPECT_EQ(Lupa(campo)->getIcon(), icono(&App(), iconos::find_icon));
    }
  }
  EXPECT_EQ(Todos<FXComboBox>(forma_).size(), 32u);
  EXPECT_EQ(Todos<FXCheckButton>(forma_).size(), 3u);
}

TEST_F(TipoPrestamoTest, CadaCampoMandaASuManejador) {
  for (const C& campo : campos) {
    SCOPED_TRACE(campo.columna);
    FXWindow* const pieza = campo.tipo == C::Casilla ? Casilla(campo) : static_cast<FXWindow*>(Combo(campo));
    if (campo.tipo == C::Texto) continue;
    if (campo.manejador != nullptr || pieza->getTarget() != nullptr) {
      EXPECT_EQ(ManejadorDe(pieza), campo.manejador);
    }
    if (campo.tipo != C::Cuenta) continue;
    // Of the dead search buttons one reaches the handler all the same.
    const bool atendida = campo.vive || campo.columna == std::string("CuentaGtosAdm");
    EXPECT_EQ(ManejadorDe(Lupa(campo)), atendida ? &V::onCmdBuscar : nullptr);
  }
  EXPECT_EQ(ManejadorDe(Libro()), &V::onCmdPanel);
  EXPECT_EQ(ManejadorDe(Lista(forma_)), &V::onCmdTipoPrestamo);
  EXPECT_EQ(ManejadorDe(Boton(forma_, "&Aceptar")), Manejador{&V::onCmdAgregar});
  EXPECT_EQ(ManejadorDe(Boton(forma_, "&Buscar")), Manejador{&V::onCmdFind});
  EXPECT_EQ(ManejadorDe(Boton(forma_, "&Nuevo")), Manejador{&V::onCmdClear});
  EXPECT_EQ(ManejadorDe(Boton(forma_, "&Borrar")), Manejador{&V::onCmdBorrar});
}

TEST_F(TipoPrestamoTest, SuMapaVaEnOrden) {
  const std::vector<Manejador> orden = {
      &V::onCmdAgregar,
      &V::onCmdFind,
      &V::onCmdClear,
      &V::onCmdTipoPrestamo,
      &V::onCmdBorrar,
      &V::onCmdCuentaActivo,
      &V::onCmdCuentaActivoVencida,
      &V::onCmdCuentaIntNormal,
      &V::onCmdCuentaIntNormalVencida,
      &V::onCmdCuentaIntNormalNocob,
      &V::onCmdCuentaIntMora,
      &V::onCmdCuentaIntMoraVencida,
      &V::onCmdCuentaIva,
      &V::onCmdCuentaRiesgoCred,
      &V::onCmdCuentaOrdenAval,
      &V::onCmdCuentaOrdenInteres,
      &V::onCmdCuentaIntMoraNoCobAct,
      &V::onCmdCuentaIntMoraDevNoCobRes,
      &V::onCmdOrdenDeudorNormalBonificado,
      &V::onCmdOrdenAcredorNormalBonificado,
      &V::onCmdCuentaFondoRecuperacion,
      &V::onCmdCuentaGtosAdm,
      &V::onCmdCuentaIntNormalResVencida,
      &V::onCmdCuentaIntNormalResVigente,
      &V::onCmdOrdenInteresAcreedor,
      &V::onCmdCuentaOrdenAvalAcredor,
      &V::onCmdCuentaGarantiaDeudor,
      &V::onCmdCuentaGarantiaAcredor,
      &V::onCmdCuentaProvisionIVA,
      &V::onCmdPanel,
      &V::onCmdTipoMovimiento,
      &V::onCmdAplicaIva,
      &V::onCmdQuit,
      &V::onCmdCuentaIntDevNoCobres,
      &V::onCmdCuentaRiesgoCredRes,
      &V::onCmdCuentaComision,
      &V::onCmdCuentaIvaComision,
      &V::onCmdPrestamoGrupal,
  };
  const V::FXMapEntry* entrada = Entrada(SEL_COMMAND, V::ID_AGREGAR);
  ASSERT_NE(entrada, nullptr);
  EXPECT_EQ(FXSelector{V::ID_AGREGAR}, FXSelector{FXMDIChild::ID_LAST});
  for (const Manejador manejador : orden) {
    EXPECT_EQ(entrada->func, manejador) << entrada - Entrada(SEL_COMMAND, V::ID_AGREGAR);
    ++entrada;
  }
  EXPECT_EQ(orden[32], Entrada(SEL_CLOSE, 0)->func);
  const V::FXMapEntry* const ultima = Entrada(SEL_SIGNAL, V::ID_SALIR);
  for (; entrada != ultima; ++entrada) {
    EXPECT_EQ(entrada->func, Manejador{&V::onCmdBuscar});
    EXPECT_LE(entrada->keyhi - entrada->keylo, 1u);
  }
  EXPECT_EQ(ultima->func, Manejador{&V::onCmdQuit});
}

TEST_F(TipoPrestamoTest, LasCuentasYElMovimientoTienenSuLetraYLosDemasLaDeSiempre) {
  std::vector<const FXFont*> propias;
  for (const C& campo : campos) {
    if (campo.tipo != C::Cuenta && campo.tipo != C::Combo) continue;
    SCOPED_TRACE(campo.columna);
    const FXFont* const letra = Combo(campo)->getFont();
    if (campo.tipo == C::Combo && campo.columna != std::string("ClaveMoviGarantia")) {
      EXPECT_EQ(letra, App().getNormalFont());
      continue;
    }
    EXPECT_EQ(letra->getName(), "helvica");
    EXPECT_EQ(letra->getSize(), 80u);
    EXPECT_EQ(letra->getWeight(), FXuint{FXFont::Normal});
    EXPECT_EQ(letra->getSlant(), FXuint{FXFont::Straight});
    propias.push_back(letra);
  }
  std::sort(propias.begin(), propias.end());
  EXPECT_EQ(std::unique(propias.begin(), propias.end()) - propias.begin(), 29);  // one each
}

TEST_F(TipoPrestamoTest, LosCombosOfrecenSusRenglonesComoSeEscriben) {
  const size_t cuentas = Catalogo::Catalogo_Ctas.size();
  for (const C& campo : campos) {
    if (campo.tipo != C::Cuenta) continue;
    SCOPED_TRACE(campo.columna);
    ASSERT_EQ(static_cast<size_t>(Combo(campo)->getNumItems()), cuentas);
    EXPECT_EQ(Combo(campo)->getItemText(0), Combo(campos.back())->getItemText(0));
    EXPECT_EQ(Combo(campo)->getItemText(Combo(campo)->getNumItems() - 1).left(20),
              FXString(Catalogo::Catalogo_Ctas.rbegin()->second.getCuentaID()).left(18) + "  ");
  }
  const auto ofrece = [&](const char* columna) {
    Textos renglones;
    const FXComboBox* const combo = Combo(Campo(columna));
    for (FXint i = 0; i < combo->getNumItems(); ++i) renglones.push_back(combo->getItemText(i).text());
    return renglones;
  };
  Textos movimientos, calculos, finalidades;
  for (const auto& [i, fila] : Catalogo::TipoMovimiento)
    movimientos.push_back(fila.getTipoMovimientoID() + std::string(" ") + fila.getDescTipoMovimiento());
  for (const auto& [i, fila] : Catalogo::Calculos) calculos.push_back(fila.getDescripcionCalculo());
  for (const auto& [i, fila] : Catalogo::Finalidades) finalidades.push_back(fila.getDescripcionFinalidad());
  EXPECT_GT(movimientos.size(), 3u);
  EXPECT_EQ(ofrece("ClaveMoviGarantia"), movimientos);
  EXPECT_EQ(ofrece("CalculoNormalID"), calculos);
  EXPECT_EQ(ofrece("CalculoMoraID"), calculos);
  EXPECT_EQ(ofrece("ClaveFinalidad"), finalidades);
}

// With the program's own main window and font.
TEST_F(TipoPrestamoTest, NadaSeVeCortadoEnNingunaPagina) {
  const Principal principal;
  Cierra();
  Abre();
  Busca("ORD");
  for (FXTabItem* lengueta : Todos<FXTabItem>(forma_)) {
    const std::string titulo = Rotulo(lengueta);
    SCOPED_TRACE(titulo);
    Hojea(titulo);
    Bombea(20);
    for (FXWindow* pieza : Todos<FXWindow>(Pagina(titulo))) {
      const FXWindow* const marco = pieza->getParent();
      EXPECT_GE(pieza->getX(), 0) << pieza->getClassName();
      EXPECT_GE(pieza->getY(), 0) << pieza->getClassName();
      EXPECT_LE(pieza->getX() + pieza->getWidth(), marco->getWidth()) << pieza->getClassName();
      EXPECT_LE(pieza->getY() + pieza->getHeight(), marco->getHeight()) << pieza->getClassName();
      if (const auto* const etiqueta = dynamic_cast<FXLabel*>(pieza)) {
        EXPECT_GE(pieza->getWidth(), pieza->getDefaultWidth()) << etiqueta->getText().text();
        EXPECT_GE(pieza->getHeight(), pieza->getDefaultHeight()) << etiqueta->getText().text();
      }
    }
  }
}

}  // namespace
}  // namespace pruebas
