#include "catalogs/people/cUsuario.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/catalogs/Personas.h"
#include "tests/support/Espia.h"
#include "tests/support/Registros.h"
#include "tests/support/Salida.h"

namespace pruebas {
namespace {

using U = cUsuario;

/// The user's own half: all columns in the order of the server's answer, and its flags.
std::string Propio(const U& u) {
  return u.getUsuarioID() + std::string("|") + u.getTipoUsuarioID() + "|" + u.getUsu_UsuarioID() + "|" +
         u.getContrasenia() + "|" + u.getEmail() + "|" + u.getDicola() + "|" + u.getObsUsuario() + "|" +
         std::to_string(u.getSujetoID()) + Banderas(u);
}
/// The person's, as far as it tells persons apart.
std::string Persona(const cSujeto& s) {
  return std::to_string(s.getSujetoID()) + "|" + s.getPaterno() + "|" + s.getNombre() + Banderas(s);
}
std::string Tipo(const cTipoUsuario& t) {
  return t.getTipoUsuarioID() + std::string("|") + t.getDescripcionTipoUsuario() + Banderas(t);
}
/// The parameters, but for their number.
std::string Parametros(const cParametro& p) {
  return p.getUsuarioID() + std::string("|") + p.getSerieUser() + "|" + p.getCuentaCaja() + "|" +
         p.getImpresoraCaja() + "|" + p.getImpresoraReporte() + "|" + std::to_string(p.getReportesLaser()) +
         "|" + p.getClaveSocioInt() + Banderas(p);
}
/// The halves that are not the user's own.
std::string Mitades(const U& u) {
  return Persona(u) + " / " + Estado(u) + " / " + Tipo(u) + " / " + Parametros(u);
}

const char* const Blancas = "0|| / 0|0|0|||||0|||0 / | / |||||0|";

/// Gives each half of `u` a value that is not yet on the server, as a form does for a new user.
void Llena(U& u, const char* login = "lucia") {
  u.setUsuarioID(login);
  u.setTipoUsuarioID("CAJ");
  u.setUsu_UsuarioID("adriana");
  u.setEmail("l@x.example");
  u.setDicola("caja");
  u.setObsUsuario("Nota");
  u.setPaterno("Quimera");
  u.setNombre("Lucía");
  u.setCiudadMexID(3);
  u.setCalle("Reforma");
  u.setSerieUser("ZZ");
  u.setCuentaCaja("1101-01-00-00-0000");
  u.setIsNew(true);
}
const char* const LlenaPropia = "lucia|CAJ|adriana||l@x.example|caja|Nota|0 cambiado nuevo";
const char* const LlenasMitades =
    "0|Quimera|Lucía cambiado / 0|3|0|Reforma||||0|||0 cambiado / | / |ZZ|1101-01-00-00-0000|||0| cambiado";

// Without a server.

TEST(cUsuario, RecienHechoEstaVacioYSinBanderas) {
  const U usuario;
  EXPECT_EQ(Propio(usuario), "|||||||0");
  EXPECT_EQ(Mitades(usuario), Blancas);
  EXPECT_STREQ(usuario.clase(), "Usuario");
}

TEST(cUsuario, CadaColumnaSigueLaReglaDelCambio) {
  const ColumnaDeTexto<U> tabla[] = {
      {"UsuarioID", &U::setUsuarioID, &U::getUsuarioID, 20},
      {"TipoUsuarioID", &U::setTipoUsuarioID, &U::getTipoUsuarioID, 3},
      {"Usu_UsuarioID", &U::setUsu_UsuarioID, &U::getUsu_UsuarioID, 20},
      {"Contrasenia", &U::setContrasenia, &U::getContrasenia, 13},
      {"Email", &U::setEmail, &U::getEmail, 30},
      {"Dicola", &U::setDicola, &U::getDicola, 10},
      {"ObsUsuario", &U::setObsUsuario, &U::getObsUsuario, 257},
  };
  for (const auto& columna : tabla) ExigeReglaDelTexto(columna);
  ExigeReglaDelNumero<U, long>(&U::setSujetoID, &U::getSujetoID, 70'000'000'000);
}

TEST(cUsuario, ElConstructorTomaCadaColumnaComoEs) {
  EXPECT_EQ(Propio(U("a", "b", "c", "d", "e", "f", "g", 8, true, false)), "a|b|c|d|e|f|g|8 cambiado");
  EXPECT_EQ(Propio(U("a", "b", "c", "d", "e", "f", "g", 8, false, true)), "a|b|c|d|e|f|g|8 nuevo");
  EXPECT_EQ(Mitades(U("a", "b", "c", "d", "e", "f", "g", 8, true, true)), Blancas);
}

TEST(cUsuario, CopiarLlevaSoloLasColumnasPropias) {
  U original;
  Llena(original);
  U nuevo(original), porAsignacion, porCopy;
  for (U* otro : {&porAsignacion, &porCopy}) otro->setPaterno("Otra");
  porAsignacion = original;
  porCopy.Copy(original);
  for (const U* copia : {&nuevo, &porAsignacion, &porCopy}) EXPECT_EQ(Propio(*copia), LlenaPropia);
  EXPECT_EQ(Mitades(nuevo), Blancas);
  EXPECT_EQ(Persona(porAsignacion), "0|Otra| cambiado");
  EXPECT_EQ(Persona(porCopy), "0|Otra| cambiado");
  U& mismo = original;
  original = mismo;
  EXPECT_EQ(Propio(original), LlenaPropia);
  EXPECT_EQ(Mitades(original), LlenasMitades);
}

TEST(cUsuario, ClearVaciaSoloLasColumnasPropias) {
  U usuario;
  Llena(usuario);
  usuario.Clear();
  EXPECT_EQ(Propio(usuario), "|||||||0");
  EXPECT_EQ(Mitades(usuario), LlenasMitades);
}

TEST(cUsuario, CadaMitadTieneSusBanderas) {
  U usuario;
  usuario.setDicola("caja");
  usuario.setIsNew(true);
  EXPECT_EQ(Propio(usuario), "|||||caja||0 cambiado nuevo");
  EXPECT_EQ(Mitades(usuario), Blancas);
}

TEST(cUsuario, LaBanderaDeCambioNoSeQuitaMientrasPersonaODomicilioTenganLaSuya) {
  for (int caso = 0; caso < 16; ++caso) {
    const bool valor = caso & 1, persona = caso & 2, domicilio = caso & 4, parametros = caso & 8;
    SCOPED_TRACE(caso);
    U usuario;
    usuario.cSujeto::setDataChanged(persona);
    usuario.cDomicilio::setDataChanged(domicilio);
    usuario.cParametro::setDataChanged(parametros);
    usuario.setDataChanged(valor);
    EXPECT_EQ(usuario.getDataChanged(), valor || persona || domicilio);
  }
}

TEST(cUsuario, CheckSiempreDiceQueSi) { EXPECT_TRUE(U().Check()); }

cUsuario Usuario(const char* login) {
  cUsuario usuario;
  usuario.setUsuarioID(login);
  return usuario;
}

class cUsuarioTest : public ConSucursal {
 protected:
  void SetUp() override { cUsuario::Permisos.clear(); }
  void TearDown() override { cUsuario::Permisos.clear(); }

  Tabla EnServidor(const std::string& login) {
    return base_.Filas(
        "select permisomoduloid, clavemodulo, usuarioid, permiso, descrimodulo"
        " from norte.permisomodulo join norte.modulo using (clavemodulo) where usuarioid = '" +
        login + "' order by clavemodulo");
  }
  /// The map as a table; a flag that is set shows.
  static Tabla EnMapa() {
    Tabla tabla;
    for (const auto& [renglon, p] : cUsuario::Permisos) {
      EXPECT_EQ(renglon, static_cast<int>(tabla.size()));
      tabla.push_back({std::to_string(p.getPermisoModuloID()), p.getClaveModulo(), p.getUsuarioID(),
                       p.getPermiso(),
                       p.getDescripcionModulo() + std::string(p.getDataChanged() ? " cambiado" : "") +
                           (p.IsNew() ? " nuevo" : "") + (p.Deleted() ? " borrado" : "")});
    }
    return tabla;
  }
  static cPermisosModulos& Renglon(const std::string& modulo) {
    for (auto& [renglon, permiso] : cUsuario::Permisos) {
      if (rtrim(permiso.getClaveModulo()) == modulo) return permiso;
    }
    throw std::runtime_error("no hay renglón del módulo " + modulo);
  }
  std::string Letra(const std::string& login, const std::string& modulo) {
    return base_.Valor("select permiso from norte.permisomodulo where usuarioid = '" + login +
                       "' and clavemodulo = '" + modulo + "'");
  }

 private:
  static std::string rtrim(std::string texto) { return texto.erase(texto.find_last_not_of(' ') + 1); }
};

TEST_F(cUsuarioTest, LeePermisosTomaLosRenglonesDelUsuarioEnSuOrden) {
  Espia espia;
  Salida salida;
  Usuario("braulio").LeePermisos();
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spspermisosmodulos('braulio');"});
  EXPECT_EQ(salida.Texto(), "");
  EXPECT_GT(EnMapa().size(), 1u);
  EXPECT_EQ(EnMapa(), EnServidor("braulio"));
}

TEST_F(cUsuarioTest, LeerAOtroUsuarioDejaSoloLosSuyosDesdeElCero) {
  base_.Ejecuta("delete from norte.permisomodulo where usuarioid = 'camila' and clavemodulo > '0205'");
  Usuario("braulio").LeePermisos();
  Renglon("0203").setPermiso("N");
  Usuario("camila").LeePermisos();
  EXPECT_EQ(EnMapa(), EnServidor("camila"));
  EXPECT_LT(EnMapa().size(), EnServidor("braulio").size());
  Usuario("nadie").LeePermisos();
  EXPECT_TRUE(cUsuario::Permisos.empty());
}

TEST_F(cUsuarioTest, UnaLecturaQueFallaSeLanzaYDejaElMapaVacio) {
  const std::pair<Falla, std::string> casos[] = {{falla::Error("No"), "ERROR:  No\n"}, {falla::Nula(), ""}};
  for (const auto& [mala, texto] : casos) {
    Usuario("braulio").LeePermisos();
    Espia espia;
    espia.En(0, mala);
    EXPECT_EQ(Lanzado([] { Usuario("braulio").LeePermisos(); }), texto);
    EXPECT_TRUE(cUsuario::Permisos.empty());
  }
}

TEST_F(cUsuarioTest, SoloElRenglonTocadoLlegaAlServidor) {
  Usuario("braulio").LeePermisos();
  Espia espia;
  Usuario("braulio").GuardaPermisos();
  EXPECT_EQ(espia.Sentencias(), Textos{});

  cPermisosModulos& monedas = Renglon("0203");
  monedas.setPermiso("N");
  Usuario("braulio").GuardaPermisos();
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"BEGIN;",
                    "select spupermisomodulo(" + std::to_string(monedas.getPermisoModuloID()) +
                        ",'0203      ','braulio','N');",
                    "COMMIT;"}));
  EXPECT_EQ(Letra("braulio", "0203"), "N");
  EXPECT_FALSE(monedas.getDataChanged());

