#include "core/defect.h"
#include "written/work_area.h"

#include "support/screen_bench.h"
#include "ui/look.h"

#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using written::GridText;
using written::WorkArea;

class WorkAreaTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_canvas.reset(); }

    void lineStartsAtItsCharacter_data();
    void lineStartsAtItsCharacter();
    void inkStandsInItsCell_data();
    void inkStandsInItsCell();
    void clickPutsTheCaretIntoTheCell_data();
    void clickPutsTheCaretIntoTheCell();

    void newTextPutsTheCaretAtItsStart();
    void overtypingKeepsCaretAndLength();
    void overtypingASelectionChangesItsFirstCell();
    void nothingIsTypedOnTheFirstLine();
    void keysMoveTheCaretAnywhere();
    void shiftSelects();
    void draggingSelectsAndMovesNothing();
    void doubleClickSelectsANumber();
    void copyAndPaste();
    void pastedBreaksAndSymbolsKeepTheGrid();
    void keysOfATextBoxChangeNothing_data();
    void keysOfATextBoxChangeNothing();
    void dropsAreRefused();
    void inputMethodsWriteOver();
    void inputMethodsKnowTheText();
    void tabLeavesWithoutWriting();
    void caretBelowTheLastLineInSightScrolls();
    void wheelScrollsByLines();
    void contextMenuIsSpanish();

    void isATextBoxToAssistiveTools();
    void assistiveToolsReadLines();
    void assistiveToolsWriteOver();

private:
    void place(double factor);
    void write(int row, const QString& text);
    QString text() const { return m_area->toPlainText(); }

    static constexpr int Columns = 11;
    static constexpr double Left = 1725;
    static constexpr double Top = 1080;
    static constexpr double CellWidth = 165;
    static constexpr double CellHeight = 240;
    static constexpr int Rows = 23;

    std::unique_ptr<QWidget> m_canvas;
    QWidget* m_neighbour = nullptr;
    WorkArea* m_area = nullptr;
    double m_factor = 1;
};

void WorkAreaTest::init()
{
    m_canvas = std::make_unique<QWidget>();
    QPalette white = m_canvas->palette();
    white.setColor(QPalette::Window, Qt::white);
    m_canvas->setPalette(white);
    m_area = new WorkArea(m_canvas.get());
    m_neighbour = new QLineEdit(m_canvas.get());
    m_area->setFirstCell({Left, Top, CellWidth, CellHeight});
    m_area->setGrid(GridText(u" 1234567"_s, Columns));
    place(1);
    m_canvas->show();
    m_area->setFocus();
    makeActive(*m_canvas);
}

void WorkAreaTest::place(double factor)
{
    m_factor = factor;
    m_canvas->resize(qRound(500 * factor), qRound(500 * factor));
    m_area->setFont(ui::look::scaled({ui::look::Family::CourierNew, 18}, factor));
    m_area->setFactor(factor);
    m_area->setGeometry(
        ui::toPixels({Left, Top, Columns * CellWidth, Rows * CellHeight}, factor));
    m_neighbour->setGeometry(0, 0, 40, 20);
}

void WorkAreaTest::write(int row, const QString& text)
{
    GridText grid = m_area->grid();
    grid.EscribeLinea(text, row, 0);
    m_area->setGrid(grid);
}

// --- the grid

static void addFactors()
{
    QTest::addColumn<double>("factor");
    for (const double factor : {0.8, 1.0, 1.25, 1.5, 2.0, 3.0, 3.7})
        QTest::addRow("%g", factor) << factor;
}

void WorkAreaTest::lineStartsAtItsCharacter_data()
{
    addFactors();
}

void WorkAreaTest::lineStartsAtItsCharacter()
{
    QFETCH(double, factor);
    place(factor);
    for (int row = 0; row < Rows; ++row) {
        const QRect first = m_area->cellRect(row * Columns);
        QCOMPARE(first.left(), 0);
        QCOMPARE(first.top(), row == 0 ? 0 : m_area->cellRect(row * Columns - 1).bottom() + 1);
        QCOMPARE(m_area->cellRect(row * Columns + Columns - 1).right(), m_area->width() - 1);
    }
    QCOMPARE(m_area->cellRect(Rows * Columns - 1).bottom(), m_area->height() - 1);
}

