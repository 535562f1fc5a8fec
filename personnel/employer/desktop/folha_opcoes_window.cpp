#include "personnel/employer/desktop/folha_opcoes_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/employer/agencies.h"

#include <QComboBox>
#include <QGridLayout>
#include <QMenu>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QToolButton>

namespace winvrx {

namespace {

constexpr int kColumns = 2;

}  // namespace

FolhaOpcoesWindow::FolhaOpcoesWindow(FolhaOpcoes& options, const QString& company, QWidget* parent)
    : ScreenWindow(QStringLiteral("opcoes"), toQt(kOptionsTitle), parent), options_(options) {
    buildCommands();
    setBody(buildSettings());
    setSubtitle(QStringLiteral("O que nem a lei nem o costume decidem; a primeira é a usual"));
    setChips({company});
    (void)options_.load();
    showChoices();
    if (!choices_.empty()) choices_.front()->setFocus();
}

QWidget* FolhaOpcoesWindow::buildSettings() {
    auto* body = new QWidget(this);
    auto* grid = new QGridLayout(body);
    grid->setContentsMargins(look::kMargin, look::kMargin, look::kMargin, look::kMargin);
    grid->setHorizontalSpacing(look::kGroupGap);
    grid->setVerticalSpacing(look::kGap);
    const auto settings = payrollSettings();
    const std::size_t rows = (settings.size() + kColumns - 1) / kColumns;
    for (std::size_t place = 0; place < settings.size(); ++place) {
        const PayrollSetting& setting = settings[place];
        auto* list = new QComboBox(body);
        list->setObjectName(QStringLiteral("opcoes.") + toQt(setting.key));
        for (const std::string_view choice : setting.choices)
            list->addItem(toQt(choice));
        auto* field = new Field(toQt(setting.title), list, body);
        field->setNote(toQt(setting.effect));
        grid->addWidget(field, static_cast<int>(place % rows), static_cast<int>(place / rows));
        connect(list, &QComboBox::activated, this, [this, place](int choice) {
            options_.choose(place, static_cast<std::size_t>(choice));
            showState();
        });
        choices_.push_back(list);
    }
    return look::scrolled(body, this);
}

void FolhaOpcoesWindow::buildCommands() {
    addCommand({"restore", QStringLiteral("Opções Usuais"), Qt::Key_F9, "opcoes.usual", [this] {
                    options_.chooseUsual();
                    showChoices();
                }});
    addCommand({"sheet", QStringLiteral("Tabelas Legais"), Qt::Key_F7, "opcoes.tables",
                [this] { emit tablesRequested(); }});
    addCommand({"employees", QStringLiteral("Dados dos Funcionários"), Qt::Key_F8, "opcoes.facts",
                [this] { emit factsRequested(); }});
    addCommand({"payroll", QStringLiteral("Guia do Doméstico"), Qt::Key_F6, "opcoes.guide",
                [this] { emit guideRequested(); }});
    QToolButton* agencies = addCommand(
        {"internet", QStringLiteral("Páginas dos Órgãos"), Qt::Key_F4, "opcoes.agencies", {}});
    auto* pages = new QMenu(agencies);
    pages->setObjectName(QStringLiteral("opcoes.pages"));
    for (std::size_t page = 0; page < kAgencyPages.size(); ++page)
        connect(pages->addAction(toQt(kAgencyPages[page].name) + QStringLiteral(": ") +
                                 toQt(kAgencyPages[page].says)),
                &QAction::triggered, this, [this, page] { emit agencyRequested(page); });
    connect(agencies, &QToolButton::clicked, this, [agencies, pages] {
        pages->popup(agencies->mapToGlobal(QPoint(0, agencies->height())));
    });
    addDefaultButton({"save", QStringLiteral("&Gravar"), QKeySequence::Save, "opcoes.save", [this] {
                          (void)options_.save();
                          showChoices();
                      }});
    addLeavingButton("opcoes.close");
}

void FolhaOpcoesWindow::showChoices() {
    for (std::size_t place = 0; place < choices_.size(); ++place) {
        const QSignalBlocker quiet(choices_[place]);
        choices_[place]->setCurrentIndex(static_cast<int>(options_.choice(place)));
    }
    showState();
}

void FolhaOpcoesWindow::showState() {
    setState(options_.isChanged() ? QStringLiteral("Alterações não gravadas")
             : options_.unread().empty()
                 ? QStringLiteral("%1 opções").arg(choices_.size())
                 : QStringLiteral("%1 linhas do registro não são entendidas e ficam como estão")
                       .arg(options_.unread().size()));
}

bool FolhaOpcoesWindow::mayClose() {
    return options_.confirmDiscard();
}

}  // namespace winvrx
