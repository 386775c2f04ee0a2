// The cache: a copy in memory of every catalogue, so that lists and combo boxes fill without asking the
// server.
//
// One instance, the global `catalogo`. The key of every map is the row number of the server's answer, from 0,
// and not the record's identifier: a form finds row i of its list under key i. A load replaces its container
// as a whole; a form's Load calls the one of its catalogue, and the login fills everything. The catalogues of
// a short form are sorted lists.
#pragma once

#include <map>

#include "catalogs/assets/cActivo.h"
#include "catalogs/assets/cTipoDepreciacion.h"
#include "catalogs/finance/cBanco.h"
#include "catalogs/finance/cCalculo.h"
#include "catalogs/finance/cCatalogo_Ctas.h"
#include "catalogs/finance/cInabil.h"
#include "catalogs/finance/cInpc.h"
#include "catalogs/finance/cRecargos.h"
#include "catalogs/finance/cTasaInteres.h"
#include "catalogs/finance/cTipoInversion.h"
#include "catalogs/finance/cTipoMovimiento.h"
#include "catalogs/finance/cTipoPrestamo.h"
#include "catalogs/finance/cTipoPromocion.h"
#include "catalogs/finance/cTipoTasaInteres.h"
#include "catalogs/finance/cUdis.h"
#include "catalogs/people/cCiudadMex.h"
#include "catalogs/people/cColonia.h"
#include "catalogs/people/cEstadoMex.h"
#include "catalogs/people/cSocioCaja.h"
#include "catalogs/people/cSujeto.h"
#include "catalogs/people/cUsuario.h"
#include "catalogs/simple/cAsesor.h"
#include "catalogs/simple/cClasificacionCredito.h"
#include "catalogs/simple/cConceptoScoring.h"
#include "catalogs/simple/cEstados_Credito.h"
#include "catalogs/simple/cFinalidades.h"
#include "catalogs/simple/cGrupo.h"
#include "catalogs/simple/cModulo.h"
#include "catalogs/simple/cMonedas.h"
#include "catalogs/simple/cMotivoBaja.h"
#include "catalogs/simple/cOcupacion.h"
#include "catalogs/simple/cTipoAcreditadoR.h"
#include "catalogs/simple/cTipoAsentamiento.h"
#include "catalogs/simple/cTipoMoviBanco.h"
#include "catalogs/simple/cTipoSocio.h"
#include "catalogs/simple/cTipoUsuario.h"
#include "catalogs/simple/cTipo_Garantia.h"
#include "widgets/lista.h"

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
  void LoadCuentas();
  void LoadMonedas();
  void LoadTipoDepreciacion();
  void LoadActivos();
  void LoadTipoPrestamo();
  void LoadTipoMovimiento();
  void LoadBancos();
  void LoadTipoGarantia();
  void LoadEstadosCredito();
  void LoadFinalidades();
  void LoadTipoMoviBancos();
  void LoadTipoInversiones();
  void LoadEstadosMex();
  void LoadCiudadesMex();
  void LoadTiposUsuarios();
  void LoadTiposSocios();
  void LoadModulos();
  void LoadUsuarios();
  void LoadCalculos();
  void LoadTipoPromociones();
  void LoadAsesor();
  void LoadColonias();
  void LoadMotivosBaja();
  void LoadClasificacionCreditos();
  void LoadUdis();
  void LoadInpc();
  void LoadRecargos();
  void LoadTipoAcreditadosR();
  void LoadTipoAsentamientos();
  void LoadInabiles();
  void LoadGrupos();
  void LoadOcupaciones();
  void LoadConceptosScoring();
  // Those of the variable rates take the whole statement, as a format that nothing follows. The login gives
  // them the word "null", which the server refuses: they stay empty until their forms open.
  void LoadTipoTasa(const char* sql);
  void LoadTipoTasa() { LoadTipoTasa("null"); }
  /// Traced.
  void LoadTasas(const char* sql);
  void LoadTasas() { LoadTasas("null"); }
  /// Only if the newest member is newer than at the last load.
  void LoadSociosCaja();
  /// The members that the server finds for `filtro`, in place of all others.
  void LoadSociosCajaF(const char* filtro);
  /// The persons that the server finds for `filtro`, in place of all others; traced.
  void LoadSujetos(const char* filtro);
  /// The cities of a state, in place of all of them, until LoadCiudadesMex runs again.
  void LoadCiudadesXEdo(int estado);
  /// The neighbourhoods of a city, into ColoniasFiltro; traced.
  void LoadColoniaCD(long ciudad);
  /// Those of a postal code, into the same list; traced.
  void LoadColoniaCP(long cp);

  // The look-ups: the first row with exactly that key, blanks included, and a blank record when there is
  // none. They never ask the server.
  cCatalogo_Ctas Cuenta(const char* cuenta) const;
  cEstados_Credito EstadoCredito(const char* clave) const;
  cTipoInversion TipoInversion(const char* id) const;
  cTipoMovimiento TipoMovi(const char* id) const;
  /// Does the account take postings? One that is not in the chart, the empty text too, does: so a rule can
  /// test an optional account without testing first that it is filled.
  bool EsAfectable(const char* cuenta) const;

  /// `cantidad` in words, as the server writes it; empty when it does not answer. The text stays until the
  /// next call.
  char* CantidadConLetra(double cantidad);
  /// Does the server know this user with this password? Traces both. Throws the server's text.
  bool Login(const char* usuario, const char* password);

  /// "yyyy-mm-dd hh:mm:ss" of `t`, seconds since 1970, in local time; the year is always one of this century.
  /// The text stays until the next call.
  char* TimeStampToStr(long t);
  /// Traces `texto` and its parts; always 1099594793.
  long StrToTimeStamp(const char* texto);

  static std::map<int, cCatalogo_Ctas> Catalogo_Ctas;
  static std::map<int, cMonedas> Monedas;
  static std::map<int, cTipoDepreciacion> TipoDepreciacion;
  static std::map<int, cActivo> Activos;
  static std::map<int, cTipoPrestamo> TipoPrestamo;
  static std::map<int, cTipoMovimiento> TipoMovimiento;
  static std::map<int, cBanco> Bancos;
  static std::map<int, cTipo_Garantia> Tipo_Garantia;
  static std::map<int, cEstados_Credito> Estados_Credito;
  static std::map<int, cFinalidades> Finalidades;
  static std::map<int, cTipoMoviBanco> TipoMoviBancos;
  static std::map<int, cTipoInversion> TipoInversiones;
  static std::map<int, cEstadoMex> EstadosMex;
  static std::map<int, cCiudadMex> CiudadesMex;
  static std::map<int, cTipoUsuario> TiposUsuarios;
  static std::map<int, cTipoSocio> TiposSocios;
  static std::map<int, cModulo> Modulos;
  static std::map<int, cUsuario> Usuarios;
  static std::map<int, cSocioCaja> SociosCaja;
  static std::map<int, cCalculo> Calculos;
  static std::map<int, cSujeto> Sujetos;
  static std::map<int, cAsesor> Asesores;
  static std::map<int, cUdis> Udis;
  static std::map<int, cInpc> Inpc;
  static std::map<int, cRecargos> Recargos;
  static std::map<int, cTipoAsentamiento> TipoAsentamientos;
  static std::map<int, cInabil> Inabiles;
  static std::map<int, cConceptoScoring> ConceptosScoring;
  static std::map<int, cTipoTasaInteres> TipoTasaInteres;
  static std::map<int, cTasaInteres> TasaInteres;

  inline static bool bLoad = false;  // true once Load has run to its end

  lista<cTipoPromocion> TipoPromociones;
  lista<cColonia> Colonias;  // all of them; no form reads it
  lista<cMotivoBaja> MotivosBaja;
  lista<cClasificacionCredito> ClasificacionCreditos;
  lista<cColonia> ColoniasFiltro;            // those last asked for by city or postal code
  lista<cTipoAcreditadoR> TipoAcreditadosR;  // no form reads it
  lista<cGrupo> Grupos;
  lista<cOcupacion> Ocupaciones;

 private:
  long tsCuentas = 0;    // newest change of the chart of accounts, seconds since 1970
  long tsReservado = 0;  // not used
  long tsSocios = 0;     // newest member, seconds since 1970
  char sLetra[256] = "";
};

extern Catalogo catalogo;  // of the session: app/sesion.cpp builds it ahead of the others
