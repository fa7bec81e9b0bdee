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

/// The ways to log in, the best first. Others that the library knows have no use for a password, or hand it to others.
const QStringList usedMechanisms { QStringLiteral("SCRAM-SHA-512"), QStringLiteral("SCRAM-SHA-256"),
                                   QStringLiteral("SCRAM-SHA-1"), QStringLiteral("DIGEST-MD5"),
                                   QStringLiteral("PLAIN") };

/// The place of \a mechanism among those that are used; -1 when it is none of them.
int rankOf(const QString &mechanism, bool sendsPasswords)
{
    const bool isForbidden = !sendsPasswords && mechanism == usedMechanisms.last();
    return isForbidden ? -1 : int(usedMechanisms.indexOf(mechanism));
}

/// Leaves one of \a mechanisms, the children of an element; its name, or an empty one.
QString leaveBest(QDomElement &mechanisms, bool sendsPasswords)
{
    QDomElement best;
    int bestRank = -1;
    QDomElement next;
    for (QDomElement way = mechanisms.firstChildElement(); !way.isNull(); way = next) {
        next = way.nextSiblingElement();
        const int rank = rankOf(way.text(), sendsPasswords);
        const bool isBetter = rank >= 0 && (bestRank < 0 || rank < bestRank);
        mechanisms.removeChild(isBetter ? best : way);
        if (isBetter) {
            best = way;
            bestRank = rank;
        }
    }
    return usedMechanisms.value(bestRank);
}

} // namespace

bool kirvXmppReduceFeatures(QDomElement &features, bool sendsPasswords, QString *mechanism)
{
    mechanism->clear();
    bool isOffered = false;
    QDomElement next;
    for (QDomElement feature = features.firstChildElement(); !feature.isNull(); feature = next) {
        next = feature.nextSiblingElement();
        const bool isMechanisms = feature.localName() == QLatin1String("mechanisms");
        if (!usedFeatures.contains(feature.namespaceURI()) || (isMechanisms && isOffered)) {
            features.removeChild(feature);
        } else if (isMechanisms && !feature.firstChildElement().isNull()) {
            isOffered = true;
            *mechanism = leaveBest(feature, sendsPasswords);
        }
    }
    return !mechanism->isEmpty() || !isOffered;
}
