// The search for a member.
#pragma once

#include "db/Catalogo.h"
#include "framework/Buscador.h"

extern char sbusquedasocio[15];  // key of the member or number of the person that was picked

/// Its list is empty until a filter is run, which is a search on the server.
class BusquedaSocio_Window : public Buscador<BusquedaSocio_Window> {
  FXDECLARE(BusquedaSocio_Window)
 public:
  explicit BusquedaSocio_Window(FXWindow* owner) : Buscador(owner, 500, "courier [adobe]") {}

 protected:
  BusquedaSocio_Window() {}

 private:
  friend Buscador;
  static constexpr size_t corte = 15;
  static auto& Resultado() { return sbusquedasocio; }
  static auto& Filas() { return Catalogo::SociosCaja; }
  static const char* Buscada(const cSocioCaja& socio) { return socio.getClaveSocioInt(); }
  /// The members that the server finds; none when it does not answer.
  void Filtra();
};
