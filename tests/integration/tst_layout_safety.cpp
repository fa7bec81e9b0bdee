// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_catalog.h"
#include "core/ui/kirv_layout_check.h"

#include <QApplication>
#include <QChildEvent>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>

#include <sys/stat.h>

#include <memory>

namespace {

QByteArray builtIn(const QString &name)
{
    QFile file(QStringLiteral(":/kirv/layouts/%1.ui").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Counts the widgets that get a parent while it exists.
class WidgetCounter : public QObject {
public:
    WidgetCounter() { qApp->installEventFilter(this); }

    int count() const { return widgets; }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ChildAdded && static_cast<QChildEvent *>(event)->child()->isWidgetType())
            ++widgets;
        return false;
    }

private:
    int widgets = 0;
};

} // namespace

/// What a layout of the user's own cannot do, whoever wrote it.
class tst_LayoutSafety : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void designerPluginsStayOut();
    void passwordsStayMasked_data();
    void passwordsStayMasked();
    void passwordsAreKeptFromInputMethods();
    void inputIsNotCut();
    void harmfulLayoutIsRefused_data();
    void harmfulLayoutIsRefused();
    void pictureThatIsNoFileIsRefused_data();
    void pictureThatIsNoFileIsRefused();
    void pictureForFineScreensIsLookedAt();
    void pictureThatIsReadInTwoWaysIsRefused_data();
    void pictureThatIsReadInTwoWaysIsRefused();
    void picturesOfTheOwnFolderAreShown_data();
    void picturesOfTheOwnFolderAreShown();
    void whatDesignerWritesIsAccepted();
    void manyWidgetsAreRefusedBeforeAnyIsMade();

private:
    QString path(const QString &file) const { return folder->filePath(file); }
    /// The layout with \a addition in front of its first inner widget.
    static QByteArray with(const QString &name, const QByteArray &addition);
    std::unique_ptr<QWidget> build(const QString &name, const QByteArray &xml);

    std::unique_ptr<QTemporaryDir> folder;
    QStringList reasons; ///< why build() did not use the layout
};

void tst_LayoutSafety::initTestCase()
{
    // Before anything makes a layout: the plug-ins are looked for once.
    QTemporaryDir libraries;
    const QString plugin = libraries.filePath(QStringLiteral("designer/widget.so"));
    QVERIFY(QDir(libraries.path()).mkdir(QStringLiteral("designer")));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_EXAMPLE_PLUGIN), plugin));
    QCoreApplication::addLibraryPath(libraries.path());
    const QStringList paths = QCoreApplication::libraryPaths();
    const std::unique_ptr<QWidget> top(KirvLayoutCatalog::buildBuiltIn(QStringLiteral("Accounts"), nullptr));
    QVERIFY(top);
    QCOMPARE(QCoreApplication::libraryPaths(), paths);
    QCoreApplication::removeLibraryPath(libraries.path());
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("libQt"));
    QVERIFY(!loaded.contains("/designer/"));
}

void tst_LayoutSafety::init()
{
    folder = std::make_unique<QTemporaryDir>();
    reasons.clear();
}

QByteArray tst_LayoutSafety::with(const QString &name, const QByteArray &addition)
{
    QByteArray xml = builtIn(name);
    const int place = int(xml.indexOf("<item>"));
    return place < 0 ? QByteArray() : xml.insert(place, "<item>" + addition + "</item>");
}

std::unique_ptr<QWidget> tst_LayoutSafety::build(const QString &name, const QByteArray &xml)
{
    reasons.clear();
    QFile file(path(name + QStringLiteral(".ui")));
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
        return nullptr;
    file.close();
    KirvLayoutCatalog catalog;
    catalog.setOverrideFolder(folder->path());
    connect(&catalog, &KirvLayoutCatalog::overrideRejected, this,
            [this](const QString &, const QString &text) { reasons += text; });
    return std::unique_ptr<QWidget>(catalog.build(name, nullptr));
}

