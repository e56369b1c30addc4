#include "desktop/values/FieldTable.h"

#include <algorithm>
#include <limits>

#include <plot3d/Error.h>

#include "analysis/fields/BlockSplit.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

constexpr int tileRows = 32;
constexpr int tileColumns = 16;
constexpr std::int64_t valuesReadAtOnce = std::int64_t{1} << 15;
constexpr std::size_t mostTiles = 1024; // 4 MB of values

int asCount(std::int64_t count) {
    return static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

QString indexText(bool isAlongI, std::int64_t index) {
    return QStringLiteral("%1 %2").arg(QLatin1String(isAlongI ? "i" : "j")).arg(index + 1);
}

plot3d::Range rangeOf(int tile, int length, std::int64_t size) {
    const std::int64_t first = std::int64_t{tile} * length;
    return {first, std::min(first + length, size) - 1, 1};
}

} // namespace

FieldTable::FieldTable(std::shared_ptr<const plot3d::DataSet> data, std::size_t zone,
                       std::size_t variable)
    : data_(std::move(data)), zone_(zone), variable_(variable), size_(data_->zones()[zone].size),
      work_([this](const std::optional<std::string>& failure) {
          failure_ = failure.value_or("");
          wanted_.clear();
          showAll();
      }) {
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, [this] { readWanted(); });
}

void FieldTable::showPlane(std::int64_t k) {
    plane_ = k;
    tiles_.clear();
    wanted_.clear();
    failure_.clear();
    work_.start([this](const plot3d::Watch&) { return LatestWork::Finish([this] { take({}); }); });
    showAll();
}

void FieldTable::showAll() {
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

// ---- What the window asks for -------------------------------------------------------------------

int FieldTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : asCount(isColumn() ? size_.i : size_.j);
}

int FieldTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : asCount(isColumn() ? 1 : size_.i);
}

QVariant FieldTable::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const std::optional<double> value = valueAt(index.row(), index.column());
    return value ? shownNumber(*value) : QString();
}

QVariant FieldTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    if (isColumn() && orientation == Qt::Horizontal)
        return shown(data_->variables()[variable_].name);
    return indexText(isColumn() || orientation == Qt::Horizontal, section);
}

std::optional<double> FieldTable::valueAt(int row, int column) const {
    const Tile tile = {row / tileRows, column / tileColumns};
    const auto found = tiles_.find(tile);
    if (found != tiles_.end())
        return found->second[static_cast<std::size_t>(row % tileRows * tileWidth(tile) +
                                                      column % tileColumns)];
    if (failure_.empty() && wanted_.insert(tile).second)
        look_.start(0);
    return std::nullopt;
}

// ---- Reading ------------------------------------------------------------------------------------

int FieldTable::tileWidth(const Tile& tile) const {
    return std::min(tileColumns, columnCount() - tile.second * tileColumns);
}

plot3d::Box FieldTable::boxOf(const Tile& tile) const {
    if (isColumn())
        return {rangeOf(tile.first, tileRows, size_.i), {0, 0, 1}, {0, 0, 1}};
    return {rangeOf(tile.second, tileColumns, size_.i),
            rangeOf(tile.first, tileRows, size_.j),
            {plane_, plane_, 1}};
}

void FieldTable::readWanted() {
    if (work_.isRunning())
        return; // its end goes on with what was asked for meanwhile
    std::vector<std::pair<Tile, plot3d::Box>> boxes;
    for (const Tile& tile : wanted_)
        boxes.emplace_back(tile, boxOf(tile));
    wanted_.clear();
    work_.start([this, data = data_, zone = zone_, variable = variable_,
                 boxes = std::move(boxes)](const plot3d::Watch& watch) -> LatestWork::Finish {
        Tiles tiles;
        for (const auto& [tile, box] : boxes) {
            if (watch.stop.stop_requested())
                throw plot3d::Error(plot3d::ErrorKind::Interrupted, "Stopped.");
            tiles[tile] = data->values(zone, variable, box);
        }
        return [this, tiles = std::move(tiles)]() mutable { take(std::move(tiles)); };
    });
}

void FieldTable::take(Tiles tiles) {
    if (tiles_.size() > mostTiles)
        tiles_.clear();
    for (auto& [tile, values] : tiles)
        readCount_ += static_cast<std::int64_t>(values.size());
    tiles_.merge(tiles);
    if (!wanted_.empty())
        look_.start(0);
    showAll();
}

// ---- Copying ------------------------------------------------------------------------------------

FieldTable::Copier FieldTable::copierOf(const CellRange_s& cells) const {
    const plot3d::Range rows = {cells.firstRow, cells.lastRow, 1};
    const plot3d::Range columns = {cells.firstColumn, cells.lastColumn, 1};
    const plot3d::Box box = isColumn() ? plot3d::Box{rows, {0, 0, 1}, {0, 0, 1}}
                                       : plot3d::Box{columns, rows, {plane_, plane_, 1}};
    const bool isAlongI = isColumn();
    QString headings = headingLine(cells, /*hasRowHeadings=*/true, [this](int column) {
        return headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    });
    return [data = data_, zone = zone_, variable = variable_, cells, box, isAlongI,
            text = std::move(headings)](const plot3d::Watch& watch) mutable {
        const plot3d::ValueType type = data->type(zone, variable);
        const std::int64_t width = std::int64_t{cells.lastColumn} - cells.firstColumn + 1;
        std::int64_t done = 0;
        for (const plot3d::Box& part : plot3d::analysis::blocksOf(box, valuesReadAtOnce)) {
            watch.progress(
                {"Copying", static_cast<double>(done) / static_cast<double>(cells.count()), -1});
            if (watch.stop.stop_requested())
                throw plot3d::Error(plot3d::ErrorKind::Interrupted, "Stopped.");
            for (const double value : data->values(zone, variable, part)) {
                if (cells.hasHeadings && done % width == 0)
                    text += indexText(isAlongI, cells.firstRow + done / width) + QLatin1Char('\t');
                text += exactText(value, type);
                text += QLatin1Char(++done % width == 0 ? '\n' : '\t');
            }
        }
        return text;
    };
}

} // namespace quorvia::host
