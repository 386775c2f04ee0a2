// The session: plain variables shared by the whole program.
//
// The login fills them (db/Apertura.cpp holds the table of the institution's row) and nothing clears them on
// disconnect. Widths are those of the arrays, terminator included; every text is stored through CopiaTexto,
// so a longer one is cut at a whole character.
#pragma once

#include "db/Conexion.h"
#include "widgets/date.h"

class Catalogo;
class Engine;
class cPermisosModulos;

// Objects of the whole process.
extern Catalogo catalogo;
extern cPermisosModulos permite;
extern Engine engine;

extern bool IsConectado;
extern bool IsEditable;  // may the preview's text be edited; false for the whole run
extern char Version[21];
extern char gsMsgServidor[512];  // the server's last notice

// Open child forms. An option opens its form only while the slot that it tests is free. The array has one
// place more than its 100 slots because one form takes slot 100.
constexpr int RanurasMdi = 100;
extern bool mdiArray[RanurasMdi + 1];

extern date gFecha;  // the date that the calendar hands back
extern date gFechaCobroIVA;
extern char* sleft;
extern long tmplong;

// Who is connected, and where.
extern char glogin[21];
extern char gsucursal[80];
extern char gSchema[31];
extern char gHost[51];
extern char gPort[6];  // port of the institution's web application, not of the database
extern char gDbname[31];

// The user's working parameters.
extern char serie_user[3];
extern char gcuentacaja[25];
extern char gImpresoraCaja[51];
extern char gImpresoraReporte[51];
extern int gReportesLaser;
extern char gLetraChicaLaser[51];

// The institution's row.
extern char gsucid[5];
extern char gnombrecaja[81];
extern char gGerente[81];
extern char gPresidenteAdmon[81];
extern char gContador[81];
extern char gDireccionCaja[101];
extern char gContadorSucursal[81];
extern char gNivelOperaciones[81];
extern int iLineasIniciales;
extern int gCalculaISRInversion;
extern double gInversionExenta;
extern double gPorcentajeISRInversion;
extern char gccpresidente[51];
extern char gccvicepresidente[51];
extern char gccoficial[51];
extern char gccanalista[51];
extern char gccsecretario[51];
extern int gBonificaEnPagoPuntual;
extern double gPorcentajeBonifica;
extern int gPreguntaPeriodo;
extern int gSabana;
extern double gIVA;
extern int gReciboConQuery;
extern int gAltaSucursales;
extern int gOrdenAval;
extern int iLineasFinales;
extern char gVersion[21];
extern int gRetiraReciprocidad;
extern int gNivel;
extern int gModificarInversion;
extern int gFormatoPoliza;
extern char formatocuenta[25];
extern long gCiudadMexID;
extern int gfoliopdf;
extern int gretirainteresinversion;
extern double gPorIde;
extern double gIdeExento;
extern int gModificaTasas;
extern int gInteresAmortiza;
extern int gComisioncredito;
extern double gPorcomision;
extern int gNconcurrencias;  // sessions that one user may have open
extern int gdiaspagoinversion;
extern int gperiodopagoinversion;
extern int gabonointeres;
extern int gManejochequegrupal;
extern int gManejoPagoAmortizacion;
extern int gusomultisucursal;
extern int gManejoPagoSeguro;
extern int gManejoplazoinversion;
extern int gManejocargosprestamo;
extern int gCortecajaagrupado;
extern char gclientesocio[10];
extern char gpggrupodefault[21];
extern int gImprimeSaldos;

/// Receiver of the server's notices, installed at login: keeps the text in gsMsgServidor and writes it, with
/// a line end, to standard output. `arg` is not used.
void msgservidor(void* arg, const char* mensaje);
