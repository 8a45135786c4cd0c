#include "ui/look.h"

#include "ui/placement.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <map>

namespace look = ui::look;

class LookTest : public QObject {
    Q_OBJECT

private slots:
    void contrastIsTheKnownRatio()
    {
        QCOMPARE(look::contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(look::contrast(Qt::white, Qt::black), 21.0);
        QCOMPARE(look::contrast(Qt::red, Qt::red), 1.0);
    }

    void captionsAreReadableOnEveryFill()
    {
        for (QRgb fill : {look::Red, look::Green, look::Yellow, look::Cyan}) {
            const QPalette palette = look::filled(QColor(fill));
            for (QPalette::ColorGroup group :
                {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                const double ratio = look::contrast(palette.color(group, QPalette::Button),
                    palette.color(group, QPalette::ButtonText));
                QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
            }
            QCOMPARE(palette.color(QPalette::Active, QPalette::Button), QColor(fill));
        }
    }

    void textsAreReadable()
    {
        const QPalette palette = look::palette();
        const auto ratio = [&](QPalette::ColorGroup group, QPalette::ColorRole text,
                               QPalette::ColorRole ground) {
            return look::contrast(palette.color(group, text), palette.color(group, ground));
        };
        for (QPalette::ColorGroup group :
            {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QVERIFY(ratio(group, QPalette::WindowText, QPalette::Window) >= 4.5);
            QVERIFY(ratio(group, QPalette::Text, QPalette::Base) >= 4.5);
            QVERIFY(ratio(group, QPalette::ButtonText, QPalette::Button) >= 4.5);
            QVERIFY(ratio(group, QPalette::HighlightedText, QPalette::Highlight) >= 4.5);
        }
        QVERIFY(look::contrast(QColor(look::Ink), QColor(look::Marker)) >= 4.5);
    }

    void fontsFollowTheFactor()
    {
        QCOMPARE(look::scaled(look::Instruction, 1).pixelSize(), 15);
        QCOMPARE(look::scaled(look::Instruction, 2).pixelSize(), 30);
        QCOMPARE(look::scaled(look::Counters, 1.3).pixelSize(), 15); // 15.6, cut
        QCOMPARE(look::scaled(look::Counters, 0.01).pixelSize(), 1);
    }

    void edgesAre40PercentDarker()
    {
        QCOMPARE(look::edgeOf(QColor(look::Yellow)), QColor(153, 153, 0));
        QCOMPARE(look::edgeOf(QColor(100, 50, 200)), QColor(60, 30, 120));
    }

    void figuresHaveAPlainZero()
    {
        QFont font = look::scaled({look::Family::CourierNew, 100, true}, 1);
        if (QFontInfo(font).family() == QStringLiteral("Liberation Mono"))
            QSKIP("no fixed face with a plain zero is installed");
        const QRect ink = QFontMetrics(font).tightBoundingRect(QStringLiteral("0"));
        QImage image(ink.size() + QSize(20, 20), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(font);
        painter.drawText(QPoint(10, 10) - ink.topLeft(), QStringLiteral("0"));
        const QPoint middle = image.rect().center();
        for (int y = middle.y() - ink.height() / 4; y <= middle.y() + ink.height() / 4; ++y)
            QCOMPARE(image.pixelColor(middle.x(), y), QColor(Qt::white));
    }

    void whatNamesNoFontIsWrittenInAndika()
    {
        for (const look::Font& font : {look::Font(), look::Counters, look::Instruction,
                 look::Verdict, look::Command, look::BoxText})
            QCOMPARE(look::scaled(font, 1).families().first(), QStringLiteral("Andika"));
    }

    void aFontIsThatAskedForOrItsTwin()
    {
        const auto installed = [](const QString& name) { return QFontDatabase::hasFamily(name); };
        const std::map<look::Family, QStringList> names{
            {look::Family::Arial, {QStringLiteral("Arial"), QStringLiteral("Liberation Sans")}},
            {look::Family::Verdana, {QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")}},
            {look::Family::CourierNew,
                {QStringLiteral("Courier New"), QStringLiteral("Nimbus Mono PS"),
                    QStringLiteral("Liberation Mono")}}};
        for (const auto& [family, wanted] : names) {
            const auto first = std::find_if(wanted.begin(), wanted.end(), installed);
            QVERIFY(first != wanted.end());
            const QFont font = look::scaled({family}, 1);
            QCOMPARE(font.families().first(), *first);
            QVERIFY(QFontInfo(font).family().startsWith(*first)); // a maker behind it
        }
    }

    void touchingPlacesTouchInPixels()
    {
        for (double factor : {0.8, 1.0, 1.25, 1.37, 2.0, 4.0}) {
            const QRect upper = ui::toPixels({100, 100, 500, 500}, factor);
            const QRect lower = ui::toPixels({100, 600, 500, 500}, factor);
            QCOMPARE(upper.bottom() + 1, lower.top());
            QCOMPARE(upper.left(), lower.left());
        }
        QCOMPARE(ui::toPixels({150, 300, 1500, 450}, 1), QRect(10, 20, 100, 30));
        QCOMPARE(ui::toPixels({150, 300, 1500, 450}, 2), QRect(20, 40, 200, 60));
    }
};

QTEST_MAIN(LookTest)
#include "look_test.moc"
