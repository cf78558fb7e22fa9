#pragma once

class QString;
struct SkinFile;

/// The program's style sheet in the colours of `skin`, for the size of the application's font.
QString skinSheet(const SkinFile& skin);
