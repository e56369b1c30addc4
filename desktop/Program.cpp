#include "desktop/Program.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

#include <QApplication>

#include "desktop/CommandLine.h"
#include "desktop/DesktopStyle.h"
#include "desktop/MainWindow.h"
#include "desktop/view/DataSetView.h"
#include "session/AddOnPath.h"

namespace quorvia::host {
namespace {

constexpr int failed = 1;

/// The window system would end the program without a word of ours.
bool hasDisplay() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0')
            return true;
    }
    return false;
}

/// As a file selection gives them.
std::vector<std::string> wholePaths(const std::vector<std::string>& files) {
    std::vector<std::string> paths;
    for (const std::string& file : files)
        paths.push_back(std::filesystem::absolute(file).string());
    return paths;
}

int runWindow(int argc, char** argv, const DesktopArguments_s& arguments) {
    prepareViews();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quorhost-desktop"));
    QApplication::setStyle(new DesktopStyle);
    const std::string& addOn = arguments.addOnPath;
    MainWindow window(addOn.empty() ? addOn : addOnPath(addOn), wholePaths(arguments.files));
    window.show();
    const int code = QApplication::exec();
    for (const std::string& violation : window.session().takeViolations())
        std::cerr << "quorhost-desktop: contract violation: " << violation << '\n';
    return code;
}

int runCommandLine(int argc, char** argv) {
    const auto command = parseDesktopCommandLine({argv + 1, argv + argc}, std::cout, std::cerr);
    if (const int* code = std::get_if<int>(&command))
        return *code;
    if (!hasDisplay()) {
        std::cerr << "quorhost-desktop: error: there is no display; log in to a desktop, or set "
                     "DISPLAY. quorhost loads files without one.\n";
        return failed;
    }
    return runWindow(argc, argv, std::get<DesktopArguments_s>(command));
}

} // namespace

int runDesktop(int argc, char** argv) noexcept {
    try {
        return runCommandLine(argc, argv);
    } catch (const std::exception& failure) {
        std::cerr << "quorhost-desktop: error: " << failure.what() << '\n';
        return failed;
    }
}

} // namespace quorvia::host
