// Columns and items of the tree of a data set.
#pragma once

#include <cstdint>

#include <QTreeWidgetItem>

namespace quorvia::host {

enum TreeColumn_e {
    nameColumn,
    detailsColumn,
    typeColumn,
    minimumColumn,
    maximumColumn,
    treeColumnCount
};

/// What an item stands for, from 1; 0 or nothing for neither. An item with a zone and a variable is
/// a field.
constexpr int zoneRole = Qt::UserRole;
constexpr int variableRole = Qt::UserRole + 1;

inline std::int32_t zoneOf(const QTreeWidgetItem* item) {
    return item->data(nameColumn, zoneRole).toInt();
}

inline std::int32_t variableOf(const QTreeWidgetItem* item) {
    return item->data(nameColumn, variableRole).toInt();
}

} // namespace quorvia::host
