#include "session/AddOnLibrary.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>
#include <vector>

#include <dlfcn.h>

#include "model/Room.h"
#include "session/GuestEntry.h"
#include "state/GuestWatch.h"
#include "state/HostState.h"

namespace quorvia::host {

namespace {

constexpr const char* entryName = "InitQuorAddOn113";

std::string lastLinkError() {
    const char* text = dlerror();
    return text != nullptr ? text : "unknown reason";
}

// Where the library that holds the code lies in memory; null if no library does.
const void* libraryOf(const void* code) {
    Dl_info info = {};
    return dladdr(code, &info) != 0 ? info.dli_fbase : nullptr;
}

template <typename Result, typename... Arguments>
const void* libraryOf(Result (*function)(Arguments...)) {
    return libraryOf(reinterpret_cast<const void*>(function));
}

bool comesFrom(const FieldStorage* storage, const void* library) {
    return storage != nullptr && storage->isDeferred() &&
           libraryOf(storage->deferral()->code()) == library;
}

std::size_t countFieldsOf(const DataSet& data, const void* library) {
    std::ptrdiff_t count = 0;
    for (const std::unique_ptr<Zone_s>& zone : data.zones())
        count += std::count_if(zone->fields.begin(), zone->fields.end(), [&](const Field_s& field) {
            return comesFrom(field.storage.get(), library);
        });
    return static_cast<std::size_t>(count);
}

// The clean-up of a field finds all fields empty, if there is memory to keep them until then, and
// else some that come later.
void emptyFieldsOf(const DataSet* data, const void* library) noexcept {
    if (data == nullptr)
        return;
    std::vector<std::shared_ptr<FieldStorage>> ended;
    makeRoomIfPossible(ended, countFieldsOf(*data, library));
    for (const std::unique_ptr<Zone_s>& zone : data->zones()) {
        for (Field_s& field : zone->fields) {
            if (!comesFrom(field.storage.get(), library))
                continue;
            std::shared_ptr<FieldStorage> last = std::move(field.storage);
            if (hasRoom(ended))
                ended.push_back(std::move(last));
        }
    }
}

void forgetCallbacksOf(HostState_s& host, const void* library) {
    const auto isLoader = [library](const Loader_s& loader) {
        return libraryOf(loader.load) == library;
    };
    const auto isCallback = [library](QuorStateChangeCallback callback) {
        return libraryOf(callback) == library;
    };
    host.loaders.erase(std::remove_if(host.loaders.begin(), host.loaders.end(), isLoader),
                       host.loaders.end());
    host.stateChangeCallbacks.erase(std::remove_if(host.stateChangeCallbacks.begin(),
                                                   host.stateChangeCallbacks.end(), isCallback),
                                    host.stateChangeCallbacks.end());
    host.toolkit.removeWhere([library](const Dialog_s& dialog) {
        return dialog.maker != nullptr && libraryOf(dialog.maker) == library;
    });
}

} // namespace

std::unique_ptr<AddOnLibrary> AddOnLibrary::open(const std::string& path, std::string& error) {
    HostState_s& host = hostState();
    std::unique_ptr<AddOnLibrary> library(new AddOnLibrary(nullptr, host.serials.last()));
    dlerror();
    library->handle_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library->handle_ == nullptr) {
        error = "The add-on can't be loaded: " + lastLinkError();
        return nullptr;
    }
    void* entry = dlsym(library->handle_, entryName);
    if (entry == nullptr) {
        error = "The library " + path + " is no add-on: it does not export " + entryName + ".";
        return nullptr;
    }
    if (!enterGuest(reinterpret_cast<GuestEntry>(entry), "add-on " + path, error))
        return nullptr;
    return library;
}

AddOnLibrary::~AddOnLibrary() {
    unload();
}

void AddOnLibrary::unload() {
    if (handle_ == nullptr)
        return;
    HostState_s& host = hostState();
    const void* entry = dlsym(handle_, entryName);
    const void* library = entry != nullptr ? libraryOf(entry) : nullptr;
    if (library != nullptr) {
        forgetCallbacksOf(host, library);
        for (const std::unique_ptr<Frame>& frame : host.frames.all())
            emptyFieldsOf(frame->dataSet(), library);
    }
    dlclose(handle_);
    handle_ = nullptr;
    GuestWatch::since(host, serialBefore_).finish();
}

} // namespace quorvia::host
