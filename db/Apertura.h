// The statements that open a session, in the order in which the login runs them. Each throws the server's
// text when it is refused; the login shows it.
#pragma once

#include <string>

namespace apertura {

/// Closes the session's connection. A closed connection is null, on which every later statement simply fails.
void Cierra();
/// Closes it together with those of the attempts before it that connected and came to no session.
void CierraIntentos();

/// Connects as the user: the server's own accounts are the system's. The texts travel in UTF-8, a server that
/// is away is given up after 10 seconds, and of several ("a,b,c") the one that writes is taken, unless the
/// environment says otherwise. The handle is left in
/// `conn` also when this fails; a session that was open there stays open. False if the server refused or did
/// not answer.
bool Conecta(const char* servidor, const char* puerto, const char* db, const char* usuario,
             const char* password);

/// Has the server gone since the last statement? Looks at what has arrived and sends nothing. A connection
/// that was closed here is not lost.
bool SePerdio();

/// The server's refusal from the line break ahead of "FATAL" on, or all of it when there is none; 511 bytes
/// at most.
std::string MotivoDelRechazo();

/// Makes `sucursal` the schema of the session, behind "public", and keeps it in gsucursal.
void FijaEsquema(const char* sucursal);

/// The institution's row into the session variables, with the traces that go with it. Also throws when there
/// is no row.
void LeeEmpresa();

/// How many sessions `glogin` has open, this one included.
int SesionesAbiertas();

/// Is the date of this workstation the server's?
bool FechaCoincide();

/// When the password of `glogin` expires, "dd-mm-yyyy"; empty if it does not.
std::string Caducidad();

void LeeFechaCobroIVA();

/// The working parameters of `glogin`; empty ones if there are none.
void LeeParametros();

}  // namespace apertura
