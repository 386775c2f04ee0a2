// The loads of the cache.
#include <cstdio>
#include <ctime>
#include <iostream>

#include "db/Carga.h"
#include "db/Catalogo.h"
#include "framework/Sentencia.h"

std::map<int, cMonedas> Catalogo::Monedas;
std::map<int, cSocioCaja> Catalogo::SociosCaja;
bool Catalogo::bLoad = false;

namespace {

/// A step of Load: what it traces, and the load that follows, if any.
struct Paso {
  const char* traza;
  void (Catalogo::*carga)();
};

const Paso pasos[] = {
    {"0\n", nullptr},
    {"1      \n", &Catalogo::LoadMonedas},
    {"2      \n", nullptr},
    {"3      \n", nullptr},
    {"4      \n", nullptr},
    {"5      \n", nullptr},
    {"6      \n", nullptr},
    {"7      \n", nullptr},
    {"8      \n", nullptr},
    {"9      \n", nullptr},
    {"10     \n", nullptr},
    {"11     \n", nullptr},
    {"12     \n", nullptr},
    {"13     \n", nullptr},
    {"Leyendo ciudades\n", nullptr},
    {"14     \n", nullptr},
    {"15     \n", nullptr},
    {"16     \n", nullptr},
    {"17     \n", nullptr},
    {"18     \n", nullptr},
    {"19     \n", nullptr},
    {"21     ", nullptr},
    {"22     ", nullptr},
    {"23     ", nullptr},
    {"24     ", nullptr},
    {"25     ", nullptr},
    {"26     ", nullptr},
    {"27     ", nullptr},
    {"28     ", nullptr},
    {"29     ", nullptr},
    {"30     ", nullptr},
    {"31     ", nullptr},
    {"32     ", nullptr},
    {"33     ", nullptr},
    {"34     ", nullptr},
    {"36     ", nullptr},
    {"37     ", nullptr},
    {"38      ", nullptr},
};

}  // namespace

void Catalogo::Load() {
  if (bLoad) return;
  for (const Paso& paso : pasos) {
    std::cout << paso.traza << std::flush;
    if (paso.carga != nullptr) (this->*paso.carga)();
  }
  bLoad = true;
}

void Catalogo::LoadMonedas() {
  CargaEnTransaccion(Monedas, Sentencia("SELECT * FROM spsmoneda('%s');", "  "),
                     "Error al cargar catalogo de monedas.");
}

void Catalogo::LoadSociosCaja() {
  Ejecuta("select trunc(extract(epoch from max(fechaalta))) from socio;");
  const long ultima = atol(Celda(0, 0));
  if (ultima > tsSocios) {
    tsSocios = ultima;
    std::cout << "Ultima actualizacion socios --> " << TimeStampToStr(tsSocios) << std::endl;
    CargaEnTransaccion(SociosCaja, "SELECT * FROM spssociocaja();", "Error al cargar socios de la caja.");
  }
  LiberaResultado();
}

char* Catalogo::TimeStampToStr(long t) {
  static char texto[80];
  const time_t segundos = t;
  tm partes{};
  if (localtime_r(&segundos, &partes) == nullptr) partes = tm{};
  snprintf(texto, sizeof texto, "%04d-%02d-%02d %02d:%02d:%02d", partes.tm_year % 100 + 2000,
           partes.tm_mon + 1, partes.tm_mday, partes.tm_hour, partes.tm_min, partes.tm_sec);
  return texto;
}

long Catalogo::StrToTimeStamp(const char* texto) {
  std::cout << "Fecha Actual ----> " << TimeStampToStr(time(nullptr)) << std::endl
            << "Convirtiend ---> " << texto << std::endl;
  int anio = 0, mes = 0, dia = 0, hora = 0, minuto = 0, segundo = 0;
  sscanf(texto, "%d-%d-%d %d:%d:%d", &anio, &mes, &dia, &hora, &minuto, &segundo);
  std::cout << "Año " << anio - 100L << std::endl
            << "Mes " << mes << std::endl
            << "Dia " << dia << std::endl
            << "Hora " << hora << std::endl
            << "Min. " << minuto << std::endl
            << "Sec. " << segundo << std::endl;
  return 1099594793;
}
