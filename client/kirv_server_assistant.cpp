// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_server_assistant.h"

#include "client/kirv_busy_bar.h"
#include "client/kirv_picture_reader.h"
#include "client/kirv_provider_completer.h"
#include "client/kirv_remember_box.h"
#include "client/kirv_wrapped_text.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/ui/kirv_field_form.h"
#include "core/ui/kirv_form_area.h"
#include "core/ui/kirv_keyboard.h"
#include "core/values/kirv_bounded_image.h"
#include "host/kirv_field_widget.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace {

const int largestPictureSide = 400; // in pixels
const int mostPictures = 4; // each may take long to read
const int longestMessage = 600; // in characters; it does not scroll

QLabel *createIcon(const QString &objectName, QStyle::PixelMetric size, QWidget *parent)
{
    auto *icon = new QLabel(parent);
    icon->setObjectName(objectName);
    icon->setAccessibleName(KirvServerAssistant::tr("Warning"));
    const int side = parent->style()->pixelMetric(size, nullptr, parent);
    icon->setPixmap(parent->style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, parent).pixmap(side, side));
    icon->setAlignment(Qt::AlignTop);
    icon->hide();
    return icon;
}

KirvWrappedText *createText(const QString &objectName, const QString &accessibleName, QWidget *parent)
{
    auto *text = new KirvWrappedText(parent);
    text->setObjectName(objectName);
    text->setAccessibleName(accessibleName);
    return text;
}

QString pictureName(int index)
{
    return QStringLiteral("ServerAssistant_Picture%1").arg(index + 1);
}

/// The first control in \a form that is there to be filled in, or null.
QWidget *firstControl(QWidget *form)
{
    for (QWidget *widget = form->nextInFocusChain(); widget != form; widget = widget->nextInFocusChain()) {
        const bool takesTab = widget->focusPolicy() & Qt::TabFocus && widget->isEnabled();
        if (takesTab && form->isAncestorOf(widget) && widget->isVisibleTo(form) && !widget->focusProxy())
            return widget;
    }
    return nullptr;
}

} // namespace

KirvServerAssistant::KirvServerAssistant(KirvServerRequest *request, QWidget *parent)
    : QDialog(parent)
    , request(request)
{
    setObjectName(QStringLiteral("ServerAssistant"));
    setWindowTitle(request->title());
    build();
    updateButtons();

    connect(request, &KirvServerRequest::stepReady, this, &KirvServerAssistant::showStep);
    connect(request, &KirvServerRequest::waiting, this, [this](const QString &reason) {
        setWaiting(true);
        showMessage(reason, false);
    });
    connect(request, &KirvServerRequest::failed, this,
            [this](const KirvFailure &failure) { showProblem(failure.text()); });
    connect(request, &KirvServerRequest::inputRejected, this, [this](const QString &reason) { showProblem(reason); });
}

void KirvServerAssistant::build()
{
    area = new KirvFormArea(this);
    area->setObjectName(QStringLiteral("ServerAssistant_Area"));
    area->setWidget(createPage());
    progress = kirvCreateBusyBar(QStringLiteral("ServerAssistant_Progress"), tr("Waiting for the server"), this);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(createMessageRow());
    layout->addWidget(progress);
    layout->addWidget(createButtons());
}

QWidget *KirvServerAssistant::createPage()
{
    auto *page = new QWidget;
    warningIcon = createIcon(QStringLiteral("ServerAssistant_Icon"), QStyle::PM_MessageBoxIconSize, page);
    text = createText(QStringLiteral("ServerAssistant_Text"), tr("Instructions"), page);
    connect(text, &QTextEdit::cursorPositionChanged, this, [this] {
        const QPoint cursor = text->viewport()->mapTo(area->widget(), text->cursorRect().center());
        if (text->hasFocus())
            area->ensureVisible(cursor.x(), cursor.y());
    });

    configurationRow = new QWidget(page);
    configurationRow->setObjectName(QStringLiteral("ServerAssistant_ConfigurationRow"));
    configurationBox = new QComboBox(configurationRow);
    configurationBox->setObjectName(QStringLiteral("ServerAssistant_Configuration"));
    configurationBox->setAccessibleName(tr("Configuration"));
    configurationBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    configurationBox->setMinimumContentsLength(12);
    connect(configurationBox, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { useConfiguration(configurationBox->itemText(index)); });
    auto *choice = new QFormLayout(configurationRow);
    choice->setContentsMargins(0, 0, 0, 0);
    choice->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    choice->addRow(tr("Con&figuration:"), configurationBox);

    pictureList = new QWidget(page);
    pictureList->setObjectName(QStringLiteral("ServerAssistant_Pictures"));
    (new QVBoxLayout(pictureList))->setContentsMargins(0, 0, 0, 0);
    pictureReader = new KirvPictureReader(this);
    connect(pictureReader, &KirvPictureReader::pictureRead, this, &KirvServerAssistant::showPicture);
    fields = new KirvFieldWidget({}, page, KirvFieldWidget::LabelsBeside);
    fields->setObjectName(QStringLiteral("ServerAssistant_Fields"));

    auto *introduction = new QHBoxLayout;
    introduction->addWidget(warningIcon);
    introduction->addWidget(text, 1);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(introduction);
    for (QWidget *part : { configurationRow, pictureList, static_cast<QWidget *>(fields), createRememberRow(page) })
        layout->addWidget(part);
    layout->addStretch();
    return page;
}

