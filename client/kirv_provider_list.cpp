// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_provider_list.h"

#include "client/kirv_plain_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

static void initializeResources()
{
    Q_INIT_RESOURCE(kirv_providers); // a static library's resources are left out unless initialized
}

namespace {

const int knownFormat = 1;

/// The text of \a key; empty when it is none, or too long.
QString textOf(const QJsonObject &entry, const char *key)
{
    const QString text = entry.value(QLatin1String(key)).toString().simplified();
    return text.size() <= KirvProviderList::longestText ? text : QString();
}

bool isDomain(const QString &text)
{
    static const QRegularExpression domain(
        QRegularExpression::anchoredPattern(QStringLiteral("[^\\s@/:.]+(\\.[^\\s@/:.]+)+")));
    return domain.match(text).hasMatch();
}

} // namespace

QString KirvProviderList::load(const QDir &profile)
{
    initializeResources();
    const QString own = profile.filePath(QStringLiteral("providers.json"));
    if (!QFileInfo::exists(own)) {
        readFile(QStringLiteral(":/kirv/client/providers.json"));
        return QString();
    }
    return readFile(own);
}

QString KirvProviderList::readFile(const QString &path)
{
    entries.clear();
    const QString shownPath = kirvPlainName(QDir::toNativeSeparators(path));
    QFile file(path);
    // Before it is opened: a pipe would block.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        //: %1 = path of a file
        return tr("The list of providers %1 cannot be read.").arg(shownPath);
    }
    const QByteArray content = file.read(largestFile + 1);
    if (content.size() > largestFile) {
        //: %1 = path of a file
        return tr("The list of providers %1 is not used: it is too large.").arg(shownPath);
    }
    const QString problem = read(content);
    //: %1 = path of a file, %2 = a sentence
    return problem.isEmpty() ? QString() : tr("About the list of providers %1: %2").arg(shownPath, problem);
}

QString KirvProviderList::read(const QByteArray &content)
{
    entries.clear();
    QJsonParseError error {};
    const QJsonObject list = QJsonDocument::fromJson(content, &error).object();
    if (error.error != QJsonParseError::NoError || list.value(QLatin1String("format")).toInt() != knownFormat)
        return tr("It is not used, because it has not the format of such a list.");
    int leftOut = 0;
    const QJsonArray all = list.value(QLatin1String("providers")).toArray();
    for (const QJsonValue &value : all) {
        const QJsonObject entry = value.toObject();
        const QDate date = QDate::fromString(textOf(entry, "date"), Qt::ISODate);
        const Entry read { textOf(entry, "protocol"),
                           { textOf(entry, "domain"), textOf(entry, "name"), textOf(entry, "source"), date } };
        // What nobody states anywhere is not offered.
        const bool isUsable = !read.protocol.isEmpty() && isDomain(read.provider.domain)
            && !read.provider.source.isEmpty() && date.isValid() && entries.size() < mostProviders;
        if (isUsable)
            entries << read;
        else
            ++leftOut;
    }
    if (leftOut == 1)
        return tr("One entry is left out, because it is not complete.");
    return leftOut == 0 ? QString() : tr("%n entries are left out, because they are not complete.", nullptr, leftOut);
}

QList<KirvProvider> KirvProviderList::of(const QString &protocol) const
{
    QList<KirvProvider> providers;
    for (const Entry &entry : entries) {
        if (entry.protocol.compare(protocol, Qt::CaseInsensitive) == 0)
            providers << entry.provider;
    }
    return providers;
}
