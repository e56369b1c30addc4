// Registration of data loaders, and the instructions that repeat a load.
#include <algorithm>
#include <string_view>
#include <utility>

#include "services/ArgumentReader.h"

using namespace quorvia::host;

namespace {

constexpr std::int64_t loaderCallbackVersion = 1;

bool registerLoader(Call& call, QuorArgListHandle arguments) {
    ArgumentReader reader(call, arguments,
                          {"LoaderName", "FileNameExtensions", "LoaderCallbackVersion",
                           "LoaderCallback", "LoaderSelectedCallback", "AllowMultiFileSelection",
                           "AllowAdvancedOptions", "AllowAppending"});
    Loader_s loader;
    loader.name = reader.text("LoaderName");
    loader.fileNameExtensions = reader.text("FileNameExtensions");
    const std::int64_t version = reader.integer("LoaderCallbackVersion");
    loader.allowsSeveralFiles = reader.integer("AllowMultiFileSelection") != 0;
    loader.allowsAdvancedOptions = reader.integer("AllowAdvancedOptions") != 0;
    loader.allowsAppending = reader.integer("AllowAppending") != 0;
    loader.load = reinterpret_cast<QuorLoaderCallback>(reader.function("LoaderCallback"));
    loader.select =
        reinterpret_cast<QuorLoaderSelectedCallback>(reader.function("LoaderSelectedCallback"));
    if (!reader.ok())
        return false;
    if (version != loaderCallbackVersion)
        return call.violate("\"LoaderCallbackVersion\" is ", version, ", not 1");
    call.host().loaders.push_back(std::move(loader));
    return true;
}

bool takeInstructions(Call& call, const char* loaderName, QuorStringListHandle instructions) {
    HostState_s& host = call.host();
    const auto isNamed = [loaderName](const Loader_s& loader) { return loader.name == loaderName; };
    if (loaderName == nullptr || std::none_of(host.loaders.begin(), host.loaders.end(), isNamed))
        return call.violate("there is no such loader");
    const GuestStringList_s* list = instructions != nullptr ? call.object(instructions) : nullptr;
    if (instructions != nullptr && list == nullptr)
        return false;
    std::vector<std::string> texts;
    if (list != nullptr) {
        for (const std::optional<std::string>& text : list->strings)
            texts.push_back(text.value_or(""));
    }
    host.log.instructions = std::move(texts);
    if (host.settings.refuseInstructions)
        return call.refuse("the host refuses the instructions");
    host.log.instructionsHandedOver = true;
    return true;
}

} // namespace

extern "C" {

bool QuorUtilImportAddLoaderX(QuorArgListHandle arguments) {
    Call call("QuorUtilImportAddLoaderX", arguments);
    return call.serve([&] { return registerLoader(call, arguments); });
}

bool QuorUtilImportSetLoaderInstr(const char* loaderName, QuorStringListHandle instructions) {
    Call call("QuorUtilImportSetLoaderInstr", loaderName, instructions);
    return call.serve([&] { return takeInstructions(call, loaderName, instructions); });
}

} // extern "C"
