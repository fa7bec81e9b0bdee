// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_ACCOUNT_DELETION_H
#define KIRV_XMPP_ACCOUNT_DELETION_H

#include <QObject>
#include <QPointer>

class KirvFailure;
class KirvXmppConnection;
class QWidget;

/// Deletes an account on its server and then here, after asking twice.
class KirvXmppAccountDeletion : public QObject {
    Q_OBJECT

public:
    /// Asks over \a window. What is open goes with \a connection.
    static void start(KirvXmppConnection *connection, QWidget *window);

private:
    KirvXmppAccountDeletion(KirvXmppConnection *connection, QWidget *window);

    void askOnce();
    void askAgain();
    void ask(const QString &objectName, const QString &text, const QString &command,
             void (KirvXmppAccountDeletion::*next)());
    void deleteOnServer();
    void finish(const KirvFailure &failure);

    const QPointer<KirvXmppConnection> connection;
    const QPointer<QWidget> window;
    const QString login;
    const QString protocol;
};

#endif
