#include "convert/plot3d/Plot3DWriter.h"

#include <algorithm>
#include <list>
#include <string_view>

#include <plot3d/Error.h>

#include "convert/plot3d/FileSet.h"
#include "manners/ResultFile.h"

namespace plot3d::program {

namespace {

void noteBoundaries(const Contents& contents, std::vector<std::string>& notes) {
    const auto count = std::count_if(contents.zones().begin(), contents.zones().end(),
                                     [](const ContentZone_s& zone) { return zone.isBoundary; });
    if (count > 0)
        notes.push_back("boundary zones have no place in PLOT3D files and are left out: " +
                        std::to_string(count));
}

bool isOfFile(const FilePlan_s& file, FileKind kind, std::size_t variable) {
    return file.kind == kind && std::find(file.variables.begin(), file.variables.end(), variable) !=
                                    file.variables.end();
}

bool isNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// "F2V13": as readers name what has no name.
bool isReadersName(std::string_view name) {
    const std::size_t v = name.find('V');
    return name.starts_with('F') && v != std::string_view::npos &&
           isNumber(name.substr(1, v - 1)) && isNumber(name.substr(v + 1));
}

void noteNames(const Contents& contents, const std::vector<FilePlan_s>& files,
               std::vector<std::string>& notes) {
    std::string names;
    bool areTold = true;
    for (std::size_t variable = 0; variable < contents.variables().size(); ++variable)
        if (std::any_of(files.begin(), files.end(), [&](const FilePlan_s& file) {
                return isOfFile(file, FileKind::Function, variable);
            })) {
            const std::string& name = contents.variables()[variable].name;
            names += (names.empty() ? "" : ", ") + name;
            areTold = areTold && isReadersName(name);
        }
    if (!areTold)
        notes.push_back("PLOT3D files hold no names; the function files have, in this order: " +
                        names);
}

void noteText(const FilePlan_s& file, std::vector<std::string>& notes) {
    if (file.form.encoding != Encoding::Text)
        return;
    std::string settings;
    if (file.iBlank)
        settings += " --set ASCIIHASIBLANK=Yes";
    if (file.form.precision == ValueType::Float64)
        settings += " --set ASCIIISDOUBLE=Yes";
    if (!settings.empty())
        notes.push_back("text does not tell all of itself; to load it add" + settings);
}

/// Through standard output or a pipe goes one file, which has no other name.
std::vector<FilePlan_s> plansFor(const Contents& contents, const Target_s& target) {
    std::vector<FilePlan_s> plans = planFiles(contents, target);
    if (!isStream(target.path))
        return plans;
    if (plans.size() > 1)
        throw Error(ErrorKind::Unsupported,
                    "these are " + std::to_string(plans.size()) +
                        " PLOT3D files, and standard output or a pipe takes one",
                    {.next = "-o and the name of a file, from which those of the others are made"});
    plans.front().path = target.path;
    return plans;
}

} // namespace

Written_s Plot3DWriter::write(Contents& contents, const Target_s& target) {
    const std::vector<FilePlan_s> plans = plansFor(contents, target);
    Written_s written;
    noteBoundaries(contents, written.notes);
    noteNames(contents, plans, written.notes);
    noteText(plans.front(), written.notes);
    std::list<ResultFile> files;
    for (const FilePlan_s& plan : plans) {
        files.emplace_back(plan.path, target.overwrites);
        written.files.push_back(plan.path);
    }
    auto file = files.begin();
    for (const FilePlan_s& plan : plans) {
        ByteOutput out((file++)->growingPath(), plan.path);
        writeFileContents(contents, plan, out);
        out.finish();
    }
    for (ResultFile& whole : files)
        whole.finish();
    return written;
}

} // namespace plot3d::program
