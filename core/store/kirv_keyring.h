// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_KEYRING_H
#define KIRV_KEYRING_H

#include "core/store/kirv_secret_store.h"

#include <QList>
#include <QPointer>
#include <QTimer>
#include <memory>

class KirvKeyringWatcher;

/// The keyring of the desktop, whichever program offers the Secret Service: GNOME Keyring, KWallet, KeePassXC.
///
/// One operation is carried out at a time, so that at most one asks the user to unlock the keyring. One that does not
/// end in time keeps the place until it ends: those that follow fail at once.
class KirvKeyring : public KirvSecretStore {
    Q_OBJECT

public:
    /// Milliseconds.
    struct Limits {
        int operation = 10000; ///< of one operation while the keyring is unlocked
        int unlocking = 120000; ///< while it is locked, and the user may be asked
        int reply = 3000; ///< until a service that does not say its state is Silent
    };

    explicit KirvKeyring(QObject *parent = nullptr);
    explicit KirvKeyring(const Limits &limits, QObject *parent = nullptr);
    ~KirvKeyring() override;

    State state() const override;
    QString providerName() const override;
    void read(const KirvSecretItem &item, QObject *context, const Callback &callback) override;
    void write(const KirvSecretItem &item, const QString &secret, QObject *context, const Callback &callback) override;
    void remove(const KirvSecretItem &item, QObject *context, const Callback &callback) override;

private:
    enum Kind { Read, Write, Remove };
    struct Operation {
        Kind kind = Read;
        KirvSecretItem item;
        QString secret;
        QPointer<QObject> context;
        Callback callback;
        int repetitions = 0; ///< of a read
    };

    void enqueue(const Operation &operation);
    void receiveState();
    void startNext();
    void startJob();
    void jobFinished(int error, const QString &secret, const QString &text);
    void giveUp();
    void answer(Reply reply);
    void failWaiting(const Reply &reply);
    void stateKnown();
    void searchEnded(Outcome outcome);

    const Limits limits;
    std::unique_ptr<KirvKeyringWatcher> watcher;
    QList<Operation> waiting;
    std::unique_ptr<Operation> running; ///< null: none, or the job has run out of time
    std::unique_ptr<Reply> unproven; ///< the reply to the running one, which counts when the state is known
    bool hasLibrary = true; ///< through which the service is reached; false once it was missed
    bool hasJob = false; ///< one of the library runs, which must not be destroyed
    QTimer timeLimit;
};

#endif
