// The picture of a data set with what works it: colours and surfaces above, time below, what was
// clicked at, and how far preparing has come. All reading goes on beside the windows' thread.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QLabel>
#include <QStackedWidget>
#include <QTimer>

#include "content/Preparer.h"
#include "desktop/parts/LatestWork.h"
#include "desktop/parts/WorkRow.h"
#include "desktop/view/DataSetView.h"
#include "desktop/view/RangeBar.h"
#include "desktop/view/SceneWidget.h"
#include "desktop/view/TimeBar.h"
#include "desktop/view/ViewBar.h"

namespace quorvia::host {

class ViewPanel : public DataSetView {
public:
    ViewPanel(Events_s events, QWidget* parent);

    void showDataSet(std::shared_ptr<const plot3d::DataSet> data,
                     const std::string& whyNot) override;
    void colourBy(const std::string& variable) override;
    void showZones(ZoneChoice zones) override;
    void offerZone(std::size_t zone) override { range_->offerZone(zone + 1); }
    std::size_t step() const override { return hasPicture() ? content()->timeStep : 0; }
    std::string colour() const override;
    bool hasPicture() const override { return pages_->currentWidget() == scene_; }
    bool savePicture(const QString& file) override;
    std::string viewText() const override;
    std::string showView(const std::string& text) override;

    /// What is in the picture; null for nothing. It may be older than what was asked for last.
    const plot3d::scene::SceneContent_s* content() const { return scene_->stage().content(); }
    /// What is asked for is in the picture, or was refused or cancelled, and what was clicked at
    /// has been told.
    bool isSettled() const { return !prepare_.isRunning() && !read_.isRunning(); }
    SceneWidget& scene() { return *scene_; }
    TimeBar& timeBar() { return *times_; }
    LatestWork& preparing() { return prepare_; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void addParts();
    ViewBar* makeBar();
    RangeBar* makeRangeBar();
    plot3d::scene::View_s themed(plot3d::scene::View_s view) const;
    void addKeys();
    QWidget* makeFoot();
    void want(plot3d::scene::View_s view);
    void take(std::shared_ptr<const plot3d::scene::SceneContent_s> content,
              const plot3d::scene::View_s& view);
    void stayAsBefore(const std::optional<std::string>& failure);
    void showChoices();
    void showState();
    void showPicked(const std::optional<plot3d::scene::Picked_s>& picked);
    void readValues(const plot3d::scene::Picked_s& picked);
    void say(const std::string& text);
    void turnTo(QWidget* page);
    void chooseStep(int step);
    std::vector<std::string> colourNames() const;

    Events_s told_;
    ViewBar* bar_ = nullptr;
    RangeBar* range_ = nullptr;
    QStackedWidget* pages_ = nullptr; // the picture, or why there is none
    SceneWidget* scene_ = nullptr;
    QLabel* message_ = nullptr;
    TimeBar* times_ = nullptr;
    QLabel* values_ = nullptr;       // of the point that was clicked at
    WorkRow* progressRow_ = nullptr; // while something is prepared
    QTimer stateTimer_;
    std::shared_ptr<const plot3d::DataSet> data_;
    std::shared_ptr<plot3d::scene::Preparer> preparer_; // used by the thread of prepare_ alone
    plot3d::scene::View_s wanted_;                      // as asked for last
    plot3d::scene::View_s taken_;                       // as asked for, of what is in the picture
    // Ranges that were fixed, by what was coloured: they come back with it.
    std::map<std::string, plot3d::scene::Range_s> fixedRanges_;
    bool isNew_ = true;      // nothing of the data set was in the picture yet
    bool hasNoZone_ = false; // the user wants to see none
    bool isOpening_ = false; // what is wanted was opened, with its camera
    LatestWork prepare_;
    LatestWork read_; // last, with prepare_: their threads end first
};

} // namespace quorvia::host
