// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_record.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

Q_DECLARE_METATYPE(KirvPluginFingerprint)

class tst_PluginRecord : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void remembersVerdicts();
    void aVerdictIsThatOfOneFile_data();
    void aVerdictIsThatOfOneFile();
    void aPathHasOneVerdict();
    void whatWasBeingLoadedDidNotSurvive();
    void whatWasLoadedKeepsItsVerdict();
    void aUselessFileCountsAsEmpty_data();
    void aUselessFileCountsAsEmpty();
    void aPipeIsNotRead();
    void itStaysSmall();
    void itIsForTheUserAlone();
    void worksWithoutAFile();

private:
    static KirvPluginFingerprint plugin(const QString &file)
    {
        KirvPluginFingerprint plugin;
        plugin.file = file;
        plugin.size = 1234;
        plugin.changed = Q_INT64_C(1700000000123);
        plugin.hash = QByteArray(32, 'h');
        return plugin;
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString path;
    const KirvPluginFingerprint one = plugin(QStringLiteral("/a/one.so"));
    const KirvPluginFingerprint two = plugin(QStringLiteral("/a/two.so"));
};

void tst_PluginRecord::init()
{
    folder = std::make_unique<QTemporaryDir>();
    path = folder->filePath(QStringLiteral("plugins.json"));
}

void tst_PluginRecord::remembersVerdicts()
{
    const auto verdicts = { KirvPluginRecord::Survived, KirvPluginRecord::Crashed, KirvPluginRecord::Ended,
                            KirvPluginRecord::TookTooLong, KirvPluginRecord::NotSurvived };
    for (const KirvPluginRecord::Verdict verdict : verdicts) {
        KirvPluginRecord(path).setVerdict(one, verdict);
        QCOMPARE(KirvPluginRecord(path).verdict(one), verdict);
        QCOMPARE(KirvPluginRecord(path).verdict(two), KirvPluginRecord::Unknown);
    }
    KirvPluginRecord(path).setVerdict(one, KirvPluginRecord::Unknown);
    QCOMPARE(KirvPluginRecord(path).verdict(one), KirvPluginRecord::Unknown);
}

void tst_PluginRecord::aVerdictIsThatOfOneFile_data()
{
    QTest::addColumn<KirvPluginFingerprint>("other");
    KirvPluginFingerprint other = one;
    other.size += 1;
    QTest::newRow("size") << other;
    other = one;
    other.changed += 1;
    QTest::newRow("time") << other;
    other = one;
    other.hash[31] = 'i';
    QTest::newRow("bytes") << other;
    QTest::newRow("path") << two;
}

void tst_PluginRecord::aVerdictIsThatOfOneFile()
{
    QFETCH(KirvPluginFingerprint, other);
    KirvPluginRecord(path).setVerdict(one, KirvPluginRecord::Survived);
    QCOMPARE(KirvPluginRecord(path).verdict(other), KirvPluginRecord::Unknown);
}

void tst_PluginRecord::aPathHasOneVerdict()
{
    KirvPluginFingerprint newer = one;
    newer.size += 1;
    KirvPluginRecord record(path);
    record.setVerdict(one, KirvPluginRecord::Survived);
    record.setVerdict(newer, KirvPluginRecord::Crashed);
    QCOMPARE(record.verdict(one), KirvPluginRecord::Unknown);
    QCOMPARE(KirvPluginRecord(path).verdict(newer), KirvPluginRecord::Crashed);
}

void tst_PluginRecord::whatWasBeingLoadedDidNotSurvive()
{
    KirvPluginRecord(path).setLoading(one);
    for (int i = 0; i < 2; ++i) {
        const KirvPluginRecord record(path);
        QVERIFY(!record.isLoading());
        QCOMPARE(record.verdict(one), KirvPluginRecord::NotSurvived);
    }
}

void tst_PluginRecord::whatWasLoadedKeepsItsVerdict()
{
    KirvPluginRecord record(path);
    record.setVerdict(one, KirvPluginRecord::Survived);
    record.setLoading(one);
    record.clearLoading();
    QCOMPARE(KirvPluginRecord(path).verdict(one), KirvPluginRecord::Survived);
}

void tst_PluginRecord::aUselessFileCountsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("cut off") << QByteArray("\"plugins\"") << QByteArray();
    QTest::newRow("another format") << QByteArray("\"format\": 1") << QByteArray("\"format\": 2");
    QTest::newRow("another Qt") << QByteArray(qVersion()) << QByteArray("4.8.7");
    QTest::newRow("another program") << QByteArray("\"program\": \"") << QByteArray("\"program\": \"9");
}

void tst_PluginRecord::aUselessFileCountsAsEmpty()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    KirvPluginRecord(path).setVerdict(one, KirvPluginRecord::Survived);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray bytes = file.readAll();
    QVERIFY(bytes.contains(before));
    bytes = after.isEmpty() ? bytes.left(bytes.indexOf(before)) : bytes.replace(before, after);
    QVERIFY(file.resize(0) && file.seek(0));
    file.write(bytes);
    file.close();
    QCOMPARE(KirvPluginRecord(path).verdict(one), KirvPluginRecord::Unknown);
}

void tst_PluginRecord::aPipeIsNotRead()
{
    QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    KirvPluginRecord record(path);
    record.setVerdict(one, KirvPluginRecord::Survived);
    QCOMPARE(KirvPluginRecord(path).verdict(one), KirvPluginRecord::Survived);
}

void tst_PluginRecord::itStaysSmall()
{
    KirvPluginRecord record(path);
    for (int i = 0; i < 500; ++i)
        record.setVerdict(plugin(QString::number(i)), KirvPluginRecord::Survived);
    QCOMPARE(KirvPluginRecord(path).verdict(plugin(QStringLiteral("499"))), KirvPluginRecord::Survived);
    QCOMPARE(KirvPluginRecord(path).verdict(plugin(QStringLiteral("0"))), KirvPluginRecord::Unknown);
    QVERIFY(QFileInfo(path).size() < 100 * 1024);
}

void tst_PluginRecord::itIsForTheUserAlone()
{
    KirvPluginRecord(path).setVerdict(one, KirvPluginRecord::Survived);
    struct stat state;
    QCOMPARE(::stat(qPrintable(path), &state), 0);
    QCOMPARE(int(state.st_mode & 0777), 0600);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files), QStringList { QStringLiteral("plugins.json") });
}

void tst_PluginRecord::worksWithoutAFile()
{
    KirvPluginRecord record((QString()));
    record.setVerdict(one, KirvPluginRecord::Crashed);
    QCOMPARE(record.verdict(one), KirvPluginRecord::Crashed);
}

QTEST_GUILESS_MAIN(tst_PluginRecord)
#include "tst_plugin_record.moc"
