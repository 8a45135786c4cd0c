#include "activities.h"

#include "games/number_rain_screen.h"
#include "games/race_options_screen.h"
#include "games/race_screen.h"
#include "problems/bank_editor_screen.h"
#include "problems/problem_session_screen.h"
#include "problems/selection_screen.h"
#include "shell/main_menu_screen.h"
#include "tables/fill_the_gap_screen.h"
#include "tables/multiplication_tables_screen.h"
#include "tables/quick_tables_screen.h"
#include "tables/repeated_sum_screen.h"
#include "ui/screen_set.h"
#include "written/combined_operations_screen.h"
#include "written/digit_dialog.h"
#include "written/long_division_screen.h"
#include "written/long_multiplication_screen.h"
#include "written/multiples_divisors_screen.h"

using namespace Qt::StringLiterals;

std::vector<shell::Activity> activities()
{
    using shell::activity;
    using enum shell::Activity::Shown;
    using enum shell::Pictogram;
    return {
        activity<tables::Form4>(
            u"&Suma repetida"_s, Modal, RepeatedSum, u"tables/repeated_sum"_s),
        activity<tables::Form2>(
            u"&Tablas de multiplicar"_s, Modal, Tables, u"tables/multiplication_tables"_s),
        activity<tables::Form8>(
            u"T&ablas rápidas"_s, Modal, QuickTables, u"tables/quick_tables"_s),
        activity<tables::FrmMultHuecos>(
            u"&Completa el hueco"_s, Modal, Gap, u"tables/fill_the_gap"_s),
        activity<written::FrmMultidivi>(
            u"&Múltiplos y divisores"_s, Modal, Multiples, u"written/multiples_divisors"_s),
        activity<written::Form3>(
            u"&Multiplicaciones"_s, Modal, Multiplication, u"written/long_multiplication"_s),
        activity<written::Form6>(u"&Divisiones"_s, Modal, Division, u"written/long_division"_s),
        activity<problems::FormProblemas>(
            u"&Problemas"_s, Modeless, Problems, u"problems/problem_session"_s),
        activity<written::FRMCombi>(
            u"&Operaciones combinadas"_s, Modal, Combined, u"written/combined_operations"_s),
        activity<games::Form5>(u"&Lluvia de números"_s, Modal, Rain, u"games/number_rain"_s),
        activity<games::FrmCarrera>(u"&La gran carrera"_s, Modal, Race, u"games/race"_s),
    };
}

void addScreens(ui::ScreenSet& screens, shell::PictogramsAhead* pictograms)
{
    screens.add(shell::Form1::screenName(), [pictograms](ui::Screens& set) -> ui::Screen* {
        return new shell::Form1(set, activities(), pictograms);
    });
    screens.setMainScreen(shell::Form1::screenName());

    for (const shell::Activity& activity : activities())
        screens.add(activity.screen, activity.make);
    screens.add<games::DlgCarrera>();
    screens.add<problems::DLGProblemas>();
    screens.add<problems::DLGSelProb>();
    screens.add<written::Dialog>();
}
