// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client_start.h"

#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_instance_commands.h"
#include "client/kirv_profile_command.h"
#include "client/kirv_rescue_window.h"
#include "client/kirv_running_instance.h"
#include "client/kirv_settings_window.h"

#include <QDeadlineTimer>
#include <QThread>

namespace {
const int millisecondsForTheOther = 10000;
const int millisecondsBetweenAttempts = 50;
}

bool kirvStartClient(KirvClient &client, const KirvClientOptions &options, bool hasDisplay, int *status)
{
    const QDeadlineTimer patience(millisecondsForTheOther);
    while (!client.start()) {
        QString problem = client.errorString();
        if (client.isProfileInUse()) {
            QString refusal;
            if (KirvRunningInstance::handOver(options.profileFolder, options.linkText, millisecondsForTheOther,
                                              &refusal)) {
                *status = KirvProfileCommand::Success;
                return false;
            }
            if (!refusal.isEmpty()) {
                problem = refusal;
            } else if (KirvRunningInstance::canMeet(options.profileFolder) && !patience.hasExpired()) {
                // A command that was started without windows has the profile open for some moments.
                QThread::msleep(millisecondsBetweenAttempts);
                continue;
            }
        }
        if (!client.isProfileDamaged()) {
            KirvApplication::reportFatal(problem);
            *status = KirvProfileCommand::Refused;
            return false;
        }
        if (!hasDisplay) {
            *status = KirvProfileCommand(options).reportDamage(client.errorString());
            return false;
        }
        KirvRescueWindow window(options.profileFolder, client.errorString());
        if (window.exec() != QDialog::Accepted) {
            *status = window.isRepaired() ? KirvProfileCommand::Success : KirvProfileCommand::Damaged;
            return false;
        }
    }
    return true;
}

int kirvRunClient(const KirvClientOptions &options, bool hasDisplay)
{
    KirvClientOptions current = options;
    int status = 0;
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        KirvClient client(current);
        QObject::connect(&client, &KirvClient::continuationRequested, [&](const QString &folder) {
            current.profileFolder = folder;
            current.link = KirvAccountLink();
            goesOn = true;
            KirvApplication::exit();
        });
        if (!kirvStartClient(client, current, hasDisplay, &status))
            return status;
        KirvRunningInstance instance(current.profileFolder);
        const KirvInstanceCommands commands(client, instance);
        client.window()->show();
        status = KirvApplication::exec();
    }
    return status;
}
