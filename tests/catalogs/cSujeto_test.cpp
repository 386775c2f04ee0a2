#include "catalogs/people/cSujeto.h"

#include <gtest/gtest.h>

#include "app/sesion.h"
#include "tests/catalogs/Personas.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using S = cSujeto;

/// The person's half: all columns in the order of the server's answer, and its flags.
std::string Persona(const S& s) {
  return std::to_string(s.getSujetoID()) + "|" + s.getPaterno() + "|" + s.getMaterno() + "|" + s.getNombre() +
         "|" + s.getRfc() + "|" + s.getCurp() + "|" + std::to_string(s.getEdad()) + "|" +
         s.getFechaNacimiento().AsChar() + "|" + s.getRazonSocial() + Banderas(s);
}

/// The address's half.
const cDomicilio& Domicilio(const S& s) { return s; }

cBien Bien(long id, const char* propietario, bool nuevo = false, bool borrado = false) {
  return cBien(id, 0, propietario, "Casa", "c", "r", 1, 2, 3, "d", 4, "N", date(), true, nuevo, borrado);
}

Textos Propietarios(S& persona) {
  Textos propietarios;
  for (const cBien& bien : persona.getBienes()) propietarios.push_back(bien.getPropietario());
  return propietarios;
}

/// A person with a value of its own in each column, whose half is changed and new; the address is blank.
S Llena(long id = 9) {
  return S(id, "Quimera", "Boceto", "Ana", "QUBA650211", "CURP1", 41, date(11, 2, 1965), "Ana y Cía", true,
           true);
}
const char* const ColumnasDeLlena = "|Quimera|Boceto|Ana|QUBA650211|CURP1|41|1965-02-11|Ana y Cía";
const char* const Valores = "'Quimera','Boceto','Ana','QUBA650211','CURP1',41,'1965-02-11','Ana y Cía');";
const char* const SinDomicilio = "0|0|0|||||0|||0";

// Without a server.

TEST(cSujeto, RecienHechaEstaVaciaYSinBanderas) {
  S persona;
  EXPECT_EQ(Persona(persona), "0||||||0|1900-01-01|");
  EXPECT_EQ(Estado(persona), SinDomicilio);
  EXPECT_TRUE(persona.getBienes().ListaVacia());
}

TEST(cSujeto, CopiarLlevaPersonaYDomicilioPeroNoLosBienes) {
  S original = Llena();
  original.setCalle("Reforma");
  original.cDomicilio::setIsNew(true);
  original.getBienes().Insertar(Bien(1, "uno"));
  S porAsignacion, porCopy;
  for (S* otra : {&porAsignacion, &porCopy}) otra->getBienes().Insertar(Bien(2, "dos"));
  porAsignacion = original;
  porCopy.Copy(original);
  S nueva(original);
  for (S* copia : {&nueva, &porAsignacion, &porCopy}) {
    EXPECT_EQ(Persona(*copia), std::string("9") + ColumnasDeLlena + " cambiado nuevo");
    EXPECT_EQ(Estado(*copia), "0|0|0|Reforma||||0|||0 cambiado nuevo");
  }
  EXPECT_EQ(Propietarios(nueva), Textos{});
  EXPECT_EQ(Propietarios(porAsignacion), Textos{"dos"});
  EXPECT_EQ(Propietarios(porCopy), Textos{"dos"});
  EXPECT_EQ(Propietarios(original), Textos{"uno"});
}

TEST(cSujeto, ClearVaciaSoloLaMitadDeLaPersona) {
  S persona = Llena();
  persona.setCalle("Reforma");
  persona.getBienes().Insertar(Bien(1, "uno"));
  persona.Clear();
  EXPECT_EQ(Persona(persona), "0||||||0|1900-01-01|");
  EXPECT_EQ(Estado(persona), "0|0|0|Reforma||||0|||0 cambiado");
  EXPECT_EQ(Propietarios(persona), Textos{"uno"});
}