void WorkAreaTest::inkStandsInItsCell_data()
{
    addFactors();
}

/// Reads the picture, not the widget: a digit is written at the start of every line, at
/// r × columns, and its ink must be in the leftmost cell of row r and nowhere else.
void WorkAreaTest::inkStandsInItsCell()
{
    QFETCH(double, factor);
    place(factor);
    GridText grid{QString(), Columns};
    for (int row = 0; row < Rows; ++row)
        grid.EscribeLinea(u"8"_s, row, 0);
    m_area->setGrid(grid);
    m_neighbour->setFocus();
    const QImage picture = m_canvas->grab(m_area->geometry()).toImage();
    const double cellWidth = CellWidth * factor / 15;
    const double cellHeight = CellHeight * factor / 15;
    QCOMPARE(picture.size(), m_area->size());
    std::vector<int> ink(Rows);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) > 128)
                continue;
            QVERIFY2(x < cellWidth, qPrintable(u"ink at %1, %2"_s.arg(x).arg(y)));
            ++core::at(ink, static_cast<int>(y / cellHeight));
        }
    }
    const auto [least, most] = std::minmax_element(ink.begin(), ink.end());
    QVERIFY(*least > 10 * factor);
    QVERIFY(*most - *least < *most / 4); // each row has one whole digit, none runs over
}

void WorkAreaTest::clickPutsTheCaretIntoTheCell_data()
{
    addFactors();
}

void WorkAreaTest::clickPutsTheCaretIntoTheCell()
{
    QFETCH(double, factor);
    place(factor);
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            const int position = row * Columns + column;
            const QRect cell = m_area->cellRect(position);
            for (const QPoint& point : {cell.topRight(), cell.center(), cell.bottomLeft()}) {
                QTest::mouseClick(m_area, Qt::LeftButton, {}, point);
                QCOMPARE(m_area->cursorPosition(), position);
            }
        }
    }
}

// --- typing

void WorkAreaTest::newTextPutsTheCaretAtItsStart()
{
    m_area->setSelection(20, 30);
    m_area->setGrid(GridText(u" 99"_s, 6));
    QCOMPARE(m_area->cursorPosition(), 0);
    QCOMPARE(m_area->selectedText(), QString());
    QCOMPARE(m_area->property("plainText").toString(), u" 99"_s + QString(2000, u' '));
}

void WorkAreaTest::overtypingKeepsCaretAndLength()
{
    write(1, u"123"_s);
    m_area->setCursorPosition(12);
    QSignalSpy changes(m_area, &WorkArea::textChanged);
    m_area->overtype(u'9');
    QCOMPARE(m_area->grid().line(1), u"193        "_s);
    QCOMPARE(m_area->cursorPosition(), 12);
    QCOMPARE(changes.count(), 1);
    m_area->overtype(QChar(13));
    QCOMPARE(m_area->grid().line(1), u"1 3        "_s);
    QCOMPARE(m_area->grid().size(), 2014);
}

void WorkAreaTest::overtypingASelectionChangesItsFirstCell()
{
    write(1, u"12345"_s);
    m_area->setSelection(15, 12);
    m_area->overtype(u'9');
    QCOMPARE(m_area->grid().line(1), u"19345      "_s);
    QCOMPARE(m_area->cursorPosition(), 12);
    QCOMPARE(m_area->selectedText(), QString());
}

void WorkAreaTest::nothingIsTypedOnTheFirstLine()
{
    const QString before = text();
    QSignalSpy changes(m_area, &WorkArea::textChanged);
    for (const int position : {0, 1, Columns - 1}) {
        m_area->setCursorPosition(position);
        m_area->overtype(u'9');
        m_area->overtypeText(u"9999999999999999"_s);
    }
    m_area->setSelection(5, 30);
    m_area->overtype(u'9');
    QCOMPARE(text(), before);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(m_area->selectedText().size(), 25);
}

// --- caret and selection

