// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_PLUGIN_H
#define KIRV_FAKE_PLUGIN_H

#include "core/protocol/kirv_protocol_plugin.h"
#include "tests/support/fakes/kirv_fake_protocol.h"

// What every plug-in of a file here needs.

#endif
