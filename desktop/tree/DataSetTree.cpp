#include "desktop/tree/DataSetTree.h"

#include <algorithm>
#include <utility>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

#include "describe/VariableSummary.h"
#include "describe/Words.h"
#include "desktop/parts/Texts.h"
#include "desktop/parts/TreeItems.h"
#include "desktop/tree/ZoneGroups.h"

namespace quorvia::host {
namespace {

QString stateOf(const FieldOutcome_s& field) {
    if (field.error)
        return QStringLiteral("failed");
    if (field.sharedWith != 0)
        return QStringLiteral("shared with zone %1").arg(field.sharedWith);
    return QString::fromLatin1(wordOf(field.state));
}

QString timeText(double time) {
    return QStringLiteral("Time %1").arg(shownNumber(time));
}

bool isOfBoundaries(const StrandGroup_s& group, const DataSetOutcome_s& dataSet) {
    return dataSet.zones[group.times.front().zones.front()].parentZone != 0;
}

QString spanOf(const StrandGroup_s& group) {
    std::size_t zones = 0;
    for (const TimeGroup_s& time : group.times)
        zones += time.zones.size();
    const QString count = shownCount(zones, "zone", "zones");
    if (group.times.size() < 2)
        return count;
    return QStringLiteral("%1, times %2 to %3")
        .arg(count, shownNumber(group.times.front().time), shownNumber(group.times.back().time));
}

} // namespace

DataSetTree::DataSetTree(FetchWanted fetchWanted, QWidget* parent)
    : QTreeWidget(parent), fetchWanted_(std::move(fetchWanted)) {
    setColumnCount(treeColumnCount);
    setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Details"), QStringLiteral("Type"),
                     QStringLiteral("Minimum"), QStringLiteral("Maximum")});
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setUniformRowHeights(true); // quick with thousands of zones
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(detailsColumn, QHeaderView::Stretch);
    constexpr int nameLetters = 30;
    constexpr int numberLetters = 13;
    const int letter = fontMetrics().averageCharWidth();
    setColumnWidth(nameColumn, nameLetters * letter);
    for (const int column : {typeColumn, minimumColumn, maximumColumn})
        setColumnWidth(column, numberLetters * letter);
    for (const int column : {minimumColumn, maximumColumn})
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* item) { fillZone(item); });
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        const std::int32_t variable = variableOf(item);
        if (variable != 0)
            variableChosen_(dataSet_->variables[static_cast<std::size_t>(variable) - 1]);
    });
    connect(this, &QTreeWidget::itemChanged, this, [this] { tellTicks(); });
}

void DataSetTree::tellChoices(VariableChosen variableChosen, ZonesTicked zonesTicked) {
    variableChosen_ = std::move(variableChosen);
    zonesTicked_ = std::move(zonesTicked);
}

void DataSetTree::showNothing() {
    clear();
    dataSet_.reset();
    viewport()->update();
}

void DataSetTree::showDataSet(DataSetOutcome_s dataSet, QuorPlotType_e plotType) {
    clear();
    ticked_.reset();
    dataSet_ = std::move(dataSet);
    const QSignalBlocker silence(this);
    auto* root = new QTreeWidgetItem(this);
    root->setText(nameColumn, shown(dataSet_->title));
    root->setText(detailsColumn,
                  QStringLiteral("%1, plot type %2")
                      .arg(shown(sizeText(*dataSet_)), QLatin1String(wordOf(plotType))));
    addVariables(root);
    addZones(root);
    addAuxData(root, dataSet_->auxData);
    root->setExpanded(true);
}

