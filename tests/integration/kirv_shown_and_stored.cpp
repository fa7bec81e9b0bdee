// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_shown_and_stored.h"

#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account.h"
#include "core/store/kirv_store.h"
#include "host/kirv_avatar_quick_set_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QSpinBox>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTextEdit>
#include <QTreeView>
#include <QTreeWidget>

namespace {

const QString connectionName = QStringLiteral("second reader");

QString said(const QString &what, const QString &shown, const QString &stored)
{
    return QStringLiteral("%1 is shown as \"%2\" and stored as \"%3\"").arg(what, shown, stored);
}

QString flag(bool isSet)
{
    return QLatin1String(isSet ? "1" : "0");
}

} // namespace

KirvShownAndStored::KirvShownAndStored(KirvClientWindows &windows)
    : windows(windows)
{
    KirvAvatarQuickSetWidget none(nullptr);
    none.resize(64, 64);
    colourOfNone = none.grab().toImage().pixelColor(32, 32);
}

QString KirvShownAndStored::difference(const QStringList &edited)
{
    if (!read())
        return QStringLiteral("the store cannot be read");
    for (const QString &found : { pageDifference(), selectorDifference(), titleDifference(), statesDifference() }) {
        if (!found.isEmpty())
            return found;
    }
    const QStringList ids = edited.isEmpty() ? QStringList(accounts.keys()) : edited;
    for (const QString &id : ids) {
        const QString found = editDifference(id);
        if (!found.isEmpty())
            return QStringLiteral("edit window of %1: %2").arg(id, found);
    }
    return QString();
}

bool KirvShownAndStored::read()
{
    accounts.clear();
    mainAccount.clear();
    bool isRead = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        database.setDatabaseName(QDir(windows.profileFolder()).filePath(QStringLiteral("profile.sqlite")));
        QMap<QString, QString> idsByNumber;
        if (database.open()) {
            QSqlQuery query(database);
            isRead = query.exec(QStringLiteral("SELECT * FROM account"));
            while (query.next()) {
                Account account;
                for (int column = 0; column < query.record().count(); ++column)
                    account.values.insert(query.record().fieldName(column), query.value(column).toString());
                idsByNumber.insert(account.values.value(QStringLiteral("number")),
                                   account.values.value(QStringLiteral("id")));
                accounts.insert(account.values.value(QStringLiteral("id")), account);
            }
            isRead = isRead
                && query.exec(QStringLiteral("SELECT account, field, value FROM account_setting "
                                             "UNION ALL SELECT account, field, value FROM secret"));
            while (query.next())
                accounts[idsByNumber.value(query.value(0).toString())].settings.insert(query.value(1).toString(),
                                                                                       query.value(2).toString());
            isRead = isRead && query.exec(QStringLiteral("SELECT value FROM setting WHERE key = 'main_account'"));
            if (query.next())
                mainAccount = query.value(0).toString().section(QStringLiteral("@@"), 0, 0);
        }
    }
    QSqlDatabase::removeDatabase(connectionName);
    return isRead;
}

QString KirvShownAndStored::stored() const
{
    KirvShownAndStored reader(windows);
    if (!reader.read())
        return QStringLiteral("unreadable");
    QString all = reader.mainAccount;
    for (auto account = reader.accounts.cbegin(); account != reader.accounts.cend(); ++account) {
        for (const QMap<QString, QString> &values : { account->values, account->settings }) {
            for (auto value = values.cbegin(); value != values.cend(); ++value)
                all += QStringLiteral("\n%1 %2=%3").arg(account.key(), value.key(), value.value());
        }
    }
    return all;
}

QString KirvShownAndStored::pageDifference() const
{
    QStringList ids = windows.rowIds();
    ids.sort();
    if (ids != QStringList(accounts.keys()))
        return said(QStringLiteral("the list"), ids.join(QLatin1Char(' ')), accounts.keys().join(QLatin1Char(' ')));
    for (int i = 0; i < windows.list()->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = windows.list()->topLevelItem(i);
        const QString found = rowDifference(row);
        if (!found.isEmpty())
            return found;
        if (i > 0 && windows.list()->topLevelItem(i - 1)->text(0) > row->text(0))
            return QStringLiteral("the rows are not sorted");
    }
    return QString();
}

QString KirvShownAndStored::rowDifference(const QTreeWidgetItem *row) const
{
    const QMap<QString, QString> &values = accounts.find(row->text(2))->values;
    if (row->text(0) != values.value(QStringLiteral("alias")))
        return said(QStringLiteral("the alias"), row->text(0), values.value(QStringLiteral("alias")));
    if (row->text(1) != values.value(QStringLiteral("protocol")))
        return said(QStringLiteral("the protocol"), row->text(1), values.value(QStringLiteral("protocol")));
    const QString isChecked = flag(row->checkState(0) == Qt::Checked);
    if (isChecked != values.value(QStringLiteral("enabled")))
        return said(QStringLiteral("the check box of ") + row->text(2), isChecked,
                    values.value(QStringLiteral("enabled")));
    return QString();
}

QString KirvShownAndStored::selectorDifference() const
{
    QStringList shown, enabled;
    for (int i = 0; i < windows.selector()->count(); ++i)
        shown << windows.selector()->itemText(i);
    for (const Account &account : accounts) {
        if (account.values.value(QStringLiteral("enabled")) == QLatin1String("1"))
            enabled << account.values.value(QStringLiteral("alias"));
    }
    shown.sort();
    enabled.sort();
    if (shown != enabled)
        return said(QStringLiteral("the selector"), shown.join(QLatin1Char(' ')), enabled.join(QLatin1Char(' ')));
    const bool isOffered = accounts.contains(mainAccount)
        && accounts.value(mainAccount).values.value(QStringLiteral("enabled")) == QLatin1String("1");
    if (isOffered && windows.shownMainAccount() != mainAccount)
        return said(QStringLiteral("the main account"), windows.shownMainAccount(), mainAccount);
    return QString();
}

