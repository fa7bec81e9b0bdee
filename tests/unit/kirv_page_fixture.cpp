// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/unit/kirv_page_fixture.h"

#include "edit_account/kirv_edit_account_dialog.h"
#include "tests/support/kirv_patience.h"

#include <QStyle>
#include <QStyleOptionViewItem>
#include <QtTest>

KirvPageFixture::KirvPageFixture()
    : xmpp(host.addProtocol(QStringLiteral("XMPP")))
    , irc(host.addProtocol(QStringLiteral("IRC")))
{
}

KirvPageFixture::~KirvPageFixture()
{
    if (thePage)
        delete thePage->getAccEdit();
    delete thePage;
    letGo();
    qDeleteAll(QApplication::topLevelWidgets());
}

KirvAccountsTab *KirvPageFixture::page()
{
    if (!thePage)
        thePage = KirvAccountsTab::getInstance();
    return thePage;
}

void KirvPageFixture::showPage()
{
    page()->resize(640, 480);
    page()->show();
    page()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page(), kirvPatience));
}

void KirvPageFixture::showFilledPage()
{
    page()->readProtocolAccounts(QStringLiteral("XMPP"));
    page()->readProtocolAccounts(QStringLiteral("IRC"));
    showPage();
    host.forgetCalls();
}

QTreeWidgetItem *KirvPageFixture::row(const QString &id, const QString &protocol)
{
    for (int i = 0; i < list()->topLevelItemCount(); ++i) {
        QTreeWidgetItem *candidate = list()->topLevelItem(i);
        if (candidate->text(2) == id && candidate->text(1) == protocol)
            return candidate;
    }
    return nullptr;
}

bool KirvPageFixture::isChecked(const QString &id, const QString &protocol)
{
    return row(id, protocol)->checkState(0) == Qt::Checked;
}

void KirvPageFixture::clickRow(QTreeWidgetItem *row, int column)
{
    const QRect cell = list()->visualItemRect(row);
    const int x = list()->columnViewportPosition(column) + list()->columnWidth(column) / 2;
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, QPoint(x, cell.center().y()));
}

void KirvPageFixture::clickCheckBox(QTreeWidgetItem *row)
{
    QStyleOptionViewItem option;
    option.initFrom(list());
    option.rect = list()->visualItemRect(row);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QRect box = list()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, box.center());
}

void KirvPageFixture::selectAllOrNone(bool all)
{
    list()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    clickRow(row("alice"));
    if (all)
        list()->selectAll();
    else
        list()->clearSelection();
}

QStringList KirvPageFixture::offered()
{
    QStringList entries;
    for (int i = 0; i < selector()->count(); ++i) {
        const auto *account = static_cast<KirvRecordingAccount *>(
            static_cast<KirvAccountConnection *>(selector()->itemData(i).value<void *>()));
        const QString star = i == selector()->currentIndex() ? QStringLiteral("*") : QString();
        entries.append(star + (account ? account->written() : QStringLiteral("none")));
    }
    return entries;
}

void KirvPageFixture::letGo()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}
