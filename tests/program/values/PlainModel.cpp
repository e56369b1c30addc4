#include "program/values/PlainModel.h"

#include <algorithm>
#include <cmath>

namespace plot3d::program {
namespace {

using quorvia::testsupport::Json;
using Values = std::vector<PlainValue_s>;

std::int64_t countIf(const Values& values, bool (*is)(const PlainValue_s&)) {
    return std::count_if(values.begin(), values.end(), is);
}

Values countingOf(const Values& values) {
    Values counting;
    for (const PlainValue_s& value : values)
        if (!value.isBlanked && std::isfinite(value.value))
            counting.push_back(value);
    return counting;
}

Json placeOf(const PlainValue_s& value) {
    const auto [zone, i, j, k] = value.place;
    return {{"zone", zone}, {"i", i}, {"j", j}, {"k", k}};
}

Json extremes(const Values& counting) {
    if (counting.empty())
        return {{"min", nullptr}, {"max", nullptr}, {"minAt", nullptr}, {"maxAt", nullptr}};
    const auto isLess = [](const PlainValue_s& one, const PlainValue_s& other) {
        return one.value < other.value;
    };
    const auto isMore = [](const PlainValue_s& one, const PlainValue_s& other) {
        return one.value > other.value;
    };
    // The first of several.
    const auto min = std::min_element(counting.begin(), counting.end(), isLess);
    const auto max = std::min_element(counting.begin(), counting.end(), isMore);
    return {{"min", min->value},
            {"max", max->value},
            {"minAt", placeOf(*min)},
            {"maxAt", placeOf(*max)}};
}

bool isNear(const Json& told, long double expected, long double scale) {
    return std::abs(told.get<double>() - static_cast<double>(expected)) <=
           1e-12 * static_cast<double>(scale);
}

bool momentsAgree(const Json& told, const Values& counting) {
    if (counting.empty())
        return told["mean"].isNull() && told["deviation"].isNull();
    long double sum = 0;
    long double size = 0;
    for (const PlainValue_s& value : counting) {
        sum += value.value;
        size = std::max(size, std::abs(static_cast<long double>(value.value)));
    }
    const auto count = static_cast<long double>(counting.size());
    long double squares = 0;
    for (const PlainValue_s& value : counting)
        squares += (value.value - sum / count) * (value.value - sum / count);
    return isNear(told["mean"], sum / count, size) &&
           isNear(told["deviation"], std::sqrt(squares / count), size);
}

} // namespace

testing::AssertionResult tells(const Json& told, const Values& values) {
    const Values counting = countingOf(values);
    Json expected = extremes(counting);
    expected.set("count", counting.size());
    expected.set("blanked", countIf(values, [](const PlainValue_s& v) { return v.isBlanked; }));
    expected.set("nan", countIf(values, [](const PlainValue_s& v) {
                     return !v.isBlanked && std::isnan(v.value);
                 }));
    expected.set("infinite", countIf(values, [](const PlainValue_s& v) {
                     return !v.isBlanked && std::isinf(v.value);
                 }));
    for (const std::string& key : expected.names())
        if (told[key] != expected[key])
            return testing::AssertionFailure()
                   << key << " is " << told[key] << " and should be " << expected[key];
    if (!momentsAgree(told, counting))
        return testing::AssertionFailure()
               << "mean " << told["mean"] << " or deviation " << told["deviation"] << " is wrong";
    return testing::AssertionSuccess();
}

} // namespace plot3d::program
