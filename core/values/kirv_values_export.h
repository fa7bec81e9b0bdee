// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_VALUES_EXPORT_H
#define KIRV_VALUES_EXPORT_H

#include <QtGlobal>

/// Marks what libkirv_protocol, the library that protocol plug-ins are written against, offers of core/values and
/// core/protocol; everything else in it is hidden.
#if defined(KIRV_PROTOCOL_LIBRARY)
#define KIRV_VALUES_EXPORT Q_DECL_EXPORT
#else
#define KIRV_VALUES_EXPORT Q_DECL_IMPORT
#endif
#define KIRV_PROTOCOL_EXPORT KIRV_VALUES_EXPORT

#endif
