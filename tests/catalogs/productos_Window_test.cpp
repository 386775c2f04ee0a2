// The forms of the products, one table each, through the same tests: what stands on the screen, which column
// each field feeds, what each command sends to the server, and what becomes of it when something is missing,
// gone or cut off.
#include "app/sesion.h"
#include "catalogs/finance/Busqueda_Window.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "tests/catalogs/FormaProducto.h"
#include "tests/support/Cortes.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Principal.h"

namespace pruebas {
namespace {

constexpr FXuint Limitado = TEXTFIELD_LIMITED;
const std::string Acumulativa = Cuenta("1000");  // an account of the demonstration that adds up

class FormasProductos : public ConForma, public testing::WithParamInterface<FormaProducto (*)()> {
 protected:
  FormasProductos() : ConForma(GetParam()()) {}

  /// The columns that a kind of piece feeds.
  Textos Columnas(Pieza pieza) const {
    Textos columnas;
    for (const CampoForma& campo : tabla.campos)
      if (campo.pieza == pieza) columnas.push_back(campo.columna);
    return columnas;
  }
  std::string Clave() const { return Alta().at(ColumnaClave()); }
  /// What the server answers when there is no such row.
  Valores Ninguna() { return EnElServidor("ZZ"); }
  /// Takes the row of the tests away, and blanks form and record.
  void Quita() {
    base_.Ejecuta("delete from norte." + std::string(tabla.producto.tabla) + " where " + ColumnaClave() +
                  " = '" + Clave() + "'");
    tabla.limpia();
    Manda("&Nuevo");
  }
  /// Saves, whatever boxes follow the question. Were there any texts in all of them?
  bool AceptaComoSea() {
    Guion guion;
    guion.Responde(Respuesta::Si);
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Boton(caja, "&Aceptar")); });
    Pulsa(Boton(forma_, "&Aceptar"));
    const Textos dichos = guion.Mensajes();
    return std::count(dichos.begin(), dichos.end(), "") == 0;
  }
};

INSTANTIATE_TEST_SUITE_P(, FormasProductos, testing::Values(FormaTipoMovimiento, FormaTipoInversion),
                         [](const auto& info) { return std::string(info.param().meta->getClassName()); });

// The window.

TEST_P(FormasProductos, SeAbreEnSuLugarConSuTitulo) {
  EXPECT_EQ(tabla.meta->getBaseClass(), FXMETACLASS(FXMDIChild));
  EXPECT_EQ(tabla.titulo(forma_), tabla.rotulo);
  EXPECT_EQ(forma_->getX(), 0);
  EXPECT_EQ(forma_->getY(), 0);
  EXPECT_EQ(forma_->getWidth(), tabla.ancho);
  EXPECT_EQ(forma_->getHeight(), tabla.alto);
}

TEST_P(FormasProductos, AlAbrirCargaTrazaYOcupaSuRanura) {
  Cierra();
  EXPECT_TRUE(Enviado().empty());
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 0);
  Salida salida;
  Abre();
  EXPECT_EQ(salida.Lineas(), (tabla.trazaCarga ? Textos{tabla.carga} : Textos{}) + Textos{tabla.traza});
  EXPECT_TRUE(mdiArray[tabla.ranura]);
  EXPECT_EQ(std::count(mdiArray, mdiArray + RanurasMdi + 1, true), 1);
  EXPECT_EQ(tabla.banderas(), std::pair(false, true));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(Lista(forma_)->getNumItems(),
            std::stoi(base_.Valor("select count(*) from norte." + std::string(tabla.producto.tabla))));
}

TEST_P(FormasProductos, AbrirSoloLeeSuCatalogo) {
  Cierra();
  espia_.Vacia();
  forma_ = tabla.abre(area_);
  EXPECT_EQ(Enviado(), (Textos{"BEGIN;", tabla.carga, "COMMIT;"}));
}

