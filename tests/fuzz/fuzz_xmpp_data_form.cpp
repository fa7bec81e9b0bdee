// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration_form.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"
#include "tests/fuzz/xmpp_document.h"

#include <cstdint>

namespace {

const char *const types[] = { "hidden",     "fixed",     "boolean",    "list-single", "list-multi", "text-private",
                              "text-multi", "jid-multi", "jid-single", "text-single", "x-unknown",  "" };
const auto formSpace = QStringLiteral("jabber:x:data");
const auto registrationSpace = QStringLiteral("jabber:iq:register");

/// One field of a form, as a line of the input says it: a character for the type and the number of options, the name,
/// and after a bar what is typed.
struct Given {
    QString type;
    QString name;
    QStringList values; ///< that the server suggests
    QString typed;
};

Given givenBy(const QByteArray &line, int number)
{
    const uchar kind = line.isEmpty() ? 0 : uchar(line[0]);
    Given given;
    given.type = QLatin1String(types[kind % (sizeof types / sizeof *types)]);
    const QString text = kirvXmppSendable(QString::fromUtf8(line.mid(1)).remove(QLatin1Char('\r')));
    given.name = QString::number(number) + QLatin1Char('.') + text.section(QLatin1Char('|'), 0, 0).simplified();
    given.typed = text.section(QLatin1Char('|'), 1);
    for (int i = 0; i < kind / 64; ++i)
        given.values << given.name + QString::number(i);
    return given;
}

QDomDocument formOf(const QList<Given> &fields)
{
    QDomDocument document = kirvXmppNewDocument(QStringLiteral("jabber:client"), QStringLiteral("iq"));
    QDomElement iq = document.documentElement();
    QDomElement query = document.createElementNS(registrationSpace, QStringLiteral("query"));
    QDomElement form = document.createElementNS(formSpace, QStringLiteral("x"));
    iq.appendChild(query);
    query.appendChild(form);
    for (const Given &given : fields) {
        QDomElement field = kirvXmppAppend(form, QStringLiteral("field"));
        field.setAttribute(QStringLiteral("var"), given.name);
        field.setAttribute(QStringLiteral("type"), given.type);
        for (const QString &value : given.values) {
            kirvXmppAppend(field, QStringLiteral("value"), value);
            QDomElement option = kirvXmppAppend(field, QStringLiteral("option"));
            kirvXmppAppend(option, QStringLiteral("value"), value);
        }
    }
    return document;
}

/// The values that are sent for \a given once everything that can be typed was typed, and every box changed.
QStringList expected(const Given &given)
{
    if (given.type == QLatin1String("hidden"))
        return given.values;
    if (given.type == QLatin1String("boolean"))
        return { QStringLiteral("1") }; // what is suggested here is never "true"
    if (given.type == QLatin1String("list-multi"))
        return {}; // the suggested ones, which are all there are, were unchecked
    if (given.type == QLatin1String("text-multi") || given.type == QLatin1String("jid-multi"))
        return given.typed.split(QLatin1Char('\n'));
    return { given.typed };
}

/// Elements with nothing but spaces are read as empty ones.
QStringList readBack(QStringList values)
{
    for (QString &value : values)
        value = value.trimmed().isEmpty() ? QString() : value;
    return values;
}

} // namespace

/// A data form that is made of the lines of the input, as it is read, filled in and sent back.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QList<QByteArray> lines = QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\n');
    QList<Given> given;
    for (int i = 0; i < lines.size() && i < 200; ++i)
        given << givenBy(lines[i], i);
    const QDomDocument reply = readDocument(formOf(given).toByteArray(-1));
    check(!reply.isNull());
    const KirvXmppRegistrationForm form(reply.documentElement());
    QList<KirvField> fields = form.fields();
    for (KirvField &field : fields) {
        field.setChecked(!field.isChecked());
        for (const Given &one : given) {
            if (one.name == field.getId())
                field.setText(one.typed);
        }
    }

    const QDomDocument sent = readDocument(form.toQuery(fields).toByteArray(-1));
    QDomElement field = sent.documentElement().firstChildElement().firstChildElement();
    for (const Given &one : given) {
        if (one.type == QLatin1String("fixed"))
            continue;
        check(field.attribute(QStringLiteral("var")) == one.name);
        QStringList values;
        for (QDomElement value = field.firstChildElement(); !value.isNull(); value = value.nextSiblingElement())
            values << value.text();
        check(values == readBack(expected(one)));
        field = field.nextSiblingElement();
    }
    check(field.isNull());
    return 0;
}
