// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_FEATURES_H
#define KIRV_XMPP_FEATURES_H

class QDomElement;

/// Takes out of the features of a stream what is not used, so that the library does not start it: compression, the
/// resumption of streams and the like. Unless \a sendsPasswords, the ways to log in that send the password as it is
/// are taken out, too. Changes \a features itself. False when ways to log in were offered and none is left.
bool kirvXmppReduceFeatures(QDomElement &features, bool sendsPasswords);

#endif
