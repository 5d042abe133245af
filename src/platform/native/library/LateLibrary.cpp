#include "platform/native/library/LateLibrary.h"

#include <dlfcn.h>

namespace korvane {

void* LateLibrary::Find(const char* function) const {
    // The system loads a library once and counts how often it was asked for.
    void* const library = dlopen(name_, RTLD_NOW | RTLD_LOCAL);
    return library == nullptr ? nullptr : dlsym(library, function);
}

} // namespace korvane
