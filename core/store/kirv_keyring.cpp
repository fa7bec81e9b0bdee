// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_keyring.h"

#include "core/store/kirv_keyring_watcher.h"
#include "core/store/kirv_wiped_text.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QList>
#include <QPair>

#include <utility>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <qt6keychain/keychain.h>
#else
#include <qt5keychain/keychain.h>
#endif

namespace {

const int mostRepetitions = 3; // of a read whose secret is there

KirvSecretStore::Outcome outcomeOf(int error)
{
    switch (error) {
    case QKeychain::NoError:
        return KirvSecretStore::Done;
    case QKeychain::EntryNotFound:
        return KirvSecretStore::Missing;
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return KirvSecretStore::Refused;
    default:
        return KirvSecretStore::Failed;
    }
}

/// Makes libsecret, which QtKeychain loads, forget the session with a service that has ended: it would be used with the
/// next one, too. False when there is no libsecret.
bool closeLibrarySession()
{
    using Disconnect = void (*)();
    QLibrary library(QStringLiteral("secret-1"), 0);
    const auto disconnect = reinterpret_cast<Disconnect>(library.resolve("secret_service_disconnect"));
    if (disconnect)
        disconnect();
    return disconnect;
}

/// Lets the program outlive the session bus: the connection of GIO that libsecret uses would end the program with the
/// bus. To be called when that exists. It is kept for good, so that no later one takes its place.
void outliveBus()
{
    static bool isDone = false;
    if (std::exchange(isDone, true))
        return;
    using GetBus = void *(*)(int type, void *cancellable, void **error);
    using SetExitOnClose = void (*)(void *connection, int exits);
    const int sessionBus = 2; // G_BUS_TYPE_SESSION
    QLibrary io(QStringLiteral("gio-2.0"), 0);
    const auto getBus = reinterpret_cast<GetBus>(io.resolve("g_bus_get_sync"));
    const auto setExitOnClose = reinterpret_cast<SetExitOnClose>(io.resolve("g_dbus_connection_set_exit_on_close"));
    void *bus = getBus && setExitOnClose ? getBus(sessionBus, nullptr, nullptr) : nullptr;
    if (bus)
        setExitOnClose(bus, 0);
}

/// While one exists, the session does not look like Plasma. There QtKeychain would talk to KWallet in KWallet's own
/// way, whichever program the watcher has found, and wait for it.
///
/// Only values of variables that are there are changed: other threads may read the environment meanwhile.
class OtherDesktop {
public:
    OtherDesktop()
    {
        for (const char *name : { "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION" }) {
            if (!qEnvironmentVariableIsSet(name))
                continue;
            before << qMakePair(name, qgetenv(name));
            qputenv(name, QByteArray());
        }
    }
    ~OtherDesktop()
    {
        for (const auto &variable : qAsConst(before))
            qputenv(variable.first, variable.second);
    }
    Q_DISABLE_COPY(OtherDesktop)

private:
    QList<QPair<const char *, QByteArray>> before;
};

/// Starts a job. With the first one of the process QtKeychain chooses how it keeps secrets; that is libsecret.
void startJobOfLibrary(QKeychain::Job *job)
{
    static bool isChosen = false;
    job->start();
    if (std::exchange(isChosen, true))
        return;
    const OtherDesktop desktop;
    QCoreApplication::sendPostedEvents(job); // the start is one
}

} // namespace

KirvKeyring::KirvKeyring(QObject *parent)
    : KirvKeyring(Limits(), parent)
{
}

KirvKeyring::KirvKeyring(const Limits &limits, QObject *parent)
    : KirvSecretStore(parent)
    , limits(limits)
    , watcher(std::make_unique<KirvKeyringWatcher>(limits.reply))
{
    timeLimit.setSingleShot(true);
    connect(&timeLimit, &QTimer::timeout, this, &KirvKeyring::giveUp);
    connect(watcher.get(), &KirvKeyringWatcher::changed, this, &KirvKeyring::receiveState);
    connect(watcher.get(), &KirvKeyringWatcher::replaced, this, [this] { hasLibrary = closeLibrarySession(); });
    connect(watcher.get(), &KirvKeyringWatcher::refreshed, this, &KirvKeyring::stateKnown);
    connect(watcher.get(), &KirvKeyringWatcher::searchEnded, this, &KirvKeyring::searchEnded);
    watcher->start();
}

KirvKeyring::~KirvKeyring() = default;

KirvSecretStore::State KirvKeyring::state() const
{
    if (!hasLibrary)
        return Unavailable;
    const bool isStuck = hasJob && !running;
    return isStuck && watcher->state() == Ready ? Silent : watcher->state();
}

QString KirvKeyring::providerName() const
{
    return watcher->providerName();
}

void KirvKeyring::read(const KirvSecretItem &item, QObject *context, const Callback &callback)
{
    enqueue({ Read, item, QString(), context, callback });
}

void KirvKeyring::write(const KirvSecretItem &item, const QString &secret, QObject *context, const Callback &callback)
{
    enqueue({ Write, item, secret, context, callback });
}

