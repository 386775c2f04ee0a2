// The records of the fixed assets, one table each, through the same tests.
#include <gtest/gtest.h>

#include <algorithm>

#include "app/sesion.h"
#include "catalogs/assets/cActivo.h"
#include "catalogs/assets/cTipoDepreciacion.h"
#include "tests/catalogs/Activos.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

/// A date as a column of the table: its text is the server's.
template <class R>
Columna<R> DeFecha(void (R::*pon)(date), date (R::*da)() const) {
  return {[=](R& r, const std::string& valor) { (r.*pon)(date(valor.c_str())); },
          [=](const R& r) { return std::string((r.*da)().AsChar()); }};
}

#define CAMPO(columna) #columna, De(&T::set##columna, &T::get##columna)
#define FECHA(columna) #columna, DeFecha(&T::set##columna, &T::get##columna)

namespace tipo {

using T = cTipoDepreciacion;

const std::vector<CampoDe<T>> campos = {
    {CAMPO(DepreciacionID), 0, 0, "0", "0"},
    {CAMPO(DepreDescripcion), 31, 6, "Prueba", "Otra"},
    {CAMPO(DepreTasaContable), 0, 7, "10.500000", "33.375000"},
    {CAMPO(DepreTasaFiscal), 0, 8, "0.250000", "30.000000"},
    {CAMPO(MaximoDeducible), 0, 9, "175000.500000", "0.000000"},
    {CAMPO(DepreMoneda), 3, 1, "MX", "CA"},
    {CAMPO(DeprePorcentaje), 0, 10, "85.000000", "90.500000"},
    {CAMPO(Depre_Activo), 24, 2, Cuenta("1602"), Cuenta("1603")},
    {CAMPO(Depre_CtaDepre), 24, 3, Cuenta("1690-02"), Cuenta("1690-03")},
    {CAMPO(Depre_CtaGasto), 24, 4, Cuenta("5302"), Cuenta("5303")},
    {CAMPO(Depre_CtaBaja), 24, 5, Cuenta("4303"), Cuenta("4301")},
};

const std::vector<Prueba> reglas = {
    {"DepreDescripcion", "", "No ha especificado la descripción"},
    {"DepreTasaContable", "-0.5", "La tasa contable de depreciación no puede ser negativa"},
    {"DepreTasaFiscal", "-0.5", "La tasa fiscal de depreciación no puede ser negativa"},
    {"MaximoDeducible", "-0.01", "El maximo deducible no puede ser negativo"},
    {"DepreMoneda", "", "No ha especificado la moneda"},
    {"DeprePorcentaje", "-0.5", "El porcentaje de depreciación no puede ser negativo"},
    {"Depre_Activo", "", "No ha especificado la cuenta de activo"},
    {"Depre_CtaDepre", "", "No ha especificado la cuenta de depreciación"},
    {"Depre_CtaGasto", "", "No ha especificado la cuenta de gasto"},
    {"Depre_CtaBaja", "", "No ha especificado la cuenta de baja"},
};

const std::vector<Prueba> permitido = {
    {"DepreciacionID", "0", ""},
    {"DepreDescripcion", " ", ""},
    {"DepreTasaContable", "0", ""},
    {"DepreTasaFiscal", "0", ""},
    {"MaximoDeducible", "0", ""},
    {"DepreMoneda", " ", ""},
    {"DeprePorcentaje", "0", ""},
    {"DeprePorcentaje", "101", ""},
    {"Depre_Activo", Cuenta("1000"), ""},
    {"Depre_CtaDepre", Cuenta("1000"), ""},
    {"Depre_CtaGasto", Cuenta("1000"), ""},
    {"Depre_CtaBaja", "7777", ""},
};

const std::vector<Prueba> servidor = {
    {"DepreTasaContable", "0", ""},
    {"DepreTasaContable", "99999998", "Está fuera de rango"},  // the nearest of single precision is above
    {"DepreTasaContable", "1e30", "Está fuera de rango la tasa contable"},
    {"DepreTasaFiscal", "inf", "inf"},
    {"DepreTasaFiscal", "1e30", "Está fuera de rango la tasa fiscal"},
    {"MaximoDeducible", "999999995904", ""},
    {"MaximoDeducible", "123456789012345", "Está fuera de rango el máximo deducible"},
    {"DeprePorcentaje", "1e30", "Está fuera de rango el porcentaje"},
    {"DepreMoneda", "ZZ", "No existe la moneda: ZZ"},
    {"DepreMoneda", "  ", "Falta la moneda"},
    {"DepreDescripcion", "   ", "Falta la descripción"},
    {"DepreDescripcion", "O'Hara", "Hara"},
    {"DepreDescripcion", "100% %s %n \\", ""},
    {"DepreDescripcion", "Ñandú, \"cañón\" €", ""},
    {"Depre_Activo", Cuenta("7777"), "No existe la cuenta de activo: 7777-00-00-00-0000"},
    {"Depre_CtaDepre", Cuenta("7777"), "No existe la cuenta de depreciación: 7777-00-00-00-0000"},
    {"Depre_CtaGasto", Cuenta("7777"), "No existe la cuenta de gasto: 7777-00-00-00-0000"},
    {"Depre_CtaBaja", Cuenta("7777"), "No existe la cuenta de baja: 7777-00-00-00-0000"},
};

}  // namespace tipo

