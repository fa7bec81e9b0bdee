// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_form_area.h"

#include <QApplication>
#include <QEvent>
#include <QFormLayout>
#include <QScrollBar>
#include <QStyle>

namespace {

// In average characters and in lines.
const int comfortableWidth = 60;
const int smallestHeight = 6;

QList<QWidget *> labelsOf(const QFormLayout *form)
{
    QList<QWidget *> labels;
    if (form->rowWrapPolicy() == QFormLayout::WrapAllRows)
        return labels;
    for (int row = 0; row < form->rowCount(); ++row) {
        QLayoutItem *item = form->itemAt(row, QFormLayout::LabelRole);
        if (item && item->widget())
            labels.append(item->widget());
    }
    return labels;
}

} // namespace

KirvFormArea::KirvFormArea(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->installEventFilter(this);
    // The base class follows the focus only where it moves from one control of the area to another.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && widget() && widget()->isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}

QSize KirvFormArea::sizeHint() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    const QSize wanted = widget()->sizeHint();
    const int width = qMax(qMax(wanted.width(), narrowestWidth()), fontMetrics().averageCharWidth() * comfortableWidth);
    return QSize(width, widget()->hasHeightForWidth() ? widget()->heightForWidth(width) : wanted.height());
}

QSize KirvFormArea::minimumSizeHint() const
{
    return QSize(narrowestWidth(), fontMetrics().lineSpacing() * smallestHeight);
}

bool KirvFormArea::event(QEvent *event)
{
    // The forms stand on what is behind the area, the page of a tab widget, say.
    if (event->type() == QEvent::Polish && widget()) {
        viewport()->setAutoFillBackground(false);
        widget()->setAutoFillBackground(false);
        alignLabels();
    }
    return QScrollArea::event(event);
}

bool KirvFormArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        alignLabels();
        updateGeometry();
        QMetaObject::invokeMethod(this, &KirvFormArea::hideUnneededScrollBar, Qt::QueuedConnection);
    }
    if (watched == verticalScrollBar() && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        keepClearOfScrollBar(event->type() == QEvent::Show);
    return QScrollArea::eventFilter(watched, event);
}

int KirvFormArea::gap() const
{
    return style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this);
}

void KirvFormArea::keepClearOfScrollBar(bool shown)
{
    setViewportMargins(0, 0, shown ? gap() : 0, 0);
}

void KirvFormArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    QMetaObject::invokeMethod(this, &KirvFormArea::hideUnneededScrollBar, Qt::QueuedConnection); // when it is laid out
}

/// The scroll bar makes the form narrower and that can make it higher: what only fits without it would keep it for
/// ever.
void KirvFormArea::hideUnneededScrollBar()
{
    if (!verticalScrollBar()->isVisible() || !widget())
        return;
    const QSize whole = contentsRect().size();
    const int needed =
        widget()->hasHeightForWidth() ? widget()->heightForWidth(whole.width()) : widget()->minimumSizeHint().height();
    if (needed > whole.height())
        return;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

/// Leaves room for the scroll bar, which must not cover the controls when it comes.
int KirvFormArea::narrowestWidth() const
{
    return (widget() ? widget()->minimumSizeHint().width() : 0) + verticalScrollBar()->sizeHint().width() + gap();
}

void KirvFormArea::alignLabels()
{
    QList<QWidget *> labels;
    const QList<QFormLayout *> forms = widget()->findChildren<QFormLayout *>();
    for (QFormLayout *form : forms) {
        // Where there is no room beside its label, a control goes below it.
        if (form->rowWrapPolicy() == QFormLayout::DontWrapRows)
            form->setRowWrapPolicy(QFormLayout::WrapLongRows);
        labels += labelsOf(form);
    }

    int width = 0;
    for (const QWidget *label : qAsConst(labels))
        width = qMax(width, qMin(label->sizeHint().width(), label->maximumWidth()));
    for (QWidget *label : qAsConst(labels)) {
        if (label->minimumWidth() != width)
            label->setMinimumWidth(width);
    }
}
