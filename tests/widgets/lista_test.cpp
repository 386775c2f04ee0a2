#include "widgets/lista.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <vector>

namespace {

// A row with a key, by which it is sorted, and a number that tells rows of equal key apart. Counts
// comparisons.
struct Fila {
  int clave = -1;
  int serie = -1;
  static int comparaciones;
};
int Fila::comparaciones = 0;

bool operator>(const Fila& a, const Fila& b) {
  ++Fila::comparaciones;
  return a.clave > b.clave;
}
bool operator<=(const Fila& a, const Fila& b) {
  ++Fila::comparaciones;
  return a.clave <= b.clave;
}
bool operator==(const Fila& a, const Fila& b) { return a.clave == b.clave && a.serie == b.serie; }
std::ostream& operator<<(std::ostream& salida, const Fila& f) { return salida << f.clave << '#' << f.serie; }

std::vector<Fila> Contenido(const lista<Fila>& filas) {
  std::vector<Fila> contenido;
  for (const Fila& fila : filas) contenido.push_back(fila);
  return contenido;
}

// Steps that are left to the end tell where the cursor stands; a copy takes them, since the last one loses
// the list.
int Cursor(lista<Fila> filas) {
  const int total = filas.NumElementos();
  int restantes = 0;
  for (; !filas.ListaVacia(); filas.Siguiente()) ++restantes;
  return total - restantes;
}

lista<Fila> Lista(const std::vector<int>& claves) {
  lista<Fila> filas;
  int serie = 0;
  for (const int clave : claves) filas.Insertar({clave, serie++});
  return filas;
}

// The same list over a vector, where every insertion walks from the first element.
struct Modelo {
  std::vector<Fila> filas;
  size_t cursor = 0;

