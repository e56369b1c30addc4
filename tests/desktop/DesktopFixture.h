// The program's window with the built add-on, a directory of sample data, and a person.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desktop/MainWindow.h"
#include "desktop/Person.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::host {

class DesktopTest : public ::testing::Test {
protected:
    /// The person's settings are kept in a directory of the test's own.
    void SetUp() override;
    /// Nothing runs any more, the person has done everything, and the add-on kept the contract.
    void TearDown() override;

    static ReferenceHost& host() { return ReferenceHost::instance(); }
    MainWindow& window() { return *window_; }
    Person& person() { return person_; }
    const testsupport::TemporaryDirectory& directory() const { return directory_; }
    std::string file(const std::string& name) const { return directory_.file(name); }

    /// Closes the window, and opens another one as a later run of the program would. An empty path
    /// stands for the add-on that is linked in.
    void openWindow(const std::string& addOnPath = PLOT3D_ADDON_PATH,
                    const std::vector<std::string>& files = {});
    /// The same, without waiting until the add-on is open.
    void startWindow(const std::string& addOnPath, const std::vector<std::string>& files);
    /// As at the end of the program, whatever runs.
    void destroyWindow() { window_.reset(); }
    /// Chooses the action of the menus by its text, and waits until the person is done and nothing
    /// runs.
    void choose(const QString& actionText);
    QAction& action(const QString& text);
    void waitUntilDone();
    /// Without the dialog.
    void import(const std::vector<std::string>& names, bool append = false);

    /// Sample data: see plot3d-sample --help. Into the test's directory, or another one.
    void writeSample(const std::vector<std::string>& arguments, const std::string& folder = {});
    std::vector<std::string> files(const std::vector<std::string>& names) const;

    /// From the host, whatever the tree shows.
    static std::vector<float> values(std::int32_t zone, std::int32_t variable);
    /// The host's loaders whose code lies in the library of that file name. The one that is linked
    /// in stays for good.
    static std::ptrdiff_t loaderCount(const std::string& library);
    /// Names of the items from the root down to the text asked for, as the tree shows them.
    QTreeWidgetItem* treeItem(const QString& name);

private:
    testsupport::TemporaryDirectory directory_;
    Person person_;
    std::unique_ptr<MainWindow> window_;
};

} // namespace quorvia::host