  espia.Vacia();
  Usuario("braulio").GuardaPermisos();  // clean again
  EXPECT_EQ(espia.Sentencias(), Textos{});
}

TEST_F(cUsuarioTest, CadaRenglonSeEscribeComoDicenSusBanderasEnElOrdenDeLasLlaves) {
  base_.Ejecuta("delete from norte.permisomodulo where usuarioid = 'braulio' and clavemodulo = '0204'");
  Usuario("braulio").LeePermisos();
  const std::string borrado = std::to_string(Renglon("0203").getPermisoModuloID()),
                    cambiado = std::to_string(Renglon("0102").getPermisoModuloID());
  cUsuario::Permisos = {{2, Renglon("0203")},
                        {7, cPermisosModulos(0, "0204", "otro", "S", "Bancos", true, true, true)},
                        {9, Renglon("0102")}};
  cUsuario::Permisos[2].setPermiso("N");  // of no account: it goes
  cUsuario::Permisos[2].setDeleted(true);
  cUsuario::Permisos[9].setPermiso("N");

  engine.BeginTransaction();
  Espia espia;
  Salida salida;
  Usuario("braulio").GuardaPermisos();
  engine.CommitTransaction();
  EXPECT_EQ(
      espia.Sentencias(),
      (Textos{"SELECT spdpermisosmodulos(" + borrado + ");", "select spipermisomodulo('0204','braulio','S');",
              "select spupermisomodulo(" + cambiado + ",'0102      ','braulio','N');", "COMMIT;"}));
  EXPECT_EQ(salida.Texto(), "");

  EXPECT_EQ(base_.Filas("select 1 from norte.permisomodulo where permisomoduloid = " + borrado), Tabla{});
  EXPECT_EQ(Letra("braulio", "0204"), "S");
  EXPECT_EQ(Letra("braulio", "0102"), "N");
  const cPermisosModulos& nuevo = cUsuario::Permisos.at(7);
  EXPECT_STREQ(nuevo.getUsuarioID(), "braulio");
  EXPECT_NE(nuevo.getPermisoModuloID(), 0);
  EXPECT_FALSE(nuevo.IsNew() || nuevo.getDataChanged());
  EXPECT_TRUE(cUsuario::Permisos.at(2).Deleted());
}

