#pragma once

#include "app/RecordedMachine.h"
#include "app/frmMain.h"
#include "widgets/GridView.h"

#include <QAction>
#include <QPushButton>
#include <QTest>

/// The whole program on a temporary data file and a recording machine.
struct ProgramFixture : RecordedMachine {
    explicit ProgramFixture(const QString& shippedFolder = {}, const NotificationsFactory& notifications = {})
        : program(machine(shippedFolder, notifications))
    {
    }
    ~ProgramFixture() { program.unload(); }

    void start(bool firstStart = false)
    {
        program.start([firstStart] { return firstStart; });
        // As the first painting would: tests reach for controls of all pages.
        main().wakePages();
    }
    frmMain& main() { return program.mainWindow(); }
    template <typename Control> Control* control(QWidget& window, const char* name)
    {
        return window.findChild<Control*>(QLatin1String(name));
    }
    QAction* menu(const char* name) { return main().findChild<QAction*>(QLatin1String(name)); }
    void press(QWidget& window, const char* name)
    {
        QTest::mouseClick(control<QPushButton>(window, name), Qt::LeftButton);
    }
    GridView* grid(QWidget& window) { return control<GridView>(window, "grdTasks"); }

    Program program;
};
