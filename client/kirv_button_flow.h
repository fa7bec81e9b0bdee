// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BUTTON_FLOW_H
#define KIRV_BUTTON_FLOW_H

#include <QList>
#include <QWidget>

/// A row of buttons, some at its beginning and the others at its end, which becomes several rows where it is too
/// narrow. Its height depends on its width and on what it shows.
class KirvButtonFlow : public QWidget {
    Q_OBJECT

public:
    explicit KirvButtonFlow(QWidget *parent = nullptr);

    /// The flow then owns \a widget.
    void addAtBeginning(QWidget *widget) { add(widget, true, false); }
    void addAtEnd(QWidget *widget) { add(widget, false, false); }
    /// The same; where one row is too narrow and the window too low for several, \a widget is left out, the one that
    /// was added last first. It is always wanted otherwise.
    void addSpareAtEnd(QWidget *widget) { add(widget, false, true); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Item {
        QWidget *widget;
        bool isAtBeginning;
        bool isSpare;
    };
    using Row = QList<Item>;

    void add(QWidget *widget, bool isAtBeginning, bool isSpare);
    int gap() const;
    int spareCount() const;
    int spareFor(int width) const;
    Row wanted(int spare) const;
    QList<Row> rowsFor(int width, int spare) const;
    int heightFor(int width, int spare) const;
    int widthOf(const Row &row) const;
    bool hasRoomForRows() const;
    void arrange();

    QList<Item> items;
    int neededHeight = -1;
};

#endif
