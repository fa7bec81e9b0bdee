// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_SETTINGS_H
#define KIRV_XMPP_SETTINGS_H

#include "core/protocol/kirv_proxy.h"
#include "host/kirv_field.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class QSslCertificate;
class QXmppConfiguration;

/// What the settings of an XMPP account mean. A value type.
///
/// A login is a bare address, user@domain. Without a server the server of the domain is looked up in the
/// network (DNS); a port of one's own alone means that port of the domain itself. A certificate to trust is trusted
/// besides those that the system trusts.
class KirvXmppSettings {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppSettings)

public:
    enum Encryption {
        Required, ///< STARTTLS, or direct TLS where the domain names such a server
        IfOffered,
        None,
        Direct ///< TLS from the first byte
    };

    static const int defaultPort = 5222;
    static const int directPort = 5223; ///< takes the place of the default with direct TLS

    KirvXmppSettings() = default;
    /// Reads \a fields; what is missing keeps its default.
    explicit KirvXmppSettings(const QList<KirvField> &fields);

    QString server;
    int port = defaultPort;
    QString resource = QStringLiteral("Kirv.*"); ///< see resourceWith()
    int priority = -1; ///< a server gives messages to no session with a negative one, and keeps them
    Encryption encryption = Required;
    QString certificatePath; ///< of a PEM file; empty: none
    KirvProxy proxy;

    /// Characters by chance for resourceWith(): letters and digits.
    static QString randomPart();
    /// The resource with \a random in the place of each "*". Two programs with the same settings have different ones
    /// like that: a server ends the older one of two sessions with the same resource.
    QString resourceWith(const QString &random) const;

    /// The settings as fields, in display order.
    QList<KirvField> toFields() const;
    /// Those of them that say where the server is, how to reach it and how to trust it.
    QList<KirvField> toServerFields() const;

    /// The ids of those that are the path of a file.
    static QStringList fileFields();
    static QStringList configurations();
    /// The fields of a ready-made configuration; empty for an unknown name. None presets the login: it would
    /// replace what the user has typed by a name that is not theirs.
    static QList<KirvField> configurationFields(const QString &name);
    static QString loginPattern();
    /// What is wrong with \a login as an address, or missing of it, a sentence for the user; empty when nothing is.
    static QString loginProblem(const QString &login);

    /// Writes the settings for a server of \a domain into \a configuration, whose certificates are those that are
    /// trusted besides the system's, and whose proxy is for kirvFindProxy(). False with a sentence in \a problem when
    /// they cannot be used.
    bool apply(const QString &domain, QXmppConfiguration *configuration, QString *problem) const;

private:
    bool readCertificates(QList<QSslCertificate> *certificates, QString *problem) const;
};

#endif
