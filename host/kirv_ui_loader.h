// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_UI_LOADER_H
#define KIRV_UI_LOADER_H

#include <QString>

class QWidget;

/// The client's UI generator: builds windows from the layouts that it holds by name.
///
/// Every layout handed out has the children, of the names and classes, that the page and the
/// dialogs look up.
class KirvUILoader {
public:
    /// The UI generator of this process; not owned by the caller.
    static KirvUILoader *getInstance();

    /// Builds the layout \a name as a child of \a parent, which then owns it, and returns its top
    /// widget. The last argument is not used: pass a null string.
    QWidget *loadUI(const QString &name, QWidget *parent, const QString &variant);
    /// Builds the layout \a name as a window whose top widget is a QDialog, owned by the caller.
    /// The last argument is not used: pass a null string.
    QWidget *loadUI(const QString &name, const QString &variant);
    /// Puts \a widget into the empty \a placeholder of a loaded layout, filling it. The placeholder
    /// becomes its parent and owner.
    static void insertWidget(QWidget *placeholder, QWidget *widget);
};

#endif
