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
    ~KirvLayoutCatalog() override;
    static KirvLayoutCatalog *instance();

    /// The names of the layouts that there are.
    static QStringList names();

    /// Where overrides are looked for; empty: nowhere. The folder need not exist.
    void setOverrideFolder(const QString &folder);

    /// Builds the layout; null for a name that is none of names(), never otherwise. An override that cannot be
    /// used is reported and the built-in layout is built in its place.
    QWidget *build(const QString &name, QWidget *parent);

    /// Builds the layout as it comes with the program; null for a name that is none of names().
    static QWidget *buildBuiltIn(const QString &name, QWidget *parent);

    /// What a widget tree lacks to serve as the layout \a name, one sentence each; empty when it serves.
    static QStringList missingIn(const QString &name, const QWidget *top);

Q_SIGNALS:
    /// An override was not used; \a text says which and why, to the user.
    void overrideRejected(const QString &name, const QString &text);

private:
    class Private;
    Private *d;
};

#endif