QString KirvShownAndStored::titleDifference() const
{
    const QString title = windows.client->window()->windowTitle();
    const QString alias = accounts.value(mainAccount).values.value(QStringLiteral("alias"));
    const QString expected = alias.isEmpty() ? QStringLiteral("Kirv – Settings") : QStringLiteral("– ") + alias;
    return title.endsWith(expected) ? QString() : said(QStringLiteral("the title"), title, expected);
}

/// What the rows say of the states, as assistive technology reads it.
QString KirvShownAndStored::statesDifference() const
{
    const QTreeWidget *list = windows.list();
    QStringList shown, expected;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        const QString spoken = list->topLevelItem(row)->data(0, Qt::AccessibleTextRole).toString();
        shown << spoken.section(QLatin1String(", "), 0, 0)
                + QLatin1String(spoken.contains(QLatin1String("main account")) ? " (main account)" : "")
                + QLatin1String(spoken.contains(QLatin1String(", Disabled")) ? " off" : "");
    }
    for (auto account = accounts.cbegin(); account != accounts.cend(); ++account) {
        const bool isEnabled = account->values.value(QStringLiteral("enabled")) == QLatin1String("1");
        expected << account->values.value(QStringLiteral("alias"))
                + QLatin1String(account.key() == mainAccount ? " (main account)" : "")
                + QLatin1String(isEnabled ? "" : " off");
    }
    shown.sort();
    expected.sort();
    return shown == expected
        ? QString()
        : said(QStringLiteral("the view"), shown.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
}

QString KirvShownAndStored::editDifference(const QString &id)
{
    KirvLayoutDialog *window = windows.edit(id);
    if (!window)
        return QStringLiteral("it does not open");
    const QString found = windowDifference(window, id);
    KirvClientWindows::cancel(window);
    return found;
}

QString KirvShownAndStored::differenceIn(const QWidget *window, const QString &id)
{
    return read() ? windowDifference(window, id) : QStringLiteral("the store cannot be read");
}

QString KirvShownAndStored::windowDifference(const QWidget *window, const QString &id) const
{
    const Account account = accounts.value(id);
    const QString found = fieldDifference(window, account, windows.account(id)->hasUnstoredPassword());
    return found.isEmpty() ? pictureDifference(window, account.values.value(QStringLiteral("avatar"))) : found;
}

QString KirvShownAndStored::fieldDifference(const QWidget *window, const Account &account,
                                            bool hasUnstoredPassword) const
{
    const auto line = [&](const QString &name) { return window->findChild<QLineEdit *>(name)->text(); };
    const auto box = [&](const QString &name) { return flag(window->findChild<QCheckBox *>(name)->isChecked()); };
    const QString description =
        KirvClientWindows::child<QTextEdit>(window, "EditAccount_DescriptionEdit")->toPlainText();
    const QString presence =
        KirvClientWindows::child<QComboBox>(window, "EditAccount_PresenceCombo")->currentData().toString();
    const auto value = [&](const char *column) { return account.values.value(QLatin1String(column)); };
    const auto setting = [&](const char *field) { return account.settings.value(QLatin1String(field)); };
    QList<QStringList> compared {
        { QStringLiteral("alias"), line(QStringLiteral("EditAccount_Alias")), value("alias") },
        { QStringLiteral("remember"), box(QStringLiteral("EditAccount_RememberPassword")), value("remember_password") },
        { QStringLiteral("presence"), presence, value("default_presence") },
        { QStringLiteral("description"), description, value("default_description") },
        { QStringLiteral("restore presence"), box(QStringLiteral("EditAccount_RememberPresence")),
          value("restore_presence") },
        { QStringLiteral("restore description"), box(QStringLiteral("EditAccount_RememberDescription")),
          value("restore_description") },
        { QStringLiteral("server"), line(QStringLiteral("KirvField_server")), setting("server") },
        { QStringLiteral("port"),
          QString::number(KirvClientWindows::child<QSpinBox>(window, "KirvField_port")->value()), setting("port") },
        { QStringLiteral("encrypted"), box(QStringLiteral("KirvField_encrypted")),
          flag(setting("encrypted") == QLatin1String("true")) },
        { QStringLiteral("server password"), line(QStringLiteral("KirvField_server-password")),
          setting("server-password") },
    };
    // The password that its server has is shown also when it could not be stored: the next save stores it.
    if (!hasUnstoredPassword)
        compared.append({ QStringLiteral("password"), line(QStringLiteral("EditAccount_Password")), setting("") });
    for (const QStringList &values : compared) {
        if (values.at(1) != values.at(2))
            return said(values.at(0), values.at(1), values.at(2));
    }
    return QString();
}

QColor KirvShownAndStored::shownColour(const QWidget *window)
{
    QWidget *picker = KirvClientWindows::picker(window);
    return picker->grab().toImage().pixelColor(picker->rect().center());
}

QString KirvShownAndStored::pictureDifference(const QWidget *window, const QString &avatar) const
{
    const QColor shown = shownColour(window);
    if (avatar.isEmpty())
        return shown == colourOfNone ? QString()
                                     : said(QStringLiteral("the picture"), shown.name(), QStringLiteral("none"));
    const QImage picture(QDir(windows.client->profile().avatarFolder()).filePath(avatar));
    const QColor stored = picture.isNull() ? QColor() : picture.pixelColor(picture.rect().center());
    return shown == stored ? QString() : said(QStringLiteral("the picture"), shown.name(), stored.name());
}
