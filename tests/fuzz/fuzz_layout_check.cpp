// SPDX-License-Identifier: LGPL-2.1-or-later
// Layouts of any content: the check comes to an end, and what it accepts can be made into widgets.
#include "core/ui/kirv_layout_check.h"
#include "core/ui/kirv_layout_file.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) { }

/// Lives as long as the process.
const QString &folder()
{
    static int count = 1;
    static char name[] = "fuzz_layout_check";
    static char *arguments[] = { name, nullptr };
    static const QApplication *application =
        new QApplication(count, arguments); // never destroyed: it must not outlive Qt's own statics
    static QTemporaryDir made;
    static const QString path = made.path();
    Q_UNUSED(application)
    qInstallMessageHandler(ignoreMessages);
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray xml(reinterpret_cast<const char *>(data), int(size));
    const QString path = folder() + QStringLiteral("/Fuzz.ui");
    if (!KirvLayoutCheck(folder()).findFault(xml).isEmpty())
        return 0;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
        std::abort();
    file.close();
    const std::unique_ptr<QWidget> top = KirvLayoutFile(path).build();
    if (top)
        top->ensurePolished();
    return 0;
}
