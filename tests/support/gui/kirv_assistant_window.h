// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ASSISTANT_WINDOW_H
#define KIRV_ASSISTANT_WINDOW_H

#include "client/kirv_server_assistant.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

/// The assistant for server requests that is open, as a test sees it.
class KirvAssistantWindow {
public:
    /// The open assistant; null when none is.
    static KirvServerAssistant *window()
    {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            auto *assistant = qobject_cast<KirvServerAssistant *>(widget);
            if (assistant && assistant->isVisible())
                return assistant;
        }
        return nullptr;
    }
    /// The part "ServerAssistant_" + \a name; null when there is none.
    template <class Widget>
    static Widget *part(const char *name)
    {
        return window() ? window()->findChild<Widget *>(QStringLiteral("ServerAssistant_") + QLatin1String(name))
                        : nullptr;
    }
    static QPushButton *next() { return part<QPushButton>("NextButton"); }
    static QPushButton *back() { return part<QPushButton>("BackButton"); }
    static QPushButton *close() { return part<QPushButton>("CloseButton"); }

    /// Whether a reply of the server is awaited.
    static bool isWaiting() { return isShown("Progress"); }
    /// Whether a step can be submitted that another one has led to.
    static bool isAtLaterStep() { return !isWaiting() && isShown("BackButton"); }
    /// The text of the step; empty when it has none.
    static QString text() { return textOf("Text"); }
    /// What is said of the last reply of the server; empty when nothing is, and while a reply is awaited.
    static QString message() { return isWaiting() ? QString() : textOf("Message"); }

    /// The control of the field \a id; null when the step has no such field.
    template <class Widget = QLineEdit>
    static Widget *field(const QString &id)
    {
        return window() ? window()->findChild<Widget *>(QStringLiteral("KirvField_") + id) : nullptr;
    }
    /// What stands in the line of the field \a id; null when the step has no such line.
    static QString filled(const QString &id) { return field(id) ? field(id)->text() : QString(); }

private:
    static bool isShown(const char *name) { return part<QWidget>(name) && part<QWidget>(name)->isVisible(); }
    static QString textOf(const char *name) { return isShown(name) ? part<QTextEdit>(name)->toPlainText() : QString(); }
};

#endif