QWidget *KirvServerAssistant::createRememberRow(QWidget *page)
{
    rememberRow = new QWidget(page);
    rememberRow->setObjectName(QStringLiteral("ServerAssistant_RememberRow"));
    rememberBox = new QCheckBox(tr("&Remember the password"), rememberRow);
    rememberBox->setObjectName(QStringLiteral("ServerAssistant_Remember"));
    rememberBox->setChecked(true);
    connect(rememberBox, &QCheckBox::toggled, this, &KirvServerAssistant::rememberingChanged);
    auto *layout = new QVBoxLayout(rememberRow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(rememberBox);
    return rememberRow;
}

void KirvServerAssistant::setSecrets(const KirvSecretKeeper &keeper)
{
    new KirvRememberBox(rememberBox, keeper, KirvRememberBox::OffWhenUnsafe);
    connect(&keeper, &KirvSecretKeeper::changed, this, &KirvServerAssistant::growLater);
}

QWidget *KirvServerAssistant::createMessageRow()
{
    messageRow = new QWidget(this);
    messageRow->setObjectName(QStringLiteral("ServerAssistant_MessageRow"));
    messageIcon = createIcon(QStringLiteral("ServerAssistant_MessageIcon"), QStyle::PM_SmallIconSize, messageRow);
    message = createText(QStringLiteral("ServerAssistant_Message"), tr("Message"), messageRow);
    auto *layout = new QHBoxLayout(messageRow);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(messageIcon);
    layout->addWidget(message, 1);
    messageRow->hide();
    return messageRow;
}

QWidget *KirvServerAssistant::createButtons()
{
    auto *row = new QWidget(this);
    const auto createButton = [row](const char *objectName, const QString &caption) {
        auto *button = new QPushButton(caption, row);
        button->setObjectName(QLatin1String(objectName));
        button->setAutoDefault(false);
        return button;
    };
    backButton = createButton("ServerAssistant_BackButton", tr("&Back"));
    nextButton = createButton("ServerAssistant_NextButton", QString());
    closeButton = createButton("ServerAssistant_CloseButton", QString());
    connect(backButton, &QPushButton::clicked, this, &KirvServerAssistant::goBack);
    connect(nextButton, &QPushButton::clicked, this, &KirvServerAssistant::goOn);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::close);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(backButton);
    layout->addWidget(nextButton);
    layout->addWidget(closeButton);
    return row;
}

bool KirvServerAssistant::isPasswordToBeRemembered() const
{
    return rememberBox->isChecked();
}

void KirvServerAssistant::showStep(const KirvServerRequest::Step &newStep)
{
    step = newStep;
    setWaiting(false);
    warningIcon->setVisible(step.isDangerous);
    showText(text, step.text);
    showConfigurations(step.configurations);
    showPictures();
    fillFields(step.fields);
    fields->setVisible(!step.fields.isEmpty());
    rememberRow->setVisible(step.hasPassword);
    showMessage(step.notice, true);
    focusStep();
    growLater();
}

void KirvServerAssistant::showConfigurations(const QStringList &configurations)
{
    configurationRow->setVisible(!configurations.isEmpty());
    QStringList present;
    for (int i = 0; i < configurationBox->count(); ++i)
        present << configurationBox->itemText(i);
    if (configurations.isEmpty() || configurations == present)
        return; // what was chosen stays for when the step comes again
    configurationBox->clear();
    configurationBox->addItems(configurations);
}

