// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_ui_loader.h"

#include "core/ui/kirv_keyboard.h"
#include "core/ui/kirv_layout_catalog.h"

#include <QDebug>
#include <QDialog>
#include <QVBoxLayout>

namespace {

QWidget *build(const QString &name, QWidget *parent)
{
    KirvLayoutCatalog *catalog = KirvLayoutCatalog::instance();
    QWidget *top = catalog ? catalog->build(name, parent) : KirvLayoutCatalog::buildBuiltIn(name, parent);
    if (!top)
        qWarning() << "There is no layout named" << name;
    return top;
}

/// Makes \a widget fill \a container, below what its layout already holds.
void fill(QWidget *container, QWidget *widget)
{
    if (!container->layout()) {
        auto *layout = new QVBoxLayout(container);
        layout->setContentsMargins(0, 0, 0, 0);
    }
    container->layout()->addWidget(widget);
}

} // namespace

KirvUILoader *KirvUILoader::getInstance()
{
    static KirvUILoader loader;
    return &loader;
}

// A name that the program has no layout for is a mistake in the program; an empty widget of the right class lets
// the caller that looks up its children fail as it would with a layout that lacks them.
QWidget *KirvUILoader::loadUI(const QString &name, QWidget *parent, const QString &)
{
    QWidget *top = build(name, parent);
    if (!top)
        top = new QWidget(parent);
    if (parent && !top->isWindow())
        fill(parent, top);
    return top;
}

QWidget *KirvUILoader::loadUI(const QString &name, const QString &)
{
    QWidget *top = build(name, nullptr);
    return top ? top : new QDialog;
}

void KirvUILoader::insertWidget(QWidget *placeholder, QWidget *widget)
{
    if (!placeholder || !widget || widget == placeholder || widget->isAncestorOf(placeholder))
        return;
    fill(placeholder, widget);
    kirvPlaceInTabOrder(widget);
}
