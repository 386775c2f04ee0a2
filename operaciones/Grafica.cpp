#include "operaciones/Grafica.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr FXint margen = 12;
constexpr FXint separacion = 6;  // of a text from what it tells of
constexpr FXint cuadro = 10;     // of the legend
constexpr FXColor fondo = FXRGB(255, 255, 255);
constexpr FXColor tinta = FXRGB(40, 40, 40);
constexpr FXColor linea = FXRGB(220, 220, 220);

/// Where the bars stand, and what a value is in points.
struct Plano {
  FXint x, y, ancho, alto;
  double tope;

  FXint Alto(double valor) const {
    return valor > 0 && tope > 0 ? static_cast<FXint>(std::lround(std::min(valor, tope) / tope * alto)) : 0;
  }
};

double Mayor(const std::vector<GrupoDeBarras>& grupos) {
  double mayor = 0;
  for (const GrupoDeBarras& grupo : grupos)
    for (const double valor : grupo.valores) mayor = std::max(mayor, valor);
  return mayor;
}

void Leyenda(FXDCWindow& dc, FXFont* letra, const std::vector<SerieDeBarras>& series, FXint x) {
  const FXint alto = letra->getFontHeight();
  for (const SerieDeBarras& serie : series) {
    dc.setForeground(serie.color);
    dc.fillRectangle(x, margen + (alto - cuadro) / 2, cuadro, cuadro);
    x += cuadro + separacion;
    dc.setForeground(tinta);
    dc.drawText(x, margen + letra->getFontAscent(), serie.nombre);
    x += letra->getTextWidth(serie.nombre) + 3 * separacion;
  }
}

/// The lines across, each with its value at the left.
void Eje(FXDCWindow& dc, FXFont* letra, const Plano& plano, double paso) {
  for (double valor = 0; valor < plano.tope + paso / 2 || valor == 0; valor += paso) {
    const FXint y = plano.y + plano.alto - plano.Alto(valor);
    dc.setForeground(valor > 0 ? linea : tinta);
    dc.fillRectangle(plano.x, y, plano.ancho, 1);
    const FXString texto = EnMiles(valor);
    dc.setForeground(tinta);
    dc.drawText(plano.x - separacion - letra->getTextWidth(texto), y + letra->getFontAscent() / 2, texto);
    if (paso <= 0) break;
  }
}

void Barras(FXDCWindow& dc, FXFont* letra, const Plano& plano, const std::vector<SerieDeBarras>& series,
            const std::vector<GrupoDeBarras>& grupos) {
  const FXint paso = plano.ancho / static_cast<FXint>(grupos.size());
  const FXint barra =
      std::clamp((paso - 2 * separacion) / std::max(static_cast<FXint>(series.size()), 1), 1, 40);
  FXint x = plano.x;
  for (const GrupoDeBarras& grupo : grupos) {
    FXint suya = x + (paso - barra * static_cast<FXint>(series.size())) / 2;
    for (size_t i = 0; i < series.size() && i < grupo.valores.size(); ++i, suya += barra) {
      const FXint alto = plano.Alto(grupo.valores[i]);
      dc.setForeground(series[i].color);
      dc.fillRectangle(suya, plano.y + plano.alto - alto, barra, alto);
    }
    dc.setForeground(tinta);
    const FXString rotulo = grupo.rotulo.c_str();
    dc.drawText(x + (paso - letra->getTextWidth(rotulo)) / 2,
                plano.y + plano.alto + separacion + letra->getFontAscent(), rotulo);
    x += paso;
  }
}

}  // namespace

double PasoDeEje(double mayor) {
  if (!(mayor > 0) || !std::isfinite(mayor)) return 0;
  const double potencia = std::pow(10, std::floor(std::log10(mayor / 5)));
  for (const double veces : {1, 2, 5})
    if (veces * potencia * 5 >= mayor) return veces * potencia;
  return 10 * potencia;
}

FXString EnMiles(double valor) {
  FXString texto = FXStringFormat("%.0f", valor);
  for (FXint lugar = texto.length() - 3; lugar > (texto[0] == '-' ? 1 : 0); lugar -= 3)
    texto.insert(lugar, ',');
  return texto;
}

void DibujaBarras(FXImage* imagen, FXFont* letra, const std::vector<SerieDeBarras>& series,
                  const std::vector<GrupoDeBarras>& grupos, const FXString& aviso) {
  {
    FXDCWindow dc(imagen);
    dc.setFont(letra);
    dc.setForeground(fondo);
    dc.fillRectangle(0, 0, imagen->getWidth(), imagen->getHeight());
    if (grupos.empty()) {
      dc.setForeground(tinta);
      dc.drawText((imagen->getWidth() - letra->getTextWidth(aviso)) / 2, imagen->getHeight() / 2, aviso);
    } else {
      const double paso = PasoDeEje(Mayor(grupos));
      Plano plano{};
      plano.tope = paso * std::ceil(paso > 0 ? Mayor(grupos) / paso : 0);
      plano.x = margen + letra->getTextWidth(EnMiles(plano.tope)) + separacion;
      plano.y = 2 * margen + letra->getFontHeight();
      plano.ancho = imagen->getWidth() - margen - plano.x;
      plano.alto = imagen->getHeight() - margen - letra->getFontHeight() - separacion - plano.y;
      Leyenda(dc, letra, series, plano.x);
      Eje(dc, letra, plano, paso);
      Barras(dc, letra, plano, series, grupos);
    }
  }
  imagen->restore();
}
