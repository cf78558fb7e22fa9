#pragma once

#include "reliability/FileCalls.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

/// What lies beneath a folder: a text for a file, none for a folder. Paths are relative to the folder.
using DiskImage = std::map<std::string, std::optional<std::string>>;

DiskImage imageOf(const std::string& folder);
/// Makes `folder` hold exactly that.
void writeImage(const DiskImage& image, const std::string& folder);

/// One change of a disk. A node is a file or folder, whatever its name; it keeps its number when it is
/// renamed.
struct DiskEvent {
    enum class Kind { Create, MakeFolder, Write, Truncate, Sync, Remove, Rename, Link };
    Kind kind;
    int node;
    std::string path;
    std::string newPath; ///< of a Rename and a Link
    off_t position = 0; ///< of a Write; the new size of a Truncate
    std::string bytes; ///< of a Write
};

/// What the process did to a folder since `watch()`, in order.
struct DiskHistory {
    DiskImage start;
    std::vector<DiskEvent> events;
};

/// A folder that remembers how it was changed and refuses calls as planned.
class FaultyDisk final : public FileCallObserver
{
public:
    enum class Lasting {
        Once,
        ForThisKind, ///< from then on, all calls of the kind that was refused first
        ForAll ///< from then on, all calls
    };
    /// Instead of an error number: the process ends at that call.
    static constexpr int Death = -1;
    struct Fault {
        std::size_t atCall = 0; ///< counted from 1; 0 for none
        int error = 0; ///< an error number, or Death
        Lasting lasting = Lasting::Once;
    };
    struct Call {
        FileCall kind;
        std::string path; ///< relative to the folder
    };

    explicit FaultyDisk(const std::string& folder);

    /// Observes this thread from now on.
    void watch(const Fault& fault);
    void stopWatching();

    const std::vector<Call>& calls() const { return m_calls; }
    const DiskHistory& history() const { return m_history; }
    /// Whether a call has been refused.
    bool hasRefused() const { return m_hasRefused; }
    /// Whether a folder could not be flushed.
    bool hasRefusedFolder() const { return m_hasRefusedFolder; }

    bool watches(const std::string& path) const override;
    int refuse(FileCall call, const std::string& path) override;
    ssize_t accepted(const std::string& path, std::size_t size) override;
    void created(const std::string& path) override;
    void written(const std::string& path, off_t offset, const char* bytes, std::size_t size) override;
    void truncated(const std::string& path, off_t size) override;
    void synced(const std::string& path) override;
    void removed(const std::string& path) override;
    void renamed(const std::string& from, const std::string& to) override;
    void linked(const std::string& file, const std::string& name) override;
    void symbolicLinkMade(const std::string& path, const std::string& target) override;
    void folderMade(const std::string& path) override;

private:
    std::string relative(const std::string& path) const;
    void note(DiskEvent::Kind kind, const std::string& path);
    int nodeOf(const std::string& name) const;

    std::string m_folder;
    Fault m_fault;
    std::vector<Call> m_calls;
    DiskHistory m_history;
    std::map<std::string, int> m_nodes;
    int m_lastNode = 0;
    bool m_hasRefused = false;
    bool m_hasRefusedFolder = false;
    std::optional<FileCall> m_refusedKind;
};
