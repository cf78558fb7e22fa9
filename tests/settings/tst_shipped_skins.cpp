#include "settings/SkinEngine.h"
#include "settings/SkinFolder.h"
#include "settings/SkinSheet.h"
#include "support/Contrast.h"
#include "support/TestMain.h"
#include "widgets/GridView.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <cmath>

namespace
{

QString pathOf(const QString& skin)
{
    return shippedSkins() + QLatin1Char('/') + skin + QStringLiteral(".skf");
}

/// The contrast that a skin owes to texts.
double owed(const QString& skin)
{
    return skin == QLatin1String("Contrast") ? 7.0 : 4.5;
}

/// A colour that the sheet gives to the rows of grids.
QColor rowColor(const SkinFile& skin, const QString& property)
{
    const QRegularExpression line(QStringLiteral("qproperty-%1:\\s*(#[0-9a-f]{6})").arg(property));
    return {line.match(skinSheet(skin)).captured(1)};
}

/// The rows that do not stand out from their ground by that contrast.
QString faintRows(const SkinFile& skin, double contrastOwed)
{
    const QColor selection = skin.colors.value(QStringLiteral("selection"));
    QStringList faults;
    const auto expect = [&](const QString& property, const QColor& ground) {
        const double ratio = contrastOf(rowColor(skin, property), ground);
        if (ratio < contrastOwed) {
            faults.append(QStringLiteral("%1 on %2: %3").arg(property, ground.name()).arg(ratio));
        }
    };
    for (const char* ink : {"overdueInk", "dueTodayInk", "doneInk"}) {
        expect(QLatin1String(ink), skin.palette.color(QPalette::Base));
        expect(QLatin1String(ink), skin.palette.color(QPalette::AlternateBase));
    }
    for (const char* ink : {"selectedOverdueInk", "selectedDueTodayInk", "selectedDoneInk"}) {
        expect(QLatin1String(ink), selection);
    }
    return faults.join(u'\n');
}

/// The greatest contrast between any pixel of `area` and the most frequent colour there.
double strongestMark(const QImage& image, const QRect& area)
{
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        ground = it.value() > counts.value(ground) ? it.key() : ground;
    }
    double strongest = 1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        strongest = std::max(strongest, contrastOf(it.key(), ground));
    }
    return strongest;
}

int differingPixels(const QImage& left, const QImage& right, const QRect& area)
{
    int differing = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            differing += left.pixel(x, y) != right.pixel(x, y) ? 1 : 0;
        }
    }
    return differing;
}

/// Half way between the first and the last row of `area` that differ from its upper left corner.
double markedMiddle(const QImage& image, const QRect& area)
{
    int first = area.bottom();
    int last = area.top();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (image.pixel(x, y) != image.pixel(area.topLeft())) {
                first = std::min(first, y);
                last = std::max(last, y);
            }
        }
    }
    return (first + last) / 2.0;
}

QImage pictureOf(QWidget& widget)
{
    widget.resize(widget.sizeHint().expandedTo(QSize(120, 0)));
    return widget.grab().toImage();
}

/// Where a list or a picker has its arrow.
QRect arrowOf(const QImage& field)
{
    return {field.width() - 20, 5, 14, field.height() - 10};
}

const QRect Indicator(0, 0, 18, 18);

} // namespace

class TestShippedSkins : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fiveSkinsAreShipped();

    void aSkinIsNamedAfterItsFile_data() { skins(); }
    void aSkinIsNamedAfterItsFile();
    void textsStandOutFromTheirGround_data() { skins(); }
    void textsStandOutFromTheirGround();
    void disabledTextsCanStillBeRead_data() { skins(); }
    void disabledTextsCanStillBeRead();
    void outlinesAndRingsStandOut_data() { skins(); }
    void outlinesAndRingsStandOut();
    void datesHaveRoomInEachFormat();
    void rulesOfTheSheetKeepTextsReadable_data() { skins(); }
    void rulesOfTheSheetKeepTextsReadable();
    void rowsThatAreLateTodayOrDoneCanBeRead_data() { skins(); }
    void rowsThatAreLateTodayOrDoneCanBeRead();
    void aSkinWithoutTheirColoursGetsSomeThatCanBeRead_data();
    void aSkinWithoutTheirColoursGetsSomeThatCanBeRead();
    void aGridHasTheColoursOfTheSkinThatIsWorn();
    void qtTakesTheSheet_data() { skins(); }
    void qtTakesTheSheet();
    void picturesKeepTheirColoursInSelectedRows_data() { skins(); }
    void picturesKeepTheirColoursInSelectedRows();
    void checkMarksAreVisible_data() { skins(); }
    void checkMarksAreVisible();
    void radioDotsAreVisible_data() { skins(); }
    void radioDotsAreVisible();
    void arrowsAreVisible_data() { skins(); }
    void arrowsAreVisible();
    void theArrowOfAMenuLiesHalfWayUpItsButton_data() { skins(); }
    void theArrowOfAMenuLiesHalfWayUpItsButton();
    void theFocusIsVisible_data() { skins(); }
    void theFocusIsVisible();

