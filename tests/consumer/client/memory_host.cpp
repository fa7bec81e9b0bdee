// SPDX-License-Identifier: LGPL-2.1-or-later
#include "memory_host.h"

#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_ui_loader.h"

#include <QFile>
#include <QFormLayout>
#include <QLineEdit>
#include <QUiLoader>
#include <QVBoxLayout>

namespace {

MemoryHost *theHost = nullptr;

MemoryAccount *memory(KirvAccountConnection *account)
{
    return static_cast<MemoryAccount *>(account);
}

const MemoryAccount *memory(const KirvAccountConnection *account)
{
    return static_cast<const MemoryAccount *>(account);
}

void setEnabled(MemoryAccount *account, bool enabled)
{
    if (!account)
        return;
    account->enabled = enabled;
    account->refreshInfo();
}

} // namespace

MemoryHost::MemoryHost(const QString &layouts)
    : layouts(layouts)
{
    theHost = this;
    KirvAccountManagerPrivate::ampInstance = &accountsState;
    KirvPluginManagerPrivate::instance = &pluginsState;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = &settingsState;
}

MemoryHost::~MemoryHost()
{
    KirvSettingsManagerPrivate::settingsMgrPrivInstance = nullptr;
    KirvPluginManagerPrivate::instance = nullptr;
    KirvAccountManagerPrivate::ampInstance = nullptr;
    theHost = nullptr;
}

MemoryHost *MemoryHost::current()
{
    return theHost;
}

MemoryAccount *MemoryHost::addAccount(const QString &id, const QString &alias, bool enabled)
{
    if (accounts.contains(id))
        return nullptr;
    auto account = std::make_shared<MemoryAccount>();
    account->id = id;
    account->alias = alias;
    account->enabled = enabled;
    account->refreshInfo();
    accounts.insert(id, account);
    order.append(&account->info);
    return account.get();
}

void MemoryHost::removeAccount(const QString &id)
{
    const auto account = accounts.take(id);
    if (!account)
        return;
    order.removeOne(&account->info);
    if (accountsState.mainAccount == account.get())
        accountsState.mainAccount = nullptr;
}

MemoryAccount *MemoryHost::account(const QString &id, const QString &protocolName) const
{
    return protocolName == QLatin1String("Memory") ? accounts.value(id).get() : nullptr;
}

QList<KirvAccountInfo *> MemoryHost::infos() const
{
    return order;
}

// The account manager

KirvAccountManagerPrivate *KirvAccountManagerPrivate::ampInstance = nullptr;

KirvAccountManager *KirvAccountManager::getInstance()
{
    static KirvAccountManager manager;
    return &manager;
}

QList<KirvAccountInfo *> KirvAccountManager::getAccountsInfo(const QString &protocol) const
{
    return protocol == theHost->protocol.getName() ? theHost->infos() : QList<KirvAccountInfo *>();
}

bool KirvAccountManager::accountEnabled(const QString &id, const QString &protocol) const
{
    const MemoryAccount *account = theHost->account(id, protocol);
    return account && account->enabled;
}

KirvAccountConnection *KirvAccountManager::getAccount(const QString &id, const QString &protocol)
{
    return theHost->account(id, protocol);
}

KirvAccountConnection *KirvAccountManager::loadAccount(const QString &id, const QString &protocol)
{
    return theHost->account(id, protocol);
}

KirvAccountConnection *KirvAccountManager::getMainAccount() const
{
    return KirvAccountManagerPrivate::ampInstance->mainAccount;
}

KirvAccountConnection *KirvAccountManager::createAccount(const QString &id, const QString &alias,
                                                         const QString &password, bool rememberPassword, KirvProtocol *,
                                                         const KirvPresence &presence, const QList<KirvField> &settings)
{
    MemoryAccount *account = theHost->addAccount(id, alias);
    if (account) {
        account->password = password;
        account->rememberPassword = rememberPassword;
        account->presence = presence;
        account->settings = settings;
    }
    return account;
}

