// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/gui/kirv_text_survey.h"

#include "tests/support/gui/kirv_pseudo_translator.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaProperty>
#include <QPushButton>
#include <QTabBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace {

struct Shown {
    QString where;
    QString text;
};

/// Markup aside.
QString plain(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

QString nameOf(const QWidget *widget)
{
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        if (!around->objectName().isEmpty() && !around->objectName().startsWith(QLatin1String("qt_")))
            return around->objectName();
    }
    return QString::fromLatin1(widget->metaObject()->className());
}

bool isTyped(const QWidget *widget)
{
    const QVariant readOnly = widget->property("readOnly");
    return (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QTextEdit *>(widget)) && !readOnly.toBool();
}

void addProperties(const QWidget *widget, QList<Shown> *shown)
{
    for (const char *property : { "text", "plainText", "title", "windowTitle", "placeholderText", "toolTip",
                                  "statusTip", "whatsThis", "accessibleName", "accessibleDescription",
                                  "informativeText", "description", "prefix", "suffix", "specialValueText" }) {
        const bool isContent = !qstrcmp(property, "text") || !qstrcmp(property, "plainText");
        if (isContent && (isTyped(widget) || widget->inherits("QAbstractSpinBox")))
            continue;
        const QVariant value = widget->property(property);
        if (value.userType() == QMetaType::QString && !value.toString().isEmpty())
            shown->append({ nameOf(widget) + QLatin1Char(' ') + QLatin1String(property), plain(value.toString()) });
    }
}

void addItems(const QWidget *widget, const QAbstractItemModel *model, QList<Shown> *shown)
{
    for (int column = 0; model && column < model->columnCount(); ++column) {
        const QVariant header = model->headerData(column, Qt::Horizontal);
        const auto *view = qobject_cast<const QTreeView *>(widget);
        if (view && view->header()->isVisible() && !view->isColumnHidden(column))
            shown->append({ nameOf(widget) + QLatin1String(" header"), header.toString() });
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, column);
            if (view && view->isColumnHidden(column))
                continue;
            for (const int role : { int(Qt::DisplayRole), int(Qt::ToolTipRole), int(Qt::AccessibleTextRole),
                                    int(Qt::AccessibleDescriptionRole) })
                shown->append({ nameOf(widget) + QLatin1String(" item"), plain(index.data(role).toString()) });
        }
    }
}

void addActions(const QMenu *menu, QList<Shown> *shown)
{
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        const QString where = (action->objectName().isEmpty() ? nameOf(menu) : action->objectName());
        shown->append({ where + QLatin1String(" action"), action->text().section(QLatin1Char('\t'), 0, 0) });
        if (action->menu())
            addActions(action->menu(), shown);
    }
}

QList<Shown> shownBy(const QWidget *widget)
{
    QList<Shown> shown;
    addProperties(widget, &shown);
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        addItems(widget, combo->model(), &shown);
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        if (!qobject_cast<const QHeaderView *>(widget))
            addItems(widget, view->model(), &shown);
    if (const auto *menu = qobject_cast<const QMenu *>(widget))
        addActions(menu, &shown);
    const auto *tool = qobject_cast<const QToolButton *>(widget);
    const auto *push = qobject_cast<const QPushButton *>(widget);
    const QMenu *opened = tool ? tool->menu() : push ? push->menu() : nullptr;
    if (opened)
        addActions(opened, &shown);
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int index = 0; index < tabs->count(); ++index)
            shown.append({ nameOf(widget) + QLatin1String(" tab"), tabs->tabText(index) });
    }
    return shown;
}

bool hasLetter(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

/// The marked pieces of a text with what they stand in; false when marks are not in pairs.
bool takeApart(const QString &text, QStringList *pieces, QString *outside, bool *isNested)
{
    const QString opening = KirvPseudoTranslator::opening(), closing = KirvPseudoTranslator::closing();
    QList<QString> open { QString() };
    for (int place = 0; place < text.size();) {
        if (QStringView(text).mid(place).startsWith(opening)) {
            *isNested = *isNested || open.size() > 1;
            open << QString();
            place += int(opening.size());
        } else if (QStringView(text).mid(place).startsWith(closing)) {
            if (open.size() < 2)
                return false;
            pieces->append(open.takeLast());
            open.last() += QLatin1Char('\n');
            place += int(closing.size());
        } else {
            open.last() += text.at(place++);
        }
    }
    *outside = open.first();
    return open.size() == 1;
}

bool isSentence(const QString &piece)
{
    return piece.endsWith(QLatin1Char('.')) || piece.endsWith(QLatin1Char('?')) || piece.endsWith(QLatin1Char('!'));
}

} // namespace

