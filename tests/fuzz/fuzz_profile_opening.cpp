// SPDX-License-Identifier: LGPL-2.1-or-later
// Opens profiles of any content. The first byte says what the rest of the input is: the database, changes of a real
// one, its log, its journal, or changes of its newest copy. Whatever it is, nothing crashes, hangs or becomes an empty
// list without an error, and what is recovered or restored can be opened.
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

const int accountCount = 20;

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) { }

void expect(bool condition)
{
    if (!condition)
        std::abort();
}

/// One folder for all inputs, and the files of a real profile.
class Fixture {
public:
    Fixture()
        : folder(home.filePath(QStringLiteral("profile")))
    {
        qInstallMessageHandler(ignoreMessages);
        {
            KirvStore store;
            expect(store.open(folder));
            for (int number = 0; number < accountCount; ++number) {
                KirvAccountRecord account;
                account.key = { QString::number(number), QStringLiteral("XMPP") };
                account.password = QStringLiteral("secret");
                account.rememberPassword = true;
                account.settings = { { "server", "talk.example.org" } };
                expect(store.insertAccount(account));
            }
        }
        database = contentOf(databaseIn(folder));
        copyPath = KirvProfileRescue(folder).copies().value(0).path;
        copy = contentOf(copyPath);
        expect(!copy.isEmpty());
    }

    /// The folder with the whole profile, as it was at first.
    void renew() const
    {
        expect(QDir(folder).removeRecursively() && QDir().mkpath(QFileInfo(copyPath).path()));
        expect(writeFile(databaseIn(folder), database) && writeFile(copyPath, copy));
    }

private:
    int count = 1;
    char name[21] = "fuzz_profile_opening";
    char *arguments[2] = { name, nullptr };
    const QCoreApplication application { count, arguments };
    const QTemporaryDir home;

public:
    const QString folder;
    QByteArray database, copy;
    QString copyPath;
};

/// \a content with some bytes replaced: three bytes for the place, one for the value, again and again.
QByteArray patched(QByteArray content, const QByteArray &patch)
{
    for (int index = 0; index + 3 < patch.size(); index += 4) {
        const int place = uchar(patch.at(index)) << 16 | uchar(patch.at(index + 1)) << 8 | uchar(patch.at(index + 2));
        content[place % content.size()] = patch.at(index + 3);
    }
    return content;
}

/// Puts a profile that is damaged in order again, in every way.
void rescueProfile(const QString &folder)
{
    KirvProfileRescue rescue(folder);
    KirvProfileRescue::Recovered found;
    const bool isRecovered = rescue.recover(&found);
    expect(isRecovered == rescue.lastError().isEmpty());
    if (isRecovered) {
        KirvStore store;
        expect(store.open(folder) && store.readAccounts().size() == found.accounts);
    }
    const QList<KirvProfileCopy> copies = rescue.copies();
    for (const KirvProfileCopy &copy : copies) {
        const bool isRestored = rescue.restore(copy);
        expect(isRestored == rescue.lastError().isEmpty());
        KirvStore store;
        expect(!isRestored || (store.open(folder) && store.readAccounts().size() == copy.accounts));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Never destroyed: the application must not outlive Qt's own statics.
    static const auto *fixture = new Fixture;
    if (size < 1)
        return 0;
    const QByteArray input(reinterpret_cast<const char *>(data + 1), int(size - 1));
    const QString database = databaseIn(fixture->folder);
    enum { Database, DatabaseChanges, Log, Journal, CopyChanges, Kinds };
    const int kind = data[0] % Kinds;
    fixture->renew();
    switch (kind) {
    case Database:
        writeFile(database, input);
        break;
    case DatabaseChanges:
        writeFile(database, patched(fixture->database, input));
        break;
    case Log:
        writeFile(database + QLatin1String("-wal"), input);
        break;
    case Journal:
        writeFile(database + QLatin1String("-journal"), input);
        break;
    default:
        writeFile(fixture->copyPath, patched(fixture->copy, input));
        writeFile(database, QByteArray());
    }

    KirvStore store;
    if (store.open(fixture->folder)) {
        const int accounts = int(store.readAccounts().size());
        expect(store.lastError().isEmpty() && (accounts > 0 || kind == Database));
        return 0;
    }
    expect(!store.lastError().isEmpty());
    if (store.state() == KirvProfileState::Damaged)
        rescueProfile(fixture->folder);
    return 0;
}