TEST_F(cUsuarioTest, UnRechazoSeLanzaYElRenglonQuedaComoEstaba) {
  Usuario("braulio").LeePermisos();
  cUsuario::Permisos = {{0, Renglon("0102")},
                        {1, cPermisosModulos(0, "0203", "otro", "S", "", true, true, false)},
                        {2, Renglon("0203")}};
  cUsuario::Permisos[0].setPermiso("N");
  cUsuario::Permisos[2].setPermiso("N");
  Espia espia;
  EXPECT_EQ(Lanzado([] { Usuario("braulio").GuardaPermisos(); }).value_or("").substr(0, 6), "ERROR:");
  EXPECT_EQ(espia.Cuantas("permisomodulo("), 2u);  // the third one was not reached
  EXPECT_EQ(Profundidad(), 1);
  engine.RollBackTransaction();
  EXPECT_FALSE(cUsuario::Permisos[0].getDataChanged());
  EXPECT_STREQ(cUsuario::Permisos[1].getUsuarioID(), "otro");
  EXPECT_TRUE(cUsuario::Permisos[1].IsNew());
  EXPECT_TRUE(cUsuario::Permisos[2].getDataChanged());
}

// The four rows together, against the reference database.

constexpr const char* Grupo = "tolvara_usuarios";

class cUsuarioEnteroTest : public testing::Test {
 protected:
  cUsuarioEnteroTest() { CopiaTexto(gpggrupodefault, Grupo); }
  ~cUsuarioEnteroTest() override { gpggrupodefault[0] = '\0'; }
  void SetUp() override { cUsuario::Permisos.clear(); }
  void TearDown() override { cUsuario::Permisos.clear(); }

  std::string PersonaDe(const std::string& login) {
    return base_.Valor("select sujetoid from norte.usuario where usuarioid = '" + login + "'");
  }
  /// Everything that the server has of a user, in one text.
  std::string EnServidor(const std::string& login) {
    return base_.Valor(
        "select jsonb_build_array(to_jsonb(u), to_jsonb(s), to_jsonb(d), to_jsonb(p),"
        " (select jsonb_agg(b order by bienid) from norte.bienes b where b.sujetoid = u.sujetoid),"
        " (select jsonb_agg(m order by clavemodulo) from norte.permisomodulo m"
        "   where m.usuarioid = u.usuarioid))"
        " from norte.usuario u left join norte.sujeto s using (sujetoid)"
        " left join norte.domicilio d using (sujetoid) left join norte.parametro p using (usuarioid)"
        " where u.usuarioid = '" +
        login + "'");
  }
  /// How many rows there are of all that a new user adds to.
  Textos Cuentas() {
    return base_.Filas(
        "select (select count(*) from norte.usuario), (select count(*) from norte.sujeto),"
        " (select count(*) from norte.domicilio), (select count(*) from norte.bienes),"
        " (select count(*) from norte.parametro)")[0];
  }
  /// Each user of these has an address, parameters and two goods; none of another's.
  void DaTodo(const std::string& login) {
    const std::string persona = PersonaDe(login);
    QuitaDePersona(persona);
    base_.Ejecuta("insert into norte.domicilio (ciudadmexid, sujetoid, calle) values (3, " + persona +
                  ", 'Calle de " + login + "')");
    for (const char* propietario : {"uno", "dos"})
      base_.Ejecuta("insert into norte.bienes values (default, " + persona + ", '" + propietario +
                    "', 'Casa', 'c', 'r', 1, 2, 3, 'd', 4, 'N')");
  }
  void QuitaTodo(const std::string& login) {
    QuitaDePersona(PersonaDe(login));
    base_.Ejecuta("delete from norte.parametro where usuarioid = '" + login + "'");
  }
  void QuitaDePersona(const std::string& persona) {
    base_.Ejecuta("delete from norte.domicilio where sujetoid = " + persona +
                  "; delete from norte.bienes where sujetoid = " + persona);
  }
  /// Reads as the list of the form does, without the traces.
  static void Lee(U& usuario, const char* login) {
    Salida salida;
    usuario.setUsuarioID(login);
    usuario.Find();
    usuario.LeePermisos();
  }

