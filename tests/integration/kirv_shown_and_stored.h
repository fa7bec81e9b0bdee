// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SHOWN_AND_STORED_H
#define KIRV_SHOWN_AND_STORED_H

#include "tests/integration/kirv_client_windows.h"

#include <QColor>
#include <QMap>
#include <QString>

/// Compares what the windows of a client show with what its store holds, which is read by statements of the test's own
/// over a connection of their own.
class KirvShownAndStored {
public:
    explicit KirvShownAndStored(KirvClientWindows &windows);

    /// What a window shows otherwise than it is stored, in words; empty: nothing. Opens the edit windows of the
    /// accounts \a edited, or of all, one after the other.
    QString difference(const QStringList &edited = QStringList());
    /// The same of the open edit window of an account in which nothing was typed.
    QString differenceIn(const QWidget *window, const QString &id);
    /// Everything that is stored.
    QString stored() const;

private:
    struct Account {
        QMap<QString, QString> values; ///< by column
        QMap<QString, QString> settings; ///< with the password under an empty id
    };

    bool read();
    QString pageDifference() const;
    QString rowDifference(const QTreeWidgetItem *row) const;
    QString selectorDifference() const;
    QString titleDifference() const;
    QString statesDifference() const;
    QString editDifference(const QString &id);
    QString windowDifference(const QWidget *window, const QString &id) const;
    QString fieldDifference(const QWidget *window, const Account &account, bool hasUnstoredPassword) const;
    QString pictureDifference(const QWidget *window, const QString &avatar) const;
    /// As the picker shows it; the pictures of the test have one colour.
    static QColor shownColour(const QWidget *window);

    KirvClientWindows &windows;
    QMap<QString, Account> accounts; ///< by id
    QString mainAccount; ///< id
    QColor colourOfNone;
};

#endif
