// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_GUI_ACCOUNTS_TAB_EXPORT_H
#define KIRV_GUI_ACCOUNTS_TAB_EXPORT_H

#include <QtGlobal>

/// Marks the classes that libkirv_gui_accounts_tab offers; everything else in it is hidden.
#if defined(KIRV_GUI_ACCOUNTS_TAB_LIBRARY)
#define KIRV_GUI_ACCOUNTS_TAB_EXPORT Q_DECL_EXPORT
#else
#define KIRV_GUI_ACCOUNTS_TAB_EXPORT Q_DECL_IMPORT
#endif

#endif
