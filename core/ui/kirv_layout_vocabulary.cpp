// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_layout_vocabulary.h"

#include <QSet>
#include <QStringList>

namespace {

// In the order of KirvLayoutVocabulary::List.
const char *const words[] = {
    // widgets
    ("KirvFormArea Line QCalendarWidget QCheckBox QColumnView QComboBox QCommandLinkButton QDateEdit "
     "QDateTimeEdit QDial QDialog QDialogButtonBox QDoubleSpinBox QFontComboBox QFrame QGroupBox "
     "QKeySequenceEdit QLCDNumber QLabel QLineEdit QListView QListWidget QPlainTextEdit QProgressBar "
     "QPushButton QRadioButton QScrollArea QScrollBar QSlider QSpinBox QSplitter QStackedWidget QTabWidget "
     "QTableView QTableWidget QTextBrowser QTextEdit QTimeEdit QToolBox QToolButton QTreeView QTreeWidget "
     "QWidget"),
    // layoutClasses
    "QFormLayout QGridLayout QHBoxLayout QVBoxLayout",
    // elements
    ("ui author comment exportmacro class widget layout item spacer property attribute layoutdefault "
     "zorder tabstops tabstop customwidgets customwidget extends header container resources include "
     "connections slots designerdata buttongroups buttongroup row column bool color red green blue cstring "
     "cursorShape enum set string stringlist number float double uint longlong ulonglong char unicode date "
     "year month day time hour minute second datetime size sizef width height rect rectf x y point pointf "
     "font family pointsize weight italic bold underline strikeout antialiasing stylestrategy kerning "
     "hintingpreference fontweight palette active inactive disabled colorrole colorgroup brush texture "
     "gradient gradientstop sizepolicy hsizetype vsizetype horstretch verstretch iconset normaloff "
     "normalon disabledoff disabledon activeoff activeon selectedoff selectedon pixmap locale"),
    // attributes
    ("version language displayname stdsetdef stdSetDef connectslotsbyname class name native stretch rowstretch "
     "columnstretch rowminimumheight columnminimumwidth row column rowspan colspan alignment spacing margin stdset "
     "notr comment extracomment theme resource alias location impldecl hsizetype vsizetype alpha role brushstyle "
     "startx starty endx endy centralx centraly focalx focaly radius angle type spread coordinatemode position "
     "country"),
    // placeAttributes
    "row column rowspan colspan",
    // numberAttributes
    "stretch rowstretch columnstretch rowminimumheight columnminimumwidth spacing margin",
    // pictureElements
    "iconset normaloff normalon disabledoff disabledon activeoff activeon selectedoff selectedon pixmap",
    // numberElements
    "number float double uint longlong ulonglong width height x y pointsize horstretch verstretch weight",
    // textProperties
    ("text title label toolTip statusTip whatsThis windowTitle windowIconText accessibleName "
     "accessibleDescription placeholderText buddy styleSheet html plainText prefix suffix specialValueText "
     "displayFormat inputMask shortcut format currentText description objectName documentTitle icon "
     "currentPageName currentTabName"),
    // rangeProperties
    ("minimum maximum value singleStep pageStep maxLength maximumWidth maximumHeight maximumBlockCount "
     "maximumSize"),
    // countProperties
    "rowCount columnCount digitCount",
};

QSet<QString> wordsOf(KirvLayoutVocabulary::List list)
{
    const QStringList all = QString::fromLatin1(words[list]).split(QLatin1Char(' '));
    return QSet<QString>(all.begin(), all.end());
}

} // namespace

bool KirvLayoutVocabulary::has(List list, const QString &word)
{
    static const QSet<QString> sets[] = { wordsOf(widgets),         wordsOf(layoutClasses),   wordsOf(elements),
                                          wordsOf(attributes),      wordsOf(placeAttributes), wordsOf(numberAttributes),
                                          wordsOf(pictureElements), wordsOf(numberElements),  wordsOf(textProperties),
                                          wordsOf(rangeProperties), wordsOf(countProperties) };
    return sets[list].contains(word);
}
