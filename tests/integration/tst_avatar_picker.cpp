// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_avatar_quick_set_widget.h"
#include "tests/support/kirv_patience.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>

namespace {

/// Red, green and blue stripes, one beside the other.
QImage stripes()
{
    QImage image(300, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(0, 0, 100, 100, Qt::red);
    painter.fillRect(100, 0, 100, 100, Qt::green);
    painter.fillRect(200, 0, 100, 100, Qt::blue);
    return image;
}

} // namespace

class tst_AvatarPicker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void imageIsCutFromTheMiddleAndRounded();
    void imageFollowsTheSizeOfTheWidget();
    void noImageShowsThePlaceholder_data();
    void noImageShowsThePlaceholder();
    void settingAnImageIsNoChoice();
    void fileDialogOpens_data();
    void fileDialogOpens();
    void chosenFileIsShownAndReported();
    void cancelledFileDialogChangesNothing();
    void fileThatCannotServeIsRefused_data();
    void fileThatCannotServeIsRefused();
    void refusalIsPlainTextAndDoesNotBlock();
    void droppedFileIsTaken();
    void droppedImageIsKeptWhileTheWidgetLives();
    void dropOfSomethingElseIsNotAccepted();
    void pastedFileIsTaken();
    void pastedImageIsTaken();
    void pastingTextIsRefused();
    void pastedImageOfTooManyPixelsIsRefused();
    void menuOffersWhatIsPossible();
    void pictureCanBeRemoved();
    void deleteKeyWithoutPictureDoesNothing();
    void keyboardAndAccessibilityReachIt();
    void disabledPickerIgnoresTheUser();

private:
    QString write(const QString &name, const QByteArray &content) const;
    QString writeImage(const QString &name, const QImage &image) const;
    void drop(QMimeData *data);
    QColor pixel(int x, int y) const { return picker->grab().toImage().pixelColor(x, y); }
    QMessageBox *refusal() const { return picker->findChild<QMessageBox *>("KirvAvatar_Refusal"); }
    QFileDialog *fileDialog() const { return picker->findChild<QFileDialog *>("KirvAvatar_FileDialog"); }
    QMenu *openMenu();

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvAvatarQuickSetWidget> picker;
    std::unique_ptr<QSignalSpy> selected;
    QWidget *button = nullptr;
};

void tst_AvatarPicker::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_AvatarPicker::init()
{
    QApplication::clipboard()->clear();
    folder = std::make_unique<QTemporaryDir>();
    picker = std::make_unique<KirvAvatarQuickSetWidget>(nullptr);
    picker->setFixedSize(64, 64);
    picker->show();
    picker->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(picker.get(), kirvPatience));
    button = picker->findChild<QWidget *>("KirvAvatar_Button");
    QVERIFY(button);
    selected = std::make_unique<QSignalSpy>(picker.get(), SIGNAL(imageSelected(QString)));
    QVERIFY(selected->isValid());
}

void tst_AvatarPicker::cleanup()
{
    selected.reset();
    picker.reset();
    folder.reset();
}

QString tst_AvatarPicker::write(const QString &name, const QByteArray &content) const
{
    QFile file(folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

QString tst_AvatarPicker::writeImage(const QString &name, const QImage &image) const
{
    const QString path = folder->filePath(name);
    return image.save(path) ? path : QString();
}

void tst_AvatarPicker::drop(QMimeData *data)
{
    const std::unique_ptr<QMimeData> owner(data);
    const QPoint middle = button->rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(button, &enter);
    if (!enter.isAccepted())
        return;
    QDropEvent event(middle, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(button, &event);
}

QMenu *tst_AvatarPicker::openMenu()
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), button->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(button, &event);
    return picker->findChild<QMenu *>("KirvAvatar_Menu");
}

void tst_AvatarPicker::imageIsCutFromTheMiddleAndRounded()
{
    const QColor outside = pixel(0, 0);
    picker->setImage(writeImage("a.png", stripes()));
    QCOMPARE(pixel(32, 32), QColor(Qt::green));
    QCOMPARE(pixel(4, 32), QColor(Qt::green));
    QCOMPARE(pixel(60, 32), QColor(Qt::green));
    QCOMPARE(pixel(0, 0), outside);
    QCOMPARE(pixel(63, 63), outside);
}

void tst_AvatarPicker::imageFollowsTheSizeOfTheWidget()
{
    picker->setImage(writeImage("a.png", stripes()));
    picker->setFixedSize(300, 100);
    QCOMPARE(pixel(50, 50), QColor(Qt::red));
    QCOMPARE(pixel(250, 50), QColor(Qt::blue));
}

void tst_AvatarPicker::noImageShowsThePlaceholder_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("absent") << QStringLiteral("/nonexistent/picture.png");
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("no picture") << QCoreApplication::applicationFilePath();
}

void tst_AvatarPicker::noImageShowsThePlaceholder()
{
    QFETCH(QString, path);
    const QImage placeholder = picker->grab().toImage();
    QVERIFY(placeholder.pixelColor(32, 50) != placeholder.pixelColor(0, 0)); // something is painted
    picker->setImage(writeImage("a.png", stripes()));
    QVERIFY(picker->grab().toImage() != placeholder);
    picker->setImage(path);
    QCOMPARE(picker->grab().toImage(), placeholder);
    QVERIFY(!refusal());
}

