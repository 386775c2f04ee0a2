// The main window: menu, area of the child forms, clock and session text.
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
    ID_CLOCK = 100,
  };

  explicit Caja(FXApp* app);
  ~Caja() override;

  /// Shows the window and runs the first login, ahead of the event loop.
  void create() override;

  /// Rewrites the session text from the settings and IsConectado.
  void readRegistry();

  long onCmdAbout(FXObject*, FXSelector, void*);
  /// A further login. A session that is open stays so.
  long onCmdConectar(FXObject*, FXSelector, void*);
  /// Closes the connection; cache and session variables stay as they are.
  long onCmdDesconectar(FXObject*, FXSelector, void*);
  /// Turns the setting `permitirop` over; the entry's label follows at the next start.
  long onCmdPermitirop(FXObject*, FXSelector, void*);
  long onCmdMonedas(FXObject*, FXSelector, void*);
  long onClock(FXObject*, FXSelector, void*);

 protected:
  Caja() {}

 private:
  void ArmaBarras();
  void ArmaEstado();
  void ArmaMenu();
  void ArmaBotonesDeHija();
  void Entrada(FXMenuPane* menu, const char* etiqueta, FXIcon* icono, FXSelector mensaje);
  void Login();
  bool TieneAcceso(const char* modulo);
  template <class Ventana>
  long OpcionHija(const char* modulo, int ranura);

  FXMDIClient* mdiClient = nullptr;
  FXMDIMenu* mdiMenu = nullptr;
  FXMenuBar* menuBar = nullptr;
  FXMenuPane* menuInicio = nullptr;
  FXMenuPane* menuCatalogos = nullptr;
  FXMenuPane* menuAyuda = nullptr;
  FXToolBarShell* dragShellMenu = nullptr;
  FXToolBarShell* dragShellTool = nullptr;
  FXToolBar* toolBar = nullptr;  // stays empty
  FXStatusBar* statusBar = nullptr;
  FXTextField* clockField = nullptr;
  FXLabel* statusLabel = nullptr;
  FXIcon* bigIcon = nullptr;
  FXIcon* smallIcon = nullptr;
  FXFont* fuente = nullptr;          // the application's normal font while this window lives
  FXFont* fuenteAnterior = nullptr;  // and what it was before
};
