#include "convert/plot3d/FileSet.h"

#include <algorithm>
#include <map>
#include <utility>

#include "convert/output/Format.h"
#include "convert/output/Refusal.h"
#include "convert/plot3d/FileFit.h"

namespace plot3d::program {

namespace {

using Zones = std::vector<std::size_t>;

/// The extension of the target if it is one of the kind, else the first of these.
std::string extensionFor(const std::string& target, const std::vector<std::string>& ofKind) {
    const std::string extension = extensionOf(target);
    return std::find(ofKind.begin(), ofKind.end(), extension) != ofKind.end() ? extension
                                                                              : ofKind.front();
}

std::string padded(std::size_t number, std::size_t count) {
    const std::size_t digits = std::to_string(count).size();
    std::string text = std::to_string(number);
    return std::string(digits - text.size(), '0') + text;
}

class FilePlanner {
public:
    FilePlanner(const Contents& contents, const Target_s& target)
        : contents_(contents), wishes_(target.form), target_(target.path),
          stem_(formatOfName(target.path) == Format_e::Plot3D ? withoutExtension(target.path)
                                                              : target.path) {
        std::map<std::size_t, Zones> byStep;
        for (std::size_t zone = 0; zone < contents.zones().size(); ++zone)
            if (!contents.zones()[zone].isBoundary)
                byStep[contents.zones()[zone].fileStep].push_back(zone);
        for (const auto& [step, zones] : byStep)
            steps_.push_back(zones);
    }

    std::vector<FilePlan_s> plan() {
        if (steps_.empty())
            refuseContents("there is no zone that a PLOT3D file can hold");
        planGrids();
        planSolutions();
        planFunctions();
        for (const FilePlan_s& file : files_)
            refuseUnfit(contents_, file);
        return std::move(files_);
    }

private:
    void planGrids() {
        const std::vector<std::size_t> coordinates = variablesOf(contents_, Role_e::Coordinate);
        if (coordinates.empty())
            return;
        const std::string extension = extensionFor(target_, {".x", ".xyz", ".g", ".p3d", ".in"});
        const bool isOne = isOneGridForAll(coordinates);
        for (std::size_t step = 0; step < (isOne ? 1 : steps_.size()); ++step) {
            const std::string number = isOne ? "" : numberOf(step);
            add(FileKind::Grid, stem_ + number + extension, step, coordinates);
            if (contents_.zones()[steps_[step].front()].kind == ZoneKind::Ordered)
                files_.back().iBlank = iBlankOf(contents_);
        }
    }

    /// Whether the zones of all times share the coordinates of the first.
    bool isOneGridForAll(const std::vector<std::size_t>& coordinates) const {
        if (steps_.size() == 1)
            return true;
        return std::all_of(steps_.begin(), steps_.end(), [&](const Zones& zones) {
            return std::equal(
                zones.begin(), zones.end(), steps_.front().begin(), steps_.front().end(),
                [&](std::size_t a, std::size_t b) { return shareAll(coordinates, a, b); });
        });
    }

    bool shareAll(const std::vector<std::size_t>& variables, std::size_t a, std::size_t b) const {
        return std::all_of(variables.begin(), variables.end(), [&](std::size_t variable) {
            return contents_.holder(a, variable) == contents_.holder(b, variable);
        });
    }

    void planSolutions() {
        std::vector<std::size_t> variables = variablesOf(contents_, Role_e::Solution);
        std::erase_if(variables, [this](std::size_t variable) { return isEmpty(variable); });
        const std::string extension = extensionFor(target_, {".q", ".qfile"});
        if (variables.empty())
            return;
        for (std::size_t step = 0; step < steps_.size(); ++step) {
            add(FileKind::Solution, stem_ + numberOf(step) + extension, step, variables);
            files_.back().style = contents_.style();
            files_.back().speciesCount = contents_.speciesCount();
        }
    }

