// The form of the users: login, person and address, what each option allows them, and their parameters.
//
// An address comes from a cascade: the state chosen gives the cities, the city its neighbourhoods, and a
// postal code all three. Each step reads the server and leaves what it read in the cache.
#pragma once

#include "catalogs/Posiciones.h"
#include "catalogs/finance/Busqueda_Window.h"
#include "catalogs/finance/CampoCuenta.h"
#include "catalogs/people/cUsuario.h"
#include "framework/CampoFecha.h"
#include "framework/CampoFila.h"
#include "framework/Forma.h"

extern cUsuario usuario;
extern char sUsuario[121];  // a row: name and login

#define CUENTAS_USUARIO(CUENTA) CUENTA("Cta. Caja:", CuentaCaja, onCmdCuenta)

class Usuario_Window : public Forma<Usuario_Window, FXMDIChild> {
  FXDECLARE(Usuario_Window)
 public:
  enum { CUENTAS_USUARIO(CUENTA_NUMERO) NumCuentas };
  enum {
    ID_CALENDARIO = Forma::ID_LISTA + 1,
    ID_TIPOUSUARIO,
    ID_DEPENDE,
    ID_PANEL,  // a page that comes up; no entry of the map takes it
    ID_CUENTA,
    ID_BUSCAR,
    ID_PERMISO,
    ID_ESTADOS,
    ID_CIUDADES,
    ID_COLONIA,
    ID_CP,
    ID_SALIR,  // also what the remarks and the check button send, which comes to nothing
    ID_PROMOTOR,
    ID_CONOCEEMPLEADO,
    ID_LAST,
  };

  Usuario_Window(FXMDIClient* area, FXMDIMenu* menu);

  /// &Aceptar: saves whether anything was changed or not, when nothing is missing.
  long onCmdAgregar(FXObject*, FXSelector, void*);
  /// &Buscar: shows the user with the login in its field, over the permissions of whoever was read last.
  /// Throws for a login that does not exist, and no form catches it.
  long onCmdFind(FXObject*, FXSelector, void*);
  /// A user chosen in the list becomes the record, with his permissions.
  long onCmdUsuario(FXObject*, FXSelector, void*);
  long onCmdTipoUsuario(FXObject*, FXSelector, void*) { return tipo.Elige(); }
  long onCmdDepende(FXObject*, FXSelector, void*) { return jefe.Elige(); }
  /// The birth date: also gives the age, and asks the server for the RFC, which goes into both keys.
  long onCmdCalendario(FXObject*, FXSelector, void*);
  CUENTAS_USUARIO(CUENTA_MANEJADOR)
  long onCmdBusqueda(FXObject*, FXSelector, void*) { return cuentas.Busca(CuentaCaja); }
  /// A double click turns the permission of its row over; it is sent when the user is saved.
  long onCmdEditPermiso(FXObject*, FXSelector, void* lugar);
  long onCmdEstados(FXObject*, FXSelector, void*);
  long onCmdCiudades(FXObject*, FXSelector, void*);
  long onCmdColonia(FXObject*, FXSelector, void*);
  /// "...": offers the neighbourhoods of the postal code, and shows their city and state.
  long onCmdCP(FXObject*, FXSelector, void*);
  /// The pages of the institution's web application about the user.
  long onCmdPromotor(FXObject*, FXSelector, void*) { return AbreWeb("crearpromotor/crearpromotor"); }
  long onCmdConoceempleado(FXObject*, FXSelector, void*) {
    return AbreWeb("conoceatuempleado/datosconoceempleado");
  }

  /// Rereads the users from the server, and looks up the person of each. Throws what the load throws.
  long Load();
  /// Blanks the window, with every permission denied.
  void Clear();
  /// Record to window.
  void Read();
  /// Window to record.
  void Update();
  /// Always true; traces.
  bool Checkuser();

  /// The place of a key in its combo box, 0 if it has none there.
  static int FindTipoUsuario(const char* clave) { return ::FindTipoUsuario(clave); }
  static int FindUsuario(const char* clave) { return ::FindUsuario(clave); }
  static int FindCiudad(int clave) { return ::FindCiudad(clave); }
  static int FindCuenta(const char* clave) { return ::FindCuenta(clave); }

 protected:
  Usuario_Window() {}

 private:
  friend Forma;
  using cRegistro = cUsuario;

  void ArmaArbol(FXComposite* marco);
  FXFoldingItem* VaciaArbol();
  void ArmaIdentificacion(FXMatrix* matriz);
  void ArmaGenerales(FXComposite* pagina);
  void ArmaDomicilio(FXComposite* pagina);
  void ArmaAccesos(FXComposite* pagina);
  void ArmaParametros(FXMatrix* matriz);
  void ArmaEnlaces(FXComposite* columna);
  void Prepara();

