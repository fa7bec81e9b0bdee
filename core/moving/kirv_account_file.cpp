// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_file.h"

#include "core/moving/kirv_account_json.h"
#include "core/moving/kirv_json_bounds.h"
#include "core/moving/kirv_json_digest.h"
#include "core/moving/kirv_secret_box.h"
#include "core/values/kirv_bounded_image.h"
#include "core/values/kirv_single_line.h"
#include "core/values/kirv_text_limit.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <cmath>

namespace {

const QLatin1String formatName("kirv-accounts");
const int currentVersion = 1;

const QLatin1String formatMember("format");
const QLatin1String version("version");
const QLatin1String accountList("accounts");
const QLatin1String mainAccount("main_account");
const QLatin1String mainLogin("login");
const QLatin1String mainProtocol("protocol");
const QLatin1String secrets("secrets");
const QLatin1String binding("binding");

// A file with as many accounts as fit into its size has neither. The depth leaves room to newer versions, so that they
// are named as such.
const int mostDepth = 32;
const int mostParts = 8 * 1000 * 1000;

const int megabyte = 1024 * 1024;

QString nameOf(const KirvAccountKey &key)
{
    return kirvSingleLine(key.id, kirvLongestShownName);
}

QString protocolOf(const KirvAccountKey &key)
{
    return kirvSingleLine(key.protocol, kirvLongestShownName);
}

bool isPictureTooLarge(const QByteArray &picture)
{
    const QSize size = KirvBoundedImage::measuredSize(picture.left(int(KirvBoundedImage::maximumBytes)));
    return picture.size() > KirvBoundedImage::maximumBytes
        || qint64(size.width()) * size.height() > KirvBoundedImage::maximumPixels;
}

/// What binds the secrets to the rest of the file: with another server beside them they are not used.
QString bindingOf(QJsonObject file)
{
    file.remove(secrets);
    return QString::fromLatin1(kirvJsonDigest(file).toBase64());
}

QJsonObject readablePart(const KirvMovedAccounts &accounts)
{
    QJsonArray list;
    bool isMainAmongThem = false;
    for (const KirvMovedAccount &account : accounts.accounts) {
        list.append(KirvAccountJson::readablePart(account));
        isMainAmongThem = isMainAmongThem || account.record.key == accounts.mainAccount;
    }
    QJsonObject file { { formatMember, formatName }, { version, currentVersion }, { accountList, list } };
    if (isMainAmongThem) {
        const KirvAccountKey &key = accounts.mainAccount;
        file.insert(mainAccount, QJsonObject { { mainLogin, key.id }, { mainProtocol, key.protocol } });
    }
    return file;
}

KirvSecretBox::Outcome addSecrets(const KirvMovedAccounts &accounts, const QString &passPhrase, QJsonObject *file)
{
    QJsonArray list;
    for (const KirvMovedAccount &account : accounts.accounts)
        list.append(KirvAccountJson::secretPart(account.record));
    QByteArray content = QJsonDocument(QJsonObject { { accountList, list }, { binding, bindingOf(*file) } })
                             .toJson(QJsonDocument::Compact);
    QJsonObject box;
    const KirvSecretBox::Outcome outcome = KirvSecretBox::seal(content, passPhrase, &box);
    KirvSecretBox::wipe(content);
    file->insert(secrets, box);
    return outcome;
}

/// The first account that no file can hold, or that is there twice; null when all can be written.
const KirvMovedAccount *firstWrong(const QList<KirvMovedAccount> &accounts)
{
    QSet<KirvAccountKey> keys;
    for (const KirvMovedAccount &account : accounts) {
        if (keys.contains(account.record.key) || !KirvAccountFile::canHold(account))
            return &account;
        keys.insert(account.record.key);
    }
    return nullptr;
}

QString notSuchAFile()
{
    return KirvAccountFile::tr("The file is damaged, or it is not a file of exported accounts.");
}

QString damagedSecrets()
{
    return KirvAccountFile::tr("The passwords in the file are damaged, so nothing is imported from it.");
}

/// The object in \a bytes when they are a file of exported accounts; what else they are is in \a problem.
QJsonObject parse(const QByteArray &bytes, QString *problem)
{
    *problem = notSuchAFile();
    if (bytes.size() > KirvAccountFile::largestFile) {
        *problem = KirvAccountFile::tr("The file is too large. Up to %1 MB are possible.")
                       .arg(KirvAccountFile::largestFile / megabyte);
        return QJsonObject();
    }
    if (!kirvIsBoundedJson(bytes, mostDepth, mostParts))
        return QJsonObject();
    const QJsonObject file = QJsonDocument::fromJson(bytes).object();
    const double number = file.value(version).toDouble();
    if (file.value(formatMember).toString() != formatName || number < 1 || std::floor(number) != number)
        return QJsonObject();
    if (number > currentVersion) {
        *problem = KirvAccountFile::tr("The file was made by a newer version of the program. This one cannot read it.");
        return QJsonObject();
    }
    problem->clear();
    return file;
}

/// Reads a file that was parsed. Each step gives a sentence when it cannot be done, after which nothing is read any
/// more.
class Reader {
public:
    Reader(const QJsonObject &file, const QString &passPhrase)
        : file(file)
        , passPhrase(passPhrase)
    {
    }