QTreeWidgetItem* DataSetTree::addItem(QTreeWidgetItem* parent, const QString& name,
                                      const QString& details) {
    auto* item = new QTreeWidgetItem(parent);
    item->setText(nameColumn, name);
    item->setToolTip(nameColumn, name); // names of boundary zones are longer than any column
    item->setText(detailsColumn, details);
    for (const int column : {minimumColumn, maximumColumn})
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

void DataSetTree::addVariables(QTreeWidgetItem* root) {
    QTreeWidgetItem* group =
        addItem(root, QStringLiteral("Variables"),
                shownCount(dataSet_->variables.size(), "variable", "variables"));
    std::int32_t number = 0;
    for (const std::string& name : dataSet_->variables) {
        QTreeWidgetItem* item = addItem(group, shown(name), QString());
        item->setData(nameColumn, variableRole, ++number);
        showVariableValues(item);
    }
    group->setExpanded(true);
}

void DataSetTree::addZones(QTreeWidgetItem* root) {
    QTreeWidgetItem* all =
        addItem(root, QStringLiteral("Zones"), shownCount(dataSet_->zones.size(), "zone", "zones"));
    all->setExpanded(true);
    for (const StrandGroup_s& group : groupZones(*dataSet_)) {
        const QString name = group.strand == 0 ? QStringLiteral("Static zones")
                                               : QStringLiteral("Strand %1").arg(group.strand);
        QTreeWidgetItem* strand = addItem(all, name, spanOf(group));
        if (group.strand != 0) // one grid through time
            strand->setCheckState(nameColumn,
                                  isOfBoundaries(group, *dataSet_) ? Qt::Unchecked : Qt::Checked);
        strand->setExpanded(true);
        for (const TimeGroup_s& time : group.times) {
            QTreeWidgetItem* step = addItem(strand, timeText(time.time),
                                            shownCount(time.zones.size(), "zone", "zones"));
            for (const std::size_t place : time.zones) {
                const ZoneOutcome_s& zone = dataSet_->zones[place];
                QTreeWidgetItem* item = addZone(step, zone);
                if (group.strand == 0)
                    item->setCheckState(nameColumn,
                                        zone.parentZone != 0 ? Qt::Unchecked : Qt::Checked);
            }
            step->setExpanded(group.times.size() == 1);
        }
    }
}

QTreeWidgetItem* DataSetTree::addZone(QTreeWidgetItem* parent, const ZoneOutcome_s& zone) {
    const QString of = zone.parentZone == 0
                           ? QString()
                           : QStringLiteral(", boundary of zone %1").arg(zone.parentZone);
    QTreeWidgetItem* item =
        addItem(parent, QStringLiteral("%1  %2").arg(zone.number).arg(shown(zone.name)),
                shown(sizeText(zone)) + of);
    item->setText(typeColumn, QString::fromLatin1(wordOf(zone.type)));
    item->setData(nameColumn, zoneRole, zone.number);
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator); // filled once it is opened
    return item;
}

void DataSetTree::addAuxData(QTreeWidgetItem* parent, const AuxDataItems& auxData) {
    if (auxData.empty())
        return;
    QTreeWidgetItem* group = addItem(parent, QStringLiteral("Auxiliary data"),
                                     shownCount(auxData.size(), "item", "items"));
    for (const auto& [name, text] : auxData)
        addItem(group, shown(name), shown(text));
}

void DataSetTree::fillZone(QTreeWidgetItem* item) {
    const std::int32_t number = zoneOf(item);
    if (number == 0 || variableOf(item) != 0 || item->childCount() > 0)
        return;
    const ZoneOutcome_s& zone = dataSet_->zones[static_cast<std::size_t>(number) - 1];
    for (const FieldOutcome_s& field : zone.fields) {
        const auto place = static_cast<std::size_t>(field.variable) - 1;
        QTreeWidgetItem* child = addItem(item, shown(dataSet_->variables[place]), QString());
        child->setData(nameColumn, zoneRole, number);
        child->setData(nameColumn, variableRole, field.variable);
        showFieldValues(child);
    }
    if (zone.connectivity)
        addItem(item, QStringLiteral("Connectivity"),
                QStringLiteral("%1 elements of %2 nodes")
                    .arg(zone.connectivity->elements)
                    .arg(zone.connectivity->corners));
    addAuxData(item, zone.auxData.items());
}

// ---- Values -------------------------------------------------------------------------------------

void DataSetTree::showFieldValues(QTreeWidgetItem* item) const {
    const FieldOutcome_s* field = findField(*dataSet_, {zoneOf(item), variableOf(item)});
    item->setText(detailsColumn, stateOf(*field));
    item->setText(typeColumn, QString::fromLatin1(wordOf(field->type)));
    item->setToolTip(detailsColumn, field->error ? shown(*field->error) : QString());
    item->setText(minimumColumn,
                  field->statistics ? shownNumber(field->statistics->min) : QString());
    item->setText(maximumColumn,
                  field->statistics ? shownNumber(field->statistics->max) : QString());
}

