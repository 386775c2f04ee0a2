#include "operaciones/Tabla.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <utility>

#include "operaciones/Plegado.h"

namespace {

/// The number that is all of `texto`; what is none stands ahead of all numbers.
double ComoNumero(const char* texto) {
  const char* const fin = texto + strlen(texto);
  double valor = 0;
  const auto [resto, error] = std::from_chars(texto, fin, valor);
  return error == std::errc() && resto == fin ? valor : -HUGE_VAL;
}

/// yyyymmdd of "dd/mm/yyyy", with what follows it as a fraction of a day; -1 for anything else.
double ComoFecha(const char* texto) {
  int dia = 0, mes = 0, anio = 0, hora = 0, minuto = 0;
  double segundo = 0;
  if (sscanf(texto, "%2d/%2d/%4d %2d:%2d:%lf", &dia, &mes, &anio, &hora, &minuto, &segundo) < 3) return -1;
  return anio * 10000.0 + mes * 100 + dia + ((hora * 60 + minuto) * 60 + segundo) / 100000;
}

/// Sorts `filas` by the key that `clave` gives of each.
template <class Clave>
void OrdenaPor(std::vector<int>& filas, bool descendente, Clave clave) {
  std::vector<decltype(clave(0))> claves;
  claves.reserve(filas.size());
  for (size_t fila = 0; fila < filas.size(); ++fila) claves.push_back(clave(static_cast<int>(fila)));
  std::stable_sort(filas.begin(), filas.end(), [&](int una, int otra) {
    return descendente ? claves[otra] < claves[una] : claves[una] < claves[otra];
  });
}

bool EsNumero(std::string_view valor) {
  if (!valor.empty() && (valor[0] == '-' || valor[0] == '+')) valor.remove_prefix(1);
  bool cifras = false, punto = false;
  for (const char c : valor) {
    if (c >= '0' && c <= '9') {
      cifras = true;
    } else if (c != '.' || std::exchange(punto, true)) {
      return false;
    }
  }
  return cifras;
}

const char* Motivo(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return "No hay lugar en el disco.";
    case EFBIG:
      return "El archivo es demasiado grande.";
    case EACCES:
    case EPERM:
    case EROFS:
      return "No tiene permiso de escribir ahí.";
    case ENOENT:
    case ENOTDIR:
      return "Esa carpeta no existe.";
    case EISDIR:
      return "Es una carpeta.";
    default:
      return strerror(error);
  }
}

void AgregaCsv(std::string& csv, std::string_view valor) {
  const std::string limpio = SinFormula(valor);
  if (limpio.find_first_of(",;\"\r\n\t'") == std::string::npos && limpio.find_first_of(" ") != 0) {
    csv += limpio;
    return;
  }
  csv += '"';
  for (const char c : limpio) {
    if (c == '"') csv += '"';
    csv += c;
  }
  csv += '"';
}

}  // namespace

void Tabla::Vacia() {
  textos.clear();
  inicios.clear();
  ordenadas.clear();
  visibles.clear();
  plegadas.clear();
}

void Tabla::Agrega(std::string_view texto) {
  texto = texto.substr(0, texto.find_last_not_of(' ') + 1);
  inicios.push_back(static_cast<uint32_t>(textos.size()));
  textos.append(texto);
  textos += '\0';
}

void Tabla::Agrega(long valor) {
  char cifras[24];
  const auto fin = std::to_chars(std::begin(cifras), std::end(cifras), valor).ptr;
  Agrega(std::string_view(cifras, fin - cifras));
}

void Tabla::Agrega(float valor) {
  char cifras[64];
  const auto fin = std::to_chars(std::begin(cifras), std::end(cifras), valor, std::chars_format::fixed).ptr;
  Agrega(std::string_view(cifras, fin - cifras));
}

void Tabla::Agrega(double valor) {
  char cifras[512];
  const auto fin = std::to_chars(std::begin(cifras), std::end(cifras), valor, std::chars_format::fixed).ptr;
  Agrega(std::string_view(cifras, fin - cifras));
}

void Tabla::Agrega(const date& valor) { Agrega(FaltaFecha(valor) ? "" : valor.AsDMY()); }

void Tabla::Ordena(int columna, bool alReves) {
  orden = columna;
  descendente = alReves;
  ordenadas.resize(Filas());
  std::iota(ordenadas.begin(), ordenadas.end(), 0);
  if (columna >= 0) {
    const auto celda = [&](int fila) { return Celda(fila, columna); };
    switch (columnas[columna].tipo) {
      case Numero:
        OrdenaPor(ordenadas, descendente, [&](int fila) { return ComoNumero(celda(fila)); });
        break;
      case Fecha:
        OrdenaPor(ordenadas, descendente, [&](int fila) { return ComoFecha(celda(fila)); });
        break;
      case Texto:
        OrdenaPor(ordenadas, descendente, [&](int fila) { return ClaveDeOrden(celda(fila)); });
        break;
    }
  }
  Selecciona();
}

