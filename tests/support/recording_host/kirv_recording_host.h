// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RECORDING_HOST_H
#define KIRV_RECORDING_HOST_H

#include "host/kirv_account_info.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_settings_manager.h"
#include "tests/support/recording_host/kirv_recording_account.h"
#include "tests/support/recording_host/kirv_recording_protocol.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QWidget;

/// What the layouts lack or have in another form, so that tests can take away one thing at a time.
struct KirvLayoutScript {
    /// Object names of widgets that are left out; a layout's name, which is that of its top widget, leaves it out
    /// whole.
    QSet<QString> omitted;
    /// Whether the login frame has a QFormLayout; otherwise a QVBoxLayout.
    bool loginFrameHasForm = true;
    /// Called at the end of loadUI(), before it returns, with the top widget that it built; null calls nothing.
    std::function<void(QWidget *)> announce;
};

/// A client core that writes down every call of the contract, in order and with its arguments, and answers as a
/// test tells it to. One lives at a time; while it lives, it stands behind all of host/.
///
/// A call is written "operation(argument, argument)", those of an account "id@protocol.operation(...)", those of a
/// protocol "name.operation(...)". A null string is written null, an empty one "".
class KirvRecordingHost {
public:
    KirvRecordingHost();
    ~KirvRecordingHost();
    static KirvRecordingHost &instance();

    /// Everything called so far, or only the calls of the operations named (without their owner).
    QStringList calls() const;
    QStringList calls(const QSet<QString> &operations) const;
    /// The calls that change or send something; reading leaves no trace in them.
    QStringList effects() const;
    int count(const QString &call) const { return int(calls().count(call)); }
    void forgetCalls();

    /// Runs \a hook inside every call of \a operation from now on, before the host does its part. A null hook ends it.
    void hook(const QString &operation, const std::function<void()> &hook);

    KirvRecordingProtocol *addProtocol(const QString &name);
    /// The protocol is no longer found by its name; the object stays.
    void unloadProtocol(const QString &name);
    KirvRecordingProtocol *findProtocol(const QString &name) const;

    /// An account that is configured, enabled and loaded; its alias is "Alias of ID".
    KirvRecordingAccount *addAccount(const QString &id, const QString &protocol);
    KirvRecordingAccount *findAccount(const QString &id, const QString &protocol) const;
    void removeAccount(const QString &id, const QString &protocol);

    bool acceptsNewAccounts = true;
    bool enablesAccounts = true;
    bool disablesAccounts = true;
    QString rosterThemeDir = QStringLiteral("/theme/");
    KirvLayoutScript layouts;

    /// What was given to writeGlobalSetting(), in order.
    QList<KirvField> writtenSettings;

    /// Called by the operations of the contract.
    void record(const QString &owner, const QString &operation, const QStringList &arguments);
    QList<KirvAccountInfo *> infosOf(const QString &protocol);

private:
    Q_DISABLE_COPY(KirvRecordingHost)

    struct Call {
        QString operation;
        QString text;
    };

    std::vector<Call> log;
    QHash<QString, std::function<void()>> hooks;
    std::vector<std::unique_ptr<KirvRecordingProtocol>> protocols;
    QSet<QString> unloaded;
    std::vector<std::unique_ptr<KirvRecordingAccount>> accounts;
    std::vector<std::unique_ptr<KirvAccountInfo>> infos;
    KirvAccountManagerPrivate accountManagerPrivate;
    KirvPluginManagerPrivate pluginManagerPrivate;
    KirvSettingsManagerPrivate settingsManagerPrivate;
};

/// How arguments are written in the log.
QString kirvWritten(const QString &text);
QString kirvWritten(bool value);
QString kirvWritten(const KirvField &field);
QString kirvWritten(const QList<KirvField> &fields);
QString kirvWritten(const KirvPresence &presence);
QString kirvWritten(const KirvAccountConnection *account);

#endif
