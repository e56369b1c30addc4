// Boxes that tell something or ask, before the window that is in front.
#pragma once

#include <string>

#include <QWidget>

namespace quorvia::host {

enum class TextKind_e { Error, Information };

/// Returns when the user has read it. The text is shown as it stands, never as markup.
void showText(QWidget* parent, const std::string& text, TextKind_e kind);

/// True for Yes or OK. A text that ends as a question is answered with Yes or No, any other with OK
/// or Cancel.
bool askQuestion(QWidget* parent, const std::string& question);

enum class Replacement_e { Replace, Append, Cancel };

/// Whether files that were dropped onto the window are to replace the data set that is there.
Replacement_e askReplacement(QWidget* parent);

} // namespace quorvia::host
