#include "tests/support/Proceso.h"

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "tests/support/Memoria.h"

extern char** environ;

namespace pruebas {
namespace {

constexpr int NoArranco = 127;  // exit code of a program that could not be started, as in a shell
constexpr int PorSenal = 128;

[[noreturn]] void Falla(const char* que) { throw std::system_error(errno, std::generic_category(), que); }

std::vector<char*> Punteros(const Textos& textos) {
  std::vector<char*> punteros;
  for (const std::string& texto : textos) punteros.push_back(const_cast<char*>(texto.c_str()));
  punteros.push_back(nullptr);
  return punteros;
}

// Our environment with the given entries in front: the first entry of a name is the one that counts.
Textos Entorno(const Orden& orden) {
  Textos entorno = orden.entorno;
  for (char** v = environ; *v; ++v) {
    const std::string nuestra = *v;
    const std::string nombre = nuestra.substr(0, nuestra.find('=') + 1);
    bool cambiada = false;
    for (const std::string& dada : orden.entorno)
      cambiada = cambiada || dada.compare(0, nombre.size(), nombre) == 0;
    if (!cambiada) entorno.push_back(nuestra);
  }
  return entorno;
}

const passwd* UsuarioPostgres() {
  const passwd* cuenta = getpwnam("postgres");
  if (!cuenta) throw std::runtime_error("falta el usuario postgres (paquete postgresql-common)");
  return cuenta;
}

// Starts the program. All memory is taken before the fork: the child only makes system calls.
pid_t Arranca(const Orden& orden, int entrada, int salida, int alMorir) {
  const std::vector<char*> argumentos = Punteros(orden.argumentos);
  const Textos textosEntorno = Entorno(orden);
  const std::vector<char*> entorno = Punteros(textosEntorno);
  const passwd* cuenta = orden.comoPostgres && geteuid() == 0 ? UsuarioPostgres() : nullptr;
  const pid_t padre = getpid();
  const pid_t pid = fork();
  if (pid < 0) Falla("fork");
  if (pid > 0) return pid;
  dup2(entrada, STDIN_FILENO);
  dup2(salida, STDOUT_FILENO);
  dup2(salida, STDERR_FILENO);
  if (cuenta && (setgroups(0, nullptr) || setgid(cuenta->pw_gid) || setuid(cuenta->pw_uid))) _exit(NoArranco);
  // After the change of user, which would clear it; and in vain when the parent is gone already.
  prctl(PR_SET_PDEATHSIG, alMorir);
  if (getppid() != padre) _exit(NoArranco);
  execvpe(argumentos[0], argumentos.data(), entorno.data());
  _exit(NoArranco);
}

int Espera(pid_t pid) {
  int estado = 0;
  while (waitpid(pid, &estado, 0) < 0) {
    if (errno != EINTR) Falla("waitpid");
  }
  return WIFSIGNALED(estado) ? PorSenal + WTERMSIG(estado) : WEXITSTATUS(estado);
}

// Stays behind until the pipe's other end, which only the test program holds, is closed; then removes the
// folder, patiently, since a server that dies at the same moment may still write into it.
[[noreturn]] void Guarda(int tubo, const std::filesystem::path& carpeta) {
  setsid();
  dup2(tubo, STDIN_FILENO);
  close_range(STDIN_FILENO + 1, ~0U, 0);
  char nada;
  while (read(STDIN_FILENO, &nada, 1) < 0 && errno == EINTR) {
  }
  std::error_code error;
  for (int intento = 0; intento < 500 && std::filesystem::exists(carpeta, error); ++intento) {
    std::filesystem::remove_all(carpeta, error);
    usleep(10'000);
  }
  _exit(0);
}

}  // namespace

Resultado Corre(const Orden& orden) {
  const Memoria entrada(orden.entrada);
  const Memoria salida;
  const int codigo = Espera(Arranca(orden, entrada.fd(), salida.fd(), SIGTERM));
  return {codigo, salida.Texto()};
}

std::string CorreBien(const Orden& orden) {
  Resultado resultado = Corre(orden);
  if (resultado.codigo == 0) return std::move(resultado.salida);
  std::string mensaje;
  for (const std::string& argumento : orden.argumentos) mensaje += argumento + " ";
  throw std::runtime_error(mensaje + "-> " + std::to_string(resultado.codigo) + "\n" + resultado.salida);
}

Hijo::Hijo(const Orden& orden, int salida, int alMorir) : alMorir_(alMorir) {
  const Memoria entrada(orden.entrada);
  pid_ = Arranca(orden, entrada.fd(), salida, alMorir);
}

Hijo::~Hijo() { Termina(alMorir_); }

void Hijo::Termina(int senal) {
  if (Acabo()) return;
  kill(pid_, senal);
  Espera(std::exchange(pid_, 0));
}

bool Hijo::Acabo() {
  if (pid_ > 0 && waitpid(pid_, nullptr, WNOHANG) == pid_) pid_ = 0;
  return pid_ == 0;
}

CarpetaTemporal::CarpetaTemporal() {
  std::string modelo = std::filesystem::temp_directory_path() / "tolvara-XXXXXX";
  if (!mkdtemp(modelo.data())) Falla("mkdtemp");
  ruta_ = modelo;
  chmod(modelo.c_str(), 0755);
  int tubo[2];
  if (pipe2(tubo, O_CLOEXEC) < 0) Falla("pipe2");
  const pid_t guarda = fork();
  if (guarda < 0) Falla("fork");
  if (guarda == 0) {
    close(tubo[1]);
    Guarda(tubo[0], ruta_);
  }
  close(tubo[0]);  // the other end stays open on purpose: the kernel closes it when this program ends
}

std::filesystem::path Raiz() { return TOLVARA_RAIZ; }

}  // namespace pruebas