void KirvKeyring::remove(const KirvSecretItem &item, QObject *context, const Callback &callback)
{
    enqueue({ Remove, item, QString(), context, callback });
}

void KirvKeyring::enqueue(const Operation &operation)
{
    waiting << operation;
    QMetaObject::invokeMethod(this, &KirvKeyring::startNext, Qt::QueuedConnection);
}

void KirvKeyring::receiveState()
{
    const QPointer<KirvKeyring> alive(this);
    if (watcher->state() == Unavailable || watcher->state() == Silent)
        failWaiting({});
    if (alive)
        Q_EMIT stateChanged();
    if (alive)
        startNext();
}

void KirvKeyring::startNext()
{
    if (running)
        return;
    if (hasJob) {
        failWaiting({ TimedOut, QString(), QString() });
        return;
    }
    switch (state()) {
    case Unknown:
        return; // changed() follows
    case Unavailable:
        failWaiting({});
        return;
    case Silent:
        failWaiting({ TimedOut, QString(), QString() });
        return;
    case Ready:
    case Locked:
        break;
    }
    while (!waiting.isEmpty() && !running) {
        Operation next = waiting.takeFirst();
        if (next.context)
            running = std::make_unique<Operation>(std::move(next));
    }
    if (running)
        startJob();
}

/// The library's job destroys itself when it has finished, and only then.
void KirvKeyring::startJob()
{
    QKeychain::Job *job = nullptr;
    if (running->kind == Read) {
        job = new QKeychain::ReadPasswordJob(running->item.label);
    } else if (running->kind == Write) {
        auto *writing = new QKeychain::WritePasswordJob(running->item.label);
        writing->setTextData(running->secret);
        job = writing;
    } else {
        job = new QKeychain::DeletePasswordJob(running->item.label);
    }
    job->setKey(running->item.key);
    connect(job, &QKeychain::Job::finished, this, [this](QKeychain::Job *finished) {
        auto *reading = qobject_cast<QKeychain::ReadPasswordJob *>(finished);
        jobFinished(finished->error(), reading ? reading->textData() : QString(), finished->errorString());
    });
    hasJob = true;
    timeLimit.start(watcher->state() == Locked ? limits.unlocking : limits.operation);
    startJobOfLibrary(job);
}

void KirvKeyring::jobFinished(int error, const QString &secret, const QString &text)
{
    hasJob = false;
    if (!running) { // it had run out of time
        const QPointer<KirvKeyring> alive(this);
        watcher->refresh();
        Q_EMIT stateChanged();
        if (alive)
            startNext();
        return;
    }
    timeLimit.stop();
    const Outcome outcome = outcomeOf(error);
    if (outcome != Failed) // there was an answer over the connection
        outliveBus();
    if (outcome == Done && running->kind != Remove) {
        answer({ Done, secret, QString() });
        return;
    }
    // What cannot be read in a keyring that stays locked is reported as missing, too, and a removal also ends well when
    // it has found nothing to remove.
    unproven = std::make_unique<Reply>(Reply { outcome == Done ? Missing : outcome, QString(), text });
    watcher->refresh();
}

/// Proves a reply: what is missing from a keyring that is not open is not missing.
void KirvKeyring::stateKnown()
{
    if (!unproven)
        return;
    if (unproven->outcome == Missing && watcher->state() == Ready) {
        watcher->search(running->item.key);
        return;
    }
    watcher->cancelSearch();
    Reply reply = *std::exchange(unproven, nullptr);
    if (watcher->state() == Locked)
        reply.outcome = Refused;
    else if (watcher->state() != Ready && reply.outcome == Missing)
        reply.outcome = Failed;
    answer(reply);
}

/// What is there was not removed, also when the user has moved it into another keyring, which is locked. What could not
/// be read although it can be was locked a moment ago; what is locked elsewhere is missing here.
void KirvKeyring::searchEnded(Outcome outcome)
{
    if (!unproven)
        return;
    Reply reply = *std::exchange(unproven, nullptr);
    const bool isRead = running->kind == Read;
    if (isRead && outcome == Done && ++running->repetitions < mostRepetitions) {
        startJob();
        return;
    }
    reply.outcome = outcome == Done ? Failed : isRead && outcome == Refused ? Missing : outcome;
    answer(reply);
}

void KirvKeyring::giveUp()
{
    const QPointer<KirvKeyring> alive(this);
    answer({ TimedOut, QString(), QString() });
    if (alive)
        Q_EMIT stateChanged();
}

/// Answers the running operation.
void KirvKeyring::answer(Reply reply)
{
    const std::unique_ptr<Operation> answered = std::exchange(running, nullptr);
    const QPointer<KirvKeyring> alive(this);
    if (answered && answered->context)
        answered->callback(reply);
    kirvWipe(reply.secret);
    if (answered)
        kirvWipe(answered->secret);
    if (alive)
        startNext();
}

/// Answers those that wait; they have not been started.
void KirvKeyring::failWaiting(const Reply &reply)
{
    const QPointer<KirvKeyring> alive(this);
    const QList<Operation> failed = std::exchange(waiting, {});
    for (const Operation &operation : failed) {
        if (alive && operation.context)
            operation.callback(reply);
    }
}
