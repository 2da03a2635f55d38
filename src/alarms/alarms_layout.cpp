// Construction of the alarm panel: its controls, their layout in twips, and the column fitting.
//
// The list fills the panel above a row of three buttons: the two acknowledge buttons on the left,
// Refresh on the right. Resize_List_View lays everything out for a given width, so a host that
// widens the control dialog widens the list. The list's columns are fitted to their contents after
// every rebuild: the icon column is just wide enough for a 16-pixel LED, each text column as wide as
// its widest text plus a little air, and the last column then reaches the list's visible right edge.

#include <algorithm>

#include "alarms/alarms.h"
#include "alarms/fallback_picture.h"

namespace trovane {

namespace {
constexpr int32_t kMargin = 60;
constexpr int32_t kGap = 75;
constexpr int32_t kButtonWidth = 1335;
constexpr int32_t kButtonHeight = 375;
constexpr int32_t kDefaultWidth = 6600;
constexpr int32_t kDefaultHeight = 3300;
constexpr int32_t kMinimumListHeight = 600;

constexpr int32_t kIconColumnPixels = 22;
constexpr int32_t kTextPaddingPixels = 15;
constexpr int32_t kScrollBarPixels = 17;
constexpr int32_t kBorderPixels = 2;  // the list's sunken client edge, on each side
constexpr int32_t kEdgeMargin = 27;
constexpr int32_t kTwipsPerPixel = 15;
}  // namespace

Alarms::Alarms(PlatformServices platform)
    : Panel("Alarms", std::move(platform)),
      ListView1(Add<ListView>("ListView1")),
      btnAck(Add<CommandButton>("btnAck")),
      btnAckSelected(Add<CommandButton>("btnAckSelected")),
      btnRefresh(Add<CommandButton>("btnRefresh")),
      Picture1(Add<PictureBox>("Picture1")) {
    LayOutControls();
    ConnectEvents();
    RegisterMembers();
}

void Alarms::LayOutControls() {
    btnAck.SetTag("283");
    btnAckSelected.SetTag("284");
    btnRefresh.SetTag("166");
    btnAck.SetEnabled(false);
    btnAckSelected.SetEnabled(false);
    ListView1.SetTabIndex(0);
    btnAck.SetTabIndex(1);
    btnAckSelected.SetTabIndex(2);
    btnRefresh.SetTabIndex(3);
    // The fallback LED is a store for the icon loading, never shown.
    Picture1.SetPicture(FallbackLedPicture());
    Picture1.Move(kMargin, kMargin, 16 * kTwipsPerPixel, 16 * kTwipsPerPixel);
    Picture1.SetVisible(false);
    Move(0, 0, kDefaultWidth, kDefaultHeight);
    Resize_List_View(kDefaultWidth);
}

void Alarms::Resize_List_View(int32_t Width) {
    const int32_t width = std::max(Width, 3 * kButtonWidth + 2 * kGap + 2 * kMargin);
    const int32_t height = std::max(Height(), kMinimumListHeight + kButtonHeight + 3 * kMargin);
    Move(Left(), Top(), width, height);
    const int32_t buttonTop = height - kMargin - kButtonHeight;
    ListView1.Move(kMargin, kMargin, width - 2 * kMargin, buttonTop - 2 * kMargin);
    btnAck.Move(kMargin, buttonTop, kButtonWidth, kButtonHeight);
    btnAckSelected.Move(kMargin + kButtonWidth + kGap, buttonTop, kButtonWidth, kButtonHeight);
    btnRefresh.Move(width - kMargin - kButtonWidth, buttonTop, kButtonWidth, kButtonHeight);
    StretchLastColumn();
}

int32_t Alarms::Pixels(int32_t count) const {
    const auto& windows = services.Platform().windows;
    const double twipsPerPixel = windows ? windows->TwipsPerPixelX() : kTwipsPerPixel;
    return static_cast<int32_t>(count * twipsPerPixel);
}

void Alarms::FitColumns() {
    if (ListView1.ColumnCount() < 1) return;
    ListView1.SetColumnWidth(1, Pixels(kIconColumnPixels));
    for (int32_t column = 2; column <= ListView1.ColumnCount(); ++column) {
        const int32_t widest = std::max(TextWidth(ListView1.Column(column).text), WidestCell(column));
        ListView1.SetColumnWidth(column, widest + Pixels(kTextPaddingPixels));
    }
    StretchLastColumn();
}

// The widest cell text of a column in the last refresh; the panel fills the signal and state columns.
int32_t Alarms::WidestCell(int32_t column) const {
    switch (column) {
        case 2:
            return widestSignalText;
        case 3:
            return widestStateText;
        default:
            return 0;
    }
}

// The last column ends at the list's visible right edge (inside the border and the vertical scroll
// bar, less a small margin) when the columns are narrower than the list; wider contents keep their
// width and scroll.
void Alarms::StretchLastColumn() {
    const int32_t last = ListView1.ColumnCount();
    if (last < 2) return;
    int32_t others = 0;
    for (int32_t column = 1; column < last; ++column) others += ListView1.Column(column).width;
    const int32_t visible =
        ListView1.Width() - Pixels(2 * kBorderPixels + kScrollBarPixels) - kEdgeMargin - others;
    if (visible > ListView1.Column(last).width) ListView1.SetColumnWidth(last, visible);
}

}  // namespace trovane
