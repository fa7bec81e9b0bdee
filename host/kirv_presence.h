// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PRESENCE_H
#define KIRV_PRESENCE_H

#include <QString>

/// One presence state of a protocol, with the status description that goes with it. A value type.
class KirvPresence {
public:
    /// The presence of nothing in particular: every text is empty.
    KirvPresence() { }

    /// \a id names the state within its protocol, \a display is the text shown for it, \a icon the
    /// file name inside the roster theme's icon directory, \a description the user's status text
    /// (empty: none).
    KirvPresence(const QString &id, const QString &display, const QString &icon, const QString &description = QString())
        : id(id)
        , display(display)
        , icon(icon)
        , description(description)
    {
    }

    /// Names the state within its protocol.
    QString getId() const { return id; }
    /// The text shown for the state.
    QString getDisplay() const { return display; }
    /// The name of a file in the folder "icons" of the roster theme.
    QString getIcon() const { return icon; }
    /// The user's status text; empty when there is none.
    QString getDescription() const { return description; }

private:
    QString id;
    QString display;
    QString icon;
    QString description;
};

#endif
