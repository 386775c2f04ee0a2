#include <fx.h>

#include <iostream>

#include "app/Aplicacion.h"
#include "app/Caja.h"
#include "app/Traductor.h"

int main(int argc, char* argv[]) {
  try {
    Aplicacion app;
    delete app.getTranslator();  // the toolkit lets go of it without deleting it
    app.setTranslator(new Traductor(&app));
    app.init(argc, argv);
    new Caja(&app);
    app.create();  // the first login runs in here
    return app.run();
  } catch (char* texto) {
    std::cout << texto << std::endl;
  }
  return 0;
}