void tst_AvatarPicker::settingAnImageIsNoChoice()
{
    picker->setImage(writeImage("a.png", stripes()));
    picker->setImage(QString());
    QCOMPARE(selected->count(), 0);
}

void tst_AvatarPicker::fileDialogOpens_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("click") << 0;
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_AvatarPicker::fileDialogOpens()
{
    QFETCH(int, key);
    if (key)
        QTest::keyClick(button, Qt::Key(key));
    else
        QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(fileDialog());
    QVERIFY(fileDialog()->isVisible());
    QCOMPARE(fileDialog()->windowModality(), Qt::WindowModal);
    QVERIFY(fileDialog()->nameFilters().first().contains("*.png"));
    QVERIFY(!fileDialog()->nameFilters().first().contains("*.svg"));

    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(picker->findChildren<QFileDialog *>().size(), 1);
}

void tst_AvatarPicker::chosenFileIsShownAndReported()
{
    const QString path = writeImage("a.png", stripes());
    QTest::keyClick(button, Qt::Key_Space);
    fileDialog()->setDirectory(folder->path());
    auto *name = fileDialog()->findChild<QLineEdit *>("fileNameEdit");
    QVERIFY(name);
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
    KIRV_TRY_COMPARE(selected->count(), 1);
    QCOMPARE(selected->first().first().toString(), path);
    QCOMPARE(pixel(32, 32), QColor(Qt::green));
    KIRV_TRY(!fileDialog());
}

void tst_AvatarPicker::cancelledFileDialogChangesNothing()
{
    QTest::keyClick(button, Qt::Key_Space);
    QTest::keyClick(fileDialog(), Qt::Key_Escape);
    KIRV_TRY(!fileDialog());
    QCOMPARE(selected->count(), 0);
    QVERIFY(!refusal());
}

void tst_AvatarPicker::fileThatCannotServeIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("absent") << "absent.png"
                            << "cannot be read";
    QTest::newRow("folder") << "folder.png"
                            << "cannot be read";
    QTest::newRow("empty") << "empty.png"
                           << "not a picture";
    QTest::newRow("text") << "text.png"
                          << "not a picture";
    QTest::newRow("drawing") << "drawing.svg"
                             << "not a picture";
    QTest::newRow("head only") << "head.png"
                               << "damaged";
    QTest::newRow("large file") << "large.png"
                                << "\"large.png\" is too large. Up to 10 MB";
    QTest::newRow("many pixels") << "pixels.png"
                                 << "10000 × 5000 pixels. Up to 25 million";
}

void tst_AvatarPicker::fileThatCannotServeIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(QDir(folder->path()).mkdir("folder.png"));
    write("empty.png", QByteArray());
    write("text.png", "hello");
    write("drawing.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QFile good(writeImage("good.png", stripes()));
    QVERIFY(good.open(QIODevice::ReadOnly));
    const QByteArray png = good.readAll();
    write("head.png", png.left(png.indexOf("IDAT") + 4)); // all but the pixels
    write("large.png", png);
    QVERIFY(QFile::resize(folder->filePath("large.png"), 100 * 1024 * 1024));
    if (name == QLatin1String("pixels.png")) {
        QImage image(10000, 5000, QImage::Format_Mono);
        image.fill(0);
        writeImage("pixels.png", image);
    }

    picker->setImage(good.fileName());
    const QImage before = picker->grab().toImage();
    auto *data = new QMimeData;
    data->setUrls({ QUrl::fromLocalFile(folder->filePath(name)) });
    drop(data);
    QVERIFY(refusal());
    QVERIFY2(refusal()->text().contains(reason), qPrintable(refusal()->text()));
    QCOMPARE(selected->count(), 0);
    QCOMPARE(picker->grab().toImage(), before);
}

void tst_AvatarPicker::refusalIsPlainTextAndDoesNotBlock()
{
    for (const char *name : { "<b>one<b>", "<b>two<b>" }) {
        auto *data = new QMimeData;
        data->setUrls({ QUrl::fromLocalFile(folder->filePath(name)) });
        drop(data);
        QVERIFY(refusal()->text().contains(name));
    }
    QCOMPARE(picker->findChildren<QMessageBox *>().size(), 1);
    QCOMPARE(refusal()->textFormat(), Qt::PlainText);
    QCOMPARE(refusal()->windowModality(), Qt::WindowModal);
    QVERIFY(refusal()->isVisible());
    QTest::keyClick(refusal(), Qt::Key_Escape);
    KIRV_TRY(!refusal());
}

void tst_AvatarPicker::droppedFileIsTaken()
{
    const QString path = writeImage("a.png", stripes());
    auto *data = new QMimeData;
    data->setUrls({ QUrl("https://example.org/b.png"), QUrl::fromLocalFile(path) });
    drop(data);
    QCOMPARE(selected->count(), 1);
    QCOMPARE(selected->first().first().toString(), path);
    QCOMPARE(pixel(32, 32), QColor(Qt::green));
}

