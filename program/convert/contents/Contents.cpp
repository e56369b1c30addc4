#include "convert/contents/Contents.h"

#include <algorithm>

#include "analysis/fields/BlockSplit.h"

namespace plot3d::program {

void forEachBlock(const Extent& size, std::int64_t mostPoints,
                  const std::function<void(const Box& box, std::int64_t count)>& visit) {
    for (const Box& box : analysis::blocksOf(Box::whole(size), mostPoints))
        visit(box, box.count());
}

std::vector<std::string> namesOf(const Contents& contents) {
    std::vector<std::string> names;
    for (const ContentVariable_s& variable : contents.variables())
        names.push_back(variable.name);
    return names;
}

std::vector<std::size_t> variablesOf(const Contents& contents, Role_e role) {
    std::vector<std::size_t> found;
    const std::vector<ContentVariable_s>& variables = contents.variables();
    for (std::size_t index = 0; index < variables.size(); ++index)
        if (variables[index].role == role)
            found.push_back(index);
    std::stable_sort(found.begin(), found.end(), [&](std::size_t a, std::size_t b) {
        return variables[a].place < variables[b].place;
    });
    return found;
}

std::optional<std::size_t> iBlankOf(const Contents& contents) {
    const std::vector<std::size_t> found = variablesOf(contents, Role_e::IBlank);
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<std::int32_t> readIntegers(Contents& contents, std::size_t zone, std::size_t variable) {
    const Extent& size = contents.zones()[zone].size;
    std::vector<std::int32_t> values(static_cast<std::size_t>(size.count()));
    contents.read(zone, variable, Box::whole(size), values.data());
    return values;
}

} // namespace plot3d::program
