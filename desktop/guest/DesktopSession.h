// The reference host in the hands of a person: the add-on's library, imports and fetches, each on
// the guest's thread, with the windows that the guest brings up meanwhile.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QWidget>

#include <plot3d/DataSet.h>

#include "describe/ValueFetch.h"
#include "desktop/files/ImportFileDialog.h"
#include "desktop/files/ImportList.h"
#include "desktop/guest/DesktopUser.h"
#include "desktop/guest/GuestWindows.h"
#include "desktop/guest/GuestWork.h"
#include "desktop/guest/ProgressWindow.h"
#include "session/ActionQueue.h"
#include "session/AddOnLibrary.h"
#include "session/ProgressFeed.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {

/// How an import came out.
struct ImportOutcome_s {
    LoadResult_s result;
    QuorPlotType_e plotType = QuorPlotType_None;
    std::optional<DataSetOutcome_s> dataSet; // as it is now, whether the import succeeded or not
    /// The same to be looked at, on any thread; null if there is none, or only this host can read
    /// it.
    std::shared_ptr<const plot3d::DataSet> values;
    std::string whyNoValues; // empty if there is no data set
    /// What has succeeded: the imports that were done, in order.
    ImportList done;
    ImportList repeated;      // what was to be repeated; none of a new import
    std::size_t newFiles = 0; // that were found for them
};

/// Everything is called, and calls back, on the windows' thread. One session at a time: there is
/// one host. Only one piece of work runs at a time; starting another meanwhile is a mistake.
class DesktopSession {
public:
    /// Resets the host and sits down before it. `mainWindow` is borrowed.
    explicit DesktopSession(QWidget& mainWindow);
    /// Stops what runs and waits for it; it calls back no more. Discards the data set, unloads the
    /// library and leaves the host reset.
    ~DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    bool isBusy() const { return work_.isRunning(); }

    /// The add-on's library at `path`, or for an empty path the add-on that is linked into the
    /// program. `done` gets why it could not be opened; empty if it could.
    void openAddOn(const std::string& path, std::function<void(std::string error)> done);
    /// The add-on's; nothing if it has registered none.
    const std::optional<Loader_s>& loader() const { return loader_; }

    void import(const FileSelection_s& selection, std::function<void(ImportOutcome_s)> done);
    enum class Files_e : unsigned char { AsBefore, WithNewOnes };
    /// One import after the other, up to the first that fails.
    void repeat(const ImportList& imports, Files_e files,
                std::function<void(ImportOutcome_s)> done);
    /// What the data set that is there was made of; empty for none.
    const ImportList& imports() const { return imports_; }
    /// Adds the statistics of `fields` to `dataSet`, which is the one that is there.
    void fetch(DataSetOutcome_s dataSet, std::vector<FieldAddress_s> fields,
               std::function<void(DataSetOutcome_s, FetchEnd_e)> done);
    void discardDataSet(std::function<void()> done);

    /// The program ends: what runs is stopped, and the guest is shown no more windows.
    void leave();
    /// What the guest has done against the contract, since the last call.
    std::vector<std::string> takeViolations();

    ProgressWindow& progressWindow() { return progress_; }
    GuestWindows& guestWindows() { return windows_; }

private:
    static ReferenceHost& host() { return ReferenceHost::instance(); }
    void setUpHost();
    static std::optional<Loader_s> linkedLoader();
    std::optional<Loader_s> loaderOf(const std::string& path, std::string& error);
    void start(const QString& title, GuestWork::Work work, std::function<void()> done);
    void collectViolations();
    void remember(const ImportOutcome_s& outcome);

    QWidget& mainWindow_;
    ActionQueue actions_;
    ProgressFeed feed_;
    GuestWindows windows_;
    DesktopUser user_;
    ProgressWindow progress_;
    std::unique_ptr<AddOnLibrary> library_;
    std::optional<Loader_s> loader_;
    std::vector<std::string> violations_;
    ImportList imports_;
    GuestWork work_; // goes first: its thread uses all the others
};

} // namespace quorvia::host
