// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_COMMAND_H
#define KIRV_ACCOUNTS_COMMAND_H

#include "client/kirv_accounts_options.h"
#include "client/kirv_accounts_request.h"

#include <QCoreApplication>
#include <QString>

/// One of the commands for accounts, from the command line to what is printed. The program that has the profile open
/// does it where there is one; otherwise it is done here, and nothing logs in. Files are read and written here in any
/// case, with the rights and in the folder of whoever typed the command.
class KirvAccountsCommand {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountsCommand)

public:
    explicit KirvAccountsCommand(const KirvAccountsOptions &options);

    /// Does what the options want and gives the exit status.
    int run();

private:
    bool prepare();
    bool prepareExport();
    bool prepareImport();
    bool readPassPhrase(bool isNew);
    bool refuse(const QString &problem, KirvAccountsReply::Status status = KirvAccountsReply::Refused);
    void perform();
    bool performHere();
    bool performThere();
    bool canBeRead();
    void performOnNothing();
    void writeFile();
    int print();
    void printText() const;

    const KirvAccountsOptions options;
    KirvAccountsRequest request;
    KirvAccountsReply reply;
    bool isRunning = false; ///< a program, with the profile
};

#endif
