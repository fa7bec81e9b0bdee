// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LEFT_OUT_H
#define KIRV_LEFT_OUT_H

#include <QString>
#include <QStringList>

/// \a heading and below it the sentences of \a leftOut, a line each; of very many the first ones and how many more
/// there are. Empty when there are none. Nothing in it turns the text around.
QString kirvLeftOutText(const QString &heading, const QStringList &leftOut);

#endif
