#include "analysis/findings/InfoWords.h"

#include <fmt/core.h>

#include "console/Words.h"

namespace plot3d::analysis {

using console::counted;
using console::grouped;

const char* wordOf(FileKind kind) {
    switch (kind) {
    case FileKind::Grid:
        return "grid";
    case FileKind::Solution:
        return "solution";
    case FileKind::Function:
        return "function";
    case FileKind::Boundary:
        return "boundary";
    case FileKind::Name:
        return "name";
    }
    return "unknown";
}

const char* wordOf(Encoding encoding) {
    switch (encoding) {
    case Encoding::Text:
        return "text";
    case Encoding::Binary:
        return "binary";
    case Encoding::Fortran:
        return "fortran";
    }
    return "unknown";
}

const char* wordOf(Layout layout) {
    switch (layout) {
    case Layout::OneD:
        return "1D";
    case Layout::TwoD:
        return "2D";
    case Layout::ThreeDWhole:
        return "3DWhole";
    case Layout::ThreeDPlanes:
        return "3DPlanes";
    case Layout::Unstructured:
        return "Unstructured";
    }
    return "unknown";
}

const char* wordOf(Style style) {
    switch (style) {
    case Style::Classic:
        return "Classic";
    case Style::Function:
        return "Function";
    case Style::Overflow:
        return "Overflow";
    case Style::Swift:
        return "Swift";
    }
    return "unknown";
}

const char* wordOf(ByteOrder order) {
    return order == ByteOrder::Little ? "little" : "big";
}

const char* captionOf(Layout layout) {
    switch (layout) {
    case Layout::OneD:
        return "1-D";
    case Layout::TwoD:
        return "2-D";
    case Layout::ThreeDWhole:
        return "3-D whole";
    case Layout::ThreeDPlanes:
        return "3-D planes";
    case Layout::Unstructured:
        return "unstructured";
    }
    return "unknown";
}

std::string sizeText(const GridSize& size, Layout layout) {
    switch (layout) {
    case Layout::OneD:
        return grouped(size.i);
    case Layout::TwoD:
        return fmt::format("{} x {}", size.i, size.j);
    case Layout::Unstructured:
        return fmt::format("{}, {}, {}", counted(size.i, "node", "nodes"),
                           counted(size.j, "triangle", "triangles"),
                           counted(size.k, "tetrahedron", "tetrahedra"));
    case Layout::ThreeDWhole:
    case Layout::ThreeDPlanes:
        break;
    }
    return fmt::format("{} x {} x {}", size.i, size.j, size.k);
}

std::int64_t pointCount(const GridSize& size, Layout layout) {
    return layout == Layout::Unstructured ? size.i : std::int64_t{size.i} * size.j * size.k;
}

std::string accountText(const ByteAccount& bytes) {
    const std::string size = counted(bytes.size, "byte", "bytes");
    if (bytes.size == 0)
        return "none in the file";
    if (bytes.used == 0)
        return fmt::format("none of {} used", size);
    if (bytes.missing > 0)
        return fmt::format("{} missing, {} in the file", grouped(bytes.missing), size);
    if (bytes.surplus > 0)
        return fmt::format("{} of {} left over, {} used", grouped(bytes.surplus), size,
                           grouped(bytes.used));
    return fmt::format("all {} used", size);
}

std::string scalarsText(const Scalars& scalars) {
    std::string text;
    const auto add = [&text](const char* name, const std::optional<double>& value,
                             const char* unit) {
        if (value)
            text += fmt::format("{}{} {:g}{}", text.empty() ? "" : ", ", name, *value, unit);
    };
    add("Mach", scalars.mach, "");
    add("alpha", scalars.alpha, " degrees");
    add("Reynolds", scalars.reynolds, "");
    add("time", scalars.time, "");
    return text;
}

std::string misfitText(const Misfit& misfit) {
    std::string details;
    const auto add = [&details](const std::string& text) {
        details += (details.empty() ? "" : ", ") + text;
    };
    if (misfit.line)
        add(fmt::format("line {}", grouped(*misfit.line)));
    if (misfit.line && misfit.column)
        add(fmt::format("column {}", grouped(*misfit.column)));
    if (misfit.byte && !misfit.line)
        add(fmt::format("at byte {}", grouped(*misfit.byte)));
    if (!misfit.expected.empty())
        add("expected " + misfit.expected);
    if (!misfit.found.empty())
        add("found " + misfit.found);
    if (details.empty())
        return misfit.what;
    std::string what = misfit.what;
    if (!what.empty() && what.back() == '.')
        what.pop_back();
    return fmt::format("{} ({})", what, details);
}

} // namespace plot3d::analysis
