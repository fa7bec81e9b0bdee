// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_dialog.h"

void KirvLayoutDialog::setCompanion(KirvWindowCompanion *newCompanion)
{
    companion = newCompanion;
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
    if (!companion || companion->mayFinish(result))
        QDialog::done(result);
}
