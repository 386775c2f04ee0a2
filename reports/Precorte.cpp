#include "reports/Precorte.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <string>

#include "app/sesion.h"
#include "db/Engine.h"
#include "widgets/CurrencyField.h"
#include "widgets/date.h"

namespace {

constexpr char sqlConsolidado[] = "select * from precorteconsolidado(%i,%i);";
constexpr char sqlDetalle[] =
    "select s.clavesocioint,pr.referenciaprestamo,p.ejercicio,p.periodo, "
    "p.fechacierre,p.diasvencidos,p.porcentajeaplicado, "
    "p.factoraplicado,p.saldoprestamo,p.reservacalculada, p.interesdevengadomenoravencido, "
    "p.interesdevengadomayoravencido,p.pagocapitalenperiodo, "
    "p.pagointeresenperiodo,p.pagomoratorioenperiodo, "
    "p.bonificacionintenperiodo,p.bonificacionmorenperiodo, "
    "p.noamorvencidas,p.saldovencidomenoravencido, p.saldovencidomayoravencido,p.fechaultamorpagada, "
    "p.tipoprestamoid,p.montoprestamo,pr.fecha_vencimiento, t.tantos, "
    "saldodemovr(pr.socioid,t.tipomovimientoid,'%s',pr.prestamoid) as depositogarantia, "
    "pr.tasanormal,pr.tasa_moratoria, "
    "su.nombre||' '||su.paterno||' '|| su.materno AS nombresocio, "
    "d.calle,d.numero_ext,d.colonia,d.comunidad,d.codpostal, "
    "c.nombreciudadmex,p.ultimoabono,p.diastraspasoavencida, "
    "p.ultimoabonointeres,pr.numero_de_amor,pr.fecha_otorga, f.descripcionfinalidad, "
    "(case when p.fecha_vencimiento>p.fechacierre and p.saldoprestamo>0 then "
    "p.fecha_vencimiento-p.fechacierre else 0 end) as diasrestantes, "
    "round((pr.fecha_vencimiento-pr.fecha_otorga)/(pr.numero_de_amor*0.1/0.1)), "
    "interesdevmormenor,interesdevmormayor, "
    "(case when pr.condicionid=0 then 'Pago periodico de capital e interes' "
    "when pr.condicionid=1 then 'Pago unico de capital al vencimiento e interes periodico' "
    "when pr.condicionid=2 then 'Pago unico de capital e intereses al vencimiento' "
    "when pr.condicionid=3 then 'Revolvente' end) "
    "from precorte p,prestamos pr,socio s,tipoprestamo t, sujeto su, domicilio d, ciudadesmex c, "
    "finalidades f "
    "where p.ejercicio=%i and p.periodo=%i and pr.prestamoid=p.prestamoid "
    "and s.socioid=pr.socioid and t.tipoprestamoid = pr.tipoprestamoid "
    "and su.sujetoid=s.sujetoid and d.sujetoid=s.sujetoid "
    "and c.ciudadmexid = d.ciudadmexid and f.clavefinalidad=p.clavefinalidad "
    "order by p.diasvencidos,s.clavesocioint;";

/// What a column is, and so how it is written.
enum Clase {
  Texto,
  Referencia,  // of a loan: the apostrophe makes a spreadsheet take it as a text
  Sigla,       // a text without quotes
  Entero,
  Largo,
  Fecha,
  Importe,
  Sumado,  // an amount with a total
};

struct Columna {
  const char* titulo;
  Clase clase;
  size_t ancho;  // filled up to with blanks, in bytes
};

constexpr Columna columnas[] = {
    {"clavesocioint", Texto, 15},
    {"referenciaprestamo", Referencia, 18},
    {"ejercicio", Entero, 4},
    {"periodo", Entero, 2},
    {"fechacierre", Fecha, 0},
    {"diasvencidos", Largo, 5},
    {"porcentajeaplicado", Importe, 0},
    {"factoraplicado", Importe, 0},
    {"saldoprestamo", Sumado, 0},
    {"reservacalculada", Sumado, 0},
    {"interesdevengadomenoravencido", Sumado, 0},
    {"interesdevengadomayoravencido", Sumado, 0},
    {"pagocapitalenperiodo", Sumado, 0},
    {"pagointeresenperiodo", Sumado, 0},
    {"pagomoratorioenperiodo", Sumado, 0},
    {"bonificacionintenperiodo", Sumado, 0},
    {"bonificacionmorenperiodo", Sumado, 0},
    {"noamorvencidas", Largo, 0},
    {"saldovencidomenoravencido", Sumado, 0},
    {"saldovencidomayoravencido", Sumado, 0},
    {"fechaultamorpagada", Fecha, 0},
    {"tipoprestamoid", Sigla, 3},
    {"montoprestamo", Sumado, 0},
    {"fechavencimiento", Fecha, 0},
    {"tantos", Entero, 0},
    {"depositogarantia", Sumado, 0},
    {"tasanormal", Sumado, 0},
    {"tasamoratoria", Sumado, 0},
    {"nombre", Texto, 0},
    {"calle", Texto, 0},
    {"numero", Texto, 0},
    {"colonia", Texto, 0},
    {"comunidad", Texto, 0},
    {"codpostal", Largo, 0},
    {"ciudad", Texto, 0},
    {"ultimoabono", Fecha, 0},
    {"diastraspasoavencida", Entero, 0},
    {"ultimoabonointeres", Fecha, 0},
    {"noamortizaciones", Entero, 0},
    {"fechaotorga", Fecha, 10},
    {"finalidad", Texto, 0},
    {"diasrestantes", Largo, 0},
    {"periodo", Importe, 0},
    {"interesdevmormenor", Importe, 0},
    {"interesdevmormayor", Importe, 0},
    {"condicionpago", Texto, 0},
};

using Totales = std::array<double, std::size(columnas)>;

void AgregaAncho(std::string& renglon, std::string_view texto, size_t ancho) {
  if (texto.size() < ancho) renglon.append(ancho - texto.size(), ' ');
  renglon += texto;
}

void AgregaNumero(std::string& renglon, long numero, size_t ancho) {
  char cifras[24];
  const auto fin = std::to_chars(cifras, cifras + sizeof cifras, numero).ptr;
  AgregaAncho(renglon, std::string_view(cifras, fin - cifras), ancho);
}

/// Six decimals, as "%f" writes them.
void AgregaImporte(std::string& renglon, double importe) {
  char cifras[400];  // the longest double has some 320
  const auto fin = std::to_chars(cifras, cifras + sizeof cifras, importe, std::chars_format::fixed, 6).ptr;
  renglon.append(cifras, fin);
}

/// A field of a row. Gives its amount, 0 if it is none.
double AgregaCampo(std::string& renglon, const Columna& columna, const char* celda) {
  double importe = 0;
  switch (columna.clase) {
    case Texto:
    case Referencia:
      renglon += columna.clase == Texto ? "\"" : "\"'";
      AgregaAncho(renglon, celda, columna.ancho);
      renglon += '"';
      break;
    case Sigla:
      AgregaAncho(renglon, celda, columna.ancho);
      break;
    case Entero:
      AgregaNumero(renglon, atoi(celda), columna.ancho);
      break;
    case Largo:
      AgregaNumero(renglon, atol(celda), columna.ancho);
      break;
    case Fecha:
      AgregaAncho(renglon, std::string_view(date(celda).AsDMY()).substr(0, 10), columna.ancho);
      break;
    case Importe:
    case Sumado:
      importe = CurrencyField(FXString(celda)).asDouble();
      AgregaImporte(renglon, importe);
      break;
  }
  return importe;
}

std::string Titulos() {
  std::string renglon;
  for (const Columna& columna : columnas) renglon.append(columna.titulo) += ',';
  renglon.back() = '\n';
  return renglon;
}

/// A row, whose amounts it adds to the totals.
void AgregaFila(std::string& renglon, int fila, Totales& totales) {
  int columna = 0;
  for (const Columna& campo : columnas) {
    totales[columna] += AgregaCampo(renglon, campo, Celda(fila, columna));
    renglon += ',';
    ++columna;
  }
  renglon.back() = '\n';
}

/// The totals under their columns, up to the last one that has any.
std::string Totalizado(const Totales& totales) {
  std::string renglon;
  for (size_t columna = 0; columna < totales.size(); ++columna) {
    if (columnas[columna].clase == Sumado) AgregaImporte(renglon, totales[columna]);
    renglon += ',';
  }
  renglon.erase(renglon.find_last_not_of(',') + 1);
  return renglon += '\n';
}

}  // namespace

Sentencia SqlPrecorte(bool consolidado, const char* fecha, int anio, int mes) {
  return consolidado ? Sentencia(sqlConsolidado, anio, mes) : Sentencia(sqlDetalle, fecha, anio, mes);
}

void EscribePrecorte(Archivo& archivo) {
  archivo.Escribe(Titulos());
  Totales totales{};
  std::string renglon;
  const int filas = PQntuples(res);
  for (int fila = 0; fila < filas; ++fila) {
    renglon.clear();
    AgregaFila(renglon, fila, totales);
    archivo.Escribe(renglon);
  }
  archivo.Escribe(Totalizado(totales));
}
