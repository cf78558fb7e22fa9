#pragma once

/// Lets assistive technology see and work windows and controls as what they are: pressing a link, toggling a
/// check box and choosing an entry of a combo box count as the user's own click, a menu opens without keeping
/// the asker waiting, and a window says that it is one. The program calls it before its first window; the
/// controls of this folder that depend on it do so too. Once is enough.
void installAccessibleControls();
