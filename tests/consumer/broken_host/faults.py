# SPDX-License-Identifier: LGPL-2.1-or-later
"""Each way in which the host of tests/consumer/client is broken, and which functions of the contract check notice it.

What cannot be broken, as the check would do what is undefined:
- That the state is cleared after the core is gone: the check ends before.
- That removeAccount() also takes the description of the account from the list, or the account from the main account, when
  it destroys them: the check would read what is gone. Here a removed account is only hidden.
- That loadUI(), insertWidget() and the other operations return at all, and that what they return is alive.
"""
import collections
import re

# what: what is wrong. noticed: the functions that fail, all of them. changes: see change().
# alone: no other function is run, because others rely on the rule as well and would do what is undefined, or because the
# account of one function would be in the way of the next.
Fault = collections.namedtuple("Fault", "what noticed changes alone")
FAULTS = []


def fault(what, noticed, *changes, alone=False):
    FAULTS.append(Fault(what, set(noticed.split()), changes, alone))


def change(right, wrong, behind=""):
    """The statement RIGHT becomes WRONG, the first one behind BEHIND. A @ in WRONG is whether this fault is chosen; without
    one, WRONG is a statement, too, and both stay in the source."""
    return behind, right, wrong


# The core's state
for pointer, state in (("KirvAccountManagerPrivate::ampInstance", "accountsState"),
                       ("KirvPluginManagerPrivate::instance", "pluginsState"),
                       ("KirvSettingsManagerPrivate::settingsMgrPrivInstance", "settingsState")):
    fault(f"{pointer} is null", "stateIsThereWhileTheCoreIsUp", change(f"{pointer} = &{state};", ""), alone=True)
for name in ("KirvAccountManager", "KirvPluginManager", "KirvSettingsManager", "KirvUILoader"):
    singleton = "loader" if name == "KirvUILoader" else "manager"
    fault(f"{name}::getInstance() returns null", "stateIsThereWhileTheCoreIsUp",
          change(f"return &{singleton};", "return nullptr;", behind=f"{name}::getInstance()"), alone=True)

# Protocols
BY_NAME = "return name == theHost->protocol.getName() ? &theHost->protocol : nullptr;"
fault("a protocol gives itself another name", "protocolIsFoundByItsName",
      change('return QStringLiteral("Memory");', 'return QStringLiteral("Recollection");'),
      change(BY_NAME, 'return name == QLatin1String("Memory") ? &theHost->protocol : nullptr;'), alone=True)
fault("an unknown name gives a protocol", "protocolIsFoundByItsName",
      change(BY_NAME, "return name.isEmpty() ? nullptr : &theHost->protocol;"))
fault("an empty name gives a protocol", "protocolIsFoundByItsName",
      change(BY_NAME, "return name.isEmpty() || name == theHost->protocol.getName() ? &theHost->protocol : nullptr;"))
PRESENCES = 'return { KirvPresence(QStringLiteral("here"), QStringLiteral("Here"), QStringLiteral("here.png")) };'
fault("there is no presence", "protocolOffersPresences presenceCarriesItsDescription", change(PRESENCES, "return {};"))
fault("there is no presence but the first", "presenceCarriesItsDescription",
      change(PRESENCES, 'return { KirvPresence("here", "Here", "here.png"), KirvPresence("away", "Away", "away.png") };'))
PRESENCE = "return KirvPresence(only.getId(), only.getDisplay(), only.getIcon(), description);"
for what, wrong in (("a presence loses its description", "return only;"),
                    ("a description loses its markup", PRESENCE.replace("description", "description.toHtmlEscaped()")),
                    ("an unknown presence is none", "return description.isEmpty() ? KirvPresence() : "
                     "KirvPresence(only.getId(), only.getDisplay(), only.getIcon(), description);")):
    fault(what, "presenceCarriesItsDescription", change(PRESENCE, wrong))
fault("an unknown configuration has fields", "iconOfAProtocolMayBeMissing",
      change("return {};", "return { KirvField() };", behind="getConfigurationFields"))
fault("a missing icon ends the program", "iconOfAProtocolMayBeMissing",
      change("return iconPath;", 'qFatal("no icon");'), alone=True)

