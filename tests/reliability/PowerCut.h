#pragma once

#include "reliability/FaultyDisk.h"

#include <random>
#include <set>

/// What of the changes that were not flushed to the disk is on it after a power cut.
enum class Survives {
    Nothing,
    Everything,
    Some ///< by chance: of a file any of its sectors, of the folders any of the names
};

/// A disk that loses its power. What was written into a file is safe when the file has been flushed; that a
/// name exists, is gone or has changed is safe when its folder has been flushed.
class PowerCut
{
public:
    explicit PowerCut(const DiskImage& start);

    void apply(const DiskEvent& event);
    /// What the power cut leaves when it comes now.
    DiskImage survivors(Survives data, Survives names, std::mt19937& chance) const;

private:
    struct Change {
        off_t position;
        std::optional<std::string> bytes; ///< none: the file is cut or extended to `position`
    };
    struct Node {
        bool isFolder = false;
        std::string safe;
        std::vector<Change> unsafe;
    };
    /// A step of the folders; it survives as a whole or not at all.
    struct Step {
        std::set<std::string> folders; ///< flushing one of them makes the step safe
        std::vector<std::pair<std::string, int>> names; ///< with the node behind it, 0 for none
        std::string below; ///< of a Rename: how the names of what lies in a renamed folder began
        std::string belowNow; ///< and begin afterwards
    };

    static void carryOut(const Step& step, std::map<std::string, int>& names);
    static std::string content(const Node& node, Survives data, std::mt19937& chance);
    void flush(const DiskEvent& event);

    std::map<int, Node> m_nodes;
    std::map<std::string, int> m_safeNames;
    std::vector<Step> m_unsafeSteps;
};
