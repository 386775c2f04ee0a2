// The loads of the cache.
#include <malloc.h>

#include <cstdio>
#include <ctime>
#include <iostream>

#include "db/Carga.h"
#include "db/Catalogo.h"
#include "framework/Sentencia.h"

std::map<int, cCatalogo_Ctas> Catalogo::Catalogo_Ctas;
std::map<int, cMonedas> Catalogo::Monedas;
std::map<int, cTipoDepreciacion> Catalogo::TipoDepreciacion;
std::map<int, cActivo> Catalogo::Activos;
std::map<int, cTipoPrestamo> Catalogo::TipoPrestamo;
std::map<int, cTipoMovimiento> Catalogo::TipoMovimiento;
std::map<int, cBanco> Catalogo::Bancos;
std::map<int, cTipo_Garantia> Catalogo::Tipo_Garantia;
std::map<int, cEstados_Credito> Catalogo::Estados_Credito;
std::map<int, cFinalidades> Catalogo::Finalidades;
std::map<int, cTipoMoviBanco> Catalogo::TipoMoviBancos;
std::map<int, cTipoInversion> Catalogo::TipoInversiones;
std::map<int, cEstadoMex> Catalogo::EstadosMex;
std::map<int, cCiudadMex> Catalogo::CiudadesMex;
std::map<int, cTipoUsuario> Catalogo::TiposUsuarios;
std::map<int, cTipoSocio> Catalogo::TiposSocios;
std::map<int, cModulo> Catalogo::Modulos;
std::map<int, cUsuario> Catalogo::Usuarios;
std::map<int, cSocioCaja> Catalogo::SociosCaja;
std::map<int, cCalculo> Catalogo::Calculos;
std::map<int, cSujeto> Catalogo::Sujetos;
std::map<int, cAsesor> Catalogo::Asesores;
std::map<int, cUdis> Catalogo::Udis;
std::map<int, cInpc> Catalogo::Inpc;
std::map<int, cRecargos> Catalogo::Recargos;
std::map<int, cTipoAsentamiento> Catalogo::TipoAsentamientos;
std::map<int, cInabil> Catalogo::Inabiles;
std::map<int, cConceptoScoring> Catalogo::ConceptosScoring;
std::map<int, cTipoTasaInteres> Catalogo::TipoTasaInteres;
std::map<int, cTasaInteres> Catalogo::TasaInteres;

namespace {

/// A step of Load: what it traces, and the load that follows, if any.
struct Paso {
  const char* traza;
  void (Catalogo::*carga)();
};

const Paso pasos[] = {
    {"0\n", &Catalogo::LoadCuentas},
    {"1      \n", &Catalogo::LoadMonedas},
    {"2      \n", &Catalogo::LoadTipoDepreciacion},
    {"3      \n", &Catalogo::LoadActivos},
    {"4      \n", &Catalogo::LoadTipoPrestamo},
    {"5      \n", &Catalogo::LoadTipoMovimiento},
    {"6      \n", &Catalogo::LoadBancos},
    {"7      \n", &Catalogo::LoadTipoGarantia},
    {"8      \n", &Catalogo::LoadEstadosCredito},
    {"9      \n", &Catalogo::LoadFinalidades},
    {"10     \n", &Catalogo::LoadTipoMoviBancos},
    {"11     \n", &Catalogo::LoadTipoInversiones},
    {"12     \n", &Catalogo::LoadEstadosMex},
    {"13     \n", nullptr},
    {"Leyendo ciudades\n", &Catalogo::LoadCiudadesMex},
    {"14     \n", &Catalogo::LoadTiposUsuarios},
    {"15     \n", &Catalogo::LoadTiposSocios},
    {"16     \n", &Catalogo::LoadModulos},
    {"17     \n", &Catalogo::LoadUsuarios},
    {"18     \n", &Catalogo::LoadCalculos},
    {"19     \n", &Catalogo::LoadTipoPromociones},
    {"21     ", &Catalogo::LoadAsesor},
    {"22     ", nullptr},
    {"23     ", &Catalogo::LoadColonias},
    {"24     ", &Catalogo::LoadMotivosBaja},
    {"25     ", &Catalogo::LoadClasificacionCreditos},
    {"26     ", &Catalogo::LoadUdis},
    {"27     ", &Catalogo::LoadInpc},
    {"28     ", &Catalogo::LoadRecargos},
    {"29     ", &Catalogo::LoadTipoAcreditadosR},
    {"30     ", &Catalogo::LoadTipoAsentamientos},
    {"31     ", &Catalogo::LoadInabiles},
    {"32     ", &Catalogo::LoadGrupos},
    {"33     ", &Catalogo::LoadOcupaciones},
    {"34     ", &Catalogo::LoadConceptosScoring},
    {"36     ", &Catalogo::LoadTipoTasa},
    {"37     ", &Catalogo::LoadTasas},
    {"38      ", nullptr},
};

}  // namespace

