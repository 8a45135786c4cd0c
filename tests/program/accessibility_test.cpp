#include "support/program_bench.h"
#include "support/screen_bench.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

// Captions that share an access key by design: the key walks from one to the other.
const QMap<QString, QStringList> SharedKeys{
    {u"Form1"_s, {u"L"_s, u"M"_s, u"S"_s}},
    {u"DLGProblemas"_s, {u"R"_s, u"V"_s}},
};

QChar accessKey(const QString& caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] == u'&' && caption[++i] != u'&')
            return caption[i].toUpper();
    }
    return {};
}

double area(const QRect& rect)
{
    return static_cast<double>(rect.width()) * rect.height();
}

} // namespace

/// Every screen as assistive tools, the keyboard and weak eyes meet it.
class AccessibilityTest : public QObject {
    Q_OBJECT

private slots:
    void init() { program = std::make_unique<ProgramBench>(); }
    void cleanup() { program.reset(); }

    void everyControlHasItsRoleAndASpanishName_data() { addScreenRows(); }
    void everyControlHasItsRoleAndASpanishName()
    {
        ui::Screen& screen = open();
        for (QWidget* control : controls(screen)) {
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
            QVERIFY2(face, qPrintable(control->objectName()));
            const QString name = face->text(QAccessible::Name);
            if (isDecoration(*control) || control->objectName() == u"PbFoco"_s)
                continue; // the latter is where the focus rests: a name would be read out there
            QVERIFY2(!name.isEmpty(), qPrintable(control->objectName()));
            QVERIFY2(name != control->objectName(), qPrintable(name));
            QCOMPARE(int(face->role()), int(expectedRole(control)));
        }
    }

    void captionsOfGroupsAreMetOnceAroundTheirOptions_data() { addScreenRows(); }
    void captionsOfGroupsAreMetOnceAroundTheirOptions()
    {
        for (QRadioButton* option : open().findChildren<QRadioButton*>()) {
            QAccessibleInterface* around = QAccessible::queryAccessibleInterface(option);
            for (; around->role() != QAccessible::Grouping; around = around->parent()) {
                const bool isOption = around->role() == QAccessible::RadioButton;
                QCOMPARE(around->text(QAccessible::Name).isEmpty(), !isOption);
                QVERIFY2(
                    around->relations(QAccessible::Label).isEmpty(), qPrintable(option->text()));
            }
            QVERIFY(!around->text(QAccessible::Name).isEmpty());
        }
    }

    void accessKeysAreUnique_data() { addScreenRows(); }
    void accessKeysAreUnique()
    {
        ui::Screen& screen = open();
        QStringList keys;
        for (const auto* button : screen.findChildren<QAbstractButton*>())
            keys << accessKey(button->text());
        for (const auto* label : screen.findChildren<QLabel*>()) {
            if (label->buddy() != nullptr)
                keys << accessKey(label->text());
        }
        for (const auto* menu : screen.findChildren<QMenuBar*>())
            for (const QAction* action : menu->actions())
                keys << accessKey(action->text());
        keys.removeAll(QString(QChar()));
        keys.removeAll(QString());
        keys.sort();
        QStringList twice;
        for (qsizetype i = 1; i < keys.size(); ++i) {
            if (keys.at(i) == keys.at(i - 1) && !twice.contains(keys.at(i)))
                twice << keys.at(i);
        }
        QCOMPARE(twice, SharedKeys.value(screen.objectName()));
    }

    void textsAreReadable_data() { addScreenRows(); }
    void textsAreReadable()
    {
        ui::Screen& screen = open();
        for (const QWidget* control : controls(screen)) {
            if (isDecoration(*control) || !screen.rect().intersects(placeOn(screen, *control)))
                continue; // the latter are hidden off the canvas
            const QPalette palette = control->palette();
            const bool button = qobject_cast<const QPushButton*>(control) != nullptr;
            const auto text = button ? QPalette::ButtonText : control->foregroundRole();
            auto ground = button ? QPalette::Button : control->backgroundRole();
            const bool box = qobject_cast<const QLineEdit*>(control) != nullptr
                || qobject_cast<const QAbstractScrollArea*>(control) != nullptr;
            QColor behind = palette.color(box ? QPalette::Base : ground);
            const QColor ink = palette.color(box ? QPalette::Text : text);
            if (behind.alpha() < 255)
                behind = groundOf(*control);
            const double ratio = ui::look::contrast(ink, behind);
            QVERIFY2(ratio >= 4.5,
                qPrintable(u"%1: %2 on %3 is %4"_s.arg(
                    control->objectName(), ink.name(), behind.name(), QString::number(ratio))));
        }
    }

    void tabOrderFollowsTheReadingOrder_data() { addScreenRows(); }
    void tabOrderFollowsTheReadingOrder()
    {
        ui::Screen& screen = open();
        if (screen.objectName() == u"Form3"_s)
            return; // its order is given: the row by the result, then the buttons
        const QList<QWidget*> order = tabOrder(screen);
        QVERIFY(screen.objectName() == u"FrmCarrera"_s || !order.isEmpty());
        for (qsizetype i = 1; i < order.size(); ++i) {
            const QRect before = placeOn(screen, *order.at(i - 1));
            const QRect after = placeOn(screen, *order.at(i));
            // Down the screen, or on to the next column.
            const bool onwards = after.bottom() > before.top() || after.left() > before.right();
            QVERIFY2(onwards,
                qPrintable(
                    order.at(i - 1)->objectName() + u" before "_s + order.at(i)->objectName()));
        }
    }

