// A skin that is put on while every window is loaded.
#include "settings/SkinEngine.h"
#include "support/Bench.h"
#include "support/BenchProgram.h"

#include <QApplication>
#include <QEvent>

namespace
{

/// Counts how often windows are told that their style has changed.
class StyleChanges final : public QObject
{
public:
    int of(const QWidget* window) const { return m_changes.value(window); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::StyleChange) {
            ++m_changes[watched];
        }
        return false;
    }

private:
    QHash<const QObject*, int> m_changes;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Bench bench(argc, argv);
    TaskFile file({bench.size(1000, 10)});
    BenchProgram shown(file);
    SkinEngine engine;
    bool dark = false;
    const auto change = [&] {
        dark = !dark;
        engine.loadSkinFile(QStringLiteral(AMBERTASK_SHIPPED_SKINS "/%1.skf")
                                .arg(dark ? QStringLiteral("Midnight") : QStringLiteral("Aqua")));
        engine.applySkin();
        QCoreApplication::processEvents();
    };
    bench.value(QStringLiteral("A skin put on with every window loaded, windows repainted"),
        bench.median(15, change), 150, QStringLiteral("ms"));

    StyleChanges changes;
    application.installEventFilter(&changes);
    change();
    bench.value(QStringLiteral("Restyles of the main window by that"),
        changes.of(&shown.program.mainWindow()), 1, QString());
    engine.applySkin();
    return 0;
}
