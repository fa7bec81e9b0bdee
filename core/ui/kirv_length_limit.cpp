// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_length_limit.h"

#include "core/values/kirv_text_limit.h"

#include <QAccessible>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>

#include <utility>

namespace {

const int readingMilliseconds = 10000;

void sayTooLong(QWidget *field, int limit)
{
    const QString text =
        QCoreApplication::translate("KirvLengthLimit", "The text is too long here. At most %1 characters are kept.")
            .arg(QLocale().toString(limit));
    QToolTip::showText(field->mapToGlobal(field->rect().bottomLeft()), text, field, QRect(), readingMilliseconds);
    QAccessibleEvent alert(field, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

/// Cuts what was put into a document last.
class DocumentLimit : public QObject {
public:
    DocumentLimit(QWidget *field, QTextDocument *document)
        : QObject(field)
        , field(field)
        , document(document)
    {
        field->installEventFilter(this);
        connect(document, &QTextDocument::contentsChange, this,
                [this](int position, int, int added) { lastEnd = position + added; });
        connect(document, &QTextDocument::contentsChanged, this, [this] { cut(); });
    }

protected:
    /// A long text is not even laid out when it is pasted with the key.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste))
            return QObject::eventFilter(watched, event);
        const QString text = QGuiApplication::clipboard()->text();
        const QString part = kirvEditablePart(text);
        if (part.size() == text.size())
            return false;
        QMetaObject::invokeMethod(field, "insertPlainText", Q_ARG(QString, part));
        sayTooLong(field, int(part.size()));
        return true;
    }

private:
    void cut()
    {
        const int length = document->characterCount() - 1; // the last one ends the document
        const int excess = length - kirvLongestEditableText;
        if (excess <= 0 || std::exchange(isCutting, true))
            return;
        const int end = qBound(excess, lastEnd, length);
        QTextCursor cursor(document);
        cursor.setPosition(end - excess);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        isCutting = false;
        if (field->isVisible())
            sayTooLong(field, kirvLongestEditableText);
    }

    QWidget *field;
    QTextDocument *document;
    int lastEnd = 0;
    bool isCutting = false;
};

} // namespace

void kirvLimitLength(QLineEdit *edit)
{
    // Also emitted for what a validator does not take.
    QObject::connect(edit, &QLineEdit::inputRejected, edit, [edit] {
        if (edit->text().size() >= edit->maxLength())
            sayTooLong(edit, edit->maxLength());
    });
}

void kirvLimitLength(QTextEdit *edit)
{
    new DocumentLimit(edit, edit->document());
}

void kirvLimitLength(QPlainTextEdit *edit)
{
    new DocumentLimit(edit, edit->document());
}