    QString read();
    KirvMovedAccounts moved;
    bool wrongPassPhrase = false;

private:
    QString readAccounts();
    QString readAccount(const QJsonValue &json);
    QString readMainAccount();
    QString readSecrets();
    QString openSecrets();
    QString readOpened(const QByteArray &content);
    QString sentence(KirvSecretBox::Outcome outcome);

    const QJsonObject file;
    const QString passPhrase;
    QSet<KirvAccountKey> keys;
};

QString Reader::read()
{
    const int known = 3 + int(file.contains(mainAccount)) + int(file.contains(secrets));
    if (file.size() != known || !file.value(accountList).isArray())
        return notSuchAFile();
    QString problem = readAccounts();
    if (problem.isEmpty())
        problem = readMainAccount();
    return problem.isEmpty() ? readSecrets() : problem;
}

QString Reader::readAccounts()
{
    const QJsonArray list = file.value(accountList).toArray();
    if (list.size() > KirvAccountFile::mostAccounts)
        return KirvAccountFile::tr("The file has too many accounts. Up to %1 are possible.")
            .arg(KirvAccountFile::mostAccounts);
    for (const QJsonValue &json : list) {
        const QString problem = readAccount(json);
        if (!problem.isEmpty())
            return problem;
    }
    return QString();
}

QString Reader::readAccount(const QJsonValue &json)
{
    KirvMovedAccount account;
    const QString wrong = KirvAccountJson::readReadablePart(json, &account);
    if (!wrong.isEmpty()) {
        //: %1 = number of an account in a file, %2 = name of a value that is stored there
        return KirvAccountFile::tr("Account %1 in the file is damaged: \"%2\" cannot be used.")
            .arg(moved.accounts.size() + 1)
            .arg(kirvSingleLine(wrong, kirvLongestShownName));
    }
    const KirvAccountKey &key = account.record.key;
    if (keys.contains(key)) {
        //: %1 = login, %2 = name of a protocol
        return KirvAccountFile::tr("The file contains the account \"%1\" (%2) twice.")
            .arg(nameOf(key), protocolOf(key));
    }
    if (isPictureTooLarge(account.picture)) {
        return KirvAccountFile::tr("The picture of the account \"%1\" (%2) in the file is too large.")
            .arg(nameOf(key), protocolOf(key));
    }
    if (!account.picture.isEmpty() && KirvBoundedImage::measuredSize(account.picture).isEmpty()) {
        moved.leftOut << KirvAccountFile::tr(
                             "The picture of the account \"%1\" (%2) is left out: it is of a kind that cannot be used.")
                             .arg(nameOf(key), protocolOf(key));
        account.picture.clear();
    }
    keys.insert(key);
    moved.accounts << account;
    return QString();
}

QString Reader::readMainAccount()
{
    if (!file.contains(mainAccount))
        return QString();
    const QJsonObject main = file.value(mainAccount).toObject();
    moved.mainAccount = { main.value(mainLogin).toString(), main.value(mainProtocol).toString() };
    const bool isOneOfThem = main.size() == 2 && keys.contains(moved.mainAccount);
    return isOneOfThem ? QString() : KirvAccountFile::tr("The file is damaged: its main account is not in it.");
}

QString Reader::readSecrets()
{
    if (!file.contains(secrets)) {
        return passPhrase.isEmpty()
            ? QString()
            : KirvAccountFile::tr("The file contains no passwords that the pass phrase could decrypt. If it should "
                                  "contain some, somebody has changed it.");
    }
    const KirvSecretBox::Outcome checked = KirvSecretBox::check(file.value(secrets).toObject());
    if (checked != KirvSecretBox::Done)
        return sentence(checked);
    if (!passPhrase.isEmpty())
        return openSecrets();
    moved.leftOut << KirvAccountFile::tr("The passwords in the file are left out, as they need its pass phrase.");
    return QString();
}

QString Reader::sentence(KirvSecretBox::Outcome outcome)
{
    switch (outcome) {
    case KirvSecretBox::Done:
        return QString();
    case KirvSecretBox::Damaged:
        return damagedSecrets();
    case KirvSecretBox::TooExpensive:
        return KirvAccountFile::tr("Decrypting the passwords in the file needs more memory or time than is allowed, so "
                                   "nothing is imported from it.");
    case KirvSecretBox::NoMemory:
        return KirvAccountFile::tr("There is not enough memory to decrypt the passwords in the file.");
    case KirvSecretBox::WrongPassPhrase:
        break;
    }
    wrongPassPhrase = true;
    return KirvAccountFile::tr("The pass phrase does not decrypt the passwords in the file.");
}

QString Reader::openSecrets()
{
    QByteArray content;
    const KirvSecretBox::Outcome outcome = KirvSecretBox::open(file.value(secrets).toObject(), passPhrase, &content);
    const QString problem = outcome == KirvSecretBox::Done ? readOpened(content) : sentence(outcome);
    KirvSecretBox::wipe(content);
    return problem;
}

/// Only who knows the pass phrase can have written \a content, but may be no friend.
QString Reader::readOpened(const QByteArray &content)
{
    if (!kirvIsBoundedJson(content, mostDepth, mostParts))
        return damagedSecrets();
    const QJsonObject opened = QJsonDocument::fromJson(content).object();
    const QJsonArray list = opened.value(accountList).toArray();
    if (opened.size() != 2 || !opened.value(binding).isString() || !opened.value(accountList).isArray())
        return damagedSecrets();
    if (opened.value(binding).toString() != bindingOf(file))
        return KirvAccountFile::tr("The accounts in the file were changed after it was written. They do not belong to "
                                   "its passwords any more, so nothing is imported from it.");
    if (list.size() != moved.accounts.size())
        return damagedSecrets();
    for (int index = 0; index < list.size(); ++index) {
        if (!KirvAccountJson::readSecretPart(list.at(index), &moved.accounts[index].record))
            return damagedSecrets();
    }
    return QString();
}

} // namespace

