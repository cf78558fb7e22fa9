#include "help/HTMLHelpViewer.h"

#include "system/Modules.h"
#include "system/Shell.h"
#include "widgets/FormServices.h"
#include "widgets/MessageBoxes.h"
#include "widgets/PdfFileChoice.h"
#include "widgets/WindowPlacement.h"

#include <QCoreApplication>

HelpWindow* loadHelpWindow(Modules& modules, HelpHost& host)
{
    using Make = HelpWindow* (*)(HelpHost&);
    const auto make = modules.resolve<Make>(QLatin1String(HelpModule), "ambertaskMakeHelpWindow");
    return make == nullptr ? nullptr : make(host);
}

HTMLHelpViewer::HTMLHelpViewer(HelpWindowFactory factory, const FormServices& services)
    : m_factory(std::move(factory)), m_services(services)
{
}

HTMLHelpViewer::~HTMLHelpViewer()
{
    Unload();
}

template <typename Operation> void HTMLHelpViewer::show(Operation operation)
{
    if (m_window == nullptr && m_factory) {
        m_window.reset(m_factory(*this));
    }
    if (m_window == nullptr) {
        m_services.messages.tell(nullptr, MessageBoxes::Icon::Exclamation,
            QCoreApplication::translate(
                "HTMLHelpViewer", "The help window is missing from this installation."));
        return;
    }
    m_window->setFile(m_helpFile);
    operation(*m_window);
    if (m_services.alwaysOnTop()) {
        makeTopmost(m_window.get());
    } else {
        leaveTopmost(m_window.get());
    }
    // Without an owner: it may go behind the main window, and stays when that is hidden.
    showOwned(m_window.get(), nullptr);
}

void HTMLHelpViewer::Show()
{
    show([](HelpWindow& window) { window.showDefaultTopic(); });
}

void HTMLHelpViewer::ShowContents()
{
    show([](HelpWindow& window) { window.showContents(); });
}

void HTMLHelpViewer::ShowIndex()
{
    show([](HelpWindow& window) { window.showIndex(); });
}

void HTMLHelpViewer::ShowSearch()
{
    show([](HelpWindow& window) { window.showSearch(); });
}

void HTMLHelpViewer::ShowContext(qint32 lngContextID)
{
    show([lngContextID](HelpWindow& window) { window.showContext(lngContextID); });
}

void HTMLHelpViewer::Unload()
{
    if (m_window != nullptr) {
        m_window->close();
        m_window.reset();
    }
}

void HTMLHelpViewer::openWebPage(const QString& address)
{
    m_services.shell.openWebPage(address);
}

QString HTMLHelpViewer::choosePdfFile(QWidget* owner, const QString& name)
{
    return ::choosePdfFile(m_services, owner, name);
}

bool HTMLHelpViewer::ask(QWidget* owner, const QString& question)
{
    return m_services.messages.ask(owner, question);
}

void HTMLHelpViewer::tellFailure(QWidget* owner, const QString& text)
{
    m_services.messages.tell(owner, MessageBoxes::Icon::Exclamation, text);
}
