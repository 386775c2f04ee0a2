// The records of the products, one table each, through the same tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "app/sesion.h"
#include "db/Catalogo.h"
#include "tests/catalogs/Producto.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

const std::string Acumulativa = Cuenta("1000");  // an account of the demonstration that adds up
const std::string Desconocida = Cuenta("7777");  // one that is not in the chart

bool EsCuenta(const Campo& campo) { return campo.bytes == 24 && campo.valor == Cuenta(campo.valor); }
bool EsTexto(const Campo& campo) { return campo.bytes > 0; }

/// Do a field of the server and a column of the record hold the same?
bool Iguales(const Campo& campo, const std::string& delServidor, const std::string& delRegistro) {
  return EsTexto(campo) ? delServidor == delRegistro : std::stod(delServidor) == std::stod(delRegistro);
}

/// Takes every statement; no row comes back.
PGresult* ServidorConforme(PGconn*, const char*) { return PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK); }

/// Without what the Check of the investment type writes.
Textos SinLaDeCheck(Textos lineas) {
  lineas.erase(std::remove_if(lineas.begin(), lineas.end(),
                              [](const std::string& linea) { return linea.rfind("fMontoMax", 0) == 0; }),
               lineas.end());
  return lineas;
}

class ProductoTest : public testing::TestWithParam<Producto (*)()> {
 protected:
  enum Operacion { Alta, Cambio };

  ProductoTest() {
    Catalogo::Catalogo_Ctas.clear();
    PonCuenta(Acumulativa, "C");
    for (const Campo& campo : producto_.campos)
      if (EsCuenta(campo)) PonCuenta(campo.valor, "A");
  }
  ~ProductoTest() override { Catalogo::Catalogo_Ctas.clear(); }

  static void PonCuenta(const std::string& numero, const char* tipo) {
    cCatalogo_Ctas cuenta;
    cuenta.setCuentaID(numero.c_str());
    cuenta.setTipo_Cta(tipo);
    Catalogo::Catalogo_Ctas.emplace(Catalogo::Catalogo_Ctas.size(), cuenta);
  }

  size_t Indice(const std::string& nombre) const {
    const auto& campos = producto_.campos;
    const auto campo =
        std::find_if(campos.begin(), campos.end(), [&](const Campo& c) { return c.nombre == nombre; });
    EXPECT_NE(campo, campos.end()) << nombre;
    return static_cast<size_t>(campo - campos.begin());
  }

  /// A record that breaks no rule and that the server takes; as changed and new as one that was filled in.
  std::unique_ptr<Ficha> Valida() const { return Llena(&Campo::valor); }
  std::unique_ptr<Ficha> Llena(std::string Campo::*valor) const {
    auto ficha = producto_.vacia();
    for (size_t i = 0; i < producto_.campos.size(); ++i) ficha->Pon(i, producto_.campos[i].*valor);
    ficha->Banderas(true, true);
    return ficha;
  }
  /// One that breaks the rules from `desde` to before `hasta`; the first of them where two are about one
  /// column.
  std::unique_ptr<Ficha> Rota(size_t desde, size_t hasta) const {
    Textos valores;
    for (const Campo& campo : producto_.campos) valores.push_back(campo.valor);
    for (size_t regla = hasta; regla-- > desde;)
      valores[Indice(producto_.reglas[regla].campo)] = producto_.reglas[regla].valor;
    auto ficha = producto_.vacia();
    ficha->PonTodas(valores);
    return ficha;
  }
  /// A record without two equal columns, which breaks no rule.
  std::unique_ptr<Ficha> SinIguales() const {
    auto ficha = Valida();
    for (size_t i = 0; i < producto_.campos.size(); ++i) ficha->Pon(i, Unico(i));
    return ficha;
  }
  /// A value that no other column has and that fits into any.
  std::string Unico(size_t i) const {
    const auto letra = static_cast<char>(i < 26 ? 'A' + i : 'a' + i - 26);
    return EsTexto(producto_.campos[i]) ? std::string(1, letra) : std::to_string(100 - i);
  }

  void Pon(Ficha& ficha, const Prueba& prueba) const { ficha.Pon(Indice(prueba.campo), prueba.valor); }

  static std::optional<std::string> Rechazo(Ficha& ficha) {
    Salida salida;  // one of the records traces its amounts
    return Lanzado([&] { EXPECT_TRUE(ficha.Check()); });
  }

