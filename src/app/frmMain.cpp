#include "app/frmMain.h"

#include "app/FixedPictures.h"
#include "app/HeaderFrame.h"
#include "app/PageKeys.h"
#include "app/TasksPage.h"
#include "categories/CategoriesPage.h"
#include "data/SettingsRecord.h"
#include "settings/MaintenancePage.h"
#include "settings/SettingsPage.h"
#include "system/ErrorReport.h"
#include "system/Shell.h"
#include "widgets/CloseBox.h"
#include "widgets/LetterScale.h"
#include "widgets/LinkLabel.h"
#include "widgets/MenuPlace.h"
#include "widgets/NamedControls.h"
#include "widgets/PictureLabel.h"
#include "widgets/WindowPlacement.h"
#include "widgets/clsGuiLoader.h"

#include <QAction>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

namespace
{

enum Page { TasksIndex, CategoriesIndex, SettingsIndex, MaintenanceIndex };

constexpr int BalloonMilliseconds = 2000;
constexpr QSize FirstSize(960, 640);
constexpr QSize LogoSize(32, 32);

} // namespace

frmMain::frmMain(
    const FormServices& services, const SettingsRecord& settings, MainWindowHost& host, MainWindowPages pages)
    : m_services(services), m_settings(settings), m_host(host), m_pages(pages), m_tabs(new QTabWidget)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Ambertask"));
    m_tabs->setObjectName(QStringLiteral("tabMain"));
    QWidget* header = makeHeader();
    const auto addPage = [&](QWidget* page, const QString& caption) {
        m_resting.emplace_back(page, QList<const QWidget*>{header, m_tabs->tabBar()});
        m_tabs->addTab(m_resting.back().place(), caption);
    };
    addPage(m_pages.tasks, tr("Tasks"));
    addPage(m_pages.categories, tr("Categories"));
    addPage(m_pages.settings, tr("Settings"));
    addPage(m_pages.maintenance, tr("Maintenance"));
    // It is the page that is seen first.
    m_resting[TasksIndex].join();
    m_trayMenu = makeTrayMenu();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(m_tabs, 1);
    addPageKeys(*m_tabs);
    resize(withLetters(FirstSize, font()));
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, &frmMain::helpRequested);
    // After the pages are added, which switches to the first one.
    connectGuarded(m_tabs, &QTabWidget::currentChanged, this, &frmMain::tabMain_Switch, services.errors);
    connectGuarded(&m_trayIcon, &TrayIcon::activated, this, &frmMain::toggle, services.errors);
    followMinimizing(this);
}

QWidget* frmMain::makeHeader()
{
    auto* header = new HeaderFrame;
    header->setObjectName(QStringLiteral("framHeader"));
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    // The product's name reads from left to right in every language.
    auto* product = new QWidget;
    product->setLayoutDirection(Qt::LeftToRight);
    auto* name = new QHBoxLayout(product);
    name->setContentsMargins({});
    auto* picture = new PictureLabel(LogoSize);
    picture->setPicture(programIcon());
    name->addWidget(picture);
    const auto addLink = [&](const char* objectName, const QString& text, bool bold) {
        auto* label = new LinkLabel(text);
        label->setObjectName(QLatin1String(objectName));
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * 1.7);
        font.setBold(bold);
        label->setFont(font);
        connectGuarded(label, &LinkLabel::clicked, this, &frmMain::header_Click, m_services.errors);
        name->addWidget(label);
    };
    addLink("lblAmberHeader", QStringLiteral("Amber"), true);
    addLink("lblOrganizerHeader", QStringLiteral("Organizer"), false);
    layout->addWidget(product);
    layout->addStretch();
    layout->addWidget(named(plainLabel(tr("Version 1.1")), "lblVersionHeader"), 0, Qt::AlignBottom);
    connect(header, &HeaderFrame::menuRequested, this, &frmMain::header_Menu);
    return header;
}

