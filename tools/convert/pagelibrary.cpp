#include "pagelibrary.h"

#include "bundle.h"
#include "error.h"

#include <dlfcn.h>

namespace {

const PageLibrary *load()
{
    const std::string path = programsFolder() + "/" TESSARO_PAGE_LIBRARY;
    void *object = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void *function = object ? dlsym(object, "tessaroPageLibrary") : nullptr;
    if (!function)
        throw ToolError(std::string("cannot load what makes pages: ") + dlerror());
    return reinterpret_cast<decltype(&tessaroPageLibrary)>(function)();
}

} // namespace

const PageLibrary &pageLibrary()
{
    static const PageLibrary *library = load();
    return *library;
}
