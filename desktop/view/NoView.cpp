#include "desktop/view/DataSetView.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quorvia::host {
namespace {

class NoView : public DataSetView {
public:
    explicit NoView(QWidget* parent) : DataSetView(parent) {
        auto* text = new QLabel(QStringLiteral("This program was built without the view, which "
                                               "needs VTK and the Qt that it is built with."));
        text->setObjectName(QStringLiteral("viewMessage"));
        text->setAlignment(Qt::AlignCenter);
        text->setWordWrap(true);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(text);
    }
    void showDataSet(std::shared_ptr<const plot3d::DataSet>, const std::string&) override {}
    void colourBy(const std::string&) override {}
    void showZones(ZoneChoice) override {}
    void offerZone(std::size_t) override {}
    std::size_t step() const override { return 0; }
    std::string colour() const override { return {}; }
    bool hasPicture() const override { return false; }
    bool savePicture(const QString&) override { return false; }
    std::string viewText() const override { return {}; }
    std::string showView(const std::string&) override { return "there is no picture"; }
};

} // namespace

void prepareViews() {}

DataSetView* DataSetView::make(Events_s, QWidget* parent) {
    return new NoView(parent);
}

} // namespace quorvia::host
