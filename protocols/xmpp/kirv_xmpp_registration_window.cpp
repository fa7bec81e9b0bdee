// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration_window.h"

#include "host/kirv_account_manager.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_protocol.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const int largestPictureSide = 600;
const auto domainId = QStringLiteral("domain");

KirvField createDomainField(const QString &domain)
{
    KirvField field = KirvField::textEdit(KirvXmppRegistrationWindow::tr("Domain"), domainId, domain,
                                          KirvXmppRegistrationWindow::tr("The part of the address after the @."));
    field.setRequired(true);
    return field;
}

QString domainOf(const QList<KirvField> &fields)
{
    for (const KirvField &field : fields) {
        if (field.getId() == domainId) // also of a whole address
            return field.getText().section(QLatin1Char('@'), -1).trimmed();
    }
    return QString();
}

/// A label for what a server says: shown as it is, and to be copied.
QLabel *createPlainLabel(const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    return label;
}

/// Shows the form of a server whole as long as there is room; a longer one scrolls up and down only.
class FormArea : public QScrollArea {
public:
    explicit FormArea(QWidget *parent)
        : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    QSize sizeHint() const override { return widget()->sizeHint() + spaceForScrollBar(); }
    QSize minimumSizeHint() const override
    {
        const QSize narrowest = widget()->minimumSizeHint() + spaceForScrollBar();
        return QSize(narrowest.width(), QScrollArea::minimumSizeHint().height());
    }

private:
    QSize spaceForScrollBar() const { return QSize(verticalScrollBar()->sizeHint().width(), 0); }
};

QPixmap readPicture(const QByteArray &data)
{
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty())
        return QPixmap();
    if (size.width() > largestPictureSide || size.height() > largestPictureSide)
        reader.setScaledSize(size.scaled(largestPictureSide, largestPictureSide, Qt::KeepAspectRatio));
    return QPixmap::fromImage(reader.read());
}

} // namespace

