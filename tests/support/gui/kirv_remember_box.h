// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REMEMBER_BOX_H
#define KIRV_REMEMBER_BOX_H

#include "tests/support/fakes/kirv_fake_secret_store.h"

#include <QCheckBox>
#include <QtTest>

// What every window for a new account has beside its password: the box that keeps it, and the line that says where.

/// The rows of a test of that line and of the box: "state" of the keyring, "text" of the line and "isOn".
inline void kirvAddPlacesOfPasswords()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("ready") << KirvSecretStore::Ready << "in Fake Keyring" << true;
    QTest::newRow("locked") << KirvSecretStore::Locked << "in Fake Keyring (locked: you will be asked to unlock it)"
                            << true;
    QTest::newRow("none") << KirvSecretStore::Unavailable
                          << "There is no keyring here: it would be kept in a file only you can read" << false;
    QTest::newRow("silent") << KirvSecretStore::Silent
                            << "Your keyring does not respond: it would be kept there when it responds again" << true;
}

/// Verifies that \a box follows \a keyring, whose state is not known yet, until it is clicked.
inline void kirvVerifyBoxFollowsKeyring(QCheckBox *box, KirvFakeSecretStore &keyring)
{
    QVERIFY(box->isChecked());
    keyring.setState(KirvSecretStore::Unavailable);
    QVERIFY(!box->isChecked());
    box->click();
    keyring.setState(KirvSecretStore::Ready);
    keyring.setState(KirvSecretStore::Unavailable);
    QVERIFY(box->isChecked());
}

#endif
