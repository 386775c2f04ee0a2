// The close of the last twelve months: what is owed, what is overdue and what is reserved, as bars and as a
// table, of all loans or of one type.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "operaciones/MarcoDeTabla.h"

class Tablero_Window : public FXMDIChild {
  FXDECLARE(Tablero_Window)
 public:
  enum { ID_TABLA = FXMDIChild::ID_LAST, ID_TIPO, ID_PNG, ID_LAST };

  Tablero_Window(FXMDIClient* area, FXMDIMenu* menu);
  ~Tablero_Window() override;

  /// The user can choose a type at once.
  void create() override;

  /// Asks the server and shows what it answers, of the same type as before.
  long onRelee(FXObject*, FXSelector, void*);
  /// Shows the type that is chosen.
  long onCmdTipo(FXObject*, FXSelector, void*);
  /// Asks for a file and writes the picture into it.
  long onCmdPng(FXObject*, FXSelector, void*);

  const FXImage* Imagen() const { return imagen.get(); }

 protected:
  Tablero_Window() {}

 private:
  /// A month and a type with its three figures, as the server writes them; a blank type is all of them.
  struct Cifras {
    std::string mes;  // MM/YYYY
    std::string tipo;
    std::string importes[3];
  };

  void ArmaEncabezado(FXComposite* padre);
  void Recibe();
  void Muestra();
  const Cifras* Busca(const std::string& mes, const std::string& tipo) const;

  std::vector<Cifras> cifras;
  std::vector<std::string> meses;
  std::vector<std::string> tipos;  // of the rows of the combo box
  bool leido = false;
  FXComboBox* combo = nullptr;
  FXImageFrame* cuadro = nullptr;
  std::unique_ptr<FXImage> imagen;
  MarcoDeTabla* marco = nullptr;
};
