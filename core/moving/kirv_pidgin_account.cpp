// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_pidgin_account.h"

#include "core/accounts/kirv_account_fields.h"
#include "core/protocol/kirv_proxy.h"
#include "core/values/kirv_single_line.h"
#include "core/values/kirv_text_limit.h"
#include "core/values/kirv_visible_text.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>

namespace {

const int longestServer = 255;
const int longestResource = 1023;
const int mostNamedSettings = 20;
const int longestSettingName = 50;
const int longestReason = 500;

/// What our protocols call their settings, and some of their values.
namespace Ours {
const auto server = QStringLiteral("server");
const auto port = QStringLiteral("port");
const auto resource = QStringLiteral("resource");
const auto encryption = QStringLiteral("encryption");
const auto required = QStringLiteral("required");
const auto passwordUse = QStringLiteral("password_use");
const auto saslUser = QStringLiteral("sasl_user");
const auto realName = QStringLiteral("real_name");
}

/// Names of protocols as people know them.
const QMap<QString, QString> &protocolNames()
{
    static const QMap<QString, QString> names {
        { QStringLiteral("prpl-aim"), QStringLiteral("AIM") },
        { QStringLiteral("prpl-bonjour"), QStringLiteral("Bonjour") },
        { QStringLiteral("prpl-gg"), QStringLiteral("Gadu-Gadu") },
        { QStringLiteral("prpl-icq"), QStringLiteral("ICQ") },
        { QStringLiteral("prpl-meanwhile"), QStringLiteral("Sametime") },
        { QStringLiteral("prpl-msn"), QStringLiteral("MSN") },
        { QStringLiteral("prpl-novell"), QStringLiteral("GroupWise") },
        { QStringLiteral("prpl-silc"), QStringLiteral("SILC") },
        { QStringLiteral("prpl-simple"), QStringLiteral("SIMPLE") },
        { QStringLiteral("prpl-yahoo"), QStringLiteral("Yahoo") },
        { QStringLiteral("prpl-zephyr"), QStringLiteral("Zephyr") },
    };
    return names;
}

QString shown(const QString &text, int longest = kirvLongestShownName)
{
    return kirvVisibleText(kirvSingleLine(text, longest));
}

bool isPlainText(const QString &text, int longest)
{
    return !text.isEmpty() && text.size() <= longest && std::all_of(text.begin(), text.end(), [](QChar character) {
        return character.isSurrogate() || character.isPrint();
    });
}

bool isServer(const QString &text)
{
    return isPlainText(text, longestServer) && std::none_of(text.begin(), text.end(), [](QChar character) {
               return character.isSpace() || QStringLiteral("/@").contains(character);
           });
}

/// Makes one account of Pidgin one of ours.
class Translation {
    Q_DECLARE_TR_FUNCTIONS(KirvPidginFile)

public:
    Translation(const KirvPidginAccount &account, KirvMovedAccounts *moved)
        : source(account)
        , moved(moved)
    {
    }

    void run();

private:
    bool isXmpp() const { return source.protocol == QLatin1String("prpl-jabber"); }
    bool isIrc() const { return source.protocol == QLatin1String("prpl-irc"); }
    QString name() const { return shown(source.name.trimmed()); }
    void leaveOut(const QString &sentence) { moved->leftOut << sentence; }

    void translateXmpp();
    void translateResource(const QString &resource);
    void translateXmppSecurity();
    void translateIrc();
    void translateIrcSecurity();
    void translateCommon();
    void translateServer();
    void translatePort(int fallback);
    void translateProxy();
    void refuseProxy(const QString &reason);
    void listOthers();

    QString take(const char *name, const char *type);
    bool isOfType(const char *name, const char *type) const
    {
        return source.settings.value(QLatin1String(name)).type == QLatin1String(type);
    }
    bool has(const char *name) const { return source.settings.contains(QLatin1String(name)); }
    bool isTrue(const char *name) { return take(name, "bool") == QLatin1String("1"); }
    /// Also when what is there is no truth value.
    bool isFalse(const char *name) { return take(name, "bool") == QLatin1String("0"); }

