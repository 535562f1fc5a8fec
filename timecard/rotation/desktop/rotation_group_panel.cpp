#include "timecard/rotation/desktop/rotation_group_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/rotation/desktop/rotation_plan_model.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>

namespace winvrx {

namespace {

const QString kFirstDay = QStringLiteral("&Primeira folga da Lista no  mês dia:");
const QString kReliefHeading = QStringLiteral("Adicionar Funcionários Folguista");
const QString kNoGroup =
    QStringLiteral("Nenhum grupo selecionado. Escolha um na lista, ou crie um novo com Ins.");
const QString kNobody = QStringLiteral(
    "Escolha um funcionário na lista à esquerda e use Adicionar => (ENTER): o primeiro da lista "
    "folga primeiro.");
const QString kWidestName = QStringLiteral("Folguista 000 MARIA JOSÉ");
const QString kWidestDay = QStringLiteral("000");
constexpr int kFewestRows = 4;
constexpr int kFewestLines = 3;

QString dayText(Date date) {
    return QStringLiteral("%1 %2")
        .arg(dayNumber(date), 2, 10, QLatin1Char('0'))
        .arg(toQt(weekdayShort(weekdayOf(date))));
}

/// Offers the days, and the one that holds even where it is none of them.
void offer(QComboBox& box, std::vector<Date> days, const std::optional<Date>& chosen) {
    if (chosen && std::ranges::find(days, *chosen) == days.end()) days.push_back(*chosen);
    std::ranges::sort(days);
    const QSignalBlocker quiet(box);
    box.clear();
    for (const Date day : days)
        box.addItem(dayText(day), dayNumber(day));
    box.setCurrentIndex(chosen ? box.findData(dayNumber(*chosen)) : -1);
}

}  // namespace

RotationGroupPanel::RotationGroupPanel(CartaoPontoDadosB& command, QWidget* parent)
    : QWidget(parent),
      command_(command),
      title_(look::line(QStringLiteral("rotation.title"), look::TextSize::Heading, this)),
      heading_(look::line(QStringLiteral("rotation.heading"), look::TextSize::Heading, this)),
      hint_(look::paragraph(QStringLiteral("rotation.hint"), look::TextSize::Body, this)),
      plan_(new RotationPlanModel(command, this)),
      grid_(new QTableView(this)),
      gaps_(look::line(QStringLiteral("rotation.gaps"), look::TextSize::Body, this)) {
    look::setTint(*gaps_, look::Tint::Absence);
    buildGrid();
    buildGridKeys();
    buildRemarks();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(look::kGap, look::kGap, look::kGap, look::kGap);
    column->setSpacing(look::kGap);
    column->addWidget(title_);
    column->addWidget(heading_);
    column->addLayout(buildList());
    column->addWidget(buildRelief());
    column->addWidget(hint_);
    column->addWidget(grid_, 3);
    column->addWidget(gaps_);
    column->addWidget(remarks_, 1);
    column->addStretch();
}

QComboBox* RotationGroupPanel::buildDays(const QString& objectName, const QString& spoken) {
    auto* box = new QComboBox(this);
    look::name(*box, objectName, spoken);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setMinimumContentsLength(6);
    return box;
}

QHBoxLayout* RotationGroupPanel::buildList() {
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    const auto add = [&](const char* text, const char* name, auto&& act) {
        QPushButton* button =
            look::button(QString::fromUtf8(text), QString::fromLatin1(name), this);
        commands_.push_back(button);
        connect(button, &QPushButton::clicked, this, act);
        row->addWidget(button);
    };
    add("&Adicionar =>", "rotation.add", [this] { emit addRequested(); });
    add("<= &Remover", "rotation.remove", [this] { removeSelected(); });
    add("Mover p/ &Cima", "rotation.up", [this] { moveSelected(-1); });
    add("Mover p/ &Baixo", "rotation.down", [this] { moveSelected(1); });
    row->addStretch();
    firstDay_ = buildDays(QStringLiteral("rotation.firstDay"), kFirstDay);
    commands_.push_back(firstDay_);
    connect(firstDay_, &QComboBox::activated, this, [this] {
        command_.draft().setFirstDayOff(firstDay_->currentData().toInt());
        emit edited();
    });
    row->addLayout(look::captioned(kFirstDay, firstDay_));
    return row;
}

QWidget* RotationGroupPanel::buildRelief() {
    relief_ = new QWidget(this);
    auto* row = new QHBoxLayout(relief_);
    look::layOutPart(*row);
    row->addWidget(look::heading(kReliefHeading, relief_));
    QPushButton* add = look::button(QStringLiteral("A&dicionar =>"),
                                    QStringLiteral("rotation.addRelief"), relief_);
    add->setAccessibleName(kReliefHeading);
    commands_.push_back(add);
    connect(add, &QPushButton::clicked, this, &RotationGroupPanel::addReliefRequested);
    row->addWidget(add);
    row->addStretch();
    for (std::size_t which = 0; which < kMostReliefWorkers; ++which) {
        reliefNames_[which] = look::label(QString(), look::TextSize::Body, relief_);
        QComboBox* days =
            buildDays(QStringLiteral("rotation.reliefDay%1").arg(which + 1),
                      QStringLiteral("Primeira folga do %1º folguista").arg(which + 1));
        connect(days, &QComboBox::activated, this, [this, which, days] {
            command_.draft().setReliefDayOff(which, days->currentData().toInt());
            emit edited();
        });
        reliefDays_[which] = days;
        row->addWidget(reliefNames_[which]);
        row->addWidget(days);
    }
    return relief_;
}

void RotationGroupPanel::buildGrid() {
    look::name(*grid_, QStringLiteral("rotation.plan"), QStringLiteral("Escala do grupo"));
    grid_->setModel(plan_);
    grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setCornerButtonEnabled(false);
    grid_->setTabKeyNavigation(false);
    QHeaderView* days = grid_->horizontalHeader();
    days->setSectionResizeMode(QHeaderView::Stretch);
    days->setMinimumSectionSize(fontMetrics().horizontalAdvance(kWidestDay));
    days->setHighlightSections(false);
    days->setSectionsClickable(false);
    QHeaderView* names = grid_->verticalHeader();
    names->setFixedWidth(fontMetrics().horizontalAdvance(kWidestName));
    names->setTextElideMode(Qt::ElideRight);
    names->setSectionResizeMode(QHeaderView::Fixed);
    names->setDefaultSectionSize(fontMetrics().height() + look::kGap);
    names->setSectionsMovable(true);
    grid_->setMinimumHeight(kFewestRows * names->defaultSectionSize());
    connect(names, &QHeaderView::sectionMoved, this, [this, names](int, int from, int to) {
        // The header's own order stays that of the list, which moves the employee.
        {
            const QSignalBlocker quiet(names);
            names->moveSection(to, from);
        }
        move(from, to);
    });
}

void RotationGroupPanel::buildGridKeys() {
    const auto add = [this](const QKeySequence& key, auto&& act) {
        auto* shortcut = new QShortcut(key, grid_);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, act);
    };
    add(Qt::CTRL | Qt::Key_Up, [this] { moveSelected(-1); });
    add(Qt::CTRL | Qt::Key_Down, [this] { moveSelected(1); });
    add(Qt::Key_Delete, [this] { removeSelected(); });
}