namespace fijo {

using T = cActivo;

const std::vector<CampoDe<T>> campos = {
    {CAMPO(ActivoID), 0, 0, "0", "0"},
    {CAMPO(DepreciacionID), 0, 1, "3", "4"},
    {CAMPO(ActivoClave), 20, 2, "PRUE-1", "OTRA-2"},
    {CAMPO(ActivoDescripcion), 258, 3, "Prueba", "Otra,\nen dos líneas"},
    {CAMPO(Activo_Valor), 0, 4, "14500.250000", "0.000000"},
    {CAMPO(PorcenVidaUtil), 0, 5, "80.500000", "33.375000"},
    {CAMPO(ValorMercado), 0, 6, "9000.000000", "123456.750000"},
    {CAMPO(Localizacion), 50, 7, "Bodega", "Matriz, primer piso"},
    {CAMPO(ActivoNoSerie), 20, 8, "FIC30001", "FIC30002"},
    {FECHA(FecInicioDepConta), 0, 9, "2006-03-05", "2024-02-29"},
    {CAMPO(ActivoTasaConta), 0, 10, "33.250000", "10.000000"},
    {CAMPO(ActDepreAcumConta), 0, 11, "100.500000", "200.250000"},
    {CAMPO(ActMetodoDepreConta), 0, 12, "1", "2"},
    {FECHA(FecInicioDepFiscal), 0, 13, "2007-12-31", "1999-01-01"},
    {CAMPO(ActDeduccionInme), 3, 14, "S", "N"},
    {CAMPO(ActivoTasaFiscal), 0, 15, "30.500000", "5.000000"},
    {CAMPO(ActDepreAcumFiscal), 0, 16, "90.750000", "180.500000"},
    {CAMPO(ActMetodoDepreFiscal), 0, 17, "2", "0"},
    {CAMPO(ActMonMaxDeduFiscal), 0, 18, "175000.000000", "0.500000"},
    {CAMPO(MontoOriginal), 0, 19, "14999.500000", "15000.000000"},
    {CAMPO(MonedaID), 3, 20, "MX", "CA"},
    {CAMPO(Departamento), 0, 21, "1", "2"},
};

const char* const SinInicioContable = "No ha especificado la fecha de inicio de depreciación contable";
const char* const SinInicioFiscal = "No ha especificado la fecha de inicio de depreciacion fiscal";

const std::vector<Prueba> reglas = {
    {"DepreciacionID", "0", "No ha especificado el tipo de depreciación"},
    {"ActivoClave", "", "No ha especificado la clave"},
    {"ActivoDescripcion", "", "No ha especificado la descripción"},
    {"Activo_Valor", "-0.5", "El valor no puede ser negativo"},
    {"PorcenVidaUtil", "-0.5", "El Porcentaje de Vida Util no puede ser negativo"},
    {"ValorMercado", "-0.5", "El valor de mercado no puede ser negativo"},
    {"Localizacion", "", "No ha especificado la localización"},
    {"ActivoNoSerie", "", "No ha especificado el número de serie"},
    {"FecInicioDepConta", "1900-01-01", SinInicioContable},
    {"FecInicioDepConta", "", SinInicioContable},
    {"ActivoTasaConta", "-0.5", "La tasa contable no puede ser negativa"},
    {"ActDepreAcumConta", "-0.5", "La depreciación acumulada contable no puede ser negativo"},
    {"ActMetodoDepreConta", "-1", "El metodo de depreciacion contable no puede ser nulo"},
    {"FecInicioDepFiscal", "1900-01-01", SinInicioFiscal},
    {"FecInicioDepFiscal", "", SinInicioFiscal},
    {"ActDeduccionInme", "", "No ha especificado si la deducción es inmediata"},
    {"ActivoTasaFiscal", "-0.5", "La tasa fiscal no puede ser negativa"},
    {"ActDepreAcumFiscal", "-0.5", "La tasa de depreciacion acumulada fiscal no puede ser negativa"},
    {"ActMetodoDepreFiscal", "-1", "El metodo de depreciacion fiscal no puede ser nulo"},
    {"ActMonMaxDeduFiscal", "-0.5", "El monto maximo de deduccion fiscal no puede ser negativo"},
    {"MontoOriginal", "-0.5", "El monto origial no puede ser negativo"},
    {"MonedaID", "", "No ha especificado el valor monetario"},
    {"Departamento", "-1", "No ha especificado el departemanto"},
};

const std::vector<Prueba> permitido = {
    {"DepreciacionID", "-1", ""},      {"ActivoClave", " ", ""},
    {"Activo_Valor", "0", ""},         {"PorcenVidaUtil", "0", ""},
    {"ValorMercado", "0", ""},         {"FecInicioDepConta", "1900-03-05", ""},
    {"ActivoTasaConta", "0", ""},      {"FecInicioDepConta", "2026-02-31", ""},
    {"ActDepreAcumConta", "0", ""},    {"FecInicioDepConta", "0000-02-03", ""},
    {"ActMetodoDepreConta", "0", ""},  {"FecInicioDepFiscal", "1900-01-02", ""},
    {"ActMetodoDepreConta", "3", ""},  {"FecInicioDepFiscal", "9999-99-99", ""},
    {"ActDeduccionInme", "N", ""},     {"ActDeduccionInme", "x", ""},
    {"ActivoTasaFiscal", "0", ""},     {"ActDepreAcumFiscal", "0", ""},
    {"ActMetodoDepreFiscal", "0", ""}, {"ActMonMaxDeduFiscal", "0", ""},
    {"MontoOriginal", "0", ""},        {"Departamento", "0", ""},
};

const std::vector<Prueba> servidor = {
    {"DepreciacionID", "999", "El tipo de depreciación 999 no existe"},
    {"DepreciacionID", "-1", "El tipo de depreciación -1 no existe"},
    {"ActivoClave", "   ", "Falta la clave"},
    {"ActivoClave", "LOCA-0001", "La clave de activo LOCA-0001 ya existe"},
    {"ActivoDescripcion", "O'Hara", "Hara"},
    {"ActivoDescripcion", "x',1);--", "ERROR"},
    {"ActivoDescripcion", "100% %s %n \\ \"cañón\" €\nÑandú", ""},
    {"Activo_Valor", "999999995904", ""},
    {"Activo_Valor", "123456789012345", "Está fuera de rango el valor"},
    {"PorcenVidaUtil", "1e30", "Está fuera de rango el porcentaje de vida útil"},
    {"ValorMercado", "1e30", "Está fuera de rango el valor de mercado"},
    {"Localizacion", "   ", "Falta la localización"},
    {"ActivoNoSerie", "   ", "Falta el número de serie"},
    {"FecInicioDepConta", "2026-02-31", "La fecha \"2026-02-31\" no existe en el calendario"},
    {"FecInicioDepConta", "2026-13-01", "La fecha \"2026-13-01\" no existe en el calendario"},
    {"FecInicioDepConta", "0000-02-03", "La fecha \"0000-02-03\" no existe en el calendario"},
    {"FecInicioDepConta", "2024-02-29", ""},
    {"FecInicioDepFiscal", "2025-02-29", "La fecha \"2025-02-29\" no existe en el calendario"},
    {"ActivoTasaConta", "1e30", "Está fuera de rango la tasa contable"},
    {"ActDepreAcumConta", "123456789012345", "Está fuera de rango la depreciación acumulada contable"},
    {"ActMetodoDepreConta", "3", "Está fuera de rango el método de depreciación contable"},
    {"ActDeduccionInme", "X", "Debe ser S o N la marca de deducción inmediata"},
    {"ActivoTasaFiscal", "inf", "inf"},
    {"ActDepreAcumFiscal", "123456789012345", "Está fuera de rango la depreciación acumulada fiscal"},
    {"ActMetodoDepreFiscal", "3", "Está fuera de rango el método de depreciación fiscal"},
    {"ActMonMaxDeduFiscal", "123456789012345", "Está fuera de rango el monto máximo de deducción fiscal"},
    {"MontoOriginal", "123456789012345", "Está fuera de rango el monto original"},
    {"MonedaID", "ZZ", "No existe la moneda: ZZ"},
    {"Departamento", "3", "Está fuera de rango el departamento"},
};

}  // namespace fijo

}  // namespace

