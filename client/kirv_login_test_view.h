// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_TEST_VIEW_H
#define KIRV_LOGIN_TEST_VIEW_H

#include "core/accounts/kirv_login_test.h"

#include <QWidget>
#include <functional>
#include <memory>

class KirvProtocolBase;
class QListWidget;
class QPushButton;

/// Tests a log-in and shows its steps as they happen. It is hidden until the first test. The two buttons that belong to
/// it stand where their window puts them.
class KirvLoginTestView : public QWidget {
    Q_OBJECT

public:
    /// \a protocol is not owned; cancel() comes before it goes. \a login is called for what to log in with when a test
    /// begins. The names of the objects begin with \a prefix.
    KirvLoginTestView(KirvProtocolBase &protocol, std::function<KirvLogin()> login, const QString &prefix,
                      QWidget *parent);
    ~KirvLoginTestView() override;

    /// Starts a test, cancels the one that runs, or starts another one.
    QPushButton *runButton() const { return run; }
    /// Copies the report; hidden before the first test has begun.
    QPushButton *copyButton() const { return copy; }
    /// To be called when the buttons are in their window: gives them mnemonics that the window has not.
    void chooseMnemonics();
    /// The same: Tab leads to the steps, then to the buttons, and then to \a next.
    void placeInTabOrderBefore(const QWidget *next);

    /// Why no test can be started now, a sentence; empty when it can.
    void setProblem(const QString &problem);
    void start();
    /// Ends the test that runs, and leaves no connection behind.
    void cancel();
    /// Null before the first test.
    const KirvLoginTest *test() const { return current.get(); }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The steps may need another height now.
    void stepsChanged();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void startOrCancel();
    void show(int row, const KirvLoginTest::Step &step);
    void showResult();
    void refresh();
    void fitHeight();
    void updateButtons();
    void copyReport() const;

    KirvProtocolBase &protocol;
    const std::function<KirvLogin()> login;
    QListWidget *list;
    QPushButton *run;
    QPushButton *copy;
    QString problem;
    QChar runKey; ///< the mnemonic of the button, whose text changes
    std::unique_ptr<KirvLoginTest> current;
};

#endif
