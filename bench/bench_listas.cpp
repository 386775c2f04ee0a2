// A long catalogue as a list: opened, sorted, filtered, against the toolkit's bare list with the same texts
// in its columns, and how it grows; and a page of a long log against the bare select.
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "app/sesion.h"
#include "bench/Cuentas.h"
#include "bench/Medida.h"
#include "db/Engine.h"
#include "operaciones/Catalogos.h"
#include "operaciones/MarcoDeTabla.h"
#include "tests/support/Pantalla.h"
#include "tests/support/Servidor.h"

namespace {

constexpr int Pocas = 2000;
constexpr int Muchas = 20000;
constexpr int PorNombre = 3;  // the column of the names
constexpr int Vueltas = 11;
constexpr int Lineas = 1000000;

const Catalogado& ListaDeCuentas() {
  for (const Catalogado& uno : Catalogados())
    if (strcmp(uno.nombre, "Cuentas contables") == 0) return uno;
  abort();
}

/// The list in a window of its own.
struct Listado : FXDialogBox {
  Listado()
      : FXDialogBox(pruebas::App().getRootWindow(), "", DECOR_TITLE | DECOR_BORDER, 0, 0, 780, 470),
        marco(new MarcoDeTabla(this, nullptr, 0)) {
    marco->Pon(ListaDeCuentas().nombre, ListaDeCuentas().Hace());
  }
  void Ordena() { marco->Lista()->Ordena(PorNombre); }
  void Filtra() { marco->Lista()->Filtra("d"); }

  MarcoDeTabla* marco;
};

/// A row as the bare list takes it: its cells between tabs.
std::vector<FXString> Renglones() {
  const Tabla tabla = ListaDeCuentas().Hace();
  std::vector<FXString> renglones;
  for (int fila = 0; fila < tabla.Filas(); ++fila) {
    FXString renglon;
    for (int columna = 0; columna < tabla.NumColumnas(); ++columna)
      renglon += FXString(columna == 0 ? "" : "\t") + tabla.Celda(fila, columna);
    renglones.push_back(renglon);
  }
  return renglones;
}

/// The same as the plainest program makes them of the accounts.
std::vector<FXString> RenglonesLlanos() {
  std::vector<FXString> renglones;
  char texto[512];
  for (const auto& [fila, c] : Catalogo::Catalogo_Ctas) {
    snprintf(texto, sizeof texto,
             "%s\t%s\t%s\t%s\t%s\t%s\t%02d/%02d/%04d\t%02d/%02d/%04d\t%s\t%g\t%.2f\t%.2f\t%.2f",
             c.getCuentaID(), c.getCuentaAcumula(), c.getIdentificacion(), c.getCuentaNombre(),
             c.getTipo_Cta(), c.getEstado_Cta(), c.getFecha_Estado().day(), c.getFecha_Estado().month(),
             c.getFecha_Estado().year(), c.getFecha_Ult_Mov().day(), c.getFecha_Ult_Mov().month(),
             c.getFecha_Ult_Mov().year(), c.getNaturaleza(), c.getDigito_Agrupador(), c.getSaldo_Inic_Ejer(),
             c.getCargos_Acum_Ejer(), c.getAbonos_Acum_Ejer());
    renglones.emplace_back(texto);
  }
  return renglones;
}

FXString Nombre(const FXIconItem* renglon) { return renglon->getText().section('\t', PorNombre); }

/// The bare list in the same window.
struct ListadoLlano : FXDialogBox {
  ListadoLlano(const std::vector<Tabla::Columna>& columnas, const std::vector<FXString>& renglones)
      : FXDialogBox(pruebas::App().getRootWindow(), "", DECOR_TITLE | DECOR_BORDER, 0, 0, 780, 470),
        renglones(renglones) {
    auto* arriba = new FXHorizontalFrame(this, LAYOUT_FILL_X);
    new FXTextField(arriba, 30);
    auto* abajo = new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_SIDE_BOTTOM);
    for (const char* rotulo : {"Releer", "Copiar", "CSV", "Reporte", "Imprimir", "Cerrar"})
      new FXButton(abajo, rotulo);
    lista = new FXIconList(this, nullptr, 0, ICONLIST_DETAILED | ICONLIST_EXTENDEDSELECT | LAYOUT_FILL);
    for (const Tabla::Columna& columna : columnas) lista->appendHeader(columna.titulo.c_str(), nullptr, 90);
    for (const FXString& renglon : renglones) lista->appendItem(renglon);
  }
  void Ordena() {
    lista->setSortFunc(
        [](const FXIconItem* una, const FXIconItem* otra) { return compare(Nombre(una), Nombre(otra)); });
    lista->sortItems();
  }
  void Filtra() {
    lista->clearItems();
    for (const FXString& renglon : renglones)
      if (FXString(renglon).lower().find('d') >= 0) lista->appendItem(renglon);
  }

