#include "platform/FileReplace.h"
#include "reliability/Sweep.h"
#include "support/TestMain.h"
#include "tests/platform/InstalledProgram.h"

#include <QTest>
#include <filesystem>
#include <set>
#include <sstream>

namespace
{

constexpr auto Folder = "home/.local/share/Ambertask";

/// What lies below a program folder, the link to the executable aside: where there can be none, the program
/// goes without.
DiskImage contentOf(const std::string& programFolder)
{
    DiskImage image = imageOf(programFolder);
    image.erase("Ambertask");
    return image;
}

/// The lines of the list of what was brought last.
std::set<std::string> linesOf(const DiskImage& programFolder)
{
    std::istringstream list(programFolder.at(ShippedListName).value_or(""));
    std::set<std::string> lines;
    for (std::string line; std::getline(list, line);) {
        lines.insert(line);
    }
    return lines;
}

/// Every name below the program folder with what it holds, or "none".
std::string programFolderIn(const std::string& root)
{
    if (!std::filesystem::exists(root + '/' + Folder)) {
        return "none";
    }
    std::string all;
    for (const auto& [name, content] : contentOf(root + '/' + Folder)) {
        all += name + ": " + content.value_or("a folder") + '\n';
    }
    return all;
}

} // namespace

class TestProgramFolderFaults : public TestCase
{
    Q_OBJECT

private slots:
    void theFirstStartMakesTheWholeFolderOrNone();
    void theFirstStartOfALoginMakesTheWholeFolderOrNone();
    void aFolderThatIsThereStaysAsItIs();
    void anUpgradeBringsEveryFileWholeAndAllOfThemAtLast();
    void anUpgradeThatWasCutOffIsFinishedByTheNextStart();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    void trySweep(const InstalledProgram& program, Operation operation)
    {
        Sweep sweep(program.root().toStdString(), std::move(operation));
        sweep.everyFault();
        sweep.everyDeath();
        sweep.everyPowerCut(8 * sweeps());
        m_all += sweep.figures();
        qInfo("%s", qPrintable(sweep.figures().text()));
        QVERIFY2(sweep.complaints().isEmpty(), qPrintable(sweep.complaints()));
    }
    static Operation making(const InstalledProgram& program)
    {
        return {
            [&program] { return told([&] { makeProgramFolder(program.installation(), program.folder()); }); },
            programFolderIn};
    }
    /// An upgrade says nothing and may stop between two files; each of them is the earlier or the later one,
    /// and so is each line of the list. The data and the user's own skin are as they were.
    static Operation upgrade(const InstalledProgram& program, const DiskImage& before, const DiskImage& after)
    {
        return {[&program] {
                    refreshProgramFolder(program.installation(), program.folder());
                    return Told::Nothing;
                },
            [before, after](const std::string& root) {
                const DiskImage now = contentOf(root + '/' + Folder);
                for (const auto& [name, content] : before) {
                    if (now.count(name) == 0) {
                        throw std::runtime_error(name + " is lost");
                    }
                }
                for (const auto& [name, content] : now) {
                    const bool isEarlier = before.count(name) != 0 && content == before.at(name);
                    const bool isLater = after.count(name) != 0 && content == after.at(name);
                    const bool isHidden = name.find("/.ambertask-") != name.npos || name.front() == '.';
                    if (name != ShippedListName && !isHidden && !isEarlier && !isLater) {
                        throw std::runtime_error(name + " is neither the earlier nor the later one");
                    }
                }
                for (const std::string& line : linesOf(now)) {
                    // A file that is still to be brought has no sum.
                    if (linesOf(before).count(line) + linesOf(after).count(line) == 0
                        && line.compare(0, 2, "  ") != 0) {
                        throw std::runtime_error("the list says \"" + line + '"');
                    }
                }
                return std::string(now == after ? "later" : "earlier");
            }};
    }
    static DiskImage folderOf(const InstalledProgram& program)
    {
        return contentOf(program.folder().toStdString());
    }
    void tryUpgrade(InstalledProgram& program)
    {
        const DiskImage before = folderOf(program);
        const DiskImage all = imageOf(program.root().toStdString());
        refreshProgramFolder(program.installation(), program.folder());
        const DiskImage after = folderOf(program);
        QVERIFY(before != after);
        QCOMPARE(before.at("data.dat"), after.at("data.dat"));
        writeImage(all, program.root().toStdString());
        trySweep(program, upgrade(program, before, after));
    }

    Sweep::Figures m_all;
};

void TestProgramFolderFaults::theFirstStartMakesTheWholeFolderOrNone()
{
    const InstalledProgram program;
    QVERIFY(QDir().mkpath(program.userData()));
    trySweep(program, making(program));
}

void TestProgramFolderFaults::theFirstStartOfALoginMakesTheWholeFolderOrNone()
{
    const InstalledProgram program;
    QVERIFY(QDir().mkpath(program.filePath("home")));
    trySweep(program, making(program));
}

void TestProgramFolderFaults::aFolderThatIsThereStaysAsItIs()
{
    const InstalledProgram program;
    program.start();
    program.write(program.inFolder("data.dat"), "what the user wrote");
    trySweep(program, making(program));
}

void TestProgramFolderFaults::anUpgradeBringsEveryFileWholeAndAllOfThemAtLast()
{
    InstalledProgram program;
    program.ship("Skins/Coal.skf", "coal 1");
    program.start();
    program.write(program.inFolder("data.dat"), "what the user wrote");
    program.write(program.inFolder("Skins/Coal.skf"), "the user's coal");
    program.ship("Skins/Aqua.skf", QByteArray(5000, 'a'));
    program.ship("Skins/Coal.skf", "coal 2");
    program.ship("sounds/horn.wav", "horn 2");
    program.ship("help.chm", "help 2");
    program.ship("words/de.qm", "words 2");
    tryUpgrade(program);
}

void TestProgramFolderFaults::anUpgradeThatWasCutOffIsFinishedByTheNextStart()
{
    InstalledProgram program;
    program.start();
    program.write(program.inFolder("data.dat"), "what the user wrote");
    // The second version brought the skin and was cut off before it could note that.
    program.write(program.inFolder("Skins/Aqua.skf"), "aqua 2");
    program.ship("Skins/Aqua.skf", "aqua 2");
    program.ship("help.chm", "help 2");
    tryUpgrade(program);
}

AMBERTASK_TEST_MAIN(TestProgramFolderFaults)
#include "tst_program_folder_faults.moc"
