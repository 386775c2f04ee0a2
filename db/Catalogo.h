// The cache: a copy in memory of every catalogue, so that lists and combo boxes fill without asking the
// server.
//
// One instance, the global `catalogo`. The key of every map is the row number of the server's answer, from 0,
// and not the record's identifier: a form finds row i of its list under key i. A load replaces its container
// as a whole; a form's Load calls the one of its catalogue, and the login fills everything.
#pragma once

#include <map>

#include "catalogs/people/cSocioCaja.h"
#include "catalogs/simple/cMonedas.h"

class Catalogo {
 public:
  Catalogo() = default;
  Catalogo(const Catalogo&) = delete;
  Catalogo& operator=(const Catalogo&) = delete;

  /// Runs every load in its order, tracing each step, and sets the guard; does nothing while the guard is
  /// set. Throws what a load throws: the guard then stays off and the later containers keep what they had.
  void Load();
  void setLoad(bool valor) { bLoad = valor; }

  // The loads. One with a transaction throws its message when "BEGIN;" fails, its container already empty; a
  // select that fails gives no rows and no message.
  void LoadMonedas();
  /// Only if the newest member is newer than at the last load.
  void LoadSociosCaja();

  /// "yyyy-mm-dd hh:mm:ss" of `t`, seconds since 1970, in local time; the year is always one of this century.
  /// The text stays until the next call.
  char* TimeStampToStr(long t);
  /// Traces `texto` and its parts; always 1099594793.
  long StrToTimeStamp(const char* texto);

  static std::map<int, cMonedas> Monedas;
  static std::map<int, cSocioCaja> SociosCaja;

  static bool bLoad;  // true once Load has run to its end

 private:
  long tsCuentas = 0;    // newest change of the chart of accounts, seconds since 1970
  long tsReservado = 0;  // not used
  long tsSocios = 0;     // newest member, seconds since 1970
};
