// How long a test waits for what must come. It fails by what comes, not by the time: a busy machine
// may take long.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace quorvia::host {

constexpr int patience = 60000; // milliseconds

/// Waits until the condition holds; false if it never does.
template <typename Condition>
[[nodiscard]] bool comesTrue(Condition condition) {
    return QTest::qWaitFor(condition, patience);
}

[[nodiscard]] inline bool comesToTheFront(const QWidget& window) {
    return comesTrue([&window] { return QApplication::activeWindow() == &window; });
}

} // namespace quorvia::host
