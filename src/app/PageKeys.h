#pragma once

class QTabWidget;
class QWidget;

/// Adds shortcuts to the window of `tabs` that turn its pages, whichever control has the focus: Alt and the
/// number of a page; Ctrl+Tab and Ctrl+Page Down for the next, Ctrl+Shift+Tab and Ctrl+Page Up for the
/// previous one.
void addPageKeys(QTabWidget& tabs);

/// Gives the focus to the first control of `page` that accepts it.
void focusFirstControl(QWidget& page);
