// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROTOCOL_BASE_H
#define KIRV_PROTOCOL_BASE_H

#include "host/kirv_arg.h"
#include "host/kirv_protocol.h"

#include <QList>
#include <QObject>
#include <memory>

class KirvConnection;
class QWidget;

/// Something a user can ask of one account beyond what every protocol offers (change the password on the
/// server, delete the account there). A value type.
struct KirvAccountAction {
    QString id; ///< unique within the protocol
    QString text; ///< a command, in title case, translated
    QString toolTip; ///< a sentence; may be empty
    bool needsConnection = true; ///< can be asked only while the account is connected
};

/// What a protocol plug-in derives its protocol from: the contract's operations that are not virtual lead to
/// the virtual operations here.
class KirvProtocolBase : public QObject, public KirvProtocol {
    Q_OBJECT

public:
    explicit KirvProtocolBase(QObject *parent = nullptr);
    ~KirvProtocolBase() override;

    /// Every presence in display order; the first is the default. Must not be empty.
    virtual QList<KirvPresence> presences() const = 0;
    /// The settings of a new account with their defaults.
    virtual QList<KirvField> accountSettings() const = 0;
    /// The blank fields of a directory entry; empty: the protocol has no directory.
    virtual QList<KirvField> directoryFields() const;
    /// A new, off-line connection for \a account; the caller owns it. \a account is not owned.
    virtual KirvConnection *createConnection(KirvAccountConnection *account) = 0;

    /// A core signal was broadcast; act on the names you know.
    virtual void handleCoreSignal(const QString &name, const QList<KirvArg> &args);
    /// Whether the protocol answers "register_account" by a registration window.
    virtual bool offersRegistration() const;

    /// The commands for \a account beyond the ordinary ones; the default is none.
    virtual QList<KirvAccountAction> accountActions(KirvAccountConnection *account) const;
    /// Runs the command; \a window is the parent for what is asked of the user. Nothing happens for an id
    /// that is not known.
    virtual void runAccountAction(const QString &id, KirvAccountConnection *account, QWidget *window);

    /// The directory operations of the contract, led to the account's connection. One that is not logged in
    /// answers with nothing.
    void publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields) override;
    void fetchPubdirInfo(KirvAccountConnection *account) override;
    void deletePubdirInfo(KirvAccountConnection *account) override;

    /// The connection of \a account, set by the core when it loads the account; null when there is none.
    KirvConnection *connectionOf(const KirvAccountConnection *account) const;
    void setConnectionOf(const KirvAccountConnection *account, KirvConnection *connection);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif
