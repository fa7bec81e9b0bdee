// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WINDOW_COMPANIONS_H
#define KIRV_WINDOW_COMPANIONS_H

#include "client/kirv_account_link.h"
#include "client/kirv_accounts_page_companion.h"
#include "core/values/kirv_account_key.h"

#include <QList>
#include <QObject>
#include <QPointer>

class KirvAddWindowCompanion;
class KirvEditWindowCompanion;
class KirvLayoutCatalog;
class QWidget;

/// Gives each window that is built from a layout its companion, as soon as it is built.
class KirvWindowCompanions : public QObject {
    Q_OBJECT

public:
    /// \a layouts is not owned, and outlives this.
    KirvWindowCompanions(KirvLayoutCatalog &layouts, const KirvAccountsPageCompanion::Environment &environment,
                         QObject *parent = nullptr);

    /// That of the page; null before the page is built and after it is gone.
    KirvAccountsPageCompanion *page() const;
    /// The account \a key could not be created. Whether an add window says why.
    bool takeRefusal(const KirvAccountKey &key, const QString &reason) const;
    /// Closes the windows that use the protocol: afterwards nothing follows a pointer to it.
    void closeWindowsOf(const QString &protocol);
    /// Closes the windows in which the user has entered nothing.
    void closeUnchanged();

Q_SIGNALS:
    /// The user has put \a link onto the page.
    void linkTaken(const KirvAccountLink &link);

private:
    void add(const QString &layout, QWidget *top);

    const KirvAccountsPageCompanion::Environment environment;
    QPointer<KirvAccountsPageCompanion> pageCompanion;
    QList<QPointer<KirvEditWindowCompanion>> editWindows;
    QList<QPointer<KirvAddWindowCompanion>> addWindows;
};

#endif
