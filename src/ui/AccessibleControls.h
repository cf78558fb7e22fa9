#pragma once

/// Lets assistive technology see and work the controls of this folder as what they are: pressing a link and
/// toggling a check box count as the user's own click. (The tool kit's own check box is toggled behind the
/// back of its `clicked` handlers.) The constructors of the controls call it; once is enough.
void installAccessibleControls();