Producto TipoDeDepreciacion() {
  const Textos columnas = {"DepreMoneda",     "Depre_Activo",     "Depre_CtaDepre",    "Depre_CtaGasto",
                           "Depre_CtaBaja",   "DepreDescripcion", "DepreTasaContable", "DepreTasaFiscal",
                           "MaximoDeducible", "DeprePorcentaje"};
  Textos conClave = columnas;
  conClave.push_back("DepreciacionID");
  Producto tipo;
  tipo.nombre = "cTipoDepreciacion";
  tipo.clase = "Tipo de Depreciacion";
  tipo.tabla = "depreciacion";
  tipo.alta = {{"select spidepreciacion('%s','%s','%s','%s','%s','%s',%f,%f,%f,%f);", columnas, false}};
  tipo.cambio = {{"select spudepreciacion('%s','%s','%s','%s','%s','%s',%f,%f,%f,%f,%li);", conClave, false}};
  tipo.borrado = {"SELECT spddepreciacion(%li);", {"DepreciacionID"}, false};
  tipo.busqueda = {"SELECT * FROM spsdepreciacion(%li);", {"DepreciacionID"}, false};
  tipo.reglas = tipo::reglas;
  tipo.permitido = tipo::permitido;
  tipo.servidor = tipo::servidor;
  return ConCampos(tipo, tipo::campos);
}