  void Insertar(const Fila& x) {
    cursor = 0;
    if (filas.empty() || filas[0] > x) {
      cursor = filas.empty() ? 0 : 1;
      filas.insert(filas.begin(), x);
      return;
    }
    while (cursor + 1 < filas.size() && filas[cursor + 1] <= x) ++cursor;
    filas.insert(filas.begin() + cursor + 1, x);
  }
};

TEST(Lista, NaceVacia) {
  lista<Fila> filas;
  EXPECT_TRUE(filas.ListaVacia());
  EXPECT_EQ(filas.NumElementos(), 0);
  filas.Primero();
  filas.Siguiente();
  EXPECT_TRUE(filas.ListaVacia());
  EXPECT_TRUE(Contenido(filas).empty());
}

TEST(Lista, ElPrimeroQueSeInsertaEsElPrimero) {
  lista<Fila> filas;
  filas.Insertar({7, 1});
  filas.Primero();
  EXPECT_EQ(filas.Item(0), (Fila{7, 1}));
  EXPECT_FALSE(filas.ListaVacia());
  EXPECT_EQ(filas.NumElementos(), 1);
}

TEST(Lista, LasClavesIgualesVanEnElOrdenEnQueEntraron) {
  const std::vector<Fila> espera = {{1, 1}, {1, 3}, {2, 0}, {2, 2}, {2, 4}, {3, 5}};
  EXPECT_EQ(Contenido(Lista({2, 1, 2, 1, 2, 3})), espera);
}

TEST(Lista, ElCursorQuedaAntesDelNuevoOEnElPrimeroDeAntes) {
  const struct {
    std::vector<int> antes;
    int nueva;
    int cursor;
  } casos[] = {
      {{}, 5, 0},   // on the new one
      {{5}, 4, 1},  // old first
      {{5}, 5, 0},  // before the new one
      {{5}, 6, 0},
      {{10, 20, 30}, 5, 1},
      {{10, 20, 30}, 10, 0},
      {{10, 20, 30}, 25, 1},
      {{10, 20, 30}, 30, 2},
      {{30, 20, 10}, 40, 2},
  };
  for (const auto& c : casos) {
    lista<Fila> filas = Lista(c.antes);
    filas.Insertar({c.nueva, 99});
    EXPECT_EQ(Cursor(filas), c.cursor) << c.nueva << " into " << c.antes.size();
  }
}

TEST(Lista, HaceLoQueUnRecorridoDesdeElPrimero) {
  std::mt19937 azar(20060315);
  const auto numero = [&azar](int menorQue) { return static_cast<int>(azar() % menorQue); };
  lista<Fila> filas;
  Modelo modelo;
  for (int paso = 0; paso < 20000; ++paso) {
    const int total = static_cast<int>(modelo.filas.size());
    const Fila nueva{numero(25), paso};
    const int accion = numero(100);
    if (accion < 40) {
      filas.Insertar(nueva);
      modelo.Insertar(nueva);
    } else if (accion < 50) {
      filas.Primero();
      modelo.cursor = 0;
    } else if (accion < 60 && static_cast<int>(modelo.cursor) + 1 < total) {
      filas.Siguiente();
      ++modelo.cursor;
    } else if (accion < 90 && total > 0) {
      modelo.cursor = numero(total);
      ASSERT_EQ(filas.Item(static_cast<int>(modelo.cursor)), modelo.filas[modelo.cursor]);
    } else if (accion < 95 && total > 0) {
      modelo.cursor = numero(total);
      modelo.filas[modelo.cursor] = nueva;
      filas.setItem(nueva, static_cast<int>(modelo.cursor));
    } else if (accion < 98) {
      filas = lista<Fila>(filas);
    } else {
      filas.RemoverTodos();
      modelo = Modelo();
    }
    ASSERT_EQ(filas.NumElementos(), static_cast<int>(modelo.filas.size())) << "step " << paso;
    ASSERT_EQ(Contenido(filas), modelo.filas) << "step " << paso;
    ASSERT_EQ(Cursor(filas), static_cast<int>(modelo.cursor)) << "step " << paso;
  }
}

TEST(Lista, ItemDaUnaCopiaYDejaAhiElCursor) {
  lista<Fila> filas = Lista({10, 20, 30});
  for (const int i : {2, 0, 1}) {
    Fila copia = filas.Item(i);
    EXPECT_EQ(copia.clave, 10 * (i + 1));
    EXPECT_EQ(Cursor(filas), i);
    copia.clave = 99;
    EXPECT_EQ(filas.Item(i).clave, 10 * (i + 1));
  }
}

TEST(Lista, ItemFueraDaUnoVacioYElCursorSeQueda) {
  lista<Fila> filas = Lista({10, 20, 30});
  filas.Item(1);
  for (const int i : {-1, 3, 1000}) {
    EXPECT_EQ(filas.Item(i), Fila()) << i;
    filas.setItem({99, 99}, i);
    EXPECT_EQ(Cursor(filas), 1) << i;
  }
  EXPECT_EQ(Contenido(filas), Contenido(Lista({10, 20, 30})));
  EXPECT_EQ(lista<Fila>().Item(0), Fila());
}

// An element that cannot be made from nothing.
struct Llena {
  explicit Llena(int clave) : clave(clave) {}
  int clave;
  bool operator>(const Llena& otra) const { return clave > otra.clave; }
  bool operator<=(const Llena& otra) const { return clave <= otra.clave; }
};

TEST(Lista, ElElementoNoNecesitaConstructorVacio) {
  lista<Llena> filas;
  for (const int clave : {20, 10, 30}) filas.Insertar(Llena(clave));
  for (const int i : {0, 1, 2}) EXPECT_EQ(filas.Item(i).clave, 10 * (i + 1));
  filas.setItem(Llena(25), 1);
  const lista<Llena> copia(filas);
  EXPECT_EQ(filas.Item(1).clave, 25);
  for (const int i : {-1, 3}) EXPECT_THROW(filas.Item(i), std::out_of_range);
  EXPECT_EQ(filas.Item(1).clave, 25);
  filas.RemoverTodos();
  EXPECT_THROW(filas.Item(0), std::out_of_range);
  EXPECT_EQ(copia.NumElementos(), 3);
}

TEST(Lista, SetItemReemplazaEnSuLugarSeaCualSeaLaClave) {
  lista<Fila> filas = Lista({10, 20, 30});
  filas.setItem({5, 77}, 1);
  const std::vector<Fila> espera = {{10, 0}, {5, 77}, {30, 2}};
  EXPECT_EQ(Contenido(filas), espera);
  EXPECT_EQ(Cursor(filas), 1);
  EXPECT_EQ(filas.NumElementos(), 3);
}

TEST(Lista, UnPasoMasAllaDelUltimoPierdeLaLista) {
  lista<Fila> filas = Lista({10, 20});
  filas.Primero();
  filas.Siguiente();
  EXPECT_EQ(Cursor(filas), 1);
  EXPECT_FALSE(filas.ListaVacia());
  filas.Siguiente();
  EXPECT_TRUE(filas.ListaVacia());
  filas.Primero();
  EXPECT_TRUE(filas.ListaVacia());

  filas.Insertar({5, 5});
  EXPECT_EQ(Contenido(filas), (std::vector<Fila>{{5, 5}}));
}

TEST(Lista, RemoverTodosVaciaDesdeCualquierCursorYLaListaVuelveAServir) {
  lista<Fila> filas = Lista({10, 20, 30});
  filas.Item(1);
  filas.RemoverTodos();
  EXPECT_TRUE(filas.ListaVacia());
  EXPECT_EQ(filas.NumElementos(), 0);
  filas.Insertar({2, 0});
  filas.Insertar({1, 1});
  EXPECT_EQ(Contenido(filas), (std::vector<Fila>{{1, 1}, {2, 0}}));
}

TEST(Lista, LasCopiasSonEnterasYConservanElCursor) {
  lista<Fila> original = Lista({10, 20, 30});
  original.Item(1);
  lista<Fila> copia(original);
  lista<Fila> asignada = Lista({1, 2, 3, 4});
  asignada = original;
  const lista<Fila>& misma = asignada;
  asignada = misma;

  original.setItem({99, 99}, 0);
  original.RemoverTodos();
  for (const auto& filas : {copia, asignada}) {
    EXPECT_EQ(Contenido(filas), Contenido(Lista({10, 20, 30})));
    EXPECT_EQ(filas.NumElementos(), 3);
    EXPECT_EQ(Cursor(filas), 1);
  }
  copia = original;
  EXPECT_TRUE(copia.ListaVacia());
}

TEST(Lista, RecorrerSinCambiarDejaElCursor) {
  lista<Fila> filas = Lista({10, 20, 30});
  filas.Item(2);
  EXPECT_EQ(Contenido(filas).size(), 3U);
  EXPECT_EQ(Cursor(filas), 2);
}

TEST(Lista, LlenarEnOrdenCuestaUnNumeroFijoDeComparacionesPorFila) {
  constexpr int kFilas = 5000;
  const struct {
    const char* orden;
    int clave, paso;
  } casos[] = {{"ascending", 0, 1}, {"descending", kFilas, -1}, {"equal", 0, 0}};
  for (const auto& c : casos) {
    SCOPED_TRACE(c.orden);
    lista<Fila> filas = Lista({2, 1});
    filas.setItem({0, 0}, 1);
    filas.RemoverTodos();  // a list that was out of order starts anew
    Fila::comparaciones = 0;
    for (int i = 0; i < kFilas; ++i) filas.Insertar({c.clave + i * c.paso, i});
    EXPECT_EQ(filas.NumElementos(), kFilas);
    EXPECT_LE(Fila::comparaciones, 4 * kFilas);
  }
}

}  // namespace