  const char* Falta();
  long AbreWeb(const char* pagina);

  void LeeCiudades();
  void OfreceCiudades();
  void OfreceColonias();
  void MuestraCiudad(int ciudadMexID, const char* traza);
  void MuestraDomicilio();
  void TomaDomicilio();

  void DimensionaPermisos();
  void MuestraPermisos();
  void MuestraPermiso(int renglon, const char* letra);

  cUsuario& Actual() { return usuario; }
  auto Datos() {
    using T = cUsuario;
    return std::tuple(
        Liga(login, &T::getUsuarioID, &T::setUsuarioID),
        Liga(tipo, &T::getTipoUsuarioID, &T::setTipoUsuarioID),
        Liga(jefe, &T::getUsu_UsuarioID, &T::setUsu_UsuarioID),
        Liga(contrasenia, &T::getContrasenia, &T::setContrasenia), Liga(email, &T::getEmail, &T::setEmail),
        Liga(impresora, &T::getDicola, &T::setDicola),
        Liga(observaciones, &T::getObsUsuario, &T::setObsUsuario),
        Liga(paterno, &T::getPaterno, &T::setPaterno), Liga(materno, &T::getMaterno, &T::setMaterno),
        Liga(nombre, &T::getNombre, &T::setNombre), Liga(rfc, &T::getRfc, &T::setRfc),
        Liga(curp, &T::getCurp, &T::setCurp), Liga(edad, &T::getEdad, &T::setEdad),
        Liga(calle, &T::getCalle, &T::setCalle), Liga(numeroExt, &T::getNumero_Ext, &T::setNumero_Ext),
        Liga(numeroInt, &T::getNumero_Int, &T::setNumero_Int),
        Liga(nombreColonia, &T::getColonia, &T::setColonia),
        Liga(codPostal, &T::getCodPostal, &T::setCodPostal),
        Liga(comunidad, &T::getComunidad, &T::setComunidad),
        Liga(telefono, &T::getTelDomicilio, &T::setTelDomicilio),
        Liga(socio, &T::getClaveSocioInt, &T::setClaveSocioInt),
        Liga(ciudad, &T::getCiudadMexID, &T::setCiudadMexID),
        Liga(serie, &T::getSerieUser, &T::setSerieUser) CUENTAS_USUARIO(CUENTA_LIGA),
        Liga(impresoraCaja, &T::getImpresoraCaja, &T::setImpresoraCaja),
        Liga(impresoraReporte, &T::getImpresoraReporte, &T::setImpresoraReporte),
        Liga(reportesLaser, &T::getReportesLaser, &T::setReportesLaser));
  }

  /// The boss: the login of a user, behind "Ninguno" in its combo box.
  struct DatoJefe {
    void Pon(const char* nuevo);
    void Vacia();
    void Muestra();
    FXString& Valor() { return valor; }
    long Elige();

    FXString valor;
    FXComboBox* combo = nullptr;
  };
  /// The remarks, without the blanks behind them.
  struct DatoObservaciones : DatoParrafo {
    const FXString& Valor() {
      DatoParrafo::Valor();
      return valor.trimEnd();
    }
  };

  FXFoldingList* lstUsuarios = nullptr;
  FXTable* tabla = nullptr;

  DatoTexto login;
  DatoFila<Catalogo::TiposUsuarios, &cTipoUsuario::getTipoUsuarioID, ::FindTipoUsuario> tipo;
  DatoJefe jefe;
  DatoTexto contrasenia;  // without a field: goes back as it came
  DatoTexto email;
  DatoTexto impresora;
  DatoObservaciones observaciones;

  DatoTexto paterno;
  DatoTexto materno;
  DatoTexto nombre;
  DatoFechaCorta fechaNacimiento;
  DatoEntero edad;
  DatoTexto rfc;
  DatoTexto curp;

  DatoEntero codPostal;
  DatoOpcion estado;
  DatoOpcion municipio;
  DatoOpcion colonia;
  DatoEntero ciudad;        // without a field: its combo box shows a place in the list
  DatoTexto nombreColonia;  // without a field, as the password
  DatoTexto calle;
  DatoTexto numeroExt;
  DatoTexto numeroInt;
  DatoTexto comunidad;
  DatoTexto telefono;

  DatoTexto serie;
  Cuentas cuentas{this, ID_CUENTA, ID_BUSCAR, {CUENTAS_USUARIO(CUENTA_FILA)}};
  DatoTexto impresoraCaja;
  DatoTexto impresoraReporte;
  DatoCasilla<FXint> reportesLaser{1, 0};
  DatoTexto socio;
};
