// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SERVER_TASK_H
#define KIRV_SERVER_TASK_H

#include "client/kirv_provider_list.h"
#include "core/accounts/kirv_account.h"
#include "core/protocol/kirv_server_request.h"

#include <QObject>
#include <QPointer>
#include <memory>

class KirvAccountCollection;
class KirvServerAssistant;

/// One server request from its first step to its result, which it brings into the accounts: what was registered is
/// added, a password that was changed is stored, what was deleted is removed.
///
/// It outlives its window: a request that cannot be taken back any more is followed to its end after the window was
/// closed. It destroys itself when there is nothing left to do.
class KirvServerTask : public QObject {
    Q_OBJECT

public:
    /// Takes ownership of \a request, one of \a protocol, which must not go before end(). \a account is the one that it
    /// is about; null for a registration. Nothing else is owned.
    KirvServerTask(std::unique_ptr<KirvServerRequest> request, KirvProtocolBase *protocol, KirvAccount *account,
                   KirvAccountCollection &accounts, QObject *parent);
    ~KirvServerTask() override;

    KirvProtocolBase *protocol() const { return requestProtocol; }
    KirvAccount *account() const { return requestAccount; }

    /// What the assistant offers as servers; call it before show().
    void setProviders(const QList<KirvProvider> &newProviders) { providers = newProviders; }
    /// Shows the assistant, over \a window when it is made here, and starts the request the first time.
    void show(QWidget *window);
    /// Ends the request and closes the window, at once.
    void end();
    bool hasEnded() const { return isOver; }

Q_SIGNALS:
    /// The request failed after its window was closed, \a text is for the user.
    void problemOccurred(const QString &text);
    /// The request succeeded after its window was closed, \a text says so to the user.
    void succeeded(const QString &text);

private:
    /// What is left to say after the accounts were changed.
    struct Outcome {
        QString text; ///< empty: everything is done
        QString command; ///< tries again; empty: that would not help
        bool isProblem = true;
    };

    void createAssistant(QWidget *window);
    void followRememberBox();
    void windowClosed();
    void failed(const KirvFailure &failure);
    void finish(const KirvServerRequest::Result &result);
    void applyResult();
    Outcome addAccount(const KirvLogin &login);
    Outcome storePassword(const QString &password);
    Outcome removeAccount();

    std::unique_ptr<KirvServerRequest> request; ///< null when it is over
    const QPointer<KirvProtocolBase> requestProtocol;
    const QPointer<KirvAccount> requestAccount;
    KirvAccountCollection &accounts;
    QPointer<KirvServerAssistant> assistant;
    QPointer<QWidget> parentWindow;
    QList<KirvProvider> providers;
    KirvServerRequest::Result result;
    bool isRemembered = false; ///< the password of the new account; what the window said last
    bool isFinished = false; ///< there is a result
    bool isOver = false;
};

#endif
