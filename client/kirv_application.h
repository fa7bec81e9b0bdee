// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_APPLICATION_H
#define KIRV_APPLICATION_H

#include <QApplication>

/// The application as every program of ours sets it up: name, version, icon and language.
class KirvApplication : public QApplication {
    Q_OBJECT

public:
    KirvApplication(int &argc, char **argv);

    /// Shows why the program cannot start: on the terminal and, where a user can close it, in a
    /// message box.
    static void reportFatal(const QString &text);
};

#endif
