// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_TRUST_H
#define KIRV_PLUGIN_TRUST_H

#include <QCoreApplication>
#include <QString>

/// Who may put code into this program. A plug-in and the folder that it lies in, behind all links, must belong to the
/// user or to root, and nobody else may write to them. The group may when it is the user's private one: it is the
/// user's primary group, has the user's name and no other member, and no access control list extends it.
class KirvPluginTrust {
    Q_DECLARE_TR_FUNCTIONS(KirvPluginTrust)

public:
    /// The user of this process.
    KirvPluginTrust();
    /// Another user, by number.
    explicit KirvPluginTrust(unsigned user);

    /// Why the plug-in \a path must not be loaded, a sentence for the user; empty when it may be.
    QString refusalReason(const QString &path) const;

private:
    QString entryRefusalReason(const QString &path) const;
    bool isPrivateGroup(unsigned group) const;

    unsigned user;
};

#endif
