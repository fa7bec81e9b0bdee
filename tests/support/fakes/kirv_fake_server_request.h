// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_SERVER_REQUEST_H
#define KIRV_FAKE_SERVER_REQUEST_H

#include "core/protocol/kirv_server_request.h"

#include <QStringList>

/// A dialogue of steps that a test gives. The server accepts each step at once, or holds it while isHeld is set, until
/// serverAccepts() or serverRefuses(). A test may also emit the signals itself.
class KirvFakeServerRequest : public KirvServerRequest {
    Q_OBJECT

public:
    /// \a steps has at least one step; \a result is what submitting the last one achieves.
    explicit KirvFakeServerRequest(const QList<Step> &steps = { Step() }, const Result &result = Result(),
                                   QObject *parent = nullptr);

    QString title() const override { return QStringLiteral("Fake Request"); }
    void start() override;
    /// Every field has the name of the configuration as its text.
    QList<KirvField> fieldsOf(const QString &name, const QList<KirvField> &filled) const override;
    void submit(const QList<KirvField> &filled) override;
    void goBack(const QList<KirvField> &filled) override;
    bool cancel() override;

    /// Whether a reply of the server is awaited.
    bool isUnderWay() const { return isSubmitted; }
    void serverAccepts();
    void serverRefuses(const KirvFailure &failure);
    /// Ends the dialogue with another result than the one that it was made with.
    void succeedWith(Result::Kind kind, const KirvLogin &account = KirvLogin(), const QString &password = QString());

    bool isHeld = false;
    bool canBeCancelled = true; ///< also while the server holds a step
    QStringList calls; ///< "start", "submit", "back" and "cancel", in order
    QList<KirvField> filled; ///< of the latest "submit" or "back"

private:
    void showStep(int index);

    const QList<Step> steps;
    const Result result;
    int index = 0;
    bool isSubmitted = false; ///< and without a reply
};

#endif