KirvTextSurvey::KirvTextSurvey(const QStringList &words, const QList<Allowed> &allowed)
    : allowed(allowed)
{
    QStringList escaped;
    for (const QString &word : words)
        escaped << QRegularExpression::escape(word);
    // The longer ones are looked for first.
    std::sort(escaped.begin(), escaped.end(),
              [](const QString &one, const QString &other) { return one.size() > other.size(); });
    data.setPattern(QStringLiteral("(?<!\\w)(%1)(?!\\w)").arg(escaped.join(QLatin1Char('|'))));
    data.setPatternOptions(QRegularExpression::UseUnicodePropertiesOption);
}

QString KirvTextSurvey::slipIn(const QString &text) const
{
    QStringList pieces;
    QString outside;
    bool isNested = false;
    if (!takeApart(text, &pieces, &outside, &isNested))
        return QStringLiteral("is cut off");
    if (hasLetter(outside.remove(data)))
        return QStringLiteral("is not translated");
    // Whole sentences may follow each other.
    const bool areSentences =
        !isNested && outside.trimmed().isEmpty() && std::all_of(pieces.begin(), pieces.end(), isSentence);
    return pieces.size() > 1 && !areSentences ? QStringLiteral("is put together") : QString();
}

void KirvTextSurvey::check(const QString &place, const QString &where, const QString &text)
{
    if (text.isEmpty())
        return;
    ++count;
    const QString slip = slipIn(text);
    if (slip.isEmpty())
        return;
    const auto is = [&where](const Allowed &one) { return one.where.match(where).hasMatch(); };
    const auto permission = std::find_if(allowed.begin(), allowed.end(), is);
    if (permission != allowed.end() && slip == QLatin1String("is put together"))
        return;
    found << QStringLiteral("%1: %2 %3: %4").arg(place, where, slip, text);
}

void KirvTextSurvey::look(const QString &place, QWidget *window)
{
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    widgets.prepend(window);
    for (const QWidget *widget : qAsConst(widgets)) {
        if (!widget->isVisible() || widget->window() != window)
            continue;
        const QList<Shown> texts = shownBy(widget);
        for (const Shown &shown : texts)
            check(place, shown.where, shown.text);
        if (isClipped(widget))
            found << QStringLiteral("%1: %2 is clipped: %3 x %4, needs %5 x %6")
                         .arg(place, nameOf(widget))
                         .arg(widget->width())
                         .arg(widget->height())
                         .arg(widget->sizeHint().width())
                         .arg(widget->sizeHint().height());
    }
    found.removeDuplicates();
}

bool KirvTextSurvey::isClipped(const QWidget *widget)
{
    const QSize wanted = widget->sizeHint(), least = widget->minimumSizeHint();
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->text().isEmpty())
            return false;
        return label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                                 : label->width() < wanted.width() || label->height() < wanted.height();
    }
    if (qobject_cast<const QCommandLinkButton *>(widget))
        return widget->height() < (widget->sizePolicy().hasHeightForWidth() ? least.height() : wanted.height());
    if (qobject_cast<const QAbstractButton *>(widget))
        return !static_cast<const QAbstractButton *>(widget)->text().isEmpty()
            && (widget->width() < wanted.width() || widget->height() < wanted.height());
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
        return tabs->width() < wanted.width() && !tabs->usesScrollButtons();
    if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
        for (int section = 0; section < header->count(); ++section) {
            if (!header->isSectionHidden(section) && header->sectionSize(section) < header->sectionSizeHint(section))
                return true;
        }
        return false;
    }
    if (qobject_cast<const QGroupBox *>(widget) || qobject_cast<const QComboBox *>(widget))
        return widget->width() < least.width();
    return false;
}
