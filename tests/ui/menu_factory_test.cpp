#include "ui/look.h"
#include "ui/menu_factory.h"

#include <QMenu>
#include <QMenuBar>
#include <QtTest>

using namespace Qt::StringLiterals;

class MenuFactoryTest : public QObject {
    Q_OBJECT

private slots:
    void thereIsNoBarBeforeTheFirstMenu()
    {
        QWidget window;
        ui::MenuFactory make(&window);
        QCOMPARE(make.menuBar(), nullptr);
        QCOMPARE(make.menuBarHeight(), 0.0);
        make.barItem(u"MnuAce"_s, u"Acerca de..."_s);
        QCOMPARE(make.menuBar()->parentWidget(), &window);
        QCOMPARE(make.menuBarHeight(), double(ui::look::MenuBarHeight));
    }

    void menusAndItemsCarryTheirNames()
    {
        QWidget window;
        ui::MenuFactory make(&window);
        QMenu* options = make.menu(u"MnuOpc"_s, u"&Opciones"_s);
        QCOMPARE(options->menuAction()->objectName(), u"MnuOpc"_s);
        const QMenu* below = make.submenu(options, u"MnuOpcTab"_s, u"&Tabla"_s);
        QCOMPARE(below->objectName(), u"MnuOpcTab"_s);
        QCOMPARE(make.item(options, u"MnuOpcSal"_s, u"&Salir"_s)->objectName(), u"MnuOpcSal"_s);
        QCOMPARE(options->actions().size(), 2);
    }

    void pickedItemOfAListChangesNoCheckByItself()
    {
        QWidget window;
        ui::MenuFactory make(&window);
        const ui::MenuList list = make.menuList(
            make.menu(u"MnuOpc"_s, {}), u"Lis"_s, ui::MenuFactory::numberedCaptions(4, 6));
        QCOMPARE(list.size(), 3);
        QCOMPARE(list.at(2)->text(), u"&6"_s);
        QCOMPARE(list.at(2)->objectName(), u"Lis(2)"_s);
        QVERIFY(list.at(0)->isChecked());
        list.at(1)->trigger();
        QVERIFY(list.at(0)->isChecked());
        QVERIFY(!list.at(1)->isChecked());
    }

    void barIsAsHighAsItsTypeNeeds()
    {
        QWidget window;
        ui::MenuFactory make(&window);
        make.setMenuType(8);
        const QMenu* options = make.menu(u"MnuOpc"_s, {});
        make.setMenuFactor(2);
        QCOMPARE(make.menuBarHeight(), 14.0);
        QCOMPARE(make.menuBar()->font().pixelSize(), 16);
        QCOMPARE(options->font().pixelSize(), 16);
    }

    void fontsFollowTheFactorWheneverTheMenuIsMade()
    {
        QWidget window;
        ui::MenuFactory make(&window);
        const QMenu* before = make.menu(u"A"_s, {});
        make.setMenuFactor(2);
        const QMenu* after = make.menu(u"B"_s, {});
        const int twice = make.menuBar()->font().pixelSize();
        QCOMPARE(twice, 32);
        QCOMPARE(before->font().pixelSize(), twice);
        QCOMPARE(after->font().pixelSize(), twice);
    }
};

QTEST_MAIN(MenuFactoryTest)
#include "menu_factory_test.moc"
