// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_advanced_section.h"

#include "core/ui/kirv_form_place.h"
#include "core/ui/kirv_keyboard.h"
#include "host/kirv_field_widget.h"

#include <QHBoxLayout>
#include <QLabel>
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
    const Qt::ArrowType closed = layoutDirection() == Qt::LeftToRight ? Qt::RightArrow : Qt::LeftArrow;
    button->setArrowType(isOpen ? Qt::DownArrow : closed);
    fields->setVisible(isOpen);
    summary->setVisible(!isOpen);
}

void KirvAdvancedSection::setOpen(bool open)
{
    button->setChecked(open);
}