TEST(cSujeto, CadaColumnaSigueLaReglaDelCambio) {
  const ColumnaDeTexto<S> tabla[] = {
      {"Paterno", &S::setPaterno, &S::getPaterno, 20},
      {"Materno", &S::setMaterno, &S::getMaterno, 20},
      {"Nombre", &S::setNombre, &S::getNombre, 50},
      {"Rfc", &S::setRfc, &S::getRfc, 16},
      {"Curp", &S::setCurp, &S::getCurp, 21},
      {"RazonSocial", &S::setRazonSocial, &S::getRazonSocial, 60},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<S, long>(&S::setSujetoID, &S::getSujetoID, 70'000'000'000);
  ExigeReglaDelNumero<S, int>(&S::setEdad, &S::getEdad, -1);
  S persona;
  persona.setFechaNacimiento(date());
  EXPECT_FALSE(persona.getDataChanged()) << "el mismo valor";
  persona.setFechaNacimiento(date(11, 2, 1965));
  EXPECT_TRUE(persona.getDataChanged());
  EXPECT_STREQ(persona.getFechaNacimiento().AsChar(), "1965-02-11");
}

TEST(cSujeto, CadaMitadTieneSuClaveYSusBanderas) {
  S persona;
  persona.setSujetoID(5);
  persona.setIsNew(true);
  EXPECT_EQ(Persona(persona), "5||||||0|1900-01-01| cambiado nuevo");
  EXPECT_EQ(Estado(persona), SinDomicilio);
  persona.setDataChanged(false);
  persona.cDomicilio::setSujetoID(6);
  EXPECT_EQ(Persona(persona), "5||||||0|1900-01-01| nuevo");
  EXPECT_EQ(Estado(persona), "0|0|6|||||0|||0 cambiado");
}

TEST(cSujeto, LaBanderaDeCambioNoSeQuitaMientrasElDomicilioTengaLaSuya) {
  for (const bool valor : {false, true}) {
    for (const bool domicilio : {false, true}) {
      S persona;
      persona.cDomicilio::setDataChanged(domicilio);
      persona.setDataChanged(valor);
      EXPECT_EQ(persona.getDataChanged(), valor || domicilio);
      EXPECT_EQ(Domicilio(persona).getDataChanged(), domicilio);
    }
  }
}

TEST(cSujeto, CheckLanzaLaPrimeraReglaRotaYSoloDespuesMiraElDomicilio) {
  const struct {
    const char *paterno, *nombre;
    std::optional<std::string> mensaje;
  } tabla[] = {
      {"", "", "No ha especificado el apellido paterno"},
      {"", "Ana", "No ha especificado el apellido paterno"},
      {"Quimera", "", "No ha especificado el nombre"},
      {"Quimera", "Ana", std::nullopt},
      {" ", " ", std::nullopt},
  };
  for (const auto& fila : tabla) {
    S persona;
    persona.setPaterno(fila.paterno);
    persona.setNombre(fila.nombre);
    persona.setCiudadMexID(3);
    Salida salida;
    EXPECT_EQ(Lanzado([&] { EXPECT_TRUE(persona.Check()); }), fila.mensaje);
    EXPECT_EQ(salida.Lineas(), fila.mensaje ? Textos{} : TrazaDeCheck(3));
  }
}

// Against the reference database.

class cSujetoTest : public ConSucursal {
 protected:
  Tabla EnServidor(long id) {
    return base_.Filas("select * from norte.sujeto where sujetoid = " + std::to_string(id));
  }
  Tabla DomicilioEnServidor(long id) {
    return base_.Filas("select * from norte.domicilio where sujetoid = " + std::to_string(id));
  }
  Tabla BienesEnServidor(long id) {
    return base_.Filas("select bienid, propietario from norte.bienes where sujetoid = " + std::to_string(id) +
                       " order by 1");
  }
  std::string ClaveNueva() { return base_.Valor("select max(sujetoid) from norte.sujeto"); }
  std::string DomicilioNuevo() { return base_.Valor("select max(domicilioid) from norte.domicilio"); }

  /// Person 1 without goods, and then two of them.
  Textos DaBienes() {
    base_.Ejecuta("delete from norte.bienes where sujetoid = 1");
    for (const char* propietario : {"uno", "dos"}) {
      cBien bien = Bien(0, propietario, true);
      bien.setSujetoID(1);
      bien.AddNew();
    }
    const Tabla filas = BienesEnServidor(1);
    return {filas[0][0], filas[1][0]};
  }

  static S Leida(long id) {
    S persona;
    persona.setSujetoID(id);
    Salida salida;
    persona.Find();
    return persona;
  }
};

TEST_F(cSujetoTest, ElAltaGuardaPersonaDomicilioYBienesNuevosEnUnaTransaccion) {
  S persona = Llena();
  persona.setCiudadMexID(3);
  persona.setCalle("Reforma");
  persona.getBienes().Insertar(Bien(1, "nuevo", true));
  persona.getBienes().Insertar(Bien(2, "nuevo borrado", true, true));
  persona.getBienes().Insertar(Bien(3, "viejo"));
  persona.getBienes().Insertar(Bien(4, "viejo borrado", false, true));
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { persona.AddNew(); }), std::nullopt);

  const std::string id = ClaveNueva(), domicilio = DomicilioNuevo();
  const std::string alta = std::string("select spisujeto(") + Valores;
  const std::string altaDomicilio = "SELECT spidomicilio(3," + id + ",'Reforma','','','',0,'','',0);";
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"BEGIN;", alta, altaDomicilio,
                    "select spibienes(" + id +
                        ",'nuevo','Casa','c','r',1.000000,2.000000,3.000000,'d',4.000000,'N',NULL);",
                    "COMMIT;"}));
  EXPECT_EQ(salida.Lineas(), (TrazaDeCheck(3) + Textos{alta, "SujetoID==" + id, "asigna sujetoid"} +
                              TrazaDeCheck(3) + TrazaDeCheck(3) +
                              Textos{altaDomicilio, "Domicilio==" + domicilio, "Domicilio==" + domicilio,
                                     "DomicilioID==" + domicilio}));
  EXPECT_EQ(Persona(persona), id + ColumnasDeLlena);
  EXPECT_EQ(Estado(persona), domicilio + "|3|" + id + "|Reforma||||0|||0");
  EXPECT_EQ(
      EnServidor(std::stol(id)),
      (Tabla{{id, "Quimera", "Boceto", "Ana", "QUBA650211", "CURP1", "41", "1965-02-11", "Ana y Cía"}}));
  EXPECT_EQ(DomicilioEnServidor(std::stol(id)).size(), 1u);
  EXPECT_EQ(BienesEnServidor(std::stol(id)).size(), 1u);
  EXPECT_EQ(Propietarios(persona), (Textos{"nuevo", "nuevo borrado", "viejo", "viejo borrado"}));
  EXPECT_TRUE(persona.getBienes().Item(0).IsNew()) << "se guarda una copia";
  EXPECT_EQ(Profundidad(), 0);
  EXPECT_EQ(res, nullptr);
}

