// The least that a start takes: an application that wears a skin and shows a window with nothing in it.
#include "settings/SkinEngine.h"

#include <QApplication>
#include <QStyleFactory>
#include <QWidget>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    SkinEngine engine;
    engine.loadSkinFile(QString::fromLocal8Bit(argv[argc - 1]));
    engine.applySkin();
    QWidget window;
    window.setObjectName(QStringLiteral("frmMain"));
    window.resize(960, 640);
    window.show();
    return QApplication::exec();
}
