// SPDX-License-Identifier: LGPL-2.1-or-later
// Checks the core of this client against what the page relies on.
#include "contract_check/kirv_contract_check.h"
#include "memory_host.h"

#include <QApplication>
#include <QtTest>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    MemoryHost host(QStringLiteral(LAYOUTS));
    KirvContractCheck check(QStringLiteral("Memory"), QStringLiteral("one"), QStringLiteral("two"));
    return QTest::qExec(&check, argc, argv);
}
