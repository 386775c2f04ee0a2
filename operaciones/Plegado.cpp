#include "operaciones/Plegado.h"

#include <cstdint>

namespace {

constexpr uint32_t enie = 0xF1;
constexpr uint32_t tildeCombinada = 0x303;

/// The letters of Latin-1 and Latin Extended-A without their accents, from U+00C0 on; a blank leaves the
/// letter as it is.
constexpr char sinAcento[] =
    "aaaaaa ceeeeiiii nooooo ouuuuy  aaaaaa ceeeeiiii nooooo ouuuuy y"   // C0-FF
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii  jjkkklllllll"   // 100-13F
    "lllnnnnnnn  oooooo  rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";  // 140-17F

/// The character at the start of `texto`, which it loses; a byte that begins none is itself plus `crudo`.
constexpr uint32_t crudo = 0x110000;
uint32_t Siguiente(std::string_view& texto) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(texto[i]); };
  const size_t largo = byte(0) < 0x80   ? 1
                       : byte(0) < 0xC2 ? 0
                       : byte(0) < 0xE0 ? 2
                       : byte(0) < 0xF0 ? 3
                       : byte(0) < 0xF5 ? 4
                                        : 0;
  uint32_t letra = largo > 1 ? byte(0) & (0xFFu >> (largo + 1)) : byte(0);
  bool entera = largo > 0 && largo <= texto.size();
  for (size_t i = 1; entera && i < largo; ++i) {
    entera = (byte(i) & 0xC0) == 0x80;
    letra = letra << 6 | (byte(i) & 0x3Fu);
  }
  if (!entera) letra = byte(0) + crudo;
  texto.remove_prefix(entera ? largo : 1);
  return letra;
}

void Agrega(std::string& texto, uint32_t letra) {
  if (letra >= crudo) {
    texto += static_cast<char>(letra - crudo);
  } else if (letra < 0x80) {
    texto += static_cast<char>(letra);
  } else {
    const int siguen = letra < 0x800 ? 1 : letra < 0x10000 ? 2 : 3;
    texto += static_cast<char>((0xFF00 >> (siguen + 1) & 0xFF) | letra >> (6 * siguen));
    for (int i = siguen - 1; i >= 0; --i) texto += static_cast<char>(0x80 | (letra >> (6 * i) & 0x3F));
  }
}

/// Runs `accion` on each letter that counts.
template <class Accion>
void CadaLetra(std::string_view texto, Accion accion) {
  while (!texto.empty()) {
    uint32_t letra = Siguiente(texto);
    if (letra < 0x80) {
      if (letra >= 'A' && letra <= 'Z') letra += 'a' - 'A';
      if (letra == 'n' && texto.substr(0, 2) == "\xCC\x83") {  // written with the tilde apart
        Siguiente(texto);
        letra = enie;
      }
    } else if (letra == 0xA8 || letra == 0xB4 || (letra >= 0x2B0 && letra < 0x370)) {
      continue;  // an accent alone
    } else if (letra == 0xD1) {
      letra = enie;
    } else if (letra >= 0xC0 && letra < 0x180 && letra != enie && sinAcento[letra - 0xC0] != ' ') {
      letra = static_cast<unsigned char>(sinAcento[letra - 0xC0]);
    }
    accion(letra);
  }
}

}  // namespace

std::string Plegado(std::string_view texto) {
  std::string plegado;
  plegado.reserve(texto.size());
  CadaLetra(texto, [&](uint32_t letra) { Agrega(plegado, letra); });
  return plegado;
}

std::string ClaveDeOrden(std::string_view texto) {
  std::string clave;
  clave.reserve(texto.size());
  CadaLetra(texto, [&](uint32_t letra) {
    if (letra == enie) {
      clave += "n\xFF";
    } else {
      Agrega(clave, letra);
    }
  });
  return clave;
}
