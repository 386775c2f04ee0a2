// The main window of the program as the stage of a test.
#pragma once

#include <fx.h>

#include "app/Caja.h"

namespace pruebas {

/// A main window on the screen whose first login has not been run. Its end takes all its children with it.
class Principal {
 public:
  Principal();
  ~Principal();
  Principal(const Principal&) = delete;
  Principal& operator=(const Principal&) = delete;

  Caja* get() const { return caja_; }
  Caja* operator->() const { return caja_; }

 private:
  Caja* caja_;
};

}  // namespace pruebas
