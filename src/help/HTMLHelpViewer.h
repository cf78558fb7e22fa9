#pragma once

#include "help/HelpWindow.h"

#include <memory>

struct FormServices;

/// Opens the program's help file in the one help window. What cannot be shown the window says itself; the
/// program goes on. Interface thread only.
class HTMLHelpViewer final : private HelpHost
{
public:
    /// `services` outlives the viewer.
    HTMLHelpViewer(HelpWindowFactory factory, const FormServices& services);
    /// Closes the viewer.
    ~HTMLHelpViewer() override;

    /// Full path of the help file.
    const QString& HelpFile() const { return m_helpFile; } // Without a caller: part of the interface.
    void SetHelpFile(const QString& file) { m_helpFile = file; }

    void Show(); // Show, ShowIndex, ShowSearch: without a caller in the program, part of the interface.
    void ShowContents();
    void ShowIndex();
    void ShowSearch();
    void ShowContext(qint32 lngContextID);
    /// Closes the viewer's window; nothing when none is open.
    void Unload();

    /// The window that the last show operation returned, even if the user has closed it since; null when
    /// there is none.
    HelpWindow* viewerWindow() const { return m_window.get(); }

private:
    template <typename Operation> void show(Operation operation);

    void openWebPage(const QString& address) override;
    QString choosePdfFile(QWidget* owner, const QString& name) override;
    bool ask(QWidget* owner, const QString& question) override;
    void tellFailure(QWidget* owner, const QString& text) override;

    HelpWindowFactory m_factory;
    const FormServices& m_services;
    QString m_helpFile;
    std::unique_ptr<HelpWindow> m_window;
};
