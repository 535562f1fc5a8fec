#include "foundation/menu/desktop/menu_window.h"

#include "foundation/menu/desktop/command_board.h"
#include "foundation/menu/desktop/command_tile.h"
#include "foundation/menu/desktop/company_list.h"
#include "foundation/menu/desktop/month_view.h"
#include "foundation/register/desktop/register_list.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/body_area.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/search_box.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

const std::string kStateOfCommands = "state of the commands";
constexpr int kSideWidth = 19;  ///< of the columns at the sides, in average capital letters

/// A panel as wide as the side columns are.
QFrame* sidePanel(QWidget* parent) {
    auto* frame = new QFrame(parent);
    look::setRole(*frame, "panel");
    return frame;
}

/// Which holds what cannot be narrower.
void fixWidth(QFrame& side) {
    const int usual = side.fontMetrics().horizontalAdvance(QLatin1Char('M')) * kSideWidth;
    side.setFixedWidth(std::max(usual, side.minimumSizeHint().width()));
}

QString dayLine(Date date) {
    return toQt(weekdayShort(weekdayOf(date))) + QStringLiteral(", ") +
           QString::number(dayNumber(date)) + QStringLiteral(" de ") +
           toQt(monthName(date.month())) + QStringLiteral(" · ") + toQt(dateText(date));
}

}  // namespace

MenuWindow::MenuWindow(Menu& menu, const Workplace& at, const MonthCalendar& calendar,
                       MenuEntries entries, ProgressOfMonth progress)
    : menu_(menu),
      at_(at),
      calendar_(calendar),
      entries_(std::move(entries)),
      progress_(std::move(progress)) {
    setObjectName(QStringLiteral("menu"));
    setWindowTitle(QStringLiteral("Winvrx"));
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->setSpacing(0);
    buildTitleBand(*frame);
    auto* body = new QWidget(this);
    auto* columns = new QHBoxLayout(body);
    look::layOutBody(*columns);
    columns->setSpacing(look::kMargin);
    columns->addWidget(buildCompanies());
    columns->addWidget(buildCommands(), 1);
    columns->addWidget(buildOverview());
    body_ = new BodyArea(body, this);
    frame->addWidget(body_, 1);
    resize(look::kWindowSize);
}

void MenuWindow::buildTitleBand(QVBoxLayout& frame) {
    auto* band = new QFrame(this);
    band->setObjectName(QStringLiteral("titleBand"));
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(look::kMargin, look::kGap, look::kMargin, look::kGap);
    row->setSpacing(look::kGap);
    auto* mark = new QLabel(band);
    mark->setPixmap(look::icon(QStringLiteral("winvrx")).pixmap(look::kTileIcon));
    row->addWidget(mark);
    row->addWidget(look::label(QStringLiteral("Winvrx"), look::TextSize::Title, band));
    row->addStretch(1);
    companyName_ = look::line(QStringLiteral("menu.company"), look::TextSize::Heading, band);
    row->addWidget(companyName_);
    row->addStretch(1);
    today_ = look::line(QStringLiteral("menu.today"), look::TextSize::Body, band);
    row->addWidget(today_);
    frame.addWidget(band);
}

QWidget* MenuWindow::buildCompanies() {
    QFrame* side = sidePanel(this);
    auto* column = new QVBoxLayout(side);
    column->setSpacing(look::kGap);
    column->addWidget(look::heading(QStringLiteral("Empresas"), side));
    search_ =
        new SearchBox(QStringLiteral("menu.search"), QStringLiteral("Pesquisar empresa…"), side);
    column->addWidget(search_);
    companies_ = new CompanyList(side);
    look::name(*companies_, QStringLiteral("menu.companies"), QStringLiteral("Lista de empresas"));
    column->addWidget(companies_, 1);
    search_->serve(companies_);
    shift_ = new QComboBox(side);
    look::name(*shift_, QStringLiteral("menu.shift"), QStringLiteral("Turno"));
    for (const ShiftFilter filter : kMenuShiftFilters)
        shift_->addItem(toQt(codeOf(filter)));
    shift_->setCurrentText(toQt(codeOf(ShiftFilter::Todos)));
    column->addLayout(look::captioned(QStringLiteral("T&urno:"), shift_));
    connect(search_, &QLineEdit::textChanged, this, &MenuWindow::filterCompanies);
    connect(search_, &QLineEdit::returnPressed, this, &MenuWindow::enterCompany);
    onEnter(*companies_, [this] { enterCompany(); });
    connect(companies_, &QListWidget::itemClicked, this, &MenuWindow::selectCompany);
    connect(companies_, &QListWidget::itemActivated, this, &MenuWindow::selectCompany);
    connect(shift_, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        if (const auto filter = parseShiftFilter(toUtf8(text))) menu_.setShiftFilter(*filter);
        showTiles();
    });
    fixWidth(*side);
    return side;
}

