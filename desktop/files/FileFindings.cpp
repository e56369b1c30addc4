#include "desktop/files/FileFindings.h"

#include <filesystem>
#include <utility>

#include <QSignalBlocker>

#include "analysis/findings/Findings.h"
#include "desktop/parts/Texts.h"
#include "desktop/parts/TreeItems.h"

namespace quorvia::host {
namespace {

using plot3d::analysis::Finding_s;

QTreeWidgetItem* addLine(QTreeWidgetItem* parent, const QString& name, const QString& details) {
    auto* item = new QTreeWidgetItem(parent);
    item->setText(nameColumn, name);
    item->setText(detailsColumn, details);
    item->setToolTip(detailsColumn, details); // longer than any column
    return item;
}

} // namespace

FileFindings::FileFindings(QTreeWidget& tree)
    : QObject(&tree), tree_(tree),
      look_([](const std::optional<std::string>&) {}) { // stopped by the next import
    connect(&tree_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
        if (item == list_ && !files_.empty() && item->child(0)->childCount() == 0)
            lookFrom(0);
    });
}

void FileFindings::show(QTreeWidgetItem* root, std::vector<ImportedFile_s> files) {
    const QSignalBlocker silence(&tree_);
    look_.start([](const plot3d::Watch&) { return LatestWork::Finish([] {}); }); // no older ones
    files_ = std::move(files);
    list_ = nullptr;
    if (files_.empty())
        return;
    list_ = addLine(root, QStringLiteral("Files"), shownCount(files_.size(), "file", "files"));
    for (const ImportedFile_s& file : files_) {
        const std::filesystem::path path = file.name;
        QTreeWidgetItem* item = addLine(list_, shown(path.filename().string()), QString());
        item->setToolTip(nameColumn, shown(file.name));
    }
}

void FileFindings::lookFrom(std::size_t place) {
    if (place == files_.size())
        return;
    look_.start(
        [this, place, file = files_[place]](const plot3d::Watch& watch) -> LatestWork::Finish {
            plot3d::InspectOptions options;
            options.as = file.kind;
            options.trials = false;
            auto info = plot3d::inspect(file.name, options, watch);
            return [this, place, info = std::move(info)] {
                showFindings(place, info);
                lookFrom(place + 1);
            };
        });
}

void FileFindings::showFindings(std::size_t place, const plot3d::FileInfo& info) {
    const QSignalBlocker silence(&tree_);
    QTreeWidgetItem* file = list_->child(static_cast<int>(place));
    const auto findings = plot3d::analysis::findingsOf(info, plot3d::analysis::Lists_e::Whole);
    file->setText(detailsColumn, shown(findings.front().text));
    file->setToolTip(detailsColumn, shown(findings.front().text));
    for (std::size_t line = 1; line < findings.size(); ++line)
        addLine(file, shown(findings[line].label), shown(findings[line].text));
    tree_.viewport()->update();
}

} // namespace quorvia::host
