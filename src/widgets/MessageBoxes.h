#pragma once

#include <QCoreApplication>

class QWidget;

/// The message boxes of the program, titled as the application and modal to it. Texts are plain.
class MessageBoxes
{
    Q_DECLARE_TR_FUNCTIONS(MessageBoxes)

public:
    enum class Icon { None, Information, Exclamation };
    /// The user's answer to a question about unsaved input.
    enum class Unsaved { Save, Discard, Keep };
    /// Which times of something that repeats are meant.
    enum class Times { This, All, None };

    MessageBoxes() = default;
    virtual ~MessageBoxes() = default;
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    /// Shows `text` with an OK button and returns when the box is closed. `owner` may be null.
    virtual void tell(QWidget* owner, Icon icon, const QString& text) = 0;
    /// Asks with the question icon and the buttons Yes and No. True only for Yes; Enter and Escape mean No.
    virtual bool ask(QWidget* owner, const QString& question) = 0;
    /// Asks about unsaved input, with the buttons Save, Discard and Cancel. Cancel, Enter and Escape mean
    /// Keep, which loses nothing.
    virtual Unsaved askAboutUnsaved(QWidget* owner, const QString& text) = 0;
    /// Asks with the buttons "This Time", "All Times" and Cancel. Cancel, Enter and Escape mean None.
    virtual Times askWhichTimes(QWidget* owner, const QString& question) = 0;
};

/// The message boxes on the screen.
class ScreenMessageBoxes final : public MessageBoxes
{
public:
    void tell(QWidget* owner, Icon icon, const QString& text) override;
    bool ask(QWidget* owner, const QString& question) override;
    Unsaved askAboutUnsaved(QWidget* owner, const QString& text) override;
    Times askWhichTimes(QWidget* owner, const QString& question) override;
};
