// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_directory_guard.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/ui/kirv_field_form.h"
#include "core/ui/kirv_field_problem.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "edit_account/kirv_pubdir_account_received_event.h"
#include "host/kirv_field_widget.h"
#include "host/kirv_ui_loader.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include <memory>
#include <utility>

namespace {
const auto statusName = QStringLiteral("EditAccount_PubDirStatus");
const auto fetchName = QStringLiteral("EditAccount_PubDirFetch");
const auto deleteName = QStringLiteral("EditAccount_PubDirDelete");

/// Puts \a row above what \a place holds.
void insertAbove(QWidget *place, QWidget *row)
{
    row->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    KirvUILoader::insertWidget(place, row);
    if (auto *rows = qobject_cast<QBoxLayout *>(place->layout()))
        rows->insertWidget(0, row);
}
} // namespace

KirvDirectoryGuard::KirvDirectoryGuard(QDialog *window, KirvEditAccountDialog *controller,
                                       KirvAccountCollection &accounts)
    : QObject(window)
    , window(window)
    , controller(controller)
    , accounts(accounts)
    , key { controller->getAccountId(), controller->getProtocolName() }
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
    findControls(place);
    findButtons();
    status->setTextFormat(Qt::PlainText);
}

/// A layout need not have them, but the reason for locked fields and a way on must be there.
void KirvDirectoryGuard::findControls(QWidget *place)
{
    status = window->findChild<QLabel *>(statusName);
    auto *button = window->findChild<QAbstractButton *>(fetchName);
    // The page connects the button only there.
    const auto *controls = window->findChild<QWidget *>(QStringLiteral("EditAccount_PubDirControls"));
    const bool isConnected = button && controls && controls->isAncestorOf(button);
    auto row = std::make_unique<QWidget>();
    auto *layout = new QHBoxLayout(row.get());
    layout->setContentsMargins(0, 0, 0, 0);
    if (!status) {
        status = new QLabel;
        status->setObjectName(statusName);
        status->setWordWrap(true);
        layout->addWidget(status, 1);
    }
    if (!button) {
        auto *added = new QPushButton(tr("&Fetch Again"));
        added->setObjectName(fetchName);
        added->setAutoDefault(false);
        layout->addWidget(added, 0, Qt::AlignRight);
        button = added;
    }
    if (layout->count() > 0)
        insertAbove(place, row.release());
    if (!isConnected)
        connect(button, SIGNAL(clicked()), controller, SLOT(requestPubdirInfo()));
}

/// Those that send a request; what they say of themselves comes back when they are enabled again.
void KirvDirectoryGuard::findButtons()
{
    for (const QString &name : { fetchName, deleteName }) {
        if (auto *button = window->findChild<QAbstractButton *>(name))
            buttons << Button { button, button->toolTip(), button->accessibleDescription() };
    }
}

void KirvDirectoryGuard::saveBegins()
{
    wasLocked = isLocked();
    leftUnpublished = false;
    typed = fields ? fields->getFields() : QList<KirvField>();
    wrong = wrongChanges();
}

/// What another program has published may look as it likes: only what is changed here is published.
QStringList KirvDirectoryGuard::wrongChanges() const
{
    QStringList ids;
    KirvAccount *edited = account();
    if (!fields || wasLocked || !edited || !edited->isOnline())
        return ids; // nothing is published
    QHash<QString, KirvField> known;
    for (const KirvField &field : edited->directory().base())
        known.insert(field.getId(), field);
    for (const KirvField &field : typed) {
        if (field.getText() != known.value(field.getId()).getText() && !kirvFieldProblem(field).isEmpty())
            ids << field.getId();
    }
    return ids;
}

/// Whether what was typed differs from the entry that is known; one that was not fetched counts as blank. The page may
/// have locked the fields since, as it does whenever the tab is shown.
bool KirvDirectoryGuard::hasChanges() const
{
    KirvAccount *edited = account();
    const bool isKnown = edited && edited->directory().isKnown();
    if (!fields || !edited || !edited->isLoaded() || (wasLocked && !isKnown))
        return false;
    return !KirvAccountDirectory::changes(typed,
                                          isKnown ? edited->directory().base() : edited->protocol()->directoryFields())
                .isEmpty();
}

void KirvDirectoryGuard::saveEnded(bool saved)
{
    KirvAccount *edited = account();
    leftUnpublished = saved && edited && !edited->isOnline() && hasChanges();
    const bool isPublished = fields && edited && isLocked() && !wasLocked;
    if (!isPublished)
        return;
    failure = KirvFailure();
    publishing = saved && edited->directory().isBusy();
    if (!saved)
        restoreTyped();
    updateStatus();
}

