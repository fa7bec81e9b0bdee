// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_QUESTION_H
#define KIRV_QUESTION_H

#include "tests/unit/kirv_page_fixture.h"

#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

/// The ways in which a user answers a question.
enum class KirvAnswer { Yes, No, Close, Escape };
Q_DECLARE_METATYPE(KirvAnswer)

/// Answers the question that is open.
inline void kirvAnswer(KirvAnswer answer)
{
    auto *box = kirvVisibleWindow<QMessageBox>();
    QVERIFY(box);
    switch (answer) {
    case KirvAnswer::Yes:
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        break;
    case KirvAnswer::No:
        QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        break;
    case KirvAnswer::Close:
        box->close();
        break;
    case KirvAnswer::Escape:
        QTest::keyClick(box, Qt::Key_Escape);
        break;
    }
}

/// The form that all questions of the page share.
inline void kirvVerifyQuestion(KirvPageFixture &fixture, const QString &title, const QString &text)
{
    auto *box = kirvVisibleWindow<QMessageBox>();
    QVERIFY(box);
    QCOMPARE(box->windowTitle(), title);
    QCOMPARE(box->text(), text);
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QCOMPARE(box->icon(), QMessageBox::Question);
    QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    QVERIFY(!box->defaultButton());
    QCOMPARE(box->parent(), fixture.page());
    QCOMPARE(box->windowModality(), Qt::WindowModal);
    QVERIFY(box->testAttribute(Qt::WA_DeleteOnClose));

    // Qt adds flags of its own to those given.
    QMessageBox likewise(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, fixture.page(),
                         Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    likewise.setWindowModality(Qt::WindowModal);
    likewise.show();
    QCOMPARE(box->windowFlags(), likewise.windowFlags());
}

#endif
