#include "plot3dsample/CommandLine.h"

#include <cstddef>
#include <ostream>

#include <fmt/core.h>

#include "console/options/OptionText.h"
#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

namespace {

/// The options as words, before they mean anything.
struct Words_s {
    std::vector<std::string> caseAndFolder;
    std::string encoding = "binary";
    std::string style;
    std::string layout;
    std::string size;
    int steps = 0;
    bool isBigEndian = false;
    bool isDouble = false;
    bool wantsHelp = false;
    bool wantsVersion = false;
};

std::string casesText(std::size_t width) {
    std::string text = "\nCases:\n";
    for (const SampleCase_s& sample : sampleCases())
        text += console::helpEntry(std::string(sample.name), std::string(sample.summary), width);
    return text;
}

constexpr const char* tail =
    "\nExamples:\n"
    "  plot3d-sample cylinder samples --encoding fortran4 --iblank\n"
    "      overset grids with I-blank, as a flow solver leaves them\n"
    "  plot3d-sample vortex samples --double --single --steps 20 --size 201x201\n"
    "      a time series of 20 solution files, vortex_t0.00.q to vortex_t4.75.q\n"
    "\nExit codes: 0 written, 1 could not write, 2 bad usage.\n";

std::string helpText(const console::OptionParser& parser) {
    const std::size_t width = console::helpWidth(0);
    std::string text = "Writes PLOT3D sample data sets: grids with a flow that means something.\n\n"
                       "Usage: plot3d-sample [OPTION]... CASE FOLDER\n\n";
    for (const console::OptionRow_s& row : parser.positionals())
        text += console::helpEntry(console::argumentsOf(row), row.text, width);
    return text + casesText(width) + console::helpOfOptions(parser.options(), width) + tail;
}

void declare(const console::OptionTable& table, SampleOptions_s& options, Words_s& words) {
    table.files(words.caseAndFolder,
                "What to write, and where: the folder is made if need be, files of the same names "
                "in it are replaced",
                "CASE FOLDER");
    table.text("--encoding", words.encoding, "text|binary|fortran4|fortran8",
               "Text, plain binary (the default), or Fortran records with markers of 4 or 8 bytes");
    table.flag("--big-endian", words.isBigEndian, "Most significant byte first; not for text");
    table.flag("--double", words.isDouble, "64-bit reals (default 32-bit)");
    table.flag("--iblank", options.hasIBlank, "Grid file with I-blank (default without)");
    table.flag("--single", options.isSingleGrid,
               "One grid, without a count of grids (default with the count)");
    table.flag("--surface", options.isSurface,
               "ball: triangles of the surface (default tetrahedra)");
    table.flag("--boundaries", options.hasBoundaries,
               "cylinder, vortex: a boundary file beside the grid file (default without)");
    table.text("--style", words.style, "classic|function|overflow|swift",
               "Style of the values (default: the case's own)");
    table.text("--layout", words.layout, "1d|2d|3dwhole|3dplanes|unstructured",
               "Layout of the grids (default: the case's own)");
    table.number("--steps", words.steps, "COUNT", "Time steps of a series, at least 1 (default 5)");
    table.text("--size", words.size, "SIZE",
               "Points of the first grid, like 41, 41x31 or 41x31x5; ball: cells along an edge "
               "(default: the case's own)");
    table.flag("-h,--help", words.wantsHelp, "Show this help");
    table.flag("--version", words.wantsVersion, "Show the version");
}

bool isGiven(const console::OptionParser& parser, const char* option) {
    return !parser.textsOf(option).empty();
}

void interpret(const console::OptionParser& parser, const Words_s& words,
               SampleOptions_s& options) {
    if (words.caseAndFolder.size() != 2)
        throw UsageError("expected a case and a folder, like plot3d-sample cylinder samples; "
                         "plot3d-sample --help lists the cases");
    options.caseName = words.caseAndFolder[0];
    options.directory = words.caseAndFolder[1];
    setEncoding(words.encoding, options.form);
    if (words.isDouble)
        options.form.precision = plot3dwriter::Precision_e::Double;
    if (words.isBigEndian && options.form.encoding == plot3dwriter::Encoding_e::Text)
        throw UsageError("--big-endian: text has no byte order");
    if (words.isBigEndian)
        options.form.byteOrder = plot3dwriter::ByteOrder_e::Big;
    if (isGiven(parser, "--style"))
        options.style = styleNamed(words.style);
    if (isGiven(parser, "--layout"))
        options.layout = layoutNamed(words.layout);
    if (isGiven(parser, "--size"))
        options.size = sizeNamed(words.size);
    if (!isGiven(parser, "--steps"))
        return;
    if (words.steps < 1)
        throw UsageError(fmt::format("--steps: found {}, expected at least 1", words.steps));
    options.steps = words.steps;
}

} // namespace

std::optional<SampleOptions_s> parseCommandLine(const std::vector<std::string>& args,
                                                std::ostream& out) {
    SampleOptions_s options;
    Words_s words;
    console::OptionParser parser;
    declare(parser.table(), options, words);
    const std::string problem = parser.parse(args);
    if (words.wantsHelp || words.wantsVersion) {
        out << (words.wantsHelp ? helpText(parser) : "plot3d-sample " PLOT3D_SAMPLE_VERSION "\n");
        return std::nullopt;
    }
    const std::string unknown = console::unknownWordOf(parser, "plot3d-sample");
    if (!unknown.empty() || !problem.empty())
        throw UsageError(!unknown.empty() ? unknown : problem);
    interpret(parser, words, options);
    return options;
}

} // namespace quorvia::plot3dsample
