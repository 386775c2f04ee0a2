// Bars month by month, with an axis, the months and a legend, as a picture.
#pragma once

#include <fx.h>

#include <string>
#include <vector>

/// A month with its label and a value for each of the series.
struct GrupoDeBarras {
  std::string rotulo;
  std::vector<double> valores;
};

struct SerieDeBarras {
  const char* nombre;
  FXColor color;
};

/// Draws the groups into `imagen`, which has been created and keeps its pixels; they are up to date then.
/// Without groups the picture has `aviso` in its middle and nothing else.
void DibujaBarras(FXImage* imagen, FXFont* letra, const std::vector<SerieDeBarras>& series,
                  const std::vector<GrupoDeBarras>& grupos, const FXString& aviso);

/// The least of 1, 2 and 5 times a power of ten with which `mayor` is reached in five steps.
double PasoDeEje(double mayor);

/// A value without decimals, its thousands apart: 1,234,567.
FXString EnMiles(double valor);
