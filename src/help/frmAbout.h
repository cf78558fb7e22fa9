#pragma once

#include <QIcon>
#include <QWidget>

class Registry;
struct FormServices;

/// The two logo pictures of the about box.
struct AboutPictures {
    QIcon program; ///< `Picture1`, shown 64 pixels high
    QIcon logo; ///< `Picture2`, three times as wide as high
};

/// The about box: product, version, description, and the look-up that starts the system's information tool.
/// Whoever loads it destroys it when it asks to be unloaded.
class frmAbout : public QWidget
{
    Q_OBJECT

public:
    /// `services` and `registry` outlive the form.
    frmAbout(const FormServices& services, Registry& registry, const AboutPictures& pictures);

    /// Starts the system information tool, or says that it is not available. Without a caller in the
    /// program: part of the form's interface.
    void StartSysInfo();
    /// Reads the value `SubKeyRef` of the key `KeyName` under the root key `KeyRoot`. True when it was
    /// read: `KeyVal` is then the text, or the decimal number of a double word; for other types it stays as
    /// it was.
    bool GetKeyValue(
        quint32 KeyRoot, const QString& KeyName, const QString& SubKeyRef, QString& KeyVal) const;

public slots:
    void cmdOK_Click();

signals:
    /// The form has been closed and is to be destroyed.
    void unloadRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut(const AboutPictures& pictures);
    bool findSysInfo(QString& path) const;

    const FormServices& m_services;
    Registry& m_registry;
};
