// The loads of the login at national scale, against the same statements with their answers thrown away, and
// what the process holds afterwards, against the sizes of the records and of their nodes.
#include <unistd.h>

#include <fstream>
#include <iostream>
#include <stdexcept>

#include "app/sesion.h"
#include "bench/Escala.h"
#include "bench/Medida.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Vueltas = 11;

void Carga() {
  catalogo.setLoad(false);
  catalogo.Load();
}

pruebas::Textos SentenciasDeLaCarga() {
  pruebas::Espia espia;
  Carga();
  return espia.Sentencias();
}

/// The node of a map has three pointers and a colour ahead of its pair.
template <class T>
double Bytes(const std::map<int, T>& mapa) {
  return static_cast<double>(mapa.size() * (sizeof(std::pair<const int, T>) + 4 * sizeof(void*)));
}
template <class T>
double Bytes(const lista<T>& filas) {
  return static_cast<double>(filas.NumElementos() * sizeof(nodo<T>));
}

double BytesDelCatalogo() {
  using C = Catalogo;
  return Bytes(C::Catalogo_Ctas) + Bytes(C::Monedas) + Bytes(C::TipoPrestamo) + Bytes(C::TipoMovimiento) +
         Bytes(C::Tipo_Garantia) + Bytes(C::Estados_Credito) + Bytes(C::Finalidades) +
         Bytes(C::TipoMoviBancos) + Bytes(C::TipoInversiones) + Bytes(C::EstadosMex) + Bytes(C::CiudadesMex) +
         Bytes(C::TiposUsuarios) + Bytes(C::TiposSocios) + Bytes(C::Modulos) + Bytes(C::Calculos) +
         Bytes(C::Asesores) + Bytes(C::TipoAsentamientos) + Bytes(C::ConceptosScoring) + Bytes(C::Bancos) +
         Bytes(C::Udis) + Bytes(C::Inpc) + Bytes(C::Recargos) + Bytes(C::Inabiles) +
         Bytes(C::TipoTasaInteres) + Bytes(C::TasaInteres) + Bytes(C::TipoDepreciacion) + Bytes(C::Activos) +
         Bytes(C::Usuarios) + Bytes(catalogo.TipoPromociones) + Bytes(catalogo.Colonias) +
         Bytes(catalogo.MotivosBaja) + Bytes(catalogo.ClasificacionCreditos) +
         Bytes(catalogo.TipoAcreditadosR) + Bytes(catalogo.Grupos) + Bytes(catalogo.Ocupaciones);
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base;
  Escala(base);
  const pruebas::Conexion conexion = base.Conecta("adriana", pruebas::BaseDatos::Clave);
  conn = conexion.get();
  Ejecuta("set search_path to norte");
  LiberaResultado();
  std::ofstream nada("/dev/null");
  std::streambuf* const pantalla = std::cout.rdbuf(nada.rdbuf());  // the loads trace what they send

  const double antes = medida::MemoriaPropia(getpid());
  Carga();
  medida::Razones memoria;
  memoria.Anota((medida::MemoriaPropia(getpid()) - antes) * 1024, BytesDelCatalogo());
  informe.Escribe("memoria de los catálogos tras el login", memoria, 1.1);

  const pruebas::Textos sentencias = SentenciasDeLaCarga();
  const auto razones = medida::Compara(
      Vueltas, [&] { return medida::Segundos(Carga); },
      [&] {
        return medida::Segundos([&] {
          for (const auto& sentencia : sentencias) PQclear(PQexec(conn, sentencia.c_str()));
        });
      });
  informe.Escribe("cargas del login a escala nacional", razones, 1.4);

  std::cout.rdbuf(pantalla);
  if (catalogo.Colonias.NumElementos() < 145000) throw std::runtime_error("faltan colonias");
  return informe.Codigo();
}
