// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_link.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "add_account/kirv_add_account_dialog.h"
#include "host/kirv_plugin_manager.h"

#include <QDialog>
#include <QHash>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace {
// The longest address that XMPP allows, and longer than any of IRC.
const int longestLogin = 2047;
const int longestScheme = 4;

/// By the scheme of their links.
QHash<QString, QString> protocols()
{
    return { { QStringLiteral("xmpp"), QStringLiteral("XMPP") },
             { QStringLiteral("irc"), QStringLiteral("IRC") },
             { QStringLiteral("ircs"), QStringLiteral("IRC") } };
}

/// Without the part before the "@" where the link has none, and without the usual port of servers without encryption:
/// the account is to be encrypted, for which the server has another one.
QString loginOfAuthority(const QUrl &url)
{
    const QString user = url.userName(QUrl::FullyDecoded);
    if (url.host().isEmpty())
        return QString();
    const QString login = user + QLatin1Char('@') + url.host(QUrl::FullyDecoded);
    const bool isPlain = url.scheme() == QLatin1String("irc") && url.port() == 6667;
    return url.port() == -1 || isPlain ? login : QStringLiteral("%1:%2").arg(login).arg(url.port());
}

QString loginOfAddress(const QUrl &url)
{
    const QString action = url.query().section(QLatin1Char(';'), 0, 0);
    if (!action.isEmpty() && action != QLatin1String("register"))
        return QString();
    const QString address = url.path(QUrl::FullyDecoded).section(QLatin1Char('/'), 0, 0);
    return address.contains(QLatin1Char('@')) ? address : QString();
}

bool isShowable(const QString &login)
{
    return login.size() <= longestLogin
        && std::all_of(login.begin(), login.end(), [](QChar character) { return character.isPrint(); });
}

void showLogin(QLineEdit *line, const QString &login)
{
    line->setText(login);
    if (login.startsWith(QLatin1Char('@')))
        line->setCursorPosition(0); // the nick is still to be typed
}
} // namespace

KirvAccountLink KirvAccountLink::fromMimeData(const QMimeData *data)
{
    const QList<QUrl> urls = data ? data->urls() : QList<QUrl>();
    QString text = urls.isEmpty() ? QString() : QString::fromLatin1(urls.first().toEncoded());
    if (text.isEmpty() && data)
        text = data->text().trimmed();
    return fromText(text);
}

KirvAccountLink KirvAccountLink::fromText(const QString &text)
{
    KirvAccountLink link;
    if (text.size() > longest || text.toUtf8().size() > longest) {
        link.isTooLong = protocols().contains(text.left(longestScheme + 1).section(QLatin1Char(':'), 0, 0).toLower());
        return link;
    }
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid())
        return link;
    link.protocol = protocols().value(url.scheme());
    if (link.protocol == QLatin1String("XMPP")) {
        link.login = url.authority().isEmpty() ? loginOfAddress(url) : loginOfAuthority(url);
        if (link.login.startsWith(QLatin1Char('@')))
            link.login.clear();
    } else if (!link.isNull()) {
        link.login = loginOfAuthority(url);
    }
    if (!isShowable(link.login))
        link.login.clear();
    return link;
}

bool KirvAccountLink::open(KirvAccountsTab *page) const
{
    KirvProtocol *loaded = KirvPluginManager::getInstance()->getProtocolByName(protocol);
    if (!loaded)
        return false;
    // It deletes itself when its window has finished.
    auto *dialog = new KirvAddAccountDialog(loaded, QString(), page, Qt::Sheet);
    if (dialog->getWindow()) {
        if (auto *line = dialog->getWindow()->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit")))
            showLogin(line, login);
    }
    dialog->exec();
    return true;
}
