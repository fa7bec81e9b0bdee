// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LAYOUT_CATALOG_H
#define KIRV_LAYOUT_CATALOG_H

#include <QObject>
#include <QString>
#include <QStringList>

class QWidget;

/// The layouts behind KirvUILoader: those built into the program, overridden by files NAME.ui in a folder of
/// the user's own. One per process; KirvUILoader uses the one that lives, and the built-in layouts without it.
class KirvLayoutCatalog : public QObject {
    Q_OBJECT

public:
    explicit KirvLayoutCatalog(QObject *parent = nullptr);
    static KirvLayoutCatalog *instance();

    /// The names of the layouts that there are.
    static QStringList names();

    /// Where overrides are looked for; empty: nowhere. The folder need not exist.
    void setOverrideFolder(const QString &folder);

    /// Builds the layout and emits windowBuilt(); null for a name that is none of names(), never otherwise. The top
    /// widget gets the name of the layout as its object name, whatever the file calls it, and is a KirvLayoutDialog
    /// where it is a dialog. An override that cannot be used is reported and the built-in layout is built in its place.
    QWidget *build(const QString &name, QWidget *parent);

    /// Builds the layout as it comes with the program and emits nothing; null for a name that is none of names().
    static QWidget *buildBuiltIn(const QString &name, QWidget *parent);

    /// What a widget tree lacks to serve as the layout \a name, one sentence each; empty when it serves.
    static QStringList missingIn(const QString &name, const QWidget *top);

Q_SIGNALS:
    /// The layout \a name was built with the top widget \a top; nothing is connected to its widgets yet. Connections
    /// made now are older than those of the code that drives the window, so their slots run first.
    void windowBuilt(const QString &name, QWidget *top);
    /// An override was not used; \a text says which and why, to the user.
    void overrideRejected(const QString &name, const QString &text);

private:
    QString overrideFile(const QString &name) const;
    QWidget *buildOverride(const QString &name, QWidget *parent, QStringList *reasons) const;

    QString overrideFolder;
};

#endif
