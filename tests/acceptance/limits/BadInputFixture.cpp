#include "BadInputFixture.h"

#include <algorithm>
#include <filesystem>

#include "AddOnMemory.h"

namespace quorvia::testsupport {

namespace {

// What the add-on holds whatever the file: buffers of its streams, the table of grids at its first
// length, records of files and fields, texts of the progress bar.
constexpr std::int64_t memoryOfAnyLoad = 1 << 20;
// For each byte of the files: a table of grids that grows by doubling, a record for each field.
constexpr std::int64_t memoryPerByte = 32;

const char* const knownMessages[] = {
    "Auto Detect cannot determine the Plot 3D ",
    "Plot3D grid file format is inconsistent with manually supplied description.",
    "Plot3D solution/function file format is inconsistent with manually supplied description.",
    "The file ",
    "Invalid record length in record",
    "Invalid intermediate record length in record",
    "Cannot seek to ",
    "Error loading Variable.",
    "Error loading IBlank Variable.",
    "Error loading Scalars.",
    "Failed to set up the variable.",
    "Unable to allocate memory for variable.",
    "Corrupt Connectivity List, Grid=",
    "Failed to load grid ",
    "Invalid Plot 3D ",
    "The counts in the file's header do not fit the file.",
    "The file promises more than 64 values for each of its bytes.",
    "The function file has values of ",
    "Grid ",
    "The number of grids in the ",
    "All files must have the same data structure.",
    "The values of the file need a data set of ",
    "There are Solution Files mixed up with Function Files. Please load them ",
};

bool isKnown(const std::string& message) {
    return std::any_of(std::begin(knownMessages), std::end(knownMessages),
                       [&](const char* known) { return message.rfind(known, 0) == 0; });
}

std::int64_t bytesOnDisk(const Texts& files) {
    std::int64_t sum = 0;
    for (const std::string& file : files) {
        std::error_code isNoFile;
        const std::uintmax_t size = std::filesystem::file_size(file, isNoFile);
        sum += isNoFile ? 0 : static_cast<std::int64_t>(size);
    }
    return sum;
}

std::int64_t bytesOnDisk(const Load_s& load) {
    return bytesOnDisk(load.gridFiles) + bytesOnDisk(load.solutionFiles) +
           bytesOnDisk(load.functionFiles);
}

void fetchEverything(host::ReferenceHost& host) {
    const host::DataSet* const dataSet = host.frame().dataSet();
    if (dataSet == nullptr)
        return;
    for (std::int32_t zone = 1; zone <= dataSet->zoneCount(); ++zone)
        for (std::int32_t variable = 1; variable <= dataSet->variableCount(); ++variable)
            host.fetch(zone, variable);
}

/// Broken values, which no reading of a text takes for a count.
FileDescription_s withBrokenValues(FileDescription_s description) {
    description.value = [](std::int32_t, std::int32_t variable, std::int32_t i, std::int32_t j,
                           std::int32_t k) { return i + 100 * j + 10000 * k + 0.25 * variable; };
    return description;
}

} // namespace

Fate_e BadInputTest::attempt(const Load_s& load) {
    host().frame().reset();
    host().clearLog();
    const std::int64_t justified = memoryOfAnyLoad + memoryPerByte * bytesOnDisk(load);
    restartMemoryCount();
    const host::LoadResult_s result = LoadedAddOnTest::load(load);
    fetchEverything(host());
    EXPECT_LE(peakMemoryBytes(), justified);
    EXPECT_EQ(result.hostError, "");
    for (const std::string& message : messages())
        EXPECT_TRUE(isKnown(message)) << message;
    return result.ok ? Fate_e::Loaded : Fate_e::Refused;
}

Fate_e BadInputTest::expectNotBelieved(const Load_s& load) {
    const Fate_e fate = attempt(load);
    if (fate == Fate_e::Refused)
        return fate;
    constexpr std::int64_t bytesOfPoint = 4;
    for (const auto& found : dataSet().zones())
        EXPECT_LE(std::int64_t{found->i} * found->j * found->k * bytesOfPoint, bytesOnDisk(load));
    return fate;
}

void BadInputTest::expectRefusal(const Load_s& load, const Texts& expectedMessages) {
    EXPECT_EQ(attempt(load), Fate_e::Refused);
    EXPECT_EQ(messages(), expectedMessages);
}

std::string BadInputTest::writeAnew(std::string_view name, std::string_view bytes) const {
    // Some file systems write a file to the disk at once if it is emptied and filled again.
    std::filesystem::remove(directory().file(name));
    return directory().write(name, bytes);
}

Load_s BadInputTest::gridLoad(std::string_view bytes) const {
    return {.gridFiles = {writeAnew("grid.x", bytes)}};
}

Load_s BadInputTest::solutionLoad(std::string_view bytes) const {
    const std::string grid = directory().file("sound.x");
    if (!std::filesystem::exists(grid))
        directory().write("sound.x", bytesOf(smallGrid()));
    return {.gridFiles = {grid}, .solutionFiles = {writeAnew("flow.q", bytes)}};
}

std::string BadInputTest::undetectedGrid(const std::string& file) {
    return "Auto Detect cannot determine the Plot 3D grid Please manually describe the file on the "
           "File Structure tab of the advanced load dialog.\nFile: " +
           file;
}

std::string BadInputTest::undetectedSolution(const std::string& file) {
    return "Auto Detect cannot determine the Plot 3D solution/function file structure.\nPlease "
           "manually describe the file on the File Structure tab of the advanced load "
           "dialog.\nFile: " +
           file;
}

std::string BadInputTest::invalidGrid(const std::string& file) {
    return "Invalid Plot 3D grid file.\nFile: " + file;
}

FileDescription_s smallGrid() {
    return withBrokenValues(describeGrid({{2, 3, 5}}));
}

FileDescription_s smallSolution() {
    FileDescription_s description =
        withBrokenValues(describe(FileKind_e::ClassicSolution, {{2, 3, 5}}));
    description.scalars = {{0.8, 2.0, 1e6, 0.5}};
    return description;
}

std::string headerIntegers(std::initializer_list<std::int64_t> values, ByteOrder_e order) {
    std::string bytes;
    for (const std::int64_t value : values)
        for (int place = 0; place < 4; ++place) {
            const int shift = 8 * (order == ByteOrder_e::Little ? place : 3 - place);
            bytes += static_cast<char>((static_cast<std::uint64_t>(value) >> shift) & 0xff);
        }
    return bytes;
}

} // namespace quorvia::testsupport
