// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REGISTRATION_SCRIPT_H
#define KIRV_REGISTRATION_SCRIPT_H

#include "tests/support/servers/kirv_scripted_xmpp_server.h"

#include <QBuffer>
#include <QImage>

/// A form as a server may send it: a title, every kind of field, fields that nobody knows, and a picture.
inline QByteArray dataForm(const QByteArray &picture)
{
    return "<x xmlns='jabber:x:data' type='form'>"
           "<title>Join &lt;us&gt;</title><instructions>Fill it in.</instructions>"
           "<field type='hidden' var='FORM_TYPE'><value>jabber:iq:register</value></field>"
           "<field type='fixed'><value>About you</value></field>"
           "<field type='text-single' var='username' label='Name'><required/></field>"
           "<field type='text-private' var='password' label='Secret'><required/></field>"
           "<field type='boolean' var='news' label='Send me news'><value>1</value></field>"
           "<field type='list-single' var='colour' label='Colour'><value>b</value>"
           "<option label='Red'><value>r</value></option><option label='Blue'><value>b</value></option></field>"
           "<field type='list-multi' var='pets' label='Pets'><value>cat</value>"
           "<option label='Dog'><value>dog</value></option><option label='Cat'><value>cat</value></option></field>"
           "<field type='text-multi' var='story' label='Story'><value>one</value><value>two</value></field>"
           "<field type='x-unheard-of' var='odd' label='Odd'><value>as it was</value></field>"
           "<field type='text-single' var='ocr' label='What is written there?'><required/>"
           "<media xmlns='urn:xmpp:media-element'><uri type='image/png'>cid:sha1+abc@bob.xmpp.org</uri></media></field>"
           "</x><data xmlns='urn:xmpp:bob' cid='sha1+abc@bob.xmpp.org' type='image/png'>"
        + picture.toBase64() + "</data>";
}

inline QByteArray pngPicture()
{
    QImage image(60, 20, QImage::Format_RGB32);
    image.fill(Qt::green);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

/// The answers of a server that registers without encryption: \a form to the first question, \a result to what is
/// sent (where %ID% stands for the id).
inline KirvScriptedXmppServer::Script registering(const QByteArray &form,
                                                  const QByteArray &result = "<iq type='result' id='%ID%'/>")
{
    return [form, result](const QByteArray &received) -> QByteArray {
        const QByteArray id = KirvScriptedXmppServer::attribute(received, "id");
        if (received.contains("<stream:stream"))
            return KirvScriptedXmppServer::stream("<register xmlns='http://jabber.org/features/iq-register'/>");
        if (received.contains("type=\"get\""))
            return "<iq type='result' id='" + id + "'><query xmlns='jabber:iq:register'>" + form + "</query></iq>";
        return received.contains("type=\"set\"") ? QByteArray(result).replace("%ID%", id) : QByteArray();
    };
}

#endif
