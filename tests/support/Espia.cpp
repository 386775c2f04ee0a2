#include "tests/support/Espia.h"

#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace pruebas {
namespace {

Espia* activo = nullptr;

using Respuesta = std::unique_ptr<PGresult, decltype(&PQclear)>;

bool Contiene(const std::string& texto, const std::string& parte) {
  return texto.find(parte) != std::string::npos;
}

void Corta(PGconn* conexion) {
  if (PQsocket(conexion) >= 0) shutdown(PQsocket(conexion), SHUT_RDWR);
}

// As a literal of SQL; empty without a connection.
std::string Citado(PGconn* conexion, const std::string& texto) {
  const std::unique_ptr<char, decltype(&PQfreemem)> citado(
      PQescapeLiteral(conexion, texto.c_str(), texto.size()), PQfreemem);
  return citado ? citado.get() : "";
}

// What stands in a field of a false answer; null for NULL.
using Campo = std::function<const char*(int fila, int columna)>;

// An answer with the first `columnas` columns of the true one and `filas` rows.
PGresult* Falsa(const PGresult* verdadera, int columnas, int filas, const Campo& campo) {
  PGresult* falsa = PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK);
  std::vector<std::string> nombres;
  std::vector<PGresAttDesc> atributos;
  for (int c = 0; c < columnas; ++c) nombres.emplace_back(PQfname(verdadera, c));
  for (int c = 0; c < columnas; ++c) {
    atributos.push_back({nombres[static_cast<size_t>(c)].data(), PQftable(verdadera, c),
                         PQftablecol(verdadera, c), PQfformat(verdadera, c), PQftype(verdadera, c),
                         PQfsize(verdadera, c), PQfmod(verdadera, c)});
  }
  PQsetResultAttrs(falsa, columnas, atributos.data());
  for (int f = 0; f < filas; ++f) {
    for (int c = 0; c < columnas; ++c) {
      const char* valor = campo(f, c);
      PQsetvalue(falsa, f, c, const_cast<char*>(valor), valor ? static_cast<int>(std::strlen(valor)) : -1);
    }
  }
  return falsa;
}

// Sends the statement and, when it yields columns, answers what `estropea` makes of them.
Falla Estropeada(std::function<PGresult*(const PGresult*)> estropea) {
  return [estropea = std::move(estropea)](PGconn* conexion, const char* sentencia) {
    Respuesta verdadera(__real_PQexec(conexion, sentencia), PQclear);
    const bool conColumnas = PQresultStatus(verdadera.get()) == PGRES_TUPLES_OK;
    return conColumnas ? estropea(verdadera.get()) : verdadera.release();
  };
}

const char* Nulo(int, int) { return nullptr; }

int AlMenosUna(const PGresult* respuesta) { return std::max(1, PQntuples(respuesta)); }

}  // namespace

namespace falla {

Falla Nula() {
  return [](PGconn*, const char*) -> PGresult* { return nullptr; };
}

Falla Error(const std::string& texto) {
  return [texto](PGconn* conexion, const char*) {
    // The server itself says it, on the same session: an error like any other, with its effect on a
    // transaction.
    const std::string cuerpo = "begin raise exception using message = " + Citado(conexion, texto) + "; end";
    const PGVerbosity antes = PQsetErrorVerbosity(conexion, PQERRORS_TERSE);
    PGresult* respuesta = __real_PQexec(conexion, ("do " + Citado(conexion, cuerpo)).c_str());
    PQsetErrorVerbosity(conexion, antes);
    return respuesta;
  };
}

Falla SinFilas() {
  return Estropeada(
      [](const PGresult* verdadera) { return Falsa(verdadera, PQnfields(verdadera), 0, Nulo); });
}

Falla Recortada(int columnas) {
  return Estropeada([columnas](const PGresult* verdadera) {
    const auto campo = [verdadera](int f, int c) {
      return f < PQntuples(verdadera) ? PQgetvalue(verdadera, f, c) : "";
    };
    return Falsa(verdadera, std::min(columnas, PQnfields(verdadera)), AlMenosUna(verdadera), campo);
  });
}

Falla ConNulos() {
  return Estropeada([](const PGresult* verdadera) {
    return Falsa(verdadera, PQnfields(verdadera), AlMenosUna(verdadera), Nulo);
  });
}

Falla ConTextos(int largo) {
  return Estropeada([texto = std::string(static_cast<size_t>(largo), 'x')](const PGresult* verdadera) {
    const auto campo = [&texto](int, int) { return texto.c_str(); };
    return Falsa(verdadera, PQnfields(verdadera), AlMenosUna(verdadera), campo);
  });
}

Falla CorteAntes() {
  return [](PGconn* conexion, const char* sentencia) {
    Corta(conexion);
    return __real_PQexec(conexion, sentencia);
  };
}

Falla CorteDespues() {
  return [](PGconn* conexion, const char* sentencia) {
    PQclear(__real_PQexec(conexion, sentencia));
    Corta(conexion);
    return __real_PQexec(conexion,
                         "");  // finds the line dead and answers as libpq does when an answer is lost
  };
}

}  // namespace falla

Espia::Espia() {
  if (activo) throw std::logic_error("ya hay un espía");
  activo = this;
}

Espia::~Espia() { activo = nullptr; }

void Espia::En(size_t n, Falla falla) { porNumero_.emplace_back(n, std::move(falla)); }

void Espia::Cuando(const std::string& texto, Falla falla) { porTexto_.emplace_back(texto, std::move(falla)); }

Textos Espia::Sentencias() const {
  Textos textos;
  for (const SentenciaVista& sentencia : historia_) textos.push_back(sentencia.texto);
  return textos;
}

size_t Espia::Cuantas(const std::string& texto) const {
  return static_cast<size_t>(std::count_if(
      historia_.begin(), historia_.end(), [&](const SentenciaVista& s) { return Contiene(s.texto, texto); }));
}

void Espia::Vacia() {
  historia_.clear();
  porNumero_.clear();
  porTexto_.clear();
}

Falla Espia::Elige(const std::string& sentencia) const {
  for (const auto& [numero, falla] : porNumero_) {
    if (numero == historia_.size()) return falla;
  }
  for (const auto& [texto, falla] : porTexto_) {
    if (Contiene(sentencia, texto)) return falla;
  }
  return __real_PQexec;
}

PGresult* Espia::Atiende(PGconn* conexion, const char* sentencia) {
  PGresult* respuesta = Elige(sentencia)(conexion, sentencia);
  historia_.push_back({sentencia, PQresultStatus(respuesta)});
  return respuesta;
}

}  // namespace pruebas

// The linker sends every PQexec of the program here.
extern "C" PGresult* __wrap_PQexec(PGconn* conexion, const char* sentencia);
extern "C" PGresult* __wrap_PQexec(PGconn* conexion, const char* sentencia) {
  return pruebas::activo ? pruebas::activo->Atiende(conexion, sentencia) : __real_PQexec(conexion, sentencia);
}
