// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_dialog.h"

#include <QPointer>
#include <utility>

KirvLayoutDialog::~KirvLayoutDialog()
{
    const std::unique_ptr<KirvWindowCompanion> last = std::move(companion); // it is not called any more
}

void KirvLayoutDialog::setCompanion(std::unique_ptr<KirvWindowCompanion> newCompanion)
{
    companion = std::move(newCompanion);
}

void KirvLayoutDialog::finish(int result)
{
    QDialog::done(result);
}

void KirvLayoutDialog::setVisible(bool visible)
{
    if (visible && !isVisible() && companion)
        companion->aboutToShow();
    QDialog::setVisible(visible);
}

void KirvLayoutDialog::done(int result)
{
    const QPointer<KirvLayoutDialog> alive(this);
    const bool mayFinish = !companion || companion->mayFinish(result);
    if (alive && mayFinish)
        QDialog::done(result);
}