void tst_AvatarPicker::droppedImageIsKeptWhileTheWidgetLives()
{
    QStringList paths;
    for (int i = 0; i < 2; ++i) {
        auto *data = new QMimeData;
        data->setImageData(stripes());
        drop(data);
        QCOMPARE(selected->count(), i + 1);
        paths += selected->last().first().toString();
    }
    QVERIFY(paths.first() != paths.last());
    for (const QString &path : paths) {
        QVERIFY(path.endsWith(".png"));
        QCOMPARE(QImage(path).size(), stripes().size());
        const QFileDevice::Permissions others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup
            | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
        QVERIFY(!(QFileInfo(QFileInfo(path).path()).permissions() & others));
    }
    picker.reset();
    for (const QString &path : paths)
        QVERIFY(!QFile::exists(path));
}

void tst_AvatarPicker::dropOfSomethingElseIsNotAccepted()
{
    auto *text = new QMimeData;
    text->setText("hello");
    drop(text);
    auto *remote = new QMimeData;
    remote->setUrls({ QUrl("https://example.org/b.png") });
    drop(remote);
    QVERIFY(!refusal());
    QCOMPARE(selected->count(), 0);
}

void tst_AvatarPicker::pastedFileIsTaken()
{
    const QString path = writeImage("a.png", stripes());
    auto *data = new QMimeData;
    data->setUrls({ QUrl::fromLocalFile(path) });
    QApplication::clipboard()->setMimeData(data);
    QTest::keySequence(button, QKeySequence::Paste);
    QCOMPARE(selected->count(), 1);
    QCOMPARE(selected->first().first().toString(), path);
}

void tst_AvatarPicker::pastedImageIsTaken()
{
    QApplication::clipboard()->setImage(stripes());
    QTest::keySequence(button, QKeySequence::Paste);
    QCOMPARE(selected->count(), 1);
    QCOMPARE(QImage(selected->first().first().toString()).size(), stripes().size());
    QCOMPARE(pixel(32, 32), QColor(Qt::green));
}

void tst_AvatarPicker::pastingTextIsRefused()
{
    QApplication::clipboard()->setText("hello");
    QTest::keySequence(button, QKeySequence::Paste);
    QVERIFY(refusal());
    QCOMPARE(selected->count(), 0);
}

void tst_AvatarPicker::pastedImageOfTooManyPixelsIsRefused()
{
    QImage image(6000, 5000, QImage::Format_Mono);
    image.fill(0);
    QApplication::clipboard()->setImage(image);
    QTest::keySequence(button, QKeySequence::Paste);
    QVERIFY(refusal());
    QVERIFY2(refusal()->text().contains("6000 × 5000"), qPrintable(refusal()->text()));
    QCOMPARE(selected->count(), 0);
}

void tst_AvatarPicker::menuOffersWhatIsPossible()
{
    const auto enabled = [this] {
        QMenu *menu = openMenu();
        QList<bool> states;
        for (const QAction *action : menu->actions())
            states += action->isEnabled();
        delete menu;
        return states;
    };
    QCOMPARE(enabled(), (QList<bool> { true, false, false }));
    QApplication::clipboard()->setImage(stripes());
    picker->setImage(writeImage("a.png", stripes()));
    QCOMPARE(enabled(), (QList<bool> { true, true, true }));

    openMenu()->actions().first()->trigger();
    QVERIFY(fileDialog());
    openMenu()->actions().at(1)->trigger();
    QCOMPARE(selected->count(), 1);
}

void tst_AvatarPicker::pictureCanBeRemoved()
{
    const QImage placeholder = picker->grab().toImage();
    picker->setImage(writeImage("a.png", stripes()));
    openMenu()->actions().last()->trigger();
    QCOMPARE(selected->count(), 1);
    QCOMPARE(selected->first().first().toString(), QString());
    QCOMPARE(picker->grab().toImage(), placeholder);
}

void tst_AvatarPicker::deleteKeyWithoutPictureDoesNothing()
{
    QTest::keyClick(button, Qt::Key_Delete);
    QCOMPARE(selected->count(), 0);
    picker->setImage(writeImage("a.png", stripes()));
    QTest::keyClick(button, Qt::Key_Delete);
    QCOMPARE(selected->count(), 1);
}

void tst_AvatarPicker::keyboardAndAccessibilityReachIt()
{
    QVERIFY(button->focusPolicy() & Qt::TabFocus);
    button->clearFocus();
    const QImage unfocused = picker->grab().toImage();
    picker->setFocus();
    KIRV_TRY(button->hasFocus());
    QVERIFY(picker->grab().toImage() != unfocused);

    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Picture of the account"));
    QCOMPARE(interface->role(), QAccessible::Button);
}

void tst_AvatarPicker::disabledPickerIgnoresTheUser()
{
    picker->setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(!fileDialog());
}

QTEST_MAIN(tst_AvatarPicker)
#include "tst_avatar_picker.moc"
