#pragma once

#include <QObject>

/// While one lives, dialogs of Qt show names of files and folders as they are: they put them into
/// the questions that they ask and the tool tips of their lists, and leave it to those to guess whether that
/// is markup. Whoever opens such a dialog holds one meanwhile.
class PlainDialogTexts final : public QObject
{
    Q_OBJECT

public:
    PlainDialogTexts();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
