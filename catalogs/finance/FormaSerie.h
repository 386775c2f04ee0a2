// The forms of the series: one shape, the currencies' own, with a day or a month as the key.
//
// A form names its title and width, its boxes, and what it calls its figure; its catalogue it states as every
// form does. Udis_Window is the model of one by day, Inpc_Window of one by month.
#pragma once

#include "db/Catalogo.h"
#include "framework/CampoFecha.h"
#include "framework/Forma.h"

/// What both kinds have in common.
template <class Ventana>
class FormaSerie : public Forma<Ventana, FXMDIChild> {
 protected:
  static constexpr bool trazaErrores = true;

  FormaSerie() {}
  FormaSerie(FXMDIClient* area, FXMDIMenu* menu, const char* titulo, FXshort ancho)
      : Forma<Ventana, FXMDIChild>(area, menu, titulo, {20, 20, ancho, 205}) {}

  /// The last steps of its constructor. The slot is that of the currencies.
  void Termina() {
    this->ArmaBotones();
    this->Abre("terminando creacion frm pais", 1);
  }
};

/// A form by day: a date field with its calendar is the key, and the list shows the days.
template <class Ventana>
class FormaDiaria : public FormaSerie<Ventana> {
 public:
  enum { ID_CALENDARIO = Forma<Ventana, FXMDIChild>::ID_LISTA + 1, ID_SALIR, ID_LAST };

  long onCmdCalendario(FXObject*, FXSelector, void*) { return fecha.Elige(this, Ventana::formato); }

 protected:
  static constexpr FormatoFecha formato = FormatoFecha::Ceros;

  using FormaSerie<Ventana>::FormaSerie;

  template <class Fila>
  FXString Renglon(const Fila& fila) {
    return FXStringFormat("%10.10s", fila.getFecha().AsDMY());
  }

  DatoFecha fecha;
};

/// A form by month: year and month are the key, and the list shows both.
template <class Ventana>
class FormaMensual : public FormaSerie<Ventana> {
 protected:
  static constexpr size_t camposDeClave = 2;

  using FormaSerie<Ventana>::FormaSerie;

  /// All that its constructor does.
  void Arma(const char* serie, const char* etiqueta) {
    this->ArmaLista(serie, 170);
    FXMatrix* matriz = this->ArmaGrupo("Identificación");
    campoClave(matriz, "Año:", 4, ano);
    matriz = this->ArmaGrupo("Datos");
    campoEntero(matriz, "Mes:", 2, mes);
    campoReal(matriz, etiqueta, 12, cifra);
    this->Termina();
  }

  template <class Fila>
  FXString Renglon(const Fila& fila) {
    return FXStringFormat("%4i %2i", fila.getAno(), fila.getMes());
  }
  /// The fields of the form, the figure with the getter and the setter that its record calls it by.
  template <class R>
  auto Mensuales(double (R::*get)() const, void (R::*set)(double)) {
    return std::tuple(Liga(ano, &R::getAno, &R::setAno), Liga(mes, &R::getMes, &R::setMes),
                      Liga(cifra, get, set));
  }

  DatoEntero ano;
  DatoEntero mes;
  DatoReal cifra;
};