    const KirvPidginAccount &source;
    KirvMovedAccounts *const moved;
    KirvMovedAccount result;
    QSet<QString> known; ///< the settings that were looked at
};

void Translation::run()
{
    if (!isXmpp() && !isIrc()) {
        const QString protocol = protocolNames().value(source.protocol, shown(source.protocol));
        //: %1 = login, %2 = name of a protocol
        return leaveOut(tr("The account \"%1\" was left out: the protocol %2 is not supported.").arg(name(), protocol));
    }
    if (source.name.trimmed().isEmpty())
        return leaveOut(tr("An account was left out: it has no login."));
    if (isXmpp())
        translateXmpp();
    else
        translateIrc();
    translateCommon();
    translateProxy();
    listOthers();
    moved->accounts << result;
}

/// The value of the setting \a name when it is of that type; null otherwise.
QString Translation::take(const char *name, const char *type)
{
    const auto setting = source.settings.constFind(QLatin1String(name));
    known.insert(QLatin1String(name));
    return setting != source.settings.constEnd() && setting->type == QLatin1String(type) ? setting->value : QString();
}

void Translation::translateCommon()
{
    KirvAccountRecord &record = result.record;
    record.alias = kirvSingleLine(source.alias, kirvLongestEditableText);
    record.password = source.password;
    record.rememberPassword = !source.password.isEmpty();
    record.enabled = source.logsIn;
    // Nothing is lost without them: they say only how Pidgin shows the account, or how it was made.
    for (const char *name : { "buddy_icon_timestamp", "custom_smileys", "use-global-buddyicon", "check-mail" })
        known.insert(QLatin1String(name));
    if (!take("buddyicon", "string").isEmpty()) {
        //: %1 = login
        leaveOut(tr("The picture of the account \"%1\" was left out: it is not in the file.").arg(name()));
    }
}

void Translation::translateXmpp()
{
    const QString login = source.name.trimmed();
    result.record.key = { login.section(QLatin1Char('/'), 0, 0).trimmed(), QStringLiteral("XMPP") };
    translateResource(login.section(QLatin1Char('/'), 1));
    translateServer();
    translatePort(0);
    translateXmppSecurity();
}

/// Without one, it is that of a new account.
void Translation::translateResource(const QString &resource)
{
    if (resource.isEmpty())
        return;
    const bool isName = isPlainText(resource, longestResource) && !resource.contains(QLatin1Char('*'))
        && !resource.contains(QLatin1String("__HOSTNAME__"));
    if (isName) {
        result.record.settings.insert(Ours::resource, resource);
        return;
    }
    //: %1 = login
    leaveOut(tr("The resource of the account \"%1\" was left out: it has the name of the computer in it, or characters "
                "that mean something else here.")
                 .arg(name()));
}

/// What is not understood is taken for the safest.
void Translation::translateXmppSecurity()
{
    const QString security = take("connection_security", "string");
    const bool isOldDirect = isTrue("old_ssl") && !has("connection_security");
    take("require_tls", "bool"); // of old versions; it is required in any case
    QString encryption = Ours::required;
    if (security == QLatin1String("old_ssl") || isOldDirect)
        encryption = QStringLiteral("direct");
    else if (security == QLatin1String("opportunistic_tls"))
        encryption = QStringLiteral("offered"); // which sends no password without encryption
    else if (has("connection_security") && security != QLatin1String("require_tls"))
        leaveOut(tr("The account \"%1\" now requires encryption: what the file says of it is not known.").arg(name()));
    result.record.settings.insert(Ours::encryption, encryption);
    if (isTrue("auth_plain_in_clear"))
        leaveOut(tr("The account \"%1\" does not send its password without encryption any more.").arg(name()));
}

void Translation::translateServer()
{
    const QString server = take("connect_server", "string").trimmed();
    if (isServer(server)) {
        result.record.settings.insert(Ours::server, server);
    } else if (!server.isEmpty() || (has("connect_server") && !isOfType("connect_server", "string"))) {
        leaveOut(tr("The server of the account \"%1\" was left out: it is not the name or address of a server.")
                     .arg(name()));
    }
}

/// \a fallback is used where the file has none; 0: that of a new account.
void Translation::translatePort(int fallback)
{
    bool isNumber = false;
    const int port = take("port", "int").trimmed().toInt(&isNumber);
    if (isNumber && port > 0 && port <= 65535)
        result.record.settings.insert(Ours::port, QString::number(port));
    else if (has("port"))
        leaveOut(tr("The port of the account \"%1\" was left out: it is not a number from 1 to 65535.").arg(name()));
    else if (fallback > 0)
        result.record.settings.insert(Ours::port, QString::number(fallback));
}

void Translation::translateIrc()
{
    const QString login = source.name.trimmed();
    result.record.key = { login, QStringLiteral("IRC") };
    if (login.section(QLatin1Char('@'), 1).isEmpty())
        leaveOut(tr("The account \"%1\" has no server. Enter one before it is used.").arg(name()));
    translateIrcSecurity();

    const QString realName = take("realname", "string");
    if (!realName.isEmpty())
        result.record.settings.insert(Ours::realName, kirvSingleLine(realName, kirvLongestEditableText));
    const QString saslUser = take("sasl_login_name", "string");
    if (!saslUser.isEmpty())
        result.record.settings.insert(Ours::saslUser, kirvSingleLine(saslUser, kirvLongestEditableText));
    const QString encoding = take("encoding", "string");
    take("autodetect_utf8", "bool"); // UTF-8 is what is used
    if (!encoding.isEmpty() && encoding.compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) != 0) {
        //: %1 = login, %2 = name of a character encoding
        leaveOut(tr("The account \"%1\" uses UTF-8 instead of the encoding %2, which is not supported.")
                     .arg(name(), shown(encoding)));
    }
}