TEST_F(cSujetoTest, UnCambioReescribeSiempreALaPersonaYElDomicilioSoloSiCambio) {
  for (const bool domicilio : {false, true}) {
    SCOPED_TRACE(domicilio);
    base_.Ejecuta("delete from norte.bienes where sujetoid = 1");
    S persona = Leida(1);
    if (domicilio) persona.setCalle("Reforma");
    const std::string calle = persona.getCalle();
    const Tabla antes = EnServidor(1);
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { persona.Update(); }), std::nullopt);

    const Textos sentencias = espia.Sentencias();
    ASSERT_EQ(sentencias.size(), domicilio ? 4u : 3u);
    EXPECT_EQ(sentencias.front(), "BEGIN;");
    EXPECT_EQ(sentencias.back(), "COMMIT;");
    EXPECT_EQ(sentencias[1].rfind("select spusujeto(1,'", 0), 0u);
    const Textos check = TrazaDeCheck(persona.getCiudadMexID());
    EXPECT_EQ(salida.Lineas(), (Textos{"sujeto La Calle es : " + calle} + check + Textos{sentencias[1]} +
                                Textos(2, "domicilio La Calle es : " + calle) +
                                (domicilio ? check + Textos{sentencias[2]} : Textos{}) +
                                Textos{"LLega al fin de Update sujeto"}));
    EXPECT_EQ(EnServidor(1), antes);
    EXPECT_EQ(DomicilioEnServidor(1)[0][3], calle);
    EXPECT_EQ(Banderas(persona) + Banderas(Domicilio(persona)), "");
    EXPECT_EQ(Profundidad(), 0);
    EXPECT_EQ(res, nullptr);
  }
}

