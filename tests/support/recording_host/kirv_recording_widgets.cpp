// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_avatar_quick_set_widget.h"
#include "host/kirv_field_widget.h"
#include "tests/support/recording_host/kirv_recording_host.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

QString nameOf(const QWidget *widget)
{
    return widget ? kirvWritten(widget->objectName()) : QStringLiteral("none");
}

}

/// A child of the form, so that it goes with it.
class KirvFieldWidgetPrivate : public QObject {
public:
    explicit KirvFieldWidgetPrivate(QWidget *form)
        : QObject(form)
    {
    }

    /// One editor per field, named after it.
    void show(const QList<KirvField> &content)
    {
        auto *form = static_cast<QWidget *>(parent());
        qDeleteAll(form->findChildren<QWidget *>());
        fields = content;
        for (const KirvField &field : fields) {
            QWidget *editor = createEditor(field, form);
            editor->setObjectName(field.getId());
            form->layout()->addWidget(editor);
        }
    }

    QList<KirvField> fields;

private:
    static QWidget *createEditor(const KirvField &field, QWidget *form)
    {
        if (field.getKind() != KirvField::CheckBox)
            return new QLineEdit(field.getText(), form);
        auto *box = new QCheckBox(form);
        box->setChecked(field.isChecked());
        return box;
    }
};

KirvFieldWidget::KirvFieldWidget(const QList<KirvField> &fields, QWidget *parent, KirvFieldWidget::Layout layout)
    : QWidget(parent)
    , d(new KirvFieldWidgetPrivate(this))
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("KirvFieldWidget"),
                                         { kirvWritten(fields), nameOf(parent), QString::number(layout) });
    new QVBoxLayout(this);
    d->show(fields);
}

void KirvFieldWidget::fillWithFields(const QList<KirvField> &fields)
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("fillWithFields"), { kirvWritten(fields) });
    d->show(fields);
}

QList<KirvField> KirvFieldWidget::getFields() const
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("getFields"), {});
    QList<KirvField> fields;
    for (KirvField field : d->fields) {
        if (const auto *box = findChild<QCheckBox *>(field.getId()))
            field.setChecked(box->isChecked());
        else
            field.setText(findChild<QLineEdit *>(field.getId())->text());
        fields.append(field);
    }
    return fields;
}

KirvAvatarQuickSetWidget::KirvAvatarQuickSetWidget(QWidget *parent)
    : QWidget(parent)
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("KirvAvatarQuickSetWidget"), { nameOf(parent) });
}

void KirvAvatarQuickSetWidget::setImage(const QString &path)
{
    KirvRecordingHost::instance().record(QString(), QStringLiteral("setImage"), { kirvWritten(path) });
}
