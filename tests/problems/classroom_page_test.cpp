#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QPdfWriter>
#include <QTextDocument>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The page that a teacher prints.
class ClassroomPageTest : public QObject {
    Q_OBJECT

private slots:
    void fitsOnOneSheet()
    {
        QFile file(QString::fromUtf8(PIZARRIN_CLASSROOM_PAGE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QBuffer pdf;
        QVERIFY(pdf.open(QIODevice::WriteOnly));
        QPdfWriter sheet(&pdf);
        sheet.setResolution(300);
        sheet.setPageSize(QPageSize(QPageSize::A4));
        sheet.setPageMargins(QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
        QTextDocument page;
        page.documentLayout()->setPaintDevice(&sheet);
        page.setDocumentMargin(0);
        page.setPageSize(QSizeF(sheet.width(), sheet.height()));
        page.setHtml(QString::fromUtf8(file.readAll()));
        QVERIFY(page.size().width() <= sheet.width());
        QCOMPARE(page.pageCount(), 1);
    }
};

QTEST_MAIN(ClassroomPageTest)
#include "classroom_page_test.moc"