void WorkAreaTest::keysMoveTheCaretAnywhere()
{
    const int size = m_area->grid().size();
    const auto after = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(m_area, key, modifiers);
        return m_area->cursorPosition();
    };
    QCOMPARE(after(Qt::Key_Left), 0);
    QCOMPARE(after(Qt::Key_Up), 0);
    QCOMPARE(after(Qt::Key_Right), 1);
    QCOMPARE(after(Qt::Key_Down), 12);
    QCOMPARE(after(Qt::Key_Down), 23);
    QCOMPARE(after(Qt::Key_Up), 12);
    QCOMPARE(after(Qt::Key_End), 21);
    QCOMPARE(after(Qt::Key_Right), 22); // on to the next line
    QCOMPARE(after(Qt::Key_Left), 21);
    QCOMPARE(after(Qt::Key_Home), 11);
    QCOMPARE(after(Qt::Key_PageDown), 11 + Rows * Columns);
    QCOMPARE(after(Qt::Key_PageUp), 11);
    QCOMPARE(after(Qt::Key_End, Qt::ControlModifier), size);
    QCOMPARE(after(Qt::Key_Right), size);
    QCOMPARE(after(Qt::Key_Down), size);
    QCOMPARE(after(Qt::Key_Home, Qt::ControlModifier), 0);
}

void WorkAreaTest::shiftSelects()
{
    write(1, u"123456"_s);
    m_area->setCursorPosition(12);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(m_area, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(m_area->selectedText(), u"234"_s);
    QTest::keyClick(m_area, Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(m_area->selectedText(), u"23"_s);
    QTest::keyClick(m_area, Qt::Key_Right);
    QCOMPARE(m_area->selectedText(), QString());
    QTest::keyClick(m_area, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_area->selectedText(), text());
}

void WorkAreaTest::draggingSelectsAndMovesNothing()
{
    write(1, u"123456"_s);
    const QString before = text();
    const auto drag = [&](int from, int to) {
        QTest::mousePress(m_area, Qt::LeftButton, {}, m_area->cellRect(from).center());
        QMouseEvent move(QEvent::MouseMove, m_area->cellRect(to).center(),
            m_area->mapToGlobal(m_area->cellRect(to).center()), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(m_area, &move);
        QTest::mouseRelease(m_area, Qt::LeftButton, {}, m_area->cellRect(to).center());
    };
    drag(12, 15);
    QCOMPARE(m_area->selectedText(), u"234"_s);
    drag(13, 30); // from inside the selection: it is not picked up
    QCOMPARE(m_area->selectionStart(), 13);
    QCOMPARE(text(), before);
}

void WorkAreaTest::doubleClickSelectsANumber()
{
    write(1, u" 123 45"_s);
    QTest::mouseDClick(m_area, Qt::LeftButton, {}, m_area->cellRect(13).center());
    QCOMPARE(m_area->selectedText(), u"123"_s);
}

// --- what a pupil may try

void WorkAreaTest::copyAndPaste()
{
    write(1, u" 123"_s);
    m_area->setSelection(12, 15);
    QTest::keyClick(m_area, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"123"_s);
    m_area->setCursorPosition(24);
    QTest::keyClick(m_area, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_area->grid().line(2), u"  123      "_s);
    QCOMPARE(m_area->cursorPosition(), 24);
    QCOMPARE(m_area->grid().size(), 2015);
}

void WorkAreaTest::pastedBreaksAndSymbolsKeepTheGrid()
{
    QGuiApplication::clipboard()->setText(u"12\n3.4\t😀5"_s);
    m_area->setCursorPosition(12);
    m_area->paste();
    QCOMPARE(m_area->grid().line(1), u" 12        "_s);
    QCOMPARE(m_area->grid().line(2), u" 3 4   5   "_s);
    QCOMPARE(m_area->grid().size(), 2008);
    QGuiApplication::clipboard()->setText(QString(5000, u'7'));
    m_area->paste();
    QCOMPARE(m_area->grid().size(), 2008);
    QCOMPARE(m_area->grid().line(0), u" 1234567   "_s);
}

void WorkAreaTest::keysOfATextBoxChangeNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("undo") << int(Qt::Key_Z) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("redo") << int(Qt::Key_Y) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("cut") << int(Qt::Key_X) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("cut, old") << int(Qt::Key_Delete) << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("delete") << int(Qt::Key_Delete) << Qt::KeyboardModifiers();
    QTest::newRow("delete word") << int(Qt::Key_Delete)
                                 << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("rub out word")
        << int(Qt::Key_Backspace) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("delete to the end")
        << int(Qt::Key_K) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << Qt::KeyboardModifiers();
}

void WorkAreaTest::keysOfATextBoxChangeNothing()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    write(1, u"123456"_s);
    m_area->setSelection(12, 15);
    const QString before = text();
    QTest::keyClick(m_area, static_cast<Qt::Key>(key), modifiers);
    QCOMPARE(text(), before);
}

void WorkAreaTest::dropsAreRefused()
{
    const QString before = text();
    QMimeData data;
    data.setText(u"999"_s);
    const QPoint point = m_area->cellRect(25).center();
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(m_area, &enter);
    QVERIFY(!enter.isAccepted());
    QVERIFY(!m_area->acceptDrops());
    QCOMPARE(text(), before);
}

void WorkAreaTest::inputMethodsWriteOver()
{
    const auto send = [&](const QString& preedit, const QString& commit, int from = 0,
                          int length = 0) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit, from, length);
        QApplication::sendEvent(m_area, &event);
    };
    write(1, u"123456"_s);
    m_area->setCursorPosition(12);
    const QString before = text();
    send(u"abc"_s, {});
    QCOMPARE(text(), before); // composing writes nothing yet
    send({}, u"9"_s, -1, 1);
    QCOMPARE(m_area->grid().line(1), u"193456     "_s);
    send({}, u"."_s);
    QCOMPARE(m_area->grid().line(1), u"1 3456     "_s);
    send({}, u"78"_s);
    QCOMPARE(m_area->grid().line(1), u"178456     "_s);
    QCOMPARE(m_area->cursorPosition(), 12);
    m_area->setCursorPosition(3);
    send(u"9"_s, u"9"_s);
    QCOMPARE(m_area->grid().line(0), u" 1234567   "_s);
    QCOMPARE(m_area->grid().size(), before.size());
}

