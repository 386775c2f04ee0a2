// The export of a closed month of 100,000 loans against psql, which copies the answer to the same statement
// into a file, and what it takes of memory besides that answer.
#include <unistd.h>

#include <fstream>
#include <stdexcept>
#include <string>

#include "app/sesion.h"
#include "bench/Escala.h"
#include "bench/Medida.h"
#include "db/Engine.h"
#include "reports/Precorte.h"

namespace {

constexpr int Vueltas = 5;
constexpr int Prestamos = 100000;

/// Kilobytes that a line of /proc/self/status tells.
double Estado(const std::string& campo) {
  std::ifstream estado("/proc/self/status");
  for (std::string linea; std::getline(estado, linea);)
    if (linea.compare(0, campo.size(), campo) == 0) return std::stod(linea.substr(campo.size()));
  throw std::runtime_error("el sistema no dice " + campo);
}

/// The export; `al` gets its answer before that goes.
template <class Accion>
void Exporta(const Sentencia& sql, Accion al) {
  Archivo salida("reporte.csv");
  Ejecuta(sql);
  EscribePrecorte(salida);
  al();
  LiberaResultado();
}

/// Bytes that the process took at most during an export, without the answer itself.
double MemoriaDeMas(const Sentencia& sql) {
  std::ofstream("/proc/self/clear_refs") << 5;  // the peak counts from here
  const double antes = Estado("VmRSS:");
  double respuesta = 0;
  Exporta(sql, [&] {
    if (PQntuples(res) < Prestamos * 9 / 10) throw std::runtime_error("faltan préstamos");
    respuesta = static_cast<double>(PQresultMemorySize(res));
  });
  return (Estado("VmHWM:") - antes) * 1024 - respuesta;
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base;
  Escala(base);
  const pruebas::Conexion conexion = base.Conecta("adriana", pruebas::BaseDatos::Clave);
  conn = conexion.get();
  Ejecuta("set search_path to norte");
  const std::string hoy = base.Valor("select to_char(current_date, 'DD/MM/YYYY')");
  Ejecuta(("select precierre('" + hoy + "')").c_str());
  LanzaSiRechazada();
  base.Ejecuta("analyze");

  const pruebas::CarpetaTemporal carpeta;
  if (chdir(carpeta.Ruta().c_str()) != 0) throw std::runtime_error("no hay carpeta");
  const Sentencia sql = SqlPrecorte(false, hoy.c_str(), std::stoi(hoy.substr(6)), std::stoi(hoy.substr(3)));
  const std::string consulta = sql.Texto();
  const pruebas::Servidor& servidor = pruebas::Servidor::Unico();
  const pruebas::Orden copia{
      {"psql", "-Xqc", "\\copy (" + consulta.substr(0, consulta.rfind(';')) + ") to 'copia.csv' csv"},
      "",
      {"PGHOST=" + servidor.host(), "PGPORT=" + servidor.puerto(), "PGUSER=adriana",
       std::string("PGPASSWORD=") + pruebas::BaseDatos::Clave, "PGDATABASE=" + base.nombre(),
       "PGOPTIONS=-c search_path=norte"}};

  medida::Razones memoria;
  memoria.Anota(MemoriaDeMas(sql), 8 << 20);
  informe.Escribe("memoria de la exportación fuera de su respuesta, entre 8 MB", memoria, 1);
  informe.Escribe("exportación de 100000 préstamos",
                  medida::Compara(
                      Vueltas, [&] { return medida::Segundos([&] { Exporta(sql, [] {}); }); },
                      [&] { return medida::Segundos([&] { pruebas::CorreBien(copia); }); }),
                  1.2);
  return informe.Codigo();
}
