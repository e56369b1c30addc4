#include "render/SceneLibrary.h"

#include <filesystem>
#include <string>

#include <dlfcn.h>
#include <plot3d/Error.h>
#include <plot3d/Version.h>

namespace plot3d::program {

namespace {

namespace fs = std::filesystem;

constexpr const char* fileName = "libplot3dscene.so";

/// Where libplot3d lies.
fs::path libraryFolder() {
    Dl_info info = {};
    const bool isKnown = dladdr(reinterpret_cast<const void*>(&plot3d::version), &info) != 0;
    return isKnown ? fs::absolute(info.dli_fname).parent_path() : fs::path();
}

[[noreturn]] void refuse(const std::string& message, const std::string& next) {
    ErrorFacts facts;
    facts.next = next;
    throw Error(ErrorKind::Unsupported, message, std::move(facts));
}

void* loadedLibrary() {
    for (const fs::path& folder : {libraryFolder() / "plot3d", libraryFolder()}) {
        std::error_code error; // one that can't be asked about is not there
        const fs::path file = folder / fileName;
        if (!fs::exists(file, error))
            continue;
        if (void* const handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL))
            return handle;
        refuse(std::string("the library for pictures can't be loaded: ") + dlerror(), {});
    }
    refuse("pictures are not part of this installation: there is no " + std::string(fileName),
           "install the package plot3d-render, or build with VTK (PLOT3D_BUILD_SCENE)");
}

} // namespace

std::unique_ptr<scene::Painter> loadedPainter() {
    using Entry = scene::Painter* (*)(const char*);
    const auto entry = reinterpret_cast<Entry>(dlsym(loadedLibrary(), "plot3dScenePainter"));
    std::unique_ptr<scene::Painter> painter(entry == nullptr ? nullptr : entry(plot3d::version()));
    if (!painter)
        refuse("the library for pictures is not of this version, " + std::string(plot3d::version()),
               "install plot3d and plot3d-render of one version");
    return painter;
}

} // namespace plot3d::program
