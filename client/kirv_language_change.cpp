// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_language_change.h"

#include "client/kirv_translations.h"
#include "client/kirv_window_companions.h"
#include "core/store/kirv_client_settings.h"

#include <QApplication>
#include <QDialog>
#include <QThread>

#include <algorithm>

namespace {
const QLatin1String languageKey("language");
const int retryMilliseconds = 200;
}

KirvLanguageChange::KirvLanguageChange(KirvClientSettings &settings, KirvWindowCompanions &companions, QObject *parent)
    : QObject(parent)
    , settings(settings)
    , companions(companions)
{
    retry.setInterval(0);
    connect(&retry, &QTimer::timeout, this, &KirvLanguageChange::apply);
}

QString KirvLanguageChange::chosen(const KirvClientSettings &settings)
{
    return settings.value(languageKey);
}

void KirvLanguageChange::applyStored(const KirvClientSettings &settings)
{
    KirvTranslations *translations = KirvTranslations::instance();
    if (translations && translations->chosen() != chosen(settings))
        translations->use(chosen(settings));
}

bool KirvLanguageChange::choose(const QString &language)
{
    if (language == chosen(settings))
        return true;
    if (!settings.setValue(languageKey, language))
        return false;
    level = QThread::currentThread()->loopLevel();
    companions.closeUnchanged();
    retry.start(0); // not from inside the page that is to be deleted
    return true;
}

/// Windows show texts of the language that was, and a loop inside of one of the page's functions needs the page.
bool KirvLanguageChange::isBlocked() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return QThread::currentThread()->loopLevel() > level
        || std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
               return window->isVisible() && qobject_cast<const QDialog *>(window);
           });
}

void KirvLanguageChange::apply()
{
    if (isBlocked()) {
        if (retry.interval() == 0) {
            retry.start(retryMilliseconds);
            Q_EMIT pendingChanged();
        }
        return;
    }
    retry.stop();
    applyStored(settings);
    Q_EMIT changed();
}
