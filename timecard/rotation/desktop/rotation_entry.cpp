#include "timecard/rotation/desktop/rotation_entry.h"

#include "foundation/register/employee_queries.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"
#include "timecard/rotation/desktop/cartao_ponto_dados_b_window.h"

namespace winvrx {

namespace {

QString stateOf(const Workplace& at, const MonthProgress* progress) {
    if (!progress || !progress->month || !at.session.company)
        return QStringLiteral("Falta o mês de trabalho");
    const auto groups = groupsOf(at.store(), *at.session.company, *progress->month);
    return toQt(countOf(groups.size(), "grupo"));
}

}  // namespace

void openRotations(const Workplace& at, ReportEngine& engine, TextEditor& editor, QWidget* parent) {
    const RecordedAnswers payroll(at.store());
    CartaoPontoDadosB command(at, {payroll, editor, engine});
    if (command.open()) CartaoPontoDadosBWindow(command, parent).exec();
}

MenuEntry rotationEntry(const Workplace& at, std::function<void(QWidget*)> open) {
    return {.group = QStringLiteral("Cartão de Ponto"),
            .tile = {"rotation", QStringLiteral("Es&calas"), "menu.rotation.open", Qt::Key_F11},
            .needs = MenuNeeds::Employees,
            .open = std::move(open),
            .state = [at](const MonthProgress* progress) { return stateOf(at, progress); }};
}

}  // namespace winvrx