  std::string Texto(const Enunciado& enunciado, const Ficha& ficha) const {
    Textos valores;
    for (const auto& campo : enunciado.campos) valores.push_back(ficha.Da(Indice(campo)));
    return Formateado(enunciado.formato, valores);
  }
  const std::vector<Enunciado>& De(Operacion operacion) const {
    return operacion == Alta ? producto_.alta : producto_.cambio;
  }
  Textos Transaccion(const std::vector<Enunciado>& enunciados, const Ficha& ficha) const {
    Textos sentencias = {"BEGIN;"};
    for (const auto& enunciado : enunciados) sentencias.push_back(Texto(enunciado, ficha));
    sentencias.push_back("COMMIT;");
    return sentencias;
  }
  Textos Trazas(const std::vector<Enunciado>& enunciados, const Ficha& ficha) const {
    Textos trazas;
    for (const auto& enunciado : enunciados)
      if (enunciado.traza) trazas.push_back(Texto(enunciado, ficha));
    return trazas;
  }
  static void Guarda(Ficha& ficha, Operacion operacion) {
    operacion == Alta ? ficha.AddNew() : ficha.Update();
  }

  const Producto producto_ = GetParam()();
};

// Without a server.

TEST_P(ProductoTest, SeCopiaEnteroYClearLoVacia) {
  const auto ficha = SinIguales();
  const std::string lleno = ficha->Estado();
  EXPECT_EQ(ficha->Copias(), Textos(3, lleno));
  EXPECT_EQ(ficha->Clase(), producto_.clase);
  ficha->Clear();
  EXPECT_EQ(ficha->Estado(), producto_.vacia()->Estado());
  for (size_t i = 0; i < producto_.campos.size(); ++i) {
    if (EsTexto(producto_.campos[i])) {
      EXPECT_EQ(ficha->Da(i), "");
    } else {
      EXPECT_EQ(std::stod(ficha->Da(i)), 0);
    }
  }
}

TEST_P(ProductoTest, CadaColumnaGuardaConSuAnchoYSoloUnCambioMarca) {
  for (size_t i = 0; i < producto_.campos.size(); ++i) {
    const Campo& campo = producto_.campos[i];
    SCOPED_TRACE(campo.nombre);
    const auto ficha = producto_.vacia();
    const auto pon = [&](const std::string& valor) {
      ficha->Banderas(false, false);
      ficha->Pon(i, valor);
      return ficha->Estado().find(" cambiado") != std::string::npos;
    };
    EXPECT_FALSE(pon(EsTexto(campo) ? "" : "0")) << "el mismo valor";
    EXPECT_TRUE(pon("7"));
    EXPECT_FALSE(pon(ficha->Da(i))) << "el mismo valor";
    if (!EsTexto(campo)) continue;
    EXPECT_EQ(ficha->Da(i), "7" + std::string(i == 0 ? campo.bytes - 1 : 0, ' '))
        << "solo la clave se rellena";
    EXPECT_TRUE(pon(""));
    pon(std::string(5000, 'y'));
    EXPECT_EQ(ficha->Da(i), std::string(campo.bytes, 'y'));
    pon(TextoAcentuado());
    EXPECT_EQ(ficha->Da(i), AcentuadoHasta(campo.bytes));
  }
}

TEST_P(ProductoTest, CadaReglaLanzaLoSuyoAntesQueTodasLasQueSiguen) {
  EXPECT_EQ(Rechazo(*Valida()), std::nullopt);
  for (size_t regla = 0; regla < producto_.reglas.size(); ++regla) {
    const Prueba& rota = producto_.reglas[regla];
    SCOPED_TRACE(std::string("regla ") + std::to_string(regla + 1) + " de " + rota.campo);
    EXPECT_EQ(Rechazo(*Rota(regla, regla + 1)), rota.texto) << "sola";
    EXPECT_EQ(Rechazo(*Rota(regla, producto_.reglas.size())), rota.texto) << "con todas las que siguen";
  }
}