TEST_P(FormasProductos, TieneSusCajasYBotones) {
  Textos cajas;
  for (const FXGroupBox* caja : Todos<FXGroupBox>(forma_)) cajas.push_back(caja->getText().text());
  EXPECT_EQ(cajas, tabla.cajas + Textos{""});
  EXPECT_EQ(Lista(Grupo(forma_, tabla.cajas[0]))->getWidth(), 150);
  EXPECT_EQ(Etiquetas(Grupo(forma_, tabla.cajas[1])), Textos{tabla.campos[0].etiqueta});
  EXPECT_EQ(Botones(Grupo(forma_, "")), (Textos{"&Nuevo", "&Buscar", "&Borrar", "&Cerrar", "&Aceptar"}));
}

TEST_P(FormasProductos, CadaCampoEsDeSuClase) {
  const std::map<Pieza, std::pair<FXuint, FXuint>> clases = {
      {Pieza::Clave, {Limitado | TEXTFIELD_ENTER_ONLY, JUSTIFY_LEFT}},
      {Pieza::Texto, {Limitado, JUSTIFY_LEFT}},
      {Pieza::Real, {Limitado | TEXTFIELD_REAL, JUSTIFY_RIGHT}},
      {Pieza::Entero, {Limitado | TEXTFIELD_INTEGER, JUSTIFY_RIGHT}},
      {Pieza::EnteroReal, {Limitado | TEXTFIELD_REAL, JUSTIFY_RIGHT}},
  };
  for (const CampoForma& campo : tabla.campos) {
    SCOPED_TRACE(campo.columna);
    if (campo.pieza == Pieza::Nada) continue;
    if (campo.pieza == Pieza::Casilla) {
      Casilla(campo.columna);
    } else if (campo.pieza == Pieza::Combo || campo.pieza == Pieza::Cuenta) {
      EXPECT_EQ(Combo(campo.columna)->getComboStyle(), FXuint{COMBOBOX_STATIC});
      EXPECT_EQ(Combo(campo.columna)->getNumVisible(), campo.columnas);
    } else {
      const FXTextField* const texto = Texto(campo.columna);
      EXPECT_EQ(texto->getNumColumns(), campo.columnas);
      EXPECT_EQ(texto->getTextStyle(), clases.at(campo.pieza).first);
      EXPECT_EQ(texto->getJustify() & (JUSTIFY_LEFT | JUSTIFY_RIGHT), clases.at(campo.pieza).second);
    }
  }
}

TEST_P(FormasProductos, CadaCuentaTieneSuLupaYSuPropiaLetra) {
  std::vector<const FXFont*> letras;
  for (const std::string& columna : Columnas(Pieza::Cuenta)) {
    SCOPED_TRACE(columna);
    EXPECT_EQ(Combo(columna)->getNumItems(), static_cast<FXint>(Catalogo::Catalogo_Ctas.size()));
    EXPECT_EQ(Lupa(columna)->getText(), "");
    EXPECT_EQ(Lupa(columna)->getIcon(), icono(&App(), iconos::find_icon));
    const FXFont* const letra = Combo(columna)->getFont();
    EXPECT_EQ(letra->getName(), "helvica");
    EXPECT_EQ(letra->getSize(), 80u);
    EXPECT_EQ(std::count(letras.begin(), letras.end(), letra), 0);
    letras.push_back(letra);
  }
}

// With the program's own font, at the size that the form opens with.
TEST_P(FormasProductos, NadaSeVeCortado) {
  Cierra();
  const Principal principal;
  Area area;
  Abre(area);
  ASSERT_TRUE(BombeaHasta([&] { return Grupo(forma_, tabla.cajas[0])->getHeight() > 1; }));  // laid out
  ExigeNadaCortado(forma_);
  for (const auto& [columna, pieza] : piezas_)
    EXPECT_GE(pieza->getWidth(), pieza->getDefaultWidth()) << columna;
}

// Saving and reading.

