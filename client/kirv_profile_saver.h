// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_SAVER_H
#define KIRV_PROFILE_SAVER_H

#include <QObject>
#include <QPointer>
#include <QString>

class KirvMessageBar;
class KirvStore;
class QFileDialog;

/// Shows changes that the profile has refused. When the profile is not in its folder any more, the message has a button
/// that saves everything to another folder.
class KirvProfileSaver : public QObject {
    Q_OBJECT

public:
    /// \a store and \a messages outlive this, which belongs to the window of the messages.
    KirvProfileSaver(KirvStore &store, KirvMessageBar &messages);

    /// \a reason says why a change was not stored.
    void showRefusal(const QString &reason);

Q_SIGNALS:
    /// The user wants to go on with the profile that was saved to \a folder.
    void continuationRequested(const QString &folder);

private:
    void chooseFolder();
    void saveTo(const QString &folder);

    KirvStore &store;
    KirvMessageBar &messages;
    QPointer<QFileDialog> dialog;
    QString shownReason;
};

#endif
