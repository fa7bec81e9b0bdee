// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MEASUREMENT_H
#define KIRV_MEASUREMENT_H

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>

class QCommandLineParser;

/// How long \a work takes, in milliseconds.
double millisecondsOf(const std::function<void()> &work);
/// The processor time that \a work takes of this thread, in milliseconds. What other programs do at the same time does
/// not count, so this is for work that waits for nothing.
double processorMillisecondsOf(const std::function<void()> &work);
double median(QVector<double> values);

/// Adds --folder, where the profiles are made, and --accounts, of which \a numbers are the default.
void addProfileOptions(QCommandLineParser *parser, const char *numbers);

/// A table of texts, printed with aligned columns: the first to the left, the others to the right.
class Table {
public:
    explicit Table(const QStringList &header);
    void addRow(const QStringList &row);
    void print(const QString &title) const;

private:
    QVector<QStringList> rows;
};

/// Milliseconds with as many decimals as make sense.
QString formatMilliseconds(double milliseconds);

/// One line of a plot.
struct Series {
    QString name;
    QVector<double> x;
    QVector<double> y;
};

/// One frame of a plot, with logarithmic axes.
struct Panel {
    QString title;
    QVector<Series> series;
};

/// Draws the panels side by side, three in a row, into a PNG file. False when it cannot be written.
bool plot(const QString &fileName, const QString &title, const QString &xLabel, const QVector<Panel> &panels);

#endif
