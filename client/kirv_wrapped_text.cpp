// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_wrapped_text.h"

#include <QEvent>
#include <QTextDocument>
#include <QTextOption>
#include <QWheelEvent>
#include <QtMath>

namespace {

const int longestText = 20000;
// In average characters.
const int comfortableWidth = 60;
const int narrowestWidth = 20;

void prepare(QTextDocument *document, const QFont &font)
{
    QTextOption option = document->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document->setDefaultTextOption(option);
    document->setDocumentMargin(0);
    document->setDefaultFont(font);
    document->setUndoRedoEnabled(false);
}

QString bounded(const QString &text)
{
    return text.size() <= longestText ? text : text.left(longestText - 1) + QChar(0x2026);
}

} // namespace

KirvWrappedText::KirvWrappedText(QWidget *parent)
    : QTextEdit(parent)
    , measured(new QTextDocument(this))
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    prepare(document(), font());
    prepare(measured, font());
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void KirvWrappedText::showText(const QString &text)
{
    const QString shown = bounded(text);
    if (shown == toPlainText())
        return;
    setPlainText(shown);
    measured->setPlainText(shown);
    updateGeometry();
}

QSize KirvWrappedText::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * comfortableWidth;
    return QSize(width, heightForWidth(width));
}

QSize KirvWrappedText::minimumSizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * narrowestWidth, fontMetrics().lineSpacing());
}

int KirvWrappedText::heightForWidth(int width) const
{
    measured->setTextWidth(width);
    return qCeil(measured->size().height());
}

void KirvWrappedText::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && measured) {
        measured->setDefaultFont(font());
        updateGeometry();
    }
}

/// The wheel scrolls what the text stands in.
void KirvWrappedText::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
