// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SERVER_ASSISTANT_H
#define KIRV_SERVER_ASSISTANT_H

#include "client/kirv_provider_list.h"
#include "core/protocol/kirv_server_request.h"

#include <QDialog>
#include <QPointer>

class KirvBoundedImage;
class KirvFieldWidget;
class KirvFormArea;
class KirvPictureReader;
class KirvSecretKeeper;
class KirvWrappedText;
class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// Shows a server request of any protocol step by step. What comes from a server is shown as plain text; what was
/// typed stays, whatever the server replies.
///
/// It knows nothing of accounts: whoever owns the request handles its result and calls showOutcome() when there is
/// something to say about it. Closing the window does not end the request.
class KirvServerAssistant : public QDialog {
    Q_OBJECT

public:
    /// \a request is not owned; it may be destroyed first. Start it afterwards.
    KirvServerAssistant(KirvServerRequest *request, QWidget *parent);

    /// What is offered to choose from where a step has a field for the domain of a provider; from the next step on.
    void setProviders(const QList<KirvProvider> &newProviders) { providers = newProviders; }
    /// Says where \a keeper, which outlives this, would keep the password of a new account. Without a keyring it is not
    /// remembered unless the user says so. Call it at most once.
    void setSecrets(const KirvSecretKeeper &keeper);
    /// Whether the password of the new account is to be stored.
    bool isPasswordToBeRemembered() const;
    /// The request is over, and \a text says what is left to say. With a \a command, in title case, there is a button
    /// besides Close that emits outcomeCommandTriggered(). \a isProblem: it is shown as a warning.
    void showOutcome(const QString &text, const QString &command, bool isProblem = true);

Q_SIGNALS:
    void rememberingChanged(bool isPasswordToBeRemembered);
    void outcomeCommandTriggered();

private:
    void build();
    QWidget *createPage();
    QWidget *createRememberRow(QWidget *page);
    QWidget *createMessageRow();
    QWidget *createButtons();
    QWidget *createPictureText(int index, const QString &text);

    void showStep(const KirvServerRequest::Step &newStep);
    void showConfigurations(const QStringList &configurations);
    void showPictures();
    void fillFields(const QList<KirvField> &shown);
    void showProblem(const QString &text);
    void showPicture(int index, const KirvBoundedImage &picture);
    void focusStep();
    void growLater();
    void grow();
    void showText(KirvWrappedText *widget, const QString &text);
    void showMessage(const QString &text, bool isProblem);

    void useConfiguration(const QString &name);
    void goOn();
    void goBack();
    void setWaiting(bool isWaiting);
    void updateButtons();

    const QPointer<KirvServerRequest> request;
    KirvServerRequest::Step step;
    QList<KirvProvider> providers;
    bool isWaiting = false;
    bool isOver = false;
    QPointer<QWidget> focusBefore; ///< where the keyboard was when waiting began

    KirvFormArea *area = nullptr;
    QLabel *warningIcon = nullptr;
    KirvWrappedText *text = nullptr;
    QWidget *configurationRow = nullptr;
    QComboBox *configurationBox = nullptr;
    QWidget *pictureList = nullptr;
    KirvPictureReader *pictureReader = nullptr;
    KirvFieldWidget *fields = nullptr;
    QWidget *rememberRow = nullptr;
    QCheckBox *rememberBox = nullptr;
    QWidget *messageRow = nullptr;
    QLabel *messageIcon = nullptr;
    KirvWrappedText *message = nullptr;
    QProgressBar *progress = nullptr;
    QPushButton *backButton = nullptr;
    QPushButton *nextButton = nullptr;
    QPushButton *closeButton = nullptr;
};

#endif
