// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LANGUAGE_CHANGE_H
#define KIRV_LANGUAGE_CHANGE_H

#include <QObject>
#include <QString>
#include <QTimer>

class KirvClientSettings;
class KirvWindowCompanions;

/// Stores the language that the user chooses and has the program use it as soon as no window is open that would have
/// to be closed for it. Windows in which nothing was entered are closed.
class KirvLanguageChange : public QObject {
    Q_OBJECT

public:
    /// Nothing is owned, and all of it outlives this.
    KirvLanguageChange(KirvClientSettings &settings, KirvWindowCompanions &companions, QObject *parent = nullptr);

    /// What is stored; empty: as the system.
    static QString chosen(const KirvClientSettings &settings);
    /// Has the program use what is stored. For the start, before there are windows.
    static void applyStored(const KirvClientSettings &settings);

    /// Stores \a language; empty: as the system. False when that was refused.
    bool choose(const QString &language);
    /// Whether the chosen language is not used yet.
    bool isPending() const { return retry.isActive() && retry.interval() > 0; }

Q_SIGNALS:
    void pendingChanged();
    /// Another language is used: what shows texts is to be made anew. From the event loop.
    void changed();

private:
    void apply();
    bool isBlocked() const;

    KirvClientSettings &settings;
    KirvWindowCompanions &companions;
    QTimer retry;
    int level = 0; ///< of the event loop in which the language was chosen
};

#endif
