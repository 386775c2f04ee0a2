#include "tests/support/Memoria.h"

#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace pruebas {

Memoria::Memoria(const std::string& contenido) : fd_(memfd_create("prueba", MFD_CLOEXEC)) {
  if (fd_ < 0 ||
      pwrite(fd_, contenido.data(), contenido.size(), 0) != static_cast<ssize_t>(contenido.size())) {
    throw std::system_error(errno, std::generic_category(), "memfd");
  }
}

Memoria::~Memoria() { close(fd_); }

std::string Memoria::Texto() const {
  std::string texto;
  std::array<char, 4096> trozo;
  ssize_t n;
  while ((n = pread(fd_, trozo.data(), trozo.size(), static_cast<off_t>(texto.size()))) > 0) {
    texto.append(trozo.data(), static_cast<size_t>(n));
  }
  return texto;
}

}  // namespace pruebas