QWidget* MenuWindow::buildCommands() {
    commands_ = new CommandBoard(entries_, this);
    connect(commands_, &CommandBoard::chosen, this,
            [this](std::size_t entry) { open(entries_[entry]); });
    return commands_;
}

QWidget* MenuWindow::buildOverview() {
    QFrame* side = sidePanel(this);
    auto* column = new QVBoxLayout(side);
    column->setSpacing(look::kGap);
    monthName_ = look::heading(QString(), side);
    column->addWidget(monthName_);
    offered_ = new QPushButton(side);
    offered_->setObjectName(QStringLiteral("menu.confirmMonth"));
    offered_->setAutoDefault(true);
    offered_->setToolTip(QStringLiteral("Enter na lista de empresas confirma este mês."));
    connect(offered_, &QPushButton::clicked, this, &MenuWindow::confirmMonth);
    column->addWidget(offered_);
    month_ = new MonthView(side);
    column->addWidget(month_);
    counts_ = look::paragraph(QStringLiteral("menu.counts"), look::TextSize::Body, side);
    column->addWidget(counts_);
    notices_ = look::paragraph(QStringLiteral("menu.notices"), look::TextSize::Hint, side);
    column->addWidget(notices_);
    column->addStretch(1);
    column->addWidget(buildDataFolder());
    fixWidth(*side);
    side_ = side;
    return side;
}

QWidget* MenuWindow::buildDataFolder() {
    const auto [part, column] = look::part(this);
    column->addWidget(look::heading(QStringLiteral("(Diretório de Dados)"), part));
    drive_ = new QComboBox(part);
    look::name(*drive_, QStringLiteral("menu.drive"), QStringLiteral("Drive de Origem"));
    column->addLayout(look::captioned(QStringLiteral("Dri&ve de Origem:"), drive_));
    folder_ = look::paragraph(QStringLiteral("menu.folder"), look::TextSize::Hint, part);
    column->addWidget(folder_);
    connect(drive_, &QComboBox::textActivated, this, [this](const QString& letter) {
        menu_.useDrive(letter.front().toLatin1());
        fillCompanies();
        refresh();
    });
    return part;
}

void MenuWindow::addToSide(QWidget& part) {
    side_->layout()->addWidget(&part);
    fixWidth(*side_);
}

bool MenuWindow::start() {
    if (!menu_.claimRun()) return false;
    started_ = true;
    today_->setText(toQt(dateText(at_.clock.today())) + QStringLiteral(" · Aguarde..."));
    fitToScreen(*this, *body_);
    show();
    fitToScreen(*this, *commands_);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    menu_.load();
    menu_.selectAsBefore();
    fillCompanies();
    refresh();
    if (menu_.offerEarlierData()) refresh();
    search_->setFocus();
    return true;
}

void MenuWindow::refresh() {
    const CompanyLine* company = menu_.selected();
    companyName_->setText(company ? toQt(company->record.code + "  " + company->record.name)
                                  : QStringLiteral("Selecione uma empresa"));
    today_->setText(dayLine(at_.clock.today()));
    showCompany();
    showOverview();
    showTiles();
    showDrive();
}

void MenuWindow::fillCompanies() {
    const QSignalBlocker quiet(companies_);
    companies_->clear();
    for (const CompanyLine& line : menu_.companies()) {
        auto* item = new QListWidgetItem(toQt(line.record.code + "  " + line.record.name));
        if (!line.key()) {
            item->setText(QStringLiteral("⚠ ") + toQt(unreadRow(line.bytes).searched));
            item->setFlags(Qt::NoItemFlags);
        }
        item->setToolTip(item->text());
        companies_->addItem(item);
        if (menu_.selected() == &line)
            companies_->setCurrentItem(item, QItemSelectionModel::NoUpdate);
    }
    filterCompanies(search_->text());
}