TEST_F(cSujetoTest, UnCambioMandaCadaColumnaEnSuLugar) {
  S persona = Llena(1);
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { persona.Update(); }), std::nullopt);
  EXPECT_EQ(espia.Cuantas(std::string("select spusujeto(1,") + Valores), 1u);
  EXPECT_EQ(
      EnServidor(1),
      (Tabla{{"1", "Quimera", "Boceto", "Ana", "QUBA650211", "CURP1", "41", "1965-02-11", "Ana y Cía"}}));
  EXPECT_EQ(Persona(persona), std::string("1") + ColumnasDeLlena);
}

TEST_F(cSujetoTest, UnCambioGuardaCadaBienSegunSusBanderas) {
  const Textos ids = DaBienes();
  S persona = Leida(1);
  auto& bienes = persona.getBienes();
  cBien cambiado = bienes.Item(0), borrado = bienes.Item(1);
  cambiado.setPropietario("otro");
  borrado.setDeleted(true);
  bienes.setItem(cambiado, 0);
  bienes.setItem(borrado, 1);
  bienes.Insertar(Bien(2'000'000'000, "nuevo", true));
  bienes.Insertar(Bien(2'000'000'001, "nuevo borrado", true, true));
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { persona.Update(); }), std::nullopt);

  const std::string resto = "','Casa','c','r',1.000000,2.000000,3.000000,'d',4.000000,'N',NULL);";
  const Textos sentencias = espia.Sentencias();
  EXPECT_EQ(
      Textos(sentencias.begin() + 2, sentencias.end()),
      (Textos{"select spubienes(" + ids[0] + ",1,'otro" + resto, "SELECT spdbienes(" + ids[1] + ");",
              "select spibienes(1,'nuevo" + resto, "select spibienes(1,'nuevo borrado" + resto, "COMMIT;"}));
  const Tabla filas = BienesEnServidor(1);
  ASSERT_EQ(filas.size(), 3u);
  EXPECT_EQ(filas[0], (Textos{ids[0], "otro"}));
  EXPECT_EQ(bienes.NumElementos(), 4) << "la lista queda como estaba";
}

TEST_F(cSujetoTest, UnBienSinTocarNoSeManda) {
  DaBienes();
  S persona = Leida(1);
  Espia espia;
  Salida salida;
  persona.Update();
  EXPECT_EQ(espia.Cuantas("bienes"), 0u);
}

TEST_F(cSujetoTest, SinPasarCheckNadieEscribeAunqueSoloCambieElDomicilio) {
  S persona;
  persona.setCalle("Reforma");
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { persona.Update(); }), "No ha especificado el apellido paterno");
  EXPECT_EQ(salida.Lineas(), Textos{"sujeto La Calle es : Reforma"});
  EXPECT_TRUE(persona.getDataChanged());
  EXPECT_EQ(Lanzado([&] { persona.AddNew(); }), "No ha especificado el apellido paterno");
  persona.setPaterno("Quimera");
  EXPECT_EQ(Lanzado([&] { persona.AddNew(); }), "No ha especificado el nombre");
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(Profundidad(), 0);
}