void WorkAreaTest::inputMethodsKnowTheText()
{
    m_area->setSelection(12, 14);
    QVERIFY(m_area->inputMethodQuery(Qt::ImEnabled).toBool());
    QCOMPARE(m_area->inputMethodQuery(Qt::ImSurroundingText).toString(), text());
    QCOMPARE(m_area->inputMethodQuery(Qt::ImCursorPosition).toInt(), 14);
    QCOMPARE(m_area->inputMethodQuery(Qt::ImAnchorPosition).toInt(), 12);
    QCOMPARE(m_area->inputMethodQuery(Qt::ImCurrentSelection).toString(), u"  "_s);
    QCOMPARE(m_area->inputMethodQuery(Qt::ImCursorRectangle).toRect(), m_area->cellRect(14));
}

void WorkAreaTest::tabLeavesWithoutWriting()
{
    const QString before = text();
    m_area->setCursorPosition(15);
    QTest::keyClick(m_area, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), m_neighbour);
    m_area->setFocus();
    QTest::keyClick(m_area, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), m_neighbour);
    QCOMPARE(text(), before);
}

void WorkAreaTest::caretBelowTheLastLineInSightScrolls()
{
    m_area->setCursorPosition((Rows - 1) * Columns);
    QCOMPARE(m_area->cellRect(0).top(), 0);
    QTest::keyClick(m_area, Qt::Key_Down);
    QCOMPARE(m_area->cellRect(Columns).top(), 0);
    QTest::mouseClick(m_area, Qt::LeftButton, {}, m_area->rect().bottomLeft());
    QCOMPARE(m_area->cursorPosition(), Rows * Columns);
    m_area->setCursorPosition(0);
    QCOMPARE(m_area->cellRect(0).top(), 0);
}

