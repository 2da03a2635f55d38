#include "qt/static_bindings.h"

#include <QGroupBox>
#include <QLabel>

#include "platform/controls/picture_box.h"
#include "platform/controls/timer.h"
#include "qt/picture_pixmap.h"
#include "qt/text.h"

namespace trovane::qt {

QWidget* LabelBinding::CreateView(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void LabelBinding::ShowCaption() {
    if (auto* label = qobject_cast<QLabel*>(View())) label->setText(ToQString(Model().Caption()));
}

// A frame's caption sits on its top border line, so the controls placed from the frame's top in
// the design stand below the caption and inside the border, as designed.
QWidget* FrameBinding::CreateView(QWidget* parent) {
    auto* box = new QGroupBox(parent);
    box->setStyleSheet(
        "QGroupBox { border: 1px solid palette(mid); border-radius: 2px; margin-top: 0.5em; }"
        "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; }");
    return box;
}

void FrameBinding::ShowCaption() {
    if (auto* box = qobject_cast<QGroupBox*>(View())) box->setTitle(ToQString(Model().Caption()));
}

QWidget* PictureBoxBinding::CreateView(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

void PictureBoxBinding::MirrorOwn(ControlProperty property) {
    if (property != ControlProperty::Picture) return ControlBinding::MirrorOwn(property);
    if (auto* label = qobject_cast<QLabel*>(View()))
        label->setPixmap(PixmapOf(static_cast<const PictureBox&>(Model()).GetPicture()));
}

void PictureBoxBinding::MirrorAll() {
    ControlBinding::MirrorAll();
    MirrorOwn(ControlProperty::Picture);
}

QWidget* TimerBinding::CreateView(QWidget*) {
    QObject::connect(&timer, &QTimer::timeout, this,
                     [this] { Input([this] { static_cast<Timer&>(Model()).Tick(); }); });
    return nullptr;
}

void TimerBinding::MirrorOwn(ControlProperty property) {
    if (property != ControlProperty::Enabled && property != ControlProperty::Interval) return;
    const auto& model = static_cast<const Timer&>(Model());
    if (!model.IsRunning()) {
        timer.stop();
        return;
    }
    timer.setInterval(model.Interval());
    if (!timer.isActive()) timer.start();
}

void TimerBinding::MirrorAll() {
    MirrorOwn(ControlProperty::Interval);
}

}  // namespace trovane::qt
