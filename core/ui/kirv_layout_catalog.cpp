// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_catalog.h"

#include "core/ui/kirv_layout_dialog.h"
#include "core/ui/kirv_layout_file.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QWidget>

namespace {

enum Need { Required, Optional };

/// A child by which the page or a dialog drives its window. An optional one may be absent, but not of another
/// class: code that found no child of the class would then silently do without what the user sees.
struct Child {
    const char *name;
    const char *className;
    Need need;
};

struct Layout {
    const char *name;
    const char *topClass;
    QList<Child> children;
};

const QList<Layout> &layouts()
{
    static const QList<Layout> table {
        { "Accounts",
          "QWidget",
          { { "Accounts_List", "QTreeWidget", Required },
            { "Accounts_AddButton", "QToolButton", Required },
            { "Accounts_EditButton", "QToolButton", Required },
            { "Accounts_RemoveButton", "QToolButton", Required },
            { "Accounts_MainAccount", "QComboBox", Optional },
            { "Accounts_RegisterButton", "QToolButton", Optional } } },
        { "AddAccount",
          "QDialog",
          { { "AddAccount_UsernameEdit", "QLineEdit", Required },
            { "AddAccount_PasswordEdit", "QLineEdit", Required },
            { "AddAccount_RememberPasswordCheckbox", "QCheckBox", Required },
            { "AddAccount_PresenceCombo", "QComboBox", Required },
            { "AddAccount_ConfigurationLabel", "QLabel", Required },
            { "AddAccount_Configuration", "QComboBox", Required },
            { "AddAccount_ButtonFrame", "QDialogButtonBox", Required },
            { "AddAccount_LoginFrame", "QWidget", Required } } },
        { "EditAccount",
          "QDialog",
          { { "EditAccount_Alias", "QLineEdit", Required },
            { "EditAccount_AvatarPlacement", "QWidget", Required },
            { "EditAccount_Password", "QLineEdit", Required },
            { "EditAccount_RememberPassword", "QCheckBox", Required },
            { "EditAccount_RememberPresence", "QCheckBox", Required },
            { "EditAccount_RememberDescription", "QCheckBox", Required },
            { "EditAccount_FrameButtons", "QDialogButtonBox", Required },
            { "EditAccount_Tabs", "QTabWidget", Required },
            { "EditAccount_Identifier", "QLabel", Required },
            { "EditAccount_PresenceCombo", "QComboBox", Required },
            { "EditAccount_DescriptionEdit", "QTextEdit", Required },
            { "EditAccount_PubDirResults", "QWidget", Required },
            { "EditAccount_AccSettings", "QWidget", Required },
            { "EditAccount_PubDirControls", "QWidget", Optional },
            { "EditAccount_PubDirStatus", "QLabel", Optional },
            { "EditAccount_PubDirFetch", "QAbstractButton", Optional },
            { "EditAccount_PubDirDelete", "QAbstractButton", Optional } } },
    };
    return table;
}

const Layout *findLayout(const QString &name)
{
    for (const Layout &layout : layouts()) {
        if (name == QLatin1String(layout.name))
            return &layout;
    }
    return nullptr;
}

QString missingChild(const Child &child, const QWidget *top)
{
    const QString name = QLatin1String(child.name);
    const QString className = QLatin1String(child.className);
    const QList<QWidget *> found = top->findChildren<QWidget *>(name);
    for (const QWidget *widget : found) {
        if (widget->inherits(child.className))
            return QString();
    }
    if (!found.isEmpty())
        return KirvLayoutCatalog::tr("\"%1\" is a %2, but must be a %3.")
            .arg(name, QLatin1String(found.first()->metaObject()->className()), className);
    if (child.need == Optional)
        return QString();
    return KirvLayoutCatalog::tr("There is no %1 named \"%2\".").arg(className, name);
}

/// What the classes alone do not show: the parts of a found child that the dialogs use without a test.
QStringList missingParts(const QWidget *top)
{
    struct Button {
        const char *box;
        QDialogButtonBox::StandardButton button;
        const char *text;
    };
    static const Button buttons[] = {
        { "AddAccount_ButtonFrame", QDialogButtonBox::Save, "Save" },
        { "EditAccount_FrameButtons", QDialogButtonBox::Save, "Save" },
        { "EditAccount_FrameButtons", QDialogButtonBox::Cancel, "Cancel" },
    };

    QStringList missing;
    for (const Button &button : buttons) {
        const auto *box = top->findChild<QDialogButtonBox *>(QLatin1String(button.box));
        if (box && !box->button(button.button))
            missing += KirvLayoutCatalog::tr("\"%1\" has no standard button %2.")
                           .arg(QLatin1String(button.box), QLatin1String(button.text));
    }
    const auto *tabs = top->findChild<QTabWidget *>(QStringLiteral("EditAccount_Tabs"));
    if (tabs && tabs->count() < 2)
        missing += KirvLayoutCatalog::tr("\"%1\" needs two tabs: the account and its directory entry.")
                       .arg(tabs->objectName());
    return missing;
}

QWidget *finished(const QString &name, std::unique_ptr<QWidget> top, QWidget *parent)
{
    top->setObjectName(name);
    if (parent)
        top->setParent(parent, top->inherits("QDialog") ? top->windowFlags() : Qt::Widget);
    return top.release();
}

QPointer<KirvLayoutCatalog> currentCatalog;

} // namespace

