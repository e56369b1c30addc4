// The window of the program: the import menu, the tree of the data set, its picture, and a line
// that tells what happened last.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QAction>
#include <QMainWindow>

#include "desktop/FocusReturn.h"
#include "desktop/ValuesActions.h"
#include "desktop/ViewFiles.h"
#include "desktop/files/FileFindings.h"
#include "desktop/files/Preferences.h"
#include "desktop/files/RecentMenu.h"
#include "desktop/guest/DesktopSession.h"
#include "desktop/tree/DataSetTree.h"
#include "desktop/view/DataSetView.h"

namespace quorvia::host {

class MainWindow : public QMainWindow {
public:
    /// The add-on at `addOnPath`, or the linked-in one if that is empty, is opened once the
    /// program's event loop runs; then `files` are imported in one selection, if there are any.
    MainWindow(const std::string& addOnPath, std::vector<std::string> files);

    /// The add-on is open, or can't be opened, and nothing runs.
    bool isReady() const { return isOpened_ && !session_.isBusy(); }
    DesktopSession& session() { return session_; }
    DataSetTree& tree() { return *tree_; }
    DataSetView& view() { return *view_; }
    FileFindings& findings() { return *findings_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void addPanes();
    void addMenus();
    void addFileMenu();
    void addValuesMenu();
    void addHelpMenu();
    void addTools();
    QAction* action(const QString& text, const QKeySequence& keys, void (MainWindow::*operation)());

    void openAddOn(const std::string& path);
    void showOpened(const std::string& error);
    void importByHand();
    void import(const FileSelection_s& selection);
    void showImport(ImportOutcome_s outcome);
    void showTree(DataSetOutcome_s dataSet, QuorPlotType_e plotType);
    void importAgain(const ImportList& imports);
    void reload();
    void showReloaded(ImportOutcome_s outcome);
    void showValues(std::shared_ptr<const plot3d::DataSet> values, const std::string& whyNot);
    void importDropped(const std::vector<std::string>& files);
    void fetch(std::vector<FieldAddress_s> fields);
    void showFetched(DataSetOutcome_s dataSet, FetchEnd_e end);
    void fetchSelected() { fetch(tree_->selectedFields()); }
    void fetchAll() { fetch(tree_->allFields()); }
    void discardDataSet();
    void savePicture();
    void saveView() { saveViewByHand(this, *view_); }
    void openView() { openViewByHand(this, *view_); }
    void showHelp();
    void showAbout();

    void workBegins(const QString& what);
    /// False: the window was waiting for this to close, and has; nothing may follow.
    bool workEnded(const QString& what);
    void showWhatIsPossible();
    void showTitle();
    bool mayImport() const;

    FocusReturn focusReturn_;
    Preferences preferences_;
    DataSetTree* tree_ = nullptr;
    FileFindings* findings_ = nullptr; // in the tree, and belongs to it
    DataSetView* view_ = nullptr;
    RecentMenu* recent_ = nullptr;
    QAction* import_ = nullptr;
    QAction* reload_ = nullptr;
    QAction* discard_ = nullptr;
    QAction* fetchSelected_ = nullptr;
    QAction* fetchAll_ = nullptr;
    ValuesActions valuesActions_;
    QAction* savePicture_ = nullptr;
    QAction* saveView_ = nullptr;
    QAction* openView_ = nullptr;
    std::shared_ptr<const plot3d::DataSet> values_; // null: none that can be looked at
    bool isOpened_ = false;
    bool wantsToClose_ = false;
    std::vector<std::string> filesAtStart_;
    DesktopSession session_;
};

} // namespace quorvia::host
