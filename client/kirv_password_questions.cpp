// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_password_questions.h"

#include "client/kirv_password_dialog.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"

#include <algorithm>

KirvPasswordQuestions::KirvPasswordQuestions(KirvAccountCollection &accounts, QWidget *window)
    : QObject(window)
    , accounts(accounts)
    , window(window)
{
    connect(&accounts, &KirvAccountCollection::passwordNeeded, this, &KirvPasswordQuestions::ask);
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this,
            [this](const KirvAccount *account) { withdraw(account->key()); });
}

void KirvPasswordQuestions::ask(const KirvAccount *account)
{
    const bool isOpenNow = dialog && dialog->key() == account->key();
    if (isOpenNow || waiting.contains(account->key()))
        return;
    waiting << account->key();
    openNext();
}

void KirvPasswordQuestions::closeQuestionsOf(const QString &protocol)
{
    const auto isOfProtocol = [&protocol](const KirvAccountKey &key) { return key.protocol == protocol; };
    waiting.erase(std::remove_if(waiting.begin(), waiting.end(), isOfProtocol), waiting.end());
    if (dialog && isOfProtocol(dialog->key()))
        dialog->reject();
}

void KirvPasswordQuestions::withdraw(const KirvAccountKey &key)
{
    waiting.removeAll(key);
    if (dialog && dialog->key() == key)
        dialog->reject();
}

void KirvPasswordQuestions::openNext()
{
    while (!dialog && !waiting.isEmpty()) {
        const KirvAccount *account = accounts.find(waiting.takeFirst());
        if (!account)
            continue;
        dialog = new KirvPasswordDialog(*account, window);
        connect(dialog, &QDialog::finished, this, &KirvPasswordQuestions::answered);
        dialog->open();
    }
}

void KirvPasswordQuestions::answered(int result)
{
    KirvPasswordDialog *finished = dialog;
    dialog = nullptr;
    finished->deleteLater();
    KirvAccount *account = accounts.find(finished->key());
    if (result == QDialog::Accepted && account && finished->isForNow())
        account->providePasswordForNow(finished->password());
    else if (result == QDialog::Accepted && account)
        account->providePassword(finished->password(), finished->isToBeRemembered());
    openNext();
}
