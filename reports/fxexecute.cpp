#include "reports/fxexecute.h"

#include <algorithm>
#include <cstring>

#include "reports/Mandato.h"

namespace {

constexpr char aparte[] = " >/dev/null 2>&1 & ";

const char* const paraWeb = "mozilla-firefox\tmozilla\tnetscape\tkonqueror\tdillo\tlynx\tfirefox";
const char* const paraPaginas = "gsview\tacroread\tkghostview\tgpdf\txpdf";
const char* const paraHojas = "oocalc\toocalc2";

/// Is `texto` one of `palabras`, in letters of either size?
template <class... Palabra>
bool Es(const FXString& texto, Palabra... palabras) {
  return ((comparecase(texto, palabras) == 0) || ...);
}

const char* Visores(const FXString& target) {
  const FXString extension = FXPath::extension(target);
  if (Es(target.before(':'), "http", "ftp") || Es(extension, "htm", "html", "php", "asp")) return paraWeb;
  if (Es(extension, "pdf", "ps")) return paraPaginas;
  return paraHojas;
}

/// A program as it stands, unless its name or its folder has a letter that means something to the shell.
FXString Programa(const FXString& ruta) {
  const auto ordinaria = [](FXchar letra) {
    return Ascii::isAlphaNumeric(letra) || strchr("/._-+", letra) != nullptr;
  };
  return std::all_of(ruta.text(), ruta.text() + ruta.length(), ordinaria) ? ruta : Citado(ruta);
}

/// A target that a viewer cannot take for one of its options.
FXString SinGuion(const FXString& target) { return target[0] == '-' ? "./" + target : target; }

}  // namespace

FXint fxexecute(FXString target) { return fxexecute(target, Visores(target)); }

FXint fxexecute(FXString target, const FXString& visores) {
  if (visores.empty()) return FXStat::isExecutable(target) ? Manda(Programa(target) + aparte) > 0 : 0;
  const FXString carpetas = FXSystem::getExecPath();
  for (FXint i = 0; i <= visores.contains('\t'); ++i) {
    const FXString ruta = FXPath::search(carpetas, visores.section('\t', i));
    if (!ruta.empty()) return Manda(Programa(ruta) + " " + Citado(SinGuion(target)) + aparte) > 0;
  }
  return 0;
}
