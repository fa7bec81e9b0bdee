// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BUTTON_FLOW_H
#define KIRV_BUTTON_FLOW_H

#include <QLayout>
#include <QList>

/// Lays buttons out in a line at the end of its place, and in more lines where it is too narrow for all of them.
class KirvButtonFlow : public QLayout {
    Q_OBJECT

public:
    explicit KirvButtonFlow(QWidget *parent = nullptr);
    ~KirvButtonFlow() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    /// As wide as the widest button.
    QSize minimumSize() const override;
    /// All buttons in one line.
    QSize sizeHint() const override;
    void setGeometry(const QRect &area) override;

private:
    /// The buttons that are shown, line by line.
    QList<QList<QLayoutItem *>> lines(int width) const;
    int gap() const;
    int widthOf(const QList<QLayoutItem *> &line) const;
    static int heightOf(const QList<QLayoutItem *> &line);

    QList<QLayoutItem *> items;
};

#endif