void tst_LayoutSafety::designerPluginsStayOut()
{
    const QByteArray xml = with("Accounts", "<widget class=\"QQuickWidget\" name=\"w\"/>");
    QVERIFY(build("Accounts", xml));
    QVERIFY2(reasons.value(0).contains(QLatin1String("unknown class QQuickWidget")), qPrintable(reasons.value(0)));
}

void tst_LayoutSafety::passwordsStayMasked_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QByteArray>("property");
    for (const char *row : { "AddAccount AddAccount_PasswordEdit", "EditAccount EditAccount_Password" }) {
        const QString layout = QString::fromLatin1(row).section(QLatin1Char(' '), 0, 0);
        const QString edit = QString::fromLatin1(row).section(QLatin1Char(' '), 1);
        QTest::newRow(qPrintable(edit + ": normal"))
            << layout << edit << QByteArray("<property name=\"echoMode\"><enum>QLineEdit::Normal</enum></property>");
        QTest::newRow(qPrintable(edit + ": until it is left"))
            << layout << edit
            << QByteArray("<property name=\"echoMode\"><enum>QLineEdit::PasswordEchoOnEdit</enum></property>");
        QTest::newRow(qPrintable(edit + ": by number"))
            << layout << edit << QByteArray("<property name=\"echoMode\"><number>0</number></property>");
        QTest::newRow(qPrintable(edit + ": nothing")) << layout << edit << QByteArray();
    }
}

void tst_LayoutSafety::passwordsStayMasked()
{
    QFETCH(QString, layout);
    QFETCH(QString, edit);
    QFETCH(QByteArray, property);
    QByteArray xml = builtIn(layout);
    const int start = int(xml.indexOf("name=\"" + edit.toLatin1() + "\">"));
    const int echo = int(xml.indexOf("<property name=\"echoMode\">", start));
    const int end = int(xml.indexOf("</property>", echo)) + 11;
    QVERIFY(start > 0 && echo > start && end > echo);
    xml.replace(echo, end - echo, property);
    const std::unique_ptr<QWidget> top = build(layout, xml);
    QCOMPARE(reasons, QStringList());
    QCOMPARE(top->findChild<QLineEdit *>(edit)->echoMode(), QLineEdit::Password);
}

void tst_LayoutSafety::passwordsAreKeptFromInputMethods()
{
    QByteArray xml = builtIn("EditAccount");
    const int start = int(xml.indexOf("name=\"EditAccount_Password\">"));
    const int end = int(xml.indexOf("</widget>", start));
    QVERIFY(start > 0 && end > start);
    xml.insert(end, "<property name=\"inputMethodHints\"><set>Qt::ImhNone</set></property>");
    const std::unique_ptr<QWidget> top = build("EditAccount", xml);
    QCOMPARE(reasons, QStringList());
    const Qt::InputMethodHints wanted = Qt::ImhHiddenText | Qt::ImhNoPredictiveText | Qt::ImhSensitiveData;
    QCOMPARE(top->findChild<QLineEdit *>("EditAccount_Password")->inputMethodHints() & wanted, wanted);
}

void tst_LayoutSafety::inputIsNotCut()
{
    QByteArray xml = builtIn("AddAccount");
    for (const char *edit : { "AddAccount_PasswordEdit", "AddAccount_UsernameEdit" })
        xml.replace(QByteArray("name=\"") + edit + "\">",
                    QByteArray("name=\"") + edit
                        + "\"><property name=\"maxLength\"><number>4</number></property>"
                          "<property name=\"inputMask\"><string>99</string></property>");
    const std::unique_ptr<QWidget> top = build("AddAccount", xml);
    QCOMPARE(reasons, QStringList());
    const QString typed(5000, QLatin1Char('x'));
    for (const char *name : { "AddAccount_PasswordEdit", "AddAccount_UsernameEdit" }) {
        auto *edit = top->findChild<QLineEdit *>(name);
        edit->insert(typed);
        QCOMPARE(edit->text(), typed);
    }
}

