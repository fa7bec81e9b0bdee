// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_plugin_call.h"

#include <QCoreApplication>

#include <exception>

bool kirvCallPlugin(const std::function<void()> &call, QString *problem)
{
    QString what;
    try {
        call();
        return true;
    } catch (const std::exception &exception) {
        what = QString::fromLocal8Bit(exception.what()).left(200);
    } catch (...) {
        what = QCoreApplication::translate("KirvPluginCall", "an exception of an unknown kind");
    }
    if (problem)
        *problem = QCoreApplication::translate("KirvPluginCall", "The plug-in failed: %1").arg(what);
    return false;
}