KirvXmppRegistrationWindow::KirvXmppRegistrationWindow(KirvProtocol *protocol, QWidget *parent)
    : QDialog(parent)
    , protocol(protocol)
{
    setObjectName(QStringLiteral("XmppRegistration"));
    setWindowTitle(tr("Register XMPP Account"));
    pages = new QStackedWidget(this);
    pages->setObjectName(QStringLiteral("XmppRegistration_Pages"));
    pages->addWidget(createServerPage());
    pages->addWidget(createFormPage());
    message = createPlainLabel(QStringLiteral("XmppRegistration_Message"), this);
    message->hide();
    progress = new QProgressBar(this);
    progress->setObjectName(QStringLiteral("XmppRegistration_Progress"));
    progress->setAccessibleName(tr("Waiting for the server"));
    progress->setRange(0, 0);
    progress->setTextVisible(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(pages, 1);
    layout->addWidget(message);
    layout->addWidget(progress);
    layout->addWidget(createButtons());
    setBusy(false);

    connect(&registration, &KirvXmppRegistration::formReceived, this, &KirvXmppRegistrationWindow::showForm);
    connect(&registration, &KirvXmppRegistration::succeeded, this, &KirvXmppRegistrationWindow::createAccount);
    connect(&registration, &KirvXmppRegistration::failed, this, [this](const KirvFailure &failure) {
        setBusy(false);
        showMessage(failure.text());
    });
}

QWidget *KirvXmppRegistrationWindow::createServerPage()
{
    auto *page = new QWidget(this);
    auto *introduction = createPlainLabel(QStringLiteral("XmppRegistration_Introduction"), page);
    introduction->setText(tr("On which server is the new account to be? The server decides what it asks for next."));

    configurationBox = new QComboBox(page);
    configurationBox->setObjectName(QStringLiteral("XmppRegistration_Configuration"));
    configurationBox->setAccessibleName(tr("Configuration"));
    configurationBox->addItems(protocol->getConfigurations());
    connect(configurationBox, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { useConfiguration(configurationBox->itemText(index)); });

    const QList<KirvField> fields { createDomainField(QString()) };
    serverFields =
        new KirvFieldWidget(fields + KirvXmppSettings().toServerFields(), page, KirvFieldWidget::LabelsBeside);
    serverFields->setObjectName(QStringLiteral("XmppRegistration_ServerFields"));

    auto *choice = new QFormLayout;
    choice->addRow(tr("Con&figuration:"), configurationBox);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(introduction);
    layout->addLayout(choice);
    layout->addWidget(serverFields, 1);
    return page;
}

QWidget *KirvXmppRegistrationWindow::createFormPage()
{
    auto *page = new QWidget;
    instructions = createPlainLabel(QStringLiteral("XmppRegistration_Instructions"), page);
    pictureLayout = new QVBoxLayout;
    formFields = new KirvFieldWidget({}, page, KirvFieldWidget::LabelsBeside);
    formFields->setObjectName(QStringLiteral("XmppRegistration_FormFields"));
    rememberBox = new QCheckBox(tr("&Remember the password"), page);
    rememberBox->setObjectName(QStringLiteral("XmppRegistration_Remember"));
    rememberBox->setToolTip(tr("Keeps the password in your profile, so that it is not asked for again."));
    rememberBox->setChecked(true);

    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(instructions);
    layout->addLayout(pictureLayout);
    layout->addWidget(formFields);
    layout->addWidget(rememberBox);
    layout->addStretch();

    formArea = new FormArea(this);
    formArea->setObjectName(QStringLiteral("XmppRegistration_Form"));
    formArea->setWidget(page);
    return formArea;
}

QWidget *KirvXmppRegistrationWindow::createButtons()
{
    auto *row = new QWidget(this);
    const auto createButton = [row](const char *objectName, const QString &text) {
        auto *button = new QPushButton(text, row);
        button->setObjectName(QLatin1String(objectName));
        button->setAutoDefault(false);
        return button;
    };
    backButton = createButton("XmppRegistration_BackButton", tr("&Back"));
    nextButton = createButton("XmppRegistration_NextButton", QString());
    closeButton = createButton("XmppRegistration_CloseButton", QString());
    nextButton->setDefault(true);
    connect(backButton, &QPushButton::clicked, this, &KirvXmppRegistrationWindow::goBack);
    connect(nextButton, &QPushButton::clicked, this, &KirvXmppRegistrationWindow::goOn);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::close);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(backButton);
    layout->addWidget(nextButton);
    layout->addWidget(closeButton);
    return row;
}

void KirvXmppRegistrationWindow::useConfiguration(const QString &name)
{
    const KirvXmppSettings settings(protocol->getConfigurationFields(name));
    QString known = domainOf(serverFields->getFields());
    if (known.isEmpty() && !settings.server.isEmpty())
        known = QStringLiteral("localhost");
    const QList<KirvField> fields { createDomainField(known) };
    serverFields->fillWithFields(fields + settings.toServerFields());
}

bool KirvXmppRegistrationWindow::isAtForm() const
{
    return pages->currentIndex() == 1;
}

void KirvXmppRegistrationWindow::goOn()
{
    if (isAtForm())
        submit();
    else
        askForForm();
}

void KirvXmppRegistrationWindow::goBack()
{
    registration.cancel();
    pages->setCurrentIndex(0);
    showMessage(QString());
    setBusy(false);
}

void KirvXmppRegistrationWindow::askForForm()
{
    const QList<KirvField> fields = serverFields->getFields();
    domain = domainOf(fields);
    if (domain.isEmpty()) {
        showMessage(tr("Enter the domain of the server."));
        return;
    }
    setBusy(true);
    showMessage(tr("The server is asked for its form…"));
    registration.fetchForm(domain, KirvXmppSettings(fields));
}

