// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FORM_AREA_H
#define KIRV_FORM_AREA_H

#include <QList>
#include <QScrollArea>

class QFormLayout;

/// Shows forms that stand below each other as one: with a common label column or, where that is too wide, with every
/// label above its control; as large as they need to be, and scrolled up and down where the window has no room for
/// that. Layout files may ask for it by its class name.
class KirvFormArea : public QScrollArea {
    Q_OBJECT

public:
    explicit KirvFormArea(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int gap() const;
    int narrowestWidth() const;
    int widthWithLabelsBeside() const;
    int scrollBarWidth() const; ///< with the gap beside it
    QList<QFormLayout *> formsWithLabelsBeside() const;
    void alignLabels();
    void fitLater();
    void placeLabels();
    void hideUnneededScrollBar();
    void keepClearOfScrollBar(bool shown);

    int labelWidth = 0; ///< of the common column
};

#endif
