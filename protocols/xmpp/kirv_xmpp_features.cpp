// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_features.h"

#include <QDomElement>
#include <QStringList>

namespace {

const QStringList usedFeatures {
    QStringLiteral("urn:ietf:params:xml:ns:xmpp-tls"),        QStringLiteral("urn:ietf:params:xml:ns:xmpp-sasl"),
    QStringLiteral("urn:ietf:params:xml:ns:xmpp-bind"),       QStringLiteral("urn:ietf:params:xml:ns:xmpp-session"),
    QStringLiteral("http://jabber.org/features/iq-register"),
};

/// Whether this way to log in sends a secret that can be read along and used again.
bool sendsSecret(const QString &mechanism)
{
    const QString name = mechanism.trimmed().toUpper();
    return name == QLatin1String("PLAIN") || name == QLatin1String("LOGIN") || name.contains(QLatin1String("OAUTH"))
        || name.startsWith(QLatin1String("X-"));
}

} // namespace

bool kirvXmppReduceFeatures(QDomElement &features, bool sendsPasswords)
{
    bool isOffered = false;
    bool isLeft = false;
    QDomElement next;
    for (QDomElement feature = features.firstChildElement(); !feature.isNull(); feature = next) {
        next = feature.nextSiblingElement();
        if (!usedFeatures.contains(feature.namespaceURI())) {
            features.removeChild(feature);
            continue;
        }
        if (feature.localName() != QLatin1String("mechanisms"))
            continue;
        QDomElement nextWay;
        for (QDomElement way = feature.firstChildElement(); !way.isNull(); way = nextWay) {
            nextWay = way.nextSiblingElement();
            isOffered = true;
            if (!sendsPasswords && sendsSecret(way.text()))
                feature.removeChild(way);
            else
                isLeft = true;
        }
    }
    return isLeft || !isOffered;
}