TEST_P(FormasProductos, RegistraBuscaCambiaYBorra) {
  const Producto& producto = tabla.producto;
  const Valores alta = Alta();
  Llena(alta);
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  EXPECT_EQ(cuadros_.at(0).titulo, producto.clase);
  EXPECT_EQ(cuadros_.at(0).clase, Clase::Pregunta);
  EXPECT_EQ(Enviado(), Guardado(producto.alta[0], alta));
  EXPECT_EQ(tabla.banderas(), std::pair(false, false));
  EXPECT_EQ(RenglonActual(), alta.at(ColumnaDescripcion()));
  EXPECT_EQ(EnElServidor(Clave()), alta);

  Manda("&Nuevo");
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_TRUE(Busca(Clave()).empty());
  EXPECT_EQ(Enviado(), Textos{Sentencia(producto.busqueda, alta)});
  EXPECT_EQ(Pantalla(), Vistos(alta));
  EXPECT_EQ(RenglonActual(), alta.at(ColumnaDescripcion()));
  EXPECT_TRUE(Manda("&Aceptar").empty());  // what was read is what is there

  const Valores otra = Otra();
  Llena(otra);
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(Enviado(), Guardado(producto.cambio[0], otra));
  EXPECT_EQ(EnElServidor(Clave()), otra);
  EligeRenglon(Lista(forma_), Lista(forma_)->findItem(otra.at(ColumnaDescripcion()).c_str()));
  EXPECT_EQ(Pantalla(), Vistos(otra));
  EXPECT_EQ(tabla.banderas(), std::pair(false, false));

  EXPECT_EQ(Manda("&Borrar", {Respuesta::No}), Textos{"Borrar el registro ?"});
  EXPECT_TRUE(Existe(Clave()));
  Enviado();
  EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
  EXPECT_EQ(Enviado(),
            (Textos{Sentencia(producto.busqueda, alta), "BEGIN;", Sentencia(producto.borrado, alta),
                    "COMMIT;", "BEGIN;", tabla.carga, "COMMIT;"}));
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(tabla.banderas(), std::pair(false, true));
  EXPECT_FALSE(Existe(Clave()));
}

TEST_P(FormasProductos, CadaCampoCambiaSuColumnaYNingunaOtra) {
  Registra();
  Valores valores = Alta();
  const Valores otra = Otra();
  for (const auto& [columna, pieza] : piezas_) {
    if (columna == ColumnaClave()) continue;
    SCOPED_TRACE(columna);
    ASSERT_NE(otra.at(columna), valores.at(columna));
    Pon(columna, otra.at(columna));
    valores[columna] = otra.at(columna);
    EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
    EXPECT_EQ(Enviado(), Guardado(tabla.producto.cambio[0], valores));
  }
  EXPECT_EQ(EnElServidor(Clave()), otra);
}

// The "N" of a box that is not checked, which no record begins with, is a change.
TEST_P(FormasProductos, AceptarSinTocarNadaPideLaClave) {
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{"No se especifico la clave"});
  EXPECT_TRUE(Enviado().empty());
  EXPECT_EQ(Pantalla(), Vacia());
}

TEST_P(FormasProductos, ContestarQueNoDejaPreguntarOtraVez) {
  Llena(Alta());
  for (int vez = 0; vez < 2; ++vez) {
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
    EXPECT_EQ(tabla.banderas(), std::pair(true, true));
  }
  EXPECT_TRUE(Enviado().empty());
}

