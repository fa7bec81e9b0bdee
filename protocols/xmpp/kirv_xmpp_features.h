// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_FEATURES_H
#define KIRV_XMPP_FEATURES_H

class QDomElement;
class QString;

/// Takes out of the features of a stream what is not used, so that the library does not start it: compression, the
/// resumption of streams and the like. Of the ways to log in the best one is left; unless \a sendsPasswords, none that
/// sends the password as it is. Changes \a features itself. \a mechanism becomes the name of that way; empty when none
/// is left. False when ways to log in were offered and none is left.
bool kirvXmppReduceFeatures(QDomElement &features, bool sendsPasswords, QString *mechanism);

#endif
