// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_OPTIONS_H
#define KIRV_ACCOUNTS_OPTIONS_H

#include "client/kirv_accounts_request.h"
#include "client/kirv_client_options.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the command line says behind "kirv accounts".
struct KirvAccountsOptions {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountsOptions)

public:
    KirvAccountsRequest::Command command = KirvAccountsRequest::List;
    QStringList names; ///< of accounts
    QString file; ///< to write or to read; "-": the standard output or input
    bool isJson = false; ///< what is printed
    bool overwrites = false; ///< a file that is there
    bool withPasswords = false; ///< of an export
    bool withoutPasswords = false; ///< of an import
    bool replaces = false;
    bool isTrial = false;
    QString passPhraseFile; ///< empty: another place
    int passPhraseDescriptor = -1; ///< -1: another place
    KirvClientOptions client; ///< profile and plug-ins

    /// Whether \a arguments, the program's name first, are a command for accounts.
    static bool areMeant(const QStringList &arguments);
    /// The same for an import.
    static bool areForImport(const QStringList &arguments);
    /// What \a arguments say. Prints and ends the program for --help and what it does not understand.
    static KirvAccountsOptions fromCommandLine(const QStringList &arguments);
};

#endif
