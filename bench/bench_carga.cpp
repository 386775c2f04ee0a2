// Loading a catalogue into the cache against bare libpq that fetches the same rows and copies each field.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <stdexcept>
#include <vector>

#include "bench/Medida.h"
#include "bench/cRenglon.h"
#include "catalogs/simple/cMonedas.h"
#include "db/Carga.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Filas = 100000;
constexpr int Vueltas = 21;

constexpr char sqlMonedas[] = "SELECT * FROM monedas;";
constexpr char sqlRenglones[] = "SELECT * FROM renglones;";

/// The columns of the records in a plain struct.
struct MonedaLlana {
  char id[3];
  float valor;
  char descripcion[32];
};

struct RenglonLlano {
  int clave;
  char nombre[51];
  char ciudad[31];
  char cp[7];
  float valor;
};

template <size_t N>
void Copia(char (&destino)[N], PGresult* r, int fila, int columna) {
  const size_t largo = std::min(static_cast<size_t>(PQgetlength(r, fila, columna)), N - 1);
  memcpy(destino, PQgetvalue(r, fila, columna), largo);
  destino[largo] = '\0';
}

void Lee(MonedaLlana& m, PGresult* r, int fila) {
  Copia(m.id, r, fila, 0);
  m.valor = static_cast<float>(atof(PQgetvalue(r, fila, 1)));
  Copia(m.descripcion, r, fila, 2);
}

void Lee(RenglonLlano& m, PGresult* r, int fila) {
  m.clave = atoi(PQgetvalue(r, fila, 0));
  Copia(m.nombre, r, fila, 1);
  Copia(m.ciudad, r, fila, 2);
  Copia(m.cp, r, fila, 3);
  m.valor = static_cast<float>(atof(PQgetvalue(r, fila, 4)));
}

template <class Llano>
double Llana(std::vector<Llano>& filas, const char* sql) {
  return medida::Segundos([&] {
    PGresult* r = PQexec(conn, sql);
    for (int fila = 0; fila < PQntuples(r); ++fila) Lee(filas[static_cast<size_t>(fila)], r, fila);
    PQclear(r);
  });
}

/// The load against a plain one. The container is full from the load before, as it is whenever a form reads
/// its catalogue again, so emptying it is part of the load.
template <class Llano, class Carga>
medida::Razones Contra(const char* sql, Carga carga) {
  std::vector<Llano> filas(Filas);
  return medida::Compara(
      Vueltas, [&] { return medida::Segundos(carga); }, [&] { return Llana(filas, sql); });
}

void CreaTablas() {
  Ejecuta(
      Sentencia("create table monedas as select to_char(i %% 100, 'FM00') as monedaid,"
                " (i * 0.37)::numeric(12,4) as monedavalor, 'Moneda de prueba ' || i as monedadescri"
                " from generate_series(1, %d) i",
                Filas));
  LanzaSiRechazada();
  Ejecuta(
      Sentencia("create table renglones as select i as clave, 'Colonia de prueba ' || i as nombre,"
                " 'Ciudad ' || i %% 2478 as ciudad, to_char(i %% 100000, 'FM00000') as cp,"
                " (i * 0.37)::numeric(12,4) as valor from generate_series(1, %d) i",
                Filas));
  LanzaSiRechazada();
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base(pruebas::BaseDatos::Vacia);
  const pruebas::Conexion conexion = base.Conecta();
  conn = conexion.get();
  CreaTablas();

  std::map<int, cMonedas> mapa;
  const auto enMapa = [&] { CargaEnTransaccion(mapa, sqlMonedas, "No se abre la transacción"); };
  informe.Escribe("carga en map", Contra<MonedaLlana>(sqlMonedas, enMapa), 1.5);

  lista<cRenglon> filas;
  const auto enLista = [&] { Carga(filas, sqlRenglones); };
  informe.Escribe("carga en lista", Contra<RenglonLlano>(sqlRenglones, enLista), 1.5);

  if (mapa.size() != Filas || filas.NumElementos() != Filas) throw std::runtime_error("faltan filas");
  return informe.Codigo();
}
