// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_HOSTILE_XMPP_SERVER_H
#define KIRV_HOSTILE_XMPP_SERVER_H

#include "tests/support/servers/kirv_hostile_server.h"

/// A server that sends one client what it should not, on a thread of its own and in bounded memory.
///
/// The client is logged in as ann@localhost/Kirv, whatever its password is, or attacked before that. The start and
/// then the block, again and again until the total is reached, are sent; a ping with the id "digested" follows, so
/// that its reply shows when the client is through.
class KirvHostileXmppServer : public KirvHostileServer {
public:
    enum Time {
        BeforeEncryption, ///< in place of the first features
        BeforeLogIn, ///< in place of the features after encryption, or of the first ones without it
        AfterLogIn, ///< when the client has sent its first presence
        InReply ///< when the client fetches its entry; "%id" in the start stands for the id
    };
    struct Attack {
        QByteArray start;
        QByteArray block; ///< sent as it is, over and over
        qint64 total = 0; ///< bytes of blocks; rounded up to whole ones
        Time time = AfterLogIn;
        bool readsReplies = true; ///< whether what the client sends during the attack is read
    };

    /// Encrypted when there is a \a certificateFile, which is PEM as the key is.
    explicit KirvHostileXmppServer(const Attack &attack, const QString &certificateFile = QString(),
                                   const QString &keyFile = QString())
        : KirvHostileServer(certificateFile, keyFile)
        , attack(attack)
    {
        listen();
    }
    ~KirvHostileXmppServer() override { end(); }

    /// Whether everything was sent.
    bool isSpent() const { return spent; }

private:
    void serve(QSslSocket &socket) override
    {
        while (isAlive(socket) && !spent) {
            socket.waitForReadyRead(20);
            answer(socket, socket.readAll());
        }
        while (isAlive(socket)) {
            socket.waitForReadyRead(20);
            note(socket.readAll());
        }
    }

    static QByteArray attribute(const QByteArray &text, const QByteArray &name)
    {
        const QByteArray start = ' ' + name + "=\"";
        const int begin = text.indexOf(start) + start.size();
        return begin < start.size() ? QByteArray() : text.mid(begin, text.indexOf('"', begin) - begin);
    }

    /// The client waits for every reply, so that what it sends comes whole and alone, but for its first requests.
    void answer(QSslSocket &socket, const QByteArray &received)
    {
        if (received.contains("<stream:stream"))
            openStream(socket);
        else if (received.contains("<starttls"))
            encrypt(socket);
        else if (received.contains("<auth"))
            socket.write("<success xmlns='urn:ietf:params:xml:ns:xmpp-sasl'/>");
        else if (received.contains("urn:ietf:params:xml:ns:xmpp-bind"))
            socket.write("<iq type='result' id='" + attribute(received, "id")
                         + "'><bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'><jid>ann@localhost/Kirv</jid></bind>"
                           "</iq>");
        isLoggedIn = isLoggedIn || received.contains("<auth");
        // The log-in waits for a reply about personal events, which never comes, before it fetches the entry.
        const int entry = received.indexOf("<vCard");
        if (attack.time == InReply ? entry >= 0 : received.contains("<presence"))
            strike(socket, attribute(received.mid(qMax(0, received.lastIndexOf("<iq", entry))), "id"));
    }

    void openStream(QSslSocket &socket)
    {
        socket.write("<?xml version='1.0'?><stream:stream xmlns='jabber:client' "
                     "xmlns:stream='http://etherx.jabber.org/streams' id='1' from='localhost' version='1.0'>");
        const bool offersEncryption = encrypts() && !socket.isEncrypted();
        if (!isLoggedIn && attack.time == (offersEncryption ? BeforeEncryption : BeforeLogIn))
            return strike(socket);
        QByteArray features = "<mechanisms xmlns='urn:ietf:params:xml:ns:xmpp-sasl'><mechanism>PLAIN</mechanism>"
                              "</mechanisms>";
        if (offersEncryption)
            features = "<starttls xmlns='urn:ietf:params:xml:ns:xmpp-tls'><required/></starttls>";
        else if (isLoggedIn)
            features = "<bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'/>";
        socket.write("<stream:features>" + features + "</stream:features>");
    }

    void encrypt(QSslSocket &socket)
    {
        socket.write("<proceed xmlns='urn:ietf:params:xml:ns:xmpp-tls'/>");
        socket.flush();
        startEncryption(socket);
    }

    void strike(QSslSocket &socket, const QByteArray &id = QByteArray())
    {
        if (!attack.readsReplies)
            socket.setReadBufferSize(4096);
        bool goesOn = send(socket, QByteArray(attack.start).replace("%id", id));
        while (goesOn && sent < attack.total) {
            goesOn = send(socket, attack.block);
            sent += attack.block.size();
        }
        if (goesOn)
            send(socket, "<iq type='get' id='digested' from='localhost'><ping xmlns='urn:xmpp:ping'/></iq>");
        spent = true;
    }

    /// False when the client has left or the test has ended. Little of \a data is copied at a time.
    bool send(QSslSocket &socket, const QByteArray &data)
    {
        const int most = 65536;
        for (int i = 0; i < data.size() && isAlive(socket); i += most) {
            socket.write(data.constData() + i, qMin(most, data.size() - i));
            while (isAlive(socket) && (socket.bytesToWrite() > 0 || socket.encryptedBytesToWrite() > 0)) {
                socket.waitForBytesWritten(20);
                if (attack.readsReplies)
                    note(socket.readAll());
            }
        }
        return isAlive(socket);
    }

    /// The reply counts when it is no refusal.
    void note(const QByteArray &received)
    {
        incoming = incoming.right(200) + received;
        const int id = incoming.indexOf("\"digested\"");
        const int end = incoming.indexOf('>', id);
        if (id < 0 || end < 0)
            return;
        const int begin = incoming.lastIndexOf('<', id);
        digested = digested || incoming.mid(begin, end - begin).contains("\"result\"");
    }

    const Attack attack;
    bool isLoggedIn = false;
    QByteArray incoming;
    std::atomic<bool> spent { false };
};

#endif
