#pragma once

class QFontMetrics;
class QString;
struct SkinFile;

/// The program's style sheet in the colours of `skin`, for the size of the application's font. Skins bring
/// colours only: so what is measured with one skin holds for all, and no skin can lose a mark or an arrow.
QString skinSheet(const SkinFile& skin);

/// Pixels for a date in that format, without the buttons that Qt adds: the same for all usual formats, more
/// for one with names of days and months.
int dateWidth(const QFontMetrics& letters, const QString& format);
