// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_check.h"

#include "core/ui/kirv_layout_vocabulary.h"
#include "core/values/kirv_bounded_image.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFormat>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// The built-in layouts take some 20 kB, nest about 20 elements deep and have some 500 of them. The form builder
// recurses once per nested element, so that a file nested without bounds would exhaust the stack.
const int maximumDepth = 200;
const int maximumElements = 20000;
const int maximumWidgets = 2000;
const int maximumAttribute = 4096;
const int maximumRichText = 16 * 1024;
const int maximumTables = 20;
const int maximumPlace = 1000; ///< of a row or column
const int maximumNumber = 4096; ///< pixels, mostly
const int maximumFontSize = 200;

/// Rich text that fetches nothing and notes what it would have fetched, as Qt itself reads it.
class ClosedDocument : public QTextDocument {
public:
    explicit ClosedDocument(const QString &html)
    {
        setUndoRedoEnabled(false);
        setHtml(html);
        const QVector<QTextFormat> formats = allFormats();
        for (const QTextFormat &format : formats) {
            note(format.stringProperty(QTextFormat::ImageName));
            note(format.stringProperty(QTextFormat::BackgroundImageUrl));
        }
    }

    QStringList fetched;

protected:
    QVariant loadResource(int, const QUrl &url) override
    {
        note(url.toString());
        return QVariant();
    }

private:
    void note(const QString &name)
    {
        if (!name.isEmpty())
            fetched += name;
    }
};

/// Whether \a text is a number, or some between commas, each between \a least and \a most.
bool areNumbers(const QString &text, int least, int most)
{
    const QStringList numbers = text.split(QLatin1Char(','));
    return std::all_of(numbers.begin(), numbers.end(), [=](const QString &each) {
        bool isNumber = false;
        const int number = each.toInt(&isNumber);
        return isNumber && number >= least && number <= most;
    });
}

QString attribute(const QXmlStreamReader &reader, const char *name)
{
    return reader.attributes().value(QLatin1String(name)).toString();
}

} // namespace

KirvLayoutCheck::KirvLayoutCheck(const QString &folder)
    : folder(folder)
{
}

QString KirvLayoutCheck::findFault(const QByteArray &xml) const
{
    QXmlStreamReader first(xml);
    const QString fault = faultOfStructure(first);
    if (!fault.isEmpty())
        return fault;
    QXmlStreamReader second(xml);
    return faultOfContent(second);
}

QString KirvLayoutCheck::faultOfStructure(QXmlStreamReader &reader)
{
    int depth = 0;
    int count = 0;
    int widgetCount = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.tokenType() == QXmlStreamReader::DTD)
            return tr("It declares a document type, which a layout cannot have.");
        if (reader.isEndElement())
            --depth;
        if (!reader.isStartElement())
            continue;
        if (++depth == 1 && reader.name() != QLatin1String("ui"))
            return tr("It is not a window layout of Qt Designer.");
        if (depth > maximumDepth)
            return tr("Its elements are nested too deeply.");
        if (reader.name() == QLatin1String("widget") || reader.name() == QLatin1String("layout"))
            ++widgetCount;
        if (++count > maximumElements || widgetCount > maximumWidgets)
            return tr("It has too many widgets.");
    }
    if (reader.hasError())
        return tr("Line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
    return QString();
}

QString KirvLayoutCheck::faultOfContent(QXmlStreamReader &reader) const
{
    QList<Element> open;
    QString fault;
    while (!reader.atEnd() && fault.isEmpty()) {
        reader.readNext();
        if (reader.isStartElement()) {
            Element element;
            element.name = reader.name().toString();
            const bool isProperty =
                element.name == QLatin1String("property") || element.name == QLatin1String("attribute");
            element.property = isProperty ? attribute(reader, "name")
                : open.isEmpty()          ? QString()
                                          : open.last().property;
            open.append(element);
            fault = faultOfStart(reader);
        } else if (reader.isCharacters() && !open.isEmpty()) {
            open.last().text += reader.text();
            if (!reader.isWhitespace())
                open.last().parts += reader.text();
        } else if (reader.isEndElement()) {
            fault = faultOfEnd(open);
            open.removeLast();
        }
    }
    return fault;
}

