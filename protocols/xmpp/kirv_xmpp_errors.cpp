// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_errors.h"

#include <QDomElement>
#include <QStringList>
#include <algorithm>

KirvXmppError::KirvXmppError(const QDomElement &error, const QString &space)
{
    for (QDomElement child = error.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.namespaceURI() != space)
            continue;
        if (child.localName() == QLatin1String("text"))
            text = child.text();
        else if (condition.isEmpty())
            condition = child.localName();
    }
}

QString KirvXmppError::sentence() const
{
    if (!text.isEmpty())
        return text;
    if (condition == QLatin1String("conflict"))
        return tr("the name is already in use");
    if (condition == QLatin1String("not-acceptable") || condition == QLatin1String("bad-request"))
        return tr("the server does not accept what was sent");
    if (condition == QLatin1String("not-allowed") || condition == QLatin1String("forbidden"))
        return tr("the server does not allow it");
    if (condition == QLatin1String("resource-constraint") || condition == QLatin1String("policy-violation"))
        return tr("the server does not allow it now");
    return condition;
}

bool KirvXmppError::isConflict() const
{
    const QStringList words { QStringLiteral("replaced"), QStringLiteral("new connection"), QStringLiteral("resource"),
                              QStringLiteral("conflict") };
    return condition == QLatin1String("conflict")
        && (text.isEmpty() || std::any_of(words.begin(), words.end(), [this](const QString &word) {
                return text.contains(word, Qt::CaseInsensitive);
            }));
}

KirvFailure KirvXmppError::requestFailure() const
{
    if (condition == QLatin1String("feature-not-implemented") || condition == QLatin1String("service-unavailable"))
        return KirvFailure(KirvFailure::NotSupported, text);
    return KirvFailure(KirvFailure::RequestFailed, sentence());
}

KirvFailure KirvXmppError::loginFailure() const
{
    if (condition == QLatin1String("account-disabled"))
        return KirvFailure(KirvFailure::AccessDenied, text);
    if (condition == QLatin1String("temporary-auth-failure"))
        return KirvFailure(KirvFailure::Other, sentence());
    if (condition == QLatin1String("encryption-required"))
        return KirvFailure(KirvFailure::BadSettings, tr("the server requires encryption"));
    if (condition.contains(QLatin1String("mechanism")))
        return KirvFailure::AuthenticationNotOffered;
    return KirvFailure::WrongPassword;
}
