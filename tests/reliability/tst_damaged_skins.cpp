#include "Damage.h"
#include "settings/SkinFile.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QVBoxLayout>
#include <array>
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

QByteArray skinWith(const QByteArray& sheet)
{
    return "/*\n@name X\n@color ink #102030\n*/\n" + sheet;
}

/// Qt reads a style sheet only when a control asks for it.
struct SmallWindow {
    SmallWindow()
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(new QCheckBox(QStringLiteral("box")));
        layout->addWidget(new QComboBox);
        window.show();
    }
    QWidget window;
};

/// As the skin engine does it. A sheet that Qt cannot read is a warning, which fails the test.
void wear(const SkinFile& skin)
{
    qApp->setStyleSheet({});
    qApp->setStyleSheet(skin.styleSheet);
}

constexpr int Much = 1024 * 1024 - 100;

} // namespace

class DamagedSkinsTest : public TestCase
{
    Q_OBJECT

private slots:
    /// What Qt cannot read at all, it says in a warning; unknown properties it passes over.
    void init() override { QTest::failOnWarning(QRegularExpression(QStringLiteral("parse|Could not"))); }
    void aDamagedSkinIsRefusedOrWorn();
    void ofPiecesPutTogetherByChanceQtReadsWhatIsAccepted();
    void aSkinMadeToKeepTheProgramBusyDoesNot_data();
    void aSkinMadeToKeepTheProgramBusyDoesNot();
    void cleanupTestCase() { qApp->setStyleSheet({}); }

private:
    std::mt19937 m_chance{20260115};
};

void DamagedSkinsTest::aDamagedSkinIsRefusedOrWorn()
{
    const SmallWindow window;
    int tried = 0;
    int refused = 0;
    const QDir shipped(QStringLiteral(AMBERTASK_SHIPPED_SKINS));
    for (const QString& name : shipped.entryList({QStringLiteral("*.skf")})) {
        for (const Damage& damage : damagedAnywhere(bytesOf(shipped.filePath(name)), 150, 60, m_chance)) {
            ++tried;
            QElapsedTimer timer;
            timer.start();
            if (const std::optional<SkinFile> skin = skinOf(damage.bytes)) {
                QVERIFY2(!skin->info.name.isEmpty(), qPrintable(damage.what));
                wear(*skin);
                QVERIFY2(!QTest::currentTestFailed(), qPrintable(name + u' ' + damage.what));
            } else {
                ++refused;
            }
            QVERIFY2(timer.elapsed() < Deadline, qPrintable(damage.what));
        }
    }
    qInfo("%d damaged skins, %d of them refused", tried, refused);
}

void DamagedSkinsTest::ofPiecesPutTogetherByChanceQtReadsWhatIsAccepted()
{
    constexpr std::array SelectorPieces{"QLabel", "*", "#", "a", ".", ":", "::", "!", "[", "]", "=",
        "~=", "\"x y\"", " ", ">", ",", "-", "1", "/**/", "\n", "_b", "hover"};
    constexpr std::array ValuePieces{"red", "1", "px", "-", "+", ".5", "%", "#", "abc", "aabbcc", "(", ")",
        "rgb(", ",", "/", " ", "\n", "'x'", "\"y\"", "qlineargradient(", "x1", ":", "$ink", "/**/", "e3",
        "font", "border"};
    const auto pieces = [this](const auto& from, int most) {
        QByteArray text;
        for (auto left = 1 + m_chance() % static_cast<unsigned>(most); left > 0; --left) {
            text += from[m_chance() % from.size()];
        }
        return text;
    };
    const SmallWindow window;
    const int tries = 4000 * factor();
    int accepted = 0;
    for (int i = 0; i < tries; ++i) {
        // One half of a rule is by chance, the other is sound.
        const QByteArray sheet = i % 2 == 0
            ? pieces(SelectorPieces, 6) + " { color: $ink; }"
            : "QLabel { color: " + pieces(ValuePieces, 7) + "; font: " + pieces(ValuePieces, 4) + " }";
        if (const std::optional<SkinFile> skin = skinOf(skinWith(sheet))) {
            ++accepted;
            wear(*skin);
            QVERIFY2(!QTest::currentTestFailed(), sheet.constData());
        }
    }
    qInfo("%d style sheets put together by chance, %d of them accepted", tries, accepted);
}

void DamagedSkinsTest::aSkinMadeToKeepTheProgramBusyDoesNot_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, const QByteArray& sheet) {
        QTest::newRow(name) << skinWith(sheet);
    };
    row("a selector of one long word", QByteArray(Much, 'a') + "> {}");
    row("a selector of many words", QByteArray("a ").repeated(Much / 2) + "> {}");
    row("a selector of blanks", "a" + QByteArray(Much, ' ') + "> {}");
    row("many selectors", QByteArray("a,").repeated(Much / 2) + "a {}");
    row("many rules", QByteArray("a{}").repeated(Much / 3));
    row("many rules for every control", QByteArray("*{a:b}").repeated(Much / 6));
    row("many properties for every control", "*{" + QByteArray("color:red;").repeated(Much / 10) + "}");
    row("many properties", "a {" + QByteArray("b:c;").repeated(Much / 4) + "}");
    row("a property without a value", "a {" + QByteArray(Much, 'b') + "}");
    row("many properties without a value", "QLabel {" + QByteArray("border ").repeated(Much / 8) + ":0}");
    row("many colours", QByteArray("$ink").repeated(Much / 4));
    row("many dollars", QByteArray(Much, '$'));
    row("many comments", QByteArray("/**/").repeated(Much / 4));
    row("openings of comments", QByteArray("/*").repeated(Much / 2));
    row("quotation marks", QByteArray("'\"").repeated(Much / 2));
    row("opening brackets", QByteArray(Much, '{'));
    row("closing brackets", QByteArray(Much, '}'));
    row("attributes", "QLabel" + QByteArray("[a]").repeated(Much / 4) + "{}");
    QTest::newRow("many lines in front") << "/*\n" + QByteArray("\n").repeated(Much / 2) + "@name X*/";
    QTest::newRow("many colours in front")
        << "/*\n@name X\n" + QByteArray("@color a #000000\n").repeated(Much / 20) + "*/";
    QTest::newRow("a long name") << "/*\n@name " + QByteArray(Much, 'x') + "\n*/";
    QTest::newRow("a colour of blanks") << "/*\n@name X\n@color a" + QByteArray(Much, ' ') + "x\n*/";
}

void DamagedSkinsTest::aSkinMadeToKeepTheProgramBusyDoesNot()
{
    QFETCH(const QByteArray, bytes);
    QElapsedTimer timer;
    timer.start();
    const SmallWindow window;
    if (const std::optional<SkinFile> skin = skinOf(bytes)) {
        wear(*skin);
    }
    QVERIFY2(timer.elapsed() < Deadline, qPrintable(QString::number(timer.elapsed())));
    qInfo("%lld ms", timer.elapsed());
}

AMBERTASK_TEST_MAIN(DamagedSkinsTest)
#include "tst_damaged_skins.moc"
