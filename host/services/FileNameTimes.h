// The host's rule for finding a time in the name of a file.
#pragma once

#include <optional>
#include <string_view>

namespace quorvia::host {

/// The last number in the name of the file, directories left out: 1000 for "q.0001000", 0.25 for
/// "wing_t0.25.q", 12 for "step-12.q". Nothing if there is no number.
/// - The extension, from the last point on, belongs to the name only if it is a number.
/// - A number is digits, with a point and digits behind them if there are any; only then an
/// exponent
///   may follow ("t1.25e-03.q").
/// - A '-' in front is a sign, save behind a letter or a digit, where it separates ("t_-5.q" is
/// -5).
std::optional<double> timeFromFileName(std::string_view path);

} // namespace quorvia::host
