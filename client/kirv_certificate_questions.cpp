// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_certificate_questions.h"

#include "client/kirv_certificate_question.h"
#include "client/kirv_window_front.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"

namespace {

KirvServerCertificate refusedCertificate(const KirvAccount &account)
{
    const bool isRefused =
        account.isLoaded() && account.record().enabled && account.connection()->state() == KirvConnection::Offline;
    return isRefused ? account.connection()->refusedCertificate() : KirvServerCertificate();
}

/// As far as it is known: while the server does not show it, that is its fingerprint.
KirvServerCertificate trustedCertificate(const KirvAccount &account)
{
    KirvServerCertificate certificate =
        account.isLoaded() ? account.connection()->pinnedCertificate() : KirvServerCertificate();
    if (certificate.isNull())
        certificate.fingerprint = account.trustedCertificate();
    return certificate;
}

} // namespace

KirvCertificateQuestions::KirvCertificateQuestions(KirvAccountCollection &accounts, QWidget *window)
    : QObject(window)
    , accounts(accounts)
    , window(window)
{
    connect(&accounts, &KirvAccountCollection::accountAdded, this,
            [this](const KirvAccount *account) { added.insert(account->key()); });
    connect(&accounts, &KirvAccountCollection::accountChanged, this, &KirvCertificateQuestions::accountChanged);
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this,
            [this](const KirvAccount *account) { withdraw(account->key()); });
}

void KirvCertificateQuestions::show(const KirvAccount *account)
{
    const KirvServerCertificate refused = refusedCertificate(*account);
    const KirvServerCertificate certificate = refused.isNull() ? trustedCertificate(*account) : refused;
    if (question && question->key() == account->key()) {
        kirvBringToFront(question);
        return;
    }
    if (question || certificate.isNull())
        return;
    const auto kind = refused.isNull() ? KirvCertificateQuestion::ToForget : KirvCertificateQuestion::ToTrust;
    question = new KirvCertificateQuestion(kind, *account, certificate, window);
    connect(question, &QDialog::finished, this, &KirvCertificateQuestions::finish);
    question->open();
}

void KirvCertificateQuestions::closeQuestionsOf(const QString &protocol)
{
    if (question && question->key().protocol == protocol)
        question->reject();
}

void KirvCertificateQuestions::withdraw(const KirvAccountKey &key)
{
    added.remove(key);
    if (question && question->key() == key)
        question->reject();
}

void KirvCertificateQuestions::accountChanged(const KirvAccount *account)
{
    if (question && question->key() == account->key() && isOutdated(*account))
        question->reject();
    if (!added.contains(account->key()) || !account->isLoaded())
        return;
    const KirvConnection::State state = account->connection()->state();
    const bool isOver = account->lastFailure().isFailure() || !account->record().enabled;
    if (state != KirvConnection::Online && !(state == KirvConnection::Offline && isOver))
        return;
    added.remove(account->key());
    if (refusedCertificate(*account).isNull())
        return;
    // From the event loop: the account is just changing.
    QMetaObject::invokeMethod(
        this,
        [this, key = account->key()] {
            const KirvAccount *refused = accounts.find(key);
            if (refused && !question && !refusedCertificate(*refused).isNull())
                show(refused);
        },
        Qt::QueuedConnection);
}

/// Whether what the open question shows does not hold for its account any more.
bool KirvCertificateQuestions::isOutdated(const KirvAccount &account) const
{
    if (question->kind() == KirvCertificateQuestion::ToForget)
        return !account.isLoaded() || account.trustedCertificate() != question->certificate().fingerprint;
    const KirvServerCertificate refused = refusedCertificate(account);
    const bool isTryingAgain = account.isLoaded() && account.record().enabled
        && (account.connection()->state() == KirvConnection::Connecting
            || account.connection()->state() == KirvConnection::Waiting);
    return refused.isNull() ? !isTryingAgain : refused.fingerprint != question->certificate().fingerprint;
}

void KirvCertificateQuestions::finish(int result)
{
    KirvCertificateQuestion *finished = question;
    question.clear();
    finished->deleteLater();
    KirvAccount *account = accounts.find(finished->key());
    if (result != QDialog::Accepted || !account)
        return;
    const QByteArray digest =
        finished->kind() == KirvCertificateQuestion::ToTrust ? finished->certificate().fingerprint : QByteArray();
    account->change(
        [&digest](KirvAccountRecord &record) { record.trustedCertificate = QString::fromLatin1(digest.toHex()); });
}