QMenu* frmMain::makeTrayMenu()
{
    auto* menu = new QMenu(tr("Tray"), this);
    menu->setObjectName(QStringLiteral("mnuTray"));
    const auto add = [menu](const char* name, const QString& caption) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    ErrorReport& errors = m_services.errors;
    m_mnuShow = add("mnuShow", tr("Show"));
    connectGuarded(m_mnuShow, &QAction::triggered, this, &frmMain::toggle, errors);
    connect(add("mnuAbout", tr("About")), &QAction::triggered, this, &frmMain::aboutRequested);
    connect(add("mnuHelp", tr("Help")), &QAction::triggered, this, &frmMain::helpRequested);
    connectGuarded(add("mnuFeedBack", tr("Send feedback")), &QAction::triggered, this,
        &frmMain::mnuFeedBack_Click, errors);
    connect(add("mnuExit", tr("Exit")), &QAction::triggered, this, &frmMain::exitRequested);
    // No event says so where the desktop tells no program of minimized windows.
    connect(menu, &QMenu::aboutToShow, this, [this] { syncTrayCaption(isBeforeTheUser(this)); });
    return menu;
}

frmMain::~frmMain() = default;

void frmMain::wakePage(int page)
{
    m_resting[static_cast<std::size_t>(page)].wake();
}

void frmMain::wakePages()
{
    for (RestingPage& page : m_resting) {
        page.wake();
    }
}

void frmMain::Form_Load()
{
    wakePage(TasksIndex);
    fillPages();
    m_pages.maintenance->prepareFilters();
    m_tabs->setCurrentIndex(TasksIndex);
    m_loaded = true;
    // Filling the list of skins handles events, one of which may have ended the program.
    if (m_ending) {
        return;
    }
    if (!m_settings.minimize_on_start) {
        if (m_settings.always_on_top) {
            makeTopmost(this);
        }
        putInPlace(this);
        show();
        // The window manager may refuse: the user may be typing elsewhere.
        activateWindow();
    } else {
        stayReachable();
    }
    // Also in a hidden window, for when it is shown.
    m_pages.tasks->focusList();
}

void frmMain::fillPages()
{
    LoadCategories();
    m_pages.tasks->fillFilters();
    m_pages.settings->startSkinsList();
    m_pages.settings->LoadSettingsPage();
    // Builds the list by selecting the date option. Nothing runs in between that could change it before the
    // next step of loading, which would build it again.
    ApplyChanges();
}

void frmMain::addTrayIcon()
{
    if (!m_ending) {
        m_trayIcon.add(programIcon(), tr("Ambertaks"), m_trayMenu);
    }
}

void frmMain::ApplyChanges()
{
    m_pages.settings->applySkin();
    place(m_settings.always_on_top);
    m_pages.tasks->startWith(m_pages.settings->showTodayTasksChecked());
    m_pages.tasks->setGridLines(m_pages.settings->showGridChecked());
}

void frmMain::LoadTasks()
{
    m_pages.tasks->LoadTasks();
}

void frmMain::LoadCategories()
{
    m_pages.categories->LoadCategories();
}

void frmMain::reloadCategoryCombos()
{
    m_pages.tasks->reloadCategories();
    clsGuiLoader(m_services.engine).reloadCategoriesCombo(m_pages.maintenance->cmbCategoriesMaintenance());
}

void frmMain::saveSettings()
{
    m_pages.settings->btnSave_Click();
}

void frmMain::focusTaskGrid()
{
    focusListOf(TasksIndex);
}

void frmMain::focusCategoryList()
{
    focusListOf(CategoriesIndex);
}

void frmMain::focusListOf(int page)
{
    const bool isInFront = m_tabs->currentIndex() == page;
    // A list that is not seen would take keys meant for the page in front.
    if (!isInFront && m_tabs->currentWidget()->isAncestorOf(focusWidget())) {
        activate(this);
    } else {
        focusPage();
    }
}

