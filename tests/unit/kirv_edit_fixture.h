// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EDIT_FIXTURE_H
#define KIRV_EDIT_FIXTURE_H

#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>

/// The page with the account alice of XMPP, which has settings and a directory, and the edit dialog over it.
class KirvEditFixture : public KirvPageFixture {
public:
    KirvEditFixture();

    KirvRecordingAccount *alice;

    /// Opens the account's edit dialog.
    void open(const QString &id = QStringLiteral("alice"), const QString &protocol = QStringLiteral("XMPP"));
    KirvEditAccountDialog *dialog() { return page()->getAccEdit(); }

    QPointer<QDialog> window;
    template <typename Widget>
    Widget *child(const char *role) const
    {
        return window->findChild<Widget *>(QLatin1String("EditAccount_") + QLatin1String(role));
    }
    QPushButton *button(QDialogButtonBox::StandardButton which) const
    {
        return child<QDialogButtonBox>("FrameButtons")->button(which);
    }
    KirvFieldWidget *form(const char *placeholder) const
    {
        return child<QWidget>(placeholder)->findChild<KirvFieldWidget *>();
    }
    KirvFieldWidget *settingsForm() const { return form("AccSettings"); }
    KirvFieldWidget *directoryForm() const { return form("PubDirResults"); }
    QTabWidget *tabs() const { return child<QTabWidget>("Tabs"); }
    bool call(const char *slot) { return QMetaObject::invokeMethod(dialog(), slot); }

    static KirvField text(const QString &id, const QString &value);
    static KirvField check(const QString &id, bool checked);
};

inline KirvField KirvEditFixture::text(const QString &id, const QString &value)
{
    return KirvField::textEdit(QString(), id, value, QString());
}

inline KirvField KirvEditFixture::check(const QString &id, bool checked)
{
    return KirvField::checkBox(QString(), id, checked, QString());
}

inline KirvEditFixture::KirvEditFixture()
    : alice(host.addAccount(QStringLiteral("alice"), QStringLiteral("XMPP")))
{
    xmpp->pubdirFields = { text("name", ""), text("town", "") };
    alice->settings = { text("server", "example.org"), check("tls", true) };
    alice->globals = { text("alias", "Work"), text("password", "secret"), check("password/remember", true),
                       check("presence/restore", false), check("presence/restore_desc", false) };
    alice->defaultPresence = xmpp->presence("away", "at lunch");
    alice->avatarPath = QStringLiteral("/avatars/alice.png");
    page();
    host.forgetCalls();
}

inline void KirvEditFixture::open(const QString &id, const QString &protocol)
{
    new KirvEditAccountDialog(id, protocol, page(), Qt::Sheet);
    const QList<QDialog *> windows = page()->findChildren<QDialog *>(QStringLiteral("EditAccount"));
    window = windows.isEmpty() ? nullptr : windows.last();
}

#endif