void RotationGroupPanel::buildRemarks() {
    remarks_ = new QPlainTextEdit(this);
    look::name(*remarks_, QStringLiteral("rotation.remarks"), QStringLiteral("Observações"));
    remarks_->setReadOnly(true);
    remarks_->setTabChangesFocus(true);
    remarks_->setFont(look::font(look::TextSize::Hint));
    remarks_->setMinimumHeight(kFewestLines * remarks_->fontMetrics().lineSpacing() +
                               look::kMargin);
}

void RotationGroupPanel::refresh() {
    const int row = grid_->currentIndex().row();
    plan_->refresh();
    select(row);
    fitGrid();
    const auto& group = command_.group();
    title_->setText(group ? toQt(titleOf(*group)) : QString());
    title_->setVisible(group.has_value());
    heading_->setText(QStringLiteral("Adicionar Funcionários Folgar ") +
                      toQt(scaleTitle(group ? group->scale : command_.scale())));
    for (QWidget* one : commands_)
        one->setEnabled(group.has_value());
    showDays();
    showRelief();
    showHint();
    showRemarks();
}

void RotationGroupPanel::fitGrid() {
    const int rows = plan_->rowCount();
    grid_->setVisible(rows > 0);
    grid_->setMaximumHeight(grid_->horizontalHeader()->sizeHint().height() +
                            rows * grid_->verticalHeader()->defaultSectionSize() +
                            2 * grid_->frameWidth());
}