void tst_LayoutSafety::harmfulLayoutIsRefused_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("reason");
    const auto add = [](const char *row, const QByteArray &xml, const char *reason) {
        QTest::newRow(row) << xml << QString::fromUtf8(reason);
    };
    const auto label = [](const QByteArray &property) {
        return with("AddAccount", "<widget class=\"QLabel\" name=\"l\">" + property + "</widget>");
    };
    const auto text = [&label](const char *name, const QByteArray &value) {
        return label("<property name=\"" + QByteArray(name) + "\"><string>"
                     + QString::fromLatin1(value).toHtmlEscaped().toLatin1() + "</string></property>");
    };
    const QByteArray connection =
        "<connections><connection><sender>AddAccount_PasswordEdit</sender><signal>textChanged(QString)</signal>"
        "<receiver>AddAccount_UsernameEdit</receiver><slot>setText(QString)</slot></connection></connections>";
    add("connections", builtIn("AddAccount").replace("<connections/>", connection), "connects widgets");
    add("slots", builtIn("AddAccount").replace("<connections/>", "<connections/><slots><slot>f()</slot></slots>"),
        "connects widgets");
    add("custom widget", builtIn("AddAccount").replace("<class>KirvFormArea</class>", "<class>QWebEngineView</class>"),
        "unknown class QWebEngineView");
    add("custom page method",
        builtIn("AddAccount").replace("<container>1", "<addpagemethod>f</addpagemethod><container>1"),
        "element \"addpagemethod\"");
    add("script", builtIn("AddAccount").replace("<connections/>", "<script>x</script>"), "element \"script\"");
    add("address", label("<property name=\"source\"><url><string>file:///dev/zero</string></url></property>"),
        "element \"url\"");
    add("entities", "<!DOCTYPE ui [<!ENTITY a \"aaaa\">]>" + builtIn("AddAccount"), "document type");

    add("style sheet: device", text("styleSheet", "QLabel { image: url(/dev/zero); }"), "not in the folder");
    add("style sheet: quoted", text("styleSheet", "QLabel{background-image:URL( '/etc/passwd' )}"),
        "not in the folder");
    add("style sheet: network", text("styleSheet", "* { image: url(http://localhost/x.png); }"), "no picture");
    add("style sheet: open end", text("styleSheet", "* { image: url(/dev/zero"), "not in the folder");
    add("style sheet: escape", text("styleSheet", "* { image: u\\72l(/dev/zero); }"), "style sheet contains");
    add("style sheet: property", text("styleSheet", "QLineEdit { qproperty-echoMode: 'Normal'; }"), "qproperty-");
    add("style sheet: mask", text("styleSheet", "QLineEdit { lineedit-password-mask-delay: 99999 }"),
        "lineedit-password");
    add("style sheet: property in parts",
        label("<property name=\"styleSheet\"><string>QLineEdit { qproperty<!-- --> <!-- -->-echoMode: 'Normal'; "
              "}</string>"
              "</property>"),
        "more than one way");
    add("style sheet: in place of a translation",
        label("<property name=\"styleSheet\"><string id=\"QLineEdit { qproperty-echoMode: 'Normal'; "
              "}\">x</string></property>")
            .replace("<ui ", "<ui idbasedtr=\"true\" "),
        "attribute \"id");
    add("style sheet: file", text("styleSheet", "file:///dev/zero"), "contains \"file:\"");
    add("rich text: device", text("text", "<img src=\"/dev/zero\">"), "not in the folder");
    add("rich text: entity", text("text", "<img src=\"&#47;dev/zero\">"), "icture \"");
    add("rich text: address", text("toolTip", "<p><img src='file:///dev/zero'></p>"), "not in the folder");
    add("rich text: network", text("text", "<img src='http://localhost/x.png'>"), "no picture");
    add("rich text: background", text("text", "<table background='/dev/zero'><tr><td>x</table>"), "not in the folder");
    add("rich text: style", text("text", "<p style=\"background-image: url('/dev/zero')\">x</p>"), "not in the folder");
    add("rich text: style sheet", text("text", "<link rel=stylesheet type=text/css href=/dev/zero>x"),
        "not in the folder");
    add("rich text: nested tables", text("text", QByteArray("<table><tr><td>").repeated(1000)), "too large");
    add("rich text: in place of a translation",
        label("<property name=\"text\"><string id=\"&lt;img src='/dev/zero'&gt;\">x</string></property>")
            .replace("<ui ", "<ui idbasedtr=\"true\" "),
        "attribute \"id");
    add("markdown",
        label("<property name=\"textFormat\"><enum>Qt::MarkdownText</enum></property>"
              "<property name=\"text\"><string>![x](/dev/zero)</string></property>"),
        "format \"Qt::MarkdownText\"");
    add("markdown by number", label("<property name=\"textFormat\"><number>3</number></property>"), "out of bounds");

    add("rows",
        with("AddAccount",
             "<widget class=\"QTableWidget\" name=\"t\"><property name=\"rowCount\"><number>2000000000</number>"
             "</property></widget>"),
        "out of bounds");
    add("rows as a text",
        with("AddAccount",
             "<widget class=\"QTableWidget\" name=\"t\"><property name=\"rowCount\"><string>2000000000</string>"
             "</property></widget>"),
        "sets \"rowCount\" to a text");
    add("place in a grid",
        with("AddAccount",
             "<widget class=\"QWidget\" name=\"g\"><layout class=\"QGridLayout\"><item row=\"2000000000\" column=\"0\">"
             "<widget class=\"QLabel\" name=\"l\"/></item></layout></widget>"),
        "row or column");
    add("width of a column",
        with("AddAccount",
             "<widget class=\"QWidget\" name=\"g\"><layout class=\"QGridLayout\" columnminimumwidth=\"0,2000000000\">"
             "<item row=\"0\" column=\"1\"><widget class=\"QLabel\" name=\"l\"/></item></layout></widget>"),
        "out of bounds");
    add("default space",
        builtIn("AddAccount")
            .replace("<customwidgets>", "<layoutdefault spacing=\"2000000000\" margin=\"9\"/><customwidgets>"),
        "out of bounds");
    add("icon size",
        with("AddAccount",
             "<widget class=\"QToolButton\" name=\"b\"><property name=\"iconSize\"><size><width>100000</width>"
             "<height>100000</height></size></property></widget>"),
        "out of bounds");
    add("font", label("<property name=\"font\"><font><pointsize>99999</pointsize></font></property>"), "out of bounds");
}

