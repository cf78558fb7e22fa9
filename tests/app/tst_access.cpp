#include "support/TestMain.h"
#include "system/Language.h"
#include "tests/app/AccessAudit.h"
#include "tests/app/EveryWindow.h"
#include "widgets/ComboBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>

/// Every window, without a mouse and through assistive technology.
class AccessTest : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { m_language.speak({}); }

    void whatIsMissingIsFound()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* edit = new QLineEdit;
        auto* label = new QLabel(QStringLiteral("Words"));
        auto* first = new QPushButton(QStringLiteral("&Ok"));
        auto* second = new QPushButton(QStringLiteral("&Old"));
        auto* third = new QPushButton(QStringLiteral("Plain"));
        edit->setObjectName(QStringLiteral("edit"));
        third->setObjectName(QStringLiteral("third"));
        third->setFocusPolicy(Qt::NoFocus);
        for (QWidget* widget : std::initializer_list<QWidget*>{label, edit, first, second, third}) {
            layout->addWidget(widget);
        }
        second->setObjectName(QStringLiteral("second"));
        first->setObjectName(QStringLiteral("first"));
        QWidget::setTabOrder(second, first);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QStringList faults = accessFaults(window);
        faults.sort();
        QStringList expected({"Alt+O is given to \"&Ok\" and \"&Old\"",
            "edit has no label whose mnemonic leads to it", "edit has the accessible name \"\"",
            "the Tab key goes backwards from second to first", "the Tab key never comes to third",
            "third does not take the focus from the Tab key", "third has no key"});
        expected.sort();
        QCOMPARE(faults, expected);
    }

    void twoControlsOfOneNameAreFound()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* first = new QPushButton(QStringLiteral("&Browse"));
        auto* second = new QPushButton(QStringLiteral("B&rowse"));
        first->setObjectName(QStringLiteral("first"));
        second->setObjectName(QStringLiteral("second"));
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(accessFaults(window), QStringList{"first and second are both named \"Browse\""});
    }

    void aListThatAssistiveTechnologyCannotChooseFromIsFound()
    {
        QWidget window;
        auto* layout = new QFormLayout(&window);
        for (auto* combo : {new QComboBox, static_cast<QComboBox*>(new ComboBox)}) {
            const QString name = QString::number(layout->rowCount());
            combo->setObjectName(name);
            combo->addItems({QStringLiteral("one"), QStringLiteral("two")});
            layout->addRow(u'&' + name, combo);
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(accessFaults(window), QStringList{"0 has entries that cannot be chosen"});
    }

    void aGroupOfOptionsIsReachedAsOne()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        const auto addOptions = [layout](const QStringList& captions) {
            auto* group = new QWidget;
            auto* inGroup = new QVBoxLayout(group);
            for (const QString& caption : captions) {
                inGroup->addWidget(new QRadioButton(caption));
                inGroup->itemAt(inGroup->count() - 1)->widget()->setObjectName(caption);
            }
            layout->addWidget(group);
            return group;
        };
        addOptions({"&one", "&two"});
        QWidget* left = addOptions({"t&hree", "&four"});
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(accessFaults(window), QStringList());
        // By now the first group has given the Tab key to one of its options alone.
        QCOMPARE(accessFaults(window), QStringList());
        for (auto* option : left->findChildren<QRadioButton*>()) {
            option->setFocusPolicy(Qt::ClickFocus);
        }
        window.findChild<QRadioButton*>(QStringLiteral("&one"))->setFocus();
        QCOMPARE(accessFaults(window),
            QStringList({"t&hree does not take the focus from the Tab key",
                "&four does not take the focus from the Tab key", "the Tab key never comes to t&hree",
                "the Tab key never comes to &four"}));
    }

    void aFramesKeyLeadsToItsCheckBoxes()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* frame = new QGroupBox(QStringLiteral("&Days"));
        auto* days = new QVBoxLayout(frame);
        for (const char* day : {"Monday", "Tuesday"}) {
            days->addWidget(new QCheckBox(QLatin1String(day)));
            days->itemAt(days->count() - 1)->widget()->setObjectName(QLatin1String(day));
        }
        layout->addWidget(frame);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(accessFaults(window), QStringList());
        QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
        QCOMPARE(window.focusWidget()->objectName(), QStringLiteral("Monday"));
        frame->setTitle(QStringLiteral("Days"));
        QCOMPARE(accessFaults(window), QStringList({"Monday has no key", "Tuesday has no key"}));
    }

    void whatReadsFromLeftToRightIsReachedSoInAProgramThatReadsTheOtherWay()
    {
        QWidget window;
        window.setLayoutDirection(Qt::RightToLeft);
        auto* layout = new QVBoxLayout(&window);
        auto* name = new QWidget;
        auto* words = new QHBoxLayout(name);
        for (const char* word : {"&First", "&Second"}) {
            auto* button = new QPushButton(QLatin1String(word));
            button->setObjectName(QLatin1String(word));
            words->addWidget(button);
        }
        layout->addWidget(name);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCOMPARE(accessFaults(window), QStringList());
        name->setLayoutDirection(Qt::LeftToRight);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(accessFaults(window), QStringList());
        words->setDirection(QBoxLayout::RightToLeft);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(accessFaults(window), QStringList{"the Tab key goes backwards from &First to &Second"});
    }

    void everyWindowInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("en") << QString();
        for (const QString& name : Language::shipped()) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
    void everyWindowInEveryLanguage()
    {
        QFETCH(const QString, language);
        m_language.speak(language);
        SkinnedProgram program(QStringLiteral("Aqua"));
        int windows = 0;
        int controls = 0;
        QStringList faults;
        visitEveryWindow(program, [&](const QString& name, QWidget& window) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            int seen = 0;
            for (const QString& fault : accessFaults(window, &seen)) {
                faults.append(name + QLatin1String(": ") + fault);
            }
            ++windows;
            controls += seen;
        });
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QCOMPARE(windows, 34);
        QVERIFY2(controls >= 290, qPrintable(QString::number(controls)));
    }

private:
    Language m_language;
};

AMBERTASK_TEST_MAIN(AccessTest)
#include "tst_access.moc"
