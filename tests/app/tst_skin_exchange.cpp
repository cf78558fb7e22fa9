#include "settings/SkinEngine.h"
#include "support/FileContent.h"
#include "support/TestMain.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/EveryBox.h"
#include "tests/app/WindowLook.h"

#include <QComboBox>
#include <QStyleFactory>
#include <QTemporaryDir>

/// Fails when `window` does not look as it does after a start with the skin.
#define EXPECT_SAME(afterStart, window, name, skin)                                                          \
    do {                                                                                                     \
        const QStringList different = (afterStart).differences(lookOf(window));                              \
        QVERIFY2(different.isEmpty(),                                                                        \
            qPrintable((name) + QStringLiteral(" in ") + (skin) + u'\n' + different.join(u'\n')));           \
    } while (false)

namespace
{

/// The looks of windows in the order in which they are visited.
using Looks = QList<WindowLook>;
using Walk = std::function<void(SkinnedProgram&, const Visit&)>;

WindowLook lookOf(QWidget& window)
{
    if (auto* skins = window.findChild<QComboBox*>(QStringLiteral("cmbSkins"))) {
        // It names the skin with which the program started.
        skins->setCurrentIndex(-1);
    }
    settleWindows();
    return WindowLook(window);
}

/// A window keeps its size at an exchange, and the skin before may have needed more.
void resizeTo(const QSize& size, QWidget& window)
{
    if (window.size() != size) {
        settleWindows();
        window.resize(size);
    }
}

/// As at the start of a process.
void forgetSkin()
{
    qApp->setStyleSheet({});
    QApplication::setPalette(QPalette());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

/// Counts how often each widget is told that its style has changed.
class StyleChanges final : public QObject
{
public:
    StyleChanges() { qApp->installEventFilter(this); }
    int of(const QWidget* widget) const { return m_changes.value(widget); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_changes[watched] += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }

private:
    QHash<const QObject*, int> m_changes;
};

} // namespace

class SkinExchangeTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyWindowIsStyledOnce();
    void openWindowsLookAsAfterAStart();
    void whatOpensThenLooksAsAfterAStart();

private:
    void addSkin(const QString& name, const QByteArray& content);
    QHash<QString, Looks> looksAfterAStart(const Walk& walk, const QStringList& names);
    /// Exchanges each skin for each other one; `look` is called with the name of the new one.
    void exchangeAll(const std::function<void(const QString& skin)>& look);
    void wear(const QString& skin);
    qsizetype exchanges() const { return m_names.size() * (m_names.size() - 1); }

    QTemporaryDir m_skins;
    QStringList m_names;
    std::unique_ptr<SkinEngine> m_engine;
};

void SkinExchangeTest::initTestCase()
{
    QApplication::setCursorFlashTime(0);
    const QString shipped = QStringLiteral(AMBERTASK_SHIPPED_SKINS "/%1.skf");
    for (const QString& name : shippedSkins()) {
        addSkin(name, contentOf(shipped.arg(name)));
    }
    // Roles alone, and roles alone changed.
    QByteArray bare =
        contentOf(shipped.arg(QStringLiteral("Midnight"))).replace("@name Midnight", "@name Bare");
    for (const char* own :
        {"button-", "primary", "on-primary", "mark", "header", "selection", "on-selection"}) {
        bare.replace(QByteArray("@color ") + own, QByteArray("@color other-") + own);
    }
    addSkin(QStringLiteral("Bare"), bare);
    QByteArray recast = contentOf(shipped.arg(QStringLiteral("Aqua"))).replace("@name Aqua", "@name Recast");
    for (const char* role : {"Base", "Mid", "Dark", "WindowText", "Highlight"}) {
        recast.replace(QByteArray("\n@palette ") + role + " $",
            QByteArray("\n@palette ") + role + " $link\n@palette Shadow $");
    }
    addSkin(QStringLiteral("Recast"), recast);
    m_engine = std::make_unique<SkinEngine>();
}

