// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_keyboard.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QTabBar>

namespace {

bool takesTab(const QWidget *widget)
{
    return widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy();
}

bool contains(const QWidget *container, const QWidget *widget)
{
    return container == widget || container->isAncestorOf(widget);
}

/// The widgets in \a container that take Tab, in the window's tab order.
QList<QWidget *> tabStops(QWidget *container)
{
    QList<QWidget *> stops;
    QWidget *widget = container;
    do {
        if (contains(container, widget) && takesTab(widget))
            stops.append(widget);
        widget = widget->nextInFocusChain();
    } while (widget != container);
    return stops;
}

QWidget *predecessorOf(QWidget *inserted)
{
    QWidget *parent = inserted->parentWidget();
    const QList<QWidget *> siblings = tabStops(parent);
    for (auto stop = siblings.crbegin(); stop != siblings.crend(); ++stop) {
        if (!contains(inserted, *stop))
            return *stop;
    }
    for (QWidget *widget = parent->previousInFocusChain(); widget != parent; widget = widget->previousInFocusChain()) {
        if (takesTab(widget) && !contains(inserted, widget))
            return widget;
    }
    return nullptr;
}

/// The texts in the window of \a widget that may hold a mnemonic.
QStringList captionsAround(const QWidget *widget)
{
    QStringList captions;
    const QList<QWidget *> others = widget->window()->findChildren<QWidget *>();
    for (const QWidget *other : others) {
        if (contains(widget, other))
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(other)) {
            if (label->buddy())
                captions += label->text();
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(other)) {
            captions += button->text();
        } else if (const auto *box = qobject_cast<const QGroupBox *>(other)) {
            captions += box->title();
        } else if (const auto *bar = qobject_cast<const QTabBar *>(other)) {
            for (int tab = 0; tab < bar->count(); ++tab)
                captions += bar->tabText(tab);
        }
    }
    return captions;
}

/// The position of the first letter that is not taken, at the start of a word if there is one; -1 for none.
int mnemonicPosition(const QString &plain, const QSet<QChar> &taken)
{
    int inside = -1;
    for (int i = 0; i < plain.size(); ++i) {
        const bool free = plain.at(i).isLetterOrNumber() && !taken.contains(plain.at(i).toUpper());
        if (free && (i == 0 || plain.at(i - 1).isSpace()))
            return i;
        if (free && inside < 0)
            inside = i;
    }
    return inside;
}

} // namespace

void kirvPlaceInTabOrder(QWidget *inserted)
{
    if (!inserted->parentWidget() || inserted->isWindow())
        return;
    QWidget *last = predecessorOf(inserted);
    const QList<QWidget *> stops = tabStops(inserted);
    for (QWidget *stop : stops) {
        if (last)
            QWidget::setTabOrder(last, stop);
        last = stop;
    }
}

QSet<QChar> kirvMnemonicsAround(const QWidget *widget)
{
    QSet<QChar> taken;
    const QStringList captions = captionsAround(widget);
    for (const QString &caption : captions) {
        // The text of the sequence ends with the key, as in "Alt+S".
        const QString keys = QKeySequence::mnemonic(caption).toString(QKeySequence::PortableText);
        if (!keys.isEmpty())
            taken.insert(keys.back().toUpper());
    }
    return taken;
}

QString kirvWithMnemonic(const QString &plain, QSet<QChar> *taken)
{
    const QString escapedAmpersand = QStringLiteral("&&");
    const int position = mnemonicPosition(plain, *taken);
    if (position < 0)
        return QString(plain).replace(QLatin1Char('&'), escapedAmpersand);
    taken->insert(plain.at(position).toUpper());
    return plain.left(position).replace(QLatin1Char('&'), escapedAmpersand) + QLatin1Char('&')
        + plain.mid(position).replace(QLatin1Char('&'), escapedAmpersand);
}
