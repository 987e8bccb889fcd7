// The libraries linked as usual: they are loaded before main.
#include "lazy/LazyLibraries.h"

void WhenLibrariesLoad(LibrariesLoadedHook hook) { hook(); }
