// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_provider_completer.h"

#include "client/kirv_plain_text.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QStandardItemModel>

namespace {

QString descriptionOf(const KirvProvider &provider)
{
    const QString date = QLocale().toString(provider.date, QLocale::ShortFormat);
    const QString name = provider.name.isEmpty() ? provider.domain
                                                 //: %1 = domain of a server, %2 = its name for people
                                                 : KirvProviderList::tr("%1, %2").arg(provider.domain, provider.name);
    //: %1 = a server, %2 = who says that it can be used, as a web address, %3 = date
    return kirvPlainSentence(KirvProviderList::tr("%1 (not verified; %2, %3)")
                                 .arg(kirvPlainName(name), kirvPlainName(provider.source), date));
}

/// Shows the providers. No shortcut: that would take the key also while they are shown.
class DownKey : public QObject {
public:
    DownKey(QLineEdit *edit, QCompleter *completer)
        : QObject(completer)
        , edit(edit)
        , completer(completer)
    {
        edit->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isDown = event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Down;
        if (!isDown || completer->popup()->isVisible())
            return QObject::eventFilter(watched, event);
        completer->setCompletionPrefix(edit->text());
        if (completer->completionCount() == 0)
            completer->setCompletionPrefix(QString());
        completer->complete();
        return true;
    }

private:
    QLineEdit *edit;
    QCompleter *completer;
};

} // namespace

void kirvOfferProviders(QLineEdit *edit, const QList<KirvProvider> &providers)
{
    auto *model = new QStandardItemModel(edit);
    for (const KirvProvider &provider : providers) {
        auto *item = new QStandardItem;
        item->setData(descriptionOf(provider), Qt::DisplayRole);
        item->setData(provider.domain, Qt::UserRole); // a standard item has one text for showing and editing
        model->appendRow(item);
    }
    auto *completer = new QCompleter(model, edit);
    completer->setCompletionRole(Qt::UserRole);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->popup()->setObjectName(QStringLiteral("ServerAssistant_Providers"));
    completer->popup()->setAccessibleName(KirvProviderList::tr("Providers"));
    edit->setCompleter(completer);
    edit->setAccessibleDescription(KirvProviderList::tr("The Down key shows known providers."));
    new DownKey(edit, completer);
}
