// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_login_test_view.h"

#include "client/kirv_event_delegate.h"
#include "client/kirv_report.h"
#include "core/ui/kirv_keyboard.h"
#include "core/values/kirv_visible_text.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Of text; more are scrolled.
const int fewestLines = 3;
const int mostLines = 15;

} // namespace

KirvLoginTestView::KirvLoginTestView(KirvProtocolBase &protocol, std::function<KirvLogin()> login,
                                     const QString &prefix, QWidget *parent)
    : QWidget(parent)
    , protocol(protocol)
    , login(std::move(login))
    , list(new QListWidget(this))
    , run(new QPushButton(parent))
    , copy(new QPushButton(tr("Copy Report"), parent))
{
    setObjectName(prefix + QStringLiteral("_LogInTest"));
    list->setObjectName(prefix + QStringLiteral("_LogInTestSteps"));
    list->setAccessibleName(tr("Steps of the log-in"));
    list->setItemDelegate(new KirvEventDelegate(list));
    list->setResizeMode(QListView::Adjust);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list);
    run->setObjectName(prefix + QStringLiteral("_TestLogIn"));
    copy->setObjectName(prefix + QStringLiteral("_CopyTestReport"));
    copy->setToolTip(tr("Copies the steps and the versions of the program, without the password."));
    copy->hide();
    hide();
    connect(run, &QPushButton::clicked, this, &KirvLoginTestView::startOrCancel);
    connect(copy, &QPushButton::clicked, this, &KirvLoginTestView::copyReport);
    updateButtons();
    fitHeight();
}

/// The connection goes before the widgets do.
KirvLoginTestView::~KirvLoginTestView()
{
    if (current)
        current->disconnect(this);
    current.reset();
}

void KirvLoginTestView::chooseMnemonics()
{
    // The key stays the same while the text changes.
    QSet<QChar> taken = kirvMnemonicsAround(run);
    const QString text = kirvWithMnemonic(tr("Test Log-In"), &taken);
    runKey = text.contains(QLatin1Char('&')) ? text.at(text.indexOf(QLatin1Char('&')) + 1) : QChar();
    copy->setText(kirvWithMnemonic(tr("Copy Report"), &taken));
    updateButtons();
}

/// A container such as a QDialogButtonBox stands in the chain itself, in front of what is in it.
void KirvLoginTestView::placeInTabOrderBefore(const QWidget *next)
{
    QWidget *before = next->previousInFocusChain();
    while (before != next && !(before->focusPolicy() & Qt::TabFocus))
        before = before->previousInFocusChain();
    for (QWidget *stop : { static_cast<QWidget *>(list), static_cast<QWidget *>(run), static_cast<QWidget *>(copy) }) {
        setTabOrder(before, stop);
        before = stop;
    }
}

void KirvLoginTestView::setProblem(const QString &newProblem)
{
    problem = newProblem;
    updateButtons();
}

void KirvLoginTestView::startOrCancel()
{
    if (current && current->isRunning())
        cancel();
    else
        start();
}

void KirvLoginTestView::start()
{
    if (!problem.isEmpty())
        return;
    list->clear();
    current = std::make_unique<KirvLoginTest>(protocol, login());
    connect(current.get(), &KirvLoginTest::changed, this, &KirvLoginTestView::refresh);
    connect(current.get(), &KirvLoginTest::finished, this, &KirvLoginTestView::showResult);
    setVisible(true);
    copy->show();
    current->start();
    refresh();
}

void KirvLoginTestView::cancel()
{
    if (current)
        current->cancel();
}

void KirvLoginTestView::refresh()
{
    const QList<KirvLoginTest::Step> steps = current->steps();
    for (int row = 0; row < steps.size(); ++row)
        show(row, steps.at(row));
    updateButtons();
    fitHeight();
    list->scrollToBottom();
    Q_EMIT stepsChanged();
}