# Which account
LOOKED_UP = "return theHost->account(id, protocol);"
for operation in ("getAccount", "loadAccount"):
    place = f"KirvAccountManager::{operation}("
    fault(f"{operation}() ignores the protocol", "accountIsNamedByLoginAndProtocol",
          change(LOOKED_UP, 'return theHost->account(id, "Memory");', behind=place))
    fault(f"{operation}() gives another account", "accountIsNamedByLoginAndProtocol",
          change(LOOKED_UP, 'return theHost->account(id == "two" ? "one" : id, protocol);', behind=place), alone=True)
ENABLED = "return account && account->enabled;"
fault("an account that is not there is enabled", "accountIsNamedByLoginAndProtocol removedAccountIsGone",
      change(ENABLED, "return !account || account->enabled;"))
fault("a protocol that is not there has accounts", "accountIsNamedByLoginAndProtocol",
      change("return protocol == theHost->protocol.getName() ? theHost->infos() : QList<KirvAccountInfo *>();",
             "return theHost->infos();"))
for operation, value in (("enableAccount", "true"), ("disableAccount", "false")):
    place = f"KirvAccountManager::{operation}("
    right = f"setEnabled(theHost->account(id, protocol), {value});"
    fault(f"{operation}() ignores the protocol", "accountIsNamedByLoginAndProtocol",
          change(right, f'setEnabled(theHost->account(id, "Memory"), {value});', behind=place))
    fault(f"{operation}() adds an account", "accountIsNamedByLoginAndProtocol",
          change(right, f"theHost->addAccount(id, id); setEnabled(theHost->account(id, protocol), {value});", behind=place))
    fault(f"{operation}() takes another account", "accountIsNamedByLoginAndProtocol",
          change(right, f"""setEnabled(theHost->account(id, protocol), {value});
              if (!theHost->account(id, protocol)) setEnabled(theHost->account("one", protocol), {value});""", behind=place))
REMOVE = "if (theHost->account(id, protocol))\n        theHost->removeAccount(id);"
fault("removeAccount() ignores the protocol", "accountIsNamedByLoginAndProtocol",
      change(REMOVE, "theHost->removeAccount(id);"))
fault("removeAccount() takes another account", "accountIsNamedByLoginAndProtocol",
      change(REMOVE, 'theHost->removeAccount(theHost->account(id, protocol) ? id : "one");'))

# New accounts
ADD = "MemoryHost::addAccount("
CREATE = "KirvAccountManager::createAccount("
fault("createAccount() returns null", "createdAccountIsThere", change("return account;", "return nullptr;", behind=CREATE),
      alone=True)
fault("a new account has no alias", "createdAccountIsThere createdAccountIsListedOnce pageShowsTheAccounts",
      change("account->alias = alias;", "account->alias.clear();", behind=ADD))
fault("a new account is disabled",
      "accountIsNamedByLoginAndProtocol createdAccountIsThere createdAccountIsListedOnce pageShowsTheAccounts",
      change("account->enabled = enabled;", "account->enabled = false;", behind=ADD))
for what, noticed in (("password", "createdAccountIsThere takenLoginIsRefused"),
                      ("rememberPassword", "createdAccountIsThere"),
                      ("presence", "createdAccountIsThere"), ("settings", "createdAccountIsThere settingsComeBack")):
    fault(f"a new account drops {what}", noticed, change(f"account->{what} = {what};", "", behind=CREATE))
fault("a new account has the default settings", "createdAccountIsThere",
      change("account->settings = settings;", "account->settings = theHost->protocol.getAccountSettings();", behind=CREATE))
fault("an account has another id", "createdAccountIsThere",
      change("return memory(this)->id;", "return memory(this)->id.toUpper();"))
fault("an account names no protocol", "createdAccountIsThere",
      change("return theHost->protocol.getName();", "return QString();", behind="KirvAccountConnection::getProtocolName()"))
fault("an account has no protocol", "createdAccountIsThere", change("return &theHost->protocol;", "return nullptr;"))
fault("the list lacks accounts", "createdAccountIsListedOnce", change("return order;", "return {};"), alone=True)
fault("the list names accounts twice",
      "createdAccountIsListedOnce takenLoginIsRefused pageShowsTheAccounts", change("return order;", "return order + order;"))
INFO = "info = KirvAccountInfo(id, alias, enabled);"
fault("the list has no alias", "createdAccountIsListedOnce aliasIsChanged pageShowsTheAccounts",
      change(INFO, "info = KirvAccountInfo(id, id, enabled);"))
