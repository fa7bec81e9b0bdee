// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_avatar_quick_set_widget.h"

#include "core/values/kirv_bounded_image.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>

#include <memory>

namespace {

/// The path of the first file of this computer in \a data; empty when there is none.
QString localFileIn(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return QString();
}

bool mayHoldPicture(const QMimeData *data)
{
    return data && (data->hasImage() || !localFileIn(data).isEmpty());
}

} // namespace

/// The button that fills the widget and does its work.
class KirvAvatarQuickSetWidgetPrivate : public QAbstractButton {
    Q_DECLARE_TR_FUNCTIONS(KirvAvatarQuickSetWidget)

public:
    explicit KirvAvatarQuickSetWidgetPrivate(KirvAvatarQuickSetWidget *widget)
        : QAbstractButton(widget)
        , widget(widget)
    {
        setObjectName(QStringLiteral("KirvAvatar_Button"));
        setAccessibleName(tr("Picture of the account"));
        setToolTip(tr("Click to choose a picture, or drop or paste one here"));
        setFocusPolicy(Qt::StrongFocus);
        setAcceptDrops(true);
        setAttribute(Qt::WA_Hover);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        connect(this, &QAbstractButton::clicked, this, &KirvAvatarQuickSetWidgetPrivate::openFileDialog);
    }

    QSize sizeHint() const override { return QSize(64, 64); }

    void show(const QImage &image)
    {
        picture = image;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal radius = qMin(width(), height()) / 6.0;
        painter.setOpacity(isEnabled() ? 1.0 : 0.4);
        painter.drawPixmap(rect(), rounded(radius));
        painter.setOpacity(1.0);
        if (isEnabled() && (underMouse() || hasFocus() || dropHovers))
            drawHighlight(&painter, radius);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Paste))
            paste();
        else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else if (event->matches(QKeySequence::Delete) && !picture.isNull())
            remove();
        else
            QAbstractButton::keyPressEvent(event);
    }

    void contextMenuEvent(QContextMenuEvent *event) override
    {
        auto *menu = new QMenu(this);
        menu->setObjectName(QStringLiteral("KirvAvatar_Menu"));
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(tr("&Choose Picture…"), this, [this] { openFileDialog(); });
        menu->addAction(tr("&Paste Picture"), this, [this] { paste(); })
            ->setEnabled(mayHoldPicture(QGuiApplication::clipboard()->mimeData()));
        menu->addAction(tr("&Remove Picture"), this, [this] { remove(); })->setEnabled(!picture.isNull());
        menu->popup(event->globalPos());
    }

    void dragEnterEvent(QDragEnterEvent *event) override
    {
        if (!mayHoldPicture(event->mimeData()))
            return;
        event->acceptProposedAction();
        setDropHovers(true);
    }

    void dragLeaveEvent(QDragLeaveEvent *) override { setDropHovers(false); }

    void dropEvent(QDropEvent *event) override
    {
        setDropHovers(false);
        event->acceptProposedAction();
        choose(event->mimeData());
    }

