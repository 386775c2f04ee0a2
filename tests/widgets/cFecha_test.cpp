// The date field: which texts it takes, asked directly and typed.
#include "widgets/cFecha.h"

#include <fxkeys.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/Pantalla.h"
#include "tests/support/Ventana.h"

namespace pruebas {
namespace {

/// A target that says no to every text, and counts how often it was asked.
class Negado : public FXObject {
 public:
  long handle(FXObject*, FXSelector selector, void*) override {
    if (FXSELTYPE(selector) != SEL_VERIFY) return 0;
    ++preguntas;
    return 1;
  }
  int preguntas = 0;
};

class cFechaTest : public testing::Test {
 protected:
  void SetUp() override {
    ventana_ = new FXMainWindow(&App(), "Fechas", nullptr, nullptr, DECOR_ALL, 0, 0, 200, 100);
    fecha_ = new cFecha(ventana_, ventana_, 10, nullptr, 0, FRAME_SUNKEN | TEXTFIELD_LIMITED);
    ventana_->create();
    ventana_->show(PLACEMENT_SCREEN);
    Bombea();
  }
  void TearDown() override { delete ventana_; }

  bool Acepta(const std::string& texto) const {
    return fecha_->handle(fecha_, FXSEL(SEL_VERIFY, 0), const_cast<char*>(texto.c_str())) == 0;
  }
  std::string Tecleado(const std::string& texto) const {
    Escribe(fecha_, texto);
    return fecha_->getText().text();
  }

  FXMainWindow* ventana_ = nullptr;
  cFecha* fecha_ = nullptr;
};

constexpr char alfabeto[] = "/019x";  // in the order of their codes

/// All texts of up to `maximo` of some characters, the empty one among them.
Textos Hasta(const std::string& letras, size_t maximo) {
  Textos textos{""};
  for (size_t i = 0; i < textos.size(); ++i) {
    if (textos[i].size() == maximo) continue;
    for (const char letra : letras) textos.push_back(textos[i] + letra);
  }
  return textos;
}

Textos Unidos(const Textos& principios, const Textos& finales) {
  Textos unidos;
  for (const std::string& principio : principios)
    for (const std::string& final : finales) unidos.push_back(principio + final);
  return unidos;
}

/// Every date of the alphabet, put together instead of taken apart; sorted, each one once.
Textos Fechas() {
  const Textos diagonal{"", "/"};
  Textos dias = Hasta("019", 2);
  dias.erase(dias.begin());
  Textos fechas = dias;
  for (const Textos& parte : {diagonal, Hasta("019", 2), diagonal, Hasta("019", 4)})
    fechas = Unidos(fechas, parte);
  std::sort(fechas.begin(), fechas.end());
  fechas.erase(std::unique(fechas.begin(), fechas.end()), fechas.end());
  return fechas;
}

/// Goes through all texts of up to `largo` characters that begin with `texto`, sorted, next to the sorted
/// list of those that have to be taken.
template <class Prueba>
void Recorre(std::string& texto, size_t largo, Prueba&& prueba) {
  prueba(texto);
  if (texto.size() == largo) return;
  for (const char* letra = alfabeto; *letra != '\0'; ++letra) {
    texto += *letra;
    Recorre(texto, largo, prueba);
    texto.pop_back();
  }
}

TEST_F(cFechaTest, AceptaExactamenteLasFechasEntreTodosLosTextosDeDiezLetras) {
  const Textos fechas = Fechas();
  auto siguiente = fechas.begin();
  size_t vistos = 0, errores = 0;
  std::string texto;
  Recorre(texto, 10, [&](const std::string& visto) {
    ++vistos;
    const bool esperado = siguiente != fechas.end() && *siguiente == visto;
    if (esperado) ++siguiente;
    if (Acepta(visto) != esperado && ++errores < 10) ADD_FAILURE() << '"' << visto << '"';
  });
  EXPECT_EQ(errores, 0u);
  EXPECT_EQ(vistos, 12207031u);  // 5^0 + ... + 5^10
  EXPECT_EQ(siguiente, fechas.end());
}

TEST_F(cFechaTest, AceptaLoQuePareceUnaFecha) {
  for (const char* texto : {"1/2/06", "1", "31", "31/", "31/12", "31/12/", "31/12/2006", "99/99/9999", "1//",
                            "1//2006", "31122006", "123", "0/0/0"}) {
    EXPECT_TRUE(Acepta(texto)) << texto;
  }
}

TEST_F(cFechaTest, RehusaLoDemas) {
  for (const char* texto : {"", "/2/2006", "1/2/2006x", "1/2/20067", "1/2/2006/", "1///", "x", "1-2-2006",
                            "1/2/ 06", " 1", "1 ", "1/\xc3\xb1", "\xd9\xa1", "-1", "1.5", "1/2/2006\n"}) {
    EXPECT_FALSE(Acepta(texto)) << texto;
  }
}

TEST_F(cFechaTest, AlTeclearSoloEntraLoQueCabe) {
  EXPECT_EQ(Tecleado("15/03/2006"), "15/03/2006");
  EXPECT_EQ(Tecleado("1/2/2006x"), "1/2/2006");
  EXPECT_EQ(Tecleado("enero 5/3"), "5/3");
  EXPECT_EQ(Tecleado("15/03/2006789"), "15/03/2006");
}

TEST_F(cFechaTest, SeBorraConElTecladoYSeVuelveAEscribir) {
  EXPECT_EQ(Tecleado("12"), "12");
  for (int i = 0; i < 2; ++i) Tecla(fecha_, KEY_BackSpace);
  EXPECT_STREQ(fecha_->getText().text(), "");
  EXPECT_EQ(Tecleado("/1/2/06"), "1/2/06");
}

TEST_F(cFechaTest, ElVeredictoDelCampoComunNoCuenta) {
  fecha_->setNumColumns(3);
  EXPECT_EQ(Tecleado("15/03/2006"), "15/03/2006");
  Negado negado;
  fecha_->setTarget(&negado);
  EXPECT_EQ(Tecleado("1/2/06"), "1/2/06");
  EXPECT_GT(negado.preguntas, 0);
}

TEST_F(cFechaTest, EsUnCampoDeTextoConMargenDeDos) {
  EXPECT_TRUE(fecha_->isMemberOf(FXMETACLASS(FXTextField)));
  EXPECT_STREQ(fecha_->getClassName(), "cFecha");
  EXPECT_EQ(fecha_->getNumColumns(), 10);
  for (const FXint margen :
       {fecha_->getPadLeft(), fecha_->getPadRight(), fecha_->getPadTop(), fecha_->getPadBottom()})
    EXPECT_EQ(margen, 2);
}

}  // namespace
}  // namespace pruebas