TEST_P(ProductoTest, LoQueNingunaReglaRechazaPasa) {
  for (const Prueba& prueba : producto_.permitido) {
    const auto ficha = Valida();
    Pon(*ficha, prueba);
    EXPECT_EQ(Rechazo(*ficha), std::nullopt) << prueba.campo << " " << prueba.valor;
  }
  const auto sinConocidas = Valida();
  for (size_t i = 0; i < producto_.campos.size(); ++i)
    if (EsCuenta(producto_.campos[i])) sinConocidas->Pon(i, Desconocida);
  EXPECT_EQ(Rechazo(*sinConocidas), std::nullopt);
}

TEST_P(ProductoTest, CadaOperacionMandaSusSentenciasConCadaColumnaEnSuLugar) {
  for (const Operacion operacion : {Alta, Cambio}) {
    SCOPED_TRACE(operacion == Alta ? "alta" : "cambio");
    const auto ficha = SinIguales();
    const std::string lleno = ficha->Estado();
    Espia espia;
    espia.Cuando("", ServidorConforme);
    Salida salida;
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), Transaccion(De(operacion), *ficha));
    EXPECT_EQ(SinLaDeCheck(salida.Lineas()), Trazas(De(operacion), *ficha));
    EXPECT_EQ(ficha->Estado() + " cambiado nuevo", lleno);
  }
}

TEST_P(ProductoTest, BorrarYBuscarMandanSuSentenciaConLaClave) {
  const auto ficha = SinIguales();
  Espia espia;
  espia.Cuando("", ServidorConforme);
  Salida salida;
  ficha->Delete();
  EXPECT_EQ(espia.Sentencias(), Transaccion({producto_.borrado}, *ficha));
  ficha->Find();
  EXPECT_EQ(espia.Sentencias().size(), 4u);
  EXPECT_EQ(espia.Sentencias().back(), Texto(producto_.busqueda, *ficha));
  EXPECT_EQ(salida.Lineas(), Trazas({producto_.borrado, producto_.busqueda}, *ficha));
  EXPECT_EQ(ficha->Estado(), SinIguales()->Estado());
}

TEST_P(ProductoTest, SinClaveFindYDeleteNoHacenNadaYSinCambiosNadieEscribe) {
  const auto ficha = producto_.vacia();
  Espia espia;
  ficha->Find();
  ficha->Delete();
  ficha->AddNew();
  ficha->Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(ficha->Estado(), producto_.vacia()->Estado());
}

TEST_P(ProductoTest, CheckLanzaAntesDeCualquierSentencia) {
  const auto ficha = producto_.vacia();
  ficha->Banderas(true, true);
  const std::string antes = ficha->Estado();
  Espia espia;
  for (const Operacion operacion : {Alta, Cambio})
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), producto_.reglas[0].texto);
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(ficha->Estado(), antes);
}

// Against the reference database, with its chart of accounts in the cache.

class ProductoServidorTest : public ProductoTest {
 protected:
  ProductoServidorTest() { catalogo.LoadCuentas(); }

  /// The record's row as the server holds it; nothing if it is not there.
  Tabla EnServidor() { return base_.Filas("select * from norte." + DeSuClave()); }
  std::string DeSuClave() const {
    const Campo& clave = producto_.campos[0];
    return std::string(producto_.tabla) + " where " + clave.nombre + " = '" + clave.valor + "'";
  }
  /// Does that row hold what the record holds, column by column?
  void ExigeGuardada(const Ficha& ficha) {
    const Tabla filas = EnServidor();
    ASSERT_EQ(filas.size(), 1u);
    ASSERT_EQ(filas[0].size(), producto_.campos.size());
    for (size_t i = 0; i < producto_.campos.size(); ++i) {
      const Campo& campo = producto_.campos[i];
      const std::string& suyo = filas[0][campo.lugar];
      EXPECT_TRUE(Iguales(campo, suyo, ficha.Da(i))) << campo.nombre << ": " << suyo << " y " << ficha.Da(i);
    }
  }
  /// The row with the record's key, through the record.
  std::unique_ptr<Ficha> Leida() {
    auto ficha = producto_.vacia();
    ficha->Pon(0, producto_.campos[0].valor);
    Salida salida;
    ficha->Find();
    return ficha;
  }
  /// Saves the valid record.
  void DaDeAlta() {
    Salida salida;
    ASSERT_EQ(Lanzado([&] { Valida()->AddNew(); }), std::nullopt);
  }
  /// A record about to be saved, its row on the server as it is then: none, or that of the valid record.
  std::unique_ptr<Ficha> PorGuardar(Operacion operacion) {
    if (PQstatus(conn) != CONNECTION_OK) sesion_.emplace(base_);
    base_.Ejecuta("set role tolvara_propietario; delete from norte." + DeSuClave() + "; reset role");
    if (operacion == Alta) return Valida();
    DaDeAlta();
    return Llena(&Campo::otro);
  }

