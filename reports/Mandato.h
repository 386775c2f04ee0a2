// Commands for the other programs of the desktop.
#pragma once

#include <fx.h>

/// Runs a command by the shell and answers its status. What cannot be run changes nothing.
int Manda(const FXString& mandato);

/// `texto` as one word of a command, between double quotes, in which no character means anything else to the
/// shell.
FXString Citado(const FXString& texto);