private:
    static void skins();
    void wear(const QString& skin);

    std::unique_ptr<SkinEngine> m_engine;
};

void TestShippedSkins::initTestCase()
{
    m_engine = std::make_unique<SkinEngine>();
}

void TestShippedSkins::skins()
{
    QTest::addColumn<QString>("skin");
    for (const QString& file : QDir(shippedSkins()).entryList(QDir::Files)) {
        const QString skin = QFileInfo(file).completeBaseName();
        QTest::newRow(qPrintable(skin)) << skin;
    }
}

void TestShippedSkins::wear(const QString& skin)
{
    m_engine->loadSkinFile(pathOf(skin));
    m_engine->applySkin();
}

void TestShippedSkins::fiveSkinsAreShipped()
{
    QCOMPARE(QDir(shippedSkins()).entryList(QDir::Files, QDir::Name).join(u','),
        QStringLiteral("Aqua.skf,Classic.skf,Contrast.skf,Lemon.skf,Midnight.skf"));
}

void TestShippedSkins::aSkinIsNamedAfterItsFile()
{
    QFETCH(const QString, skin);
    QCOMPARE(SkinEngine::skinName(pathOf(skin)), skin);
}

void TestShippedSkins::textsStandOutFromTheirGround()
{
    QFETCH(const QString, skin);
    const QPalette palette = SkinFile::read(pathOf(skin)).palette;
    const QList<std::pair<QPalette::ColorRole, QPalette::ColorRole>> pairs{
        {QPalette::WindowText, QPalette::Window}, {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase}, {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}, {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::BrightText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Link, QPalette::Window}, {QPalette::Link, QPalette::Base},
        {QPalette::Link, QPalette::Light}, {QPalette::LinkVisited, QPalette::Window},
        {QPalette::WindowText, QPalette::Light}};
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto& [text, ground] : pairs) {
            const double ratio = contrastOf(palette.color(group, text), palette.color(group, ground));
            QVERIFY2(ratio >= owed(skin),
                qPrintable(QStringLiteral("%1 on %2: %3").arg(text).arg(ground).arg(ratio)));
        }
    }
}

void TestShippedSkins::disabledTextsCanStillBeRead()
{
    QFETCH(const QString, skin);
    const QPalette palette = SkinFile::read(pathOf(skin)).palette;
    for (const auto text :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Light}) {
            const double ratio = contrastOf(
                palette.color(QPalette::Disabled, text), palette.color(QPalette::Disabled, ground));
            QVERIFY2(ratio >= 3, qPrintable(QStringLiteral("%1 on %2: %3").arg(text).arg(ground).arg(ratio)));
        }
    }
}

void TestShippedSkins::outlinesAndRingsStandOut()
{
    QFETCH(const QString, skin);
    const QPalette palette = SkinFile::read(pathOf(skin)).palette;
    for (const auto line : {QPalette::Mid, QPalette::Dark, QPalette::Highlight}) {
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Light}) {
            const double ratio = contrastOf(palette.color(line), palette.color(ground));
            QVERIFY2(ratio >= 3, qPrintable(QStringLiteral("%1 on %2: %3").arg(line).arg(ground).arg(ratio)));
        }
    }
}

void TestShippedSkins::datesHaveRoomInEachFormat()
{
    const QFontMetrics letters(QApplication::font());
    const int usual = dateWidth(letters, QStringLiteral("dd.MM.yyyy"));
    QCOMPARE(dateWidth(letters, QStringLiteral("M/d/yyyy")), usual);
    const QString named = QStringLiteral("dddd, d. MMMM yyyy");
    const QString date = QLocale().toString(QDate(2028, 11, 28), named);
    QVERIFY(letters.horizontalAdvance(date) > usual);
    QVERIFY(dateWidth(letters, named) > letters.horizontalAdvance(date));
}

