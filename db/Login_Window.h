// The login: turns a user's name and password into an open session.
//
// Runs modally over the main window. A session is open when IsConectado is true; a login that fails on its
// way leaves what its earlier steps have set.
#pragma once

#include <fx.h>

#include <memory>

#include "framework/Campos.h"
#include "widgets/Teclado.h"

class Login_Window : public FXDialogBox {
  FXDECLARE(Login_Window)
 public:
  enum {
    ID_ACEPTAR = FXDialogBox::ID_LAST,
    ID_CONFIGURAR,
    ID_QUIT,
    ID_LAST,
  };

  explicit Login_Window(FXWindow* owner);

  /// Connects, opens the session and closes the dialog, or says what is wrong.
  long onCmdAceptar(FXObject*, FXSelector, void*);
  /// Shows or hides the options of the connection.
  long onCmdConfigurar(FXObject*, FXSelector, void*);
  /// Refuses a close request from outside.
  long onCmdQuit(FXObject*, FXSelector, void*);

  /// The settings of the last session into the fields.
  void readRegistry();
  /// The fields into the settings, also on disk: a program that is killed must not lose them.
  void writeRegistry();

 protected:
  Login_Window() {}

 private:
  struct Ajuste;
  static const Ajuste ajustes[];

  void ArmaCampos(FXComposite* padre);
  void ArmaBotones(FXComposite* padre);
  bool AbreSesion();
  void Rechaza(const char* texto);

  FXMatrix* matrizLogin = nullptr;
  FXMatrix* matrizOpciones = nullptr;
  FXGroupBox* grupoOpciones = nullptr;
  FXTextField* txtPassword = nullptr;
  DatoTexto sUser;
  DatoTexto sSucursal;
  DatoTexto sServidor;
  DatoTexto sPuerto;
  DatoTexto sDb;
  DatoTexto sUserDb;  // has no field
  FXButton* btnAceptar = nullptr;
  FXButton* btnOpciones = nullptr;
  FXButton* btnCerrar = nullptr;
  int opcionesAbiertas = 0;
  int intentos = 0;  // failed attempts of this dialog
  std::unique_ptr<Teclado> teclado;
};
