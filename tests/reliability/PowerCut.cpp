#include "reliability/PowerCut.h"

#include <algorithm>
#include <filesystem>

namespace
{

constexpr std::size_t SectorSize = 512;

std::string folderOf(const std::string& path)
{
    return std::filesystem::path(path).parent_path().string();
}

void put(std::string& content, std::size_t position, const char* bytes, std::size_t size)
{
    if (content.size() < position + size) {
        content.resize(position + size, '\0');
    }
    std::copy_n(bytes, size, content.begin() + static_cast<std::ptrdiff_t>(position));
}

bool survives(Survives what, std::mt19937& chance)
{
    return what == Survives::Everything || (what == Survives::Some && (chance() & 1U) != 0);
}

} // namespace

PowerCut::PowerCut(const DiskImage& start)
{
    int last = 0;
    for (const auto& [name, content] : start) {
        m_safeNames[name] = ++last;
        m_nodes[last] = {!content, content.value_or(std::string()), {}};
    }
}

void PowerCut::apply(const DiskEvent& event)
{
    using Kind = DiskEvent::Kind;
    switch (event.kind) {
    case Kind::Create:
    case Kind::MakeFolder:
        m_nodes[event.node].isFolder = event.kind == Kind::MakeFolder;
        m_unsafeSteps.push_back({{folderOf(event.path)}, {{event.path, event.node}}, {}, {}});
        break;
    case Kind::Remove:
        m_unsafeSteps.push_back({{folderOf(event.path)}, {{event.path, 0}}, {}, {}});
        break;
    case Kind::Rename:
        m_unsafeSteps.push_back({{folderOf(event.path), folderOf(event.newPath)},
            {{event.path, 0}, {event.newPath, event.node}}, event.path + '/', event.newPath + '/'});
        break;
    case Kind::Link:
        m_unsafeSteps.push_back({{folderOf(event.newPath)}, {{event.newPath, event.node}}, {}, {}});
        break;
    case Kind::Write:
        m_nodes[event.node].unsafe.push_back({event.position, event.bytes});
        break;
    case Kind::Truncate:
        m_nodes[event.node].unsafe.push_back({event.position, std::nullopt});
        break;
    case Kind::Sync:
        flush(event);
        break;
    }
}

void PowerCut::flush(const DiskEvent& event)
{
    const auto node = m_nodes.find(event.node);
    if (node != m_nodes.end() && !node->second.isFolder) {
        std::mt19937 none;
        node->second.safe = content(node->second, Survives::Everything, none);
        node->second.unsafe.clear();
        return;
    }
    std::vector<Step> unsafe;
    for (const Step& step : m_unsafeSteps) {
        if (step.folders.count(event.path) != 0) {
            carryOut(step, m_safeNames);
        } else {
            unsafe.push_back(step);
        }
    }
    m_unsafeSteps = std::move(unsafe);
}

void PowerCut::carryOut(const Step& step, std::map<std::string, int>& names)
{
    for (const auto& [name, node] : step.names) {
        if (node == 0) {
            names.erase(name);
        } else {
            names[name] = node;
        }
    }
    if (step.below.empty()) {
        return;
    }
    for (auto name = names.lower_bound(step.below);
         name != names.end() && name->first.compare(0, step.below.size(), step.below) == 0;
         name = names.erase(name)) {
        names[step.belowNow + name->first.substr(step.below.size())] = name->second;
    }
}

std::string PowerCut::content(const Node& node, Survives data, std::mt19937& chance)
{
    std::string content = node.safe;
    for (const Change& change : node.unsafe) {
        const auto position = static_cast<std::size_t>(change.position);
        if (!change.bytes) {
            if (survives(data, chance)) {
                content.resize(position, '\0');
            }
            continue;
        }
        // The file may have grown although what was written there is lost: then anything lies there.
        const std::size_t end = position + change.bytes->size();
        if (content.size() < end && survives(data, chance)) {
            content.resize(end, data == Survives::Some ? '\xA5' : '\0');
        }
        for (std::size_t begin = position; begin < end;) {
            const std::size_t next = std::min(end, (begin / SectorSize + 1) * SectorSize);
            if (survives(data, chance)) {
                put(content, begin, change.bytes->data() + (begin - position), next - begin);
            }
            begin = next;
        }
    }
    return content;
}

DiskImage PowerCut::survivors(Survives data, Survives names, std::mt19937& chance) const
{
    std::map<std::string, int> surviving = m_safeNames;
    for (const Step& step : m_unsafeSteps) {
        if (survives(names, chance)) {
            carryOut(step, surviving);
        }
    }
    DiskImage image;
    // In the order of the names, so that a folder comes before what lies in it.
    for (const auto& [name, number] : surviving) {
        const std::string folder = folderOf(name);
        if (!folder.empty() && image.count(folder) == 0) {
            continue;
        }
        const Node& node = m_nodes.at(number);
        image[name] = node.isFolder ? std::nullopt : std::optional(content(node, data, chance));
    }
    return image;
}