/// The range over the zones whose values were fetched.
void DataSetTree::showVariableValues(QTreeWidgetItem* item) const {
    const VariableSummary_s all = summariseVariable(*dataSet_, variableOf(item));
    if (all.fieldCount > 0)
        item->setText(typeColumn, QString::fromLatin1(wordOf(all.lastType)));
    const bool isPart = all.fetchedCount > 0 && all.fetchedCount < all.fieldCount;
    item->setText(
        detailsColumn,
        isPart ? QStringLiteral("range of %1 of %2 zones").arg(all.fetchedCount).arg(all.fieldCount)
               : QString());
    item->setText(minimumColumn, all.hasRange() ? shownNumber(all.min) : QString());
    item->setText(maximumColumn, all.hasRange() ? shownNumber(all.max) : QString());
}

void DataSetTree::showValuesBelow(QTreeWidgetItem* item) const {
    if (variableOf(item) != 0 && zoneOf(item) != 0)
        showFieldValues(item);
    else if (variableOf(item) != 0)
        showVariableValues(item);
    for (int index = 0; index < item->childCount(); ++index)
        showValuesBelow(item->child(index));
}

void DataSetTree::showValues(DataSetOutcome_s dataSet) {
    dataSet_ = std::move(dataSet);
    showValuesBelow(invisibleRootItem());
}

bool DataSetTree::shows(const DataSetOutcome_s& dataSet) const {
    return dataSet_ && withoutValues(*dataSet_) == dataSet;
}

// ---- What the user means ------------------------------------------------------------------------

void DataSetTree::addFieldsOfZone(std::int32_t zone, std::vector<FieldAddress_s>& fields) const {
    for (std::int32_t variable = 1; findField(*dataSet_, {zone, variable}) != nullptr; ++variable)
        fields.push_back({zone, variable});
}

void DataSetTree::collectFields(const QTreeWidgetItem* item,
                                std::vector<FieldAddress_s>& fields) const {
    const std::int32_t zone = zoneOf(item);
    const std::int32_t variable = variableOf(item);
    if (zone != 0 && variable != 0)
        fields.push_back({zone, variable});
    else if (zone != 0)
        addFieldsOfZone(zone, fields);
    else if (variable != 0)
        for (const ZoneOutcome_s& each : dataSet_->zones)
            fields.push_back({each.number, variable});
    else
        for (int index = 0; index < item->childCount(); ++index)
            collectFields(item->child(index), fields);
}

std::vector<FieldAddress_s> DataSetTree::allFields() const {
    return dataSet_ ? fieldsOf(*dataSet_) : std::vector<FieldAddress_s>();
}

std::vector<FieldAddress_s> DataSetTree::selectedFields() const {
    std::vector<FieldAddress_s> fields;
    for (const QTreeWidgetItem* item : selectedItems())
        collectFields(item, fields);
    return fields;
}

std::optional<std::size_t> DataSetTree::currentZone() const {
    for (const QTreeWidgetItem* item = currentItem(); item != nullptr; item = item->parent())
        if (zoneOf(item) != 0)
            return static_cast<std::size_t>(zoneOf(item));
    return std::nullopt;
}

std::optional<std::size_t> DataSetTree::currentVariable() const {
    if (currentItem() == nullptr || variableOf(currentItem()) == 0)
        return std::nullopt;
    return static_cast<std::size_t>(variableOf(currentItem()));
}

void DataSetTree::markZone(std::size_t number) {
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item)
        if (zoneOf(*item) == static_cast<std::int32_t>(number) && variableOf(*item) == 0) {
            setCurrentItem(*item, nameColumn,
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            scrollToItem(*item);
            return;
        }
}

void DataSetTree::contextMenuEvent(QContextMenuEvent* event) {
    const std::vector<FieldAddress_s> fields = selectedFields();
    if (fields.empty())
        return;
    QMenu menu(this);
    const QAction* fetch = menu.addAction(QStringLiteral("Fetch Values"));
    if (menu.exec(event->globalPos()) == fetch)
        fetchWanted_(fields);
}

void DataSetTree::paintEvent(QPaintEvent* event) {
    QTreeWidget::paintEvent(event);
    if (dataSet_)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter,
                     QStringLiteral("No data set.\n\nImport files with File > Import,\n"
                                    "or drop them here."));
}

} // namespace quorvia::host
