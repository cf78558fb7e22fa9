#pragma once

class QTabWidget;
class QWidget;

/// Gives the window of `tabs` the keys that turn its pages, from whichever control has the focus: Alt with
/// the number of a page, Ctrl+Tab and Ctrl+Page Down to the next, Ctrl+Shift+Tab and Ctrl+Page Up to the one
/// before.
void addPageKeys(QTabWidget& tabs);

/// Gives the focus to the first control of a page that takes it; nothing when there is none.
void focusFirstControl(QWidget& page);
