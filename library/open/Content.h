// What a data set keeps once it is taken out of the host: plain records. A field costs some bytes;
// what fields of one file have in common stands once.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <plot3d/DataSet.h>

#include "model/FieldStorage.h"
#include "model/NodeMap.h"
#include "open/FileForm.h"
#include "open/KeptFrame.h"

namespace plot3dlib {

/// The field of one variable in one zone.
struct FieldRecord_s {
    plot3d::FieldKind kind = plot3d::FieldKind::Empty;
    plot3d::ValueType type = plot3d::ValueType::Float32;
    std::uint32_t holder = 0; // index from 0 of the first zone that has this very field
    std::uint32_t place = 0;  // from 0, in the list of its kind
    std::int64_t offset = 0;  // of a field in a file: bytes from the file's start
};

static_assert(sizeof(FieldRecord_s) == 24, "a series of many zones has millions of them");

struct Content_s {
    std::string title;
    plot3d::AuxiliaryData auxiliaryData;
    int dimensions = 3;
    std::vector<plot3d::Variable> variables;
    std::vector<plot3d::Zone> zones;
    std::vector<plot3d::TimeStep> timeSteps;
    std::vector<std::string> notes;
    plot3d::FileLists files;

    std::vector<FieldRecord_s> fields; // by zone times number of variables plus variable
    // What `place` counts in.
    std::vector<FileForm_s> forms;                                                // InFile
    std::vector<std::shared_ptr<const quorvia::host::FieldStorage>> storedFields; // InMemory
    std::vector<plot3d::PartOf> parts;                                            // PartOf
    std::vector<std::weak_ptr<quorvia::host::FieldStorage>> fieldsAtHost;         // AtHost
    /// Where these are, if the data set was opened here; null for those of a session of the host.
    std::shared_ptr<KeptFrame> frame;

    /// By zone, null for ordered ones; empty if all zones are ordered.
    std::vector<std::shared_ptr<const quorvia::host::NodeMap>> nodeMaps;

    const FieldRecord_s& field(std::size_t zone, std::size_t variable) const {
        return fields[zone * variables.size() + variable];
    }
    FieldRecord_s& field(std::size_t zone, std::size_t variable) {
        return fields[zone * variables.size() + variable];
    }
};

} // namespace plot3dlib
