#include "desktop/files/Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QVariant>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

const QString folderKey = QStringLiteral("import/folder");
const QString resultFolderKey = QStringLiteral("results/folder");
const QString recentKey = QStringLiteral("import/recent");
const QString importsKey = QStringLiteral("imports");
const QString instructionsKey = QStringLiteral("instructions");
const QString leftOutKey = QStringLiteral("leftOut");
const QString geometryKey = QStringLiteral("window/geometry");

QStringList listOf(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts)
        list.append(shown(text));
    return list;
}

std::vector<std::string> textsOf(const QVariant& list) {
    std::vector<std::string> texts;
    for (const QString& text : list.toStringList())
        texts.push_back(text.toStdString());
    return texts;
}

} // namespace

QString Preferences::folder() const {
    const QString folder = settings_.value(folderKey).toString();
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

void Preferences::setFolderOf(const QString& file) {
    settings_.setValue(folderKey, QFileInfo(file).absolutePath());
}

QString Preferences::resultFolder() const {
    const QString chosen = settings_.value(resultFolderKey).toString();
    return !chosen.isEmpty() && QDir(chosen).exists() ? chosen : folder();
}

void Preferences::setResultFolderOf(const QString& file) {
    settings_.setValue(resultFolderKey, QFileInfo(file).absolutePath());
}

std::vector<ImportList> Preferences::recentImports() const {
    std::vector<ImportList> sets(static_cast<std::size_t>(settings_.beginReadArray(recentKey)));
    for (std::size_t place = 0; place < sets.size(); ++place) {
        settings_.setArrayIndex(static_cast<int>(place));
        sets[place].resize(static_cast<std::size_t>(settings_.beginReadArray(importsKey)));
        for (std::size_t step = 0; step < sets[place].size(); ++step) {
            settings_.setArrayIndex(static_cast<int>(step));
            sets[place][step] = {textsOf(settings_.value(instructionsKey)),
                                 textsOf(settings_.value(leftOutKey))};
        }
        settings_.endArray();
    }
    settings_.endArray();
    // Somebody may have changed the settings by hand.
    std::erase_if(sets, [](const ImportList& set) { return filesOf(set).empty(); });
    return sets;
}

void Preferences::setRecentImports(const std::vector<ImportList>& sets) {
    settings_.remove(recentKey);
    settings_.beginWriteArray(recentKey, static_cast<int>(sets.size()));
    for (std::size_t place = 0; place < sets.size(); ++place) {
        settings_.setArrayIndex(static_cast<int>(place));
        settings_.beginWriteArray(importsKey, static_cast<int>(sets[place].size()));
        for (std::size_t step = 0; step < sets[place].size(); ++step) {
            settings_.setArrayIndex(static_cast<int>(step));
            settings_.setValue(instructionsKey, listOf(sets[place][step].instructions));
            settings_.setValue(leftOutKey, listOf(sets[place][step].leftOut));
        }
        settings_.endArray();
    }
    settings_.endArray();
}

QByteArray Preferences::windowGeometry() const {
    return settings_.value(geometryKey).toByteArray();
}

void Preferences::setWindowGeometry(const QByteArray& geometry) {
    settings_.setValue(geometryKey, geometry);
}

} // namespace quorvia::host