void Catalogo::Load() {
  if (bLoad) return;
  for (const Paso& paso : pasos) {
    std::cout << paso.traza << std::flush;
    if (paso.carga != nullptr) (this->*paso.carga)();
  }
  malloc_trim(0);  // what the answers took goes back to the system
  bLoad = true;
}

void Catalogo::LoadCuentas() {
  Ejecuta("select trunc(extract(epoch from max(fecha_estado))) from catalogo_ctas;");
  tsCuentas = atol(Celda(0, 0));
  LiberaResultado();
  CargaEnTransaccion(Catalogo_Ctas, "SELECT * FROM spscatalogo_ctas('  ');",
                     "Error al cargar catalogo de cuentas.");
}

void Catalogo::LoadMonedas() {
  CargaEnTransaccion(Monedas, "SELECT * FROM spsmoneda('  ');", "Error al cargar catalogo de monedas.");
}

void Catalogo::LoadTipoDepreciacion() {
  CargaEnTransaccion(TipoDepreciacion, "SELECT * FROM spsdepreciacion(0);",
                     "Error al cargar catalogo de tipo de depreciaciones.");
}

void Catalogo::LoadActivos() {
  CargaEnTransaccion(Activos, "SELECT * FROM spsactivo(0);", "Error al cargar catalogo de activos.");
}

void Catalogo::LoadTipoPrestamo() {
  CargaEnTransaccion(TipoPrestamo, Trazada("SELECT * FROM spstipoprestamo('   ');"),
                     "Error al cargar catalogo de activos.");
}

void Catalogo::LoadTipoMovimiento() {
  CargaEnTransaccion(TipoMovimiento, Trazada("SELECT * FROM spstipomovimiento('  ');"),
                     "Error al cargar catalogo de tipos de movimientos.");
}

void Catalogo::LoadBancos() {
  CargaEnTransaccion(Bancos, Trazada("SELECT * FROM spsbanco('  ');"),
                     "Error al cargar catalogo de monedas.");
}

void Catalogo::LoadTipoGarantia() {
  CargaEnTransaccion(Tipo_Garantia, "SELECT * FROM spstipo_garantia('  ');",
                     "Error al cargar catalogo de tipos de garantias.");
}

void Catalogo::LoadEstadosCredito() {
  CargaEnTransaccion(Estados_Credito, "SELECT * FROM spsestados_credito('  ');",
                     "Error al cargar catalogo de estados de crédito.");
}

void Catalogo::LoadFinalidades() {
  CargaEnTransaccion(Finalidades, "SELECT * FROM spsfinalidades('  ');",
                     "Error al cargar catalogo de finalidades.");
}

void Catalogo::LoadTipoMoviBancos() {
  CargaEnTransaccion(TipoMoviBancos, "SELECT * FROM spstipomovibanco('  ');",
                     "Error al cargar catalogo de tipo de movimientos bancarios.");
}

void Catalogo::LoadTipoInversiones() {
  CargaEnTransaccion(TipoInversiones, "SELECT * FROM spstipoinversion('  ');",
                     "Error al cargar catalogo de tipo de inversiones.");
}

void Catalogo::LoadEstadosMex() { Carga(EstadosMex, Trazada("SELECT * FROM spsestadomex(0);")); }

void Catalogo::LoadCiudadesMex() {
  CargaEnTransaccion(CiudadesMex, "SELECT * FROM spsciudadmex(0) order by nombreciudadmex;",
                     "Error al cargar catalogo de ciudad.");
}

void Catalogo::LoadTiposUsuarios() {
  CargaEnTransaccion(TiposUsuarios, "SELECT * FROM spstipousuario('  ');",
                     "Error al cargar catalogo de tipos de usuario.");
}

void Catalogo::LoadTiposSocios() {
  CargaEnTransaccion(TiposSocios, "SELECT * FROM spstiposocio('  ');",
                     "Error al cargar catalogo de tipos de socios.");
}

