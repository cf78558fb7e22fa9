#pragma once

class QString;
struct SkinFile;

/// The program's style sheet in the colours of `skin`, for the size of the application's font. Skins bring
/// colours only: so what is measured with one skin holds for all, and no skin can lose a mark or an arrow.
QString skinSheet(const SkinFile& skin);
