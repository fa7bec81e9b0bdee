// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_WALLET_H
#define KIRV_SCRIPTED_WALLET_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <atomic>

/// What KWallet offers on the session bus besides the Secret Service. It says that it is there and counts the calls.
class KirvScriptedWallet : public QDBusVirtualObject {
public:
    KirvScriptedWallet()
        : bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("scripted-wallet")))
    {
        bus.registerVirtualObject(QStringLiteral("/modules/kwalletd5"), this, QDBusConnection::SubPath);
    }
    ~KirvScriptedWallet() override
    {
        bus.unregisterService(QStringLiteral("org.kde.kwalletd5"));
        bus.unregisterObject(QStringLiteral("/modules/kwalletd5"), QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(QStringLiteral("scripted-wallet"));
    }

    bool appear() { return bus.registerService(QStringLiteral("org.kde.kwalletd5")); }
    int calls() const { return called; }

    QString introspect(const QString &) const override { return QString(); }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        ++called; // the connection has a thread of its own
        if (message.member() == QLatin1String("networkWallet"))
            bus.send(message.createReply(QStringLiteral("kdewallet")));
        else
            bus.send(message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("not here")));
        return true;
    }

private:
    QDBusConnection bus;
    std::atomic_int called { 0 };
};

#endif