  const std::vector<FXString>& renglones;
  FXIconList* lista;
};

template <class Ventana>
void Pinta(Ventana& ventana) {
  ventana.create();
  ventana.show(PLACEMENT_SCREEN);
  ventana.layout();
  pruebas::App().runWhileEvents();
}

/// Seconds of `accion` on the window that `abre` makes, painted again; null for those of the opening.
template <class Abre, class Accion>
double Tarda(Abre abre, Accion accion) {
  decltype(abre()) ventana;
  const double apertura = medida::SegundosDeProcesador([&] {
    ventana = abre();
    Pinta(*ventana);
  });
  const double hecho = medida::SegundosDeProcesador([&] {
    if (accion(*ventana)) ventana->layout(), pruebas::App().runWhileEvents();
  });
  return hecho > 1e-5 ? hecho : apertura;
}

auto Nuestro() { return std::make_unique<Listado>(); }

const auto abrir = [](auto&) { return false; };
const auto ordenar = [](auto& ventana) { return ventana.Ordena(), true; };
const auto filtrar = [](auto& ventana) { return ventana.Filtra(), true; };

double NuestroDe(int cuantas) {
  PonCarta(cuantas);
  return Tarda(Nuestro, abrir);
}

void MideLista(medida::Informe& informe) {
  PonCarta(Muchas);
  const std::vector<FXString> renglones = Renglones();
  const std::vector<Tabla::Columna> columnas = ListaDeCuentas().Hace().Columnas();
  const auto llano = [&] { return std::make_unique<ListadoLlano>(columnas, renglones); };
  std::vector<FXString> hechos;
  const auto llanoDelRegistro = [&] {
    hechos = RenglonesLlanos();
    return std::make_unique<ListadoLlano>(columnas, hechos);
  };
  informe.Escribe(
      "abrir la lista de 20000 cuentas",
      medida::Compara(
          Vueltas, [] { return Tarda(Nuestro, abrir); }, [&] { return Tarda(llanoDelRegistro, abrir); }),
      1.3);
  informe.Escribe("abrirla, los textos de la llana ya hechos",
                  medida::Compara(
                      Vueltas, [] { return Tarda(Nuestro, abrir); }, [&] { return Tarda(llano, abrir); }),
                  1.3);
  informe.Escribe("ordenarla por nombre",
                  medida::Compara(
                      Vueltas, [] { return Tarda(Nuestro, ordenar); }, [&] { return Tarda(llano, ordenar); }),
                  1.3);
  informe.Escribe("filtrarla por una letra",
                  medida::Compara(
                      Vueltas, [] { return Tarda(Nuestro, filtrar); }, [&] { return Tarda(llano, filtrar); }),
                  1.3);
  informe.Escribe("abrir la lista de diez veces las cuentas",
                  medida::Compara(
                      Vueltas, [] { return NuestroDe(Muchas); }, [] { return NuestroDe(Pocas); }),
                  12);
}

/// Seconds of a statement, its answer fetched.
double Pide(PGconn* conexion, const char* sql) {
  return medida::Segundos([&] {
    PGresult* const respuesta = PQexec(conexion, sql);
    if (PQntuples(respuesta) != 500) abort();
    PQclear(respuesta);
  });
}

void MideBitacora(medida::Informe& informe) {
  pruebas::BaseDatos base;
  base.Ejecuta(
      "insert into norte.bitacora (tabla, clave, operacion, usuario) select 'tabla_' || n % 50, n::text, "
      "'UPDATE', 'nadie' from generate_series(1, " +
      std::to_string(Lineas) + ") n; analyze norte.bitacora");
  const pruebas::Conexion conexion = base.Conecta("adriana", pruebas::BaseDatos::Clave);
  const pruebas::Servidor& servidor = pruebas::Servidor::Unico();
  const pruebas::Conexion administrador = base.Conecta(servidor.usuario(), servidor.clave());
  PQclear(PQexec(conexion.get(), "SET search_path TO norte"));
  informe.Escribe(
      "la primera página de una bitácora de un millón de líneas",
      medida::Compara(
          Vueltas * 3,
          [&] { return Pide(conexion.get(), "SELECT * FROM spsbitacora('','','','tabla_7','','',0);"); },
          [&] {
            return Pide(
                administrador.get(),
                "SELECT bitacoraid, to_char(momento, 'DD/MM/YYYY HH24:MI:SS'), usuario, operacion, tabla, "
                "clave, "
                "clave_anterior, direccion, aplicacion FROM norte.bitacora WHERE tabla = 'tabla_7' ORDER BY "
                "bitacoraid DESC LIMIT 500;");
          }),
      1.3);
}

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  MideLista(informe);
  MideBitacora(informe);
  return informe.Codigo();
}