void KirvAccountManager::enableAccount(const QString &id, const QString &protocol)
{
    setEnabled(theHost->account(id, protocol), true);
}

void KirvAccountManager::disableAccount(const QString &id, const QString &protocol)
{
    setEnabled(theHost->account(id, protocol), false);
}

void KirvAccountManager::removeAccount(const QString &id, const QString &protocol)
{
    if (theHost->account(id, protocol))
        theHost->removeAccount(id);
}

void KirvAccountManager::setMainAccount(KirvAccountConnection *account)
{
    KirvAccountManagerPrivate::ampInstance->mainAccount = account;
}

// An account

QString KirvAccountConnection::getUid() const
{
    return memory(this)->id;
}

QString KirvAccountConnection::getProtocolName() const
{
    return theHost->protocol.getName();
}

KirvProtocol *KirvAccountConnection::getProtocol() const
{
    return &theHost->protocol;
}

QString KirvAccountConnection::getAlias() const
{
    return memory(this)->alias;
}

void KirvAccountConnection::setAlias(const QString &alias)
{
    memory(this)->alias = alias;
    memory(this)->refreshInfo();
}

QString KirvAccountConnection::getPassword() const
{
    return memory(this)->password;
}

void KirvAccountConnection::setPassword(const QString &password)
{
    memory(this)->password = password;
}

void KirvAccountConnection::setRememberPassword(bool remember)
{
    memory(this)->rememberPassword = remember;
}

void KirvAccountConnection::setRestoreLastPresence(bool restore)
{
    memory(this)->restorePresence = restore;
}

void KirvAccountConnection::setRestoreLastDescription(bool restore)
{
    memory(this)->restoreDescription = restore;
}

KirvPresence KirvAccountConnection::getDefaultPresence() const
{
    return memory(this)->presence;
}

void KirvAccountConnection::setDefaultPresence(const KirvPresence &presence)
{
    memory(this)->presence = presence;
}

void KirvAccountConnection::setPresence(const KirvPresence &) { }

QString KirvAccountConnection::getCurrentAvatarPath() const
{
    return memory(this)->avatar;
}

void KirvAccountConnection::setAvatar(const QString &path)
{
    memory(this)->avatar = path;
}

QList<KirvField> KirvAccountConnection::getAccountSettingsInOrder() const
{
    return memory(this)->settings;
}

void KirvAccountConnection::setAccountSettings(const QList<KirvField> &settings)
{
    memory(this)->settings = settings;
}

bool KirvAccountConnection::isEnabled() const
{
    return memory(this)->enabled;
}

bool KirvAccountConnection::isLoggedIn() const
{
    return memory(this)->enabled && memory(this)->loggedIn;
}

// The plug-in manager and the protocol

KirvPluginManagerPrivate *KirvPluginManagerPrivate::instance = nullptr;

KirvPluginManager *KirvPluginManager::getInstance()
{
    static KirvPluginManager manager;
    return &manager;
}

KirvProtocol *KirvPluginManager::getProtocolByName(const QString &name)
{
    return name == theHost->protocol.getName() ? &theHost->protocol : nullptr;
}

void KirvPluginManagerPrivate::emitCoreSignal(const QString &, QList<KirvArg>) { }

QList<KirvPresence> KirvProtocol::getAllPresences() const
{
    return { KirvPresence(QStringLiteral("here"), QStringLiteral("Here"), QStringLiteral("here.png")) };
}

QList<KirvField> KirvProtocol::getAccountSettings() const
{
    return { KirvField::textEdit(QStringLiteral("Colour"), QStringLiteral("colour"), QStringLiteral("blue"),
                                 QString()) };
}

QList<KirvField> KirvProtocol::getPubdirAccountFields() const
{
    return { KirvField::textEdit(QStringLiteral("Town"), QStringLiteral("town"), QString(), QString()) };
}

