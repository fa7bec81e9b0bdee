// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_scripted_session_server.h"

#include <QFile>
#include <QSslSocket>

namespace {

const char saslSpace[] = "urn:ietf:params:xml:ns:xmpp-sasl";
const char bindSpace[] = "urn:ietf:params:xml:ns:xmpp-bind";
const char tlsSpace[] = "urn:ietf:params:xml:ns:xmpp-tls";

QByteArray element(const QByteArray &name, const QByteArray &space, const QByteArray &children = QByteArray())
{
    return '<' + name + " xmlns='" + space + "'>" + children + "</" + name + '>';
}

/// The value of the attribute \a name of the first element of \a text.
QByteArray attribute(const QByteArray &text, const QByteArray &name)
{
    const QByteArray tag = text.left(text.indexOf('>'));
    const QByteArray start = ' ' + name + "=\"";
    const int begin = tag.indexOf(start);
    if (begin < 0)
        return QByteArray();
    const int value = begin + start.size();
    return tag.mid(value, tag.indexOf('"', value) - value);
}

/// What stands between the tags of the element \a name in \a text.
QByteArray contentOf(const QByteArray &text, const QByteArray &name)
{
    const int begin = text.indexOf('<' + name);
    const int tagEnd = text.indexOf('>', begin);
    const int end = text.indexOf("</" + name + '>', tagEnd);
    return begin < 0 || tagEnd < 0 || end < 0 ? QByteArray() : text.mid(tagEnd + 1, end - tagEnd - 1);
}

/// Takes the first complete tag of a stream or the first complete stanza out of \a buffer; empty when there is
/// none yet.
QByteArray takeNext(QByteArray *buffer)
{
    *buffer = buffer->trimmed();
    if (buffer->startsWith("<?xml"))
        *buffer = buffer->mid(buffer->indexOf("?>") + 2).trimmed();
    const int tagEnd = buffer->indexOf('>');
    if (tagEnd < 0)
        return QByteArray();
    int end = tagEnd + 1;
    const bool isStream = buffer->startsWith("<stream:") || buffer->startsWith("</");
    if (!isStream && buffer->at(tagEnd - 1) != '/') {
        int nameEnd = 1;
        while (nameEnd < tagEnd && buffer->at(nameEnd) != ' ')
            ++nameEnd;
        const QByteArray closing = "</" + buffer->mid(1, nameEnd - 1) + '>';
        const int position = buffer->indexOf(closing, tagEnd);
        if (position < 0)
            return QByteArray();
        end = position + closing.size();
    }
    const QByteArray next = buffer->left(end);
    buffer->remove(0, end);
    return next;
}

} // namespace

/// One connection; ends with its socket.
class KirvScriptedSessionServer::Session : public QObject {
public:
    Session(KirvScriptedSessionServer &server, QSslSocket *socket)
        : QObject(socket)
        , server(server)
        , socket(socket)
    {
        connect(socket, &QSslSocket::readyRead, this, &Session::receive);
        connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    }

private:
    void receive();
    void answer(const QByteArray &stanza);
    void answerRequest(const QByteArray &request);
    void answerDirectory(const QByteArray &request);
    void changePassword(const QByteArray &request);
    void logIn(const QByteArray &auth);
    void openStream();
    void startEncryption();
    void reply(const QByteArray &request, const char *type, const QByteArray &children = QByteArray());
    void refuse(const QByteArray &request);

    KirvScriptedSessionServer &server;
    QSslSocket *socket;
    QByteArray buffer;
    bool isLoggedIn = false;
};

void KirvScriptedSessionServer::Session::receive()
{
    const bool isInClear = !socket->isEncrypted();
    const QByteArray chunk = socket->readAll();
    if (isInClear)
        server.inClear += chunk;
    buffer += chunk;
    for (QByteArray next = takeNext(&buffer); !next.isEmpty(); next = takeNext(&buffer))
        answer(next);
}

void KirvScriptedSessionServer::Session::answer(const QByteArray &stanza)
{
    if (stanza.startsWith("<stream:"))
        openStream();
    else if (stanza.startsWith("</stream:"))
        socket->disconnectFromHost();
    else if (stanza.startsWith("<starttls"))
        startEncryption();
    else if (stanza.startsWith("<auth"))
        logIn(stanza);
    else if (stanza.startsWith("<presence"))
        server.receivedPresences << stanza;
    else if (stanza.startsWith("<iq"))
        answerRequest(stanza);
}

