// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_AVATAR_H
#define KIRV_AVATAR_H

#include <QByteArray>
#include <QString>

/// The picture of an account and what is known of the one on its server. A value type.
struct KirvAvatar {
    QString path; ///< an image file; empty: there is no picture
    /// What the protocol has reported the server to hold last, in a form of the protocol's own; empty: nothing yet.
    QByteArray onServer;
    /// The picture was chosen or removed here and is not on the server yet. Otherwise one that another client has put
    /// there since takes its place.
    bool isChosen = false;
};

#endif
