// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_pidgin_file.h"

#include "core/moving/kirv_pidgin_account.h"
#include "core/values/kirv_text_limit.h"

#include <QCoreApplication>
#include <QDir>
#include <QXmlStreamReader>
#include <algorithm>

namespace {

// Pidgin nests seven elements with three attributes at the most.
const int mostDepth = 30;
const int mostAttributes = 20;
const int mostAccounts = 10000;
const int mostSettings = 500; ///< of one account
const int pieceSize = 16 * 1024;
/// Bytes of a tag, a comment or an uninterrupted text. The reader takes time that grows with the square of the number
/// of attributes, and refuses only afterwards.
const int longestToken = 64 * 1024;
const int beginningSize = 4096;

/// Reads the elements of a document from anywhere, within the bounds above.
class BoundedXml {
    Q_DECLARE_TR_FUNCTIONS(KirvPidginFile)

public:
    explicit BoundedXml(const QByteArray &bytes)
        : bytes(bytes)
    {
        if (bytes.contains('\0'))
            fail(tr("The file is no text."));
    }

    /// Goes to the next child of the current element, at first to the root. False at the end of the element.
    bool nextChild();
    /// The text of the current element, which has nothing else; ends it.
    QString text();
    void skip();
    /// Whether nothing follows the root.
    bool isAtEnd();
    QString name() const { return reader.name().toString(); }
    QString attribute(const char *name) const { return reader.attributes().value(QLatin1String(name)).toString(); }

    void fail(const QString &sentence)
    {
        if (failure.isEmpty())
            failure = sentence;
    }
    bool hasFailed() const { return !failure.isEmpty(); }
    /// A sentence for the user.
    QString problem() const { return failure; }

private:
    QXmlStreamReader::TokenType next();
    void check();
    bool feed();

    const QByteArray bytes;
    QXmlStreamReader reader;
    QString failure;
    int fed = 0;
    int fedAtToken = 0; ///< with the token before
    int depth = 0;
};

bool BoundedXml::feed()
{
    if (fed >= bytes.size())
        return false;
    if (fed - fedAtToken > longestToken)
        fail(tr("A text in the file is too long."));
    const QByteArray piece = bytes.mid(fed, pieceSize);
    reader.addData(piece);
    fed += int(piece.size());
    return true;
}

QXmlStreamReader::TokenType BoundedXml::next()
{
    QXmlStreamReader::TokenType token = QXmlStreamReader::Invalid;
    do {
        if (hasFailed())
            return QXmlStreamReader::Invalid;
        token = reader.readNext();
    } while (reader.error() == QXmlStreamReader::PrematureEndOfDocumentError && feed());
    fedAtToken = fed;
    if (reader.hasError()) {
        //: %1 = number of a line, %2 = what is wrong there
        fail(tr("The file is damaged or no XML (line %1: %2).").arg(reader.lineNumber()).arg(reader.errorString()));
        return QXmlStreamReader::Invalid;
    }
    check();
    return hasFailed() ? QXmlStreamReader::Invalid : token;
}

void BoundedXml::check()
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::StartDocument:
        if (!reader.documentEncoding().isEmpty()
            && reader.documentEncoding().compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) != 0)
            fail(tr("The file is not encoded as UTF-8."));
        break;
    case QXmlStreamReader::DTD:
    case QXmlStreamReader::EntityReference:
        fail(tr("The file declares a document type or uses entities, which no file of Pidgin does."));
        break;
    case QXmlStreamReader::StartElement:
        if (++depth > mostDepth || reader.attributes().size() > mostAttributes)
            fail(tr("The elements of the file are nested too deeply, or have too many attributes."));
        break;
    case QXmlStreamReader::EndElement:
        --depth;
        break;
    default:
        break;
    }
}

bool BoundedXml::nextChild()
{
    while (!hasFailed()) {
        const QXmlStreamReader::TokenType token = next();
        if (token == QXmlStreamReader::StartElement)
            return true;
        if (token == QXmlStreamReader::EndElement || token == QXmlStreamReader::EndDocument)
            return false;
    }
    return false;
}

QString BoundedXml::text()
{
    QString result;
    while (!hasFailed()) {
        const QXmlStreamReader::TokenType token = next();
        if (token == QXmlStreamReader::EndElement)
            return result;
        if (token == QXmlStreamReader::StartElement)
            fail(tr("There are elements in the file where a text is expected (line %1).").arg(reader.lineNumber()));
        if (token == QXmlStreamReader::Characters)
            result += reader.text();
        if (result.size() > kirvLongestEditableText)
            fail(tr("A text in the file is too long."));
    }
    return QString();
}