void KirvScriptedSessionServer::Session::openStream()
{
    QByteArray features;
    if (isLoggedIn) {
        features = element("bind", bindSpace);
    } else {
        if (!server.certificate.isNull() && !socket->isEncrypted())
            features += element("starttls", tlsSpace);
        features += element("mechanisms", saslSpace, "<mechanism>PLAIN</mechanism>");
    }
    socket->write("<?xml version='1.0'?><stream:stream xmlns='jabber:client' "
                  "xmlns:stream='http://etherx.jabber.org/streams' id='1' from='localhost' version='1.0'>"
                  "<stream:features>"
                  + features + "</stream:features>");
}

void KirvScriptedSessionServer::Session::startEncryption()
{
    socket->write(element("proceed", tlsSpace));
    socket->flush();
    socket->setLocalCertificate(server.certificate);
    socket->setPrivateKey(server.key);
    socket->startServerEncryption();
}

void KirvScriptedSessionServer::Session::logIn(const QByteArray &auth)
{
    const QByteArray password = QByteArray::fromBase64(contentOf(auth, "auth")).split('\0').value(2);
    server.usedPasswords << password;
    isLoggedIn = server.acceptedPassword.isEmpty() || password == server.acceptedPassword;
    socket->write(isLoggedIn ? element("success", saslSpace) : element("failure", saslSpace, "<not-authorized/>"));
}

void KirvScriptedSessionServer::Session::answerRequest(const QByteArray &request)
{
    const QByteArray type = attribute(request, "type");
    if (type != "get" && type != "set")
        return;
    if (request.contains(bindSpace)) {
        server.requestedResources << contentOf(request, "resource");
        reply(request, "result", element("bind", bindSpace, "<jid>ann@localhost/Kirv</jid>"));
    } else if (request.contains("vcard-temp")) {
        answerDirectory(request);
    } else if (type == "set" && request.contains("jabber:iq:register")) {
        changePassword(request);
    } else {
        refuse(request);
    }
}

void KirvScriptedSessionServer::Session::answerDirectory(const QByteArray &request)
{
    const bool isPublication = attribute(request, "type") == "set";
    if (isPublication)
        server.receivedPublications << contentOf(request, "vCard");
    else
        ++server.cardRequestCount;
    const Directory state = server.directoryState;
    if (state == IsSilent || (isPublication && state == IgnoresPublications))
        return;
    if (state == (isPublication ? RefusesToPublish : RefusesToRead)) {
        refuse(request);
        return;
    }
    if (isPublication)
        server.card = server.receivedPublications.last();
    reply(request, "result", isPublication ? QByteArray() : element("vCard", "vcard-temp", server.card));
}

void KirvScriptedSessionServer::Session::changePassword(const QByteArray &request)
{
    server.acceptedPassword = contentOf(request, "password");
    reply(request, "result");
}

void KirvScriptedSessionServer::Session::reply(const QByteArray &request, const char *type, const QByteArray &children)
{
    socket->write("<iq type='" + QByteArray(type) + "' id='" + attribute(request, "id") + "'>" + children + "</iq>");
}

void KirvScriptedSessionServer::Session::refuse(const QByteArray &request)
{
    reply(request, "error",
          "<error type='cancel'>" + element("not-allowed", "urn:ietf:params:xml:ns:xmpp-stanzas") + "</error>");
}

KirvScriptedSessionServer::KirvScriptedSessionServer()
{
    listen(QHostAddress::LocalHost);
    port = serverPort();
}

bool KirvScriptedSessionServer::offerEncryption(const QString &certificatePath, const QString &keyPath)
{
    QFile certificateFile(certificatePath);
    QFile keyFile(keyPath);
    if (!certificateFile.open(QFile::ReadOnly) || !keyFile.open(QFile::ReadOnly))
        return false;
    certificate = QSslCertificate(&certificateFile);
    key = QSslKey(&keyFile, QSsl::Ec);
    return !certificate.isNull() && !key.isNull();
}

void KirvScriptedSessionServer::say(const QByteArray &bytes)
{
    const QList<QSslSocket *> sockets = findChildren<QSslSocket *>();
    for (QSslSocket *socket : sockets)
        socket->write(bytes);
}

void KirvScriptedSessionServer::goAway()
{
    close();
    const QList<QSslSocket *> sockets = findChildren<QSslSocket *>();
    for (QSslSocket *socket : sockets)
        socket->abort();
}

bool KirvScriptedSessionServer::comeBack()
{
    return listen(QHostAddress::LocalHost, port);
}

void KirvScriptedSessionServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    ++connectionCount;
    new Session(*this, socket);
}