TEST_F(cSujetoTest, SinSuBanderaElAltaNoHaceNadaAunqueCambieElDomicilio) {
  S persona = Llena();
  persona.setDataChanged(false);
  persona.setCalle("Reforma");
  Espia espia;
  Salida salida;
  persona.AddNew();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cSujetoTest, UnaPersonaRechazadaEnElAltaPasaEnSilencioConSuClave) {
  const std::pair<const char*, Falla> tabla[] = {
      {"error", falla::Error("No")}, {"nula", falla::Nula()}, {"sin filas", falla::SinFilas()}};
  const std::string antes = base_.Valor("select count(*) from norte.sujeto");
  for (const auto& [caso, falla] : tabla) {
    SCOPED_TRACE(caso);
    S persona = Llena(70'000'000'000);
    Espia espia;
    espia.En(1, falla);
    Salida salida;
    EXPECT_EQ(Lanzado([&] { persona.AddNew(); }), std::nullopt);
    EXPECT_EQ(espia.Cuantas("SELECT spidomicilio(0,70000000000,"), 1u);
    EXPECT_EQ(Persona(persona), std::string("70000000000") + ColumnasDeLlena);
    EXPECT_EQ(Estado(persona), "0|0|70000000000|||||0|||0");
    EXPECT_EQ(espia.Sentencias().back(), "COMMIT;");
    EXPECT_EQ(Profundidad(), 0);
  }
  EXPECT_EQ(base_.Valor("select count(*) from norte.sujeto"), antes) << "un domicilio imposible lo deshizo";
}

TEST_F(cSujetoTest, UnDomicilioRechazadoPasaEnSilencioYSeLlevaALaPersona) {
  const std::string antes = base_.Valor("select count(*) from norte.sujeto");
  S persona = Llena();
  persona.setCalle("O'Higgins");
  Salida salida;
  EXPECT_EQ(Lanzado([&] { persona.AddNew(); }), std::nullopt);
  EXPECT_EQ(base_.Valor("select count(*) from norte.sujeto"), antes);
  EXPECT_EQ(Banderas(persona) + Banderas(Domicilio(persona)), "");
}

TEST_F(cSujetoTest, UnRechazoEnElCambioSeLanzaYConservaTodo) {
  const struct {
    const char* sentencia;
    std::string banderas;
    int profundidad;
  } tabla[] = {{"spusujeto", " cambiado nuevo cambiado", 1}, {"spubienes", " cambiado nuevo", 2}};
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.sentencia);
    S persona = Leida(1);
    persona.setCalle("Reforma");
    persona.setIsNew(true);
    persona.getBienes().Insertar(Bien(5, "viejo"));
    Espia espia;
    espia.Cuando(fila.sentencia, falla::Error("No"));
    Salida salida;
    EXPECT_EQ(Lanzado([&] { persona.Update(); }), "ERROR:  No\n");
    EXPECT_EQ(Profundidad(), fila.profundidad);
    EXPECT_EQ(Banderas(persona) + Banderas(Domicilio(persona)), fila.banderas);
    EXPECT_NE(salida.Lineas().back(), "LLega al fin de Update sujeto");
    engine.RollBackTransaction();
  }
}

TEST_F(cSujetoTest, TrasUnDomicilioRechazadoElPrimerBienSeLanza) {
  S persona = Leida(1);
  persona.setCiudadMexID(999999);
  persona.getBienes().Insertar(Bien(0, "nuevo", true));
  Espia espia;
  Salida salida;
  EXPECT_TRUE(Lanzado([&] { persona.Update(); }).has_value());
  EXPECT_EQ(espia.Historia()[2].estado, PGRES_FATAL_ERROR);
  EXPECT_EQ(espia.Cuantas("bienes"), 1u);
  engine.RollBackTransaction();
}

TEST_F(cSujetoTest, UnBienIncompletoSeLanzaConLaTransaccionAbierta) {
  for (const auto operacion : {&S::AddNew, &S::Update}) {
    S persona = Llena(1);
    persona.getBienes().Insertar(Bien(0, "", true));
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (persona.*operacion)(); }), "No ha especificado el propietario");
    EXPECT_EQ(Profundidad(), 1);
    EXPECT_TRUE(persona.getDataChanged());
    engine.RollBackTransaction();
  }
  EXPECT_STRNE(EnServidor(1)[0][3].c_str(), "Ana");
}

