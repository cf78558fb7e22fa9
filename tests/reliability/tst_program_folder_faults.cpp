#include "reliability/Sweep.h"
#include "support/TestMain.h"
#include "system/FileReplace.h"
#include "tests/system/InstalledProgram.h"

#include <QTest>
#include <filesystem>

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
    void copiesOfAnEarlierVersionGoAllAtLastAndNothingElse();
    void cleanupTestCase() { qInfo("all: %s", qPrintable(m_all.text())); }

private:
    static Operation making(const InstalledProgram& program)
    {
        return {
            [&program] { return told([&] { makeProgramFolder(program.installation(), program.folder()); }); },
            programFolderIn};
    }
    /// It says nothing and may stop between two files. The list goes behind the last copy, and with it
    /// nothing that is the user's.
    static Operation cleaning(
        const InstalledProgram& program, const DiskImage& before, const DiskImage& after)
    {
        return {[&program] {
                    removeFormerCopies(program.installation(), program.folder());
                    return Told::Nothing;
                },
            [before, after](const std::string& root) {
                const DiskImage now = contentOf(root + '/' + Folder);
                for (const auto& [name, content] : after) {
                    if (now.count(name) == 0 || now.at(name) != content) {
                        throw std::runtime_error(name + " is lost");
                    }
                }
                for (const auto& [name, content] : now) {
                    if (before.count(name) == 0 || before.at(name) != content) {
                        throw std::runtime_error(name + " is new");
                    }
                    if (now.count("shipped.sha256") == 0 && content && after.count(name) == 0) {
                        throw std::runtime_error(name + " passes for the user's");
                    }
                }
                return std::string(now == after ? "later" : "earlier");
            }};
    }

    SweepTotals m_all;
};

void TestProgramFolderFaults::theFirstStartMakesTheWholeFolderOrNone()
{
    const InstalledProgram program;
    QVERIFY(QDir().mkpath(program.userData()));
    m_all.tryEverything(program.root(), making(program));
}

void TestProgramFolderFaults::theFirstStartOfALoginMakesTheWholeFolderOrNone()
{
    const InstalledProgram program;
    QVERIFY(QDir().mkpath(program.filePath("home")));
    m_all.tryEverything(program.root(), making(program));
}

void TestProgramFolderFaults::aFolderThatIsThereStaysAsItIs()
{
    const InstalledProgram program;
    program.start();
    program.writeOwn("data.dat", "what the user wrote");
    m_all.tryEverything(program.root(), making(program));
}

void TestProgramFolderFaults::copiesOfAnEarlierVersionGoAllAtLastAndNothingElse()
{
    const InstalledProgram program;
    program.ship("Skins/Coal.skf", "coal 1");
    program.startAsBefore();
    program.writeOwn("data.dat", "what the user wrote");
    program.writeOwn("Skins/Coal.skf", "the user's coal");
    program.writeOwn("custom icons/icon1.gif", "the user's picture");
    // A later version has other skins, and brought its help before it was cut off.
    program.ship("Skins/Aqua.skf", QByteArray(5000, 'a'));
    program.ship("help.chm", "help 2");
    program.writeOwn("help.chm", "help 2");
    const DiskImage all = imageOf(program.root().toStdString());
    const DiskImage before = contentOf(program.folder().toStdString());
    removeFormerCopies(program.installation(), program.folder());
    const DiskImage after = contentOf(program.folder().toStdString());
    QCOMPARE(after.size(), std::size_t(6)); // three of them are folders
    writeImage(all, program.root().toStdString());
    m_all.tryEverything(program.root(), cleaning(program, before, after));
}

AMBERTASK_TEST_MAIN(TestProgramFolderFaults)
#include "tst_program_folder_faults.moc"
