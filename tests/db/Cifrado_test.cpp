// The client's connection to a server that has a certificate: TLS unless it is told otherwise, and a check of
// the server for whoever asks for it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "db/Apertura.h"
#include "db/Engine.h"
#include "tests/support/Entorno.h"
#include "tests/support/Servidor.h"

namespace pruebas {
namespace {

/// The certificates of two servers, of which the test's own has the first. Both name its
/// address, and not localhost.
class Cifrado : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    base_ = new BaseDatos;
    carpeta_ = new CarpetaTemporal;
    for (const char* nombre : {"propio", "ajeno"}) {
      CorreBien({{"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-keyout",
                  Archivo(nombre, ".key"), "-out", Archivo(nombre, ".crt"), "-subj", "/CN=prueba", "-addext",
                  "subjectAltName=DNS:servidor.ejemplo,IP:127.0.0.1"}});
    }
    if (geteuid() == 0) CorreBien({{"chown", "postgres:", Archivo("propio", ".key")}});
    base_->Ejecuta("alter system set ssl_cert_file = '" + Archivo("propio", ".crt") + "'");
    base_->Ejecuta("alter system set ssl_key_file = '" + Archivo("propio", ".key") + "'");
    base_->Ejecuta("alter system set ssl = on");
    Servidor::Unico().Reinicia();
  }
  static void TearDownTestSuite() {
    for (const char* ajuste : {"ssl", "ssl_cert_file", "ssl_key_file"})
      base_->Ejecuta(std::string("alter system reset ") + ajuste);
    Servidor::Unico().Reinicia();
    delete base_;
    delete carpeta_;
  }
  void TearDown() override { apertura::Cierra(); }

  static std::string Archivo(const std::string& nombre, const std::string& clase) {
    return carpeta_->Ruta() / (nombre + clase);
  }

  /// Connects as the login does; answers what the server tells of the session, "t" or "f", or why there is
  /// none.
  static std::string Entra(const char* modo, const char* servidor, const char* raiz) {
    const CarpetaTemporal casa;
    if (*raiz != '\0') {
      std::filesystem::create_directory(casa.Ruta() / ".postgresql");
      std::filesystem::copy_file(Archivo(raiz, ".crt"), casa.Ruta() / ".postgresql" / "root.crt");
    }
    const Variable hogar("HOME", casa.Ruta().c_str());
    const Variable pedido("PGSSLMODE", modo);
    if (!apertura::Conecta(servidor, Servidor::Unico().puerto().c_str(), base_->nombre().c_str(), "adriana",
                           BaseDatos::Clave)) {
      return apertura::MotivoDelRechazo();
    }
    return base_->Valor("select ssl from pg_stat_ssl where pid = " + std::to_string(PQbackendPID(conn)));
  }

  static BaseDatos* base_;
  static CarpetaTemporal* carpeta_;
};

BaseDatos* Cifrado::base_ = nullptr;
CarpetaTemporal* Cifrado::carpeta_ = nullptr;

TEST_F(Cifrado, LoOrdinarioEsCifrarYElEntornoDecide) {
  struct Caso {
    const char* modo;  // of PGSSLMODE; null: not set
    const char* servidor;
    const char* raiz;  // whose certificate is in its usual place
    const char* cifrado;
  };
  const Caso casos[] = {
      {nullptr, "127.0.0.1", "", "t"},
      {nullptr, "127.0.0.1", "propio", "t"},
      {"disable", "127.0.0.1", "propio", "f"},
      {"require", "127.0.0.1", "", "t"},
      {"verify-ca", "127.0.0.1", "propio", "t"},
      {"verify-ca", "localhost", "propio", "t"},
      {"verify-full", "127.0.0.1", "propio", "t"},
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(std::string(caso.modo ? caso.modo : "sin decir") + " " + caso.servidor + " " + caso.raiz);
    EXPECT_EQ(Entra(caso.modo, caso.servidor, caso.raiz), caso.cifrado);
    EXPECT_EQ(PQsslInUse(conn) == 1, *caso.cifrado == 't');
  }
}

TEST_F(Cifrado, QuienCompruebaNoEntraAOtroServidor) {
  struct Caso {
    const char* modo;
    const char* servidor;
    const char* raiz;
    const char* dicho;  // in the reason that the login shows
  };
  const Caso casos[] = {
      {"verify-full", "127.0.0.1", "", ".postgresql/root.crt"},
      {"verify-full", "127.0.0.1", "ajeno", "certificate verify failed"},
      {"verify-ca", "127.0.0.1", "ajeno", "certificate verify failed"},
      {"verify-full", "localhost", "propio", "servidor.ejemplo"},
  };
  for (const Caso& caso : casos) {
    SCOPED_TRACE(std::string(caso.modo) + " " + caso.servidor + " " + caso.raiz);
    EXPECT_NE(Entra(caso.modo, caso.servidor, caso.raiz).find(caso.dicho), std::string::npos)
        << apertura::MotivoDelRechazo();
    EXPECT_EQ(PQstatus(conn), CONNECTION_BAD);
  }
}

}  // namespace
}  // namespace pruebas