TEST_F(cSujetoTest, FindLeePersonaDomicilioYBienes) {
  const Textos ids = DaBienes();
  base_.Ejecuta(
      "update norte.sujeto set razonsocial = 'Ana y Cía', rfc = 'R', curp = 'C', edad = 41,"
      " fechanacimiento = '1965-02-11', paterno = 'P', materno = 'M', nombre = 'N' where sujetoid = 1");
  S persona;
  persona.setSujetoID(1);
  persona.setIsNew(true);
  persona.getBienes().Insertar(Bien(7, "otro"));
  Espia espia;
  Salida salida;
  persona.Find();
  EXPECT_EQ(espia.Sentencias(), (Textos{"SELECT * FROM spssujeto(1);", "SELECT * FROM spsdomiciliosujeto(1);",
                                        "SELECT * FROM spsbienes(1);"}));
  EXPECT_EQ(salida.Lineas(), Textos{"SELECT * FROM spsdomiciliosujeto(1);"});
  EXPECT_EQ(Persona(persona), "1|P|M|N|R|C|41|1965-02-11|Ana y Cía");
  std::string domicilio;
  const Tabla filas = DomicilioEnServidor(1);
  for (const std::string& columna : filas.at(0)) domicilio += (domicilio.empty() ? "" : "|") + columna;
  EXPECT_EQ(Estado(persona), domicilio);
  EXPECT_EQ(Propietarios(persona), (Textos{"uno", "dos"}));
  EXPECT_EQ(persona.getBienes().Item(1).getBienID(), std::stol(ids[1]));
  EXPECT_EQ(persona.getBienes().Item(1).getSujetoID(), 1);
  EXPECT_EQ(res, nullptr);
}

TEST_F(cSujetoTest, UnaPersonaSinDomicilioEsNuevaSoloEnEsaMitad) {
  base_.Ejecuta("delete from norte.domicilio where sujetoid = 1");
  const S persona = Leida(1);
  EXPECT_EQ(Banderas(persona), "");
  EXPECT_EQ(Estado(persona), "0|0|1|||||0|||0 nuevo");
}

TEST_F(cSujetoTest, UnaPersonaSinDomicilioNoHeredaElDeLaLeidaAntes) {
  for (const Falla& falla : {falla::SinFilas(), falla::Error("No"), falla::Nula()}) {
    S persona = Leida(1);
    ASSERT_NE(persona.getDomicilioID(), 0);
    persona.setCalle("Sin guardar");
    persona.setSujetoID(2);
    Espia espia;
    espia.Cuando("spsdomiciliosujeto(2)", falla);
    Salida salida;
    persona.Find();
    EXPECT_EQ(Estado(persona), "0|0|2|||||0|||0 nuevo");
    EXPECT_FALSE(persona.IsNew());
  }
}

TEST_F(cSujetoTest, SoloLoQueSeEscribeEnUnDomicilioEnBlancoSeManda) {
  base_.Ejecuta(
      "delete from norte.domicilio where sujetoid = 2; delete from norte.bienes where sujetoid = 2");
  const Tabla deLaPrimera = DomicilioEnServidor(1);
  S persona = Leida(1);
  persona.setSujetoID(2);
  Salida salida;
  persona.Find();
  Espia espia;
  persona.Update();
  EXPECT_EQ(espia.Cuantas("omicilio("), 0u);
  EXPECT_EQ(DomicilioEnServidor(2), Tabla{});
  persona.setCalle("Reforma");
  persona.Update();
  EXPECT_EQ(espia.Cuantas("SELECT spudomicilio(0,0,2,'Reforma','','','',0,'','',0);"), 1u);
  ASSERT_EQ(DomicilioEnServidor(2).size(), 1u);
  EXPECT_EQ(DomicilioEnServidor(2)[0][3], "Reforma");
  EXPECT_EQ(DomicilioEnServidor(1), deLaPrimera);
}

TEST_F(cSujetoTest, SinFechaDeNacimientoTieneUnaFechaPorOmision) {
  base_.Ejecuta("update norte.sujeto set fechanacimiento = null where sujetoid = 1");
  EXPECT_TRUE(Leida(1).getFechaNacimiento() == date());
}

