// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CONTRACT_CHECK_H
#define KIRV_CONTRACT_CHECK_H

#include "host/kirv_field.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

class KirvAccountConnection;
class KirvAccountInfo;
class KirvProtocol;

/// Checks that a client defines the operations of host/ as the page relies on them: compile this class into a test
/// program of yours together with your definitions, set them up, and run it with QTest::qExec().
///
/// It adds, changes and removes accounts of one protocol: run it over a core whose profile may be lost, and with a
/// protocol that may log in where it leads to, or to nowhere. What it finds is what the page, the add window and the
/// edit window would stumble over; it does not test how accounts are stored.
class KirvContractCheck : public QObject {
    Q_OBJECT

public:
    /// \a protocol is the name of a protocol that is loaded. \a first and \a second are two different logins that it
    /// accepts and that no account has.
    KirvContractCheck(const QString &protocol, const QString &first, const QString &second);

private Q_SLOTS:
    void init();
    void cleanup();

    void stateIsThereWhileTheCoreIsUp();
    void protocolIsFoundByItsName();
    void protocolOffersPresences();
    void presenceCarriesItsDescription();
    void iconOfAProtocolMayBeMissing();

    void createdAccountIsThere();
    void createdAccountIsListedOnce();
    void accountIsNamedByLoginAndProtocol();
    void takenLoginIsRefused();
    void listKeepsItsOrder();
    void aliasIsChanged();
    void enablingIsRepeatable();
    void disabledAccountIsOffLine();
    void settingsComeBack();
    void generalSettingsAreComplete();
    void mainAccountIsAssigned();
    void removedAccountIsGone();

    void themeFolderEndsWithASlash();
    void layoutsAreBuilt_data();
    void layoutsAreBuilt();
    void widgetFillsItsPlaceholder();
    void fieldsComeBackFromTheForm();
    void formIsFilledAnew();
    void avatarMayBeMissing();

    void pageShowsTheAccounts();

private:
    KirvAccountConnection *create(const QString &id);
    KirvProtocol *loaded() const;
    /// The settings of a new account, each with a value other than its default where any text will do.
    QList<KirvField> changedSettings() const;
    /// The description of that account in the list; null when it is not listed.
    const KirvAccountInfo *described(const QString &id) const;
    /// The account ids of the protocol, in the order of the manager.
    QStringList listed() const;

    const QString protocol;
    const QString first;
    const QString second;
};

#endif
