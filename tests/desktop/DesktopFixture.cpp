#include "desktop/DesktopFixture.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include <dlfcn.h>

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <QTreeWidgetItemIterator>

#include "desktop/Patience.h"
#include "plot3dsample/Run.h"

namespace quorvia::host {
void DesktopTest::SetUp() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QString::fromStdString(directory_.file("settings")));
    openWindow();
}

void DesktopTest::TearDown() {
    EXPECT_EQ(person_.waitsFor(), "");
    if (window_ == nullptr)
        return;
    if (window_->session().isBusy()) {
        ADD_FAILURE() << "work still runs";
        window_->session().leave();
        while (QWidget* modal = QApplication::activeModalWidget()) {
            modal->close(); // the guest would wait for its answer for ever
            QTest::qWait(0);
        }
        EXPECT_TRUE(comesTrue([this] { return !window_->session().isBusy(); }));
    }
    EXPECT_EQ(window_->session().takeViolations(), std::vector<std::string>());
    window_.reset();
}

void DesktopTest::openWindow(const std::string& addOnPath, const std::vector<std::string>& files) {
    startWindow(addOnPath, files);
    waitUntilDone();
}

void DesktopTest::startWindow(const std::string& addOnPath, const std::vector<std::string>& files) {
    if (window_ != nullptr)
        window_->close();
    window_.reset();
    window_ = std::make_unique<MainWindow>(addOnPath, files);
    window_->show();
}

void DesktopTest::waitUntilDone() {
    const auto isDone = [this] {
        return person_.isDone() && window_->isReady() &&
               QApplication::activeModalWidget() == nullptr;
    };
    bool goesOn = true;
    while (!isDone() && goesOn) {
        const int before = person_.doneCount();
        const auto hasGoneOn = [&] { return isDone() || person_.doneCount() != before; };
        goesOn = comesTrue(hasGoneOn);
    }
    if (!goesOn)
        ADD_FAILURE() << "the person waits in vain for: " << person_.waitsFor();
}

QAction& DesktopTest::action(const QString& text) {
    for (QAction* each : window_->findChildren<QAction*>())
        if (each->text().remove(QLatin1Char('&')) == text)
            return *each;
    throw std::runtime_error("no action is called " + text.toStdString());
}

void DesktopTest::choose(const QString& actionText) {
    action(actionText).trigger();
    waitUntilDone();
}

void DesktopTest::import(const std::vector<std::string>& names, bool append) {
    person_.pickFiles(files(names), false, append);
    choose(QStringLiteral("PLOT3D Loader..."));
}

void DesktopTest::writeSample(const std::vector<std::string>& arguments,
                              const std::string& folder) {
    std::vector<std::string> all = arguments;
    all.insert(all.begin() + 1, folder.empty() ? directory_.path().string() : folder);
    std::ostringstream out;
    std::ostringstream err;
    if (plot3dsample::run(all, out, err) != 0)
        throw std::runtime_error(err.str());
}

std::vector<std::string> DesktopTest::files(const std::vector<std::string>& names) const {
    std::vector<std::string> paths;
    for (const std::string& name : names)
        paths.push_back(file(name));
    return paths;
}

std::vector<float> DesktopTest::values(std::int32_t zone, std::int32_t variable) {
    const FetchResult_s fetched = host().fetch(zone, variable);
    if (!fetched.ok || fetched.type != QuorFieldDataType_Float)
        throw std::runtime_error("no such field of 32-bit reals: " + fetched.error);
    const auto* first = static_cast<const float*>(fetched.values);
    return {first, first + fetched.count};
}

std::ptrdiff_t DesktopTest::loaderCount(const std::string& library) {
    return std::ranges::count_if(host().loaders(), [&library](const Loader_s& loader) {
        Dl_info info = {};
        return dladdr(reinterpret_cast<const void*>(loader.load), &info) != 0 &&
               std::filesystem::path(info.dli_fname).filename() == library;
    });
}

QTreeWidgetItem* DesktopTest::treeItem(const QString& name) {
    for (QTreeWidgetItemIterator item(&window_->tree()); *item != nullptr; ++item)
        if ((*item)->text(0) == name)
            return *item;
    return nullptr;
}

} // namespace quorvia::host
