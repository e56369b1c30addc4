// The data set as a tree: its variables, its zones by strand and time with their fields, and
// auxiliary data. Ranges stand where values were fetched.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QTreeWidget>

#include "describe/Outcome.h"
#include "describe/ValueFetch.h"

namespace quorvia::host {

class DataSetTree : public QTreeWidget {
public:
    /// Takes the fields whose values the user wants to see.
    using FetchWanted = std::function<void(std::vector<FieldAddress_s>)>;

    /// Gets the name of a variable that was clicked at.
    using VariableChosen = std::function<void(const std::string& name)>;
    /// Gets the numbers of the zones that are ticked, ascending; nothing for all but boundaries.
    using ZonesTicked = std::function<void(std::optional<std::vector<std::size_t>> zones)>;

    explicit DataSetTree(FetchWanted fetchWanted, QWidget* parent = nullptr);
    /// Of what the user does from now on.
    void tellChoices(VariableChosen variableChosen, ZonesTicked zonesTicked);

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
    /// The number of the zone that the current row is of or stands below; nothing for a row of
    /// none.
    std::optional<std::size_t> currentZone() const;
    /// Likewise the variable that the current row is of.
    std::optional<std::size_t> currentVariable() const;
    /// Selects the row of the zone, and brings it into sight.
    void markZone(std::size_t number);
    /// Ticks these zones, ascending, and no others; none stands for all but boundary zones. A
    /// strand of which a part is shown is half ticked. Tells nobody.
    void tickZones(std::vector<std::size_t> zones);
    /// As told last: numbers of the zones, ascending; nothing for all but boundary zones.
    const std::optional<std::vector<std::size_t>>& ticked() const { return ticked_; }
    /// Names of what can be ticked and is not, and the names of boundary zones that are.
    std::set<QString> unusualTicks() const;
    /// Puts these in again after other data have come, where they have such names. Tells of it.
    void putUnusualTicks(const std::set<QString>& names);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QTreeWidgetItem* addItem(QTreeWidgetItem* parent, const QString& name, const QString& details);
    void addVariables(QTreeWidgetItem* root);
    void addZones(QTreeWidgetItem* root);
    QTreeWidgetItem* addZone(QTreeWidgetItem* parent, const ZoneOutcome_s& zone);
    void addAuxData(QTreeWidgetItem* parent, const AuxDataItems& auxData);
    void fillZone(QTreeWidgetItem* item);
    void showFieldValues(QTreeWidgetItem* item) const;
    void showVariableValues(QTreeWidgetItem* item) const;
    void showValuesBelow(QTreeWidgetItem* item) const;
    void collectFields(const QTreeWidgetItem* item, std::vector<FieldAddress_s>& fields) const;
    void addFieldsOfZone(std::int32_t zone, std::vector<FieldAddress_s>& fields) const;

    void tellTicks();
    std::vector<std::size_t> usualZones() const;
    bool isUsuallyTicked(const QTreeWidgetItem* item) const;
    void collectTicked(const QTreeWidgetItem* item, std::vector<std::size_t>& zones) const;

    FetchWanted fetchWanted_;
    VariableChosen variableChosen_ = [](const std::string&) {};
    ZonesTicked zonesTicked_ = [](const auto&) {};
    std::optional<std::vector<std::size_t>> ticked_; // as told last
    std::optional<DataSetOutcome_s> dataSet_;
};

} // namespace quorvia::host