void Translation::translateIrcSecurity()
{
    const int plainPort = 6667;
    const bool usesSasl = isTrue("sasl");
    const bool maySendPassword = isTrue("auth_plain_in_clear");
    const bool isEncrypted = has("ssl") && !isFalse("ssl");
    const bool hasPort = has("port") && take("port", "int") != QString::number(plainPort);
    if (isEncrypted || (usesSasl && !maySendPassword)) {
        result.record.settings.insert(Ours::encryption, Ours::required);
        if (isEncrypted || hasPort)
            translatePort(0);
        known.insert(QStringLiteral("port"));
        if (!isEncrypted)
            leaveOut(tr("The account \"%1\" now requires encryption: otherwise its password would be sent without it.")
                         .arg(name()));
    } else {
        result.record.settings.insert(Ours::encryption, QStringLiteral("none"));
        translatePort(plainPort);
    }
    if (usesSasl)
        result.record.settings.insert(Ours::passwordUse, QStringLiteral("sasl"));
    else if (!source.password.isEmpty())
        result.record.settings.insert(Ours::passwordUse, QStringLiteral("server"));
}

void Translation::translateProxy()
{
    const QString type = source.proxy.value(QStringLiteral("type"));
    if (type.isEmpty() || type == QLatin1String("none") || type == QLatin1String("global"))
        return;
    KirvProxy proxy;
    if (type == QLatin1String("socks5") || type == QLatin1String("tor"))
        proxy.kind = KirvProxy::Socks5;
    else if (type == QLatin1String("http"))
        proxy.kind = KirvProxy::Http;
    else if (type == QLatin1String("envvar"))
        proxy.kind = KirvProxy::System;
    else
        return refuseProxy(tr("Its kind is not supported."));
    if (proxy.kind != KirvProxy::System) {
        const QString port = source.proxy.value(QStringLiteral("port"));
        proxy.host = source.proxy.value(QStringLiteral("host")).trimmed();
        proxy.port = port.isEmpty() ? KirvProxy::defaultPort : int(port.trimmed().toUShort());
        proxy.user = source.proxy.value(QStringLiteral("username"));
        proxy.password = source.proxy.value(QStringLiteral("password"));
    }
    if (!proxy.problem().isEmpty())
        return refuseProxy(proxy.problem());
    const QList<KirvField> fields = proxy.toFields();
    const QMap<QString, QString> values = kirvStoredValues(fields);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        result.record.settings.insert(value.key(), value.value());
    kirvClassify(result.record, fields);
}

void Translation::refuseProxy(const QString &reason)
{
    result.record.enabled = false;
    //: %1 = login, %2 = a sentence
    leaveOut(tr("The proxy of the account \"%1\" was left out. %2 The account is disabled, so that it does not connect "
                "without the proxy.")
                 .arg(name(), shown(reason, longestReason)));
}

/// The settings that there are none like here. Those that are empty or off do nothing.
void Translation::listOthers()
{
    QStringList names;
    for (auto setting = source.settings.constBegin(); setting != source.settings.constEnd(); ++setting) {
        const bool isOff = setting->type == QLatin1String("bool") && setting->value == QLatin1String("0");
        if (!known.contains(setting.key()) && !setting->value.isEmpty() && !isOff)
            names << shown(setting.key(), longestSettingName);
    }
    if (names.isEmpty())
        return;
    if (names.size() > mostNamedSettings)
        names = names.mid(0, mostNamedSettings) << QStringLiteral("\u2026");
    //: %1 = login, %2 = names, separated by commas
    leaveOut(tr("Settings of the account \"%1\" were left out, as there are no such settings here: %2.")
                 .arg(name(), names.join(QStringLiteral(", "))));
}

} // namespace

void kirvAddPidginAccount(const KirvPidginAccount &account, KirvMovedAccounts *moved)
{
    Translation(account, moved).run();
}