fault("the list has no disabled account", "enablingIsRepeatable pageShowsTheAccounts",
      change(INFO, "info = KirvAccountInfo(id, alias, true);"))
fault("the list has no enabled account", "createdAccountIsListedOnce enablingIsRepeatable pageShowsTheAccounts",
      change(INFO, "info = KirvAccountInfo(id, alias, false);"))
TAKEN = "if (accounts.contains(id))\n        return nullptr;"
fault("a taken login gives the account", "takenLoginIsRefused",
      change(TAKEN, "if (accounts.contains(id)) return accounts.value(id).get();"))
fault("a taken login changes the alias", "takenLoginIsRefused",
      change(TAKEN, "if (accounts.contains(id)) { accounts.value(id)->alias = alias; return nullptr; }"))
fault("a taken login changes the password", "takenLoginIsRefused",
      change("return account;", 'if (!account) theHost->account(id, "Memory")->password = password; return account;',
             behind=CREATE))

# Changes
for what, before in (("alias", "first->getAlias() < second->getAlias()"),
                     ("state", "first->isEnabled() > second->isEnabled()")):
    fault(f"the list is sorted by {what}", "listKeepsItsOrder", change("return order;", f"""auto sorted = order;
        std::stable_sort(sorted.begin(), sorted.end(), [](KirvAccountInfo *first, KirvAccountInfo *second) {{
            return {before}; }}); return sorted;"""))
SET_ALIAS = "KirvAccountConnection::setAlias("
ALIAS = "memory(this)->alias = alias;"
fault("an alias is not changed", "aliasIsChanged takenLoginIsRefused generalSettingsAreComplete", change(ALIAS, ""))
fault("an alias loses its markup", "aliasIsChanged", change(ALIAS, "memory(this)->alias = alias.toHtmlEscaped();"))
fault("an empty alias is not taken", "aliasIsChanged", change(ALIAS, "if (!alias.isEmpty()) memory(this)->alias = alias;"))
fault("the list has the old alias", "aliasIsChanged", change("memory(this)->refreshInfo();", "", behind=SET_ALIAS))
SET_ENABLED = "void setEnabled("
SWITCHED = "account->enabled = enabled;"
fault("enabling again disables", "enablingIsRepeatable",
      change(SWITCHED, "account->enabled = !account->enabled;", behind=SET_ENABLED))
fault("an account cannot be disabled",
      "accountIsNamedByLoginAndProtocol enablingIsRepeatable mainAccountIsAssigned pageShowsTheAccounts",
      change(SWITCHED, "account->enabled = true;", behind=SET_ENABLED))
fault("an account cannot be enabled again", "enablingIsRepeatable",
      change(SWITCHED, "account->enabled = account->enabled && enabled;", behind=SET_ENABLED))
fault("the list has the old state", "enablingIsRepeatable pageShowsTheAccounts",
      change("account->refreshInfo();", "", behind=SET_ENABLED))
fault("isEnabled() is always true", "enablingIsRepeatable", change("return memory(this)->enabled;", "return true;"))
fault("accountEnabled() is always true", "accountIsNamedByLoginAndProtocol enablingIsRepeatable mainAccountIsAssigned",
      change(ENABLED, "return account != nullptr;"))
fault("a disabled account stays logged in", "disabledAccountIsOffLine",
      change("return memory(this)->enabled && memory(this)->loggedIn;", "return true;"))
SETTINGS = "memory(this)->settings = settings;"
fault("settings are not changed", "settingsComeBack", change(SETTINGS, ""))
fault("settings lose their values", "settingsComeBack",
      change(SETTINGS, "memory(this)->settings = theHost->protocol.getAccountSettings();"))
fault("settings have another order", "createdAccountIsThere settingsComeBack",
      change("""return { KirvField::textEdit(QStringLiteral("Colour"), QStringLiteral("colour"), QStringLiteral("blue"),
                                 QString()) };""",
             'return { KirvField::textEdit("", "size", "", ""), KirvField::textEdit("", "colour", "blue", "") };'),
      change("return memory(this)->settings;", """auto sorted = memory(this)->settings;
        std::sort(sorted.begin(), sorted.end(), [](const KirvField &first, const KirvField &second) {
            return first.getId() < second.getId(); }); return sorted;"""))
