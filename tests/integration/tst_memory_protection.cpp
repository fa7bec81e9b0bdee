// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_memory_protection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <sys/prctl.h>
#include <sys/resource.h>

/// What other programs, and dumps, get of the process. Each in a process of its own, as nothing of it can be undone.
class tst_MemoryProtection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingOfTheProcessIsDumped()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--protect") });
        QVERIFY(process.waitForFinished(kirvPatience));
#ifdef KIRV_SANITIZED
        QCOMPARE(process.readAllStandardOutput(), QByteArray("protected, core 0 0, dumpable 1"));
#else
        QCOMPARE(process.readAllStandardOutput(), QByteArray("protected, core 0 0, dumpable 0"));
#endif
    }

    void theProgramProtectsItselfBeforeItsWindowIsThere()
    {
        QTemporaryDir folder;
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(KIRV_PROGRAM),
                      { QStringLiteral("--profile"), folder.filePath(QStringLiteral("profile")) });
        QVERIFY(process.waitForStarted(kirvPatience));
        const QString limits = QStringLiteral("/proc/%1/limits").arg(process.processId());
        const auto coreLimit = [&limits] {
            const QList<QByteArray> lines = contentOf(limits).split('\n');
            for (const QByteArray &line : lines) {
                if (line.startsWith("Max core file size"))
                    return line.simplified();
            }
            return QByteArray();
        };
        KIRV_TRY_COMPARE(coreLimit(), QByteArray("Max core file size 0 0 bytes"));
        process.kill();
        QVERIFY(process.waitForFinished(kirvPatience));
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--protect"))) {
        const bool isProtected = kirvProtectMemory();
        rlimit limit {};
        getrlimit(RLIMIT_CORE, &limit);
        std::printf("%s, core %d %d, dumpable %d", isProtected ? "protected" : "not protected", int(limit.rlim_cur),
                    int(limit.rlim_max), prctl(PR_GET_DUMPABLE));
        return 0;
    }
    tst_MemoryProtection test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_memory_protection.moc"
