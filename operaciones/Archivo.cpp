#include "operaciones/Archivo.h"

#include "operaciones/Tabla.h"
#include "widgets/cajas.h"

void GuardaArchivo(FXWindow* duenio, const char* clase, const char* titulo, const FXString& nombre,
                   const std::function<std::string()>& contenido, const FXString& hecho) {
  FXString archivo = FXSystem::getCurrentDirectory() + PATHSEPSTRING + nombre;
  if (!FXInputDialog::getString(archivo, duenio, titulo, "Archivo:") || archivo.trim().empty()) return;
  if (FXStat::exists(archivo) && !cajaPregunta(duenio, clase, "El archivo ya existe. Reemplazarlo ?")) return;
  const std::string error = EscribeArchivo(archivo.text(), contenido());
  if (error.empty()) {
    cajaInformacion(duenio, clase, (hecho + "\n" + FXString(archivo).substitute("%", "%%")).text());
  } else {
    cajaError(duenio, clase, FXString(error.c_str()).substitute("%", "%%").text());
  }
}
