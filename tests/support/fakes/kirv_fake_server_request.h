// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_SERVER_REQUEST_H
#define KIRV_FAKE_SERVER_REQUEST_H

#include "core/protocol/kirv_server_request.h"

/// A dialogue of steps that a test gives. The server accepts each step at once, fails it while failure is set, or
/// holds it while isHeld is set, until serverAccepts() or serverRefuses().
class KirvFakeServerRequest : public KirvServerRequest {
    Q_OBJECT

public:
    /// \a steps has at least one step; \a result is what submitting the last one achieves.
    KirvFakeServerRequest(const QList<Step> &steps, const Result &result, QObject *parent = nullptr);

    QString title() const override { return text; }
    void start() override;
    QList<KirvField> fieldsOf(const QString &name, const QList<KirvField> &filled) const override;
    void submit(const QList<KirvField> &filled) override;
    void goBack(const QList<KirvField> &filled) override;
    bool cancel() override;

    /// Whether a reply of the server is awaited.
    bool isUnderWay() const { return next >= 0; }
    void serverAccepts();
    void serverRefuses(const KirvFailure &failure);

    QString text = QStringLiteral("Fake Request"); ///< the title
    QList<KirvField> configurationFields; ///< of each configuration; empty: what is filled in stays
    KirvFailure failure;
    bool isHeld = false;
    bool isCommitted = false; ///< cancel() cannot end what is under way
    QList<QList<KirvField>> submitted;
    int cancelled = 0;

private:
    void reply();
    void showStep(int index);

    const QList<Step> steps;
    const Result result;
    int index = -1;
    int next = -1; ///< what an accepted step leads to; -1: nothing is under way
};

#endif
