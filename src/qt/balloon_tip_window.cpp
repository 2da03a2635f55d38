#include "qt/balloon_tip_window.h"

#include <algorithm>

#include <QGridLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QStyle>

#include "qt/text.h"

namespace trovane::qt {

namespace {
constexpr int kMargin = 8;
constexpr int kStemHeight = 12;
constexpr int kStemWidth = 14;
constexpr int kRadius = 6;
constexpr int kIconSize = 16;
constexpr int kMaxTextWidth = 360;

QStyle::StandardPixmap PixmapOf(int32_t icon) {
    switch (icon) {
        case BalloonTip::kWarningIcon:
            return QStyle::SP_MessageBoxWarning;
        case BalloonTip::kErrorIcon:
            return QStyle::SP_MessageBoxCritical;
        default:
            return QStyle::SP_MessageBoxInformation;
    }
}

bool HasIcon(int32_t icon) {
    return icon == BalloonTip::kInfoIcon || icon == BalloonTip::kWarningIcon ||
           icon == BalloonTip::kErrorIcon;
}
}  // namespace

BalloonTipWindow::BalloonTipWindow(const BalloonTip& tip)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      icon(tip.icon),
      titleLabel(new QLabel(ToQString(tip.title), this)),
      textLabel(new QLabel(ToQString(tip.text), this)) {
    setObjectName("balloonTip");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);

    QFont bold = titleLabel->font();
    bold.setBold(true);
    titleLabel->setFont(bold);
    titleLabel->setTextFormat(Qt::PlainText);
    textLabel->setTextFormat(Qt::PlainText);
    textLabel->setWordWrap(true);
    textLabel->setMaximumWidth(kMaxTextWidth);
    titleLabel->setVisible(!tip.title.empty());

    auto* layout = new QGridLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (HasIcon(icon)) {
        auto* iconLabel = new QLabel(this);
        iconLabel->setPixmap(style()->standardIcon(PixmapOf(icon)).pixmap(kIconSize, kIconSize));
        layout->addWidget(iconLabel, 0, 0, Qt::AlignTop);
    }
    layout->addWidget(titleLabel, 0, 1);
    layout->addWidget(textLabel, 1, 1);
    UseSide(false);
}

// The stem takes room on one side of the box: above it when the balloon opens downwards.
void BalloonTipWindow::UseSide(bool opensAbove) {
    above = opensAbove;
    layout()->setContentsMargins(kMargin, kMargin + (above ? 0 : kStemHeight), kMargin,
                                 kMargin + (above ? kStemHeight : 0));
    layout()->activate();
}

void BalloonTipWindow::PointAt(const QRect& target) {
    const QPoint below(target.center().x(), target.bottom() + 1);
    const QScreen* screen = QGuiApplication::screenAt(below);
    if (!screen) screen = QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect(target.topLeft(), QSize(10000, 10000));

    UseSide(false);
    const QSize size = sizeHint();
    const bool roomBelow = below.y() + size.height() <= area.bottom() + 1;
    const bool roomAbove = target.top() - size.height() >= area.top();
    UseSide(!roomBelow && roomAbove);

    const int anchorX = below.x();
    const int left = std::clamp(anchorX - kRadius - kStemWidth, area.left(),
                                std::max(area.left(), area.right() + 1 - size.width()));
    const int stemMin = kRadius + kStemWidth / 2;
    stemX = std::clamp(anchorX - left, stemMin, std::max(stemMin, size.width() - stemMin));
    const int top = above ? target.top() - size.height() : below.y();
    setGeometry(left, top, size.width(), size.height());
    setMask(QRegion(Outline().toFillPolygon().toPolygon()));
    update();
}

QPoint BalloonTipWindow::StemPoint() const {
    return QPoint(x() + stemX, above ? y() + height() : y());
}

QPainterPath BalloonTipWindow::Outline() const {
    const QRectF box(0, above ? 0 : kStemHeight, width(), height() - kStemHeight);
    QPainterPath outline;
    outline.addRoundedRect(box, kRadius, kRadius);
    QPainterPath stem;
    const double baseY = above ? box.bottom() - 1 : box.top() + 1;
    const double tipY = above ? height() : 0;
    stem.moveTo(stemX - kStemWidth / 2.0, baseY);
    stem.lineTo(stemX, tipY);
    stem.lineTo(stemX + kStemWidth / 2.0, baseY);
    stem.closeSubpath();
    return outline.united(stem);
}

void BalloonTipWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().toolTipBase());
    painter.setPen(QPen(palette().toolTipText().color(), 1));
    painter.drawPath(Outline().translated(0.5, 0.5));
}

void BalloonTipWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    setMask(QRegion(Outline().toFillPolygon().toPolygon()));
}

}  // namespace trovane::qt
