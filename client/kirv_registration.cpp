// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_registration.h"

#include "client/kirv_registration_chooser.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/plugins/kirv_plugin_loader.h"

namespace {
const QLatin1String registerSignal("register_account");

QList<KirvProtocolBase *> offering(const KirvPluginLoader &plugins)
{
    QList<KirvProtocolBase *> protocols = plugins.protocols();
    for (int i = int(protocols.size()) - 1; i >= 0; --i) {
        if (!protocols.at(i)->offersRegistration())
            protocols.removeAt(i);
    }
    return protocols;
}
} // namespace

KirvRegistration::KirvRegistration(KirvPluginLoader &plugins, QWidget *window)
    : QObject(window)
    , plugins(plugins)
    , window(window)
{
    plugins.setCoreSignalFilter(
        [this](const QString &signal, const QList<KirvArg> &arguments) { return mayPass(signal, arguments); });
    connect(&plugins, &KirvPluginLoader::protocolAboutToBeUnloaded, this, [this](KirvProtocolBase *protocol) {
        if (chooser)
            chooser->removeProtocol(protocol->getName());
    });
}

KirvRegistration::~KirvRegistration()
{
    plugins.setCoreSignalFilter(nullptr);
}

bool KirvRegistration::mayPass(const QString &signal, const QList<KirvArg> &arguments)
{
    if (signal != registerSignal || !arguments.isEmpty())
        return true;
    const int offers = int(offering(plugins).size());
    if (offers == 0)
        emit unavailable(tr("None of the loaded plug-ins can register a new account."));
    else if (offers > 1)
        choose();
    return offers == 1;
}

void KirvRegistration::choose()
{
    if (chooser) {
        chooser->activateWindow();
        return;
    }
    chooser = new KirvRegistrationChooser(offering(plugins), window);
    connect(chooser, &QDialog::finished, this, &KirvRegistration::choiceFinished);
    chooser->open();
}

void KirvRegistration::choiceFinished(int result)
{
    const QString protocol = chooser->protocol();
    chooser->deleteLater();
    chooser = nullptr;
    if (result == QDialog::Accepted && !protocol.isEmpty())
        plugins.emitCoreSignal(registerSignal, { KirvArg(protocol) });
}
