// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_server_task.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_secret_texts.h"
#include "client/kirv_server_assistant.h"
#include "client/kirv_window_front.h"
#include "core/accounts/kirv_account_collection.h"

KirvServerTask::KirvServerTask(std::unique_ptr<KirvServerRequest> newRequest, KirvProtocolBase *protocol,
                               KirvAccount *account, KirvAccountCollection &accounts, QObject *parent)
    : QObject(parent)
    , request(std::move(newRequest))
    , requestProtocol(protocol)
    , requestAccount(account)
    , accounts(accounts)
{
    request->setParent(this); // below its owner in the tree of objects, where it can be found
    connect(request.get(), &KirvServerRequest::failed, this, &KirvServerTask::failed);
    connect(request.get(), &KirvServerRequest::succeeded, this, &KirvServerTask::finish);
}

KirvServerTask::~KirvServerTask()
{
    request.reset();
    if (!assistant)
        return;
    assistant->disconnect(this);
    delete assistant;
}

void KirvServerTask::show(QWidget *window)
{
    const bool isFirst = !assistant;
    if (isFirst)
        createAssistant(window);
    if (isFirst && request)
        request->start();
    kirvBringToFront(assistant);
}

void KirvServerTask::createAssistant(QWidget *window)
{
    parentWindow = window;
    assistant = new KirvServerAssistant(request.get(), window);
    assistant->setProviders(providers);
    assistant->setSecrets(accounts.secrets());
    followRememberBox();
    // A dialogue about one account belongs to the window that it was opened from.
    if (requestAccount && window)
        assistant->setWindowModality(Qt::WindowModal);
    connect(assistant, &QDialog::finished, this, &KirvServerTask::windowClosed);
    connect(assistant, &KirvServerAssistant::outcomeCommandTriggered, this, &KirvServerTask::applyResult);
    // With its parent, as a rule. The pointer to a widget is cleared later than this.
    connect(assistant, &QObject::destroyed, this, [this] {
        assistant.clear();
        windowClosed();
    });
}

/// The window may be destroyed before there is a result.
void KirvServerTask::followRememberBox()
{
    if (isFinished)
        return; // the window only says what is left to say
    isRemembered = assistant->isPasswordToBeRemembered();
    connect(assistant, &KirvServerAssistant::rememberingChanged, this,
            [this](bool isChecked) { isRemembered = isChecked; });
}

void KirvServerTask::windowClosed()
{
    const bool canEnd = isFinished || !request || request->cancel();
    if (canEnd)
        end();
}

void KirvServerTask::end()
{
    if (isOver)
        return;
    isOver = true;
    request.reset();
    if (assistant) {
        assistant->disconnect(this);
        assistant->hide();
        assistant->deleteLater();
    }
    deleteLater();
}

void KirvServerTask::failed(const KirvFailure &failure)
{
    if (assistant && assistant->isVisible())
        return; // it is shown there
    const QString name = requestAccount ? kirvPlainName(requestAccount->displayName()) : QString();
    //: %1 = name of an account, %2 = one or more sentences about it
    Q_EMIT problemOccurred(name.isEmpty() ? failure.text() : tr("%1: %2").arg(name, failure.text()));
    end();
}

void KirvServerTask::finish(const KirvServerRequest::Result &newResult)
{
    result = newResult;
    isFinished = true;
    applyResult();
}

void KirvServerTask::applyResult()
{
    const QPointer<KirvServerTask> alive(this);
    Outcome outcome;
    switch (result.kind) {
    case KirvServerRequest::Result::AccountRegistered:
        outcome = addAccount(result.account);
        break;
    case KirvServerRequest::Result::PasswordChanged:
        outcome = storePassword(result.password);
        break;
    case KirvServerRequest::Result::AccountDeleted:
        outcome = removeAccount();
        break;
    }
    if (!alive || isOver)
        return;
    if (outcome.text.isEmpty()) {
        end();
        return;
    }
    if (!outcome.isProblem && (!assistant || !assistant->isVisible())) {
        Q_EMIT succeeded(outcome.text);
        end();
        return;
    }
    if (!assistant)
        createAssistant(parentWindow);
    assistant->showOutcome(outcome.text, outcome.command, outcome.isProblem);
    assistant->show();
}

KirvServerTask::Outcome KirvServerTask::addAccount(const KirvLogin &login)
{
    if (login.id.isEmpty())
        return { tr("The server accepted the form. Add the account with the login that the server gives you."),
                 QString() };
    KirvAccountRecord record;
    record.key = { login.id, requestProtocol->getName() };
    record.alias = login.id;
    record.password = login.password;
    record.rememberPassword = isRemembered;
    record.defaultPresence = record.lastPresence = requestProtocol->presences().first().getId();
    record.settings = kirvStoredValues(login.settings);
    record.trustedCertificate = QString::fromLatin1(login.trustedCertificate.toHex());
    if (accounts.create(record, requestProtocol))
        return Outcome();
    const bool exists = accounts.find(record.key);
    //: %1 = login of an account, %2 = the reason, a sentence
    return { tr("The account %1 is registered on the server, but it was not added here. %2")
                 .arg(kirvPlainName(login.id), accounts.lastError()),
             exists ? QString() : tr("Add Again") };
}

KirvServerTask::Outcome KirvServerTask::storePassword(const QString &password)
{
    const bool isStored = !requestAccount || requestAccount->acceptServerPassword(password);
    if (!requestAccount)
        return Outcome();
    const QString name = kirvPlainName(requestAccount->displayName());
    if (isStored) {
        //: %1 = name of an account
        QString text = tr("The password of the account %1 is changed on its server.").arg(name);
        if (requestAccount->record().rememberPassword && KirvSecretTexts(accounts.secrets()).isRememberingUnsafe())
            text += QLatin1Char(' ') + KirvSecretTexts::keptInFile();
        return { text, QString(), false };
    }
    //: %1 = name of an account, %2 = the reason, a sentence
    return { tr("The account %1 has the new password on its server. The password is used until the program ends, but "
                "it is not stored. %2")
                 .arg(name, accounts.lastError()),
             tr("Store Again") };
}

KirvServerTask::Outcome KirvServerTask::removeAccount()
{
    const QString name = requestAccount ? kirvPlainName(requestAccount->displayName()) : QString();
    if (!requestAccount || accounts.remove(requestAccount))
        return Outcome();
    //: %1 = name of an account, %2 = the reason, a sentence
    return {
        tr("The account %1 is deleted on its server, but it was not removed here. %2").arg(name, accounts.lastError()),
        tr("Remove Again")
    };
}