Producto ActivoFijo() {
  Producto activo;
  activo.nombre = "cActivo";
  activo.clase = "Activo";
  activo.tabla = "activo";
  activo.alta = {
      {"select spiactivo(%li,'%s','%s',%f,%f,%f,'%s','%s','%.10s',%f,%f,%i,'%.10s','%s',%f,%f,%i,%f,%f,'%s',"
       "%i);",
       Nombres(fijo::campos, 1, 22), true}};
  activo.cambio = {
      {"select spuactivo(%li,%li,'%s','%s',%f,%f,%f,'%s','%s','%.10s',%f,%f,%i,'%.10s','%s',%f,%f,%i,%f,%f,"
       "'%s',%i);",
       Nombres(fijo::campos, 0, 22), false}};
  activo.borrado = {"SELECT spdactivo(%li);", {"ActivoID"}, false};
  activo.busqueda = {"SELECT * FROM spsactivo(%li);", {"ActivoID"}, false};
  activo.reglas = fijo::reglas;
  activo.permitido = fijo::permitido;
  activo.servidor = fijo::servidor;
  return ConCampos(activo, fijo::campos);
}

namespace {

enum Operacion { Alta, Cambio };

bool EsTexto(const Campo& campo) { return campo.bytes > 0; }
bool EsFecha(const Campo& campo) { return std::string(campo.nombre).rfind("Fec", 0) == 0; }

/// What a column of a blank record holds.
std::string EnBlanco(const Campo& campo) {
  if (EsTexto(campo)) return "";
  if (EsFecha(campo)) return "1900-01-01";
  return campo.valor.find('.') != std::string::npos ? "0.000000" : "0";
}

class ActivosTest : public testing::TestWithParam<Producto (*)()> {
 protected:
  size_t Indice(const std::string& nombre) const {
    const auto& campos = tabla.campos;
    const auto campo =
        std::find_if(campos.begin(), campos.end(), [&](const Campo& c) { return c.nombre == nombre; });
    EXPECT_NE(campo, campos.end()) << nombre;
    return static_cast<size_t>(campo - campos.begin());
  }
  /// A new record that breaks no rule and that the server takes, as a form leaves it.
  std::unique_ptr<Ficha> Llena(std::string Campo::*valor = &Campo::valor) const {
    auto ficha = tabla.vacia();
    for (size_t i = 0; i < tabla.campos.size(); ++i) ficha->Pon(i, tabla.campos[i].*valor);
    ficha->Banderas(true, true);
    return ficha;
  }
  /// One without two equal columns, of which none is empty.
  std::unique_ptr<Ficha> SinIguales() const {
    auto ficha = Llena();
    for (size_t i = 0; i < tabla.campos.size(); ++i) ficha->Pon(i, Unico(i));
    return ficha;
  }
  std::string Unico(size_t i) const {
    const Campo& campo = tabla.campos[i];
    if (EsTexto(campo)) return std::string(1, static_cast<char>('A' + i));
    return EsFecha(campo) ? "20" + std::to_string(10 + i) + "-02-31" : std::to_string(100 - i);
  }
  void Pon(Ficha& ficha, const Prueba& prueba) const { ficha.Pon(Indice(prueba.campo), prueba.valor); }

  const Enunciado& De(Operacion operacion) const {
    return operacion == Alta ? tabla.alta[0] : tabla.cambio[0];
  }
  std::string Texto(const Enunciado& enunciado, const Ficha& ficha) const {
    Textos valores;
    for (const auto& campo : enunciado.campos) valores.push_back(ficha.Da(Indice(campo)));
    return Formateado(enunciado.formato, valores);
  }
  static void Guarda(Ficha& ficha, Operacion operacion) {
    operacion == Alta ? ficha.AddNew() : ficha.Update();
  }

