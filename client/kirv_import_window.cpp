// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_import_window.h"

#include "client/kirv_account_check_list.h"
#include "client/kirv_button_flow.h"
#include "client/kirv_left_out.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_secret_texts.h"
#include "client/kirv_wrapped_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/moving/kirv_moving_file.h"
#include "core/ui/kirv_form_area.h"
#include "core/ui/kirv_length_limit.h"
#include "core/ui/kirv_reveal_button.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

const int comfortableImportWidth = 75; // in average characters
const int mostSentences = 3; // in a message

KirvWrappedText *createText(const char *name, const QString &accessibleName, QWidget *parent)
{
    auto *text = new KirvWrappedText(parent);
    text->setObjectName(QLatin1String(name));
    text->setAccessibleName(accessibleName);
    return text;
}

} // namespace

KirvImportWindow::KirvImportWindow(const Environment &environment, QWidget *parent)
    : KirvMoveDialog(QStringLiteral("ImportAccounts"), tr("Import Accounts"), parent)
    , environment(environment)
{
    connect(&environment.accounts.secrets(), &KirvSecretKeeper::changed, this, [this] {
        if (state == Listing)
            showText(listingText());
    });
    QWidget *content = createContent();
    build(content, createButtons(), comfortableImportWidth);
    // What is listed depends on which accounts there are.
    connect(&environment.accounts, &KirvAccountCollection::accountAdded, this, &KirvImportWindow::listLater);
    connect(&environment.accounts, &KirvAccountCollection::accountRemoved, this, &KirvImportWindow::listLater);
    setState(Reading);
    grow();
}

QWidget *KirvImportWindow::createContent()
{
    auto *content = new QWidget(area);
    text = createText("ImportAccounts_Text", tr("About the file"), content);
    passPhrase = createPassPhrase();
    rows = new KirvAccountCheckList(QStringLiteral("ImportAccounts"), { tr("What happens") }, content);
    connect(rows, &KirvAccountCheckList::changed, this, &KirvImportWindow::refreshRows);
    problem = createText("ImportAccounts_Problem", tr("Problem"), content);
    problem->hide();
    leftOut = createText("ImportAccounts_LeftOut", tr("Left out"), content);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text);
    column->addWidget(passPhrase);
    column->addWidget(problem);
    column->addWidget(rows, 1);
    column->addWidget(leftOut);
    column->addStretch(); // while there is no list
    return content;
}

QWidget *KirvImportWindow::createPassPhrase()
{
    auto *place = new QWidget(area);
    place->setObjectName(QStringLiteral("ImportAccounts_PassPhrasePlace"));
    passPhraseLine = new QLineEdit(place);
    passPhraseLine->setObjectName(QStringLiteral("ImportAccounts_PassPhrase"));
    kirvLimitLength(passPhraseLine);
    auto *label = new QLabel(tr("&Pass phrase:"), place);
    label->setObjectName(QStringLiteral("ImportAccounts_PassPhraseLabel"));
    label->setBuddy(passPhraseLine);
    auto *form = new QFormLayout(place);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(label, passPhraseLine);
    KirvRevealButton *reveal = KirvRevealButton::addBeside(passPhraseLine);
    reveal->setObjectName(QStringLiteral("ImportAccounts_PassPhrase_Reveal"));
    connect(passPhraseLine, &QLineEdit::textChanged, this, &KirvImportWindow::refreshButtons);
    return place;
}

