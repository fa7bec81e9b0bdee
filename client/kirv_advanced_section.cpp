// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_advanced_section.h"

#include "core/ui/kirv_form_place.h"
#include "core/ui/kirv_keyboard.h"
#include "host/kirv_field_widget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>

namespace {

const int namedSettings = 3; // more would make the window wide

/// The names of the first of \a fields.
QString summaryOf(const QList<KirvField> &fields)
{
    QStringList names;
    for (const KirvField &field : fields) {
        if (field.getKind() != KirvField::Label && names.size() < namedSettings)
            names << field.getLabel();
    }
    const QString list = names.join(KirvAdvancedSection::tr(", ", "between names of settings"));
    //: %1 = the names of the first settings
    return fields.size() > namedSettings ? KirvAdvancedSection::tr("%1…").arg(list) : list;
}

/// An arrow as the style draws it. From right to left QToolButton itself would draw one over its text.
QIcon arrowIcon(const QToolButton *button, QStyle::PrimitiveElement arrow)
{
    QPixmap pixmap(button->iconSize() * button->devicePixelRatioF());
    pixmap.setDevicePixelRatio(button->devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QStyleOption option;
    option.initFrom(button);
    option.rect = QRect(QPoint(), button->iconSize());
    QPainter painter(&pixmap);
    button->style()->drawPrimitive(arrow, &option, &painter, button);
    return pixmap;
}

} // namespace

KirvAdvancedSection *KirvAdvancedSection::addAbove(KirvFieldWidget *fields)
{
    const KirvFormPlace place(fields);
    if (!place.isValid())
        return nullptr;
    kirvPlaceInTabOrder(fields); // what comes next goes behind all that is in the form
    auto *section = new KirvAdvancedSection(fields, fields->parentWidget());
    // Rows are added at the end: a form of Qt 6 gives no height to a row that is inserted before the last one.
    delete place.form->takeRow(place.row).fieldItem;
    place.form->addRow(section);
    place.form->addRow(fields);
    kirvPlaceInTabOrder(section);
    kirvPlaceInTabOrder(fields); // from before the section to behind it
    section->showFields(false);
    return section;
}

KirvAdvancedSection::KirvAdvancedSection(KirvFieldWidget *fields, QWidget *parent)
    : QWidget(parent)
    , fields(fields)
    , button(new QToolButton(this))
    , summary(new QLabel(this))
{
    QSet<QChar> taken = kirvMnemonicsAround(this);
    button->setObjectName(QStringLiteral("AddAccount_Advanced"));
    button->setText(kirvWithMnemonic(tr("Advanced"), &taken));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setCheckable(true);
    summary->setObjectName(QStringLiteral("AddAccount_AdvancedSummary"));
    summary->setTextFormat(Qt::PlainText);
    summary->setText(summaryOf(fields->getFields()));
    button->setAccessibleDescription(summary->text());

    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(button);
    line->addWidget(summary);
    line->addStretch(1); // the button stays where it is when the names are hidden
    connect(button, &QToolButton::toggled, fields, [this](bool isOpen) {
        showFields(isOpen);
        Q_EMIT toggled(isOpen);
    });
}

void KirvAdvancedSection::showFields(bool isOpen)
{
    showArrow(isOpen);
    fields->setVisible(isOpen);
    summary->setVisible(!isOpen);
}

void KirvAdvancedSection::showArrow(bool isOpen)
{
    const QStyle::PrimitiveElement closed =
        layoutDirection() == Qt::LeftToRight ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowLeft;
    button->setIcon(arrowIcon(button, isOpen ? QStyle::PE_IndicatorArrowDown : closed));
}

/// The arrow has the colour of the text.
void KirvAdvancedSection::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        showArrow(button->isChecked());
    QWidget::changeEvent(event);
}

void KirvAdvancedSection::setOpen(bool open)
{
    button->setChecked(open);
}
