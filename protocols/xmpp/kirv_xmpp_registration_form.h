// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_REGISTRATION_FORM_H
#define KIRV_XMPP_REGISTRATION_FORM_H

#include "host/kirv_field.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QList>
#include <QString>

/// A picture inside a form, such as one that shows what is to be typed.
struct KirvXmppFormPicture {
    QString label; ///< of the field that it belongs to
    QByteArray data; ///< the image file; empty when the server only says where it is
    QString address; ///< where it is, when there is no data
};

/// The form that a server wants filled in for a new account, whatever its fields (the fixed ones of in-band
/// registration, or a data form), and the answer to it. A value type.
///
/// A field that lets choose several options becomes one check box per option. Hidden fields go back as they came;
/// kinds that are not known are lines of text.
class KirvXmppRegistrationForm {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppRegistrationForm)

public:
    KirvXmppRegistrationForm() = default;
    /// Reads the form from the server's answer \a iq.
    explicit KirvXmppRegistrationForm(const QDomElement &iq);

    QString title() const { return formTitle; }
    QString instructions() const { return formInstructions; }
    /// Where to register instead, or besides; empty when the server names no place.
    QString address() const { return webAddress; }
    QList<KirvXmppFormPicture> pictures() const { return formPictures; }
    /// The fields to fill in, with what the server suggests.
    QList<KirvField> fields() const;
    /// \a fields() with the values that \a typed has for the same ids.
    QList<KirvField> fieldsWith(const QList<KirvField> &typed) const;

    /// The user name and the password among \a filled; empty when the form does not ask for them.
    static QString userName(const QList<KirvField> &filled);
    static QString password(const QList<KirvField> &filled);
    /// What is missing or cannot be sent in \a filled, a sentence; empty when it can be sent.
    QString problem(const QList<KirvField> &filled) const;
    /// The answer that sends \a filled.
    QDomDocument toQuery(const QList<KirvField> &filled) const;

private:
    /// One question of the server and the fields that show it.
    struct Question {
        QString name;
        QString type;
        QList<KirvField> fields;
        QStringList values; ///< of a hidden one: what goes back; of several options: theirs
    };

    void readFixedFields(const QDomElement &query);
    void readDataForm(const QDomElement &form, const QDomElement &iq);
    Question readQuestion(const QDomElement &field) const;
    void readPicture(const QDomElement &field, const QDomElement &iq);
    static QStringList answers(const Question &question, const QList<KirvField> &filled);

    bool isDataForm = false;
    QString formTitle;
    QString formInstructions;
    QString webAddress;
    QList<Question> questions;
    QList<KirvXmppFormPicture> formPictures;
};

#endif
