// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROVIDER_COMPLETER_H
#define KIRV_PROVIDER_COMPLETER_H

#include "client/kirv_provider_list.h"

class QLineEdit;

/// Offers the domains of \a providers in \a edit: those that contain what is typed, and all of them with the Down key.
/// Each says who states that accounts can be registered there, and that it is not verified.
void kirvOfferProviders(QLineEdit *edit, const QList<KirvProvider> &providers);

#endif