void BoundedXml::skip()
{
    int open = 1;
    while (open > 0 && !hasFailed()) {
        const QXmlStreamReader::TokenType token = next();
        if (token == QXmlStreamReader::StartElement)
            ++open;
        else if (token == QXmlStreamReader::EndElement)
            --open;
    }
}

bool BoundedXml::isAtEnd()
{
    QXmlStreamReader::TokenType token = QXmlStreamReader::NoToken;
    while (!hasFailed() && token != QXmlStreamReader::EndDocument)
        token = next();
    const auto rest = bytes.mid(fed).trimmed();
    if (!rest.isEmpty())
        fail(tr("Something follows the accounts in the file."));
    return !hasFailed();
}

void readSettings(BoundedXml &xml, KirvPidginAccount *account)
{
    // Those of a user interface are its own; the one of interest is in all of them.
    const bool isOfInterface = !xml.attribute("ui").isEmpty();
    int count = 0;
    while (xml.nextChild()) {
        const QString name = xml.attribute("name"), type = xml.attribute("type");
        if (xml.name() != QLatin1String("setting") || name.isEmpty()) {
            xml.skip();
            continue;
        }
        const KirvPidginAccount::Setting setting { type, xml.text() };
        if (++count > mostSettings)
            xml.fail(QCoreApplication::translate("KirvPidginFile", "An account in the file has too many settings."));
        if (!isOfInterface)
            account->settings.insert(name, setting);
        else if (name == QLatin1String("auto-login"))
            account->logsIn = account->logsIn || (type == QLatin1String("bool") && setting.value == QLatin1String("1"));
    }
}

KirvPidginAccount readAccount(BoundedXml &xml)
{
    KirvPidginAccount account;
    while (xml.nextChild()) {
        const QString name = xml.name();
        if (name == QLatin1String("protocol"))
            account.protocol = xml.text().trimmed();
        else if (name == QLatin1String("name"))
            account.name = xml.text();
        else if (name == QLatin1String("password"))
            account.password = xml.text();
        else if (name == QLatin1String("alias"))
            account.alias = xml.text();
        else if (name == QLatin1String("settings"))
            readSettings(xml, &account);
        else if (name == QLatin1String("proxy"))
            while (xml.nextChild()) {
                const QString part = xml.name().left(kirvLongestShownName);
                account.proxy.insert(part, xml.text());
            }
        else
            xml.skip();
    }
    return account;
}

bool isRoot(const BoundedXml &xml)
{
    return xml.name() == QLatin1String("account") && !xml.attribute("version").isEmpty();
}

} // namespace

QString KirvPidginFile::defaultPath()
{
    const QString home = qEnvironmentVariable("PURPLEHOME");
    return QDir(home.isEmpty() ? QDir::homePath() : home).filePath(QStringLiteral(".purple/accounts.xml"));
}

bool KirvPidginFile::isOne(const QByteArray &bytes)
{
    BoundedXml xml(bytes.left(beginningSize));
    return xml.nextChild() && isRoot(xml);
}

KirvPidginFile::Result KirvPidginFile::read(const QByteArray &bytes)
{
    Result failed;
    if (bytes.size() > largestFile) {
        failed.problem = tr("The file is too large.");
        return failed;
    }
    BoundedXml xml(bytes);
    Result result;
    if (xml.nextChild() && !isRoot(xml))
        xml.fail(tr("The file does not hold accounts of Pidgin."));
    else if (!xml.hasFailed() && xml.attribute("version") != QLatin1String("1.0"))
        xml.fail(tr("The file is of another version of Pidgin, which is not known."));
    int count = 0;
    bool needsGlobalProxy = false;
    while (xml.nextChild()) {
        if (xml.name() != QLatin1String("account")) {
            xml.skip();
            continue;
        }
        const KirvPidginAccount account = readAccount(xml);
        if (++count > mostAccounts)
            xml.fail(tr("The file has more than %n accounts.", nullptr, mostAccounts));
        const int before = int(result.accounts.accounts.size());
        kirvAddPidginAccount(account, &result.accounts);
        const bool isAdded = result.accounts.accounts.size() > before;
        needsGlobalProxy = needsGlobalProxy || (isAdded && account.logsIn && account.usesGlobalProxy());
    }
    if (needsGlobalProxy)
        result.accounts.leftOut << tr("If Pidgin uses a proxy for all accounts, it is not in this file. Set it for the "
                                      "accounts before they log in.");
    if (xml.isAtEnd())
        return result;
    failed.problem = xml.problem();
    return failed;
}
