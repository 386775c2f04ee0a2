#include "db/Login_Window.h"

#include <cstring>
#include <iostream>

#include "app/sesion.h"
#include "db/Apertura.h"
#include "db/Catalogo.h"
#include "db/Engine.h"
#include "framework/Sentencia.h"
#include "icons/Icono.h"
#include "icons/iconos.h"
#include "widgets/Boton.h"
#include "widgets/CampoDeTexto.h"
#include "widgets/TextoAcotado.h"
#include "widgets/cajas.h"

namespace {

constexpr int intentosPermitidos = 3;
constexpr char seccion[] = "SETTINGS";
constexpr char tituloDeError[] = "Error en Validación";

}  // namespace

FXDEFMAP(Login_Window)
Login_WindowMap[] = {
    FXMAPFUNC(SEL_COMMAND, Login_Window::ID_ACEPTAR, Login_Window::onCmdAceptar),
    FXMAPFUNC(SEL_COMMAND, Login_Window::ID_CONFIGURAR, Login_Window::onCmdConfigurar),
    FXMAPFUNC(SEL_CLOSE, 0, Login_Window::onCmdQuit),
    FXMAPFUNC(SEL_SIGNAL, Login_Window::ID_QUIT, Login_Window::onCmdQuit),
};

FXIMPLEMENT(Login_Window, FXDialogBox, Login_WindowMap, ARRAYNUMBER(Login_WindowMap))

/// A setting that the dialog remembers.
struct Login_Window::Ajuste {
  const char* llave;
  const char* omision;
  DatoTexto Login_Window::*dato;
};

const Login_Window::Ajuste Login_Window::ajustes[] = {
    {"user", "xxx", &Login_Window::sUser},
    {"sucursal", "xxx", &Login_Window::sSucursal},
    {"servidor", "xxx", &Login_Window::sServidor},
    {"puerto", "5432", &Login_Window::sPuerto},
    {"db", "xxx", &Login_Window::sDb},
    {"userdb", "xxx", &Login_Window::sUserDb},
};

Login_Window::Login_Window(FXWindow* owner)
    : FXDialogBox(owner, "Login", DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE, 0, 0, 0, 0, 0, 0, 0, 0) {
  auto* marco = new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  ArmaCampos(new FXVerticalFrame(marco, LAYOUT_FILL_X | LAYOUT_FILL_Y));
  ArmaBotones(new FXVerticalFrame(marco, LAYOUT_FILL_X | LAYOUT_FILL_Y));
  grupoOpciones->hide();
  readRegistry();
  create();  // a field takes the focus only once it exists
  txtPassword->setFocus();
  teclado = std::make_unique<Teclado>(this);
  engine.Inicializa();
}

