// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRAM_H
#define KIRV_SCRAM_H

#include <QByteArray>
#include <QByteArrayList>
#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <QPasswordDigestor>

/// The element \a name of an XMPP log-in, with \a content.
inline QByteArray kirvSaslElement(const QByteArray &name, const QByteArray &content = QByteArray())
{
    return '<' + name + " xmlns='urn:ietf:params:xml:ns:xmpp-sasl'>" + content.toBase64() + "</" + name + '>';
}

/// The ways to log in that an XMPP server offers.
inline QByteArray kirvMechanisms(const QByteArrayList &names)
{
    return "<mechanisms xmlns='urn:ietf:params:xml:ns:xmpp-sasl'><mechanism>" + names.join("</mechanism><mechanism>")
        + "</mechanism></mechanisms>";
}

/// A server's side of SCRAM, as far as its messages differ from those of a good one.
struct KirvScram {
    QByteArray password = "secret"; ///< that the server knows
    QByteArray rounds = "4096";
    QByteArray mechanism = "SCRAM-SHA-1";
    QCryptographicHash::Algorithm hash = QCryptographicHash::Sha1; ///< of the mechanism
    QByteArray noncePrefix; ///< before the client's nonce
    QByteArray padding; ///< at the end of the challenge
    bool sendsChallenge = true;
    bool repeatsChallenge = false; ///< in the place of an end
    bool provesInChallenge = false; ///< in the place of the end
    bool proves = true;

    /// The reply to \a received, which is one element.
    QByteArray answer(const QByteArray &received)
    {
        const int begin = received.indexOf('>') + 1;
        const QByteArray message = QByteArray::fromBase64(received.mid(begin, received.lastIndexOf('<') - begin));
        if (received.contains("<auth")) {
            clientFirst = message.mid(int(qstrlen("n,,")));
            const QByteArray nonce = clientFirst.mid(clientFirst.indexOf(",r=") + 3);
            serverFirst = "r=" + noncePrefix + nonce + "srv,s=c2FsdA==,i=" + rounds + padding;
            return kirvSaslElement(sendsChallenge ? "challenge" : "success",
                                   sendsChallenge ? serverFirst : QByteArray());
        }
        if (repeatsChallenge)
            return kirvSaslElement("challenge", serverFirst);
        if (message.isEmpty())
            return kirvSaslElement("success"); // the proof was sent
        if (!proves)
            return kirvSaslElement("success");
        return kirvSaslElement(provesInChallenge ? "challenge" : "success", "v=" + proof(message).toBase64());
    }

private:
    QByteArray hashed(const QByteArray &message, const QByteArray &key) const
    {
        return QMessageAuthenticationCode::hash(message, key, hash);
    }
    QByteArray proof(const QByteArray &clientFinal) const
    {
        const int length = QCryptographicHash::hashLength(hash);
        const QByteArray key =
            QPasswordDigestor::deriveKeyPbkdf2(hash, password, "salt", rounds.toInt(), quint64(length));
        const QByteArray withoutProof = clientFinal.left(clientFinal.indexOf(",p="));
        return hashed(clientFirst + ',' + serverFirst + ',' + withoutProof, hashed("Server Key", key));
    }

    QByteArray clientFirst;
    QByteArray serverFirst;
};

#endif