  BaseDatos base_;
};

class cUsuarioConSesionTest : public cUsuarioEnteroTest {
 protected:
  Sesion sesion_{base_};
};

TEST_F(cUsuarioConSesionTest, FindLeeAlUsuarioYDespuesCadaMitad) {
  DaTodo("braulio");
  base_.Ejecuta(
      "update norte.usuario set email = 'b@x.example', dicola = 'caja', obsusuario = 'Nota'"
      " where usuarioid = 'braulio'");
  const std::string persona = PersonaDe("braulio");
  U usuario;
  usuario.setUsuarioID("braulio");
  usuario.setIsNew(true);
  Espia espia;
  Salida salida;
  EXPECT_EQ(Lanzado([&] { usuario.Find(); }), std::nullopt);
  const std::string domicilio = "SELECT * FROM spsdomiciliosujeto(" + persona + ");";
  const std::string parametro = "SELECT * FROM spsparametro('braulio');";
  EXPECT_EQ(espia.Sentencias(),
            (Textos{"SELECT * FROM spsusuario('braulio');", "SELECT * FROM spssujeto(" + persona + ");",
                    domicilio, "SELECT * FROM spsbienes(" + persona + ");",
                    "SELECT * FROM spstipousuario('CAJ');", parametro}));
  EXPECT_EQ(salida.Lineas(), (Textos{domicilio, parametro, "leyendo parametros", usuario.getSerieUser(),
                                     usuario.getCuentaCaja()}));
  const Tabla fila = base_.Filas(
      "select usuarioid, tipousuarioid, usu_usuarioid, '', email, dicola,"
      " obsusuario, sujetoid from norte.usuario where usuarioid = 'braulio'");
  std::string esperado;
  for (const std::string& columna : fila[0]) esperado += (&columna == &fila[0][0] ? "" : "|") + columna;
  EXPECT_EQ(Propio(usuario), esperado);
  EXPECT_EQ(Persona(usuario),
            persona + "|" +
                base_.Valor("select paterno || '|' || nombre from norte.sujeto where sujetoid = " + persona));
  EXPECT_STREQ(usuario.getCalle(), "Calle de braulio");
  EXPECT_EQ(usuario.getBienes().NumElementos(), 2);
  EXPECT_EQ(Tipo(usuario), "CAJ|" + base_.Valor("select descripciontipousuario from norte.tipousuario"
                                                " where tipousuarioid = 'CAJ'"));
  EXPECT_EQ(usuario.cParametro::getUsuarioID(), std::string("braulio"));
  EXPECT_STREQ(usuario.getSerieUser(), "B");
  EXPECT_EQ(Banderas<cDomicilio>(usuario) + Banderas<cParametro>(usuario), "");
  EXPECT_EQ(res, nullptr);
}

TEST_F(cUsuarioConSesionTest, UnUsuarioQueNoEstaSeLanzaYElRestoQuedaComoEstaba) {
  for (const Falla& falla : {Falla(), falla::Error("No"), falla::Nula()}) {
    U usuario;
    Llena(usuario, "nadie");
    usuario.setIsNew(false);
    const std::string mitades = Mitades(usuario);
    Espia espia;
    if (falla) espia.En(0, falla);
    Salida salida;
    EXPECT_EQ(Lanzado([&] { usuario.Find(); }), "El usuario no se encontro en la BD");
    EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spsusuario('nadie');"});
    EXPECT_EQ(Propio(usuario), "nadie|CAJ|adriana||l@x.example|caja|Nota|0 cambiado nuevo");
    EXPECT_EQ(Mitades(usuario), mitades);
    EXPECT_EQ(salida.Texto(), "");
  }
}

TEST_F(cUsuarioConSesionTest, SinLoginFindNoHaceNada) {
  U usuario;
  usuario.setIsNew(true);
  Espia espia;
  EXPECT_EQ(Lanzado([&] { usuario.Find(); }), std::nullopt);
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_TRUE(usuario.IsNew());
}

