// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REGISTRATION_CHOOSER_H
#define KIRV_REGISTRATION_CHOOSER_H

#include <QDialog>

class KirvProtocolBase;
class QListWidget;

/// Lets the user choose with which protocol to register a new account, when several offer it.
class KirvRegistrationChooser : public QDialog {
    Q_OBJECT

public:
    KirvRegistrationChooser(const QList<KirvProtocolBase *> &protocols, QWidget *parent);

    /// The name of the chosen protocol.
    QString protocol() const;
    /// Takes a protocol that goes out of the choice.
    void removeProtocol(const QString &protocol);

private:
    QListWidget *list;
};

#endif
