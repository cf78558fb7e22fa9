#pragma once

#include "help/window/CompiledHelpWindow.h"
#include "help/window/HelpPanes.h"
#include "help/window/TopicView.h"
#include "tests/help/RecordedHelpHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>
#include <QTest>

/// The help window on the help file of this build.
struct Help {
    Help()
        : window(host,
            [this] {
                ++askedForPrinter;
                return hasPrinter;
            }),
          topic(*window.findChild<TopicView*>()), tabs(*window.findChild<QTabWidget*>())
    {
        window.setFile(QStringLiteral(AMBERTASK_HELP_FILE));
        window.show();
        QApplication::setActiveWindow(&window);
    }

    template <typename Control = QWidget> Control& control(const char* name)
    {
        return *window.findChild<Control*>(QLatin1String(name));
    }
    void press(const char* name) { QTest::mouseClick(&control<QAbstractButton>(name), Qt::LeftButton); }
    QString page() { return tabs.tabText(tabs.currentIndex()).remove(u'&'); }
    QString selectedInContents()
    {
        const QTreeWidgetItem* item = control<QTreeWidget>("treContents").currentItem();
        return item == nullptr ? QString() : item->text(0);
    }
    void search(const QString& words)
    {
        window.showSearch();
        QTest::keyClicks(&control("txtSearch"), words);
        QTest::keyClick(&control("txtSearch"), Qt::Key_Return);
    }

    RecordedHelpHost host;
    bool hasPrinter = false;
    int askedForPrinter = 0;
    CompiledHelpWindow window;
    TopicView& topic;
    QTabWidget& tabs;
};