void tst_LayoutSafety::harmfulLayoutIsRefused()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, reason);
    const std::unique_ptr<QWidget> top = build("AddAccount", xml);
    QVERIFY(top);
    QCOMPARE(KirvLayoutCatalog::missingIn("AddAccount", top.get()), QStringList());
    QCOMPARE(int(reasons.size()), 1);
    QVERIFY2(reasons.first().contains(reason), qPrintable(reasons.first()));
    QVERIFY(!top->findChild<QWidget *>(QStringLiteral("l")));
}

void tst_LayoutSafety::pictureThatIsNoFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("icon");
    QTest::addColumn<QString>("reason");
    QTest::newRow("pipe") << QByteArray("<iconset><normaloff>pipe.png</normaloff></iconset>") << "cannot be read";
    QTest::newRow("pipe without a state") << QByteArray("<iconset>pipe.png</iconset>") << "cannot be read";
    QTest::newRow("link to a pipe") << QByteArray("<iconset><normalon>link.png</normalon></iconset>")
                                    << "cannot be read";
    QTest::newRow("pipe as a theme's icon")
        << QByteArray("<iconset theme=\"FOLDER/pipe.png\"/>") << "not the name of an icon";
    QTest::newRow("device") << QByteArray("<iconset><normaloff>/dev/zero</normaloff></iconset>") << "not in the folder";
    QTest::newRow("other folder") << QByteArray("<iconset><normaloff>../x.png</normaloff></iconset>") << "o picture";
    QTest::newRow("link out") << QByteArray("<iconset><normaloff>out.png</normaloff></iconset>") << "not in the folder";
    QTest::newRow("network") << QByteArray("<iconset><normaloff>http://localhost/x.png</normaloff></iconset>")
                             << "no picture";
    QTest::newRow("drawing") << QByteArray("<iconset><normaloff>drawing.svg</normaloff></iconset>")
                             << "not a picture that can be used";
}