  const Producto tabla = GetParam()();
};

const auto Registros = testing::Values(&TipoDeDepreciacion, &ActivoFijo);
const auto Nombre = [](const testing::TestParamInfo<Producto (*)()>& caso) { return caso.param().nombre; };
INSTANTIATE_TEST_SUITE_P(, ActivosTest, Registros, Nombre);

// Without a server.

TEST_P(ActivosTest, RecienHechoEstaVacioYUnaCopiaLlevaTodo) {
  for (size_t i = 0; i < tabla.campos.size(); ++i)
    EXPECT_EQ(tabla.vacia()->Da(i), EnBlanco(tabla.campos[i])) << tabla.campos[i].nombre;
  EXPECT_EQ(tabla.vacia()->Estado().back(), ']') << "sin banderas";
  const auto ficha = SinIguales();
  const std::string lleno = ficha->Estado();
  EXPECT_NE(lleno.find("] cambiado nuevo"), std::string::npos);
  EXPECT_EQ(ficha->Copias(), Textos(3, lleno));
  EXPECT_EQ(ficha->Clase(), tabla.clase);
  ficha->Clear();
  EXPECT_EQ(ficha->Estado(), tabla.vacia()->Estado());
}

TEST_P(ActivosTest, CadaColumnaGuardaConSuAnchoSinRellenarYSoloUnCambioMarca) {
  for (size_t i = 0; i < tabla.campos.size(); ++i) {
    const Campo& campo = tabla.campos[i];
    SCOPED_TRACE(campo.nombre);
    const auto ficha = tabla.vacia();
    const auto pon = [&](const std::string& valor) {
      ficha->Banderas(false, false);
      ficha->Pon(i, valor);
      return ficha->Estado().find(" cambiado") != std::string::npos;
    };
    EXPECT_FALSE(pon(EnBlanco(campo))) << "el mismo valor";
    const std::string valor = EsFecha(campo) ? "2026-02-31" : "7";
    EXPECT_TRUE(pon(valor));
    EXPECT_FALSE(pon(valor)) << "el mismo valor";
    if (!EsTexto(campo)) continue;
    EXPECT_EQ(ficha->Da(i), "7");
    EXPECT_TRUE(pon(""));
    EXPECT_TRUE(pon(std::string(5000, 'y')));
    EXPECT_EQ(ficha->Da(i), std::string(campo.bytes, 'y'));
    EXPECT_TRUE(pon(TextoAcentuado()));
    EXPECT_EQ(ficha->Da(i), AcentuadoHasta(campo.bytes));
  }
}

TEST_P(ActivosTest, CadaReglaLanzaLoSuyoAntesQueTodasLasQueSiguen) {
  const auto rechazo = [](Ficha& ficha) { return Lanzado([&] { EXPECT_TRUE(ficha.Check()); }); };
  EXPECT_EQ(rechazo(*Llena()), std::nullopt);
  for (size_t regla = 0; regla < tabla.reglas.size(); ++regla) {
    const Prueba& rota = tabla.reglas[regla];
    SCOPED_TRACE(rota.campo + (": " + rota.valor));
    const auto sola = Llena(), conLasQueSiguen = Llena();
    Pon(*sola, rota);
    EXPECT_EQ(rechazo(*sola), rota.texto);
    for (size_t otra = regla; otra < tabla.reglas.size(); ++otra) Pon(*conLasQueSiguen, tabla.reglas[otra]);
    EXPECT_EQ(rechazo(*conLasQueSiguen), rota.texto);
  }
  for (const Prueba& prueba : tabla.permitido) {
    const auto ficha = Llena();
    Pon(*ficha, prueba);
    EXPECT_EQ(rechazo(*ficha), std::nullopt) << prueba.campo << " " << prueba.valor;
  }
}

TEST_P(ActivosTest, CadaOperacionMandaSuSentenciaConCadaColumnaEnSuLugar) {
  for (const Operacion operacion : {Alta, Cambio}) {
    const auto ficha = SinIguales();
    const std::string lleno = ficha->Estado(), sentencia = Texto(De(operacion), *ficha);
    Espia espia;
    espia.Cuando("", [](PGconn*, const char*) { return PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK); });
    Salida salida;
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), std::nullopt);
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", sentencia, "COMMIT;"}));
    EXPECT_EQ(salida.Lineas(), De(operacion).traza ? Textos{sentencia} : Textos{});
    // No row came back: the key is what it was.
    EXPECT_EQ(ficha->Estado() + " cambiado nuevo", lleno);
  }
}

TEST_P(ActivosTest, BorrarYBuscarMandanCualquierClaveQueNoSeaCero) {
  for (const std::string clave : {"7", "-7", "70000000000"}) {
    const auto ficha = tabla.vacia();
    ficha->Pon(0, clave);
    Espia espia;
    espia.Cuando("", falla::SinFilas());
    Salida salida;
    ficha->Find();
    EXPECT_EQ(espia.Sentencias(), Textos{Texto(tabla.busqueda, *ficha)});
    EXPECT_NE(ficha->Estado().find(" nuevo"), std::string::npos);
    espia.Vacia();
    espia.Cuando("", [](PGconn*, const char*) { return PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK); });
    ficha->Delete();
    EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", Texto(tabla.borrado, *ficha), "COMMIT;"}));
    EXPECT_EQ(salida.Texto(), "");
  }
}

