#pragma once

#include <QCoreApplication>
#include <QDialog>

class QProgressBar;

/// A box that says what is being done and how far it is, with a button to cancel. Application-modal: while
/// it is shown, no other window takes input. Interface thread only.
class ProgressBox final : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(ProgressBox)

public:
    /// Not shown yet. `owner` may be null; `text` is plain.
    ProgressBox(QWidget* owner, const QString& text);

    /// `done` of `total`, in any unit; a `total` of 0 means unknown.
    void setProgress(qint64 done, qint64 total);
    /// The user has pressed "Cancel", Escape or the close box.
    bool isCancelled() const { return m_cancelled; }

    void reject() override;

private:
    QProgressBar* m_bar;
    bool m_cancelled = false;
};
