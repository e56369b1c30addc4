// The data set as a tree: its variables, its zones by strand and time with their fields, and
// auxiliary data. Ranges stand where values were fetched.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QTreeWidget>

#include "describe/Outcome.h"
#include "describe/ValueFetch.h"

namespace quorvia::host {

class DataSetTree : public QTreeWidget {
public:
    /// Takes the fields whose values the user wants to see.
    using FetchWanted = std::function<void(std::vector<FieldAddress_s>)>;

    explicit DataSetTree(FetchWanted fetchWanted, QWidget* parent = nullptr);

    /// In place of what was shown.
    void showDataSet(DataSetOutcome_s dataSet, QuorPlotType_e plotType);
    void showNothing();
    /// Takes the statistics of `dataSet`, which is the one shown, some fetches later.
    void showValues(DataSetOutcome_s dataSet);

    /// Whether what is shown looks the same but for values, which `dataSet` does not have.
    bool shows(const DataSetOutcome_s& dataSet) const;

    /// Null if nothing is shown.
    const DataSetOutcome_s* dataSet() const { return dataSet_ ? &*dataSet_ : nullptr; }
    std::vector<FieldAddress_s> allFields() const;
    /// Of all that is selected, whatever its level: a strand stands for all of its zones.
    std::vector<FieldAddress_s> selectedFields() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QTreeWidgetItem* addItem(QTreeWidgetItem* parent, const QString& name, const QString& details);
    void addVariables(QTreeWidgetItem* root);
    void addZones(QTreeWidgetItem* root);
    void addZone(QTreeWidgetItem* parent, const ZoneOutcome_s& zone);
    void addAuxData(QTreeWidgetItem* parent, const AuxDataItems& auxData);
    void fillZone(QTreeWidgetItem* item);
    void showFieldValues(QTreeWidgetItem* item) const;
    void showVariableValues(QTreeWidgetItem* item) const;
    void showValuesBelow(QTreeWidgetItem* item) const;
    void collectFields(const QTreeWidgetItem* item, std::vector<FieldAddress_s>& fields) const;
    void addFieldsOfZone(std::int32_t zone, std::vector<FieldAddress_s>& fields) const;

    FetchWanted fetchWanted_;
    std::optional<DataSetOutcome_s> dataSet_;
};

} // namespace quorvia::host
