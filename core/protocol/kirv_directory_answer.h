// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DIRECTORY_ANSWER_H
#define KIRV_DIRECTORY_ANSWER_H

#include "core/values/kirv_failure.h"
#include "host/kirv_field.h"

#include <QList>
#include <QMetaType>

/// The answer to one request to the public directory. A value type.
struct KirvDirectoryAnswer {
    /// What has become of the request.
    enum Outcome {
        Data, ///< the entry as it is on the server now is in fields
        None, ///< the server holds no entry (any more)
        Failed ///< nothing is known about the entry; failure says why
    };

    int request = 0; ///< the number that the request got when it was made
    Outcome outcome = Failed; ///< what has become of it
    QList<KirvField> fields; ///< Data: the entry; otherwise empty
    KirvFailure failure; ///< Failed: why
};

Q_DECLARE_METATYPE(KirvDirectoryAnswer)

#endif
