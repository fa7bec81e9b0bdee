// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_LINE_H
#define KIRV_LOGIN_LINE_H

#include <QObject>
#include <QString>

class KirvAccountCollection;
class KirvHintLine;
class QLineEdit;
struct KirvAccountLink;

/// Looks after the login of a new account while it is typed: says below it what is wrong with it and what it did not
/// take, and takes a link such as xmpp:anna\@example.org for the login in it. Owned by the line.
class KirvLoginLine : public QObject {
    Q_OBJECT

public:
    /// \a example is shown while the line is empty. \a accounts is not owned and outlives the line.
    KirvLoginLine(QLineEdit *edit, const QString &protocol, const QString &example,
                  const KirvAccountCollection &accounts);

    /// What is wrong, a sentence; empty when nothing is, and while nothing is typed.
    QString problem() const { return shown; }
    /// Says \a reason until the login is changed.
    void showRefusal(const QString &reason) { show(reason); }

Q_SIGNALS:
    void problemChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void check();
    bool takeLink(const QString &text);
    bool isOurs(const KirvAccountLink &link) const;
    void explainRefusal(const QString &text);
    void show(const QString &problem);

    QLineEdit *const edit;
    const QString protocol;
    const KirvAccountCollection &accounts;
    KirvHintLine *hint = nullptr; ///< null where the layout has no place for it
    QString shown;
};

#endif
