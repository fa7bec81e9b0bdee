// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_CALL_H
#define KIRV_PLUGIN_CALL_H

#include "core/values/kirv_values_export.h"

#include <QString>

#include <functional>

/// The border between the program and a plug-in: calls \a call, which runs code of a plug-in, and lets no exception
/// out. False when there was one; \a problem, if it is not null, is then a sentence about it for the user.
KIRV_PROTOCOL_EXPORT bool kirvCallPlugin(const std::function<void()> &call, QString *problem = nullptr);

#endif
