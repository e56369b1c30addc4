#include "desktop/parts/Texts.h"

#include "console/Words.h"

namespace quorvia::host {

QString shownCaption(const std::string& caption) {
    return shown(caption).trimmed().replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString shownNumber(double value) {
    constexpr int digits = 7;
    return QString::number(value, 'g', digits);
}

QString shownCount(std::size_t count, const char* one, const char* many) {
    return shown(console::counted(count, one, many));
}

} // namespace quorvia::host
