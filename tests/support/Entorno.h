// The environment as a test wants it.
#pragma once

#include <cstdlib>
#include <string>

namespace pruebas {

/// A variable of the environment as it is to be, or not to be (null), and as it was afterwards.
class Variable {
 public:
  Variable(const char* nombre, const char* valor) : nombre_(nombre) {
    const char* const antes = getenv(nombre);
    habia_ = antes != nullptr;
    if (habia_) antes_ = antes;
    Pon(valor);
  }
  ~Variable() { Pon(habia_ ? antes_.c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void Pon(const char* valor) {
    if (valor != nullptr) {
      setenv(nombre_.c_str(), valor, 1);
    } else {
      unsetenv(nombre_.c_str());
    }
  }

  const std::string nombre_;
  std::string antes_;
  bool habia_;
};

}  // namespace pruebas
