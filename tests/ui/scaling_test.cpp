#include "core/defect.h"
#include "ui/scaling.h"

#include <QDialog>
#include <QMenu>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr ui::look::Font Large{ui::look::Family::Arial, 20};

/// A control that shows which factor was pushed to it.
class Measured : public QWidget, public ui::Scalable {
public:
    using QWidget::QWidget;
    using Scalable::factor;
};

} // namespace

class ScalingTest : public QObject {
    Q_OBJECT

private slots:
    void aControlStandsWhereTheFactorPutsIt()
    {
        QWidget window;
        auto* control = new Measured(&window);
        ui::Scaling scaling;
        scaling.add(control, {150, 300, 1500, 600}, Large);
        QCOMPARE(control->geometry(), QRect(10, 20, 100, 40));
        QCOMPARE(control->font().pixelSize(), 20);
        scaling.setFactor(1.5);
        QCOMPARE(control->geometry(), QRect(15, 30, 150, 60));
        QCOMPARE(control->font().pixelSize(), 30);
        QCOMPARE(control->factor(), 1.5);
    }

    void aControlThatComesLaterHasTheFactorAtOnce()
    {
        QWidget window;
        ui::Scaling scaling;
        scaling.setFactor(2);
        auto* control = new Measured(&window);
        scaling.add(control, {150, 300, 1500, 600}, Large);
        QCOMPARE(control->geometry(), QRect(20, 40, 200, 80));
        QCOMPARE(control->factor(), 2.0);
    }

    void movingAndRefittingGoByTheFactor()
    {
        QWidget window;
        auto* control = new QWidget(&window);
        ui::Scaling scaling;
        scaling.add(control, {0, 0, 1500, 600}, Large);
        scaling.setFactor(2);
        scaling.moveTo(control, 300, 150);
        QCOMPARE(control->geometry(), QRect(40, 20, 200, 80));
        QCOMPARE(scaling.placeOf(control).left, 300.0);
        QCOMPARE(scaling.placeOf(control).width, 1500.0);
        scaling.place(control, {0, 0, 150, 150});
        QCOMPARE(control->geometry(), QRect(0, 0, 20, 20));
        scaling.setFont(control, {ui::look::Family::Arial, 11});
        QCOMPARE(control->font().pixelSize(), 22);
    }

    void aDestroyedControlIsForgotten()
    {
        QWidget window;
        auto* control = new QWidget(&window);
        ui::Scaling scaling;
        scaling.add(control, {0, 0, 1500, 600}, Large);
        delete control;
        scaling.setFactor(2); // touches it no more
        QVERIFY_THROWS_EXCEPTION(core::Defect, scaling.placeOf(control));
    }

    void aWidgetHasTheFactorOfItsWindow()
    {
        QWidget window;
        auto* frame = new QWidget(&window);
        auto* control = new QWidget(frame);
        QCOMPARE(ui::factorOf(control), 1.0);
        ui::setWindowFactor(window, 1.25);
        QCOMPARE(ui::factorOf(control), 1.25);
        QCOMPARE(ui::factorOf(&window), 1.25);
        QCOMPARE(ui::factorOf(nullptr), 1.0);
    }

    void aBoxOrMenuHasThatOfTheWindowBelowUnlessItWasToldItsOwn()
    {
        QWidget window;
        ui::setWindowFactor(window, 2);
        QDialog box(&window);
        auto* inside = new QWidget(&box);
        QMenu menu(inside);
        QCOMPARE(ui::factorOf(inside), 2.0);
        QCOMPARE(ui::factorOf(&menu), 2.0);
        ui::setWindowFactor(box, 1.5);
        QCOMPARE(ui::factorOf(inside), 1.5);
        QCOMPARE(ui::factorOf(&menu), 1.5);
    }
};

QTEST_MAIN(ScalingTest)
#include "scaling_test.moc"
