#pragma once

#include <QString>
#include <QStringList>

/// The vendor's web address; paths such as "/index.htm?referer=p" are appended to it.
inline constexpr char VendorAddress[] = "https://www.ambertask.example";

/// Opens pages and starts programs through the desktop.
class Shell
{
public:
    Shell() = default;
    virtual ~Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    /// Opens a page of the vendor's web site in the browser. The result is ignored.
    virtual void openVendorPage(const QString& pathAndQuery) = 0;
    /// Opens a web page in the browser; does nothing for addresses other than http and https. The result is
    /// ignored.
    virtual void openWebPage(const QString& address) = 0;
    /// Starts a program detached, in a normal window that gets the focus. False when that failed.
    virtual bool startNormal(const QString& file) = 0;
    /// Starts a program or batch file detached, without a shell. False when that failed.
    virtual bool startMinimized(const QString& file) = 0;
};

/// The program and arguments that `file` names: the whole path when such a file exists, otherwise its words
/// (a word in double quotes may hold blanks). Empty when there is none.
QStringList commandOf(const QString& file);

class DesktopShell final : public Shell
{
public:
    void openVendorPage(const QString& pathAndQuery) override;
    void openWebPage(const QString& address) override;
    bool startNormal(const QString& file) override;
    bool startMinimized(const QString& file) override;
};
