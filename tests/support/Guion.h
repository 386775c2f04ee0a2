// Answers to the modal boxes and dialogs that a test opens.
//
// A box blocks whoever opens it, so its answer has to be known before. A Guion is a list of steps; whenever a
// modal window waits for the user, the next step is carried out on it:
//
//   Guion guion;
//   guion.Responde(Respuesta::Si);                    // "Registrar ?"
//   guion.Responde(Respuesta::Aceptar);               // and then the error box
//   Pulsa(Boton(&ventana, "&Aceptar"));
//   EXPECT_EQ(guion.Ultimo().texto, "No ha especificado la descripción");
//
// A window for which no step is left is a test failure, is recorded and dismissed, unless EnAdelante says
// what becomes of it; so no test hangs on a box. A step that is left over when the Guion ends is a failure
// too. A dialog that is still open after its step gets the next one. When nothing at all helps, the program
// is aborted after a time limit, with the test and the last box named.
#pragma once

#include <fx.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/Reloj.h"
#include "tests/support/Textos.h"
#include "tests/support/Ventana.h"

namespace pruebas {

enum class Respuesta { Aceptar, Si, No, Cancelar };

/// What kind of message box: its picture tells. Dialogo for a window that is no message box.
enum class Clase { Dialogo, Error, Aviso, Pregunta, Informacion };

/// A modal window as it stood before the user.
struct Cuadro {
  Clase clase = Clase::Dialogo;
  std::string titulo;
  std::string texto;  ///< its labels, but for those of buttons and empty ones, a line end between two; of a
                      ///< message box also the text that it scrolls
  Textos botones;     ///< labels in order, with their "&"
};

class Guion {
 public:
  /// `segundos`: how long the whole script may take before the program is aborted.
  /// One script at a time: a second one throws std::logic_error.
  explicit Guion(unsigned segundos = 120);
  ~Guion();
  Guion(const Guion&) = delete;
  Guion& operator=(const Guion&) = delete;

  /// The next window is answered with this button, whatever its label.
  void Responde(Respuesta respuesta);
  /// The next window is answered with the button of this label.
  void Responde(const std::string& rotulo);
  /// On the next window `accion` is carried out, which may press buttons and so open further windows: those
  /// take the steps that follow.
  void Con(std::function<void(FXDialogBox* ventana)> accion);

  /// Every window for which no step is left gets this, as many as there may be.
  void EnAdelante(std::function<void(FXDialogBox* ventana)> accion);

  /// All windows so far, one for each step, in the order in which they waited for the user.
  const std::vector<Cuadro>& Cuadros() const { return cuadros_; }
  /// The last message box; one with empty texts when there was none.
  Cuadro Ultimo() const;
  /// The texts of all message boxes; other dialogs left out.
  Textos Mensajes() const;
  /// How many steps have not been used.
  size_t Pendientes() const { return pasos_.size(); }

 private:
  using Paso = std::function<void(FXDialogBox*)>;
  void Mira();
  void Atiende(FXDialogBox* ventana);

  std::deque<Paso> pasos_;
  Paso paraLasDemas_;
  std::vector<Cuadro> cuadros_;
  std::vector<FXDialogBox*> atendidos_;  // whose step is being carried out, one inside the other
  Reloj reloj_;
};

}  // namespace pruebas
