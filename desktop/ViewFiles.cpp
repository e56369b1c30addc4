#include "desktop/ViewFiles.h"

#include <fstream>
#include <iterator>
#include <string>

#include "console/WholeFile.h"
#include "desktop/files/ImportFileDialog.h"
#include "desktop/parts/MessageBoxes.h"

namespace quorvia::host {
namespace {

const QString views = QStringLiteral("Views (*.json)");

/// Empty if the file is written; otherwise why not.
std::string writeWhole(const std::string& name, const std::string& text) {
    console::WholeFile file(name);
    file.stream() << text;
    std::string reason;
    return file.replace(reason) ? std::string() : reason;
}

/// False: the file can't be read. No more than tells that it is no view.
bool readText(const std::string& name, std::string& text) {
    constexpr std::size_t longestView = 1 << 20; // bytes; zones may be many
    std::ifstream in(name, std::ios::binary);
    text.resize(longestView);
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return in.eof() || !text.empty();
}

} // namespace

void saveViewByHand(QWidget* parent, const DataSetView& view) {
    const QString file = chooseFileToSave(parent, QStringLiteral("Save View"), views);
    if (file.isEmpty())
        return;
    const std::string failure = writeWhole(file.toStdString(), view.viewText());
    if (!failure.empty())
        showText(parent, "The view can't be written to " + file.toStdString() + ": " + failure,
                 TextKind_e::Error);
}

void openViewByHand(QWidget* parent, DataSetView& view) {
    const QString file = chooseFileToOpen(parent, QStringLiteral("Open View"), views);
    if (file.isEmpty())
        return;
    std::string text;
    const bool isRead = readText(file.toStdString(), text);
    const std::string refusal = isRead ? view.showView(text) : "it can't be read";
    if (!refusal.empty())
        showText(parent, file.toStdString() + " is no view: " + refusal, TextKind_e::Error);
}

} // namespace quorvia::host
