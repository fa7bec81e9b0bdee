// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "tests/support/kirv_patience.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// The window of the client is shown on a display without what the client has no use for.
class tst_LightStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowDoesWithoutOpenGL();

private:
    /// What this process has mapped: its libraries and plug-ins, among others.
    static QByteArray mappedFiles();
};

QByteArray tst_LightStart::mappedFiles()
{
    QFile file(QStringLiteral("/proc/self/maps"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_LightStart::windowDoesWithoutOpenGL()
{
    const QTemporaryDir folder;
    KirvClientOptions options;
    options.profileFolder = folder.filePath(QStringLiteral("profile"));
    options.pluginFolder = folder.filePath(QStringLiteral("plugins"));
    QVERIFY(QDir().mkdir(options.pluginFolder));
    KirvClient client(options);
    QVERIFY2(client.start(), qPrintable(client.errorString()));
    client.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(client.window(), kirvPatience));
    QVERIFY(mappedFiles().contains("/platforms/libqxcb.so"));
    QVERIFY(!mappedFiles().contains("/xcbglintegrations/"));
}

int main(int argc, char **argv)
{
    const KirvApplication application(argc, argv); // the client's own, which makes the choice
    tst_LightStart test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_light_start.moc"
