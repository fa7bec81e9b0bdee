// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_INSTANCE_MESSAGE_H
#define KIRV_INSTANCE_MESSAGE_H

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

/// The messages between a running program and a later start with the same profile: one line of JSON each way.
///
/// Files travel in it as Base64, and not as descriptors: the later start opens them, with its own rights and in its own
/// folder, and the running program needs no more than the content, whose size is bounded here.
///
/// The messages are private to programs of the same version of them. Every line has its version, and a reply that
/// refuses has "problem", a sentence for the user; only these two stay as they are in all versions.
class KirvInstanceMessage {
    Q_DECLARE_TR_FUNCTIONS(KirvInstanceMessage)

public:
    static const int version = 1;
    /// The longest line, in bytes: the largest file of accounts as Base64, with something around it.
    static const int longest = 64 * 1024 * 1024 / 3 * 4 + 1024 * 1024;
    /// Longer lines are received one at a time.
    static const int longestSmall = 64 * 1024;

    /// \a message with the version and a line feed.
    static QByteArray toLine(const QJsonObject &message);
    /// The message in \a line; empty, with a sentence in \a problem, when it is none or has another version.
    static QJsonObject fromLine(const QByteArray &line, QString *problem);
    /// A reply that refuses.
    static QJsonObject refusal(const QString &problem);
    /// The same, of a command that this version does not have.
    static QJsonObject unknownCommand();
};

#endif