void KirvLoginTestView::show(int row, const KirvLoginTest::Step &step)
{
    if (row >= list->count())
        new QListWidgetItem(list);
    QListWidgetItem *item = list->item(row);
    const QString text = kirvVisibleText(KirvLoginTest::lineOf(step));
    const bool isOver = step.outcome != KirvLoginStep::Running;
    //: %1 = number of milliseconds
    const QString time = isOver ? tr("%1 ms").arg(step.milliseconds) : QString();
    item->setText(text);
    item->setData(KirvEventDelegate::OutcomeRole, int(step.outcome));
    item->setData(KirvEventDelegate::EndRole, time);
    //: %1 = what became of a step ("done", "failed"), %2 = the step
    const QString spoken = tr("%1: %2").arg(KirvLoginTest::outcomeOf(step), text);
    //: %1 = a step and what became of it, %2 = how long it took
    item->setData(Qt::AccessibleTextRole, time.isEmpty() ? spoken : tr("%1, %2").arg(spoken, time));
}

/// A failure is said by its step.
void KirvLoginTestView::showResult()
{
    const QString result = kirvVisibleText(current->result());
    const QList<KirvLoginTest::Step> steps = current->steps();
    const bool isReported = std::any_of(steps.begin(), steps.end(),
                                        [](const KirvLoginTest::Step &step) { return !step.problem.isEmpty(); });
    if (!isReported) {
        auto *item = new QListWidgetItem(result, list);
        const bool works = current->state() == KirvLoginTest::Succeeded;
        item->setData(KirvEventDelegate::OutcomeRole, int(works ? KirvLoginStep::Done : KirvLoginStep::Failed));
        item->setData(Qt::AccessibleTextRole, result);
    }
    list->setCurrentRow(list->count() - 1, QItemSelectionModel::NoUpdate);
    updateButtons();
    fitHeight();
    list->scrollToBottom();
    list->setAccessibleDescription(result);
    QAccessibleEvent alert(list, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    Q_EMIT stepsChanged();
}

void KirvLoginTestView::fitHeight()
{
    const int line = fontMetrics().lineSpacing();
    const int frame = 2 * list->frameWidth();
    int rows = 0;
    for (int row = 0; row < list->count(); ++row)
        rows += list->sizeHintForRow(row);
    list->setMinimumHeight(fewestLines * line + frame);
    setMaximumHeight(std::max(fewestLines * line, std::min(rows, mostLines * line)) + frame);
    setMinimumHeight(list->minimumHeight());
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    updateGeometry();
}

QSize KirvLoginTestView::sizeHint() const
{
    return { QWidget::sizeHint().width(), maximumHeight() };
}

void KirvLoginTestView::updateButtons()
{
    const bool isRunning = current && current->isRunning();
    QString text = tr("Test Log-In");
    if (isRunning)
        text = tr("Cancel Test");
    else if (current)
        text = tr("Test Again");
    const int place = runKey.isNull() ? -1 : int(text.indexOf(runKey, 0, Qt::CaseInsensitive));
    if (place >= 0)
        text.insert(place, QLatin1Char('&'));
    run->setText(text);
    run->setEnabled(isRunning || problem.isEmpty());
    const QString why = isRunning ? QString() : problem;
    run->setToolTip(why.isEmpty() ? tr("Logs in once with what is here, and shows each step. Nothing is stored.")
                                  : why);
    run->setAccessibleDescription(why);
}

void KirvLoginTestView::copyReport() const
{
    if (current)
        QApplication::clipboard()->setText(KirvReport::ofProgram() + QLatin1Char('\n')
                                           + KirvReport::ofProtocol(protocol) + QLatin1Char('\n') + current->report());
}

void KirvLoginTestView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if ((event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) && copy)
        fitHeight();
}

/// The rows have other heights; the last one says what was wrong.
void KirvLoginTestView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QMetaObject::invokeMethod(
        this,
        [this] {
            fitHeight();
            list->scrollToBottom();
        },
        Qt::QueuedConnection);
}
