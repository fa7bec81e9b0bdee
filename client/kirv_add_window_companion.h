// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ADD_WINDOW_COMPANION_H
#define KIRV_ADD_WINDOW_COMPANION_H

#include "core/ui/kirv_layout_dialog.h"

#include <QString>

class KirvAddAccountDialog;

/// What the client adds to an add window: it ends with its protocol. Owned by the window.
class KirvAddWindowCompanion : public KirvWindowCompanion {
    Q_OBJECT

public:
    /// \a window was just built for \a controller.
    KirvAddWindowCompanion(KirvLayoutDialog *window, const KirvAddAccountDialog *controller);

    /// The name of the protocol that the window adds an account of.
    QString protocol() const { return protocolName; }
    /// Closes the window, and the boxes over it, as Cancel does.
    void close();

private:
    const QString protocolName;
};

#endif
