#include "Damage.h"
#include "settings/SkinFile.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <optional>

namespace
{

constexpr qint64 Deadline = 10'000; ///< milliseconds for one file

/// The skin, or none when it is refused with an error that names the file.
std::optional<SkinFile> skinOf(const QByteArray& bytes)
{
    try {
        return SkinFile::parse(bytes, QStringLiteral("Damaged.skf"));
    } catch (const SkinError& error) {
        return error.text().contains(QLatin1String("Damaged.skf"))
            ? std::nullopt
            : throw std::runtime_error("an error without a name");
    }
}

constexpr int Much = 1024 * 1024 - 100;

/// Lines as many as fit, each with a number of its own in the place of "%1".
QByteArray numbered(const char* line)
{
    QByteArray lines;
    for (int number = 0; lines.size() < Much - 100; ++number) {
        lines += QByteArray(line).replace("%1", QByteArray::number(number));
    }
    return lines;
}

} // namespace

class DamagedSkinsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aDamagedSkinIsRefusedOrRead();
    void aSkinMadeToKeepTheProgramBusyDoesNot_data();
    void aSkinMadeToKeepTheProgramBusyDoesNot();

private:
    std::mt19937 m_chance{20260115};
};

void DamagedSkinsTest::aDamagedSkinIsRefusedOrRead()
{
    int tried = 0;
    int refused = 0;
    const QDir shipped(QStringLiteral(AMBERTASK_SHIPPED_SKINS));
    for (const QString& name : shipped.entryList({QStringLiteral("*.skf")})) {
        for (const Damage& damage : damagedAnywhere(bytesOf(shipped.filePath(name)), 150, 60, m_chance)) {
            ++tried;
            QElapsedTimer timer;
            timer.start();
            if (const std::optional<SkinFile> skin = skinOf(damage.bytes)) {
                QVERIFY2(!skin->name.isEmpty(), qPrintable(damage.what));
            } else {
                ++refused;
            }
            QVERIFY2(timer.elapsed() < Deadline, qPrintable(damage.what));
        }
    }
    qInfo("%d damaged skins, %d of them refused", tried, refused);
}

void DamagedSkinsTest::aSkinMadeToKeepTheProgramBusyDoesNot_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("many lines in front") << "/*\n" + QByteArray("\n").repeated(Much / 2) + "@name X*/";
    QTest::newRow("many colours in front")
        << "/*\n@name X\n" + QByteArray("@color a #000000\n").repeated(Much / 20) + "*/";
    QTest::newRow("a long name") << "/*\n@name " + QByteArray(Much, 'x') + "\n*/";
    QTest::newRow("many colours") << "/*\n@name X\n" + numbered("@color a%1 #000000\n") + "*/";
    QTest::newRow("a role many times")
        << "/*\n@name X\n@color a #000000\n" + QByteArray("@palette Text $a\n").repeated(Much / 20) + "*/";
    QTest::newRow("much behind the block") << "/*\n@name X\n*/" + QByteArray(Much, '{');
    QTest::newRow("a colour of blanks") << "/*\n@name X\n@color a" + QByteArray(Much, ' ') + "x\n*/";
}

void DamagedSkinsTest::aSkinMadeToKeepTheProgramBusyDoesNot()
{
    QFETCH(const QByteArray, bytes);
    QElapsedTimer timer;
    timer.start();
    skinOf(bytes);
    QVERIFY2(timer.elapsed() < Deadline, qPrintable(QString::number(timer.elapsed())));
    qInfo("%lld ms", timer.elapsed());
}

AMBERTASK_TEST_MAIN(DamagedSkinsTest)
#include "tst_damaged_skins.moc"
