// A disk without room: while it lives, no file of this program grows beyond 100 bytes.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace pruebas {

class DiscoLleno {
 public:
  DiscoLleno() {
    getrlimit(RLIMIT_FSIZE, &anterior_);
    rlimit limite = anterior_;
    limite.rlim_cur = 100;
    signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limite);
  }
  ~DiscoLleno() { setrlimit(RLIMIT_FSIZE, &anterior_); }
  DiscoLleno(const DiscoLleno&) = delete;
  DiscoLleno& operator=(const DiscoLleno&) = delete;

 private:
  rlimit anterior_{};
};

}  // namespace pruebas