void Tabla::Filtra(std::string_view texto) {
  const std::string plegado = Plegado(texto);
  palabras.clear();
  for (size_t lugar = 0; lugar < plegado.size();) {
    const size_t fin = std::min(plegado.find(' ', lugar), plegado.size());
    if (fin > lugar) palabras.push_back(plegado.substr(lugar, fin - lugar));
    lugar = fin + 1;
  }
  Selecciona();
}

void Tabla::Rehace() { Ordena(orden < NumColumnas() ? orden : -1, descendente); }

void Tabla::Selecciona() {
  if (palabras.empty()) {
    visibles = ordenadas;
    return;
  }
  if (plegadas.empty()) {
    plegadas.reserve(Filas());
    for (int fila = 0; fila < Filas(); ++fila) {
      const size_t primera = inicios[fila * columnas.size()];
      const size_t siguiente = fila + 1 < Filas() ? inicios[(fila + 1) * columnas.size()] : textos.size();
      plegadas.push_back(Plegado(std::string_view(textos).substr(primera, siguiente - primera)));
    }
  }
  visibles.clear();
  for (const int fila : ordenadas) {
    if (std::all_of(palabras.begin(), palabras.end(), [&](const std::string& palabra) {
          return plegadas[fila].find(palabra) != std::string::npos;
        }))
      visibles.push_back(fila);
  }
}

std::string SinFormula(std::string_view valor) {
  if (valor.empty() || EsNumero(valor)) return std::string(valor);
  const size_t primero = valor.find_first_not_of(" \t\r\n");
  if (primero == std::string_view::npos) return std::string(valor);
  const bool formula = strchr("=+-@", valor[primero]) != nullptr || strchr("\t\r\n", valor[0]) != nullptr;
  return formula ? "'" + std::string(valor) : std::string(valor);
}

std::string Tabla::Csv(const std::vector<int>& orden) const {
  std::string csv = "\xEF\xBB\xBF";
  const auto renglon = [&](auto celda) {
    bool primera = true;
    for (const int columna : orden) {
      if (!std::exchange(primera, false)) csv += ',';
      AgregaCsv(csv, celda(columna));
    }
    csv += "\r\n";
  };
  renglon([&](int columna) { return std::string_view(columnas[columna].titulo); });
  for (const int fila : visibles)
    renglon([&](int columna) { return std::string_view(Celda(fila, columna)); });
  return csv;
}

std::string Tabla::Tabulado(const std::vector<int>& cuales, const std::vector<int>& orden) const {
  std::string texto;
  for (const int visible : cuales) {
    bool primera = true;
    for (const int columna : orden) {
      if (!std::exchange(primera, false)) texto += '\t';
      std::string celda = SinFormula(Celda(visibles[visible], columna));
      std::replace_if(
          celda.begin(), celda.end(), [](char c) { return strchr("\t\r\n", c) != nullptr; }, ' ');
      texto += celda;
    }
    texto += '\n';
  }
  return texto;
}

std::string EscribeArchivo(const std::string& nombre, const std::string& texto) {
  const auto queja = [&] { return "No se pudo escribir " + nombre + ":\n" + Motivo(errno); };
  char real[PATH_MAX];
  const std::string destino =
      realpath(nombre.c_str(), real) != nullptr ? real : nombre;  // not the link to it
  std::string temporal = destino + ".XXXXXX";
  const int archivo = mkstemp(temporal.data());
  if (archivo < 0) return queja();
  const mode_t mascara = umask(0);
  umask(mascara);
  struct stat anterior {};
  const mode_t permisos = stat(destino.c_str(), &anterior) == 0 ? anterior.st_mode & 07777 : 0666 & ~mascara;
  bool bien = fchmod(archivo, permisos) == 0;
  for (size_t escrito = 0; bien && escrito < texto.size();) {
    const ssize_t n = write(archivo, texto.data() + escrito, texto.size() - escrito);
    bien = n > 0 || (n < 0 && errno == EINTR);
    if (n > 0) escrito += n;
  }
  bien = bien && fsync(archivo) == 0;
  std::string error = bien ? "" : queja();
  if (close(archivo) != 0 && error.empty()) error = queja();
  if (error.empty() && rename(temporal.c_str(), destino.c_str()) != 0) error = queja();
  if (!error.empty()) unlink(temporal.c_str());
  return error;
}