    /// Overflow files may name species that they have no values of.
    bool isEmpty(std::size_t variable) const {
        return std::all_of(steps_.begin(), steps_.end(), [&](const Zones& zones) {
            return std::none_of(zones.begin(), zones.end(), [&](std::size_t zone) {
                return contents_.type(zone, variable).has_value();
            });
        });
    }

    void planFunctions() {
        const std::vector<std::vector<std::size_t>> groups = functionGroups();
        const std::string extension = extensionFor(target_, {".f", ".fun"});
        for (std::size_t step = 0; step < steps_.size(); ++step)
            for (std::size_t group = 0; group < groups.size(); ++group) {
                const std::string number =
                    groups.size() > 1 ? "_f" + std::to_string(group + 1) : "";
                add(FileKind::Function, stem_ + number + numberOf(step) + extension, step,
                    groups[group]);
            }
    }

    /// The function variables of one file at a time.
    std::vector<std::vector<std::size_t>> functionGroups() const {
        std::vector<std::vector<std::size_t>> groups;
        int place = -1;
        for (const std::size_t variable : variablesOf(contents_, Role_e::Function)) {
            if (contents_.variables()[variable].place != place)
                groups.emplace_back();
            place = contents_.variables()[variable].place;
            groups.back().push_back(variable);
        }
        return groups;
    }

    std::string numberOf(std::size_t step) const {
        return steps_.size() > 1 ? "_" + padded(step + 1, steps_.size()) : "";
    }

    void add(FileKind kind, const std::string& path, std::size_t step,
             const std::vector<std::size_t>& variables) {
        FilePlan_s file;
        file.kind = kind;
        file.path = path;
        file.zones = steps_[step];
        file.variables = variables;
        file.form = formOf(file);
        files_.push_back(file);
    }

    FileForm_s formOf(const FilePlan_s& file) const {
        FileForm_s form = wishes_.original;
        form.encoding = wishes_.encoding.value_or(form.encoding);
        form.markerBytes = wishes_.markerBytes.value_or(form.markerBytes);
        form.order = wishes_.order.value_or(form.order);
        form.precision = wishes_.precision.value_or(precisionOf(file));
        form.layout = wishes_.layout.value_or(layoutOf(file.zones.front()));
        const bool needsCount = file.zones.size() > 1;
        form.multiGrid = wishes_.multiGrid.value_or(form.multiGrid || needsCount);
        if (form.layout == Layout::OneD && !needsCount && !wishes_.multiGrid)
            form.multiGrid = false;
        return form;
    }

    /// That of the widest field. Functions go along with the solution, since readers want both of
    /// one precision: what was derived in 64 bits is narrowed where the solution has 32.
    ValueType precisionOf(const FilePlan_s& file) const {
        std::vector<std::size_t> variables = file.variables;
        for (const Role_e role : {Role_e::Solution, Role_e::Coordinate})
            if (const auto others = variablesOf(contents_, role);
                file.kind == FileKind::Function && !others.empty()) {
                variables = others;
                break;
            }
        for (const std::size_t zone : file.zones)
            for (const std::size_t variable : variables)
                if (contents_.type(zone, variable) == ValueType::Float64)
                    return ValueType::Float64;
        return ValueType::Float32;
    }

    Layout layoutOf(std::size_t zone) const {
        if (contents_.zones()[zone].kind != ZoneKind::Ordered)
            return Layout::Unstructured;
        if (contents_.dimensions() == 1)
            return Layout::OneD;
        if (contents_.dimensions() == 2)
            return Layout::TwoD;
        return wishes_.original.layout == Layout::ThreeDPlanes ? Layout::ThreeDPlanes
                                                               : Layout::ThreeDWhole;
    }

    const Contents& contents_;
    const FormWishes_s& wishes_;
    const std::string& target_;
    std::string stem_;
    std::vector<Zones> steps_;
    std::vector<FilePlan_s> files_;
};

} // namespace

std::vector<FilePlan_s> planFiles(const Contents& contents, const Target_s& target) {
    return FilePlanner(contents, target).plan();
}

} // namespace plot3d::program
