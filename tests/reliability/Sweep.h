#pragma once

#include "reliability/PowerCut.h"

#include <QString>
#include <functional>
#include <map>

/// What an operation said of itself.
enum class Told {
    Success,
    Failure,
    Nothing ///< it never says anything
};

/// Success, or Failure when `action` throws RuntimeError.
Told told(const std::function<void()>& action);

/// How many times more than usual chance is tried: the number in the environment variable
/// AMBERTASK_SWEEPS, else 1.
int sweeps();

/// Something the program does to the files of a folder, to be tried with every fault.
struct Operation {
    std::function<Told()> run;
    /// What the folder holds, as a text; throws std::exception when something is wrong with it.
    std::function<std::string(const std::string& folder)> stateOf;
    /// Runs before each first try, as if the program had just started; may be empty.
    std::function<void()> prepare{};
    /// Runs when the operation has succeeded at last; throws std::exception when something is wrong. May be
    /// empty.
    std::function<void()> checkDone{};
};

/// Tries an operation on the files of a folder with every fault and a power cut at every point. After each,
/// the folder has to hold the state from before or the one from after the whole operation: the one from
/// before when it said that it failed, the one from after when it said that it succeeded. Done again, it has
/// to succeed and to leave no other files than when nothing failed.
class Sweep
{
    static constexpr std::size_t AllPoints = 1000000;

public:
    struct Figures {
        std::size_t calls = 0; ///< of the operation when nothing fails
        std::size_t faults = 0; ///< runs with a fault
        std::size_t failures = 0; ///< of them, said to have failed
        std::size_t deaths = 0; ///< of a process
        std::size_t cuts = 0; ///< power cuts looked at
        std::size_t images = 0; ///< of them, with different content on the disk
        Figures& operator+=(const Figures& other);
        QString text() const;
    };

    /// Runs the operation once without a fault. `folder` holds the state from before, and again at the end.
    Sweep(std::string folder, Operation operation);
    ~Sweep();
    Sweep(const Sweep&) = delete;
    Sweep& operator=(const Sweep&) = delete;

    /// Every call fails in every way it can: once, then for good, then together with all calls after it. Of
    /// an operation of many calls about `points`, evenly spread.
    void everyFault(std::size_t points = AllPoints);
    /// A process of its own does the operation and dies at every call.
    void everyDeath();
    /// The power fails before, between and after all changes, or at about `points` of these moments; at each
    /// `chances` times with a random part of what was not flushed.
    void everyPowerCut(int chances, std::size_t points = AllPoints);

    const Figures& figures() const { return m_figures; }
    /// What went wrong, one a line, the first few; empty when nothing did.
    QString complaints() const;

private:
    enum class Verdict { Old, New, Wrong };
    struct Judged {
        Verdict verdict;
        std::string why;
    };

    void reset(const DiskImage& image) const;
    Told run(const FaultyDisk::Fault& fault);
    void complain(const std::string& where, const std::string& what);
    Judged judge(const std::string& folder) const;
    const Judged& judge(const DiskImage& image);
    void tryFault(const FaultyDisk::Fault& fault, const std::string& where);
    void expect(const std::string& where, Told told, const Judged& judged);
    void expectSuccessNow(const std::string& where);
    void expectDurable(const std::string& where, const PowerCut& power, Told told);
    void cut(const PowerCut& power, Survives data, Survives names, Told told, const std::string& where);

    std::string m_folder;
    std::string m_lost; ///< a folder for what a power cut leaves
    Operation m_operation;
    FaultyDisk m_disk;
    std::mt19937 m_chance;
    DiskImage m_start;
    DiskImage m_end;
    std::string m_old;
    std::string m_new;
    std::vector<FaultyDisk::Call> m_calls;
    DiskHistory m_history;
    std::map<std::size_t, Judged> m_judged;
    Figures m_figures;
    std::vector<std::string> m_complaints;
};

/// Tries operations with every fault, every death and every power cut, and adds up what was tried.
class SweepTotals
{
public:
    /// Fails the running test when something goes wrong.
    void tryEverything(const QString& folder, Operation operation);
    QString text() const { return m_all.text(); }

private:
    Sweep::Figures m_all;
};
