// The connection of the session and the answer to its last statement, as all that reads or writes knows them:
// session variables, which app/sesion.cpp defines with the others.
#pragma once

#include <libpq-fe.h>

// A closed connection is a null `conn`: libpq answers every call on it with an ordinary failure.
extern PGconn* conn;
extern PGconn* connR;  // second connection; nothing opens it
extern bool bLocal;    // true for the whole run: reads that could use connR go to conn
extern PGresult* res;  // the one shared result; null after a clear
