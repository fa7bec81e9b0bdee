// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_login_line.h"

#include "client/kirv_account_link.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/ui/kirv_form_place.h"
#include "core/ui/kirv_hint_line.h"
#include "core/values/kirv_visible_text.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

/// A hint in the row below \a edit; null where that does not stand in a form.
KirvHintLine *addHintBelow(QLineEdit *edit)
{
    KirvFormPlace place(edit);
    if (!place.isValid())
        return nullptr;
    auto *hint = new KirvHintLine(edit->objectName() + QStringLiteral("_Hint"), edit->parentWidget());
    hint->keepPlace(); // what is below must not move while the user types
    auto *cell = new QVBoxLayout;
    place.replaceBy(cell);
    cell->addWidget(edit);
    cell->addWidget(hint);
    return hint;
}

} // namespace

KirvLoginLine::KirvLoginLine(QLineEdit *edit, const QString &protocol, const QString &example,
                             const KirvAccountCollection &accounts)
    : QObject(edit)
    , edit(edit)
    , protocol(protocol)
    , accounts(accounts)
    , hint(addHintBelow(edit))
{
    edit->setPlaceholderText(example);
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, &KirvLoginLine::check);
    // The line holds what it refuses until it returns.
    connect(edit, &QLineEdit::inputRejected, this, [this, edit] {
        const QString text = edit->text();
        QMetaObject::invokeMethod(
            this, [this, text] { explainRefusal(text); }, Qt::QueuedConnection);
    });
    check();
}

void KirvLoginLine::check()
{
    const QString login = edit->text();
    if (!takeLink(login))
        show(login.isEmpty() ? QString() : accounts.problemWithNew({ login, protocol }));
}

bool KirvLoginLine::takeLink(const QString &text)
{
    const KirvAccountLink link = KirvAccountLink::fromText(text.trimmed());
    if (!isOurs(link) || link.login == text)
        return false;
    edit->setText(link.login);
    return true;
}

bool KirvLoginLine::isOurs(const KirvAccountLink &link) const
{
    return link.protocol == protocol && !link.login.isEmpty();
}

/// A link that is dropped takes the place of what is there; the line itself would insert it, and takes no address.
bool KirvLoginLine::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (watched == edit && (isDrop || event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove)) {
        auto *drop = static_cast<QDropEvent *>(event);
        const KirvAccountLink link = KirvAccountLink::fromMimeData(drop->mimeData());
        if (isOurs(link)) {
            drop->setDropAction(Qt::CopyAction);
            drop->accept();
            if (isDrop)
                edit->setText(link.login);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

/// The line takes only what can become a login, and would refuse anything else in silence. \a text is what it would
/// hold.
void KirvLoginLine::explainRefusal(const QString &text)
{
    if (text.size() >= edit->maxLength() || takeLink(text))
        return;
    const QString problem = accounts.problemWithNew({ text, protocol });
    show(problem.isEmpty() ? tr("A login cannot contain this.") : problem);
}

void KirvLoginLine::show(const QString &problem)
{
    if (problem == shown)
        return;
    shown = problem;
    const QString visible = kirvVisibleText(problem);
    edit->setAccessibleDescription(visible);
    if (hint)
        hint->setText(visible);
    Q_EMIT problemChanged();
}
