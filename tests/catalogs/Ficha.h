// A record of any class as a list of texts, so that one table and one walker serve for many records.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/Textos.h"

namespace pruebas {

/// A column of the record `R`: its setter and its getter, as texts.
template <class R>
struct Columna {
  std::function<void(R&, const std::string&)> pon;
  std::function<std::string(const R&)> da;
};

template <class Numero>
Numero ComoNumero(const std::string& texto) {
  if constexpr (std::is_integral_v<Numero>) return static_cast<Numero>(std::stol(texto));
  return static_cast<Numero>(std::stod(texto));
}

template <class R>
Columna<R> De(void (R::*pon)(const char*), const char* (R::*da)() const) {
  return {[=](R& r, const std::string& valor) { (r.*pon)(valor.c_str()); },
          [=](const R& r) { return (r.*da)(); }};
}
/// A number with decimals has six of them, as in a statement.
template <class R, class Numero>
Columna<R> De(void (R::*pon)(Numero), Numero (R::*da)() const) {
  return {[=](R& r, const std::string& valor) { (r.*pon)(ComoNumero<Numero>(valor)); },
          [=](const R& r) { return std::to_string((r.*da)()); }};
}

class Ficha {
 public:
  virtual ~Ficha() = default;
  virtual void AddNew() = 0;
  virtual void Update() = 0;
  virtual void Delete() = 0;
  virtual void Find() = 0;
  virtual void Fill(int fila) = 0;
  virtual void Clear() = 0;
  virtual bool Check() = 0;
  virtual void Banderas(bool cambiado, bool nuevo) = 0;

  /// Sets a column, counted from 0, through its setter.
  virtual void Pon(size_t columna, const std::string& valor) = 0;
  virtual std::string Da(size_t columna) const = 0;
  /// All columns and both flags: "[ZZZ|Prueba] cambiado nuevo".
  virtual std::string Estado() const = 0;
  /// The same of a copy made by the constructor, by assignment and by Copy.
  virtual Textos Copias() const = 0;
  /// Its caption; "" if the class has none.
  virtual std::string Clase() const = 0;

  /// Sets the columns from the first on.
  void PonTodas(const Textos& valores) {
    for (size_t i = 0; i < valores.size(); ++i) Pon(i, valores[i]);
  }
};

template <class R>
class FichaDe : public Ficha {
 public:
  FichaDe(const R& registro, const std::vector<Columna<R>>& columnas) : r(registro), columnas(columnas) {}

  void AddNew() override { r.AddNew(); }
  void Update() override { r.Update(); }
  void Delete() override { r.Delete(); }
  void Find() override { r.Find(); }
  void Fill(int fila) override { r.Fill(fila); }
  void Clear() override { r.Clear(); }
  bool Check() override { return r.Check(); }
  void Banderas(bool cambiado, bool nuevo) override {
    r.setDataChanged(cambiado);
    r.setIsNew(nuevo);
  }

  void Pon(size_t columna, const std::string& valor) override { columnas.at(columna).pon(r, valor); }
  std::string Da(size_t columna) const override { return columnas.at(columna).da(r); }
  std::string Estado() const override { return EstadoDe(r); }
  Textos Copias() const override {
    R porAsignacion, porCopy;
    porAsignacion = r;
    porCopy.Copy(r);
    return {EstadoDe(R(r)), EstadoDe(porAsignacion), EstadoDe(porCopy)};
  }
  std::string Clase() const override { return ClaseDe(r, 0); }

 private:
  std::string EstadoDe(const R& registro) const {
    std::string estado;
    for (const auto& columna : columnas) estado += (estado.empty() ? "[" : "|") + columna.da(registro);
    return estado + "]" + (registro.getDataChanged() ? " cambiado" : "") + (registro.IsNew() ? " nuevo" : "");
  }

  template <class T>
  static auto ClaseDe(const T& registro, int) -> decltype(registro.clase()) {
    return registro.clase();
  }
  template <class T>
  static const char* ClaseDe(const T&, long) {
    return "";
  }

  R r;
  std::vector<Columna<R>> columnas;
};

/// How a row of a table makes its record: by the constructor with every column, with these flags.
using Hacedor = std::function<std::unique_ptr<Ficha>(bool cambiado, bool nuevo)>;

/// Makes `R(valores..., cambiado, nuevo)`.
template <class R, class... Valores>
Hacedor Hace(std::vector<Columna<R>> columnas, Valores... valores) {
  return [=](bool cambiado, bool nuevo) {
    return std::make_unique<FichaDe<R>>(R(valores..., cambiado, nuevo), columnas);
  };
}

}  // namespace pruebas
