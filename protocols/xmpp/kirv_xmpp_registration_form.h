// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_REGISTRATION_FORM_H
#define KIRV_XMPP_REGISTRATION_FORM_H

#include "core/protocol/kirv_server_request.h"
#include "host/kirv_field.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QList>
#include <QString>

/// The registration form of a server, whatever its fields (the fixed ones of in-band registration, or a data form),
/// and the reply to it. A value type.
///
/// A field with several options to choose becomes one check box per option. Hidden fields are sent back as they came;
/// unknown kinds are lines of text.
class KirvXmppRegistrationForm {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppRegistrationForm)

public:
    KirvXmppRegistrationForm() = default;
    /// Reads the form from \a iq, the server's reply.
    explicit KirvXmppRegistrationForm(const QDomElement &iq);

    QString title() const { return formTitle; }
    QString instructions() const { return formInstructions; }
    /// Where to register instead, or besides; empty when the server names no place.
    QString address() const { return webAddress; }
    QList<KirvServerRequest::Picture> pictures() const { return formPictures; }
    /// The fields to fill in, with what the server suggests.
    QList<KirvField> fields() const;
    /// \a fields() with the values that \a filled has for the same ids, as far as they were typed: what \a before, the
    /// fields of the form that was filled in, suggested is not taken over, and neither is an answer to a picture.
    QList<KirvField> fieldsWith(const QList<KirvField> &filled, const QList<KirvField> &before) const;

    /// Whether the form can be sent only once: a server that refused it does not know its picture or its hidden fields
    /// any more.
    bool isSingleUse() const;
    /// Whether the form has a field for the password of the new account.
    bool hasPassword() const;
    /// The user name and the password among \a filled; empty when the form has no such field.
    static QString userName(const QList<KirvField> &filled);
    static QString password(const QList<KirvField> &filled);
    /// What is missing or cannot be sent in \a filled, a sentence; empty when it can be sent.
    QString problem(const QList<KirvField> &filled) const;
    /// The request that sends \a filled.
    QDomDocument toQuery(const QList<KirvField> &filled) const;

private:
    /// One entry of the form and the fields that show it.
    struct Entry {
        QString name;
        QString type;
        QList<KirvField> fields;
        QStringList values; ///< of a hidden one: what is sent back; of several options: theirs
        bool hasPicture = false; ///< what is typed answers it
    };

    void readFixedFields(const QDomElement &query);
    void readDataForm(const QDomElement &form, const QDomElement &iq);
    Entry readEntry(const QDomElement &field) const;
    bool readPicture(const QDomElement &field, const QDomElement &iq);
    static QStringList valuesOf(const Entry &entry, const QList<KirvField> &filled);

    bool isDataForm = false;
    QString formTitle;
    QString formInstructions;
    QString webAddress;
    QList<Entry> entries;
    QList<KirvServerRequest::Picture> formPictures;
};

#endif
