// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_visible_boxes.h"

#include "client/kirv_plain_text.h"
#include "core/values/kirv_text_limit.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>

namespace {

// A box breaks lines between words only, and cuts what is wider than the screen.
const int longestWord = 300;
const int shownOfWord = 40;
const int longestText = 4000;

/// \a text without its middle.
QString withoutMiddle(const QString &text, int shown)
{
    return kirvBeginningOf(text, shown) + QChar(0x2026) + text.right(shown);
}

QString boxText(const QString &text)
{
    QStringList words = text.split(QLatin1Char(' '));
    for (QString &word : words) {
        if (word.size() > longestWord)
            word = withoutMiddle(word, shownOfWord);
    }
    const QString joined = words.join(QLatin1Char(' '));
    return kirvPlainSentence(joined.size() > longestText ? withoutMiddle(joined, longestText / 2) : joined);
}

} // namespace

KirvVisibleBoxes::KirvVisibleBoxes(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool KirvVisibleBoxes::eventFilter(QObject *watched, QEvent *event)
{
    // Polish comes before the first layout, which would read the files that markup names; Show each time.
    if (event->type() != QEvent::Polish && event->type() != QEvent::Show)
        return false;
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (!box)
        return false;
    if (box->textFormat() == Qt::AutoText)
        box->setTextFormat(Qt::PlainText);
    box->setText(boxText(box->text()));
    if (!box->informativeText().isEmpty())
        box->setInformativeText(boxText(box->informativeText()));
    // The format of the box does not reach this label, which is there from the first informative text on.
    if (auto *informative = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        informative->setTextFormat(Qt::PlainText);
    return false;
}
