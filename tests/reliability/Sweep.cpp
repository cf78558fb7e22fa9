#include "reliability/Sweep.h"

#include "system/RuntimeError.h"

#include <QTest>
#include <array>
#include <cerrno>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

// The sanitizers are five times slower: with them every tenth call fails and every tenth change is cut off,
// in the optimized build every one.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t CallsApart = 10;
#else
constexpr std::size_t CallsApart = 1;
#endif

constexpr std::size_t ShownComplaints = 12;

const char* nameOf(FileCall call)
{
    constexpr std::array Names{"open", "read", "write", "sync", "truncate", "remove", "rename", "link",
        "make folder", "remove folder", "lock", "unlock", "list", "status", "change mode", "close"};
    return Names.at(static_cast<std::size_t>(call));
}

std::vector<int> errorsOf(FileCall call)
{
    switch (call) {
    case FileCall::Open:
        return {EIO, EACCES, ENOSPC};
    case FileCall::Write:
    case FileCall::Rename:
    case FileCall::Link:
    case FileCall::MakeFolder:
        return {EIO, ENOSPC};
    case FileCall::Lock:
        return {EAGAIN, EIO};
    case FileCall::ChangeMode:
        return {EPERM};
    default:
        return {EIO};
    }
}

std::set<std::string> namesIn(const DiskImage& image)
{
    std::set<std::string> names;
    for (const auto& entry : image) {
        // The clock stands still: a copy that is made again of other bytes with the same rows has a number.
        if (entry.first.rfind("copies/", 0) != 0 || entry.first.find(" (") == std::string::npos) {
            names.insert(entry.first);
        }
    }
    return names;
}

std::size_t fingerprint(const DiskImage& image)
{
    std::string all;
    for (const auto& [name, content] : image) {
        all += name + '\0' + content.value_or("\1") + '\0';
    }
    return std::hash<std::string>()(all);
}

} // namespace

Told told(const std::function<void()>& action)
{
    try {
        action();
        return Told::Success;
    } catch (const RuntimeError&) {
        return Told::Failure;
    }
}

Sweep::Figures& Sweep::Figures::operator+=(const Figures& other)
{
    calls += other.calls;
    faults += other.faults;
    failures += other.failures;
    deaths += other.deaths;
    cuts += other.cuts;
    images += other.images;
    return *this;
}

QString Sweep::Figures::text() const
{
    return QStringLiteral("%1 calls, %2 faults, %3 failures, %4 deaths, %5 power cuts, %6 disk contents")
        .arg(calls)
        .arg(faults)
        .arg(failures)
        .arg(deaths)
        .arg(cuts)
        .arg(images);
}

int sweeps()
{
    return std::max(1, qEnvironmentVariableIntValue("AMBERTASK_SWEEPS"));
}

Sweep::Sweep(std::string folder, Operation operation)
    : m_folder(std::move(folder)), m_lost(m_folder + ".lost"), m_operation(std::move(operation)),
      m_disk(m_folder), m_start(imageOf(m_folder)), m_old(m_operation.stateOf(m_folder))
{
    std::filesystem::create_directory(m_lost);
    reset(m_start);
    if (run({}) == Told::Failure) {
        complain("without a fault", "it failed");
    }
    m_calls = m_disk.calls();
    m_history = m_disk.history();
    m_figures.calls = m_calls.size();
    if (m_operation.checkDone) {
        m_operation.checkDone();
    }
    m_new = m_operation.stateOf(m_folder);
    m_end = imageOf(m_folder);
    reset(m_start);
}

Sweep::~Sweep()
{
    writeImage(m_start, m_folder);
    std::filesystem::remove_all(m_lost);
}

QString Sweep::complaints() const
{
    QString text;
    for (std::size_t i = 0; i < std::min(m_complaints.size(), ShownComplaints); ++i) {
        text += QString::fromStdString(m_complaints[i]) + u'\n';
    }
    return m_complaints.empty() ? text : text + QStringLiteral("%1 complaints").arg(m_complaints.size());
}

void Sweep::complain(const std::string& where, const std::string& what)
{
    m_complaints.push_back(where + ": " + what);
}

void Sweep::reset(const DiskImage& image) const
{
    writeImage(image, m_folder);
    if (m_operation.prepare) {
        m_operation.prepare();
    }
}

Told Sweep::run(const FaultyDisk::Fault& fault)
{
    m_disk.watch(fault);
    try {
        const Told said = m_operation.run();
        m_disk.stopWatching();
        if (openObservedHandles() != 0) {
            complain("a run", "a file was left open");
        }
        return said;
    } catch (...) {
        m_disk.stopWatching();
        throw;
    }
}

Sweep::Judged Sweep::judge(const std::string& folder) const
{
    try {
        const std::string state = m_operation.stateOf(folder);
        // An operation that changes nothing has one state; both verdicts are right.
        if (state == m_old) {
            return {Verdict::Old, {}};
        }
        return state == m_new ? Judged{Verdict::New, {}} : Judged{Verdict::Wrong, "neither old nor new"};
    } catch (const std::exception& error) {
        return {Verdict::Wrong, error.what()};
    }
}

const Sweep::Judged& Sweep::judge(const DiskImage& image)
{
    const auto [place, isNew] = m_judged.try_emplace(fingerprint(image));
    if (isNew) {
        writeImage(image, m_lost);
        place->second = judge(m_lost);
    }
    return place->second;
}

