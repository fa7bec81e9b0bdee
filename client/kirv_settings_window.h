// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SETTINGS_WINDOW_H
#define KIRV_SETTINGS_WINDOW_H

#include <QWidget>

class KirvMessageBar;
class KirvClientSettings;
class QAction;
class QLabel;
class QListWidget;
class QStackedWidget;

/// The settings window: a list of pages and the chosen page beside it, and over it what the user should know.
class KirvSettingsWindow : public QWidget {
    Q_OBJECT

public:
    /// The window remembers its size and its page in \a settings, which is not owned and outlives the window.
    explicit KirvSettingsWindow(KirvClientSettings &settings, QWidget *parent = nullptr);
    ~KirvSettingsWindow() override;

    /// Adds \a page, which the window then owns; \a title is its name in the list.
    void addPage(QWidget *page, const QString &title, const QIcon &icon);
    void showPage(QWidget *page);
    /// Deletes all pages and says everything else again, in the language that is used now. The page that takes the
    /// place of the current one is shown when it is added.
    void removePages();

    /// Shows the name of the main account in the title; empty: there is none.
    void setMainAccount(const QString &name);
    /// Shows \a text above the pages as long as the window lives; empty: nothing. Plain text.
    void setBanner(const QString &text);

    KirvMessageBar *messageBar() const { return messages; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void arrange();
    void setTexts();
    void restoreSize();
    void fitListToContents();
    void fitToScreen();

    KirvClientSettings &settings;
    QLabel *banner;
    KirvMessageBar *messages;
    QListWidget *list;
    QStackedWidget *pages;
    QAction *quit;
    int wantedRow; ///< the page that is shown when it is added
};

#endif
