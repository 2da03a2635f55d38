#pragma once
// BalloonTipWindow: a balloon tip on screen.
//
// A frameless tool-tip window that is never activated and never closes by itself (Qt's own tool
// tips go on the next mouse move; a balloon stays until its owner hides it). It shows the icon
// (the classic numbers: 1 information, 2 warning, 3 error, any other none), the title in bold and
// the text, in a rounded box whose stem points at the middle of the target's bottom edge. Where
// there is no room below the target on its screen, the balloon opens above it and points at the
// middle of its top edge. The box is kept inside the screen's work area; the stem still points at
// the target.

#include <cstdint>

#include <QLabel>
#include <QPainterPath>
#include <QWidget>

#include "platform/window_system.h"
#include "core/api_begin.h"

namespace trovane::qt {

class BalloonTipWindow final : public QWidget {
  public:
    explicit BalloonTipWindow(const BalloonTip& tip);

    // Places the balloon at a target rectangle in screen pixels.
    void PointAt(const QRect& target);

    // The screen point the stem touches.
    QPoint StemPoint() const;
    bool OpensAbove() const { return above; }
    int32_t Icon() const { return icon; }
    QString Title() const { return titleLabel->text(); }
    QString Text() const { return textLabel->text(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QPainterPath Outline() const;
    void UseSide(bool opensAbove);

    int32_t icon;
    QLabel* titleLabel;
    QLabel* textLabel;
    bool above = false;
    int stemX = 0;  // where the stem meets the box, from the left edge
};

}  // namespace trovane::qt

#include "core/api_end.h"
