// Of the tree: which zones are ticked.
#include <algorithm>
#include <iterator>
#include <utility>

#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

#include "desktop/parts/TreeItems.h"
#include "desktop/tree/DataSetTree.h"

namespace quorvia::host {
namespace {

/// Numbers of the zones at or below the item.
void collectZones(const QTreeWidgetItem* item, std::vector<std::size_t>& zones) {
    if (zoneOf(item) != 0) {
        zones.push_back(static_cast<std::size_t>(zoneOf(item)));
        return;
    }
    for (int index = 0; index < item->childCount(); ++index)
        collectZones(item->child(index), zones);
}

bool canBeTicked(const QTreeWidgetItem* item) {
    return item->data(nameColumn, Qt::CheckStateRole).isValid();
}

/// Those of `numbers` that are among `zones`, which ascend.
std::vector<std::size_t> amongThem(const std::vector<std::size_t>& numbers,
                                   const std::vector<std::size_t>& zones) {
    std::vector<std::size_t> among;
    std::copy_if(
        numbers.begin(), numbers.end(), std::back_inserter(among),
        [&](std::size_t number) { return std::binary_search(zones.begin(), zones.end(), number); });
    return among;
}

} // namespace

std::vector<std::size_t> DataSetTree::usualZones() const {
    std::vector<std::size_t> usual;
    for (const ZoneOutcome_s& zone : dataSet_->zones)
        if (zone.parentZone == 0)
            usual.push_back(static_cast<std::size_t>(zone.number));
    return usual;
}

/// Numbers of the zones at or below the item that are shown; of what is half ticked those that
/// were.
void DataSetTree::collectTicked(const QTreeWidgetItem* item,
                                std::vector<std::size_t>& zones) const {
    if (!canBeTicked(item)) {
        for (int index = 0; index < item->childCount(); ++index)
            collectTicked(item->child(index), zones);
        return;
    }
    std::vector<std::size_t> below;
    if (item->checkState(nameColumn) != Qt::Unchecked)
        collectZones(item, below);
    if (item->checkState(nameColumn) == Qt::PartiallyChecked)
        below = amongThem(below, ticked_.value_or(std::vector<std::size_t>()));
    zones.insert(zones.end(), below.begin(), below.end());
}

void DataSetTree::tickZones(std::vector<std::size_t> zones) {
    const QSignalBlocker silence(this);
    ticked_ = zones.empty() ? std::nullopt : std::optional(zones);
    if (zones.empty())
        zones = usualZones();
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
        if (!canBeTicked(*item))
            continue;
        std::vector<std::size_t> below;
        collectZones(*item, below);
        const std::size_t shownCount = amongThem(below, zones).size();
        (*item)->setCheckState(nameColumn, shownCount == 0              ? Qt::Unchecked
                                           : shownCount == below.size() ? Qt::Checked
                                                                        : Qt::PartiallyChecked);
    }
    viewport()->update();
}

bool DataSetTree::isUsuallyTicked(const QTreeWidgetItem* item) const {
    std::vector<std::size_t> zones;
    collectZones(item, zones);
    return dataSet_->zones[zones.front() - 1].parentZone == 0;
}

std::set<QString> DataSetTree::unusualTicks() const {
    std::set<QString> names;
    for (QTreeWidgetItemIterator item(const_cast<DataSetTree*>(this)); *item != nullptr; ++item)
        if (canBeTicked(*item) && (*item)->checkState(nameColumn) ==
                                      (isUsuallyTicked(*item) ? Qt::Unchecked : Qt::Checked))
            names.insert((*item)->text(nameColumn));
    return names;
}

void DataSetTree::putUnusualTicks(const std::set<QString>& names) {
    {
        const QSignalBlocker silence(this);
        for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item)
            if (canBeTicked(*item) && names.count((*item)->text(nameColumn)) != 0)
                (*item)->setCheckState(nameColumn,
                                       isUsuallyTicked(*item) ? Qt::Unchecked : Qt::Checked);
    }
    tellTicks();
}

// Texts change as well; only a choice that is another is told.
void DataSetTree::tellTicks() {
    std::vector<std::size_t> zones;
    collectTicked(invisibleRootItem(), zones);
    std::sort(zones.begin(), zones.end());
    auto now = zones == usualZones() ? std::nullopt : std::optional(std::move(zones));
    if (now == ticked_)
        return;
    ticked_ = now;
    zonesTicked_(std::move(now));
}

} // namespace quorvia::host
