#include "desktop/MainWindow.h"

#include <utility>

#include <QCloseEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

#include "describe/Words.h"
#include "desktop/KeptView.h"
#include "desktop/parts/DrawnIcon.h"
#include "desktop/parts/MessageBoxes.h"
#include "desktop/parts/Texts.h"
#include "desktop/tree/ZoneGroups.h"

namespace quorvia::host {
namespace {

constexpr const char* importPage = "data-loading.html#data-loading/plot3d";

std::vector<std::string> localFiles(const QMimeData& data) {
    std::vector<std::string> files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            files.push_back(url.toLocalFile().toStdString());
    return files;
}

} // namespace

MainWindow::MainWindow(const std::string& addOnPath, std::vector<std::string> files)
    : valuesActions_(*this), filesAtStart_(std::move(files)), session_(*this) {
    setObjectName(QStringLiteral("main"));
    setAcceptDrops(true);
    addMenus();
    addTools();
    addPanes();
    constexpr QSize sizeAtFirst(1280, 760);
    resize(sizeAtFirst);
    restoreGeometry(preferences_.windowGeometry());
    connect(tree_, &QTreeWidget::itemSelectionChanged, this, [this] { showWhatIsPossible(); });
    showTitle();
    showWhatIsPossible();
    QTimer::singleShot(0, this, [this, addOnPath] { openAddOn(addOnPath); });
}

void MainWindow::addPanes() {
    tree_ = new DataSetTree(
        [this](std::vector<FieldAddress_s> fields) { fetch(std::move(fields)); }, this);
    findings_ = new FileFindings(*tree_);
    view_ = DataSetView::make({[this](std::size_t zone) { tree_->markZone(zone + 1); },
                               [this] { showWhatIsPossible(); },
                               [this](const auto& zones) { tree_->tickZones(zones); }},
                              this);
    tree_->tellChoices([this](const std::string& variable) { view_->colourBy(variable); },
                       [this](const auto& zones) { view_->showZones(zones); });
    valuesActions_.follow(*tree_, *view_);
    connect(tree_, &QTreeWidget::currentItemChanged, this, [this] {
        if (const auto zone = tree_->currentZone())
            view_->offerZone(*zone - 1);
    });
    auto* panes = new QSplitter(this);
    panes->setChildrenCollapsible(false);
    panes->addWidget(tree_);
    panes->addWidget(view_);
    panes->setStretchFactor(1, 1); // the picture grows with the window
    constexpr int treeWidth = 600;
    constexpr int viewWidth = 680;
    panes->setSizes({treeWidth, viewWidth});
    setCentralWidget(panes);
}

// ---- Menus --------------------------------------------------------------------------------------

QAction* MainWindow::action(const QString& text, const QKeySequence& keys,
                            void (MainWindow::*operation)()) {
    auto* made = new QAction(text, this);
    made->setShortcut(keys);
    connect(made, &QAction::triggered, this, [this, operation] { (this->*operation)(); });
    return made;
}

void MainWindow::addMenus() {
    addFileMenu();
    addValuesMenu();
    addHelpMenu();
    for (QMenu* menu : menuBar()->findChildren<QMenu*>())
        menu->setToolTipsVisible(true); // greyed entries say why
}

void MainWindow::addFileMenu() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    QMenu* import = file->addMenu(QStringLiteral("&Import"));
    import_ = action(QStringLiteral("No Loader"), QKeySequence(QStringLiteral("Ctrl+I")),
                     &MainWindow::importByHand);
    import->addAction(import_);
    recent_ = new RecentMenu(
        preferences_, [this](const ImportList& imports) { importAgain(imports); }, this);
    file->addMenu(recent_);
    reload_ = action(QStringLiteral("Re&load for New Steps"),
                     QKeySequence(QStringLiteral("Ctrl+R")), &MainWindow::reload);
    file->addAction(reload_);
    discard_ = action(QStringLiteral("&Discard Data Set"), {}, &MainWindow::discardDataSet);
    file->addAction(discard_);
    savePicture_ = action(QStringLiteral("&Save Picture..."), QKeySequence(QKeySequence::Save),
                          &MainWindow::savePicture);
    file->addAction(savePicture_);
    saveView_ = action(QStringLiteral("Save &View..."),
                       QKeySequence(QStringLiteral("Ctrl+Shift+S")), &MainWindow::saveView);
    openView_ = action(QStringLiteral("&Open View..."),
                       QKeySequence(QStringLiteral("Ctrl+Shift+O")), &MainWindow::openView);
    file->addActions({saveView_, openView_});
    file->addSeparator();
    auto* quit = new QAction(QStringLiteral("&Quit"), this);
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    connect(quit, &QAction::triggered, this, &QWidget::close);
    file->addAction(quit);
}