QString KirvLayoutCheck::faultOfStart(const QXmlStreamReader &reader)
{
    const QString name = reader.name().toString();
    const QString className = attribute(reader, "class");
    if (name == QLatin1String("connection") || name == QLatin1String("signal") || name == QLatin1String("slot"))
        return tr("It connects widgets with each other, which only the program does.");
    if (!KirvLayoutVocabulary::has(KirvLayoutVocabulary::elements, name))
        return tr("It has an element \"%1\", which a layout cannot have.").arg(name.left(40));
    if ((name == QLatin1String("widget") && !KirvLayoutVocabulary::has(KirvLayoutVocabulary::widgets, className))
        || (name == QLatin1String("layout")
            && !KirvLayoutVocabulary::has(KirvLayoutVocabulary::layoutClasses, className)))
        return unknownClass(className);
    // A theme's icon can also be a path.
    const QString theme = attribute(reader, "theme");
    if (theme.contains(QLatin1Char('/')) || theme.contains(QLatin1Char('\\')) || theme.startsWith(QLatin1Char('.')))
        return tr("\"%1\" is not the name of an icon.").arg(theme.left(200));
    return faultOfAttributes(reader);
}

/// A place in a grid makes all rows and columns before it.
QString KirvLayoutCheck::faultOfAttributes(const QXmlStreamReader &reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute &each : attributes) {
        const QString name = each.qualifiedName().toString();
        const QString value = each.value().toString();
        if (!KirvLayoutVocabulary::has(KirvLayoutVocabulary::attributes, name))
            return tr("It has an attribute \"%1\", which a layout cannot have.").arg(name.left(40));
        if (value.size() > maximumAttribute)
            return tr("It has an attribute that is too long.");
        const bool isPlace = KirvLayoutVocabulary::has(KirvLayoutVocabulary::placeAttributes, name);
        if (isPlace && !value.isEmpty() && !areNumbers(value, 0, maximumPlace))
            return tr("It has a row or column that is out of bounds: %1.").arg(value.left(20));
        if (KirvLayoutVocabulary::has(KirvLayoutVocabulary::numberAttributes, name)
            && !areNumbers(value, -1, maximumNumber))
            return tr("It has a number that is out of bounds: %1 (%2).").arg(value.left(40), name);
    }
    return QString();
}

QString KirvLayoutCheck::faultOfEnd(const QList<Element> &open) const
{
    const Element &element = open.last();
    // The form builder drops parts that are only spaces; parts come from comments and the like between them.
    if (!element.parts.isEmpty() && element.parts.trimmed() != element.text.trimmed())
        return tr("It has a text that can be read in more than one way: \"%1\".").arg(element.text.left(200));
    const QString parent = open.size() > 1 ? open.at(open.size() - 2).name : QString();
    if (element.name == QLatin1String("class") && parent == QLatin1String("customwidget")
        && element.text != QLatin1String("KirvFormArea"))
        return unknownClass(element.text);
    if (KirvLayoutVocabulary::has(KirvLayoutVocabulary::pictureElements, element.name))
        return element.text.trimmed().isEmpty() ? QString() : faultOfPicture(element.text.trimmed());
    if (element.name == QLatin1String("string") || element.name == QLatin1String("cstring"))
        return faultOfText(element);
    if (KirvLayoutVocabulary::has(KirvLayoutVocabulary::numberElements, element.name))
        return faultOfNumber(element);
    // The other formats fetch pictures in ways of their own.
    if (element.property == QLatin1String("textFormat") && !element.text.trimmed().isEmpty()
        && !QStringList({ "Qt::PlainText", "Qt::RichText", "Qt::AutoText", "Qt::TextFormat::PlainText",
                          "Qt::TextFormat::RichText", "Qt::TextFormat::AutoText" })
                .contains(element.text))
        return tr("It has a text of the format \"%1\", which a layout cannot have.").arg(element.text.left(40));
    return QString();
}

QString KirvLayoutCheck::faultOfNumber(const Element &element)
{
    bool isNumber = false;
    const double number = element.text.toDouble(&isNumber);
    double limit = maximumNumber;
    if (KirvLayoutVocabulary::has(KirvLayoutVocabulary::countProperties, element.property))
        limit = maximumPlace;
    else if (element.name == QLatin1String("pointsize"))
        limit = maximumFontSize;
    else if (KirvLayoutVocabulary::has(KirvLayoutVocabulary::rangeProperties, element.property))
        return QString();
    if (isNumber && number >= -limit && number <= limit && element.property != QLatin1String("textFormat"))
        return QString();
    return tr("It has a number that is out of bounds: %1 (%2).").arg(element.text.left(40), element.property.left(40));
}

