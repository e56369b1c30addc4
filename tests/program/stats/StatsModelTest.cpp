// Random files and selections, against statistics done by hand.
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "program/values/PlainModel.h"
#include "program/values/ValueFiles.h"

namespace plot3d::program {
namespace {

struct Along_s {
    std::int32_t first = 0;
    std::int32_t last = 1000; // far behind any end
    std::int32_t step = 1;

    std::string text() const {
        return std::to_string(first + 1) + "," + std::to_string(last + 1) + "," +
               std::to_string(step);
    }
};

/// One random case: a grid file, perhaps with I-blank, and a function file with values that are no
/// numbers among others.
class StatsCase {
public:
    explicit StatsCase(std::uint64_t seed) : seed_(seed), random_(seed) {
        const std::int32_t grids = upTo(3);
        for (std::int32_t grid = 0; grid < grids; ++grid)
            sizes.push_back({1 + upTo(9), 1 + upTo(7), upTo(5)});
        hasIBlank = chance(2);
        keepsBlanked = chance(3);
        for (Along_s* along : {&i, &j, &k})
            if (chance(2))
                *along = {upTo(2) - 1, upTo(9), upTo(3)};
        form = binary(chance(2) ? writer::ByteOrder_e::Little : writer::ByteOrder_e::Big,
                      chance(2) ? writer::Precision_e::Single : writer::Precision_e::Double);
        if (chance(3))
            form.encoding = writer::Encoding_e::Fortran;
        spoiltShare_ = chance(2) ? 5U : 0U;
    }

    double value(std::int32_t grid, std::int32_t variable, std::int32_t i_, std::int32_t j_,
                 std::int32_t k_) const {
        const std::uint32_t luck = dice(seed_ + 1, grid, variable, i_, j_, k_) % 100;
        if (luck < spoiltShare_)
            return luck % 2 == 0 ? NAN : luck == 1 ? INFINITY : -INFINITY;
        return randomValues(seed_)(grid, variable, i_, j_, k_);
    }

    std::int32_t iBlank(std::int32_t grid, std::int32_t i_, std::int32_t j_,
                        std::int32_t k_) const {
        return static_cast<std::int32_t>(dice(seed_ + 2, grid, i_, j_, k_) % 4) - 1;
    }

    std::vector<std::string> arguments() const {
        std::vector<std::string> words = {"--variable", "F1V*",   "--json", "--i",   i.text(),
                                          "--j",        j.text(), "--k",    k.text()};
        if (keepsBlanked)
            words.insert(words.end(), {"--blank", "keep"});
        return words;
    }

    /// The selected values of one zone, from 0, in their order.
    std::vector<PlainValue_s> valuesOf(std::int32_t zone, std::int32_t variable) const {
        std::vector<PlainValue_s> values;
        const writer::GridDims_s& size = sizes[static_cast<std::size_t>(zone)];
        for (std::int32_t z = k.first; z < size.k && z <= k.last; z += k.step)
            for (std::int32_t y = j.first; y < size.j && y <= j.last; y += j.step)
                for (std::int32_t x = i.first; x < size.i && x <= i.last; x += i.step)
                    values.push_back({value(zone, variable, x, y, z),
                                      {zone + 1, x + 1, y + 1, z + 1},
                                      hasIBlank && !keepsBlanked && iBlank(zone, x, y, z) == 0});
        return values;
    }

    Sizes sizes;
    bool hasIBlank = false;
    bool keepsBlanked = false;
    Along_s i, j, k;
    writer::FileForm_s form;

private:
    std::int32_t upTo(std::int32_t most) {
        return 1 + static_cast<std::int32_t>(random_() % static_cast<std::uint64_t>(most));
    }
    bool chance(std::uint64_t outOf) { return random_() % outOf == 0; }

    std::uint64_t seed_;
    std::mt19937_64 random_;
    std::uint32_t spoiltShare_ = 0; // of a hundred values
};

class StatsModelTest : public ValueFilesTest {
protected:
    static constexpr std::int32_t variables = 2;

    Ended_s statsOf(const StatsCase& made) const {
        const auto value = [&](auto... place) { return made.value(place...); };
        const auto iBlank = [&](auto... place) { return made.iBlank(place...); };
        std::vector<std::string> words = {
            "stats",
            write("a.x", gridFile(made.sizes, placeValue, made.hasIBlank ? iBlank : IBlank()),
                  made.form),
            write("a.f", functionFile(made.sizes, variables, value), made.form)};
        const auto more = made.arguments();
        words.insert(words.end(), more.begin(), more.end());
        return ended(words);
    }

    static void expectModel(const StatsCase& made, const Json& told) {
        for (std::int32_t variable = 0; variable < variables; ++variable) {
            std::vector<PlainValue_s> all;
            std::size_t next = 0;
            const Json& of = told["variables"][variable];
            for (std::size_t zone = 0; zone < made.sizes.size(); ++zone) {
                const auto values = made.valuesOf(static_cast<std::int32_t>(zone), variable);
                if (values.empty())
                    continue;
                EXPECT_EQ(of["zones"][next]["zone"], zone + 1);
                EXPECT_TRUE(tells(of["zones"][next++], values)) << "zone " << zone + 1;
                all.insert(all.end(), values.begin(), values.end());
            }
            EXPECT_EQ(of["zones"].size(), next);
            EXPECT_TRUE(tells(of, all)) << "variable " << variable;
        }
    }

    static bool isEmpty(const StatsCase& made) {
        for (std::size_t zone = 0; zone < made.sizes.size(); ++zone)
            if (!made.valuesOf(static_cast<std::int32_t>(zone), 0).empty())
                return false;
        return true;
    }
};

TEST_F(StatsModelTest, AgreesOnRandomFilesAndSelections) {
    const std::uint64_t seed = seedOfRun();
    int compared = 0;
    for (std::uint64_t number = 0; number < 60; ++number) {
        SCOPED_TRACE(seed + number);
        const StatsCase made(seed + number);
        const Ended_s stats = statsOf(made);
        if (isTakenForAnother(stats))
            continue;
        ++compared;
        if (isEmpty(made)) {
            EXPECT_EQ(stats.code, 2) << stats.err;
            continue;
        }
        ASSERT_EQ(stats.code, 0) << stats.err;
        expectModel(made, Json::parse(stats.out));
    }
    EXPECT_GT(compared, 50);
}

} // namespace
} // namespace plot3d::program
