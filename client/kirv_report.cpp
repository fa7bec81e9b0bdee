// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_report.h"

#include "client/kirv_account_status.h"
#include "client/kirv_plugins_page.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_secret_blank.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_protocol_base.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSslSocket>
#include <QSysInfo>

#include <algorithm>

namespace {

/// Whether \a text names a server, an address, a number or a choice, which whoever helps needs.
bool isTechnical(const QString &text)
{
    static const QRegularExpression technical(
        QStringLiteral("^(localhost|[0-9]+|[A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+|[0-9A-Fa-f:]*:[0-9A-Fa-f:.]+)$"));
    return technical.match(text).hasMatch();
}

/// What the user has written into the settings that names somebody.
QStringList namesInSettings(KirvAccount &account)
{
    QStringList names;
    const QList<KirvField> defaults = account.protocol() ? account.protocol()->accountSettings() : QList<KirvField>();
    for (const KirvField &field : account.settings()) {
        const bool isFree = field.getKind() == KirvField::Text || field.getKind() == KirvField::MultiLine;
        const bool isDefault = std::find(defaults.begin(), defaults.end(), field) != defaults.end();
        if (isFree && !isDefault && !isTechnical(field.getText()))
            names << field.getText().trimmed();
    }
    return names;
}

} // namespace

KirvReport::KirvReport(const KirvAccountCollection &accounts, const KirvPluginLoader &plugins)
    : accounts(accounts)
    , plugins(plugins)
{
}

QString KirvReport::ofProgram()
{
    const QString program =
        QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
    const QString tls = QSslSocket::sslLibraryVersionString();
    return QStringList {
        program.trimmed(),
        //: %1 = a version, %2 = a processor
        tr("Qt %1 (%2)").arg(QLatin1String(qVersion()), QSysInfo::buildAbi()),
        tls.isEmpty() ? tr("No library for encryption") : tls,
        //: %1 = "Debian GNU/Linux 12", %2 = "linux 6.1", %3 = a processor
        tr("%1, %2, %3")
            .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion(),
                 QSysInfo::currentCpuArchitecture()),
    }
        .join(QLatin1Char('\n'));
}

QString KirvReport::ofProtocol(KirvProtocolBase &protocol)
{
    const QStringList components = protocol.components();
    //: %1 = name of a protocol, %2 = "QXmpp 1.4.0", or several such
    return components.isEmpty() ? tr("%1: no versions stated").arg(protocol.getName())
                                : tr("%1: %2").arg(protocol.getName(), components.join(QLatin1String(", ")));
}

QString KirvReport::withoutNames(const QString &text, KirvAccount &account)
{
    const KirvAccountKey key = account.key();
    const QString name = tr("(name)");
    QString result = KirvSecretBlank::withoutWord(text, key.id, name);
    QStringList words { account.record().alias, key.id.section(QLatin1Char('@'), 0, 0) };
    words += namesInSettings(account);
    words << QFileInfo(QDir::homePath()).fileName();
    for (const QString &word : words)
        result = KirvSecretBlank::withoutWord(result, word, name);
    return result;
}

QStringList KirvReport::pluginLines() const
{
    QStringList lines;
    const QList<KirvPluginInfo> files = plugins.plugins();
    for (const KirvPluginInfo &file : files) {
        //: %1 = name of a plug-in, %2 = its state, %3 = name of a file
        lines << tr("%1: %2, file %3")
                     .arg(file.name, KirvPluginsPage::stateText(file), QFileInfo(file.fileName).fileName());
        if (!file.error.isEmpty())
            lines << QLatin1String("  ") + file.error;
    }
    const QList<KirvProtocolBase *> protocols = plugins.protocols();
    for (KirvProtocolBase *protocol : protocols)
        lines << ofProtocol(*protocol);
    return lines;
}

QList<KirvAccount *> KirvReport::chosen() const
{
    QList<KirvAccount *> all = accounts.accounts();
    std::stable_partition(all.begin(), all.end(),
                          [](const KirvAccount *account) { return account->lastFailure().isFailure(); });
    return all.mid(0, mostAccounts);
}

QStringList KirvReport::linesOf(KirvAccount &account, int number, int mostEntries, bool withNames) const
{
    const KirvAccountStatus status(account, false);
    //: %1 = a number, %2 = name of a protocol
    QStringList lines { QString(), tr("Account %1, %2").arg(number).arg(account.key().protocol) };
    if (withNames)
        //: %1 = a login
        lines << tr("Login: %1").arg(account.key().id);
    //: %1 = "Connected" or another state
    lines << tr("State: %1").arg(status.text()) << status.reason();
    const QList<KirvAccountLog::Entry> entries = account.log().entries();
    for (const KirvAccountLog::Entry &entry : entries.mid(std::max(0, int(entries.size()) - mostEntries)))
        lines << entry.time.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz ")) + entry.text;
    const QString text = account.secretBlank().without(lines.join(QLatin1Char('\n')));
    return { withNames ? text : withoutNames(text, account) };
}

QString KirvReport::text(const KirvAccountKey &key, bool withNames) const
{
    KirvAccount *only = accounts.find(key);
    //: %1 = date and time
    QStringList lines { tr("Report of %1 (times in UTC)").arg(QDateTime::currentDateTimeUtc().toString(Qt::ISODate)),
                        ofProgram(), QString(), tr("Plug-ins") };
    lines += pluginLines();
    const QList<KirvAccount *> described = only ? QList<KirvAccount *> { only } : chosen();
    for (int i = 0; i < described.size(); ++i)
        lines += linesOf(*described.at(i), i + 1, only ? KirvAccountLog::mostEntries : entriesOfEach, withNames);
    const int others = int(accounts.accounts().size() - described.size());
    if (!only && others > 0)
        lines << QString() << tr("%n more accounts are left out.", nullptr, others);
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
