#include "app/Ayuda.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <cstdlib>
#include <utility>

#include "widgets/cajas.h"

namespace {

constexpr FXuint pausa = 100;  // milliseconds between two looks
// After this many looks a browser that ends badly was at least seen: its end is no reason for a box any more.
constexpr int vueltasDeArranque = 100;

constexpr char abridor[] = "xdg-open";

FXString CarpetaDelManual() {
  const char* const otra = getenv("TOLVARA_MANUAL");
  return otra != nullptr && *otra != '\0' ? otra : "/usr/share/doc/tolvara-doc";
}

/// The form that is up in the area of a main window; null in a window without one.
FXMDIChild* HijaActiva(const FXWindow* ventana) {
  for (FXWindow* pieza = ventana->getFirst(); pieza != nullptr; pieza = pieza->getNext())
    if (auto* const area = dynamic_cast<FXMDIClient*>(pieza)) return area->getActiveChild();
  return nullptr;
}

/// Over the window that waits for an answer, or over the one in use; that may be another program's by now.
void Avisa(FXApp* app, const FXString& texto) {
  FXWindow* duenio = app->getModalWindow() != nullptr ? app->getModalWindow() : app->getActiveWindow();
  for (FXWindow* una = app->getRootWindow()->getFirst(); duenio == nullptr && una != nullptr;
       una = una->getNext())
    if (dynamic_cast<FXMainWindow*>(una) != nullptr) duenio = una;
  if (duenio != nullptr) cajaInformacion(duenio, "Ayuda", texto.text());
}

void SinNavegador(FXApp* app) {
  Avisa(app, "No hay navegador que muestre el manual. Está en la carpeta " +
                 FXString(CarpetaDelManual()).substitute("%", "%%") + ".");
}

/// Starts the desktop's browser, apart from this program, whose end it may outlive; 0 when there is none.
pid_t Arranca(const FXString& archivo) {
  posix_spawn_file_actions_t salidas;
  posix_spawn_file_actions_init(&salidas);
  posix_spawn_file_actions_addopen(&salidas, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&salidas, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&salidas, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t modo;
  posix_spawnattr_init(&modo);
  posix_spawnattr_setflags(&modo, POSIX_SPAWN_SETSID);
  const char* const argumentos[] = {abridor, archivo.text(), nullptr};
  pid_t proceso = 0;
  if (posix_spawnp(&proceso, abridor, &salidas, &modo, const_cast<char**>(argumentos), environ) != 0)
    proceso = 0;
  posix_spawnattr_destroy(&modo);
  posix_spawn_file_actions_destroy(&salidas);
  return proceso;
}

}  // namespace

FXDEFMAP(Ayuda)
AyudaMap[] = {
    FXMAPFUNC(SEL_TIMEOUT, Ayuda::ID_MIRA, Ayuda::onMira),
};
FXIMPLEMENT(Ayuda, FXObject, AyudaMap, ARRAYNUMBER(AyudaMap))

Ayuda::~Ayuda() {
  if (app != nullptr) app->removeTimeout(this, ID_MIRA);
}

FXString Ayuda::Capitulo(FXWindow* ventana) {
  const FXString carpeta = CarpetaDelManual() + PATHSEPSTRING;
  const auto suyo = [&carpeta](const FXWindow* de) {
    const FXString archivo = carpeta + "ayuda" PATHSEPSTRING + de->getClassName() + ".html";
    return FXStat::isFile(archivo) ? archivo : FXString::null;
  };
  for (FXWindow* una = ventana; una != nullptr;
       una = una->getOwner() ? una->getOwner()->getShell() : nullptr) {
    const FXWindow* const hija = HijaActiva(una);
    FXString archivo = hija != nullptr ? suyo(hija) : FXString::null;
    if (archivo.empty()) archivo = suyo(una);
    if (!archivo.empty()) return archivo;
  }
  const FXString entero = carpeta + "manual.html";
  return FXStat::isFile(entero) ? entero : FXString::null;
}

void Ayuda::Muestra(FXWindow* ventana) {
  const FXString archivo = Capitulo(ventana);
  if (archivo.empty()) {
    Avisa(app, "El manual no está en este equipo. Pida que instalen el paquete tolvara-doc.");
    return;
  }
  const pid_t proceso = Arranca(archivo);
  if (proceso == 0) return SinNavegador(app);
  pedidos.push_back({proceso, 0});
  app->addTimeout(this, ID_MIRA, pausa);
}

long Ayuda::onMira(FXObject*, FXSelector, void*) {
  bool fallo = false;
  std::vector<Pedido> siguen;
  for (auto [proceso, vueltas] : std::exchange(pedidos, {})) {
    int estado = 0;
    if (waitpid(proceso, &estado, WNOHANG) == 0) {
      siguen.push_back({proceso, vueltas + 1});
    } else if (estado != 0 && vueltas < vueltasDeArranque) {
      fallo = true;
    }
  }
  pedidos = std::move(siguen);
  if (!pedidos.empty()) app->addTimeout(this, ID_MIRA, pausa);
  if (fallo) SinNavegador(app);
  return 1;
}
