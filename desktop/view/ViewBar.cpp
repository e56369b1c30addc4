#include "desktop/view/ViewBar.h"

#include <utility>

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>

#include "desktop/parts/Labels.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {

using plot3d::scene::SurfaceKind_e;
using plot3d::scene::SurfaceWish_s;

namespace {

// In the order of the list.
constexpr std::array<SurfaceKind_e, 4> surfaceKinds = {SurfaceKind_e::Outer, SurfaceKind_e::I,
                                                       SurfaceKind_e::J, SurfaceKind_e::K};

int placeOf(SurfaceKind_e kind) {
    for (std::size_t place = 0; place < surfaceKinds.size(); ++place)
        if (surfaceKinds[place] == kind)
            return static_cast<int>(place);
    return 0;
}

} // namespace

ViewBar::ViewBar(Events_s events, QWidget* parent)
    : QWidget(parent), events_(std::move(events)), colour_(new QComboBox(this)),
      surfaces_(new QComboBox(this)), plane_(new QSlider(Qt::Horizontal, this)),
      planeText_(new QLabel(this)), directions_(new QWidget(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    addNamed(*layout, QStringLiteral("C&olour"), *colour_);
    addNamed(*layout, QStringLiteral("&Surfaces"), *surfaces_);
    layout->addWidget(plane_, 1);
    layout->addWidget(planeText_);
    layout->addStretch();
    addDirections();
    layout->addWidget(directions_);
    colour_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    surfaces_->addItems({QStringLiteral("Outer"), QStringLiteral("I plane"),
                         QStringLiteral("J plane"), QStringLiteral("K plane")});
    plane_->setAccessibleName(QStringLiteral("Plane"));
    connect(colour_, QOverload<int>::of(&QComboBox::activated), this,
            [this] { events_.coloured(colour_->currentText().toStdString()); });
    connect(surfaces_, QOverload<int>::of(&QComboBox::activated), this, [this] {
        showPlane();
        tellSurfaces();
    });
    connect(plane_, &QSlider::valueChanged, this, [this] {
        lastPlanes_[static_cast<std::size_t>(surfaces_->currentIndex() - 1)] = plane_->value();
        showPlane();
        tellSurfaces();
    });
    showPlane();
}

void ViewBar::addDirections() {
    auto* layout = new QHBoxLayout(directions_);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const char* direction : {"iso", "+x", "+y", "+z"}) {
        auto* button = new QToolButton(directions_);
        button->setText(QLatin1String(direction));
        button->setToolTip(QStringLiteral("Look from %1, with all in sight").arg(button->text()));
        connect(button, &QToolButton::clicked, this,
                [this, direction] { events_.lookedFrom(direction); });
        layout->addWidget(button);
    }
}

void ViewBar::setChoices(const std::vector<std::string>& variables, const plot3d::Extent& size) {
    const QSignalBlocker silence(colour_);
    colour_->clear();
    for (const std::string& variable : variables)
        colour_->addItem(shown(variable));
    lastPlanes_ = {1, 1, 1};
    sizes_ = {static_cast<int>(size.i), static_cast<int>(size.j), static_cast<int>(size.k)};
    showChoice({}, {});
}

void ViewBar::showChoice(const std::string& variable, const SurfaceWish_s& surfaces) {
    colour_->setCurrentIndex(colour_->findText(shown(variable)));
    surfaces_->setCurrentIndex(placeOf(surfaces.kind));
    if (surfaces_->currentIndex() > 0 && !surfaces.indices.empty())
        lastPlanes_[static_cast<std::size_t>(surfaces_->currentIndex() - 1)] =
            static_cast<int>(surfaces.indices.front());
    showPlane();
}

void ViewBar::showPlane() {
    const QSignalBlocker silence(plane_);
    const int direction = surfaces_->currentIndex() - 1; // -1: none
    for (QWidget* part : std::initializer_list<QWidget*>{plane_, planeText_})
        part->setVisible(direction >= 0);
    if (direction < 0)
        return;
    const auto place = static_cast<std::size_t>(direction);
    plane_->setRange(1, sizes_[place]);
    plane_->setValue(lastPlanes_[place]);
    planeText_->setText(QStringLiteral("%1 of %2").arg(plane_->value()).arg(sizes_[place]));
}

void ViewBar::tellSurfaces() {
    const SurfaceKind_e kind = surfaceKinds[static_cast<std::size_t>(surfaces_->currentIndex())];
    SurfaceWish_s wish;
    wish.kind = kind;
    if (kind != SurfaceKind_e::Outer)
        wish.indices = {plane_->value()};
    events_.cut(wish);
}

} // namespace quorvia::host
