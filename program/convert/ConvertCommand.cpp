#include "convert/ConvertCommand.h"

#include <sstream>
#include <utility>

#include <plot3d/Error.h>

#include "console/options/OptionTable.h"
#include "convert/Writers.h"
#include "manners/ProgressWatch.h"
#include "manners/ResultFile.h"
#include "manners/Talk.h"
#include "selection/GasOptions.h"

namespace plot3d::program {

namespace {

[[noreturn]] void refuseUsage(const std::string& message, const std::string& next = {}) {
    ErrorFacts facts;
    facts.next = next;
    throw Error(ErrorKind::Usage, message, std::move(facts));
}

/// These formats have no place for values without points.
bool needsGrid(Format_e format) {
    return format != Format_e::Csv && format != Format_e::Npz;
}

/// Of the others bytes are gone back to, or there are several files.
bool canStream(Format_e format, const std::string& file) {
    const std::string extension = extensionOf(file);
    return format == Format_e::Csv || format == Format_e::Plot3D ||
           (format == Format_e::Vtk && (extension == ".vts" || extension == ".vtu"));
}

std::string knownQuantities() {
    std::string words;
    for (const DerivedQuantity& quantity : derivedQuantities())
        words += (words.empty() ? "" : ", ") + quantity.name + " (" +
                 std::to_string(quantity.number) + ")";
    return words;
}

} // namespace

const char* ConvertCommand::purpose() const {
    return "Write a data set, or a part of it, in another format or another form";
}

const char* ConvertCommand::examples() const {
    return "  plot3d convert wing.x wing.q -o wing.vtm\n"
           "      for ParaView; a series of several times goes into a .pvd file\n"
           "  plot3d convert wing.x wing.q -o portable/wing.x --encoding fortran4 "
           "--byte-order big\n"
           "      the same PLOT3D files as big-endian Fortran records\n"
           "  plot3d convert wing.x wing.q -o tip.csv --k -1 --derive pressure,mach\n"
           "      the last K plane with two derived quantities, as a table\n";
}

const char* ConvertCommand::failureMeans() const {
    return "refused or failed; nothing is left of the result";
}

void ConvertCommand::declare(console::OptionTable& table) {
    data_.declare(table);
    table
        .output(output_, overwrites_,
                "The result; its ending tells the format. - is standard output, for csv and plot3d")
        .required();
    table.text("--to", to_, "vtk|cgns|npz|csv|plot3d",
               "The format, where the ending does not tell it");
    // What is converted keeps its blanked points, and their I-blank says so.
    selection_.declareWithoutBlank(table);
    declareDerived(table);
    form_.declare(table);
}

void ConvertCommand::declareDerived(console::OptionTable& table) {
    const console::OptionTable options = table.under("Derived quantities");
    options.text("--derive", derived_, "LIST",
                 "Quantities to add, by word or number, separated by commas: pressure, mach, "
                 "velocity, 110 and others");
    declareGas(options, gas_);
}

Format_e ConvertCommand::format() const {
    const std::optional<Format_e> format = to_.empty() ? formatOfName(output_) : formatOfWord(to_);
    if (!format)
        refuseUsage("the ending of \"" + output_ + "\" tells no format; known are " +
                        describeFormats(),
                    "--to and the word of a format");
    if (*format != Format_e::Plot3D && !form_.given().empty())
        refuseUsage(form_.given() + " is for results that are PLOT3D files");
    if (isStream(output_) && !canStream(*format, output_))
        refuseUsage(wordOf(*format) +
                    " can't be written to standard output or a pipe; csv and plot3d can");
    return *format;
}

std::vector<const DerivedQuantity*> ConvertCommand::derivedQuantitiesAsked() const {
    std::vector<const DerivedQuantity*> quantities;
    std::istringstream words(derived_);
    for (std::string word; std::getline(words, word, ',');) {
        quantities.push_back(findDerivedQuantity(word));
        if (quantities.back() == nullptr)
            refuseUsage("no quantity \"" + word + "\" can be derived; known are " +
                        knownQuantities());
    }
    return quantities;
}

ContentSelection_s ConvertCommand::selectionOf(const DataSet& data, Format_e format) const {
    ContentSelection_s selection;
    selection.variables = selection_.variables(data);
    selection.zones = selection_.selectedZones(data);
    selection.derived = derivedQuantitiesAsked();
    selection.gas = gas_;
    selection.keepsGrid = needsGrid(format);
    return selection;
}

int ConvertCommand::run(const Surroundings_s& surroundings) {
    if (output_ == "-")
        output_ = standardOutput;
    const Format_e target = format();
    const DataSet data = data_.open(surroundings);
    ProgressWatch progress(surroundings);
    const SourceFacts_s facts =
        target == Format_e::Plot3D ? readSourceFacts(data, progress.watch()) : SourceFacts_s();
    DataSetContents contents(data, selectionOf(data, target), facts, progress.watch());
    const Written_s written =
        makeWriter(target)->write(contents, {output_, overwrites_, form_.wishes(facts.form)});
    progress.clear();
    for (const std::string& note : written.notes)
        tellNote(surroundings, note);
    for (const std::string& file : written.files)
        if (!isStream(file)) // the name would stand in the result
            surroundings.out << file << '\n';
    return ExitCode_Done;
}

} // namespace plot3d::program