MAIN = "KirvAccountManagerPrivate::ampInstance->mainAccount = account;"
fault("no main account is assigned", "mainAccountIsAssigned", change(MAIN, ""))
fault("none cannot be the main account", "mainAccountIsAssigned", change(MAIN, f"if (account) {MAIN}"))
fault("the main account is enabled", "mainAccountIsAssigned", change(MAIN, f"{MAIN} setEnabled(memory(account), true);"))
fault("the main account is another one than that of the state", "mainAccountIsAssigned",
      change(MAIN, "otherMainAccount = account;"),
      change("return KirvAccountManagerPrivate::ampInstance->mainAccount;", "return otherMainAccount;"), alone=True)

# Removed accounts: each of these lets one thing remain, and the others not.
HIDDEN = change(REMOVE, "theHost->globalSettings.insert(id, id);")
WHAT_REMAINS = {
    "accountEnabled()": change(ENABLED, "return !theHost->globalSettings.contains(id) && account && account->enabled;"),
    "getMainAccount()": change("return KirvAccountManagerPrivate::ampInstance->mainAccount;",
                               """KirvAccountConnection *main = KirvAccountManagerPrivate::ampInstance->mainAccount;
                               return main && !theHost->globalSettings.contains(main->getUid()) ? main : nullptr;"""),
    "the list": change("return order;", """QList<KirvAccountInfo *> shown; for (KirvAccountInfo *info : order) {
        if (!globalSettings.contains(info->getId())) shown.append(info); } return shown;"""),
    "its login": change(TAKEN, "if (globalSettings.contains(id)) return accounts.value(id).get();"),
}
for operation in ("getAccount", "loadAccount"):
    WHAT_REMAINS[f"{operation}()"] = change(
        LOOKED_UP, "return theHost->globalSettings.contains(id) ? nullptr : theHost->account(id, protocol);",
        behind=f"KirvAccountManager::{operation}(")
for remaining in WHAT_REMAINS:
    fault(f"a removed account remains in {remaining}", "removedAccountIsGone", HIDDEN,
          *(hidden for what, hidden in WHAT_REMAINS.items() if what != remaining), alone=True)

# Settings
GENERAL = """return { KirvField::textEdit(none, QStringLiteral("alias"), account->alias, none),
             KirvField::password(none, QStringLiteral("password"), account->password, none),
             KirvField::checkBox(none, QStringLiteral("password/remember"), account->rememberPassword, none),
             KirvField::checkBox(none, QStringLiteral("presence/restore"), account->restorePresence, none),
             KirvField::checkBox(none, QStringLiteral("presence/restore_desc"), account->restoreDescription, none) };"""
for kind, key, value in re.findall(r'::(\w+)\(none, QStringLiteral\("([^"]+)"\), account->(\w+)', GENERAL):
    also = " createdAccountIsThere" if value == "rememberPassword" else ""
    fault(f"the general settings lack {key}", "generalSettingsAreComplete",
          change(GENERAL, GENERAL.replace(f'"{key}"', '"x"')))
    old = "true" if kind == "checkBox" else 'QStringLiteral("old")'
    fault(f"the general settings have the old {key}", "generalSettingsAreComplete" + also,
          change(GENERAL, GENERAL.replace(f"account->{value}", old)))
for operation, member, argument in (("setRememberPassword", "rememberPassword", "remember"),
                                    ("setRestoreLastPresence", "restorePresence", "restore"),
                                    ("setRestoreLastDescription", "restoreDescription", "restore")):
    fault(f"{operation}() changes nothing", "generalSettingsAreComplete",
          change(f"memory(this)->{member} = {argument};", "", behind=f"KirvAccountConnection::{operation}("))
fault("a password is not changed", "generalSettingsAreComplete", change("memory(this)->password = password;", ""))
MISSING = "if (!account)\n        return {};"
fault("an account that is not there has settings", "generalSettingsAreComplete",
      change(MISSING, "if (!account) return { KirvField() };", behind="readAccountGlobals("))
fault("the settings ignore the protocol", "generalSettingsAreComplete",
      change(MISSING, 'if (!account) return protocol == "Memory" ? QList<KirvField>() : readAccountGlobals(id, "Memory");',
             behind="readAccountGlobals("))
fault("the folder of the theme has no slash", "themeFolderEndsWithASlash",
      change("return theHost->layouts + QLatin1Char('/');", "return theHost->layouts;"))

