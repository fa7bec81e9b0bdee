// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_SERVER_REQUEST_H
#define KIRV_FAKE_SERVER_REQUEST_H

#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/protocol/kirv_server_request.h"

#include <QPointer>

/// A request that keeps what the assistant does with it; a test emits its signals.
class FakeServerRequest : public KirvServerRequest {
public:
    explicit FakeServerRequest(const Step &first = Step())
        : first(first)
    {
    }

    QString title() const override { return "Title of the Request"; }
    void start() override
    {
        calls << "start";
        Q_EMIT stepReady(first);
    }
    QList<KirvField> fieldsOf(const QString &name, const QList<KirvField> &fields) const override
    {
        QList<KirvField> changed = fields;
        for (KirvField &field : changed)
            field.setText(name);
        return changed;
    }
    void submit(const QList<KirvField> &fields) override
    {
        calls << "submit";
        filled = fields;
    }
    void goBack(const QList<KirvField> &fields) override
    {
        calls << "back";
        filled = fields;
    }
    bool cancel() override
    {
        calls << "cancel";
        return canBeCancelled;
    }

    void succeed(Result::Kind kind, const KirvLogin &account, const QString &password = QString())
    {
        Result result;
        result.kind = kind;
        result.account = account;
        result.password = password;
        Q_EMIT succeeded(result);
    }

    Step first;
    QStringList calls;
    QList<KirvField> filled;
    bool canBeCancelled = true;
};

/// A protocol whose connections are let in at once, and that keeps the requests it created.
class RequestProtocol : public KirvProtocolBase {
public:
    class Connection : public KirvConnection {
    public:
        Connection(RequestProtocol &protocol)
            : protocol(protocol)
        {
        }

    protected:
        void startLogin(const KirvPresence &) override
        {
            ++protocol.logins;
            loginSucceeded();
        }
        void startLogout() override { logoutFinished(); }
        void abortConnection() override { }
        void applyPresence(const KirvPresence &) override { }

    private:
        RequestProtocol &protocol;
    };

    explicit RequestProtocol(const QString &name, bool offers = true)
        : name(name)
        , offers(offers)
    {
    }

    QString getName() override { return name; }
    QString getIconPath(int) override { return QString(); }
    QStringList getConfigurations() override { return {}; }
    QList<KirvField> getConfigurationFields(const QString &) override { return {}; }
    QString getLoginPattern() override { return QString(); }
    QList<KirvPresence> presences() const override
    {
        return { { "available", "Available", QString() }, { "offline", "Offline", QString() } };
    }
    QList<KirvField> accountSettings() const override
    {
        return { KirvField::textEdit("Server", "server", "localhost", QString()) };
    }
    KirvConnection *createConnection() override { return new Connection(*this); }
    bool offersRegistration() const override { return offers; }
    KirvServerRequest *createRegistration() override { return create(); }
    QList<KirvAccountAction> accountActions() const override
    {
        return { { "act", "Act & More…", "Says <what>." }, { "none", "Nothing", QString() } };
    }
    KirvServerRequest *createAccountRequest(const QString &actionId, KirvConnection *) override
    {
        return actionId == "act" ? create() : nullptr;
    }

    FakeServerRequest *create()
    {
        ++created;
        request = new FakeServerRequest(step);
        return request;
    }

    const QString name;
    const bool offers;
    KirvServerRequest::Step step;
    QPointer<FakeServerRequest> request; ///< the latest one
    int created = 0;
    int logins = 0;
};

#endif
