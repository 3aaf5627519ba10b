#include "platform/resident_libraries.h"

#include <dlfcn.h>

#include <initializer_list>

void KeepGraphicsLibraries() {
    for (const char* name : {"libpixman-1.so.0", "libcairo.so.2", "libfreetype.so.6", "libfontconfig.so.1"})
        if (void* library = dlopen(name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE)) dlclose(library);
}