void MainWindow::addValuesMenu() {
    QMenu* values = menuBar()->addMenu(QStringLiteral("&Values"));
    fetchSelected_ = action(QStringLiteral("&Fetch Values of Selection"), QKeySequence(Qt::Key_F5),
                            &MainWindow::fetchSelected);
    fetchAll_ = action(QStringLiteral("Fetch &All Values"),
                       QKeySequence(QStringLiteral("Shift+F5")), &MainWindow::fetchAll);
    values->addActions({fetchSelected_, fetchAll_});
    values->addSeparator();
    values->addActions(valuesActions_.all());
}

void MainWindow::addHelpMenu() {
    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->addAction(action(QStringLiteral("&Importing PLOT3D Files"), QKeySequence(Qt::Key_F1),
                           &MainWindow::showHelp));
    help->addAction(action(QStringLiteral("&About"), {}, &MainWindow::showAbout));
}

void MainWindow::addTools() {
    import_->setIconText(QStringLiteral("Import..."));
    import_->setIcon(drawnIcon(Icon_e::Open));
    fetchAll_->setIcon(drawnIcon(Icon_e::Reload));
    QToolBar* tools = addToolBar(QStringLiteral("Tools"));
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->addAction(import_);
    tools->addAction(fetchAll_);
    tools->setContextMenuPolicy(Qt::PreventContextMenu); // it can't be taken away by accident
}

bool MainWindow::mayImport() const {
    return session_.loader().has_value() && !session_.isBusy();
}

void MainWindow::showWhatIsPossible() {
    const bool hasDataSet = tree_->dataSet() != nullptr && !session_.isBusy();
    const auto set = [](QAction* action, bool isPossible, const char* whyNot) {
        action->setEnabled(isPossible);
        action->setToolTip(isPossible ? QString() : QString::fromLatin1(whyNot));
    };
    set(import_, mayImport(), "No add-on has registered a loader, or work goes on.");
    set(reload_, hasDataSet && mayImport() && !session_.imports().empty(),
        "Nothing was imported that can be loaded anew, or work goes on.");
    recent_->allow(mayImport());
    set(discard_, hasDataSet, "There is no data set, or work goes on.");
    set(fetchAll_, hasDataSet, "There is no data set, or work goes on.");
    set(fetchSelected_, hasDataSet && !tree_->selectedItems().isEmpty(),
        "Select variables, zones or fields of the data set first.");
    valuesActions_.showWhatIsPossible();
    set(savePicture_, view_->hasPicture(), "There is no picture.");
    set(saveView_, view_->hasPicture(), "There is no picture.");
    set(openView_, values_ != nullptr && !session_.isBusy(), "There is nothing to be looked at.");
}

void MainWindow::workBegins(const QString& what) {
    statusBar()->showMessage(what);
    showWhatIsPossible();
}

bool MainWindow::workEnded(const QString& what) {
    statusBar()->showMessage(what);
    showWhatIsPossible();
    if (wantsToClose_)
        close();
    return !wantsToClose_;
}

