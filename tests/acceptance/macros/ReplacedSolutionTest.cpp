// What the host holds of a solution that is replaced: the old registrations end, and the new ones
// read the new file and nothing else.
#include <filesystem>
#include <memory>

#include "acceptance/macros/KindSession.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {
namespace {

/// Not a macro, since a test must see the fields between two loads.
class ReplacedSolution : public KindSession {
protected:
    using WeakStorage = std::weak_ptr<host::FieldStorage>;

    void SetUp() override {
        host().reset();
        std::string error;
        library_ = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
        ASSERT_NE(library_, nullptr) << error;
        ASSERT_TRUE(import(load({.grids = {grid_}, .solutions = {solutions_[0]}})));
    }
    void TearDown() override {
        host().frame().reset();
        library_->unload();
        EXPECT_EQ(host().log().violations, Texts());
        EXPECT_EQ(host().lockDepth(), 0);
        host().reset();
    }
    static host::ReferenceHost& host() { return host::ReferenceHost::instance(); }
    static bool import(const Json& load) {
        return host().importInstructions(load["instructions"].get<Texts>()).ok;
    }
    bool replaceBy(const std::string& solution) { return import(load({.solutions = {solution}})); }

    /// Of the variables from `first` to `last` of both zones.
    static std::vector<WeakStorage> storagesOf(std::int32_t first, std::int32_t last) {
        std::vector<WeakStorage> storages;
        for (std::int32_t zone = 1; zone <= 2; ++zone)
            for (std::int32_t variable = first; variable <= last; ++variable)
                storages.emplace_back(host().frame().dataSet()->field(zone, variable)->storage);
        return storages;
    }
    static float firstValue(std::int32_t variable) {
        const host::FetchResult_s field = host().fetch(1, variable);
        EXPECT_TRUE(field.ok) << field.error;
        return field.ok ? static_cast<const float*>(field.values)[0] : -1;
    }

    std::unique_ptr<host::AddOnLibrary> library_;
};

// A registration is cleaned when its storage ends, which nothing but the field may hold.
TEST_F(ReplacedSolution, EndsEveryOldRegistration) {
    const std::vector<WeakStorage> old = storagesOf(4, 8);
    ASSERT_EQ(old.size(), 10U);
    for (const WeakStorage& storage : old)
        ASSERT_TRUE(storage.lock()->isDeferred());
    ASSERT_TRUE(replaceBy(solutions_[2]));
    for (const WeakStorage& storage : old)
        EXPECT_TRUE(storage.expired());
    for (const WeakStorage& storage : storagesOf(4, 8))
        EXPECT_TRUE(storage.lock()->isDeferred());
}

TEST_F(ReplacedSolution, LeavesTheRegistrationsOfTheGrid) {
    const std::vector<WeakStorage> grid = storagesOf(1, 3);
    ASSERT_TRUE(replaceBy(solutions_[2]));
    for (const WeakStorage& storage : grid)
        EXPECT_FALSE(storage.expired());
}

TEST_F(ReplacedSolution, DropsValuesThatWereFetchedAndReadsTheNewFileAlone) {
    EXPECT_EQ(firstValue(4), 0);
    ASSERT_TRUE(replaceBy(solutions_[2]));
    std::filesystem::remove(solutions_[0]);
    EXPECT_EQ(firstValue(4), 50);
    EXPECT_EQ(firstValue(8), 4050);
}

TEST_F(ReplacedSolution, MayBeReplacedAgain) {
    for (const std::size_t step : {2U, 3U, 0U, 4U})
        ASSERT_TRUE(replaceBy(solutions_[step]));
    EXPECT_EQ(firstValue(4), 90);
}

TEST_F(ReplacedSolution, EndsWithItsFrame) {
    ASSERT_TRUE(replaceBy(solutions_[2]));
    const std::vector<WeakStorage> all = storagesOf(1, 8);
    host().frame().reset();
    for (const WeakStorage& storage : all)
        EXPECT_TRUE(storage.expired());
}

} // namespace
} // namespace quorvia::testsupport