QByteArray KirvAccountFile::write(const KirvMovedAccounts &accounts, const QString &passPhrase, QString *problem)
{
    problem->clear();
    if (const KirvMovedAccount *wrong = firstWrong(accounts.accounts)) {
        *problem = tr("The account \"%1\" (%2) has texts or a picture that cannot be exported.")
                       .arg(nameOf(wrong->record.key), protocolOf(wrong->record.key));
        return QByteArray();
    }
    QJsonObject file = readablePart(accounts);
    if (!passPhrase.isEmpty() && addSecrets(accounts, passPhrase, &file) != KirvSecretBox::Done) {
        *problem = tr("There is not enough memory to encrypt the passwords.");
        return QByteArray();
    }
    const QByteArray bytes = QJsonDocument(file).toJson();
    if (accounts.accounts.size() <= mostAccounts && bytes.size() <= largestFile)
        return bytes;
    *problem = tr("The file would have more than %1 MB or %2 accounts. Export fewer accounts at once.")
                   .arg(largestFile / megabyte)
                   .arg(mostAccounts);
    return QByteArray();
}

KirvAccountFile::Result KirvAccountFile::read(const QByteArray &bytes, const QString &passPhrase)
{
    Result result;
    const QJsonObject file = parse(bytes, &result.problem);
    if (!result.problem.isEmpty())
        return result;
    Reader reader(file, passPhrase);
    result.problem = reader.read();
    result.wrongPassPhrase = reader.wrongPassPhrase;
    if (result.problem.isEmpty())
        result.accounts = reader.moved;
    return result;
}

bool KirvAccountFile::hasSecrets(const QByteArray &bytes)
{
    QString problem;
    return parse(bytes, &problem).value(secrets).isObject();
}

bool KirvAccountFile::canHold(const KirvMovedAccount &account)
{
    return KirvAccountJson::wrongMember(account).isEmpty() && !isPictureTooLarge(account.picture);
}
