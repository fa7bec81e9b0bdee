// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WALK_H
#define KIRV_WALK_H

#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "tests/support/store_refusal.h"

#include <QDialog>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <memory>

class KirvAccount;
class KirvAccountsTab;
class KirvConnection;
class QComboBox;
class QTreeWidget;
class QTreeWidgetItem;

/// One of the ways on, which is taken as often as its weight says among those of all.
struct KirvWalkStep {
    const char *name;
    int weight;
    std::function<void()> take;
};

/// The client that a walk goes through, the chance that leads it, and what it met. The same seed leads the same way.
class KirvWalk {
public:
    KirvWalk();
    ~KirvWalk();

    /// Starts the client over the profile; false when that does not work.
    bool start();
    /// Quits the client, whatever is open.
    void quit();

    QString profileFolder() const { return folder.filePath(QStringLiteral("profile")); }
    KirvAccountsTab *page() const;
    QTreeWidget *list() const;
    QComboBox *selector() const;

    void seed(int number) { chance.seed(quint32(number)); }
    int below(int limit) { return int(chance.bounded(limit)); }
    bool maybe(int percent) { return below(100) < percent; }

    QString login();
    QTreeWidgetItem *anyRow();
    KirvAccount *anyAccount();
    /// Often the one of the account in the edit window. Also of an account that was removed and is not logged out yet.
    KirvConnection *anyConnection();
    QDialog *anyEditWindow() { return anyVisible<QDialog>(QStringLiteral("EditAccount")); }
    /// Replies to what the server requests of all protocols wait for.
    void answerServerRequests(bool accept);
    /// Unloads the protocol of any plug-in, or loads it.
    void toggleProtocol();
    template <class Widget>
    Widget *anyVisible(const QString &name = QString());

    /// Notes that the walk came by \a what.
    void saw(const QString &what) { ++met[what]; }
    bool hasSeen(const QString &what) const { return met.count(what) > 0; }
    const std::map<QString, int> &sights() const { return met; }

    QString picture; ///< the path of an image file
    QString exported; ///< the path of a file for exported accounts, which need not be there
    std::unique_ptr<KirvClient> client;
    std::unique_ptr<StoreRefusal> refusal; ///< while the store refuses

private:
    QTemporaryDir folder;
    QRandomGenerator chance;
    std::map<QString, int> met;
};

template <class Widget>
Widget *KirvWalk::anyVisible(const QString &name)
{
    QList<Widget *> found;
    for (Widget *widget : client->window()->findChildren<Widget *>(name)) {
        if (widget->isVisible())
            found << widget;
    }
    return found.isEmpty() ? nullptr : found.at(below(int(found.size())));
}

#endif
