// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DAMAGED_PROFILE_H
#define KIRV_DAMAGED_PROFILE_H

#include "core/store/kirv_profile_rescue.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

/// What can be done about a damaged profile, with the sentences about it: the rescue window and the command line show
/// them.
class KirvDamagedProfile {
    Q_DECLARE_TR_FUNCTIONS(KirvDamagedProfile)

public:
    explicit KirvDamagedProfile(const QString &folder);

    /// Finds out what is wrong; writes nothing.
    KirvProfileState check() { return rescue.check(); }
    /// The copies that are whole, the newest first.
    QList<KirvProfileCopy> copies() const { return rescue.copies(); }
    /// When the copy was made, for the user, in the local time.
    static QString dateText(const KirvProfileCopy &copy);

    // Each gives false when nothing was done. The database that was there is kept.
    bool restore(const KirvProfileCopy &copy);
    bool recover();
    bool startFresh();
    /// What the last of these has done, and where the database that was there is kept; or why nothing was done. Some
    /// sentences and lines of plain text.
    QString outcome() const { return text; }

private:
    bool finish(bool isDone, const QStringList &lines);

    KirvProfileRescue rescue;
    QString text;
};

#endif
