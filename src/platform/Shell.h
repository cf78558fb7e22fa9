#pragma once

#include <QString>
#include <QStringList>

/// The vendor's web address; paths such as "/index.htm?referer=p" are joined to it.
inline constexpr char VendorAddress[] = "https://www.ambertask.example";

/// What the desktop opens and starts for the program.
class Shell
{
public:
    Shell() = default;
    virtual ~Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /// Opens a page of the vendor's web site in the user's browser. The result is ignored.
    virtual void openVendorPage(const QString& pathAndQuery) = 0;
    /// Opens a page of the web (http or https; any other address is passed over) in the user's browser. The
    /// result is ignored.
    virtual void openWebPage(const QString& address) = 0;
    /// Starts a program detached in a normal window that gets the focus. False when it could not be started.
    virtual bool startNormal(const QString& file) = 0;
    /// Starts a program or batch file detached, with no shell in between. False when it could not be started.
    virtual bool startMinimized(const QString& file) = 0;
};

/// The program and its arguments that `file` names: the path as it is when there is such a file, else its
/// words (a word in double quotes may hold blanks). Empty when there is none.
QStringList commandOf(const QString& file);

class DesktopShell final : public Shell
{
public:
    void openVendorPage(const QString& pathAndQuery) override;
    void openWebPage(const QString& address) override;
    bool startNormal(const QString& file) override;
    bool startMinimized(const QString& file) override;
};