void TestShippedSkins::rulesOfTheSheetKeepTextsReadable()
{
    QFETCH(const QString, skin);
    const SkinFile file = SkinFile::read(pathOf(skin));
    static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
    static const QRegularExpression ink(
        QStringLiteral("(?:^|[\\s;])(?:selection-)?color:\\s*(#[0-9a-f]{6})"));
    static const QRegularExpression paper(QStringLiteral("background-color:\\s*(#[0-9a-f]{6})"));
    int checked = 0;
    for (auto rules = rule.globalMatch(skinSheet(file)); rules.hasNext();) {
        const QRegularExpressionMatch match = rules.next();
        const QString text = ink.match(match.captured(2)).captured(1);
        if (text.isEmpty()) {
            continue;
        }
        const QString own = paper.match(match.captured(2)).captured(1);
        const QList<QColor> grounds = own.isEmpty()
            ? QList<QColor>{file.palette.color(QPalette::Window), file.palette.color(QPalette::Light)}
            : QList<QColor>{QColor(own)};
        // A caption as large as the header's, and what is disabled, may do with less.
        const bool large = match.captured(1).contains(QStringLiteral("lblAmberHeader"));
        const bool disabled = match.captured(1).contains(QStringLiteral(":disabled"));
        for (const QColor& ground : grounds) {
            const double ratio = contrastOf(QColor(text), ground);
            QVERIFY2(ratio >= (large || disabled ? 3 : owed(skin)),
                qPrintable(QStringLiteral("%1: %2").arg(match.captured(1).trimmed()).arg(ratio)));
            ++checked;
        }
    }
    QVERIFY(checked > 15);
}

void TestShippedSkins::rowsThatAreLateTodayOrDoneCanBeRead()
{
    QFETCH(const QString, skin);
    const SkinFile file = SkinFile::read(pathOf(skin));
    const QString faults = faintRows(file, owed(skin));
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
    // Each is another one, and none is that of the other rows.
    QSet<QRgb> different{file.palette.color(QPalette::Text).rgb()};
    for (const char* token : {"overdue", "due-today", "done"}) {
        different.insert(file.colors.value(QLatin1String(token)).rgb());
    }
    QCOMPARE(different.size(), 4);
}

void TestShippedSkins::aSkinWithoutTheirColoursGetsSomeThatCanBeRead_data()
{
    QTest::addColumn<QByteArray>("paper");
    QTest::addColumn<QByteArray>("selection");
    QTest::newRow("light") << QByteArray("#ffffff") << QByteArray("#f0d2d0");
    QTest::newRow("dark") << QByteArray("#10141a") << QByteArray("#26324a");
    QTest::newRow("light, dark selection") << QByteArray("#fff4e0") << QByteArray("#102040");
    QTest::newRow("red") << QByteArray("#c62828") << QByteArray("#b25e00");
    QTest::newRow("grey") << QByteArray("#808080") << QByteArray("#757575");
}