    void focusIsVisibleOnEveryControl_data() { addScreenRows(); }
    void focusIsVisibleOnEveryControl()
    {
        ui::Screen& screen = open();
        const QList<QWidget*> order = tabOrder(screen);
        for (QWidget* control : order) {
            if (order.size() == 1)
                break; // it never loses the focus
            QWidget* other = control == order.first() ? order.last() : order.first();
            other->setFocus(Qt::TabFocusReason);
            runPendingEvents();
            const QImage without =
                screen.grab(placeOn(screen, *control).adjusted(-6, -6, 6, 6)).toImage();
            control->setFocus(Qt::TabFocusReason);
            if (!control->hasFocus())
                continue; // it hands its focus on, to a control that is tried itself
            runPendingEvents();
            QVERIFY2(screen.grab(placeOn(screen, *control).adjusted(-6, -6, 6, 6)).toImage()
                    != without,
                qPrintable(control->objectName()));
        }
    }

    void controlsStandInsideTheirCanvas_data() { addScreenRows(); }
    void controlsStandInsideTheirCanvas()
    {
        ui::Screen& screen = open();
        for (const QWidget* control : controls(screen)) {
            const QRect place = placeOn(screen, *control);
            const QRect inside = place.intersected(screen.rect());
            // Whole, or hidden off the canvas.
            QVERIFY2(inside.isEmpty() || area(inside) == area(place),
                qPrintable(control->objectName()));
        }
    }

private:
    static void addScreenRows()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : screenNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    ui::Screen& open()
    {
        QFETCH(QString, name);
        program->screens.show(name);
        ui::Screen& screen = *program->screens.loaded(name);
        if (name != u"FrmCarrera"_s) // its options come up at once, above it
            makeActive(screen);
        return screen;
    }

    /// Named controls that are shown.
    static QList<QWidget*> controls(const ui::Screen& screen)
    {
        QList<QWidget*> found;
        for (QWidget* widget : screen.findChildren<QWidget*>()) {
            if (!widget->objectName().isEmpty() && widget->isVisible()
                && !widget->objectName().startsWith(u"qt_"_s)
                && qobject_cast<QMenu*>(widget) == nullptr)
                found << widget;
        }
        return found;
    }

    static QAccessible::Role expectedRole(const QWidget* control)
    {
        const auto* box = dynamic_cast<const ui::TextBox*>(control);
        if (box != nullptr && box->focusPolicy() == Qt::NoFocus)
            return QAccessible::StaticText;
        if (qobject_cast<const QLineEdit*>(control) || qobject_cast<const QTextEdit*>(control)
            || qobject_cast<const QPlainTextEdit*>(control)
            || control->inherits("written::WorkArea"))
            return QAccessible::EditableText;
        if (qobject_cast<const QPushButton*>(control))
            return QAccessible::Button;
        if (const auto* label = qobject_cast<const QLabel*>(control))
            return label->pixmap().isNull() ? QAccessible::StaticText : QAccessible::Graphic;
        if (qobject_cast<const QListWidget*>(control))
            return QAccessible::List;
        if (qobject_cast<const QCheckBox*>(control))
            return QAccessible::CheckBox;
        if (qobject_cast<const QRadioButton*>(control))
            return QAccessible::RadioButton;
        if (qobject_cast<const QGroupBox*>(control))
            return QAccessible::Grouping;
        // The sky of the rain, where no number has the focus; the track, when a race has ended.
        if (control->objectName() == u"PbFoco"_s || control->objectName() == u"Picture1"_s)
            return QAccessible::Client;
        return QAccessible::NoRole; // a kind of control that this test does not know
    }

    /// What is no control and says nothing: a sheet of paper, a line, a picture.
    static bool isDecoration(const QWidget& control)
    {
        if (const auto* label = qobject_cast<const QLabel*>(&control))
            return label->text().isEmpty() && label->pixmap().isNull();
        const auto role =
            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control))->role();
        return role == QAccessible::Client && control.focusPolicy() == Qt::NoFocus;
    }

    /// The colour that most of the control shows.
    static QColor groundOf(const QWidget& control)
    {
        QWidget* parent = control.parentWidget();
        const QImage image = parent->grab(control.geometry()).toImage();
        QHash<QRgb, int> counts;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                ++counts[image.pixel(x, y)];
        const auto most = std::max_element(counts.cbegin(), counts.cend());
        return QColor::fromRgb(most.key());
    }

    static QRect placeOn(const ui::Screen& screen, const QWidget& control)
    {
        return {control.mapTo(&screen, QPoint(0, 0)), control.size()};
    }

    static QList<QWidget*> tabOrder(const ui::Screen& screen)
    {
        QList<QWidget*> order;
        for (QWidget* widget = screen.nextInFocusChain(); widget != &screen;
             widget = widget->nextInFocusChain()) {
            const bool reached = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
            if (reached && widget->isVisible() && widget->isEnabled()
                && !widget->objectName().isEmpty()
                && screen.rect().contains(placeOn(screen, *widget).center()))
                order << widget;
        }
        return order;
    }

    std::unique_ptr<ProgramBench> program;
};

PIZARRIN_SCREEN_TEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
