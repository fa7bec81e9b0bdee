// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LAYOUT_DIALOG_H
#define KIRV_LAYOUT_DIALOG_H

#include <QDialog>
#include <memory>

/// What stands between a window that was built from a layout and the code that drives it: the one place where a client
/// can add to a window, and refuse to let it finish.
class KirvWindowCompanion {
public:
    virtual ~KirvWindowCompanion() = default;

    /// The window is about to become visible: everything in it is in place. Called each time.
    virtual void aboutToShow() { }
    /// Whether the window may finish with \a result now. False keeps it open as it is.
    virtual bool mayFinish(int result)
    {
        Q_UNUSED(result)
        return true;
    }
};

/// The top widget of every layout that is a dialog. It behaves like a QDialog whose companion, if it has one, is asked
/// first. Closing such a window is finishing it with QDialog::Rejected.
class KirvLayoutDialog : public QDialog {
    Q_OBJECT

public:
    using QDialog::QDialog;
    /// The companion goes first, while the window and its children are complete.
    ~KirvLayoutDialog() override;

    void setCompanion(std::unique_ptr<KirvWindowCompanion> companion);

    /// Finishes with \a result without asking the companion.
    void finish(int result);

    void setVisible(bool visible) override;
    void done(int result) override;

private:
    std::unique_ptr<KirvWindowCompanion> companion;
};

#endif
