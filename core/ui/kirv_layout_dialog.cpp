// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_dialog.h"

KirvWindowCompanion::KirvWindowCompanion(KirvLayoutDialog *window)
    : dialog(window)
{
    window->setCompanion(this);
}

void KirvLayoutDialog::setCompanion(KirvWindowCompanion *newCompanion)
{
    companion = newCompanion;
    newCompanion->setParent(this);
}

void KirvLayoutDialog::finish(int result)
{
    if (isVisible())
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
    const bool wasVisible = isVisible();
    if (companion && !companion->mayFinish(result))
        return;
    if (alive && isVisible() == wasVisible)
        QDialog::done(result);
}
