#include "plot3dsample/CommandLine.h"

#include <algorithm>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

namespace {

/// The options as words, before they mean anything.
struct Words_s {
    std::string encoding = "binary";
    std::string style;
    std::string layout;
    std::string size;
    std::int32_t steps = 0;
    bool isBigEndian = false;
    bool isDouble = false;
};

std::string footer() {
    std::string text = "Cases:\n";
    for (const SampleCase_s& sample : sampleCases())
        text += fmt::format("  {:<10} {}\n", sample.name, sample.summary);
    text += "\nExamples:\n"
            "  plot3d-sample cylinder samples --encoding fortran4 --iblank\n"
            "      overset grids with I-blank, as a flow solver leaves them\n"
            "  plot3d-sample vortex samples --double --single --steps 20 --size 201x201\n"
            "      a time series of 20 solution files, vortex_t0.00.q to vortex_t4.75.q\n"
            "\nExit codes: 0 written, 1 could not write, 2 bad usage.";
    return text;
}

void addOptions(CLI::App& app, SampleOptions_s& options, Words_s& words) {
    app.add_option("CASE", options.caseName, "What to write, see below")->required();
    app.add_option("DIR", options.directory,
                   "Directory for the files, made if need be; files of the same names in it are "
                   "replaced")
        ->required();
    app.add_option("--encoding", words.encoding,
                   "text, binary, or Fortran records with markers of 4 or 8 bytes: fortran4, "
                   "fortran8 (default binary)");
    app.add_flag("--big-endian", words.isBigEndian, "Most significant byte first; not for text");
    app.add_flag("--double", words.isDouble, "64-bit reals (default 32-bit)");
    app.add_flag("--iblank", options.hasIBlank, "Grid file with I-blank (default without)");
    app.add_flag("--single", options.isSingleGrid,
                 "One grid, without a count of grids (default with the count)");
    app.add_flag("--surface", options.isSurface,
                 "ball: triangles of the surface (default tetrahedra)");
    app.add_flag("--boundaries", options.hasBoundaries,
                 "cylinder, vortex: a boundary file beside the grid file (default without)");
    app.add_option("--style", words.style,
                   "Style of the values: classic, function, overflow or swift (default: the case's "
                   "own)");
    app.add_option("--layout", words.layout,
                   "1d, 2d, 3dwhole, 3dplanes or unstructured (default: the case's own)");
    app.add_option("--steps", words.steps, "Time steps of a series, at least 1 (default 5)");
    app.add_option("--size", words.size,
                   "Points of the first grid, like 41, 41x31 or 41x31x5; ball: cells along an edge "
                   "(default: the case's own)");
}

void interpret(const CLI::App& app, const Words_s& words, SampleOptions_s& options) {
    setEncoding(words.encoding, options.form);
    if (words.isDouble)
        options.form.precision = plot3dwriter::Precision_e::Double;
    if (words.isBigEndian && options.form.encoding == plot3dwriter::Encoding_e::Text)
        throw UsageError("--big-endian: text has no byte order");
    if (words.isBigEndian)
        options.form.byteOrder = plot3dwriter::ByteOrder_e::Big;
    if (app.count("--style") > 0)
        options.style = styleNamed(words.style);
    if (app.count("--layout") > 0)
        options.layout = layoutNamed(words.layout);
    if (app.count("--size") > 0)
        options.size = sizeNamed(words.size);
    if (app.count("--steps") == 0)
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
    CLI::App app("Writes PLOT3D sample data sets: grids with a flow that means something.",
                 "plot3d-sample");
    app.set_version_flag("--version", "plot3d-sample " PLOT3D_SAMPLE_VERSION);
    app.footer(footer());
    addOptions(app, options, words);
    try {
        // The library takes its arguments from the back.
        app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
    } catch (const CLI::Success& request) {
        app.exit(request, out, out);
        return std::nullopt;
    } catch (const CLI::ParseError& fault) {
        throw UsageError(fault.what());
    }
    interpret(app, words, options);
    return options;
}

} // namespace quorvia::plot3dsample
