// SPDX-License-Identifier: LGPL-2.1-or-later
#include "benchmarks/measurement.h"

#include <QCommandLineParser>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

double millisecondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double processorMillisecondsOf(const std::function<void()> &work)
{
    const auto used = [] {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    };
    const double before = used();
    work();
    return used() - before;
}

double median(QVector<double> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    const auto middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

QString formatMilliseconds(double milliseconds)
{
    return QString::number(milliseconds, 'f', milliseconds < 10 ? 3 : 1);
}

void addProfileOptions(QCommandLineParser *parser, const char *numbers)
{
    parser->addOption({ QStringLiteral("folder"), QStringLiteral("Makes the profiles in <folder>."),
                        QStringLiteral("folder"), QDir::tempPath() });
    parser->addOption({ QStringLiteral("accounts"), QStringLiteral("The numbers of accounts, separated by commas."),
                        QStringLiteral("numbers"), QLatin1String(numbers) });
}

Table::Table(const QStringList &header)
    : rows({ header })
{
}

void Table::addRow(const QStringList &row)
{
    rows.append(row);
}

void Table::print(const QString &title) const
{
    QVector<int> widths;
    for (const QStringList &row : rows) {
        for (int column = 0; column < row.size(); ++column) {
            if (column == widths.size())
                widths.append(0);
            widths[column] = std::max(widths.at(column), int(row.at(column).size()));
        }
    }
    std::printf("%s\n\n", qPrintable(title));
    for (const QStringList &row : rows) {
        QStringList cells;
        for (int column = 0; column < row.size(); ++column) {
            const QString &text = row.at(column);
            cells << (column == 0 ? text.leftJustified(widths.at(column)) : text.rightJustified(widths.at(column)));
        }
        std::printf("  %s\n", qPrintable(cells.join(QStringLiteral("  "))));
    }
    std::printf("\n");
    std::fflush(stdout);
}

namespace {

const QSize panelSize(380, 300);
const int headHeight = 50;
const int panelsPerRow = 3;

/// A logarithmic axis over whole decades.
class Axis {
public:
    Axis(const QVector<double> &values, double from, double to)
        : from(from)
        , to(to)
    {
        const auto limits = std::minmax_element(values.cbegin(), values.cend());
        first = int(std::floor(std::log10(*limits.first)));
        last = std::max(first + 1, int(std::ceil(std::log10(*limits.second))));
    }

    double position(double value) const { return from + (to - from) * (std::log10(value) - first) / (last - first); }

    int first;
    int last;

private:
    double from;
    double to;
};

QString decadeText(int decade)
{
    return decade < 0 ? QString::number(std::pow(10, decade), 'f', -decade)
                      : QString::number(std::pow(10, decade), 'f', 0);
}

void drawAxes(QPainter &painter, const QRectF &frame, const Axis &x, const Axis &y)
{
    painter.setPen(QColor(0xdd, 0xdd, 0xdd));
    for (int decade = x.first; decade <= x.last; ++decade) {
        const double at = x.position(std::pow(10, decade));
        painter.drawLine(QPointF(at, frame.top()), QPointF(at, frame.bottom()));
    }
    for (int decade = y.first; decade <= y.last; ++decade) {
        const double at = y.position(std::pow(10, decade));
        painter.drawLine(QPointF(frame.left(), at), QPointF(frame.right(), at));
    }
    painter.setPen(Qt::black);
    for (int decade = x.first; decade <= x.last; ++decade) {
        const double at = x.position(std::pow(10, decade));
        painter.drawText(QRectF(at - 40, frame.bottom() + 2, 80, 16), Qt::AlignCenter, decadeText(decade));
    }
    for (int decade = y.first; decade <= y.last; ++decade) {
        const double at = y.position(std::pow(10, decade));
        painter.drawText(QRectF(frame.left() - 64, at - 8, 60, 16), Qt::AlignRight | Qt::AlignVCenter,
                         decadeText(decade));
    }
}

void drawSeries(QPainter &painter, const Series &series, const QColor &color, const Axis &x, const Axis &y)
{
    QPainterPath line;
    painter.setBrush(color);
    for (int i = 0; i < series.x.size(); ++i) {
        const QPointF point(x.position(series.x.at(i)), y.position(series.y.at(i)));
        if (i == 0)
            line.moveTo(point);
        else
            line.lineTo(point);
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(point, 3.5, 3.5);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 2));
    painter.drawPath(line);
}

void drawPanel(QPainter &painter, const QRectF &area, const Panel &panel)
{
    static const QColor colors[] = { QColor(0x1f, 0x77, 0xb4), QColor(0xd6, 0x5f, 0x00), QColor(0x55, 0x99, 0x55),
                                     QColor(0x8a, 0x56, 0xb0), QColor(0x77, 0x77, 0x77) };
    QVector<double> xs;
    QVector<double> ys;
    for (const Series &series : panel.series) {
        xs += series.x;
        ys += series.y;
    }
    if (xs.isEmpty())
        return;
    const QRectF frame = area.adjusted(70, 30, -28, -24);
    const Axis x(xs, frame.left(), frame.right());
    const Axis y(ys, frame.bottom(), frame.top());
    drawAxes(painter, frame, x, y);

    QFont bold = painter.font();
    bold.setBold(true);
    painter.save();
    painter.setFont(bold);
    painter.drawText(QRectF(frame.left(), area.top() + 6, frame.width(), 20), Qt::AlignLeft, panel.title);
    painter.restore();

    for (int i = 0; i < panel.series.size(); ++i) {
        const QColor &color = colors[size_t(i) % (sizeof colors / sizeof *colors)];
        drawSeries(painter, panel.series.at(i), color, x, y);
        painter.setPen(color);
        painter.drawText(QRectF(frame.left() + 8, frame.top() + 4 + 16 * i, frame.width(), 16), Qt::AlignLeft,
                         panel.series.at(i).name);
    }
}

} // namespace

bool plot(const QString &fileName, const QString &title, const QString &xLabel, const QVector<Panel> &panels)
{
    const int count = int(panels.size());
    const int columns = std::min(count, panelsPerRow);
    const int rows = (count + panelsPerRow - 1) / panelsPerRow;
    QImage image(columns * panelSize.width(), headHeight + rows * panelSize.height(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    painter.setFont(font);
    for (int i = 0; i < count; ++i) {
        const QPoint corner(i % panelsPerRow * panelSize.width(), headHeight + i / panelsPerRow * panelSize.height());
        drawPanel(painter, QRectF(corner, panelSize), panels.at(i));
    }
    painter.setPen(Qt::black);
    painter.drawText(QRectF(14, 24, image.width(), 20), Qt::AlignLeft, xLabel);
    font.setBold(true);
    font.setPixelSize(15);
    painter.setFont(font);
    painter.drawText(QRectF(14, 4, image.width(), 20), Qt::AlignLeft, title);
    painter.end();
    return image.save(fileName, "PNG");
}
