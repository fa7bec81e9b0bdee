// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_DESTINATION_H
#define KIRV_SECRET_DESTINATION_H

#include "core/store/kirv_account_record.h"

class KirvProtocolBase;

/// \a record as an account of \a protocol that is added with it: settings that it lacks have their defaults.
KirvAccountRecord kirvCompleteRecord(KirvAccountRecord record, KirvProtocolBase &protocol);

/// Whether the secrets of both go to the same server, in the same way: passwords go along only to where they went
/// before. \a protocol is null while it is not loaded: then every setting counts that is not secret.
bool kirvHaveSameDestination(const KirvAccountRecord &left, const KirvAccountRecord &right, KirvProtocolBase *protocol);

#endif