  /// Both saves with that one value: taken as it is, or refused with nothing written.
  void ExigeRespuesta(const Prueba& prueba) {
    SCOPED_TRACE(prueba.campo + (" " + prueba.valor));
    for (const Operacion operacion : {Alta, Cambio}) {
      const auto ficha = PorGuardar(operacion);
      Pon(*ficha, prueba);
      const Tabla antes = EnServidor();
      Salida salida;
      const std::string texto = Lanzado([&] { Guarda(*ficha, operacion); }).value_or("");
      engine.RollBackTransaction();
      if (prueba.texto[0] == '\0') {
        EXPECT_EQ(texto, "");
        ExigeGuardada(*ficha);
      } else {
        EXPECT_NE(texto.find(prueba.texto), std::string::npos) << texto;
        EXPECT_EQ(EnServidor(), antes);
      }
    }
  }

  BaseDatos base_;
  std::optional<Sesion> sesion_{std::in_place, base_};
};

TEST_P(ProductoServidorTest, FillTomaCadaColumnaDeSuLugar) {
  Textos respuesta(producto_.campos.size());
  for (size_t i = 0; i < producto_.campos.size(); ++i) respuesta[producto_.campos[i].lugar] = Unico(i);
  std::string sql;
  for (const auto& valor : respuesta) sql += (sql.empty() ? "select '" : "','") + valor;
  Ejecuta((sql + "'").c_str());
  const auto ficha = producto_.vacia();
  ficha->Banderas(true, true);
  ficha->Fill(0);
  for (size_t i = 0; i < producto_.campos.size(); ++i)
    EXPECT_TRUE(Iguales(producto_.campos[i], Unico(i), ficha->Da(i))) << producto_.campos[i].nombre;
  EXPECT_EQ(ficha->Estado().back(), ']') << "las dos banderas quedan quitadas";
}

TEST_P(ProductoServidorTest, LoGuardadoSeLeeDelServidorColumnaPorColumna) {
  const auto ficha = Valida();
  Salida salida;
  ficha->Find();  // its key is free
  EXPECT_NE(ficha->Estado().find(" nuevo"), std::string::npos);
  EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), std::nullopt);
  ExigeGuardada(*ficha);
  EXPECT_EQ(Leida()->Estado(), ficha->Estado());
  EXPECT_EQ(res, nullptr);

  const auto cambiada = Llena(&Campo::otro);
  EXPECT_EQ(Lanzado([&] { cambiada->Update(); }), std::nullopt);
  ExigeGuardada(*cambiada);
  EXPECT_EQ(Leida()->Estado(), cambiada->Estado());
  for (size_t i = 1; i < producto_.campos.size(); ++i)
    EXPECT_NE(ficha->Da(i), cambiada->Da(i)) << producto_.campos[i].nombre << ": el cambio no se prueba";

  EXPECT_EQ(Lanzado([&] { cambiada->Delete(); }), std::nullopt);
  EXPECT_TRUE(EnServidor().empty());
  EXPECT_EQ(Profundidad(), 0);
}

TEST_P(ProductoServidorTest, UnRechazoEnCualquierSentenciaDeshaceTodoYConservaLoEscrito) {
  for (const Operacion operacion : {Alta, Cambio}) {
    for (size_t i = 0; i < De(operacion).size(); ++i) {
      SCOPED_TRACE(De(operacion)[i].formato.substr(0, 25));
      const auto ficha = PorGuardar(operacion);
      const std::string lleno = ficha->Estado();
      const Tabla antes = EnServidor();
      Salida salida;
      Espia espia;
      espia.En(1 + i, falla::Error("No"));
      EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), "ERROR:  No\n");
      EXPECT_EQ(ficha->Estado(), lleno);
      EXPECT_EQ(espia.Sentencias().size(), 2 + i);
      EXPECT_EQ(Profundidad(), 1);
      engine.RollBackTransaction();
      EXPECT_EQ(EnServidor(), antes);

      espia.Vacia();
      EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), std::nullopt) << "y se puede repetir";
      ExigeGuardada(*ficha);
    }
  }
}