TEST_F(cUsuarioConSesionTest, NadieHeredaLoQueDejoElUsuarioLeidoAntes) {
  DaTodo("braulio");
  QuitaTodo("camila");
  const std::string persona = PersonaDe("camila");
  U usuario;
  Lee(usuario, "braulio");
  Lee(usuario, "camila");
  EXPECT_EQ(Estado(usuario), "0|0|" + persona + "|||||0|||0 nuevo");
  EXPECT_EQ(Parametros(usuario), "camila|||||0| nuevo");
  EXPECT_EQ(usuario.getParametroID(), 0);
  EXPECT_EQ(usuario.getBienes().NumElementos(), 0);

  // Saved as it is, it takes nothing along.
  const std::string deBraulio = EnServidor("braulio"), deCamila = EnServidor("camila");
  Espia espia;
  Salida salida;
  usuario.setDataChanged(true);
  EXPECT_EQ(Lanzado([&] { usuario.Update(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias().size(), 4u);
  EXPECT_EQ(espia.Cuantas("omicilio(") + espia.Cuantas("parametro("), 0u);
  EXPECT_EQ(EnServidor("camila"), deCamila);

  // What the user types is hers, twice over.
  for (const std::string calle : {"Suya", "Otra"}) {
    espia.Vacia();
    usuario.setCalle(calle.c_str());
    usuario.setSerieUser(calle.substr(0, 2).c_str());
    usuario.setDataChanged(true);
    EXPECT_EQ(Lanzado([&] { usuario.Update(); }), std::nullopt);
    EXPECT_EQ(espia.Cuantas("SELECT spudomicilio(0,0," + persona + ",'" + calle + "'"), 1u);
    EXPECT_EQ(espia.Cuantas("select spuparametro('camila','" + calle.substr(0, 2)), 1u);
    EXPECT_EQ(base_.Filas("select calle from norte.domicilio where sujetoid = " + persona), Tabla{{calle}});
    EXPECT_EQ(base_.Filas("select serieuser from norte.parametro where usuarioid = 'camila'"),
              Tabla{{calle.substr(0, 2)}});
  }
  EXPECT_EQ(EnServidor("braulio"), deBraulio);
}

TEST_F(cUsuarioConSesionTest, UnaMitadQueNoSePuedeLeerQuedaEnBlanco) {
  DaTodo("braulio");
  DaTodo("camila");
  const std::string persona = PersonaDe("camila");
  const struct {
    const char* sentencia;
    std::string esperado;
    std::string (*da)(U&);
  } tabla[] = {
      {"spssujeto(", persona + "|| nuevo", [](U& u) { return Persona(u); }},
      {"spssujeto(", "0|0|0|||||0|||0", [](U& u) { return Estado(u); }},
      {"spssujeto(", "0", [](U& u) { return std::to_string(u.getBienes().NumElementos()); }},
      {"spsdomiciliosujeto(", "0|0|" + persona + "|||||0|||0 nuevo", [](U& u) { return Estado(u); }},
      {"spstipousuario(", "CON| cambiado nuevo", [](U& u) { return Tipo(u); }},
      {"spsparametro(", "camila|||||0| nuevo", [](U& u) { return Parametros(u); }},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.sentencia);
    U usuario;
    Lee(usuario, "braulio");
    Espia espia;
    espia.Cuando(fila.sentencia, falla::SinFilas());
    Lee(usuario, "camila");
    EXPECT_EQ(fila.da(usuario), fila.esperado);
    EXPECT_FALSE(usuario.IsNew() || usuario.getDataChanged());
  }
}

TEST_F(cUsuarioConSesionTest, CambiarDePersonaLaLee) {
  DaTodo("braulio");
  const std::string persona = PersonaDe("braulio");
  U usuario;
  usuario.setCalle("De nadie");
  Espia espia;
  Salida salida;
  usuario.setSujetoID(std::stol(persona));
  EXPECT_EQ(espia.Sentencias().size(), 3u);
  EXPECT_STREQ(usuario.getCalle(), "Calle de braulio");
  EXPECT_TRUE(usuario.getDataChanged());
  espia.Vacia();
  usuario.setDataChanged(false);
  usuario.setSujetoID(std::stol(persona));
  EXPECT_FALSE(usuario.getDataChanged());

  U otro;  // whose half has the key already
  otro.cSujeto::setSujetoID(std::stol(persona));
  otro.setSujetoID(std::stol(persona));
  EXPECT_TRUE(otro.getDataChanged());
  EXPECT_EQ(otro.getSujetoID(), std::stol(persona));
  EXPECT_TRUE(espia.Sentencias().empty());
}

TEST_F(cUsuarioConSesionTest, CambiarDeTipoDejaLaMitadDelTipoComoEsta) {
  U usuario;
  Lee(usuario, "braulio");
  const std::string tipo = Tipo(usuario);
  Espia espia;
  usuario.setTipoUsuarioID("CAJ");
  EXPECT_FALSE(usuario.getDataChanged()) << "el mismo valor";
  usuario.setTipoUsuarioID("GER");
  EXPECT_TRUE(usuario.getDataChanged());
  EXPECT_EQ(Tipo(usuario), tipo);
  EXPECT_TRUE(espia.Sentencias().empty());
  usuario.setTipoUsuarioID("CAJ");  // the key that the half has
  EXPECT_EQ(espia.Sentencias(), Textos{"SELECT * FROM spstipousuario('CAJ');"});
}

TEST_F(cUsuarioConSesionTest, ElAltaGuardaCadaMitadYDespuesPideElLogin) {
  for (const char* jefe : {"adriana", ""}) {
    SCOPED_TRACE(jefe);
    U usuario;
    const std::string login = jefe[0] != '\0' ? "lucia" : "lucas";
    Llena(usuario, login.c_str());
    usuario.setUsu_UsuarioID(jefe);
    usuario.setSerieUser(login.substr(2, 2).c_str());
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { usuario.AddNew(); }), std::nullopt);

    const std::string persona = PersonaDe(login);
    const std::string alta = "select spiusuario('" + login + "','CAJ'," +
                             (jefe[0] != '\0' ? "'adriana'" : "NULL") + ",'','l@x.example','caja','Nota'," +
                             persona + ");";
    const std::string creacion = "select * from creausuario('" + login + "','tolvara_usuarios');";
    EXPECT_EQ(espia.Sentencias(),
              (Textos{"BEGIN;", "select spisujeto('Quimera','','Lucía','','',0,'1900-01-01','');",
                      "SELECT spidomicilio(3," + persona + ",'Reforma','','','',0,'','',0);", alta,
                      "select spiparametro('" + login + "','" + login.substr(2, 2) +
                          "','1101-01-00-00-0000','','',0,'');",
                      "COMMIT;", creacion}));
    const Textos lineas = salida.Lineas();
    ASSERT_GT(lineas.size(), 3u);
    EXPECT_EQ(lineas[lineas.size() - 3].rfind("DomicilioID==", 0), 0u);
    EXPECT_EQ(lineas[lineas.size() - 2], alta);
    EXPECT_EQ(lineas.back(), creacion);
    EXPECT_EQ(Propio(usuario), login + "|CAJ|" + jefe + "||l@x.example|caja|Nota|" + persona);
    EXPECT_EQ(usuario.cParametro::getUsuarioID(), login);
    EXPECT_EQ(Banderas<cSujeto>(usuario) + Banderas<cDomicilio>(usuario) + Banderas<cParametro>(usuario), "");
    EXPECT_EQ(Profundidad(), 0);
    EXPECT_EQ(res, nullptr);
    EXPECT_EQ(base_.Valor("select rolcanlogin from pg_roles where rolname = '" + login + "'"), "t");
    EXPECT_EQ(base_.Valor("select calle || serieuser || coalesce(usu_usuarioid, '-') from norte.usuario join"
                          " norte.domicilio using (sujetoid) join norte.parametro using (usuarioid)"
                          " where usuarioid = '" +
                          login + "'"),
              "Reforma" + login.substr(2, 2) + (jefe[0] != '\0' ? "adriana" : "-"));
  }
}

