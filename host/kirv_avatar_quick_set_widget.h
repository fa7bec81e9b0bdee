// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_AVATAR_QUICK_SET_WIDGET_H
#define KIRV_AVATAR_QUICK_SET_WIDGET_H

#include <QString>
#include <QWidget>

class KirvAvatarQuickSetWidgetPrivate;

/// Shows an image and lets the user pick another one.
class KirvAvatarQuickSetWidget : public QWidget {
    Q_OBJECT

public:
    /// \a parent owns the widget; null leaves it without an owner.
    explicit KirvAvatarQuickSetWidget(QWidget *parent);

    /// Shows the image at \a path. A path that is empty or leads to no image shows the place-holder.
    void setImage(const QString &path);

Q_SIGNALS:
    /// The user picked the image at \a path, which is readable now; an empty path takes the picture away.
    void imageSelected(const QString &path);

private:
    Q_DISABLE_COPY(KirvAvatarQuickSetWidget)

    /// The implementation's own, which also frees it (as a child object, say).
    KirvAvatarQuickSetWidgetPrivate *d = nullptr;
};

#endif
