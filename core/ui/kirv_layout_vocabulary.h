// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LAYOUT_VOCABULARY_H
#define KIRV_LAYOUT_VOCABULARY_H

#include <QString>

/// The words that a layout may use.
namespace KirvLayoutVocabulary {

enum List {
    widgets, ///< the classes of widgets
    layoutClasses, ///< the classes of layouts
    elements, ///< the elements of the files that Qt Designer writes, without signals, slots, actions and scripts
    attributes, ///< the attributes that Qt Designer writes, without those that put another text in the place of one
    placeAttributes, ///< the attributes that make rows or columns
    numberAttributes, ///< the attributes that hold a number, or some between commas
    pictureElements, ///< the elements that hold the path of a picture
    numberElements, ///< the elements that hold a number
    textProperties, ///< what a text may be set to; anything else that took one would convert it, and bounds would not
                    ///< hold
    rangeProperties, ///< limits that layouts set as high as they can
    countProperties, ///< the numbers of objects that a widget makes
};

/// Whether \a word is in the \a list.
bool has(List list, const QString &word);

} // namespace KirvLayoutVocabulary

#endif