TEST_F(cUsuarioConSesionTest, ElAltaNoMandaLosPermisos) {
  U usuario;
  Llena(usuario);
  cUsuario::Permisos[0] = cPermisosModulos(0, "0203", "", "S", "Monedas", true, true, false);
  Espia espia;
  Salida salida;
  usuario.AddNew();
  EXPECT_EQ(espia.Cuantas("permiso"), 0u);
  EXPECT_TRUE(cUsuario::Permisos[0].getDataChanged());
}

TEST_F(cUsuarioConSesionTest, SinSuBanderaNadieGuardaNada) {
  U usuario;
  Llena(usuario);
  U::Permisos[0] = cPermisosModulos(1, "0203", "lucia", "S", "Monedas", true, false, false);
  usuario.cDomicilio::setDataChanged(false);
  usuario.cSujeto::setDataChanged(false);
  usuario.setDataChanged(false);
  Espia espia;
  Salida salida;
  usuario.AddNew();
  usuario.Update();
  EXPECT_TRUE(espia.Sentencias().empty());
  EXPECT_EQ(salida.Texto(), "");
}

TEST_F(cUsuarioConSesionTest, UnCambioMandaSoloLoQueCambioDeCadaMitad) {
  DaTodo("braulio");
  const std::string persona = PersonaDe("braulio");
  const struct {
    const char* nombre;
    void (*cambia)(U&);
    Textos despues;  // what follows the person, and the user
  } tabla[] = {
      {"nada", [](U&) {}, {"spuusuario"}},
      {"usuario", [](U& u) { u.setEmail("x"); }, {"spuusuario"}},
      {"persona", [](U& u) { u.setMaterno("Boceto"); }, {"spuusuario"}},
      {"domicilio", [](U& u) { u.setCalle("Reforma"); }, {"spudomicilio", "spuusuario"}},
      {"bienes",
       [](U& u) {
         cBien bien = u.getBienes().Item(0);
         bien.setPropietario("otro");
         u.getBienes().setItem(bien, 0);
       },
       {"spubienes", "spuusuario"}},
      {"permisos",
       [](U&) {
         U::Permisos.at(0).setPermiso("Q");
         U::Permisos.at(0).setPermiso("N");
         U::Permisos.at(3).setPermiso(U::Permisos.at(3).getPermiso()[0] == 'N' ? "S" : "N");
       },
       {"spuusuario", "spupermisomodulo", "spupermisomodulo"}},
      {"parametros",
       [](U& u) { u.setReportesLaser(1 - u.getReportesLaser()); },
       {"spuusuario", "spuparametro"}},
      {"todo",
       [](U& u) {
         u.setCalle("Juárez");
         U::Permisos.at(5).setPermiso(U::Permisos.at(5).getPermiso()[0] == 'N' ? "S" : "N");
         u.setSerieUser("QQ");
       },
       {"spudomicilio", "spuusuario", "spupermisomodulo", "spuparametro"}},
  };
  for (const auto& fila : tabla) {
    SCOPED_TRACE(fila.nombre);
    U usuario;
    Lee(usuario, "braulio");
    fila.cambia(usuario);
    usuario.setDataChanged(true);
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { usuario.Update(); }), std::nullopt);
    const Textos sentencias = espia.Sentencias();
    ASSERT_EQ(sentencias.size(), fila.despues.size() + 3);
    EXPECT_EQ(sentencias.front(), "BEGIN;");
    EXPECT_NE(sentencias[1].find("select spusujeto(" + persona + ","), std::string::npos);
    for (size_t i = 0; i < fila.despues.size(); ++i)
      EXPECT_NE(sentencias[i + 2].find(fila.despues[i] + "("), std::string::npos) << sentencias[i + 2];
    EXPECT_EQ(sentencias.back(), "COMMIT;");
    EXPECT_EQ(salida.Texto().find("spuusuario"), std::string::npos) << "no se traza";
    EXPECT_EQ(Banderas(usuario) + Banderas<cSujeto>(usuario) + Banderas<cDomicilio>(usuario) +
                  Banderas<cParametro>(usuario),
              "");
    EXPECT_EQ(Profundidad(), 0);
    U leido;
    const auto permisos = U::Permisos;
    Lee(leido, "braulio");
    EXPECT_EQ(Propio(leido), Propio(usuario));
    EXPECT_EQ(Mitades(leido), Mitades(usuario));
    for (const auto& [renglon, permiso] : permisos)
      EXPECT_STREQ(U::Permisos.at(renglon).getPermiso(), permiso.getPermiso());
  }
}

