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
    auto *section = new KirvAdvancedSection(fields, fields->parentWidget());
    place.form->insertRow(place.row, section);
    return section;
}

KirvAdvancedSection::KirvAdvancedSection(KirvFieldWidget *fields, QWidget *parent)
    : QWidget(parent)
    , button(new QToolButton(this))
{
    QSet<QChar> taken = kirvMnemonicsAround(this);
    button->setObjectName(QStringLiteral("AddAccount_Advanced"));
    button->setText(kirvWithMnemonic(tr("Advanced"), &taken));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setCheckable(true);
    auto *summary = new QLabel(this);
    summary->setObjectName(QStringLiteral("AddAccount_AdvancedSummary"));
    summary->setTextFormat(Qt::PlainText);
    summary->setText(summaryOf(fields->getFields()));
    button->setAccessibleDescription(summary->text());

    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(button);
    line->addWidget(summary, 1);
    const auto show = [this, fields, summary](bool open) {
        button->setArrowType(open                                       ? Qt::DownArrow
                                 : layoutDirection() == Qt::LeftToRight ? Qt::RightArrow
                                                                        : Qt::LeftArrow);
        fields->setVisible(open);
        summary->setVisible(!open);
        Q_EMIT toggled(open);
    };
    connect(button, &QToolButton::toggled, fields, show);
    show(false);
}

void KirvAdvancedSection::setOpen(bool open)
{
    button->setChecked(open);
}
