// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_WINDOW_P_H
#define KIRV_ACCOUNT_WINDOW_P_H

#include "host/kirv_ui_loader.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QString>

/// The window that one controller drives. From all of them together the controller of a window is found, also while
/// the window is still being loaded and only the client's UI generator has a pointer to it.
///
/// The controller owns it. GUI thread only.
class KirvAccountWindow {
public:
    explicit KirvAccountWindow(QObject *controller)
        : controller(controller)
        , next(first())
    {
        first() = this;
    }

    ~KirvAccountWindow()
    {
        KirvAccountWindow **link = &first();
        while (*link && *link != this)
            link = &(*link)->next;
        if (*link)
            *link = next;
    }

    /// Loads the layout called \a layout. Null when its top widget is no dialog. Other windows may be loaded meanwhile.
    QDialog *load(const QString &layout)
    {
        KirvAccountWindow *const interrupted = loading();
        loading() = this;
        window = KirvUILoader::getInstance()->loadUI(layout, QString());
        loading() = interrupted;
        return get();
    }

    /// The loaded window, null before that and as soon as the window's destructor has begun. (A guarded pointer alone
    /// is cleared only after the window has emitted destroyed().)
    QDialog *get() const { return qobject_cast<QDialog *>(window.data()); }

    /// The controller that drives \a widget, null when none does. While a window is being loaded, a dialog without a
    /// parent that no controller drives is taken for it.
    static QObject *controllerOf(const QWidget *widget)
    {
        if (!widget)
            return nullptr;
        for (const KirvAccountWindow *candidate = first(); candidate; candidate = candidate->next) {
            if (candidate->get() == widget)
                return candidate->controller;
        }
        return loading() && isTopLevelDialog(widget) ? loading()->controller : nullptr;
    }

    /// Whether \a controller exists; the pointer is only compared.
    static bool hasController(const QObject *controller)
    {
        const KirvAccountWindow *candidate = first();
        while (candidate && candidate->controller != controller)
            candidate = candidate->next;
        return candidate;
    }

private:
    Q_DISABLE_COPY(KirvAccountWindow)

    /// Follows the pointer only when the widget exists.
    static bool isTopLevelDialog(const QWidget *widget)
    {
        return QApplication::topLevelWidgets().contains(const_cast<QWidget *>(widget))
            && qobject_cast<const QDialog *>(widget) && !widget->parentWidget();
    }

    /// The head of the list of all.
    static KirvAccountWindow *&first()
    {
        static KirvAccountWindow *head = nullptr;
        return head;
    }

    /// The one that is being loaded, of those loaded inside each other the innermost; null when none is.
    static KirvAccountWindow *&loading()
    {
        static KirvAccountWindow *innermost = nullptr;
        return innermost;
    }

    QObject *const controller;
    QPointer<QWidget> window;
    KirvAccountWindow *next;
};

#endif