TEST_F(cUsuarioConSesionTest, UnCambioMandaElJefeONull) {
  const std::string persona = PersonaDe("braulio");
  for (const char* jefe : {"adriana", ""}) {
    U usuario;
    Lee(usuario, "braulio");
    usuario.setUsu_UsuarioID(jefe);
    usuario.setTipoUsuarioID("GER");
    usuario.setEmail("e");
    usuario.setDicola("d");
    usuario.setObsUsuario("o");
    usuario.setDataChanged(true);
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { usuario.Update(); }), std::nullopt);
    const std::string quien = jefe[0] != '\0' ? "'adriana'" : "NULL";
    EXPECT_EQ(
        espia.Cuantas("select spuusuario('braulio','GER'," + quien + ",'','e','d','o'," + persona + ");"),
        1u);
    EXPECT_EQ(
        base_.Valor("select coalesce(usu_usuarioid, '-') from norte.usuario where usuarioid = 'braulio'"),
        jefe[0] != '\0' ? "adriana" : "-");
  }
}

TEST_F(cUsuarioConSesionTest, LaContraseniaVaComoVino) {
  U usuario;
  Llena(usuario);
  usuario.setContrasenia("secreta");
  Espia espia;
  Salida salida;
  EXPECT_NE(Lanzado([&] { usuario.AddNew(); }).value_or("").find("La contraseña no se guarda"),
            std::string::npos);
  EXPECT_EQ(espia.Cuantas("'adriana','secreta','l@x.example'"), 1u);
  engine.RollBackTransaction();
}

TEST_F(cUsuarioConSesionTest, UnaPersonaIncompletaSeLanzaConLaTransaccionAbierta) {
  for (const auto operacion : {&U::AddNew, &U::Update}) {
    U usuario;
    Llena(usuario);
    usuario.setPaterno("");
    Espia espia;
    Salida salida;
    EXPECT_EQ(Lanzado([&] { (usuario.*operacion)(); }), "No ha especificado el apellido paterno");
    EXPECT_EQ(espia.Sentencias(), Textos{"BEGIN;"});
    EXPECT_EQ(Profundidad(), 1);
    engine.RollBackTransaction();
    EXPECT_EQ(espia.Sentencias().back(), "ROLLBACK;");
    EXPECT_TRUE(usuario.getDataChanged() && usuario.IsNew());
  }
}

TEST_F(cUsuarioConSesionTest, DeleteMandaSoloElLogin) {
  U usuario;
  Espia espia;
  Salida salida;
  usuario.Delete();
  EXPECT_TRUE(espia.Sentencias().empty()) << "sin login";
  Llena(usuario);
  usuario.AddNew();
  const std::string persona = PersonaDe("lucia");
  usuario.setDataChanged(true);
  espia.Vacia();
  const std::string trazado = salida.Texto();
  EXPECT_EQ(Lanzado([&] { usuario.Delete(); }), std::nullopt);
  EXPECT_EQ(espia.Sentencias(), (Textos{"BEGIN;", "SELECT spdusuario('lucia');", "COMMIT;"}));
  EXPECT_EQ(salida.Texto(), trazado);
  EXPECT_TRUE(usuario.getDataChanged());
  EXPECT_EQ(base_.Filas("select 1 from norte.sujeto where sujetoid = " + persona), Tabla{});
  EXPECT_NE(Lanzado([&] { usuario.Delete(); }), std::nullopt) << "un rechazo se lanza";
  EXPECT_EQ(Profundidad(), 1);
  engine.RollBackTransaction();
}

TEST_F(cUsuarioConSesionTest, UnLoginRechazadoDejaLosRenglonesEnElServidorYRepetirSeRechaza) {
  CopiaTexto(gpggrupodefault, "otro_grupo");
  const Textos antes = Cuentas();
  U usuario;
  Llena(usuario);
  Salida salida;
  EXPECT_EQ(Lanzado([&] { usuario.AddNew(); }).value_or("").substr(0, 7), "ERROR: ");
  EXPECT_TRUE(usuario.getDataChanged() && usuario.IsNew());
  EXPECT_EQ(Profundidad(), 0) << "ya no hay transacción";
  const Textos despues = Cuentas();
  EXPECT_EQ(std::stoi(despues[0]), std::stoi(antes[0]) + 1);
  Espia espia;
  EXPECT_NE(Lanzado([&] { usuario.AddNew(); }).value_or("").find("El usuario lucia ya existe"),
            std::string::npos);
  EXPECT_EQ(espia.Cuantas("spisujeto") + espia.Cuantas("spidomicilio") + espia.Cuantas("spiusuario"), 3u);
  engine.RollBackTransaction();
  EXPECT_EQ(Cuentas(), despues);
}

TEST_F(cUsuarioConSesionTest, TrasUnRechazoElUsuarioCorrigeYTodoSeGuarda) {
  const Textos antes = Cuentas();
  U usuario;
  Llena(usuario, "adriana");  // is there already
  Salida salida;
  EXPECT_NE(Lanzado([&] { usuario.AddNew(); }), std::nullopt);
  engine.RollBackTransaction();
  EXPECT_EQ(Cuentas(), antes);
  EXPECT_EQ(Mitades(usuario), LlenasMitades);
  usuario.setUsuarioID("lucia");
  EXPECT_EQ(Lanzado([&] { usuario.AddNew(); }), std::nullopt);
  EXPECT_EQ(
      base_.Valor("select paterno || calle || serieuser from norte.usuario join norte.sujeto using (sujetoid)"
                  " join norte.domicilio using (sujetoid) join norte.parametro using (usuarioid)"
                  " where usuarioid = 'lucia'"),
      "QuimeraReformaZZ");
}

TEST_F(cUsuarioConSesionTest, UnDomicilioDeOtroNoSeMueve) {
  DaTodo("braulio");
  DaTodo("camila");
  const std::string deBraulio = EnServidor("braulio"), deCamila = EnServidor("camila");
  U usuario;
  Lee(usuario, "camila");
  usuario.setDomicilioID(std::stol(
      base_.Valor("select domicilioid from norte.domicilio where sujetoid = " + PersonaDe("braulio"))));
  usuario.setDataChanged(true);
  Salida salida;
  EXPECT_NE(Lanzado([&] { usuario.Update(); }), std::nullopt);
  engine.RollBackTransaction();
  EXPECT_EQ(EnServidor("braulio"), deBraulio);
  EXPECT_EQ(EnServidor("camila"), deCamila);
}

