// An add-on's dynamic library, loaded into the reference host as a host does it: opened with all
// its symbols bound, entered through its one export, and closed again.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace quorvia::host {

class AddOnLibrary {
public:
    /// Opens the library at `path` and calls its entry InitQuorAddOn113. Null on failure, and
    /// `error` then says in one line what failed. An entry that registers no loader is no failure
    /// here: see ReferenceHost::loaderNames and the messages.
    static std::unique_ptr<AddOnLibrary> open(const std::string& path, std::string& error);
    /// Unloads.
    ~AddOnLibrary();
    AddOnLibrary(const AddOnLibrary&) = delete;
    AddOnLibrary& operator=(const AddOnLibrary&) = delete;

    /// Forgets the loaders and callbacks of the library, cleans its deferred fields (they are empty
    /// afterwards), closes the library, and reports every handle that it still held as a violation.
    void unload();

private:
    AddOnLibrary(void* handle, std::int64_t serialBefore)
        : handle_(handle), serialBefore_(serialBefore) {}
    void* handle_;
    std::int64_t serialBefore_; // what was given out later is the library's
};

} // namespace quorvia::host