private:
    /// The picture with round corners, at the resolution of the screen.
    QPixmap rounded(qreal radius) const
    {
        QPixmap result(size() * devicePixelRatioF());
        result.setDevicePixelRatio(devicePixelRatioF());
        result.fill(Qt::transparent);
        QPainter painter(&result);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawRoundedRect(rect(), radius, radius);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.drawPixmap(rect(), cut(result.size()));
        return result;
    }

    /// The middle of the picture, as large as possible, scaled to \a target.
    QPixmap cut(const QSize &target) const
    {
        if (picture.isNull())
            return QIcon(QStringLiteral(":/kirv/icons/avatar-none.svg")).pixmap(target);
        const QImage scaled = picture.scaled(target, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        const QPoint corner((scaled.width() - target.width()) / 2, (scaled.height() - target.height()) / 2);
        return QPixmap::fromImage(scaled.copy(QRect(corner, target)));
    }

    void drawHighlight(QPainter *painter, qreal radius) const
    {
        const qreal thickness = hasFocus() || dropHovers ? 2.0 : 1.0;
        const QRectF frame = QRectF(rect()).adjusted(thickness / 2, thickness / 2, -thickness / 2, -thickness / 2);
        painter->setPen(QPen(palette().color(QPalette::Highlight), thickness));
        painter->drawRoundedRect(frame, radius, radius);
    }

    void setDropHovers(bool hovers)
    {
        dropHovers = hovers;
        update();
    }

    void openFileDialog()
    {
        if (fileDialog)
            return;
        fileDialog = new QFileDialog(this, tr("Choose Picture"),
                                     QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
        fileDialog->setObjectName(QStringLiteral("KirvAvatar_FileDialog"));
        fileDialog->setAttribute(Qt::WA_DeleteOnClose);
        fileDialog->setFileMode(QFileDialog::ExistingFile);
        fileDialog->setNameFilters(
            { tr("Pictures (%1)").arg(KirvBoundedImage::namePatterns().join(QLatin1Char(' '))), tr("All files (*)") });
        connect(fileDialog, &QFileDialog::fileSelected, this, [this](const QString &path) { chooseFile(path); });
        fileDialog->open();
    }

    void paste() { choose(QGuiApplication::clipboard()->mimeData()); }

    void choose(const QMimeData *data)
    {
        const QString path = data ? localFileIn(data) : QString();
        if (path.isEmpty())
            chooseImage(data ? qvariant_cast<QImage>(data->imageData()) : QImage());
        else
            chooseFile(path);
    }

    void chooseFile(const QString &path) { take(KirvBoundedImage::fromFile(path), path); }

    void chooseImage(const QImage &image)
    {
        const KirvBoundedImage chosen = KirvBoundedImage::fromImage(image);
        const QString path = chosen.isNull() ? QString() : kept(chosen.image());
        if (!chosen.isNull() && path.isEmpty())
            refuse(tr("The picture cannot be stored on this computer."));
        else
            take(chosen, path);
    }

    /// A file of our own with \a image, which lives as long as the widget; empty when it cannot be written.
    QString kept(const QImage &image)
    {
        if (!folder)
            folder = std::make_unique<QTemporaryDir>();
        const QString path = folder->filePath(QStringLiteral("picture-%1.png").arg(++keptCount));
        return image.save(path, "PNG") ? path : QString();
    }

    void take(const KirvBoundedImage &chosen, const QString &path)
    {
        if (chosen.isNull()) {
            refuse(chosen.problem());
            return;
        }
        show(chosen.image());
        Q_EMIT widget->imageSelected(path);
    }

    void remove()
    {
        show(QImage());
        Q_EMIT widget->imageSelected(QString());
    }

    void refuse(const QString &reason)
    {
        if (!refusal) {
            refusal = new QMessageBox(QMessageBox::Information, tr("Picture of the Account"), QString(),
                                      QMessageBox::Ok, this);
            refusal->setObjectName(QStringLiteral("KirvAvatar_Refusal"));
            refusal->setAttribute(Qt::WA_DeleteOnClose);
            refusal->setTextFormat(Qt::PlainText);
        }
        refusal->setText(reason);
        refusal->open();
    }

    KirvAvatarQuickSetWidget *widget;
    QImage picture;
    bool dropHovers = false;
    std::unique_ptr<QTemporaryDir> folder;
    int keptCount = 0;
    QPointer<QFileDialog> fileDialog;
    QPointer<QMessageBox> refusal;
};

KirvAvatarQuickSetWidget::KirvAvatarQuickSetWidget(QWidget *parent)
    : QWidget(parent)
    , d(new KirvAvatarQuickSetWidgetPrivate(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d);
    setFocusProxy(d);
    setAccessibleName(d->accessibleName());
}

void KirvAvatarQuickSetWidget::setImage(const QString &path)
{
    d->show(path.isEmpty() ? QImage() : KirvBoundedImage::fromFile(path).image());
}
