// The load dialog with small files to load, for what OK does.
#pragma once

#include <string>
#include <vector>

#include "dialog/LoadDialogFixture.h"
#include "support/SmallFiles.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::quorutildataio {

using testsupport::FileDescription_s;
using testsupport::GridList;

class DialogOk : public LoadDialogTest {
protected:
    static constexpr bool yes = true;
    static constexpr bool no = false;

    std::string write(const std::string& name, const FileDescription_s& description) const {
        return directory_.write(name, testsupport::bytesOf(description));
    }
    std::string gridFile(const std::string& name, const GridList& grids) const {
        return write(name, testsupport::describeGrid(grids));
    }
    std::string solutionFile(const std::string& name) const {
        return write(name, testsupport::describeSolution({{2, 3, 5}}, 0.0));
    }
    std::string functionFile(const std::string& name) const {
        return write(name, testsupport::describeFunction({{2, 3, 5}}, 2));
    }

    static bool isAnythingLoaded() { return host().frame().dataSet() != nullptr; }
    static bool aLoadWasBegun() { return host().callCount("createTaskProgressBar") > 0; }
    static std::int32_t zoneCount() { return host().frame().dataSet()->zoneCount(); }
    static const host::Zone_s& zone(std::int32_t number) {
        return *host().frame().dataSet()->zone(number);
    }
    static std::int64_t launches() { return host().callCount("QuorGUIDialogLaunch"); }

    testsupport::TemporaryDirectory directory_;
    const std::string grid_ = gridFile("a.x", {{2, 3, 5}});
    const std::string damaged_ = directory_.write("damaged.x", "wing");
};

} // namespace quorvia::quorutildataio
