// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DEFAULT_PROFILE_H
#define KIRV_DEFAULT_PROFILE_H

#include <QString>

/// The folder of the user's own profile: "kirv" in $XDG_DATA_HOME, or in .local/share of the home folder when that
/// variable is unset, empty or not absolute. Empty with a sentence in \a error when there is no home folder either.
QString kirvDefaultProfileFolder(QString *error);

#endif
