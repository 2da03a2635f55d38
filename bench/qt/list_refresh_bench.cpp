// The alarm panel's refresh on screen (off-screen platform) at 1,000 and 10,000 rows, against a
// plain QTreeWidget filled with the same rows and shown the same way, in the same run. A refresh is
// done when the view has handled it and painted.

#include <benchmark/benchmark.h>

#include <vector>

#include <QAbstractItemView>
#include <QIcon>
#include <QPalette>
#include <QTreeWidget>

#include "qt/form_view.h"
#include "qt/picture_pixmap.h"
#include "qt/qt_platform.h"
#include "qt/text.h"
#include "support/alarm_feed.h"
#include "support/qt_application.h"
#include "support/qt_frames.h"

namespace {

using trovane::bench::FedAlarmPanel;
using trovane::bench::ProcessAndPaint;

trovane::qt::TwipsScale ScaleOf(const trovane::qt::QtPlatform& platform) {
    return {platform.windows->TwipsPerPixelX(), platform.windows->TwipsPerPixelY()};
}

void QtPanelRefresh(benchmark::State& state) {
    trovane::testing::TestApplication();
    trovane::qt::QtPlatform platform = trovane::qt::MakeQtPlatform();
    FedAlarmPanel fed(static_cast<int32_t>(state.range(0)), platform.services);
    trovane::qt::FormView view(fed.panel, ScaleOf(platform));
    view.show();
    ProcessAndPaint(view);
    trovane::bench::TimeRefreshes(state, fed, [&] {
        fed.panel->RefreshAlarms();
        ProcessAndPaint(view);
    });
    const auto* list = qobject_cast<QAbstractItemView*>(view.WidgetOf("ListView1"));
    if (list == nullptr || list->model()->rowCount() != fed.Rows())
        state.SkipWithError("the view does not show every row");
    trovane::bench::ReleaseFocus();
}
BENCHMARK(QtPanelRefresh)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

// What a plain QTreeWidget is given: the rows the panel shows, read from it once.
struct PlainRow {
    int icon;
    QString signalText;
    QString stateText;
    bool ghosted;
};

void PlainTreeRefresh(benchmark::State& state) {
    trovane::testing::TestApplication();
    const trovane::qt::QtPlatform platform = trovane::qt::MakeQtPlatform();
    FedAlarmPanel fed(static_cast<int32_t>(state.range(0)));
    fed.Prepare();
    fed.panel->RefreshAlarms();
    const trovane::ListView& model = fed.panel->ListView1;
    std::vector<QIcon> icons(1);
    for (int32_t i = 1; i <= model.SmallIcons().Count(); ++i)
        icons.push_back(trovane::qt::IconOf(model.SmallIcons().Item(i)));
    std::vector<PlainRow> rows;
    for (int32_t i = 1; i <= model.ItemCount(); ++i) {
        const trovane::ListItem& item = model.Item(i);
        rows.push_back({item.SmallIcon(), trovane::qt::ToQString(item.SubItem(1)),
                        trovane::qt::ToQString(item.SubItem(2)), item.Ghosted()});
    }

    QTreeWidget tree;
    tree.setRootIsDecorated(false);
    tree.setHeaderLabels(
        {"", trovane::qt::ToQString(model.Column(2).text), trovane::qt::ToQString(model.Column(3).text)});
    const trovane::qt::TwipsScale scale = ScaleOf(platform);
    tree.resize(static_cast<int>(model.Width() / scale.x), static_cast<int>(model.Height() / scale.y));
    tree.show();
    ProcessAndPaint(tree);
    const QBrush grey = tree.palette().brush(QPalette::Disabled, QPalette::Text);
    // Filled as Qt's documentation shows (the items made first, then inserted at once) and shown as
    // the panel shows its rows: icons, ghosted rows greyed, the text columns fitted to their texts.
    for (auto _ : state) {
        tree.clear();
        QList<QTreeWidgetItem*> items;
        items.reserve(static_cast<qsizetype>(rows.size()));
        for (const PlainRow& row : rows) {
            auto* item = new QTreeWidgetItem({QString(), row.signalText, row.stateText});
            item->setIcon(0, icons[static_cast<size_t>(row.icon)]);
            if (row.ghosted)
                for (int column = 0; column < 3; ++column) item->setForeground(column, grey);
            items.append(item);
        }
        tree.addTopLevelItems(items);
        tree.resizeColumnToContents(1);
        tree.resizeColumnToContents(2);
        ProcessAndPaint(tree);
    }
    if (tree.topLevelItemCount() != fed.Rows()) state.SkipWithError("the tree does not show every row");
    state.counters["per_row"] = trovane::bench::TimePerRow(fed.Rows());
}
BENCHMARK(PlainTreeRefresh)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
