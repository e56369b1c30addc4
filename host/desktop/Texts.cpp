#include "desktop/Texts.h"

namespace quorvia::host {

QString shownCaption(const std::string& caption) {
    return shown(caption).trimmed().replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString shownNumber(double value) {
    constexpr int kDigits = 7;
    return QString::number(value, 'g', kDigits);
}

QString counted(std::size_t count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

} // namespace quorvia::host
