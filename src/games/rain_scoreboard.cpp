#include "games/rain_scoreboard.h"

#include "games/number_rain.h"
#include "games/token_row.h"
#include "ui/control_factory.h"

using namespace Qt::StringLiterals;
using ui::look::Family;

namespace games {

namespace {

// Twips.
constexpr double Margin = 500;
constexpr double ScoreTop = 30;
constexpr double ScoreHeight = 375;
constexpr double PointsWidth = 2400;
constexpr double LivesWidth = 2100;
constexpr double StarPitch = 390;
constexpr double HeartPitch = 390;
constexpr double InstructionTop = 405;
constexpr double InstructionHeight = 375;

constexpr QRgb Moonlight = 0xFFF3F5FF; // texts on the sky
constexpr QRgb Panel = 0xFF10172C;

constexpr ui::look::Font ScoreFont{Family::CourierNew, 17, true};
constexpr ui::look::Font InstructionFont{Family::CourierNew, 17, true};

QPalette textOn(QPalette palette, QRgb fill, QRgb text)
{
    palette.setColor(QPalette::Base, QColor(fill));
    palette.setColor(QPalette::Text, QColor(text));
    return palette;
}

} // namespace

RainScoreboard::RainScoreboard(ui::ControlFactory& controls, double width)
{
    const double livesLeft = width - Margin - LivesWidth;
    makeBoxes(controls, livesLeft);
    makeTokens(controls, width, livesLeft);
    Text1 = controls.displayBox(u"Text1"_s,
        {Margin, InstructionTop, width - 2 * Margin, InstructionHeight}, InstructionFont,
        u"Instrucción"_s, u"Elimina 15 números impares "_s); // never seen
    Text1->setAlignment(Qt::AlignCenter);
    Text1->setPalette(textOn(ui::look::displayed(), 0, Moonlight));
}

void RainScoreboard::makeBoxes(ui::ControlFactory& controls, double livesLeft)
{
    Text2[0] = controls.displayBox(u"Text2(0)"_s, {Margin, ScoreTop, PointsWidth, ScoreHeight},
        ScoreFont, u"Puntos"_s, u"100 puntos"_s);
    Text2[1] = controls.displayBox(u"Text2(1)"_s, {livesLeft, ScoreTop, LivesWidth, ScoreHeight},
        ScoreFont, u"Vidas"_s, u"Vidas: 3"_s);
    for (ui::TextBox* box : Text2) {
        box->setFrame(true);
        box->setAlignment(Qt::AlignCenter);
        box->setPalette(textOn(ui::look::displayed(), Panel, Amber));
    }
}

void RainScoreboard::makeTokens(ui::ControlFactory& controls, double width, double livesLeft)
{
    constexpr double HeartsWidth = RainState::FullLives * HeartPitch;
    constexpr double StarsWidth = RainScore::HitsToPass * StarPitch;
    m_stars = controls.add(
        new TokenRow(TokenRow::Shape::Star, RainScore::HitsToPass, controls.canvas()),
        u"rainHits"_s, {(width - StarsWidth) / 2, ScoreTop, StarsWidth, ScoreHeight});
    m_hearts = controls.add(
        new TokenRow(TokenRow::Shape::Heart, RainState::FullLives, controls.canvas()),
        u"rainLives"_s, {livesLeft - HeartsWidth - 150, ScoreTop, HeartsWidth, ScoreHeight});
}

void RainScoreboard::showScore(const NumberRain& rain)
{
    // Only what has changed: a screen reader looks into every text that is set, and would fall
    // behind the numbers.
    const std::array texts{rain.pointsText(), rain.livesText()};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (Text2.at(i)->text() != texts.at(i))
            Text2.at(i)->setText(texts.at(i));
    }
    m_stars->setLit(rain.state().Aciertos.value());
    m_hearts->setLit(rain.state().Vidas.value());
}

void RainScoreboard::showInstruction(const QString& text)
{
    Text1->setText(text);
    Text1->showSelected();
}

void RainScoreboard::pretendToTakeInstruction()
{
    Text1->setSelection(0, 1);
}

} // namespace games