/// Each picture is a text until it was read.
void KirvServerAssistant::showPictures()
{
    step.pictures = step.pictures.mid(0, mostPictures);
    QLayout *list = pictureList->layout();
    while (QLayoutItem *item = list->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    QList<KirvPictureReader::Source> sources;
    for (const KirvServerRequest::Picture &picture : qAsConst(step.pictures)) {
        //: %1 = a caption
        list->addWidget(createPictureText(sources.size(), tr("Reading the picture for \"%1\"…").arg(picture.label)));
        sources << KirvPictureReader::Source(picture.data, picture.label);
    }
    pictureList->setVisible(!sources.isEmpty());
    pictureReader->read(sources, largestPictureSide);
}

QWidget *KirvServerAssistant::createPictureText(int index, const QString &content)
{
    KirvWrappedText *widget = createText(pictureName(index), step.pictures.at(index).label, pictureList);
    widget->showText(content);
    return widget;
}

void KirvServerAssistant::showPicture(int index, const KirvBoundedImage &picture)
{
    const KirvServerRequest::Picture &source = step.pictures.at(index);
    QWidget *shown = nullptr;
    if (picture.isNull()) {
        //: %1 = a caption, %2 = an address
        const QString problem = tr("There is a picture for \"%1\", which cannot be shown: %2");
        shown = createPictureText(index, problem.arg(source.label, source.address));
    } else {
        auto *label = new QLabel(pictureList);
        label->setObjectName(pictureName(index));
        label->setAccessibleName(source.label);
        label->setPixmap(QPixmap::fromImage(picture.image()));
        shown = label;
    }
    QWidget *replaced = pictureList->layout()->itemAt(index)->widget();
    delete pictureList->layout()->replaceWidget(replaced, shown);
    delete replaced;
    shown->show();
    growLater();
}

/// The keyboard stays in a field that the new step has, too, and goes to the first one otherwise.
void KirvServerAssistant::focusStep()
{
    if (focusWidget() && fields->isAncestorOf(focusWidget()) && focusWidget()->isVisibleTo(this))
        return;
    QWidget *first = firstControl(fields);
    if (!first)
        first = nextButton->isDefault() ? nextButton : closeButton;
    first->setFocus();
}

/// Makes room for what is new when it has found its size.
void KirvServerAssistant::growLater()
{
    QMetaObject::invokeMethod(this, &KirvServerAssistant::grow, Qt::QueuedConnection);
}

void KirvServerAssistant::grow()
{
    area->updateGeometry();
    const QSize available = screen()->availableGeometry().size() * 9 / 10;
    // A scroll bar takes the room that would make it needless.
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    resize(size().expandedTo(sizeHint().boundedTo(available)));
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void KirvServerAssistant::showText(KirvWrappedText *widget, const QString &content)
{
    widget->showText(content);
    widget->setVisible(!content.isEmpty());
}

void KirvServerAssistant::showMessage(const QString &content, bool isProblem)
{
    const bool isTooLong = content.size() > longestMessage;
    showText(message, isTooLong ? content.left(longestMessage - 1) + QChar(0x2026) : content);
    messageIcon->setVisible(isProblem);
    messageRow->setVisible(!content.isEmpty());
    growLater();
    if (content.isEmpty() || !isVisible())
        return;
    QAccessibleEvent alert(message, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void KirvServerAssistant::useConfiguration(const QString &name)
{
    if (request)
        fillFields(request->fieldsOf(name, fields->getFields()));
}

void KirvServerAssistant::fillFields(const QList<KirvField> &shown)
{
    fields->fillWithFields(shown);
    auto *domain = fields->findChild<QLineEdit *>(QStringLiteral("KirvField_") + step.providerField);
    if (domain && !step.providerField.isEmpty() && !providers.isEmpty())
        kirvOfferProviders(domain, providers);
}

/// The keyboard goes to the first field that is wrong. When none is, it stays in the form, or goes to what is said.
void KirvServerAssistant::showProblem(const QString &content)
{
    setWaiting(false);
    showMessage(content, true);
    auto *form = fields->findChild<KirvFieldForm *>();
    if (QWidget *wrong = form ? form->showProblems() : nullptr)
        wrong->setFocus();
    else if (!focusWidget() || !fields->isAncestorOf(focusWidget()))
        message->setFocus();
}

void KirvServerAssistant::goOn()
{
    if (isOver)
        Q_EMIT outcomeCommandTriggered();
    else if (request)
        request->submit(fields->getFields());
}

void KirvServerAssistant::goBack()
{
    if (request)
        request->goBack(fields->getFields());
}

void KirvServerAssistant::showOutcome(const QString &content, const QString &command, bool isProblem)
{
    isOver = true;
    step.command = command;
    step.isDangerous = false;
    step.canGoBack = false;
    setWaiting(false);
    area->setEnabled(false);
    showMessage(content, isProblem);
    (command.isEmpty() ? closeButton : nextButton)->setFocus();
}

void KirvServerAssistant::setWaiting(bool waiting)
{
    if (waiting && !isWaiting)
        focusBefore = focusWidget();
    isWaiting = waiting;
    area->setEnabled(!waiting);
    progress->setVisible(waiting);
    updateButtons();
    // It went to the close button when the rest was disabled.
    if (!waiting && focusBefore && focusBefore->isVisibleTo(this) && isAncestorOf(focusBefore))
        focusBefore->setFocus();
    if (!waiting)
        focusBefore.clear();
}

void KirvServerAssistant::updateButtons()
{
    const bool canGoOn = !step.command.isEmpty();
    backButton->setVisible(step.canGoBack);
    nextButton->setVisible(canGoOn);
    nextButton->setEnabled(!isWaiting);
    closeButton->setText(canGoOn && !isOver ? tr("Cancel") : tr("Cl&ose"));
    nextButton->setText(QString());
    QSet<QChar> taken = kirvMnemonicsAround(nextButton);
    nextButton->setText(kirvWithMnemonic(step.command, &taken));
    const bool isDefault = canGoOn && !step.isDangerous;
    nextButton->setDefault(isDefault);
    closeButton->setDefault(!isDefault);
}