void Sweep::everyFault(std::size_t points)
{
    using Lasting = FaultyDisk::Lasting;
    const std::size_t step = std::max(CallsApart, m_calls.size() / points);
    for (std::size_t at = 1; at <= m_calls.size(); at += step) {
        const FaultyDisk::Call& call = m_calls[at - 1];
        for (const int error : errorsOf(call.kind)) {
            for (const Lasting lasting : {Lasting::Once, Lasting::ForThisKind, Lasting::ForAll}) {
                tryFault({at, error, lasting},
                    "call " + std::to_string(at) + ' ' + nameOf(call.kind) + " \"" + call.path + "\" error "
                        + std::to_string(error) + " lasting " + std::to_string(static_cast<int>(lasting)));
            }
        }
    }
}

void Sweep::tryFault(const FaultyDisk::Fault& fault, const std::string& where)
{
    reset(m_start);
    ++m_figures.faults;
    try {
        const Told said = run(fault);
        if (!m_disk.hasRefused()) {
            complain(where, "the fault was not met");
        }
        m_figures.failures += said == Told::Failure ? 1 : 0;
        PowerCut power(m_disk.history().start);
        for (const DiskEvent& event : m_disk.history().events) {
            power.apply(event);
        }
        // Where folders cannot be flushed, nobody can promise more than that the state is whole.
        const Told promised = m_disk.hasRefusedFolder() ? Told::Nothing : said;
        const Judged judged = judge(m_folder);
        expect(where, said, judged);
        if (judged.verdict == Verdict::Old) {
            expectSuccessNow(where);
        }
        expectDurable(where, power, promised);
    } catch (const std::exception& error) {
        complain(where, error.what());
    }
}

void Sweep::expect(const std::string& where, Told said, const Judged& judged)
{
    if (judged.verdict == Verdict::Wrong) {
        complain(where, judged.why);
    } else if (said == Told::Failure && judged.verdict == Verdict::New) {
        complain(where, "said to have failed, but done");
    } else if (said == Told::Success && judged.verdict == Verdict::Old && m_old != m_new) {
        complain(where, "said to be done, but is not");
    }
}

void Sweep::expectSuccessNow(const std::string& where)
{
    const Told said = run({});
    if (said == Told::Failure) {
        complain(where, "it fails again without a fault");
    }
    const Judged judged = judge(m_folder);
    if (judged.verdict == Verdict::Wrong) {
        complain(where + ", done again", judged.why);
    } else if (judged.verdict == Verdict::Old && m_old != m_new) {
        complain(where, "done again without an effect");
    } else if (m_operation.checkDone) {
        m_operation.checkDone();
    }
    if (namesIn(imageOf(m_folder)) != namesIn(m_end)) {
        std::string all;
        for (const std::string& name : namesIn(imageOf(m_folder))) {
            all += ' ' + name;
        }
        complain(where, "left behind:" + all);
    }
}

void Sweep::expectDurable(const std::string& where, const PowerCut& power, Told said)
{
    for (const Survives data : {Survives::Nothing, Survives::Everything}) {
        for (const Survives names : {Survives::Nothing, Survives::Everything}) {
            cut(power, data, names, said, where + ", then a power cut");
        }
    }
}

void Sweep::cut(const PowerCut& power, Survives data, Survives names, Told said, const std::string& where)
{
    ++m_figures.cuts;
    const DiskImage image = power.survivors(data, names, m_chance);
    const std::size_t known = m_judged.size();
    const Judged& judged = judge(image);
    expect(where, said, judged);
    if (m_judged.size() == known) {
        return;
    }
    ++m_figures.images;
    if (judged.verdict == Verdict::Old) {
        reset(image);
        expectSuccessNow(where);
    }
}

void Sweep::everyDeath()
{
    for (std::size_t at = 1; at <= m_calls.size(); at += CallsApart) {
        const std::string where = "death at call " + std::to_string(at);
        reset(m_start);
        const pid_t child = fork();
        if (child == 0) {
            run({at, FaultyDisk::Death, FaultyDisk::Lasting::Once});
            _exit(1);
        }
        int status = 1;
        waitpid(child, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            complain(where, "it did not die there");
        }
        ++m_figures.deaths;
        const Judged judged = judge(m_folder);
        expect(where, Told::Nothing, judged);
        if (judged.verdict == Verdict::Old) {
            expectSuccessNow(where);
        }
    }
}

void Sweep::everyPowerCut(int chances, std::size_t points)
{
    PowerCut power(m_history.start);
    const std::size_t last = m_history.events.size();
    const std::size_t step = std::max(CallsApart, last / points);
    for (std::size_t at = 0; at <= last; ++at) {
        if (at > 0) {
            power.apply(m_history.events[at - 1]);
        }
        if (at % step != 0 && at != last) {
            continue;
        }
        const std::string where =
            "power cut after change " + std::to_string(at) + " of " + std::to_string(last);
        const Told said = at == last ? Told::Success : Told::Nothing;
        for (const Survives data : {Survives::Nothing, Survives::Everything}) {
            for (const Survives names : {Survives::Nothing, Survives::Everything}) {
                cut(power, data, names, said, where);
            }
        }
        for (int i = 0; i < chances; ++i) {
            cut(power, Survives::Some, Survives::Some, said, where);
        }
    }
}

void SweepTotals::tryEverything(const QString& folder, Operation operation)
{
    constexpr int Chances = 8;
    Sweep sweep(folder.toStdString(), std::move(operation));
    sweep.everyFault();
    sweep.everyDeath();
    sweep.everyPowerCut(Chances * sweeps());
    m_all += sweep.figures();
    qInfo("%s", qPrintable(sweep.figures().text()));
    QVERIFY2(sweep.complaints().isEmpty(), qPrintable(sweep.complaints()));
}
