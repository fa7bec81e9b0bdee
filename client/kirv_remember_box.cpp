// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_remember_box.h"

#include "core/accounts/kirv_secret_keeper.h"

#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace {

/// The layout that holds \a widget itself, among \a layout and those in it.
QLayout *layoutOf(QLayout *layout, QWidget *widget)
{
    if (!layout || layout->indexOf(widget) >= 0)
        return layout;
    for (int index = 0; index < layout->count(); ++index) {
        QLayout *inner = layout->itemAt(index)->layout();
        QLayout *found = inner ? layoutOf(inner, widget) : nullptr;
        if (found && found->indexOf(widget) >= 0)
            return found;
    }
    return nullptr;
}

/// Takes the height that its text needs at the width that it has, where it was given less. The form layout of Qt 6
/// forgets height for width where rows may be wrapped.
class WrappedLine : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QLabel::resizeEvent(event);
        const int needed = heightForWidth(width());
        if (height() < needed)
            setMinimumHeight(needed);
        else if (minimumHeight() > needed) // in fewer lines
            setMinimumHeight(0);
    }
};

} // namespace

QLabel *kirvCreateLine(const QString &objectName, QWidget *parent)
{
    QLabel *line = new WrappedLine(parent);
    line->setObjectName(objectName);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    return line;
}

QLabel *kirvAddLineBelow(QWidget *widget, const char *suffix)
{
    QWidget *parent = widget->parentWidget();
    QLabel *line = kirvCreateLine(widget->objectName() + QLatin1String(suffix), parent);
    QLayout *layout = parent ? layoutOf(parent->layout(), widget) : nullptr;
    if (!layout) { // placed by hand
        line->hide();
        return line;
    }
    auto *pair = new QWidget(parent);
    delete layout->replaceWidget(widget, pair);
    auto *column = new QVBoxLayout(pair);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(widget);
    column->addWidget(line);
    return line;
}

KirvRememberBox::KirvRememberBox(QCheckBox *box, const KirvSecretKeeper &keeper, Default behaviour)
    : QObject(box)
    , box(box)
    , line(kirvAddLineBelow(box, "Place"))
    , texts(keeper)
    , mayChange(behaviour == OffWhenUnsafe)
{
    const QStyle *style = box->style(); // below the text of the box
    line->setIndent(style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, box)
                    + style->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, box));
    connect(box, &QCheckBox::clicked, this, [this] { mayChange = false; });
    connect(&keeper, &KirvSecretKeeper::changed, this, &KirvRememberBox::refresh);
    refresh();
}

void KirvRememberBox::refresh()
{
    line->setText(texts.place());
    box->setAccessibleDescription(texts.place());
    if (mayChange && texts.isRememberingUnsafe())
        box->setChecked(false);
}
