// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_KEYRING_WATCHER_H
#define KIRV_KEYRING_WATCHER_H

#include "core/store/kirv_secret_store.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>
#include <functional>
#include <memory>

class KirvBusProbe;

/// Finds out over D-Bus who keeps the secrets of the session, and whether they are locked, and follows both. Private to
/// the store.
///
/// Only calls without waiting are made. A service that is installed but does not run is started, once; one that ends
/// later is not. A bus that does not answer is
/// Silent like a service that does not; it is connected in a thread, and only when it answers.
class KirvKeyringWatcher : public QObject {
    Q_OBJECT

public:
    /// Milliseconds until a service that does not reply is Silent.
    static constexpr int defaultReplyTimeout = 3000;

    explicit KirvKeyringWatcher(int replyTimeout = defaultReplyTimeout, QObject *parent = nullptr);
    ~KirvKeyringWatcher() override;

    /// Unavailable at once where there is no session bus; otherwise Unknown until changed().
    void start();
    KirvSecretStore::State state() const { return current; }
    QString providerName() const { return provider; }

    /// Looks for the item \a key in all collections of the service; searchEnded() follows. One search at a time.
    void search(const QString &key);
    /// searchEnded() does not follow.
    void cancelSearch();

public Q_SLOTS:
    /// Requests the state of the service again; refreshed() follows in any case.
    void refresh();

Q_SIGNALS:
    void changed();
    /// Another process offers the service now, or none does.
    void replaced();
    /// What refresh() has requested is known: the service has replied, has gone, or does not reply in time.
    void refreshed();
    /// Done: the item is there, unlocked; Refused: it would have to be unlocked; Missing: no collection has it; Failed:
    /// the service does not say.
    void searchEnded(KirvSecretStore::Outcome outcome);

private Q_SLOTS:
    void busEnded();
    void onNameOwnerChanged(const QString &name, const QString &oldOwner, const QString &newOwner,
                            const QDBusMessage &message);

private:
    using Handler = std::function<void(const QDBusMessage &reply)>;

    void connectToBus();
    void connected();
    void setOwner(const QString &newOwner);
    void follow(bool on);
    void finish(KirvSecretStore::State state);
    void requestOwner();
    void startService();
    void requestProvider();
    void requestDefaultCollection();
    void requestLockState(const QString &collection);
    void set(KirvSecretStore::State state);
    void endSearch(KirvSecretStore::Outcome outcome);
    void call(const QDBusMessage &message, const Handler &handler);
    void callWhile(const quint64 &number, const QDBusMessage &message, const Handler &handler);
    QDBusMessage callToOwner(const QString &path, const char *interface, const char *method) const;

    const QString connectionName;
    std::unique_ptr<KirvBusProbe> probe; ///< until the bus has answered
    std::unique_ptr<QThread> connecting; ///< what connects to it
    bool isStartRequested = false; ///< of the service
    QString owner; ///< the unique name of the service; empty: there is none
    QString provider;
    KirvSecretStore::State current = KirvSecretStore::Unknown;
    quint64 round = 0; ///< replies of an earlier one do not count
    QTimer replyTimeout;
    quint64 searches = 0; ///< replies of an earlier one do not count
    QTimer searchTimeout; ///< runs while one does
    QTimer lockedRefresh; ///< while it is locked: not every unlocking is announced
};

#endif
