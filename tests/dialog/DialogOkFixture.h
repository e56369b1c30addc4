// The load dialog with small files to load, for what OK does.
#pragma once

#include <string>
#include <vector>

#include "dialog/LoadDialogFixture.h"
#include "support/TemporaryDirectory.h"
#include "tools/SmallFiles.h"

namespace quorvia::quorutildataio {

using plot3dwriter::Encoding_e;
using plot3dwriter::FileDescription_s;
using plot3dwriter::FileKind_e;
using plot3dwriter::GridDims_s;
using plot3dwriter::Layout_e;
using plot3dwriter::tests::describe;
using plot3dwriter::tests::form;
using plot3dwriter::tests::written;

class DialogOk : public LoadDialogTest {
protected:
    static constexpr bool yes = true;
    static constexpr bool no = false;

    std::string write(const std::string& name, const FileDescription_s& description) const {
        return directory_.write(name, written(description, form(Encoding_e::Binary)));
    }
    std::string gridFile(const std::string& name, const std::vector<GridDims_s>& grids) const {
        return write(name, describe(FileKind_e::Grid, Layout_e::ThreeDWhole, grids));
    }
    std::string solutionFile(const std::string& name) const {
        FileDescription_s description =
            describe(FileKind_e::ClassicSolution, Layout_e::ThreeDWhole, {{2, 3, 5}});
        description.scalars = {{0.5, 2.0, 1000.0, 0.0}};
        return write(name, description);
    }
    std::string functionFile(const std::string& name) const {
        FileDescription_s description =
            describe(FileKind_e::Function, Layout_e::ThreeDWhole, {{2, 3, 5}});
        description.numVars = 2;
        return write(name, description);
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