void KirvDirectoryGuard::showWrongEntry()
{
    showFields();
    auto *form = fields ? fields->findChild<KirvFieldForm *>() : nullptr;
    if (QWidget *control = form ? form->showProblems(wrong) : nullptr)
        control->setFocus();
    announceStatus();
}

void KirvDirectoryGuard::showUnpublished()
{
    showFields();
    if (isLocked()) // else the entry would be fetched over what was typed as soon as the account is on line
        restoreTyped();
    updateStatus();
    announceStatus();
}

void KirvDirectoryGuard::announceStatus()
{
    QAccessibleEvent alert(status, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool KirvDirectoryGuard::eventFilter(QObject *watched, QEvent *event)
{
    // Only the fields are watched; while they are destroyed the pointer to them must not be followed.
    if (event->type() == QEvent::EnabledChange)
        updateStatus();
    else if (event->type() == QEvent::Show) // from the event loop: the page is first
        QMetaObject::invokeMethod(this, &KirvDirectoryGuard::fetchWhenVisible, Qt::QueuedConnection);
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
    wrong.clear();
    const bool wasPublishing = std::exchange(publishing, false);
    const bool isSuccess = answer.outcome != KirvDirectoryAnswer::Failed;
    const bool isPublished = isSuccess && operation == KirvAccountDirectory::Publish;
    if (wasPublishing && !isPublished) // a later request may have taken the place of the publication
        restoreTyped();
    else if (isSuccess)
        deliver(edited->directory().base());
    // Else the fields stay locked: what they would publish is not based on anything.
    updateStatus();
    if (wasPublishing)
        Q_EMIT publicationEnded(isPublished);
}

/// The page takes what it published for the known entry. The entry before is known again, and the fields differ from
/// it as typed, so that the next save publishes them again.
void KirvDirectoryGuard::restoreTyped()
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
    if (cameOnline && isLocked())
        fetchWhenVisible();
    updateStatus();
}

/// The page fetches the entry when the tab changes; the fields of a layout of the user's own may be seen without that.
void KirvDirectoryGuard::fetchWhenVisible()
{
    KirvAccount *edited = account();
    if (!controller || !edited || !fields || !fields->isVisible() || publishing || edited->directory().isBusy())
        return;
    if (isLocked() || !edited->directory().isKnown())
        QMetaObject::invokeMethod(controller, "requestPubdirInfo", Qt::DirectConnection);
}

void KirvDirectoryGuard::showFields()
{
    for (QWidget *page = fields; page && page != window; page = page->parentWidget()) {
        auto *tabs = qobject_cast<QTabWidget *>(page->parentWidget()->parentWidget());
        const QSignalBlocker noFetch(tabs); // it would take away what was typed
        if (tabs)
            tabs->setCurrentWidget(page);
    }
}

void KirvDirectoryGuard::updateStatus()
{
    if (status)
        status->setText(statusText());
    updateButtons();
}

void KirvDirectoryGuard::updateButtons()
{
    const KirvAccount *edited = account();
    const bool canRequest = edited && edited->isOnline();
    for (const Button &button : qAsConst(buttons)) {
        if (!button.button)
            continue;
        button.button->setEnabled(canRequest);
        button.button->setToolTip(canRequest ? button.toolTip : offlineText());
        button.button->setAccessibleDescription(canRequest ? button.description : offlineText());
    }
}

QString KirvDirectoryGuard::offlineText()
{
    return tr("The account must be connected before its directory entry can be read or changed.");
}

QString KirvDirectoryGuard::statusText() const
{
    KirvAccount *edited = account();
    if (publishing)
        return tr("Publishing the directory entry…");
    if (edited && isLocked() && edited->directory().isBusy())
        return tr("Requesting the directory entry…");
    const bool isOffline = !edited || !edited->isOnline();
    if (isOffline && leftUnpublished)
        return tr("The account was saved, but its directory entry was not published, as the account is not connected. "
                  "Save again when it is.");
    if (isOffline)
        return offlineText();
    if (!wrong.isEmpty())
        return tr("Nothing was saved, because the entry cannot be published like this. Correct what is marked.");
    if (failure.isFailure())
        return failure.text();
    return isLocked() ? tr("The directory entry is not known. Fetch it again to change it.") : QString();
}

bool KirvDirectoryGuard::isLocked() const
{
    return fields && !fields->isEnabledTo(fields->parentWidget());
}