void WorkAreaTest::wheelScrollsByLines()
{
    const auto turn = [&](int eighths) {
        QWheelEvent event(QPointF(5, 5), m_area->mapToGlobal(QPointF(5, 5)), {}, {0, eighths}, {},
            {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_area, &event);
    };
    turn(-120);
    QCOMPARE(m_area->cellRect(3 * Columns).top(), 0);
    turn(-20);
    QCOMPARE(m_area->cellRect(3 * Columns).top(), 0);
    turn(-20);
    QCOMPARE(m_area->cellRect(4 * Columns).top(), 0);
    turn(1200);
    QCOMPARE(m_area->cellRect(0).top(), 0);
    QCOMPARE(m_area->cursorPosition(), 0);
}

void WorkAreaTest::contextMenuIsSpanish()
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, m_area->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(m_area, &event);
    auto* menu = m_area->findChild<QMenu*>();
    QVERIFY(menu != nullptr);
    QStringList captions;
    for (const QAction* action : menu->actions())
        captions << action->text();
    QCOMPARE(
        captions, (QStringList{u"&Copiar"_s, u"&Pegar"_s, QString(), u"&Seleccionar todo"_s}));
    QVERIFY(!menu->actions().at(1)->isEnabled()); // the caret is on the first line
    menu->actions().at(3)->trigger();
    QCOMPARE(m_area->selectedText(), text());
    menu->close();
}

// --- assistive tools

void WorkAreaTest::isATextBoxToAssistiveTools()
{
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(m_area);
    QVERIFY(box != nullptr);
    QCOMPARE(box->role(), QAccessible::EditableText);
    QVERIFY(box->state().editable);
    QVERIFY(box->state().multiLine);
    QVERIFY(box->state().focusable);
    QCOMPARE(box->text(QAccessible::Value), text());
    QCOMPARE(box->childCount(), 0);
    QVERIFY(box->textInterface() != nullptr);
    QVERIFY(box->editableTextInterface() != nullptr);
}

void WorkAreaTest::assistiveToolsReadLines()
{
    QAccessibleTextInterface& reader =
        *QAccessible::queryAccessibleInterface(m_area)->textInterface();
    QCOMPARE(reader.characterCount(), m_area->grid().size());
    QCOMPARE(reader.text(1, 8), u"1234567"_s);
    int start = 0;
    int end = 0;
    for (int row = 0; row < 50; ++row) {
        QCOMPARE(reader.textAtOffset(row * Columns + 4, QAccessible::LineBoundary, &start, &end),
            m_area->grid().line(row));
        QCOMPARE(start, row * Columns);
        QCOMPARE(end, (row + 1) * Columns);
    }
    QCOMPARE(reader.textAfterOffset(3, QAccessible::LineBoundary, &start, &end),
        m_area->grid().line(1));
    QCOMPARE(start, Columns);
    QCOMPARE(reader.textBeforeOffset(3, QAccessible::LineBoundary, &start, &end), QString());
    QCOMPARE(start, -1);

    reader.setCursorPosition(25);
    QCOMPARE(m_area->cursorPosition(), 25);
    QCOMPARE(reader.cursorPosition(), 25);
    QCOMPARE(reader.selectionCount(), 0);
    reader.setSelection(0, 12, 15);
    QCOMPARE(reader.selectionCount(), 1);
    reader.selection(0, &start, &end);
    QCOMPARE(start, 12);
    QCOMPARE(end, 15);
    reader.removeSelection(0);
    QCOMPARE(reader.selectionCount(), 0);
    const QRect cell = reader.characterRect(25);
    QCOMPARE(cell.topLeft(), m_area->mapToGlobal(m_area->cellRect(25).topLeft()));
    QCOMPARE(reader.offsetAtPoint(cell.center()), 25);
}

void WorkAreaTest::assistiveToolsWriteOver()
{
    QAccessibleEditableTextInterface& writer =
        *QAccessible::queryAccessibleInterface(m_area)->editableTextInterface();
    const auto size = m_area->grid().size();
    writer.insertText(12, u"34"_s);
    QCOMPARE(m_area->grid().line(1), u" 34        "_s);
    writer.replaceText(12, 13, u"5"_s);
    QCOMPARE(m_area->grid().line(1), u" 54        "_s);
    writer.deleteText(12, 14);
    writer.insertText(0, u"9"_s);
    QCOMPARE(m_area->grid().line(0), u" 1234567   "_s);
    QCOMPARE(m_area->grid().line(1), u" 54        "_s);
    QCOMPARE(m_area->grid().size(), size);
}

PIZARRIN_SCREEN_TEST_MAIN(WorkAreaTest)
#include "work_area_test.moc"
