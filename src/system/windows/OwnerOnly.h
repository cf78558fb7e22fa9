#pragma once

#include "system/windows/Api.h"

#include <QByteArray>

/// Who may reach a new object of the system: its user; for files also the system itself and administrators,
/// who could give themselves the right anyway. Nothing is inherited from the folder.
class OwnerOnly
{
public:
    enum class Of { File, Folder, Mutex };

    explicit OwnerOnly(Of kind);
    ~OwnerOnly();
    OwnerOnly(const OwnerOnly&) = delete;
    OwnerOnly& operator=(const OwnerOnly&) = delete;

    /// For the call that makes the object; null where the system has refused them. Valid while this object
    /// lives.
    SECURITY_ATTRIBUTES* attributes() const;
    /// The list of who may; null as above.
    PACL list() const;

private:
    PSECURITY_DESCRIPTOR m_descriptor = nullptr;
    mutable SECURITY_ATTRIBUTES m_attributes{};
};

/// The security identifier of the user of this process, as a text; empty when the system does not tell.
QString currentUserSid();
/// Whether that user owns the object of the kernel, or the existing file or folder.
bool isOwnedByCurrentUser(HANDLE object);
bool isOwnedByCurrentUser(const QString& path);
