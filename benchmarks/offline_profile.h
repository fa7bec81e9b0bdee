// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_OFFLINE_PROFILE_H
#define KIRV_OFFLINE_PROFILE_H

#include <QString>

/// Makes a profile in \a folder with \a count XMPP accounts that do not log in; ends the program when that fails.
void makeOfflineProfile(const QString &folder, int count);

#endif