void SkinExchangeTest::addSkin(const QString& name, const QByteArray& content)
{
    writeText(m_skins.filePath(name + QStringLiteral(".skf")), content);
    m_names.append(name);
}

void SkinExchangeTest::wear(const QString& skin)
{
    m_engine->loadSkinFile(m_skins.filePath(skin + QStringLiteral(".skf")));
    m_engine->applySkin();
}

QHash<QString, Looks> SkinExchangeTest::looksAfterAStart(const Walk& walk, const QStringList& names)
{
    QHash<QString, Looks> looks;
    for (const QString& skin : names) {
        forgetSkin();
        SkinnedProgram program(skin, m_skins.path());
        walk(program, [&](const QString&, QWidget& window) { looks[skin].append(lookOf(window)); });
    }
    return looks;
}

void SkinExchangeTest::exchangeAll(const std::function<void(const QString& skin)>& look)
{
    for (qsizetype one = 0; one < m_names.size(); ++one) {
        wear(m_names[one]);
        for (qsizetype other = one + 1; other < m_names.size(); ++other) {
            for (const QString& skin : {m_names[other], m_names[one]}) {
                wear(skin);
                look(skin);
            }
        }
    }
}

void SkinExchangeTest::everyWindowIsStyledOnce()
{
    SkinnedProgram program(QStringLiteral("Aqua"));
    visitEveryWindow(program, [](const QString&, QWidget&) {});
    wear(QStringLiteral("Recast"));
    const StyleChanges changes;
    wear(QStringLiteral("Midnight"));
    int windows = 0;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (widget->isWindow()) {
            QVERIFY2(changes.of(widget) == 1, widget->metaObject()->className());
            ++windows;
        }
    }
    QVERIFY2(windows >= 5, qPrintable(QString::number(windows)));
}

void SkinExchangeTest::openWindowsLookAsAfterAStart()
{
    const auto expected = looksAfterAStart(visitEveryWindow, m_names);
    forgetSkin();
    SkinnedProgram program(m_names.first());
    qsizetype visited = 0;
    qsizetype compared = 0;
    visitEveryWindow(program, [&](const QString& name, QWidget& window) {
        const qsizetype place = visited++;
        if (window.isModal()) {
            // No box may keep the test from the list of skins.
            return;
        }
        exchangeAll([&](const QString& skin) {
            const WindowLook& afterStart = expected[skin].at(place);
            resizeTo(afterStart.size(), window);
            EXPECT_SAME(afterStart, window, name, skin);
            ++compared;
        });
        wear(m_names.first());
    });
    QVERIFY2(compared >= 19 * exchanges(), qPrintable(QString::number(compared)));
}

void SkinExchangeTest::whatOpensThenLooksAsAfterAStart()
{
    const auto walk = [](SkinnedProgram& program, const Visit& visit) {
        visitEveryBox(program.main(), visit);
        // Its lists are as wide as there is room, and the user's size stays.
        program.program.taskDetails().resize(700, 550);
        visitPopUps(program, visit);
    };
    const auto expected = looksAfterAStart(walk, m_names);
    forgetSkin();
    SkinnedProgram program(m_names.first());
    qsizetype compared = 0;
    exchangeAll([&](const QString& skin) {
        qsizetype visited = 0;
        walk(program, [&](const QString& name, QWidget& window) {
            const WindowLook& afterStart = expected[skin].at(visited++);
            if (name.endsWith(QStringLiteral("cmbSkins"))) {
                // It marks the skin that the program began with.
                return;
            }
            EXPECT_SAME(afterStart, window, name, skin);
            ++compared;
        });
    });
    QVERIFY2(compared >= 22 * exchanges(), qPrintable(QString::number(compared)));
}

AMBERTASK_TEST_MAIN(SkinExchangeTest)
#include "tst_skin_exchange.moc"
