// The main window: menu, area of the child forms, clock and session text. Its menu is built in
// app/CajaMenu.cpp, the options of the menu are in app/CajaOpciones.cpp, the rest is in app/Caja.cpp.
#pragma once

#include <fx.h>

class Caja : public FXMainWindow {
  FXDECLARE(Caja)
 public:
  enum {
    ID_ABOUT = FXMainWindow::ID_LAST,
    ID_CONECTAR,
    ID_DESCONECTAR,
    ID_PERMITIROP,
    ID_MONEDAS,
    ID_BANCOS,
    ID_USUARIOS,
    ID_TIPOMOVIMIENTO,
    ID_TIPOPRESTAMOS,
    ID_TIPOGARANTIA,
    ID_ESTADOSCREDITO,
    ID_FINALIDADES,
    ID_TIPOMOVIBANCOS,
    ID_TIPOINVERSION,
    ID_ESTADOSMEX,   // no entry sends it
    ID_CIUDADESMEX,  // nor this one
    ID_MODULOS,
    ID_TIPOSOCIOS,
    ID_CALCULOS,
    ID_TIPOUSUARIOS,
    ID_TIPOPROMOCION = 83,
    ID_TASA,
    ID_INPC = 86,
    ID_UDIS,
    ID_RECARGOS,
    ID_MOTIVOBAJA = 90,
    ID_CLASIFICACIONCREDITOS,  // its entry has no handler
    ID_SUJETO = 93,            // no entry sends it
    ID_INABILES,
    ID_GRUPOS,  // no entry sends it
    ID_OCUPACIONES,
    ID_CONCEPTOSCORING,
    ID_TASAINTERES,
    ID_TIPOTASAINTERES,
    ID_CLOCK,
  };

  explicit Caja(FXApp* app);
  ~Caja() override;

  /// Shows the window and runs the first login, ahead of the event loop.
  void create() override;

  /// Rewrites the session text from the settings and IsConectado, and the line that tells of a lost
  /// connection.
  void readRegistry();

  long onCmdAbout(FXObject*, FXSelector, void*);
  /// A further login. A session that is open stays so. The forms that are open stay as they are and list
  /// their catalogues anew.
  long onCmdConectar(FXObject*, FXSelector, void*);
  /// Closes the connection; cache and session variables stay as they are.
  long onCmdDesconectar(FXObject*, FXSelector, void*);
  /// Turns the setting `permitirop` over; the entry's label follows at the next start.
  long onCmdPermitirop(FXObject*, FXSelector, void*);
  long onClock(FXObject*, FXSelector, void*);

  // The options, each behind its test of access; app/CajaOpciones.cpp says which form each one opens.
  long onCmdMonedas(FXObject*, FXSelector, void*);
  long onCmdBancos(FXObject*, FXSelector, void*);
  long onCmdUsuarios(FXObject*, FXSelector, void*);
  long onCmdTipoMovimiento(FXObject*, FXSelector, void*);
  long onCmdTipoPrestamos(FXObject*, FXSelector, void*);
  long onCmdTipoGarantia(FXObject*, FXSelector, void*);
  long onCmdEstadosCredito(FXObject*, FXSelector, void*);
  long onCmdFinalidades(FXObject*, FXSelector, void*);
  long onCmdTipoMoviBancos(FXObject*, FXSelector, void*);
  long onCmdTipoInversion(FXObject*, FXSelector, void*);
  long onCmdEstadosMex(FXObject*, FXSelector, void*);
  long onCmdCiudadesMex(FXObject*, FXSelector, void*);
  long onCmdModulos(FXObject*, FXSelector, void*);
  long onCmdTipoSocios(FXObject*, FXSelector, void*);
  long onCmdCalculos(FXObject*, FXSelector, void*);
  long onCmdTipoUsuarios(FXObject*, FXSelector, void*);
  long onCmdTipoPromocion(FXObject*, FXSelector, void*);
  long onCmdTasa(FXObject*, FXSelector, void*);
  long onCmdInpc(FXObject*, FXSelector, void*);
  long onCmdUdis(FXObject*, FXSelector, void*);
  long onCmdRecargos(FXObject*, FXSelector, void*);
  /// Opens for every user.
  long onCmdMotivoBaja(FXObject*, FXSelector, void*);
  long onCmdSujeto(FXObject*, FXSelector, void*);
  long onCmdInabiles(FXObject*, FXSelector, void*);
  long onCmdGrupos(FXObject*, FXSelector, void*);
  long onCmdOcupaciones(FXObject*, FXSelector, void*);
  long onCmdConceptoScoring(FXObject*, FXSelector, void*);
  long onCmdTasaInteres(FXObject*, FXSelector, void*);
  long onCmdTipoTasaInteres(FXObject*, FXSelector, void*);

 protected:
  Caja() {}
  /// May the user use the module, at this moment? If not, says so.
  bool TieneAcceso(const char* modulo);

  FXMDIClient* mdiClient = nullptr;
  FXMDIMenu* mdiMenu = nullptr;
  FXMenuBar* menuBar = nullptr;
  FXMenuTitle* tituloCatalogos = nullptr;

 private:
  void ArmaBarras();
  void ArmaEstado();
  void ArmaMenu();
  void ArmaBotonesDeHija();
  void Login();
  void VigilaConexion();
  void ReleeFormas();
  void MuestraDondeEstaba();
  void AnotaLugar();
  bool PermiteOpciones() const;
  template <class Ventana>
  long AbreHija(int ranura);
  template <class Ventana>
  long OpcionHija(const char* modulo, int ranura);
  template <class Ventana>
  long OpcionModal(const char* modulo);

  FXMenuPane* menuInicio = nullptr;
  FXMenuPane* menuCatalogos = nullptr;
  FXMenuPane* menuAyuda = nullptr;
  FXMenuPane* menuPrestamos = nullptr;
  FXMenuPane* menuContables = nullptr;
  FXMenuPane* menuSocios = nullptr;
  FXMenuPane* menuSeguridad = nullptr;
  FXMenuPane* menuOtros = nullptr;
  FXToolBarShell* dragShellMenu = nullptr;
  FXToolBarShell* dragShellTool = nullptr;
  FXToolBar* toolBar = nullptr;  // stays empty
  FXStatusBar* statusBar = nullptr;
  FXTextField* clockField = nullptr;
  FXLabel* statusLabel = nullptr;
  FXToolTip* avisos = nullptr;  // of all windows of the program
  bool perdida = false;         // what readRegistry showed: the server has gone
  FXIcon* bigIcon = nullptr;
  FXIcon* smallIcon = nullptr;
  FXFont* fuente = nullptr;          // the application's normal font while this window lives
  FXFont* fuenteAnterior = nullptr;  // and what it was before
};
