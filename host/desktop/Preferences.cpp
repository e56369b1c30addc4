#include "desktop/Preferences.h"

#include <QDir>
#include <QFileInfo>

namespace quorvia::host {
namespace {

const QString folderKey = QStringLiteral("import/folder");
const QString geometryKey = QStringLiteral("window/geometry");

} // namespace

QString Preferences::folder() const {
    const QString folder = settings_.value(folderKey).toString();
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

void Preferences::setFolderOf(const QString& file) {
    settings_.setValue(folderKey, QFileInfo(file).absolutePath());
}

QByteArray Preferences::windowGeometry() const {
    return settings_.value(geometryKey).toByteArray();
}

void Preferences::setWindowGeometry(const QByteArray& geometry) {
    settings_.setValue(geometryKey, geometry);
}

} // namespace quorvia::host
