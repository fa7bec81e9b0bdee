// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_COMMAND_H
#define KIRV_PROFILE_COMMAND_H

#include "client/kirv_client_options.h"
#include "client/kirv_damaged_profile.h"

#include <QCoreApplication>

/// The commands for a profile that need no window, and what is printed of a damaged one where no window can be shown.
/// What was done goes to the standard output, everything else to the standard error output.
class KirvProfileCommand {
    Q_DECLARE_TR_FUNCTIONS(KirvProfileCommand)

public:
    /// The exit statuses of the program.
    enum Status {
        Success = 0,
        Refused = 1, ///< what was wanted is not possible; the text says why
        Damaged = 2 ///< the profile is damaged
    };

    explicit KirvProfileCommand(const KirvClientOptions &options);

    /// Does what the options want and gives the exit status.
    int run();
    /// Prints \a problem and what can be done about the damaged profile; gives Damaged.
    int reportDamage(const QString &problem);
    /// For a start without a display: Success when the profile can be opened, or prints why not.
    int checkBeforeStart();

private:
    int check();
    int restore();
    int recover();
    int refuse(const QString &text);
    int finish(bool isDone);
    void printCopies(FILE *stream) const;

    const KirvClientOptions options;
    KirvDamagedProfile profile;
};

#endif
