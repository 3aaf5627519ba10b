#include "platform/resident_libraries.h"

#include <dlfcn.h>

void KeepGraphicsLibraries() {
    if (void* library = dlopen("libpixman-1.so.0", RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE)) dlclose(library);
}