TEST_P(ProductoServidorTest, UnCorteEnCualquierSentenciaNoDejaNadaAMedias) {
  Salida salida;
  for (const Operacion operacion : {Alta, Cambio}) {
    const size_t commit = De(operacion).size() + 1;
    for (size_t i = 0; i <= commit; ++i) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE(std::string(operacion == Alta ? "alta " : "cambio ") + std::to_string(i) +
                     (despues ? " después" : " antes"));
        const auto ficha = PorGuardar(operacion);
        const std::string lleno = ficha->Estado();
        const Tabla antes = EnServidor();
        {
          Espia espia;
          espia.En(i, despues ? falla::CorteDespues() : falla::CorteAntes());
          EXPECT_TRUE(Lanzado([&] { Guarda(*ficha, operacion); }).has_value());
        }
        EXPECT_EQ(ficha->Estado(), lleno);
        engine.RollBackTransaction();
        if (i == commit && despues) {
          ExigeGuardada(*ficha);
        } else {
          EXPECT_EQ(EnServidor(), antes);
        }
      }
    }
  }
}

TEST_P(ProductoServidorTest, SinConexionSeLanzaYSeConservaLoEscrito) {
  sesion_.reset();
  Salida salida;
  for (const Operacion operacion : {Alta, Cambio}) {
    const auto ficha = Valida();
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), "");
    EXPECT_EQ(ficha->Estado(), Valida()->Estado());
    engine.RollBackTransaction();
  }
  EXPECT_NE(Leida()->Estado().find(" nuevo"), std::string::npos);
}

TEST_P(ProductoServidorTest, LosLimitesLosPoneElServidor) {
  for (const Prueba& prueba : producto_.servidor) ExigeRespuesta(prueba);
}

TEST_P(ProductoServidorTest, UnaCuentaQueNoEstaEnElCatalogoLaRechazaElServidor) {
  for (const Campo& campo : producto_.campos)
    if (EsCuenta(campo))
      ExigeRespuesta({campo.nombre, Desconocida, "7777-00-00-00-0000 no está en el catálogo de cuentas"});
}

TEST_P(ProductoServidorTest, CuentasDe24LetrasYUnaDescripcionAcentuadaCabenEnLaSentencia) {
  std::string nombre;
  for (int i = 0; i < 30; ++i) nombre += "ñ";
  const auto& campos = producto_.campos;
  const auto descripcion = std::find_if(campos.begin(), campos.end(), [](const Campo& c) {
    return std::string(c.nombre).rfind("Desc", 0) == 0;
  });
  const auto llena = [&](Ficha& ficha, const char* cabeza) {
    int cuantas = 0;
    for (size_t i = 0; i < campos.size(); ++i) {
      if (!EsCuenta(campos[i])) continue;
      const std::string numero = cabeza + std::to_string(1000 + cuantas++) + std::string(19, '9');
      base_.Ejecuta(
          "insert into norte.catalogo_ctas (cuentaid, identificacion, cuentanombre, tipo_cta, naturaleza)"
          " values ('" +
          numero + "', '1', '" + nombre + "', 'A', 'D')");
      ficha.Pon(i, numero);
    }
    ficha.Pon(static_cast<size_t>(descripcion - campos.begin()), nombre);
  };
  for (const Operacion operacion : {Alta, Cambio}) {
    const auto ficha = PorGuardar(operacion);
    llena(*ficha, operacion == Alta ? "8" : "9");
    catalogo.LoadCuentas();
    Salida salida;
    Espia espia;
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), Transaccion(De(operacion), *ficha));
    ExigeGuardada(*ficha);
  }
}

const auto Nombre = [](const testing::TestParamInfo<Producto (*)()>& caso) { return caso.param().nombre; };
const auto Productos = testing::Values(&TipoDeMovimiento, &TipoDeInversion, &TipoDePrestamo);
INSTANTIATE_TEST_SUITE_P(Productos, ProductoTest, Productos, Nombre);
INSTANTIATE_TEST_SUITE_P(Productos, ProductoServidorTest, Productos, Nombre);

}  // namespace
}  // namespace pruebas
