// What `main` of a program does: the application in Spanish, its main window, the event loop.
#pragma once

#include <fx.h>

#include <iostream>

#include "app/Aplicacion.h"
#include "app/Traductor.h"

/// Runs the program whose main window is `Principal`. A text that nobody caught ends it in order.
template <class Principal>
int Corre(int argc, char* argv[]) {
  try {
    Aplicacion app;
    delete app.getTranslator();  // the toolkit lets go of it without deleting it
    app.setTranslator(new Traductor(&app));
    app.init(argc, argv);
    new Principal(&app);
    app.create();  // the first login runs in here
    return app.run();
  } catch (char* texto) {
    std::cout << texto << std::endl;
  }
  return 0;
}
