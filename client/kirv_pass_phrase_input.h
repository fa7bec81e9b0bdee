// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PASS_PHRASE_INPUT_H
#define KIRV_PASS_PHRASE_INPUT_H

#include <QCoreApplication>
#include <QString>

struct KirvAccountsOptions;

/// Where the pass phrase of a file comes from on the command line: a file descriptor, a file, or the terminal without
/// an echo. Arguments and environment variables can be read by others, so it never comes from there.
class KirvPassPhraseInput {
    Q_DECLARE_TR_FUNCTIONS(KirvPassPhraseInput)

public:
    explicit KirvPassPhraseInput(const KirvAccountsOptions &options);

    /// Whether the command line says where it comes from.
    static bool isNamed(const KirvAccountsOptions &options);
    /// The pass phrase; typed twice on the terminal when \a isNew. Empty when there is none, or none that something new
    /// can be encrypted with, and problem() says why.
    QString read(bool isNew);
    /// A sentence for the user.
    QString problem() const { return text; }

private:
    /// What can be wrong with one place, a sentence each.
    struct Problems {
        QString unreadable, tooLong, missing;
    };

    QString fail(const QString &problem);
    QString readAny(bool isNew);
    QString firstLine(int descriptor, const Problems &problems);
    QString fromDescriptor(int descriptor);
    QString fromFile(const QString &path);
    QString fromTerminal(bool isNew);

    const KirvAccountsOptions &options;
    QString text;
};

#endif
