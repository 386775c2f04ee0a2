// A timeout of the toolkit that calls a function.
#pragma once

#include <fx.h>

#include <functional>

namespace pruebas {

class Reloj : public FXObject {
  FXDECLARE(Reloj)
 public:
  /// Calls `accion` in the event loop, `milisegundos` from now and once. Destroying the clock cancels it. The
  /// action may start the clock again.
  explicit Reloj(std::function<void()> accion);
  ~Reloj() override;

  void Inicia(FXuint milisegundos);
  void Para();

  long onTiempo(FXObject*, FXSelector, void*);

 protected:
  Reloj() = default;

 private:
  enum { ID_TIEMPO = 1 };
  std::function<void()> accion_;
};

}  // namespace pruebas
