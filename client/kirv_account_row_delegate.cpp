// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_row_delegate.h"

#include "client/kirv_account_rows.h"
#include "client/kirv_account_status.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_state_shape.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"

#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>

namespace {

const int millisecondsOfASecond = 1000;
/// How much of the colour of the name the line below it has.
const int percentOfState = 75;
const qreal readableContrast = 4.6; // 4.5 is enough for small text; colours are rounded
const qreal visibleContrast = 3; // is enough for icons
const qreal tintOfFocus = 0.5; // what it takes away that styles paint the focus over the row

QColor mixed(const QColor &ink, const QColor &paper, qreal strength)
{
    const auto mix = [strength](qreal front, qreal back) { return front * strength + back * (1 - strength); };
    return QColor::fromRgbF(mix(ink.redF(), paper.redF()), mix(ink.greenF(), paper.greenF()),
                            mix(ink.blueF(), paper.blueF()));
}

/// How bright \a color is to the eye, from 0 to 1.
qreal brightness(const QColor &color)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// By the usual measure.
qreal contrast(const QColor &ink, const QColor &paper)
{
    const qreal front = brightness(ink) + 0.05;
    const qreal back = brightness(paper) + 0.05;
    return std::max(front, back) / std::min(front, back);
}

/// A paler \a ink, as far as it can be read.
QColor paler(const QColor &ink, const QColor &paper)
{
    for (int percent = percentOfState; percent < 100; percent += 5) {
        const QColor pale = mixed(ink, paper, percent / 100.0);
        if (contrast(pale, paper) >= readableContrast)
            return pale;
    }
    return ink;
}

/// What is behind a row that is not selected.
QPalette::ColorRole paperRole(const QStyleOptionViewItem &option)
{
    return option.features & QStyleOptionViewItem::Alternate ? QPalette::AlternateBase : QPalette::Base;
}

void makePaler(QStyleOptionViewItem *option)
{
    for (const QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive }) {
        const QColor ink = option->palette.color(group, QPalette::Text);
        const QColor paper = option->palette.color(group, paperRole(*option));
        option->palette.setColor(group, QPalette::Text, paler(ink, paper));
    }
}

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Normal : QPalette::Inactive;
}

/// How much of \a picture, from 0 to 1, stands out from \a paper by \a least. An average would not do: icons have parts
/// in several colours.
qreal visibleShare(const QImage &picture, const QColor &paper, qreal least)
{
    qint64 visible = 0, all = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int alpha = qAlpha(line[x]);
            all += alpha;
            if (alpha > 0 && contrast(QColor(line[x]), paper) >= least)
                visible += alpha;
        }
    }
    return all == 0 ? 1 : qreal(visible) / qreal(all);
}

/// \a picture with a plate behind it where most of it would not stand out from \a paper by \a least: of \a usual, on
/// which icons stand elsewhere, unless more of it stands out from \a other only.
QPixmap visiblePicture(const QPixmap &picture, const QColor &paper, qreal least, const QColor &usual,
                       const QColor &other)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    if (visibleShare(image, paper, least) > 0.5)
        return picture;
    QPixmap result(picture.size());
    result.setDevicePixelRatio(picture.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal share = visibleShare(image, usual, least);
    painter.setBrush(share > 0.5 || share >= visibleShare(image, other, least) ? usual : other);
    const QRectF plate(QPointF(), QSizeF(picture.size()) / picture.devicePixelRatio());
    painter.drawRoundedRect(plate, plate.width() / 8, plate.height() / 8);
    painter.drawPixmap(plate.topLeft(), picture);
    return result;
}

/// The icon as it is, also on a selected row, where styles would mix it with the colour behind it.
QIcon visibleIcon(const QStyleOptionViewItem &option)
{
    const QPalette::ColorGroup group = colorGroup(option);
    const QColor base = option.palette.color(group, QPalette::Base), text = option.palette.color(group, QPalette::Text);
    const bool isSelected = option.state & QStyle::State_Selected;
    const QColor paper = option.palette.color(group, isSelected ? QPalette::Highlight : paperRole(option));
    const qreal least = isSelected ? visibleContrast + tintOfFocus : visibleContrast;
    const QPixmap picture = option.icon.pixmap(option.decorationSize);
    const QString key = QStringLiteral("kirv-icon-%1-%2-%3-%4-%5")
                            .arg(picture.cacheKey())
                            .arg(paper.rgba())
                            .arg(base.rgba())
                            .arg(text.rgba())
                            .arg(isSelected);
    QPixmap visible;
    if (!QPixmapCache::find(key, &visible)) {
        visible = visiblePicture(picture, paper, least, base, text);
        QPixmapCache::insert(key, visible);
    }
    QIcon icon(visible);
    icon.addPixmap(visible, QIcon::Selected);
    return icon;
}

} // namespace

