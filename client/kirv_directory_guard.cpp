// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_directory_guard.h"

#include "core/accounts/kirv_account_collection.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_ui_loader.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {
const auto statusName = QStringLiteral("EditAccount_PubDirStatus");
const auto fetchName = QStringLiteral("EditAccount_PubDirFetch");
} // namespace

KirvDirectoryGuard::KirvDirectoryGuard(QDialog *window, KirvEditAccountDialog *controller,
                                       KirvAccountCollection &accounts)
    : window(window)
    , controller(controller)
    , accounts(accounts)
    , key { controller->getAccountId(), controller->getProtocolName() }
    , tabs(window->findChild<QTabWidget *>(QStringLiteral("EditAccount_Tabs")))
{
    findFields();
    KirvAccount *edited = account();
    if (!fields || !edited || !edited->isLoaded())
        return;
    wasOnline = edited->isOnline();
    edited->directory().forget();
    // What is not fetched yet counts as blank and unchanged: the page would publish the blank fields otherwise.
    deliver(edited->protocol()->directoryFields());
    connect(&edited->directory(), &KirvAccountDirectory::requested, this, &KirvDirectoryGuard::updateStatus);
    connect(&edited->directory(), &KirvAccountDirectory::answered, this, &KirvDirectoryGuard::receive);
    connect(&accounts, &KirvAccountCollection::accountChanged, this, &KirvDirectoryGuard::onAccountChanged);
    updateStatus();
}

KirvDirectoryGuard::~KirvDirectoryGuard()
{
    if (KirvAccount *edited = account())
        edited->directory().forget();
}

KirvAccount *KirvDirectoryGuard::account() const
{
    return accounts.find(key);
}

void KirvDirectoryGuard::findFields()
{
    auto *place = window->findChild<QWidget *>(QStringLiteral("EditAccount_PubDirResults"));
    fields = place ? place->findChild<KirvFieldWidget *>() : nullptr;
    if (!fields)
        return;
    fields->installEventFilter(this);
    addMissingControls(place);
    status = window->findChild<QLabel *>(statusName);
    status->setTextFormat(Qt::PlainText);
}

/// A layout need not have them, but the reason for locked fields and a way on must be there.
void KirvDirectoryGuard::addMissingControls(QWidget *place)
{
    const bool hasStatus = window->findChild<QLabel *>(statusName);
    const bool hasFetch = window->findChild<QAbstractButton *>(fetchName);
    if (hasStatus && hasFetch)
        return;
    auto *row = new QWidget(window);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    if (!hasStatus) {
        auto *label = new QLabel(row);
        label->setObjectName(statusName);
        label->setWordWrap(true);
        layout->addWidget(label, 1);
    }
    if (!hasFetch) {
        auto *button = new QPushButton(tr("&Fetch Again"), row);
        button->setObjectName(fetchName);
        button->setAutoDefault(false);
        connect(button, SIGNAL(clicked()), controller, SLOT(requestPubdirInfo()));
        layout->addWidget(button);
    }
    KirvUILoader::insertWidget(place, row);
}

void KirvDirectoryGuard::saveBegins()
{
    wasLocked = isLocked();
    typed = fields ? fields->getFields() : QList<KirvField>();
}

void KirvDirectoryGuard::saveEnded(bool saved)
{
    KirvAccount *edited = account();
    const bool isPublished = fields && edited && isLocked() && !wasLocked;
    if (!isPublished)
        return;
    failure = KirvFailure();
    publishing = saved && edited->directory().isBusy();
    if (!saved)
        bringBackTyped();
    updateStatus();
}

bool KirvDirectoryGuard::eventFilter(QObject *watched, QEvent *event)
{
    // The type first: events also come while the fields are being destroyed.
    if (event->type() == QEvent::EnabledChange && watched == fields)
        updateStatus();
    return QObject::eventFilter(watched, event);
}

/// Shows \a shown, which must not be empty, as the known entry and unlocks the fields.
void KirvDirectoryGuard::deliver(const QList<KirvField> &shown)
{
    KirvAccount *edited = account();
    if (!controller || !edited)
        return;
    KirvPubdirAccountReceivedEvent event(edited, shown);
    QCoreApplication::sendEvent(controller, &event);
}

void KirvDirectoryGuard::receive(KirvAccountDirectory::Operation operation, const KirvDirectoryAnswer &answer)
{
    KirvAccount *edited = account();
    if (!fields || !edited)
        return;
    failure = answer.failure;
    const bool wasPublishing = std::exchange(publishing, false);
    if (answer.outcome != KirvDirectoryAnswer::Failed)
        deliver(edited->directory().base());
    else if (operation == KirvAccountDirectory::Publish)
        bringBackTyped();
    // Else the fields stay locked: what they would publish is not based on anything.
    updateStatus();
    if (wasPublishing)
        Q_EMIT publicationEnded(answer.outcome != KirvDirectoryAnswer::Failed);
}

/// The page takes what it published for the known entry. The entry before is known again, and the fields differ from
/// it as typed, so that the next save publishes them again.
void KirvDirectoryGuard::bringBackTyped()
{
    const QList<KirvField> base = account()->directory().base();
    if (base.isEmpty())
        return;
    deliver(base);
    fields->fillWithFields(typed);
}

void KirvDirectoryGuard::onAccountChanged(KirvAccount *changed)
{
    if (changed->key() != key || !fields || !controller)
        return;
    const bool cameOnline = changed->isOnline() && !wasOnline;
    wasOnline = changed->isOnline();
    const bool isShown = tabs && tabs->currentIndex() > 0;
    if (cameOnline && isShown && isLocked() && !publishing && !changed->directory().isBusy())
        QMetaObject::invokeMethod(controller, "requestPubdirInfo", Qt::DirectConnection);
    updateStatus();
}

void KirvDirectoryGuard::updateStatus()
{
    if (status)
        status->setText(statusText());
}

QString KirvDirectoryGuard::statusText() const
{
    KirvAccount *edited = account();
    if (publishing)
        return tr("Publishing the directory entry…");
    if (edited && isLocked() && edited->directory().isBusy())
        return tr("Requesting the directory entry…");
    if (!edited || !edited->isOnline())
        return tr("The account must be connected before its directory entry can be read or changed.");
    if (failure.isFailure())
        return failure.text();
    return isLocked() ? tr("The directory entry is not known. Fetch it again to change it.") : QString();
}

bool KirvDirectoryGuard::isLocked() const
{
    return fields && !fields->isEnabledTo(fields->parentWidget());
}