QString KirvLayoutCheck::faultOfText(const Element &element) const
{
    if (!KirvLayoutVocabulary::has(KirvLayoutVocabulary::textProperties, element.property)
        && !element.property.isEmpty())
        return tr("It sets \"%1\" to a text, which a layout cannot do.").arg(element.property.left(40));
    if (element.property == QLatin1String("styleSheet"))
        return faultOfStyleSheet(element.text);
    return element.text.contains(QLatin1Char('<')) ? faultOfRichText(element.text) : QString();
}

/// Beside pictures, a style sheet can set properties, which could show a password, and be fetched itself.
QString KirvLayoutCheck::faultOfStyleSheet(const QString &text) const
{
    static const QRegularExpression forbidden(QStringLiteral("\\\\|qproperty-|lineedit-password|@import|^\\s*file:"),
                                              QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = forbidden.match(text);
    if (match.hasMatch())
        return tr("Its style sheet contains \"%1\", which a layout cannot have.").arg(match.captured().trimmed());
    static const QRegularExpression url(QStringLiteral("url\\s*\\(([^)]*)(\\)|$)"),
                                        QRegularExpression::CaseInsensitiveOption);
    QRegularExpressionMatchIterator found = url.globalMatch(text);
    while (found.hasNext()) {
        QString path = found.next().captured(1).trimmed();
        path.remove(QLatin1Char('"')).remove(QLatin1Char('\''));
        const QString fault = faultOfPicture(path.trimmed());
        if (!fault.isEmpty())
            return fault;
        // Qt would look for it in the folder in which the program was started.
        if (QDir::isRelativePath(path))
            return tr("Style sheets and rich texts name pictures by their whole path, \"%1\" does not.").arg(path);
    }
    return QString();
}

QString KirvLayoutCheck::faultOfRichText(const QString &text) const
{
    if (text.size() > maximumRichText || text.count(QLatin1String("<table"), Qt::CaseInsensitive) > maximumTables)
        return tr("It has a rich text that is too large.");
    const ClosedDocument document(text);
    for (const QString &name : document.fetched) {
        const QString fault = faultOfAddress(name);
        if (!fault.isEmpty())
            return fault;
    }
    return QString();
}

/// Qt reads what is no address as one all the same: behind some characters another file is named.
QString KirvLayoutCheck::faultOfAddress(const QString &name) const
{
    const bool isAddress = name.startsWith(QLatin1String("file:"));
    QString path = isAddress ? QUrl(name).toLocalFile() : name;
    if (path.startsWith(QLatin1String("qrc:/")))
        path.remove(0, 3);
    const QString fault = faultOfPicture(path);
    if (!fault.isEmpty())
        return fault;
    if (QDir::isRelativePath(path))
        return tr("Style sheets and rich texts name pictures by their whole path, \"%1\" does not.").arg(path);
    static const QRegularExpression signsOfAddresses(QStringLiteral("[%#?]"));
    if (!isAddress && path.contains(signsOfAddresses))
        return tr("It has a text that can be read in more than one way: \"%1\".").arg(path.left(200));
    return QString();
}

/// Pictures come with the program or lie in the folder of the layout or below it, behind all links.
QString KirvLayoutCheck::faultOfPicture(const QString &path) const
{
    if (path.startsWith(QLatin1String(":/")))
        return QString();
    const QString file = QDir(folder).absoluteFilePath(path);
    QString fault = faultOfPictureFile(file);
    // Qt takes such a file beside it for screens of a high resolution.
    const QFileInfo info(file);
    for (int scale = 2; scale <= 9 && fault.isEmpty(); ++scale) {
        const QString larger =
            QStringLiteral("%1/%2@%3x%4")
                .arg(info.path(), info.baseName(), QString::number(scale), info.fileName().mid(info.baseName().size()));
        if (QFileInfo::exists(larger))
            fault = faultOfPictureFile(larger);
    }
    return fault;
}

QString KirvLayoutCheck::faultOfPictureFile(const QString &path) const
{
    const QString real = QFileInfo(path).canonicalFilePath();
    if (real.isEmpty())
        return tr("There is no picture \"%1\".").arg(path.left(200));
    const QString own = QFileInfo(folder).canonicalFilePath();
    if (own.isEmpty() || !real.startsWith(own + QLatin1Char('/')))
        return tr("The picture \"%1\" is not in the folder of the layout.").arg(path.left(200));
    QByteArray format;
    QString problem;
    KirvBoundedImage::measuredFile(real, &format, &problem);
    return problem;
}

QString KirvLayoutCheck::unknownClass(const QString &className)
{
    return tr("It uses the unknown class %1.").arg(className.left(40));
}
