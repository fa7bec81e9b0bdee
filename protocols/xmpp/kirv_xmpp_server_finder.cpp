// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_server_finder.h"

#include <QDnsLookup>
#include <QHostAddress>
#include <QObject>
#include <QPair>
#include <QUrl>
#include <algorithm>
#include <iterator>

namespace {

const int mostRecords = 20; // of each service; more are no help

using Record = QPair<KirvXmppServiceRecord, bool>; // with whether it is direct

/// Takes one of \a records, all of the same priority, by chance in proportion to the weights.
Record takeOne(QList<Record> *records, const std::function<int(int)> &random)
{
    int sum = 0;
    for (const Record &record : qAsConst(*records))
        sum += record.first.weight;
    int chosen = random(sum);
    for (int i = 0; i < records->size(); ++i) {
        chosen -= records->at(i).first.weight;
        if (chosen <= 0)
            return records->takeAt(i);
    }
    return records->takeFirst();
}

} // namespace

void kirvXmppLookUpService(const QString &name, QObject *context,
                           const std::function<void(const QList<KirvXmppServiceRecord> &)> &receiver)
{
    auto *lookup = new QDnsLookup(QDnsLookup::SRV, name, context);
    QObject::connect(lookup, &QDnsLookup::finished, context, [lookup, receiver] {
        QList<KirvXmppServiceRecord> records;
        const QList<QDnsServiceRecord> found = lookup->serviceRecords();
        for (const QDnsServiceRecord &record : found)
            records << KirvXmppServiceRecord { record.target(), record.port(), record.priority(), record.weight() };
        lookup->deleteLater();
        receiver(records);
    });
    lookup->lookup();
}

QString kirvXmppServiceName(const QString &domain, bool isDirect)
{
    const QString service = isDirect ? QStringLiteral("_xmpps-client._tcp.") : QStringLiteral("_xmpp-client._tcp.");
    return service + QString::fromLatin1(QUrl::toAce(domain));
}

QList<KirvXmppTarget> kirvXmppTargets(const QList<KirvXmppServiceRecord> &ordinary,
                                      const QList<KirvXmppServiceRecord> &direct,
                                      const std::function<int(int largest)> &random)
{
    QList<Record> records;
    for (const KirvXmppServiceRecord &record : ordinary.mid(0, mostRecords))
        records << Record(record, false);
    for (const KirvXmppServiceRecord &record : direct.mid(0, mostRecords))
        records << Record(record, true);
    std::stable_sort(records.begin(), records.end(), [](const Record &left, const Record &right) {
        return left.first.priority < right.first.priority;
    });

    QList<KirvXmppTarget> targets;
    while (!records.isEmpty()) {
        QList<Record> first;
        const int priority = records.first().first.priority;
        while (!records.isEmpty() && records.first().first.priority == priority)
            first << records.takeFirst();
        while (!first.isEmpty()) {
            const Record record = takeOne(&first, random);
            QString host = record.first.host;
            if (host.endsWith(QLatin1Char('.')))
                host.chop(1);
            if (!host.isEmpty() && record.first.port > 0 && record.first.port <= 65535)
                targets << KirvXmppTarget { host, record.first.port, record.second };
        }
    }
    return targets;
}

bool kirvXmppIsLocal(const QHostAddress &address)
{
    bool isOld = false;
    const QHostAddress old(address.toIPv4Address(&isOld)); // also of one that is written as a new one
    if (!isOld)
        return address.isNull() || address.isLoopback() || address.isLinkLocal() || address.isSiteLocal()
            || address.isUniqueLocalUnicast() || address == QHostAddress(QHostAddress::AnyIPv6);
    const QPair<const char *, int> networks[] { { "0.0.0.0", 8 },     { "10.0.0.0", 8 },     { "100.64.0.0", 10 },
                                                { "127.0.0.0", 8 },   { "169.254.0.0", 16 }, { "172.16.0.0", 12 },
                                                { "192.168.0.0", 16 } };
    return std::any_of(std::begin(networks), std::end(networks), [&old](const QPair<const char *, int> &network) {
        return old.isInSubnet(QHostAddress(QLatin1String(network.first)), network.second);
    });
}