QWidget *KirvImportWindow::createButtons()
{
    otherFileButton = new QPushButton(tr("Choose Another &File…"), this);
    otherFileButton->setObjectName(QStringLiteral("ImportAccounts_OtherFile"));
    connect(otherFileButton, &QPushButton::clicked, this, &KirvImportWindow::chooseFile);
    withoutButton = new QPushButton(tr("&Without Passwords"), this);
    withoutButton->setObjectName(QStringLiteral("ImportAccounts_WithoutPasswords"));
    withoutButton->setToolTip(tr("Lists the accounts; their passwords have to be entered here."));
    connect(withoutButton, &QPushButton::clicked, this, [this] { readAccounts(QString()); });
    actionButton = new QPushButton(this);
    actionButton->setObjectName(QStringLiteral("ImportAccounts_Action"));
    connect(actionButton, &QPushButton::clicked, this, &KirvImportWindow::goOn);
    box = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    box->setObjectName(QStringLiteral("ImportAccounts_Buttons"));
    box->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("ImportAccounts_Cancel"));
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *buttons = new KirvButtonFlow(this);
    buttons->addAtBeginning(otherFileButton);
    buttons->addAtEnd(withoutButton);
    buttons->addAtEnd(actionButton);
    buttons->addAtEnd(box);
    return buttons;
}

