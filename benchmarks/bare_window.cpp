// SPDX-License-Identifier: LGPL-2.1-or-later
// The least that a program of Qt does to show the list of the client: a main window with the same rows and nothing
// behind it. kirv_window_benchmark compares the client with it.
// Usage: kirv_bare_window ROWS [--raster]    --raster: without the support for OpenGL that Qt gives to each window
#include <QApplication>
#include <QHeaderView>
#include <QIcon>
#include <QMainWindow>
#include <QTreeWidget>
#include <cstdlib>

namespace {

void fill(QTreeWidget *list, int rows)
{
    const QIcon icon(QStringLiteral(":/kirv/protocols/xmpp.svg"));
    QList<QTreeWidgetItem *> items;
    for (int i = 0; i < rows; ++i) {
        auto *item = new QTreeWidgetItem({ QStringLiteral("Account %1").arg(i), QStringLiteral("XMPP") });
        item->setCheckState(0, Qt::Unchecked);
        item->setIcon(1, icon);
        items << item;
    }
    list->addTopLevelItems(items);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[2], "--raster") == 0)
        QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    const QApplication application(argc, argv);
    QMainWindow window;
    auto *list = new QTreeWidget(&window);
    list->setHeaderLabels({ QStringLiteral("Account"), QStringLiteral("Protocol") });
    list->setAlternatingRowColors(true);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    fill(list, argc > 1 ? std::atoi(argv[1]) : 0);
    window.setCentralWidget(list);
    // As large as that of the client at its first start.
    const QFontMetrics metrics = window.fontMetrics();
    window.resize(120 * metrics.averageCharWidth(), 32 * metrics.lineSpacing());
    window.show();
    return QApplication::exec();
}
