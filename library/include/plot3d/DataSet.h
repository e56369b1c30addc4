// A PLOT3D data set in plain C++: which variables and zones it has, where each field lies, and its
// values.
//
//     const auto data = plot3d::DataSet::open({"wing.x", "wing.q"});
//     for (std::size_t zone = 0; zone < data.zones().size(); ++zone) {
//         const std::vector<double> density = data.values(zone, data.variable("RHO"));
//         ...
//     }
//
// Zones and variables are named by their indices from 0. Opening reads headers (and the values of
// text files); the fields of binary files stay there until somebody reads them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <plot3d/Box.h>
#include <plot3d/Field.h>
#include <plot3d/Watch.h>
#include <plot3d/Zone.h>

namespace quorvia::host {
class Frame;
}

namespace plot3d {

/// Files by their kind, in the order of time.
struct FileLists {
    std::vector<std::string> grid;
    std::vector<std::string> solution;
    std::vector<std::string> function;
    std::string name;
};

struct OpenOptions {
    /// Take every further file of a list to be as the first one is, without looking: faster for
    /// thousands of files, wrong if one differs.
    bool shareStructure = false;
    /// Boundary zones, where a boundary file (*.fvbnd) lies beside the first grid file.
    bool boundaries = true;
    /// File with the names of variables; "*.nam" among the files is taken for one.
    std::string nameFile;
    /// Further load instructions, key and value as docs/instructions.md tells them: a structure
    /// described by hand, index ranges, grids.
    std::vector<std::pair<std::string, std::string>> instructions;
    /// The dynamic library of another add-on that is to load the files; empty for the linked-in
    /// one. Its fields are AtHost: the add-on reads them whole, one at a time, and up to a GiB of
    /// them is kept. It stays in the program until that ends.
    std::string addOn;
};

class FieldReader;

/// Movable; several may be open at once and closed in any order. Opening and closing is serial
/// inside; everything const may be called from any number of threads at once.
class DataSet {
public:
    /// Files of any kinds, sorted by name as people count (2 before 10). Where the name does not
    /// tell the kind, the file is looked at, and is taken as a grid, solution or function file, the
    /// first of these that it can be. Throws Error.
    static DataSet open(const std::vector<std::string>& files, const OpenOptions& options = {},
                        const Watch& watch = {});
    /// Files whose kinds are known. Throws Error.
    static DataSet open(const FileLists& files, const OpenOptions& options = {},
                        const Watch& watch = {});
    /// What a session of the reference host holds. Fields that a dynamically loaded add-on serves
    /// are AtHost: they are read through the host, one at a time, and it must live on. Throws Error
    /// if the frame has no data set.
    static DataSet of(const quorvia::host::Frame& frame);

    DataSet(DataSet&& other) noexcept;
    DataSet& operator=(DataSet&& other) noexcept;
    ~DataSet();

    const std::string& title() const;
    const AuxiliaryData& auxiliaryData() const;
    /// Spatial dimensions that a plot of the data set begins with: 1 (lines), 2 or 3.
    int dimensions() const;
    const std::vector<Variable>& variables() const;
    const std::vector<Zone>& zones() const;
    /// In the order of time.
    const std::vector<TimeStep>& timeSteps() const;
    /// What was said during the load and did not end it, one line each.
    const std::vector<std::string>& notes() const;
    /// The files that were loaded, by kind.
    const FileLists& files() const;

    /// The index of the first variable of that name (case counts, blanks at its end don't).
    std::optional<std::size_t> findVariable(std::string_view name) const;
    /// The same, but throws Error (Usage) if there is none.
    std::size_t variable(std::string_view name) const;

    FieldKind kind(std::size_t zone, std::size_t variable) const;
    /// Also of an empty field: what it would have.
    ValueType type(std::size_t zone, std::size_t variable) const;
    /// Where the field lies; only if its kind is InFile. Throws Error (Usage) for others.
    Source source(std::size_t zone, std::size_t variable) const;
    /// Whose part the field is; only if its kind is PartOf. Throws Error (Usage) for others.
    PartOf partOf(std::size_t zone, std::size_t variable) const;
    /// The first zone that has this very field: an earlier one, where zones share it.
    std::size_t holder(std::size_t zone, std::size_t variable) const;

    /// Node indices from 0 of an unstructured zone, for each element its corners. Empty for an
    /// ordered zone.
    std::vector<std::int32_t> nodeMap(std::size_t zone) const;

    /// What reads the field from now on: see FieldReader. Throws Error.
    FieldReader reader(std::size_t zone, std::size_t variable) const;
    /// Fills `destination` with all values of the field, of its type, in the machine's byte order,
    /// I fastest. There must be room for zone.size.count() values. Throws Error.
    void read(std::size_t zone, std::size_t variable, void* destination) const;
    /// The same for a box, I fastest.
    void read(std::size_t zone, std::size_t variable, const Box& box, void* destination) const;
    /// As 64-bit reals, whatever the field's type.
    std::vector<double> values(std::size_t zone, std::size_t variable) const;
    std::vector<double> values(std::size_t zone, std::size_t variable, const Box& box) const;

private:
    struct Content;
    explicit DataSet(std::shared_ptr<const Content> content);
    std::shared_ptr<const Content> content_;
};

} // namespace plot3d