// The connection lost, or a statement refused, at each place of a save.

const std::pair<const char*, Falla> cortes[] = {{"antes", falla::CorteAntes()},
                                                {"después", falla::CorteDespues()}};

TEST_F(cUsuarioEnteroTest, UnAltaCortadaEnCualquierPuntoSeGuardaEnteraONada) {
  constexpr size_t Sentencias = 8;
  const Textos sin = Cuentas();
  Textos con;
  for (const std::string& cuenta : sin) con.push_back(std::to_string(std::stoi(cuenta) + 1));
  for (const auto& [caso, falla] : cortes) {
    for (size_t n = 0; n < Sentencias; ++n) {
      SCOPED_TRACE(std::to_string(n) + " " + caso);
      U usuario;
      Llena(usuario);
      usuario.getBienes().Insertar(
          cBien(0, 0, "ella", "Casa", "c", "r", 1, 2, 3, "d", 4, "N", date(), true, true, false));
      {
        Sesion sesion(base_);
        Espia espia;
        espia.En(n, falla);
        Salida salida;
        EXPECT_NE(Lanzado([&] { usuario.AddNew(); }), std::nullopt);
        engine.RollBackTransaction();
        EXPECT_GT(espia.Sentencias().size(), n);
      }
      const bool guardado = n == Sentencias - 1 || (n == Sentencias - 2 && caso != cortes[0].first);
      EXPECT_EQ(Cuentas(), guardado ? con : sin);
      EXPECT_EQ(Propio(usuario), LlenaPropia);
      EXPECT_EQ(Mitades(usuario), LlenasMitades);

      // Connected again, the next press saves it all, or is refused because it is there.
      Sesion sesion(base_);
      Salida salida;
      EXPECT_EQ(Lanzado([&] { usuario.AddNew(); }).has_value(), guardado);
      engine.RollBackTransaction();
      EXPECT_EQ(Cuentas(), con);
      EXPECT_EQ(Lanzado([&] { usuario.Delete(); }), std::nullopt);
      EXPECT_EQ(Cuentas(), sin);
    }
  }
}

/// Gives each half of a user that was read a value with `n` in it, and turns two of his permissions around.
void CambiaTodo(U& usuario, size_t n) {
  const std::string valor = "valor " + std::to_string(n);
  usuario.setEmail(valor.c_str());
  usuario.setMaterno(valor.c_str());
  usuario.setCalle(valor.c_str());
  cBien bien = usuario.getBienes().Item(0);
  bien.setPropietario(valor.c_str());
  usuario.getBienes().setItem(bien, 0);
  for (const int renglon : {2, 4}) {
    cPermisosModulos& permiso = U::Permisos.at(renglon);
    permiso.setPermiso(permiso.getPermiso()[0] == 'N' ? "S" : "N");
  }
  usuario.setSerieUser(std::string{'Q', static_cast<char>('A' + n)}.c_str());
  usuario.setDataChanged(true);
}

/// What CambiaTodo changes, as the record has it.
std::string EnRegistro(U& usuario) {
  std::string texto = usuario.getEmail() + std::string("|") + usuario.getMaterno() + "|" +
                      usuario.getCalle() + "|" + usuario.getBienes().Item(0).getPropietario() + "|" +
                      usuario.getSerieUser() + "|";
  for (const auto& [renglon, permiso] : U::Permisos) texto += permiso.getPermiso();
  return texto;
}

TEST_F(cUsuarioEnteroTest, UnCambioCortadoEnCualquierPuntoSeGuardaEnteroONada) {
  constexpr size_t Sentencias = 9;
  DaTodo("braulio");
  const auto visible = [this] {
    return base_.Valor(
        "select concat_ws('|', email, materno, calle, (select propietario from norte.bienes b where "
        "b.sujetoid ="
        " u.sujetoid order by bienid limit 1), serieuser, (select string_agg(permiso, '' order by "
        "clavemodulo)"
        " from norte.permisomodulo m where m.usuarioid = u.usuarioid)) from norte.usuario u join norte.sujeto"
        " using (sujetoid) join norte.domicilio using (sujetoid) join norte.parametro using (usuarioid)"
        " where usuarioid = 'braulio'");
  };
  const Textos cuentas = Cuentas();
  size_t vez = 0;
  for (const auto& [caso, falla] : cortes) {
    for (size_t n = 0; n < Sentencias; ++n) {
      SCOPED_TRACE(std::to_string(n) + " " + caso);
      const std::string antes = visible();
      U usuario;
      std::string nuevo;
      std::optional<std::string> texto;
      {
        Sesion sesion(base_);
        Lee(usuario, "braulio");
        ASSERT_EQ(EnRegistro(usuario), antes);
        CambiaTodo(usuario, vez++);
        nuevo = EnRegistro(usuario);
        Espia espia;
        espia.En(n, falla);
        Salida salida;
        texto = Lanzado([&] { usuario.Update(); });
        engine.RollBackTransaction();
        EXPECT_GT(espia.Sentencias().size(), n);
      }
      EXPECT_TRUE(texto.has_value());
      EXPECT_EQ(visible(), n == Sentencias - 1 && caso == cortes[1].first ? nuevo : antes);
      EXPECT_EQ(Cuentas(), cuentas);

      // Connected again, the next press saves it all.
      EXPECT_TRUE(usuario.getDataChanged());
      Sesion sesion(base_);
      Salida salida;
      EXPECT_EQ(Lanzado([&] { usuario.Update(); }), std::nullopt);
      EXPECT_EQ(visible(), nuevo);
    }
  }
}

}  // namespace
}  // namespace pruebas
