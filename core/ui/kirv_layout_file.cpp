// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_file.h"

#include "core/ui/kirv_form_area.h"
#include "core/ui/kirv_layout_check.h"
#include "core/ui/kirv_layout_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPointer>
#include <QTextBrowser>
#include <QTextEdit>
#include <QUiLoader>
#include <QVariant>
#include <QWidget>

namespace {

// The built-in layouts take some 20 kB.
const qint64 maximumSize = 1024 * 1024;
const int maximumLength = 32767; ///< of a line edit, as Qt has it

/// A text view that loads nothing of what a rich text refers to. Where nothing is returned Qt tries to read a file, so
/// this returns an empty picture, which serves for other kinds of resources, too.
template <class TextView>
class ClosedTextView : public TextView {
public:
    using TextView::TextView;
    QVariant loadResource(int, const QUrl &) override
    {
        QImage empty(1, 1, QImage::Format_ARGB32_Premultiplied);
        empty.fill(Qt::transparent);
        return empty;
    }
};

/// Makes our own classes where a layout names them or where they stand in for Qt's, and notes what it could not
/// make; the base class only prints a warning and leaves a gap or a base class.
class Loader : public QUiLoader {
public:
    explicit Loader(QObject *parent)
        : QUiLoader(parent)
    {
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        if (QWidget *own = createOwn(className, parent)) {
            own->setObjectName(name);
            return own;
        }
        // A "Line" is made by the base class, but it does not list it.
        if (className != QLatin1String("Line") && !availableWidgets().contains(className))
            unknownClasses.append(className);
        return QUiLoader::createWidget(className, parent, name);
    }

    QLayout *createLayout(const QString &className, QObject *parent, const QString &name) override
    {
        if (!availableLayouts().contains(className))
            unknownClasses.append(className);
        return QUiLoader::createLayout(className, parent, name);
    }

    QStringList unknownClasses;

private:
    /// Null for a class that the base class makes.
    static QWidget *createOwn(const QString &className, QWidget *parent)
    {
        if (className == QLatin1String("KirvFormArea"))
            return new KirvFormArea(parent);
        if (className == QLatin1String("QDialog") && !parent)
            return new KirvLayoutDialog;
        if (className == QLatin1String("QTextEdit"))
            return new ClosedTextView<QTextEdit>(parent);
        if (className == QLatin1String("QTextBrowser"))
            return new ClosedTextView<QTextBrowser>(parent);
        return nullptr;
    }
};

/// Made once and on first use. The loader would load every Designer plug-in of the system, which takes longer than to
/// build a window and runs code that no layout may use: it finds none of them.
Loader &sharedLoader()
{
    static QPointer<Loader> loader;
    if (!loader) {
        const QStringList paths = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        loader = new Loader(qApp);
        QCoreApplication::setLibraryPaths(paths);
    }
    return *loader;
}

/// Whatever the file says: what is typed comes back as a whole, and a password is never shown.
void protectInput(QWidget *top)
{
    const QList<QLineEdit *> edits = top->findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        edit->setInputMask(QString());
        edit->setMaxLength(maximumLength);
        if (edit->objectName().endsWith(QLatin1String("_Password"))
            || edit->objectName().endsWith(QLatin1String("_PasswordEdit"))) {
            edit->setEchoMode(QLineEdit::Normal); // only a change sets the hints for input methods
            edit->setEchoMode(QLineEdit::Password);
        }
    }
}

/// Gives the standard buttons names, which a layout file cannot: that of their box, "_" and that of the button.
void nameStandardButtons(QWidget *top)
{
    const QMetaEnum names = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
    const QList<QDialogButtonBox *> boxes = top->findChildren<QDialogButtonBox *>();
    for (const QDialogButtonBox *box : boxes) {
        const QList<QAbstractButton *> buttons = box->buttons();
        for (QAbstractButton *button : buttons)
            button->setObjectName(QStringLiteral("%1_%2").arg(
                box->objectName(), QLatin1String(names.valueToKey(box->standardButton(button)))));
    }
}

} // namespace

KirvLayoutFile::KirvLayoutFile(const QString &path)
    : path(path)
{
}

std::unique_ptr<QWidget> KirvLayoutFile::build()
{
    QByteArray xml = read();
    if (failure.isEmpty())
        failure = KirvLayoutCheck(QFileInfo(path).absolutePath()).findFault(xml);
    if (!failure.isEmpty())
        return nullptr;

    Loader &loader = sharedLoader();
    loader.unknownClasses.clear();
    loader.setWorkingDirectory(QFileInfo(path).absoluteDir());
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    std::unique_ptr<QWidget> top(loader.load(&buffer));
    if (!loader.unknownClasses.isEmpty())
        failure = tr("It uses the unknown class %1.").arg(loader.unknownClasses.first());
    else if (!top)
        failure = tr("It is not a window layout: %1").arg(loader.errorString());
    if (!failure.isEmpty())
        return nullptr;
    protectInput(top.get());
    nameStandardButtons(top.get());
    return top;
}

QByteArray KirvLayoutFile::read()
{
    if (!QFileInfo(path).isFile()) {
        failure = tr("It is not an ordinary file.");
        return QByteArray();
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        failure = tr("It cannot be read: %1").arg(file.errorString());
        return QByteArray();
    }
    const QByteArray xml = file.read(maximumSize + 1);
    if (xml.isEmpty())
        failure = tr("It is empty.");
    else if (xml.size() > maximumSize)
        failure = tr("It is larger than %1 kB.").arg(maximumSize / 1024);
    return xml;
}