KirvAccountRowDelegate::KirvAccountRowDelegate(const KirvAccountCollection &accounts, QTreeWidget *list)
    : KirvNameDelegate(list)
    , accounts(accounts)
    , list(list)
    , countdown(new QTimer(this))
{
    countdown->setSingleShot(true);
    connect(countdown, &QTimer::timeout, list->viewport(), QOverload<>::of(&QWidget::update));
}

const KirvAccount *KirvAccountRowDelegate::accountOf(const QModelIndex &index) const
{
    return accounts.find(KirvAccountRows::keyOf(index));
}

void KirvAccountRowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    KirvNameDelegate::initStyleOption(option, index);
    if (index.column() == KirvProtocolColumn && !option->icon.isNull())
        option->icon = visibleIcon(*option);
    const KirvAccount *account = accountOf(index);
    if (account && !account->isLoaded())
        makePaler(option);
    if (index.column() != KirvAliasColumn)
        return;
    if (option->text.isEmpty()) {
        if (account)
            option->text = kirvPlainName(account->displayName());
    }
    // Room for the icon, which has no file. The style keeps check box, icon and text apart, in either direction.
    option->features |= QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay;
    const int edge = list->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, list);
    option->decorationSize = QSize(edge, edge);
    option->decorationAlignment = Qt::AlignCenter;
}

void KirvAccountRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    const KirvAccount *account = index.column() == KirvAliasColumn ? accountOf(index) : nullptr;
    if (!account) {
        KirvNameDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle *style = list->style();
    const QRect iconPlace = style->subElementRect(QStyle::SE_ItemViewItemDecoration, &row, list);
    const QRect textPlace = style->subElementRect(QStyle::SE_ItemViewItemText, &row, list);
    const QString name = row.text;
    row.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, list);

    const KirvAccountStatus status(*account, account == KirvAccountManager::getInstance()->getMainAccount());
    const bool isSelected = row.state & QStyle::State_Selected;
    kirvPaintStateShape(painter, iconPlace, status.kind(),
                        isSelected ? row.palette.color(colorGroup(row), QPalette::HighlightedText)
                                   : kirvStateColor(status.kind(), row.palette));
    if (status.kind() == KirvAccountStatus::Disabled)
        makePaler(&row);
    paintLines(painter, row, textPlace, name, status.line());
    if (status.kind() == KirvAccountStatus::Waiting && !countdown->isActive())
        countdown->start(millisecondsOfASecond);
}

void KirvAccountRowDelegate::paintLines(QPainter *painter, const QStyleOptionViewItem &option, const QRect &place,
                                        const QString &name, const QString &state) const
{
    const QPalette::ColorGroup group = colorGroup(option);
    const bool isSelected = option.state & QStyle::State_Selected;
    const QColor ink = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QFont small = stateFont(option.font);
    const QFontMetrics metrics(option.font);
    const QFontMetrics smallMetrics(small);
    const int margin = list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list) + 1;
    QRect line = place.adjusted(margin, 0, -margin, 0);
    line.setTop(place.center().y() - (metrics.height() + smallMetrics.height()) / 2);
    line.setHeight(metrics.height());
    const auto alignment = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);

    painter->save();
    painter->setFont(option.font);
    painter->setPen(ink);
    painter->drawText(line, int(alignment) | Qt::TextSingleLine,
                      metrics.elidedText(QString(name).replace(QLatin1Char('\n'), QLatin1Char(' ')),
                                         option.textElideMode, line.width()));
    line.moveTop(line.bottom() + 1);
    line.setHeight(smallMetrics.height());
    painter->setFont(small);
    painter->setPen(isSelected ? ink : paler(ink, option.palette.color(group, paperRole(option))));
    painter->drawText(line, int(alignment) | Qt::TextSingleLine,
                      smallMetrics.elidedText(state, Qt::ElideRight, line.width()));
    painter->restore();
}

QSize KirvAccountRowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = KirvNameDelegate::sizeHint(option, index);
    if (index.column() == KirvAliasColumn) {
        const int lines = QFontMetrics(option.font).height() + QFontMetrics(stateFont(option.font)).height();
        size.setHeight(qMax(size.height(), lines + QFontMetrics(option.font).height() / 2));
    }
    return size;
}

QRect KirvAccountRowDelegate::textRect(const QModelIndex &index) const
{
    QStyleOptionViewItem row;
    row.initFrom(list);
    row.rect = list->visualRect(index);
    row.widget = list;
    initStyleOption(&row, index);
    return list->style()->subElementRect(QStyle::SE_ItemViewItemText, &row, list);
}

QFont KirvAccountRowDelegate::stateFont(const QFont &font)
{
    QFont small = font;
    if (font.pointSizeF() > 0)
        small.setPointSizeF(font.pointSizeF() * 0.9);
    else
        small.setPixelSize(qMax(1, font.pixelSize() * 9 / 10));
    return small;
}
