#include "desktop/files/RecentMenu.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr std::size_t mostSets = 10;

bool haveSameFiles(const ImportList& one, const ImportList& other) {
    return filesOf(one) == filesOf(other);
}

/// "wing.x and 3 more files in /data/wing", behind its number as a key.
QString entryText(std::size_t place, const std::vector<ImportedFile_s>& files) {
    const std::filesystem::path first = files.front().name;
    const QString more = files.size() == 1 ? QString()
                                           : QStringLiteral(" and %1").arg(shownCount(
                                                 files.size() - 1, "more file", "more files"));
    const QString text =
        QStringLiteral("%1%2 in %3")
            .arg(shown(first.filename().string()), more, shown(first.parent_path().string()));
    return QStringLiteral("&%1  %2").arg(place).arg(shownCaption(text.toStdString()));
}

QString allNames(const std::vector<ImportedFile_s>& files) {
    constexpr std::size_t mostLines = 20;
    QStringList lines;
    for (std::size_t place = 0; place < std::min(files.size(), mostLines); ++place)
        lines.append(shown(files[place].name));
    if (files.size() > mostLines)
        lines.append(QStringLiteral("..."));
    return lines.join(QLatin1Char('\n'));
}

/// Empty if all are there.
std::string firstMissing(const ImportList& imports) {
    for (const ImportedFile_s& file : filesOf(imports)) {
        std::error_code unknown;
        if (!std::filesystem::exists(file.name, unknown))
            return file.name;
    }
    return {};
}

} // namespace

RecentMenu::RecentMenu(Preferences& preferences, Chosen chosen, QWidget* parent)
    : QMenu(QStringLiteral("Open &Recent"), parent), preferences_(preferences),
      chosen_(std::move(chosen)), sets_(preferences.recentImports()),
      look_([](const std::optional<std::string>&) {}) { // then choosing tells what is missing
    setObjectName(QStringLiteral("recent"));
    connect(this, &QMenu::aboutToShow, this, [this] { lookForFiles(); });
    showEntries();
}

void RecentMenu::add(const ImportList& imports, const ImportList& instead) {
    if (filesOf(imports).empty())
        return;
    sets_ = preferences_.recentImports(); // other windows have theirs
    std::erase_if(sets_, [&](const ImportList& set) {
        return haveSameFiles(set, imports) || haveSameFiles(set, instead);
    });
    sets_.insert(sets_.begin(), imports);
    sets_.resize(std::min(sets_.size(), mostSets));
    preferences_.setRecentImports(sets_);
    showEntries();
}

void RecentMenu::allow(bool isAllowed) {
    menuAction()->setEnabled(isAllowed && !sets_.empty());
    menuAction()->setToolTip(sets_.empty() ? QStringLiteral("Nothing was imported yet.")
                                           : QString());
}

void RecentMenu::showEntries() {
    clear();
    for (std::size_t place = 0; place < sets_.size(); ++place) {
        const std::vector<ImportedFile_s> files = filesOf(sets_[place]);
        QAction* entry = addAction(entryText(place + 1, files));
        entry->setToolTip(allNames(files));
        connect(entry, &QAction::triggered, this, [this, place] {
            const ImportList imports = sets_[place]; // the menu changes meanwhile
            chosen_(imports);
        });
    }
    addSeparator();
    connect(addAction(QStringLiteral("&Clear List")), &QAction::triggered, this,
            [this] { forgetAll(); });
}

void RecentMenu::lookForFiles() {
    look_.start([this, sets = sets_](const plot3d::Watch&) -> LatestWork::Finish {
        std::vector<std::string> missing;
        for (const ImportList& set : sets)
            missing.push_back(firstMissing(set));
        return [this, missing] { showMissing(missing); };
    });
}

void RecentMenu::showMissing(const std::vector<std::string>& missing) {
    for (std::size_t place = 0; place < std::min(missing.size(), sets_.size()); ++place) {
        QAction* entry = actions()[static_cast<int>(place)];
        entry->setEnabled(missing[place].empty());
        entry->setToolTip(missing[place].empty()
                              ? allNames(filesOf(sets_[place]))
                              : QStringLiteral("%1 is gone.").arg(shown(missing[place])));
    }
}

void RecentMenu::forgetAll() {
    sets_.clear();
    preferences_.setRecentImports(sets_);
    showEntries();
    allow(true);
}

} // namespace quorvia::host
