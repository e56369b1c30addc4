#include "desktop/parts/MessageBoxes.h"

#include <QMessageBox>
#include <QPushButton>

#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

/// Some texts list every file of a long series: the box must stay on the screen.
void setTextOf(QMessageBox& box, const QString& text) {
    constexpr int mostLines = 20;
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.size() <= mostLines) {
        box.setText(text);
        return;
    }
    box.setText(lines.mid(0, mostLines).join(QLatin1Char('\n')) + QStringLiteral("\n..."));
    box.setDetailedText(text);
}

void prepare(QMessageBox& box, const std::string& text) {
    box.setWindowTitle(QStringLiteral("Quorvia"));
    box.setTextFormat(Qt::PlainText); // names of files may look like markup
    setTextOf(box, shown(text));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
}

} // namespace

void showText(QWidget* parent, const std::string& text, TextKind_e kind) {
    QMessageBox box(parent);
    prepare(box, text);
    box.setIcon(kind == TextKind_e::Error ? QMessageBox::Critical : QMessageBox::Information);
    box.exec();
}

bool askQuestion(QWidget* parent, const std::string& question) {
    QMessageBox box(parent);
    prepare(box, question);
    box.setIcon(QMessageBox::Question);
    const bool isQuestion = shown(question).trimmed().endsWith(QLatin1Char('?'));
    const auto yes = isQuestion ? QMessageBox::Yes : QMessageBox::Ok;
    const auto no = isQuestion ? QMessageBox::No : QMessageBox::Cancel;
    box.setStandardButtons(yes | no);
    box.setDefaultButton(no); // the answer that changes nothing
    box.setEscapeButton(no);
    return box.exec() == yes;
}

Replacement_e askReplacement(QWidget* parent) {
    QMessageBox box(parent);
    prepare(box, "There is a data set already.");
    box.setInformativeText(QStringLiteral("Shall the files replace it, or be appended to it?"));
    box.setIcon(QMessageBox::Question);
    const QPushButton* replace =
        box.addButton(QStringLiteral("Replace"), QMessageBox::DestructiveRole);
    const QPushButton* append = box.addButton(QStringLiteral("Append"), QMessageBox::AcceptRole);
    box.setDefaultButton(box.addButton(QMessageBox::Cancel));
    box.exec();
    if (box.clickedButton() == replace)
        return Replacement_e::Replace;
    return box.clickedButton() == append ? Replacement_e::Append : Replacement_e::Cancel;
}

} // namespace quorvia::host
