// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REGISTRATION_H
#define KIRV_REGISTRATION_H

#include "host/kirv_arg.h"

#include <QList>
#include <QObject>
#include <QPointer>

class KirvPluginLoader;
class KirvRegistrationChooser;
class QWidget;

/// Leads the core signal "register_account", which says nothing about a protocol, to the one that the user
/// means: at once when one protocol offers a registration, after a choice when several do.
class KirvRegistration : public QObject {
    Q_OBJECT

public:
    /// \a plugins is not owned and outlives this. \a window is the parent of what is asked and owns this.
    KirvRegistration(KirvPluginLoader &plugins, QWidget *window);
    ~KirvRegistration() override;

Q_SIGNALS:
    /// No loaded protocol offers a registration; \a text says so to the user.
    void unavailable(const QString &text);

private:
    bool mayPass(const QString &signal, const QList<KirvArg> &arguments);
    void choose();
    void choiceFinished(int result);

    KirvPluginLoader &plugins;
    QWidget *window;
    QPointer<KirvRegistrationChooser> chooser;
};

#endif
