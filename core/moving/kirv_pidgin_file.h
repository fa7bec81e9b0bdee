// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PIDGIN_FILE_H
#define KIRV_PIDGIN_FILE_H

#include "core/moving/kirv_moved_accounts.h"

#include <QCoreApplication>

/// The accounts.xml of Pidgin, version 1.0, as that program (2.14) writes it. Only read, never written.
class KirvPidginFile {
    Q_DECLARE_TR_FUNCTIONS(KirvPidginFile)

public:
    static constexpr qint64 largestFile = 16 * 1024 * 1024;

    struct Result {
        KirvMovedAccounts accounts; ///< those of XMPP and IRC; leftOut names everything else with its reason
        QString problem; ///< a sentence for the user; empty: the file is well-formed
    };

    /// Where the file is in the home folder of the user: ~/.purple/accounts.xml, or the same in the folder that the
    /// environment variable PURPLEHOME names.
    static QString defaultPath();
    /// Whether \a bytes begin as such a file does.
    static bool isOne(const QByteArray &bytes);
    static Result read(const QByteArray &bytes);
};

#endif
