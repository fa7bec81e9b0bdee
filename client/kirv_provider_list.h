// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROVIDER_LIST_H
#define KIRV_PROVIDER_LIST_H

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>

class QDir;

/// A server on which anybody may register an account, as somebody has stated. Plain texts; a value type.
struct KirvProvider {
    QString domain;
    QString name; ///< for people; may be empty
    QString source; ///< who states it, a web address as a rule
    QDate date; ///< when it was stated
};

/// The providers that a registration offers, by protocol: those of the file "providers.json" in the profile, or else
/// those that come with the program. Whether what the file states is true was verified by nobody. A value type.
///
/// docs/providers.md describes the file.
class KirvProviderList {
    Q_DECLARE_TR_FUNCTIONS(KirvProviderList)

public:
    static const int largestFile = 256 * 1024; ///< in bytes
    static const int mostProviders = 1000;
    static const int longestText = 200; ///< in characters

    /// Reads the list again, with the file in the folder \a profile in place of the program's own. Why that file cannot
    /// be used or which of its entries were left out, a sentence for the user; empty: nothing is wrong.
    QString load(const QDir &profile);
    /// The same with the content of one file.
    QString read(const QByteArray &content);

    /// The providers for the protocol of that name, in the order of the file.
    QList<KirvProvider> of(const QString &protocol) const;

private:
    struct Entry {
        QString protocol;
        KirvProvider provider;
    };

    QString readFile(const QString &path);

    QList<Entry> entries;
};

#endif
