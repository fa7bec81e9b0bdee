// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration_form.h"
#include "tests/fuzz/xmpp_document.h"

#include <cstdint>

namespace {

int countOf(const QDomElement &parent)
{
    int count = 0;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        count += 1 + countOf(child);
    return count;
}

/// \a fields as somebody fills them in who gives every line \a text.
QList<KirvField> filled(QList<KirvField> fields, const QString &text)
{
    for (KirvField &field : fields) {
        field.setChecked(!field.isChecked());
        field.setText(text);
    }
    return fields;
}

} // namespace

/// The reply of a server to the request of its form, and after a byte of 255 the text that a user puts in.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const int end = input.indexOf('\xff');
    const QDomDocument reply = readDocument(input.left(end));
    const QString typed = end < 0 ? QString() : QString::fromUtf8(input.mid(end + 1));
    const KirvXmppRegistrationForm form(reply.documentElement());
    const QList<KirvField> fields = form.fields();
    const int elements = countOf(reply.documentElement());
    check(fields.size() <= elements && form.pictures().size() <= elements);
    check(form.fieldsWith(fields, fields) == fields);
    check(form.fieldsWith(filled(fields, typed), fields).size() == fields.size());

    for (const QList<KirvField> &sent : { fields, filled(fields, typed), QList<KirvField>() }) {
        const QDomDocument query = form.toQuery(sent);
        // A few bytes of a server must not cause many of ours.
        check(countOf(query.documentElement()) <= 2 * elements + int(fields.size()) * (1 + int(typed.count('\n'))) + 1);
        check(!form.problem(sent).isEmpty() || !readDocument(query.toByteArray(-1)).isNull());
    }
    return 0;
}
