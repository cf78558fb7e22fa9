#pragma once

#include <QStringList>

class QWidget;

/// The texts that do not fit where `window` shows them now, one line each: captions of labels, buttons,
/// options, tabs, boxes, columns and menu entries, entries of lists, dates. A caption of a column may be
/// elided when a tool tip says it whole.
QStringList cutOffTexts(QWidget& window);

/// All words that `window` shows or has a screen reader say now: captions, titles, entries of lists, tool
/// tips, accessible names and descriptions. Without what stands in lists of records and in fields.
QStringList textsOf(QWidget& window);

/// The mnemonics on `window` now, as letters in lower case, one entry for each control that has one.
QStringList mnemonicsOf(QWidget& window);
