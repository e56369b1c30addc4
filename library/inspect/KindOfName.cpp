#include "inspect/KindOfName.h"

#include "filenames/FilePatternTables.h"
#include "filenames/SimplePatternMatcher.h"

namespace plot3dlib {

namespace io = quorvia::quorutildataio;

namespace {

struct Matchers_s {
    io::SimplePatternMatcher grid;
    io::SimplePatternMatcher solution;
    io::SimplePatternMatcher function;
    io::SimplePatternMatcher name;
    io::SimplePatternMatcher boundary;
};

Matchers_s makeMatchers() {
    const io::FilePatterns_s patterns = io::filePatterns();
    return {io::SimplePatternMatcher(patterns.grid), io::SimplePatternMatcher(patterns.solution),
            io::SimplePatternMatcher(patterns.function), io::SimplePatternMatcher(patterns.name),
            io::SimplePatternMatcher({"*.fvbnd"})};
}

} // namespace

std::optional<plot3d::FileKind> kindOfName(const std::string& path) {
    static const Matchers_s matchers = makeMatchers();
    const std::string name = path.substr(path.find_last_of('/') + 1);
    if (matchers.boundary.matches(name))
        return plot3d::FileKind::Boundary;
    if (matchers.grid.matches(name))
        return plot3d::FileKind::Grid;
    if (matchers.solution.matches(name))
        return plot3d::FileKind::Solution;
    if (matchers.function.matches(name))
        return plot3d::FileKind::Function;
    if (matchers.name.matches(name))
        return plot3d::FileKind::Name;
    return std::nullopt;
}

} // namespace plot3dlib
