// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SERVER_REQUEST_H
#define KIRV_SERVER_REQUEST_H

#include "core/protocol/kirv_login.h"
#include "core/values/kirv_failure.h"
#include "core/values/kirv_values_export.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>

/// A dialogue with a server about an account beyond logging in: registers one, changes its password, deletes it.
///
/// It has no windows: it says step by step which fields are to be filled in, and one assistant of the client shows
/// every request of every protocol. All texts may come from a server: show them as plain text.
///
/// What is under way ends in exactly one of stepReady(), failed(), inputRejected() and succeeded(), also when the
/// connection that the request works over ends or is destroyed. A slot may destroy the request.
class KIRV_PROTOCOL_EXPORT KirvServerRequest : public QObject {
    Q_OBJECT

public:
    /// A picture inside a step, such as one that shows what is to be typed.
    struct Picture {
        QString label; ///< of the field that it belongs to
        QByteArray data; ///< an image file as it came; empty when only its address is known
        QString address; ///< where it is, when there is no data
    };

    /// What is to be filled in, or only confirmed, next.
    struct Step {
        QString text; ///< one or more paragraphs above the fields; may be empty
        QString notice; ///< what is to be noticed first, a sentence shown where failures are; empty: nothing
        QStringList configurations; ///< ready-made values for the fields, see fieldsOf(); empty: none
        QList<KirvField> fields; ///< what is to be filled in; empty: the step is only confirmed
        QString providerField; ///< id of the field for the domain of a server of anybody's choice; empty: none
        QList<Picture> pictures; ///< those that belong to fields of the step
        QString command; ///< text of the button that submits, in title case; empty: nothing can be submitted
        bool isDangerous = false; ///< the command cannot be undone, so it is not the default button
        bool canGoBack = false; ///< goBack() leads to the step before
        bool hasPassword = false; ///< the fields hold the password of a new account: offer to remember it
    };

    /// What the request achieved. Whoever owns the request brings the accounts in line with it.
    struct Result {
        /// What was done on the server.
        enum Kind { AccountRegistered, PasswordChanged, AccountDeleted };
        Kind kind = AccountRegistered; ///< what was done
        KirvLogin account; ///< AccountRegistered: the account to add; an empty id when only the server knows it
        QString password; ///< PasswordChanged: the new one
    };

    using QObject::QObject;

    /// The title of a window for the request, in title case.
    virtual QString title() const = 0;
    /// Leads to the first stepReady(), or to failed().
    virtual void start() = 0;
    /// The fields of the present step, as \a filled, with the values of the configuration \a name.
    virtual QList<KirvField> fieldsOf(const QString &name, const QList<KirvField> &filled) const;
    /// Submits the present step: leads to stepReady() with the next one, to failed(), or to succeeded(). \a filled are
    /// the fields of the step in their order, with the values that were typed.
    virtual void submit(const QList<KirvField> &filled) = 0;
    /// Leads to stepReady() with the step before, and ends what is under way. \a filled are the fields of the present
    /// step, which has these values when it comes again.
    virtual void goBack(const QList<KirvField> &filled);
    /// Ends what is under way: nothing is emitted, and the present step can be submitted again. False when the server
    /// may have carried it out already: succeeded() or failed() follows then as if nothing had been cancelled.
    virtual bool cancel() = 0;

Q_SIGNALS:
    /// \a step is the present one now.
    void stepReady(const KirvServerRequest::Step &step);
    /// A reply of the server is awaited; \a text says what for.
    void waiting(const QString &text);
    /// The step was refused or could not be sent; it stays and can be submitted again.
    void failed(const KirvFailure &failure);
    /// The step holds what cannot be sent; \a text says which, a sentence.
    void inputRejected(const QString &text);
    /// The last step was carried out; the request is over.
    void succeeded(const KirvServerRequest::Result &result);
};

Q_DECLARE_METATYPE(KirvServerRequest::Step)
Q_DECLARE_METATYPE(KirvServerRequest::Result)

#endif
