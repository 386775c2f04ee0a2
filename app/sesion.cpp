#include "app/sesion.h"

#include <iostream>

#include "catalogs/people/cPermisosModulos.h"
#include "db/Catalogo.h"
#include "db/Engine.h"
#include "widgets/TextoAcotado.h"

PGconn* conn = nullptr;
PGconn* connR = nullptr;
bool bLocal = true;
PGresult* res = nullptr;

// Built ahead of main in this order, and ahead of the class records of the windows: the linker would place
// those first.
constexpr int antesQueLasVentanas = 1000;
[[gnu::init_priority(antesQueLasVentanas)]] date gFecha;
[[gnu::init_priority(antesQueLasVentanas)]] Catalogo catalogo;
[[gnu::init_priority(antesQueLasVentanas)]] date gFechaCobroIVA;
[[gnu::init_priority(antesQueLasVentanas)]] cPermisosModulos permite;
[[gnu::init_priority(antesQueLasVentanas)]] Engine engine;

bool IsConectado = false;
bool IsEditable = false;
char Version[21] = "0.0.7";
char gsMsgServidor[512] = "";
bool mdiArray[RanurasMdi + 1] = {};
static char cincoBlancos[] = "     ";
char* sleft = cincoBlancos;
long tmplong = 0;

char glogin[21] = "";
char gsucursal[80] = "";
char gSchema[31] = "";
char gHost[51] = "";
char gPort[6] = "";
char gDbname[31] = "";

char serie_user[3] = "";
char gcuentacaja[25] = "";
char gImpresoraCaja[51] = "";
char gImpresoraReporte[51] = "";
int gReportesLaser = 0;
char gLetraChicaLaser[51] = "";

char gsucid[5] = "";
char gnombrecaja[81] = "";
char gGerente[81] = "";
char gPresidenteAdmon[81] = "";
char gContador[81] = "";
char gDireccionCaja[101] = "";
char gContadorSucursal[81] = "";
char gNivelOperaciones[81] = "";
int iLineasIniciales = 0;
int gCalculaISRInversion = 0;
double gInversionExenta = 0;
double gPorcentajeISRInversion = 0;
char gccpresidente[51] = "";
char gccvicepresidente[51] = "";
char gccoficial[51] = "";
char gccanalista[51] = "";
char gccsecretario[51] = "";
int gBonificaEnPagoPuntual = 0;
double gPorcentajeBonifica = 0;
int gPreguntaPeriodo = 0;
int gSabana = 0;
double gIVA = 0;
int gReciboConQuery = 0;
int gAltaSucursales = 0;
int gOrdenAval = 0;
int iLineasFinales = 0;
char gVersion[21] = "";
int gRetiraReciprocidad = 0;
int gNivel = 0;
int gModificarInversion = 0;
int gFormatoPoliza = 0;
char formatocuenta[25] = "";
long gCiudadMexID = 0;
int gfoliopdf = 0;
int gretirainteresinversion = 0;
double gPorIde = 0;
double gIdeExento = 0;
int gModificaTasas = 0;
int gInteresAmortiza = 0;
int gComisioncredito = 0;
double gPorcomision = 0;
int gNconcurrencias = 0;
int gdiaspagoinversion = 0;
int gperiodopagoinversion = 0;
int gabonointeres = 0;
int gManejochequegrupal = 0;
int gManejoPagoAmortizacion = 0;
int gusomultisucursal = 0;
int gManejoPagoSeguro = 0;
int gManejoplazoinversion = 0;
int gManejocargosprestamo = 0;
int gCortecajaagrupado = 0;
char gclientesocio[10] = "";
char gpggrupodefault[21] = "";
int gImprimeSaldos = 0;

void msgservidor(void*, const char* mensaje) {
  CopiaTexto(gsMsgServidor, mensaje);
  std::cout << mensaje << std::endl;
}
