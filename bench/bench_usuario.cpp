// The form of the users: opening it with many users, the cascade of the address, and a save, each against the
// same statements sent through bare libpq and the same widgets made straight with the toolkit.
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/sesion.h"
#include "bench/Copia.h"
#include "bench/Medida.h"
#include "catalogs/people/Usuario_Window.h"
#include "db/Catalogo.h"
#include "tests/support/Espia.h"
#include "tests/support/Servidor.h"
#include "tests/support/Ventana.h"

namespace {

constexpr int Vueltas = 9;
constexpr int Pasos = 20;      // of the cascade in a turn
constexpr int Guardados = 20;  // of a turn

// Of the state and the city with the longest lists.
constexpr int Estado = 20;
constexpr int Ciudades = 570;
constexpr int Colonias = 2000;

/// Fills a branch up to so many users, each with his person.
void PonUsuarios(pruebas::BaseDatos& base, const char* sucursal, int cuantos) {
  base.Ejecuta(
      Sentencia("set search_path to %s, comun; set session_replication_role to replica;"
                "with persona as (insert into sujeto (paterno, materno, nombre)"
                " select 'Prueba', 'Muestra', 'Usuario ' || i"
                " from generate_series((select count(*) + 1 from usuario), %d) i returning sujetoid)"
                " insert into usuario (usuarioid, tipousuarioid, sujetoid)"
                " select 'prueba' || sujetoid, (select min(tipousuarioid) from tipousuario), sujetoid"
                " from persona; analyze; reset all",
                sucursal, cuantos)
          .Texto());
}

/// The cities of the state, and the neighbourhoods of the one that its list begins with.
void PonLugares(pruebas::BaseDatos& base) {
  base.Ejecuta(Sentencia("set search_path to norte, comun; set session_replication_role to replica;"
                         "insert into ciudadesmex (estadomexid, claveciudadmex, nombreciudadmex)"
                         " select %d, 'M' || to_char(i, 'FM000'), 'Municipio ' || i from generate_series("
                         "(select count(*) + 1 from ciudadesmex where estadomexid = %d), %d) i;"
                         "insert into colonias (ciudadmexid, nombrecolonia, cp, tipoasentamientoid)"
                         " select c.ciudadmexid, 'Colonia ' || i, 68000 + i %% 900,"
                         " (select min(tipoasentamientoid) from tipoasentamiento)"
                         " from generate_series(1, %d) i, (select ciudadmexid from ciudadesmex"
                         " where estadomexid = %d order by nombreciudadmex limit 1) c;"
                         "analyze; reset all",
                         Estado, Estado, Ciudades, Colonias, Estado)
                   .Texto());
}

/// The branch that the statements go to.
void Entra(const char* sucursal) {
  Ejecuta(Sentencia("set search_path to %s", sucursal));
  LiberaResultado();
}

template <class Accion>
pruebas::Textos Sentencias(Accion accion) {
  pruebas::Espia espia;
  accion();
  return espia.Sentencias();
}

void Manda(const pruebas::Textos& sentencias) {
  for (const auto& sentencia : sentencias) PQclear(PQexec(conn, sentencia.c_str()));
}

double Abre(Escenario& escenario) {
  return Aperturas(
      1, [&] { return new Usuario_Window(escenario.area, escenario.menu); },
      [](auto obra) { return medida::Segundos(obra); });
}

double AbreEn(Escenario& escenario, const char* sucursal) {
  Entra(sucursal);
  return Abre(escenario);
}

void MideAperturas(medida::Informe& informe, Escenario& escenario) {
  Entra("norte");
  std::unique_ptr<Usuario_Window> modelo;
  const pruebas::Textos sentencias =
      Sentencias([&] { modelo = std::make_unique<Usuario_Window>(escenario.area, escenario.menu); });
  if (sentencias.size() < 3 * 500) throw std::runtime_error("faltan usuarios");
  const auto nuestra = [&] { return new Usuario_Window(escenario.area, escenario.menu); };
  const auto llana = [&] {
    Manda(sentencias);
    return AbreLlana(escenario, modelo.get(), {});
  };
  const auto reloj = [](auto obra) { return medida::Segundos(obra); };
  informe.Escribe(
      "abrir los usuarios, 500 de ellos",
      medida::Compara(
          Vueltas, [&] { return Aperturas(1, nuestra, reloj); }, [&] { return Aperturas(1, llana, reloj); }),
      1.3);
  informe.Escribe("abrir los usuarios, 500 de ellos, tiempo de procesador",
                  medida::Compara(
                      Vueltas, [&] { return Aperturas(1, nuestra); }, [&] { return Aperturas(1, llana); }),
                  1.3);
  informe.Escribe(
      "abrir los usuarios, diez veces tantos",
      medida::Compara(
          Vueltas / 2, [&] { return AbreEn(escenario, "sur"); }, [&] { return AbreEn(escenario, "norte"); }),
      12);
}

/// The combo boxes of the form, in the order of their creation.
enum Combo { Tipo, Jefe, ComboEstado, Municipio, Colonia };

/// What a bare combo box shows of a row of an answer. Stays until the next call.
using Texto = const char* (*)(const PGresult* respuesta, int fila);

const char* TextoDeCiudad(const PGresult* respuesta, int fila) { return PQgetvalue(respuesta, fila, 3); }

const char* TextoDeColonia(const PGresult* respuesta, int fila) {
  static char texto[92];
  const int tipo = atoi(PQgetvalue(respuesta, fila, 4));
  const char* nombreDelTipo = "";
  for (const auto& [clave, asentamiento] : Catalogo::TipoAsentamientos)
    if (asentamiento.getTipoAsentamientoID() == tipo) {
      nombreDelTipo = asentamiento.getAsentamiento();
      break;
    }
  snprintf(texto, sizeof texto, "%5s %45.45s %20.20s", PQgetvalue(respuesta, fila, 3),
           PQgetvalue(respuesta, fila, 2), nombreDelTipo);
  return texto;
}

/// The statements, and the rows of the last one straight into a combo box.
void Llena(FXComboBox* combo, const pruebas::Textos& sentencias, Texto texto) {
  combo->clearItems();
  for (const auto& sentencia : sentencias) {
    PGresult* const respuesta = PQexec(conn, sentencia.c_str());
    for (int fila = 0; &sentencia == &sentencias.back() && fila < PQntuples(respuesta); ++fila)
      combo->appendItem(texto(respuesta, fila));
    PQclear(respuesta);
  }
  combo->setCurrentItem(-1);
}

/// A step of the cascade: what its handler does, against its statements and a bare combo box that takes the
/// rows of their answer.
void MidePaso(medida::Informe& informe, const char* que, Escenario& escenario, Usuario_Window& forma,
              long (Usuario_Window::*paso)(FXObject*, FXSelector, void*), Combo destino, int renglones,
              Texto texto) {
  const auto da = [&] { (forma.*paso)(nullptr, 0, nullptr); };
  const pruebas::Textos sentencias = Sentencias(da);
  FXComboBox* const combo = pruebas::Todos<FXComboBox>(&forma).at(destino);
  if (combo->getNumItems() < renglones) throw std::runtime_error("faltan lugares");
  const std::unique_ptr<FXComposite> llana(AbreLlana(escenario, &forma, {}));
  FXComboBox* const llano = pruebas::Todos<FXComboBox>(llana.get()).at(destino);
  const auto daLlano = [&] { Llena(llano, sentencias, texto); };
  daLlano();
  for (FXint fila = 0; fila < combo->getNumItems(); ++fila)
    if (combo->getItemText(fila) != llano->getItemText(fila)) throw std::runtime_error("otros lugares");
  const auto mide = [](auto accion) {
    pruebas::App().runWhileEvents();
    return medida::SegundosDeProcesador([&] {
      for (int vez = 0; vez < Pasos; ++vez) accion();
    });
  };
  informe.Escribe(que,
                  medida::Compara(
                      2 * Vueltas, [&] { return mide(da); }, [&] { return mide(daLlano); }),
                  1.3);
}

void MideCascada(medida::Informe& informe, Escenario& escenario) {
  Entra("norte");
  auto* const forma = new Usuario_Window(escenario.area, escenario.menu);
  const std::vector<FXComboBox*> combos = pruebas::Todos<FXComboBox>(forma);
  combos.at(ComboEstado)->setCurrentItem(Estado - 1);
  MidePaso(informe, "cascada de un estado de 570 ciudades", escenario, *forma, &Usuario_Window::onCmdEstados,
           Municipio, Ciudades, TextoDeCiudad);
  combos.at(Municipio)->setCurrentItem(0);
  MidePaso(informe, "cascada de una ciudad de 2000 colonias", escenario, *forma,
           &Usuario_Window::onCmdCiudades, Colonia, Colonias, TextoDeColonia);
  delete forma;
}

// Every save changes rows of the user, of the person and of a permission, so that the server has them to
// write.
void Guarda(int vez) {
  const char* const marca = vez % 2 == 0 ? "par" : "non";
  usuario.setObsUsuario(marca);
  usuario.setCurp(marca);
  cUsuario::Permisos[0].setPermiso(vez % 2 == 0 ? "S" : "N");
  usuario.setDataChanged(true);
  usuario.Update();
}

void MideGuardado(medida::Informe& informe) {
  Entra("norte");
  usuario.setUsuarioID("julieta");
  usuario.Find();
  usuario.LeePermisos();
  Guarda(1);
  const pruebas::Textos sentencias[] = {Sentencias([] { Guarda(0); }), Sentencias([] { Guarda(1); })};
  if (sentencias[0].size() < 5) throw std::runtime_error("no se guarda todo");
  const auto mide = [](auto accion) {
    return medida::Segundos([&] {
      for (int vez = 0; vez < Guardados; ++vez) accion(vez);
    });
  };
  informe.Escribe("guardado de un usuario",
                  medida::Compara(
                      2 * Vueltas, [&] { return mide(Guarda); },
                      [&] { return mide([&](int vez) { Manda(sentencias[vez % 2]); }); }),
                  1.2);
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  pruebas::BaseDatos base;
  PonUsuarios(base, "norte", 500);
  PonUsuarios(base, "sur", 5000);
  PonLugares(base);
  const pruebas::Conexion conexion = base.Conecta("adriana", pruebas::BaseDatos::Clave);
  conn = conexion.get();
  std::ofstream nada("/dev/null");
  std::streambuf* const pantalla = std::cout.rdbuf(nada.rdbuf());  // form and saves trace
  Entra("norte");
  catalogo.LoadCuentas();
  catalogo.LoadEstadosMex();
  catalogo.LoadModulos();
  catalogo.LoadTipoAsentamientos();
  Escenario escenario;
  MideAperturas(informe, escenario);
  MideCascada(informe, escenario);
  MideGuardado(informe);
  std::cout.rdbuf(pantalla);
  return informe.Codigo();
}
