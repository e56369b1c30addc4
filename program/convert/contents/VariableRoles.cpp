#include "convert/contents/VariableRoles.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "analysis/fields/IBlank.h"

namespace plot3d::program {

namespace {

constexpr std::array<std::string_view, 3> coordinateNames = {"X", "Y", "Z"};

std::ptrdiff_t solutionCount(const std::vector<ContentVariable_s>& variables) {
    return std::count_if(variables.begin(), variables.end(), [](const ContentVariable_s& variable) {
        return variable.role == Role_e::Solution;
    });
}

class Roles {
public:
    Roles(const DataSet& data, const SourceFacts_s& facts) : data_(data), facts_(facts) {
        for (const Variable& variable : data.variables())
            variables_.push_back({variable.name, Role_e::Function, 0});
    }

    std::vector<ContentVariable_s> find() {
        if (!data_.files().grid.empty())
            findGrid();
        for (int count = 0; count < facts_.solutionVariables; ++count)
            take(Role_e::Solution, 0);
        for (std::size_t file = 0; file < facts_.functionVariables.size(); ++file)
            for (int count = 0; count < facts_.functionVariables[file]; ++count)
                take(Role_e::Function, static_cast<int>(file) + 1);
        return std::move(variables_);
    }

private:
    /// Grid files give these names, and no name file changes them.
    void findGrid() {
        for (std::size_t place = 0; place < static_cast<std::size_t>(data_.dimensions()); ++place)
            if (next_ < variables_.size() && variables_[next_].name == coordinateNames[place])
                take(Role_e::Coordinate, static_cast<int>(place));
        if (analysis::iBlankVariable(data_) == next_)
            take(Role_e::IBlank, 0);
    }

    void take(Role_e role, int place) {
        if (next_ == variables_.size())
            return;
        variables_[next_].role = role;
        variables_[next_].place = place;
        ++next_;
    }

    const DataSet& data_;
    const SourceFacts_s& facts_;
    std::vector<ContentVariable_s> variables_;
    std::size_t next_ = 0;
};

} // namespace

std::vector<ContentVariable_s> variableRoles(const DataSet& data, const SourceFacts_s& facts) {
    return Roles(data, facts).find();
}

void keepSolutionWhole(std::vector<ContentVariable_s>& kept,
                       const std::vector<ContentVariable_s>& all) {
    if (solutionCount(kept) == solutionCount(all))
        return;
    for (ContentVariable_s& variable : kept)
        if (variable.role == Role_e::Solution)
            variable = {variable.name, Role_e::Function, 0};
}

} // namespace plot3d::program
