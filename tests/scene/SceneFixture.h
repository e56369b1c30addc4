// Sample data sets on disk, and what is prepared of them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/DataSet.h>

#include "content/Preparer.h"
#include "support/TemporaryDirectory.h"

namespace plot3dtest {

using plot3d::DataSet;
using plot3d::scene::SceneContent_s;
using plot3d::scene::View_s;
using Content = std::shared_ptr<const SceneContent_s>;

class SceneTest : public ::testing::Test {
protected:
    /// Writes a case of plot3d-sample, its options behind its name; gives its files in their order.
    std::vector<std::string> sample(std::vector<std::string> words) const;
    DataSet opened(const std::vector<std::string>& words) const {
        return DataSet::open(sample(words));
    }
    /// A grid of that size whose points are at i + j / 4 + k / 8 along X, j along Y and k along Z,
    /// from 0, with I-blank 0 at `blanked`, and a function of value i + 100 j + 10000 k.
    DataSet numbered(const plot3d::Extent& size,
                     const std::vector<plot3d::Extent>& blanked = {}) const;
    static Content prepared(const DataSet& data, const View_s& view = {}) {
        return plot3d::scene::Preparer(data).prepare(view);
    }

    quorvia::testsupport::TemporaryDirectory folder_;
};

/// A view with these surfaces, as they are typed.
View_s viewOf(const std::string& surfaces);

} // namespace plot3dtest