TEST_P(FormasProductos, LoQueNoHayNiSeHallaNiSeBorra) {
  EXPECT_EQ(Busca("ZZ", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  EXPECT_EQ(cuadros_.at(0).titulo, tabla.producto.clase);
  EXPECT_EQ(Pantalla(), Vacia());
  Llena(Alta());
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_TRUE(tabla.banderas().second);
}

// The accounts.

TEST_P(FormasProductos, CadaLupaParteDeSuCuentaYDejaLaHallada) {
  Registra();
  Valores valores = Alta();
  const Valores otra = Otra();
  for (const std::string& columna : Columnas(Pieza::Cuenta)) {
    SCOPED_TRACE(columna);
    Guion guion;
    guion.Con([&](FXDialogBox* dialogo) {
      EXPECT_EQ(dialogo->getMetaClass(), FXMETACLASS(Busqueda_Window));
      EXPECT_EQ(Lista(dialogo)->getCurrentItem(), Opcion(columna, valores.at(columna)));
      EligeRenglon(Lista(dialogo), Opcion(columna, otra.at(columna)));
      Pulsa(Boton(dialogo, "&Aceptar"));
    });
    Pulsa(Lupa(columna));
    valores[columna] = otra.at(columna);
    EXPECT_EQ(Pantalla(), Vistos(valores));
  }
  Acepta();
  EXPECT_EQ(EnElServidor(Clave()), valores);
}

TEST_P(FormasProductos, UnaCuentaQueNoEsAfectableSeElijeYSeRechaza) {
  Llena(Alta());
  for (const Prueba& regla : tabla.producto.reglas) {
    if (regla.valor != Acumulativa) continue;
    SCOPED_TRACE(regla.texto);
    Pon(regla.campo, Acumulativa);
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{regla.texto});
    Pon(regla.campo, Alta().at(regla.campo));
  }
}

TEST_P(FormasProductos, UnaCuentaBorradaDeLaCartaSeConservaYElServidorLaRechaza) {
  const std::string columna = Columnas(Pieza::Cuenta)[0];
  const std::string borrada = Cuenta("5406");  // nothing hangs on it
  Registra();
  const Valores antes = Alta();
  Pon(columna, borrada);
  base_.Ejecuta("delete from norte.catalogo_ctas where cuentaid = '" + borrada + "'");
  for (const bool releida : {false, true}) {
    if (releida) catalogo.LoadCuentas();
    const Valores pantalla = Pantalla();
    const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
    EXPECT_EQ(cuadros_.at(1).titulo, "Error en Validación");
    EXPECT_NE(dichos.at(1).find("No existe la cuenta"), std::string::npos) << dichos.at(1);
    EXPECT_EQ(Pantalla(), pantalla);
    EXPECT_EQ(EnElServidor(Clave()), antes);
  }
  Pon(columna, Otra().at(columna));
  EXPECT_EQ(Acepta(), Textos{"Guardar cambios realizados ?"});
  EXPECT_EQ(EnElServidor(Clave()).at(columna),
            Catalogo::Catalogo_Ctas[Combo(columna)->getCurrentItem()].getCuentaID());
}

// The rules.

TEST_P(FormasProductos, CadaReglaSeDiceAntesDePreguntarYLaFormaQuedaComoEstaba) {
  for (const Prueba& regla : tabla.producto.reglas) {
    const bool sinTocar = regla.valor.empty() || piezas_.at(regla.campo)->isMemberOf(FXMETACLASS(FXComboBox));
    SCOPED_TRACE(std::string(regla.campo) + ": " + regla.texto);
    tabla.limpia();
    Manda("&Nuevo");
    Llena(Alta(), regla.campo);
    if (!sinTocar || regla.valor == Acumulativa) Pon(regla.campo, regla.valor);
    const Valores pantalla = Pantalla();
    if (std::count(tabla.fijas.begin(), tabla.fijas.end(), regla.campo) != 0) {
      EXPECT_EQ(Manda("&Aceptar", {Respuesta::No}), Textos{"Registrar ?"});
      continue;
    }
    EXPECT_EQ(Manda("&Aceptar", {Respuesta::Aceptar}), Textos{regla.texto});
    EXPECT_EQ(cuadros_.at(0).clase, Clase::Error);
    EXPECT_EQ(cuadros_.at(0).titulo, "Error en Validación");
    EXPECT_EQ(Pantalla(), pantalla);
    EXPECT_EQ(tabla.banderas(), std::pair(true, true));
  }
  EXPECT_EQ(espia_.Cuantas("select"), 0u);
}

TEST_P(FormasProductos, CadaLimiteSeGuardaOLoDiceElServidor) {
  for (const Prueba& limite : tabla.limites) {
    SCOPED_TRACE(limite.campo + (": " + limite.valor));
    tabla.limpia();
    Manda("&Nuevo");
    Llena(Alta());
    Escribe(Texto(limite.campo), limite.valor);
    const std::string texto = limite.texto;
    if (texto.empty()) {
      EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
      EXPECT_EQ(std::stod(EnElServidor(Clave()).at(limite.campo)), std::stod(limite.valor));
      EXPECT_EQ(Manda("&Borrar", {Respuesta::Si}), Textos{"Borrar el registro ?"});
    } else {
      const Textos dichos = Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar});
      EXPECT_NE(dichos.at(1).find(texto), std::string::npos) << dichos.at(1);
      EXPECT_FALSE(Existe(Clave()));
    }
  }
}

