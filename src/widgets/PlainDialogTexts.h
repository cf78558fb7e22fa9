#pragma once

#include <QObject>

/// Workaround: dialogs of Qt 6.4.2 put names of files and folders into questions and tool tips that guess
/// whether a text is markup. While an object of this class lives, these show the names as they are; whoever
/// opens such a dialog holds one (tst_qt_workarounds, aFileNameInAQuestionIsTakenForMarkup).
class PlainDialogTexts final : public QObject
{
    Q_OBJECT

public:
    PlainDialogTexts();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