QFileDialog *KirvImportWindow::createFileDialog(QWidget *parent)
{
    auto *dialog = new QFileDialog(parent, tr("Import Accounts"), QDir::homePath());
    dialog->setObjectName(QStringLiteral("ImportAccounts_File"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({ tr("Exported accounts, accounts of Pidgin (*.json *.xml)"), tr("All files (*)") });
    return dialog;
}

void KirvImportWindow::chooseFile()
{
    QFileDialog *dialog = createFileDialog(this);
    connect(dialog, &QFileDialog::fileSelected, this, &KirvImportWindow::read);
    dialog->open();
}

void KirvImportWindow::read(const QString &newPath)
{
    path = newPath;
    bytes.clear();
    passPhraseLine->clear();
    problem->hide();
    //: %1 = path of a file
    showText(tr("The file %1 is being read…").arg(kirvPlainName(QDir::toNativeSeparators(path))));
    setState(Reading);
    job.run<Found>([newPath](const KirvBackgroundJob::Flag &) { return readFile(newPath); },
                   [this](const Found &found) { take(found); });
}

/// In the thread.
KirvImportWindow::Found KirvImportWindow::readFile(const QString &path)
{
    Found found;
    const KirvMovingFile::Content content = KirvMovingFile::read(path);
    found.bytes = content.bytes;
    found.result.problem = content.problem;
    found.needsPassPhrase = content.problem.isEmpty() && KirvAccountFile::hasSecrets(content.bytes);
    if (content.problem.isEmpty() && !found.needsPassPhrase)
        found.result = KirvMovingFile::accounts(content.bytes, QString());
    return found;
}

/// Takes the accounts out of what was read; without a pass phrase, without passwords.
void KirvImportWindow::readAccounts(const QString &phrase)
{
    problem->hide();
    setState(Reading);
    job.run<Found>(
        [bytes = bytes, phrase](const KirvBackgroundJob::Flag &) {
            Found found;
            found.result = KirvMovingFile::accounts(bytes, phrase);
            return found;
        },
        [this](const Found &found) { take(found); });
}

void KirvImportWindow::take(const Found &found)
{
    if (!found.bytes.isEmpty())
        bytes = found.bytes;
    if (found.needsPassPhrase || found.result.wrongPassPhrase) {
        //: %1 = path of a file
        showText(tr("The file %1 contains passwords. Enter the pass phrase with which they are encrypted.")
                     .arg(shownPath()));
        setState(NeedsPassPhrase);
        showProblem(found.result.problem);
    } else if (!found.result.problem.isEmpty()) {
        //: %1 = path of a file
        showText(tr("The accounts in the file %1 cannot be imported.").arg(shownPath()));
        setState(Unreadable);
        showProblem(found.result.problem);
    } else {
        passPhraseLine->clear();
        moved = found.result.accounts;
        list();
        widen(rows->comfortableWidth());
    }
}

QString KirvImportWindow::shownPath() const
{
    return kirvPlainName(QDir::toNativeSeparators(path));
}

/// What is above the list. Nothing is said about the place of the passwords while a keyring takes them.
QString KirvImportWindow::listingText() const
{
    if (moved.accounts.isEmpty()) {
        //: %1 = path of a file
        return tr("The file %1 contains no accounts that can be imported.").arg(shownPath());
    }
    //: %1 = path of a file
    const QString sentence = tr("The file %1 contains these accounts. Nothing is changed before you import them, and "
                                "the import can be undone.")
                                 .arg(shownPath());
    const auto hasSecrets = [](const KirvMovedAccount &account) {
        const QSet<QString> fields = kirvSecretFieldsOf(account.record);
        return std::any_of(fields.begin(), fields.end(),
                           [&account](const QString &field) { return !kirvSecretOf(account.record, field).isEmpty(); });
    };
    const KirvSecretTexts secrets(environment.accounts.secrets());
    const bool isSaid =
        secrets.isRememberingUnsafe() && std::any_of(moved.accounts.begin(), moved.accounts.end(), hasSecrets);
    return isSaid ? sentence + QLatin1Char(' ') + secrets.state() : sentence;
}

void KirvImportWindow::showText(const QString &newText)
{
    text->showText(newText);
}

void KirvImportWindow::showProblem(const QString &newText)
{
    problem->showText(kirvPlainSentence(newText));
    problem->setVisible(!newText.isEmpty());
    if (!newText.isEmpty()) {
        QAccessibleEvent news(problem, QAccessible::Alert);
        QAccessible::updateAccessibility(&news);
        growLater();
    }
}

void KirvImportWindow::setState(State newState)
{
    state = newState;
    if (state != Listing)
        plan.reset();
    const bool isAboutPassPhrase = state == NeedsPassPhrase || (state == Reading && passPhrase->isVisibleTo(this));
    passPhrase->setVisible(isAboutPassPhrase && !bytes.isEmpty());
    passPhrase->setEnabled(state == NeedsPassPhrase);
    rows->setVisible(state == Listing && !moved.accounts.isEmpty());
    leftOut->setVisible(state == Listing && !leftOut->toPlainText().isEmpty());
    progress->setVisible(state == Reading);
    refreshButtons();
    if (state == NeedsPassPhrase) {
        passPhraseLine->setFocus();
        passPhraseLine->selectAll();
    } else if (rows->isVisibleTo(this)) {
        rows->focusList();
    } else {
        box->button(QDialogButtonBox::Cancel)->setFocus();
    }
    growLater();
}

void KirvImportWindow::refreshButtons()
{
    otherFileButton->setEnabled(state != Reading);
    withoutButton->setVisible(state == NeedsPassPhrase);
    const bool isListing = state == Listing && !moved.accounts.isEmpty();
    actionButton->setVisible(state == NeedsPassPhrase || isListing);
    const int count = plan ? plan->takenCount() : 0;
    actionButton->setText(state == NeedsPassPhrase ? tr("&Continue") : tr("&Import %n Accounts", nullptr, count));
    actionButton->setEnabled(state == NeedsPassPhrase ? !passPhraseLine->text().isEmpty() : count > 0);
    if (actionButton->isVisibleTo(this))
        actionButton->setDefault(true);
}

void KirvImportWindow::goOn()
{
    if (state == NeedsPassPhrase)
        readAccounts(passPhraseLine->text());
    else if (state == Listing)
        import();
}

/// Lists what would come, with what the user has chosen already.
void KirvImportWindow::list()
{
    QHash<KirvAccountKey, bool> chosen;
    if (plan) {
        const QList<KirvAccountImport::Row> before = plan->rows();
        for (const KirvAccountImport::Row &row : before) {
            if (row.problem.isEmpty()) // of two with one login the other one
                chosen.insert(row.key, row.isTaken);
        }
    }
    plan =
        std::make_unique<KirvAccountImport>(environment.accounts, environment.mainAccount, environment.history, moved);
    QList<KirvAccountCheckList::Row> shown;
    QList<KirvAccountImport::Row> planned = plan->rows();
    for (int i = 0; i < planned.size(); ++i) {
        KirvAccountImport::Row &row = planned[i];
        if (row.problem.isEmpty() && chosen.contains(row.key)) {
            row.isTaken = chosen.value(row.key);
            plan->setTaken(i, row.isTaken);
        }
        KirvAccountCheckList::Row line { row.key, row.name, row.isTaken, !row.problem.isEmpty(), { stateOf(row) } };
        if (row.problem.isEmpty()) {
            row.isTaken = !row.isTaken;
            line.later = stateOf(row);
        }
        shown << line;
    }
    rows->setRows(shown);
    showText(listingText());
    leftOut->showText(leftOutText());
    setState(Listing);
}

/// From the event loop: many accounts may come or go at once.
void KirvImportWindow::listLater()
{
    if (!plan || isImporting || std::exchange(isRefreshDue, true))
        return;
    const auto refreshList = [this] {
        isRefreshDue = false;
        if (plan)
            list();
    };
    QMetaObject::invokeMethod(this, refreshList, Qt::QueuedConnection);
}

/// The user has checked rows or cleared them.
void KirvImportWindow::refreshRows()
{
    problem->hide();
    QList<KirvAccountImport::Row> planned = plan->rows();
    for (int i = 0; i < planned.size(); ++i) {
        KirvAccountImport::Row &row = planned[i];
        if (row.isTaken == rows->isChecked(i))
            continue;
        row.isTaken = rows->isChecked(i);
        plan->setTaken(i, row.isTaken);
        rows->setText(i, 0, stateOf(row));
    }
    rows->fitColumns();
    refreshButtons();
}

QString KirvImportWindow::stateOf(const KirvAccountImport::Row &row) const
{
    if (!row.problem.isEmpty())
        return kirvPlainSentence(row.problem);
    if (row.isNew())
        return row.isTaken ? tr("New") : tr("New, will be left out");
    if (row.isTaken && row.losesSecrets)
        return stateOfLosing(row);
    if (row.existing == row.key)
        return row.isTaken ? tr("Exists, will be replaced") : tr("Exists, will be kept");
    const QString here = kirvPlainName(row.existing.id);
    //: %1 = the login of an account, which is written otherwise in the file
    return row.isTaken ? tr("Exists as %1, will be replaced").arg(here)
                       //: %1 = the login of an account, which is written otherwise in the file
                       : tr("Exists as %1, will be kept").arg(here);
}

QString KirvImportWindow::stateOfLosing(const KirvAccountImport::Row &row)
{
    if (row.existing == row.key)
        return tr("Exists, will be replaced; its passwords must be entered again");
    //: %1 = the login of an account, which is written otherwise in the file
    return tr("Exists as %1, will be replaced; its passwords must be entered again")
        .arg(kirvPlainName(row.existing.id));
}

/// Also of the rows that cannot be taken, whose reasons may be longer than their column.
QString KirvImportWindow::leftOutText() const
{
    QStringList sentences;
    const QList<KirvAccountImport::Row> planned = plan->rows();
    for (const KirvAccountImport::Row &row : planned) {
        if (!row.problem.isEmpty()) {
            //: %1 = the login of an account, %2 = a sentence about it
            sentences << tr("%1: %2").arg(row.key.id, row.problem);
        }
    }
    return kirvLeftOutText(tr("The following is not imported:"), sentences + plan->leftOut());
}

void KirvImportWindow::import()
{
    QList<KirvAccountKey> taken;
    const QList<KirvAccountImport::Row> planned = plan->rows();
    for (const KirvAccountImport::Row &row : planned) {
        if (row.isTaken)
            taken << (row.isNew() ? row.key : row.existing);
    }
    const int known = int(plan->leftOut().size());
    QString reason;
    isImporting = true;
    const bool isDone = plan->apply(&reason);
    isImporting = false;
    if (!isDone) {
        list();
        showProblem(reason);
        return;
    }
    const QStringList leftOutSince = plan->leftOut().mid(known);
    accept();
    Q_EMIT imported(taken);
    if (!leftOutSince.isEmpty())
        Q_EMIT partLeftOut(leftOutSince.mid(0, mostSentences).join(QLatin1Char(' ')));
}
