// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RECORDING_ICONS_H
#define KIRV_RECORDING_ICONS_H

#include <QIconEnginePlugin>
#include <QStringList>

/// The files with the suffix "recorded" from which icons were made, in order. No such file exists: the engine only
/// writes down the path, and QIcon::name() of the icon gives it back.
QStringList kirvRecordedIconReads();
void kirvForgetIconReads();

/// Makes Qt use the recording engine for files with that suffix.
class KirvRecordingIconPlugin : public QIconEnginePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "kirv_recording_icons.json")

public:
    QIconEngine *create(const QString &fileName) override;
};

#endif
