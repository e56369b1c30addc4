// What is left when a conversion does not come to its end: nothing of the result, and what was
// there before.
#include <cmath>
#include <csignal>
#include <fstream>
#include <iterator>
#include <limits>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <plot3d/Error.h>

#include "acceptance/matrix/MatrixCase.h"
#include "convert/Writers.h"
#include "convert/contents/DataSetContents.h"
#include "convert/output/Format.h"
#include "plot3dwriter/Plot3DWriter.h"
#include "program/convert/DescribedContents.h"
#include "program/convert/ReadBack.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::testsupport {
namespace {

using namespace plot3d;
using namespace plot3d::program;
using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

const LayoutCase_s gridLayout = {FileKind_e::Grid, Layout_e::ThreeDWhole, true, true};
const LayoutCase_s solutionLayout = {FileKind_e::ClassicSolution, Layout_e::ThreeDWhole, true,
                                     false};

/// While one lives no file can grow beyond the limit, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        before_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &limit_);
        rlimit lower = limit_;
        lower.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &lower);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, before_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit limit_{};
    void (*before_)(int) = SIG_DFL;
};

class BrokenConversion : public ::testing::TestWithParam<const char*> {
protected:
    static DescribedContents contents() {
        return {contentsOf(gridLayout), contentsOf(solutionLayout), ValueType::Float64};
    }
    std::string target() const { return directory_.file(std::string("out") + GetParam()); }
    void write(Contents& contents) const {
        Target_s target{this->target(), false, {}};
        target.form.multiGrid = true;
        makeWriter(*formatOfName(target.path))->write(contents, target);
    }
    bool leftNothing() const { return std::filesystem::is_empty(directory_.path()); }

    const TemporaryDirectory directory_;
};

TEST_P(BrokenConversion, LeavesNothingWhicheverReadFails) {
    for (int read = 1; read < 1000; ++read) {
        DescribedContents broken = contents();
        broken.failingRead = read;
        try {
            write(broken);
            EXPECT_GT(read, 10);
            return;
        } catch (const Error& error) {
            EXPECT_EQ(error.kind(), ErrorKind::Unreadable);
            ASSERT_TRUE(leftNothing()) << "read " << read;
        }
    }
    FAIL() << "it never came to its end";
}

TEST_P(BrokenConversion, LeavesNothingOnAFullDisk) {
    for (const rlim_t bytes : {0UL, 100UL, 1000UL, 2000UL}) {
        const FullDisk full(bytes);
        DescribedContents whole = contents();
        try {
            write(whole);
            FAIL() << "nothing was said of " << bytes << " bytes";
        } catch (const Error& error) {
            EXPECT_EQ(error.kind(), ErrorKind::Refused);
        }
        EXPECT_TRUE(leftNothing()) << bytes;
    }
}

TEST_P(BrokenConversion, DoesNotTouchWhatIsThere) {
    directory_.write(std::string("out") + GetParam(), "mine");
    DescribedContents whole = contents();
    EXPECT_THROW(write(whole), Error);
    std::ifstream in(target());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "mine");
}

TEST_P(BrokenConversion, LeavesNothingWhenItIsStopped) {
    const TemporaryDirectory input;
    const std::string grid = input.file("case.x");
    writeFile(grid, contentsOf(gridLayout), FileForm_s());
    const DataSet data = DataSet::open({grid});
    ContentSelection_s selection;
    for (std::size_t variable = 0; variable < data.variables().size(); ++variable)
        selection.variables.push_back(variable);
    for (std::size_t zone = 0; zone < data.zones().size(); ++zone)
        selection.zones.push_back({zone, Box::whole(data.zones()[zone].size)});
    std::stop_source stop;
    int reads = 0;
    const Watch watch = {[&](const Progress&) {
                             if (++reads == 5)
                                 stop.request_stop();
                         },
                         stop.get_token()};
    const SourceFacts_s facts = readSourceFacts(data, {});
    DataSetContents stopped(data, selection, facts, watch);
    try {
        write(stopped);
        FAIL() << "it came to its end";
    } catch (const Error& error) {
        EXPECT_EQ(error.kind(), ErrorKind::Interrupted);
    }
    EXPECT_TRUE(leftNothing());
}

INSTANTIATE_TEST_SUITE_P(To, BrokenConversion,
                         ::testing::Values(".vtm", ".pvd", ".cgns", ".npz", ".csv", ".x"),
                         [](const auto& tested) { return tested.param + 1; });

TEST(TextResult, RefusesWhatIsNotFinite) {
    const TemporaryDirectory directory;
    DescribedContents contents(contentsOf({FileKind_e::Grid, Layout_e::TwoD, false, false}),
                               std::nullopt, ValueType::Float32);
    contents.everyValue = std::numeric_limits<double>::infinity();
    Target_s target{directory.file("out.x"), false, {}};
    target.form.encoding = Encoding::Text;
    EXPECT_THROW(makeWriter(Format_e::Plot3D)->write(contents, target), Error);
    EXPECT_TRUE(std::filesystem::is_empty(directory.path()));
}

} // namespace
} // namespace quorvia::testsupport
