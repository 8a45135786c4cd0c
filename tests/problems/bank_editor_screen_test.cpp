#include "problems/bank_editor_screen.h"

#include "core/errors.h"
#include "support/screen_bench.h"

#include <QCheckBox>
#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QToolTip>

using namespace Qt::StringLiterals;
using problems::DLGProblemas;

namespace {

const QByteArray Bank = "Reparte [4_8] cromos.|{&1*2}|cromos|*/\r\n"
                        "\xBF"
                        "Cu\xE1ntos a\xF1os?|7|a\xF1os|+-\r\n"
                        "Sin unidad|3||-\r\n";
const QStringList Lines{u"Reparte [4_8] cromos.|{&1*2}|cromos|*/"_s,
    u"¿Cuántos años?|7|años|+-"_s, u"Sin unidad|3||-"_s};
const QString New = u"(Nuevo)"_s;
const QString StatementMistake =
    u"Hay una expresión incorrecta en el enunciado. No debe dejar espacios entre el signo & "
    "y el número que lo sigue."_s;
const QString AnswerMistake =
    u"Hay una expresión incorrecta en el resultado. No debe dejar espacios entre el signo & "
    "y el número que lo sigue. "_s;

} // namespace

class BankEditorScreenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenBench> bench;
    QPointer<DLGProblemas> screen;
    int closedCalls = 0;

    void open(const QByteArray& bank = Bank)
    {
        if (!bank.isNull())
            writeBank(bank);
        screen = &bench->open<DLGProblemas>();
        screen->onClosed = [this] { ++closedCalls; };
    }

    void writeBank(const QByteArray& bytes)
    {
        QFile file(bench->folder.filePath(u"Problemas3.dat"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray contents(const QString& name) const
    {
        QFile file(bench->folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    QListWidget& list() const { return bench->control<QListWidget>(u"List1"_s); }
    QPlainTextEdit& statement() const { return bench->control<QPlainTextEdit>(u"Text1"_s); }
    QLineEdit& answer() const { return bench->control<QLineEdit>(u"Text2"_s); }
    QLineEdit& unit() const { return bench->control<QLineEdit>(u"Text3"_s); }
    QCheckBox& operation(int k) const
    {
        return bench->control<QCheckBox>(u"CHOpera(%1)"_s.arg(k));
    }
    bool canDelete() const { return bench->control<QPushButton>(u"CBAccion(2)"_s).isEnabled(); }

    QStringList entries() const
    {
        QStringList texts;
        for (int row = 0; row < list().count(); ++row)
            texts << list().item(row)->text();
        return texts;
    }
    /// The rows that are highlighted.
    QList<int> selected() const
    {
        QList<int> rows;
        for (const QModelIndex& index : list().selectionModel()->selectedIndexes())
            rows << index.row();
        return rows;
    }
    QString operations() const
    {
        QString marked;
        for (int k = 0; k < 4; ++k)
            marked += operation(k).isChecked() ? QStringView(u"*/+-")[k] : QChar(u'.');
        return marked;
    }
    QStringList shown() const
    {
        return {statement().toPlainText(), answer().text(), unit().text(), operations()};
    }

    void clickEntry(int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QRect place = list().visualItemRect(list().item(row));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, modifiers, place.center());
    }
    void clickBox(int k)
    {
        auto& box = operation(k);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(12, box.height() / 2));
    }
    void focus(const QString& name) { bench->control<QWidget>(name).setFocus(); }
    void writeStatement(const QString& text)
    {
        statement().setFocus();
        statement().selectAll();
        QTest::keyClicks(&statement(), text);
    }
    /// Without a window manager, the window behind a closed box is not activated by itself.
    QString focusBehindBox()
    {
        makeActive(*screen);
        return bench->focusName();
    }
    void store() { bench->click(u"CBAccion(0)"_s); }
    bool saysUnsaved() const { return bench->control<QLabel>(u"unsaved"_s).isVisible(); }

private slots:
    void init()
    {
        bench = std::make_unique<ScreenBench>();
        closedCalls = 0;
    }
    void cleanup() { bench.reset(); }

    void comesUpWithTheBankAndANewEntry()
    {
        open();
        QCOMPARE(screen->windowTitle(), u"Gestión de problemas"_s);
        QCOMPARE(entries(), Lines + QStringList{New});
        QCOMPARE(selected(), QList<int>{3});
        QVERIFY(!canDelete());
        QCOMPARE(shown(), (QStringList{QString(), QString(), QString(), u"...."_s}));
        QCOMPARE(bench->focusName(), u"List1"_s);
        QCOMPARE(bench->random.seeds, std::vector<double>{31.0 * 21 * 11});
    }

    void captionsAreExact()
    {
        open();
        const QMap<QString, QString> labels{{u"Label1"_s, u"&Enunciado"_s},
            {u"Label2"_s, u"&Resultado"_s}, {u"Label3"_s, u"&Unidad"_s},
            {u"Label4"_s, u"Problemas &disponibles"_s}};
        for (const auto& [name, caption] : labels.asKeyValueRange())
            QCOMPARE(bench->control<QLabel>(name).text(), caption);
        const QMap<QString, QString> buttons{{u"Command1"_s, u"Insertar dato &variable"_s},
            {u"Command2"_s, u"&Reinsertar dato variable"_s},
            {u"Command3"_s, u"Insertar dato &variable"_s},
            {u"Command4"_s, u"&Reinsertar dato variable"_s}, {u"CBProbar"_s, u"&Probar "_s},
            {u"CBAccion(0)"_s, u"&Guardar"_s}, {u"CBAccion(1)"_s, u"&Limpiar"_s},
            {u"CBAccion(2)"_s, u"&Borrar"_s}, {u"OKButton"_s, u"Aceptar"_s},
            {u"CancelButton"_s, u"&Cancelar"_s}, {u"CHOpera(0)"_s, u"Mult"_s},
            {u"CHOpera(1)"_s, u"Div"_s}, {u"CHOpera(2)"_s, u"Sum"_s},
            {u"CHOpera(3)"_s, u"Rest"_s}};
        for (const auto& [name, caption] : buttons.asKeyValueRange())
            QCOMPARE(bench->control<QAbstractButton>(name).text(), caption);
    }

    void tabFollowsTheFields()
    {
        open();
        const QStringList order{u"List1"_s, u"Text1"_s, u"Command1"_s, u"Command2"_s, u"Text2"_s,
            u"Command3"_s, u"Command4"_s, u"Text3"_s, u"CHOpera(0)"_s, u"CHOpera(1)"_s,
            u"CHOpera(2)"_s, u"CHOpera(3)"_s, u"CBProbar"_s, u"CBAccion(0)"_s, u"CBAccion(1)"_s,
            u"OKButton"_s, u"CancelButton"_s, u"List1"_s};
        for (const QString& name : order) { // "&Borrar" is disabled
            QCOMPARE(bench->focusName(), name);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    }

    void labelsLeadToTheirBoxes()
    {
        open();
        const QMap<QString, Qt::Key> keys{
            {u"Text1"_s, Qt::Key_E}, {u"Text3"_s, Qt::Key_U}, {u"List1"_s, Qt::Key_D}};
        for (const auto& [name, key] : keys.asKeyValueRange()) {
            QTest::keyClick(screen, key, Qt::AltModifier);
            QCOMPARE(bench->focusName(), name);
        }
    }

    void oneAccessKeyLeadsToTheAnswerAndTwoCommands()
    {
        open();
        QSet<QString> reached;
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(screen, Qt::Key_R, Qt::AltModifier);
            reached << bench->focusName();
        }
        QCOMPARE(reached, (QSet<QString>{u"Command2"_s, u"Command4"_s, u"Text2"_s}));
    }

    void aMissingBankIsAnEmptyOne()
    {
        open(QByteArray());
        QCOMPARE(entries(), QStringList{New});
        QCOMPARE(selected(), QList<int>{0});
        QVERIFY(!canDelete());
        writeStatement(u"Uno"_s);
        clickBox(0);
        store();
        QCOMPARE(entries(), (QStringList{u"Uno|||*"_s, New}));
        bench->click(u"OKButton"_s);
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray("Uno|||*\r\n"));
        QCOMPARE(contents(u"Problemas3.bak"_s), QByteArray("(none)"));
    }

    void aBankThatCannotBeReadIsNotOpened()
    {
        writeBank(QByteArray("a|1||*\r\n").repeated(32'768));
        bench->screens.add<DLGProblemas>();
        QVERIFY_THROWS_EXCEPTION(
            core::FileError, bench->screens.load(DLGProblemas::screenName()));
        QCOMPARE(bench->screens.loaded(DLGProblemas::screenName()), nullptr);
    }

    // --- choosing an entry

    void clicksAndArrowKeysFillTheBoxes()
    {
        open();
        clickEntry(0);
        QCOMPARE(shown(),
            (QStringList{u"Reparte [4_8] cromos."_s, u"{&1*2}"_s, u"cromos"_s, u"*/.."_s}));
        QVERIFY(canDelete());
        QTest::keyClick(&list(), Qt::Key_Down);
        QCOMPARE(shown(), (QStringList{u"¿Cuántos años?"_s, u"7"_s, u"años"_s, u"..+-"_s}));
        QTest::keyClick(&list(), Qt::Key_Down);
        QCOMPARE(shown(), (QStringList{u"Sin unidad"_s, u"3"_s, QString(), u"...-"_s}));
        QTest::keyClick(&list(), Qt::Key_Home);
        QCOMPARE(shown()[0], u"Reparte [4_8] cromos."_s);
        QVERIFY(canDelete());
    }

    void theNewEntryKeepsTheBoxes()
    {
        open();
        clickEntry(1);
        clickEntry(3);
        QCOMPARE(selected(), QList<int>{3});
        QVERIFY(!canDelete());
        QCOMPARE(shown(), (QStringList{u"¿Cuántos años?"_s, u"7"_s, u"años"_s, u"..+-"_s}));
    }

    void aClickOnTheSelectedEntryFillsTheBoxesAgain()
    {
        open();
        clickEntry(1);
        writeStatement(u"Otra cosa"_s);
        clickEntry(1);
        QCOMPARE(shown(), (QStringList{u"¿Cuántos años?"_s, u"7"_s, u"años"_s, u"..+-"_s}));
        clickEntry(1, Qt::ControlModifier);
        QCOMPARE(selected(), QList<int>{1});
    }

    void linesWithFewSeparatorsAreShownLeniently()
    {
        open("a|1|kg\r\nsolo texto\r\n");
        clickEntry(0);
        QCOMPARE(shown(), (QStringList{u"a"_s, u"1"_s, u"kg"_s, u"...."_s}));
        clickEntry(1);
        QCOMPARE(shown(), (QStringList{u"solo texto"_s, QString(), QString(), u"...."_s}));
    }

    // --- leaving a box

    void leavingTheStatementMarksItsOperations()
    {
        open();
        writeStatement(u"a (6 + b)"_s);
        QCOMPARE(operations(), u"...."_s); // not before it is left
        QTest::keyClick(&statement(), Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"Command1"_s);
        QCOMPARE(operations(), u"./+."_s);
        writeStatement(u"a - b"_s);
        bench->click(u"CBAccion(0)"_s); // a click leaves it too, before it acts
        QCOMPARE(entries().at(3), u"a - b|||-"_s);
    }

    void leavingIsCheckedWithoutAnEditToo()
    {
        open();
        clickEntry(0); // marked with * and /, no "(" in its statement
        QCOMPARE(operations(), u"*/.."_s);
        QTest::keyClick(&list(), Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"Text1"_s);
        QCOMPARE(operations(), u"*/.."_s);
        QTest::keyClick(&statement(), Qt::Key_Tab);
        QCOMPARE(operations(), u"*..."_s);
    }

    void leavingTheAnswerMarksMultiplication()
    {
        open();
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"{&1*2+1}"_s);
        QTest::keyClick(&answer(), Qt::Key_Tab);
        QCOMPARE(operations(), u"*..."_s);
        focus(u"Text2"_s);
        answer().clear();
        QTest::keyClick(&answer(), Qt::Key_Tab);
        QCOMPARE(operations(), u"*..."_s);
    }

    void aMistakeInTheStatementKeepsTheFocus()
    {
        open();
        writeStatement(u"{& 1} (+"_s);
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s});
        QString marksBehindBox;
        boxes.whileOpen = [&](QDialog&) { marksBehindBox = operations(); };
        QTest::keyClick(&statement(), Qt::Key_Tab);
        QTRY_COMPARE(boxes.texts, QStringList{StatementMistake});
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        QCOMPARE(marksBehindBox, u"...."_s); // the box comes first
        QCOMPARE(boxes.titles, QStringList{u"Pizarrin"_s});
        QCOMPARE(boxes.icons, QList{QMessageBox::NoIcon});
        QCOMPARE(boxes.buttons, QStringList{u"Aceptar"_s});
        QCOMPARE(operations(), u"./+."_s);
        QTest::keyClicks(&statement(), u"x"_s); // goes on where it was
        QCOMPARE(statement().toPlainText(), u"{& 1} (+x"_s);
        QTest::keyClick(&statement(), Qt::Key_Tab); // and is checked again
        QTRY_COMPARE(boxes.texts.size(), 2);
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        writeStatement(u"{&1}"_s);
        QTest::keyClick(&statement(), Qt::Key_Tab);
        QCOMPARE(bench->focusName(), u"Command1"_s);
    }

    void aMistakeInTheAnswerKeepsTheFocus()
    {
        open();
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"{& 1*2}"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        QTest::keyClick(&answer(), Qt::Key_Backtab);
        QTRY_COMPARE(boxes.texts, QStringList{AnswerMistake});
        QTRY_COMPARE(focusBehindBox(), u"Text2"_s);
        QCOMPARE(operations(), u"*..."_s);
    }

    void theClickThatWasLeavingABoxWithAMistakeDoesNothing_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto* name : {"CBAccion(0)", "CBAccion(1)", "OKButton", "Command1", "Command4",
                 "CBProbar", "CHOpera(3)", "List1", "Text2"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void theClickThatWasLeavingABoxWithAMistakeDoesNothing()
    {
        QFETCH(QString, name);
        open();
        clickEntry(0);
        writeStatement(u"& "_s);
        const QStringList before = shown();
        BoxAnswerer boxes(u"Aceptar"_s);
        if (name == u"List1")
            clickEntry(1);
        else if (name == u"CHOpera(3)")
            clickBox(3);
        else
            QTest::mouseClick(&bench->control<QWidget>(name), Qt::LeftButton);
        QTRY_COMPARE(boxes.texts, QStringList{StatementMistake});
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        QCOMPARE(shown(), (QStringList{u"& "_s, before[1], before[2], u"*..."_s}));
        QCOMPARE(selected(), QList<int>{0});
        QCOMPARE(entries(), Lines + QStringList{New});
        QVERIFY(!screen->isUnloaded());
        QCOMPARE(contents(u"Problemas3.dat"_s), Bank);
    }

    void anAccessKeyDoesNotActBehindAMistake()
    {
        open();
        writeStatement(u"& ("_s);
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s});
        QTest::keyClick(&statement(), Qt::Key_L, Qt::AltModifier); // "&Limpiar"
        QTRY_COMPARE(boxes.texts.size(), 1);
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        QTest::keyClick(&statement(), Qt::Key_U, Qt::AltModifier); // "&Unidad"
        QTRY_COMPARE(boxes.texts.size(), 2);
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        QCOMPARE(statement().toPlainText(), u"& ("_s);
    }

    void aMistakeTrapsNobody_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("click on Cancelar") << u"click"_s;
        QTest::newRow("access key") << u"key"_s;
        QTest::newRow("close box") << u"close"_s;
        QTest::newRow("Alt+F4") << u"Alt+F4"_s;
    }
    void aMistakeTrapsNobody()
    {
        QFETCH(QString, way);
        open();
        writeStatement(u"& "_s);
        BoxAnswerer noBox;
        if (way == u"click")
            bench->click(u"CancelButton"_s);
        else if (way == u"key")
            QTest::keyClick(&statement(), Qt::Key_C, Qt::AltModifier);
        else if (way == u"close")
            screen->close();
        else
            QTest::keyClick(&statement(), Qt::Key_F4, Qt::AltModifier);
        QTRY_VERIFY(!screen);
        QCOMPARE(closedCalls, 1);
        QCOMPARE(contents(u"Problemas3.dat"_s), Bank);
    }

    void aClickOnTheWayOutThatIsTakenBackLeavesNoBox()
    {
        open();
        writeStatement(u"& ("_s);
        BoxAnswerer noBox;
        auto& cancel = bench->control<QPushButton>(u"CancelButton"_s);
        QTest::mousePress(&cancel, Qt::LeftButton);
        QTest::mouseMove(&cancel, QPoint(-30, -30));
        QTest::mouseRelease(&cancel, Qt::LeftButton, {}, QPoint(-30, -30));
        runPendingEvents();
        QCOMPARE(bench->focusName(), u"Text1"_s);
        QCOMPARE(operations(), u"...."_s);
        QVERIFY(!screen->isUnloaded());
    }

    void anotherWindowLeavesNoBox()
    {
        open();
        writeStatement(u"& ("_s);
        BoxAnswerer noBox;
        QWidget other;
        other.show();
        makeActive(other);
        QCOMPARE(operations(), u"...."_s);
    }

    // --- inserting markers

    void insertsADatumAtTheCaretOfTheStatement()
    {
        open();
        writeStatement(u"Hay  peras"_s);
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(&statement(), Qt::Key_Left);
        BoxAnswerer boxes({{u"3"_s, u"Aceptar"_s}, {u"12"_s, u"Aceptar"_s}});
        bench->click(u"Command1"_s);
        QCOMPARE(boxes.titles,
            (QStringList{u"Insertar dato variable"_s, u"Insertar dato variable"_s}));
        QCOMPARE(
            boxes.texts, (QStringList{u"valor mínimo posible: "_s, u"valor máximo posible: "_s}));
        QCOMPARE(statement().toPlainText(), u"Hay [3_12] peras"_s);
        QCOMPARE(statement().textCursor().position(), 10);
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        QTest::keyClicks(&statement(), u"!"_s);
        QCOMPARE(statement().toPlainText(), u"Hay [3_12]! peras"_s);
    }

    void insertsADatumAtTheCaretOfTheAnswer()
    {
        open();
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"ab"_s);
        QTest::keyClick(&answer(), Qt::Key_Left);
        BoxAnswerer boxes({{u"x "_s, u"Aceptar"_s}, {u"-"_s, u"Aceptar"_s}});
        bench->click(u"Command3"_s);
        QCOMPARE(boxes.titles,
            (QStringList{u"Insertar dato variable"_s, u"Insertar dato variable"_s}));
        QCOMPARE(
            boxes.texts, (QStringList{u"valor mínimo posible: "_s, u"valor máximo posible: "_s}));
        QCOMPARE(answer().text(), u"a[x _-]b"_s); // as typed
        QCOMPARE(answer().cursorPosition(), 7);
        QCOMPARE(answer().selectedText(), QString());
        QTRY_COMPARE(focusBehindBox(), u"Text2"_s);
        QCOMPARE(statement().toPlainText(), QString());
    }

    void aMarkerReplacesNothing()
    {
        open();
        writeStatement(u"abc"_s);
        statement().selectAll();
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"xy"_s);
        answer().selectAll();
        BoxAnswerer boxes({{u"1"_s, u"Aceptar"_s}, {u"2"_s, u"Aceptar"_s}, {u"3"_s, u"Aceptar"_s},
            {u"4"_s, u"Aceptar"_s}});
        bench->click(u"Command1"_s);
        bench->click(u"Command3"_s);
        QCOMPARE(statement().toPlainText(), u"abc[1_2]"_s);
        QCOMPARE(answer().text(), u"xy[3_4]"_s);
    }

    void anEmptyReplyEndsTheInsertion()
    {
        open();
        writeStatement(u"a"_s);
        {
            BoxAnswerer boxes({{u""_s, u"Aceptar"_s}});
            bench->click(u"Command1"_s);
        }
        {
            BoxAnswerer boxes({{u"3"_s, u"Cancelar"_s}});
            bench->click(u"Command1"_s);
        }
        {
            BoxAnswerer boxes({{u"3"_s, u"Aceptar"_s}, {u""_s, u"Aceptar"_s}});
            bench->click(u"Command1"_s);
        }
        {
            BoxAnswerer boxes({{u"3"_s, u"Aceptar"_s}, {u"12"_s, u"Cancelar"_s}});
            bench->click(u"Command3"_s);
        }
        {
            BoxAnswerer boxes({{u""_s, u"Aceptar"_s}, {u"&1"_s, u"Cancelar"_s}});
            bench->click(u"Command2"_s);
            bench->click(u"Command4"_s);
        }
        QCOMPARE(statement().toPlainText(), u"a"_s);
        QCOMPARE(answer().text(), QString());
    }

    void insertsAComputedValue()
    {
        open();
        writeStatement(u"Hay  peras"_s);
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(&statement(), Qt::Key_Left);
        BoxAnswerer boxes({{u"&1*&2"_s, u"Aceptar"_s}, {u"&1+ 1 "_s, u"Aceptar"_s}});
        bench->click(u"Command2"_s);
        QTRY_COMPARE(focusBehindBox(), u"Text1"_s);
        QCOMPARE(statement().toPlainText(), u"Hay {&1*&2} peras"_s);
        QCOMPARE(statement().textCursor().position(), 11);
        bench->click(u"Command4"_s);
        QTRY_COMPARE(focusBehindBox(), u"Text2"_s);
        QCOMPARE(answer().text(), u"{&1+ 1 }"_s);
        QCOMPARE(answer().cursorPosition(), 8);
        QCOMPARE(boxes.titles,
            (QStringList{u"Reinsertar dato variable"_s, u"Reinsertar dato variable"_s}));
        QCOMPARE(boxes.texts,
            (QStringList{
                u"Escriba la expresión a insertar. Utilice &1 para insertar el primer dato, &2 "
                "para el segundo  y así sucesivamente hasta &9. No deje espacios tras el signo "
                "&."_s,
                u"Escriba la expresión a insertar. Utilice &1 para insertar el primer dato, &2 "
                "para el segundo  y así sucesivamente hasta &9:"_s}));
    }

    void aLooseAmpersandIsNotInserted()
    {
        open();
        BoxAnswerer boxes({{u"& 1"_s, u"Aceptar"_s}, {u"Aceptar"_s}, {u"1+& "_s, u"Aceptar"_s},
            {u"Aceptar"_s}});
        bench->click(u"Command2"_s);
        bench->click(u"Command4"_s);
        QCOMPARE(boxes.texts.at(1),
            u"Error en la expresión, no debe dejar espacios en blanco tras el signo &"_s);
        QCOMPARE(boxes.texts.at(3), boxes.texts.at(1));
        QCOMPARE(boxes.titles.at(1), u"Error"_s);
        QCOMPARE(boxes.icons.at(1), QMessageBox::Critical);
        QCOMPARE(boxes.icons.at(3), QMessageBox::Critical);
        QCOMPARE(statement().toPlainText(), QString());
        QCOMPARE(answer().text(), QString());
    }

    // --- trying out

    void triesTheFieldsOut()
    {
        open();
        clickEntry(0);
        bench->random.appendInteger(6, 5, 4);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"CBProbar"_s);
        QCOMPARE(boxes.texts,
            QStringList{u"Enunciado \r\nReparte 6 cromos.\r\nRespuesta\r\n12\r\ncromos"_s});
        QCOMPARE(boxes.titles, QStringList{u"Pizarrin"_s});
        QCOMPARE(boxes.icons, QList{QMessageBox::NoIcon});
        QCOMPARE(bench->random.left(), 0u);
        QCOMPARE(shown()[0], u"Reparte [4_8] cromos."_s);
    }

    void reportsATemplateThatCannotBeTried()
    {
        open();
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"{7/0}"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        bench->click(u"CBProbar"_s);
        QCOMPARE(boxes.texts,
            QStringList{u"División entre 0 (carácter 2 de «7/0»).\n\nEstá en: {7/0}"_s});
        QCOMPARE(answer().text(), u"{7/0}"_s);
    }

    void notesWhatIsWrongBelowTheTextThatItShows()
    {
        open();
        writeStatement(u"Hay [7_9] de [<b>3</b>]"_s);
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"{&1/2}"_s);
        bench->random.appendInteger(7, 3, 7);
        bench->random.append({0});
        BoxAnswerer boxes(u"Aceptar"_s);
        QString notes;
        boxes.whileOpen = [&](QDialog& box) {
            notes = dynamic_cast<QMessageBox&>(box).informativeText();
            for (const QLabel* label : box.findChildren<QLabel*>()) {
                if (label->text() == notes)
                    QCOMPARE(label->textFormat(), Qt::PlainText);
            }
        };
        bench->click(u"CBProbar"_s);
        QCOMPARE(boxes.texts, QStringList{u"Enunciado \r\nHay 7 de 0\r\nRespuesta\r\n4\r\n"_s});
        QCOMPARE(notes,
            u"[<b>3</b>] no se entiende: un dato se escribe [mínimo_máximo].\n"
            "{&1/2} da 3,5 y se redondea a 4.\nDatos: &1 = 7, &2 = 0."_s);
    }

    void notesNothingOnACleanDraw()
    {
        open();
        clickEntry(1);
        BoxAnswerer boxes(u"Aceptar"_s);
        QString notes = u"?"_s;
        boxes.whileOpen = [&](QDialog& box) {
            notes = dynamic_cast<QMessageBox&>(box).informativeText();
        };
        bench->click(u"CBProbar"_s);
        QCOMPARE(notes, QString());
    }

    // --- what is not stored yet

    void showsWhatIsNotStoredYet()
    {
        open();
        QVERIFY(!saysUnsaved());
        clickEntry(1);
        QVERIFY(!saysUnsaved());
        writeStatement(u"Otra cosa"_s);
        QVERIFY(saysUnsaved());
        clickEntry(2);
        QVERIFY(!saysUnsaved());
        clickBox(0);
        QVERIFY(saysUnsaved());
        clickBox(0);
        QVERIFY(!saysUnsaved());
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u"5"_s);
        QVERIFY(saysUnsaved());
        store();
        QVERIFY(!saysUnsaved());
        focus(u"Text3"_s);
        QTest::keyClicks(&unit(), u"m"_s);
        QVERIFY(saysUnsaved());
        bench->click(u"CBAccion(1)"_s);
        QVERIFY(!saysUnsaved());
    }

    void whatIsLeftOfADeletedEntryIsNotStored()
    {
        open();
        clickEntry(1);
        bench->click(u"CBAccion(2)"_s);
        QVERIFY(saysUnsaved());
        clickEntry(0);
        QVERIFY(!saysUnsaved());
    }

    void anEntryIsShownWholeUnderTheMouse()
    {
        open("Reparte <b>[4_8]</b> & m\xE1s.|{&1*2}|cromos|*/\r\n");
        const QPoint place = list().visualItemRect(list().item(0)).center();
        QHelpEvent event(QEvent::ToolTip, place, list().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(list().viewport(), &event);
        QCOMPARE(QToolTip::text(), u"<p>%1</p>"_s.arg(list().item(0)->text().toHtmlEscaped()));
        QToolTip::hideText();
    }

    // --- storing, clearing, deleting

    void storesANewEntry()
    {
        open();
        writeStatement(u"  Uno  y dos  "_s);
        focus(u"Text2"_s);
        QTest::keyClicks(&answer(), u" 3 "_s);
        focus(u"Text3"_s);
        QTest::keyClicks(&unit(), u" kg "_s);
        clickBox(3);
        store();
        QCOMPARE(entries(), Lines + (QStringList{u"Uno  y dos|3|kg|-"_s, New}));
        QCOMPARE(selected(), QList<int>{4});
        QVERIFY(!canDelete());
        QCOMPARE(bench->focusName(), u"Text1"_s);
        QCOMPARE(shown(), (QStringList{u"  Uno  y dos  "_s, u" 3 "_s, u" kg "_s, u"...-"_s}));
    }

    void storesOverTheSelectedEntry()
    {
        open();
        clickEntry(1);
        focus(u"Text3"_s);
        unit().clear();
        QTest::keyClicks(&unit(), u"meses"_s);
        clickBox(1);
        clickBox(0);
        store();
        QCOMPARE(
            entries(), (QStringList{Lines[0], u"¿Cuántos años?|7|meses|*/+-"_s, Lines[2], New}));
        QCOMPARE(selected(), QList<int>{3});
        QVERIFY(!canDelete());
        QCOMPARE(bench->focusName(), u"Text1"_s);
    }

    void storesNothingWithoutAnOperation()
    {
        open();
        writeStatement(u"Uno"_s);
        BoxAnswerer boxes(u"Aceptar"_s);
        store();
        QCOMPARE(boxes.texts, QStringList{u"Marque al menos una de las 4 operaciones"_s});
        QCOMPARE(boxes.titles, QStringList{u"Pizarrin"_s});
        QCOMPARE(boxes.icons, QList{QMessageBox::NoIcon});
        QCOMPARE(entries(), Lines + QStringList{New});
        QCOMPARE(statement().toPlainText(), u"Uno"_s);
    }

    void storesOverTheFirstProblemWithNoEntrySelected()
    {
        open();
        clickEntry(1);
        bench->click(u"CBAccion(2)"_s);
        QCOMPARE(selected(), QList<int>());
        store();
        QCOMPARE(entries(), (QStringList{Lines[1], Lines[2], New}));
        QCOMPARE(selected(), QList<int>{2});
        // The problem that was replaced stands in the boxes.
        QCOMPARE(shown(),
            (QStringList{u"Reparte [4_8] cromos."_s, u"{&1*2}"_s, u"cromos"_s, u"*/.."_s}));
    }

    void deletesTheSelectedEntry()
    {
        open();
        clickEntry(1);
        bench->click(u"CBAccion(2)"_s);
        QCOMPARE(entries(), (QStringList{Lines[0], Lines[2], New}));
        QCOMPARE(selected(), QList<int>());
        QCOMPARE(shown(), (QStringList{u"¿Cuántos años?"_s, u"7"_s, u"años"_s, u"..+-"_s}));
        bench->click(u"CBAccion(2)"_s); // nothing is selected
        QCOMPARE(entries(), (QStringList{Lines[0], Lines[2], New}));
        clickEntry(1);
        QCOMPARE(shown()[0], u"Sin unidad"_s); // the later ones have moved up
        bench->click(u"CBAccion(2)"_s);
        clickEntry(0);
        bench->click(u"CBAccion(2)"_s);
        QCOMPARE(entries(), QStringList{New});
        bench->click(u"OKButton"_s);
        QCOMPARE(contents(u"Problemas3.dat"_s), QByteArray());
        QCOMPARE(contents(u"Problemas3.bak"_s), Bank);
    }

    void clearsTheTextsOnly()
    {
        open();
        clickEntry(0);
        bench->click(u"CBAccion(1)"_s);
        QCOMPARE(shown(), (QStringList{QString(), QString(), QString(), u"*/.."_s}));
        QCOMPARE(selected(), QList<int>{0});
        QCOMPARE(entries(), Lines + QStringList{New});
    }

    // --- what no field can hold

    void theSeparatorIsRefusedWhileTyped()
    {
        open();
        const QString refusal = u"El signo | separa los campos de un problema en el archivo. No "
                                "puede escribirlo dentro de un campo."_s;
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s, u"Aceptar"_s});
        for (const QString& name : {u"Text1"_s, u"Text2"_s, u"Text3"_s}) {
            focus(name);
            QTest::keyClicks(&bench->control<QWidget>(name), u"a|b"_s);
            QTRY_COMPARE(focusBehindBox(), name);
        }
        QCOMPARE(boxes.texts, (QStringList{refusal, refusal, refusal}));
        QCOMPARE(shown(), (QStringList{u"ab"_s, u"ab"_s, u"ab"_s, u"...."_s}));
    }

    void aPastedSeparatorIsNotStored()
    {
        open();
        statement().setFocus();
        QApplication::clipboard()->setText(u"a|b"_s);
        statement().paste();
        clickBox(0);
        BoxAnswerer boxes(u"Aceptar"_s);
        store();
        QCOMPARE(boxes.texts.size(), 1);
        QVERIFY(boxes.texts[0].startsWith(u"El signo | separa"));
        QCOMPARE(entries(), Lines + QStringList{New});
        QCOMPARE(statement().toPlainText(), u"a|b"_s);
    }

    void aStatementIsOneLine()
    {
        open();
        writeStatement(u"a"_s);
        QTest::keyClick(&statement(), Qt::Key_Return);
        QTest::keyClick(&statement(), Qt::Key_Enter, Qt::KeypadModifier);
        QTest::keyClick(&statement(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(&statement(), u"b"_s);
        QCOMPARE(statement().toPlainText(), u"ab"_s);
        QApplication::clipboard()->setText(u"c\nd"_s);
        statement().paste();
        focus(u"Text2"_s);
        answer().paste();
        clickBox(0);
        store();
        QCOMPARE(entries().at(3), u"abc d|c d||*"_s);
    }

    void unusualCharactersSurviveStoring()
    {
        open("a\xA0"
             "b\x81 c|\xA0\x9D|\xA0|+\r\n");
        clickEntry(0);
        store();
        bench->click(u"OKButton"_s);
        QCOMPARE(contents(u"Problemas3.dat"_s),
            QByteArray("a\xA0"
                       "b\x81 c|\xA0\x9D|\xA0|+\r\n"));
    }

    // --- closing

    void acceptSavesAndCloses()
    {
        open();
        clickEntry(2);
        bench->click(u"CBAccion(2)"_s);
        QCOMPARE(contents(u"Problemas3.dat"_s), Bank); // nothing reaches the file before
        bench->click(u"OKButton"_s);
        QTRY_VERIFY(!screen);
        QCOMPARE(closedCalls, 1);
        QCOMPARE(contents(u"Problemas3.dat"_s), Bank.first(Bank.indexOf("Sin")));
        QCOMPARE(contents(u"Problemas3.bak"_s), Bank);
        open(QByteArray());
        QCOMPARE(entries(), (QStringList{Lines[0], Lines[1], New}));
    }

    void cancelLosesTheEdits()
    {
        open();
        clickEntry(0);
        bench->click(u"CBAccion(2)"_s);
        bench->click(u"CancelButton"_s);
        QTRY_VERIFY(!screen);
        QCOMPARE(closedCalls, 1);
        QCOMPARE(contents(u"Problemas3.dat"_s), Bank);
        QCOMPARE(contents(u"Problemas3.bak"_s), QByteArray("(none)"));
    }

    void unloadingFromOutsideDoesNotGoBack()
    {
        open();
        screen->unload();
        QTRY_VERIFY(!screen);
        QCOMPARE(closedCalls, 0);
    }

    void escapeClosesNothing()
    {
        open();
        for (const QString& name : {u"List1"_s, u"Text1"_s, u"Text2"_s, u"OKButton"_s}) {
            focus(name);
            bench->key(name, Qt::Key_Escape);
            QVERIFY(screen && screen->isVisible());
        }
    }

    void aFailedSaveKeepsTheDialogAndItsEdits()
    {
        open();
        QApplication::clipboard()->setText(u"3 → 4"_s);
        statement().setFocus();
        statement().paste();
        clickBox(0);
        store();
        BoxAnswerer boxes({u"Aceptar"_s, u"Aceptar"_s});
        bench->click(u"OKButton"_s);
        QCOMPARE(boxes.texts,
            QStringList{u"El problema de la línea 4 no se puede guardar.\n"
                        "El archivo no admite el carácter «→». Cámbielo o bórrelo."_s});
        QVERIFY(screen && screen->isVisible());
        QCOMPARE(closedCalls, 0);
        QCOMPARE(entries().at(3), u"3 → 4|||*"_s);
        QCOMPARE(contents(u"Problemas3.dat"_s), Bank);

        bench->folder.remove();
        bench->click(u"OKButton"_s);
        QCOMPARE(boxes.texts.size(), 2);
        QVERIFY(screen && screen->isVisible());
        QCOMPARE(entries().at(3), u"3 → 4|||*"_s);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(BankEditorScreenTest)
#include "bank_editor_screen_test.moc"
