// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_CONTENTS_H
#define KIRV_PROFILE_CONTENTS_H

class KirvDatabase;

/// Copies what a profile has beside its accounts from \a source to \a target: the client-wide settings, and the items
/// of all secrets, each in the stage that it has. The accounts are in \a target already, and its transaction is open.
/// False when one of both has an error. Private to the store.
bool kirvCopySettingsAndItems(KirvDatabase &source, KirvDatabase &target);

#endif
