// Opens files and web addresses with whatever program for them is found on the path.
#pragma once

#include <fx.h>

/// Shows `target`, a file or a web address, in the first viewer of its kind that the path has, without
/// waiting for it. A status of the shell above 0, or 0, which stands for a good start as well as for no
/// viewer at all.
FXint fxexecute(FXString target);

/// The same with viewers of one's own, their names parted by tabs. None at all runs `target` itself, if it is
/// a program.
FXint fxexecute(FXString target, const FXString& visores);
