#include "convert/contents/Contents.h"

#include <algorithm>

namespace plot3d::program {

namespace {

Range run(std::int64_t first, std::int64_t count) {
    return {first, first + count - 1, 1};
}

} // namespace

void forEachBlock(const Extent& size, std::int64_t mostPoints,
                  const std::function<void(const Box& box, std::int64_t count)>& visit) {
    const std::int64_t columns = std::min(size.i, mostPoints);
    const std::int64_t rows =
        columns < size.i ? 1 : std::clamp<std::int64_t>(mostPoints / size.i, 1, size.j);
    const std::int64_t planes =
        rows < size.j ? 1 : std::clamp<std::int64_t>(mostPoints / (size.i * size.j), 1, size.k);
    for (std::int64_t k = 0; k < size.k; k += planes)
        for (std::int64_t j = 0; j < size.j; j += rows)
            for (std::int64_t i = 0; i < size.i; i += columns) {
                const Box box = {run(i, std::min(columns, size.i - i)),
                                 run(j, std::min(rows, size.j - j)),
                                 run(k, std::min(planes, size.k - k))};
                visit(box, box.count());
            }
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
