#include "activities.h"

#include "games/number_rain_screen.h"
#include "games/race_options_screen.h"
#include "games/race_screen.h"
#include "problems/bank_editor_screen.h"
#include "problems/problem_session_screen.h"
#include "problems/selection_screen.h"
#include "tables/fill_the_gap_screen.h"
#include "tables/multiplication_tables_screen.h"
#include "tables/quick_tables_screen.h"
#include "tables/repeated_sum_screen.h"
#include "ui/screens.h"
#include "written/combined_operations_screen.h"
#include "written/digit_dialog.h"
#include "written/long_division_screen.h"
#include "written/long_multiplication_screen.h"
#include "written/multiples_divisors_screen.h"

using namespace Qt::StringLiterals;

std::vector<shell::Activity> activities()
{
    using enum shell::Activity::Shown;
    return {
        {u"&Suma repetida"_s, u"Form4"_s, Modal},
        {u"&Tablas de multiplicar"_s, u"Form2"_s, Modal},
        {u"T&ablas rápidas"_s, u"Form8"_s, Modal},
        {u"&Completa el hueco"_s, u"FrmMultHuecos"_s, Modal},
        {u"&Múltiplos y divisores"_s, u"FrmMultidivi"_s, Modal},
        {u"&Multiplicaciones"_s, u"Form3"_s, Modal},
        {u"&Divisiones"_s, u"Form6"_s, Modal},
        {u"&Problemas"_s, u"FormProblemas"_s, Modeless},
        {u"&Operaciones combinadas"_s, u"FRMCombi"_s, Modal},
        {u"&Lluvia de números"_s, u"Form5"_s, Modal},
        {u"&La gran carrera"_s, u"FrmCarrera"_s, Modal},
    };
}

void addScreens(ui::Screens& screens)
{
    screens.add(shell::Form1::screenName(), [](ui::Screens& set) -> ui::Screen* {
        const auto entries = activities();
        return new shell::Form1(set, entries);
    });
    screens.setMainScreen(shell::Form1::screenName());

    screens.add<games::DlgCarrera>();
    screens.add<games::Form5>();
    screens.add<games::FrmCarrera>();
    screens.add<problems::DLGProblemas>();
    screens.add<problems::DLGSelProb>();
    screens.add<problems::FormProblemas>();
    screens.add<tables::Form2>();
    screens.add<tables::Form4>();
    screens.add<tables::Form8>();
    screens.add<tables::FrmMultHuecos>();
    screens.add<written::Dialog>();
    screens.add<written::Form3>();
    screens.add<written::Form6>();
    screens.add<written::FRMCombi>();
    screens.add<written::FrmMultidivi>();
}
