// Saving a loan type against the same statements sent through bare libpq.
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "app/sesion.h"
#include "bench/Medida.h"
#include "catalogs/finance/cTipoPrestamo.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Vueltas = 21;
constexpr int Guardados = 20;  // of a turn

// Every save changes the row, so that the server has it to write.
constexpr const char* descripciones[] = {"Ordinario", "Ordinario de prueba"};

void Guarda(cTipoPrestamo& tipo, int vez) {
  tipo.setDescTipoPrestamo(descripciones[vez % 2]);
  tipo.Update();
}

/// What a save sends.
pruebas::Textos Sentencias(cTipoPrestamo& tipo, int vez) {
  pruebas::Espia espia;
  Guarda(tipo, vez);
  return espia.Sentencias();
}

void Manda(const pruebas::Textos& sentencias) {
  for (const auto& sentencia : sentencias) PQclear(PQexec(conn, sentencia.c_str()));
}

template <class Accion>
double Segundos(Accion accion) {
  return medida::Segundos([&] {
    for (int vez = 0; vez < Guardados; ++vez) accion(vez);
  });
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base;
  const pruebas::Conexion conexion = base.Conecta("adriana", pruebas::BaseDatos::Clave);
  conn = conexion.get();
  Ejecuta("set search_path to public, norte");
  std::ofstream nada("/dev/null");
  std::streambuf* const pantalla = std::cout.rdbuf(nada.rdbuf());  // a save traces what it sends

  catalogo.LoadCuentas();
  cTipoPrestamo tipo;
  tipo.setTipoPrestamoID("ORD");
  tipo.Find();
  const pruebas::Textos sentencias[] = {Sentencias(tipo, 1), Sentencias(tipo, 0)};

  const auto razones = medida::Compara(
      Vueltas, [&] { return Segundos([&](int vez) { Guarda(tipo, vez + 1); }); },
      [&] { return Segundos([&](int vez) { Manda(sentencias[vez % 2]); }); });
  informe.Escribe("guardado de un tipo de préstamo", razones, 1.2);

  std::cout.rdbuf(pantalla);
  if (tipo.getDataChanged() || sentencias[0].size() != 4) throw std::runtime_error("no se guardó");
  return informe.Codigo();
}
