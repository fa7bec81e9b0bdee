// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_log.h"

#include "core/accounts/kirv_secret_blank.h"
#include "core/values/kirv_single_line.h"

#include <algorithm>

namespace {
/// How many of the latest entries may have the same text, as those of repeated attempts do.
const size_t lookedAt = 24;
}

KirvAccountLog::KirvAccountLog(QObject *parent)
    : QObject(parent)
{
}

QList<KirvAccountLog::Entry> KirvAccountLog::entries() const
{
    QList<Entry> result;
    for (size_t i = 0; i < ring.size(); ++i) {
        const Stored &stored = ring[(oldest + i) % ring.size()];
        const bool isFailure =
            stored.kind == Failure || (stored.kind == Step && stored.outcome == KirvLoginStep::Failed);
        result.append({ QDateTime::fromMSecsSinceEpoch(stored.time), isFailure, textOf(stored) });
    }
    return result;
}

void KirvAccountLog::clear()
{
    ring.clear();
    oldest = 0;
}

void KirvAccountLog::addState(KirvConnection::State state, const QString &detail, const KirvSecretBlank &secrets)
{
    add(State, state, 0, secrets.without(detail));
}

void KirvAccountLog::addStep(const KirvLoginStep &step, const KirvSecretBlank &secrets)
{
    add(Step, step.kind(), step.outcome(), secrets.without(step.text()));
}

void KirvAccountLog::addFailure(const KirvFailure &failure, const KirvSecretBlank &secrets)
{
    add(Failure, 0, 0, secrets.without(failure.text()));
}

/// Blanked before it is cut, so that no part of a secret is left.
void KirvAccountLog::addNotice(const QString &text, const KirvSecretBlank &secrets)
{
    add(Notice, 0, 0, secrets.without(text.left(20 * longestText)));
}

void KirvAccountLog::addAction(KirvReconciler::Step action)
{
    add(Action, action, 0, QString());
}

void KirvAccountLog::add(Kind kind, int what, int outcome, const QString &text)
{
    const Stored stored { QDateTime::currentMSecsSinceEpoch(), shared(kirvSingleLine(text, longestText).toUtf8()), kind,
                          quint8(what), quint8(outcome) };
    if (ring.size() < size_t(mostEntries)) {
        ring.push_back(stored);
    } else {
        ring[oldest] = stored;
        oldest = (oldest + 1) % ring.size();
    }
    ++added;
    Q_EMIT entryAdded();
}

QByteArray KirvAccountLog::shared(const QByteArray &text) const
{
    if (text.isEmpty())
        return QByteArray();
    for (size_t i = 1; i <= std::min(lookedAt, ring.size()); ++i) {
        const Stored &earlier = ring[(oldest + ring.size() - i) % ring.size()];
        if (earlier.text == text)
            return earlier.text;
    }
    return text;
}

QString KirvAccountLog::stateText(KirvConnection::State state)
{
    switch (state) {
    case KirvConnection::Offline:
        return tr("Off line");
    case KirvConnection::Connecting:
        return tr("Connecting");
    case KirvConnection::Online:
        return tr("Connected");
    case KirvConnection::Disconnecting:
        return tr("Logging out");
    case KirvConnection::Waiting:
        break;
    }
    return tr("Waiting");
}

QString KirvAccountLog::actionText(KirvReconciler::Step action)
{
    switch (action) {
    case KirvReconciler::LogIn:
        return tr("The program requests a log-in");
    case KirvReconciler::ChangePresence:
        return tr("The program changes the presence");
    case KirvReconciler::LogOut:
        return tr("The program requests a log-out");
    case KirvReconciler::Nothing:
        break;
    }
    return QString();
}

QString KirvAccountLog::textOf(const Stored &stored)
{
    const QString text = QString::fromUtf8(stored.text);
    QString title;
    switch (stored.kind) {
    case State:
        title = stateText(KirvConnection::State(stored.what));
        break;
    case Action:
        title = actionText(KirvReconciler::Step(stored.what));
        break;
    case Step:
        title = KirvLoginStep::title(KirvLoginStep::Kind(stored.what));
        if (stored.outcome == KirvLoginStep::Failed)
            title = tr("%1 failed").arg(title);
        else if (stored.outcome == KirvLoginStep::Done)
            title = tr("%1 done").arg(title);
        else
            title = tr("%1 begins").arg(title);
        break;
    case Failure:
    case Notice:
        return text;
    }
    //: %1 = an event, as "Connected", %2 = more about it
    return text.isEmpty() ? title : tr("%1: %2").arg(title, text);
}
