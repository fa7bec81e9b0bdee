// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_REGISTRATION_WINDOW_H
#define KIRV_XMPP_REGISTRATION_WINDOW_H

#include "protocols/xmpp/kirv_xmpp_registration.h"

#include <QDialog>
#include <QPointer>

class KirvFieldWidget;
class KirvProtocol;
class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;

/// Registers a new account: first the server, then the form that this server asks for; in the end the account is
/// in the list. What was typed stays, whatever happens.
class KirvXmppRegistrationWindow : public QDialog {
    Q_OBJECT
    /// How long the server may take for an answer, in milliseconds.
    Q_PROPERTY(int timeout READ timeout WRITE setTimeout)

public:
    /// \a protocol makes the account; it is not owned and lives longer.
    KirvXmppRegistrationWindow(KirvProtocol *protocol, QWidget *parent);

    int timeout() const { return registration.timeout(); }
    void setTimeout(int milliseconds) { registration.setTimeout(milliseconds); }

private:
    QWidget *createServerPage();
    QWidget *createFormPage();
    QWidget *createButtons();
    void useConfiguration(const QString &name);

    void goOn();
    void goBack();
    void askForForm();
    void submit();
    void showForm(const KirvXmppRegistrationForm &form);
    void growToForm();
    void showPictures();
    void createAccount();

    void setBusy(bool isBusy);
    void updateButtons();
    void showMessage(const QString &text);
    bool isAtForm() const;

    KirvProtocol *const protocol;
    KirvXmppRegistration registration;
    KirvXmppRegistrationForm form;
    QList<KirvField> submitted;
    QString domain;
    bool isDone = false;
    QPointer<QWidget> focusBefore; ///< where the keyboard was when the server was asked

    QStackedWidget *pages = nullptr;
    QComboBox *configurationBox = nullptr;
    KirvFieldWidget *serverFields = nullptr;
    QScrollArea *formArea = nullptr;
    QLabel *instructions = nullptr;
    QVBoxLayout *pictureLayout = nullptr;
    KirvFieldWidget *formFields = nullptr;
    QCheckBox *rememberBox = nullptr;
    QLabel *message = nullptr;
    QProgressBar *progress = nullptr;
    QPushButton *backButton = nullptr;
    QPushButton *nextButton = nullptr;
    QPushButton *closeButton = nullptr;
};

#endif
