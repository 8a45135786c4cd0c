#pragma once

#include "problems/bank_editor.h"

#include <QPointF>

class QCheckBox;
class QWidget;

namespace ui {
class Button;
class ControlFactory;
class Memo;
class TextBox;
} // namespace ui

namespace problems {

/// The boxes of one template: statement, answer and unit with their captions, the operations, and
/// the buttons that insert markers. What these do, the screen decides.
class TemplateForm {
public:
    // In twips.

    static constexpr double LabelHeight = 345;
    static constexpr double LabelStep = LabelHeight + 60; ///< from a caption to its box
    static constexpr double FreeWidth = 4800; ///< at the right of the first caption
    static constexpr double Height = 5625;

    /// Makes its controls with a factory, which must outlive it, in the order in which Tab goes
    /// through them.
    TemplateForm(ui::ControlFactory& controls, QPointF corner, double width);

    TemplateFields fields() const;
    void show(const TemplateFields& shown);
    void showOperations(const TemplateFields& shown);
    /// Empties the texts.
    void empty();

    enum class Target { Statement, Answer };
    /// Puts a marker in at the caret, replaces nothing, and gives that box the focus.
    void insertAtCaret(Target target, const QString& marker);

    ui::Memo* Text1 = nullptr; ///< the statement
    ui::TextBox* Text2 = nullptr; ///< the answer
    ui::TextBox* Text3 = nullptr; ///< the unit of the answer
    std::array<QCheckBox*, 4> CHOpera{}; ///< the operations that the problem exercises
    ui::Button* Command1 = nullptr; ///< inserts a datum into the statement
    ui::Button* Command2 = nullptr; ///< inserts a computed value there
    ui::Button* Command3 = nullptr; ///< inserts a datum into the answer
    ui::Button* Command4 = nullptr; ///< inserts a computed value there

private:
    void makeStatement();
    void makeAnswer();
    void makeUnit();
    void makeOperations();
    double half() const;
    double rightHalf() const;
    void addLabel(int number, const QString& caption, double top, double width, QWidget* box);
    ui::Button* insertCommand(
        int number, const QString& caption, const QString& target, QPointF corner);

    ui::ControlFactory& m_controls;
    double m_left;
    double m_top;
    double m_width;
};

} // namespace problems
