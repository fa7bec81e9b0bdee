// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_instance_message.h"

#include <QJsonDocument>

namespace {
const QLatin1String versionKey("version");
}

QByteArray KirvInstanceMessage::toLine(const QJsonObject &message)
{
    QJsonObject complete = message;
    complete.insert(versionKey, version);
    return QJsonDocument(complete).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject KirvInstanceMessage::fromLine(const QByteArray &line, QString *problem)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    const QJsonValue itsVersion = document.object().value(versionKey);
    if (!itsVersion.isDouble())
        *problem = tr("The message of the other program cannot be read.");
    else if (itsVersion.toDouble() != version)
        *problem = tr("The program that runs with this profile has another version. Quit it, and try again.");
    return problem->isEmpty() ? document.object() : QJsonObject();
}

QJsonObject KirvInstanceMessage::refusal(const QString &problem)
{
    return { { QStringLiteral("problem"), problem } };
}

QJsonObject KirvInstanceMessage::unknownCommand()
{
    return refusal(tr("The program that runs with this profile does not have that command."));
}
