// The entries of the menu Values that open windows of their own: the table of a field, a histogram,
// the values of I-blank. All go with the data set that they show.
#pragma once

#include <memory>
#include <string>

#include <QAction>
#include <QMainWindow>

#include <plot3d/DataSet.h>

#include "desktop/tree/DataSetTree.h"
#include "desktop/values/ValuesScope.h"
#include "desktop/view/DataSetView.h"

namespace quorvia::host {

class ValuesActions {
public:
    explicit ValuesActions(QMainWindow& window);

    QList<QAction*> all() const { return {table_, histogram_, iBlank_}; }
    /// What is current there is what is shown. Both outlive the entries' use.
    void follow(const DataSetTree& tree, const DataSetView& view);
    /// In place of what was shown. Null: nothing, and why not.
    void showData(std::shared_ptr<const plot3d::DataSet> data, const std::string& whyNot);
    void showWhatIsPossible();

private:
    void showTable();
    void showHistogram();
    void showIBlank();
    std::size_t variableToCount() const;
    ValuesScope_s scopeToCount() const;

    QMainWindow& window_;
    QAction* table_;
    QAction* histogram_;
    QAction* iBlank_;
    const DataSetTree* tree_ = nullptr;
    const DataSetView* view_ = nullptr;
    std::shared_ptr<const plot3d::DataSet> data_; // null: none, or whyNot_
    std::string whyNot_;
};

} // namespace quorvia::host
