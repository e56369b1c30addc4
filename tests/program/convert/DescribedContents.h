// What is converted, made up from the descriptions that the independent writer of PLOT3D files
// takes: the writers of the formats are tested with it without a data set.
#pragma once

#include <optional>
#include <stdexcept>
#include <vector>

#include "convert/contents/Contents.h"
#include "plot3dwriter/FileDescription.h"

namespace quorvia::testsupport {

/// A grid file and, where there is one, a solution or function file beside it.
class DescribedContents final : public plot3d::program::Contents {
public:
    DescribedContents(plot3dwriter::FileDescription_s grid,
                      std::optional<plot3dwriter::FileDescription_s> other, plot3d::ValueType type);

    int dimensions() const override;
    plot3d::Style style() const override;
    int speciesCount() const override { return other_ ? other_->numSpecies : 0; }
    const std::vector<plot3d::program::ContentVariable_s>& variables() const override {
        return variables_;
    }
    const std::vector<plot3d::program::ContentZone_s>& zones() const override { return zones_; }
    const std::vector<plot3d::TimeStep>& steps() const override { return steps_; }
    std::optional<plot3d::ValueType> type(std::size_t zone, std::size_t variable) const override;
    std::size_t holder(std::size_t zone, std::size_t) const override { return zone; }
    void read(std::size_t zone, std::size_t variable, const plot3d::Box& box,
              void* destination) override;
    std::vector<std::int32_t> nodeMap(std::size_t zone) const override;

    /// The read with this number, from 1, and all behind it throw; 0: none does.
    int failingRead = 0;
    /// Values are this instead; nothing: as described.
    std::optional<double> everyValue;
    /// All functions get this name.
    void nameFunctions(const std::string& name);

private:
    void addVariables();
    void addZones();
    double value(std::size_t zone, std::size_t variable, std::int64_t i, std::int64_t j,
                 std::int64_t k) const;

    plot3dwriter::FileDescription_s grid_;
    std::optional<plot3dwriter::FileDescription_s> other_;
    plot3d::ValueType type_;
    std::vector<plot3d::program::ContentVariable_s> variables_;
    std::vector<plot3d::program::ContentZone_s> zones_;
    std::vector<plot3d::TimeStep> steps_;
    int reads_ = 0;
};

} // namespace quorvia::testsupport
