// Random changes of random files, against differences found by hand.
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "program/values/ValueFiles.h"

namespace plot3d::program {
namespace {

/// A function file, and another one with some values changed, in a form of its own.
class DiffCase {
public:
    explicit DiffCase(std::uint64_t seed) : seed_(seed), random_(seed) {
        for (int grid = upTo(3); grid > 0; --grid)
            sizes.push_back({1 + upTo(9), 1 + upTo(7), upTo(5)});
        firstForm = form();
        secondForm = form();
        secondForm.precision = firstForm.precision;
        changedShare_ = static_cast<std::uint32_t>(upTo(3) - 1) * 7U;
        tolerance = upTo(2) == 1 ? 0.0 : 100.0;
    }

    double first(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                 std::int32_t k) const {
        const bool isNan = dice(seed_ + 1, grid, variable, i, j, k) % 50 == 0;
        return isNan ? NAN : randomValues(seed_)(grid, variable, i, j, k);
    }

    double second(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) const {
        const std::uint32_t luck = dice(seed_ + 2, grid, variable, i, j, k) % 100;
        if (luck >= changedShare_)
            return first(grid, variable, i, j, k);
        return luck == 0 ? INFINITY : randomValues(seed_ + 3)(grid, variable, i, j, k);
    }

    /// The JSON of a variable, without its zones; of one zone, or of all with -1.
    Json expected(std::int32_t variable, std::int32_t onlyZone) const {
        Json told = {{"compared", 0},         {"different", 0},        {"notFinite", 0},
                     {"absolute", 0.0},       {"relative", 0.0},       {"absoluteAt", nullptr},
                     {"relativeAt", nullptr}, {"notFiniteAt", nullptr}};
        for (std::int32_t zone = 0; zone < static_cast<std::int32_t>(sizes.size()); ++zone)
            for (std::int32_t k = 0; k < sizes[static_cast<std::size_t>(zone)].k; ++k)
                for (std::int32_t j = 0; j < sizes[static_cast<std::size_t>(zone)].j; ++j)
                    for (std::int32_t i = 0; i < sizes[static_cast<std::size_t>(zone)].i; ++i)
                        if (onlyZone < 0 || onlyZone == zone)
                            compare(told, zone, variable, i, j, k);
        return told;
    }

    Sizes sizes;
    writer::FileForm_s firstForm;
    writer::FileForm_s secondForm;
    double tolerance = 0;

private:
    void compare(Json& told, std::int32_t zone, std::int32_t variable, std::int32_t i,
                 std::int32_t j, std::int32_t k) const {
        const double a = first(zone, variable, i, j, k);
        const double b = second(zone, variable, i, j, k);
        told.set("compared", told["compared"].get<int>() + 1);
        if (a == b || (std::isnan(a) && std::isnan(b)))
            return;
        const Json at = {{"zone", zone + 1}, {"i", i + 1},       {"j", j + 1},
                         {"k", k + 1},       {"first", text(a)}, {"second", text(b)}};
        const bool isUnlike = !std::isfinite(a) || !std::isfinite(b);
        const double distance = std::abs(a - b);
        if (isUnlike || distance > tolerance)
            told.set("different", told["different"].get<int>() + 1);
        if (isUnlike) {
            told.set("notFinite", told["notFinite"].get<int>() + 1);
            if (told["notFiniteAt"].isNull())
                told.set("notFiniteAt", at);
            return;
        }
        take(told, "absolute", distance, at);
        const double size = std::max(std::abs(a), std::abs(b));
        take(told, "relative", std::abs(a / size - b / size), at);
    }

    static void take(Json& told, const std::string& key, double difference, const Json& at) {
        if (difference > told[key].get<double>()) {
            told.set(key, difference);
            told.set(key + "At", at);
        }
    }

    static Json text(double value) {
        if (std::isnan(value))
            return "NaN";
        if (std::isinf(value))
            return value > 0 ? "Infinity" : "-Infinity";
        return value;
    }

    writer::FileForm_s form() {
        writer::FileForm_s made =
            binary(upTo(2) == 1 ? writer::ByteOrder_e::Little : writer::ByteOrder_e::Big,
                   upTo(2) == 1 ? writer::Precision_e::Single : writer::Precision_e::Double);
        if (upTo(2) == 1)
            made.encoding = writer::Encoding_e::Fortran;
        return made;
    }

    std::int32_t upTo(std::int32_t most) {
        return 1 + static_cast<std::int32_t>(random_() % static_cast<std::uint64_t>(most));
    }

    std::uint64_t seed_;
    std::mt19937_64 random_;
    std::uint32_t changedShare_ = 0; // of a hundred values
};

class DiffModelTest : public ValueFilesTest {
protected:
    static constexpr std::int32_t variables = 2;

    Ended_s diffOf(const DiffCase& made) const {
        const auto first = [&](auto... place) { return made.first(place...); };
        const auto second = [&](auto... place) { return made.second(place...); };
        return ended({"diff", "--json", "--variable", "F1*", "--tolerance",
                      std::to_string(made.tolerance),
                      write("a.x", gridFile(made.sizes, placeValue), made.firstForm),
                      write("a.f", functionFile(made.sizes, variables, first), made.firstForm),
                      "--", write("b.x", gridFile(made.sizes, placeValue), made.secondForm),
                      write("b.f", functionFile(made.sizes, variables, second), made.secondForm)});
    }

    /// Every member of `expected` is in `told` with its value.
    static void expectMembers(const Json& told, const Json& expected) {
        for (const std::string& key : expected.names())
            EXPECT_EQ(told[key], expected[key]) << key;
    }
};

TEST_F(DiffModelTest, AgreesOnRandomChanges) {
    const std::uint64_t seed = seedOfRun();
    int compared = 0;
    for (std::uint64_t number = 0; number < 40; ++number) {
        SCOPED_TRACE(seed + number);
        const DiffCase made(seed + number);
        const Ended_s diff = diffOf(made);
        if (isTakenForAnother(diff))
            continue;
        ++compared;
        ASSERT_TRUE(Json::isJson(diff.out)) << diff.err;
        const Json told = Json::parse(diff.out);
        EXPECT_EQ(diff.code, told["same"] == true ? 0 : 1);
        int different = 0;
        for (std::int32_t variable = 0; variable < variables; ++variable) {
            const Json& of = told["variables"][variable];
            expectMembers(of, made.expected(variable, -1));
            different += of["different"].get<int>();
            for (std::int32_t zone = 0; zone < static_cast<std::int32_t>(made.sizes.size()); ++zone)
                expectMembers(of["zones"][zone], made.expected(variable, zone));
        }
        EXPECT_EQ(told["same"], different == 0);
    }
    EXPECT_GT(compared, 30);
}

} // namespace
} // namespace plot3d::program