void TestShippedSkins::aSkinWithoutTheirColoursGetsSomeThatCanBeRead()
{
    QFETCH(const QByteArray, paper);
    QFETCH(const QByteArray, selection);
    const QByteArray skin = "/*\n@name Older\n@color paper " + paper + "\n@color selection " + selection
        + "\n@palette Base $paper\n@palette AlternateBase $paper\n@palette PlaceholderText $paper\n*/";
    const QString faults = faintRows(SkinFile::parse(skin, {}), 4.5);
    QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

void TestShippedSkins::aGridHasTheColoursOfTheSkinThatIsWorn()
{
    GridView grid;
    for (const char* skin : {"Aqua", "Midnight", "Aqua"}) {
        wear(QLatin1String(skin));
        grid.ensurePolished();
        const SkinFile file = SkinFile::read(pathOf(QLatin1String(skin)));
        QCOMPARE(grid.colorOf(RowInk::Overdue, false), file.colors.value(QStringLiteral("overdue")));
        QCOMPARE(grid.colorOf(RowInk::DueToday, false), file.colors.value(QStringLiteral("due-today")));
        QCOMPARE(grid.colorOf(RowInk::Done, false), file.colors.value(QStringLiteral("done")));
        QCOMPARE(grid.colorOf(RowInk::Overdue, true), rowColor(file, QStringLiteral("selectedOverdueInk")));
        QVERIFY(!grid.colorOf(RowInk::Usual, false).isValid());
    }
}

// A sheet that cannot be parsed is dropped with a warning, and a warning fails the test.
void TestShippedSkins::qtTakesTheSheet()
{
    QFETCH(const QString, skin);
    wear(skin);
    QPushButton button(QStringLiteral("Save"));
    button.setObjectName(QStringLiteral("btnSave"));
    const QImage picture = pictureOf(button);
    QVERIFY(contrastOf(QColor(picture.pixel(picture.width() / 2, 5)),
                QApplication::palette().color(QPalette::Window))
        > 1.5);
}

void TestShippedSkins::picturesKeepTheirColoursInSelectedRows()
{
    QPixmap picture(16, 16);
    picture.fill(QColor(0x1f, 0x6f, 0xd6));
    QFETCH(const QString, skin);
    wear(skin);
    const QPixmap selected = QIcon(picture).pixmap(QSize(16, 16), 1, QIcon::Selected);
    QCOMPARE(selected.toImage().pixelColor(8, 8), QColor(0x1f, 0x6f, 0xd6));
    const QPixmap disabled = QIcon(picture).pixmap(QSize(16, 16), 1, QIcon::Disabled);
    QVERIFY(disabled.toImage().pixelColor(8, 8) != QColor(0x1f, 0x6f, 0xd6));
}

void TestShippedSkins::checkMarksAreVisible()
{
    QFETCH(const QString, skin);
    wear(skin);
    for (const bool enabled : {true, false}) {
        QCheckBox box;
        box.setEnabled(enabled);
        const QImage off = pictureOf(box);
        box.setChecked(true);
        const QImage on = pictureOf(box);
        box.setTristate(true);
        box.setCheckState(Qt::PartiallyChecked);
        const QImage half = pictureOf(box);
        QVERIFY(differingPixels(off, on, Indicator) > 60);
        QVERIFY(differingPixels(half, on, Indicator) > 10);
        QVERIFY(strongestMark(off, Indicator) >= (enabled ? 3 : 1.2));
        QVERIFY(strongestMark(on, QRect(4, 4, 14, 14)) >= 3);
    }
}

void TestShippedSkins::radioDotsAreVisible()
{
    QFETCH(const QString, skin);
    wear(skin);
    for (const bool enabled : {true, false}) {
        QRadioButton button;
        button.setEnabled(enabled);
        const QImage off = pictureOf(button);
        button.setChecked(true);
        const QImage on = pictureOf(button);
        QVERIFY(differingPixels(off, on, Indicator) > 60);
        QVERIFY(strongestMark(off, Indicator) >= (enabled ? 3 : 1.2));
        QVERIFY(strongestMark(on, QRect(5, 5, 12, 12)) >= 3);
    }
}

void TestShippedSkins::arrowsAreVisible()
{
    QFETCH(const QString, skin);
    wear(skin);
    for (const bool enabled : {true, false}) {
        QComboBox combo;
        combo.addItem(QStringLiteral("All"));
        QDateEdit date(QDate(2026, 1, 15));
        date.setCalendarPopup(true);
        QSpinBox spin;
        spin.setRange(0, 10);
        spin.setValue(5);
        for (QWidget* widget : QList<QWidget*>{&combo, &date, &spin}) {
            widget->setEnabled(enabled);
        }
        const double least = enabled ? 4.5 : 2.5;
        for (QWidget* field : QList<QWidget*>{&combo, &date}) {
            const QImage picture = pictureOf(*field);
            QVERIFY(strongestMark(picture, arrowOf(picture)) >= least);
        }
        const QImage picture = pictureOf(spin);
        const QRect both = arrowOf(picture);
        QVERIFY(strongestMark(picture, both.adjusted(0, 0, 0, -both.height() / 2)) >= least);
        QVERIFY(strongestMark(picture, both.adjusted(0, both.height() / 2, 0, 0)) >= least);
    }
}

void TestShippedSkins::theArrowOfAMenuLiesHalfWayUpItsButton()
{
    QFETCH(const QString, skin);
    wear(skin);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QPushButton button(QStringLiteral("Set to"));
        QMenu menu;
        button.setMenu(&menu);
        button.setLayoutDirection(direction);
        const QImage picture = pictureOf(button);
        const QRect end = arrowOf(picture);
        const QRect area = direction == Qt::LeftToRight
            ? end
            : end.translated(picture.width() - end.right() - end.left(), 0);
        QVERIFY(strongestMark(picture, area) >= 4.5);
        QVERIFY2(std::abs(markedMiddle(picture, area) - (picture.height() - 1) / 2.0) <= 1.5,
            qPrintable(QString::number(markedMiddle(picture, area))));
    }
}

void TestShippedSkins::theFocusIsVisible()
{
    QFETCH(const QString, skin);
    wear(skin);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const QList<QWidget*> controls{new QCheckBox(QStringLiteral("Box")),
        new QRadioButton(QStringLiteral("Dot")), new QComboBox, new QSpinBox, new QDateEdit,
        new QPushButton(QStringLiteral("Push"))};
    for (QWidget* control : controls) {
        layout->addWidget(control);
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (QWidget* control : controls) {
        window.setFocus();
        const QImage without = control->grab().toImage();
        control->setFocus(Qt::TabFocusReason);
        const QImage with = control->grab().toImage();
        QVERIFY2(differingPixels(without, with, with.rect()) > 40, control->metaObject()->className());
    }
}

AMBERTASK_TEST_MAIN(TestShippedSkins)
#include "tst_shipped_skins.moc"