TEST_P(ActivosTest, SinClaveSinCambiosOSinPasarCheckNadaSeManda) {
  const auto ficha = tabla.vacia();
  Espia espia;
  ficha->Find();
  ficha->Delete();
  ficha->AddNew();
  ficha->Update();
  EXPECT_EQ(ficha->Estado(), tabla.vacia()->Estado());
  ficha->Banderas(true, true);
  const std::string antes = ficha->Estado();
  for (const Operacion operacion : {Alta, Cambio})
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), tabla.reglas[0].texto);
  EXPECT_EQ(ficha->Estado(), antes);
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Profundidad(), 0);
}

// Against the reference database.

class ActivosServidorTest : public ActivosTest {
 protected:
  /// The row with the record's key as the server holds it; nothing if it is not there.
  Tabla EnServidor(const Ficha& ficha) {
    return base_.Filas("select * from norte." + std::string(tabla.tabla) + " where " +
                       tabla.campos[0].nombre + " = " + ficha.Da(0));
  }
  std::string Cuantas() { return base_.Valor("select count(*) from norte." + std::string(tabla.tabla)); }
  /// Does that row hold what the record holds, column by column?
  void ExigeGuardada(const Ficha& ficha) {
    const Tabla filas = EnServidor(ficha);
    ASSERT_EQ(filas.size(), 1u);
    ASSERT_EQ(filas[0].size(), tabla.campos.size());
    for (size_t i = 0; i < tabla.campos.size(); ++i) {
      const Campo& campo = tabla.campos[i];
      const std::string &suyo = filas[0][campo.lugar], mio = ficha.Da(i);
      EXPECT_TRUE(EsTexto(campo) || EsFecha(campo) ? suyo == mio : std::stod(suyo) == std::stod(mio))
          << campo.nombre << ": " << suyo << " y " << mio;
    }
  }
  /// A record about to be saved; a change is that of a row which is on the server.
  std::unique_ptr<Ficha> PorGuardar(Operacion operacion) {
    if (PQstatus(conn) != CONNECTION_OK) sesion_.emplace(base_);
    base_.Ejecuta("delete from norte." + std::string(tabla.tabla) + " where " + tabla.campos[0].nombre +
                  " >= 1000");
    auto ficha = Llena();
    if (operacion == Alta) return ficha;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), std::nullopt);
    auto cambiada = Llena(&Campo::otro);
    cambiada->Pon(0, ficha->Da(0));
    return cambiada;
  }
  void SetUp() override {
    base_.Ejecuta("alter sequence norte." + std::string(tabla.tabla) + "_" + tabla.campos[0].nombre +
                  "_seq restart with 1000");
  }

  BaseDatos base_;
  std::optional<Sesion> sesion_{std::in_place, base_};
};

INSTANTIATE_TEST_SUITE_P(, ActivosServidorTest, Registros, Nombre);

TEST_P(ActivosServidorTest, FillTomaCadaColumnaDeSuLugar) {
  Textos respuesta(tabla.campos.size());
  for (size_t i = 0; i < tabla.campos.size(); ++i) respuesta[tabla.campos[i].lugar] = Unico(i);
  std::string sql;
  for (const auto& valor : respuesta) sql += (sql.empty() ? "select '" : "','") + valor;
  Ejecuta((sql + "'").c_str());
  const auto ficha = tabla.vacia();
  ficha->Banderas(true, true);
  ficha->Fill(0);
  auto esperada = SinIguales();
  esperada->Banderas(false, false);
  EXPECT_EQ(ficha->Estado(), esperada->Estado());
}

TEST_P(ActivosServidorTest, LoGuardadoTomaLaClaveDelServidorYSeLeeColumnaPorColumna) {
  const auto ficha = Llena();
  Salida salida;
  EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), std::nullopt);
  EXPECT_EQ(ficha->Da(0), "1000");
  EXPECT_EQ(ficha->Estado().back(), ']') << "las dos banderas quedan quitadas";
  ExigeGuardada(*ficha);

  const auto leida = tabla.vacia();
  leida->Pon(0, "1000");
  leida->Find();
  EXPECT_EQ(leida->Estado(), ficha->Estado());
  EXPECT_EQ(res, nullptr);

  const auto cambiada = Llena(&Campo::otro);
  cambiada->Pon(0, "1000");
  EXPECT_EQ(Lanzado([&] { cambiada->Update(); }), std::nullopt);
  ExigeGuardada(*cambiada);
  for (size_t i = 1; i < tabla.campos.size(); ++i)
    EXPECT_NE(ficha->Da(i), cambiada->Da(i)) << tabla.campos[i].nombre << ": el cambio no se prueba";

  EXPECT_EQ(Lanzado([&] { cambiada->Delete(); }), std::nullopt);
  EXPECT_TRUE(EnServidor(*ficha).empty());
  const std::string antes = cambiada->Estado();
  cambiada->Find();
  EXPECT_EQ(cambiada->Estado(), antes + " nuevo");
  EXPECT_EQ(Lanzado([&] { cambiada->Delete(); }).value_or("").find("ERROR"), 0u);
  engine.RollBackTransaction();
  EXPECT_EQ(Profundidad(), 0);
}