void Catalogo::LoadModulos() {
  CargaEnTransaccion(Modulos, "SELECT * FROM spsmodulo('  ');", "Error al cargar catalogo de modulos.");
}

void Catalogo::LoadUsuarios() {
  CargaEnTransaccion(Usuarios, "SELECT * FROM spsusuario('  ');", "Error al cargar catalogo de usuarios.");
}

void Catalogo::LoadCalculos() {
  CargaEnTransaccion(Calculos, "SELECT * FROM spscalculo(0);", "Error al cargar catalogo de calculos.");
}

void Catalogo::LoadTipoPromociones() {
  Carga(TipoPromociones, Trazada("SELECT * FROM spstipopromocion(0);"));
}

void Catalogo::LoadAsesor() {
  CargaEnTransaccion(Asesores, "SELECT * FROM spsasesor(0);", "Error al cargar catalogo de asesor.");
}

void Catalogo::LoadColonias() { Carga(Colonias, Trazada("SELECT * FROM spscolonia(0);")); }

void Catalogo::LoadMotivosBaja() { Carga(MotivosBaja, Trazada("SELECT * FROM spsmotivobaja(0);")); }

void Catalogo::LoadClasificacionCreditos() {
  Carga(ClasificacionCreditos, Trazada("SELECT * FROM spsclasificacioncredito(0);"));
}

void Catalogo::LoadUdis() { Carga(Udis, Trazada("SELECT * FROM spsudis('1900-01-01');")); }

void Catalogo::LoadInpc() { Carga(Inpc, Trazada("SELECT * FROM spsinpc(0,0);")); }

void Catalogo::LoadRecargos() { Carga(Recargos, Trazada("SELECT * FROM spsrecargos(0,0);")); }

void Catalogo::LoadTipoAcreditadosR() {
  Carga(TipoAcreditadosR, Trazada("SELECT * FROM spstipoacreditador(0);"));
  for (int fila = 0; fila < TipoAcreditadosR.NumElementos(); ++fila) std::cout << "Inserto Tipo Acreditado R";
  std::cout << std::flush;
}

void Catalogo::LoadTipoAsentamientos() {
  Carga(TipoAsentamientos, Trazada("SELECT * FROM spstipoasentamiento(0);"));
}

void Catalogo::LoadInabiles() { Carga(Inabiles, Trazada("SELECT * FROM inabil;")); }

void Catalogo::LoadGrupos() { Carga(Grupos, Trazada("SELECT * FROM spsgrupo(0);")); }

void Catalogo::LoadOcupaciones() { Carga(Ocupaciones, Trazada("SELECT * FROM spsocupacion(0);")); }

void Catalogo::LoadConceptosScoring() { Carga(ConceptosScoring, "SELECT * FROM spsconceptoscoring(0);"); }

void Catalogo::LoadTipoTasa(const char* sql) {
  CargaEnTransaccion(TipoTasaInteres, Sentencia::SinArgumentos(sql),
                     "Error al cargar catalogo de tipo tasas.", ConexionDeLectura());
}

void Catalogo::LoadTasas(const char* sql) {
  CargaEnTransaccion(TasaInteres, Trazada(Sentencia::SinArgumentos(sql)),
                     "Error al cargar catalogo de tasas.", ConexionDeLectura());
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

void Catalogo::LoadSociosCajaF(const char* filtro) {
  CargaEnTransaccion(SociosCaja, Trazada(Sentencia("SELECT * FROM spssociocajaf('%s');", filtro)),
                     "Error al cargar socios de la caja.");
}

void Catalogo::LoadSujetos(const char* filtro) {
  Carga(Sujetos, Trazada(Sentencia("SELECT * FROM spssujetos('%s');", filtro)));
}

void Catalogo::LoadCiudadesXEdo(int estado) {
  Carga(CiudadesMex, Sentencia("SELECT * FROM spsciudadxedo(%i) order by nombreciudadmex;", estado));
}

void Catalogo::LoadColoniaCD(long ciudad) {
  Carga(ColoniasFiltro, Trazada(Sentencia("SELECT * FROM spscolonias(%li);", ciudad)));
}

void Catalogo::LoadColoniaCP(long cp) {
  Carga(ColoniasFiltro, Trazada(Sentencia("SELECT * FROM spscoloniacp(%li);", cp)));
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
