// What histogram and I-blank have in common: values of one variable, counted over a zone, a time or
// all, and a table of what came out.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <QTableWidget>

#include "desktop/values/ScopeBar.h"
#include "desktop/values/ValuesWindow.h"

namespace quorvia::host {

class StatisticsWindow : public ValuesWindow {
public:
    const QTableWidget& table() const { return *table_; }

protected:
    using Found = plot3d::analysis::VariableStatistics_s;

    /// What is counted.
    struct Question_s {
        std::size_t variable = 0; // index from 0
        std::size_t bins = 0;     // of the histogram; 0 for none
    };

    StatisticsWindow(const char* name, std::shared_ptr<const plot3d::DataSet> data,
                     const ValuesScope_s& scope, const QStringList& headings, QWidget* parent);

    const plot3d::DataSet& data() const { return *data_; }
    ScopeBar& scopeBar() { return *scope_; }
    QTableWidget& tableOfAll() { return *table_; }
    /// In place of what is being counted.
    void count();
    /// A number stands right, with its exact text for copies.
    void setCell(int row, int column, const QString& text, const QString& exact);
    void setCount(int row, int column, std::int64_t count);
    /// "Zone 3 can't be read: ...", of the first one, and how many others there are; empty for
    /// none.
    static QString unreadText(const Found& found);

    virtual Question_s question() const = 0;
    /// "Histogram of RHO"
    virtual QString subject() const = 0;
    virtual void showFound(const Found& found) = 0;
    /// As long as nothing was counted.
    virtual void showNothing();
    void showPending() override { showNothing(); }
    void showFailure(const std::optional<std::string>& failure) override;
    void copy(const CellRange_s& cells) override;

private:
    std::shared_ptr<const plot3d::DataSet> data_;
    ScopeBar* scope_;
    QTableWidget* table_;
};

} // namespace quorvia::host
