#include "desktop/dialog/ControlView.h"

#include <utility>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/dialog/ControlNames.h"
#include "desktop/dialog/FrameWidget.h"
#include "desktop/dialog/TextFieldView.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

class FrameView : public ControlView {
public:
    FrameView(const Control_s& control, QWidget* parent)
        : ControlView(new FrameWidget(shown(control.caption).trimmed(), parent)) {
        widget()->lower(); // controls stand over it, also those that were made before
    }

protected:
    void showValue(const Control_s&) override {}
};

class LabelView : public ControlView {
public:
    LabelView(const Control_s& control, QWidget* parent) : ControlView(new QLabel(parent)) {
        auto* label = static_cast<QLabel*>(widget());
        label->setTextFormat(Qt::PlainText);
        label->setText(shown(control.caption));
        label->setAttribute(Qt::WA_TransparentForMouseEvents); // it may reach over its neighbour
    }

protected:
    void showValue(const Control_s&) override {}
};

class ToggleView : public ControlView {
public:
    ToggleView(const Control_s& control, ActionSink act, QWidget* parent)
        : ControlView(new QCheckBox(shownCaption(control.caption), parent)),
          box_(*static_cast<QCheckBox*>(widget())) {
        QObject::connect(&box_, &QCheckBox::clicked, &box_,
                         [id = control.id, act = std::move(act)](bool on) {
                             act(SetToggle_s{id, on});
                         });
    }

protected:
    void showValue(const Control_s& control) override { box_.setChecked(control.value != 0); }

private:
    QCheckBox& box_;
};

class ButtonView : public ControlView {
public:
    ButtonView(const Control_s& control, ActionSink act, QWidget* parent)
        : ControlView(new QPushButton(shownCaption(control.caption), parent)) {
        auto* button = static_cast<QPushButton*>(widget());
        button->setAutoDefault(false); // Return in a field means OK, whatever had the focus before
        QObject::connect(button, &QPushButton::clicked, button,
                         [id = control.id, act = std::move(act)] { act(PressButton_s{id}); });
    }

protected:
    void showValue(const Control_s&) override {}
};

class ListView : public ControlView {
public:
    ListView(const Control_s& control, ActionSink act, QWidget* parent)
        : ControlView(new QListWidget(parent)), list_(*static_cast<QListWidget*>(widget())) {
        list_.setSelectionMode(control.allowsSeveral ? QAbstractItemView::ExtendedSelection
                                                     : QAbstractItemView::SingleSelection);
        list_.setTextElideMode(Qt::ElideMiddle); // the ends of paths tell them apart
        list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list_.setUniformItemSizes(true);
        QObject::connect(&list_, &QListWidget::itemSelectionChanged, &list_,
                         [this, id = control.id, act = std::move(act)] {
                             act(SelectItems_s{id, selected()});
                         });
    }

protected:
    void showValue(const Control_s& control) override {
        const QSignalBlocker silence(&list_);
        if (items_ != control.items)
            showItems(control.items);
        if (selected() == control.selected)
            return;
        list_.clearSelection();
        for (const std::int32_t position : control.selected)
            if (QListWidgetItem* item = list_.item(position - 1))
                item->setSelected(true);
    }

private:
    void showItems(const std::vector<std::string>& items) {
        list_.clear();
        for (const std::string& text : items) {
            auto* item = new QListWidgetItem(shown(text), &list_);
            item->setToolTip(shown(text));
        }
        items_ = items;
    }
    std::vector<std::int32_t> selected() const {
        std::vector<std::int32_t> positions;
        for (int row = 0; row < list_.count(); ++row)
            if (list_.item(row)->isSelected())
                positions.push_back(row + 1);
        return positions;
    }

    QListWidget& list_;
    std::vector<std::string> items_;
};

/// Its buttons share the height evenly.
class RadioBoxWidget : public QWidget {
public:
    using QWidget::QWidget;
    QButtonGroup group;

protected:
    void resizeEvent(QResizeEvent*) override {
        const auto buttons = group.buttons();
        for (int index = 0; index < buttons.size(); ++index) {
            const int top = height() * index / static_cast<int>(buttons.size());
            const int next = height() * (index + 1) / static_cast<int>(buttons.size());
            buttons[index]->setGeometry(0, top, width(), next - top);
        }
    }
};

