// The preview of a report of 50 MB against the toolkit's bare text widget, the text of the file there
// already.
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "bench/Copia.h"
#include "bench/Medida.h"
#include "reports/Preview_Window.h"
#include "tests/support/Proceso.h"

namespace {

constexpr int Vueltas = 9;
constexpr size_t Tamano = 50 << 20;

/// A report of that many bytes: pages of lines with what is in them for the printer.
std::string Reporte() {
  std::string texto;
  for (int linea = 0; texto.size() < Tamano; ++linea) {
    if (linea % 60 == 0) texto += "\f\r\022";
    std::string renglon = "E-" + std::to_string(100000000 + linea);
    renglon.resize(20 + linea % 100, '.');
    texto += renglon + "  \r\n";
  }
  return texto;
}

struct Llana : FXDialogBox {
  Llana(FXWindow* duenio, const std::string& texto)
      : FXDialogBox(duenio, "Reporte", DECOR_TITLE | DECOR_BORDER | DECOR_RESIZE),
        letra(getApp(), "courier [adobe]", 9, FXFont::Medium, FXFont::Straight, FONTENCODING_DEFAULT,
              FXFont::NonExpanded, FXFont::Fixed) {
    auto* marco = new FXHorizontalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y);
    auto* campo = new FXText(marco, nullptr, 0, LAYOUT_FILL_X | LAYOUT_FILL_Y);
    campo->setFont(&letra);
    campo->setText(texto.data(), static_cast<FXint>(texto.size()));
    campo->setEditable(false);
    resize(550, 750);
  }
  FXFont letra;
};

}  // namespace

int main(int argc, char* argv[]) {
  medida::Informe informe(argc, argv);
  const pruebas::CarpetaTemporal carpeta;
  const std::string archivo = carpeta.Ruta() / "reporte.txt";
  std::ofstream(archivo) << Reporte();
  Escenario escenario;
  std::cout.setstate(std::ios::failbit);  // what the preview traces
  FXString mostrado;
  const auto nuestra = [&] { return new Preview_Window(escenario.ventana, archivo.c_str()); };
  {
    const std::unique_ptr<FXDialogBox> modelo(nuestra());
    const auto* marco = modelo->getFirst();
    mostrado = static_cast<FXText*>(marco->getFirst())->getText();
  }
  const std::string texto(mostrado.text(), static_cast<size_t>(mostrado.length()));
  if (texto.size() < Tamano / 2) throw std::runtime_error("falta texto");
  const auto llana = [&] { return new Llana(escenario.ventana, texto); };
  informe.Escribe("vista previa de 50 MB",
                  medida::Compara(
                      Vueltas, [&] { return Aperturas(1, nuestra); }, [&] { return Aperturas(1, llana); }),
                  1.5);
  return informe.Codigo();
}
