#include "desktop/ValuesActions.h"

#include <utility>

#include "desktop/parts/Texts.h"
#include "desktop/values/FieldTableWindow.h"
#include "desktop/values/HistogramWindow.h"
#include "desktop/values/IBlankWindow.h"

namespace quorvia::host {

namespace {

/// Greys an entry that can't be chosen, and says why.
void allow(QAction& action, bool isPossible, const std::string& whyNot) {
    action.setEnabled(isPossible);
    action.setToolTip(isPossible ? QString() : shown(whyNot));
}

} // namespace

ValuesActions::ValuesActions(QMainWindow& window) : window_(window) {
    const auto make = [&window, this](const char* text, Qt::Key key,
                                      void (ValuesActions::*operation)()) {
        auto* action = new QAction(QLatin1String(text), &window);
        action->setShortcut(QKeySequence(key));
        QObject::connect(action, &QAction::triggered, &window,
                         [this, operation] { (this->*operation)(); });
        return action;
    };
    table_ = make("Show &Table of Field", Qt::Key_F6, &ValuesActions::showTable);
    histogram_ = make("Show &Histogram", Qt::Key_F7, &ValuesActions::showHistogram);
    iBlank_ = make("Show Values of I-&Blank", Qt::Key_F8, &ValuesActions::showIBlank);
}

void ValuesActions::follow(const DataSetTree& tree, const DataSetView& view) {
    tree_ = &tree;
    view_ = &view;
}

void ValuesActions::showData(std::shared_ptr<const plot3d::DataSet> data,
                             const std::string& whyNot) {
    ValuesWindow::closeAll(window_); // of what is gone
    data_ = std::move(data);
    whyNot_ = whyNot;
    showWhatIsPossible();
}

void ValuesActions::showWhatIsPossible() {
    const bool hasOneField = tree_->dataSet() != nullptr && tree_->selectedFields().size() == 1;
    allow(*table_, hasOneField && data_ != nullptr,
          hasOneField ? whyNot_ : "Select one field of a zone first.");
    const std::string whyNot = tree_->dataSet() == nullptr ? "There is no data set." : whyNot_;
    allow(*histogram_, data_ != nullptr, whyNot);
    allow(*iBlank_, data_ != nullptr && IBlankWindow::iBlankOf(*data_),
          data_ != nullptr ? "The data set has no I-blank." : whyNot);
}

void ValuesActions::showTable() {
    const FieldAddress_s field = tree_->selectedFields().front();
    (new FieldTableWindow(data_, static_cast<std::size_t>(field.zone) - 1,
                          static_cast<std::size_t>(field.variable) - 1, &window_))
        ->show();
}

void ValuesActions::showHistogram() {
    (new HistogramWindow(data_, variableToCount(), scopeToCount(), &window_))->show();
}

void ValuesActions::showIBlank() {
    (new IBlankWindow(data_, scopeToCount(), &window_))->show();
}

/// That of the row that is current in the tree; without one that of the picture.
std::size_t ValuesActions::variableToCount() const {
    if (const auto current = tree_->currentVariable())
        return *current - 1;
    for (std::size_t variable = 0; variable < data_->variables().size(); ++variable)
        if (shown(data_->variables()[variable].name).trimmed() == shown(view_->colour()))
            return variable;
    return 0;
}

/// The zone of the row that is current in the tree; without one the time in the picture.
ValuesScope_s ValuesActions::scopeToCount() const {
    const std::optional<std::size_t> zone = tree_->currentZone();
    return {zone ? ValuesScope_s::Over_e::Zone : ValuesScope_s::Over_e::Time, zone ? *zone - 1 : 0,
            view_->step()};
}

} // namespace quorvia::host
