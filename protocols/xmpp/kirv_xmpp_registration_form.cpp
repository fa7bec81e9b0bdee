// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration_form.h"

#include "core/protocol/kirv_same_value.h"
#include "protocols/xmpp/kirv_xmpp_fields.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QHash>
#include <algorithm>

namespace {

const auto registrationSpace = QStringLiteral("jabber:iq:register");
const auto formSpace = QStringLiteral("jabber:x:data");
const auto elsewhereSpace = QStringLiteral("jabber:x:oob");
const auto mediaSpace = QStringLiteral("urn:xmpp:media-element");
const auto bitsSpace = QStringLiteral("urn:xmpp:bob");
const auto userNameId = QStringLiteral("username");
const auto passwordId = QStringLiteral("password");

const auto hiddenType = QStringLiteral("hidden");
const auto fixedType = QStringLiteral("fixed");
const auto booleanType = QStringLiteral("boolean");
const auto choiceType = QStringLiteral("list-single");
const auto choicesType = QStringLiteral("list-multi");
const auto passwordType = QStringLiteral("text-private");
const auto linesType = QStringLiteral("text-multi");
const auto addressesType = QStringLiteral("jid-multi");

/// The labels of the fixed fields.
QString labelOf(const QString &name)
{
    const QHash<QString, QString> labels {
        { userNameId, KirvXmppRegistrationForm::tr("User name") },
        { passwordId, KirvXmppRegistrationForm::tr("Password") },
        { QStringLiteral("nick"), KirvXmppRegistrationForm::tr("Nickname") },
        { QStringLiteral("name"), KirvXmppRegistrationForm::tr("Full name") },
        { QStringLiteral("first"), KirvXmppRegistrationForm::tr("First name") },
        { QStringLiteral("last"), KirvXmppRegistrationForm::tr("Last name") },
        { QStringLiteral("email"), KirvXmppRegistrationForm::tr("E-mail") },
        { QStringLiteral("address"), KirvXmppRegistrationForm::tr("Address") },
        { QStringLiteral("city"), KirvXmppRegistrationForm::tr("Town") },
        { QStringLiteral("state"), KirvXmppRegistrationForm::tr("State or region") },
        { QStringLiteral("zip"), KirvXmppRegistrationForm::tr("Postal code") },
        { QStringLiteral("phone"), KirvXmppRegistrationForm::tr("Telephone") },
        { QStringLiteral("url"), KirvXmppRegistrationForm::tr("Web page") },
        { QStringLiteral("date"), KirvXmppRegistrationForm::tr("Date") },
    };
    return labels.value(name, name);
}

QList<QDomElement> children(const QDomElement &parent, const QString &space, const QString &name)
{
    QList<QDomElement> found;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.localName() == name && child.namespaceURI() == space)
            found << child;
    }
    return found;
}

QStringList texts(const QDomElement &parent, const QString &name)
{
    QStringList found;
    for (const QDomElement &child : children(parent, formSpace, name))
        found << child.text();
    return found;
}

QString text(const QDomElement &parent, const QString &name)
{
    return texts(parent, name).join(QLatin1Char('\n'));
}

bool isTrue(const QString &value)
{
    return value == QLatin1String("1") || value == QLatin1String("true");
}

bool isBlank(const KirvField &field)
{
    return field.getText().isEmpty() && field.getKind() != KirvField::CheckBox;
}

} // namespace

KirvXmppRegistrationForm::KirvXmppRegistrationForm(const QDomElement &iq)
{
    const QDomElement query = kirvXmppChild(iq, registrationSpace, QStringLiteral("query"));
    const QDomElement form = kirvXmppChild(query, formSpace, QStringLiteral("x"));
    const QDomElement elsewhere = kirvXmppChild(query, elsewhereSpace, QStringLiteral("x"));
    webAddress = kirvXmppChild(elsewhere, elsewhereSpace, QStringLiteral("url")).text();
    formInstructions = kirvXmppChild(query, registrationSpace, QStringLiteral("instructions")).text();
    isDataForm = !form.isNull();
    if (isDataForm)
        readDataForm(form, iq);
    else
        readFixedFields(query);
}

