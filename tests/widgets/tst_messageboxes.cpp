#include "support/TestMain.h"
#include "widgets/MessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

namespace
{

using Unsaved = MessageBoxes::Unsaved;

/// Presses the key in the box that opens next.
void pressWhenOpen(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTimer::singleShot(0, qApp, [key, modifiers] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        QVERIFY(QTest::qWaitForWindowActive(box));
        QTest::keyClick(box->focusWidget(), key, modifiers);
    });
}

bool answerTo(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    pressWhenOpen(key, modifiers);
    return ScreenMessageBoxes().ask(nullptr, QStringLiteral("Are you sure?"));
}

Unsaved choiceBy(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    pressWhenOpen(key, modifiers);
    return ScreenMessageBoxes().askAboutUnsaved(nullptr, QStringLiteral("The changes are not saved."));
}

} // namespace

class MessageBoxesTest : public TestCase
{
    Q_OBJECT

private slots:
    void enterAndEscapeAnswerAQuestionByNo()
    {
        QVERIFY(!answerTo(Qt::Key_Return));
        QVERIFY(!answerTo(Qt::Key_Enter, Qt::KeypadModifier));
        QVERIFY(!answerTo(Qt::Key_Escape));
    }

    void theKeyOfYesAnswersAQuestionByYes()
    {
        QVERIFY(answerTo(Qt::Key_Y, Qt::AltModifier));
        QVERIFY(!answerTo(Qt::Key_N, Qt::AltModifier));
    }

    void enterAndEscapeKeepUnsavedInput()
    {
        QCOMPARE(choiceBy(Qt::Key_Return), Unsaved::Keep);
        QCOMPARE(choiceBy(Qt::Key_Escape), Unsaved::Keep);
        QCOMPARE(choiceBy(Qt::Key_C, Qt::AltModifier), Unsaved::Keep);
    }

    void unsavedInputIsSavedAndDiscardedByTheirKeys()
    {
        QCOMPARE(choiceBy(Qt::Key_S, Qt::AltModifier), Unsaved::Save);
        QCOMPARE(choiceBy(Qt::Key_D, Qt::AltModifier), Unsaved::Discard);
    }

    void aBoxThatEndsWithItsProgramKeepsUnsavedInput()
    {
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        QCOMPARE(ScreenMessageBoxes().askAboutUnsaved(nullptr, QStringLiteral("Text")), Unsaved::Keep);
    }
};

AMBERTASK_TEST_MAIN(MessageBoxesTest)
#include "tst_messageboxes.moc"