void tst_LayoutSafety::pictureThatIsNoFileIsRefused()
{
    QFETCH(QByteArray, icon);
    QFETCH(QString, reason);
    QCOMPARE(::mkfifo(qPrintable(path("pipe.png")), 0600), 0);
    QVERIFY(QFile::link(path("pipe.png"), path("link.png")));
    QVERIFY(QFile::link("/bin/sh", path("out.png")));
    QFile drawing(path("drawing.svg"));
    QVERIFY(drawing.open(QIODevice::WriteOnly));
    drawing.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>");
    drawing.close();
    icon.replace("FOLDER", folder->path().toLocal8Bit());
    const std::unique_ptr<QWidget> top = build(
        "AddAccount",
        with("AddAccount",
             "<widget class=\"QToolButton\" name=\"b\"><property name=\"icon\">" + icon + "</property></widget>"));
    QCOMPARE(int(reasons.size()), 1);
    QVERIFY2(reasons.first().contains(reason), qPrintable(reasons.first()));
    QVERIFY(!top->findChild<QWidget *>(QStringLiteral("b")));
}

void tst_LayoutSafety::pictureForFineScreensIsLookedAt()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path("own.png")));
    QCOMPARE(::mkfifo(qPrintable(path("own@2x.png")), 0600), 0);
    QVERIFY(build("AddAccount",
                  with("AddAccount",
                       "<widget class=\"QLabel\" name=\"l\"><property name=\"pixmap\">"
                       "<pixmap>own.png</pixmap></property></widget>")));
    QVERIFY2(reasons.value(0).contains(QLatin1String("cannot be read")), qPrintable(reasons.value(0)));
}

void tst_LayoutSafety::pictureThatIsReadInTwoWaysIsRefused_data()
{
    QTest::addColumn<QString>("seen");
    QTest::addColumn<QByteArray>("property");
    const QByteArray image = "<property name=\"text\"><string>&lt;img src=\"FOLDER/%1\"&gt;</string></property>";
    const auto add = [](const char *row, const char *seen, QByteArray property, const char *name) {
        QTest::newRow(row) << QString::fromLatin1(seen) << property.replace("%1", name);
    };
    add("rich text: part of an address", "pipe.png#.png", image, "pipe.png#.png");
    add("rich text: question to an address", "pipe.png?.png", image, "pipe.png?.png");
    add("rich text: characters as numbers", "p%69pe.png", image, "p%69pe.png");
    add("rich text: in parts", "pi pe.png", image, "pi<!-- --> <!-- -->pe.png");
    add("style sheet: in parts", "pi pe.png",
        "<property name=\"styleSheet\"><string>QLabel { image: url(FOLDER/%1); }</string></property>",
        "pi<?x?> <?x?>pe.png");
    add("pixmap: in parts", "pi\npe.png", "<property name=\"pixmap\"><pixmap>%1</pixmap></property>",
        "pi<!-- -->\n<!-- -->pe.png");
}

/// What the check takes for a picture is one, what Qt would read is a pipe.
void tst_LayoutSafety::pictureThatIsReadInTwoWaysIsRefused()
{
    QFETCH(QString, seen);
    QFETCH(QByteArray, property);
    QCOMPARE(::mkfifo(qPrintable(path("pipe.png")), 0600), 0);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path(seen)));
    property.replace("FOLDER", folder->path().toLocal8Bit());
    const QByteArray xml = with("AddAccount", "<widget class=\"QLabel\" name=\"l\">" + property + "</widget>");
    QVERIFY2(!KirvLayoutCheck(folder->path()).findFault(xml).isEmpty(), "It would be read.");
    QVERIFY(build("AddAccount", xml));
    QCOMPARE(int(reasons.size()), 1);
}

