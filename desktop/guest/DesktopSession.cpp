#include "desktop/guest/DesktopSession.h"

#include <utility>

#include <plot3d/AddOn.h>
#include <plot3d/Error.h>

#include "describe/GatherOutcome.h"
#include "desktop/parts/MessageBoxes.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr std::int64_t memoryForValues = std::int64_t{1} << 30; // bytes

/// With one decimal.
std::string megabytes(std::int64_t byteCount) {
    const std::int64_t tenths = byteCount / 100'000;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10);
}

bool isReadByHostAlone(const plot3d::DataSet& data) {
    for (std::size_t zone = 0; zone < data.zones().size(); ++zone)
        for (std::size_t variable = 0; variable < data.variables().size(); ++variable)
            if (data.kind(zone, variable) == plot3d::FieldKind::AtHost)
                return true;
    return false;
}

void takeValues(Frame& frame, ImportOutcome_s& outcome) {
    try {
        auto data = std::make_shared<const plot3d::DataSet>(plot3d::DataSet::of(frame));
        if (isReadByHostAlone(*data))
            outcome.whyNoValues = "Data of another add-on can't be looked at: where its values "
                                  "lie is not known.";
        else
            outcome.values = std::move(data);
    } catch (const plot3d::Error& error) {
        outcome.whyNoValues = error.what();
    }
}

ImportOutcome_s describeImport(ReferenceHost& host, const LoadResult_s& result) {
    Outcome_s described = describeOutcome(host, result);
    ImportOutcome_s outcome;
    outcome.result = result;
    outcome.plotType = described.plotType;
    outcome.dataSet = std::move(described.dataSet);
    if (outcome.dataSet)
        takeValues(host.frame(), outcome);
    return outcome;
}

} // namespace

DesktopSession::DesktopSession(QWidget& mainWindow)
    : mainWindow_(mainWindow), windows_(mainWindow, actions_), user_(windows_, actions_),
      progress_(feed_,
                {[] { host().requestInterrupt(); }, [] { return host().interruptRequested(); }},
                &mainWindow) {
    setUpHost();
}

DesktopSession::~DesktopSession() {
    leave(); // nobody is there to read what the guest may still have to say
    work_.waitForEnd();
    host().clearFaults(); // the guest is not interrupted in what it still has to clear up
    host().frame().reset();
    if (library_)
        library_->unload();
    host().reset();
}

void DesktopSession::setUpHost() {
    host().reset();
    host().setUser(&user_);
    host().settings().memoryLimitBytes = memoryForValues;
    host().settings().progressObserver = [this](const ProgressState_s& state) { feed_.put(state); };
}

void DesktopSession::start(const QString& title, GuestWork::Work work, std::function<void()> done) {
    host().clearLog(); // it would grow with every load
    progress_.begin(title);
    work_.start(std::move(work), [this, done = std::move(done)](const std::string& failure) {
        progress_.end();
        // Cancel may have come too late for this, and is not meant for the next.
        host().clearFaults();
        collectViolations();
        if (!failure.empty() && !user_.isLeaving())
            showText(&mainWindow_, failure, TextKind_e::Error);
        done();
    });
}

void DesktopSession::collectViolations() {
    for (const std::string& violation : host().log().violations)
        violations_.push_back(violation);
}

std::vector<std::string> DesktopSession::takeViolations() {
    return std::exchange(violations_, {});
}

void DesktopSession::openAddOn(const std::string& path,
                               std::function<void(std::string error)> done) {
    struct Opening_s {
        std::optional<Loader_s> loader;
        std::string error;
    };
    const auto opening = std::make_shared<Opening_s>();
    start(
        QStringLiteral("Opening the Add-on"),
        [this, path, opening] {
            opening->loader = path.empty() ? linkedLoader() : loaderOf(path, opening->error);
        },
        [this, opening, done = std::move(done)] {
            loader_ = std::move(opening->loader);
            done(opening->error);
        });
}

std::optional<Loader_s> DesktopSession::linkedLoader() {
    plot3d::registerAddOn();
    return host().loaders().front();
}

std::optional<Loader_s> DesktopSession::loaderOf(const std::string& path, std::string& error) {
    const std::size_t countBefore = host().loaders().size();
    library_ = AddOnLibrary::open(path, error);
    if (host().loaders().size() == countBefore)
        return std::nullopt;
    return host().loaders().back();
}

void DesktopSession::import(const FileSelection_s& selection,
                            std::function<void(ImportOutcome_s)> done) {
    const auto outcome = std::make_shared<ImportOutcome_s>();
    start(
        QStringLiteral("Importing"),
        [selection, outcome] {
            const LoadResult_s result =
                host().importSelection(selection.files, selection.advanced, selection.append);
            *outcome = describeImport(host(), result);
            if (result.ok)
                outcome->done = {importBy(host().log().instructions)};
        },
        [this, outcome, done = std::move(done)] {
            remember(*outcome);
            done(std::move(*outcome));
        });
}

void DesktopSession::repeat(const ImportList& imports, Files_e files,
                            std::function<void(ImportOutcome_s)> done) {
    const auto outcome = std::make_shared<ImportOutcome_s>();
    start(
        files == Files_e::AsBefore ? QStringLiteral("Importing") : QStringLiteral("Reloading"),
        [imports, files, outcome] {
            LoadResult_s result;
            ImportList repeated;
            std::size_t newFiles = 0;
            for (Import_s import : imports) {
                if (files == Files_e::WithNewOnes)
                    newFiles += addNewFiles(import);
                result = host().importInstructions(import.instructions);
                if (!result.ok)
                    break;
                repeated.push_back(std::move(import));
            }
            *outcome = describeImport(host(), result);
            outcome->done = std::move(repeated);
            outcome->repeated = imports;
            outcome->newFiles = newFiles;
        },
        [this, outcome, done = std::move(done)] {
            remember(*outcome);
            done(std::move(*outcome));
        });
}

// What has failed may have taken the data set away, or left it alone.
void DesktopSession::remember(const ImportOutcome_s& outcome) {
    if (!outcome.dataSet)
        imports_.clear();
    for (const Import_s& import : outcome.done) {
        if (!appends(import.instructions))
            imports_.clear();
        imports_.push_back(import);
    }
}

void DesktopSession::fetch(DataSetOutcome_s dataSet, std::vector<FieldAddress_s> fields,
                           std::function<void(DataSetOutcome_s, FetchEnd_e)> done) {
    struct Fetch_s {
        DataSetOutcome_s dataSet;
        FetchEnd_e end = FetchEnd_e::Failed;
    };
    const auto fetch = std::make_shared<Fetch_s>(Fetch_s{std::move(dataSet)});
    const auto tell = [this](std::int64_t bytesDone, std::int64_t byteCount) {
        feed_.put(
            {static_cast<double>(bytesDone) / static_cast<double>(byteCount),
             "Fetching values: " + megabytes(bytesDone) + " of " + megabytes(byteCount) + " MB",
             true});
        return !host().interruptRequested();
    };
    start(
        QStringLiteral("Fetching Values"),
        [fetch, tell, fields = std::move(fields)] {
            fetch->end = fetchFields(host(), fetch->dataSet, fields, tell);
        },
        [fetch, done = std::move(done)] { done(std::move(fetch->dataSet), fetch->end); });
}

void DesktopSession::discardDataSet(std::function<void()> done) {
    start(
        QStringLiteral("Discarding"), [] { host().frame().reset(); },
        [this, done = std::move(done)] {
            imports_.clear();
            done();
        });
}

void DesktopSession::leave() {
    user_.leave();
    host().requestInterrupt();
}

} // namespace quorvia::host
