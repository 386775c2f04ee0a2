// The search for a person.
#pragma once

#include "db/Catalogo.h"
#include "framework/Buscador.h"

extern char sbusquedasocio[15];  // key of the member or number of the person that was picked

/// Its list is empty until a filter is run, which is a search on the server.
class BusquedaSujeto_Window : public Buscador<BusquedaSujeto_Window> {
  FXDECLARE(BusquedaSujeto_Window)
 public:
  explicit BusquedaSujeto_Window(FXWindow* owner) : Buscador(owner, 500, "courier [adobe]") {}

 protected:
  BusquedaSujeto_Window() {}

 private:
  friend Buscador;
  static constexpr size_t corte = 6;
  static auto& Resultado() { return sbusquedasocio; }
  static auto& Filas() { return Catalogo::Sujetos; }
  static const char* Buscada(const cSujeto& sujeto) { return sujeto.getNombre(); }
  /// The persons that the server finds; none for an empty filter, of which it is not asked.
  void Filtra();
};
