// The picture of the data set, beside its tree.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QWidget>

#include <plot3d/DataSet.h>

namespace quorvia::host {

/// Before the application is made: what the window system must know for a view.
void prepareViews();

class DataSetView : public QWidget {
public:
    struct Events_s {
        /// Gets the zone, an index from 0, of a point that was clicked at.
        std::function<void(std::size_t zone)> picked;
        /// There is a picture, or there is none any more.
        std::function<void()> changed;
        /// A view that was opened is in the picture: numbers of its zones from 1, none for all but
        /// boundary zones.
        std::function<void(const std::vector<std::size_t>& zones)> opened;
    };
    /// Numbers from 1, ascending; nothing stands for all but boundary zones.
    using ZoneChoice = std::optional<std::vector<std::size_t>>;

    /// Belongs to `parent`. Where the program was built without the scene it says so, and does
    /// nothing else.
    static DataSetView* make(Events_s events, QWidget* parent);

    /// In place of what was shown. Null: nothing, and why not, which may be empty.
    virtual void showDataSet(std::shared_ptr<const plot3d::DataSet> data,
                             const std::string& whyNot) = 0;
    virtual void colourBy(const std::string& variable) = 0;
    virtual void showZones(ZoneChoice zones) = 0;
    /// The zone, by index from 0, whose values the range of the colours can be taken from.
    virtual void offerZone(std::size_t zone) = 0;
    /// Index from 0 of the time step in the picture; 0 without one.
    virtual std::size_t step() const = 0;
    /// What the picture is coloured by; empty for nothing.
    virtual std::string colour() const = 0;
    virtual bool hasPicture() const = 0;
    /// As PNG, as it is seen. False (not told): there is none, or it can't be written.
    [[nodiscard]] virtual bool savePicture(const QString& file) = 0;
    /// What is in the picture, as it is seen: JSON of schema "plot3d.view/1", with the picture's
    /// size in pixels. Empty: there is none.
    virtual std::string viewText() const = 0;
    /// The view that such a text describes, in place of what was shown. Gives why it is no view;
    /// empty if it is one. What the data set doesn't have is told below the picture, which then
    /// stays as it is.
    [[nodiscard]] virtual std::string showView(const std::string& text) = 0;

protected:
    using QWidget::QWidget;
};

} // namespace quorvia::host
