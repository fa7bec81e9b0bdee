// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_icons.h"

#include <QIconEngine>
#include <QPainter>

namespace {

QStringList &reads()
{
    static QStringList paths;
    return paths;
}

class RecordingIconEngine : public QIconEngine {
public:
    void addFile(const QString &fileName, const QSize &, QIcon::Mode, QIcon::State) override
    {
        path = fileName;
        reads().append(fileName);
    }
    QIconEngine *clone() const override { return new RecordingIconEngine(*this); }
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        painter->fillRect(rect, Qt::darkCyan);
    }
#if QT_VERSION >= 0x060000
    QString iconName() override
    {
        return path;
    }
#else
    QString iconName() const override
    {
        return path;
    }
#endif

private:
    QString path;
};

}

QStringList kirvRecordedIconReads()
{
    return reads();
}

void kirvForgetIconReads()
{
    reads().clear();
}

QIconEngine *KirvRecordingIconPlugin::create(const QString &)
{
    return new RecordingIconEngine;
}
