// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_form_area.h"

#include <QApplication>
#include <QEvent>
#include <QFormLayout>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <iterator>

namespace {

// In average characters and in lines.
const int comfortableWidth = 60;
const int smallestHeight = 6;

/// On forms whose labels may stand beside their controls.
const char *const besideMark = "kirvLabelsBeside";

QList<QWidget *> labelsOf(const QFormLayout *form)
{
    QList<QWidget *> labels;
    for (int row = 0; row < form->rowCount(); ++row) {
        QLayoutItem *item = form->itemAt(row, QFormLayout::LabelRole);
        if (item && item->widget())
            labels.append(item->widget());
    }
    return labels;
}

bool isShown(const QLayoutItem *item)
{
    return item && !item->isEmpty();
}

/// How wide \a form must be for every control to stand beside a column of labels that is \a labelWidth wide. Layouts
/// that wrap rows on their own forget the gap between the two, and rows without a label.
int widthBeside(const QFormLayout *form, int labelWidth)
{
    int widest = 0;
    for (int row = 0; row < form->rowCount(); ++row) {
        const QLayoutItem *field = form->itemAt(row, QFormLayout::FieldRole);
        if (isShown(field) && !form->itemAt(row, QFormLayout::SpanningRole))
            widest = qMax(widest, labelWidth + form->horizontalSpacing() + field->minimumSize().width());
    }
    const QMargins margins = form->contentsMargins();
    return widest + margins.left() + margins.right();
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
    const int width = qMax(qMax(wanted.width(), widthWithLabelsBeside()) + scrollBarWidth(),
                           fontMetrics().averageCharWidth() * comfortableWidth);
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
        fitLater();
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
    placeLabels();
    fitLater();
}

/// When the form is laid out.
void KirvFormArea::fitLater()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            placeLabels();
            hideUnneededScrollBar();
        },
        Qt::QueuedConnection);
}

/// All labels are beside their controls or, where there is no room for one of them, above them.
void KirvFormArea::placeLabels()
{
    if (!widget())
        return;
    const QList<QFormLayout *> forms = formsWithLabelsBeside();
    // Whether the scroll bar is there must not decide: it depends on the height, and that on where the labels are.
    const int room = contentsRect().width() - scrollBarWidth();
    const bool hasRoom = std::all_of(forms.begin(), forms.end(), [this, room](const QFormLayout *form) {
        const int around = widget()->width() - form->geometry().width();
        return !form->parentWidget()->isVisibleTo(widget()) || room - around >= widthBeside(form, labelWidth);
    });
    const auto policy = hasRoom ? QFormLayout::WrapLongRows : QFormLayout::WrapAllRows;
    bool isOther = false;
    for (QFormLayout *form : forms) {
        if (form->rowWrapPolicy() == policy)
            continue;
        isOther = true;
        form->setRowWrapPolicy(policy);
        for (QWidget *around = form->parentWidget(); around != this; around = around->parentWidget())
            around->updateGeometry();
    }
    if (!isOther)
        return;
    QEvent request(QEvent::LayoutRequest); // at once: nothing is painted in between
    QCoreApplication::sendEvent(this, &request);
}

/// The scroll bar makes the form narrower and that can make it higher: what only fits without it would keep it for
/// ever.
void KirvFormArea::hideUnneededScrollBar()
{
    if (!verticalScrollBar()->isVisible() || !widget())
        return;
    const QSize whole = contentsRect().size();
    // The base class gives it the greater of both; where that is ignored here the bar comes and goes without end.
    const int needed = qMax(widget()->heightForWidth(whole.width()), widget()->minimumSizeHint().height());
    if (needed > whole.height())
        return;
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

/// Of the widest form, also while it is hidden: the window does not have to become wider when it is shown.
int KirvFormArea::widthWithLabelsBeside() const
{
    int needed = 0, least = 0;
    const QList<QFormLayout *> forms = formsWithLabelsBeside();
    for (const QFormLayout *form : forms) {
        needed = qMax(needed, widthBeside(form, labelWidth));
        least = qMax(least, form->minimumSize().width());
    }
    const int around = qMax(0, widget()->minimumSizeHint().width() - least);
    return needed + around;
}

/// Leaves room for the scroll bar, which must not cover the controls when it comes.
int KirvFormArea::narrowestWidth() const
{
    return (widget() ? widget()->minimumSizeHint().width() : 0) + scrollBarWidth();
}

int KirvFormArea::scrollBarWidth() const
{
    return verticalScrollBar()->sizeHint().width() + gap();
}

QList<QFormLayout *> KirvFormArea::formsWithLabelsBeside() const
{
    QList<QFormLayout *> found;
    const QList<QFormLayout *> forms = widget()->findChildren<QFormLayout *>();
    std::copy_if(forms.begin(), forms.end(), std::back_inserter(found),
                 [](const QFormLayout *form) { return form->property(besideMark).toBool(); });
    return found;
}

void KirvFormArea::alignLabels()
{
    const QList<QFormLayout *> forms = widget()->findChildren<QFormLayout *>();
    for (QFormLayout *form : forms) {
        if (form->property(besideMark).isValid())
            continue;
        form->setProperty(besideMark, form->rowWrapPolicy() != QFormLayout::WrapAllRows);
        // What the labels need does not bound the width of the area.
        if (form->rowWrapPolicy() == QFormLayout::DontWrapRows)
            form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    }
    QList<QWidget *> labels;
    const QList<QFormLayout *> aligned = formsWithLabelsBeside();
    for (const QFormLayout *form : aligned)
        labels += labelsOf(form);

    labelWidth = 0;
    for (const QWidget *label : qAsConst(labels))
        labelWidth = qMax(labelWidth, qMin(label->sizeHint().width(), label->maximumWidth()));
    for (QWidget *label : qAsConst(labels)) {
        if (label->minimumWidth() != labelWidth)
            label->setMinimumWidth(labelWidth);
    }
}