KirvPresence KirvProtocol::createPresenceWithId(const QString &, const QString &description) const
{
    const KirvPresence only = getAllPresences().constFirst();
    return KirvPresence(only.getId(), only.getDisplay(), only.getIcon(), description);
}

void KirvProtocol::accountPresenceChanged(KirvAccountConnection *) { }

// The settings manager

KirvSettingsManagerPrivate *KirvSettingsManagerPrivate::settingsMgrPrivInstance = nullptr;

KirvSettingsManager *KirvSettingsManager::getInstance()
{
    static KirvSettingsManager manager;
    return &manager;
}

QString KirvSettingsManager::getCurrentRosterThemeDir() const
{
    return theHost->layouts + QLatin1Char('/');
}

QList<KirvField> KirvSettingsManagerPrivate::readAccountGlobals(const QString &id, const QString &protocol)
{
    const MemoryAccount *account = theHost->account(id, protocol);
    if (!account)
        return {};
    const QString none;
    return { KirvField::textEdit(none, QStringLiteral("alias"), account->alias, none),
             KirvField::password(none, QStringLiteral("password"), account->password, none),
             KirvField::checkBox(none, QStringLiteral("password/remember"), account->rememberPassword, none),
             KirvField::checkBox(none, QStringLiteral("presence/restore"), account->restorePresence, none),
             KirvField::checkBox(none, QStringLiteral("presence/restore_desc"), account->restoreDescription, none) };
}

void KirvSettingsManagerPrivate::writeGlobalSetting(const KirvField &field)
{
    theHost->globalSettings.insert(field.getId(), field.getText());
}

// The UI services

KirvUILoader *KirvUILoader::getInstance()
{
    static KirvUILoader loader;
    return &loader;
}

QWidget *KirvUILoader::loadUI(const QString &name, QWidget *parent, const QString &)
{
    QFile file(theHost->layouts + QLatin1Char('/') + name + QLatin1String(".ui"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no layout %s", qPrintable(file.fileName()));
    QWidget *widget = QUiLoader().load(&file, parent);
    if (parent)
        insertWidget(parent, widget);
    return widget;
}

QWidget *KirvUILoader::loadUI(const QString &name, const QString &variant)
{
    return loadUI(name, nullptr, variant);
}

void KirvUILoader::insertWidget(QWidget *placeholder, QWidget *widget)
{
    auto *layout = new QVBoxLayout(placeholder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
}

/// A line of text for every field, whatever its kind.
class KirvFieldWidgetPrivate : public QObject {
public:
    explicit KirvFieldWidgetPrivate(QWidget *widget)
        : QObject(widget)
        , form(new QFormLayout(widget))
    {
    }

    QFormLayout *form;
    QList<KirvField> fields;
    QList<QLineEdit *> edits;
};

KirvFieldWidget::KirvFieldWidget(const QList<KirvField> &fields, QWidget *parent, KirvFieldWidget::Layout)
    : QWidget(parent)
    , d(new KirvFieldWidgetPrivate(this))
{
    fillWithFields(fields);
}

void KirvFieldWidget::fillWithFields(const QList<KirvField> &fields)
{
    while (d->form->rowCount() > 0)
        d->form->removeRow(0);
    d->edits.clear();
    d->fields = fields;
    for (const KirvField &field : fields) {
        d->edits.append(new QLineEdit(field.getText()));
        d->form->addRow(field.getLabel(), d->edits.constLast());
    }
}

QList<KirvField> KirvFieldWidget::getFields() const
{
    QList<KirvField> edited = d->fields;
    for (int i = 0; i < edited.size(); ++i)
        edited[i].setText(d->edits.at(i)->text());
    return edited;
}

KirvAvatarQuickSetWidget::KirvAvatarQuickSetWidget(QWidget *parent)
    : QWidget(parent)
{
}

void KirvAvatarQuickSetWidget::setImage(const QString &) { }
