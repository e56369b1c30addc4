#include "desktop/files/ImportFileDialog.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QRegularExpression>
#include <QTreeView>

#include "desktop/files/Preferences.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

/// Names get the room that sizes and dates leave.
void widenNames(QFileDialog& dialog) {
    const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (list == nullptr)
        return;
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    constexpr int typeColumn = 2; // no desktop knows these files
    list->header()->hideSection(typeColumn);
}

/// The host's own dialog everywhere, since options are added to it.
void prepare(QFileDialog& dialog, const QString& title, bool severalFiles) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setWindowTitle(title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(severalFiles ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    dialog.setDirectory(Preferences().folder());
    constexpr QSize roomForLongNames(760, 480);
    dialog.resize(roomForLongNames);
    widenNames(dialog);
}

QString filterText(const QString& kind, const std::string& patterns) {
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    const QStringList list = shown(patterns).split(separators, Qt::SkipEmptyParts);
    return QStringLiteral("%1 (%2)").arg(kind, list.join(QLatin1Char(' ')));
}

const QString allFiles = QStringLiteral("All files (*)");

/// Empty if the user cancels.
std::vector<std::string> runDialog(QFileDialog& dialog) {
    std::vector<std::string> files;
    if (dialog.exec() != QDialog::Accepted)
        return files;
    for (const QString& file : dialog.selectedFiles())
        files.push_back(QDir::cleanPath(file).toStdString());
    return files;
}

/// The same, and remembers the folder for files that are read.
std::vector<std::string> runForData(QFileDialog& dialog) {
    std::vector<std::string> files = runDialog(dialog);
    if (!files.empty())
        Preferences().setFolderOf(shown(files.front()));
    return files;
}

/// For a picture or a view; empty if the user cancels. These have a folder of their own.
QString runForResult(QFileDialog& dialog) {
    dialog.setDirectory(Preferences().resultFolder());
    const std::vector<std::string> files = runDialog(dialog);
    if (files.empty())
        return {};
    Preferences().setResultFolderOf(shown(files.front()));
    return shown(files.front());
}

/// The row of options below the file name and the filter.
struct Options_s {
    QCheckBox* advanced;
    QCheckBox* append;
};

/// Empty if appending can be chosen.
QString whyNoAppend(const Loader_s& loader, bool hasDataSet, bool advanced) {
    if (!loader.allowsAppending)
        return QStringLiteral("This loader can't append.");
    if (!hasDataSet)
        return QStringLiteral("There is no data set to append to yet.");
    if (advanced)
        return QStringLiteral("The loader's dialog has a choice of its own.");
    return {};
}

Options_s addOptions(QFileDialog& dialog, const Loader_s& loader, bool hasDataSet) {
    const Options_s options{new QCheckBox(QStringLiteral("A&dvanced options"), &dialog),
                            new QCheckBox(QStringLiteral("&Append to the data set"), &dialog)};
    options.advanced->setObjectName(QStringLiteral("advanced"));
    options.append->setObjectName(QStringLiteral("append"));
    options.advanced->setEnabled(loader.allowsAdvancedOptions);
    options.advanced->setToolTip(
        loader.allowsAdvancedOptions
            ? QStringLiteral("Show the loader's dialog before the files are loaded.")
            : QStringLiteral("This loader has no advanced options."));
    const auto showAppend = [append = options.append, advanced = options.advanced, loader,
                             hasDataSet] {
        const QString whyNot = whyNoAppend(loader, hasDataSet, advanced->isChecked());
        append->setEnabled(whyNot.isEmpty());
        append->setToolTip(whyNot.isEmpty()
                               ? QStringLiteral("Keep the data set, and add what is in the files.")
                               : whyNot);
    };
    QObject::connect(options.advanced, &QCheckBox::toggled, options.append, showAppend);
    showAppend();
    auto* row = new QHBoxLayout;
    row->addWidget(options.advanced);
    row->addWidget(options.append);
    row->addStretch();
    if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
        constexpr int columnOfFields = 1;
        grid->addLayout(row, grid->rowCount(), columnOfFields);
    }
    return options;
}

} // namespace

FileSelection_s selectFilesToImport(QWidget* parent, const Loader_s& loader, bool hasDataSet) {
    QFileDialog dialog(parent);
    prepare(dialog, QStringLiteral("Import: %1").arg(shown(loader.name)),
            loader.allowsSeveralFiles);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Import"));
    dialog.setOption(QFileDialog::HideNameFilterDetails); // there are many patterns
    dialog.setNameFilters({filterText(shown(loader.name), loader.fileNameExtensions), allFiles});
    const Options_s options = addOptions(dialog, loader, hasDataSet);
    FileSelection_s selection;
    selection.files = runForData(dialog);
    selection.advanced = options.advanced->isChecked();
    selection.append = options.append->isEnabled() && options.append->isChecked();
    return selection;
}

QString chooseFileToSave(QWidget* parent, const QString& title, const QString& filter) {
    QFileDialog dialog(parent);
    prepare(dialog, title, /*severalFiles=*/false);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(filter);
    dialog.setDefaultSuffix(filter.section(QStringLiteral("*."), 1).remove(QLatin1Char(')')));
    return runForResult(dialog);
}

QString chooseFileToOpen(QWidget* parent, const QString& title, const QString& filter) {
    QFileDialog dialog(parent);
    prepare(dialog, title, /*severalFiles=*/false);
    dialog.setNameFilters({filter, allFiles});
    return runForResult(dialog);
}

std::vector<std::string> chooseExistingFiles(QWidget* parent, const FileRequest_s& request) {
    QFileDialog dialog(parent);
    const QString files = request.severalFiles ? QStringLiteral("Files") : QStringLiteral("File");
    prepare(dialog, QStringLiteral("Choose %1 %2").arg(shown(request.kind), files),
            request.severalFiles);
    // "*.*" would hide the files without an extension.
    if (request.filter.empty() || request.filter == "*.*")
        dialog.setNameFilter(allFiles);
    else
        dialog.setNameFilters(
            {filterText(QStringLiteral("%1 files").arg(shown(request.kind)), request.filter),
             allFiles});
    if (!request.defaultName.empty())
        dialog.setDirectory(QFileInfo(shown(request.defaultName)).absolutePath());
    return runForData(dialog);
}

} // namespace quorvia::host
