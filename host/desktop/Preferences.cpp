#include "desktop/Preferences.h"

#include <QDir>
#include <QFileInfo>

namespace quorvia::host {
namespace {

const QString kFolder = QStringLiteral("import/folder");
const QString kGeometry = QStringLiteral("window/geometry");

} // namespace

QString Preferences::folder() const {
    const QString folder = settings_.value(kFolder).toString();
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

void Preferences::setFolderOf(const QString& file) {
    settings_.setValue(kFolder, QFileInfo(file).absolutePath());
}

QByteArray Preferences::windowGeometry() const {
    return settings_.value(kGeometry).toByteArray();
}

void Preferences::setWindowGeometry(const QByteArray& geometry) {
    settings_.setValue(kGeometry, geometry);
}

} // namespace quorvia::host
