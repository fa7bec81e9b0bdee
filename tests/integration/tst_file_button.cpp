// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QToolButton>
#include <QtTest>
#include <functional>

/// The button beside a setting that is the path of a file.
class tst_FileButton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fieldsThatAreFilesHaveOne_data() { windowKinds(); }
    void fieldsThatAreFilesHaveOne();
    void directoryFieldsHaveNone();
    void chosenFileIsTheValue_data() { windowKinds(); }
    void chosenFileIsTheValue();
    void itStartsWhereThePathLeads_data();
    void itStartsWhereThePathLeads();
    void anotherConfigurationHasOneToo();
    void theWindowGoesWithItsParent();

private:
    static void windowKinds();
    void inWindow(bool isNew, const std::function<void(QWidget *)> &use);
    static QFileDialog *dialog(const QWidget *window)
    {
        return window->findChild<QFileDialog *>(QStringLiteral("ChooseFile"));
    }
    static QToolButton *button(const QWidget *window)
    {
        return KirvClientWindows::child<QToolButton>(window, "KirvField_server_Choose");
    }
    static QLineEdit *line(const QWidget *window)
    {
        return KirvClientWindows::child<QLineEdit>(window, "KirvField_server");
    }

    std::unique_ptr<KirvClientWindows> windows;
    QTemporaryDir folder;
    QString file;
};

void tst_FileButton::windowKinds()
{
    QTest::addColumn<bool>("isNew");
    QTest::newRow("add window") << true;
    QTest::newRow("edit window") << false;
}

void tst_FileButton::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->protocol->files = QStringList { "server", "nothing-like-that", "port" };
    file = folder.filePath(QStringLiteral("my server.pem"));
    QFile made(file);
    QVERIFY(made.open(QIODevice::WriteOnly));
}

void tst_FileButton::cleanup()
{
    windows.reset();
}

/// Runs \a use for an add or edit window, which is closed then.
void tst_FileButton::inWindow(bool isNew, const std::function<void(QWidget *)> &use)
{
    int windowCount = 0;
    if (isNew) {
        windows->inAddWindow([&](KirvLayoutDialog *window) {
            ++windowCount;
            use(window);
        });
    } else {
        windows->addAccount(QStringLiteral("ann"));
        const QPointer<KirvLayoutDialog> window = windows->edit(QStringLiteral("ann"));
        QVERIFY(window);
        ++windowCount;
        use(window);
        if (window)
            window->close();
    }
    QCOMPARE(windowCount, 1);
}

void tst_FileButton::fieldsThatAreFilesHaveOne()
{
    QFETCH(bool, isNew);
    inWindow(isNew, [&](QWidget *window) {
        QVERIFY(button(window));
        QCOMPARE(line(window)->nextInFocusChain(), static_cast<QWidget *>(button(window)));
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button(window));
        QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Choose the file for Server"));
        // A number is no line of text.
        QCOMPARE(window->findChildren<QWidget *>(QRegularExpression("_Choose$")).size(), 1);
    });
}

void tst_FileButton::directoryFieldsHaveNone()
{
    windows->protocol->files = QStringList { "name" };
    inWindow(false, [&](QWidget *window) {
        QVERIFY(KirvClientWindows::child<QLineEdit>(window, "KirvField_name"));
        QVERIFY(window->findChildren<QWidget *>(QRegularExpression("_Choose$")).isEmpty());
    });
}

void tst_FileButton::chosenFileIsTheValue()
{
    QFETCH(bool, isNew);
    inWindow(isNew, [&](QWidget *window) {
        line(window)->setText(folder.filePath(QStringLiteral("other.pem")));
        button(window)->click(); // comes back at once
        QVERIFY(dialog(window) && dialog(window)->isVisible());
        button(window)->click();
        QCOMPARE(window->findChildren<QFileDialog *>().size(), 1);
        dialog(window)->selectFile(file);
        static_cast<QDialog *>(dialog(window))->accept();
        QCOMPARE(line(window)->text(), file);
        KIRV_TRY(!dialog(window));
        if (!isNew) {
            KirvClientWindows::save(window);
            QCOMPARE(windows->account(QStringLiteral("ann"))->record().settings.value("server"), file);
        }
    });
}

void tst_FileButton::itStartsWhereThePathLeads_data()
{
    QTest::addColumn<QString>("text"); // %1 = the folder
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<bool>("isSelected");
    QTest::newRow("file") << "%1/my server.pem" << true << true;
    QTest::newRow("blanks around it") << "  %1/my server.pem " << true << true;
    QTest::newRow("address") << "file://%1/my%20server.pem" << true << true;
    QTest::newRow("address without a file") << "file://%1/none%20there.pem" << true << false;
    QTest::newRow("path that looks encoded") << "%1/my%20server.pem" << true << false;
    QTest::newRow("file that is not there") << "%1/none.pem" << true << false;
    QTest::newRow("folder that is not there") << "%1/none/none.pem" << false << false;
    QTest::newRow("relative") << "my server.pem" << false << false;
    QTest::newRow("nothing") << "" << false << false;
}

void tst_FileButton::itStartsWhereThePathLeads()
{
    QFETCH(QString, text);
    QFETCH(bool, isThere);
    QFETCH(bool, isSelected);
    inWindow(true, [&](QWidget *window) {
        const QString filled = text.contains("%1") ? QString(text).replace("%1", folder.path()) : text;
        line(window)->setText(filled);
        button(window)->click();
        QCOMPARE(dialog(window)->directory().absolutePath(), isThere ? folder.path() : QDir::homePath());
        QCOMPARE(dialog(window)->selectedFiles().contains(file), isSelected);
        dialog(window)->reject();
        QCOMPARE(line(window)->text(), filled);
    });
}

void tst_FileButton::anotherConfigurationHasOneToo()
{
    windows->protocol->configurations = QStringList { "One", "Two" };
    windows->protocol->configurationFields = { KirvField::textEdit("File", "server", "there", QString()) };
    inWindow(true, [&](QWidget *window) {
        KirvClientWindows::child<QComboBox>(window, "AddAccount_Configuration")->setCurrentIndex(1);
        KirvClientWindows::settle();
        QCOMPARE(line(window)->text(), QStringLiteral("there"));
        QVERIFY(button(window) && button(window)->isVisibleTo(line(window)->parentWidget()));
    });
}

void tst_FileButton::theWindowGoesWithItsParent()
{
    QPointer<QFileDialog> choosing;
    inWindow(true, [&](QWidget *window) {
        button(window)->click();
        choosing = dialog(window);
        QVERIFY(choosing);
        Q_EMIT windows->client->plugins().protocolAboutToBeUnloaded(windows->protocol);
        QVERIFY(!window->isVisible());
    });
    KIRV_TRY(!choosing || !choosing->isVisible());
}

QTEST_MAIN(tst_FileButton)
#include "tst_file_button.moc"