void KirvXmppRegistrationForm::readFixedFields(const QDomElement &query)
{
    for (QDomElement child = query.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString name = child.localName();
        if (child.namespaceURI() != registrationSpace || name == QLatin1String("instructions")
            || name == QLatin1String("registered"))
            continue;
        Entry entry { name, QString(), {}, {}, false };
        if (name == QLatin1String("key")) {
            entry.type = hiddenType;
            entry.values << child.text();
        } else {
            entry.fields << (name == passwordId ? KirvField::password(labelOf(name), name, child.text(), QString())
                                                : KirvField::textEdit(labelOf(name), name, child.text(), QString()));
            entry.fields.last().setRequired(true);
        }
        entries << entry;
    }
}

void KirvXmppRegistrationForm::readDataForm(const QDomElement &form, const QDomElement &iq)
{
    formTitle = text(form, QStringLiteral("title"));
    const QString instructions = text(form, QStringLiteral("instructions"));
    if (!instructions.isEmpty())
        formInstructions = instructions;
    for (const QDomElement &field : children(form, formSpace, QStringLiteral("field"))) {
        entries << readEntry(field);
        entries.last().hasPicture = readPicture(field, iq);
    }
}

KirvXmppRegistrationForm::Entry KirvXmppRegistrationForm::readEntry(const QDomElement &field) const
{
    const QStringList suggested = texts(field, QStringLiteral("value"));
    const QString first = suggested.value(0);
    const QString toolTip = text(field, QStringLiteral("desc"));
    Entry entry { field.attribute(QStringLiteral("var")), field.attribute(QStringLiteral("type")), {}, {}, false };
    const QString &id = entry.name;
    const QString label = field.attribute(QStringLiteral("label"), labelOf(id));

    QStringList optionValues;
    QStringList optionLabels;
    for (const QDomElement &option : children(field, formSpace, QStringLiteral("option"))) {
        optionValues << text(option, QStringLiteral("value"));
        optionLabels << option.attribute(QStringLiteral("label"), optionValues.last());
    }

    if (entry.type == hiddenType) {
        entry.values = suggested;
    } else if (entry.type == fixedType) {
        // It may come without a name, and several do; the form needs one each.
        const QString noteId = QStringLiteral("note/%1").arg(entries.size());
        entry.fields << KirvField::note(field.attribute(QStringLiteral("label")), noteId,
                                        suggested.join(QLatin1Char('\n')), toolTip);
    } else if (entry.type == booleanType) {
        entry.fields << KirvField::checkBox(label, id, isTrue(first), toolTip);
    } else if (entry.type == choiceType) {
        entry.fields << KirvField::choice(label, id, first, optionValues, optionLabels, toolTip);
    } else if (entry.type == choicesType) {
        entry.values = optionValues;
        entry.fields << KirvField::note(QString(), QStringLiteral("note/%1").arg(entries.size()), label, toolTip);
        for (int i = 0; i < optionValues.size(); ++i) {
            entry.fields << KirvField::checkBox(optionLabels.at(i), QStringLiteral("%1/%2").arg(id).arg(i),
                                                suggested.contains(optionValues.at(i)), toolTip);
        }
    } else if (entry.type == passwordType || (entry.type.isEmpty() && id == passwordId)) {
        entry.fields << KirvField::password(label, id, first, toolTip);
    } else if (entry.type == linesType || entry.type == addressesType) {
        entry.fields << KirvField::multiLine(label, id, suggested.join(QLatin1Char('\n')), toolTip);
    } else {
        entry.fields << KirvField::textEdit(label, id, first, toolTip);
    }
    const bool isRequired = !children(field, formSpace, QStringLiteral("required")).isEmpty();
    if (isRequired && !entry.fields.isEmpty())
        entry.fields.last().setRequired(true);
    return entry;
}

/// Whether the field has a picture.
bool KirvXmppRegistrationForm::readPicture(const QDomElement &field, const QDomElement &iq)
{
    const QDomElement media = kirvXmppChild(field, mediaSpace, QStringLiteral("media"));
    if (media.isNull())
        return false;
    KirvServerRequest::Picture picture;
    picture.label = field.attribute(QStringLiteral("label"), field.attribute(QStringLiteral("var")));
    const QDomElement query = kirvXmppChild(iq, registrationSpace, QStringLiteral("query"));
    const QList<QDomElement> bits =
        children(iq, bitsSpace, QStringLiteral("data")) + children(query, bitsSpace, QStringLiteral("data"));
    for (const QDomElement &source : children(media, mediaSpace, QStringLiteral("uri"))) {
        picture.address = source.text().trimmed();
        for (const QDomElement &data : bits) {
            if (picture.address == QLatin1String("cid:") + data.attribute(QStringLiteral("cid")))
                picture.data = QByteArray::fromBase64(data.text().toLatin1());
        }
        if (!picture.data.isEmpty())
            break;
    }
    formPictures << picture;
    return true;
}