TEST_F(cSujetoTest, LoQueNoEstaSoloQuedaMarcadoComoNuevo) {
  S persona = Llena(999999);
  persona.setIsNew(false);
  persona.getBienes().Insertar(Bien(7, "suyo"));
  Espia espia;
  Salida salida;
  persona.Find();
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spssujeto(999999);"});
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_EQ(Persona(persona), std::string("999999") + ColumnasDeLlena + " cambiado nuevo");
  EXPECT_EQ(Estado(persona), SinDomicilio);
  EXPECT_EQ(Propietarios(persona), Textos{"suyo"});
  EXPECT_NE(res, nullptr);  // left uncleared
}

TEST_F(cSujetoTest, CadaLecturaDeFindPuedeFallarSinDecirNada) {
  const size_t bienes = DaBienes().size();
  for (const Falla& falla : {falla::Error("No"), falla::Nula(), falla::SinFilas()}) {
    for (const size_t lectura : {0u, 1u, 2u}) {
      SCOPED_TRACE(lectura);
      S persona;
      persona.setSujetoID(1);
      Espia espia;
      espia.En(lectura, falla);
      Salida salida;
      EXPECT_EQ(Lanzado([&] { persona.Find(); }), std::nullopt);
      EXPECT_EQ(persona.IsNew(), lectura == 0);
      EXPECT_EQ(Domicilio(persona).IsNew(), lectura == 1);
      EXPECT_EQ(Propietarios(persona).size(), lectura == 1 ? bienes : 0u);
    }
  }
}

TEST_F(cSujetoTest, FindYDeleteTrabajanConCualquierClaveQueNoSeaCero) {
  for (const long clave : {0L, -1L, 999999L}) {
    S persona = Llena(clave);
    Espia espia;
    Salida salida;
    persona.Find();
    EXPECT_EQ(espia.Sentencias().size(), clave != 0 ? 1u : 0u);
    espia.Vacia();
    EXPECT_EQ(Lanzado([&] { persona.Delete(); }), std::nullopt) << "un rechazo pasa en silencio";
    const Textos borrado = {"BEGIN;", "SELECT spsujeto(" + std::to_string(clave) + ");", "COMMIT;"};
    EXPECT_EQ(espia.Sentencias(), clave != 0 ? borrado : Textos{});
    EXPECT_EQ(salida.Texto(), "");
    EXPECT_TRUE(persona.getDataChanged());
    EXPECT_EQ(Profundidad(), 0);
  }
}

TEST_F(cSujetoTest, DeleteBorraALaPersonaDelServidor) {
  S persona = Llena();
  Salida salida;
  persona.AddNew();
  ASSERT_EQ(EnServidor(persona.getSujetoID()).size(), 1u);
  persona.Delete();
  EXPECT_TRUE(EnServidor(persona.getSujetoID()).empty());
}

TEST_F(cSujetoTest, FindLeePersonaYBienesDeLaSegundaConexionSiLaSesionNoEsLocal) {
  const size_t bienes = DaBienes().size();
  SegundaConexion segunda;
  S persona = Leida(1);
  EXPECT_FALSE(persona.IsNew());
  EXPECT_TRUE(Domicilio(persona).IsNew()) << "el domicilio va siempre por la primera";
  persona.getBienes().RemoverTodos();
  Salida salida;
  persona.Find();
  EXPECT_EQ(Propietarios(persona).size(), bienes);
}

TEST_F(cSujetoTest, UnaRespuestaCualquieraSeEntiende) {
  const auto x = [](size_t n) { return "|" + std::string(n, 'x'); };
  const std::pair<Falla, std::string> tabla[] = {
      {falla::Recortada(1), "1||||||0|1900-01-01|"},
      {falla::ConNulos(), "0||||||0|1900-01-01|"},
      {falla::ConTextos(5000), "0" + x(20) + x(20) + x(50) + x(16) + x(21) + "|0|0000-00-00" + x(60)},
  };
  for (const auto& [falla, estado] : tabla) {
    S persona = Llena(1);
    Espia espia;
    espia.En(0, falla);
    Salida salida;
    persona.Find();
    EXPECT_EQ(Persona(persona), estado);
  }
}

}  // namespace
}  // namespace pruebas
