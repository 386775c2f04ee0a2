// The toolkit's own texts, in Spanish: the buttons of its boxes and the menu of the child windows.
#pragma once

#include <fx.h>

#include <FXTranslator.h>  // needs fx.h ahead of it

class Traductor : public FXTranslator {
 public:
  explicit Traductor(FXApp* app) : FXTranslator(app) {}

  /// The Spanish text of `mensaje`; texts that are not the toolkit's come back as they are.
  const FXchar* tr(const FXchar* contexto, const FXchar* mensaje, const FXchar* pista) const override;
};

/// Puts the entries of the toolkit's menu of child windows into Spanish, which it does not ask the translator
/// for.
void TraduceMenu(FXMDIMenu* menu);
