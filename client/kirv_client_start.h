// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_START_H
#define KIRV_CLIENT_START_H

class KirvClient;
struct KirvClientOptions;

/// Starts \a client, which was made with \a options. When its profile is damaged, a window offers what can be done,
/// and the start goes on with what was repaired; when \a hasDisplay is false, that is printed. False with the exit
/// status of the program in \a status when it is not started; the reason was shown then. When another running program
/// has the profile open, that shows its window and opens the link, and the status is 0.
bool kirvStartClient(KirvClient &client, const KirvClientOptions &options, bool hasDisplay, int *status);

/// Runs the program with \a options, and anew when the user goes on with another profile. Gives its exit status.
int kirvRunClient(const KirvClientOptions &options, bool hasDisplay);

#endif
