// The program as a process of its own.
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>

namespace quorvia::host {
namespace {

struct Ended_s {
    int code = -1;
    std::string err;
};

Ended_s runProgram(const QStringList& arguments, const QProcessEnvironment& environment) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(DESKTOP_PROGRAM), arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), process.readAllStandardError().toStdString()};
}

QProcessEnvironment withoutDisplay() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    return environment;
}

TEST(DesktopProgram, SaysThatThereIsNoDisplay) {
    const Ended_s ended = runProgram({}, withoutDisplay());
    EXPECT_EQ(ended.code, 1);
    EXPECT_EQ(ended.err, "quorhost-desktop: error: there is no display; log in to a desktop, or "
                         "set DISPLAY. quorhost loads files without one.\n");
}

TEST(DesktopProgram, TellsItsHelpWithoutADisplay) {
    EXPECT_EQ(runProgram({QStringLiteral("--help")}, withoutDisplay()).code, 0);
}

TEST(DesktopProgram, BadUsageEndsWithTwo) {
    EXPECT_EQ(runProgram({QStringLiteral("--wrong")}, withoutDisplay()).code, 2);
}

} // namespace
} // namespace quorvia::host
