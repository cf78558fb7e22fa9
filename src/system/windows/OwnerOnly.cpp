#include "system/windows/OwnerOnly.h"

#include <aclapi.h>
#include <array>
#include <sddl.h>

namespace
{

struct FreeLocal {
    void operator()(void* memory) const { LocalFree(memory); }
};
using Descriptor = std::unique_ptr<void, FreeLocal>;

/// The user of this process as the system keeps it; empty when it does not tell.
QByteArray currentUser()
{
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened)) {
        return {};
    }
    const SystemHandle token(opened);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    QByteArray user(static_cast<qsizetype>(size), '\0');
    return GetTokenInformation(token.get(), TokenUser, user.data(), size, &size) ? user : QByteArray();
}

PSID sidOf(const QByteArray& user)
{
    return reinterpret_cast<const TOKEN_USER*>(user.constData())->User.Sid;
}

/// What grants everything, in the language for security descriptors.
QString descriptorText(OwnerOnly::Of kind)
{
    const QString user = currentUserSid();
    switch (kind) {
    case OwnerOnly::Of::Mutex:
        return QStringLiteral("O:%1D:P(A;;GA;;;%1)").arg(user);
    case OwnerOnly::Of::Folder:
        return QStringLiteral("D:P(A;OICI;FA;;;%1)(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)").arg(user);
    default:
        return QStringLiteral("D:P(A;;FA;;;%1)(A;;FA;;;SY)(A;;FA;;;BA)").arg(user);
    }
}

} // namespace

OwnerOnly::OwnerOnly(Of kind)
{
    ConvertStringSecurityDescriptorToSecurityDescriptorW(
        descriptorText(kind).toStdWString().c_str(), SDDL_REVISION_1, &m_descriptor, nullptr);
    m_attributes.nLength = sizeof(m_attributes);
    m_attributes.lpSecurityDescriptor = m_descriptor;
}

OwnerOnly::~OwnerOnly()
{
    LocalFree(m_descriptor);
}

SECURITY_ATTRIBUTES* OwnerOnly::attributes() const
{
    return m_descriptor == nullptr ? nullptr : &m_attributes;
}

PACL OwnerOnly::list() const
{
    PACL list = nullptr;
    BOOL isPresent = FALSE;
    BOOL isDefault = FALSE;
    if (m_descriptor == nullptr || !GetSecurityDescriptorDacl(m_descriptor, &isPresent, &list, &isDefault)) {
        return nullptr;
    }
    return list;
}

QString currentUserSid()
{
    const QByteArray user = currentUser();
    LPWSTR text = nullptr;
    if (user.isEmpty() || !ConvertSidToStringSidW(sidOf(user), &text)) {
        return {};
    }
    QString sid = QString::fromWCharArray(text);
    LocalFree(text);
    return sid;
}

bool isOwnedByCurrentUser(HANDLE object)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR found = nullptr;
    const QByteArray user = currentUser();
    const DWORD failure = GetSecurityInfo(
        object, SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr, &found);
    const Descriptor descriptor(found);
    return failure == ERROR_SUCCESS && !user.isEmpty() && EqualSid(owner, sidOf(user));
}

bool isOwnedByCurrentUser(const QString& path)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR found = nullptr;
    const QByteArray user = currentUser();
    const DWORD failure = GetNamedSecurityInfoW(nativePath(path).c_str(), SE_FILE_OBJECT,
        OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr, &found);
    const Descriptor descriptor(found);
    return failure == ERROR_SUCCESS && !user.isEmpty() && EqualSid(owner, sidOf(user));
}
