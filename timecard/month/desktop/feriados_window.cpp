#include "timecard/month/desktop/feriados_window.h"

#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

namespace winvrx {

namespace {

/// The field is left: the day takes its full form, or the field says what is wrong with it.
void completeDay(TextField& field) {
    const std::string day = toUtf8(field.text());
    const QString completed = toQt(completedHolidayDay(day));
    if (completed != field.text()) {
        // As if typed, so that the field counts as edited.
        field.edit()->selectAll();
        field.edit()->insert(completed);
    }
    field.setWarning(day.empty() ? QString() : toQt(Feriados::findingOf(day)));
}

}  // namespace

FeriadosWindow::FeriadosWindow(Feriados& holidays, QWidget* parent)
    : RegisterWindow({.screen = QStringLiteral("feriados"),
                      .title = QStringLiteral("Feriados do Município e do Estado"),
                      .listTitle = QStringLiteral("Feriados"),
                      .searchHint = QStringLiteral("Pesquisar feriado…"),
                      .emptyList = QStringLiteral("Nenhum feriado ainda. Os nacionais o calendário "
                                                  "já conhece."),
                      .emptyAction = QStringLiteral("Incluir o primeiro"),
                      .headings = {QStringLiteral("Dia"), QStringLiteral("Nome")}},
                     parent),
      holidays_(holidays) {
    connect(this, &ScreenWindow::helpRequested, this, [this] { holidays_.help(); });
    assemble(buildForm(), nullptr);
    resize(look::kSmallWindowSize);
    holidays_.load();
    refresh(std::nullopt);
    focusForm();
}

QWidget* FeriadosWindow::buildForm() {
    auto* form = new QWidget;
    auto* column = new QVBoxLayout(form);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Feriado"), form));
    day_ = new TextField(QStringLiteral("&Dia"), QStringLiteral("feriados.day"),
                         static_cast<int>(kHolidayDayColumn.width), nullptr, form);
    auto* name = new TextField(QStringLiteral("&Nome"), QStringLiteral("feriados.name"),
                               static_cast<int>(kHolidayNameColumn.width), nullptr, form);
    name->edit()->setProperty("lastField", true);
    form_.bind(&TypedHoliday::day, day_);
    form_.bind(&TypedHoliday::name, name);
    form_.forEach([&](TextField* field) {
        column->addWidget(field);
        connect(field, &TextField::edited, this, &FeriadosWindow::showState);
    });
    connect(day_->edit(), &QLineEdit::editingFinished, day_, [day = day_] { completeDay(*day); });
    QLabel* note = look::label(
        QStringLiteral("Dia e mês, como 25/01, valem para todos os anos; com o ano, como "
                       "25/01/2026, só para essa data. Um mês ainda não gravado já vem com estes "
                       "feriados marcados; um mês gravado não muda. A lista serve a todas as "
                       "empresas."),
        look::TextSize::Hint, form);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addStretch();
    return look::scrolled(form, this);
}

std::vector<RegisterList::Row> FeriadosWindow::rows() const {
    std::vector<RegisterList::Row> rows;
    for (const LocalHolidayLine& line : holidays_.lines()) {
        if (!line.holiday) {
            rows.push_back(RegisterList::unreadRow(line.bytes));
            continue;
        }
        const QStringList cells = {toQt(dayText(line.holiday->day)), toQt(line.holiday->name)};
        rows.push_back({cells, cells.join(QLatin1Char(' '))});
    }
    return rows;
}

void FeriadosWindow::showRecord(std::optional<std::size_t> position) {
    TypedHoliday holiday;
    if (position && holidays_.lines().at(*position).holiday) {
        const LocalHoliday& listed = *holidays_.lines()[*position].holiday;
        holiday = {dayText(listed.day), listed.name};
    }
    form_.show(holiday);
    shown_ = typed();
}

TypedHoliday FeriadosWindow::typed() const {
    TypedHoliday typed;
    form_.readInto(typed);
    return typed;
}

void FeriadosWindow::focusForm() {
    day_->edit()->setFocus(Qt::TabFocusReason);
}

QString FeriadosWindow::newRecordTitle() const {
    return QStringLiteral("Novo feriado");
}

bool FeriadosWindow::includeTyped() {
    return holidays_.include(typed());
}

bool FeriadosWindow::changeTyped(std::size_t position) {
    return holidays_.change(position, typed());
}

bool FeriadosWindow::removeRecord(std::size_t position) {
    return holidays_.remove(position);
}

bool FeriadosWindow::mayDiscardTyped() {
    return holidays_.mayDiscardTyped();
}

}  // namespace winvrx
