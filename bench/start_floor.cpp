// The smallest program of twelve buttons in this toolkit: what start.py compares with.
#include <QApplication>
#include <QGridLayout>
#include <QPushButton>

int main(int argc, char* argv[])
{
    QApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    QWidget window;
    auto* grid = new QGridLayout(&window);
    for (int i = 0; i < 12; ++i)
        grid->addWidget(new QPushButton(QStringLiteral("Actividad %1").arg(i)), i / 2, i % 2);
    window.resize(734, 580);
    window.show();
    return QApplication::exec();
}
