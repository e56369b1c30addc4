#include "acceptance/realdata/PlainReading.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace quorvia::testsupport {
namespace {

double realFrom(std::string bytes, const PlainReals_s& form) {
    if (form.isBigEndian)
        std::reverse(bytes.begin(), bytes.end());
    if (form.width == 8) {
        double value;
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }
    float value;
    std::memcpy(&value, bytes.data(), sizeof value);
    return static_cast<double>(value);
}

} // namespace

std::vector<double> plainReals(const std::string& path, std::int64_t position, std::int64_t count,
                               const PlainReals_s& form) {
    std::ifstream in(path, std::ios::binary);
    in.seekg(position);
    std::vector<double> numbers;
    std::string bytes(static_cast<std::size_t>(form.width), '\0');
    for (std::int64_t index = 0; index < count; ++index) {
        if (!in.read(bytes.data(), form.width))
            throw std::runtime_error(path + " is too short");
        numbers.push_back(realFrom(bytes, form));
    }
    return numbers;
}

std::vector<double> plainTokens(const std::string& path) {
    std::ifstream in(path);
    std::vector<double> numbers;
    std::string token;
    while (in >> token) {
        if (token.back() == ',')
            token.pop_back();
        const std::size_t star = token.find('*');
        const long repeats =
            star == std::string::npos ? 1 : std::strtol(token.c_str(), nullptr, 10);
        const std::string value = star == std::string::npos ? token : token.substr(star + 1);
        char* end = nullptr;
        const double number = std::strtod(value.c_str(), &end);
        if (value.empty() || *end != '\0')
            throw std::runtime_error(path + ": a token that is no number: " + token);
        numbers.insert(numbers.end(), static_cast<std::size_t>(repeats), number);
    }
    return numbers;
}

std::vector<double> stretch(const std::vector<double>& numbers, std::int64_t first,
                            std::int64_t count) {
    if (first < 0 || first + count > static_cast<std::int64_t>(numbers.size()))
        throw std::out_of_range("too few numbers");
    return {numbers.begin() + first, numbers.begin() + first + count};
}

std::vector<double> narrowed(std::vector<double> numbers) {
    for (double& number : numbers)
        number = static_cast<double>(static_cast<float>(number));
    return numbers;
}

::testing::AssertionResult sameNumbers(const std::vector<double>& found,
                                       const std::vector<double>& expected, double tolerance) {
    if (found.size() != expected.size())
        return ::testing::AssertionFailure()
               << found.size() << " values, expected " << expected.size();
    for (std::size_t index = 0; index < found.size(); ++index)
        if (!(std::abs(found[index] - expected[index]) <= tolerance))
            return ::testing::AssertionFailure() << "at " << index << ": found " << found[index]
                                                 << ", expected " << expected[index];
    return ::testing::AssertionSuccess();
}

} // namespace quorvia::testsupport