/// Highlights the company in use, and no other.
void MenuWindow::showCompany() {
    companies_->clearSelection();
    for (std::size_t i = 0; i < menu_.companies().size(); ++i)
        if (menu_.selected() == &menu_.companies()[i])
            companies_->item(static_cast<int>(i))->setSelected(true);
}

void MenuWindow::filterCompanies(const QString& wanted) {
    QListWidgetItem* firstShown = nullptr;
    for (int row = 0; row < companies_->count(); ++row) {
        QListWidgetItem* item = companies_->item(row);
        const bool shown = matchesSearch(toUtf8(item->text()), toUtf8(wanted));
        item->setHidden(!shown);
        if (shown && !firstShown) firstShown = item;
    }
    const QListWidgetItem* current = companies_->currentItem();
    if (!wanted.isEmpty() && (!current || current->isHidden()))
        companies_->setCurrentItem(firstShown, QItemSelectionModel::NoUpdate);
}

void MenuWindow::selectCompany() {
    const int row = companies_->currentRow();
    if (row < 0 || companies_->item(row)->isHidden()) return;
    menu_.select(static_cast<std::size_t>(row));
    refresh();
}

/// Enter on the company in use confirms the month that is offered, and else selects.
void MenuWindow::enterCompany() {
    const int row = companies_->currentRow();
    const bool inUse = row >= 0 && menu_.selected() &&
                       menu_.selected() == &menu_.companies()[static_cast<std::size_t>(row)];
    if (inUse && offered_->isVisible())
        confirmMonth();
    else
        selectCompany();
}

void MenuWindow::confirmMonth() {
    (void)calendar_.confirmOffered();
    refresh();
}

void MenuWindow::showOverview() {
    const Date today = at_.clock.today();
    MonthOverview overview;
    overview.month = monthOf(today);
    (void)attempt(at_, incorrectData(), [&] { overview = calendar_.overview(today); });
    inWork_ = overview.inWork;
    monthName_->setText(toQt(monthTitle(overview.month)));
    offered_->setVisible(overview.offered && menu_.selected());
    if (overview.offered)
        offered_->setText(
            QStringLiteral("Confirmar %1 ↵").arg(toQt(monthTitle(*overview.offered))));
    month_->show(overview, today);
    const QString counts =
        QStringLiteral("Dias úteis %1 · DSR %2").arg(overview.businessDays).arg(overview.restDays);
    counts_->setText(overview.recorded ? counts : counts + QStringLiteral(" (sugestão)"));
    QStringList lines;
    for (const std::string& line : overview.notices)
        lines.append(toQt(line));
    notices_->setText(lines.join(QLatin1Char('\n')));
}

void MenuWindow::showTiles() {
    std::optional<MonthProgress> progress;
    attemptQuietly(at_.log, kStateOfCommands, [&] { progress = progress_(inWork_); });
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const MenuEntry& entry = entries_[i];
        QString line;
        attemptQuietly(at_.log, kStateOfCommands, [&] {
            if (entry.state) line = entry.state(progress ? &*progress : nullptr);
        });
        CommandTile& tile = *commands_->tiles()[i];
        tile.setStateLine(line);
        tile.setNext(progress && entry.step == progress->next);
    }
}

void MenuWindow::showDrive() {
    const QSignalBlocker quiet(drive_);
    drive_->clear();
    for (const char letter : menu_.driveLetters())
        drive_->addItem(QString(QLatin1Char(letter)));
    drive_->setCurrentText(QString(QLatin1Char(at_.session.folder.driveLetter())));
    const QString path = QDir::toNativeSeparators(toQt(at_.session.folder.path().string()));
    folder_->setText(
        QString(path).replace(QDir::separator(), QString(QDir::separator()) + QChar(0x200B)));
    folder_->setToolTip(path);
}

void MenuWindow::open(const MenuEntry& entry) {
    if (!menu_.require(entry.needs)) return;
    entry.open(this);
    menu_.remember();
    reload();
}

void MenuWindow::reload() {
    menu_.reloadCompanies();
    fillCompanies();
    refresh();
}

void MenuWindow::closeEvent(QCloseEvent* event) {
    if (started_) menu_.exit();
    event->accept();
}

}  // namespace winvrx
