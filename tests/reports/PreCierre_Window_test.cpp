// The pre-close: its question and its silence, the two statements, and the export to the byte and to the
// figure.
#include "reports/PreCierre_Window.h"

#include <fxkeys.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <regex>

#include "app/sesion.h"
#include "tests/reports/ConDuenio.h"
#include "tests/support/Cortes.h"
#include "tests/support/Espia.h"
#include "tests/support/Maltrato.h"
#include "tests/support/Registros.h"
#include "widgets/date.h"

namespace pruebas {
namespace {

const std::string sqlDetalle =
    "select s.clavesocioint,pr.referenciaprestamo,p.ejercicio,p.periodo, "
    "p.fechacierre,p.diasvencidos,p.porcentajeaplicado, "
    "p.factoraplicado,p.saldoprestamo,p.reservacalculada, p.interesdevengadomenoravencido, "
    "p.interesdevengadomayoravencido,p.pagocapitalenperiodo, "
    "p.pagointeresenperiodo,p.pagomoratorioenperiodo, "
    "p.bonificacionintenperiodo,p.bonificacionmorenperiodo, "
    "p.noamorvencidas,p.saldovencidomenoravencido, p.saldovencidomayoravencido,p.fechaultamorpagada, "
    "p.tipoprestamoid,p.montoprestamo,pr.fecha_vencimiento, t.tantos, "
    "saldodemovr(pr.socioid,t.tipomovimientoid,'%s',pr.prestamoid) as depositogarantia, "
    "pr.tasanormal,pr.tasa_moratoria, su.nombre||' '||su.paterno||' '|| su.materno AS nombresocio, "
    "d.calle,d.numero_ext,d.colonia,d.comunidad,d.codpostal, "
    "c.nombreciudadmex,p.ultimoabono,p.diastraspasoavencida, "
    "p.ultimoabonointeres,pr.numero_de_amor,pr.fecha_otorga, f.descripcionfinalidad, (case when "
    "p.fecha_vencimiento>p.fechacierre and p.saldoprestamo>0 then p.fecha_vencimiento-p.fechacierre "
    "else 0 end) as diasrestantes, "
    "round((pr.fecha_vencimiento-pr.fecha_otorga)/(pr.numero_de_amor*0.1/0.1)), "
    "interesdevmormenor,interesdevmormayor, (case when pr.condicionid=0 then 'Pago periodico de "
    "capital e interes' when pr.condicionid=1 then 'Pago unico de capital al vencimiento e interes "
    "periodico' when pr.condicionid=2 then 'Pago unico de capital e intereses al vencimiento' when "
    "pr.condicionid=3 then 'Revolvente' end) from precorte p,prestamos pr,socio s,tipoprestamo t, "
    "sujeto su, domicilio d, ciudadesmex c, finalidades f where p.ejercicio=%i and p.periodo=%i and "
    "pr.prestamoid=p.prestamoid and s.socioid=pr.socioid and t.tipoprestamoid = pr.tipoprestamoid and "
    "su.sujetoid=s.sujetoid and d.sujetoid=s.sujetoid and c.ciudadmexid = d.ciudadmexid and "
    "f.clavefinalidad=p.clavefinalidad order by p.diasvencidos,s.clavesocioint;";

const std::string titulos =
    "clavesocioint,referenciaprestamo,ejercicio,periodo,fechacierre,diasvencidos,porcentajeaplicado,"
    "factoraplicado,saldoprestamo,reservacalculada,interesdevengadomenoravencido,"
    "interesdevengadomayoravencido,pagocapitalenperiodo,pagointeresenperiodo,pagomoratorioenperiodo,"
    "bonificacionintenperiodo,bonificacionmorenperiodo,noamorvencidas,saldovencidomenoravencido,"
    "saldovencidomayoravencido,fechaultamorpagada,tipoprestamoid,montoprestamo,fechavencimiento,tantos,"
    "depositogarantia,tasanormal,tasamoratoria,nombre,calle,numero,colonia,comunidad,codpostal,ciudad,"
    "ultimoabono,diastraspasoavencida,ultimoabonointeres,noamortizaciones,fechaotorga,finalidad,"
    "diasrestantes,periodo,interesdevmormenor,interesdevmormayor,condicionpago\n";

const std::string sinFilas =
    titulos +
    ",,,,,,,,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,,"
    "0.000000,0.000000,,,0.000000,,,0.000000,0.000000,0.000000\n";

std::string SqlDetalle(const std::string& fecha, const std::string& anio, const std::string& mes) {
  std::string sql = sqlDetalle;
  for (const std::string& valor : {fecha, anio, mes}) {
    const size_t lugar = sql.find('%');
    sql.replace(lugar, 2, valor);
  }
  return sql;
}

/// The last day of the month before this one.
date FinDelMesPasado() {
  const date hoy = today();
  return date(1, hoy.month(), hoy.year()) - 1;
}

class PreCierre_WindowTest : public ConPantalla {
 protected:
  void Fecha(const std::string& fecha) { Escribe(forma_, "Fecha:", fecha); }
  void Consolida() { Pulsa(JuntoA<FXCheckButton>(forma_, "CONSOLIDADO:")); }
  /// What the boxes say when the process is run, the question among them.
  std::vector<Cuadro> Cierra(const std::vector<Respuesta>& respuestas = {Respuesta::Si}) {
    Guion guion;
    for (const Respuesta respuesta : respuestas) guion.Responde(respuesta);
    Pulsa(Boton(forma_, "&Pre-Cierre"));
    return guion.Cuadros();
  }
  /// What the preview shows of the export.
  std::string Consulta() {
    Guion guion;
    std::string visto;
    guion.Con(VeYCierra(visto));
    Pulsa(Boton(forma_, "&Consulta"));
    return visto;
  }
  /// The file that is left when the consolidated statement is answered with these rows.
  std::string Exporta(const Tabla& filas) {
    std::string sql;
    for (const Textos& fila : filas) {
      sql += sql.empty() ? "select " : " union all select ";
      for (const std::string& celda : fila) sql += "$$" + celda + "$$::text,";
      sql.pop_back();
    }
    Espia espia;
    espia.Cuando("precorteconsolidado",
                 [sql](PGconn* conexion, const char*) { return __real_PQexec(conexion, sql.c_str()); });
    if (!JuntoA<FXCheckButton>(forma_, "CONSOLIDADO:")->getCheck()) Consolida();
    Consulta();
    return Contenido("reporte.csv");
  }

