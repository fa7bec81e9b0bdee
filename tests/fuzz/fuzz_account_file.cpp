// SPDX-License-Identifier: LGPL-2.1-or-later
// Reads files of exported accounts of any content, and boxes of any content whose pass phrase is known. Whatever it is,
// there are accounts that can be written again and then are the same, or a reason.
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_json_digest.h"
#include "core/moving/kirv_secret_box.h"
#include "tests/support/kirv_moved_samples.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

const QString passPhrase = QStringLiteral("pass phrase");

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) { }

/// The image formats are plug-ins, which Qt finds for an application.
void makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz_account_file";
    static char *arguments[] = { name, nullptr };
    static const auto *application = new QCoreApplication(count, arguments); // never destroyed, as in other fuzzers
    Q_UNUSED(application)
    qInstallMessageHandler(ignoreMessages);
}

void expect(bool condition)
{
    if (!condition)
        std::abort();
}

void expectAccountsOrReason(const KirvAccountFile::Result &result)
{
    const QList<KirvMovedAccount> &accounts = result.accounts.accounts;
    if (!result.problem.isEmpty()) {
        expect(accounts.isEmpty() && result.accounts.leftOut.isEmpty() && result.accounts.mainAccount.id.isEmpty());
        return;
    }
    QString problem;
    const QByteArray bytes = KirvAccountFile::write(result.accounts, passPhrase, &problem);
    expect(problem.isEmpty() && KirvAccountFile::hasSecrets(bytes));
    const KirvAccountFile::Result again = KirvAccountFile::read(bytes, passPhrase);
    expect(again.problem.isEmpty() && again.accounts.accounts.size() == accounts.size());
    expect(again.accounts.mainAccount == result.accounts.mainAccount);
    for (int index = 0; index < accounts.size(); ++index) {
        const KirvMovedAccount &one = accounts.at(index), &other = again.accounts.accounts.at(index);
        expect(one.record == other.record && one.picture == other.picture && KirvAccountFile::canHold(one));
    }
}

/// A file whose box holds \a content, in which BINDING stands for what binds it to the file.
QByteArray fileWithBoxOf(QByteArray content)
{
    QString problem;
    KirvMovedAccounts accounts = sampleAccounts();
    accounts.accounts.first().picture.clear();
    QJsonObject file = QJsonDocument::fromJson(KirvAccountFile::write(accounts, QString(), &problem)).object();
    content.replace("BINDING", kirvJsonDigest(file).toBase64());
    QJsonObject box;
    expect(KirvSecretBox::seal(content, passPhrase, &box) == KirvSecretBox::Done);
    file.insert(QStringLiteral("secrets"), box);
    return QJsonDocument(file).toJson();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    makeApplication();
    if (size < 1)
        return 0;
    const QByteArray input(reinterpret_cast<const char *>(data + 1), int(size - 1));
    enum { File, FileWithPassPhrase, Box, Kinds };
    switch (data[0] % Kinds) {
    case File:
        KirvAccountFile::hasSecrets(input);
        expectAccountsOrReason(KirvAccountFile::read(input, QString()));
        break;
    case FileWithPassPhrase:
        expectAccountsOrReason(KirvAccountFile::read(input, passPhrase));
        break;
    default:
        expectAccountsOrReason(KirvAccountFile::read(fileWithBoxOf(input), passPhrase));
    }
    return 0;
}
