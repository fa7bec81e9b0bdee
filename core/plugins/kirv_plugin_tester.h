// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_TESTER_H
#define KIRV_PLUGIN_TESTER_H

// What kirv_plugin_tester writes to its standard output: the first before any code of the plug-in runs, the second when
// that code has given the process back.
const char *const kirvTesterReady = "ready\n";
const char *const kirvTesterSurvived = "survived\n";

#endif
