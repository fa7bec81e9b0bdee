// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_APPLICATION_H
#define KIRV_APPLICATION_H

#include <QApplication>

/// The application as every program of ours sets it up: name, version, icon and language.
class KirvApplication : public QApplication {
    Q_OBJECT

public:
    KirvApplication(int &argc, char **argv);

    /// What of it a program without windows has, too: name, version and language.
    static void prepare(QCoreApplication &application);
    /// Makes the client's icons and texts known, which a static library leaves out otherwise. For programs and tests
    /// whose application is another one.
    static void initializeResources();
    /// Whether windows can be seen, and answered, by anybody.
    static bool hasDisplay();
    /// Whether a program that is started with \a arguments can be expected to find a display. Needs no application.
    static bool expectsDisplay(const QStringList &arguments);

    /// Lets no exception out of an event: one that a plug-in throws while it handles a timer, or what a server has
    /// sent, would end the program.
    bool notify(QObject *receiver, QEvent *event) override;

    /// Shows why the program cannot start: on the terminal and, where a user can close it, in a
    /// message box.
    static void reportFatal(const QString &text);

Q_SIGNALS:
    /// An exception was caught; \a text is a sentence for the user.
    void exceptionCaught(const QString &text);
};

#endif