class RadioBoxView : public ControlView {
public:
    RadioBoxView(const Control_s& control, ActionSink act, QWidget* parent)
        : ControlView(new RadioBoxWidget(parent)), box_(*static_cast<RadioBoxWidget*>(widget())) {
        std::int32_t item = 0;
        for (const std::string& caption : control.items)
            box_.group.addButton(new QRadioButton(shownCaption(caption), &box_), ++item);
        QObject::connect(&box_.group, &QButtonGroup::idClicked, &box_,
                         [id = control.id, act = std::move(act)](int clicked) {
                             act(ChooseItem_s{id, clicked});
                         });
    }

protected:
    void showValue(const Control_s& control) override {
        if (QAbstractButton* button = box_.group.button(control.value))
            button->setChecked(true);
    }

private:
    RadioBoxWidget& box_;
};

class OptionMenuView : public ControlView {
public:
    OptionMenuView(const Control_s& control, ActionSink act, QWidget* parent)
        : ControlView(new QComboBox(parent)), menu_(*static_cast<QComboBox*>(widget())) {
        for (const std::string& caption : control.items)
            menu_.addItem(shown(caption));
        QObject::connect(&menu_, QOverload<int>::of(&QComboBox::activated), &menu_,
                         [id = control.id, act = std::move(act)](int index) {
                             act(ChooseItem_s{id, index + 1});
                         });
    }

protected:
    void showValue(const Control_s& control) override { menu_.setCurrentIndex(control.value - 1); }

private:
    QComboBox& menu_;
};

std::unique_ptr<ControlView> viewOfKind(const Control_s& control, ActionSink act, QWidget* parent) {
    switch (control.kind) {
    case ControlKind_e::Frame:
        return std::make_unique<FrameView>(control, parent);
    case ControlKind_e::Label:
        return std::make_unique<LabelView>(control, parent);
    case ControlKind_e::Toggle:
        return std::make_unique<ToggleView>(control, std::move(act), parent);
    case ControlKind_e::Button:
        return std::make_unique<ButtonView>(control, std::move(act), parent);
    case ControlKind_e::List:
        return std::make_unique<ListView>(control, std::move(act), parent);
    case ControlKind_e::TextField:
        return std::make_unique<TextFieldView>(control, std::move(act), parent);
    case ControlKind_e::RadioBox:
        return std::make_unique<RadioBoxView>(control, std::move(act), parent);
    case ControlKind_e::OptionMenu:
        return std::make_unique<OptionMenuView>(control, std::move(act), parent);
    }
    return nullptr;
}

/// A label has a position only; on the line of a toggle or field its text stands level with theirs.
QRect placeOf(const Control_s& control, const DialogScale& scale, const QWidget& widget) {
    QRect place = scale.rect(control.geometry);
    if (control.kind == ControlKind_e::Label) {
        constexpr std::int32_t heightOfALabel = 121;
        place.setSize({widget.sizeHint().width(), scale.height(heightOfALabel)});
    }
    return place;
}

} // namespace

void ControlView::refresh(const Control_s& control) {
    showValue(control);
    widget_->setEnabled(control.sensitive);
    widget_->setToolTip(control.sensitive ? QString() : hint_);
}

std::unique_ptr<ControlView> makeControlView(const Dialog_s& dialog, const Control_s& control,
                                             ActionSink act, const DialogScale& scale,
                                             QWidget* parent) {
    std::unique_ptr<ControlView> view = viewOfKind(control, std::move(act), parent);
    view->hint_ = hintFor(nameOf(dialog, control));
    view->widget()->setObjectName(QStringLiteral("control%1").arg(control.id));
    view->widget()->setAccessibleName(shown(spokenNameOf(dialog, control)).trimmed());
    view->widget()->setGeometry(placeOf(control, scale, *view->widget()));
    view->refresh(control);
    return view;
}

} // namespace quorvia::host
