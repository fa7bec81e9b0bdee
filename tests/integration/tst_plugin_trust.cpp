// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_loader.h"
#include "core/plugins/kirv_plugin_trust.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

class tst_PluginTrust : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void ownFileInAnOwnFolderIsTrusted();
    void whatOthersMayWriteIsRefused_data();
    void whatOthersMayWriteIsRefused();
    void theGroupMayWriteWhenItIsPrivate();
    void whatBelongsToAnotherUserIsRefused();
    void whatBelongsToRootIsTrusted();
    void linksAreFollowed();
    void theFolderOfALinkCounts();
    void theLoaderRefusesAndTriesAgain();

private:
    std::unique_ptr<QTemporaryDir> folder;
    QString file;
};

void tst_PluginTrust::init()
{
    folder = std::make_unique<QTemporaryDir>();
    file = folder->filePath(QStringLiteral("plugin.so"));
    QVERIFY(QFile::copy(QStringLiteral("/proc/self/exe"), file));
    QCOMPARE(::chmod(qPrintable(file), 0644), 0);
}

void tst_PluginTrust::ownFileInAnOwnFolderIsTrusted()
{
    QCOMPARE(KirvPluginTrust().refusalReason(file), QString());
    QVERIFY(!KirvPluginTrust().refusalReason(file + QStringLiteral(".not")).isEmpty());
}

void tst_PluginTrust::whatOthersMayWriteIsRefused_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<int>("mode");
    QTest::newRow("file") << false << 0646;
    QTest::newRow("folder") << true << 0707;
    QTest::newRow("folder with sticky bit") << true << 01777;
}

void tst_PluginTrust::whatOthersMayWriteIsRefused()
{
    QFETCH(bool, isFolder);
    QFETCH(int, mode);
    const QString changed = isFolder ? folder->path() : file;
    QCOMPARE(::chmod(qPrintable(changed), mode_t(mode)), 0);
    const QString reason = KirvPluginTrust().refusalReason(file);
    QCOMPARE(::chmod(qPrintable(folder->path()), 0700), 0);
    QCOMPARE(reason, QStringLiteral("The plug-in is not trusted: others than you may write to %1.").arg(changed));
}

void tst_PluginTrust::theGroupMayWriteWhenItIsPrivate()
{
    const struct passwd *user = ::getpwuid(::geteuid());
    const struct group *group = user ? ::getgrgid(user->pw_gid) : nullptr;
    const bool isPrivate = group && QByteArray(group->gr_name) == user->pw_name && !*group->gr_mem;
    QCOMPARE(::chown(qPrintable(file), uid_t(-1), user ? user->pw_gid : ::getegid()), 0);
    QCOMPARE(::chmod(qPrintable(file), 0664), 0);
    QCOMPARE(KirvPluginTrust().refusalReason(file).isEmpty(), isPrivate);

    // As anybody else it would be a group of others.
    QVERIFY(!KirvPluginTrust(::geteuid() + 1).refusalReason(file).isEmpty());
}

void tst_PluginTrust::whatBelongsToAnotherUserIsRefused()
{
    unsigned self = ::geteuid();
    if (self == 0) // root owns what everybody trusts
        QCOMPARE(::chown(qPrintable(file), 54321, gid_t(-1)), 0);
    else
        ++self;
    const QString reason = KirvPluginTrust(self).refusalReason(file);
    QVERIFY2(reason.endsWith(QLatin1String("belongs to another user.")), qPrintable(reason));
}

void tst_PluginTrust::whatBelongsToRootIsTrusted()
{
    QCOMPARE(KirvPluginTrust(54321).refusalReason(QStringLiteral("/bin/sh")), QString());
}

void tst_PluginTrust::linksAreFollowed()
{
    const QString link = folder->filePath(QStringLiteral("link.so"));
    QVERIFY(QFile::link(file, link));
    QCOMPARE(KirvPluginTrust().refusalReason(link), QString());
    QCOMPARE(::chmod(qPrintable(file), 0666), 0);
    QVERIFY(KirvPluginTrust().refusalReason(link).contains(QLatin1String("may write to ") + file));
}

void tst_PluginTrust::theFolderOfALinkCounts()
{
    const QTemporaryDir open;
    QCOMPARE(::chmod(qPrintable(open.path()), 0777), 0);
    const QString link = open.filePath(QStringLiteral("link.so"));
    QVERIFY(QFile::link(file, link));
    QVERIFY(KirvPluginTrust().refusalReason(link).contains(QLatin1String("may write to ") + open.path()));
}

void tst_PluginTrust::theLoaderRefusesAndTriesAgain()
{
    const QString plugin = folder->filePath(QStringLiteral("example.so"));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_EXAMPLE_PLUGIN), plugin));
    QCOMPARE(::chmod(qPrintable(plugin), 0666), 0);
    KirvPluginLoader loader;
    QVERIFY(!loader.load(plugin));
    QVERIFY(loader.plugins().first().loadable);
    QVERIFY2(loader.plugins().first().error.contains(QLatin1String("not trusted")),
             qPrintable(loader.plugins().first().error));
    QCOMPARE(::chmod(qPrintable(plugin), 0644), 0);
    QVERIFY(loader.load(plugin));
}

QTEST_GUILESS_MAIN(tst_PluginTrust)
#include "tst_plugin_trust.moc"