void KirvXmppRegistrationWindow::showForm(const KirvXmppRegistrationForm &received)
{
    const bool isAnother = isAtForm();
    form = received;
    QStringList texts { form.title(), form.instructions() };
    if (!form.address().isEmpty()) {
        //: %1 = a web address
        texts << tr("The server also names this address: %1").arg(form.address());
    }
    texts.removeAll(QString());
    instructions->setText(texts.join(QStringLiteral("\n\n")));
    instructions->setVisible(!texts.isEmpty());
    showPictures();
    formFields->fillWithFields(form.fieldsWith(formFields->getFields()));
    pages->setCurrentIndex(1);
    setBusy(false);
    if (form.fields().isEmpty())
        showMessage(tr("This server does not register accounts from within a client."));
    else
        showMessage(isAnother ? tr("The server has a new form. Check it and register again.") : QString());
    formFields->setFocus();
    // When all that is new has found its size.
    QMetaObject::invokeMethod(this, &KirvXmppRegistrationWindow::growToForm, Qt::QueuedConnection);
}

void KirvXmppRegistrationWindow::growToForm()
{
    formArea->updateGeometry();
    const QSize available = screen()->availableGeometry().size() * 9 / 10;
    resize(size().expandedTo(sizeHint().boundedTo(available)));
}

void KirvXmppRegistrationWindow::showPictures()
{
    while (QLayoutItem *item = pictureLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const QList<KirvXmppFormPicture> pictures = form.pictures();
    for (const KirvXmppFormPicture &picture : pictures) {
        const int number = pictureLayout->count() + 1;
        auto *label = createPlainLabel(QStringLiteral("XmppRegistration_Picture%1").arg(number), this);
        label->setAccessibleName(picture.label);
        const QPixmap pixmap = readPicture(picture.data);
        if (pixmap.isNull()) {
            //: %1 = a caption, %2 = an address
            label->setText(
                tr("There is a picture for “%1”, which cannot be shown: %2").arg(picture.label, picture.address));
        } else {
            label->setPixmap(pixmap);
        }
        pictureLayout->addWidget(label);
    }
}

void KirvXmppRegistrationWindow::submit()
{
    submitted = formFields->getFields();
    const QString problem = form.problem(submitted);
    if (!problem.isEmpty()) {
        showMessage(problem);
        return;
    }
    setBusy(true);
    showMessage(tr("The form is sent…"));
    registration.submit(submitted);
}

void KirvXmppRegistrationWindow::createAccount()
{
    setBusy(false);
    isDone = true;
    updateButtons();
    const QString name = KirvXmppRegistrationForm::userName(submitted);
    const QString login = name + QLatin1Char('@') + domain;
    if (name.isEmpty()) {
        showMessage(tr("The server has taken the form. Add the account with the login that the server gives you."));
        return;
    }
    const QList<KirvField> settings = KirvXmppSettings(serverFields->getFields()).toFields();
    const bool isCreated = KirvAccountManager::getInstance()->createAccount(
        login, login, KirvXmppRegistrationForm::password(submitted), rememberBox->isChecked(), protocol,
        protocol->getAllPresences().first(), settings);
    if (isCreated) {
        close();
        return;
    }
    //: %1 = the address of an account
    showMessage(tr("The account %1 is registered on the server, but it was not added here: it is in the list already, "
                   "or the list cannot be stored.")
                    .arg(login));
}

void KirvXmppRegistrationWindow::setBusy(bool isBusy)
{
    if (isBusy)
        focusBefore = focusWidget();
    pages->setEnabled(!isBusy);
    progress->setVisible(isBusy);
    updateButtons();
    if (!isBusy && focusBefore)
        focusBefore->setFocus(); // it went to the close button when the rest was disabled
}

void KirvXmppRegistrationWindow::updateButtons()
{
    const bool isIdle = pages->isEnabled() && !isDone;
    const bool canRegister = !isAtForm() || !form.fields().isEmpty();
    backButton->setEnabled(isAtForm() && !isDone);
    nextButton->setText(isAtForm() ? tr("&Register") : tr("&Continue"));
    nextButton->setEnabled(isIdle && canRegister);
    closeButton->setText(isDone ? tr("Cl&ose") : tr("Cancel"));
}

void KirvXmppRegistrationWindow::showMessage(const QString &text)
{
    message->setText(text);
    message->setVisible(!text.isEmpty());
}
