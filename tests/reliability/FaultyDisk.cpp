#include "reliability/FaultyDisk.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>
#include <utility>

namespace files = std::filesystem;

namespace
{

// What the image of a disk has for a symbolic link in the place of a content.
const std::string LinkMark("\1link to ");

} // namespace

DiskImage imageOf(const std::string& folder)
{
    DiskImage image;
    for (const auto& entry : files::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_symlink()) {
            image.emplace(name, LinkMark + files::read_symlink(entry.path()).string());
        } else if (entry.is_directory()) {
            image.emplace(name, std::nullopt);
        } else {
            std::ifstream file(entry.path(), std::ios::binary);
            image.emplace(name, std::string(std::istreambuf_iterator<char>(file), {}));
        }
    }
    return image;
}

void writeImage(const DiskImage& image, const std::string& folder)
{
    for (const auto& entry : files::directory_iterator(folder)) {
        files::remove_all(entry.path());
    }
    for (const auto& [name, content] : image) {
        const files::path path = files::path(folder) / name;
        if (!content) {
            files::create_directory(path);
            continue;
        }
        if (content->compare(0, LinkMark.size(), LinkMark) == 0) {
            files::create_symlink(content->substr(LinkMark.size()), path);
            continue;
        }
        std::ofstream file(path, std::ios::binary);
        file.write(content->data(), static_cast<std::streamsize>(content->size()));
        file.close();
        files::permissions(path, files::perms::owner_read | files::perms::owner_write);
    }
}

FaultyDisk::FaultyDisk(const std::string& folder) : m_folder(files::canonical(folder).string())
{
}

void FaultyDisk::watch(const Fault& fault)
{
    m_fault = fault;
    m_calls.clear();
    m_history = {imageOf(m_folder), {}};
    m_nodes.clear();
    m_lastNode = 0;
    for (const auto& entry : m_history.start) {
        m_nodes[entry.first] = ++m_lastNode;
    }
    m_hasRefused = false;
    m_hasRefusedFolder = false;
    m_refusedKind.reset();
    observeFileCalls(this);
}

void FaultyDisk::stopWatching()
{
    observeFileCalls(nullptr);
}

bool FaultyDisk::watches(const std::string& path) const
{
    return path.compare(0, m_folder.size(), m_folder) == 0
        && (path.size() == m_folder.size() || path[m_folder.size()] == '/');
}

std::string FaultyDisk::relative(const std::string& path) const
{
    return path.size() <= m_folder.size() + 1 ? std::string() : path.substr(m_folder.size() + 1);
}

int FaultyDisk::refuse(FileCall call, const std::string& path)
{
    m_calls.push_back({call, relative(path)});
    if (m_fault.atCall == 0 || m_calls.size() < m_fault.atCall) {
        return 0;
    }
    if (m_calls.size() == m_fault.atCall) {
        m_refusedKind = call;
    }
    if (m_fault.error == Death) {
        _exit(0);
    }
    const bool refuses = m_calls.size() == m_fault.atCall || m_fault.lasting == Lasting::ForAll
        || (m_fault.lasting == Lasting::ForThisKind && call == m_refusedKind);
    m_hasRefused = m_hasRefused || refuses;
    m_hasRefusedFolder = m_hasRefusedFolder
        || (refuses && (call == FileCall::Open || call == FileCall::Sync) && files::is_directory(path));
    return refuses ? m_fault.error : 0;
}

ssize_t FaultyDisk::accepted(const std::string& path, std::size_t size)
{
    const bool isFirst = !m_hasRefused;
    const int error = refuse(FileCall::Write, path);
    if (error == ENOSPC && isFirst && size > 1) {
        // What still fits is written; the next piece finds the disk full.
        ++m_fault.atCall;
        return static_cast<ssize_t>(size / 2);
    }
    return error == 0 ? static_cast<ssize_t>(size) : -error;
}

void FaultyDisk::note(DiskEvent::Kind kind, const std::string& path)
{
    const std::string name = relative(path);
    m_history.events.push_back({kind, nodeOf(name), name, {}, 0, {}});
}

int FaultyDisk::nodeOf(const std::string& name) const
{
    const auto node = m_nodes.find(name);
    return node == m_nodes.end() ? 0 : node->second;
}

void FaultyDisk::created(const std::string& path)
{
    m_nodes[relative(path)] = ++m_lastNode;
    note(DiskEvent::Kind::Create, path);
}

void FaultyDisk::folderMade(const std::string& path)
{
    m_nodes[relative(path)] = ++m_lastNode;
    note(DiskEvent::Kind::MakeFolder, path);
}

void FaultyDisk::written(const std::string& path, off_t offset, const char* bytes, std::size_t size)
{
    note(DiskEvent::Kind::Write, path);
    m_history.events.back().position = offset;
    m_history.events.back().bytes.assign(bytes, size);
}

void FaultyDisk::truncated(const std::string& path, off_t size)
{
    note(DiskEvent::Kind::Truncate, path);
    m_history.events.back().position = size;
}

void FaultyDisk::synced(const std::string& path)
{
    note(DiskEvent::Kind::Sync, path);
}

void FaultyDisk::removed(const std::string& path)
{
    note(DiskEvent::Kind::Remove, path);
    m_nodes.erase(relative(path));
}

void FaultyDisk::renamed(const std::string& from, const std::string& to)
{
    const int node = nodeOf(relative(from));
    if (nodeOf(relative(to)) == node) {
        // Both are names of one file: that changes nothing.
        return;
    }
    note(DiskEvent::Kind::Rename, from);
    m_history.events.back().newPath = relative(to);
    m_nodes.erase(relative(from));
    m_nodes[relative(to)] = node;
    // What a renamed folder holds has new names with it.
    const std::string below = relative(from) + '/';
    for (auto name = m_nodes.lower_bound(below);
         name != m_nodes.end() && name->first.compare(0, below.size(), below) == 0;
         name = m_nodes.erase(name)) {
        m_nodes[relative(to) + '/' + name->first.substr(below.size())] = name->second;
    }
}

void FaultyDisk::symbolicLinkMade(const std::string& path, const std::string& target)
{
    // Where it leads to is as safe as its name.
    const std::string content = LinkMark + target;
    created(path);
    written(path, 0, content.data(), content.size());
    synced(path);
}

void FaultyDisk::linked(const std::string& file, const std::string& name)
{
    note(DiskEvent::Kind::Link, file);
    m_history.events.back().newPath = relative(name);
    m_nodes[relative(name)] = nodeOf(relative(file));
}