# Windows and widgets
LOAD = "KirvUILoader::loadUI("
WINDOW = "return widget;"
fault("a window is no dialog", "layoutsAreBuilt",
      change(WINDOW, "if (parent) return widget; auto *plain = new QWidget; widget->setParent(plain); return plain;",
             behind=LOAD))
fault("a window has another owner", "layoutsAreBuilt",
      change(WINDOW, "if (!parent) widget->setParent(new QWidget); return widget;", behind=LOAD))
fault("a window cannot be saved", "layoutsAreBuilt",
      change(WINDOW, """if (auto *box = widget->findChild<QDialogButtonBox *>())
          box->setStandardButtons(QDialogButtonBox::Cancel); return widget;""", behind=LOAD))
fault("the page is no child of its parent", "layoutsAreBuilt",
      change("if (parent)\n        insertWidget(parent, widget);", "if (parent) widget->setParent(nullptr);"), alone=True)


INSERT = "KirvUILoader::insertWidget("
for what, right, wrong in (
        ("a placeholder does not get its widget", "layout->addWidget(widget);", ""),
        ("a widget keeps its height", "layout->addWidget(widget);", "layout->addWidget(widget, 0, Qt::AlignTop);"),
        ("a placeholder has margins", "layout->setContentsMargins(0, 0, 0, 0);", "layout->setContentsMargins(1, 1, 1, 1);")):
    fault(what, "widgetFillsItsPlaceholder", change(right, wrong, behind=INSERT))
EDITED = "edited[i].setText(d->edits.at(i)->text());"
fault("a form interprets markup", "fieldsComeBackFromTheForm",
      change(EDITED, "edited[i].setText(d->edits.at(i)->text().toHtmlEscaped());"))
for kind, wrong in (("Password", "edited[i].setText(QString());"), ("CheckBox", "edited[i].setChecked(false);"),
                    ("Choice", "edited[i].setText(edited.at(i).getValues().value(0));"),
                    ("Number", "edited[i].setText(QString::number(edited.at(i).getMinimum()));"),
                    ("Label", "edited[i].setText(QString());"),
                    ("MultiLine", "edited[i].setText(d->edits.at(i)->text().simplified());")):
    fault(f"a form changes a {kind}", "fieldsComeBackFromTheForm",
          change(EDITED, f"{EDITED} if (edited.at(i).getKind() == KirvField::{kind}) {wrong}"))
EMPTIED = "while (d->form->rowCount() > 0)\n        d->form->removeRow(0);"
fault("a form keeps what it had when there is nothing", "formIsFilledAnew",
      change(EMPTIED, f"if (fields.isEmpty()) return; {EMPTIED}"))
fault("a form adds to what it had", "formIsFilledAnew", change(EMPTIED, f"""{EMPTIED}
    if (!d->fields.isEmpty() && !fields.isEmpty()) {{
        const QList<KirvField> all = d->fields + fields; d->fields.clear(); return fillWithFields(all); }}"""))
fault("a picture that is set is a choice of the user", "avatarMayBeMissing",
      change("setImage(const QString &) { }", "setImage(const QString &path) { if (@) Q_EMIT imageSelected(path); }"))

# The page
fault("the list lacks disabled accounts", "pageShowsTheAccounts", change("return order;", """
    QList<KirvAccountInfo *> shown; for (KirvAccountInfo *info : order) { if (info->isEnabled()) shown.append(info); }
    return shown;"""), alone=True)


def add_faults_of_children(layouts):
    """Every child that the document LAYOUTS calls required is missing, and is of another class."""
    rows = re.findall(r"^\| `(\w+)` \| `(\w+)` \| required", layouts.read_text(encoding="utf-8"), re.MULTILINE)
    for name, class_name in rows:
        found = f'if (auto *child = widget->findChild<QWidget *>("{name}")) '
        fault(f"{name} is missing", "layoutsAreBuilt",
              change(WINDOW, f"{found}delete child; return widget;", behind=LOAD), alone=True)
        if class_name != "QWidget":
            fault(f"{name} is no {class_name}", "layoutsAreBuilt",
                  change(WINDOW, f"""{found}{{
                      child->setObjectName(QString()); (new QWidget(widget))->setObjectName("{name}"); }}
                      return widget;""", behind=LOAD), alone=True)
