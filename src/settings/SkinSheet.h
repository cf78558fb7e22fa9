#pragma once

class QString;
struct SkinFile;

/// The style sheet of the program in the colours of `skin`, for letters of the application's font.
QString skinSheet(const SkinFile& skin);
