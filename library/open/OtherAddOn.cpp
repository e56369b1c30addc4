#include "open/OtherAddOn.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>

#include <plot3d/Error.h>

#include "open/Facts.h"
#include "open/LinkedAddOn.h"
#include "session/AddOnLibrary.h"
#include "session/AddOnPath.h"
#include "session/SeparateFrame.h"
#include "state/HostState.h"

namespace plot3dlib {

namespace {

using plot3d::Error;
using plot3d::ErrorKind;
using quorvia::host::AddOnLibrary;
using quorvia::host::Loader_s;

struct OpenAddOn_s {
    std::unique_ptr<AddOnLibrary> library;
    Loader_s loader;
};

/// Never destroyed: data sets may be closed after main has ended.
std::map<std::string, OpenAddOn_s>& openAddOns() {
    static auto* const all = new std::map<std::string, OpenAddOn_s>;
    return *all;
}

/// What a user of the host imports goes to the last loader, as before: the new ones come to stand
/// behind the linked-in one, which is always the first.
Loader_s takeLoader(std::vector<Loader_s>& loaders, std::size_t before) {
    const auto firstNew = loaders.begin() + static_cast<std::ptrdiff_t>(before);
    std::rotate(loaders.begin() + 1, firstNew, loaders.end());
    return loaders[1];
}

OpenAddOn_s opened(const std::string& path) {
    std::error_code unknown; // what can't be looked at can't be opened either
    if (!std::filesystem::exists(path, unknown))
        throw Error(ErrorKind::NotFound, "There is no such add-on.", ofFile(path));
    linkedLoader();
    const quorvia::host::SeparateFrame unseen;
    auto& loaders = quorvia::host::hostState().loaders;
    const std::size_t before = loaders.size();
    std::string error;
    OpenAddOn_s addOn;
    addOn.library = AddOnLibrary::open(path, error);
    if (addOn.library == nullptr)
        throw Error(ErrorKind::Unsupported, error);
    if (loaders.size() == before)
        throw Error(ErrorKind::Unsupported, "The add-on has registered no loader.", ofFile(path));
    addOn.loader = takeLoader(loaders, before);
    return addOn;
}

} // namespace

const Loader_s& loaderOfAddOn(const std::string& path) {
    const std::string whole = quorvia::host::addOnPath(path);
    auto& all = openAddOns();
    auto known = all.find(whole);
    if (known == all.end())
        known = all.emplace(whole, opened(whole)).first;
    return known->second.loader;
}

} // namespace plot3dlib
