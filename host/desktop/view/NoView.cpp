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
};

} // namespace

void prepareViews() {}

DataSetView* DataSetView::make(ZonePicked, QWidget* parent) {
    return new NoView(parent);
}

} // namespace quorvia::host