// ---- The add-on ---------------------------------------------------------------------------------

void MainWindow::openAddOn(const std::string& path) {
    session_.openAddOn(path, [this](const std::string& error) { showOpened(error); });
    workBegins(QStringLiteral("Opening the add-on"));
}

void MainWindow::showOpened(const std::string& error) {
    isOpened_ = true;
    if (session_.loader())
        import_->setText(shown(session_.loader()->name) + QStringLiteral("..."));
    if (!workEnded(session_.loader() ? QStringLiteral("Ready") : QStringLiteral("No add-on")))
        return;
    if (!error.empty())
        showText(this, error, TextKind_e::Error);
    if (session_.loader() && !filesAtStart_.empty())
        import({std::exchange(filesAtStart_, {}), false, false});
}

// ---- Imports ------------------------------------------------------------------------------------

void MainWindow::importByHand() {
    const bool hasDataSet = tree_->dataSet() != nullptr;
    const FileSelection_s selection = selectFilesToImport(this, *session_.loader(), hasDataSet);
    if (!selection.files.empty())
        import(selection);
}

void MainWindow::import(const FileSelection_s& selection) {
    preferences_.setFolderOf(shown(selection.files.front()));
    session_.import(selection, [this](ImportOutcome_s outcome) { showImport(std::move(outcome)); });
    workBegins(
        QStringLiteral("Importing %1").arg(shownCount(selection.files.size(), "file", "files")));
}

void MainWindow::importAgain(const ImportList& imports) {
    const std::vector<ImportedFile_s> files = filesOf(imports);
    preferences_.setFolderOf(shown(files.front().name));
    session_.repeat(imports, DesktopSession::Files_e::AsBefore,
                    [this](ImportOutcome_s outcome) { showImport(std::move(outcome)); });
    workBegins(QStringLiteral("Importing %1").arg(shownCount(files.size(), "file", "files")));
}

void MainWindow::reload() {
    session_.repeat(session_.imports(), DesktopSession::Files_e::WithNewOnes,
                    [this](ImportOutcome_s outcome) { showReloaded(std::move(outcome)); });
    workBegins(QStringLiteral("Reloading"));
}

/// What is seen, and how, stays where the new data have it.
void MainWindow::showReloaded(ImportOutcome_s outcome) {
    const KeptView keptView(*tree_, *view_);
    const std::size_t stepsBefore = countSteps(*tree_->dataSet());
    const std::size_t newFiles = outcome.newFiles;
    const bool isReloaded = outcome.result.ok;
    showImport(std::move(outcome));
    if (!isReloaded)
        return;
    keptView.putBack();
    statusBar()->showMessage(reloadedText(countSteps(*tree_->dataSet()), stepsBefore, newFiles));
}

void MainWindow::showImport(ImportOutcome_s outcome) {
    QString what = outcome.result.interrupted ? QStringLiteral("Import cancelled: %1")
                   : outcome.result.ok        ? QStringLiteral("Imported: %1")
                                              : QStringLiteral("Nothing was imported: %1");
    what = what.arg(shown(sizeText(outcome.dataSet)));
    if (outcome.result.ok)
        recent_->add(session_.imports(), outcome.repeated);
    // What an import has left alone keeps its ranges, and what was opened in the tree stays open.
    const bool isAsBefore = !outcome.result.ok && outcome.dataSet && tree_->shows(*outcome.dataSet);
    if (!outcome.dataSet)
        tree_->showNothing();
    else if (!isAsBefore)
        showTree(std::move(*outcome.dataSet), outcome.plotType);
    if (!isAsBefore)
        showValues(std::move(outcome.values), outcome.whyNoValues);
    if (workEnded(what) && !outcome.result.hostError.empty())
        showText(this, outcome.result.hostError, TextKind_e::Error);
}

