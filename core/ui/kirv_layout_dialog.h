// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LAYOUT_DIALOG_H
#define KIRV_LAYOUT_DIALOG_H

#include <QDialog>
#include <QPointer>

class KirvLayoutDialog;

/// What stands between a window that was built from a layout and the code that drives it: the one place where a client
/// can add to a window, and refuse to let it finish. The window owns it.
class KirvWindowCompanion : public QObject {
    Q_OBJECT

public:
    /// Becomes the companion of \a window, in place of the one before.
    explicit KirvWindowCompanion(KirvLayoutDialog *window);

    /// The window is about to become visible: everything in it is in place. Called each time. It must neither finish
    /// nor destroy the window.
    virtual void aboutToShow() { }
    /// Whether the window may finish with \a result now. False keeps it open as it is. A window that is finished or
    /// destroyed during the call is left alone, whatever this returns.
    virtual bool mayFinish(int result)
    {
        Q_UNUSED(result)
        return true;
    }

protected:
    KirvLayoutDialog *window() const { return dialog; }

private:
    KirvLayoutDialog *const dialog;
};

/// The top widget of every layout that is a dialog. It behaves like a QDialog that consults its companion, if it has
/// one, first. Closing such a window is finishing it with QDialog::Rejected.
class KirvLayoutDialog : public QDialog {
    Q_OBJECT

public:
    using QDialog::QDialog;

    /// Called by the companion; takes ownership.
    void setCompanion(KirvWindowCompanion *companion);

    /// Finishes with \a result without consulting the companion. Does nothing when the window is not shown.
    void finish(int result);

    void setVisible(bool visible) override;
    void done(int result) override;

private:
    QPointer<KirvWindowCompanion> companion;
};

#endif
