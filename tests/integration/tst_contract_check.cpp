// SPDX-License-Identifier: LGPL-2.1-or-later
// What embedding clients check their cores with, over ours.
#include "contract_check/kirv_contract_check.h"
#include "core/ui/kirv_layout_catalog.h"
#include "tests/integration/kirv_accounts_fixture.h"

#include <QApplication>
#include <QtTest>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    KirvAccountsFixture core;
    KirvLayoutCatalog layouts;
    auto *protocol = new KirvFakeProtocol(QStringLiteral("Checked"));
    if (!core.isReady() || !core.plugins->addProtocol(protocol))
        return 1;
    core.accounts->protocolLoaded(protocol);
    KirvContractCheck check(protocol->getName(), QStringLiteral("one"), QStringLiteral("two"));
    return QTest::qExec(&check, argc, argv);
}