QList<KirvField> KirvXmppRegistrationForm::fields() const
{
    QList<KirvField> all;
    for (const Entry &entry : entries)
        all << entry.fields;
    return all;
}

QList<KirvField> KirvXmppRegistrationForm::fieldsWith(const QList<KirvField> &filled,
                                                      const QList<KirvField> &before) const
{
    QList<KirvField> all;
    for (const Entry &entry : entries) {
        for (KirvField field : entry.fields) {
            const KirvField *typed = kirvXmppFind(filled, field.getId());
            const KirvField *suggested = kirvXmppFind(before, field.getId());
            const bool isOfSameKind = typed && typed->getKind() == field.getKind();
            const bool isTyped = isOfSameKind && field.getKind() != KirvField::Label
                && !(suggested && kirvHasSameValue(*typed, *suggested));
            if (isTyped && !entry.hasPicture) {
                field.setText(typed->getText());
                field.setChecked(typed->isChecked());
            }
            all << field;
        }
    }
    return all;
}

bool KirvXmppRegistrationForm::isSingleUse() const
{
    return !formPictures.isEmpty() || std::any_of(entries.begin(), entries.end(), [](const Entry &entry) {
        return entry.type == hiddenType && entry.name != QLatin1String("FORM_TYPE");
    });
}

bool KirvXmppRegistrationForm::hasPassword() const
{
    return kirvXmppFind(fields(), passwordId);
}

QString KirvXmppRegistrationForm::userName(const QList<KirvField> &filled)
{
    // Whoever types the whole address means its first part.
    return kirvXmppTextOf(filled, userNameId).section(QLatin1Char('@'), 0, 0).trimmed();
}

QString KirvXmppRegistrationForm::password(const QList<KirvField> &filled)
{
    return kirvXmppTextOf(filled, passwordId);
}

QString KirvXmppRegistrationForm::problem(const QList<KirvField> &filled) const
{
    for (const KirvField &field : filled) {
        const QString name = field.getLabel().isEmpty() ? field.getId() : field.getLabel();
        if (field.isRequired() && isBlank(field))
            return tr("\"%1\" must be filled in.").arg(name);
        if (!kirvXmppIsSendable(field.getText()))
            return tr("\"%1\" holds characters that cannot be sent.").arg(name);
    }
    return QString();
}

QDomDocument KirvXmppRegistrationForm::toQuery(const QList<KirvField> &filled) const
{
    QDomDocument result = kirvXmppNewDocument(registrationSpace, QStringLiteral("query"));
    QDomElement query = result.documentElement();
    if (!isDataForm) {
        for (const Entry &entry : entries)
            kirvXmppAppend(query, entry.name, valuesOf(entry, filled).value(0));
        return result;
    }
    QDomElement form = result.createElementNS(formSpace, QStringLiteral("x"));
    form.setAttribute(QStringLiteral("type"), QStringLiteral("submit"));
    query.appendChild(form);
    for (const Entry &entry : entries) {
        if (entry.type == fixedType || entry.name.isEmpty())
            continue;
        QDomElement field = kirvXmppAppend(form, QStringLiteral("field"));
        field.setAttribute(QStringLiteral("var"), entry.name);
        for (const QString &value : valuesOf(entry, filled))
            kirvXmppAppend(field, QStringLiteral("value"), value);
    }
    return result;
}

QStringList KirvXmppRegistrationForm::valuesOf(const Entry &entry, const QList<KirvField> &filled)
{
    if (entry.type == hiddenType)
        return entry.values;
    const KirvField *field = kirvXmppFind(filled, entry.name);
    if (entry.type == choicesType) {
        QStringList chosen;
        for (int i = 0; i < entry.values.size(); ++i) {
            const KirvField *box = kirvXmppFind(filled, QStringLiteral("%1/%2").arg(entry.name).arg(i));
            if (box && box->isChecked())
                chosen << entry.values.at(i);
        }
        return chosen;
    }
    if (!field)
        return {};
    if (field->getKind() == KirvField::CheckBox)
        return { field->isChecked() ? QStringLiteral("1") : QStringLiteral("0") };
    if (field->getKind() == KirvField::MultiLine)
        return field->getText().split(QLatin1Char('\n'));
    if (field->getId() == userNameId)
        return { userName(filled) };
    return { field->getText() };
}