  BaseDatos base_;
  Sesion sesion_{base_};
  Mandatos mandatos_;
  Salida salida_;
  Area area_;
  PreCierre_Window* forma_ = area_.Abre<PreCierre_Window>();
};

TEST_F(PreCierre_WindowTest, SuAspecto) {
  EXPECT_EQ(forma_->getTitle(), "Pre-Cierre");
  EXPECT_EQ(Etiquetas(forma_), (Textos{"Fecha:", "CONSOLIDADO:"}));
  EXPECT_EQ(Botones(forma_), (Textos{"", "&Pre-Cierre", "&Consulta", "&Cerrar"}));
  EXPECT_EQ(Boton(forma_, "&Pre-Cierre")->getIcon(), nullptr);
  EXPECT_EQ(CampoJuntoA(forma_, "Fecha:")->getNumColumns(), 10);
  EXPECT_EQ(Leido(forma_, "Fecha:"), "");
  EXPECT_FALSE(JuntoA<FXCheckButton>(forma_, "CONSOLIDADO:")->getCheck());
  ExigeNadaCortado(forma_);
  for (const FXSelector mensaje : {FXSEL(SEL_CLOSE, 0), FXSEL(SEL_SIGNAL, PreCierre_Window::ID_SALIR)}) {
    EXPECT_EQ(forma_->handle(&App(), mensaje, nullptr), 1);
    EXPECT_TRUE(forma_->shown());
  }
}

TEST_F(PreCierre_WindowTest, ElCalendarioReescribeLaFecha) {
  Fecha("5/3/2006");
  Guion guion;
  guion.Con([](FXDialogBox* calendario) { Pulsa(Boton(calendario, "&Cerrar")); });
  Pulsa(Boton(forma_, ""));
  EXPECT_EQ(Leido(forma_, "Fecha:"), "05/03/2006");
}

// The process.

TEST_F(PreCierre_WindowTest, CierraUnaVezYSoloDiceElExito) {
  const date dia = FinDelMesPasado();
  Fecha(dia.AsDMY());
  const Espia espia;
  const std::vector<Cuadro> cuadros = Cierra({Respuesta::Si, Respuesta::Aceptar});
  ASSERT_EQ(cuadros.size(), 2u);
  EXPECT_EQ(cuadros[0].clase, Clase::Pregunta);
  EXPECT_EQ(cuadros[0].titulo, "Pre-Corte");
  EXPECT_EQ(cuadros[0].texto, "Esta Usted seguro de Correr el PROCESO ?");
  EXPECT_EQ(cuadros[0].botones, (Textos{"&Sí", "&No"}));
  EXPECT_EQ(cuadros[1].clase, Clase::Informacion);
  EXPECT_EQ(cuadros[1].titulo, "Pre-Corte");
  const std::string momento = "  \\d\\d/\\d\\d/\\d{4}  \\d\\d:\\d\\d:\\d\\d [AP]M";
  EXPECT_TRUE(
      std::regex_match(cuadros[1].texto, std::regex("Transacción Exitosa\n\nInicio\\.\\.\\.\\.\\.\\.\\." +
                                                    momento + "\nTermino\\.\\.\\." + momento)))
      << cuadros[1].texto;
  const std::string sql = "select * from precierre('" + std::string(dia.AsDMY()) + "');";
  EXPECT_EQ(espia.Sentencias(), Textos{sql});
  EXPECT_EQ(salida_.Lineas(), Textos{sql});
  EXPECT_NE(base_.Valor("select count(*) from norte.precorte"), "0");

  EXPECT_EQ(Cierra().size(), 1u);  // closed already: the question and no more
  EXPECT_EQ(base_.Valor("select count(*) from norte.cierre"), "1");
}

TEST_F(PreCierre_WindowTest, ContestarNoNoEmpiezaNada) {
  Fecha(FinDelMesPasado().AsDMY());
  const Espia espia;
  EXPECT_EQ(Cierra({Respuesta::No}).size(), 1u);
  EXPECT_EQ(espia.Sentencias(), Textos{});
  EXPECT_EQ(salida_.Texto(), "");
}

TEST_F(PreCierre_WindowTest, LoQueElServidorRechazaSeCalla) {
  for (const char* const fecha : {"", "31/02/2006", "99/99/9999", "31/12/2999", "15032006", "1", "1/2/06"}) {
    SCOPED_TRACE(fecha);
    Fecha(fecha);
    const Espia espia;
    EXPECT_EQ(Cierra().size(), 1u);
    EXPECT_EQ(espia.Sentencias(), Textos{"select * from precierre('" + std::string(fecha) + "');"});
  }
  EXPECT_EQ(base_.Valor("select count(*) from norte.cierre"), "0");
}

TEST_F(PreCierre_WindowTest, UnResultadoQueNoEsUnoSeCalla) {
  Fecha("31/01/2006");
  const auto responde = [](const std::string& sql) -> Falla {
    return [sql](PGconn* conexion, const char*) { return __real_PQexec(conexion, sql.c_str()); };
  };
  for (const Falla& falla :
       {responde("select 0"), responde("select 2"), responde("select -1"), responde("select null"),
        responde("select 'uno'"), responde("select ''"), responde("select"), responde("select 1 where false"),
        falla::Nula(), falla::Error("100%s"), falla::SinFilas(), falla::Recortada(0), falla::ConNulos(),
        falla::ConTextos(), falla::CorteAntes(), falla::CorteDespues()}) {
    Espia espia;
    espia.En(0, falla);
    EXPECT_EQ(Cierra().size(), 1u);
  }
}

TEST_F(PreCierre_WindowTest, UnoEsElExitoAunqueVengaDeOtraForma) {
  for (const char* const sql : {"select 1", "select ' 1'", "select '1x', 2", "select 1 union all select 0"}) {
    Espia espia;
    espia.En(0, [sql](PGconn* conexion, const char*) { return __real_PQexec(conexion, sql); });
    EXPECT_EQ(Cierra({Respuesta::Si, Respuesta::Aceptar}).size(), 2u) << sql;
  }
}

// The statements of the export.

TEST_F(PreCierre_WindowTest, LaConsultaMandaLaSentenciaByteAByte) {
  const struct {
    const char *fecha, *anio, *mes;
  } casos[] = {
      {"31/10/2006", "2006", "10"},
      {"5/3/2006", "2006", "3"},
      {"1/02/06", "6", "2"},
      {"", "0", "0"},
      {"15032006", "0", "0"},
      {"15/032006", "0", "32006"},
      {"1", "0", "0"},
      {"99/99/9999", "9999", "99"},
  };
  for (const auto& [fecha, anio, mes] : casos) {
    SCOPED_TRACE(fecha);
    Fecha(fecha);
    const Textos sentencias = {
        SqlDetalle(fecha, anio, mes),
        "select * from precorteconsolidado(" + std::string(anio) + "," + mes + ");",
    };
    for (const std::string& sentencia : sentencias) {
      const Espia espia;
      const Salida salida;
      EXPECT_EQ(Consulta(), sinFilas);
      EXPECT_EQ(Contenido("reporte.csv"), sinFilas);
      EXPECT_EQ(espia.Sentencias(), Textos{sentencia});
      EXPECT_EQ(salida.Lineas(),
                (Textos{sentencia, "Termina generacion correctamente", "entrando a preview"}));
      Consolida();
    }
  }
}

TEST_F(PreCierre_WindowTest, ElArchivoSeHaceDeNuevo) {
  Graba("reporte.csv", std::string(100000, 'x'));
  Consulta();
  EXPECT_EQ(Contenido("reporte.csv"), sinFilas);
}

// The rows.

/// A row as printf writes it.
std::string Renglon(const Textos& celdas) {
  const auto texto = [&](int i) { return celdas[i].c_str(); };
  const auto numero = [&](int i) { return atol(texto(i)); };
  const auto entero = [&](int i) { return atoi(texto(i)); };
  std::vector<std::string> fechas(46);
  const auto fecha = [&](int i) { return (fechas[i] = date(texto(i)).AsDMY()).c_str(); };
  const auto importe = [&](int i) {
    std::string sinComas;
    for (const char letra : celdas[i]) {
      if (letra != ',') sinComas += letra;
    }
    return strtod(sinComas.c_str(), nullptr);
  };
  static char renglon[1 << 20];
  snprintf(renglon, sizeof renglon,
           "\"%15s\",\"'%18s\",%4i,%2i,%.10s,%5li,%f,%f,%f,%f,%f,%f,%f,%f,%f,%f,%f,%li,%f,%f,%.10s,%3s,%f,"
           "%.10s,%i,%f,%f,%f,\"%s\",\"%s\",\"%s\",\"%s\",\"%s\",%li,\"%s\",%.10s,%i,%.10s,%i,%10.10s,\"%s\","
           "%li,%f,"
           "%f,%f,\"%s\"",
           texto(0), texto(1), entero(2), entero(3), fecha(4), numero(5), importe(6), importe(7), importe(8),
           importe(9), importe(10), importe(11), importe(12), importe(13), importe(14), importe(15),
           importe(16), numero(17), importe(18), importe(19), fecha(20), texto(21), importe(22), fecha(23),
           entero(24), importe(25), importe(26), importe(27), texto(28), texto(29), texto(30), texto(31),
           texto(32), numero(33), texto(34), fecha(35), entero(36), fecha(37), entero(38), fecha(39),
           texto(40), numero(41), importe(42), importe(43), importe(44), texto(45));
  return std::string(renglon) + "\n";
}

const Textos ordinaria = {"07-000012",
                          "07-2024-000001",
                          "2024",
                          "3",
                          "2024-03-31",
                          "44",
                          "30.0000",
                          "0.300000",
                          "12000.00",
                          "3600.00",
                          "444.00",
                          "0.00",
                          "1000.00",
                          "165.00",
                          "5.00",
                          "20.00",
                          "1.00",
                          "2",
                          "2000.00",
                          "0.00",
                          "2024-01-31",
                          "ORD",
                          "15000.00",
                          "2024-12-26",
                          "3",
                          "1500.00",
                          "18.0000",
                          "27.0000",
                          "Íñigo Núñez Peña",
                          "Calle 5 de Mayo",
                          "12-B",
                          "Centro",
                          "",
                          "58000",
                          "Morelia",
                          "2024-02-10",
                          "90",
                          "2024-02-10",
                          "12",
                          "2024-01-01",
                          "Consumo",
                          "270",
                          "30",
                          "43.50",
                          "10.50",
                          "Pago periodico de capital e interes"};

/// The ordinary row with another value in every column.
Textos TodasCon(const std::string& valor) { return Textos(46, valor); }

TEST_F(PreCierre_WindowTest, ElRenglonByteAByte) {
  ASSERT_EQ(ordinaria.size(), 46u);
  EXPECT_EQ(
      Renglon(ordinaria),
      "\"      07-000012\",\"'    07-2024-000001\",2024, 3,31/03/2024,   44,30.000000,0.300000,"
      "12000.000000,3600.000000,444.000000,0.000000,1000.000000,165.000000,5.000000,20.000000,1.000000,2,"
      "2000.000000,0.000000,31/01/2024,ORD,15000.000000,26/12/2024,3,1500.000000,18.000000,27.000000,"
      "\"Íñigo Núñez Peña\",\"Calle 5 de Mayo\",\"12-B\",\"Centro\",\"\",58000,\"Morelia\",10/02/2024,90,"
      "10/02/2024,12,01/01/2024,\"Consumo\",270,30.000000,43.500000,10.500000,"
      "\"Pago periodico de capital e interes\"\n");
  Tabla filas = {ordinaria};
  const std::string cien(100, '9');
  for (const std::string& valor :
       {std::string(), std::string("0"), std::string("-1"), std::string("-1234.5"),
        std::string("1,234,567.89"), std::string("999999999999999"), std::string("-123456789012.34"), cien,
        cien + "." + cien, std::string("2147483647"), std::string("0.0000005"), std::string("2024-02-29"),
        std::string("29/02/2024"), std::string("0000-00-00"), std::string("%s%n%99999d"),
        std::string("a\"b,c\nd"), std::string("ñandú 'x' \\ "), std::string(5000, 'x'), TextoAcentuado()}) {
    filas.push_back(TodasCon(valor));
    Textos una = ordinaria;  // and in one column at a time
    una[filas.size() % 46] = valor;
    filas.push_back(una);
  }
  for (size_t columna = 0; columna < 46; ++columna) {
    Textos una = ordinaria;
    una[columna] = "";
    filas.push_back(una);
    una[columna] = std::to_string(columna * 1001 % 9973) + ".25";
    filas.push_back(una);
  }
  const std::string todo = Exporta(filas);
  size_t lugar = titulos.size();
  EXPECT_EQ(todo.substr(0, lugar), titulos);
  for (const Textos& fila : filas) {
    const std::string esperado = Renglon(fila);
    ASSERT_EQ(todo.substr(lugar, esperado.size()), esperado);
    lugar += esperado.size();
  }
  EXPECT_EQ(todo.substr(lugar, 8), ",,,,,,,,");
}

TEST_F(PreCierre_WindowTest, CadaTotalQuedaBajoSuColumna) {
  Tabla filas;
  for (const int renglon : {1, 2, 3}) {
    Textos fila = ordinaria;
    for (size_t i = 0; i < fila.size(); ++i) fila[i] = std::to_string(i * renglon) + ".5";
    fila[22] = "1,0" + std::to_string(renglon) + "0.25";
    filas.push_back(fila);
  }
  const std::string todo = Exporta(filas);
  std::string esperado;
  for (int i = 0; i <= 27; ++i) {
    const bool suma = (i >= 8 && i <= 16) || i == 18 || i == 19 || i == 22 || i >= 25;
    const double total = i == 22 ? 3060.75 : i * 6 + 1.5;
    if (suma) esperado += FXStringFormat("%f", total).text();
    esperado += i < 27 ? "," : "\n";
  }
  EXPECT_EQ(todo.substr(todo.rfind('\n', todo.size() - 2) + 1), esperado);
}

TEST_F(PreCierre_WindowTest, ImportesDeQuinceCifrasYDeCien) {
  Textos fila = ordinaria;
  fila[8] = "999999999999.99";
  fila[9] = "999999999999999";
  fila[10] = "1" + std::string(99, '0');
  fila[11] = std::string(400, '9');  // too large for any double
  const std::string todo = Exporta({fila, fila});
  EXPECT_NE(todo.find("999999999999.989990,999999999999999.000000,"), std::string::npos) << todo;
  EXPECT_NE(todo.find(FXStringFormat("%f,inf,", 1e99).text()), std::string::npos) << todo;
  EXPECT_NE(todo.find(",,,,,,,,1999999999999.979980,1999999999999998.000000,"), std::string::npos) << todo;
}

TEST_F(PreCierre_WindowTest, UnRenglonMasLargoQueElBorradorSaleEntero) {
  Consolida();
  Espia espia;
  espia.En(0, falla::ConTextos(5000));
  Consulta();
  const std::string todo = Contenido("reporte.csv");
  const std::string renglon = Renglon(TodasCon(std::string(5000, 'x')));
  EXPECT_GT(renglon.size(), 9 * 5000u);
  EXPECT_EQ(todo.substr(0, titulos.size() + renglon.size()), titulos + renglon);
}

TEST_F(PreCierre_WindowTest, UnaConsultaQueFallaDejaElEncabezadoYCeros) {
  for (const bool consolidado : {false, true}) {
    if (consolidado) Consolida();
    for (const Falla& falla : {falla::Nula(), falla::Error("100%s"), falla::SinFilas()}) {
      Espia espia;
      espia.En(0, falla);
      Consulta();
      EXPECT_EQ(Contenido("reporte.csv"), sinFilas);
    }
  }
  for (const Falla& falla : {falla::CorteAntes(), falla::CorteDespues()}) {
    Espia espia;
    espia.En(0, falla);
    Consulta();
    EXPECT_EQ(Contenido("reporte.csv"), sinFilas);
  }
  PQfinish(conn);
  conn = nullptr;
  Consulta();
  EXPECT_EQ(Contenido("reporte.csv"), sinFilas);
}

TEST_F(PreCierre_WindowTest, NulosYColumnasQueFaltan) {
  const std::string vacio = Renglon(TodasCon(""));
  for (const Falla& falla : {falla::ConNulos(), falla::Recortada(0)}) {
    Espia espia;
    espia.En(0, falla);
    Consulta();
    const std::string todo = Contenido("reporte.csv");
    EXPECT_TRUE(todo == sinFilas || todo.substr(titulos.size(), vacio.size()) == vacio) << todo;
  }
  for (size_t columnas = 1; columnas < 46; ++columnas) {
    Textos fila(ordinaria.begin(), ordinaria.begin() + columnas);
    const std::string todo = Exporta({fila});
    fila.resize(46);
    EXPECT_EQ(todo.substr(titulos.size(), Renglon(fila).size()), Renglon(fila)) << columnas;
  }
}

// The figures.

/// The rows of a month as the server's own view has them.
Tabla DelServidor(BaseDatos& base, const Textos& sucursales, const date& dia) {
  Tabla filas;
  for (const std::string& sucursal : sucursales) {
    const Tabla suyas = base.Filas("select * from " + sucursal +
                                   ".precorte_detalle where ejercicio = " + std::to_string(dia.year()) +
                                   " and periodo = " + std::to_string(dia.month()));
    filas.insert(filas.end(), suyas.begin(), suyas.end());
  }
  return filas;
}

/// What another reader of the file finds to differ, and how many fields it compared.
std::string Diferencias(const Tabla& servidor) {
  std::string todo;
  for (const Textos& fila : servidor) {
    for (const std::string& celda : fila) todo += celda + '\x1F';
    todo += '\x1E';
  }
  Graba("servidor.txt", todo);
  return CorreBien(
      {{"/usr/bin/python3", Raiz() / "tests/reports/compara_precorte.py", "reporte.csv", "servidor.txt"}});
}

TEST_F(PreCierre_WindowTest, OtroLectorNoEncuentraUnaCifraDistinta) {
  const date dia = FinDelMesPasado();
  Fecha(dia.AsDMY());
  Cierra({Respuesta::Si, Respuesta::Aceptar});
  const Conexion sur = base_.Conecta("adriana", BaseDatos::Clave);
  const std::string cierra =
      "set search_path to public, sur; select precierre('" + std::string(dia.AsDMY()) + "')";
  PQclear(__real_PQexec(sur.get(), cierra.c_str()));
  Tabla filas = DelServidor(base_, {"norte"}, dia);
  EXPECT_GT(filas.size(), 100u);
  for (int vuelta = 0; vuelta < 2; ++vuelta) {
    EXPECT_NE(Consulta(), "");
    EXPECT_EQ(Diferencias(filas), std::to_string(filas.size() * 46 + 28) + "\n");
    Consolida();
    filas = DelServidor(base_, {"norte", "sur"}, dia);
  }
  EXPECT_GT(filas.size(), 200u);
}

TEST_F(PreCierre_WindowTest, OtroLectorVeUnaCifraCambiada) {
  const date dia = FinDelMesPasado();
  Fecha(dia.AsDMY());
  Cierra({Respuesta::Si, Respuesta::Aceptar});
  const Tabla filas = DelServidor(base_, {"norte"}, dia);
  Consulta();
  const std::string todo = Contenido("reporte.csv");
  for (const size_t lugar : {todo.size() - 3, todo.find(".000000", titulos.size()) - 1}) {
    std::string cambiado = todo;
    cambiado[lugar] = cambiado[lugar] == '7' ? '8' : '7';
    Graba("reporte.csv", cambiado);
    EXPECT_NE(Diferencias(filas), std::to_string(filas.size() * 46 + 28) + "\n");
  }
}

TEST_F(PreCierre_WindowTest, UnNombreConComillasComaYFinDeLineaSaleComoEs) {
  Textos fila = ordinaria;
  fila[28] = "Ana \"La Güera\", S.A.\nde C.V.";
  EXPECT_NE(Exporta({fila}).find(",\"Ana \"La Güera\", S.A.\nde C.V.\",\"Calle 5 de Mayo\","),
            std::string::npos);
}

// The folder, and the user.

TEST_F(PreCierre_WindowTest, SinCarpetaDondeEscribirSoloLoDiceElPreview) {
  SinCarpeta();
  const Espia espia;
  Guion guion;
  std::string visto = "x";
  guion.Responde(Respuesta::Aceptar);
  guion.Con(VeYCierra(visto));
  Pulsa(Boton(forma_, "&Consulta"));
  EXPECT_EQ(guion.Mensajes(), Textos{"No se puede abrir archivo: reporte.csv"});
  EXPECT_EQ(visto, "");
  EXPECT_EQ(espia.Sentencias(), Textos{SqlDetalle("", "0", "0")});
  EXPECT_EQ(salida_.Lineas().at(1), "Termina generacion correctamente");
}

TEST_F(PreCierre_WindowTest, AguantaAUnUsuarioDescuidado) {
  EXPECT_FALSE(Maltrata(forma_).empty());
  PQfinish(conn);
  conn = nullptr;
  EXPECT_FALSE(Maltrata(forma_).empty());
  EXPECT_EQ(Contenido("reporte.csv"), sinFilas);
}

}  // namespace
}  // namespace pruebas
