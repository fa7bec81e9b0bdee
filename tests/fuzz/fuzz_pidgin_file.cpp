// SPDX-License-Identifier: LGPL-2.1-or-later
// Files of any content: the reader comes to an end, and what it takes over keeps what it promises.
#include "core/moving/kirv_pidgin_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// Ends the program, which is what the fuzzer takes for a find.
void check(bool holds)
{
    if (!holds)
        std::abort();
}

bool isOneLine(const QString &text)
{
    return !text.contains(QLatin1Char('\n')) && !text.contains(QChar(0x202e));
}

void checkRecord(const KirvAccountRecord &record)
{
    const bool isXmpp = record.key.protocol == QLatin1String("XMPP");
    check(isXmpp || record.key.protocol == QLatin1String("IRC"));
    check(!isXmpp || !record.key.id.contains(QLatin1Char('/')));
    check(record.key.id == record.key.id.trimmed());
    check(record.rememberPassword == !record.password.isEmpty());
    check(isOneLine(record.alias));
    check(record.avatar.isEmpty() && record.secretItems.isEmpty() && record.unreadSecrets.isEmpty());
    check(record.settings.contains(QStringLiteral("encryption")));
    check(!isXmpp || record.settings.value(QStringLiteral("encryption")) != QLatin1String("none"));
    for (const QString &name : { QStringLiteral("port"), QStringLiteral("proxy_port") }) {
        if (!record.settings.contains(name))
            continue;
        const int port = record.settings.value(name).toInt();
        check(port > 0 && port <= 65535);
    }
    if (record.settings.contains(QStringLiteral("proxy_password")))
        check(record.secretSettings.contains(QStringLiteral("proxy_password")));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const bool isOne = KirvPidginFile::isOne(bytes);
    const KirvPidginFile::Result result = KirvPidginFile::read(bytes);
    check(isOne || !result.problem.isEmpty() || size > 4096);
    check(result.problem.isEmpty() || (result.accounts.accounts.isEmpty() && result.accounts.leftOut.isEmpty()));
    for (const KirvMovedAccount &account : result.accounts.accounts)
        checkRecord(account.record);
    for (const QString &sentence : result.accounts.leftOut)
        check(isOneLine(sentence) && sentence.size() < 4096);
    return 0;
}
