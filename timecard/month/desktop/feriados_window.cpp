#include "timecard/month/desktop/feriados_window.h"

#include "foundation/register/desktop/noted_form.h"
#include "foundation/register/desktop/record_form.h"
#include "foundation/widgets/desktop/look.h"

#include <array>

namespace winvrx {

namespace {

constexpr std::array kPlacements = {
    FieldPlacement<LocalHoliday>{&LocalHoliday::day, "day", 'D', 0, 0, 12, kHolidayDayField},
    FieldPlacement<LocalHoliday>{&LocalHoliday::name, "name", 'N', 0, 1, 12},
};

const QString kNote = QStringLiteral(
    "Dia e mês, como 25/01, valem para todos os anos; com o ano, como 25/01/2026, só para essa "
    "data. Um mês ainda não gravado já vem com estes feriados marcados; um mês gravado não muda. A "
    "lista serve a todas as empresas.");

}  // namespace

FeriadosWindow::FeriadosWindow(Feriados& holidays, QWidget* parent)
    : RegisterWindow(holidays,
                     {.screen = QStringLiteral("feriados"),
                      .title = QStringLiteral("Feriados do Município e do Estado"),
                      .listTitle = QStringLiteral("Feriados"),
                      .searchHint = QStringLiteral("Pesquisar feriado…"),
                      .emptyList = QStringLiteral("Nenhum feriado ainda. Os nacionais o calendário "
                                                  "já conhece."),
                      .emptyAction = QStringLiteral("Incluir o primeiro"),
                      .headings = {QStringLiteral("Dia"), QStringLiteral("Nome")}},
                     parent) {
    assemble(new NotedForm<LocalHoliday>(holidays, QStringLiteral("feriados"), kPlacements,
                                         QStringLiteral("Feriado"), kNote, this),
             nullptr);
    resize(look::kSmallWindowSize);
    openAt(std::nullopt);
}

}  // namespace winvrx
