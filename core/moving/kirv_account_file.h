// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_FILE_H
#define KIRV_ACCOUNT_FILE_H

#include "core/moving/kirv_moved_accounts.h"

#include <QCoreApplication>
#include <QString>

/// The file format for moving accounts between profiles and computers: JSON, see docs/export-format.md.
///
/// Reading and writing take a second or more when there is a pass phrase, on purpose: run them in a thread. Neither
/// touches a file.
class KirvAccountFile {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountFile)

public:
    /// Larger files are refused before they are read.
    static constexpr qint64 largestFile = 64 * 1024 * 1024;
    static constexpr int mostAccounts = 100000;

    struct Result {
        KirvMovedAccounts accounts;
        QString problem; ///< a sentence for the user; empty: the accounts are complete
        bool wrongPassPhrase = false; ///< the file has secrets that \a passPhrase does not open; problem says so
    };

    /// The bytes of a file with \a accounts. With an empty \a passPhrase no password and no secret setting is in it;
    /// otherwise these are encrypted with it. Empty, and \a problem says why, when there is not enough memory, the file
    /// would be too large, or no file can hold one of the accounts, see canHold().
    static QByteArray write(const KirvMovedAccounts &accounts, const QString &passPhrase, QString *problem);
    /// What \a bytes hold. Nothing but well-formed files of a known version is accepted. An empty \a passPhrase leaves
    /// the passwords out; one for a file that has none is a problem, as somebody may have taken them out.
    static Result read(const QByteArray &bytes, const QString &passPhrase);
    /// Whether \a bytes hold encrypted passwords; false, too, when they are no such file.
    static bool hasSecrets(const QByteArray &bytes);
    /// Whether a file can hold \a account: its texts are neither too long nor with characters that cannot be shown, and
    /// its picture is not too large.
    static bool canHold(const KirvMovedAccount &account);
};

#endif
