// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_WINDOWS_H
#define KIRV_CLIENT_WINDOWS_H

#include "client/kirv_client.h"
#include "core/ui/kirv_layout_dialog.h"
#include "tests/support/fakes/kirv_fake_protocol.h"

#include <QDialogButtonBox>
#include <QList>
#include <QTemporaryDir>
#include <functional>
#include <memory>

class KirvAvatarQuickSetWidget;
class QAbstractButton;
class QComboBox;
class QMessageBox;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// A client with its windows over a profile of its own, with one fake protocol, as a user has them.
class KirvClientWindows {
public:
    enum Secrets { InProfile, InKeyring }; ///< of the session's bus

    explicit KirvClientWindows(const QString &protocolName = QStringLiteral("Fake"), Secrets secrets = InProfile);
    ~KirvClientWindows();

    /// Whether the client could be started.
    bool isReady() const { return ready; }
    /// Ends the client and starts it again over the same profile.
    void restart();
    void end();
    /// Runs what is due in the event loop, with the deletions.
    static void settle();

    /// Creates an account without a window; the alias is the login.
    KirvAccount *addAccount(const QString &id);
    KirvAccount *account(const QString &id) const;
    QString profileFolder() const { return options.profileFolder; }
    /// Writes a picture and gives its path.
    QString makePicture(int shade);

    // The page.
    QTreeWidget *list() const;
    QTreeWidgetItem *row(const QString &id) const;
    QStringList rowIds() const;
    QComboBox *selector() const;
    /// The login of the account that the selector shows; empty when it shows none.
    QString shownMainAccount() const;
    QAbstractButton *pageButton(const char *name) const;
    void select(const QString &id) const;
    QStringList messages() const;

    /// Clicks Remove for the account and Yes in the question.
    void removeInPage(const QString &id);
    /// Clicks the check box of the account, and Yes when a question comes.
    void toggleInPage(const QString &id);
    void chooseMainAccount(const QString &id);
    /// Opens the add window, fills it, clicks Save and runs \a inBox for a message box over it, which is closed
    /// then. The window is cancelled when it stays open. Whether it was accepted.
    bool addInWindow(
        const QString &id, const std::function<void(QMessageBox *)> &inBox = [](QMessageBox *) {});

    /// Opens the add window, runs \a look in it once it is active, and cancels it when it is still open then.
    void inAddWindow(const std::function<void(KirvLayoutDialog *)> &look) const;

    // The edit window.
    KirvLayoutDialog *edit(const QString &id);
    template <typename T>
    static T *child(const QWidget *window, const char *name)
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    /// The visible child of a class; null when there is none.
    template <typename T>
    static T *shownChild(const QWidget *window)
    {
        const auto all = window->findChildren<T *>();
        for (T *candidate : all) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    static QPushButton *button(const QWidget *window, QDialogButtonBox::StandardButton which);
    static void save(const QWidget *window);
    /// Cancels the window when it is still there.
    static void cancel(KirvLayoutDialog *window);
    static KirvAvatarQuickSetWidget *picker(const QWidget *window);
    /// Picks a picture as a drop on the picker does; an empty path removes the picture.
    static void pick(const QWidget *window, const QString &path);

    /// The message boxes that are shown.
    static QList<QMessageBox *> boxes();
    static void closeBoxes();

    QTemporaryDir folder;
    KirvClientOptions options;
    std::unique_ptr<KirvClient> client;
    KirvFakeProtocol *protocol = nullptr; ///< of the running client
    QString password = QStringLiteral("secret"); ///< of the accounts that are added
    std::function<void(KirvFakeProtocol *)> prepare; ///< changes the protocol of the next start; may be null

private:
    bool start();

    const QString protocolName;

    bool ready;
};

#endif