KirvLayoutCatalog::KirvLayoutCatalog(QObject *parent)
    : QObject(parent)
{
    currentCatalog = this;
}

KirvLayoutCatalog *KirvLayoutCatalog::instance()
{
    return currentCatalog;
}

QStringList KirvLayoutCatalog::names()
{
    QStringList names;
    for (const Layout &layout : layouts())
        names += QLatin1String(layout.name);
    return names;
}

void KirvLayoutCatalog::setOverrideFolder(const QString &folder)
{
    overrideFolder = folder;
}

QWidget *KirvLayoutCatalog::build(const QString &name, QWidget *parent)
{
    QStringList reasons;
    QWidget *top = buildOverride(name, parent, &reasons);
    if (!top)
        top = buildBuiltIn(name, parent);
    if (!top)
        return nullptr;
    Q_EMIT windowBuilt(name, top);
    if (!reasons.isEmpty())
        Q_EMIT overrideRejected(
            name,
            tr("The layout file %1 cannot be used; the built-in layout takes its place.\n%2")
                .arg(QDir::toNativeSeparators(overrideFile(name)), reasons.join(QLatin1Char('\n'))));
    return top;
}

QString KirvLayoutCatalog::overrideFile(const QString &name) const
{
    return QDir(overrideFolder).filePath(name + QLatin1String(".ui"));
}

/// Null without \a reasons when there is no override.
QWidget *KirvLayoutCatalog::buildOverride(const QString &name, QWidget *parent, QStringList *reasons) const
{
    if (!findLayout(name) || overrideFolder.isEmpty() || !QFileInfo(overrideFile(name)).exists())
        return nullptr;
    KirvLayoutFile file(overrideFile(name));
    std::unique_ptr<QWidget> top = file.build();
    *reasons = top ? missingIn(name, top.get()) : QStringList(file.problem());
    return reasons->isEmpty() ? finished(name, std::move(top), parent) : nullptr;
}

QWidget *KirvLayoutCatalog::buildBuiltIn(const QString &name, QWidget *parent)
{
    if (!findLayout(name))
        return nullptr;
    return finished(name, KirvLayoutFile(QStringLiteral(":/kirv/layouts/%1.ui").arg(name)).build(), parent);
}

QStringList KirvLayoutCatalog::missingIn(const QString &name, const QWidget *top)
{
    const Layout *layout = findLayout(name);
    if (!layout)
        return QStringList();
    QStringList missing;
    // A dialog of another class could not be guarded by a companion.
    const bool isDialog = layout->topClass == QLatin1String("QDialog");
    if (isDialog ? !qobject_cast<const KirvLayoutDialog *>(top) : !top->inherits(layout->topClass))
        missing += tr("The window is a %1, but must be a %2.")
                       .arg(QLatin1String(top->metaObject()->className()), QLatin1String(layout->topClass));
    for (const Child &child : layout->children) {
        const QString sentence = missingChild(child, top);
        if (!sentence.isEmpty())
            missing += sentence;
    }
    return missing + missingParts(top);
}
