// Where the module is looked for.
#include "batch/PaintLoader.h"

#include "base/Failure.h"

#include <dlfcn.h>
#include <filesystem>

namespace velorix {
namespace {

namespace fs = std::filesystem;

fs::path FindModule()
{
    std::error_code Unknown;
    const fs::path Program = fs::read_symlink("/proc/self/exe", Unknown).parent_path();
    const fs::path Library = (Program / VELORIX_LIBRARY_FOLDER).lexically_normal();
    for (const fs::path& Folder : {Program, Library})
        if (fs::exists(Folder / PaintModuleName, Unknown)) return Folder / PaintModuleName;
    throw Failure(std::string("pictures are painted by ") + PaintModuleName + ", which is neither in \"" +
                  Program.string() + "\" nor in \"" + Library.string() + "\"; json can do without");
}

} // namespace

const PaintServices& LoadPaintServices()
{
    const fs::path Module = FindModule();
    using Entry = const PaintServices* (*)();
    void* const Loaded = ::dlopen(Module.c_str(), RTLD_NOW | RTLD_LOCAL);
    const auto Services = Loaded ? reinterpret_cast<Entry>(::dlsym(Loaded, PaintServicesName)) : nullptr;
    if (!Services) throw Failure("Can't load \"" + Module.string() + "\": " + ::dlerror());
    return *Services();
}

} // namespace velorix
