// The help of F1: the manual of the staff, in the browser of the desktop, at the chapter of the window in
// front.
//
// The manual lies in a folder of its own (the package's, or $TOLVARA_MANUAL): manual.html, and for each
// window that has a chapter ayuda/CLASE.html, which leads there. Desktops lose what follows the "#" of a
// file's address.
#pragma once

#include <fx.h>
#include <sys/types.h>

#include <vector>

class Ayuda : public FXObject {
  FXDECLARE(Ayuda)
 public:
  enum { ID_MIRA = 1 };

  explicit Ayuda(FXApp* app) : app(app) {}
  ~Ayuda() override;

  /// Shows the chapter of `ventana`, or of the form that is up in it, or of its owner; the manual from its
  /// beginning if none of them has one. Says so in a box when there is no manual, or no browser for it.
  void Muestra(FXWindow* ventana);

  /// Looks how the browsers do that were asked for.
  long onMira(FXObject*, FXSelector, void*);

  /// The file to be shown for `ventana`; empty when the manual is not installed.
  static FXString Capitulo(FXWindow* ventana);

 protected:
  Ayuda() {}

 private:
  struct Pedido {
    pid_t proceso;
    int vueltas;  // looks since it was started
  };

  FXApp* app = nullptr;
  std::vector<Pedido> pedidos;
};