void frmMain::focusPage()
{
    activate(this);
    switch (m_tabs->currentIndex()) {
    case TasksIndex:
        m_pages.tasks->focusList();
        break;
    case CategoriesIndex:
        m_pages.categories->focusList();
        break;
    default:
        focusFirstControl(*m_tabs->currentWidget());
        break;
    }
}

void frmMain::place(bool topmost)
{
    if (topmost) {
        makeTopmost(this);
    } else {
        leaveTopmost(this);
    }
}

void frmMain::toggle()
{
    if (isBeforeTheUser(this)) {
        hideWindow();
        m_host.hideDialogs();
    } else if (isVisible() || !m_host.isTaskDialogVisible()) {
        // The dialog is minimized with the window.
        showWindow();
    }
}

void frmMain::showWindow()
{
    showOwned(this, nullptr);
}

void frmMain::hideWindow()
{
    if (m_host.hasNotificationArea()) {
        hide();
    } else {
        showMinimized();
    }
}

void frmMain::stayReachable()
{
    if (!isVisible() && !m_host.hasNotificationArea()) {
        putInPlace(this);
        showMinimized();
    }
}

void frmMain::setTrayCaption(const QString& caption)
{
    if (!m_loaded) {
        m_mnuShow->setText(caption);
    }
}

void frmMain::syncTrayCaption(bool shown)
{
    if (m_loaded) {
        m_mnuShow->setText(shown ? tr("Hide") : tr("Show"));
    }
}

bool frmMain::event(QEvent* event)
{
    // A window that is activated before its first painting is reported by firstPainted().
    if (event->type() == QEvent::WindowActivate && m_painted) {
        emit activated();
    }
    return QWidget::event(event);
}

void frmMain::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        syncTrayCaption(isShown());
    }
}

void frmMain::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    syncTrayCaption(isShown());
}

void frmMain::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    syncTrayCaption(isShown());
}

void frmMain::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (!m_painted) {
        m_painted = true;
        emit firstPainted();
    }
}

void frmMain::closeEvent(QCloseEvent* event)
{
    if (m_ending || !isCloseByUser(*event)) {
        event->accept();
        return;
    }
    event->ignore();
    hideWindow();
    if (m_pages.settings->showBallonChecked()) {
        m_trayIcon.showBalloon(
            QStringLiteral("Ambertask"), tr("Ambertaks is still running.."), BalloonMilliseconds);
    }
}

void frmMain::tabMain_Switch(int page)
{
    wakePage(page);
    if (page == CategoriesIndex) {
        m_pages.categories->pageOpened();
    } else if (page == SettingsIndex) {
        m_pages.settings->LoadSettingsPage();
    }
    // Whether the list is visible counts, whichever page is in front. The window is not brought in front of
    // an alert for it.
    if (page == TasksIndex && isVisible()) {
        m_pages.tasks->focusList();
    } else if (page == CategoriesIndex && isVisible()) {
        m_pages.categories->focusList();
    } else if (const QWidget* focus = focusWidget(); !m_tabs->isAncestorOf(focus)) {
        // The focus was on the links above.
        focusFirstControl(*m_tabs->currentWidget());
    }
}

void frmMain::mnuFeedBack_Click()
{
    m_services.shell.openVendorPage(QStringLiteral("/support.htm?referer=p"));
}

void frmMain::header_Menu(const QPoint& place, bool byKeys)
{
    // An icon in the notification area may be out of reach for the keyboard, so keys always open the menu
    // here.
    if (byKeys || !m_host.hasNotificationArea()) {
        popUpAt(*m_trayMenu, place);
        m_trayMenu->setActiveAction(byKeys ? m_mnuShow : nullptr);
    }
}

void frmMain::header_Click()
{
    m_services.shell.openVendorPage(QStringLiteral("/index.htm?referer=p"));
}