void RotationGroupPanel::showDays() {
    const auto& group = command_.group();
    offer(*firstDay_, group ? datesOf(command_.settings().month) : std::vector<Date>(),
          group ? group->firstDayOff : std::nullopt);
}

void RotationGroupPanel::showRelief() {
    const auto& group = command_.group();
    relief_->setVisible(!group || group->scale == Scale::FiveByOne);
    for (std::size_t which = 0; which < kMostReliefWorkers; ++which) {
        const bool shown = group && which < group->relief.size();
        reliefNames_[which]->setVisible(shown);
        reliefDays_[which]->setVisible(shown);
        if (!shown) continue;
        const ReliefWorker& one = group->relief[which];
        reliefNames_[which]->setText(
            QStringLiteral("Primeira folga de %1:").arg(toQt(one.employee.text())));
        offer(*reliefDays_[which], command_.draft().daysForRelief(which), one.firstDayOff);
    }
}

void RotationGroupPanel::showHint() {
    QString text;
    if (!command_.group())
        text = kNoGroup;
    else if (plan_->rowCount() == 0)
        text = kNobody;
    else if (!command_.groupFinding().empty())
        text = QStringLiteral("⚠ ") + toQt(command_.groupFinding());
    look::setTint(*hint_, plan_->rowCount() == 0 ? look::Tint::Quiet : look::Tint::Warning);
    look::showText(*hint_, text);
}

void RotationGroupPanel::showRemarks() {
    const RotationView& view = plan_->view();
    look::showWarning(*gaps_, toQt(view.gaps));
    QStringList lines;
    for (const std::string& note : command_.notes())
        lines << QStringLiteral("⚠ ") + toQt(note);
    for (const std::string& remark : view.remarks)
        lines << toQt(remark);
    if (!view.remarks.empty()) lines << toQt(sundayExplanation());
    remarks_->setPlainText(lines.join(QLatin1Char('\n')));
    remarks_->setVisible(!lines.isEmpty());
}

void RotationGroupPanel::select(int row) {
    const int last = plan_->rowCount() - 2;  // below it is the coverage
    if (row >= 0 && last >= 0) grid_->selectRow(std::min(row, last));
}

void RotationGroupPanel::move(int from, int to) {
    const auto place = plan_->placeAt(from);
    const auto target = plan_->placeAt(to);
    if (!place || !target || !command_.draft().move(*place, *target)) return;
    emit edited();
    select(to);
}

void RotationGroupPanel::moveSelected(int by) {
    const int row = grid_->currentIndex().row();
    move(row, row + by);
}

void RotationGroupPanel::removeSelected() {
    const int row = grid_->currentIndex().row();
    if (const auto place = plan_->placeAt(row)) command_.draft().removePlace(*place);
    if (const auto which = plan_->reliefAt(row)) command_.draft().removeReliefWorker(*which);
    emit edited();
}

}  // namespace winvrx