void tst_LayoutSafety::picturesOfTheOwnFolderAreShown_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::newRow("pixmap") << QByteArray("<property name=\"pixmap\"><pixmap>pictures/own.png</pixmap></property>");
    QTest::newRow("whole path") << QByteArray(
        "<property name=\"pixmap\"><pixmap>FOLDER/pictures/own.png</pixmap></property>");
    QTest::newRow("resource") << QByteArray(
        "<property name=\"pixmap\"><pixmap>:/kirv/icons/edit-delete.svg</pixmap></property>");
    QTest::newRow("icon") << QByteArray("<property name=\"windowIcon\"><iconset theme=\"edit-delete\"><normaloff>"
                                        "pictures/own.png</normaloff>pictures/own.png</iconset></property>");
    QTest::newRow("style sheet") << QByteArray("<property name=\"styleSheet\"><string>QLabel { image: "
                                               "url(\"FOLDER/pictures/own.png\"); }</string></property>");
    QTest::newRow("rich text") << QByteArray(
        "<property name=\"text\"><string>&lt;img src=&quot;FOLDER/pictures/own.png&quot;/&gt;</string></property>");
    QTest::newRow("rich text: resource") << QByteArray(
        "<property name=\"text\"><string>&lt;img src=&quot;qrc:/kirv/icons/x.svg&quot;/&gt;</string></property>");
}

void tst_LayoutSafety::picturesOfTheOwnFolderAreShown()
{
    QFETCH(QByteArray, property);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(QDir(folder->path()).mkdir("pictures") && image.save(path("pictures/own.png")));
    property.replace("FOLDER", folder->path().toLocal8Bit());
    const std::unique_ptr<QWidget> top =
        build("AddAccount", with("AddAccount", "<widget class=\"QLabel\" name=\"l\">" + property + "</widget>"));
    QCOMPARE(reasons, QStringList());
    const auto *label = top->findChild<QLabel *>("l");
    QVERIFY(label);
    if (property.contains("\"pixmap\""))
        QVERIFY(label->sizeHint().width() >= 8);
}

void tst_LayoutSafety::whatDesignerWritesIsAccepted()
{
    const QByteArray widgets =
        "<widget class=\"QGroupBox\" name=\"box\"><property name=\"title\"><string>B</string></property>"
        "<layout class=\"QGridLayout\" name=\"grid\" rowstretch=\"0,1\"><item row=\"1\" column=\"2\" colspan=\"2\">"
        "<widget class=\"QSpinBox\" name=\"s\"><property name=\"maximum\"><number>2147483647</number></property>"
        "<property name=\"maximumSize\"><size><width>16777215</width><height>16777215</height></size></property>"
        "</widget></item><item row=\"0\" column=\"0\"><spacer name=\"p\"><property name=\"orientation\">"
        "<enum>Qt::Vertical</enum></property><property name=\"sizeHint\" stdset=\"0\"><size><width>20</width>"
        "<height>40</height></size></property></spacer></item></layout></widget>";
    const std::unique_ptr<QWidget> top =
        build("AddAccount", with("AddAccount", widgets).replace("<connections/>", "<connections/><slots/>"));
    QCOMPARE(reasons, QStringList());
    QVERIFY(top->findChild<QWidget *>("s"));
}

void tst_LayoutSafety::manyWidgetsAreRefusedBeforeAnyIsMade()
{
    WidgetCounter counter;
    QVERIFY(build("AddAccount",
                  with("AddAccount",
                       "<widget class=\"QWidget\" name=\"w\">"
                           + QByteArray("<widget class=\"QTextEdit\" name=\"l\"/>").repeated(20000) + "</widget>")));
    QVERIFY2(reasons.value(0).contains(QLatin1String("too many widgets")), qPrintable(reasons.value(0)));
    QVERIFY2(counter.count() < 200, qPrintable(QString::number(counter.count()))); // those of the built-in layout
}

QTEST_MAIN(tst_LayoutSafety)
#include "tst_layout_safety.moc"
