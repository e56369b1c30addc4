// Random data sets, selections and options that no list names: what the commands tell of values,
// against what was written.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <zlib.h>

#include "program/commands/CommandsFixture.h"
#include "program/values/PlainModel.h"

namespace plot3d::program {
namespace {

std::string withoutBlanksAtEnd(std::string name) {
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

/// As the commands tell it: JSON has no other numbers than finite ones.
Json jsonOf(double number) {
    if (std::isfinite(number))
        return number;
    return std::isnan(number) ? "NaN" : number > 0 ? "Infinity" : "-Infinity";
}

/// The values of a variable in one box, in their order.
std::vector<PlainValue_s> valuesOf(const ModelSet& data, const ModelVariable_s& variable,
                                   const ModelBox_s& box, bool keepsBlanked) {
    std::vector<PlainValue_s> values;
    const ModelZone_s& zone = data.zones()[box.zone];
    const bool skips = data.hasIBlank() && !keepsBlanked && !variable.isIBlank;
    box.forEach([&](std::int64_t i, std::int64_t j, std::int64_t k) {
        values.push_back({data.value(zone, variable, i, j, k),
                          {static_cast<std::int64_t>(box.zone) + 1, i + 1, j + 1, k + 1},
                          skips && data.iBlank(zone, i, j, k) == 0});
    });
    return values;
}

template <class Number>
void appendBytes(std::string& bytes, Number number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

std::string crcOf(const ModelSet& data, const ModelVariable_s& variable,
                  const std::vector<PlainValue_s>& values) {
    std::string bytes;
    for (const PlainValue_s& value : values)
        if (variable.isIBlank)
            appendBytes(bytes, static_cast<std::int32_t>(value.value));
        else if (data.isDouble(variable.part))
            appendBytes(bytes, value.value);
        else
            appendBytes(bytes, static_cast<float>(value.value));
    std::array<char, 9> text{};
    std::snprintf(
        text.data(), text.size(), "%08lx",
        crc32(0, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
    return text.data();
}

const std::vector<double> percents = {0, 12.5, 50, 100};

/// Null where no value counts.
Json percentileOf(const std::vector<PlainValue_s>& values, double percent) {
    std::vector<double> sorted;
    for (const PlainValue_s& value : values)
        if (!value.isBlanked && std::isfinite(value.value))
            sorted.push_back(value.value);
    if (sorted.empty())
        return nullptr;
    std::sort(sorted.begin(), sorted.end());
    const double place = static_cast<double>(sorted.size() - 1) * percent / 100;
    const auto below = static_cast<std::size_t>(place);
    const double above = sorted[std::min(below + 1, sorted.size() - 1)];
    return sorted[below] + (above - sorted[below]) * (place - std::floor(place));
}

class RandomCommands : public CommandsTest {
protected:
    static void expectStatistics(const Json& told, const ModelSet& data,
                                 const ModelVariable_s& variable,
                                 const std::vector<PlainValue_s>& values) {
        EXPECT_TRUE(tells(told, values)) << variable.name;
        EXPECT_EQ(told["crc32"], crcOf(data, variable, values)) << variable.name;
        for (std::size_t index = 0; index < percents.size(); ++index) {
            const Json found = told["percentiles"][index]["value"];
            const Json wanted = percentileOf(values, percents[index]);
            if (wanted.isNull() || found.isNull()) {
                EXPECT_EQ(found, wanted);
            } else {
                const auto near = wanted.get<double>();
                EXPECT_NEAR(found.get<double>(), near, 1e-9 * std::abs(near) + 1e-6);
            }
        }
    }

    static void expectVariable(const Json& told, const ModelSet& data,
                               const ModelVariable_s& variable,
                               const std::vector<ModelBox_s>& boxes, bool keepsBlanked) {
        EXPECT_EQ(withoutBlanksAtEnd(told["name"].get<std::string>()), variable.name);
        std::vector<PlainValue_s> all;
        ASSERT_EQ(told["zones"].size(), boxes.size()) << variable.name;
        for (std::size_t place = 0; place < boxes.size(); ++place) {
            const auto values = valuesOf(data, variable, boxes[place], keepsBlanked);
            const Json& zone = told["zones"][place];
            EXPECT_EQ(zone["zone"], boxes[place].zone + 1);
            EXPECT_EQ(zone["time"], jsonOf(data.zones()[boxes[place].zone].time));
            expectStatistics(zone, data, variable, values);
            all.insert(all.end(), values.begin(), values.end());
        }
        expectStatistics(told, data, variable, all);
    }

    /// A field of a line against what stands in the file.
    static bool isText(const std::string& text, double value, bool isDouble) {
        const double found = isDouble ? std::strtod(text.c_str(), nullptr)
                                      : static_cast<double>(std::strtof(text.c_str(), nullptr));
        return !text.empty() && (found == value || (std::isnan(found) && std::isnan(value)));
    }

    static void expectLines(std::istream& in, const ModelSet& data,
                            const ModelSelection& selection) {
        std::string line;
        std::getline(in, line);
        for (const ModelBox_s& box : selection.boxes())
            box.forEach([&](std::int64_t i, std::int64_t j, std::int64_t k) {
                ASSERT_TRUE(std::getline(in, line));
                expectLine(line, data, selection, data.zones()[box.zone],
                           {static_cast<double>(box.zone) + 1, data.zones()[box.zone].time,
                            static_cast<double>(i) + 1, static_cast<double>(j) + 1,
                            static_cast<double>(k) + 1});
            });
        EXPECT_FALSE(std::getline(in, line)) << line;
    }

    /// `place`: what stands ahead of the values: zone, time and the indices from 1.
    static void expectLine(const std::string& line, const ModelSet& data,
                           const ModelSelection& selection, const ModelZone_s& zone,
                           const std::vector<double>& place) {
        std::istringstream fields(line);
        std::string text;
        for (const double number : place) {
            std::getline(fields, text, ',');
            ASSERT_TRUE(isText(text, number, true)) << line;
        }
        const auto index = [&place](std::size_t at) {
            return static_cast<std::int64_t>(place[at]) - 1;
        };
        for (const std::size_t which : selection.variables()) {
            const ModelVariable_s& variable = data.variables()[which];
            std::getline(fields, text, ',');
            ASSERT_TRUE(isText(text, data.value(zone, variable, index(2), index(3), index(4)),
                               variable.isIBlank || data.isDouble(variable.part)))
                << variable.name << " in " << line;
        }
    }
};

TEST_F(RandomCommands, StatsAreThoseOfTheValues) {
    forRandomSets(setCount, [this](const ModelSet& data, Dice& draw, const std::string& folder) {
        const ModelSelection selection(data, draw);
        const bool keepsBlanked = draw.chance(33);
        const Words addOn = draw.chance(25) ? Words{"--addon", PLOT3DLOADER_FILE} : Words();
        const Ended_s run = ran("stats", {loadWords(data, folder),
                                          addOn,
                                          selection.words(),
                                          keepsBlanked ? Words{"--blank", "keep"} : Words(),
                                          {"--json", "--hash", "--percentiles", "0,12.5,50,100"}});
        SCOPED_TRACE(testing::PrintToString(selection.words()));
        if (selection.boxes().empty()) {
            EXPECT_EQ(run.code, 2) << run.err;
            return;
        }
        ASSERT_EQ(run.code, 0) << run.err;
        const Json told = Json::parse(run.out)["variables"];
        ASSERT_EQ(told.size(), selection.variables().size());
        for (std::size_t place = 0; place < told.size(); ++place)
            expectVariable(told[place], data, data.variables()[selection.variables()[place]],
                           selection.boxes(), keepsBlanked);
    });
}

TEST_F(RandomCommands, TablesHoldTheValues) {
    forRandomSets(setCount, [this](const ModelSet& data, Dice& draw, const std::string& folder) {
        const ModelSelection selection(data, draw);
        const Ended_s run =
            ran("convert",
                {loadWords(data, folder), selection.words(), {"-o", file(folder + "/out.csv")}});
        SCOPED_TRACE(testing::PrintToString(selection.words()));
        const int refused = selection.boxes().empty() ? 2 : selection.cutsElements() ? 1 : 0;
        ASSERT_EQ(run.code, refused) << run.err;
        std::ifstream lines(file(folder + "/out.csv"));
        ASSERT_EQ(lines.is_open(), refused == 0);
        if (refused == 0)
            expectLines(lines, data, selection);
    });
}

TEST_F(RandomCommands, InfoTellsWhatWasWritten) {
    forRandomSets(setCount, [this](const ModelSet& data, Dice&, const std::string& folder) {
        for (const ModelFile_s& each : data.files()) {
            if (each.form.encoding == writer::Encoding_e::Text && each.contents.hasIBlank)
                continue;
            const Json told = infoOf(each, folder);
            EXPECT_EQ(told["bytes"]["used"], std::filesystem::file_size(path(folder, each)));
            ASSERT_EQ(told["grids"].size(), each.contents.grids.size());
            EXPECT_EQ(told["grids"][0]["i"], each.contents.grids[0].i);
            EXPECT_EQ(told["variables"], writer::variableCount(each.contents));
            if (each.part == Part_Solution) {
                EXPECT_EQ(told["scalars"][0]["time"], jsonOf(data.scalars(each.step)[3]));
            }
        }
    });
}

/// What diff finds in one variable of two sets.
struct Differences_s {
    std::int64_t compared = 0;
    std::int64_t different = 0;
    std::int64_t notFinite = 0;
    double largest = 0;

    void take(double a, double b) {
        ++compared;
        if (a == b || (std::isnan(a) && std::isnan(b)))
            return;
        ++different;
        if (std::isfinite(a) && std::isfinite(b))
            largest = std::max(largest, std::abs(a - b));
        else
            ++notFinite;
    }
};

Differences_s differencesOf(const ModelSet& first, const ModelSet& second,
                            const ModelVariable_s& variable, const std::vector<ModelBox_s>& boxes) {
    const bool isDouble = first.isDouble(variable.part) && second.isDouble(variable.part);
    const auto narrowed = [isDouble](double value) {
        return isDouble ? value : static_cast<double>(static_cast<float>(value));
    };
    Differences_s differences;
    for (const ModelBox_s& box : boxes)
        box.forEach([&](std::int64_t i, std::int64_t j, std::int64_t k) {
            differences.take(narrowed(first.value(first.zones()[box.zone], variable, i, j, k)),
                             narrowed(second.value(second.zones()[box.zone], variable, i, j, k)));
        });
    return differences;
}

TEST_F(RandomCommands, DiffFindsWhatWasChanged) {
    forRandomSets(setCount, [this](const ModelSet& data, Dice& draw, const std::string& folder) {
        ModelSet other(data.seed(), static_cast<std::uint64_t>(draw.between(1, 1000000)));
        other.changedShare = draw.chance(33) ? 0 : draw.between(1, 20);
        if (!data.isKnownByNames() || !other.isKnownByNames() ||
            (data.hasText() && other.hasText() && data.isDouble(0) != other.isDouble(0)))
            return; // they have no command line in common
        writeFiles(other, folder + "/other");
        if (isAmbiguous(other, folder + "/other"))
            return;
        const ModelSelection selection(data, draw);
        SCOPED_TRACE(testing::PrintToString(selection.words()));
        const Ended_s run = ran("diff", {loadWords(data, folder),
                                         selection.words(),
                                         {"--json"},
                                         {"--"},
                                         loadWords(other, folder + "/other")});
        if (selection.boxes().empty()) {
            EXPECT_EQ(run.code, 2) << run.err;
            return;
        }
        ASSERT_TRUE(Json::isJson(run.out)) << run.err;
        const Json told = Json::parse(run.out);
        std::int64_t different = 0;
        for (std::size_t place = 0; place < selection.variables().size(); ++place) {
            const ModelVariable_s& variable = data.variables()[selection.variables()[place]];
            const Differences_s wanted = differencesOf(data, other, variable, selection.boxes());
            const Json& found = told["variables"][place];
            EXPECT_EQ(found["compared"], wanted.compared) << variable.name;
            EXPECT_EQ(found["different"], wanted.different) << variable.name;
            EXPECT_EQ(found["notFinite"], wanted.notFinite) << variable.name;
            EXPECT_EQ(found["absolute"], wanted.largest) << variable.name;
            different += wanted.different;
        }
        EXPECT_EQ(told["unlike"], Json::array());
        EXPECT_EQ(told["same"], different == 0);
        EXPECT_EQ(run.code, different == 0 ? 0 : 1);
    });
}

} // namespace
} // namespace plot3d::program
