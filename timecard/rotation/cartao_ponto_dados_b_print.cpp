// The plan for the wall.
#include "foundation/desk/text_report.h"
#include "report/print_pages.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"
#include "timecard/schedule/schedule_words.h"

#include <iterator>

namespace winvrx {

namespace {

const Message kNothingToPrint = refusal(kGroupTitle, "Não há GRUPOS para imprimir.");
const Message kRecordFirst = refusal(kGroupTitle, "Grave o GRUPO antes de imprimir.");
const Message kNotOpened = refusal(kGroupTitle, "Ocorreu Erro");

}  // namespace

std::vector<RotationSheet> CartaoPontoDadosB::requireSheets() {
    const auto groups = shownGroups();
    if (groupChanged() || groups.empty()) {
        at_.person.tell(groups.empty() ? kNothingToPrint : kRecordFirst);
        return {};
    }
    std::vector<RotationSheet> sheets;
    for (const RotationGroup& group : groups) {
        MergeWords words;
        putSchedule(words, timesOn(loadTable(at_.store(), *company_, group.shift, group.scale),
                                   std::chrono::Monday));
        sheets.push_back(
            {heading_, group,
             viewOf(group, settings_, month_.names(), month_.absence(), month_.before()),
             settings_.month, words.at("horario")});
    }
    return sheets;
}

bool CartaoPontoDadosB::printText() {
    return attempt(at_, incorrectData(), [this] {
        std::vector<std::string> lines;
        for (const RotationSheet& sheet : requireSheets()) {
            if (!lines.empty()) lines.emplace_back();
            auto more = sheetLines(sheet);
            std::ranges::move(more, std::back_inserter(lines));
        }
        if (lines.empty()) return false;
        return showReports(at_, desk_.editor,
                           {{at_.session.folder.file(kRotationTextName), std::move(lines)}}) ||
               at_.person.refuse(kNotOpened);
    });
}

bool CartaoPontoDadosB::printSheets(ReportOutput output) {
    return attempt(at_, incorrectData(), [&] {
        const auto sheets = requireSheets();
        if (sheets.empty()) return false;
        ReportPages pages(sheets.size(), [&](std::size_t at) { return sheetRows(sheets[at]); });
        const ReportRequest request{.layoutName = std::string(kRotationLayout),
                                    .title = std::string(kGroupTitle),
                                    .columns = sheetColumns(),
                                    .output = output};
        return winvrx::printPages({at_, desk_.engine, {}}, request, pages) == PrintEnd::Done;
    });
}

}  // namespace winvrx