TEST_P(ActivosServidorTest, UnRechazoConservaLoEscritoYSePuedeRepetir) {
  for (const Operacion operacion : {Alta, Cambio}) {
    const auto ficha = PorGuardar(operacion);
    const std::string lleno = ficha->Estado();
    const Tabla antes = EnServidor(*ficha);
    Salida salida;
    Espia espia;
    espia.En(1, falla::Error("No"));
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), "ERROR:  No\n");
    EXPECT_EQ(ficha->Estado(), lleno);
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
    EXPECT_EQ(EnServidor(*ficha), antes);
    espia.Vacia();
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), std::nullopt);
    ExigeGuardada(*ficha);
  }
}

TEST_P(ActivosServidorTest, UnCorteAntesODespuesDeCadaSentenciaNoDejaNadaAMedias) {
  constexpr size_t commit = 2;
  Salida salida;
  for (const Operacion operacion : {Alta, Cambio}) {
    for (size_t i = 0; i <= commit; ++i) {
      for (const bool despues : {false, true}) {
        SCOPED_TRACE((operacion == Alta ? "alta " : "cambio ") + std::to_string(i) +
                     (despues ? " después" : " antes"));
        const auto ficha = PorGuardar(operacion);
        const std::string lleno = ficha->Estado(), cuantas = Cuantas();
        const Tabla antes = EnServidor(*ficha);
        {
          Espia espia;
          espia.En(i, despues ? falla::CorteDespues() : falla::CorteAntes());
          EXPECT_TRUE(Lanzado([&] { Guarda(*ficha, operacion); }).has_value());
        }
        if (i < commit) {
          EXPECT_EQ(ficha->Estado(), lleno);  // later, too, but for the key that the server gave
        }
        engine.RollBackTransaction();
        if (i == commit && despues) {
          ExigeGuardada(*ficha);
        } else {
          EXPECT_EQ(Cuantas(), cuantas);
          EXPECT_EQ(EnServidor(*ficha), antes);
        }
      }
    }
  }
}

TEST_P(ActivosServidorTest, SinConexionSeLanzaONoSeHalla) {
  sesion_.reset();
  Salida salida;
  for (const Operacion operacion : {Alta, Cambio}) {
    const auto ficha = Llena();
    ficha->Pon(0, "1");
    const std::string lleno = ficha->Estado();
    EXPECT_EQ(Lanzado([&] { Guarda(*ficha, operacion); }), "");
    engine.RollBackTransaction();
    ficha->Banderas(false, false);
    ficha->Find();
    EXPECT_EQ(ficha->Estado() + " cambiado", lleno.substr(0, lleno.find(']') + 1) + " nuevo cambiado");
  }
}

TEST_P(ActivosServidorTest, LosLimitesLosPoneElServidor) {
  for (const Prueba& prueba : tabla.servidor) {
    for (const Operacion operacion : {Alta, Cambio}) {
      SCOPED_TRACE(prueba.campo + (" " + prueba.valor) + (operacion == Alta ? ", alta" : ", cambio"));
      const auto ficha = PorGuardar(operacion);
      Pon(*ficha, prueba);
      const Tabla antes = EnServidor(*ficha);
      const std::string cuantas = Cuantas();
      Salida salida;
      const std::string texto = Lanzado([&] { Guarda(*ficha, operacion); }).value_or("");
      engine.RollBackTransaction();
      if (prueba.texto[0] == '\0') {
        EXPECT_EQ(texto, "");
        ExigeGuardada(*ficha);
      } else {
        EXPECT_NE(texto.find(prueba.texto), std::string::npos) << texto;
        EXPECT_EQ(EnServidor(*ficha), antes);
        EXPECT_EQ(Cuantas(), cuantas);
      }
    }
  }
}