TEST_P(FormasProductos, TreintaLetrasAcentuadasSeCortanEnUnaEntera) {
  Valores valores = Alta();
  valores[ColumnaDescripcion()] = std::string(40 * 2, ' ');
  for (size_t i = 0; i < 80; i += 2) valores[ColumnaDescripcion()].replace(i, 2, "ñ");
  Llena(valores);
  EXPECT_EQ(Texto(ColumnaDescripcion())->getText().count(), 30);
  EXPECT_EQ(Acepta(), Textos{"Registrar ?"});
  valores[ColumnaDescripcion()].resize(30);  // the width of the column, in bytes
  EXPECT_EQ(EnElServidor(Clave()), valores);
  EXPECT_EQ(RenglonActual(), valores[ColumnaDescripcion()]);
}

// The connection.

TEST_P(FormasProductos, CortadaEnCadaSentenciaNoQuedaNadaAMediasYLaFormaSirve) {
  constexpr size_t cierre =
      2;  // COMMIT, behind BEGIN and the write, ahead of the three statements of the load
  for (const bool cambio : {false, true}) {
    for (size_t n = 0; n < 6; ++n) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE((cambio ? "cambio, " : "alta, ") + std::to_string(n) + (despues ? ", después" : ""));
        Quita();
        if (cambio) Registra();
        Llena(cambio ? Otra() : Alta());
        espia_.Vacia();
        espia_.En(n, despues ? falla::CorteDespues() : falla::CorteAntes());
        EXPECT_TRUE(AceptaComoSea());
        espia_.Vacia();
        Reconecta();
        const bool guardado = n > cierre || (n == cierre && despues);
        EXPECT_EQ(EnElServidor(Clave()), guardado && cambio   ? Otra()
                                         : cambio || guardado ? Alta()
                                                              : Ninguna());
        if (guardado) continue;
        EXPECT_EQ(Acepta(), Textos{cambio ? "Guardar cambios realizados ?" : "Registrar ?"});
        EXPECT_EQ(EnElServidor(Clave()), cambio ? Otra() : Alta());
      }
    }
  }
  EXPECT_TRUE(Busca(Clave()).empty());
  EXPECT_EQ(Pantalla(), Vistos(Otra()));
}

TEST_P(FormasProductos, SinSesionTodoMandoTieneRespuesta) {
  EligeRenglon(Lista(forma_), 1);
  sesion_.reset();
  ASSERT_EQ(conn, nullptr);
  EXPECT_TRUE(Manda("&Borrar").empty());
  EXPECT_EQ(Pantalla(), Vacia());
  EXPECT_EQ(Busca("AH", {Respuesta::Aceptar}), Textos{"Registro NO encontrado"});
  Llena(Alta());
  EXPECT_EQ(Manda("&Aceptar", {Respuesta::Si, Respuesta::Aceptar}),
            (Textos{"Registrar ?", "No hay conexión con el servidor."}));
  Cierra();
  Guion guion;
  guion.Responde(Respuesta::Aceptar);
  Abre();
  EXPECT_EQ(Lista(forma_)->getNumItems(), 0);
}

TEST_P(FormasProductos, UnaCargaDefectuosaNoTumbaLaForma) {
  for (const Falla& falla :
       {falla::Recortada(1), falla::Recortada(9), falla::ConNulos(), falla::ConTextos()}) {
    Cierra();
    espia_.Vacia();
    espia_.Cuando(tabla.carga, falla);
    forma_ = tabla.abre(area_);
    EligeRenglon(Lista(forma_), 1);
    Bombea();
    Guion guion;
    guion.EnAdelante([](FXDialogBox* caja) { Pulsa(Todos<FXButton>(caja).back()); });
    Pulsa(Boton(forma_, "&Aceptar"));
    EXPECT_LE(guion.Cuadros().size(), 1u);  // a question, or what is missing
  }
}

}  // namespace
}  // namespace pruebas
