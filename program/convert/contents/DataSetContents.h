// A data set, or the selected part of it, as what is converted, with quantities derived from it.
#pragma once

#include <map>
#include <memory>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>
#include <plot3d/FieldReader.h>
#include <plot3d/Watch.h>

#include "convert/contents/Contents.h"
#include "convert/contents/SourceFacts.h"
#include "selection/Selection.h"

namespace plot3d::program {

struct ContentSelection_s {
    std::vector<std::size_t> variables;          // indices, ascending
    std::vector<analysis::SelectedZone_s> zones; // ascending
    std::vector<const DerivedQuantity*> derived;
    Gas gas;
    bool keepsGrid = false; // coordinates and I-blank, whether or not they were selected
};

/// Reads block by block what is asked for; of a derived quantity it holds the values of one zone.
class DataSetContents final : public Contents {
public:
    /// `data` is borrowed. Throws Error (Unsupported) if a quantity can be derived in no zone.
    DataSetContents(const DataSet& data, const ContentSelection_s& selection,
                    const SourceFacts_s& facts, Watch watch);

    int dimensions() const override { return data_.dimensions(); }
    Style style() const override { return facts_.style; }
    int speciesCount() const override { return facts_.speciesCount; }
    const std::vector<ContentVariable_s>& variables() const override { return variables_; }
    const std::vector<ContentZone_s>& zones() const override { return zones_; }
    const std::vector<TimeStep>& steps() const override { return steps_; }
    std::optional<ValueType> type(std::size_t zone, std::size_t variable) const override;
    std::size_t holder(std::size_t zone, std::size_t variable) const override;
    void read(std::size_t zone, std::size_t variable, const Box& box, void* destination) override;
    std::vector<std::int32_t> nodeMap(std::size_t zone) const override;

private:
    /// Of what `variables_` are: variables of the data set, or components of derived quantities.
    struct Origin_s {
        std::size_t variable = 0;
        const DerivedQuantity* derived = nullptr;
        std::size_t component = 0;
    };
    struct Derived_s {
        std::size_t zone = 0;
        const DerivedQuantity* quantity = nullptr;
        std::vector<std::vector<double>> values;
    };

    void addVariables(const ContentSelection_s& selection);
    void addDerived(const DerivedQuantity& quantity);
    void addZones(const ContentSelection_s& selection);
    void addSteps();
    void dropUnselectedSteps();
    void countBytes();
    const FieldReader& reader(std::size_t zone, std::size_t variable);
    void readDerived(std::size_t zone, const Origin_s& origin, const Box& box, double* destination);
    void tellProgress(std::int64_t byteCount);

    const DataSet& data_;
    const SourceFacts_s& facts_;
    Gas gas_;
    Watch watch_;
    std::vector<ContentVariable_s> variables_;
    std::vector<Origin_s> origins_; // of variables_
    std::vector<ContentZone_s> zones_;
    std::vector<TimeStep> steps_;
    std::size_t readersZone_ = 0;                // of readers_
    std::map<std::size_t, FieldReader> readers_; // by variable of the data set
    Derived_s derived_;                          // the last one
    std::int64_t bytesToRead_ = 0;
    std::int64_t bytesRead_ = 0;
};

} // namespace plot3d::program