TEST_P(ActivosServidorTest, UnaRespuestaCualquieraSeEntiende) {
  const auto leida = [&](const Falla& falla) {
    auto ficha = SinIguales();
    ficha->Pon(0, "1");
    Espia espia;
    espia.En(0, falla);
    ficha->Find();
    return ficha;
  };
  const auto vacio = [](const Campo& campo) { return EsFecha(campo) ? "0000-00-00" : EnBlanco(campo); };
  for (const int columnas : {1, 7, 10}) {
    const auto ficha = leida(falla::Recortada(columnas));
    EXPECT_EQ(ficha->Da(0), "1");
    EXPECT_EQ(ficha->Estado().back(), ']');
    for (size_t i = 0; i < tabla.campos.size(); ++i) {
      if (tabla.campos[i].lugar < static_cast<size_t>(columnas)) continue;
      EXPECT_EQ(ficha->Da(i), vacio(tabla.campos[i])) << tabla.campos[i].nombre;
    }
  }
  const auto nula = leida(falla::ConNulos()), larga = leida(falla::ConTextos(5000));
  for (size_t i = 0; i < tabla.campos.size(); ++i) {
    const Campo& campo = tabla.campos[i];
    EXPECT_EQ(nula->Da(i), vacio(campo)) << campo.nombre;
    EXPECT_EQ(larga->Da(i), EsTexto(campo) ? std::string(campo.bytes, 'x') : vacio(campo)) << campo.nombre;
  }
}

TEST_P(ActivosServidorTest, ConTodoLlenoDeAcentosLaSentenciaViajaEntera) {
  const auto ficha = Llena();
  for (size_t i = 0; i < tabla.campos.size(); ++i)
    if (tabla.campos[i].bytes > 24 || tabla.campos[i].bytes == 20) ficha->Pon(i, TextoAcentuado());
  Espia espia;
  Salida salida;
  const std::string sentencia = Texto(De(Alta), *ficha);
  EXPECT_EQ(Lanzado([&] { ficha->AddNew(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias().at(1), sentencia);
  ExigeGuardada(*ficha);
}

// The constructors with every column.

TEST(cTipoDepreciacion, ElConstructorCompletoGuardaTodoTalCualEnElOrdenDeLosMiembros) {
  const cTipoDepreciacion tipo(70'000'000'000, "b", -2.5f, 3.5f, 4.5f, "e", 6.5f, "g", "h", "i", "j", true,
                               false);
  EXPECT_EQ(Columnas(tipo, tipo::campos), (Textos{"70000000000", "b", "-2.500000", "3.500000", "4.500000",
                                                  "e", "6.500000", "g", "h", "i", "j"}));
  EXPECT_TRUE(tipo.getDataChanged());
  EXPECT_FALSE(tipo.IsNew());
}

TEST(cActivo, ElConstructorCompletoGuardaTodoTalCualEnElOrdenDeLosMiembros) {
  const cActivo activo(1, 2, "c", "d", 5.5f, 6.5f, 7.5f, "h", "i", date(31, 2, 2026), 11.5f, 12.5f, 13,
                       date(1, 3, 2026), "o", 16.5f, 17.5f, 18, 19.5f, 20.5f, "u", 22, false, true);
  EXPECT_EQ(Columnas(activo, fijo::campos),
            (Textos{"1",         "2",          "c", "d",          "5.500000",  "6.500000",
                    "7.500000",  "h",          "i", "2026-02-31", "11.500000", "12.500000",
                    "13",        "2026-03-01", "o", "16.500000",  "17.500000", "18",
                    "19.500000", "20.500000",  "u", "22"}));
  EXPECT_FALSE(activo.getDataChanged());
  EXPECT_TRUE(activo.IsNew());
}

TEST(cActivo, LosMontosViajanConLosDigitosDeSuPrecisionSencilla) {
  cActivo activo(1, 2, "c", "d", 123456.78f, 33.33f, 0.0f, "h", "i", date(5, 3, 2026), 11.5f, 12.5f, 1,
                 date(5, 3, 2026), "S", 16.5f, 17.5f, 1, 19.5f, 20.5f, "u", 2, true, false);
  Espia espia;
  espia.Cuando("", [](PGconn*, const char*) { return PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK); });
  activo.Update();
  EXPECT_EQ(espia.Cuantas(",'c','d',123456.781250,33.330002,0.000000,'h',"), 1u);
}

TEST(cActivo, UnaFechaQueNoCabeSeMandaCortadaADiezLetras) {
  cActivo activo(1, 2, "c", "d", 5.5f, 6.5f, 7.5f, "h", "i", date(5032026, 0, 0), 11.5f, 12.5f, 1,
                 date(1, 3, 30000), "S", 16.5f, 17.5f, 1, 19.5f, 20.5f, "u", 2, true, false);
  Espia espia;
  espia.Cuando("", [](PGconn*, const char*) { return PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK); });
  activo.Update();
  EXPECT_EQ(
      espia.Sentencias().at(1),
      "select spuactivo(1,2,'c','d',5.500000,6.500000,7.500000,'h','i','2000-00-50',11.500000,12.500000,"
      "1,'30000-03-0','S',16.500000,17.500000,1,19.500000,20.500000,'u',2);");
}

}  // namespace
}  // namespace pruebas