void Login_Window::ArmaCampos(FXComposite* padre) {
  constexpr FXuint limitado = FRAME_SUNKEN | FRAME_THICK | TEXTFIELD_LIMITED | LAYOUT_CENTER_Y;
  const auto etiqueta = [](FXMatrix* matriz, const char* texto) {
    new FXLabel(matriz, texto, nullptr, LABEL_NORMAL | LAYOUT_CENTER_Y);
  };
  const auto margen = [this](FXMatrix* matriz, const unsigned char* dibujo) {
    if (dibujo != nullptr) {
      new FXLabel(matriz, FXString::null, icono(getApp(), dibujo));
    } else {
      new FXLabel(matriz, " ");
    }
  };
  const auto campo = [](FXMatrix* matriz, int columnas, DatoTexto& dato, FXuint opciones) {
    new CampoDeTexto(matriz, columnas, &dato.destino, FXDataTarget::ID_VALUE, limitado | opciones);
  };

  matrizLogin = new FXMatrix(padre, 3, MATRIX_BY_COLUMNS | LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  margen(matrizLogin, iconos::login);
  etiqueta(matrizLogin, "Login:");
  campo(matrizLogin, 20, sUser, TEXTFIELD_ENTER_ONLY);
  margen(matrizLogin, nullptr);
  etiqueta(matrizLogin, "Password:");
  txtPassword =
      new CampoDeTexto(matrizLogin, 20, this, ID_ACEPTAR, limitado | TEXTFIELD_PASSWD | TEXTFIELD_ENTER_ONLY);

  auto* marco = new FXVerticalFrame(padre, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0);
  grupoOpciones =
      new FXGroupBox(marco, "", FRAME_GROOVE | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 2, 2);
  matrizOpciones = new FXMatrix(grupoOpciones, 3, MATRIX_BY_COLUMNS | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0,
                                0, 2, 2, 0, 0);
  margen(matrizOpciones, iconos::sucx);
  etiqueta(matrizOpciones, "Sucursal:");
  campo(matrizOpciones, 20, sSucursal, 0);
  margen(matrizOpciones, nullptr);
  etiqueta(matrizOpciones, "Servidor:");
  campo(matrizOpciones, 30, sServidor, 0);
  margen(matrizOpciones, nullptr);
  etiqueta(matrizOpciones, "Puerto:");
  campo(matrizOpciones, 4, sPuerto, TEXTFIELD_INTEGER);
  margen(matrizOpciones, nullptr);
  etiqueta(matrizOpciones, "DB:");
  campo(matrizOpciones, 20, sDb, 0);
}

void Login_Window::ArmaBotones(FXComposite* padre) {
  const auto boton = [&](const char* texto, FXIcon* icono, FXSelector mensaje, FXuint opciones) {
    FXButton* const nuevo = NuevoBoton(padre, texto, icono, this, mensaje, LAYOUT_FILL_X | opciones);
    nuevo->setPadTop(1);
    nuevo->setPadBottom(1);
    return nuevo;
  };
  btnAceptar =
      boton("&Aceptar", icono(getApp(), iconos::ok_icon), ID_ACEPTAR, BUTTON_DEFAULT | BUTTON_INITIAL);
  btnCerrar = boton("&Cerrar", icono(getApp(), iconos::cerrar_icon), ID_CANCEL, 0);
  btnOpciones = boton("Opciones >>", nullptr, ID_CONFIGURAR, 0);
}

void Login_Window::readRegistry() {
  for (const Ajuste& ajuste : ajustes)
    (this->*ajuste.dato).valor = getApp()->reg().readStringEntry(seccion, ajuste.llave, ajuste.omision);
}

void Login_Window::writeRegistry() {
  for (const Ajuste& ajuste : ajustes)
    getApp()->reg().writeStringEntry(seccion, ajuste.llave, (this->*ajuste.dato).valor.text());
  getApp()->reg().write();
}

long Login_Window::onCmdConfigurar(FXObject*, FXSelector, void*) {
  if (opcionesAbiertas) {
    grupoOpciones->hide();
    resize(365, 94);
    btnOpciones->setText("Opciones >>");
    opcionesAbiertas = 0;
  } else {
    grupoOpciones->show();
    resize(450, 215);
    btnOpciones->setText("Opciones <<");
    opcionesAbiertas = 1;
  }
  return 1;
}

long Login_Window::onCmdQuit(FXObject*, FXSelector, void*) {
  std::cout << "Saliendo con ESC" << std::endl;
  return 1;
}

long Login_Window::onCmdAceptar(FXObject*, FXSelector, void*) {
  if (intentos > intentosPermitidos) {
    apertura::CierraIntentos();  // ahead of the box: while it stands the server shows no session
    IsConectado = false;
    cajaError(this, "CUENTA BLOQUEDA",
              "El sistema ha bloqueado la cuenta\n"
              "Por que se ha introducido erroneamenta la contraseña mas de 3 veces");
    handle(this, FXSEL(SEL_COMMAND, ID_ACCEPT), nullptr);
    return 1;
  }
  CopiaTexto(glogin, sUser.valor.text());
  if (!apertura::Conecta(sServidor.valor.text(), sPuerto.valor.text(), sDb.valor.text(), sUser.valor.text(),
                         txtPassword->getText().text())) {
    const std::string motivo = apertura::MotivoDelRechazo();
    std::cout << "En el catch:" << motivo << std::endl;
    cajaError(this, tituloDeError, motivo.c_str());
    txtPassword->setFocus();
    txtPassword->selectAll();  // typing replaces it
    std::cout << "Incremento intentos invalidos" << std::endl;
    ++intentos;
    return 0;
  }
  PQsetNoticeProcessor(conn, msgservidor, nullptr);
  gsMsgServidor[0] = '\0';
  IsConectado = false;
  try {
    if (!AbreSesion()) return 0;
  } catch (char* texto) {
    cajaError(this, tituloDeError, texto);
  }
  ++intentos;
  return 1;
}

/// From the branch's schema to the filled cache. False if the user has too many sessions; throws the text of
/// what failed. A session whose version or date is refused goes on, on the closed connection, and fails at
/// its next statement.
bool Login_Window::AbreSesion() {
  apertura::FijaEsquema(sSucursal.valor.text());
  writeRegistry();
  apertura::LeeEmpresa();
  if (apertura::SesionesAbiertas() > gNconcurrencias) {
    Rechaza("Tu usuario ya esta conectado ");
    return false;
  }
  if (strcmp(gVersion, Version) != 0) {
    Rechaza(
        "La Version de la BD es diferente a tu Versión del Programa\n\n"
        "Favor de Actualizar tu Versión del Programa");
  }
  if (!apertura::FechaCoincide()) Rechaza("La fecha de TU computadora NO COINCIDE con la del SERVIDOR");
  const std::string caducidad = apertura::Caducidad();
  cajaInformacion(this, "Validando usuario",
                  Sentencia("Bienvenido %s tu contraseña es valida hasta el %s ", glogin, caducidad.c_str()));
  apertura::LeeFechaCobroIVA();
  apertura::LeeParametros();

  getApp()->beginWaitCursor();
  catalogo.setLoad(false);
  catalogo.Load();
  getApp()->endWaitCursor();

  CopiaTexto(gHost, sServidor.valor.text());
  CopiaTexto(gPort, "3000");
  CopiaTexto(gSchema, sSucursal.valor.text());
  CopiaTexto(gDbname, sDb.valor.text());
  IsConectado = true;
  handle(this, FXSEL(SEL_COMMAND, ID_ACCEPT), nullptr);
  return true;
}

/// Shows why there is no session and closes the connection.
void Login_Window::Rechaza(const char* texto) {
  cajaError(this, tituloDeError, texto);
  apertura::Cierra();
  IsConectado = false;
}
