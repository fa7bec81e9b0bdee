// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_DIRECTORY_H
#define KIRV_XMPP_DIRECTORY_H

#include "core/values/kirv_failure.h"
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include <QCoreApplication>
#include <QList>
#include <functional>

class KirvXmppLink;

/// The entry of an account in the directory of its server.
///
/// An entry can only be written as a whole, so a change reads it, alters it and writes it back. Jobs are done one
/// after the other: two changes at a time would undo each other.
class KirvXmppDirectory {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppDirectory)

public:
    /// Alters the entry; false: it need not be written.
    using Change = std::function<bool(KirvXmppVCard &)>;
    /// Called once a job is done, with the entry as the server has it now, or why it failed.
    using Receiver = std::function<void(const KirvFailure &, const KirvXmppVCard &)>;

    /// \a link is not owned and lives longer.
    explicit KirvXmppDirectory(KirvXmppLink &link);

    void read(const Receiver &receiver);
    void change(const Change &change, const Receiver &receiver);

private:
    struct Job {
        Change change;
        Receiver receiver;
    };

    void add(const Job &job);
    void startNext();
    void write(const KirvXmppVCard &card);
    void finish(const KirvFailure &failure, const KirvXmppVCard &card);

    KirvXmppLink &link;
    QList<Job> jobs; ///< the first one is under way
};

#endif
