// The values of one field, one plane of K at a time: I to the right, J downwards; a field along I
// alone stands in one column. What is shown is read when it is shown, in small boxes and beside the
// windows' thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <QAbstractTableModel>
#include <QTimer>

#include <plot3d/DataSet.h>

#include "desktop/parts/LatestWork.h"
#include "desktop/values/TableText.h"

namespace quorvia::host {

class FieldTable : public QAbstractTableModel {
public:
    /// `zone` and `variable` from 0.
    FieldTable(std::shared_ptr<const plot3d::DataSet> data, std::size_t zone, std::size_t variable);

    /// Planes of K.
    std::int64_t planeCount() const { return size_.k; }
    /// From 0.
    void showPlane(std::int64_t k);
    /// Values that were read from the first plane on.
    std::int64_t readCount() const { return readCount_; }
    bool isReading() const { return look_.isActive() || work_.isRunning(); }
    /// What reads these cells of the plane that is shown, on any thread and also when the table has
    /// gone, and gives them as text. It throws Error.
    using Copier = std::function<QString(const plot3d::Watch& watch)>;
    Copier copierOf(const CellRange_s& cells) const;
    /// Why values are missing; empty if none is.
    const std::string& failure() const { return failure_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// A text that is empty until the value was read.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using Tile = std::pair<int, int>; // row and column, in tiles from 0
    using Tiles = std::map<Tile, std::vector<double>>;

    bool isColumn() const { return size_.j == 1 && size_.k == 1; }
    plot3d::Box boxOf(const Tile& tile) const;
    int tileWidth(const Tile& tile) const;
    std::optional<double> valueAt(int row, int column) const;
    void readWanted();
    void take(Tiles tiles);
    void showAll();

    std::shared_ptr<const plot3d::DataSet> data_;
    std::size_t zone_;
    std::size_t variable_;
    plot3d::Extent size_;
    std::int64_t plane_ = 0;
    std::int64_t readCount_ = 0;
    std::string failure_;
    Tiles tiles_;
    mutable std::set<Tile> wanted_; // asked for by the window, and not read
    mutable QTimer look_;
    LatestWork work_;
};

} // namespace quorvia::host