void MainWindow::showTree(DataSetOutcome_s dataSet, QuorPlotType_e plotType) {
    tree_->showDataSet(std::move(dataSet), plotType);
    findings_->show(tree_->topLevelItem(0), filesOf(session_.imports()));
}

void MainWindow::showValues(std::shared_ptr<const plot3d::DataSet> values,
                            const std::string& whyNot) {
    valuesActions_.showData(values, whyNot);
    values_ = std::move(values);
    view_->showDataSet(values_, whyNot);
    showTitle();
}

/// The names of the zones tell files and steps.
void MainWindow::showTitle() {
    const DataSetOutcome_s* dataSet = tree_->dataSet();
    const QString program = QStringLiteral("Quorvia Reference Host");
    if (dataSet == nullptr || dataSet->zones.empty())
        setWindowTitle(program);
    else
        setWindowTitle(
            QStringLiteral("%1, %2 \u2013 %3")
                .arg(shown(dataSet->title), shown(dataSet->zones.front().name), program));
}

void MainWindow::importDropped(const std::vector<std::string>& files) {
    if (files.empty() || !mayImport())
        return;
    FileSelection_s selection{files, false, false};
    if (tree_->dataSet() != nullptr) {
        const Replacement_e choice = askReplacement(this);
        if (choice == Replacement_e::Cancel)
            return;
        selection.append = choice == Replacement_e::Append;
    }
    import(selection);
}

void MainWindow::discardDataSet() {
    session_.discardDataSet([this] {
        tree_->showNothing();
        showValues(nullptr, {});
        workEnded(QStringLiteral("Discarded"));
    });
    workBegins(QStringLiteral("Discarding the data set"));
}

// ---- Values -------------------------------------------------------------------------------------

void MainWindow::fetch(std::vector<FieldAddress_s> fields) {
    const DataSetOutcome_s* dataSet = tree_->dataSet();
    if (dataSet == nullptr || fields.empty() || session_.isBusy())
        return;
    const QString count = shownCount(fields.size(), "field", "fields");
    session_.fetch(*dataSet, std::move(fields), [this](DataSetOutcome_s fetched, FetchEnd_e end) {
        showFetched(std::move(fetched), end);
    });
    workBegins(QStringLiteral("Fetching the values of %1").arg(count));
}

void MainWindow::showFetched(DataSetOutcome_s dataSet, FetchEnd_e end) {
    tree_->showValues(std::move(dataSet));
    workEnded(end == FetchEnd_e::Done      ? QStringLiteral("Values fetched")
              : end == FetchEnd_e::Stopped ? QStringLiteral("Fetching cancelled")
                                           : QStringLiteral("Not all values could be fetched"));
}

void MainWindow::savePicture() {
    const QString file =
        chooseFileToSave(this, QStringLiteral("Save Picture"), QStringLiteral("Pictures (*.png)"));
    if (!file.isEmpty() && !view_->savePicture(file))
        showText(this, "The picture can't be written to " + file.toStdString() + ".",
                 TextKind_e::Error);
}

// ---- Help, and the rest of a window's life ------------------------------------------------------

void MainWindow::showHelp() {
    session_.guestWindows().showHelp(importPage);
}

void MainWindow::showAbout() {
    QMessageBox::about(this, QStringLiteral("About"),
                       QStringLiteral("Quorvia reference host %1\n\nImports PLOT3D files through "
                                      "the add-on, by hand.")
                           .arg(QLatin1String(QUORHOST_VERSION)));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    preferences_.setWindowGeometry(saveGeometry());
    if (!session_.isBusy()) {
        event->accept();
        return;
    }
    wantsToClose_ = true; // once what runs has stopped
    session_.leave();
    event->ignore();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (mayImport() && !localFiles(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    // The other program waits for the end of the drop, and must not wait for a question of ours.
    QTimer::singleShot(0, this,
                       [this, files = localFiles(*event->mimeData())] { importDropped(files); });
}

} // namespace quorvia::host
